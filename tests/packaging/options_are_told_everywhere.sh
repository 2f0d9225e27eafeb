#!/usr/bin/env bash
# The options that the program searches for are those of the README, of the manual page that is made
# of it, and of the completion; so are the formats of exports.
#   options_are_told_everywhere.sh MANUAL MANUAL_OF_QOREXPORT
set -euo pipefail
cd "$(dirname "$0")/../.."
words() { tr ' ' '\n' | sed '/^$/d' | sort -u; }
same() { diff <(words <<<"$2") <(words <<<"$3") || { echo "$1 tells others" >&2; exit 1; }; }

# Options have a second spelling in capitals, which is told nowhere.
searched=$(grep -ohE '"[ /-][ a-z?-]*"' src/app/command_line.cpp src/app/win_main.cpp src/app/main.cpp | tr -d '" ' |
  grep -E '^(--?[a-z]+|/\?)$' | sort -u)
[ "$(wc -l <<<"$searched")" -gt 12 ]
formats=$(sed -n '/^constexpr ExportExtension/,/;$/p' src/export/export_formats.cpp | grep -oE '"\.[a-z]+"' | tr -d '"')

rows=$(sed -n '/^| Option | Value/,/^$/p' README.md | tail -n +3)
same README "$searched" "$(cut -d'|' -f2 <<<"$rows" | grep -oE '`[^`]+`' | tr -d '`')"
same "README's -export" "$formats" "$(grep '^| `-export`' <<<"$rows" | grep -oE '`\.[a-z]+`' | tr -d '`')"
page=$(sed -n '/^\.SH OPTIONS/,/^\.SH EXIT/p' "$1" | sed 's/\\-/-/g; s/\\f[A-Z]//g')
same "the manual page" "$searched" "$(grep -A1 '^\.TP' <<<"$page" | grep -oE '(^|[ ,])(--?[a-z]+|/\?)' | tr -d ' ,')"
same "the manual page's -export" "$formats" "$(grep -oE '(^| )\.[a-z]+' <<<"$page" | tr -d ' ')"
same "the completion" "$(grep -v '/' <<<"$searched")" \
  "$(sed -n '/local options=/,/"$/p' packaging/qorutlview.bash | grep -oE '(^|[" ])--?[a-z]+' | tr -d '" ')"
same "the completion's -export" "$formats" "$(grep -m1 -o 'extensions=".*"' packaging/qorutlview.bash | grep -oE '\.[a-z]+')"

# Those of qorexport stand in a table of its own.
known=$(sed -n '/^constexpr OptionRow/,/^};/p' src/bulk/bulk_options.cpp |
  sed -nE "s/^ *\{\{\"([a-z-]+)\"(, '([a-z])'|, 0)?.*/--\1 -\3/p" | tr ' ' '\n' | grep -E '^--?[a-z]' | sort -u)
[ "$(wc -l <<<"$known")" -gt 20 ]
same docs/servers.md "$known" "$(grep -E '^\| `-' docs/servers.md | cut -d'|' -f2 | grep -oE '`[^`]+`' | tr -d '`')"
page=$(sed -n '/^\.SH OPTIONS/,/^\.SH EXIT/p' "$2" | sed 's/\\-/-/g; s/\\f[A-Z]//g')
same "the manual page of qorexport" "$known" "$(grep -A1 '^\.TP' <<<"$page" | grep -oE '(^|[ ,])--?[a-z][a-z-]*' | tr -d ' ,')"
same "the completion of qorexport" "$known" \
  "$(sed -n '/local options=/,/"$/p' packaging/qorexport.bash | grep -oE '(^|[" ])--?[a-z][a-z-]*' | tr -d '" ')"
written=$(sed -n '/^constexpr BulkFormat/,/^};/p' src/bulk/bulk_options.cpp | grep -oE '\{"[a-z]+"' | tr -d '{"')
same "docs/servers.md's --to" "$written" "$(grep -E '^\| `-t`' docs/servers.md | cut -d'|' -f4 | sed 's/Without.*//' | grep -oE '`[a-z]+`' | tr -d '`')"
same "the completion's --to" "$written" "$(grep -m1 -o 'formats=".*"' packaging/qorexport.bash | cut -d'"' -f2)"

# Those of a print job.
known=$(grep -ohE '"qor-[a-z]+"' src/filter/filter_job.h | tr -d '"')
[ "$(wc -l <<<"$known")" -gt 1 ]
same "docs/servers.md on jobs" "$known" "$(grep -oE '^\| `qor-[a-z]+`' docs/servers.md | tr -d '|` ')"
