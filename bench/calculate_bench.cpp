// SPDX-License-Identifier: GPL-3.0-or-later
// Times of a calculation, of a search and of a batch.
#include <benchmark/benchmark.h>

#include <sstream>

#include "core/calculation.h"
#include "front/console/batch.h"
#include "front/console/design_json.h"
#include "optimiser/optimize.h"

namespace korvane {
namespace {

std::shared_ptr<const Library> TheLibrary() {
  static const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  return library;
}

Design NewDesign() {
  Design d(TheLibrary());
  StartDesign(d);
  Calculate(d);
  return d;
}

/// Four line loads, three trapezoids and eight items, in both planes.
Design FullDesign() {
  Design d = NewDesign();
  ProjectState& st = d.st;
  st.q2 = 3.0;
  st.q3 = 2.0;
  st.q3_yz = 0;
  st.q4 = 1.0;
  st.qt1_1 = 2.0;
  st.qt1_2 = 4.0;
  st.qt1_x2 = 3.0;
  st.qt2_1 = 1.0;
  st.qt2_2 = 1.0;
  st.qt2_x2 = 4.0;
  st.qt2_yz = 0;
  st.qt3_1 = 1.0;
  st.qt3_2 = 2.0;
  st.qt3_x2 = 5.0;
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = 2.0 + i;
    st.pmx[i] = 0.5 * i;
    st.pm_pm[i] = i % 3 == 0 ? 1 : 0;
    st.pm_yz[i] = i % 2;
  }
  Calculate(d);
  return d;
}

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

/// All eleven series: 698 recalculations.
void search_all(benchmark::State& state) {
  Design d = NewDesign();
  OptimiserResults results;
  for (auto _ : state) {
    for (int row = 1; row <= kOptimiserRows; ++row) SearchRow(d, row, results);
  }
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
