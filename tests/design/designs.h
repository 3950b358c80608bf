// SPDX-License-Identifier: GPL-3.0-or-later
// Designs on the project's own data, as a program starts them.
#pragma once

#include <memory>
#include <string>

#include "core/calculation.h"
#include "tests/support/source_library.h"

namespace korvane {

/// A started design of a new project (HEA 200 of S355, 5 m, 10 kN/m, 100 kN) with another
/// section family.
inline Design StartedDesign(int profileType = 1) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = profileType;
  return d;
}

}  // namespace korvane
