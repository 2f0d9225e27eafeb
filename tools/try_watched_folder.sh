#!/usr/bin/env bash
# Boots a Debian 12 of its own and tries the watched folder of docs/examples in it, as an administrator would
# set it up: reports that are whole, that are still being written, that are none, and a run that is killed.
#   tools/try_watched_folder.sh [DIRECTORY]
# Needs root, debootstrap and systemd-container (setup.sh servers) and the packages of ./package.sh. The
# directory keeps the system; without one it stands below /tmp and goes at the end. MIRROR is the archive to
# take; else it is that of this machine.
set -euo pipefail
here=$(cd "$(dirname "$0")/.." && pwd)
mirror=${MIRROR:-$(apt-get indextargets --format '$(REPO_URI)' | grep -m1 '/debian/$')}
packages=${PACKAGES:-$here/out/packages}
if [ $# -gt 0 ]; then
  mkdir -p "$1"
  root=$(cd "$1" && pwd)/debian
else
  place=$(mktemp -d /tmp/qor-folder.XXXXXX)
  trap 'rm -rf --one-file-system "$place"' EXIT
  root=$place/debian
fi
in_root() { systemd-nspawn -q --register=no --keep-unit --console=pipe -D "$root" "$@"; }

[ -e "$root/etc/debian_version" ] ||
  debootstrap --variant=minbase --include=systemd-sysv,dbus,python3 bookworm "$root" "$mirror" >/dev/null
chmod 755 "$root"
cp "$packages"/qorutlview-core_*.deb "$root/opt/core.deb"
in_root --resolv-conf=copy-host sh -c 'apt-get update -qq
  DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends /opt/core.deb' >/dev/null 2>&1
rm -rf "$root/opt/examples" "$root/opt/samples"
cp -r "$here/docs/examples" "$here/samples" "$root/opt"
sed 's#pictures/logo.png#/opt/samples/pictures/logo.png#' "$here/samples/invoice-857.txt" >"$root/opt/far.txt"

cat >"$root/opt/try" <<'END'
#!/bin/bash
set -u
cd /opt/examples
install -m 755 export-log watched-folder/qorexport-folder /usr/local/bin
install -m 644 watched-folder/qorexport-folder@.* /etc/systemd/system
install -D -m 644 watched-folder/qorexport-folder.sysusers /etc/sysusers.d/qorexport-folder.conf
install -D -m 644 watched-folder/qorexport-folder.tmpfiles /etc/tmpfiles.d/qorexport-folder.conf
install -d /etc/qorexport
echo 'OPTIONS=-c 866 --timeout 60 --memory 500M' >/etc/qorexport/accounts.conf
rm -rf /srv/reports
systemd-sysusers
systemd-tmpfiles --create
id suite >/dev/null 2>&1 || useradd -G qorexport suite
systemctl daemon-reload
systemctl start qorexport-folder@accounts.path

failures=0
# expect WHAT COMMAND...: the command succeeds within 15 seconds.
expect() {
  local what=$1 i
  shift
  for ((i = 0; i < 75; ++i)); do
    if "$@" >/dev/null 2>&1; then echo "ok: $what"; return; fi
    sleep 0.2
  done
  echo "FAILED: $what"
  failures=$((failures + 1))
}
cd /srv/reports/accounts
suite() { setpriv --reuid suite --regid suite --init-groups bash -c "umask 027; $1"; }
holds() { test "$(find "$1" -name "$2" | wc -l)" -eq "$3"; }
rests() { test "$(systemctl show -P ActiveState qorexport-folder@accounts.service)" = "${1:-inactive}"; }

suite 'for i in $(seq 20); do cp /opt/samples/ledger-866.txt incoming/.new-$i && mv incoming/.new-$i incoming/ledger-$i.txt; done'
expect "20 reports that were renamed into place are done" holds done 'ledger-*.txt' 20
expect "each has its target" holds out 'ledger-*.txt.pdf' 20
expect "the service rests behind them" rests
suite 'echo half >incoming/.hidden'
sleep 2
expect "hidden files start nothing" rests
rm incoming/.hidden

suite 'for i in $(seq 8); do printf "line %s\r\n\f" $i >>incoming/slow.txt; sleep 1; done'
expect "one that was being written is done" test -e done/slow.txt
expect "with all of its pages" sh -c "journalctl -b -o cat -u qorexport-folder@accounts | grep '\"work/slow.txt\".*\"pages\":8,'"
expect "and was exported once" sh -c "journalctl -b -o cat -u qorexport-folder@accounts | grep -c '\"work/slow.txt\"' | grep -qx 1"

suite 'echo secret >incoming/.secret; chmod 600 incoming/.secret; mv incoming/.secret incoming/secret.txt; mkdir incoming/directory; ln -s /etc/shadow incoming/link.txt
  cp /opt/samples/labels.txt incoming/labels.txt; : >"incoming/two words.txt"; touch "$(printf "incoming/new\nline.txt")"
  touch incoming/-o incoming/{1..3}.txt'
expect "one that can't be read is failed" test -e failed/secret.txt
expect "what is with it is done" test -e done/labels.txt -a -e "done/two words.txt" -a -e done/-o -a -e done/3.txt
expect "a line break in a name is one" test -e "$(printf 'done/new\nline.txt')"
expect "links stay where they are" test -L incoming/link.txt -a ! -e out/link.txt.pdf
expect "and are told once" sh -c "journalctl -b -o cat -u qorexport-folder@accounts | grep -c 'link.txt: not a file' | grep -qx 1"
suite 'cp /opt/samples/labels.txt incoming/behind.txt'
expect "the rest goes on beside them" test -e out/behind.txt.pdf
rm -r incoming/directory incoming/link.txt
expect "it rests again" rests

suite 'for i in $(seq 300); do cp /opt/samples/ledger-866.txt incoming/.n$i && mv incoming/.n$i incoming/many-$i.txt; done'
expect "many are at hand" sh -c 'ls work | grep many-'
systemctl kill -s KILL qorexport-folder@accounts.service
suite 'cp /opt/samples/labels.txt incoming/next.txt'
expect "those of a killed run are done by the next" holds done 'many-*.txt' 300
expect "there is nothing half" holds out '.qor-*' 0
expect "nothing is left to do" holds work '*.txt' 0
expect "a target for each" holds out 'many-*.txt.pdf' 300
# Landlock keeps pictures away only where it is raised.
size() { stat -c %s "out/$1.txt.pdf"; }
suite 'cp /opt/far.txt incoming/near.txt'
expect "a picture is there" test -e out/near.txt.pdf
expect "it rests" rests
echo 'QOR_PICTURE_PATH=/nowhere' >>/etc/qorexport/accounts.conf
suite 'cp /opt/far.txt incoming/far.txt'
expect "a report without it is done" test -e out/far.txt.pdf
expect "the wall keeps it away" eval 'test "$(size far)" -lt "$(($(size near) - 10000))"'
expect "no wall is missing" sh -c '! journalctl -b -o cat -u qorexport-folder@accounts | grep "without its wall"'
journalctl -b -o cat -u qorexport-folder@accounts | grep '^{' | export-log
systemd-analyze security --no-pager qorexport-folder@accounts.service | tail -1
echo "$failures failed"
END
chmod +x "$root/opt/try"
cat >"$root/etc/systemd/system/try.service" <<'END'
[Unit]
SuccessAction=poweroff
FailureAction=poweroff
[Service]
Type=oneshot
ExecStart=/opt/try
StandardOutput=truncate:/opt/result
StandardError=inherit
END
# Of its own it would keep Landlock from all that it holds.
in_root --private-network --system-call-filter="landlock_create_ruleset landlock_add_rule landlock_restrict_self" \
  -b -- systemd.unit=multi-user.target systemd.wants=try.service >"$root/opt/boot" 2>&1 </dev/null || true
cat "$root/opt/result"
grep -qx '0 failed' "$root/opt/result"
