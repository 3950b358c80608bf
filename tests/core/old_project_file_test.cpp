// SPDX-License-Identifier: GPL-3.0-or-later
// Project files of versions up to 260: quoted names, fewer fields, three values for each end
// force.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "core/project_file.h"
#include "tests/core/state_values.h"

namespace korvane {
namespace {

// Lines with the name of the field that takes them; a name may come twice, the last one counts.
using Lines = std::vector<std::pair<const char*, const char*>>;

Lines operator+(Lines a, const Lines& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

const Lines kHead = {{"", "260"},
                     {"iproj", "\"Hall 17, west\""},
                     {"iident", "\"B12\""},
                     {"MaterialIndex", "4"},
                     {"RhsOrientation", "0"},
                     {"gammam1", "1.05"},
                     {"BendingCapacityMode", "1"},
                     {"SectionControlMode", "2"},
                     {"EndStiffener", "3"},
                     {"WebStiffener", "5"},
                     {"BucklingCurveY", "6"},
                     {"BucklingCurveZ", "7"},
                     {"ManualBucklingCurves", "8"},
                     {"BucklingCaseY", "9"},
                     {"BucklingCaseZ", "10"},
                     {"HsqKind", "11"},
                     {"fyk", "275"},
                     {"E", "205000"},
                     {"lfp_uls", "1.21"},
                     {"lfv1_uls", "1.51"},
                     {"lfp_sls", "1.01"},
                     {"lfv1_sls", "1.02"},
                     {"lfsw_uls", "1.22"},
                     {"SupportType", "2"},
                     {"SpringRestraint", "45"}};

const Lines kMiddle = {{"LoadLevel", "3"},
                       {"LateralTorsionalBuckling", "12"},
                       {"LateralBucklingCase", "13"},
                       {"LtbSegments", "14"},
                       {"LtbCriticalSegment", "15"},
                       {"CFactorManual", "16"},
                       {"C1i", "1.132"},
                       {"C2i", ".459"},
                       {"C3i", ".525"},
                       {"L", "6.3"},
                       {"a_webstiff", "1250"},
                       {"k_ltb", ".7"},
                       {"bly", ".8"},
                       {"blz", ".9"}};

const Lines kLoads = {
    {"NP", "-12.5"},   {"NV1", "13"},     {"q1", "1.5"},     {"q1_pv", "1"},    {"q1_yz", "0"},
    {"q2", "2.5"},     {"q2_pv", "2"},    {"q2_yz", "0"},    {"q3", "3.5"},     {"q3_pv", "3"},
    {"q3_yz", "0"},    {"q4", "4.5"},     {"q4_pv", "4"},    {"q4_yz", "0"},    {"qt1_1", "5.1"},
    {"qt1_2", "5.2"},  {"qt1_x1", "5.3"}, {"qt1_x2", "5.4"}, {"qt1_pv", "5"},   {"qt1_yz", "0"},
    {"qt2_1", "6.1"},  {"qt2_2", "6.2"},  {"qt2_x1", "6.3"}, {"qt2_x2", "6.4"}, {"qt2_pv", "6"},
    {"qt2_yz", "0"},   {"pm_pm[1]", "1"}, {"pm[1]", "11.1"}, {"pmx[1]", ".1"},  {"pm_pv[1]", "21"},
    {"pm_yz[1]", "0"}, {"pm_pm[2]", "2"}, {"pm[2]", "12.1"}, {"pmx[2]", ".2"},  {"pm_pv[2]", "22"},
    {"pm_yz[2]", "0"}, {"pm_pm[3]", "3"}, {"pm[3]", "13.1"}, {"pmx[3]", ".3"},  {"pm_pv[3]", "23"},
    {"pm_yz[3]", "0"}, {"pm_pm[4]", "4"}, {"pm[4]", "14.1"}, {"pmx[4]", ".4"},  {"pm_pv[4]", "24"},
    {"pm_yz[4]", "0"}, {"pm_pm[5]", "5"}, {"pm[5]", "15.1"}, {"pmx[5]", ".5"},  {"pm_pv[5]", "25"},
    {"pm_yz[5]", "0"}, {"pm_pm[6]", "6"}, {"pm[6]", "16.1"}, {"pmx[6]", ".6"},  {"pm_pv[6]", "26"},
    {"pm_yz[6]", "0"}, {"pm_pm[7]", "7"}, {"pm[7]", "17.1"}, {"pmx[7]", ".7"},  {"pm_pv[7]", "27"},
    {"pm_yz[7]", "0"}, {"pm_pm[8]", "8"}, {"pm[8]", "18.1"}, {"pmx[8]", ".8"},  {"pm_pv[8]", "28"},
    {"pm_yz[8]", "0"}};

// The third value of each end force takes the place of the second.
const Lines kEndForces = {{"Ne", "250"},        {"My_end[1]", "1.1"}, {"My_end[2]", "1.2"},
                          {"My_end[2]", "1.3"}, {"Vy_end[1]", "2.1"}, {"Vy_end[2]", "2.2"},
                          {"Vy_end[2]", "2.3"}, {"Mz_end[1]", "3.1"}, {"Mz_end[2]", "3.2"},
                          {"Mz_end[2]", "3.3"}, {"Vz_end[1]", "4.1"}, {"Vz_end[2]", "4.2"},
                          {"Vz_end[2]", "4.3"}};

const Lines kTail = {{"SelfWeight", "1"}, {"cp_mode", "2"},        {"cp_count", "3"},
                     {"cp_x[1]", "1.25"}, {"cp_x[2]", "2.25"},     {"cp_x[3]", "3.25"},
                     {"Za", "-75.5"},     {"islend_limit", "180"}, {"check_slend", "7"}};

// What reading sets though it isn't in the file.
const std::map<std::string, std::string> kSetAfterwards = {{"IgnoreFlangeBuckling", "0"},
                                                           {"IgnoreWebBuckling", "0"},
                                                           {"NV2", "0"},
                                                           {"lfv2_uls", "1"},
                                                           {"lfv2_sls", "1"},
                                                           {"qt3_1", "0"},
                                                           {"qt3_2", "0"},
                                                           {"qt3_x1", "0"},
                                                           {"qt3_x2", "0"},
                                                           {"qt3_pv", "0"},
                                                           {"qt3_yz", "1"}};

std::string TextOf(const Lines& lines) {
  std::string text;
  for (const auto& [name, line] : lines) text.append(line).append("\r\n");
  return text;
}

std::string Unquoted(std::string text) {
  if (!text.empty() && text.front() == '"') text = text.substr(1, text.size() - 2);
  return text;
}

std::map<std::string, std::string> ValuesOf(const Lines& lines) {
  std::map<std::string, std::string> values;
  for (const auto& [name, line] : lines) {
    if (*name != '\0') values[name] = Unquoted(line);
  }
  return values;
}

// Reads the lines and expects their fields, those that reading sets, and no other to change.
void ExpectRead(const Lines& lines) {
  const ProjectState before = DistinctState(1000);
  ProjectState st = before;
  ASSERT_EQ(ReadProject(TextOf(lines), st), FileResult::Ok);
  auto expected = ValuesOf(lines);
  expected.insert(kSetAfterwards.begin(), kSetAfterwards.end());
  std::set<std::string> names;
  const auto texts = FieldTexts(st);
  for (const auto& [name, value] : expected) {
    names.insert(name);
    EXPECT_EQ(texts.at(name), value) << name;
  }
  EXPECT_EQ(DifferingFields(before, st), names);
}

Lines WithLoads(const Lines& section) {
  return kHead + Lines{{"AnalysisMode", "1"}} + kMiddle + kLoads + section + kTail;
}
Lines WithEndForces(const Lines& section) {
  return kHead + Lines{{"AnalysisMode", "0"}} + kMiddle + kEndForces + section + kTail;
}

TEST(OldProjectFile, ReadsLoads) {
  ExpectRead(WithLoads({{"ProfileType", "1"}, {"idxHEA", "9"}}));
}

TEST(OldProjectFile, TakesTheThirdEndForceForTheSecond) {
  ExpectRead(WithEndForces({{"ProfileType", "2"}, {"idxHEB", "8"}}));
}

TEST(OldProjectFile, ReadsNeitherInAnotherMode) {
  ExpectRead(kHead + Lines{{"AnalysisMode", "2"}} + kMiddle +
             Lines{{"ProfileType", "4"}, {"idxIPE", "6"}} + kTail);
}

TEST(OldProjectFile, ReadsThePayloadsThatItHas) {
  const Lines sections[] = {
      {{"ProfileType", "3"}, {"idxHEM", "21"}},
      {{"ProfileType", "4"}, {"idxIPE", "22"}},
      {{"ProfileType", "5"}, {"idxUPE", "23"}},
      {{"ProfileType", "6"}, {"idxRHSs", "24"}},
      {{"ProfileType", "7"}, {"idxRHSr", "25"}},
      {{"ProfileType", "8"}, {"idxCFRHSs", "26"}},
      {{"ProfileType", "9"}, {"idxCFRHSr", "27"}},
      {{"ProfileType", "10"}, {"idxLeq", "28"}},
      {{"ProfileType", "11"}, {"idxLuneq", "29"}},
      {{"ProfileType", "21"},
       {"p21_h", "301"},
       {"p21_b", "302"},
       {"p21_tw", "303"},
       {"p21_tf", "304"}},
      {{"ProfileType", "22"},
       {"p22_h", "301"},
       {"p22_b", "302"},
       {"p22_b2", "303"},
       {"p22_tw", "304"},
       {"p22_tf1", "305"},
       {"p22_tf2", "306"}},
      {{"ProfileType", "23"},
       {"p23_h", "301"},
       {"p23_b", "302"},
       {"p23_tw", "303"},
       {"p23_tf", "304"},
       {"p23_a", "305"},
       {"BoxWeld", "1"}},
      {{"ProfileType", "24"},
       {"p24_h", "301"},
       {"p24_b", "302"},
       {"p24_tw", "303"},
       {"p24_tf1", "304"},
       {"p24_tf2", "305"},
       {"p24_a", "306"},
       {"p24_c", "307"},
       {"p24_load", "308"}},
      {{"ProfileType", "25"},
       {"p25_h", "301"},
       {"p25_b1", "302"},
       {"p25_b2", "303"},
       {"p25_tw", "304"},
       {"p25_tf1", "305"},
       {"p25_tf2", "306"},
       {"p25_a", "307"},
       {"p25_c", "308"}},
      {{"ProfileType", "31"}, {"p31_d", "301"}, {"p31_tw", "302"}, {"TubeKind", "0"}},
      {{"ProfileType", "41"},
       {"p41_name", "\"Crane rail, A55\""},
       {"p41_option", "2"},
       {"p41_A", "301"},
       {"p41_Az", "302"},
       {"p41_Ay", "303"},
       {"p41_Ix", "304"},
       {"p41_Iy", "305"},
       {"p41_Iz", "306"},
       {"p41_Iw", "1.5E+09"},
       {"p41_Wely", "307"},
       {"p41_Welz", "308"},
       {"p41_Wply", "309"},
       {"p41_Wplz", "310"}},
  };
  for (const auto& section : sections) {
    SCOPED_TRACE(section.front().second);
    ExpectRead(WithLoads(section));
    ExpectRead(WithEndForces(section));
  }
}

TEST(OldProjectFile, HasNoPayloadOfTheOtherFamilies) {
  for (const char* code : {"0", "12", "15", "16", "26", "27", "28", "51", "52", "53", "54", "55",
                           "56", "99", "101", "102", "103"}) {
    SCOPED_TRACE(code);
    ExpectRead(WithLoads({{"ProfileType", code}}));
  }
}

TEST(OldProjectFile, IsWhatAVersionUpTo260Tells) {
  const Lines lines = WithLoads({{"ProfileType", "1"}, {"idxHEA", "9"}});
  for (const char* version : {"260", "1", "0", "-5", "", "abc", "260.4"}) {
    Lines changed = lines;
    changed.front().second = version;
    SCOPED_TRACE(version);
    ExpectRead(changed);
  }
  // One more and the names are whole lines and the sequence is the current one,
  // where E meets an int.
  Lines current = lines;
  current.front().second = "261";
  ProjectState st;
  EXPECT_EQ(ReadProject(TextOf(current), st), FileResult::OtherError);
  EXPECT_EQ(st.iproj, "\"Hall 17, west\"");
}

TEST(OldProjectFile, SetsTheLackingFieldsOnlyBehindTheLastLine) {
  Lines lines = WithLoads({{"ProfileType", "1"}, {"idxHEA", "9"}});
  lines.pop_back();
  const ProjectState before = DistinctState(1000);
  ProjectState st = before;
  EXPECT_EQ(ReadProject(TextOf(lines), st), FileResult::TooShort);
  std::set<std::string> names;
  for (const auto& [name, value] : ValuesOf(lines)) names.insert(name);
  EXPECT_EQ(DifferingFields(before, st), names);
}

TEST(OldProjectFile, IsSavedInTheCurrentFormat) {
  ProjectState st = DistinctState(1000);
  ASSERT_EQ(ReadProject(TextOf(WithEndForces({{"ProfileType", "1"}, {"idxHEA", "9"}})), st),
            FileResult::Ok);
  const std::string text = ProjectText(st);
  EXPECT_EQ(text.substr(0, 27), "390\r\nHall 17, west\r\nB12\r\n4\r");
  ProjectState again = DistinctState(2000);
  EXPECT_EQ(ReadProject(text, again), FileResult::Ok);
  EXPECT_EQ(again.My_end[2], st.My_end[2]);
  EXPECT_EQ(again.lfv2_uls, 1.0);
}

}  // namespace
}  // namespace korvane
