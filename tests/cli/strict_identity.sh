# shellcheck shell=bash
# identify: the name that matches, or why none does. The certificates have an empty subject.

certificate=3081BB3081AFA003020102020101300406022A033000301E170D3236303130313030303030305A170D3236303130313030303030305A30003009300406022A03030100A370306E306C0603551D1104653063820D2A2E6578616D706C652E6F72678704C0000201810F6A6F65406578616D706C652E6F7267861968747470733A2F2F7777772E6578616D706C652E6F72672F61A02006082B06010505070807A01416125F696D6170732E6578616D706C652E6F7267300406022A03030100
bare=3048303DA003020102020101300406022A033000301E170D3236303130313030303030305A170D3236303130313030303030305A30003009300406022A03030100300406022A03030100
many=3082019E30820191A003020102020101300406022A033000301E170D3236303130313030303030305A170D3236303130313030303030305A30003009300406022A03030100A38201503082014C308201480603551D110482013F3082013B820A68302E6578616D706C65820A68312E6578616D706C65820A68322E6578616D706C65820A68332E6578616D706C65820A68342E6578616D706C65820A68352E6578616D706C65820A68362E6578616D706C65820A68372E6578616D706C65820A68382E6578616D706C65820A68392E6578616D706C65820B6831302E6578616D706C65820B6831312E6578616D706C65820B6831322E6578616D706C65820B6831332E6578616D706C65820B6831342E6578616D706C65820B6831352E6578616D706C65820B6831362E6578616D706C65820B6831372E6578616D706C65820B6831382E6578616D706C65820B6831392E6578616D706C65820B6832302E6578616D706C65820B6832312E6578616D706C65820B6832322E6578616D706C65820B6832332E6578616D706C65820B6832342E6578616D706C65300406022A03030100
broken=${certificate%??}
request=301D301202010030003009300406022A03030100A000300406022A03030100

row "host" 0 $'DNS:*.example.org\n' "" identify --host WWW.example.org. $certificate
row "address" 0 $'IP:192.0.2.1\n' "" identify --ip 192.0.2.1 $certificate
row "mailbox" 0 $'email:joe@example.org\n' "" identify --email joe@EXAMPLE.org $certificate
row "URI" 0 $'URI:https://www.example.org/a\n' "" identify --uri https://www.example.org $certificate
row "service" 0 $'SRV:_imaps.example.org\n' "" identify --srv _imaps.example.org $certificate
row "value behind a sign" 0 $'DNS:*.example.org\n' "" identify --host=www.example.org $certificate
row "another host, and why" 1 "" '6:x509name: identify: no name of the certificate .*' \
  identify --host www.example.com $certificate
row "each name is explained" 1 "" '*:  DNS:\*\.example\.org: "\*" stands for exactly one label' \
  identify --host a.b.example.org $certificate
row "many names are counted" 1 "" '22:x509name: identify: no name of the certificate .*' \
  identify --host h.example $many
row "no alternative names" 1 "" "x509name: identify: the certificate has no subject alternative names" \
  identify --host www.example.org $bare
row "a question that is none" 1 "" "x509name: identify: --host a\.\.b: at offset 2: a label of .*" \
  identify --host a..b $certificate
row "an address asked for as a host" 1 "" "x509name: identify: --host 192\.0\.2\.1: .* asked for as one" \
  identify --host 192.0.2.1 $certificate
row "underscores unwanted" 1 "" "x509name: identify: --host a_b: .* underscore" \
  identify --host a_b --no-underscore $certificate
row "control characters in the question" 1 "" 'x509name: identify: --host a\\u0007: .*' \
  identify --host $'a\a' $certificate
row "octets are missing" 1 "" "*:x509name: identify: .*" identify --host www.example.org $broken
row "a request" 1 "" "*:x509name: identify: .*" identify --host www.example.org $request
row "no question" 2 "" "x509name: one of --host, --ip, --email, --uri, --srv is needed" \
  identify $certificate
row "two questions" 2 "" "x509name: --host and --ip are two questions; ask one at a time" \
  identify --host a --ip 192.0.2.1 $certificate
row "no certificate named" 2 "" "x509name: usage: x509name identify .*" identify --host a
