#!/usr/bin/env bash
# Completion for bash, driven as readline drives it.
#
#   completion.sh SCRIPT PROGRAM [ARG]...
#
# PROGRAM with its ARGs is what runs x509name, whose help the commands and options are compared with.
set -euo pipefail
script=$(realpath "$1")
shift
program=()
for argument in "$@"; do
  if [[ -e $argument ]]; then argument=$(realpath "$argument"); fi
  program+=("$argument")
done
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"${program[@]}" --help >"$scratch/help"

# shellcheck source=/dev/null
source "$script"
registered=$(complete -p x509name)
# Belongs to readline, which is not here.
as_files=
compopt() { [[ $* != '-o filenames' ]] || as_files=yes; }

rows=0
failures=0

# row LABEL EXPECTED WORD...: what is offered for the last of the words, in order, files marked by
# "files:".
row() {
  local label=$1 expected=$2 offered
  shift 2
  rows=$((rows + 1))
  as_files=
  # shellcheck disable=SC2034
  COMP_WORDS=(x509name "$@") COMP_CWORD=$#
  _x509name x509name "${@: -1}" "${@: -2:1}"
  # As readline does; the others stand in the order of the help.
  [[ -z $as_files ]] || mapfile -t COMPREPLY < <(printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort)
  offered=${as_files:+files: }${COMPREPLY[*]}
  if [[ $offered != "$expected" ]]; then
    echo "$label: «$offered», not «$expected»" >&2
    failures=$((failures + 1))
  fi
}

# named PATTERN: the words at the start of the help's rows that match, in order.
named() {
  sed -n "s/^  \($1\)\( .*\)\{0,1\}\$/\1/p" "$scratch/help" | { grep -v '^x509name' || true; } | paste -sd ' '
}

[[ $registered == 'complete -F _x509name x509name' ]] || { echo "registered: $registered" >&2; exit 1; }
cd "$scratch"
mkdir files && cd files
touch 'a name.der' alpha.pem beta.pem
all='files: a name.der alpha.pem beta.pem'

row "every command" "$(named '[a-z-]*')" ''
row "one command" "encode" enc
row "commands with the same start" "set show survey" s
row "the program's own options" "--help --version" --
row "unknown command" "" frob ''
for command in $(named '[a-z][a-z-]*'); do
  "${program[@]}" "$command" --help >"$scratch/help"
  options=$(named '--[a-z]*')
  row "options of $command" "${options:+$options }--help" "$command" -- 
done
row "one option" "--sort" encode --s
row "values behind an option" "1 2 3 0x40000003 0x08000003" decode --options ''
row "value begun" "0x40000 0x40000000" encode --options 0x4
row "values behind an equals sign" "2 3" pairs --style =
row "value begun behind an equals sign" "2" pairs --style = 2
row "identifiers" "2.5.4.3" get 2.5.4.3
row "a file behind the identifier" "files: alpha.pem" get 2.5.4.3 al
row "a text" "" set 2.5.4.3 ''
row "a file behind the text" "$all" set 2.5.4.3 x ''
row "files" "$all" show ''
row "file name with a blank" "files: a name.der" show 'a '
row "second file" "files: beta.pem" show alpha.pem b
row "file behind an option" "files: beta.pem" show --json b
row "no files for a text" "" encode ''
row "a file to write" "files: alpha.pem" encode --out al

echo "completion: $rows rows, $failures failed"
((failures == 0))
