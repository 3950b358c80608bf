// SPDX-License-Identifier: GPL-3.0-or-later
// Catalogues and materials of the source tree, for every test that designs something.
#pragma once

#include <memory>

#include "core/calculation.h"

namespace korvane {

/// The library of the source tree's data folder, read once a process and shared, as a program
/// shares it.
const std::shared_ptr<const Library>& SourceLibrary();

}  // namespace korvane
