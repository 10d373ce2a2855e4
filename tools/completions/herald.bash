# Completion of herald's subcommands and options for bash.

_herald() {
  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} subcommand=${COMP_WORDS[1]}
  local filters="--class --id --direction --packets --where" appearance="--secrets --color"
  COMPREPLY=()

  if [ "$COMP_CWORD" = 1 ]; then
    mapfile -t COMPREPLY < <(compgen -W "decode encode stats diff report ids catalogue schema export -h --help --version" -- "$current")
    return
  fi
  case $previous in
    --direction) mapfile -t COMPREPLY < <(compgen -W "fromServer toServer" -- "$current") && return ;;
    --color) mapfile -t COMPREPLY < <(compgen -W "auto always never" -- "$current") && return ;;
    --class)
      mapfile -t COMPREPLY < <(compgen -W "$(herald ids 2>/dev/null | cut -f 3 | grep -v '^-')" -- "$current")
      return
      ;;
    --id | --packets | --where | --columns) return ;;
    --hex) [ "$subcommand" = encode ] || return ;;
  esac

  if [ "$subcommand" = schema ] && [ "$COMP_CWORD" = 2 ]; then
    mapfile -t COMPREPLY < <(compgen -W "wireshark kaitai json page" -- "$current")
    return
  fi
  local options="-h --help"
  case $subcommand in
    decode) options+=" $filters $appearance --json --pretty --fields --columns --follow --hex" ;;
    encode) options+=" -o --output --hex" ;;
    stats) options+=" $filters" ;;
    diff) options+=" $filters $appearance" ;;
    export) options+=" $filters --secrets --force" ;;
    report) options+=" $filters --secrets -o --output" ;;
  esac
  if [[ $current == -* ]]; then
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$current")
  else
    mapfile -t COMPREPLY < <(compgen -f -- "$current")
  fi
}

complete -o filenames -F _herald herald
