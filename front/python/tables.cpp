// SPDX-License-Identifier: GPL-3.0-or-later
// Tables, grids and studies on arrays; the lock of Python is free while they run.
#include "front/python/tables.h"

#include <pybind11/numpy.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <unordered_map>

#include "front/python/convert.h"
#include "front/python/engine.h"
#include "studies/all_sections.h"
#include "studies/interaction.h"
#include "studies/member_columns.h"
#include "studies/solve.h"

namespace korvane::python {

namespace {

using Numbers = py::array_t<double, py::array::c_style | py::array::forcecast>;
using Places = py::array_t<std::int32_t, py::array::c_style>;
using Singles = py::array_t<float, py::array::c_style>;

template <class Array>
auto SpanOf(const Array& array) {
  return std::span(array.data(), static_cast<std::size_t>(array.size()));
}
template <class Array>
auto MutableSpanOf(Array& array) {
  return std::span(array.mutable_data(), static_cast<std::size_t>(array.size()));
}

// --- Words of a column --------------------------------------------------------------------------

/// What stands for an empty cell among objects.
bool IsNothing(PyObject* value) {
  if (value == Py_None) return true;
  if (PyFloat_Check(value) != 0) return std::isnan(PyFloat_AS_DOUBLE(value));
  const std::string_view type = Py_TYPE(value)->tp_name;
  return type.ends_with("NAType") || type.ends_with("NaTType");
}

/// The texts of an array of objects, each once, and their places, -1 for an empty cell.
py::tuple ColumnWords(const py::array& objects) {
  if (objects.dtype().kind() != 'O' || objects.ndim() != 1) {
    throw py::type_error("an array of objects is wanted");
  }
  Places places(objects.size());
  auto put = places.mutable_unchecked<1>();
  std::vector<std::string> words;
  std::unordered_map<std::string, std::int32_t> known;
  // Rows mostly share their texts.
  std::unordered_map<PyObject*, std::int32_t> seen;
  for (py::ssize_t i = 0; i < objects.size(); ++i) {
    PyObject* const value = *static_cast<PyObject* const*>(objects.data(i));
    const auto [at, isNew] = seen.try_emplace(value, -1);
    if (isNew && !IsNothing(value)) {
      const std::string word = FromStr(py::str(py::handle(value)));
      const auto next = static_cast<std::int32_t>(words.size());
      const auto place = word.empty() ? known.end() : known.try_emplace(word, next).first;
      if (place != known.end()) at->second = place->second;
      if (at->second == next) words.push_back(word);
    }
    put(i) = at->second;
  }
  py::list list;
  for (const std::string& word : words) list.append(ToStr(word));
  return py::make_tuple(places, list);
}

// --- Rows in columns ----------------------------------------------------------------------------

/// A column as it comes: (name, numbers, every) or (name, (places, words), every).
InputColumn ColumnOf(const py::tuple& given, const ProjectState& base, py::list& kept) {
  const std::string name = given[0].cast<std::string>();
  const auto input = FindMemberInput(name, base);
  if (!input) RaiseUnknown("column", name, MemberInputNames());
  InputColumn column{*input, {}, {}, {}, given[2].cast<std::size_t>()};
  if (py::isinstance<py::tuple>(given[1])) {
    const auto parts = given[1].cast<py::tuple>();
    const auto places = parts[0].cast<Places>();
    for (const py::handle word : parts[1].cast<py::list>()) column.words.push_back(FromStr(word));
    for (const std::int32_t place : SpanOf(places)) {
      if (place >= static_cast<std::int32_t>(column.words.size())) {
        throw py::index_error("a place beyond the words of column " + name);
      }
    }
    column.places = SpanOf(places);
    kept.append(places);
  } else {
    const auto numbers = given[1].cast<Numbers>();
    column.numbers = SpanOf(numbers);
    kept.append(numbers);
  }
  return column;
}

/// Texts by their places as objects that rows share.
py::object TextsAt(const py::list& texts, const Places& places) {
  const py::module_ numpy = py::module_::import("numpy");
  py::object objects = numpy.attr("empty")(py::len(texts), "object");
  for (std::size_t i = 0; i < texts.size(); ++i) objects[py::int_(i)] = texts[i];
  return objects.attr("take")(places);
}

/// Designs rows * inputs; the columns of results by name. The names are checked by the caller.
py::dict DesignRows(const Member& base, const py::list& inputs, std::size_t rows,
                    const std::vector<std::string>& results, bool lightest, int jobs,
                    std::size_t firstRow) {
  MemberColumns table;
  table.rows = rows;
  table.firstRow = firstRow;
  py::list kept;
  for (const py::handle given : inputs) {
    InputColumn column = ColumnOf(given.cast<py::tuple>(), base.st, kept);
    const bool empty = column.numbers.empty() && column.places.empty();
    if (rows > 0 && (empty || column.every == 0)) {
      throw py::value_error("column " + column.input.name + " is empty");
    }
    table.inputs.push_back(std::move(column));
  }
  std::vector<std::pair<std::string, py::object>> made;
  const auto size = static_cast<py::ssize_t>(rows);
  for (const std::string& name : results) {
    const ResultColumn* column = FindResultColumn(name);
    if (column == nullptr) {
      std::vector<std::string> known;
      for (const ResultColumn& each : AllResultColumns()) known.emplace_back(each.name);
      RaiseUnknown("result", name, known);
    }
    OutputColumn output{column, {}, {}};
    if (column->text != nullptr) {
      Places places(size);
      output.places = MutableSpanOf(places);
      made.emplace_back(name, places);
    } else {
      Singles numbers(size);
      output.numbers = MutableSpanOf(numbers);
      made.emplace_back(name, numbers);
    }
    table.outputs.push_back(output);
  }
  if (lightest) {
    Places sections(size);
    Singles weights(size);
    Singles ratios(size);
    table.lightest = {MutableSpanOf(sections), MutableSpanOf(weights), MutableSpanOf(ratios)};
    made.emplace_back("optimised_section", sections);
    made.emplace_back("optimised_weight", weights);
    made.emplace_back("optimised_IR", ratios);
  }
  const Engine& engine = TheEngine();
  const ProjectState state = base.st;
  SharedTexts shared;
  bool all = false;
  {
    const py::gil_scoped_release free;
    all = DesignColumns(engine.started, state, engine.inputs, table, shared, jobs, [] {
      const py::gil_scoped_acquire held;
      return PyErr_CheckSignals() == 0;
    });
  }
  if (!all) throw py::error_already_set();
  py::list texts;
  for (const std::string& text : shared.Take()) texts.append(ToStr(text));
  py::dict columns;
  for (const auto& [name, array] : made) {
    const bool isText = py::isinstance<Places>(array);
    columns[name.c_str()] = isText ? TextsAt(texts, array.cast<Places>()) : array;
  }
  return columns;
}

py::list ResultNames() {
  py::list names;
  for (const ResultColumn& column : AllResultColumns()) {
    names.append(py::make_tuple(column.name, column.unit, column.meaning));
  }
  return names;
}

/// The input that a heading names, in whatever case; None for none.
py::object InputOfHeading(const Member& base, const std::string& heading) {
  std::string small = heading;
  for (char& c : small) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  for (const std::string& name : {heading, small}) {
    const auto input = FindMemberInput(name, base.st);
    if (!input) continue;
    const bool isNumber = input->kind == InputKind::Field || input->kind == InputKind::Loads;
    return py::make_tuple(input->name, isNumber);
  }
  return py::none();
}

[[noreturn]] void RaiseUnknownColumn(const std::string& heading) {
  RaiseUnknown("column", heading, MemberInputNames());
}

// --- Every size ---------------------------------------------------------------------------------

std::vector<std::string> SeriesWords() {
  std::vector<std::string> words;
  for (const CatalogueSize& size : AllSizes()) {
    const std::string word = SeriesWord(size);
    if (std::find(words.begin(), words.end(), word) == words.end()) words.push_back(word);
  }
  return words;
}

std::string SeriesMeant(const std::string& word) {
  const auto known = SeriesWords();
  for (const std::string& each : known) {
    if (SectionKey(each) == SectionKey(word)) return SectionKey(each);
  }
  RaiseUnknown("series", word, known);
}

std::vector<std::string> CatalogueNames(const std::string& series) {
  return NamesOfSeries(SeriesMeant(series), TheEngine().library->catalogues);
}

py::dict SectionColumns(const Member& base, const std::vector<std::string>& series) {
  std::vector<std::string> keys;
  for (const std::string& word : series) keys.push_back(SeriesMeant(word));
  const ProjectState state = base.st;
  std::vector<SizeResult> rows;
  {
    const py::gil_scoped_release free;
    rows = DesignSizes(TheEngine().started, state, [&](const CatalogueSize& size) {
      return keys.empty() ||
             std::find(keys.begin(), keys.end(), SectionKey(SeriesWord(size))) != keys.end();
    });
  }
  py::dict columns;
  const auto texts = [&](const char* name, auto&& textOf) {
    py::list list;
    for (const SizeResult& row : rows) list.append(ToStr(textOf(row)));
    Places places(static_cast<py::ssize_t>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      places.mutable_at(i) = static_cast<std::int32_t>(i);
    }
    columns[name] = TextsAt(list, places);
  };
  const auto numbers = [&](const char* name, float SizeResult::*value, bool zeroIsNone) {
    Singles array(static_cast<py::ssize_t>(rows.size()));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      const bool none = rows[i].standing == Standing::Stopped || rows[i].*value == 0;
      array.mutable_at(i) =
          zeroIsNone && none ? std::numeric_limits<float>::quiet_NaN() : rows[i].*value;
    }
    columns[name] = array;
  };
  texts("section", [](const SizeResult& r) { return r.name; });
  numbers("h", &SizeResult::h, false);
  numbers("b", &SizeResult::b, false);
  numbers("kg_m", &SizeResult::weight, false);
  numbers("m2_m", &SizeResult::surface, false);
  numbers("kg", &SizeResult::totalWeight, false);
  numbers("m2", &SizeResult::totalSurface, false);
  numbers("MaxIR", &SizeResult::MaxIR, true);
  numbers("L_over_z", &SizeResult::LoverZ, true);
  numbers("L_over_y", &SizeResult::LoverY, true);
  texts("governing", [](const SizeResult& r) { return r.governing; });
  texts("standing", [](const SizeResult& r) { return StandingWord(r.standing); });
  texts("sls", [](const SizeResult& r) { return ServiceabilityWord(r.sls); });
  return columns;
}

// --- How far ------------------------------------------------------------------------------------

/// An answer with its question.
struct Solved {
  Question question;
  Answer answer;
};

Solved SolveFor(const Member& base, const std::string& name, std::optional<double> low,
                std::optional<double> high, bool sls) {
  const auto input = FindMemberInput(name, base.st);
  if (!input || (input->kind != InputKind::Field && input->kind != InputKind::Loads)) {
    RaiseUnknown("input", name, MemberInputNames());
  }
  Solved solved;
  Question& question = solved.question;
  question.input = *input;
  question.present = PresentValue(base.st, *input);
  question.sls = sls;
  DefaultRange(base.st, question);
  question.low = low.value_or(question.low);
  question.high = high.value_or(question.high);
  if (!(question.low < question.high) || !std::isfinite(question.low) ||
      !std::isfinite(question.high)) {
    throw py::value_error("between=(A, B), A less than B");
  }
  const ProjectState state = base.st;
  const py::gil_scoped_release free;
  solved.answer = Solve(TheEngine().started, state, TheEngine().inputs, question);
  return solved;
}

std::string Six(double value) {
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::general, 6)
                           .ptr};
}

