// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/python/fields.h"

#include <algorithm>
#include <cmath>
#include <deque>

#include "core/supports.h"
#include "front/python/convert.h"
#include "studies/all_sections.h"
#include "studies/result_columns.h"

namespace korvane::python {

namespace {

using S = ProjectState;

template <class T>
inline constexpr bool kIsArray = false;
template <class T, int First, int Last>
inline constexpr bool kIsArray<Indexed<T, First, Last>> = true;

py::object ToPython(const int16& v) {
  return py::int_(int(v));
}
py::object ToPython(const float32& v) {
  return py::float_(Typed(v.Single()));
}
py::object ToPython(const number& v) {
  return py::float_(double(v));
}
py::object ToPython(const std::string& v) {
  return ToStr(v);
}

std::string Element(const std::string& name, int i) {
  return name + "[" + std::to_string(i) + "]";
}

/// Number of elements of a field named as a whole, 0 for any other name.
int ElementsOf(const std::string& name, const S& st) {
  int count = 0;
  while (FindMemberInput(Element(name, count + 1), st)) ++count;
  return count;
}

/// An array field named as a whole has no input of its own.
bool IsWholeArray(const std::string& name, const S& st) {
  return name.find('[') == std::string::npos && !FindMemberInput(name, st) &&
         ElementsOf(name, st) > 0;
}

std::vector<std::string> NamesMeant() {
  std::vector<std::string> names = MemberInputNames();
  for (const std::string& name : FieldNames()) names.push_back(name);
  return names;
}

bool IsWholeNumber(const MemberInput& input) {
  return input.ref.field != nullptr &&
         (std::holds_alternative<int16 S::*>(input.ref.field->member) ||
          std::holds_alternative<Indexed<int16, 1, 8> S::*>(input.ref.field->member));
}

/// Inputs, cells and the texts that the cells look at, which stay where they are.
struct Given {
  std::deque<MemberInput> inputs;
  std::deque<std::string> texts;
  std::vector<InputCell> cells;

