# shellcheck shell=bash
# permitted: a chain against the name constraints in it. The root allows hosts below example.org.

leaf=308186307BA003020102020101300406022A03300F310D300B06035504030C04526F6F74301E170D3236303130313030303030305A170D3236303130313030303030305A300F310D300B06035504030C044C6561663009300406022A03030100A31E301C301A0603551D1104133011820F7777772E6578616D706C652E6F7267300406022A03030100
other=308194308188A003020102020101300406022A03300F310D300B06035504030C04526F6F74301E170D3236303130313030303030305A170D3236303130313030303030305A300F310D300B06035504030C044C6561663009300406022A03030100A32B302930270603551D110420301E820D612E6578616D706C652E636F6D820D622E6578616D706C652E636F6D300406022A03030100
root=308189307EA003020102020101300406022A03300F310D300B06035504030C04526F6F74301E170D3236303130313030303030305A170D3236303130313030303030305A300F310D300B06035504030C04526F6F743009300406022A03030100A321301F301D0603551D1E0101FF04133011A00F300D820B6578616D706C652E6F7267300406022A03030100
printf '%s' "$leaf" | octets >leaf.der
printf '%s' "$other" | octets >other.der
printf '%s' "$root" | octets >root.der
printf '%s' "${leaf%??}" | octets >short.der
outside='DNS name [ab]\.example\.com is in no permitted subtree of certificate 2 \(example\.org\)'

row "within the constraints" 0 $'permitted\n' "" permitted leaf.der root.der
row "outside of them" 1 "~refused: certificate 1: $outside" "" permitted other.der root.der
row "the first reason alone" 1 \
  $'refused: certificate 1: DNS name a.example.com is in no permitted subtree of certificate 2 (example.org)\n' \
  "" permitted other.der root.der
row "every reason" 1 "~refused: certificate 1: .* b\.example\.com .*" "" \
  permitted --all other.der root.der
row "the leaf alone" 0 $'permitted\n' "" permitted leaf.der
row "from the root down" 0 $'permitted\n' "" permitted root.der other.der
row "octets are missing" 1 "" "x509name: permitted: .*" permitted short.der root.der
row "no certificate in it" 1 "" "x509name: permitted: .*: there is no certificate in it" \
  permitted request.pem
row "no such file" 1 "" "x509name: permitted: cannot open absent\.der: .*" permitted absent.der
row "no file named" 2 "" "x509name: usage: x509name permitted .*" permitted
row "no such option" 2 "" "x509name: there is no option --rfc5280" permitted --rfc5280 leaf.der
