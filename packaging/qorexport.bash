# Completion of qorexport in bash.

_qorexport_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2")
}

_qorexport() {
  local options="-t --to -o --output -c --codepage -s --settings -p --pages -f --from-file -j --jobs
    --if-newer -k --keep-going --fail-fast --timeout --memory --progress --json -h --help --version"
  local formats="txt html pdf drawn png jpeg gif bmp ico rtf doc xls xlsx csv"
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  # bash takes the sign for a word of its own.
  if [ "$word" = "=" ]; then word=; elif [ "$before" = "=" ]; then before=${COMP_WORDS[COMP_CWORD - 2]}; fi
  case $before in
    -t | --to) _qorexport_words "$formats" "$word" ;;
    -c | --codepage) _qorexport_words "866 857 1251 1254 437 850 1252 28591 28605" "$word" ;;
    -j | --jobs | -p | --pages | --timeout | --memory) ;;
    *)
      if [[ $word == -* ]]; then
        _qorexport_words "$options" "$word"
      else
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -- "$word")
      fi
      ;;
  esac
}

complete -F _qorexport qorexport
