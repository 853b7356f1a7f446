# shellcheck shell=bash disable=SC2034
# DER to text and to what else can be asked of a name. The names are OpenSSL's subjects of the
# sample certificates, or worked out by hand.

printable=302B310B3009060355040613025255310C300A060355040A13034F7267310E300C06035504031305416C706861
cyrillic=3074310B30090603550406130252553115301306035504070C0CD09CD0BED181D0BAD0B2D0B0312E302C060355040A0C25D09ED09ED09E2022D0A0D0BED0BCD0B0D188D0BAD0B0222C20D09CD0BED181D0BAD0B2D0B0311E301C06035504030C15D098D0B2D0B0D0BDD0BED0B220D098D0B2D0B0D0BD
multi_valued=3037310B30090603550406130252553119300A060355040A0C034F7267300B060355040B0C04556E6974310D300B06035504030C0442657461
line=$'\n'

row "short keys" 0 "C=RU,O=Org,CN=Alpha$line" "" decode "$printable"
row "lower-case digits" 0 "C=RU,O=Org,CN=Alpha$line" "" decode "${printable,,}"
row "identifiers" 0 "2.5.4.6=RU,2.5.4.10=Org,2.5.4.3=Alpha$line" "" decode --options 2 "$printable"
row "values" 0 "RU,Org,Alpha$line" "" decode --options 1 "$printable"
row "semicolon" 0 "C=RU;O=Org;CN=Alpha$line" "" decode --options 0x40000003 "$printable"
row "CR LF wins over semicolon" 0 $'C=RU\r\nO=Org\r\nCN=Alpha\n' "" \
  decode --options 0x48000003 "$printable"
row "values are separated by a comma always" 0 "RU,Org,Alpha$line" "" \
  decode --options 0x40000001 "$printable"
row "Cyrillic, quotes" 0 'C=RU,L=Москва,O="ООО ""Ромашка"", Москва",CN=Иванов Иван'"$line" "" \
  decode "$cyrillic"
row "without RDNs" 0 "$line" "" decode 3000
row "type without a key" 0 "2.5.4.97=x$line" "" decode 300C310A300806035504610C0178
row "NumericString as hexadecimal" 0 "CN=12 01 31$line" "" decode 300C310A30080603550403120131
row "NUL inside a value" 0 "#434E3D6100620A" "" decode 300E310C300A06035504030C03610062
row "styles and separators by name" 0 "2.5.4.6=RU;2.5.4.10=Org;2.5.4.3=Alpha$line" "" \
  decode --style oids --separator ';' "$printable"

# Where the name comes from.
printf '%s' "$printable" | octets >name.der
printf '%s\r\n' "${printable:0:11} ${printable:11:20}" "${printable:31}" >name.hex
row "file of octets" 0 "C=RU,O=Org,CN=Alpha$line" "" decode name.der
row "file of hexadecimal text" 0 "C=RU,O=Org,CN=Alpha$line" "" decode name.hex
stdin_file=name.der
row "standard input, octets" 0 "C=RU,O=Org,CN=Alpha$line" "" decode -
stdin_file=name.hex
row "standard input, hexadecimal text" 0 "C=RU,O=Org,CN=Alpha$line" "" decode -
stdin_file=
# Forms that people paste.
short=3010310E300C06035504031305416C706861
while IFS= read -r pasted; do
  row "pasted: $pasted" 0 "CN=Alpha$line" "" decode "$pasted"
done <<'FORMS'
30 10 31 0E 30 0C 06 03 55 04 03 13 05 41 6C 70 68 61
30:10:31:0e:30:0c:06:03:55:04:03:13:05:41:6c:70:68:61
0x3010310E300C06035504031305416C706861
0x30, 0x10, 0x31, 0x0E, 0x30, 0x0C, 0x06, 0x03, 0x55, 0x04, 0x03, 0x13, 0x05, 0x41, 0x6C, 0x70, 0x68, 0x61
MBAxDjAMBgNVBAMTBUFscGhh
FORMS
printf -- '-----BEGIN NAME-----\nMBAxDjAMBgNV\nBAMTBUFscGhh\n-----END NAME-----\n' >name.pem
row "pasted: PEM" 0 "CN=Alpha$line" "" decode name.pem
printf 'MBAxDjAMBgNV\r\nBAMTBUFscGhh\r\n' >name.base64
row "pasted: base64 of two lines" 0 "CN=Alpha$line" "" decode name.base64
cat name.pem name.pem >names.pem
printf '%s\n' "$short" "$short" >names.hex
printf '%s\nzz\n%s\n' "$short" "$short" >lines
# What is left over, and several where one is wanted.
while IFS='|' read -r pasted message; do
  row "refused: $pasted" 1 "" "x509name: decode: $message" decode "$pasted"
