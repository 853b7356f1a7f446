# shellcheck shell=bash disable=SC2034
# Certificates, extensions and general names. What the certificates hold is OpenSSL's report of
# them and tests/data/certificates/make.sh.

line=$'\n'
subject_tree='    RDN 1
      C (2.5.4.6) PrintableString: RU
    RDN 2
      O (2.5.4.10) PrintableString: Org
    RDN 3
      CN (2.5.4.3) PrintableString: Alpha
'
printable="certificate 1
  serial number: 01
  not before: 2026-11-21T04:07:32Z
  not after: 2126-10-28T04:07:32Z
  SHA-256: 20EE99FF380490070783E5E402D65E1189F631960F92628BEF0B473E23F8E2CF
  subject: C=RU,O=Org,CN=Alpha
$subject_tree  issuer: C=RU,O=Org,CN=Alpha
$subject_tree  extensions:
    2.5.29.19 Basic Constraints, critical:
      certificate authority: yes
      path length: 1
    2.5.29.15 Key Usage, critical: keyCertSign, cRLSign
    1.2.3.4, not critical: 0C 03 61 62 63
"
# The base64 lines of a PEM file, in one line.
body() {
  sed '/^-----/d' "$1" | tr -d '\n'
}
body printable.pem | base64 -d >printable.der
cat printable.der printable.der >two.der
tr -d '\n' <printable.pem | sed 's/CERTIFICATE-----/&\r\n/; s/-----END/\r\n&/' >long_line.pem

row "PEM" 0 "$printable" "" show printable.pem
printf '\xEF\xBB\xBF' | cat - printable.pem >marked.pem
row "PEM behind the mark of UTF-8" 0 "$printable" "" show marked.pem
row "PEM in one line, ended by CR LF" 0 "$printable" "" show long_line.pem
row "DER" 0 "$printable" "" show printable.der
body printable.pem >printable.base64
row "base64 alone" 0 "$printable" "" show printable.base64
row "two in DER" 0 "$printable${printable/certificate 1/certificate 2}" "" show two.der
stdin_file=printable.pem
row "standard input" 0 "$printable" "" show -
stdin_file=
row "two files" 0 "printable.pem:$line${printable}printable.der:$line$printable" "" \
  show printable.pem printable.der
row "UTF8String" 0 '~      O \(2\.5\.4\.10\) UTF8String: ООО "Ромашка", Москва' "" \
  show cyrillic.pem
row "BMPString" 0 '~      CN \(2\.5\.4\.3\) BMPString: Альфа' "" show bmp.pem
row "several attributes in one RDN, text" 0 \
  '~  subject: CN=Beta,O=Org\+OU=Unit,C=RU' "" show multi_valued.pem
row "several attributes in one RDN, tree" 0 '~      OU \(2\.5\.4\.11\) UTF8String: Unit' "" \
  show multi_valued.pem

# What the certificates hold is the report of `openssl x509 -text`.
while IFS='|' read -r file expected; do
  row "$file: $expected" 0 "~ *$expected" "" show "$file.pem"
