#!/usr/bin/env bash
# Packs the installed files of the extension for PostgreSQL as postgresql-VERSION-ortholan and
# prints where the package is.
#
#   postgresql_deb.sh TREE PACKAGES
set -euo pipefail
tree=$(realpath "$1")
mkdir -p "$2"
packages=$(realpath "$2")
cd "$(dirname "${BASH_SOURCE[0]}")/../.."

server=$("${PG_CONFIG:-pg_config}" --version | sed 's/[^0-9]*\([0-9]*\).*/\1/')
package=postgresql-$server-ortholan
version=$(pkg-config --modversion ortholan)-0upstream1
contact='the Ortholan authors <ortholan@ortholan.invalid>'
modules=("$tree"/usr/lib/postgresql/"$server"/lib/*.so)
documents=$tree/usr/share/doc/$package
mkdir -p "$documents" "$tree/DEBIAN"

strip --strip-unneeded "${modules[@]}"
{
  printf 'Format: https://www.debian.org/doc/packaging-manuals/copyright-format/1.0/\n'
  printf 'Upstream-Name: Ortholan\n\nFiles: *\n'
  sed -n 's/^Copyright (c) /Copyright: /p' LICENSE
  printf 'License: Expat\n'
  sed -n '/^Permission/,$ { s/^$/./; s/^/ /; p }' LICENSE
} >"$documents/copyright"
printf 'ortholan (%s) unstable; urgency=medium\n\n  * As the library of this version.\n\n' \
  "$version" >"$documents/changelog.Debian"
printf ' -- %s  %s\n' "$contact" "$(date -R -u)" >>"$documents/changelog.Debian"
gzip -9nf "$documents/changelog.Debian"

# dpkg-shlibdeps reads the list of packages of a source, and writes beside it.
source=$(mktemp -d)
trap 'rm -rf "$source"' EXIT
mkdir "$source/debian"
printf 'Source: ortholan\n\nPackage: %s\nArchitecture: any\n' "$package" >"$source/debian/control"
libraries=$(cd "$source" && dpkg-shlibdeps -O "${modules[@]}" | sed -n 's/^shlibs:Depends=//p')

cat >"$tree/DEBIAN/control" <<CONTROL
Package: $package
Source: ortholan
Version: $version
Architecture: $(dpkg --print-architecture)
Maintainer: $contact
Section: database
Priority: optional
Installed-Size: $(du -sk --exclude=DEBIAN "$tree" | cut -f1)
Depends: postgresql-$server, $libraries
Description: names and extensions of X.509 certificates - extension for PostgreSQL
 Ortholan converts distinguished names of X.509 certificates between text and
 DER, and reads and writes general names and certificate extensions.
 .
 This package holds the extension ortholan for PostgreSQL $server: text,
 attributes, keys for indexes and verdicts of names in bytea columns.
CONTROL
chmod -R u=rwX,go=rX "$tree"
file=$packages/${package}_${version}_$(dpkg --print-architecture).deb
dpkg-deb --root-owner-group --build "$tree" "$file" >/dev/null
echo "$file"
