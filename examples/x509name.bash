# shellcheck shell=bash
# Completion of x509name for bash: commands, their options and values, file names.

_x509name() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
  local command=${COMP_WORDS[1]} options='' values='' operands=0 i
  COMPREPLY=()

  # "--options=3" comes as three words.
  if [[ $current == = ]]; then
    current=
  elif [[ $previous == = ]]; then
    previous=${COMP_WORDS[COMP_CWORD - 2]}
  fi

  if ((COMP_CWORD == 1)); then
    mapfile -t COMPREPLY < <(compgen -W 'encode decode pairs get set equal show survey extension
      general-name --help --version' -- "$current")
    return
  fi

  case $command in
    encode) options='--options --sort --out' values='0x40000 0x140000 0x40000000' ;;
    decode) options='--options --json' values='1 2 3 0x40000003 0x08000003' ;;
    pairs) options='--style --json' values='2 3' ;;
    show) options=--json ;;
    get | set | equal | survey | extension | general-name) ;;
    *) return ;;
  esac

  case $previous in
    --options | --style)
      mapfile -t COMPREPLY < <(compgen -W "$values" -- "$current")
      return
      ;;
    --out) ;;
    *)
      if [[ $current == -?* ]]; then
        mapfile -t COMPREPLY < <(compgen -W "$options --help" -- "$current")
        return
      fi
      for ((i = 2; i < COMP_CWORD; ++i)); do
        [[ ${COMP_WORDS[i]} == -?* ]] || operands=$((operands + 1))
      done
      case $command$operands in
        # The attributes that names are written with.
        get0 | set0)
          mapfile -t COMPREPLY < <(compgen -W '2.5.4.3 2.5.4.5 2.5.4.6 2.5.4.7 2.5.4.8 2.5.4.10
            2.5.4.11 2.5.4.12 2.5.4.16 2.5.4.65 1.2.840.113549.1.9.1 1.2.840.113549.1.9.2
            1.2.840.113556.1.2.141' -- "$current")
          return
          ;;
        # Texts.
        set1 | encode*) return ;;
      esac
      ;;
  esac
  mapfile -t COMPREPLY < <(compgen -f -- "$current")
  compopt -o filenames
}

complete -F _x509name x509name
