# shellcheck shell=bash
# To be sourced: what belongs to the project's C++ and C sources.

# Prints the paths of all sources, relative to the project's root, each ended by NUL: the
# tracked ones and the new ones that are not ignored; outside a git checkout all but what was built.
list_sources() {
  local file
  if [[ -e .git ]] && git rev-parse --git-dir >/dev/null 2>&1; then
    git ls-files -z --cached --others --exclude-standard -- '*.cpp' '*.c' '*.h' '*.hpp'
  else
    find . -path ./build -prune -o \( -name '*.cpp' -o -name '*.c' -o -name '*.h' -o -name '*.hpp' \) -type f -printf '%P\0'
  fi | while IFS= read -r -d '' file; do
    # A file may be deleted and still tracked.
    if [[ -f $file ]]; then
      printf '%s\0' "$file"
    fi
  done
}
