// SPDX-License-Identifier: GPL-3.0-or-later
// Texts, paths and errors between the engine and Python.
#pragma once

#include <pybind11/pybind11.h>

#include <string>
#include <string_view>
#include <vector>

#include "core/files.h"
#include "studies/member_inputs.h"

namespace korvane::python {

namespace py = pybind11;

/// A text of the record; what is not UTF-8 comes back as it was.
py::str ToStr(std::string_view text);
std::string FromStr(py::handle text);
/// The bytes of a path, given as a str, bytes or path object.
std::string PathOf(py::handle path);

/// Raise the exceptions of the module.
[[noreturn]] void RaiseRefused(const RefusedInput& refused);
[[noreturn]] void RaiseUnknown(const std::string& what, const std::string& name,
                               const std::vector<std::string>& words);
[[noreturn]] void RaiseStopped(const std::string& step, const std::string& what, py::object input);
[[noreturn]] void RaiseNotWritten(const std::string& path, const WriteResult& result);

}  // namespace korvane::python
