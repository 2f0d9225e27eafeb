#!/usr/bin/env bash
# Tries qorexport-hosts of docs/examples over two logins of this machine, each with an SSH server of its own on
# a high port: 500 reports and 10 bad names, a run that is interrupted, one that goes on, one behind mended names.
#   tools/try_parallel.sh QOREXPORT
# Needs parallel and openssh-server (setup.sh servers). What it makes and starts goes with it.
set -euo pipefail
program=$(realpath "$1")
here=$(cd "$(dirname "$0")/.." && pwd)
place=$(mktemp -d "${TMPDIR:-/tmp}/qor-parallel.XXXXXX")
chmod 755 "$place"
servers=()
trap 'kill "${servers[@]}" 2>/dev/null || true; rm -rf "$place"' EXIT
export PARALLEL_SSH="ssh -F $place/ssh_config" PARALLEL_HOME=$place/parallel PATH=$here/docs/examples:$here/docs/examples/several-hosts:$PATH
cd "$place"
mkdir parallel
fail() { echo "FAILED: $1" >&2; exit 1; }

ssh-keygen -q -t ed25519 -N '' -f key
cp key.pub authorized
[ "$(id -u)" -ne 0 ] || mkdir -p /run/sshd
for host in one two; do
  ssh-keygen -q -t ed25519 -N '' -f "host-$host"
  port=$((20000 + RANDOM % 20000))
  cat >"sshd-$host" <<END
ListenAddress 127.0.0.1
Port $port
HostKey $place/host-$host
AuthorizedKeysFile $place/authorized
PidFile none
PasswordAuthentication no
StrictModes no
MaxStartups 100
END
  cat >>ssh_config <<END
Host $host
  HostName 127.0.0.1
  Port $port
  User $(id -un)
  IdentityFile $place/key
  UserKnownHostsFile $place/known
  StrictHostKeyChecking accept-new
END
  /usr/sbin/sshd -D -f "sshd-$host" -E "sshd-$host.log" &
  servers+=($!)
  echo "1/$host" >>hosts
  for _ in $(seq 100); do ssh -F ssh_config "$host" true 2>/dev/null && break; sleep 0.1; done
  ssh -F ssh_config "$host" true || fail "no login"
done

"$here/tools/make_reports.py" 500 in
printf '%s\n' in/report-*.txt bad/{1..10}.txt | shuf --random-source="$here/samples/ledger-866.txt" >list
export QOREXPORT=$program BATCH=25
run() { "$@" qorexport-hosts state hosts list -j 1 -c 1251 -o 'out/{stem}.pdf' 2>>told; }

# A process group of its own, which Ctrl+C would reach as it does on a terminal.
run exec env --default-signal=INT setsid &
running=$!
until [ -e state/jobs ] && [ "$(wc -l <state/jobs)" -ge 5 ]; do sleep 0.1; done
kill -INT -- -"$running"
wait "$running" && fail "it wasn't interrupted"
done_first=$(find out -name '*.pdf' | wc -l)
[ "$done_first" -lt 500 ] || fail "it came too late"
echo "$done_first targets when it was interrupted"

run && fail "bad names are not told"
{ export-log state/log.jsonl || true; } | sed -n 1p
[ "$(find out -name '*.pdf' | wc -l)" -eq 500 ] || fail "not all targets"
[ "$(export-log --failed state/log.jsonl | tr '\0' '\n' | sort | tr -d '\n')" = \
  "$(printf 'bad/%s.txt\n' {1..10} | sort | tr -d '\n')" ] || fail "others than the bad ones are failed"

jobs=$(wc -l <state/jobs)
mkdir bad
for i in {1..10}; do echo "mended $i" >"bad/$i.txt"; done
run || fail "the mended ones are not done"
echo "$(($(wc -l <state/jobs) - jobs)) of 21 batches once more for them"
export-log state/log.jsonl
[ "$(find out -name '*.pdf' | wc -l)" -eq 510 ] || fail "not all targets"
for target in out/*.pdf; do tail -c 6 "$target" | grep -q EOF || fail "$target is cut"; done
[ -z "$(find out -name '.qor-*')" ] || fail "there are leftovers"

parallel --sshloginfile hosts --workdir ... --transferfile "{}" --return "{.}.pdf" --cleanup \
  "$program" -c 1251 -o "{.}.pdf" "{}" ::: in/report-000*.txt 2>>told || fail "without a shared directory"
[ "$(find in -name '*.pdf' | wc -l)" -eq 9 ] || fail "not all targets were sent back"
ran_on() { cut -f2 state/jobs | grep -c "$1\$"; }
echo "$(ran_on one) batches on one, $(ran_on two) on two"
