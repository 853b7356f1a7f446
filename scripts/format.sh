#!/usr/bin/env bash
# Formats all C++ sources by .clang-format; with --check only reports what is out of form.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
# shellcheck source=scripts/sources.sh
source scripts/sources.sh

case ${1-} in
  --check) mode=(--dry-run -Werror) ;;
  "") mode=(-i) ;;
  *)
    echo "usage: format.sh [--check]" >&2
    exit 2
    ;;
esac
list_sources | xargs -0 -r clang-format --style=file "${mode[@]}"
