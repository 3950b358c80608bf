// SPDX-License-Identifier: GPL-3.0-or-later
// The checker's sheet of every family: on one page, nothing over anything else, every input that
// a design uses, nothing of another section.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

#include "core/calculation.h"
#include "core/input_fields.h"
#include "presentation/aprint.h"
#include "presentation/checker_rows.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"
#include "tests/design/random_states.h"
#include "tests/presentation/sheet_reader.h"
#include "tests/support/full_member.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

/// What the sheet tells besides: chosen points and the modal analysis.
void AddPoints(ProjectState& st) {
  st.ModalAnalysis = 1;
  st.cp_mode = 1, st.cp_count = 3;
}

struct Case {
  int family;
  bool endForces;
};

Design Designed(const Case& c) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = c.family;
  LoadFully(d.st, c.endForces);
  AddPoints(d.st);
  Calculate(d);
  Calculate(d);
  return d;
}

std::vector<std::string> SheetsOf(const Design& d) {
  std::vector<std::string> texts;
  for (const Report report :
       {Report::SectionProperty, Report::SectionAndStability, Report::Checker}) {
    RecordingTarget page;
    DrawReport(page, report, d, {});
    std::ranges::move(page.Texts(), std::back_inserter(texts));
  }
  return texts;
}

/// Every number that a calculation leaves.
std::vector<double> ResultsOf(const Design& d) {
  std::vector<double> r{d.forces.N,
                        d.checks.IRsection,
                        d.checks.IRvz,
                        d.checks.IRvy,
                        d.checks.IRlateral,
                        d.checks.IRny,
                        d.checks.IRnz,
                        d.checks.IRcombinedY,
                        d.checks.IRcombinedZ,
                        d.ltb.Mdb,
                        d.deflections.DeflZ_max,
                        d.deflections.DeflZ_min,
                        d.deflections.DeflY_max,
                        d.deflections.DeflY_min,
                        d.modal.ModalMass,
                        d.buckling.Lybar,
                        d.buckling.Lzbar};
  ForEachSectionField(d.rec, [&r](const char*, const auto& field) { r.push_back(field); });
  for (const PlaneForces* plane : {&d.beam.z, &d.beam.y}) {
    for (int i = 0; i <= 50; ++i) {
      r.push_back(plane->M[i]);
      r.push_back(plane->V[i]);
    }
    for (int i = 0; i <= d.beam.pt_last; ++i) r.push_back(plane->M_pt[i]);
  }
  return r;
}

class CheckerSheet : public ::testing::TestWithParam<Case> {};

TEST_P(CheckerSheet, StaysOnThePageWithNothingOverlapping) {
  const Design d = Designed(GetParam());
  RecordingTarget page;
  DrawReport(page, Report::Checker, d, {});
  const auto bounds = page.Bounds();
  ASSERT_TRUE(bounds.has_value());
  EXPECT_GE(bounds->left, 0.0);
  EXPECT_LE(bounds->right, kPageWidth - 20);
  EXPECT_LE(bounds->bottom, kPageHeight - 5);
  for (const auto& [first, second] : page.OverlappingTexts(0.8)) {
    ADD_FAILURE() << "'" << first << "' over '" << second << "'";
  }
  for (const RecordedShape* text : page.OfKind(ShapeKind::Text)) {
    EXPECT_GE(text->style.size, 6.0) << text->text;
  }
}

// Numbers of the greatest width beside the longest symbols.
TEST_P(CheckerSheet, KeepsGreatNumbersOffTheirNeighbours) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = GetParam().family;
  LoadFully(d.st, GetParam().endForces);
  constexpr double million = 1E6;
  for (float32* load : {&d.st.q1, &d.st.q2, &d.st.q3, &d.st.qt1_2, &d.st.qt3_1, &d.st.NP}) {
    *load = *load * -million;
  }
  for (int i = 1; i <= 2; ++i) {
    d.st.My_end[i] = d.st.My_end[i] * -million;
    d.st.Mz_end[i] = d.st.Mz_end[i] * million;
  }
  try {
    Calculate(d);
    Calculate(d);
  } catch (const CalculationFault&) {
    GTEST_SKIP() << "no capacity is left, and nothing to print";
  }
  RecordingTarget page;
  DrawReport(page, Report::Checker, d, {});
  for (const auto& [first, second] : page.OverlappingTexts(0)) {
    ADD_FAILURE() << "'" << first << "' over '" << second << "'";
  }
}

TEST_P(CheckerSheet, HasNoSymbolTwiceInABlock) {
  const Design d = Designed(GetParam());
  for (const CheckerBlocks& blocks : {CheckerInputs(d), CheckerResults(d)}) {
    for (const CheckerBlock& block : blocks) {
      std::set<std::string> symbols;
      for (const CheckerRow& row : block.rows) {
        EXPECT_TRUE(symbols.insert(row.symbol).second) << block.heading << ": " << row.symbol;
      }
    }
  }
}

