// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of section values: which section, which value, and what it should be.
#pragma once

#include <span>

#include "case.h"
#include "sections/section_record.h"

namespace korvane {
struct ProjectState;
}

namespace korvane::verification {

/// Puts a section into the state.
using Choose = void (*)(ProjectState&);

/// A value of a section in mm units, S in kg/m and g in m2/m.
struct SectionValue {
  Choose choose;
  const char* section;
  const char* quantity;
  float32 SectionRecord::*field;
  double value;
  const char* unit;
  const char* source;
  double tolerance = kExact;
  const char* remark = "";
};

/// The values as cases, each section taken through its own steps with S355.
std::vector<Case> SectionCases(std::span<const SectionValue> values);

inline constexpr const char* kPlates = "sum of plates about their common axis";

}  // namespace korvane::verification
