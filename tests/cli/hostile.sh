# shellcheck shell=bash
# What nobody should feed to the program. Each row's process must come to its own end.

# The octets of a PEM file in upper-case hexadecimal digits.
digits() {
  sed '/^-----/d' "$1" | base64 -d | od -An -v -tx1 | tr -d ' \n' | tr a-f A-F
}

# A small certificate: serial number, algorithm, issuer and validity empty, subject CN = "a", key
# empty, and alternative names, a DNS name "a" and the address 127.0.0.1.
whole=30383031020101300030003000300C310A300806035504030C01613000A316301430120603551D11040B300982016187047F0000013000030100
size=$((${#whole} / 2))

# bundle OCTET >FILE: a block for each octet of it, which is another there or, without OCTET, the end; and
# behind the broken ones a whole one.
bundle() {
  python3 - "$whole" "$1" <<'PYTHON'
import base64, sys
whole, octet = map(bytes.fromhex, sys.argv[1:])
broken = [whole[:i] + octet + whole[i + 1:] if octet else whole[:i] for i in range(len(whole))]
for der in [*broken, whole]:
    text = base64.encodebytes(der).decode()
    print(f"-----BEGIN CERTIFICATE-----\n{text}-----END CERTIFICATE-----")
PYTHON
}

bundle "" >cut.pem
row "cut short after each octet" 1 "~certificate $((size + 1))" \
  "$size:x509name: show: cut\.pem: certificate $size: the octets are cut short, or no DER" show cut.pem

for octet in 00 1F 30 7F 80 84 89 FF; do
  bundle "$octet" >spoiled.pem
  row "each octet replaced by $octet" 1 "~certificate $((size + 1))" '*:' show spoiled.pem
  row "the same, counted" 0 '~certificates +[0-9]+' "" survey spoiled.pem
done

digits alternative_names.pem >names.hex
row "a certificate as a name" 1 "" "x509name: decode: this is a certificate, not a name: .*" decode names.hex
row "a certificate as an extension" 1 "" "x509name: extension: this is a certificate, .*" \
  extension names.hex

printf '3080%.0s' {1..50000} >deep.hex
octets <deep.hex >deep.der
for command in decode pairs extension; do
  row "$command: nested without end" 1 "" "x509name: $command: .*$(code 0x80093103)" \
    "$command" deep.hex
done
row "general-name: nested without end" 0 $'16\tНеизвестный тип имени \n' "" general-name deep.hex
row "show: nested without end" 1 "" "x509name: show: deep\.der: certificate 1: .*" show deep.der

# SEQUENCE values one in the other, the innermost first: 06 03 55 04 03, 30 .. 30 00.
nested=0C0161
for ((i = 0; i < 40; ++i)); do
  nested=30$(printf '%02X' $((${#nested} / 2)))$nested
done
attribute=0603550403$nested
for tag in 30 31 30; do
  attribute=$tag$(printf '81%02X' $((${#attribute} / 2)))$attribute
done
row "value nested too deeply" 1 "" "x509name: decode: .*$(code 0x80093103)" decode "$attribute"

{ printf '3083030D40' && printf '3100%.0s' {1..100000}; } >wide.hex
row "a hundred thousand empty RDNs" 1 "" "x509name: decode: .*: an RDN without attributes" decode wide.hex
printf -- '-----BEGIN CERTIFICATE-----%.0s\n' {1..3000} >begins.pem
row "blocks that never end" 1 "" "3000:x509name: show: begins\.pem: certificate 3000: a PEM block without an end" show begins.pem
