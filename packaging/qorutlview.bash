# Completion of qorutlview in bash.

# Names of files and directories, of files only those that the pattern ends.
_qorutlview_files() {
  mapfile -t COMPREPLY < <(compgen -d -- "$1"; compgen -f -X "!*$2" -- "$1" |
    while IFS= read -r name; do [ -d "$name" ] || printf '%s\n' "$name"; done)
}

# The names of queues, and the printer that makes files.
_qorutlview_printers() {
  local name
  while IFS= read -r name; do
    [[ $name == "$1"* ]] && COMPREPLY+=("$name")
  done < <(! type -P lpstat >/dev/null || lpstat -e 2>/dev/null; echo "Microsoft Print to PDF")
}

# The target: a name with each of the extensions; without one yet, that of the report.
_qorutlview_targets() {
  local extensions=".txt .html .rtf .doc .pdf .xls .xlsx .csv .bmp .jpeg .gif .ico .png"
  local stem=$1 report='' extension i
  for ((i = 1; i < ${#COMP_WORDS[@]} - 1; ++i)); do
    case ${COMP_WORDS[i]} in
      -f | -F) report=${COMP_WORDS[i + 1]##*/} ;;
    esac
  done
  _qorutlview_files "$1" /
  case ${1##*/} in
    "")
      report=${report//[\\\"\']/}
      stem=$1${report%.*}
      ;;
    *.*) stem=${1%.*} ;;
  esac
  [ -n "${stem##*/}" ] || return
  for extension in $extensions; do
    [[ $stem$extension == "$1"* ]] && COMPREPLY+=("$stem$extension")
  done
  return 0
}

_qorutlview_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$2")
}

_qorutlview() {
  local options="-f -g -p -export -drawn -codepage -i -caption -dd -dynamic -handle -mail -test
    -h --help --version --open"
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
  COMPREPLY=()
  # Names are looked for as they are; bash puts the quotes back that they need.
  case $before in
    -f | -F | --open | -i | -I | -p | -P | -export)
      compopt -o filenames
      word=${word#[\"\']}
      word=${word//\\/}
      ;;
  esac
  case $before in
    -f | -F | --open) _qorutlview_files "$word" "" ;;
    -i | -I) _qorutlview_files "$word" .vset ;;
    -p | -P) _qorutlview_printers "$word" ;;
    -export) _qorutlview_targets "$word" ;;
    -codepage) _qorutlview_words "866 857 1251 1254 437 850 1252 28591 28605" "$word" ;;
    -mail) _qorutlview_words "1 2" "$word" ;;
    -caption | -handle) ;;
    *) _qorutlview_words "$options" "$word" ;;
  esac
}

complete -F _qorutlview qorutlview
