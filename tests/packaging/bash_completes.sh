#!/usr/bin/env bash
# The completion as bash loads it, asked for words in a directory with a few files and queues.
set -euo pipefail
completion=$(cd "$(dirname "$0")/../.." && pwd)/packaging/qorutlview.bash
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cd "$place"
mkdir -p "set dir" bin
touch "two words.txt" ledger.txt office.vset
printf '#!/bin/sh\nprintf "accounts\\nback office\\n"\n' >bin/lpstat
chmod +x bin/lpstat

shown=
ask() {
  local got
  got=$(PATH=$place/bin:$PATH bash --norc -c '
    compopt() { :; }
    . "$1"; shift
    [ "$(complete -p qorutlview)" = "complete -F _qorutlview qorutlview" ] || exit 1
    COMP_WORDS=(qorutlview "$@") COMP_CWORD=$#
    _qorutlview qorutlview "${@: -1}"
    printf "%s|" "${COMPREPLY[@]}"' - "$completion" "${@:2}")
  [ "$got" = "$1" ] || { echo "${*:2}: $got instead of $1"; shown=wrong; }
}
ask "-drawn|-dd|-dynamic|" -d
ask "set dir|bin|two words.txt|ledger.txt|office.vset|" -f ""
ask "two words.txt|" -f tw
ask "two words.txt|" --open tw
ask "set dir|bin|office.vset|" -f ledger.txt -i ""
ask "accounts|" -p acc
ask "Microsoft Print to PDF|" -P Micro
ask 'back office|' -p '"b'
ask "ledger.pdf|ledger.png|" -f ledger.txt -export ledger.p
ask "sums.xls|sums.xlsx|" -export sums.xl
ask "set dir|bin|sums.$(echo txt html rtf doc pdf xls xlsx csv bmp jpeg gif ico png | sed 's/ /|sums./g')|" \
  -f far/sums.txt -export ""
ask "two words.html|" -f '"two words.txt"' -export '"two words.h'
ask "two words.gif|" -f ledger.txt -export 'two\ words.g'
ask "1251|1254|1252|" -codepage 12
ask "|" -caption -
[ -z "$shown" ]