done <<FORMS
${short}FFFF|2 octets are left over behind the encoding of 18
$short$short|2 encodings where one is wanted; .*--lines.*
names.hex|2 encodings where one is wanted; .*--lines.*
names.pem|2 PEM blocks where one is wanted
lines|a text that is neither hexadecimal, base64 nor PEM
30 10 31 0|hexadecimal digits that do not make whole octets
no_file|cannot open no_file: no such file
fileless|cannot open fileless: no such file
printable.pem|this is a certificate, not a name: .x509name show. shows it
request.pem|this is a certificate request, not a name: .x509name show. shows it
list.pem|this is a certificate revocation list, not a name: .*
pkcs7.pem|this is a PKCS #7 bundle, not a name: .*
820B6578616D706C652E6F7267|this is a general name, not a name: .x509name general-name. reads it
300E0603551D0F0101FF0404030205A0|this is an extension, not a name: .x509name extension. reads it
FORMS
row "a name a line" 1 \
  $'CN=Alpha\n!0 a text that is neither hexadecimal, base64 nor PEM\nCN=Alpha\n' \
  "x509name: decode: 1 of 3 items refused" decode --lines lines
row "no such file" 1 "" "x509name: decode: cannot open no\.der$(code 2)" decode no.der
row "directory" 1 "" "x509name: decode: result is a directory$(code 5)" decode result
row "odd number of digits" 1 "" "x509name: decode: hexadecimal digits that .*" decode 300

# Refusals.
prefix="x509name: decode: the name cannot be decoded"
row "empty input" 1 "" "$prefix: no octets" decode -
row "several attributes in one RDN" 1 "" "$prefix: several attributes in one RDN; .*--rfc4514.*" decode "$multi_valued"
row "cut short" 1 "" "$prefix$(code 0x80093103)" decode "${printable:0:80}"
row "one octet" 1 "" "$prefix$(code 0x80093103)" decode 30
row "not constructed" 1 "" "$prefix$(code 0x8009310B)" decode 0400
row "tag number without end" 1 "" "$prefix$(code 0x8009310B)" decode 3FFFFFFF
row "length of nine octets" 1 "" "$prefix$(code 0x80093103)" decode 3089010101010101010101
row "length beyond the data" 1 "" "$prefix$(code 0x80093103)" decode 3084FFFFFFFE310030
row "indefinite length without end" 1 "" "$prefix$(code 0x80093103)" decode 30803100
row "RDN without attributes" 1 "" "$prefix: an RDN without attributes" decode 30023100
row "attribute without a type" 1 "" "$prefix: an attribute that is not one type and one value" decode 300A310830060C01610C0162
# Wine takes such a value and drops it; Windows does not.
[[ -n $on_wine ]] || row "BMPString of odd length" 1 "" "$prefix$(code 0x80093103)" decode 300C310A300806035504031E0161

# Pairs, single attributes, comparison.
row "pairs" 0 $'C\tRU\nO\tOrg\nCN\tAlpha\n' "" pairs "$printable"
row "pairs by identifier" 0 $'2.5.4.6\tRU\n2.5.4.10\tOrg\n2.5.4.3\tAlpha\n' "" \
  pairs --style 2 "$printable"
row "pairs of a postal address" 0 $'postalAddress\ta | b\n' "" \
  pairs 3011310F300D06035504103006130161130162
row "pairs of several attributes in one RDN" 1 "" \
  "x509name: pairs: the name cannot be decoded: several .*" pairs "$multi_valued"
row "get" 0 "Иванов Иван$line" "" get 2.5.4.3 "$cyrillic"
row "get by key" 0 "Alpha$line" "" get cn "$printable"
row "get what is not there" 1 "" "x509name: get: the name has no attribute L, but C, O, CN" get L "$printable"
row "get what is no type" 1 "" "x509name: get: 2\.\. is neither a key nor an identifier" get 2.. "$printable"
row "get from what is no name" 1 "" "x509name: get: the name cannot be decoded$(code 0x8009310B)" \
  get 2.5.4.3 0400
# The value is written as UTF8String: 06 03 55 04 03 0C 08 ... All others stay.
changed=302E310B3009060355040613025255310C300A060355040A13034F72673111300F06035504030C08D091D0B5D1822C22
row "set" 0 "$changed$line" "" set 2.5.4.3 'Бет,"' "$printable"
row "set by key" 0 "$changed$line" "" set Cn 'Бет,"' "$printable"
# DC as IA5String, 06 0A 09 92 26 89 93 F2 2C 64 01 19 16 01 61, before CN = x
row "set beside a domain component" 0 \
  "301F3111300F060A0992268993F22C640119160161310A300806035504030C0179$line" "" \
  set CN y 301F3111300F060A0992268993F22C640119160161310A300806035504030C0178
row "set what is not there" 1 "" "x509name: set: the name has no attribute 2\.5\.4\.7, but C, O, CN" \
  set 2.5.4.7 x "$printable"
row "set to a value that the type does not take" 1 "" \
  "x509name: set: the value is empty or has characters that 2.5.4.6 does not take.*" set 2.5.4.6 'Россия' "$printable"
row "equal, in another order" 0 "" "" \
  equal "$printable" 302B310E300C06035504031305416C706861310C300A060355040A13034F7267310B3009060355040613025255
row "equal, in another string type" 0 "" "" \
  equal 3010310E300C06035504031305416C706861 3010310E300C06035504030C05416C706861
row "different in letter case" 1 "" "" \
  equal 3010310E300C06035504031305416C706861 3010310E300C06035504031305616C706861
row "comparison with what is no name" 1 "" \
  "x509name: equal: the second name cannot be decoded$(code 0x80093103)" equal "$printable" 30