done <<'LINES'
alternative_names|2\.5\.29\.17 Subject Alternative Name, not critical:
alternative_names|UPN:user
alternative_names|email:user@example\.org
alternative_names|DNS:example\.org
alternative_names|X400:#3000
alternative_names|dirName:CN=Delta
alternative_names|URI:http://example\.org/
alternative_names|IP:192\.0\.2\.1
alternative_names|IP:2001:db8::1
alternative_names|RID:1\.2\.3\.4
alternative_names|2\.5\.29\.18 Issuer Alternative Name, not critical: DNS:issuer\.example
typed|path length: 3
typed|2\.5\.29\.15 Key Usage, critical: digitalSignature, keyCertSign, cRLSign, decipherOnly
typed|serverAuth
typed|subtree: email:\.example\.org
typed|subtree: IP:192\.168\.0\.0/16
typed|excluded:
typed|subtree: IP:192\.168\.0\.0/255\.0\.255\.0
typed|access: ocsp
typed|location: URI:http://ocsp\.example/
typed|reasons: keyCompromise, cACompromise
typed|dirName:C=RU
typed|name relative to the issuer: CN=Point
typed|policy: anyPolicy
typed|value: http://cps\.example/
typed|text: Привет
typed|explicit policy required after: 3
typed|subject's policy: 1\.2\.4
typed|IP:::
typed|IP:1::
typed|IP:2001:db8::1:0:0:1
typed|IP:::ffff:1\.2\.3\.4
typed|IP:2001:db8:0:1:1:1:1:1
typed|RID:2\.999\.12345678901234567890
typed|KRB5:user/admin@EXAMPLE\.ORG
typed|2\.16\.840\.1\.113730\.1\.13 Netscape Comment, not critical: a\\\\u001B
typed|SHA-256: 8BE64B56360774E7267A816138EEBC18EF8B87805D0E14C72CFCDE212FCDFDDF
request|certificate request 1
request|subject: CN=Request
request|path length: 1
list|certificate revocation list 1
list|this update: 2026-11-21T22:17:15Z
list|revoked certificates: 0
list|issuer: C=RU,O=Org,CN=Alpha
list|only user certificates: yes
pkcs7|certificate 2
pkcs7|SHA-256: 480B3E8B40EE302F484DB43F0D393BB676C2CB39DDC2DCC90D34A7646F37AE7C
pkcs7|certificate revocation list 3
LINES
row "the library's text on request" 0 '~        libraryText: \[Неверная длина IP адреса\]' "" \
  show --library-text alternative_names.pem

# What cannot be read, between two that can.
between() {
  cat printable.pem - bmp.pem >bundle.pem
}
block() {
  printf -- '-----BEGIN CERTIFICATE-----\n%s\n-----END CERTIFICATE-----\n' "$1"
}
prefix='x509name: show: bundle\.pem: certificate 2: '
block "$(body printable.pem | head -c 100)" | between
row "cut short" 1 '~certificate 3' "${prefix}the octets are cut short, or no DER" show bundle.pem
block "$(body printable.pem)*" | between
row "no base64" 1 '~certificate 3' "${prefix}a PEM block that is no base64" show bundle.pem
block "MAA=" | between
row "empty sequence" 1 '~certificate 3' "${prefix}this is a name, not a certificate: .*" show bundle.pem
block "BAA=" | between
row "no sequence" 1 '~certificate 3' "${prefix}the fields are not those of a certificate: at offset 0: .*" show bundle.pem
echo '-----BEGIN CERTIFICATE-----' | between
row "no end" 1 '~certificate 3' "${prefix}a PEM block without an end" show bundle.pem
block "$(base64 -w 0 <(cat printable.der && printf 'x'))" | between
row "octets behind one" 1 '~certificate 3' "${prefix}1 octet is left over behind the encoding of .*" \
  show bundle.pem
row "octets behind one, checked" 1 '~certificate 3.*' "${prefix}1 octet is left over .*" \
  show --check bundle.pem
sed 's/CERTIFICATE/TRUSTED &/' bundle.pem >trusted.pem
row "what a trusted certificate has behind it" 0 '~certificate 3' "" show trusted.pem
printf -- '-----BEGIN X-----\nMAA=\n-----END X-----\ntext\n' | between
row "other blocks and text between" 0 '~certificate 2' "" show bundle.pem
{ cat printable.der && printf '\x30\x82'; } >bundle.pem
row "octets behind the last" 1 "$printable" "${prefix}neither PEM .*" show bundle.pem
echo text >text
row "no certificate" 1 "" "x509name: show: text: certificate 1: neither PEM .*" show text
: >empty
row "empty file" 1 "" "x509name: show: empty holds no certificate, .*" show empty
row "no such file, another one" 1 '~certificate 1' "x509name: show: cannot open no\.pem$(code 2)" \
  show no.pem printable.pem

# A version 1 certificate of empty fields but for the subject, CN = "a", LF, "  issuer: x".
block "MCwwJQIBATAAMAAwADAYMRYwFAYDVQQDDA1hCiAgaXNzdWVyOiB4MAAwAAMBAA==" >forged.pem
row "line end in a value" 0 '~  subject: CN="a\\u000A  issuer: x"' "" show forged.pem

