# shellcheck shell=bash
# equal --rfc5280, within, key: the verdict by exit status, and why not.

case_and_blanks=30143112301006035504031309466F6F202042617220
same=30133111300F0603550403130820666F6F20626172
bar=300E310C300A06035504030C03626172
country=300D310B3009060355040613025255
below=301A310B3009060355040613025255310B300906035504030C02D081
swapped=301A310B300906035504030C02D191310B3009060355040613027275
unassigned=300F310D300B06035504030C04F09F9880
teletex=300C310A30080603550403140161
printable=300C310A30080603550403130161

row "case, blanks, string types" 0 "" "" equal --rfc5280 $case_and_blanks $same
row "letter case counts by the other rule" 1 "" "" equal $case_and_blanks $same
row "another value" 1 "" 'x509name: equal: RDN 1 \(2\.5\.4\.3\): the values are different' \
  equal --rfc5280 $case_and_blanks $bar
row "another order" 1 "" 'x509name: equal: RDN 1 \(2\.5\.4\.6\): an attribute has no counterpart .*' \
  equal --rfc5280 $below $swapped
row "any order" 0 "" "" equal --rfc5280 --any-order $below $swapped
row "any order, another name" 1 "" "x509name: equal: .*" equal --rfc5280 --any-order $below $country
row "any order by the other rule" 2 "" "x509name: --any-order goes with --rfc5280" \
  equal --any-order $below $swapped
row "TeletexString" 1 "" \
  'x509name: equal: cannot tell: RDN 1 \(2\.5\.4\.3\) of the first name: .* TeletexString .*' \
  equal --rfc5280 $teletex $printable
row "code point without a meaning" 1 "" \
  'x509name: equal: cannot tell: RDN 1 \(2\.5\.4\.3\) of the second name: .*: U\+1F600' \
  equal --rfc5280 $printable $unassigned
row "no DER" 1 "" "x509name: equal: cannot tell: at offset 1 of the second name: .*" \
  equal --rfc5280 $printable 30800000
row "one name" 2 "" "x509name: usage: x509name equal .*" equal --rfc5280 $printable

row "below" 0 "" "" within --rfc5280 $country $below
row "below, the rule unnamed" 0 "" "" within $country $below
row "itself" 0 "" "" within $case_and_blanks $same
row "everything is below the empty name" 0 "" "" within 3000 $below
row "above" 1 "" "x509name: within: the numbers of RDNs do not fit" within $below $country
row "beside" 1 "" 'x509name: within: RDN 1 .*' within $bar $below
row "octets are missing" 1 "" \
  "x509name: within: cannot tell: at offset 27 of the second name: the octets end .*" \
  within $country ${below%??}
row "no name" 2 "" "x509name: usage: x509name within .*" within $country
row "order counts below" 2 "" "x509name: there is no option --any-order" \
  within --any-order $country $below

row "key" 0 $'010103550403010A20666F6F202062617220\n' "" key $case_and_blanks
row "key of the same name" 0 $'010103550403010A20666F6F202062617220\n' "" key $same
row "key of the subtree" 0 $'010103550406010420727520\n' "" key $country
row "key below it" 0 $'0101035504060104207275200103550403010420D19120\n' "" key $below
row "key of octets" 0 $'01010355040303060C04F09F9880\n' "" key $unassigned
row "no key" 1 "" "x509name: key: at offset 27: the octets end inside an element" key ${below%??}
row "key of nothing" 2 "" "x509name: usage: x509name key .*NAME" key
