#!/usr/bin/env bash
# The extension for PostgreSQL on the library of this tree, on a server in a directory of its own
# that listens on a socket there and nowhere else.
#
#   postgresql.sh [test]          builds it and runs its tests
#   postgresql.sh psql [ARG...]   builds it and runs psql in a database that has it
#   postgresql.sh install         builds it and installs it into the system's server
#
# SANITIZE=yes builds it with UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
task=${1-test}
case $task in
  test) ;;
  psql | install) scripts/setup.sh postgresql ;;
  *)
    echo "usage: postgresql.sh [psql [ARG...] | install]" >&2
    exit 2
    ;;
esac

root=$PWD
source=$root/bindings/postgresql
build=$root/build/postgresql${SANITIZE:+-sanitize}
PG_CONFIG=${PG_CONFIG:-pg_config}
programs=$("$PG_CONFIG" --bindir)
export PATH=$programs:$PATH PG_CONFIG PKG_CONFIG_PATH=$root/build/prefix/lib/pkgconfig
# What an account of the caller says of servers does not count here.
unset PGDATABASE PGPORT PGSERVICE PGOPTIONS PGHOSTADDR PGPASSWORD

extension() {
  make -s -C "$build" -f "$source/Makefile" "${flags[@]}" "$@"
}

# initdb and the server refuse to be root.
as_server() {
  if ((EUID == 0)); then
    (cd / && runuser -u "$account" -- "$@")
  else
    "$@"
  fi
}

start_server() {
  account=$(id -un)
  if ((EUID == 0)); then account=$(id -un postgres 2>/dev/null || echo nobody); fi
  # A socket's path has to be short.
  scratch=$(mktemp -d /tmp/ortholan-pg-XXXXXX)
  trap stop_server EXIT
  chown "$account" "$scratch"
  chmod 755 "$scratch"
  # The server has what the Debian package holds.
  rm -rf "$build/tree"
  extension install DESTDIR="$build/tree" >"$build/install.log"
  package=$(scripts/bindings/postgresql_deb.sh "$build/tree" "$build/packages")
  dpkg-deb -x "$package" "$scratch/root"
  as_server "$programs/initdb" -D "$scratch/data" -U postgres -A trust -E UTF8 --locale=C.UTF-8 \
    --no-sync >"$build/initdb.log"
  cat >>"$scratch/data/postgresql.conf" <<CONFIGURATION
listen_addresses = ''
unix_socket_directories = '$scratch'
unix_socket_permissions = 0700
extension_destdir = '$scratch/root'
fsync = off
max_wal_size = 4GB
CONFIGURATION
  if ! as_server env LC_ALL=C.UTF-8 "$programs/pg_ctl" -D "$scratch/data" -l "$scratch/log" -w \
    start >/dev/null; then
    cat "$scratch/log" >&2
    exit 1
  fi
  export PGHOST=$scratch PGUSER=postgres
}

stop_server() {
  as_server "$programs/pg_ctl" -D "$scratch/data" -m immediate stop >/dev/null 2>&1 || true
  cp "$scratch/log" "$build/server.log" 2>/dev/null || true
  rm -rf "$scratch"
}

run_tests() {
  export ORTHOLAN_VECTORS=$root/tests/data/vectors
  export ORTHOLAN_CERTIFICATES=$root/tests/data/certificates
  extension installcheck || { cat "$build/regression.diffs" >&2; exit 1; }
  python3 "$source/tests/pages.py" docs/postgresql.md bindings/postgresql/README.md
  if grep -E 'was terminated by signal|PANIC|runtime error' "$scratch/log" >&2; then
    echo "postgresql.sh: a process of the server came to grief" >&2
    exit 1
  fi
}

flags=(COPT="-Werror${SANITIZE:+ -fsanitize=undefined -fno-sanitize-recover}")
if [[ -z ${ORTHOLAN_PREFIX-} ]]; then
  mkdir -p build
  if ! scripts/bindings/library.sh >build/library.log; then
    cat build/library.log >&2
    exit 1
  fi
else
  PKG_CONFIG_PATH=$ORTHOLAN_PREFIX/lib/pkgconfig
fi
mkdir -p "$build/src"
extension
case $task in
  test)
    start_server
    run_tests
    echo "postgresql.sh: $package"
    ;;
  install)
    as_root=()
    if ((EUID != 0)); then as_root=(sudo); fi
    "${as_root[@]}" env PKG_CONFIG_PATH="$PKG_CONFIG_PATH" make -s -C "$build" \
      -f "$source/Makefile" install PG_CONFIG="$PG_CONFIG"
    echo "postgresql.sh: installed; in a database of yours: CREATE EXTENSION ortholan"
    ;;
  psql)
    shift
    start_server
    psql -X -q -d template1 -c 'CREATE EXTENSION ortholan'
    createdb ortholan
    psql -X -d ortholan "$@"
    ;;
esac
