#!/usr/bin/env bash
# Completion: what the program offers, and what the shells make of it.
#
#   completion.sh SCRIPT PROGRAM [ARG]...
#
# SCRIPT is the one for bash, driven as readline drives it; those for zsh and fish lie beside it.
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

x509name() { "${program[@]}" "$@"; }
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

row "every command" "$(named '[a-z][a-z-]*')" ''
row "one command" "encode" enc
row "commands with the same start" "set show survey" s
row "the program's own options" "--verbose --help --version" --
row "unknown command" "" frob ''
for command in $(named '[a-z][a-z-]*'); do
  "${program[@]}" "$command" --help >"$scratch/help"
  options=$(named '--[a-z0-9-]*')
  row "options of $command" "${options:+$options }--verbose --help" "$command" --
done
row "one option" "--sort" encode --so
row "values behind an option" "keys oids values" decode --style ''
row "a value that the shell would take" '\;' encode --separator ';'
row "value begun" "crlf" encode --separator c
row "a number" "" encode --options ''
row "values behind an equals sign" "keys oids values" pairs --style =
row "value begun behind an equals sign" "oids" pairs --style = o
row "the same in one word" "--style=oids" pairs --style=o
row "keys" "CN C" get C
row "keys begun" "CN" set CN
row "a file behind the identifier" "files: alpha.pem" get CN al
row "a text" "" set CN ''
row "a file behind the text" "$all" set CN x ''
row "files" "$all" show ''
row "file name with a blank" "files: a name.der" show 'a '
row "second file" "files: beta.pem" show alpha.pem b
row "file behind an option" "files: beta.pem" show --json b
row "no files for a text" "" encode ''
row "a file to write" "files: alpha.pem" encode --out al

# The other shells hand the same words on.
shell_row() {
  local shell=$1 expected=$2 offered
  rows=$((rows + 1))
  shift 2
  offered=$("$@" 2>&1 | cut -f 1 | tr -d '\r' | LC_ALL=C sort | paste -sd ' ')
  [[ $offered == *"$expected"* ]] || { echo "$shell: «$offered», not «$expected»" >&2; failures=$((failures + 1)); }
}
if ((${#program[@]} == 1)); then
  mkdir "$scratch/bin"
  printf '#!/bin/sh\nexec "%s" "$@"\n' "${program[0]}" >"$scratch/bin/x509name"
  chmod +x "$scratch/bin/x509name"
  export PATH=$scratch/bin:$PATH HOME=$scratch TERM=dumb
  if command -v fish >/dev/null; then
    in_fish() { fish --no-config -c "source ${script%.bash}.fish; complete -C '$1'"; }
    shell_row fish "encode" in_fish 'x509name enc'
    shell_row fish "keys oids values" in_fish 'x509name decode --style '
    shell_row fish "a name.der alpha.pem beta.pem" in_fish 'x509name show '
  fi
  if command -v zsh >/dev/null; then
    cp "${script%.bash}.zsh" "$scratch/bin/_x509name"
    # What the completion system would be told.
    in_zsh() {
      zsh -f -c '_describe() { print -l -- ${found%%:*}; }; _files() { print -l -- *; }
        words=("$@"); CURRENT=$#words; source $0' "$scratch/bin/_x509name" "$@"
    }
    shell_row zsh "encode" in_zsh x509name enc
    shell_row zsh "keys oids values" in_zsh x509name decode --style ''
    shell_row zsh "a name.der alpha.pem beta.pem" in_zsh x509name show ''
  fi
fi

echo "completion: $rows rows, $failures failed"
((failures == 0))
