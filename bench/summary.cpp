// SPDX-License-Identifier: GPL-3.0-or-later
#include "summary.h"

#include <cstdio>

#include "multiply_add.h"
#include "operations.h"

namespace korvane {

void Summary::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    if (run.error_occurred || run.run_type != Run::RT_Iteration || run.iterations == 0) continue;
    const double time = run.cpu_accumulated_time / static_cast<double>(run.iterations);
    const auto [it, fresh] = seconds_.emplace(run.run_name.function_name, time);
    if (!fresh && time < it->second) it->second = time;
  }
}

void Summary::Print() const {
  const Pace pace = MultiplyAddRate();
  std::printf("\nmultiply-add rate: %.2f GFLOP/s scalar, %.2f GFLOP/s packed\n", pace.scalar * 1e-9,
              pace.packed * 1e-9);
  std::printf("%-24s %12s %12s %12s %14s %14s\n", "work", "time, us", "operations", "floor, us",
              "time/floor", "(packed)");
  for (const Operations& o : kOperations) {
    const auto it = seconds_.find(o.work);
    if (it == seconds_.end()) continue;
    const double floor = o.count / pace.scalar;
    std::printf("%-24s %12.2f %12.0f %12.3f %14.1f %14.1f\n", o.work, it->second * 1e6, o.count,
                floor * 1e6, it->second / floor, it->second * pace.packed / o.count);
  }
  const auto ours = seconds_.find("analysis_full");
  for (const char* name : {"naive_full", "naive_full_loads_only"}) {
    const auto plain = seconds_.find(name);
    if (ours == seconds_.end() || plain == seconds_.end()) continue;
    std::printf("%s / analysis_full: %.1f\n", name, plain->second / ours->second);
  }
}

}  // namespace korvane
