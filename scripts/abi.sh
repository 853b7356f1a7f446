#!/usr/bin/env bash
# The symbols that the built library exports, beside the recorded ones in packaging/abi/.
#
#   abi.sh check  TOOL LIBRARY    fails where they differ, where something foreign is exported, and
#                                 where the public headers mark something that is not
#   abi.sh record TOOL LIBRARY    writes the record
#
# TOOL: nm for an .so, objdump for a .dll; one that demangles comes with it. A record holds the
# library's own mangled names, a line each. What is instantiated from the standard library differs
# from compiler to compiler and stands in no record.
set -euo pipefail
export LC_ALL=C

[[ $# -eq 3 && $1 == @(check|record) ]] || { echo "usage: abi.sh check|record TOOL LIBRARY" >&2; exit 2; }
action=$1
tool=$2
library=$3
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
headers=$root/include/ortholan
faults=0

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

# Everything that the library exports, mangled.
case $library in
  *.dll)
    record=$root/packaging/abi/windows.txt
    exported=$("$tool" -p "$library" |
      sed -nE '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^[[:space:]]*\[ *[0-9]+\].*[[:space:]]([^[:space:]]+)$/\1/p')
    ;;
  *)
    record=$root/packaging/abi/linux.txt
    exported=$("$tool" -D --defined-only "$library" | sed -nE 's/^.* ([^ ]+)@@.*$/\1/p')
    ;;
esac
own='^(ortholan_|_Z(T[A-Z]|Thn?[0-9]+_)?NK?8Ortholan)'
current=$(grep -E "$own" <<<"$exported" | sort -u) || fault "$library exports nothing"

if [[ $action == record ]]; then
  ((faults == 0)) || exit 1
  printf '%s\n' "$current" >"$record"
  echo "abi.sh: $(wc -l <"$record") symbols recorded in ${record#"$root"/}"
  exit 0
fi

# One instantiation is left to the library by its headers; typeinfo of what its classes stand on
# comes with a DLL.
foreign='^_Z(T[ISV])?(NK?)?S[^ ]*N8Ortholan13CertExtensionE|^_ZTI(St|S[a-z]|15_CRYPTOAPI_BLOB)'
while IFS= read -r symbol; do
  fault "foreign: $(c++filt <<<"$symbol")"
done < <(grep -vE "$own|$foreign|^ORTHOLAN_[0-9]" <<<"$exported" || true)
# One member that is defined in its class and one that is not.
for member in 4sizeEv 6insertE; do
  grep -q "4listIN8Ortholan13CertExtensionE.*$member" <<<"$exported" ||
    fault "list of extensions not exported: $member"
done

while IFS= read -r symbol; do
  fault "no longer exported, which breaks programs: $(c++filt <<<"$symbol")"
done < <(comm -13 <(echo "$current") <(sort "$record"))
while IFS= read -r symbol; do
  fault "exported and not recorded (make abi): $(c++filt <<<"$symbol")"
done < <(comm -23 <(echo "$current") <(sort "$record"))

# Prints what the headers mark, by kind.
marks() {
  local header
  for header in "$headers"/*.h; do
    # The system's calls are the system's own there.
    [[ $library == *.dll && $header == */platform.h ]] || sed -nE "$1" "$header"
  done
}
shown=$(c++filt <<<"$current")
mapfile -t classes < <(marks 's/^ *(class|struct) ORTHOLAN_EXPORT (\w+).*/\2/p')
mapfile -t functions < <(marks 's/^ORTHOLAN_EXPORT [^(]*[ *&](\w+)\(.*/\1/p')
mapfile -t plain < <(marks 's/^ORTHOLAN_C_API .*[ *](ortholan_\w+)\(.*/\1/p')
((${#classes[@]} >= 15 && ${#functions[@]} >= 20 && ${#plain[@]} >= 45)) ||
  fault "too few marks found in $headers"
for name in "${plain[@]}"; do
  grep -qx "$name" <<<"$shown" || fault "C function not exported: $name"
done
for name in "${classes[@]}"; do
  # A structure without functions of its own has nothing to export.
  [[ $name == EdiPartyName ]] && continue
  grep -qE "^Ortholan::(\w+::)*$name::" <<<"$shown" || fault "class not exported: $name"
done
for name in "${functions[@]}"; do
  grep -qE "^Ortholan::(\w+::)*$name(\[abi:\w+\])?\(" <<<"$shown" || fault "function not exported: $name"
done

((faults == 0)) || exit 1
echo "abi.sh: $(wc -l <"$record") symbols as recorded"
