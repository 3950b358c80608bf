// SPDX-License-Identifier: GPL-3.0-or-later
// The inputs of a member as Python values: read and set by name.
#pragma once

#include <pybind11/pybind11.h>

#include <string>
#include <vector>

#include "front/python/engine.h"

namespace korvane::python {

namespace py = pybind11;

/// Names of all fields, those of several elements as a whole.
const std::vector<std::string>& FieldNames();

/// The input of that name: a number, a text, a tuple of all elements; the words section, material,
/// support. What a calculation works out is that of one. Raises KeyError.
py::object GetField(const Member& member, const std::string& name);

/// Sets several at once, all or none. Raises KeyError, InputRefused, TypeError.
void SetFields(Member& member, const py::dict& values);

/// Whether two members have the same input: what a calculation works out, files and windows don't
/// count.
bool HaveSameInput(const ProjectState& a, const ProjectState& b);

/// Every field of the record as it stands, for pickles, and back.
py::dict RawFields(const ProjectState& st);
void SetRawFields(const py::dict& fields, ProjectState& st);

/// {name: (unit, accepted values)}
py::dict DescribeFields();

}  // namespace korvane::python
