# shellcheck shell=bash
# The command line itself.

row "help" 0 '~usage: x509name COMMAND .*' "" --help
row "help has examples" 0 "~  x509name encode --sort 'CN=Alpha, O=Org, C=RU'" "" -h
row "version" 0 '~x509name [0-9]+\.[0-9]+\.[0-9]+' "" --version
for command in encode decode pairs get set equal show survey extension general-name; do
  row "help names $command" 0 "~  $command  .*" "" --help
  row "$command: help" 0 "~usage: x509name $command .*" "" "$command" --help
  row "$command: help has an example" 0 "~  x509name $command .*" "" "$command" -h
done
row "help of a command behind other words" 0 '~  --sort  .*' "" encode --sort CN=a --help
row "text that looks like an option" 1 "" '3:x509name: encode: "--help" at character 1: .+' encode -- --help
row "no command" 2 "" "x509name: a command is needed; .*"
row "version by letter" 0 '~x509name [0-9]+\.[0-9]+\.[0-9]+' "" -V
row "help as a word" 0 '~usage: x509name COMMAND .*' "" help
row "help of a command as a word" 0 '~usage: x509name show .*' "" help show
row "unknown command" 2 "" "x509name: there is no command frob; x509name --help lists them" frob
row "mistyped command" 2 "" "x509name: there is no command shwo; did you mean show\?" shwo
row "half a command" 2 "" "x509name: there is no command general; did you mean general-name\?" general
row "unknown option" 2 "" "x509name: there is no option --frob" decode --frob 3000
row "mistyped option" 2 "" "x509name: there is no option --jsno; did you mean --json\?" decode --jsno 3000
row "a letter for an option" 2 "" "x509name: there is no option -j; did you mean --json\?" show -j a
row "option of another command" 2 "" "x509name: there is no option --sort" decode --sort 3000
row "no operand" 2 "" "x509name: usage: x509name encode .*" encode
row "too many operands" 2 "" "x509name: usage: x509name decode .*" decode 3000 3000
row "option without a value" 2 "" "x509name: --options needs a value" decode 3000 --options
row "value where none belongs" 2 "" "x509name: --sort takes no value" encode --sort=yes CN=a
for number in '' 3x -1 +3 ' 3' 0x 09 0x100000000 99999999999999999999; do
  row "number «$number»" 2 "" "x509name: --options needs a number below 2\^32, not .*" \
    decode --options "$number" 3000
done
for number in 4 0x10000 0x00040000 0xFFFFFFFF; do
  row "bits of $number" 2 "" "x509name: --options: $number has bits that mean nothing here; .*" \
    decode --options "$number" 3000
done
row "bits of another direction" 2 "" "x509name: --options: 3 has bits .*" encode --options 3 CN=a
row "style that is none" 2 "" 'x509name: --style: there is no "oid", but .*' pairs --style oid 3000
row "codes where they are asked for" 1 "" \
  'x509name: decode: the name .*: the ASN.1 data is corrupt or cut short \(last error 2148086019, 0x80093103\)' \
  decode 30 --verbose
row "line end in a message" 1 "" 'x509name: decode: cannot open x\\u000Ay: .*' decode $'x\ny'
stdin_file=number
printf '3000' >number
row "request of a value" 2 "" "x509name: --request does not go with --value" \
  make --request --value keyUsage '[]'
row "request of one extension" 1 "" "x509name: make: a request has a list of extensions.*" \
  make --request '{"name":"keyUsage","value":[]}'
row "base64 into a file" 2 "" "x509name: --base64 does not go with --out" \
  make --base64 --out result/x '[]'
row "standard input named twice" 2 "" "x509name: standard input can be named once" equal - -
stdin_file=
row "result that cannot be decoded" 1 "" 'x509name: decode: .*' decode --json 04