  void Add(const MemberInput& input, py::handle value) {
    InputCell cell{&inputs.emplace_back(input)};
    const bool isNumber = input.kind == InputKind::Field || input.kind == InputKind::Loads;
    if (PyUnicode_Check(value.ptr()) != 0) {
      cell.text = texts.emplace_back(FromStr(value));
      // An empty text is a value here, not a cell that was left empty.
      if (cell.text.empty() && input.kind != InputKind::Text) {
        RaiseRefused({input.name, "an empty text"});
      }
    } else if (isNumber) {
      const double number = PyFloat_AsDouble(value.ptr());
      if (number == -1.0 && PyErr_Occurred() != nullptr) throw py::error_already_set();
      if (IsWholeNumber(input) && number != std::floor(number)) {
        RaiseRefused({input.name, "a whole number is wanted"});
      }
      cell.number = number;
    } else {
      throw py::type_error(input.name + " takes a text");
    }
    cells.push_back(cell);
  }
};

bool IsWorkedOut(const std::string& name, const S& st) {
  if (name == "fyk") return st.MaterialIndex < TheEngine().library->materials.Last();
  return (name == "BucklingCurveY" || name == "BucklingCurveZ") && st.ManualBucklingCurves == 0;
}

py::object WordOf(InputKind kind, const S& st) {
  const Library& library = *TheEngine().library;
  switch (kind) {
    case InputKind::Section:
      return ToStr(SectionName(st, library.catalogues));
    case InputKind::Material: {
      const int row = st.MaterialIndex;
      if (row < 0 || row > library.materials.Last()) return py::none();
      return ToStr(library.materials.rows[static_cast<std::size_t>(row)].name);
    }
    case InputKind::Support: {
      const Support* support = FindSupport(st.SupportType);
      return support == nullptr ? py::object(py::none()) : ToStr(support->name);
    }
    default:
      return py::none();
  }
}

}  // namespace

const std::vector<std::string>& FieldNames() {
  static const std::vector<std::string> names = [] {
    std::vector<std::string> found;
    const S st;
    for (const InputField& field : AllInputFields()) {
      const std::string name = field.name;
      if (FindMemberInput(name, st) || ElementsOf(name, st) > 0) found.push_back(name);
    }
    return found;
  }();
  return names;
}

py::object GetField(const Member& member, const std::string& name) {
  const S& st = member.st;
  if (IsWholeArray(name, st)) {
    py::tuple values(static_cast<std::size_t>(ElementsOf(name, st)));
    for (std::size_t i = 0; i < values.size(); ++i) {
      values[i] = GetField(member, Element(name, static_cast<int>(i) + 1));
    }
    return values;
  }
  const auto input = FindMemberInput(name, st);
  if (!input) RaiseUnknown("field", name, NamesMeant());
  if (input->kind == InputKind::Loads) {
    throw py::key_error("loads is a factor, which a design doesn't keep; use scale_loads");
  }
  if (input->ref.field == nullptr) return WordOf(input->kind, st);
  const S& read = IsWorkedOut(name, st) ? WorkedOut(st) : st;
  return std::visit(
      [&](auto field) -> py::object {
        const auto& value = read.*field;
        if constexpr (kIsArray<std::remove_cvref_t<decltype(value)>>) {
          return ToPython(value[input->ref.element]);
        } else {
          return ToPython(value);
        }
      },
      input->ref.field->member);
}

void SetFields(Member& member, const py::dict& values) {
  Given given;
  for (const auto& [key, value] : values) {
    if (PyUnicode_Check(key.ptr()) == 0) throw py::type_error("names of fields are texts");
    const std::string name = FromStr(key);
    if (!IsWholeArray(name, member.st)) {
      const auto input = FindMemberInput(name, member.st);
      if (!input) RaiseUnknown("field", name, NamesMeant());
      if (input->kind == InputKind::Loads) {
        throw py::key_error("loads is a factor, which a design doesn't keep; use scale_loads");
      }
      given.Add(*input, value);
      continue;
    }
    const auto elements = py::reinterpret_borrow<py::object>(value).cast<py::sequence>();
    const int count = ElementsOf(name, member.st);
    if (py::len(elements) != static_cast<std::size_t>(count)) {
      RaiseRefused({name, std::to_string(count) + " values are wanted"});
    }
    for (int i = 1; i <= count; ++i) {
      given.Add(*FindMemberInput(Element(name, i), member.st), elements[i - 1]);
    }
  }
  S changed = member.st;
  if (const auto refused = TheEngine().inputs.Put(given.cells, false, changed)) {
    RaiseRefused(*refused);
  }
  for (const InputCell& cell : given.cells) {
    // A text taken away, which a table leaves as it is.
    if (cell.input->kind == InputKind::Text && cell.text.empty()) {
      StoreText(changed, cell.input->ref, {});
    }
  }
  member.st = std::move(changed);
}

bool HaveSameInput(const ProjectState& a, const ProjectState& b) {
  for (const std::string& name : FieldNames()) {
    if (IsWorkedOut(name, a) && IsWorkedOut(name, b)) continue;
    const bool same =
        std::visit([&](auto field) { return a.*field == b.*field; }, FindInputField(name)->member);
    if (!same) return false;
  }
  return true;
}

namespace {

py::object Raw(const int16& v) {
  return py::int_(int(v));
}
py::object Raw(const float32& v) {
  return py::float_(double(v));
}
py::object Raw(const number& v) {
  return v.IsEmpty() ? py::object(py::none()) : py::object(py::float_(double(v)));
}
py::object Raw(const std::string& v) {
  return ToStr(v);
}

void FromRaw(py::handle value, int16& v) {
  v = value.cast<int>();
}
void FromRaw(py::handle value, float32& v) {
  v = value.cast<double>();
}
void FromRaw(py::handle value, number& v) {
  v = value.is_none() ? number::Empty() : number(value.cast<double>());
}
void FromRaw(py::handle value, std::string& v) {
  v = FromStr(value);
}

}  // namespace

py::dict RawFields(const ProjectState& st) {
  py::dict fields;
  ForEachField(st, [&](const char* name, const auto& value) {
    if constexpr (kIsArray<std::remove_cvref_t<decltype(value)>>) {
      py::list elements;
      for (const auto& element : value) elements.append(Raw(element));
      fields[name] = elements;
    } else {
      fields[name] = Raw(value);
    }
  });
  return fields;
}

void SetRawFields(const py::dict& fields, ProjectState& st) {
  ForEachField(st, [&](const char* name, auto& value) {
    if (!fields.contains(name)) return;
    const py::object given = fields[name];
    if constexpr (kIsArray<std::remove_cvref_t<decltype(value)>>) {
      const auto elements = given.cast<py::sequence>();
      std::size_t i = 0;
      for (auto& element : value) {
        const py::object item = elements[i++];
        FromRaw(item, element);
      }
    } else {
      FromRaw(given, value);
    }
  });
}

py::dict DescribeFields() {
  py::dict described;
  const S st;
  for (const std::string& name : MemberInputNames()) {
    const MemberInput input = *FindMemberInput(name, st);
    described[ToStr(name)] = py::make_tuple(UnitOf(input), RangeOf(input, st));
  }
  return described;
}

}  // namespace korvane::python
