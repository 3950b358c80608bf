// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/python/convert.h"

#include "front/nearest.h"

namespace korvane::python {

namespace {

[[noreturn]] void Raise(const py::object& type, const py::object& error) {
  PyErr_SetObject(type.ptr(), error.ptr());
  throw py::error_already_set();
}

py::object OurType(const char* name) {
  return py::module_::import("korvane._errors").attr(name);
}

}  // namespace

py::str ToStr(std::string_view text) {
  PyObject* made =
      PyUnicode_DecodeUTF8(text.data(), static_cast<Py_ssize_t>(text.size()), "surrogateescape");
  if (made == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::str>(made);
}

std::string FromStr(py::handle text) {
  PyObject* made = PyUnicode_AsEncodedString(text.ptr(), "utf-8", "surrogateescape");
  if (made == nullptr) throw py::error_already_set();
  return py::reinterpret_steal<py::bytes>(made);
}

std::string PathOf(py::handle path) {
  PyObject* made = nullptr;
  if (PyUnicode_FSConverter(path.ptr(), &made) == 0) throw py::error_already_set();
  return py::reinterpret_steal<py::bytes>(made);
}

void RaiseRefused(const RefusedInput& refused) {
  const py::object type = OurType("InputRefused");
  Raise(type, type(ToStr(refused.message), ToStr(refused.name)));
}

void RaiseUnknown(const std::string& what, const std::string& name,
                  const std::vector<std::string>& words) {
  const std::string nearest = NearestWord(name, words);
  throw py::key_error("unknown " + what + " " + name +
                      (nearest.empty() ? "" : " (nearest: " + nearest + ")"));
}

void RaiseStopped(const std::string& step, const std::string& what, py::object input) {
  const py::object type = OurType("ArithmeticFault");
  Raise(type, type(ToStr("arithmetic failure in " + what), ToStr(step), std::move(input)));
}

void RaiseNotWritten(const std::string& path, const WriteResult& result) {
  const py::object type = py::reinterpret_borrow<py::object>(PyExc_OSError);
  Raise(type, type(ToStr("can't write file - " + path + ": " + result.why)));
}

}  // namespace korvane::python
