# shellcheck shell=bash
# Text to DER. Expected octets are worked out by hand from X.690, or cut out of what OpenSSL made.

alpha=3010310E300C06035504031305416C706861
given=302B310E300C06035504031305416C706861310C300A060355040A13034F7267310B3009060355040613025255
sorted=302B310B3009060355040613025255310C300A060355040A13034F7267310E300C06035504031305416C706861
line=$'\n'

row "one attribute" 0 "$alpha$line" "" encode 'CN=Alpha'
row "order as given" 0 "$given$line" "" encode 'CN=Alpha, O=Org, C=RU'
row "canonical order" 0 "$sorted$line" "" encode --sort 'CN=Alpha, O=Org, C=RU'
row "options behind the text" 0 "$sorted$line" "" encode 'CN=Alpha, O=Org, C=RU' --sort
row "text behind --" 0 "$alpha$line" "" encode -- 'CN=Alpha'
row "type as dotted identifier" 0 "$alpha$line" "" encode '2.5.4.3 = Alpha'
row "keyword in another letter case" 0 "$alpha$line" "" encode 'cn=Alpha'

# OpenSSL's subjects of bmp.pem and cyrillic.pem.
row "Cyrillic, BMPString" 0 \
  "3022310B30090603550406130252553113301106035504031E0A0410043B044C04440430$line" "" \
  encode 'C=RU,CN=Альфа'
row "Cyrillic, UTF8String, quotes and a comma" 0 \
  "3074310B30090603550406130252553115301306035504070C0CD09CD0BED181D0BAD0B2D0B0312E302C060355040A0C25D09ED09ED09E2022D0A0D0BED0BCD0B0D188D0BAD0B0222C20D09CD0BED181D0BAD0B2D0B0311E301C06035504030C15D098D0B2D0B0D0BDD0BED0B220D098D0B2D0B0D0BD$line" "" \
  encode --options 0x40000 'C=RU,L=Москва,O="ООО ""Ромашка"", Москва",CN=Иванов Иван'
row "outside the basic plane, surrogates" 0 "300F310D300B06035504031E04D83DDE00$line" "" \
  encode 'CN=😀'
row "outside the basic plane, UTF-8" 0 "300F310D300B06035504030C04F09F9880$line" "" \
  encode --options 0x40000 'CN=😀'

# The two bits of free text: 30 10 31 0E 30 0C 06 03 55 04 03 0C 05 ...
row "UTF8String for all free text" 0 "3010310E300C06035504030C05416C706861$line" "" \
  encode --options 0x140000 'CN=Alpha'
row "the same by name" 0 "3010310E300C06035504030C05416C706861$line" "" encode --utf8-always 'CN=Alpha'
row "UTF8String by name" 0 "300F310D300B06035504030C04F09F9880$line" "" encode --utf8 'CN=😀'
row "separator by name" 0 "300E310C300A06035504031303612C62$line" "" encode --separator ';' 'CN=a,b'
row "options in decimal" 0 "3010310E300C06035504030C05416C706861$line" "" \
  encode --options=1310720 'CN=Alpha'
row "options in octal" 0 "3010310E300C06035504030C05416C706861$line" "" \
  encode --options 05000000 'CN=Alpha'
# «a,b» is printable: 30 0E 31 0C 30 0A 06 03 55 04 03 13 03 61 2C 62
row "semicolon separates alone" 0 "300E310C300A06035504031303612C62$line" "" \
  encode --options 0x40000000 'CN=a,b'
# 06 03 55 04 10, then 30 06 of 13 01 61 and 13 01 62
row "postal address, a string a line" 0 "3011310F300D06035504103006130161130162$line" "" \
  encode $'POSTALADDRESS="a\nb"'

# Refusals, with a mark under the place.
prefix="x509name: encode:"
row "empty" 1 "" "$prefix end of the text at character 1: expected a type .+$line  $line  \\^" encode ''
row "no equals sign" 1 "" "$prefix \"CN\" at character 1: expected .+$line  CN$line  \\^\\^" encode 'CN'
row "unknown keyword" 1 "" \
  "$prefix \"XYZ\" at character 7: expected one of .+$line  CN=a, XYZ=b$line        \\^\\^\\^" \
  encode 'CN=a, XYZ=b'
