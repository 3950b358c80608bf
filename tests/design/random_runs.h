// SPDX-License-Identifier: GPL-3.0-or-later
// Runs a random member the way an opened project runs.
#pragma once

#include <optional>
#include <string>

#include "analysis/loads.h"
#include "checks/results.h"
#include "core/calculation.h"
#include "random_states.h"

namespace korvane {

/// Runs what opening a project runs; returns the step of an arithmetic failure. Anything else
/// that is thrown is the caller's failure.
inline std::optional<std::string> RunDesign(Design& d, unsigned seed, int profileType) {
  StartDesign(d);
  Calculate(d);
  RandomState(seed, profileType, d.st);
  if (seed % 2 == 0) NormaliseLoads(d.st);
  try {
    SetMaterial(d.lib->materials, d.rec.tmax, d.st);
    Calculate(d);
    Calculate(d);
    MaxIR(d.checks);
  } catch (const CalculationFault& fault) {
    return fault.Step();
  } catch (const ArithmeticFault& fault) {
    return fault.what();
  }
  return std::nullopt;
}

}  // namespace korvane
