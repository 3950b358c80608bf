// SPDX-License-Identifier: GPL-3.0-or-later
// The sequence of the project file for every family and analysis mode: what is written, what is
// read, and where a short or damaged file stops.
#include <gtest/gtest.h>

#include <algorithm>
#include <iterator>
#include <random>
#include <vector>

#include "core/project_file.h"
#include "tests/core/state_values.h"
#include "tests/core/temp_folder.h"

namespace korvane {
namespace {

using Sequence = std::vector<std::string>;

// The order of the lines behind the version, written down independently of the reader.
const Sequence kHead = {"iproj",
                        "iident",
                        "MaterialIndex",
                        "RhsOrientation",
                        "gammam1",
                        "BendingCapacityMode",
                        "SectionControlMode",
                        "EndStiffener",
                        "WebStiffener",
                        "BucklingCurveY",
                        "BucklingCurveZ",
                        "ManualBucklingCurves",
                        "BucklingCaseY",
                        "BucklingCaseZ",
                        "HsqKind",
                        "IgnoreWebBuckling",
                        "IgnoreFlangeBuckling",
                        "ModalAnalysis",
                        "fyk",
                        "E",
                        "lfp_uls",
                        "lfv1_uls",
                        "lfv2_uls",
                        "lfp_sls",
                        "lfv1_sls",
                        "lfv2_sls",
                        "lfsw_uls",
                        "SupportType",
                        "SpringRestraint",
                        "AnalysisMode",
                        "LoadLevel",
                        "LateralTorsionalBuckling",
                        "LateralBucklingCase",
                        "LtbSegments",
                        "LtbCriticalSegment",
                        "CFactorManual",
                        "C1i",
                        "C2i",
                        "C3i",
                        "L",
                        "a_webstiff",
                        "k_ltb",
                        "bly",
                        "blz"};

const Sequence kLoads = [] {
  Sequence s = {"NP", "NV1",   "NV2",   "q1", "q1_pv", "q1_yz", "q2",    "q2_pv", "q2_yz",
                "q3", "q3_pv", "q3_yz", "q4", "q4_pv", "q4_yz", "qt1_1", "qt1_2"};
  s.insert(s.end(), {"qt1_x1", "qt1_x2", "qt1_pv", "qt1_yz"});
  s.insert(s.end(), {"qt2_1", "qt2_2", "qt2_x1", "qt2_x2", "qt2_pv", "qt2_yz"});
  s.insert(s.end(), {"qt3_1", "qt3_2", "qt3_x1", "qt3_x2", "qt3_pv", "qt3_yz"});
  for (int i = 1; i <= 8; ++i) {
    for (const char* name : {"pm_pm", "pm", "pmx", "pm_pv", "pm_yz"}) {
      s.push_back(ElementName(name, i));
    }
  }
  return s;
}();

const Sequence kEndForces = {"Ne",        "My_end[1]", "My_end[2]", "Vy_end[1]", "Vy_end[2]",
                             "Mz_end[1]", "Mz_end[2]", "Vz_end[1]", "Vz_end[2]"};

const Sequence kTail = {"SelfWeight", "cp_mode", "cp_count",     "cp_x[1]",    "cp_x[2]",
                        "cp_x[3]",    "Za",      "islend_limit", "check_slend"};

struct Family {
  int code;
  int sub;  // of the families with catalogues of their own choice
  Sequence payload;
};

// clang-format off
const Family kFamilies[] = {
    {1, 0, {"idxHEA"}}, {2, 0, {"idxHEB"}}, {3, 0, {"idxHEM"}}, {4, 0, {"idxIPE"}},
    {5, 0, {"idxUPE"}}, {6, 0, {"idxRHSs"}}, {7, 0, {"idxRHSr"}}, {8, 0, {"idxCFRHSs"}},
    {9, 0, {"idxCFRHSr"}}, {10, 0, {"idxLeq"}}, {11, 0, {"idxLuneq"}}, {15, 0, {"idxINP"}},
    {16, 0, {"idxUNP"}},
    {21, 0, {"p21_h", "p21_b", "p21_tw", "p21_tf"}},
    {22, 0, {"p22_h", "p22_b", "p22_b2", "p22_tw", "p22_tf1", "p22_tf2"}},
    {23, 0, {"p23_h", "p23_b", "p23_tw", "p23_tf", "p23_a", "BoxWeld"}},
    {24, 0, {"p24_h", "p24_b", "p24_tw", "p24_tf1", "p24_tf2", "p24_a", "p24_c", "p24_load"}},
    {25, 0, {"p25_h", "p25_b1", "p25_b2", "p25_tw", "p25_tf1", "p25_tf2", "p25_a", "p25_c"}},
    {26, 0, {"p26_h", "p26_b", "p26_tw", "p26_tf"}},
    {27, 0, {"p27_h", "p27_b1", "p27_b2", "p27_tw", "p27_tf1", "p27_tf2", "p27_a", "", ""}},
    {28, 0, {}},
    {31, 0, {"p31_d", "p31_tw", "TubeKind"}},
    {41, 0, {"p41_name", "p41_option", "p41_A", "p41_Az", "p41_Ay", "p41_Ix", "p41_Iy", "p41_Iz",
             "p41_Iw", "p41_Wely", "p41_Welz", "p41_Wply", "p41_Wplz"}},
    {51, 0, {"p51_h", "p51_b", "p51_tw", "p51_tf1"}},
    {52, 0, {"p52_index", "p52_b1", "p52_t1"}},
    {53, 0, {"p53_h", "p53_b1", "p53_b2", "p53_tw", "p53_tf1", "p53_tf2"}},
    {54, 0, {"p54_index", "p54_b1", "p54_t1"}},
    {55, 0, {"p55_h", "p55_b1", "p55_b2", "p55_tw", "p55_tf1", "p55_a"}},
    {56, 0, {"p56_h", "p56_b1", "p56_b2", "p56_tw", "p56_tf1", "p56_tf2"}},
    {101, 1, {"p101_sub", "p101_idx1"}}, {101, 2, {"p101_sub", "p101_idx2"}},
    {101, 3, {"p101_sub", "p101_idx3"}}, {101, 4, {"p101_sub"}}, {102, 0, {"p102_idx"}},
    {103, 1, {"p103_sub", "p103_idx1"}}, {103, 2, {"p103_sub", "p103_idx2"}},
    {103, 3, {"p103_sub"}},
    // codes without a family have no payload
    {0, 0, {}}, {12, 0, {}}, {99, 0, {}}, {-1, 0, {}},
};
// clang-format on

struct Sample {
  ProjectState st;
  Sequence lines;  // names of the fields, "" for a spare line
  std::string Label() const {
    return "type " + std::to_string(int(st.ProfileType)) + " mode " +
           std::to_string(int(st.AnalysisMode));
  }
};

Sample MakeSample(const Family& family, int mode) {
  Sample s{DistinctState(100), kHead};
  s.st.ProfileType = family.code;
  s.st.AnalysisMode = mode;
  s.st.p101_sub = family.sub;
  s.st.p103_sub = family.sub;
  s.st.p41_name = "K\xC3\xB8yle, 12";
  const auto append = [&s](const Sequence& more) {
    s.lines.insert(s.lines.end(), more.begin(), more.end());
  };
  if (mode == 1) append(kLoads);
  if (mode == 0) append(kEndForces);
  s.lines.push_back("ProfileType");
  append(family.payload);
  append(kTail);
  return s;
}

std::vector<Sample> AllSamples() {
  std::vector<Sample> samples;
  for (const auto& family : kFamilies) {
    for (const int mode : {1, 0, 2}) samples.push_back(MakeSample(family, mode));
  }
  return samples;
}

std::string TextOf(const Sample& s) {
  const auto texts = FieldTexts(s.st);
  std::string file = "390\r\n";
  for (const auto& name : s.lines) {
    const std::string quote = name == "p41_name" ? "\"" : "";
    file += quote + (name.empty() ? "" : texts.at(name)) + quote + "\r\n";
  }
  return file;
}

std::set<std::string> NamesOf(const Sequence& lines) {
  std::set<std::string> names(lines.begin(), lines.end());
  names.erase("");
  return names;
}

TEST(ProjectText, WritesTheSequenceOfEveryFamilyAndMode) {
  for (const auto& s : AllSamples()) EXPECT_EQ(ProjectText(s.st), TextOf(s)) << s.Label();
}

TEST(ReadProject, ReadsExactlyTheFieldsOfTheFile) {
  for (const auto& s : AllSamples()) {
    const ProjectState before = DistinctState(1000);
    ProjectState st = before;
    ASSERT_EQ(ReadProject(TextOf(s), st), FileResult::Ok) << s.Label();
    EXPECT_EQ(DifferingFields(before, st), NamesOf(s.lines)) << s.Label();
    const auto notRead = DifferingFields(s.st, st);
    for (const auto& name : NamesOf(s.lines)) {
      EXPECT_EQ(notRead.count(name), 0U) << s.Label() << " " << name;
    }
  }
}

TEST(ReadProject, ThenWritingGivesTheSameBytes) {
  for (const auto& s : AllSamples()) {
    ProjectState st = DistinctState(1000);
    ASSERT_EQ(ReadProject(TextOf(s), st), FileResult::Ok) << s.Label();
    EXPECT_EQ(ProjectText(st), TextOf(s)) << s.Label();
  }
}

TEST(ReadProject, ReadsAnyVersionAbove260Alike) {
  const Sample s = MakeSample(kFamilies[0], 1);
  const std::string lines = TextOf(s).substr(3);
  for (const char* version : {"261", "390", "391", "32767", " 390 ", "390.4", "+390"}) {
    ProjectState st;
    EXPECT_EQ(ReadProject(version + lines, st), FileResult::Ok) << version;
    EXPECT_EQ(ProjectText(st), TextOf(s)) << version;
  }
}

TEST(ReadProject, StopsAtTheEndOfAShortFile) {
  for (const std::size_t family : {0U, 22U}) {
    for (const int mode : {0, 1}) {
      const Sample s = MakeSample(kFamilies[family], mode);
      const std::string text = TextOf(s);
      std::size_t end = 0;
      for (std::size_t count = 0; count <= s.lines.size(); ++count) {
        const ProjectState before = DistinctState(1000);
        ProjectState st = before;
        EXPECT_EQ(ReadProject(text.substr(0, end), st), FileResult::TooShort) << count;
        // The version is a line without a field.
        const auto first = s.lines.begin();
        const auto read = static_cast<std::ptrdiff_t>(count > 0 ? count - 1 : 0);
        EXPECT_EQ(DifferingFields(before, st), NamesOf({first, first + read})) << count;
        end = text.find('\n', end) + 1;
      }
      EXPECT_EQ(end, text.size());
    }
  }
}

std::string WithoutReturns(std::string text) {
  text.erase(std::remove(text.begin(), text.end(), '\r'), text.end());
  return text;
}

TEST(ReadProject, TakesBothLineEndsAndAnOpenLastLine) {
  for (const auto& s : AllSamples()) {
    ProjectState st = DistinctState(1000);
    std::string text = WithoutReturns(TextOf(s));
    EXPECT_EQ(ReadProject(text, st), FileResult::Ok) << s.Label();
    EXPECT_EQ(ProjectText(st), TextOf(s)) << s.Label();
    st = DistinctState(1000);
    text.pop_back();
    EXPECT_EQ(ReadProject(text, st), FileResult::Ok) << s.Label();
    EXPECT_EQ(ProjectText(st), TextOf(s)) << s.Label();
  }
}

TEST(ReadProject, SurvivesAnyBytes) {
  std::mt19937 random(4);
  const auto below = [&random](std::size_t n) { return random() % n; };
  int ok = 0;
  int failed = 0;
  for (int i = 0; i < 20000; ++i) {
    const auto& family = kFamilies[below(std::size(kFamilies))];
    std::string text = TextOf(MakeSample(family, static_cast<int>(below(3))));
    for (std::size_t n = below(6); n > 0; --n) {
      text[below(text.size())] = static_cast<char>(below(256));
    }
    if (below(4) == 0) text.resize(below(text.size()));
    ProjectState st;
    const FileResult result = ReadProject(text, st);
    (result == FileResult::Ok ? ok : failed) += 1;
    // Whatever has been read can be written and read again.
    ProjectState again;
    ASSERT_EQ(ReadProject(ProjectText(st), again), FileResult::Ok);
    // The name of a general profile may have got a quote inside, which ends it.
    if (st.ProfileType != 41) {
      ASSERT_EQ(ProjectText(again), ProjectText(st));
    }
  }
  EXPECT_GT(ok, 5000);
  EXPECT_GT(failed, 2000);
}

TEST(SaveProject, WritesWhatOpenProjectReads) {
  const TempFolder folder;
  for (const auto& s : AllSamples()) {
    ASSERT_TRUE(SaveProject(folder / "p.kvn", s.st)) << s.Label();
    EXPECT_EQ(GetFile(folder / "p.kvn"), TextOf(s)) << s.Label();
    ProjectState st = DistinctState(1000);
    ASSERT_EQ(OpenProject(folder / "p.kvn", st), FileResult::Ok) << s.Label();
    EXPECT_EQ(ProjectText(st), TextOf(s)) << s.Label();
  }
  EXPECT_EQ(folder.Count(), 1);
}

}  // namespace
}  // namespace korvane
