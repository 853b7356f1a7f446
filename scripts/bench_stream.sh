#!/usr/bin/env bash
# Measures x509name --lines from a pipe to a pipe, on one core by processor time, beside a process for
# each certificate, and prints a table.
#
#   bench_stream.sh PROGRAM
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
program=$(realpath "$1")
certificate=$PWD/tests/data/certificates/printable.pem
readonly names=1000000 malformed=1000 certificates=10000 processes=200
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"

# row WORK COUNT COMMAND...: a line for `count` items that the command takes from standard input, by
# the fastest of three runs.
row() {
  local work=$1 count=$2 TIMEFORMAT='%U %S' seconds
  shift 2
  for _ in 1 2 3; do
    { time "$@" < <(cat input) > >(cat >/dev/null) 2>/dev/null || true; } 2>>seconds
  done
  seconds=$(awk '{ print $1 + $2 }' seconds | sort -n | head -n 1)
  rm seconds
  awk -v work="$work" -v count="$count" -v seconds="$seconds" \
    'BEGIN { printf "| %s | %.2f s | %.0f |\n", work, seconds, count / seconds }'
}

# The sample names that are in order, over and over, and some that are not among them.
grep -v '^#' "$OLDPWD/tests/data/names.txt" |
  while read -r name; do "$program" decode --rfc4514 "$name" >/dev/null 2>&1 && echo "$name"; done |
  awk -v names=$names -v malformed=$malformed '
    { sample[count++] = $0 }
    END {
      for (i = 0; i < names; ++i) {
        name = sample[i % count]
        print i % (names / malformed) ? name : substr(name, 1, length(name) - 2)
      }
    }' >names
"$program" decode --rfc4514 --lines names 2>/dev/null | sed 's/^!.*/no name/' >texts || true

octets=$(awk '{ octets += length($0) / 2 } END { printf "%.0f", octets / NR }' names)
echo "| a stream of $names names of $octets octets, on average | processor time | items a second |"
echo '|---|---|---|'
ln -sf names input
row 'digits to text: `decode --rfc4514 --lines`' $names "$program" decode --rfc4514 --lines
row 'digits to keys: `key --lines`' $names "$program" key --lines
ln -sf texts input
row 'text to digits: `encode --rfc4514 --lines`' $names "$program" encode --rfc4514 --lines
for ((i = 0; i < certificates; ++i)); do cat "$certificate"; done >input
row 'certificates to JSON: `show --json --lines`' $certificates "$program" show --json --lines
ln -sf "$certificate" input
each() {
  for ((i = 0; i < processes; ++i)); do openssl x509 -noout -subject -in input; done
}
row "a process for each certificate: \`openssl x509 -noout -subject\`" $processes each
