#!/usr/bin/env bash
# Installs what Debian packages a group of tasks lacks, and touches nothing where all are there.
#
#   setup.sh GROUP        a name of the list below
set -euo pipefail

demo=(g++ cmake ninja-build ca-certificates)
native=("${demo[@]}" libgtest-dev)
# The sanitizers' runtime goes with the release of Debian's default clang.
clang=(clang libclang-rt-14-dev)
# llvm has the tool for import libraries of Visual C++'s form.
windows=(g++-mingw-w64-x86-64-posix googletest llvm wine64)
# What every binding stands on.
binding=("${demo[@]}" pkg-config python3)
debian=(dpkg-dev fakeroot file gdb lintian pkg-config python3)

case ${1-} in
  demo) packages=("${demo[@]}") ;;
  native) packages=("${native[@]}") ;;
  test)
    packages=("${native[@]}" "${clang[@]}" "${windows[@]}" clang-format clang-tools fish gdb jq
      libgnutls28-dev libssl-dev lld mandoc openssl parallel pkg-config python3 valgrind zsh)
    ;;
  fuzz) packages=("${native[@]}" "${clang[@]}") ;;
  bench)
    packages=("${native[@]}" "${windows[@]}" libbenchmark-dev libssl-dev libgnutls28-dev
      libbotan-2-dev libmbedtls-dev openssl)
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
  postgresql) packages=("${binding[@]}" dpkg-dev postgresql postgresql-server-dev-all) ;;
  python)
    packages=("${demo[@]}" binutils mypy python3-cryptography python3-pip python3-pytest
      python3-setuptools python3-venv python3-wheel)
    ;;
  rust) packages=("${binding[@]}" cargo rust-clippy rustc) ;;
  go) packages=("${binding[@]}" golang-go) ;;
  csharp)
    packages=("${binding[@]}" libnunit-framework2.6.3-cil mono-mcs mono-runtime nunit-console)
    ;;
  visual-c) packages=("${binding[@]}" "${windows[@]}" clang clang-tools lld) ;;
  machines)
    packages=("${native[@]}" g++-aarch64-linux-gnu g++-s390x-linux-gnu googletest python3 qemu-user)
    ;;
  *)
    echo "usage: setup.sh GROUP, a name of the list in $0" >&2
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
