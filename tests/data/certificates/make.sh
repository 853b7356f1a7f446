#!/usr/bin/env bash
# Makes the sample certificates of this directory anew, with OpenSSL's command line. The keys are
# thrown away. What the tests expect of names and extensions is independent of keys and times.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
key=$scratch/key
openssl genpkey -algorithm ed25519 -out "$key"

# make NAME STRING_MASK SUBJECT SECTION
make() {
  openssl req -x509 -new -key "$key" -days 36500 -utf8 -subj "$3" -out "$1.pem" \
    -set_serial 1 -config <(sed "s/STRING_MASK/$2/" extensions.cnf) -extensions "$4"
}

make printable MASK:0x2 '/C=RU/O=Org/CN=Alpha' constraints
make cyrillic utf8only '/C=RU/L=Москва/O=ООО "Ромашка", Москва/CN=Иванов Иван' none
make bmp MASK:0x802 '/C=RU/CN=Альфа' none
make multi_valued utf8only '/C=RU/O=Org+OU=Unit/CN=Beta' none
make alternative_names utf8only '/CN=Gamma' alternative_names
make typed utf8only '/CN=Typed' typed

configuration=$scratch/configuration
sed 's/STRING_MASK/utf8only/' extensions.cnf >"$configuration"
openssl req -new -key "$key" -utf8 -subj '/CN=Request' -out request.pem \
  -config "$configuration" -reqexts constraints
: >"$scratch/index"
printf '[authority]\ndatabase = %s\n' "$scratch/index" >>"$configuration"
openssl ca -gencrl -config "$configuration" -keyfile "$key" -cert printable.pem -out list.pem
openssl crl2pkcs7 -in list.pem -certfile printable.pem -certfile bmp.pem -out pkcs7.pem
