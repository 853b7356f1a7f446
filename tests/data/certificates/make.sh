#!/usr/bin/env bash
# Makes the sample certificates of this directory anew, with OpenSSL's command line. The keys are
# thrown away. What the tests expect of names and extensions is independent of keys and times.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
key=$(mktemp)
trap 'rm -f "$key"' EXIT
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
