#!/usr/bin/env bash
# Runs the example program on names of its own and on the system's root certificates.
#
#   demo.sh PROGRAM [BUNDLE]
set -euo pipefail

program=$(realpath "$1")
bundle=${2:-/etc/ssl/certs/ca-certificates.crt}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
export LC_ALL=C.UTF-8

title() {
  printf '\n\033[1m%s\033[0m\n' "$*"
}
[[ -t 1 ]] || title() { printf '\n%s\n' "$*"; }

# Prints the command as one would type it and runs it; a refusal is part of the show.
run() {
  local argument words=
  for argument in "$@"; do
    if [[ $argument =~ ^[A-Za-z0-9_./=-]+$ ]]; then
      words+=" $argument"
    else
      words+=" '$argument'"
    fi
  done
  printf '  $ x509name%s\n' "$words"
  { "$program" "$@" 2>&1 || echo "(exit status $?)"; } | sed 's/^/    /'
}

title "Text to DER and back"
run encode 'CN=Alpha, O=Org, C=RU'
run decode 302B310E300C06035504031305416C706861310C300A060355040A13034F7267310B3009060355040613025255

title "In canonical order, with a quoted value, as UTF8String and into a file"
run encode --sort --options 0x40000 --out name.der 'CN=Иванов Иван, O="ООО ""Ромашка"", Москва", C=RU'
run decode name.der
run decode --options 0x40000002 name.der

title "One attribute"
run get 2.5.4.3 name.der
run set 2.5.4.3 Alpha name.der

title "A refusal says why"
run encode 'C=Россия'

if [[ ! -r $bundle ]]; then
  echo "demo.sh: no $bundle; the package ca-certificates has it" >&2
  exit 1
fi
title "The first certificate of $bundle"
sed '/^-----END /q' "$bundle" >first.pem
"$program" show first.pem >first.txt
# Long values are cut here, not by the program.
sed 's/^\(.\{92\}\).\{3,\}$/\1.../; s/^/    /' first.txt

title "All names in it, from DER to text to DER to text"
"$program" survey "$bundle" >survey.txt
sed 's/^/    /' survey.txt
echo
