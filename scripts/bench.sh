#!/usr/bin/env bash
# Measures the library beside its peers, natively and on Windows, and prints the results' tables,
# which stay in build/bench/results.md. With --record they also replace those in the documentation.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

for preset in bench bench-windows; do
  cmake --preset "$preset" >/dev/null
  cmake --build --preset "$preset"
done

document=docs/performance.md
results=build/bench/results.md
native=build/bench/bench_names.json
windows=build/bench/crypt32.json
load=$(cut -d ' ' -f 1 /proc/loadavg)
# In turns, so that what else the machine does falls on all alike.
build/bench/bench_names --benchmark_repetitions=9 --benchmark_enable_random_interleaving=true \
  --benchmark_min_time=0.05 --benchmark_report_aggregates_only=true \
  --benchmark_out="$native" --benchmark_out_format=json >/dev/null
scripts/wine.sh run build/bench-windows/wine build/bench-windows/bench_crypt32.exe >"$windows"

processor=$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)
flags=$(sed -n 's/^CMAKE_CXX_FLAGS_RELWITHDEBINFO:[^=]*=//p' build/bench/CMakeCache.txt)
{
  echo "- Processor: $processor, $(nproc) cores; load when the run began: $load"
  echo "- Compilers: $(g++ --version | head -n 1);"
  echo "  $(x86_64-w64-mingw32-g++-posix --version | head -n 1)"
  echo "- Flags: \`$flags\`, \`-O3\` for the library itself, and those of \`cmake/hardening.cmake\`"
  echo
  awk -f bench/report.awk "$native" "$windows"
  echo
  scripts/bench_stream.sh build/bench/x509name
} | tee "$results"

if [[ ${1-} == --record ]]; then
  awk -v results="$results" '
    /^<!-- end of results -->$/ { inside = 0 }
    !inside
    /^<!-- results -->$/ { inside = 1; while ((getline line <results) > 0) print line }
  ' "$document" >"$document.new"
  mv "$document.new" "$document"
fi
