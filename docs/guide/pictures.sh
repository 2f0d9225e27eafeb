#!/usr/bin/env bash
# Makes the pictures of the guide anew, on an X server of its own and with empty settings:
#   docs/guide/pictures.sh            after ./run.sh or ./test.sh
# Needs the packages xvfb, xdotool and imagemagick.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$here/../../build/qorutlview
place=/tmp/reports  # it is seen in the pictures
mkdir "$place"
trap 'kill $(jobs -p) 2>/dev/null || true; rm -rf "$place"' EXIT

mkdir -p "$here/images" "$place/config/QOR"
cp -r "$here/../../samples/." "$place"
rm -f "$place"/*_barcode_* "$place/QorUtlView.vset"

export XDG_CONFIG_HOME=$place/config LC_ALL=C.UTF-8 CUPS_SERVER=/nowhere QT_QPA_PLATFORM=xcb
mkfifo "$place/number"
Xvfb -displayfd 3 -screen 0 1000x740x24 -nolisten tcp 3>"$place/number" 2>/dev/null &
read -r number <"$place/number"
export DISPLAY=:$number

settings() { printf '[General]\n%s\n' "$@" >"$place/config/QOR/QorUtlView.ini"; }

# drag FROM TO: with Ctrl held down.
drag() {
  xdotool keydown ctrl mousemove "${1%,*}" "${1#*,}" mousedown 1
  xdotool mousemove "${2%,*}" "${2#*,}" mousemove "${2%,*}" "${2#*,}" mouseup 1 keyup ctrl
}

# show PICTURE KEYS... -- ARGUMENTS...: starts the program, presses the keys ("X,Y" is a click,
# "X,Y-X,Y" a drag, "=TEXT" is typed), and takes what stands on the screen.
show() {
  local picture=$1 keys=()
  shift
  while [ "$1" != -- ]; do keys+=("$1"); shift; done
  shift
  (cd "$place" && exec "$program" "$@") &
  local run=$!
  xdotool search --sync --onlyvisible --name . >/dev/null
  sleep 1
  xdotool mousemove 500 400
  for key in "${keys[@]}"; do
    case $key in
      =*) xdotool type "${key#=}" ;;
      *,*-*,*) drag "${key%-*}" "${key#*-}" ;;
      *,*) xdotool mousemove "${key%,*}" "${key#*,}" click 1 ;;
      *) xdotool key "$key" ;;
    esac
    sleep 0.7
  done
  import-im6.q16 -silent -window root "$place/shot.png"
  convert-im6.q16 "$place/shot.png" -bordercolor black -border 1 -trim +repage -strip +dither -colors 128 \
    -define png:exclude-chunks=date,time "$here/images/$picture.png"
  kill "$run"
  wait "$run" 2>/dev/null || true
}

settings
show window -- -f price-list-1251.txt -codepage 1251 -caption "Price list"
settings MultipageView=true ListView=true ZoomID=9
show several -- -f ledger-866.txt -codepage 866 -caption "Ledger"
settings
settings
show find ctrl+f =62.0 F3 F3 Tab Tab Tab Tab Tab Tab space -- -f ledger-866.txt -codepage 866 -caption "Ledger"
show select ctrl+t 556,265-806,560 -- -f ledger-866.txt -codepage 866 -caption "Ledger"
show print F4 alt+i -- -f invoice-857.txt -codepage 857 -caption "Invoice"
show page F4 alt+g -- -f invoice-857.txt -codepage 857 -caption "Invoice"
show export F6 alt+p -- -f invoice-857.txt -codepage 857 -caption "Invoice"
settings "RecentReports=/home/ann/reports/ledger.txt, /home/ann/reports/invoice.txt"
show start --
