# shellcheck shell=bash
# Completion of x509name for bash; the program says what there is.

_x509name() {
  local current=${COMP_WORDS[COMP_CWORD]} line
  COMPREPLY=()
  while IFS= read -r line; do
    if [[ $line == :files ]]; then
      [[ $current != = ]] || current=
      mapfile -t COMPREPLY < <(compgen -f -- "$current")
      compopt -o filenames
    else
      printf -v line %q "${line%%$'\t'*}"
      COMPREPLY+=("$line")
    fi
  done < <("${COMP_WORDS[0]}" --complete "${COMP_WORDS[@]:1:COMP_CWORD}" 2>/dev/null)
}

complete -F _x509name x509name
