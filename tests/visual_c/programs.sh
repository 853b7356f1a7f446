#!/usr/bin/env bash
# Programs in Visual C++'s ABI that call the DLL, run by Wine.
#
#   programs.sh BUILD SCRATCH   the build directory for Windows; where programs may lie
#
# clang compiles for x86_64-pc-windows-msvc, lld-link links with ortholan.lib and with import libraries
# of Microsoft's runtime DLLs, which Wine has. Microsoft's headers are not at hand: those of MinGW-w64
# and of g++'s standard library take their place.
set -euo pipefail
source=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$source/../..
build=$(cd "$1" && pwd)
mkdir -p "$2"
cd "$2"

includes=(-I "$root/include" -I "$build/include")
library=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-libgcc-file-name)")/include/c++
cxx=(--target=x86_64-pc-windows-msvc -std=c++17 -O1 -Wall -Wextra -Werror
  -fms-compatibility-version=19.30 -fgnuc-version=4.2.1 -U_MSC_VER -U_MSC_FULL_VER
  -fexceptions -fcxx-exceptions -D__STRICT_ANSI__ -D__MINGW32__ -D__MINGW64__ -D_UCRT
  -D__declspec=__declspec -D_GLIBCXX_EXTERN_TEMPLATE=0 -nostdinc++ -nostdlibinc
  -isystem "$library" -isystem "$library/x86_64-w64-mingw32"
  -isystem /usr/x86_64-w64-mingw32/include "${includes[@]}")

# An import library of a DLL's functions.
import() {
  local dll=$1
  shift
  printf '%s\n' "LIBRARY $dll.dll" EXPORTS "$@" >"$dll.def"
  llvm-dlltool -m i386:x86-64 -d "$dll.def" -l "$dll.lib"
}
import vcruntime140 _CxxThrowException __CxxFrameHandler3 __std_terminate memchr memcmp memcpy memmove memset
import ucrtbase free getchar malloc puts strlen

link() {
  lld-link /subsystem:console /entry:main /nodefaultlib "/out:$1.exe" "${@:2}" vcruntime140.lib \
    ucrtbase.lib "$build/ortholan.lib"
}
run() {
  "$root/scripts/wine.sh" run "$build/wine" "$PWD/$1" | tr -d '\r'
}

cp "$build"/*.dll .
clang --target=x86_64-pc-windows-msvc -O1 -Wall -Wextra -Werror -ffreestanding -fms-extensions \
  "${includes[@]}" -c "$source/program.c" -o c.obj
link c c.obj
printed=$(run c.exe)
expected=$'301E310C300A060355040A13034F7267310E300C06035504031305416C706861\nCN=Alpha,O=Org'
[[ $printed == "$expected" ]] || { echo "programs.sh: program.c printed: $printed" >&2; exit 1; }
echo "$printed"

clang++ "${cxx[@]}" -c "$source/program.cpp" -o cpp.obj
clang++ "${cxx[@]}" -Wno-everything -c "$source/standard_library.cpp" -o standard_library.obj
link cpp cpp.obj standard_library.obj
PYTHONPATH=$root/tests/support python3 - <<'END'
import vectors

rows = vectors.read("rfc4514_write.tsv")
with open("digits.txt", "w") as digits, open("texts.txt", "w", encoding="utf-8") as texts:
    for row in rows:
        digits.write(row["der"] + "\n")
        texts.write((row["text"] or "refused") + "\n")
END
run cpp.exe <digits.txt | sed 's/^refused: ..*/refused/' >printed.txt
diff texts.txt printed.txt
echo "programs.sh: program.cpp: $(wc -l <texts.txt) names"
