#!/usr/bin/env bash
# The main job end to end on generated sessions of 1,000, 10,000 and 50,000
# occurrences: `rows --level multi` and `bom --level multi --excel --text`,
# each run RUNS times (default 3), printing the median wall time and the
# largest peak resident memory of its runs. Uses the release build.
#
#   bench/main_job_bench.sh [BUILD_DIR] [RUNS]
set -euo pipefail

build=${1:-build/release}
runs=${2:-3}
workbench=$build/workbench/bom-workbench
generator=$build/bench/main_job_session
for program in "$workbench" "$generator"; do
  [ -x "$program" ] || { echo "missing $program: cmake --build --preset release --target bom-workbench main_job_session" >&2; exit 1; }
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

# Runs a job RUNS times; prints "median-seconds max-kib".
measure() {
  local times=() peak=0
  for ((i = 0; i < runs; i++)); do
    rm -rf "$scratch/work" "$scratch/out"
    /usr/bin/time -v -o "$scratch/time" "$workbench" "$@" --workdir "$scratch/work" >/dev/null 2>"$scratch/err" ||
      { cat "$scratch/err" "$scratch/time" >&2; exit 1; }
    local wall kib
    wall=$(awk -F': ' '/Elapsed \(wall clock\)/ {n = split($2, t, ":"); s = 0; for (j = 1; j <= n; j++) s = s * 60 + t[j]; print s}' "$scratch/time")
    kib=$(awk -F': ' '/Maximum resident set size/ {print $2}' "$scratch/time")
    times+=("$wall")
    ((kib > peak)) && peak=$kib
  done
  printf '%s %s\n' "$(printf '%s\n' "${times[@]}" | sort -g | awk '{a[NR] = $1} END {print a[int((NR + 1) / 2)]}')" "$peak"
}

printf '%-12s %-40s %10s %12s\n' occurrences job "wall (s)" "peak (MiB)"
for size in 1000 10000 50000; do
  session=$scratch/session-$size
  "$generator" "$session" "$size" >/dev/null
  read -r wall kib < <(measure rows --session "$session" --level multi)
  printf '%-12s %-40s %10s %12d\n' "$size" "rows --level multi" "$wall" $((kib / 1024))
  read -r wall kib < <(measure bom --session "$session" --level multi --excel --text --out "$scratch/out/")
  printf '%-12s %-40s %10s %12d\n' "$size" "bom --level multi --excel --text" "$wall" $((kib / 1024))
done
