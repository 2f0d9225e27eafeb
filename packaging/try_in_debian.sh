#!/usr/bin/env bash
# Installs the packages of out/packages on a Debian 12 of their own, as an administrator would: with apt, from
# a local directory. Runs what they promise there, upgrades them, and looks what a removal leaves.
#   packaging/try_in_debian.sh [DIRECTORY]
# Needs root and debootstrap. The directory keeps the system and the packages that were fetched for it;
# without one it stands below /tmp and goes at the end. MIRROR is the archive to take; else it is
# that of this machine.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
# Mounts and processes are of this script alone, and go with it.
[ -n "${QOR_OF_ITS_OWN:-}" ] ||
  QOR_OF_ITS_OWN=yes exec unshare --mount --pid --fork --kill-child -- "$0" "$@"

mirror=${MIRROR:-$(apt-get indextargets --format '$(REPO_URI)' | grep -m1 '/debian/$')}
if [ $# -gt 0 ]; then
  mkdir -p "$1"
  root=$(cd "$1" && pwd)/debian
else
  place=$(mktemp -d /tmp/qor-debian.XXXXXX)
  trap 'umount -l "$root/proc" "$root/dev" || true; rm -rf --one-file-system "$place"' EXIT
  root=$place/debian
fi
ls "$here"/out/packages/qorutlview*_*.deb >/dev/null 2>&1 || "$here/package.sh"

failures=0
say() { printf '\n== %s\n' "$1"; }
# expect WHAT COMMAND...: the command succeeds.
expect() {
  local what=$1
  shift
  if "$@"; then echo "ok: $what"; else echo "FAILED: $what"; failures=$((failures + 1)); fi
}
inside() { chroot "$root" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 \
  DEBIAN_FRONTEND=noninteractive "$@"; }
shell() { inside sh -c "$1"; }
apt() { inside apt-get -y -qq "$@" >"$root.log" 2>&1 || { tail "$root.log"; exit 1; }; }
# offer DIRECTORY: the packages in it become an archive of the system's own.
offer() {
  rm -rf "$root/srv/packages"
  mkdir -p "$root/srv/packages"
  cp "$1"/*.deb "$root/srv/packages"
  (cd "$root/srv/packages" && dpkg-scanpackages . 2>/dev/null >Packages)
  apt update
}

# The packages once more, under a version behind theirs.
raised() {
  local made=$1 package
  mkdir -p "$made"
  for package in "$here"/out/packages/*.deb; do
    dpkg-deb -R "$package" "$made/tree"
    sed -Ei 's/^(Version: .*|.*qorutlview-core \(= [^)]*)(\)|$)/\1+next\2/' "$made/tree/DEBIAN/control"
    dpkg-deb --root-owner-group -b "$made/tree" "$made/$(basename "$package")" >/dev/null
    rm -r "$made/tree"
  done
}

say "A Debian 12 without compiler, Qt and X"
[ -e "$root/etc/debian_version" ] || debootstrap --variant=minbase bookworm "$root" "$mirror" >"$root.log" ||
  { tail "$root.log"; exit 1; }
mount -t proc proc "$root/proc"
mount --rbind /dev "$root/dev"
cp /etc/resolv.conf "$root/etc/resolv.conf"
printf '#!/bin/sh\nexit 101\n' >"$root/usr/sbin/policy-rc.d"
chmod +x "$root/usr/sbin/policy-rc.d"
echo "deb [trusted=yes] file:/srv/packages ./" >"$root/etc/apt/sources.list.d/qorutlview.list"
echo 'APT::Sandbox::User "root";' >"$root/etc/apt/apt.conf.d/qorutlview"
offer "$here/out/packages"
listed() { inside dpkg-query -W -f '${Package} ${Installed-Size}\n' | sort; }
listed >"$root/srv/before"

say "The core"
apt install qorutlview-core
listed >"$root/srv/with-core"
expect "brings neither Qt nor an X server" sh -c "! grep -E '^(libqt|qt6|xserver|xvfb|g\+\+|gcc-[0-9]+ )' '$root/srv/with-core'"
expect "has all libraries of its modules" shell '! ldd $(dpkg -L qorutlview-core | grep "\.so$") | grep "not found"'
rm -rf "$root/root/reports"
mkdir -p "$root/root/reports/pictures"
cp "$here"/samples/*.txt "$root/root/reports"
cp "$here"/samples/pictures/* "$root/root/reports/pictures"
comm -13 "$root/srv/before" "$root/srv/with-core" | awk '
  $1 == "qorutlview-core" { print "its own size: " $2 " KB"; next }
  { all += $2; names = names " " $1; ++count }
  END { print "it came with " count " packages of " all " KB:" names }'
shell 'cd /root/reports && qorutlview --version'
for target in a.pdf a.png a.xlsx a.xls a.rtf a.html a.csv; do
  shell "cd /root/reports && qorutlview -f barcodes.txt -export $target 2>/dev/null"
  expect "exports $target" shell "test -s /root/reports/$target || test -s '/root/reports/${target%.*}(1).${target#*.}'"
done
expect "has the fonts of reports" shell 'fc-match "Courier New" | grep -q Liberation'
shell 'cd /root/reports && qorutlview -g -f labels.txt -p "Microsoft Print to PDF"'
expect "prints to a file" shell 'head -c 5 "/root/reports/labels(print).pdf" | grep -q %PDF-'

say "A queue"
apt install --no-install-recommends qorutlview-cups cups-daemon cups-filters cups-client
shell 'mkdir -p /run/cups && rm -f /var/spool/cups/d* &&
  printf "Listen /run/cups/own.sock\nBrowsing Off\nDefaultAuthType None\n<Location />\nAllow all\n</Location>
<Policy default>\n<Limit All>\nAllow all\n</Limit>\n</Policy>\n" >/root/cupsd.conf &&
  cp /etc/cups/cups-files.conf /root/cups-files.conf &&
  printf "FileDevice Yes\nSandboxing relaxed\n" >>/root/cups-files.conf'
inside cupsd -f -c /root/cupsd.conf -s /root/cups-files.conf &
shell "export CUPS_SERVER=/run/cups/own.sock
  for i in \$(seq 100); do lpstat -r >/dev/null 2>&1 && break; sleep 0.1; done
  lpadmin -p accounts -E -v file:/dev/null 2>/dev/null
  cd /root/reports && qorutlview -g -f labels.txt -p accounts
  for i in \$(seq 100); do lpstat -W completed -o | grep -q . && break; sleep 0.1; done"
# The scheduler keeps what it was sent.
expect "takes a job" shell 'head -c 5 /var/spool/cups/d*-001 | grep -q %PDF-'
shell "export CUPS_SERVER=/run/cups/own.sock
  lpadmin -p drawn -E -v file:/root/drawn.pdf -P /usr/share/ppd/cupsfilters/Generic-PDF_Printer-PDF.ppd \
    -o qor-codepage-default=866 2>/dev/null
  lp -d drawn -o document-format=text/x-qor-report /root/reports/ledger-866.txt >/dev/null
  for i in \$(seq 100); do lpstat -W not-completed -o | grep -q . || break; sleep 0.1; done"
expect "draws a report for a queue" test "$(inside pdfinfo /root/drawn.pdf | awk '/^Pages/ { print $2 }')" = 13
kill %1

say "The window"
apt install qorutlview
apt install --no-install-recommends xdg-utils xvfb x11-utils libglib2.0-bin file
expect "is what reports are opened with" \
  test "$(inside xdg-mime query default text/x-qor-report)" = qorutlview-report.desktop
shell 'cd /root/reports && cp labels.txt labels.qor && cp labels.txt "weekly -g -export x.qor" && cp labels.txt labels'
expect "knows reports by their extension" shell 'gio info -a standard::content-type /root/reports/labels.qor | grep -q text/x-qor-report'
expect "knows reports by their start" shell 'gio info -a standard::content-type /root/reports/labels | grep -q text/x-qor-report'
expect "is offered for texts" shell 'gio mime text/plain | grep -q qorutlview-report.desktop'
expect "is opened by xdg-open" shell '
  Xvfb :77 -screen 0 1280x1024x24 -nolisten tcp >/dev/null 2>&1 & server=$!
  export DISPLAY=:77
  cd /root
  for i in $(seq 100); do xdpyinfo >/dev/null 2>&1 && break; sleep 0.1; done
  xdg-open "/root/reports/weekly -g -export x.qor" >/dev/null 2>&1 & opener=$!
  seen=1
  for i in $(seq 200); do xwininfo -root -tree 2>/dev/null | grep -q "\"qorutlview\" \"QorUtlView\"" && seen=0 && break; sleep 0.1; done
  sleep 1
  pid=$(ls -l /proc/*/exe 2>/dev/null | sed -n "s#.*/proc/\([0-9]*\)/exe.*qorutlview/qorutlview\$#\1#p")
  test -z "$pid" || kill $pid
  wait $opener || true
  kill $server
  exit $seen'

say "An upgrade"
shell 'mkdir -p /root/.config/QOR && echo "[Mine]" >>/root/.config/QOR/QorUtlView.ini'
kept=$(shell 'cd /root/.config && find . -type f -exec sha256sum {} + | sort')
raised "$root/srv/raised"
offer "$root/srv/raised"
apt upgrade
expect "takes all packages along" test "$(inside dpkg-query -W -f '${Version}\n' 'qorutlview*' | grep -c '+next$')" = 3
expect "keeps the user's settings" test "$(shell 'cd /root/.config && find . -type f -exec sha256sum {} + | sort')" = "$kept"
shell 'cd /root/reports && rm -f a.pdf && qorutlview -f barcodes.txt -export a.pdf 2>/dev/null'
expect "still exports" test -s "$root/root/reports/a.pdf"

say "The removal"
apt purge qorutlview qorutlview-core qorutlview-cups
left=$(shell "find / -xdev \( -path /proc -o -path /dev -o -path /srv -o -path /var/lib/apt -o -path /var/cache/apt \
  -o -path /root/reports -o -path /etc/apt \) -prune -o -iname '*qor*' -print
  grep -ls qor /usr/share/applications/mimeinfo.cache /usr/share/mime/globs2 /var/lib/dpkg/status" || true)
echo "${left:-nothing}" | sed 's/^/left: /'
expect "leaves the user's settings and nothing else" test -z "$(grep -v '^/root/' <<<"$left")"
expect "leaves those" test -s "$root/root/.config/QOR/QorUtlView.ini"

echo
[ "$failures" -eq 0 ] && echo "All of it holds." || { echo "$failures FAILED"; exit 1; }
