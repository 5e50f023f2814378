#!/bin/bash
# The stress command on many wells: 200 wells of 15000 samples through
# `tarnolix stress` on 2 cores with xargs -P, without the PDF conversion.
# Prints the wall time, the CPU time of all processes (on a machine shared
# with other work the wall time is longer than CPU / 2) and the largest
# resident set of one process, for 1 and for 20 wells a process (flat
# memory: the same).
#
#   bash bench/stress_bench.sh [build/tarnolix] [work dir]
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
bin=$(realpath "${1:-$here/../build/tarnolix}")
work=${2:-/tmp/tarnolix_stress_bench}
rm -rf "$work" && mkdir -p "$work/src" "$work/wells" "$work/out"
python3 "$here/stress_wells.py" "$work/src" 10
# 200 names over 10 distinct wells: the reading is the same work.
for k in $(seq 0 199); do
  ln -s "$work/src/$(printf 'bench_well_%02d.txt' $((k % 10)))" "$work/wells/$(printf 'w%03d.txt' "$k")"
done
cd "$work"
for per in 1 20; do
  rm -f out/*
  start=$(date +%s.%N)
  ls wells/*.txt | xargs -P 2 -n "$per" sh -c \
    'b=$1; shift; /usr/bin/time -f "%M %U %S" -a -o "$0" "$b" stress --no-pdf --bitsize 21.59 --out out \
       --summary out/part.$$.txt "$@"' "$work/rss_$per.txt" "$bin" >/dev/null
  end=$(date +%s.%N)
  cpu=$(awk '{c += $2 + $3} END {printf "%.2f", c}' "rss_$per.txt")
  rss=$(awk '$1 > m {m = $1} END {print m}' "rss_$per.txt")
  printf "%3d wells a process: %6.2f s wall, %6.2f s CPU for %d wells, largest RSS %s kB, zone tables %d\n" \
    "$per" "$(echo "$end - $start" | bc)" "$cpu" "$(ls wells | wc -l)" "$rss" "$(ls out/*.stress.txt | wc -l)"
  echo "     summary rows: $(awk 'FNR > 1' out/part.*.txt | grep -c 'ok$')"
done
