#!/usr/bin/env bash
# What clang can say of Visual C++ without Microsoft's headers.
#
#   check.sh headers CLANG_CL INCLUDE...           the C interface at /W4 /WX; all are ASCII
#   check.sh runtime CLANG_CL LLD_LINK INCLUDE...  a program for another runtime is not linked
#   check.sh sources CLANG SOURCE... -- FLAG...    sources in Microsoft's dialect, over the headers and
#                                                  the standard library of MinGW-w64
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

fail() {
  echo "check.sh: $*" >&2
  exit 1
}

# Includes as clang-cl takes them.
included() {
  local directory
  for directory in "$@"; do flags+=("/I$directory"); done
}

headers() {
  local flags=(/W4 /WX /Zs) compiler=$1 header
  shift
  included "$@"
  for header in "$1"/ortholan/{ortholan_c,strict}.h; do
    [[ -e $header ]] || continue
    "$compiler" "${flags[@]}" /TC -- "$header"
    "$compiler" "${flags[@]}" /std:c++17 /TP -- "$header"
  done
  # A program's own code page decides how the compiler reads them.
  ! LC_ALL=C grep -rnP '[^\x00-\x7F]' "$1/ortholan" || fail "text that is not ASCII"
}

# The DLL is built with /MD. Nothing but the name of the runtime is in it.
runtime() {
  local compiler=$1 linker=$2 flags=(/c /Zl /GS-) runtime
  shift 2
  included "$@"
  cd "$scratch"
  "$compiler" "${flags[@]}" /MD /DORTHOLAN_BUILDING /Fodll.obj -- "$here/runtime.cpp"
  "$linker" /dll /noentry /out:ortholan.dll dll.obj
  for runtime in MD MT MDd; do
    "$compiler" "${flags[@]}" "/$runtime" "/Fo$runtime.obj" -- "$here/runtime.cpp"
    if "$linker" /subsystem:console /entry:main "/out:$runtime.exe" "$runtime.obj" ortholan.lib \
      2>"$runtime.txt"; then
      [[ $runtime == MD ]] || fail "/$runtime was linked with a DLL of /MD"
    else
      grep -q "undefined symbol: ortholan_compiled_with_$runtime" "$runtime.txt" ||
        { cat "$runtime.txt" >&2; fail "/$runtime"; }
    fi
  done
}

sources() {
  local compiler=$1 files=()
  shift
  while [[ $1 != -- ]]; do
    files+=("$1")
    shift
  done
  shift
  ((${#files[@]} > 0)) || fail "no sources"
  # The compiler says that it is g++, for MinGW-w64's headers, and reads as Visual C++ does.
  printf '%s\0' "${files[@]}" | xargs -0 -P 2 -n 1 "$compiler" -fsyntax-only -std=c++17 \
    -fms-extensions -fms-compatibility -fms-compatibility-version=19.30 -fdelayed-template-parsing \
    -fgnuc-version=4.2.1 -U_MSC_VER -U_MSC_FULL_VER -D__STRICT_ANSI__ -D__MINGW32__ -D__MINGW64__ \
    -Wall -Wextra -Wmicrosoft -Werror "$@"
}

"$@"
