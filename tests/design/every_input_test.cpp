// SPDX-License-Identifier: GPL-3.0-or-later
// Every input matters: for each field of the input record one of a fixed set of members shows a
// result that changes with it, or a reason says why none does.
#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "analysis/loads.h"
#include "core/input_fields.h"
#include "designs.h"
#include "walk_results.h"

namespace korvane {
namespace {

/// Fields that no calculation may answer to, and why.
const std::map<std::string, const char*>& Inert() {
  static const std::map<std::string, const char*> reasons{
      {"CurrentFileName", "place of the project file"},
      {"CurrentDir", "folder of the file dialogs"},
      {"iproj", "text of the title page"},
      {"iident", "text of the title page"},
      {"FamilyName", "word that is printed"},
      {"fd", "derived from fyk and gammam1 by each calculation"},
      {"epsilon", "derived from fyk by each calculation"},
      {"DeflectionLimit", "limit of the optimiser; the calculation compares no deflection"},
      {"LtbCriticalSegment", "written by the lateral check"},
      {"pmx_relative", "how positions are shown"},
      {"qtx_relative", "how positions are shown"},
      {"p41_name", "name of the section"},
      {"p41_tmax", "the general profile always takes the stress of the thin plate"},
      {"OptimiseOpen", "state of the window, closed by each calculation"},
      {"ResultView", "criterion of the optimiser, reset by each calculation"},
      {"FigureNotToScale", "how the figure is drawn"},
      {"DatabaseMode", "state of the section forms"},
  };
  return reasons;
}

// ---- The members ----------------------------------------------------------------------------

void PutAllLoads(ProjectState& st) {
  st.NP = 20;
  st.NV1 = 12;
  st.NV2 = 8;
  st.q1 = 3, st.q2 = 2, st.q3 = 1.5, st.q4 = 1;
  st.q2_pv = 1, st.q3_pv = 2, st.q3_yz = 0, st.q4_yz = 0;
  st.qt1_1 = 1, st.qt1_2 = 3, st.qt1_x1 = 0.5, st.qt1_x2 = 2;
  st.qt2_1 = 2, st.qt2_2 = 1, st.qt2_x1 = 1, st.qt2_x2 = 3;
  st.qt3_1 = 1, st.qt3_2 = 2, st.qt3_x1 = 0.2, st.qt3_x2 = 3.5, st.qt3_yz = 0;
  st.qt2_pv = 1, st.qt3_pv = 2;
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = 1 + 0.3 * i;
    st.pmx[i] = 0.43 * i;
    st.pm_pm[i] = i % 3 == 0;
    st.pm_pv[i] = i % 3;
    st.pm_yz[i] = i % 4 != 0;
  }
  st.SelfWeight = 1;
  st.Ne = 30;
  for (const int end : {1, 2}) {
    st.My_end[end] = 8 - 5 * end;
    st.Mz_end[end] = 2 - 3 * end;
    st.Vy_end[end] = 4 * end;
    st.Vz_end[end] = 5 * end;
  }
}

/// Load factors that differ from one another, and the settings in which most options speak.
void PutMember(ProjectState& st) {
  st.L = 4;
  st.lfp_uls = 1.2, st.lfv1_uls = 1.5, st.lfv2_uls = 1.1, st.lfsw_uls = 1.3;
  st.lfp_sls = 1, st.lfv1_sls = 0.9, st.lfv2_sls = 0.8;
  st.check_slend = 1;
  st.islend_limit = 100;
  st.ModalAnalysis = 1;
  st.Za = 30;
  st.a_webstiff = 900;
  st.SpringRestraint = 40;
  // Small and thin, so that ratios are of size and plates buckle.
  st.p21_h = 400, st.p21_b = 300, st.p21_tw = 3, st.p21_tf = 6;
  st.p24_tw = 3;
  st.p23_h = 300, st.p23_b = 300, st.p23_tw = 12, st.p23_tf = 12, st.p23_a = 20;
  st.p54_index = 2;
}

struct Variant {
  const char* name;
  void (*put)(ProjectState&);
};

/// The ways in which every family is tried. Spring supports come as 3 and 5.
constexpr Variant kVariants[] = {
    {"pinned", [](ProjectState&) {}},
    {"end forces", [](ProjectState& st) { st.AnalysisMode = 0; }},
    {"typed C factors", [](ProjectState& st) { st.CFactorManual = 1; }},
    {"typed load level", [](ProjectState& st) { st.LoadLevel = 4; }},
    {"restraints", [](ProjectState& st) { st.LtbSegments = 2; }},
    {"own points", [](ProjectState& st) { st.cp_mode = 1, st.cp_count = 3; }},
    {"curves by hand", [](ProjectState& st) { st.ManualBucklingCurves = 1; }},
    {"web stiffeners", [](ProjectState& st) { st.WebStiffener = 1; }},
    {"stiff ends", [](ProjectState& st) { st.EndStiffener = 1; }},
    {"free grade", [](ProjectState& st) { st.MaterialIndex = 27, st.fyk = 300; }},
    {"propped", [](ProjectState& st) { st.SupportType = 1; }},
    {"built in", [](ProjectState& st) { st.SupportType = 2; }},
    {"springs", [](ProjectState& st) { st.SupportType = 3; }},
    {"cantilever", [](ProjectState& st) { st.SupportType = 4; }},
    {"spring", [](ProjectState& st) { st.SupportType = 5; }},
    {"turned", [](ProjectState& st) { st.RhsOrientation = 0; }},
    {"second catalogue", [](ProjectState& st) { st.p101_sub = st.p103_sub = 2; }},
    {"third catalogue", [](ProjectState& st) { st.p101_sub = 3; }},
    {"exponents", [](ProjectState& st) { st.SectionControlMode = 1; }},
    {"axial force alone", [](ProjectState& st) { ClearLoads(st), st.NP = 40; }},
    {"z held", [](ProjectState& st) { st.BucklingCaseZ = 5, st.blz = 0; }},
    {"y held", [](ProjectState& st) { st.BucklingCaseY = 5, st.bly = 0; }},
    {"heavy line load", [](ProjectState& st) { st.q1 = 150; }},
};

struct Member {
  std::string name;
  Design design;
};

/// Every family in every variant, not yet calculated.
const std::vector<Member>& AllMembers() {
  static const std::vector<Member> members = [] {
    std::vector<Member> all;
    for (const Variant& variant : kVariants) {
      for (const Family& family : AllFamilies()) {
        Design d = StartedDesign(family.code);
        PutAllLoads(d.st);
        PutMember(d.st);
        variant.put(d.st);
        all.push_back({std::string(variant.name) + ", family " + std::to_string(family.code), d});
      }
    }
    return all;
  }();
  return members;
}

// ---- Results --------------------------------------------------------------------------------

struct Results {
  std::vector<double> numbers;
  std::vector<std::string> texts;
  friend bool operator==(const Results&, const Results&) = default;
};

/// All that a calculation leaves apart from the input record, the colours of the views as well;
/// nothing where it fails.
std::optional<Results> ResultsOf(Design d) {
  try {
    Calculate(d);
    Calculate(d);
  } catch (const ArithmeticFault&) {
    return std::nullopt;
  }
  Results r;
  auto number = [&](const char*, double value) { r.numbers.push_back(value); };
  auto text = [&](const char*, const std::string& value) { r.texts.push_back(value); };
  walk::Visit<decltype(number), decltype(text)> visit{number, text};
  ForEachSectionField(d.rec, visit);
  walk::Analysis(visit, d);
  walk::Stability(visit, d);
  walk::Checks(visit, d);
  for (const View& view :
       {SectionControlShort(d.st, d.checks), BucklingShort(d.st, d.checks, d.buckling)}) {
    walk::View(visit, view);
    for (const ViewLine& line : view) {
      for (const TextRun& run : line.runs) r.numbers.push_back(run.colour);
    }
  }
  r.numbers.push_back(ShowsBuckling(d.st, d.forces.N));
  return r;
}

// ---- Changes --------------------------------------------------------------------------------

/// Other values of one field or of one element of it: 1.3 and 0.7 times, 0.9 for nothing; codes
/// and rows by the first seven and one further on; texts by a longer one.
void ForEachChange(std::string& field, const std::function<void()>& changed) {
  field += " other";
  changed();
}
void ForEachChange(int16& field, const std::function<void()>& changed) {
  const int old = field;
  for (const int code : {0, 1, 2, 3, 4, 5, 6, old + 7}) {
    if (code == old) continue;
    field = code;
    changed();
  }
}
template <class Real>
void ForEachChange(Real& field, const std::function<void()>& changed) {
  const double old = field;
  for (const double other : {old * 1.3, old * 0.7, 0.9}) {
    if (other == old) continue;
    field = other;
    changed();
  }
}

/// How many elements a field has.
template <class Field>
int Elements(const Field& field) {
  if constexpr (walk::IsArray<Field>::value) {
    return int(std::distance(field.begin(), field.end()));
  } else {
    return 1;
  }
}

/// Calls changed(state) for each other value of an element of the field.
template <class Changed>
void WithChanges(const ProjectState& from, const std::string& name, int element,
                 Changed&& changed) {
  ProjectState st = from;
  ForEachField(st, [&](const char* fieldName, auto& field) {
    if (name != fieldName) return;
    using Field = std::remove_cvref_t<decltype(field)>;
    const auto report = [&] { changed(st); };
    if constexpr (walk::IsArray<Field>::value) {
      ForEachChange(*(field.begin() + element), report);
    } else {
      ForEachChange(field, report);
    }
  });
}

/// The first member that shows a change, or nothing.
std::string FirstThatChanges(const std::string& name, int element) {
  static std::map<const Member*, std::optional<Results>> known;
  for (const Member& member : AllMembers()) {
    auto [at, fresh] = known.try_emplace(&member);
    if (fresh) at->second = ResultsOf(member.design);
    if (!at->second) continue;
    bool differs = false;
    WithChanges(member.design.st, name, element, [&](const ProjectState& st) {
      if (differs) return;
      Design d = member.design;
      d.st = st;
      const std::optional<Results> other = ResultsOf(d);
      differs = other && *other != *at->second;
    });
    if (differs) return member.name;
  }
  return "";
}

TEST(EveryInput, ChangesAResultOrHasAReason) {
  const ProjectState any;
  ForEachField(any, [](const char* name, const auto& field) {
    if (Inert().count(name) == 1) return;
    for (int i = 0; i < Elements(field); ++i) {
      EXPECT_NE(FirstThatChanges(name, i), "") << name << " element " << i << " changes nothing";
    }
  });
}

TEST(EveryInput, InertOnesChangeNothing) {
  const ProjectState any;
  std::size_t found = 0;
  ForEachField(any, [&](const char* name, const auto&) {
    if (Inert().count(name) == 0) return;
    ++found;
    EXPECT_EQ(FirstThatChanges(name, 0), "") << name << ": " << Inert().at(name);
  });
  EXPECT_EQ(found, Inert().size()) << "a reason for a field that does not exist";
}

/// The members themselves are sound: a fault would hide what a field does.
TEST(EveryInput, MembersCalculate) {
  for (const Member& member : AllMembers()) {
    EXPECT_TRUE(ResultsOf(member.design)) << member.name;
  }
}

}  // namespace
}  // namespace korvane
