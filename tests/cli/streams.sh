# shellcheck shell=bash
# --lines: what goes in and comes out, item by item. Rows of values stand in vectors_test.py.

alpha=3010310E300C06035504031305416C706861
refused() { echo "x509name: $1: $2 of $3 items refused"; }

stdin_file=items
# Digits as people have them, base64, CR LF, a last line without an end.
printf '%s\n' "$alpha" "${alpha,,}" "$(sed 's/../0x&, /g' <<<"$alpha") " \
  $'30:10:31:0E:30:0C:06:03:55:04:03:13\t:05:41:6C:70:68:61\r' MBAxDjAMBgNVBAMTBUFscGhh >items
printf 'MBAx DjAM BgNV BAMT BUFs cGhh' >>items
row "forms of octets" 0 "$(printf 'CN=Alpha\n%.0s' {1..6})
" "" decode --rfc4514 --lines
printf '%s\nzz\n\n%s30\n%s\n30800000\nMBA\n' "$alpha" "$alpha" "${alpha%?}" >items
row "refusals between results" 1 "CN=Alpha
!0 a text that is neither hexadecimal, base64 nor PEM
!20 at offset 0: the octets end inside an element
!21 at offset 18: octets are left over behind the element
!0 hexadecimal digits that do not make whole octets
!23 at offset 1: a length in the indefinite form is no DER
!0 a text that is neither hexadecimal, base64 nor PEM
" "$(refused decode 6 7)" decode --rfc4514 --lines
row "refusals as JSON" 1 \
  '~\{"error":"at offset 18: octets are left over behind the element","code":21\}' \
  "$(refused key 6 7)" key --json --lines
row "the older text form" 1 '~!0 1 octet is left over behind the encoding of 18' \
  "$(refused decode 5 7)" decode --lines
# A value may be anything: a line end, or what a refusal begins with.
printf '%s\n' 300E310C300A06035504030C03610A62 300E310C300A06035504030C03216162 >items
row "text that is no line" 1 \
  "$(printf '!0 a text that a line cannot hold; --json has it\n%.0s' 1 2)
" "$(refused decode 2 2)" decode --style values --lines
row "the same as JSON" 0 '{"text":"\"a\u000Ab\""}
{"text":"!ab"}
' "" decode --style values --lines --json
printf 'CN=a\\ \nCN=a,"\n' >items
row "text with a blank at its end" 1 '300D310B3009060355040313026120
!82 """ at character 6: expected "=" and a value behind the type; a comma, plus or semicolon inside a value has a backslash before it
' "$(refused encode 1 2)" encode --rfc4514 --lines
printf 'CN=a\\b\n' >items
row "no warnings" 0 $'3011310F300D06035504031E060061005C0062\n' "" encode --lines -

printf '%s\t%s\n' "$alpha" "$alpha" "$alpha" 3000 "$alpha" zz >items
printf '%s\n%s\t3000\t3000\n' "$alpha" "$alpha" >>items
row "columns" 1 'yes
no the numbers of RDNs do not fit
!0 a text that is neither hexadecimal, base64 nor PEM
!0 2 columns are wanted, separated by tabs; there is 1
!0 2 columns are wanted, separated by tabs; there is 3
' "$(refused equal 3 5)" equal --rfc5280 --lines
row "by the other rule" 1 "~no the attributes are different" "$(refused equal 3 5)" equal --lines
row "a verdict as JSON" 1 \
  '~\{"verdict":"no","reason":"the numbers of RDNs do not fit","code":180\}' \
  "$(refused within 3 5)" within --json --lines
stdin_file=

# Certificates as they lie about: PEM with text and keys between, DER.
for file in printable.pem alternative_names.pem; do
  sed -n '/BEGIN/,/END/p' "$file" | grep -v -e ----- | base64 -d >"${file%.pem}.der"
done
{ cat printable.pem; echo "text -----BEGIN CERTIFICATE-----"; sed 's/CERTIFICATE/PRIVATE KEY/' printable.pem
  sed '/END/d' printable.pem; cat alternative_names.pem; } >bundle.pem
row "PEM" 1 'no the certificate has no subject alternative names
!0 a PEM block without an end
yes DNS:example.org
' "$(refused identify 1 3)" identify --host example.org --lines bundle.pem
cat printable.der alternative_names.der >bundle.der
row "DER, a file behind another" 0 'no the certificate has no subject alternative names
yes DNS:example.org
yes DNS:example.org
' "" identify --host example.org --lines bundle.der alternative_names.pem
{ cat bundle.der; echo junk; } >junk.der
row "DER with something behind" 1 '~!22 cannot tell: at offset 0: .*' "$(refused identify 1 3)" \
  identify --host example.org --lines junk.der
{ for file in printable alternative_names; do
  printf 'host\texample.org\t%s\n' "$(base64 -w 0 $file.der)"
done; printf 'dns\texample.org\t30\nip\t192.0.2.256\t3000\n'; } >items
row "the question in the line" 1 "no the certificate has no subject alternative names
yes DNS:example.org
!0 the first column is none of host, ip, email, uri, srv
!160 at offset 0: the text is no IP address
" "$(refused identify 2 4)" identify --lines items
row "no columns" 1 $'!0 columns are wanted, and this is one certificate\n' "$(refused identify 1 1)" \
  identify --lines printable.der
# The authority permits example.org alone, which the leaf is not in: an empty subject, a DNS name.
leaf=305B3050A003020102020101300406022A033000301E170D3236303130313030303030305A170D3236303130313030303030305A30003009300406022A03030100A311300F300D0603551D110406300482026162300406022A03030100
root=308189307EA003020102020101300406022A03300F310D300B06035504030C04526F6F74301E170D3236303130313030303030305A170D3236303130313030303030305A300F310D300B06035504030C04526F6F743009300406022A03030100A321301F301D0603551D1E0101FF04133011A00F300D820B6578616D706C652E6F7267300406022A03030100
printf '%s\t%s\n%s\n\n%s\t00\n' "$leaf" "$root" "$leaf" "$leaf" >items
row "a chain in columns" 1 'no certificate 1: DNS name ab is in no permitted subtree of certificate 2 (example.org)
yes
!0 no certificates
!313 cannot tell: certificate 2: this is no certificate that can be read
' "$(refused permitted 2 4)" permitted --lines items
row "a document in a line" 0 '~certificate	  serial number: 01	  not before: .*	  subject: C=RU,.*' "" \
  show --lines printable.der
row "a document as JSON" 0 '~\{"kind":"certificate","serialNumber":"01",.*\}' "" \
  show --lines --json printable.pem
row "a bundle is no item" 1 $'!0 this is a PKCS #7 bundle, which show opens without --lines\n' \
  "$(refused show 1 1)" show --lines pkcs7.pem
echo "$alpha" >name.hex
row "a file is missing" 1 $'CN=Alpha\n' "x509name: decode: cannot open no.hex: no such file" \
  decode --rfc4514 --lines no.hex name.hex
row "into a file" 2 "" "x509name: --lines prints, and takes no --out" encode --lines --out a.der
row "all reasons" 2 "" "x509name: --lines prints one reason, and takes no --all" permitted --lines --all
for jobs in 0 257 x; do
  row "threads: $jobs" 2 "" "x509name: --jobs needs a number .*" key --lines --jobs $jobs
done
row "threads without lines" 2 "" "x509name: --jobs goes with --lines" key --jobs 2 3000
row "JSON without lines" 2 "" "x509name: --json goes with --lines" key --json 3000
