#!/usr/bin/env bash
# What docs/examples promise that can be held without other machines: units that systemd reads without a word,
# and scripts that leave each report where it belongs.
#   server_examples.sh QOREXPORT
set -euo pipefail
examples=$(cd "$(dirname "$0")/../../docs/examples" && pwd)
place=$(mktemp -d)
trap 'rm -rf "$place"' EXIT
cd "$place"
mkdir bin
ln -s "$(realpath "$1")" bin/qorexport
cp "$examples"/export-log "$examples"/*/qorexport-{folder,hosts,nightly} bin
export PATH=$place/bin:$PATH PARALLEL_HOME=$place
wrong() { echo "$1" >&2; exit 1; }
# names WHAT DIRECTORY NAME...: what the directory holds.
names() { diff <(printf '%s\n' "${@:3}" | sed '/^$/d' | sort) <(find "$2" -type f -printf '%P\n' | sort) || wrong "$1: others"; }

mkdir units
for unit in "$examples"/*/*.{path,service,timer}; do sed "s#/usr/local/bin#$place/bin#" "$unit" >"units/${unit##*/}"; done
said=$(systemd-analyze verify units/* 2>&1 | grep -F "$place" || true)
[ -z "$said" ] || wrong "$said"

# Of those that came, and of what a run has left that was killed; beside them what is no report.
mkdir -p folder/{incoming,work,out,done,failed}
cd folder
echo new | tee incoming/new.txt >"incoming/two words.txt"
echo left >work/left.txt
touch incoming/.hidden work/left_barcode_1_2_3.jpeg
truncate -s 257M incoming/long.txt
(cd .. && QUIET=0 OPTIONS="-t csv" qorexport-folder folder 2>told >json)
names "done" "done" left.txt new.txt "two words.txt"
names failed failed long.txt
names out out left.txt.csv new.txt.csv "two words.txt.csv"
names incoming incoming .hidden
names work work
echo same >incoming/same.txt
if QUIET=0 OPTIONS=--no-such-option qorexport-folder . 2>/dev/null; then wrong "a wrong option isn't told"; fi
names "behind a wrong option" work same.txt
cd ..

mkdir -p reports/sub
echo a | tee reports/sub/a.txt >reports/a.txt
for round in "done" "done before"; do
  qorexport-nightly reports nightly -t csv | grep -qE "2 $round" || wrong "the night: not $round"
done
names nightly nightly a.csv sub/a.csv
if qorexport-nightly reports nightly --no-such-option >/dev/null 2>told; then wrong "the night tells no failure"; fi
grep -q no-such-option told || wrong "the night tells no reason"

for i in {1..7}; do echo "$i" >"reports/$i.txt"; done
printf 'reports/%s.txt\n' {1..7} missing >list
printf '1/:\n' >hosts
if BATCH=3 qorexport-hosts state hosts list -o 'hosted/{stem}.csv' 2>/dev/null; then wrong "the hosts tell no failure"; fi
echo found >reports/missing.txt
qorexport-hosts state hosts list -o 'hosted/{stem}.csv' || wrong "the hosts don't go on"
names hosted hosted {1..7}.csv missing.csv
[ "$(wc -l <state/log.jsonl)" -eq 10 ] || wrong "the hosts did more than the batch with the failed one again"
export-log state/log.jsonl | grep -q '^8 reports: 7 done, 1 done before, 0 failed' || wrong "the hosts' log: $(export-log state/log.jsonl)"

export SLURM_ARRAY_TASK_COUNT=3 SLURM_ARRAY_TASK_MIN=2 SLURM_ARRAY_JOB_ID=1 SLURM_CPUS_PER_TASK=1
for task in 2 3 4; do
  SLURM_ARRAY_TASK_ID=$task "$examples/slurm/qorexport.sbatch" list -o 'cluster/{stem}.csv'
  [ "$(wc -l <"qorexport-1-$task.jsonl")" -ge 2 ] || wrong "the tasks don't share"
done
names cluster cluster {1..7}.csv missing.csv
[ "$(cat qorexport-1-*.jsonl | wc -l)" -eq 8 ] || wrong "a report is of two tasks"
