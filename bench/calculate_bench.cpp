// SPDX-License-Identifier: GPL-3.0-or-later
// How long a whole calculation takes: of a new project, of a member with every kind of load in
// both planes, and as the optimiser runs it.
#include <benchmark/benchmark.h>

#include "checks/results.h"
#include "core/calculation.h"

namespace korvane {
namespace {

Design NewDesign() {
  Design d(ReadLibrary(KORVANE_DATA_FOLDER));
  StartDesign(d);
  Calculate(d);
  return d;
}

/// Four line loads, three trapezoids and eight load entries, in both planes and all groups.
void AddAllLoads(ProjectState& st) {
  st.L = 8;
  st.SupportType = 2;
  st.SelfWeight = 1;
  st.q1 = 6;
  st.q2 = 4;
  st.q2_pv = 1;
  st.q3 = 1.5;
  st.q3_yz = 0;
  st.q4 = 0.8;
  st.q4_pv = 2;
  st.q4_yz = 0;
  const auto trapezoid = [&](float32& q1, float32& q2, float32& x1, float32& x2, double from) {
    q1 = 2;
    q2 = 5;
    x1 = from;
    x2 = from + 2.5;
  };
  trapezoid(st.qt1_1, st.qt1_2, st.qt1_x1, st.qt1_x2, 0.5);
  trapezoid(st.qt2_1, st.qt2_2, st.qt2_x1, st.qt2_x2, 3);
  trapezoid(st.qt3_1, st.qt3_2, st.qt3_x1, st.qt3_x2, 5);
  st.qt2_yz = 0;
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = 4 + i;
    st.pmx[i] = 0.85 * i;
    st.pm_pm[i] = i % 3 == 0;
    st.pm_pv[i] = i % 3;
    st.pm_yz[i] = i % 4 != 0;
  }
}

void calculate_default(benchmark::State& state) {
  Design d = NewDesign();
  for (auto _ : state) {
    Calculate(d);
    benchmark::DoNotOptimize(d.checks.lineSection.value.data());
  }
}
BENCHMARK(calculate_default)->Unit(benchmark::kMicrosecond);

void calculate_full(benchmark::State& state) {
  Design d = NewDesign();
  AddAllLoads(d.st);
  for (auto _ : state) {
    Calculate(d);
    benchmark::DoNotOptimize(d.checks.lineSection.value.data());
  }
}
BENCHMARK(calculate_full)->Unit(benchmark::kMicrosecond);

void calculate_silent(benchmark::State& state) {
  Design d = NewDesign();
  AddAllLoads(d.st);
  for (auto _ : state) {
    SilentRecalculation(d);
    benchmark::DoNotOptimize(MaxIR(d.checks));
  }
}
BENCHMARK(calculate_silent)->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace korvane