/// "L up to 6.84 m: lateral buckling"
std::string WordsOf(const Solved& s) {
  const std::string unit = UnitOf(s.question.input);
  const auto with = [&](double value) { return Six(value) + (unit.empty() ? "" : " " + unit); };
  const std::string& name = s.question.input.name;
  const PassingInterval* own = s.answer.OfPresent(s.question.present);
  if (s.answer.intervals.empty()) {
    return name + ": nothing passes from " + Six(s.question.low) + " to " + with(s.question.high);
  }
  std::string words;
  if (own == nullptr) {
    words = name + " = " + with(s.question.present) +
            (s.answer.present.passes ? " passes" : " does not pass");
    for (const PassingInterval& interval : s.answer.intervals) {
      words += ", from " + Six(interval.low) + " to " + with(interval.high) + " passes";
    }
    return words;
  }
  if (own->above) {
    words = name + " up to " + with(own->high) + ": " + own->above->failing.check;
  }
  if (own->below) {
    words += (words.empty() ? name : std::string(",")) + " down to " + with(own->low) + ": " +
             own->below->failing.check;
  }
  if (!words.empty()) return words;
  return name + ": everything passes from " + Six(s.question.low) + " to " + with(s.question.high);
}

void BindSolve(py::module_& m) {
  py::class_<Trial>(m, "Trial", "A value with its design.")
      .def_readonly("value", &Trial::value)
      .def_readonly("passes", &Trial::passes)
      .def_readonly("IR", &Trial::IR, "The greatest ratio.")
      .def_readonly("check", &Trial::check, "The governing check, or why there is none.")
      .def("__repr__", [](const Trial& t) {
        return ToStr("<Trial " + Six(t.value) + (t.passes ? ": passes, " : ": does not pass, ") +
                     Six(t.IR) + " " + t.check + ">");
      });
  py::class_<Border>(m, "Border", "The last value that passes, to six digits, and the next one.")
      .def_readonly("passing", &Border::passing)
      .def_readonly("failing", &Border::failing);
  py::class_<PassingInterval>(m, "Interval", "A run of values that pass.")
      .def_readonly("low", &PassingInterval::low)
      .def_readonly("high", &PassingInterval::high)
      .def_readonly("below", &PassingInterval::below, "The border, None at the end of the range.")
      .def_readonly("above", &PassingInterval::above, "The border, None at the end of the range.")
      .def("__repr__", [](const PassingInterval& i) {
        return ToStr("<Interval " + Six(i.low) + " to " + Six(i.high) + ">");
      });
  py::class_<Solved>(m, "Answer", "How far a value can go while the member passes.")
      .def_property_readonly("input", [](const Solved& s) { return s.question.input.name; })
      .def_property_readonly("unit", [](const Solved& s) { return UnitOf(s.question.input); })
      .def_property_readonly(
          "low", [](const Solved& s) { return s.question.low; }, "Where was looked from.")
      .def_property_readonly(
          "high", [](const Solved& s) { return s.question.high; }, "Where was looked to.")
      .def_property_readonly(
          "present", [](const Solved& s) { return s.answer.present; }, "The present value.")
      .def_property_readonly(
          "intervals", [](const Solved& s) { return s.answer.intervals; },
          "All runs of values that pass, rising.")
      .def_property_readonly(
          "interval",
          [](const Solved& s) -> py::object {
            const PassingInterval* own = s.answer.OfPresent(s.question.present);
            return own == nullptr ? py::object(py::none()) : py::cast(*own);
          },
          "The run that holds the present value, or None.")
      .def("__str__", [](const Solved& s) { return ToStr(WordsOf(s)); })
      .def("__repr__", [](const Solved& s) { return ToStr("<Answer " + WordsOf(s) + ">"); });
  m.def("solve", &SolveFor);
}

