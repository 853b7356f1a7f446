#!/usr/bin/env bash
# Counts the instructions and heap allocations that each operation takes.
#
#   bench_counts.sh check PROGRAM BASELINE COMPILER  compare them with the recorded ones
#   bench_counts.sh write PROGRAM BASELINE COMPILER  record them
#
# PROGRAM is bench/counted.cpp's. More allocations, or instructions beyond the tolerance, make the
# check fail; fewer are reported. Other compilers than the recorded one are not compared: status 77.
set -euo pipefail

readonly tolerance=5 # per cent

usage() {
  echo "usage: bench_counts.sh check|write PROGRAM BASELINE COMPILER" >&2
  exit 2
}

[[ $# -eq 4 && ($1 == check || $1 == write) ]] || usage
action=$1
program=$2
baseline=$3
compiler=$4

if [[ $action == check ]] && ! grep -qxF "# $compiler" "$baseline"; then
  echo "bench_counts.sh: $baseline was not recorded with $compiler"
  exit 77
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Which variants of memcpy and the like run is the processor's affair, and so is where the
# environment puts the stack: both are pinned.
env -i LC_ALL=C LD_BIND_NOW=1 \
  GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX512BW,-AVX2,-AVX,-ERMS,-FSRM \
  "$(command -v valgrind)" --tool=callgrind --callgrind-out-file="$work/dump" "$program" \
  >"$work/allocations" 2>"$work/log" || {
  cat "$work/log" >&2
  exit 1
}

# Instructions, allocations and name of each operation, tabs between them. A dump names its operation
# and has the sum of all counts.
awk -F '\t' '
  FILENAME ~ /allocations$/ { times[$3] = $1; allocations[$3] = $2; names[++count] = $3; next }
  /^desc: Trigger: Client Request: / { name = substr($0, 32) }
  /^summary: / { instructions[name] = substr($0, 10) }
  END {
    for (i = 1; i <= count; ++i) {
      name = names[i]
      printf "%.0f\t%g\t%s\n", instructions[name] / times[name], allocations[name], name
    }
  }
' "$work/allocations" "$work"/dump.* >"$work/counts"

case $action in
  write)
    {
      echo "# Instructions and heap allocations an operation, by scripts/bench_counts.sh."
      echo "# $compiler"
      cat "$work/counts"
    } >"$baseline"
    cat "$baseline"
    ;;
  check)
    awk -F '\t' -v tolerance="$tolerance" '
      /^#/ { next }
      FNR == NR { old[$3] = $1; old_allocations[$3] = $2; next }
      {
        seen[$3] = 1
        verdict = ""
        if (!($3 in old)) { verdict = "not recorded"; failed = 1 }
        else {
          if ($1 < old[$3] * (1 - tolerance / 100) || $2 + 0 < old_allocations[$3] + 0) verdict = "less"
          if ($1 > old[$3] * (1 + tolerance / 100) || $2 + 0 > old_allocations[$3] + 0) {
            verdict = "MORE"
            failed = 1
          }
        }
        printf "%-36s %9d instructions (%9d) %7g allocations (%7g) %s\n", $3, $1, old[$3], $2,
               old_allocations[$3], verdict
      }
      END {
        for (name in old) if (!(name in seen)) { print name ": recorded, but not counted"; failed = 1 }
        exit failed
      }
    ' "$baseline" "$work/counts"
    ;;
esac
