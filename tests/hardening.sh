#!/usr/bin/env bash
# What the built library's headers say of its defences.
#
#   hardening.sh TOOL LIBRARY       TOOL: readelf for an .so, objdump for a .dll
set -euo pipefail

tool=$1
library=$2

# need TEXT PATTERN...: each pattern must be found in the text.
need() {
  local text=$1 pattern failed=0
  shift
  for pattern in "$@"; do
    if ! grep -qE -- "$pattern" <<<"$text"; then
      echo "hardening.sh: nothing like '$pattern' in $library" >&2
      failed=1
    fi
  done
  return $failed
}

case $library in
  *.dll)
    need "$("$tool" -p "$library")" HIGH_ENTROPY_VA DYNAMIC_BASE NX_COMPAT
    ;;
  *)
    # Full RELRO, no executable stack, stack guards and checked C functions.
    need "$("$tool" -lWdWsW "$library")" GNU_RELRO 'GNU_STACK .* RW ' 'FLAGS.*(NOW|BIND_NOW)' \
      __stack_chk_fail '__[a-z]+_chk'
    ;;
esac
echo "$library is hardened"
