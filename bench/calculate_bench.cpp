// SPDX-License-Identifier: GPL-3.0-or-later
// Times of a calculation, of its analysis beside the plain one, of a search and of a batch.
#include <benchmark/benchmark.h>

#include <sstream>

#include "bench/naive_analysis.h"
#include "bench/summary.h"
#include "bench/workloads.h"
#include "front/console/batch.h"
#include "front/design_json.h"

namespace korvane {
namespace {

void calculate_default(benchmark::State& state) {
  Design d = NewDesign();
  for (auto _ : state) Calculate(d);
}
BENCHMARK(calculate_default)->Unit(benchmark::kMicrosecond);

void calculate_full(benchmark::State& state) {
  Design d = FullDesign();
  for (auto _ : state) Calculate(d);
}
BENCHMARK(calculate_full)->Unit(benchmark::kMicrosecond);

void calculate_silent(benchmark::State& state) {
  Design d = NewDesign();
  for (auto _ : state) SilentRecalculation(d);
}
BENCHMARK(calculate_silent)->Unit(benchmark::kMicrosecond);

/// The verdict on a finished calculation: nobody but a view asks for it.
void judge_default(benchmark::State& state) {
  const Design d = NewDesign();
  for (auto _ : state) benchmark::DoNotOptimize(VerdictOf(d));
}
BENCHMARK(judge_default)->Unit(benchmark::kMicrosecond);

/// The analysis alone, at full load, and the same in the plain way.
void analysis_full(benchmark::State& state) {
  Design d = FullDesign();
  for (auto _ : state) Analysis(d);
}
BENCHMARK(analysis_full)->Unit(benchmark::kMicrosecond);

void Naive(benchmark::State& state, naive::Visits visits) {
  Design d = FullDesign();
  for (auto _ : state) {
    naive::Analyse(d.st, d.rec.S, visits, d.loads, d.beam);
    CombineSls(d.st, d.rec.S, d.loads);
    naive::Deflect(d.st, d.rec.Iy, d.rec.Iz, visits, d.loads, d.deflections);
  }
}

void naive_full(benchmark::State& state) {
  Naive(state, naive::Visits::AllSlots);
}
BENCHMARK(naive_full)->Unit(benchmark::kMicrosecond);

void naive_full_loads_only(benchmark::State& state) {
  Naive(state, naive::Visits::LoadsOnly);
}
BENCHMARK(naive_full_loads_only)->Unit(benchmark::kMicrosecond);

void search_all(benchmark::State& state) {
  Design d = NewDesign();
  OptimiserResults results;
  for (auto _ : state) SearchAll(d, results);
}
BENCHMARK(search_all)->Unit(benchmark::kMillisecond);

void design_json(benchmark::State& state) {
  const Design d = NewDesign();
  for (auto _ : state) benchmark::DoNotOptimize(DesignJson(d, std::nullopt));
}
BENCHMARK(design_json)->Unit(benchmark::kMicrosecond);

/// The examples a thousand times over; the argument is the number of threads.
void batch(benchmark::State& state) {
  BatchOptions options;
  for (int i = 0; i < 1000; ++i) options.inputs.emplace_back(KORVANE_EXAMPLES);
  options.jobs = static_cast<int>(state.range(0));
  for (auto _ : state) {
    std::ostringstream out;
    std::ostringstream err;
    RunBatch(TheLibrary(), options, out, err, false);
    benchmark::DoNotOptimize(out.str().size());
  }
}
BENCHMARK(batch)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

}  // namespace
}  // namespace korvane

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  korvane::Summary summary;
  benchmark::RunSpecifiedBenchmarks(&summary);
  summary.Print();
  return 0;
}
