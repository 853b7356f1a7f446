#!/usr/bin/env bash
# The manual page: well-formed, and about the program as it is.
#
#   manual.sh PAGE PROGRAM [ARG]...
set -euo pipefail
page=$1
shift
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
faults=0
fault() {
  echo "manual.sh: $1" >&2
  faults=$((faults + 1))
}

mandoc -T lint -W warning "$page" >&2 || fault "mandoc has complaints"
# Without hyphenation, so that every word is whole.
mandoc -T ascii -O width=1000 "$page" | sed 's/.\x08//g' >"$scratch/page"

# section TITLE: a file of its lines.
section() {
  sed -n "/^$1\$/,/^[A-Z]/p" "$scratch/page" >"$scratch/section"
  echo "$scratch/section"
}
lower() {
  tr '[:upper:]' '[:lower:]'
}

# Commands and options by the help.
"$@" --help >"$scratch/help"
commands=$(sed -n '/^Commands$/,/^$/s/^  \([a-z-]*\) .*/\1/p' "$scratch/help")
(($(wc -w <<<"$commands") >= 10)) || fault "the help lists no commands"
for command in $commands; do
  "$@" "$command" --help >"$scratch/help"
  usage=$(sed -n 's/^usage: //p' "$scratch/help" | lower | sed 's/\([a-z]\)\.\.\./\1 .../')
  sed 's/^ *//' "$(section SYNOPSIS)" | lower >"$scratch/synopsis"
  grep -qxF -e "$usage" "$scratch/synopsis" ||
    fault "the synopsis is not that of the help: $usage"
  grep -q "^     $command\( \|$\)" "$scratch/page" || fault "$command is not described"
  while read -r option; do
    grep -qF -e "$option" "$(section DESCRIPTION)" || fault "$command $option is not described"
  done < <(sed -n 's/^  \(--[a-z]*\) .*/\1/p' "$scratch/help")
done

# The sessions among the examples.
sessions=0
program=("$@")
x509name() {
  "${program[@]}" "$@"
}
while read -r line; do
  if [[ $line == '$ x509name '* ]]; then
    expected=$(eval "${line#'$ '}")
  elif [[ -n ${expected-} ]]; then
    [[ $line == "$expected" ]] || fault "the page says «$line», the program «$expected»"
    sessions=$((sessions + 1))
    expected=
  fi
done <"$(section EXAMPLES)"
((sessions >= 3)) || fault "only $sessions sessions"

((faults == 0))
