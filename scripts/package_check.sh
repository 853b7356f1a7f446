#!/usr/bin/env bash
# Unpacks what `make package` made and uses it: programs are compiled against it, Debian's packages
# are installed into a scratch directory and removed again, the Windows program runs from the ZIP
# alone.
#
#   package_check.sh BUILD [WINDOWS_BUILD]
set -euo pipefail
native=$(realpath "$1")
windows=${2:+$(realpath "$2")}
cd "$(dirname "${BASH_SOURCE[0]}")/.."

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
wine=$PWD/scripts/wine.sh
VERSION=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$native/CMakeCache.txt")
export VERSION

fail() {
  echo "package_check.sh: $*" >&2
  exit 1
}

# consume TREE: builds and runs the consumer by both ways to find the library.
consume() {
  local way
  for way in find_package pkg_config; do
    tests/consumer/run.sh "$way" "$1" "$scratch/work"
  done
}

# The command as root, or as what looks like it to dpkg.
as_root() {
  if ((EUID == 0)); then
    "$@"
  else
    fakeroot "$@"
  fi
}

# What lies in a scratch system, but for dpkg's own notes.
contents() {
  find "$1" -path "$1/var/lib/dpkg" -prune -o ! -type d -print
}

# check_debugger ROOT LIBRARIES: a program built without special options is seen through the stripped
# library, by the debug information that goes with it.
check_debugger() {
  local root=$1 libraries=$2 said
  dpkg-deb -x "$native"/packages/libortholan*-dbgsym_"$VERSION"-*.ddeb "$scratch/symbols"
  g++ -std=c++17 -g -O0 -I"$root/usr/include" tests/debug/printed.cpp "$libraries/libortholan.so" \
    -o "$scratch/printed"
  echo 301D310B3009060355040613025255310E300C06035504030C05416C706861 >"$scratch/names"
  said=$(LD_LIBRARY_PATH=$libraries gdb -nx -batch \
    -iex "set debug-file-directory $scratch/symbols/usr/lib/debug" -iex 'set auto-load safe-path /' \
    -ex "source $root/usr/share/ortholan/ortholan_gdb.py" -ex 'break Inspect' -ex run \
    -ex 'output names[0]' --args "$scratch/printed" "$scratch/names" 2>&1)
  [[ $said == *'C=RU,CN=Alpha' ]] || fail "GDB shows a name as '$said'"
  # Where GDB looks by itself for what belongs to a library.
  cmp -s packaging/debug/ortholan_gdb.py \
    "$root/usr/share/gdb/auto-load${libraries#"$root"}/libortholan.so.$VERSION-gdb.py" ||
    fail "GDB would not find the printers"
}