# Letters that look like an escape, ESC, a zero-width space, a byte order mark and a tag.
octets <<<30303029020101300030003000301C311A301806035504030C115C75303031421BE2808BEFBBBFF3A0818130003000030100 \
  | base64 | block "$(cat)" >hidden.pem
row "hidden characters" 0 '~      CN \(2\.5\.4\.3\) UTF8String: \\\\u001B\\u001B\\u200B\\uFEFF\\U000E0041' "" show hidden.pem

# By lines, where the exit status is that of the stream.
row "checked by lines" 0 $'certificate: nothing found\n' "" show --check --lines bmp.pem
row "checked by lines, as JSON" 0 '~\{"kind":"revocationList","findings":\[\{"rule":"list-authority-key-id-missing".*' "" \
  show --check --lines --json list.pem
# A CRL whose second entry is removed though the CRL is no delta.
octets <<<"3081B43081A8020101300406022A03300D310B300906035504030C024341170D3236303130313030303030305A170D32\
36303130313030303030305A30443020020101170D3236303130313030303030305A300C300A0603551D1504030A0107\
3020020102170D3236303130313030303030305A300C300A0603551D1504030A0108A02A3028300C0603551D23040530\
03800101300A0603551D140403020101300C0603551D1C0101FF04023000300406022A03030100" >entries.der
row "finding in an entry" 1 '~  RFC 5280 5\.3\.1: serial number 02: Reason Code: removeFromCRL stands .*' "" show --check entries.der
row "compared by lines" 2 "" "x509name: --diff does not go with --lines" show --diff --lines bmp.pem
row "nothing differs" 0 "" "" show --diff printable.pem printable.der
row "three to compare" 2 "" "x509name: --diff takes two documents, and there are 3 in the files" \
  show --diff pkcs7.pem

row "survey" 0 '~  went text to DER to text unchanged +4' "" survey printable.pem cyrillic.pem
row "survey, refused" 0 '~ +several attributes in one RDN +2' "" survey multi_valued.pem bmp.pem

# Extensions and general names, octets by hand from X.690 and RFC 5280.
row "critical extension" 0 \
  $'2.5.29.15\ncritical\n030205A0\n300E0603551D0F0101FF0404030205A0\nKey Usage: digitalSignature, keyEncipherment\n' "" \
  extension 300E0603551D0F0101FF0404030205A0
row "extension with an encoded default" 0 \
  $'2.5.29.15\nnot critical\n030205A0\n300B0603551D0F0404030205A0\nKey Usage: digitalSignature, keyEncipherment\n' "" \
  extension 300E0603551D0F0101000404030205A0
row "extension of one part" 1 "" "x509name: extension: the extension cannot be read$(code 0x80093103)" \
  extension 30050603551D0F
row "extension cut short" 1 "" "x509name: extension: .*$(code 0x80093103)" \
  extension 300E0603551D0F0101FF0404030205
row "DNS name" 0 $'2\texample.org\nDNS:example.org\n' "" general-name 820B6578616D706C652E6F7267
row "address" 0 $'7\t135:4:192:0:2:1\nIP:192.0.2.1\n' "" general-name 8704C0000201
row "registered identifier" 0 $'8\t1.2.3.4\nRID:1.2.3.4\n' "" general-name 88032A0304
row "general name as JSON" 0 '{"tag":7,"kind":"iPAddress","text":"192.0.2.1","libraryText":"135:4:192:0:2:1"}'"$line" "" \
  general-name --json 8704C0000201
row "extension as JSON" 0 '{"oid":"2.5.29.15","name":"Key Usage","critical":true,"value":"030205A0","content":["digitalSignature","keyEncipherment"]}'"$line" "" \
  extension --json 300E0603551D0F0101FF0404030205A0
row "extension that is no DER" 0 '~ *\(no DER: at offset 2: a default value is written out\)' "" \
  extension 300C0603551D1304053003010100
row "extension that is not what it is called" 0 '~Key Usage: 05 00' "" extension 30090603551D0F04020500
# Four octets, A0 02 05 00, are U+02A0 and U+0005, and a text of four units.
row "other name" 0 "#3009CAA00500000A" "" general-name A0020500
row "general name cut short" 1 "" "x509name: general-name: .*$(code 0x80093103)" general-name 82
