// SPDX-License-Identifier: GPL-3.0-or-later
// The steps of the members that are worked out in full.
#pragma once

#include <span>

#include "case.h"
#include "core/calculation.h"

namespace korvane::verification {

/// One intermediate value of a member: how it follows from those before it, the value worked
/// out so, and where the program keeps its own.
struct Step {
  const char* symbol;
  const char* how;
  double value;
  const char* unit;
  double (*ours)(const Design&);
  double tolerance = kExact;
  const char* remark = "";
};

std::span<const Step> FloorSteps();
std::span<const Step> ColumnSteps();
std::span<const Step> BeamColumnSteps();
std::span<const Step> HollowSteps();
std::span<const Step> GirderSteps();
std::span<const Step> TubeSteps();
std::span<const Step> StrutSteps();

}  // namespace korvane::verification