/// A change of one element of an input, small for a number, the next code for a choice.
void Nudge(float32& v) {
  v = v == 0 ? 0.75 : v * 1.01;
}
void Nudge(number& v) {
  v = v == 0 ? 0.75 : v * 1.01;
}
void Nudge(int16& v) {
  v = v == 0 ? 1 : v - 1;
}
void Nudge(std::string& v) {
  v += "x";
}

/// Calls test(name, change) for each element of each input, change being what alters a state.
template <class Test>
void ForEachInput(Test&& test) {
  const ProjectState model;
  ForEachField(model, [&test](const char* name, const auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    const std::string wanted = name;
    const auto change = [wanted](ProjectState& st, int element) {
      ForEachField(st, [&](const char* other, auto& value) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(value)>, Field>) {
          if (wanted != other) return;
          if constexpr (requires { Nudge(value); }) {
            Nudge(value);
          } else {
            Nudge(value[element]);
          }
        }
      });
    };
    if constexpr (requires(Field f) { Nudge(f); }) {
      test(wanted, [change](ProjectState& st) { change(st, 1); });
    } else {
      int element = 1;
      for ([[maybe_unused]] const auto& ignored : field) {
        test(wanted + std::to_string(element),
             [change, element](ProjectState& st) { change(st, element); });
        ++element;
      }
    }
  });
}

/// What the calculation writes itself: fd and epsilon by the material step, the segment by the
/// lateral step, states of the windows.
bool WrittenByTheProgram(const std::string& name) {
  constexpr const char* names[] = {"fd", "epsilon", "LtbCriticalSegment", "OptimiseOpen",
                                   "ResultView"};
  return std::ranges::any_of(names, [&name](const char* n) { return name == n; });
}

TEST_P(CheckerSheet, ShowsEveryInputThatTheDesignUses) {
  const Design before = Designed(GetParam());
  const auto texts = SheetsOf(before);
  const auto results = ResultsOf(before);
  int used = 0;
  ForEachInput([&](const std::string& name, const auto& change) {
    if (WrittenByTheProgram(name) || name == "ProfileType" || name == "AnalysisMode") return;
    Design changed = before;
    change(changed.st);
    // The sheets print inputs from the state, so that no calculation is needed to see one.
    const bool shown = SheetsOf(changed) != texts;
    try {
      Calculate(changed);
      Calculate(changed);
    } catch (const ArithmeticFault&) {
    }
    const bool uses = ResultsOf(changed) != results;
    used += uses ? 1 : 0;
    EXPECT_TRUE(shown || !uses) << name << " changes the design and no sheet shows it";
  });
  EXPECT_GT(used, 10);
}

/// What a family is meant to keep of the section before, by the symbols that show it: the
/// class and klt of single symmetric I sections, the thickness that governs fy
/// of T sections, the surface of a flat bar.
bool Kept(int family, const std::string& symbol) {
  const std::map<int, std::set<std::string>> kept{
      {22, {"class", "klt", "ky", "IR first", "IR second"}},
      {26, {"tmax"}},
      {28, {"g"}},
  };
  const auto row = kept.find(family);
  return row != kept.end() && row->second.count(symbol) != 0;
}

TEST_P(CheckerSheet, HoldsNothingOfTheSectionBefore) {
  const Design fresh = Designed(GetParam());
  for (const Family& other : AllFamilies()) {
    Design d(SourceLibrary());
    StartDesign(d);
    d.st.ProfileType = other.code;
    LoadFully(d.st, GetParam().endForces);
    AddPoints(d.st);
    Calculate(d);
    const ProjectState st = fresh.st;
    d.st = st;
    // The weight of the section before is a load of the first of two calculations.
    Calculate(d);
    Calculate(d);
    const auto compare = [&](const CheckerBlocks& a, const CheckerBlocks& b) {
      ASSERT_EQ(a.size(), b.size());
      for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_EQ(a[i].rows.size(), b[i].rows.size()) << a[i].heading << " after " << other.code;
        for (std::size_t k = 0; k < a[i].rows.size(); ++k) {
          if (Kept(GetParam().family, a[i].rows[k].symbol)) continue;
          EXPECT_EQ(a[i].rows[k].value, b[i].rows[k].value)
              << a[i].heading << " " << a[i].rows[k].symbol << " after " << other.code;
        }
      }
    };
    compare(CheckerInputs(fresh), CheckerInputs(d));
    compare(CheckerResults(fresh), CheckerResults(d));
  }
}

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (const Family& f : AllFamilies()) {
    cases.push_back({f.code, false});
    cases.push_back({f.code, true});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, CheckerSheet, ::testing::ValuesIn(AllCases()),
                         [](const auto& i) {
                           return "f" + std::to_string(i.param.family) +
                                  (i.param.endForces ? "ends" : "loads");
                         });

}  // namespace
}  // namespace korvane
