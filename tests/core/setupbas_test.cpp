// SPDX-License-Identifier: GPL-3.0-or-later
// Steel grades, the file of defaults and the material step.
#include "core/setupbas.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

#include "tests/core/state_values.h"
#include "tests/core/temp_folder.h"

namespace korvane {
namespace {

struct Grade {
  std::string name;
  double thin;
  double thick;
};

void ExpectMaterials(std::string_view file, const std::vector<Grade>& grades) {
  SCOPED_TRACE(file);
  const TempFolder folder;
  PutFile(folder / "NSmat.dat", file);
  const MaterialTable table = ReadMaterials(folder.Path());
  ASSERT_EQ(table.rows.size(), grades.size());
  EXPECT_EQ(table.Last(), static_cast<int>(grades.size()) - 1);
  for (std::size_t i = 0; i < grades.size(); ++i) {
    EXPECT_EQ(table.rows[i].name, grades[i].name);
    EXPECT_EQ(table.rows[i].fykThin, grades[i].thin);
    EXPECT_EQ(table.rows[i].fykThick, grades[i].thick);
  }
}

const std::vector<Grade> kThree = {
    {"S235", 235.0, 215.0}, {"S355", 355.0, 335.0}, {"User defined", 0.0, 0.0}};

TEST(ReadMaterials, TakesCommasAndLineEndsAsSeparators) {
  for (const char* file :
       {"\"S235\",235,215\r\n\"S355\",355,335\r\n\"User defined\",0,0\r\n",
        "\"S235\",235,215\n\"S355\",355,335\n\"User defined\",0,0",
        "\"S235\"\r\n235\r\n215\r\n\"S355\"\r\n355\r\n335\r\n\"User defined\"\r\n0\r\n0\r\n",
        "\"S235\" , 235 , 215 \r\n\r\n  \"S355\",355\r\n335\r\n\"User defined\",0,0\r\n\r\n\r\n",
        "\"S235\",235,215,\"S355\",355,335,\"User defined\",0,0",
        "S235,235,215\r\nS355,355,335\r\nUser defined,0,0\r\n"}) {
    ExpectMaterials(file, kThree);
  }
}

TEST(ReadMaterials, KeepsCommasInsideANameAndReadsItsCodePage) {
  ExpectMaterials("\"S235, old\",235.5,215\r\n\"St\xE5l\",300,290\r\n\"\",0,0\r\n",
                  {{"S235, old", 235.5, 215.0}, {"St\xC3\xA5l", 300.0, 290.0}, {"", 0.0, 0.0}});
}

TEST(ReadMaterials, EndsAtANumberThatCannotBeReadAndKeepsWhatItHas) {
  const char* first = "\"S235\",235,215\r\n";
  const std::pair<const char*, Grade> cases[] = {
      {"\"S355\",x,335\r\n\"S420\",420,390\r\n", {"S355", 0.0, 0.0}},
      {"\"S355\",355,x\r\n\"S420\",420,390\r\n", {"S355", 355.0, 0.0}},
      {"\"S355\",1E99,335\r\n\"S420\",420,390\r\n", {"S355", 0.0, 0.0}},
      {"\"S355\",,335\r\n\"S420\",420,390\r\n", {"S355", 0.0, 0.0}},
      {"\"S355\",355", {"S355", 355.0, 0.0}},
      {"\"S355\"", {"S355", 0.0, 0.0}},
      {"\"S355", {"S355", 0.0, 0.0}},
      {"\"S355\",355 MPa,335abc", {"S355", 355.0, 335.0}},
  };
  for (const auto& [rest, last] : cases) {
    ExpectMaterials(std::string(first) + rest, {{"S235", 235.0, 215.0}, last});
  }
}

TEST(ReadMaterials, KeepsThirtyOneRecords) {
  std::string file;
  for (int i = 0; i < 40; ++i) file += "\"G" + std::to_string(i) + "\",1,2\r\n";
  const TempFolder folder;
  PutFile(folder / "NSmat.dat", file);
  const MaterialTable table = ReadMaterials(folder.Path());
  EXPECT_EQ(table.rows.size(), 31U);
  EXPECT_EQ(table.Last(), 30);
  EXPECT_EQ(table.rows.back().name, "G30");
}

TEST(ReadMaterials, GivesAnEmptyListWithoutAFile) {
  const TempFolder folder;
  EXPECT_EQ(ReadMaterials(folder.Path()).Last(), -1);
  EXPECT_TRUE(ReadMaterials(folder / "missing").rows.empty());
  EXPECT_TRUE(ReadMaterials("").rows.empty());
  std::filesystem::create_directory(folder / "NSmat.dat");
  EXPECT_TRUE(ReadMaterials(folder.Path()).rows.empty());
  ExpectMaterials("", {});
  ExpectMaterials("\r\n \r\n", {});
}

constexpr const char* kDefaults =
    "1.1\r\n1.2\r\n1.5\r\n1.6\r\n1.01\r\n1.02\r\n1.03\r\n1.25\r\n300\r\n250\r\n0\r\n.9\r\n5\r\n"
    "355\r\n";

const std::vector<std::pair<std::string, std::string>> kDefaultFields = {
    {"gammam1", "1.1"},         {"lfp_uls", "1.2"},      {"lfv1_uls", "1.5"},  {"lfv2_uls", "1.6"},
    {"lfp_sls", "1.01"},        {"lfv1_sls", "1.02"},    {"lfv2_sls", "1.03"}, {"lfsw_uls", "1.25"},
    {"DeflectionLimit", "300"}, {"islend_limit", "250"}, {"check_slend", "0"}, {"iufa", ".9"},
    {"MaterialIndex", "5"},     {"fyk", "355"}};

// Reads a defaults file and expects that the first count fields, and no other, changed.
void ExpectDefaults(std::string_view file, std::size_t count) {
  SCOPED_TRACE(file);
  const TempFolder folder;
  PutFile(folder / "default_ns.dat", file);
  const ProjectState before = DistinctState(1000);
  ProjectState st = before;
  ReadDefaults(folder.Path(), st);
  const auto texts = FieldTexts(st);
  std::set<std::string> names;
  for (std::size_t i = 0; i < count; ++i) {
    const auto& [name, text] = kDefaultFields[i];
    names.insert(name);
    EXPECT_EQ(texts.at(name), text) << name;
  }
  EXPECT_EQ(DifferingFields(before, st), names);
}

TEST(ReadDefaults, ReadsFourteenLines) {
  ExpectDefaults(kDefaults, 14);
  ExpectDefaults(std::string(kDefaults) + "more\r\n", 14);
  std::string unix(kDefaults);
  unix.erase(std::remove(unix.begin(), unix.end(), '\r'), unix.end());
  ExpectDefaults(unix, 14);
  ExpectDefaults(unix.substr(0, unix.size() - 1), 14);
}

TEST(ReadDefaults, KeepsWhatAShortFileDoesNotHold) {
  const std::string file = kDefaults;
  std::size_t end = 0;
  for (std::size_t count = 0; count <= 14; ++count) {
    ExpectDefaults(file.substr(0, end), count);
    end = file.find('\n', end) + 1;
  }
}

TEST(ReadDefaults, EndsAtANumberThatCannotBeRead) {
  ExpectDefaults("1.1\r\nx\r\n1.5\r\n", 1);
  ExpectDefaults("1.1\r\n\r\n1.5\r\n", 1);
  ExpectDefaults("1.1\r\n1E99\r\n1.5\r\n", 1);
  ExpectDefaults("1.1\r\n1.2\r\n1.5\r\n1.6\r\n1.01\r\n1.02\r\n1.03\r\n1.25\r\n40000\r\n250\r\n", 8);
  ExpectDefaults("1.1\r\n1.2\r\n1.5\r\n1.6\r\n1.01\r\n1.02\r\n1.03\r\n1.25\r\n300\r\nx\r\n1\r\n",
                 9);
  ExpectDefaults("1.1 as the standard has it\r\n 1.2 \r\n", 2);
  ExpectDefaults("", 0);
}

TEST(ReadDefaults, ReadsAnEmptySlendernessLimitAsEmpty) {
  const TempFolder folder;
  PutFile(folder / "default_ns.dat", "1.1\n1.2\n1.5\n1.5\n1\n1\n1\n1.2\n300\n\n1\n.9\n5\n355\n");
  ProjectState st = DistinctState(1000);
  ReadDefaults(folder.Path(), st);
  EXPECT_TRUE(st.islend_limit.IsEmpty());
  EXPECT_EQ(st.check_slend, 1);
  EXPECT_EQ(st.fyk, 355.0);
}

TEST(ReadDefaults, ChangesNothingWithoutAFile) {
  const TempFolder folder;
  const ProjectState before = DistinctState(1000);
  ProjectState st = before;
  ReadDefaults(folder.Path(), st);
  ReadDefaults("", st);
  std::filesystem::create_directory(folder / "default_ns.dat");
  ReadDefaults(folder.Path(), st);
  EXPECT_TRUE(DifferingFields(before, st).empty());
}

TEST(WriteDefaults, WritesWhatReadDefaultsReads) {
  const TempFolder folder;
  PutFile(folder / "default_ns.dat", kDefaults);
  ProjectState st;
  ReadDefaults(folder.Path(), st);
  std::filesystem::remove(folder / "default_ns.dat");
  EXPECT_TRUE(WriteDefaults(folder.Path(), st));
  EXPECT_EQ(GetFile(folder / "default_ns.dat"), kDefaults);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteDefaults, TellsWhenTheFileCannotBeWritten) {
  const TempFolder folder;
  EXPECT_FALSE(WriteDefaults(folder / "missing", ProjectState()));
  EXPECT_FALSE(WriteDefaults("", ProjectState()));
  EXPECT_EQ(folder.Count(), 0);
}

MaterialTable ThreeGrades() {
  MaterialTable table;
  for (const auto& g : kThree) table.rows.push_back({g.name, g.thin, g.thick});
  return table;
}

ProjectState WithMaterial(int index, double fyk, double gammam1) {
  ProjectState st;
  st.MaterialIndex = index;
  st.fyk = fyk;
  st.gammam1 = gammam1;
  return st;
}

TEST(SetMaterial, ChoosesTheStressByTheThickness) {
  const std::pair<double, double> cases[] = {
      {0.0, 355.0}, {39.9, 355.0}, {40.0, 355.0}, {40.1, 335.0}, {100.0, 335.0}};
  for (const auto& [tmax, fyk] : cases) {
    ProjectState st = WithMaterial(1, 500.0, 1.1);
    SetMaterial(ThreeGrades(), tmax, st);
    EXPECT_EQ(st.fyk, fyk) << tmax;
    EXPECT_EQ(st.fd.Single(), static_cast<float>(fyk / double(float32(1.1)))) << tmax;
    EXPECT_EQ(st.epsilon.Single(), static_cast<float>(std::sqrt(235.0 / fyk))) << tmax;
  }
}

TEST(SetMaterial, FollowsTheSectionWithoutATouchOfTheMaterial) {
  ProjectState st = WithMaterial(0, 0.0, 1.0);
  SetMaterial(ThreeGrades(), 20.0, st);
  EXPECT_EQ(st.fyk, 235.0);
  EXPECT_EQ(st.epsilon, 1.0);
  SetMaterial(ThreeGrades(), 60.0, st);
  EXPECT_EQ(st.fyk, 215.0);
  EXPECT_EQ(st.fd, 215.0);
}

TEST(SetMaterial, OverwritesATypedStressOfAGradeOnly) {
  for (const int index : {2, 3, 32767}) {
    ProjectState st = WithMaterial(index, 940.0, 1.0);
    SetMaterial(ThreeGrades(), 20.0, st);
    EXPECT_EQ(st.fyk, 940.0) << index;
    EXPECT_EQ(st.fd, 940.0) << index;
    EXPECT_EQ(st.epsilon, 0.5) << index;
  }
  ProjectState st = WithMaterial(1, 940.0, 1.0);
  SetMaterial(ThreeGrades(), 20.0, st);
  EXPECT_EQ(st.fyk, 355.0);
}

TEST(SetMaterial, KeepsTheTypedStressWithoutAList) {
  ProjectState st = WithMaterial(0, 300.0, 1.25);
  SetMaterial({}, 20.0, st);
  EXPECT_EQ(st.fyk, 300.0);
  EXPECT_EQ(st.fd, 240.0);
}

TEST(SetMaterial, FailsWithoutFactorOrStressOrRow) {
  const MaterialTable grades = ThreeGrades();
  ProjectState noFactor = WithMaterial(1, 355.0, 0.0);
  EXPECT_THROW(SetMaterial(grades, 20.0, noFactor), ArithmeticFault);
  ProjectState noStress = WithMaterial(2, 0.0, 1.1);
  EXPECT_THROW(SetMaterial(grades, 20.0, noStress), ArithmeticFault);
  ProjectState neither = WithMaterial(2, 0.0, 0.0);
  EXPECT_THROW(SetMaterial(grades, 20.0, neither), ArithmeticFault);
  ProjectState negative = WithMaterial(2, -355.0, 1.1);
  EXPECT_THROW(SetMaterial(grades, 20.0, negative), ArithmeticFault);
  for (const int index : {-1, -32768}) {
    ProjectState noRow = WithMaterial(index, 355.0, 1.1);
    EXPECT_THROW(SetMaterial(grades, 20.0, noRow), ArithmeticFault) << index;
    EXPECT_EQ(noRow.fyk, 355.0) << index;
  }
}

}  // namespace
}  // namespace korvane
