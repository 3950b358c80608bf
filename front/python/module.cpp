// SPDX-License-Identifier: GPL-3.0-or-later
// The module for Python: a design with its fields, and its results.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include "checks/results.h"
#include "core/project_file.h"
#include "front/design_json.h"
#include "front/file_message.h"
#include "front/painter/drawing_job.h"
#include "front/painter/report_job.h"
#include "front/painter/svg_page.h"
#include "front/painter_module.h"
#include "front/python/convert.h"
#include "front/python/engine.h"
#include "front/python/fields.h"
#include "front/python/tables.h"
#include "studies/all_sections.h"
#include "studies/result_columns.h"

namespace korvane::python {

namespace {

using OutcomePointer = std::shared_ptr<Outcome>;

// --- A member's input ---------------------------------------------------------------------------

Member OpenMemberFile(const std::string& path) {
  Member member;
  bool notFound = false;
  const auto bytes = ReadWholeFile(path, &notFound);
  member.st = TheEngine().started.st;
  const FileResult result = bytes      ? ReadProject(*bytes, member.st)
                            : notFound ? FileResult::NotFound
                                       : FileResult::OtherError;
  if (result != FileResult::Ok) {
    const py::handle type = result == FileResult::NotFound   ? PyExc_FileNotFoundError
                            : result == FileResult::TooShort ? PyExc_ValueError
                                                             : PyExc_OSError;
    PyErr_SetObject(type.ptr(), ToStr(FileMessage(result, path)).ptr());
    throw py::error_already_set();
  }
  for (const std::string& remark : RemarksOn(*bytes)) {
    if (PyErr_WarnEx(PyExc_UserWarning, (path + ": " + remark).c_str(), 2) != 0) {
      throw py::error_already_set();
    }
  }
  member.st.CurrentFileName = path;
  member.file = path;
  return member;
}

void SaveMember(Member& member, const py::object& path) {
  std::string file = path.is_none() ? member.file : PathOf(path);
  if (file.empty()) throw py::value_error("a new design needs a name to be saved by");
  const WriteResult result = SaveProject(file, member.st);
  if (!result) RaiseNotWritten(file, result);
  member.st.CurrentFileName = file;
  member.file = std::move(file);
}

OutcomePointer CalculateMember(const py::object& self) {
  auto outcome = std::make_shared<Outcome>(self.cast<const Member&>().st);
  if (outcome->stopped) {
    RaiseStopped(outcome->stopped->step, outcome->stopped->what,
                 py::cast(Member(self.cast<const Member&>())));
  }
  return outcome;
}

/// Calculated for what is shown, where a failure is told too.
OutcomePointer OutcomeOf(const Member& member) {
  return std::make_shared<Outcome>(member.st);
}

// --- Results ------------------------------------------------------------------------------------

struct NamedCheck {
  const char* name;
  CheckLine CheckResults::*line;
};
constexpr std::array kChecks{NamedCheck{"section", &CheckResults::lineSection},
                             NamedCheck{"Vz", &CheckResults::lineVz},
                             NamedCheck{"Vy", &CheckResults::lineVy},
                             NamedCheck{"lateral", &CheckResults::lineLateral},
                             NamedCheck{"buckling_y", &CheckResults::lineBucklingY},
                             NamedCheck{"buckling_z", &CheckResults::lineBucklingZ},
                             NamedCheck{"slenderness", &CheckResults::lineSlenderness}};

struct NamedRatio {
  const char* name;
  number CheckResults::*ratio;
};
constexpr std::array kRatios{NamedRatio{"section", &CheckResults::IRsection},
                             NamedRatio{"Vz", &CheckResults::IRvz},
                             NamedRatio{"Vy", &CheckResults::IRvy},
                             NamedRatio{"lateral", &CheckResults::IRlateral},
                             NamedRatio{"Ny", &CheckResults::IRny},
                             NamedRatio{"Nz", &CheckResults::IRnz},
                             NamedRatio{"combined_y", &CheckResults::IRcombinedY},
                             NamedRatio{"combined_z", &CheckResults::IRcombinedZ}};

py::dict ChecksOf(Outcome& outcome) {
  const CheckResults& results = outcome.WithLines().checks;
  py::dict checks;
  for (const NamedCheck& check : kChecks) {
    const CheckLine& line = results.*check.line;
    if (!line.label.empty()) checks[check.name] = line;
  }
  return checks;
}

py::dict RatiosOf(const Outcome& outcome) {
  py::dict ratios;
  for (const NamedRatio& ratio : kRatios) {
    ratios[ratio.name] = double(outcome.design.checks.*ratio.ratio);
  }
  return ratios;
}

struct Station {
  const char* name;
  const StationValues& (*values)(const Design&);
};
constexpr std::array kStations{
    Station{"My", [](const Design& d) -> const StationValues& { return d.beam.z.M; }},
    Station{"Vz", [](const Design& d) -> const StationValues& { return d.beam.z.V; }},
    Station{"Mz", [](const Design& d) -> const StationValues& { return d.beam.y.M; }},
    Station{"Vy", [](const Design& d) -> const StationValues& { return d.beam.y.V; }},
    Station{"DeflZ", [](const Design& d) -> const StationValues& { return d.deflections.DeflZ; }},
    Station{"DeflY", [](const Design& d) -> const StationValues& { return d.deflections.DeflY; }}};

py::dict StationsOf(const Outcome& outcome) {
  const auto array = [](auto&& valueAt) {
    py::array_t<double> values(StationValues::kLast + 1);
    auto put = values.mutable_unchecked<1>();
    for (int i = 0; i <= StationValues::kLast; ++i) put(i) = valueAt(i);
    return values;
  };
  py::dict stations;
  stations["x"] = array([&](int i) { return outcome.design.st.L * i / StationValues::kLast; });
  for (const Station& station : kStations) {
    stations[station.name] = array([&](int i) { return station.values(outcome.design)[i]; });
  }
  return stations;
}

py::object FloatOrNone(std::optional<float> value) {
  return value ? py::object(py::float_(Typed(*value))) : py::object(py::none());
}

py::list NotesOf(const Verdict& verdict) {
  py::list notes;
  for (const Note& note : verdict.notes) notes.append(note);
  return notes;
}

/// A part of the JSON as an object with attributes, made by Python.
py::object Group(const py::object& self, const char* name) {
  return py::module_::import("korvane._groups").attr("group")(self, name);
}

// --- Pictures and pages -------------------------------------------------------------------------

PaintJob SheetsJob(Outcome& outcome, const std::string& kind) {
  const Sheets* sheets = FindSheets(kind);
  if (sheets == nullptr) {
    std::vector<std::string> words;
    for (const Sheets& known : AllSheets()) words.emplace_back(known.word);
    RaiseUnknown("kind of report", kind, words);
  }
  return ReportJob(outcome.WithLines(), sheets->reports, TimeOfPrint(),
                   {"project.kvn", ProjectText(outcome.input)});
}

py::list SheetsSvg(Outcome& outcome, const std::string& kind) {
  const PaintJob job = SheetsJob(outcome, kind);
  py::list pages;
  for (std::size_t page = 0; page < job.pages.size(); ++page) {
    pages.append(ToStr(SvgPage(job, page)));
  }
  return pages;
}

py::bytes SheetsPdf(Outcome& outcome, const std::string& kind,
                    const std::vector<std::string>& folders) {
  std::string bytes;
  const std::string error =
      PaintByModule(SheetsJob(outcome, kind), {folders.begin(), folders.end()}, bytes);
  if (!error.empty()) throw std::runtime_error(error + "; a report that ends in .svg needs none");
  return bytes;
}

py::str DrawingSvg(const Outcome& outcome, const std::string& what) {
  const Drawing* drawing = FindDrawing(what);
  if (drawing == nullptr) {
    std::vector<std::string> words;
    for (const Drawing& known : AllDrawings()) words.emplace_back(known.word);
    RaiseUnknown("drawing", what, words);
  }
  const std::string_view why = WhyNotDrawn(*drawing, outcome.design.st);
  if (!why.empty()) throw py::value_error(std::string(why));
  return ToStr(SvgPage(DrawingJob(outcome.design, *drawing), 0));
}

void WriteBytes(const py::object& path, const py::bytes& bytes) {
  const std::string file = PathOf(path);
  const WriteResult result = WriteFile(file, std::string_view(bytes));
  if (!result) RaiseNotWritten(file, result);
}

// --- The classes --------------------------------------------------------------------------------

void BindDesign(py::module_& m) {
  py::class_<Member>(m, "Design",
                     "One member, a column or a beam: its input by the names of the program.\n\n"
                     "Design() is a new project, Design(\"beam.kvn\") opens one; fields may follow "
                     "by name.\nLengths in m, sections in mm, loads in kN, kN/m and kNm; "
                     "korvane.fields() tells all.")
      .def(py::init([](const py::object& path, const py::kwargs& fields) {
             Member member = path.is_none() ? Member() : OpenMemberFile(PathOf(path));
             if (!fields.empty()) SetFields(member, fields);
             return member;
           }),
           py::arg("path") = py::none())
      .def("__getitem__", &GetField, py::arg("name"), "The value of a field, in its unit.")
      .def(
          "__setitem__",
          [](Member& self, const py::object& name, const py::object& value) {
            py::dict one;
            one[name] = value;
            SetFields(self, one);
          },
          py::arg("name"), py::arg("value"),
          "Sets a field, in its unit. Raises KeyError for an unknown one, InputRefused (a "
          "ValueError)\nwith the message of the forms for a value beyond its limits.")
      .def(
          "update",
          [](Member& self, const py::object& values, const py::kwargs& fields) {
            py::dict all;
            if (!values.is_none()) all = py::dict(values);
            for (const auto& [name, value] : fields) all[name] = value;
            SetFields(self, all);
          },
          py::arg("values") = py::none(), "Sets several fields at once, all or none.")
      .def(
          "keys", [](const Member&) { return FieldNames(); }, "The names of all fields.")
      .def("__iter__", [](const Member&) { return py::iter(py::cast(FieldNames())); })
      .def("__len__", [](const Member&) { return FieldNames().size(); })
      .def("__contains__",
           [](const Member& self, const std::string& name) {
             const auto& names = FieldNames();
             return FindMemberInput(name, self.st).has_value() ||
                    std::find(names.begin(), names.end(), name) != names.end();
           })
      .def_property(
          "section", [](const Member& self) { return GetField(self, "section"); },
          [](Member& self, const py::object& name) {
            py::dict one;
            one["section"] = name;
            SetFields(self, one);
          },
          "The section by its name: \"HEA200\", \"RHS 100x100x5\", \"I 600x300x12x20\".")
      .def_property(
          "material", [](const Member& self) { return GetField(self, "material"); },
          [](Member& self, const py::object& name) {
            py::dict one;
            one["material"] = name;
            SetFields(self, one);
          },
          "The steel grade by its name: \"S355\".")
      .def_property(
          "support", [](const Member& self) { return GetField(self, "support"); },
          [](Member& self, const py::object& name) {
            py::dict one;
            one["support"] = name;
            SetFields(self, one);
          },
          "The support in words, the left end first: \"pinned - fixed\". Brings its buckling "
          "cases.")
      .def_property_readonly(
          "file",
          [](const Member& self) {
            return self.file.empty() ? py::object(py::none()) : ToStr(self.file);
          },
          "The project file, None for a new design.")
      .def("calculate", &CalculateMember,
           "Designs the member. Raises ArithmeticFault where the calculation stops.")
      .def(
          "scale_loads",
          [](Member& self, double factor) {
            ProjectState scaled = self.st;
            ScaleLoads(factor, scaled);
            self.st = std::move(scaled);
          },
          py::arg("factor"), "All loads and end forces times a factor; the self weight stays.")
      .def("save", &SaveMember, py::arg("path") = py::none(),
           "Writes the project file (*.kvn), by default the one that was opened.")
      .def(
          "copy", [](const Member& self) { return self; },
          "A design of its own, of the same input.")
      .def("__copy__", [](const Member& self) { return self; })
      .def("__deepcopy__", [](const Member& self, const py::dict&) { return self; })
      .def("__eq__",
           [](const Member& self, const py::object& other) -> py::object {
             if (!py::isinstance<Member>(other)) {
               return py::reinterpret_borrow<py::object>(Py_NotImplemented);
             }
             return py::bool_(HaveSameInput(self.st, other.cast<const Member&>().st));
           })
      .def("_outcome", &OutcomeOf)
      .def("__repr__",
           [](const Member& self) {
             return ToStr("<Design " + MemberWords(self.st) + ": " +
                          OutcomeWords(*OutcomeOf(self)) + ">");
           })
      .def(py::pickle(
          [](const Member& self) { return py::make_tuple(RawFields(self.st), ToStr(self.file)); },
          [](const py::tuple& state) {
            Member member;
            SetRawFields(state[0].cast<py::dict>(), member.st);
            member.file = FromStr(state[1]);
            return member;
          }))
      // A design changes: it can't be looked up by what it holds.
      .attr("__hash__") = py::none();
}

void BindVerdict(py::module_& m) {
  py::class_<Note>(m, "Note", "A remark of the verdict.")
      .def_property_readonly(
          "code", [](const Note& n) { return KindOf(n.code).word; }, "Its fixed code.")
      .def_property_readonly(
          "severity", [](const Note& n) { return SeverityWord(n.Weight()); },
          "\"information\", \"caution\", \"not checked\" or \"fails\".")
      .def_property_readonly(
          "text", [](const Note& n) { return ToStr(NoteText(n, TheEngine().library->catalogues)); },
          "One sentence with its numbers.")
      .def("__repr__", [](const Note& n) {
        return ToStr("<Note " + std::string(SeverityWord(n.Weight())) + ": " +
                     NoteText(n, TheEngine().library->catalogues) + ">");
      });

  py::class_<Verdict>(m, "Verdict",
                      "What may be said of a design as a whole. It is true where the member "
                      "passes.")
      .def_property_readonly(
          "standing", [](const Verdict& v) { return StandingWord(v.standing); },
          "\"passes\", \"fails\", \"not checked\" or \"stopped\".")
      .def_property_readonly("passes", &Verdict::Passes, "Whether the member passes.")
      .def_property_readonly(
          "sls", [](const Verdict& v) { return ServiceabilityWord(v.sls); },
          "Of the deflection: \"passes\", \"fails\" or \"none\".")
      .def_readonly("IR", &Verdict::IR, "The greatest ratio of all checks.")
      .def_readonly("limit", &Verdict::limit, "The allowable ratio.")
      .def_property_readonly("governing", &GoverningLabel, "The check with the greatest ratio.")
      .def_property_readonly("notes", &NotesOf, "The remarks, the most severe first.")
      .def("__bool__", &Verdict::Passes)
      .def("__str__", [](const Verdict& v) { return StandingWord(v.standing); })
      .def("__repr__", [](const Verdict& v) {
        return ToStr("<Verdict " + std::string(StandingWord(v.standing)) + ">");
      });

  py::class_<CheckLine>(m, "Check", "A check as it is printed.")
      .def_readonly("label", &CheckLine::label, "What is checked.")
      .def_readonly("formula", &CheckLine::formula, "The formula.")
      .def_readonly("numbers", &CheckLine::numbers, "The formula with its numbers.")
      .def_readonly("value", &CheckLine::value, "The ratio as it is printed.")
      .def_readonly("limit", &CheckLine::limit, "The limit as it is printed.")
      .def("__str__",
           [](const CheckLine& c) {
             return ToStr(c.label + " " + c.formula + c.numbers + c.value + c.limit);
           })
      .def("__repr__", [](const CheckLine& c) {
        return ToStr("<Check " + c.label + " " + c.value + c.limit + ">");
      });
}

void BindResult(py::module_& m) {
  py::class_<Outcome, OutcomePointer>(m, "Result",
                                      "The results of one design; they don't change any more.")
      .def_property_readonly(
          "max_ir", [](const Outcome& o) { return Typed(MaxIR(o.design.checks)); },
          "The greatest ratio of all checks.")
      .def_readonly("verdict", &Outcome::verdict, "What may be said of the design as a whole.")
      .def_property_readonly(
          "passes", [](const Outcome& o) { return o.verdict.Passes(); },
          "Whether the member passes.")
      .def_property_readonly(
          "governing", [](const Outcome& o) { return GoverningLabel(o.verdict); },
          "The check with the greatest ratio.")
      .def_property_readonly("checks", &ChecksOf,
                             "The checks as they are printed, by name: section, Vz, Vy, lateral, "
                             "buckling_y, buckling_z, slenderness; those alone that were done.")
      .def_property_readonly("ratios", &RatiosOf, "The ratio of each check by name.")
      .def_property_readonly("stations", &StationsOf,
                             "Arrays of 51 values: x (m), My, Mz (kNm), Vz, Vy (kN), DeflZ, DeflY "
                             "(mm).")
      .def_property_readonly(
          "L_over_z", [](const Outcome& o) { return FloatOrNone(LengthOverDeflectionZ(o.design)); },
          "x of the greatest deflection L/x along z, None without deflection.")
      .def_property_readonly(
          "L_over_y", [](const Outcome& o) { return FloatOrNone(LengthOverDeflectionY(o.design)); },
          "x of the greatest deflection L/x along y, None without deflection.")
      .def_property_readonly(
          "section", [](const py::object& self) { return Group(self, "section"); },
          "The section's values by name: name, S (kg/m), h, b (mm), A (mm2), Wely (mm3), ...")
      .def_property_readonly(
          "analysis", [](const py::object& self) { return Group(self, "analysis"); },
          "Forces by name: N (kN), My_max (kNm), ...")
      .def_property_readonly(
          "deflection", [](const py::object& self) { return Group(self, "deflection"); },
          "Deflections by name: DeflZ_max (mm), ...")
      .def_property_readonly(
          "buckling", [](const py::object& self) { return Group(self, "buckling"); },
          "Column buckling by name: Lybar, Xy, Nyd (kN), ...")
      .def_property_readonly(
          "ltb", [](const py::object& self) { return Group(self, "ltb"); },
          "Lateral torsional buckling by name: C1, Mcr (Nmm), Mdb (kNm), ...")
      .def_property_readonly(
          "modal", [](const py::object& self) { return Group(self, "modal"); },
          "Natural frequencies, where they are asked for.")
      .def_property_readonly(
          "design",
          [](const Outcome& o) {
            Member member;
            member.st = o.input;
            return member;
          },
          "The input, as a design of its own.")
      .def(
          "to_json",
          [](Outcome& o) {
            const auto fault = o.stopped ? std::optional(o.stopped->step) : std::nullopt;
            return ToStr(DesignJson(o.WithLines(), fault));
          },
          "Everything as one JSON object, as `korvane-cli design --json` writes it.")
      .def_property_readonly("_stopped", [](const Outcome& o) { return o.stopped.has_value(); })
      .def("_name",
           [](const Outcome& o) {
             return ToStr(SectionName(o.input, TheEngine().library->catalogues));
           })
      .def("_words", [](const Outcome& o) { return ToStr(OutcomeWords(o)); })
      .def("_svg", &DrawingSvg)
      .def("_sheets_svg", &SheetsSvg)
      .def("_sheets_pdf", &SheetsPdf)
      .def("__repr__", [](const Outcome& o) {
        return ToStr("<Result " + MemberWords(o.input) + ": " + OutcomeWords(o) + ">");
      });
}

}  // namespace

PYBIND11_MODULE(_engine, m) {
  m.doc() = "The engine of KORVANE.";
  py::register_exception_translator([](std::exception_ptr thrown) {
    try {
      if (thrown) std::rethrow_exception(thrown);
    } catch (const CalculationFault& fault) {
      PyErr_SetString(PyExc_ArithmeticError, fault.what());
    } catch (const ArithmeticFault& fault) {
      PyErr_SetString(PyExc_ArithmeticError, fault.what());
    }
  });
  m.def("start", &StartEngine, py::arg("data_folder"));
  m.def("fields", &DescribeFields);
  m.def("write", &WriteBytes, py::arg("path"), py::arg("bytes"));
  BindVerdict(m);
  BindResult(m);
  BindDesign(m);
  BindTables(m);
}

}  // namespace korvane::python
