// Measures the library and its peers. The arguments are Google Benchmark's.
#include <benchmark/benchmark.h>

#include "bench/measure.h"

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  Bench::AddAllCases();
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
