#!/usr/bin/env bash
# Runs Windows programs through Wine, without a display and away from the user's own Wine.
#
#   wine.sh start PREFIX                make PREFIX ready and keep one server for it
#   wine.sh run PREFIX PROGRAM [ARG]... run PROGRAM; its exit status is this script's
#   wine.sh stop PREFIX                 end the server of PREFIX
#
# PREFIX is Wine's directory; it is made on first use. Several may run at once.
set -euo pipefail

die() {
  echo "wine.sh: $*" >&2
  exit 1
}

# Prints the first of the given commands that exists.
first_command() {
  local candidate
  for candidate in "$@"; do
    if command -v "$candidate"; then
      return 0
    fi
  done
  return 1
}

[[ $# -ge 2 ]] || die "usage: wine.sh start|run|stop PREFIX [PROGRAM [ARG]...]"
action=$1
prefix=$2
shift 2

# Debian's wine64 puts nothing into the path; its wrappers belong to another package.
wine=$(first_command /usr/lib/wine/wine64 wine64 wine) || die "Wine is not installed (wine64)"
wineserver=$(first_command /usr/lib/wine/wineserver64 wineserver) ||
  die "Wine's server is not installed (wine64)"

wine_files=/usr/lib/x86_64-linux-gnu/wine/x86_64-windows

mkdir -p "$prefix/home"
prefix=$(cd "$prefix" && pwd)
export WINEPREFIX=$prefix
export WINESERVER=$wineserver
export WINELOADER=$wine
export WINEARCH=win64
export WINEDEBUG=${WINEDEBUG:--all}
# Neither menus nor the .NET and HTML engines, which would ask for a download.
export WINEDLLOVERRIDES="winemenubuilder.exe,mscoree,mshtml="
# Arguments are UTF-8 whatever the caller's locale.
export LC_ALL=C.UTF-8
export HOME=$prefix/home
unset DISPLAY WAYLAND_DISPLAY

# Descriptor 9 is the lock, which a server that lives on must not keep.
quietly() {
  "$@" </dev/null >/dev/null 2>&1 9>&-
}

# Wine fills its system directory with copies of its own files, some 600 MB: links do as well. It
# would write through them when it renews the directory after an upgrade, so that is turned off.
link_system_files() {
  local file original
  echo disable >"$prefix/.update-timestamp"
  for file in "$prefix"/drive_c/windows/system32/*; do
    original=$wine_files/${file##*/}
    if [[ -f $file && -f $original ]] && cmp -s "$file" "$original"; then
      ln -sf "$original" "$file"
    fi
  done
}

prepare() {
  [[ -e $prefix/ready ]] && return 0
  (
    flock 9
    [[ -e $prefix/ready ]] && exit 0
    quietly "$wine" wineboot.exe --init || die "Wine cannot set up $prefix"
    quietly "$wine" reg.exe add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f ||
      die "Wine cannot write its registry in $prefix"
    # The registry reaches the disk when the server ends.
    quietly "$wineserver" -w
    link_system_files
    touch "$prefix/ready"
  ) 9>>"$prefix/lock"
}

# Starts a server that outlives its last program by the given seconds, unless there is one. Were the
# program itself to start it, Wine's services would hold on to the caller's pipes after its end.
serve() {
  (
    flock 9
    # What keeps the server alive may fail: the program then starts one itself.
    if quietly "$wineserver" "-p$1"; then
      quietly "$wine" cmd.exe /c exit || true
    fi
  ) 9>>"$prefix/lock"
}

case $action in
  start)
    prepare
    serve 60
    ;;
  run)
    [[ $# -ge 1 ]] || die "no program given"
    prepare
    serve 10
    exec "$wine" "$@"
    ;;
  stop)
    quietly "$wineserver" -k || true
    ;;
  *) die "no such action: $action" ;;
esac
