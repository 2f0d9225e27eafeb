#!/usr/bin/env bash
# Installs a build into a directory and looks at all that came there: the files are those of the list and
# the documents, the program runs by its link, and the desktop's own checkers find nothing.
#   program_installs.sh BUILD windows|core
set -euo pipefail
source=$(cd "$(dirname "$0")/../.." && pwd)
build=$1
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
wrong() { echo "$1" >&2; exit 1; }

# As a system has it, whatever the build is for.
DESTDIR=$place/all cmake --install "$build" --prefix /usr >/dev/null
root=$place/all/usr
lib=$(cd "$root" && find lib* -type d -name qorutlview -printf '%h\n')
[ -x "$root/$lib/qorutlview/qorutlview" ] || wrong "no program below $lib"

# The list without some components, with the documents as they stand in the tree.
told() {
  grep -vE " ($2)$" "$1/tests/packaging/installed_files.txt" |
    sed -E "s/ (window|cups)$//; s#^lib/qorutlview#$lib/qorutlview#"
  (cd "$1" && find README.md CHANGELOG.md docs -type f ! -name '*.sh' ! -path 'docs/images/*' |
    if [[ $2 == *window* ]]; then grep -v '^docs/guide/'; else cat; fi | sed 's#^docs/guide/#guide/#; s#^#share/doc/qorutlview/#')
}
holds() {
  diff <(told "$source" "$2" | sort) <(cd "$1/usr" && find . ! -type d | sed 's#^\./##' | sort) ||
    wrong "what is installed without $2 isn't what is told"
}
holds "$place/all" "$([ "$2" = windows ] && echo nothing || echo window)"
DESTDIR=$place/core cmake --install "$build" --prefix /usr --component core >/dev/null
holds "$place/core" "window|cups"

# What is told in a document or the guide to be somewhere is there, also where the core is alone.
links() {
  grep -oE '\]\([^):#]+' -- "$1" | cut -c3-
  grep -oE '(src|href)="[^":#]+' -- "$1" | cut -d'"' -f2
}
for doc in "$root/share/doc/qorutlview" "$place/core/usr/share/doc/qorutlview"; do
  while read -r file; do
    (links "$file" || true) | while read -r link; do
      [ -e "$(dirname "$file")/$link" ] || { echo "$file leads to $link"; exit 1; }
    done || wrong "a document leads to what isn't installed"
  done < <(find "$doc" -name '*.md' -o -name '*.html')
  grep -q '(docs/report-format.md)' "$doc/README.md" || wrong "the README leads nowhere"
  ! grep -lE '^#+ (Map|Build and test)|package\.sh' "$doc/README.md" || wrong "the README is about the tree"
done

# A link that leads anywhere else by a whole path would lead out of the directory.
[[ $(readlink "$root/bin/qorutlview") != /* ]] || wrong "the link is not relative"
(cd "$source/samples" && "$root/bin/qorutlview" -f labels.txt -export "$place/labels.pdf" 2>/dev/null)
pdffonts "$place/labels.pdf" | grep -q ' yes yes yes ' || wrong "the export doesn't embed and cut fonts"
(cd "$source/samples" && "$root/bin/qorexport" -o "$place/again.pdf" labels.txt 2>/dev/null)
cmp <(pdftotext "$place/labels.pdf" -) <(pdftotext "$place/again.pdf" -) || wrong "qorexport writes another document"
"$root/lib/cups/filter/qorreporttopdf" 1 me labels 1 "" "$source/samples/labels.txt" >"$place/again.pdf"
pdffonts "$place/again.pdf" | grep -q ' yes yes yes ' || wrong "the filter doesn't find its module"
version=$("$root/bin/qorutlview" --version | sed 's/^QorUtlView //')
[ "## $version" = "$(grep -m1 '^## ' "$source/CHANGELOG.md" | cut -d' ' -f1,2)" ] ||
  wrong "the change log doesn't begin with $version"

for manual in "$root"/share/man/man1/{qorutlview,qorexport}.1; do
  [ -z "$(groff -ww -man -Tutf8 -z "$manual" 2>&1; man --warnings -E UTF-8 -l -Tutf8 -Z "$manual" 2>&1 >/dev/null)" ] ||
    wrong "$manual has warnings"
  grep -q "QorUtlView $version\"" "$manual" || wrong "$manual is of another version"
done

[ "$2" = core ] && exit 0
desktop-file-validate "$root"/share/applications/*.desktop
for entry in qorutlview qorutlview-report; do
  grep -qx 'Icon=qorutlview' "$root/share/applications/$entry.desktop" || wrong "$entry.desktop has another icon"
done
appstreamcli validate --no-net "$root/share/metainfo/qorutlview.metainfo.xml" >"$place/log" || wrong "$(cat "$place/log")"
[ "$(xmllint --xpath 'string(//release[1]/@version)' "$root/share/metainfo/qorutlview.metainfo.xml")" = "$version" ] ||
  wrong "the metainfo is of another version"
XDG_DATA_DIRS=$root/share update-mime-database "$root/share/mime" >"$place/log" 2>&1 && [ ! -s "$place/log" ] ||
  wrong "$(cat "$place/log")"
grep -qx 'text/x-qor-report text/plain' "$root/share/mime/subclasses" || wrong "reports are no texts any more"
for side in 16 32 48 128 256; do
  [ "$(identify -format '%wx%h' "$root/share/icons/hicolor/${side}x$side/apps/qorutlview.png")" = "${side}x$side" ] ||
    wrong "the icon of $side pixels has another size"
done
