#!/usr/bin/env bash
# Runs the test programs of a native build under valgrind, but for the one whose inputs are too large
# for it. Any error or leak fails.
#
#   valgrind.sh BUILD
set -euo pipefail
suppressions=$(dirname "$(realpath "${BASH_SOURCE[0]}")")/valgrind.supp
cd "$1"

for program in ./*_tests; do
  [[ $program == ./memory_tests ]] && continue
  echo "== $program"
  valgrind --quiet --error-exitcode=9 --leak-check=full --errors-for-leak-kinds=definite,possible \
    --suppressions="$suppressions" "$program" --gtest_brief=1
done
