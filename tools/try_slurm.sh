#!/usr/bin/env bash
# Tries qorexport.sbatch of docs/examples on a Slurm of one node that lives in a directory below /tmp: 500 reports
# and 10 bad names by an array of 5 tasks, one of which is requeued in the middle, and then what failed.
#   tools/try_slurm.sh QOREXPORT
# Needs root, slurm-wlm and munge (setup.sh servers). What it makes and starts goes with it.
set -euo pipefail
program=$(realpath "$1")
here=$(cd "$(dirname "$0")/.." && pwd)
place=$(mktemp -d /tmp/qor-slurm.XXXXXX)
chmod 755 "$place"
daemons=()
end() {
  [ -z "${SLURM_CONF:-}" ] || scancel --state=RUNNING --state=PENDING 2>/dev/null || true
  kill "${daemons[@]}" 2>/dev/null || true
  wait "${daemons[@]}" 2>/dev/null || true
  rm -rf "$place"
}
trap end EXIT
fail() { echo "FAILED: $1" >&2; tail -n 5 "$place"/*.log >&2; exit 1; }
cd "$place"
mkdir munge spool state work

# All of them are of the user who starts this, and listen on ports of their own.
chmod 700 munge
dd if=/dev/urandom of=munge/key bs=1024 count=1 status=none
chmod 400 munge/key
munged --foreground --key-file="$place/munge/key" --socket="$place/munged" --pid-file="$place/munge/pid" \
  --log-file="$place/munge/log" --seed-file="$place/munge/seed" 2>munged.log &
daemons+=($!)
port=$((20000 + RANDOM % 20000))
cat >slurm.conf <<END
ClusterName=try
SlurmctldHost=$(hostname -s)(127.0.0.1)
SlurmUser=$(id -un)
SlurmdUser=$(id -un)
AuthType=auth/munge
AuthInfo=socket=$place/munged
SlurmctldPort=$port
SlurmdPort=$((port + 1))
StateSaveLocation=$place/state
SlurmdSpoolDir=$place/spool
SlurmctldPidFile=$place/slurmctld.pid
SlurmdPidFile=$place/slurmd.pid
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_CPU
MpiDefault=none
ReturnToService=2
SchedulerParameters=bf_interval=1
SlurmdParameters=config_overrides
NodeName=$(hostname -s) NodeAddr=127.0.0.1 CPUs=4 Boards=1 SocketsPerBoard=4 CoresPerSocket=1 ThreadsPerCore=1 RealMemory=1000
PartitionName=all Nodes=ALL Default=YES State=UP MaxTime=INFINITE
END
export SLURM_CONF=$place/slurm.conf
for _ in $(seq 100); do [ -S munged ] && break; sleep 0.1; done
slurmctld -D >slurmctld.log 2>&1 &
daemons+=($!)
slurmd -D >slurmd.log 2>&1 &
daemons+=($!)
for _ in $(seq 300); do sinfo -h -o %t 2>/dev/null | grep -qx idle && break; sleep 0.1; done
sinfo -h -o %t | grep -qx idle || fail "no node"

export PATH=$here/docs/examples:$PATH
mkdir bin
ln -s "$program" bin/qorexport
cd work
"$here/tools/make_reports.py" 500 in
printf '%s\n' in/report-*.txt bad/{1..10}.txt | shuf --random-source="$here/samples/ledger-866.txt" >list
submit() {
  PATH=$place/bin:$PATH sbatch --parsable --mem=0 --array="$1" "$here/docs/examples/slurm/qorexport.sbatch" \
    "${@:2}" -c 1251 -o 'out/{stem}.pdf'
}
# rest [JOB]: nothing is queued any more. Slurm would let a job that was requeued wait for two minutes.
rest() {
  for _ in $(seq 600); do
    [ -n "$(squeue -h)" ] || return 0
    [ $# -eq 0 ] || scontrol update JobId="$1" StartTime=now 2>/dev/null || true
    sleep 0.1
  done
  fail "it doesn't end"
}

job=$(submit 0-4 list)
lines() { [ -e "$1" ] && wc -l <"$1" || echo 0; }
until [ "$(lines "qorexport-$job-1.jsonl")" -ge 10 ]; do sleep 0.1; done
scontrol requeue "${job}_1" || fail "no requeue"
rest "${job}_1"
cat "qorexport-$job"-*.jsonl >log
export-log log | sed -n 1p || true
echo "$(wc -l <"qorexport-$job-1.jsonl") lines of the task that was requeued, $(grep -c skipped "qorexport-$job-1.jsonl") of them skipped"
[ "$(find out -name '*.pdf' | wc -l)" -eq 500 ] || fail "not all targets"
[ "$(cut -d'"' -f4 log | sort -u | wc -l)" -eq 510 ] || fail "not all reports are told"

mkdir bad
for i in {1..10}; do echo "mended $i" >"bad/$i.txt"; done
export-log --failed "qorexport-$job"-*.jsonl | tr '\0' '\n' >again || true
[ "$(wc -l <again)" -eq 10 ] || fail "others than the bad ones are failed"
again=$(submit 0 again)
rest
cat qorexport-{"$job","$again"}-*.jsonl | export-log || fail "the mended ones are not done"
[ "$(find out -name '*.pdf' | wc -l)" -eq 510 ] || fail "not all targets"
