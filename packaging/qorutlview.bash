# Completion of qorutlview in bash.

# Names of files and directories, of files only those that the pattern ends.
_qorutlview_files() {
  compopt -o filenames
  mapfile -t COMPREPLY < <(compgen -d -- "$1"; compgen -f -X "!*$2" -- "$1" |
    while IFS= read -r name; do [ -d "$name" ] || printf '%s\n' "$name"; done)
}

# The names of queues, and the printer that makes files.
_qorutlview_printers() {
  local name start=${1//\\/}
  start=${start#[\"\']}
  while IFS= read -r name; do
    [[ $name == "$start"* ]] || continue
    case $1 in
      [\"\']*) COMPREPLY+=("$name") ;;
      *) COMPREPLY+=("$(printf '%q' "$name")") ;;
    esac
  done < <(! type -P lpstat >/dev/null || lpstat -e 2>/dev/null; echo "Microsoft Print to PDF")
}

# The target: a name with each of the extensions; without one yet, that of the report.
_qorutlview_targets() {
  local extensions=".txt .html .rtf .doc .pdf .xls .xlsx .csv .bmp .jpeg .gif .ico .png"
  local stem=$1 report=
  for ((i = 1; i < ${#COMP_WORDS[@]} - 1; ++i)); do
    case ${COMP_WORDS[i]} in -f | -F) report=${COMP_WORDS[i + 1]##*/} ;; esac
  done
  _qorutlview_files "$1" /
  case ${1##*/} in
    "") [ -z "$report" ] || stem=$1${report%.*} ;;
    *.*) stem=${1%.*} ;;
  esac
  case ${stem##*/} in "") return ;; esac
  local extension
  for extension in $extensions; do
    [[ $stem$extension == "$1"* ]] && COMPREPLY+=("$stem$extension")
  done
}

_qorutlview() {
  local options="-f -g -p -export -drawn -codepage -i -caption -dd -dynamic -handle -mail -test
    -h --help --version"
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  case $before in
    -f | -F) _qorutlview_files "$word" "" ;;
    -i | -I) _qorutlview_files "$word" .vset ;;
    -p | -P) _qorutlview_printers "$word" ;;
    -export) _qorutlview_targets "$word" ;;
    -codepage) mapfile -t COMPREPLY < <(compgen -W "866 857 1251 1254 437 850 1252 28591 28605" -- "$word") ;;
    -mail) mapfile -t COMPREPLY < <(compgen -W "1 2" -- "$word") ;;
    -caption | -handle) ;;
    *) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word") ;;
  esac
}

complete -F _qorutlview qorutlview
