# bash completion for jeer: its commands, their options, the program's
# text keys, and directories where a directory is wanted.
_jeer() {
  local cur prev words cword
  _init_completion || return
  local commands="say pick lines pack unpack check"
  local keys="Misc-Jeerbox-WhoSays Misc-Jeerbox-Person Misc-Jeerbox-HowBig Misc-Jeerbox-Adjective
    Misc-Jeerbox-Noun Misc-Jeerbox-AndMore Misc-Jeerbox-Someone General-Insult General-Curse
    General-AutoDealer General-Exclaim General-Character"
  local command="" i
  for ((i = 1; i < cword; i++)); do
    case ${words[i]} in
      say | pick | lines | pack | unpack | check) command=${words[i]}; break ;;
    esac
  done

  case $prev in
    --root) _filedir -d; return ;;
    -n | --count | --seed) return ;;
  esac

  local options=""
  case $command in
    "") options="--help --version"; COMPREPLY=($(compgen -W "$commands $options" -- "$cur")); return ;;
    say) options="--root -n --count --seed --escape --help" ;;
    pick) options="--root -n --count --seed --escape --help" ;;
    lines) options="--root --help" ;;
    check) options="--root --help" ;;
    pack | unpack) options="--help" ;;
  esac
  if [[ $cur == -* ]]; then
    COMPREPLY=($(compgen -W "$options" -- "$cur"))
  elif [[ $command == pick || $command == lines ]]; then
    COMPREPLY=($(compgen -W "$keys" -- "$cur"))
  elif [[ $command == pack || $command == unpack ]]; then
    _filedir -d
  fi
}
complete -F _jeer jeer
