#!/usr/bin/env bash
# Runs one table of command lines and compares standard output, standard error and exit status.
#
#   run.sh TABLE PROGRAM [ARG]...
#
# A table is a file of calls of `row`, made in a scratch directory that holds the sample
# certificates. PROGRAM with its ARGs is what runs x509name, Wine in front of it where needed;
# `on_wine` is not empty then.
set -euo pipefail
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
table=$here/$1
shift
program=()
for argument in "$@"; do
  if [[ -e $argument ]]; then argument=$(realpath "$argument"); fi
  program+=("$argument")
done
on_wine=
# shellcheck disable=SC2034
if [[ $1 == *wine.sh ]]; then on_wine=yes; fi
export LC_ALL=C.UTF-8

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cp "$here"/../data/certificates/*.pem "$scratch"
cd "$scratch"
mkdir result

rows=0
failures=0

fault() {
  printf '%s: %s\n' "$label" "$1" >&2
  failed=yes
}

# Octets of standard input from upper-case hexadecimal digits.
octets() {
  printf '%b' "$(sed 's/../\\x&/g')"
}

# row LABEL STATUS OUTPUT ERROR ARG...
#
# OUTPUT is all of standard output, exactly; ~PATTERN matches a line of it instead, and #HEX gives
# its octets. ERROR is an extended regular expression for the one line on standard error, empty for
# no line, of several lines for all of them; with a number of lines and a colon before it, for one of
# that many, with a star and a colon of any number. Standard input comes from the file `stdin_file`, if that is set.
row() {
  local label=$1 status=$2 output=$3 error=$4 actual=0 lines=0 failed=
  shift 4
  rows=$((rows + 1))
  # Codes are named where they are asked for.
  [[ $error != *'last error'* ]] || set -- "$1" --verbose "${@:2}"
  "${program[@]}" "$@" <"${stdin_file:-/dev/null}" >result/out 2>result/err || actual=$?
  ((actual == status)) || fault "exit status $actual, not $status"

  case $output in
    '~'*) grep -qxE -e "${output:1}" result/out || fault "no line of the output is ${output:1}" ;;
    '#'*)
      printf '%s' "${output:1}" | octets | cmp -s - result/out ||
        fault "output $(od -An -v -tx1 result/out | tr -d ' \n'), not ${output:1}"
      ;;
    *) printf '%s' "$output" | cmp -s - result/out || fault "output «$(<result/out)», not «$output»" ;;
  esac

  if [[ -n $error ]]; then
    lines=1
    if [[ $error =~ ^([0-9]+|\*): ]]; then
      lines=${error%%:*}
      error=${error#*:}
    fi
    if [[ $error == *$'\n'* ]]; then
      lines=$(wc -l <<<"$error")
      [[ $(<result/err) =~ ^$error$ ]] || fault "error «$(<result/err)» is not «$error»"
    elif [[ -n $error ]]; then
      grep -qxE -e "$error" result/err || fault "error «$(<result/err)» is not «$error»"
    fi
  fi
  # A sanitizer's report, or the system's about a crash.
  ! grep -qv -e '^x509name: ' -e '^  ' result/err || fault "error «$(<result/err)»"
  [[ $lines == '*' ]] || (($(wc -l <result/err) == lines)) || fault "error «$(<result/err)» has not $lines line(s)"
  [[ -z $failed ]] || failures=$((failures + 1))
}

# The end of a line on standard error under --verbose: the meaning of a last-error code, and the code.
code() {
  printf ': .+ \(last error %d, 0x%08X\)' "$1" "$1"
}

# shellcheck source=/dev/null
source "$table"

echo "$(basename "$table"): $rows command lines, $failures failed"
((rows > 0 && failures == 0))
