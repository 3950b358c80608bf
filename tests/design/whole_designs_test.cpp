// SPDX-License-Identifier: GPL-3.0-or-later
// Whole designs from project file to ratios, against figures worked out apart from it; and every
// project file keeps its bytes when it is read and written.
#include <gtest/gtest.h>

#include <set>

#include "../core/temp_folder.h"
#include "core/project_file.h"
#include "example_figures.h"
#include "family_figures.h"
#include "figures.h"
#include "places.h"
#include "sections/profile_table.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

const std::string kExamples = KORVANE_SOURCE_DIR "/examples/";
const std::string kFamilies = KORVANE_SOURCE_DIR "/tests/design/projects/";

/// The figures carry six digits; the plastic axis of built-up sections lies within 0.1 mm.
constexpr double kTolerance = 5e-4;

/// As a person with the window: start, first calculation, open, calculation, focus.
Design Designed(const std::string& path) {
  Design d(SourceLibrary());
  StartDesign(d);
  Calculate(d);
  EXPECT_EQ(OpenProject(path, d.st), FileResult::Ok) << path;
  SetMaterial(d.lib->materials, d.rec.tmax, d.st);
  Calculate(d);
  Calculate(d);
  return d;
}

/// Compares and returns how many figures there were.
std::size_t CompareAll(const std::string& folder, const char* table) {
  std::size_t count = 0;
  const std::vector<ProjectFigures> projects = ParseFigures(table);
  for (const ProjectFigures& project : projects) {
    const Design d = Designed(folder + project.file);
    count += project.figures.size();
    for (const Figure& figure : project.figures) {
      const double value = KeyFigures().at(figure.name)(d);
      EXPECT_NEAR(value, figure.value, kTolerance * std::fabs(figure.value) + 1e-6)
          << project.file << " " << figure.name;
    }
  }
  return count;
}

/// The projects of a folder.
std::set<std::string> FilesIn(const std::string& folder) {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    if (entry.path().extension() == ".kvn") names.insert(entry.path().filename().string());
  }
  return names;
}

std::set<std::string> FilesOf(const char* table) {
  std::set<std::string> names;
  for (const ProjectFigures& project : ParseFigures(table)) names.insert(project.file);
  return names;
}

TEST(WholeDesigns, ExamplesAgreeWithTheirFigures) {
  EXPECT_EQ(CompareAll(kExamples, kExampleFigures), 471U);
}

TEST(WholeDesigns, FamiliesAgreeWithTheirFigures) {
  EXPECT_EQ(CompareAll(kFamilies, kFamilyFigures), 603U);
}

TEST(WholeDesigns, EveryProjectHasFigures) {
  EXPECT_EQ(FilesIn(kExamples), FilesOf(kExampleFigures));
  EXPECT_EQ(FilesIn(kFamilies), FilesOf(kFamilyFigures));
}

TEST(WholeDesigns, EveryFamilyHasAProject) {
  std::set<int> codes;
  for (const std::string& file : FilesIn(kFamilies)) {
    ProjectState st;
    EXPECT_EQ(OpenProject(kFamilies + file, st), FileResult::Ok) << file;
    codes.insert(st.ProfileType);
  }
  std::set<int> all;
  for (const Family& family : AllFamilies()) all.insert(family.code);
  EXPECT_EQ(codes, all);
  EXPECT_EQ(codes.size(), 32U);
}

/// What the examples are there to show.
TEST(WholeDesigns, ExamplesCoverTheWaysOfAMember) {
  std::set<int> supports, modes, segments, points, manual, profiles;
  bool tension = false, biaxial = false;
  for (const std::string& file : FilesIn(kExamples)) {
    const Design d = Designed(kExamples + file);
    supports.insert(d.st.SupportType);
    modes.insert(d.st.AnalysisMode);
    segments.insert(d.st.LtbSegments);
    points.insert(d.st.cp_mode);
    manual.insert(d.st.CFactorManual);
    profiles.insert(d.st.ProfileType);
    tension = tension || d.forces.N < 0;
    biaxial = biaxial || (d.beam.MyAbsMax > 0 && d.beam.MzAbsMax > 0 && d.forces.N > 0);
  }
  EXPECT_EQ(supports, (std::set<int>{0, 1, 2, 3, 4, 5}));
  EXPECT_EQ(modes, (std::set<int>{0, 1}));
  EXPECT_TRUE(segments.count(0) == 1 && segments.size() >= 4);
  EXPECT_EQ(points, (std::set<int>{0, 1}));
  EXPECT_EQ(manual, (std::set<int>{0, 1}));
  for (const int code : {1, 2, 3, 4, 15, 101, 102, 23, 26, 28}) {
    EXPECT_EQ(profiles.count(code), 1U) << code;
  }
  EXPECT_TRUE(tension);
  EXPECT_TRUE(biaxial);
}

TEST(WholeDesigns, ExamplesPass) {
  for (const std::string& file : FilesIn(kExamples)) {
    EXPECT_LE(MaxIR(Designed(kExamples + file).checks), 1.0F) << file;
  }
}

TEST(WholeDesigns, ReadingAndWritingKeepsTheBytes) {
  const TempFolder folder;
  for (const std::string& source : {kExamples, kFamilies}) {
    for (const std::string& file : FilesIn(source)) {
      const std::string bytes = GetFile(source + file);
      ProjectState st;
      ASSERT_EQ(OpenProject(source + file, st), FileResult::Ok) << file;
      ASSERT_TRUE(SaveProject(folder / file, st)) << file;
      EXPECT_EQ(GetFile(folder / file), bytes) << file;
    }
  }
}

TEST(WholeDesigns, ACalculationLeavesTheProjectAsItIs) {
  for (const std::string& source : {kExamples, kFamilies}) {
    for (const std::string& file : FilesIn(source)) {
      EXPECT_EQ(ProjectText(Designed(source + file).st), GetFile(source + file)) << file;
    }
  }
}

TEST(WholeDesigns, TheFlatBarHasNoPayload) {
  const std::string bytes = GetFile(kFamilies + "f028.kvn");
  // The code, and then the self weight with which the closing lines begin, of nine in all.
  const std::size_t code = bytes.find("\r\n28\r\n");
  ASSERT_NE(code, std::string::npos);
  const std::string rest = bytes.substr(code + 6);
  EXPECT_EQ(std::count(rest.begin(), rest.end(), '\n'), 9);
  ProjectState st;
  st.p28_h = 77;
  ASSERT_EQ(ReadProject(bytes, st), FileResult::Ok);
  EXPECT_EQ(double(st.p28_h), 77.0);
}

}  // namespace
}  // namespace korvane