// --- Interaction --------------------------------------------------------------------------------

py::array_t<double> Interaction(const Member& base, const std::string& axes, int directions) {
  const std::vector<std::string> words{"N-My", "N-Mz", "My-Mz"};
  const auto found = std::find(words.begin(), words.end(), axes);
  if (found == words.end()) RaiseUnknown("diagram", axes, words);
  if (directions < 3) throw py::value_error("3 directions at least are wanted");
  const ProjectState state = base.st;
  std::vector<EnvelopePoint> points;
  {
    const py::gil_scoped_release free;
    const Outcome outcome(state);
    points = InteractionEnvelope(TheEngine().started, state,
                                 static_cast<InteractionAxes>(found - words.begin()),
                                 GoverningForces(outcome.design), directions);
  }
  py::array_t<double> array({static_cast<py::ssize_t>(points.size()), py::ssize_t{2}});
  for (std::size_t i = 0; i < points.size(); ++i) {
    array.mutable_at(i, 0) = points[i].a;
    array.mutable_at(i, 1) = points[i].b;
  }
  return array;
}

}  // namespace

void BindTables(py::module_& m) {
  m.def("column_words", &ColumnWords);
  m.def("design_rows", &DesignRows);
  m.def("result_columns", &ResultNames);
  m.def("input_of_heading", &InputOfHeading);
  m.def("raise_unknown_column", &RaiseUnknownColumn);
  m.def("series_words", &SeriesWords);
  m.def("catalogue_names", &CatalogueNames);
  m.def("section_columns", &SectionColumns);
  m.def("interaction", &Interaction);
  BindSolve(m);
}

}  // namespace korvane::python
