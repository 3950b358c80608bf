// SPDX-License-Identifier: GPL-3.0-or-later
// Many members and studies for Python.
#pragma once

#include <pybind11/pybind11.h>

namespace korvane::python {

/// Adds the routines of tables, grids, sections and solve.
void BindTables(pybind11::module_& m);

}  // namespace korvane::python
