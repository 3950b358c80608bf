// SPDX-License-Identifier: GPL-3.0-or-later
// Prints the times as they are measured and at the end what they mean.
#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>

namespace korvane {

/// Keeps the least processor time of each piece of work (in seconds) beside printing it.
class Summary : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run>& runs) override;
  /// Time beside the floor that the arithmetic and the machine's pace set, and how much faster
  /// the analysis is than its plain yardstick.
  void Print() const;

private:
  std::map<std::string, double> seconds_;
};

}  // namespace korvane
