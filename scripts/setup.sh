#!/usr/bin/env bash
# Installs what Debian packages a group of tasks lacks, and touches nothing where all are there.
#
#   setup.sh demo|native|test|fuzz|bench|suites|docs|wasm|deb|package
set -euo pipefail

demo=(g++ cmake ninja-build ca-certificates)
native=("${demo[@]}" libgtest-dev)
# The sanitizers' runtime goes with the release of Debian's default clang.
clang=(clang libclang-rt-14-dev)
# llvm has the tool for import libraries of Visual C++'s form.
windows=(g++-mingw-w64-x86-64-posix googletest llvm wine64)
debian=(dpkg-dev fakeroot file gdb lintian pkg-config python3)

case ${1-} in
  demo) packages=("${demo[@]}") ;;
  native) packages=("${native[@]}") ;;
  test)
    packages=("${native[@]}" "${clang[@]}" "${windows[@]}" clang-format clang-tools fish gdb
      libgnutls28-dev libssl-dev lld mandoc pkg-config python3 valgrind zsh)
    ;;
  fuzz) packages=("${native[@]}" "${clang[@]}") ;;
  bench)
    packages=("${native[@]}" "${windows[@]}" libbenchmark-dev libssl-dev libgnutls28-dev
      libbotan-2-dev libmbedtls-dev)
    ;;
  # Peers are loaded by the system's own interpreter, whose package has python3-cryptography.
  suites)
    packages=("${native[@]}" libssl-dev libgnutls28-dev libbotan-2-dev libmbedtls-dev python3
      python3-cryptography)
    ;;
  docs)
    packages=("${demo[@]}" doxygen furo mandoc python3 python3-breathe python3-myst-parser
      python3-sphinx python3-sphinx-copybutton)
    ;;
  # Node comes with emscripten.
  wasm) packages=(chromium emscripten fonts-dejavu-core node-typescript) ;;
  deb) packages=("${demo[@]}" "${debian[@]}") ;;
  package) packages=("${native[@]}" "${debian[@]}" "${windows[@]}" unzip) ;;
  *)
    echo "usage: setup.sh demo|native|test|fuzz|bench|suites|docs|wasm|deb|package" >&2
    exit 2
    ;;
esac

if ! command -v dpkg-query >/dev/null; then
  echo "setup.sh: not a Debian system; expected here: ${packages[*]}" >&2
  exit 0
fi

missing=()
for package in "${packages[@]}"; do
  state=$(dpkg-query --show --showformat='${db:Status-Status}' "$package" 2>/dev/null || true)
  if [[ $state != installed ]]; then
    missing+=("$package")
  fi
done
if ((${#missing[@]} == 0)); then
  exit 0
fi
echo "setup.sh: installing ${missing[*]}"

as_root=()
if ((EUID != 0)); then
  if ! command -v sudo >/dev/null; then
    echo "setup.sh: neither root nor sudo; install these first: ${missing[*]}" >&2
    exit 1
  fi
  as_root=(sudo)
fi

apt_get() {
  ${as_root[@]+"${as_root[@]}"} env DEBIAN_FRONTEND=noninteractive apt-get \
    -o DPkg::Lock::Timeout=300 -o Acquire::Retries=3 -q "$@" </dev/null
}
apt_get update
apt_get install --yes --no-install-recommends "${missing[@]}"