check_debian() {
  local root=$scratch/debian packages=("$native"/packages/*_"$VERSION"-*.deb) names=() package
  ((${#packages[@]} == 5)) || fail "not five Debian packages but: ${packages[*]}"
  for package in "${packages[@]}"; do
    names+=("$(dpkg-deb --field "$package" Package)")
  done

  mkdir -p "$root"/var/lib/dpkg/{info,updates,triggers}
  touch "$root"/var/lib/dpkg/{status,available}
  # Their dependencies are on the system outside.
  local dpkg=(dpkg --root="$root" --log=/dev/null --force-not-root --force-depends)
  as_root "${dpkg[@]}" --install "${packages[@]}" >"$scratch/log" 2>&1 ||
    { cat "$scratch/log" >&2; fail "not installed"; }
  CXX=g++ consume "$root"
  local libraries
  libraries=$(dirname "$(find "$root" -name 'libortholan.so.?')")
  [[ $(LD_LIBRARY_PATH=$libraries "$root/usr/bin/x509name" encode CN=Alpha) == 3010310E* ]] ||
    fail "x509name does not run"
  # Where each shell looks for what belongs to a command.
  local shell
  for shell in bash:bash-completion/completions/x509name zsh:zsh/vendor-completions/_x509name \
    fish:fish/vendor_completions.d/x509name.fish; do
    cmp -s "examples/x509name.${shell%%:*}" "$root/usr/share/${shell#*:}" ||
      fail "no completion for ${shell%%:*}"
  done
  zcat "$root/usr/share/man/man1/x509name.1.gz" | cmp -s - examples/x509name.1 ||
    fail "the manual page is not there"
  check_debugger "$root" "$libraries"
  [[ $(PYTHONPATH=$root/usr/lib/python3/dist-packages LD_LIBRARY_PATH=$libraries python3 -B -c \
    'from ortholan import Name, classic
print(Name.from_der(classic.Name("CN=Alpha, C=RU", sort=True).der))') == CN=Alpha,C=RU ]] ||
    fail "the Python package does not work"
  python3 tests/documents/links.py "$root/usr/share/doc" || fail "dead links were installed"
  as_root "${dpkg[@]}" --purge "${names[@]}" >"$scratch/log" 2>&1 ||
    { cat "$scratch/log" >&2; fail "not removed"; }
  [[ -z $(contents "$root") ]] || fail "left behind: $(contents "$root")"

  lintian --allow-root --fail-on error,warning "${packages[@]}"
}

# check_symbols FILE: debug information lies beside it and is found from it.
check_symbols() {
  local objdump=x86_64-w64-mingw32-objdump
  $objdump -h "$1.debug" | grep -q '\.debug_info' || fail "$1.debug holds no debug information"
  ! $objdump -h "$1" | grep -q '\.debug_info' || fail "$1 holds its debug information itself"
  $objdump -s -j .gnu_debuglink "$1" >/dev/null || fail "$1 does not name its debug information"
}

locate() {
  local found
  found=$(find "$1" -name "$2" -print -quit)
  [[ -n $found ]] || fail "no $2 in $1"
  echo "$found"
}

# check_import_library TREE BIN: a C program that knows ortholan.lib alone, as Visual C++ would.
check_import_library() {
  local library said
  library=$(locate "$1" ortholan.lib)
  sed -n '/^```c$/,/^```$/p' docs/getting-started.md | sed '1d;$d' >"$scratch/app.c"
  x86_64-w64-mingw32-gcc-posix -I"$(locate "$1" include)" "$scratch/app.c" "$library" -o "$scratch/app.exe"
  said=$(WINEPATH="Z:$2" "$wine" run "$windows/wine" "$scratch/app.exe" | tr -d '\r')
  [[ $said == C=RU,O=Org,CN=Alpha ]] || fail "with ortholan.lib the program says '$said'"
}

check_windows() {
  local root="$scratch/for windows" packages=("$windows"/packages/*"$VERSION"*.zip) directory said
  ((${#packages[@]} == 1)) || fail "not one archive but: ${packages[*]}"
  unzip -q "${packages[0]}" -d "$root"
  WINDOWS=yes CXX=x86_64-w64-mingw32-g++-posix OBJDUMP=x86_64-w64-mingw32-objdump \
    WINE="$wine run $windows/wine" consume "$root"

  # Away from the build, with nothing on the path.
  directory=$(dirname "$(find "$root" -name x509name.exe)")
  said=$(cd "$scratch" && WINEPATH='' "$wine" run "$windows/wine" "$directory/x509name.exe" \
    encode CN=Alpha | tr -d '\r')
  [[ $said == 3010310E* ]] || fail "x509name.exe says '$said'"
  check_import_library "$root" "$directory"
  for said in libstdc++-and-libgcc winpthreads GPL-3; do
    locate "$root" "$said.txt" >/dev/null
  done
  locate "$root" classic.py >/dev/null
  check_symbols "$directory/x509name.exe"
  check_symbols "$directory/ortholan.dll"
}

check_debian
if [[ $windows ]]; then
  check_windows
  "$wine" stop "$windows/wine"
fi
echo "package_check.sh: the packages of version $VERSION are in order"
