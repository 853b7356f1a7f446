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
  subject: C=RU,O=Org,CN=Alpha
$subject_tree  issuer: C=RU,O=Org,CN=Alpha
$subject_tree  extensions:
    2.5.29.19 Basic Constraints, critical: 30 06 01 01 FF 02 01 01
    2.5.29.15 Key Usage, critical: 03 02 01 06
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
row "PEM in one line, ended by CR LF" 0 "$printable" "" show long_line.pem
row "DER" 0 "$printable" "" show printable.der
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
  '~  subject: \(refused: several attributes in one RDN\)' "" show multi_valued.pem
row "several attributes in one RDN, tree" 0 '~      OU \(2\.5\.4\.11\) UTF8String: Unit' "" \
  show multi_valued.pem

while IFS= read -r expected; do
  row "alternative names: $expected" 0 "~ +$expected" "" show alternative_names.pem
done <<'LINES'
2\.5\.29\.17 Subject Alternative Name, not critical:
= 1\.3\.6\.1\.4\.1\.311\.20\.2\.3 0C 04 75 73 65 72
rfc822Name: user@example\.org
dNSName: example\.org
x400Address: \[X400Address\]
directoryName: A4 12 30 10 31 0E 30 0C 06 03 55 04 03 13 05 44 65 6C 74 61
= CN=Delta
ediPartyName: Имя партии: \\u000C\\u0005Party
uniformResourceIdentifier: http://example\.org/
= 192\.0\.2\.1
iPAddress: \[Неверная длина IP адреса\]
= 2001:0DB8:0000:0000:0000:0000:0000:0001
registeredID: 1\.2\.3\.4
2\.5\.29\.18 Issuer Alternative Name, not critical:
dNSName: issuer\.example
LINES

# What cannot be read, between two that can.
between() {
  cat printable.pem - bmp.pem >bundle.pem
}
block() {
  printf -- '-----BEGIN CERTIFICATE-----\n%s\n-----END CERTIFICATE-----\n' "$1"
}
prefix='x509name: show: bundle\.pem: certificate 2: '
block "$(body printable.pem | head -c 100)" | between
row "cut short" 1 '~certificate 3' "$prefix.*$(code 0x80093103)" show bundle.pem
block "$(body printable.pem)*" | between
row "no base64" 1 '~certificate 3' "${prefix}a PEM block that is no base64$(code 13)" show bundle.pem
block "MAA=" | between
row "empty sequence" 1 '~certificate 3' "${prefix}.*$(code 0x80093103)" show bundle.pem
block "BAA=" | between
row "no sequence" 1 '~certificate 3' "${prefix}.*$(code 0x8009310B)" show bundle.pem
echo '-----BEGIN CERTIFICATE-----' | between
row "no end" 1 '~certificate 3' "${prefix}a PEM block without an end$(code 13)" show bundle.pem
printf -- '-----BEGIN X-----\nMAA=\n-----END X-----\ntext\n' | between
row "other blocks and text between" 0 '~certificate 2' "" show bundle.pem
{ cat printable.der && printf '\x30\x82'; } >bundle.pem
row "octets behind the last" 1 "$printable" "${prefix}neither PEM .*$(code 13)" show bundle.pem
echo text >text
row "no certificate" 1 "" "x509name: show: text: certificate 1: .*$(code 13)" show text
: >empty
row "empty file" 1 "" "x509name: show: empty holds no certificate$(code 13)" show empty
row "no such file, another one" 1 '~certificate 1' "x509name: show: cannot open no\.pem$(code 2)" \
  show no.pem printable.pem

# A version 1 certificate of empty fields but for the subject, CN = "a", LF, "  issuer: x".
block "MCwwJQIBATAAMAAwADAYMRYwFAYDVQQDDA1hCiAgaXNzdWVyOiB4MAAwAAMBAA==" >forged.pem
row "line end in a value" 0 '~  subject: CN="a\\u000A  issuer: x"' "" show forged.pem

row "survey" 0 '~  went text to DER to text unchanged +4' "" survey printable.pem cyrillic.pem
row "survey, refused" 0 '~ +several attributes in one RDN +2' "" survey multi_valued.pem bmp.pem

# Extensions and general names, octets by hand from X.690 and RFC 5280.
row "critical extension" 0 \
  $'2.5.29.15\ncritical\n030205A0\n300E0603551D0F0101FF0404030205A0\n' "" \
  extension 300E0603551D0F0101FF0404030205A0
row "extension with an encoded default" 0 \
  $'2.5.29.15\nnot critical\n030205A0\n300B0603551D0F0404030205A0\n' "" \
  extension 300E0603551D0F0101000404030205A0
row "extension of one part" 1 "" "x509name: extension: the extension cannot be read$(code 0x80093103)" \
  extension 30050603551D0F
row "extension cut short" 1 "" "x509name: extension: .*$(code 0x80093103)" \
  extension 300E0603551D0F0101FF0404030205
row "DNS name" 0 $'2\texample.org\n' "" general-name 820B6578616D706C652E6F7267
row "address" 0 $'7\t135:4:192:0:2:1\n' "" general-name 8704C0000201
row "registered identifier" 0 $'8\t1.2.3.4\n' "" general-name 88032A0304
# Four octets, A0 02 05 00, are U+02A0 and U+0005, and a text of four units.
row "other name" 0 "#3009CAA00500000A" "" general-name A0020500
row "general name cut short" 1 "" "x509name: general-name: .*$(code 0x80093103)" general-name 82
