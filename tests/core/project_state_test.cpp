// SPDX-License-Identifier: GPL-3.0-or-later
// The input record: values of a new project, what it leaves alone, clearing of loads, and the
// codes of the plate families.
#include "core/project_state.h"

#include <gtest/gtest.h>

#include <set>
#include <utility>

#include "core/family_kinds.h"
#include "tests/core/state_values.h"

namespace korvane {
namespace {

using Names = std::set<std::string>;

TEST(NewProject, HasTheDefaultMember) {
  ProjectState st = DistinctState(100);
  NewProject(st, "/opt/korvane");
  // Reals in the form of the project file.
  const std::map<std::string, std::string> expected = {
      {"CurrentFileName", "New File"},
      {"CurrentDir", "/opt/korvane"},
      {"iproj", "Project"},
      {"iident", "Test"},
      {"FamilyName", "HEA"},
      {"L", "5"},
      {"E", "210000"},
      {"density", "7850"},
      {"MaterialIndex", "5"},
      {"SupportType", "0"},
      {"SpringRestraint", "50"},
      {"EndStiffener", "0"},
      {"WebStiffener", "0"},
      {"a_webstiff", "2500"},
      {"AnalysisMode", "1"},
      {"iufa", "1"},
      {"check_slend", "0"},
      {"bly", "1"},
      {"blz", "1"},
      {"BucklingCaseY", "2"},
      {"BucklingCaseZ", "2"},
      {"BucklingCurveY", "1"},
      {"BucklingCurveZ", "2"},
      {"ManualBucklingCurves", "0"},
      {"LateralTorsionalBuckling", "1"},
      {"LateralBucklingCase", "2"},
      {"k_ltb", "1"},
      {"LtbSegments", "0"},
      {"CFactorManual", "0"},
      {"C1i", "1"},
      {"C2i", "1"},
      {"C3i", "1"},
      {"LoadLevel", "1"},
      {"NP", "100"},
      {"NV1", "0"},
      {"NV2", "0"},
      {"q1", "10"},
      {"q1_pv", "0"},
      {"q1_yz", "1"},
      {"q2", "0"},
      {"q4_yz", "1"},
      {"qt3_2", "0"},
      {"qt3_yz", "1"},
      {"pm[8]", "0"},
      {"pmx[1]", "0"},
      {"pm_pm[1]", "0"},
      {"pm_yz[1]", "1"},
      {"pm_yz[8]", "1"},
      {"SelfWeight", "0"},
      {"My_end[2]", "0"},
      {"cp_mode", "0"},
      {"cp_count", "1"},
      {"cp_relative", "0"},
      {"cp_x[1]", "1"},
      {"cp_x[2]", "2"},
      {"cp_x[3]", "3"},
      {"ProfileType", "1"},
      {"RhsOrientation", "1"},
      {"HsqKind", "0"},
      {"idxHEA", "5"},
      {"idxHEB", "0"},
      {"p24_load", "50"},
      {"p28_h", "150"},
      {"p28_tw", "12"},
      {"TubeKind", "1"},
      {"p41_name", "General"},
      {"p41_Iw", "1.2E+12"},
      {"p41_tmax", "25"},
      {"p52_index", "5"},
      {"p53_tw", "11.5"},
      {"p54_index", "5"},
      {"p101_sub", "1"},
      {"p103_sub", "1"},
      {"OptimiseOpen", "0"},
      {"ResultView", "3"},
      {"FigureNotToScale", "1"},
      {"DatabaseMode", "0"},
  };
  const auto texts = FieldTexts(st);
  for (const auto& [name, text] : expected) EXPECT_EQ(texts.at(name), text) << name;
}

TEST(NewProject, LeavesWhatTheDefaultsFileGave) {
  ProjectState st = DistinctState(100);
  const ProjectState before = st;
  NewProject(st);
  const Names changed = DifferingFields(before, st);
  Names kept;
  for (const auto& [name, text] : FieldTexts(st)) {
    if (changed.count(name) == 0) kept.insert(name);
  }
  const Names expected = {"fyk",      "gammam1",  "fd",       "epsilon",     "DeflectionLimit",
                          "lfp_uls",  "lfv1_uls", "lfv2_uls", "lfp_sls",     "lfv1_sls",
                          "lfv2_sls", "lfsw_uls", "Za",       "islend_limit"};
  EXPECT_EQ(kept, expected);
}

TEST(NewProject, KeepsAnEmptySlendernessLimit) {
  ProjectState st;
  st.islend_limit = number::Empty();
  NewProject(st);
  EXPECT_TRUE(st.islend_limit.IsEmpty());
}

const Names kLoadFields = [] {
  Names names = {"SelfWeight", "pmx_relative", "qtx_relative"};
  for (const char* q : {"q1", "q2", "q3", "q4"}) {
    for (const char* part : {"", "_pv", "_yz"}) names.insert(std::string(q) + part);
  }
  for (const char* qt : {"qt1", "qt2", "qt3"}) {
    for (const char* part : {"_1", "_2", "_x1", "_x2", "_pv", "_yz"}) {
      names.insert(std::string(qt) + part);
    }
  }
  for (const char* pm : {"pm", "pmx", "pm_pm", "pm_pv", "pm_yz"}) {
    for (int i = 1; i <= 8; ++i) names.insert(ElementName(pm, i));
  }
  names.insert("LoadLevel");
  return names;
}();

void ExpectClearedLoads(const ProjectState& st) {
  const auto texts = FieldTexts(st);
  for (const auto& name : kLoadFields) {
    const bool one = name == "LoadLevel" || name.find("_yz") != std::string::npos;
    EXPECT_EQ(texts.at(name), one ? "1" : "0") << name;
  }
}

TEST(ClearLoads, ClearsLoadsAndAxialLoadsAlone) {
  const ProjectState before = DistinctState(100);
  ProjectState st = before;
  ClearLoads(st);
  ExpectClearedLoads(st);
  EXPECT_EQ(st.NP, 0.0);
  EXPECT_EQ(st.NV1, 0.0);
  EXPECT_EQ(st.NV2, 0.0);
  Names expected = kLoadFields;
  expected.insert({"NP", "NV1", "NV2"});
  EXPECT_EQ(DifferingFields(before, st), expected);
}

TEST(ClearLoadsKeepAxial, KeepsAxialLoadsAndClearsEndMomentsAndShears) {
  const ProjectState before = DistinctState(100);
  ProjectState st = before;
  ClearLoadsKeepAxial(st);
  ExpectClearedLoads(st);
  Names expected = kLoadFields;
  for (const char* name : {"My_end", "Mz_end", "Vy_end", "Vz_end"}) {
    expected.insert({ElementName(name, 1), ElementName(name, 2)});
  }
  EXPECT_EQ(DifferingFields(before, st), expected);
  for (int i = 1; i <= 2; ++i) {
    EXPECT_EQ(st.My_end[i], 0.0);
    EXPECT_EQ(st.Mz_end[i], 0.0);
    EXPECT_EQ(st.Vy_end[i], 0.0);
    EXPECT_EQ(st.Vz_end[i], 0.0);
  }
}

TEST(IsPlateType, HoldsForTheCodesOfMembersCarriedByAPlate) {
  const std::set<int> plates = {24, 25, 27, 51, 52, 53, 54, 55, 56};
  for (int code = -1; code <= 110; ++code) {
    EXPECT_EQ(IsPlateType(code), plates.count(code) == 1) << code;
  }
}

/// Stands for an initial value of any type.
struct AnyValue {
  template <class T>
  operator T() const;
};

/// Whether a record can be made of that many initial values.
template <class Record, std::size_t... I>
constexpr bool TakesValues(std::index_sequence<I...>) {
  // clang-format off
  return requires { Record{(static_cast<void>(I), AnyValue{})...}; };
  // clang-format on
}

/// The number of a record's members, found between low, which it has, and high, which it has not.
template <class Record, std::size_t low, std::size_t high>
constexpr std::size_t Members() {
  if constexpr (low + 1 == high) {
    return low;
  } else {
    constexpr std::size_t middle = (low + high) / 2;
    if constexpr (TakesValues<Record>(std::make_index_sequence<middle>())) {
      return Members<Record, middle, high>();
    } else {
      return Members<Record, low, middle>();
    }
  }
}

TEST(ForEachField, NamesEveryFieldOnce) {
  const ProjectState st;
  Names names;
  std::set<const void*> places;
  std::size_t fields = 0;
  ForEachField(st, [&](const char* name, const auto& field) {
    names.insert(name);
    places.insert(&field);
    ++fields;
  });
  EXPECT_EQ(names.size(), fields);
  EXPECT_EQ(places.size(), fields);
  // One is not walked: what the switch of the lateral check remembers is neither shown nor told.
  EXPECT_EQ(places.count(&st.k_ltb_before), 0U);
  EXPECT_EQ(fields + 1, (Members<ProjectState, 1, 1024>()));
}

}  // namespace
}  // namespace korvane
