#!/usr/bin/env bash
# Checks that includes point downwards, that no chain of them is long, and that platforms are told
# apart in three headers only.
#
# A file may include its own layer, the layers named for it below and, as <ortholan/...>, the public
# headers. Tests, fuzz targets and benchmarks reach into any layer; programs that stand for
# applications into none.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/sources.sh
source scripts/sources.sh

strict="strict/der strict/names strict/matching strict/certificates strict/general_names strict/identity"
strict+=" strict/constraints strict/extensions"
any="bytes platform foundation names names/encoder names/decoder names/model generalname extensions capi"
any+=" $strict strict/face tests"

declare -A allowed=(
  [include]=""
  [bytes]=""
  [platform]="bytes"
  [foundation]="platform bytes"
  [names]="foundation platform bytes"
  [names/encoder]="names foundation platform bytes"
  [names/decoder]="names foundation platform bytes"
  [names/model]="names/encoder names/decoder names foundation platform bytes"
  [generalname]="names/decoder names foundation platform bytes"
  [extensions]="foundation platform bytes"
  [capi]="names names/encoder names/decoder foundation platform strict/names strict/der bytes"
  [strict/der]="bytes"
  [strict/names]="strict/der bytes"
  [strict/matching]="strict/names strict/der bytes"
  [strict/certificates]="strict/names strict/der bytes"
  [strict/general_names]="strict/names strict/der bytes"
  [strict/identity]="strict/general_names strict/certificates strict/names strict/der bytes"
  [strict/constraints]="strict/identity strict/general_names strict/matching strict/certificates
    strict/names strict/der bytes"
  [strict/extensions]="strict/general_names strict/certificates strict/names strict/der bytes"
  [strict/face]="$strict bytes"
  [examples]=""
  [bindings]=""
  [tests/boundary]="tests"
  [tests/capi]="tests"
  [tests/cli]="tests"
  [tests]="$any"
  [fuzz]="$any"
  [bench]="$any"
)

# layer_of PATH VARIABLE: sets it to the longest of the path's directories that has a rule, or to
# nothing. A process for each answer would take most of the time.
layer_of() {
  local directory=$1
  while [[ $directory == */* ]]; do
    directory=${directory%/*}
    if [[ -v allowed[$directory] ]]; then
      printf -v "$2" %s "$directory"
      return
    fi
  done
  printf -v "$2" %s ""
}

platform_macros='_WIN32|_WIN64|WIN32|_MSC_VER|__MINGW(32|64)__|__CYGWIN__|__linux__|__unix__|__APPLE__'
faults=0

fault() {
  echo "$1" >&2
  faults=$((faults + 1))
}

check_include() {
  local file=$1 line=$2 target=$3 layer target_layer
  layer_of "$file" layer
  layer_of "$target" target_layer
  # What the build picks for tests by platform is named without its directory.
  if [[ $layer == tests* && -f tests/support/posix/$target && -f tests/support/windows/$target ]]; then
    return
  fi
  # What a binding includes by such a path lies beside the file.
  if [[ $layer == bindings && -f ${file%/*}/$target ]]; then
    return
  fi
  if [[ -z $target_layer ]]; then
    fault "$file:$line: \"$target\" is not relative to the root or belongs to no layer"
  elif [[ $target_layer != "$layer" && ! ${allowed[$layer]} =~ (^|[[:space:]])$target_layer($|[[:space:]]) ]]; then
    fault "$file:$line: $layer may not include \"$target\""
  fi
}

files=()
while IFS= read -r -d '' file; do
  layer_of "$file" layer
  if [[ -z $layer ]]; then
    fault "$file: belongs to no layer"
  else
    files+=("$file")
  fi
done < <(list_sources)

while IFS=: read -r file line text; do
  target=${text#*\"}
  check_include "$file" "$line" "${target%%\"*}"
done < <(grep -nHE '^[[:space:]]*#[[:space:]]*include[[:space:]]*"' "${files[@]}" /dev/null)

# Prints each source of the library with the longest chain of its includes, itself counted in:
#   <length> <source> <header> ...
longest_chains() {
  awk -v include=include/ '
    match($0, /^[[:space:]]*#[[:space:]]*include[[:space:]]*["<][^">]+/) {
      target = substr($0, RSTART, RLENGTH)
      sub(/.*["<]/, "", target)
      targets[FILENAME, ++counts[FILENAME]] = target
    }
    FNR == 1 { known[FILENAME] }
    function chain(file,    best, i, target, found, words) {
      if (file in chains) return chains[file]
      best = ""
      for (i = 1; i <= counts[file]; ++i) {
        target = targets[file, i]
        if (!(target in known)) target = include target
        if (!(target in known)) continue
        found = chain(target)
        if (split(found, words, " ") > split(best, words, " ")) best = found
      }
      return chains[file] = file (best == "" ? "" : " " best)
    }
    END {
      for (file in known) {
        if (file ~ /\.cpp$/) print split(chain(file), words, " "), chain(file)
      }
    }' "$@"
}

most_in_chain=7
library=()
for file in "${files[@]}"; do
  layer_of "$file" layer
  [[ $layer =~ ^(tests|examples|fuzz|bench) ]] || library+=("$file")
done
while read -r length chain; do
  ((length <= most_in_chain)) ||
    fault "${chain%% *}: $length files include one another, at most $most_in_chain may: ${chain// / > }"
done < <(longest_chains "${library[@]}")

while IFS=: read -r file line _; do
  case $file in
    include/ortholan/platform.h | include/ortholan/export.h | include/ortholan/runtime.h) ;;
    *) fault "$file:$line: tells platforms apart; the build picks platform/ instead" ;;
  esac
done < <(grep -nHE "^[[:space:]]*#[[:space:]]*(el)?if.*\<($platform_macros)\>" "${files[@]}" /dev/null)

if ((faults > 0)); then
  echo "check_layers: $faults fault(s) in ${#files[@]} files" >&2
  exit 1
fi
echo "check_layers: ${#files[@]} files in order"