row "unknown type of known length, last" 1 "" "3:$prefix \"2.5.4.42\" at character 1: .+" \
  encode '2.5.4.42=a'
row "OID. prefix" 1 "" "3:$prefix \"OID.2.5.4.3\" at character 1: .+" encode 'OID.2.5.4.3=a'
warning="$prefix warning: the backslash at character 5 .* --rfc4514 takes text with escapes"
row "backslash does not escape" 1 "" \
  "$warning$line$prefix \"b\" at character 7: .+ a backslash escapes nothing$line  CN=a\\\\,b, O=c$line {8}\\^" \
  encode 'CN=a\,b, O=c'
# C \ 3: 1E 06 00 43 00 5C 00 33
row "backslash is a letter, with a warning" 0 "3011310F300D06035504031E060043005C0033$line" \
  "${warning/character 5/character 6}" encode 'CN= C\3'
row "country outside PrintableString" 1 "" \
  "$prefix \"_\" at character 5: expected letters, .+ in the value of C$line  C=Ru_s$line      \\^" \
  encode 'C=Ru_s'
row "e-mail outside IA5String" 1 "" \
  "$prefix \"п\" at character 11: .+$line  CN=я😀, E=почта$line           \\^" encode 'CN=я😀, E=почта'
row "empty value" 1 "" "$prefix end of the text at character 4: expected a value$line  CN=$line     \\^" \
  encode 'CN='
row "line ends in the text" 1 "" \
  "$prefix \"b\" at character 6: .+$line  CN=a\\\\u000Ab$line            \\^" encode $'CN=a\nb'

# Standard input.
stdin_file=text
printf 'CN=Alpha\n' >text
row "standard input" 0 "$alpha$line" "" encode -
printf 'CN=Alpha\r\n' >text
row "standard input, ended by CR LF" 0 "$alpha$line" "" encode -
printf 'CN=Alpha' >text
row "standard input without a line end" 0 "$alpha$line" "" encode -
# 06 03 55 04 10 again
printf 'POSTALADDRESS="a\nb"\n' >text
row "standard input of two lines" 1 "" "$prefix standard input has 2 lines: .*--lines .*" encode -
row "the same where line ends are asked for" 0 "3011310F300D06035504103006130161130162$line" "" \
  encode --separator crlf -
printf 'CN=Alpha\r\n\nCN=a,O\nCN=Alpha' >text
row "a name a line" 1 "$alpha$line"'!0 end of the text at character 1: expected a type such as CN, "=" and a value
!0 "O" at character 6: expected "=" and a value behind the type; a value that holds a delimiter has to stand in double quotes
'"$alpha$line" "x509name: encode: 2 of 4 items refused" encode --lines -
row "a name a line, into a file" 2 "" "x509name: --lines prints, and takes no --out" \
  encode --lines --out names.der text
: >text
row "standard input, empty" 1 "" "3:$prefix end of the text at character 1: .+" encode -
printf 'CN=\377\n' >text
row "standard input that is no UTF-8" 1 "" "x509name: encode: the text is not UTF-8$(code 1113)" encode -
stdin_file=

# Files.
row "octets into a file" 0 "" "" encode --out alpha.der 'CN=Alpha'
row "and back" 0 "CN=Alpha$line" "" decode alpha.der
row "file that cannot be made" 1 "" \
  "x509name: encode: cannot create nowhere/a\.der$(code 82)" encode --out nowhere/a.der 'CN=Alpha'
row "file with a Cyrillic name" 0 "" "" encode --out имя.der 'CN=Alpha'
row "the same file read" 0 "CN=Alpha$line" "" decode имя.der

row "a type by a name of any letter case" 0 \
  $'1.2.840.113549.1.9.1\temailAddress, E, email, pkcs9email\tIA5String\t255\n' "" types PKCS9EMAIL
row "types by dotted digits, in the order asked" 0 \
  $'2.5.4.97\torganizationIdentifier, orgId\tfree text\t256\n2.5.4.3\tCN, commonName\tfree text\t64\n' \
  "" types 2.5.4.97 CN
row "all types" 0 $'~.*\n2\\.5\\.4\\.16\tpostalAddress\tlines of free text\t\n.*' "" types
row "a type without a name" 1 "" "x509name: types: no type is called 1\.2\.3; .*" types 1.2.3
