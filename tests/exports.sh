#!/usr/bin/env bash
# Checks what the shared object shows: all that the public headers mark, and nothing of others.
#
#   exports.sh LIBRARY HEADERS
set -euo pipefail

library=$1
headers=$2
# Versions and kinds are cut off: "Ortholan::IdentObj::Clear()".
shown=$(nm -D --defined-only "$library" | c++filt | cut -d' ' -f3- | sed 's/@@.*//')
faults=0

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

own='^(typeinfo for |typeinfo name for |vtable for )?Ortholan::'
# The one instantiation that the headers leave to the library, and the version's own symbol.
list='^(.* )?std::[^ ]*list<Ortholan::CertExtension, '
while IFS= read -r symbol; do
  [[ $symbol =~ $own || $symbol =~ $list || $symbol == ORTHOLAN_[0-9]* ]] || fault "foreign: $symbol"
done <<<"$shown"

mapfile -t classes < <(sed -nE 's/^ *class ORTHOLAN_EXPORT (\w+).*/\1/p' "$headers"/*.h)
classes+=(RDNAttr SimpleRDN CompareSimpleRDN)
mapfile -t functions < <(sed -nE 's/^ORTHOLAN_EXPORT [^(]*[ *&](\w+)\(.*/\1/p' "$headers"/*.h)
((${#classes[@]} >= 15 && ${#functions[@]} >= 30)) || fault "too few marks found in $headers"
for name in "${classes[@]}"; do
  grep -qE "^Ortholan::(\w+::)*$name::" <<<"$shown" || fault "class not shown: $name"
done
for name in "${functions[@]}"; do
  grep -qE "^Ortholan::(\w+::)*$name(\[abi:\w+\])?\(" <<<"$shown" || fault "function not shown: $name"
done
grep -q 'list<Ortholan::CertExtension, .*::end()' <<<"$shown" || fault "list of extensions not shown"

exit $((faults > 0))
