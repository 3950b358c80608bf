// SPDX-License-Identifier: GPL-3.0-or-later
// Single fields of the project file: numbers and texts in all their forms, what a field can't
// hold, and opening and saving of files.
#include "core/project_file.h"

#include <gtest/gtest.h>

#include <utility>

#include "tests/core/state_values.h"
#include "tests/core/temp_folder.h"

namespace korvane {
namespace {

// The text of a new project with one line (from 1) replaced.
std::string WithLine(int line, const std::string& content) {
  std::string text = ProjectText(ProjectState());
  std::size_t start = 0;
  for (int i = 1; i < line; ++i) start = text.find('\n', start) + 1;
  return text.replace(start, text.find('\r', start) - start, content);
}

constexpr int kLineOfMaterial = 4;
constexpr int kLineOfGamma = 6;
constexpr int kLineOfC1 = 38;
constexpr int kLineOfZa = 45 + 73 + 2 + 7;

TEST(ProjectText, CountsItsLines) {
  const auto lines = [](const ProjectState& st) {
    const std::string text = ProjectText(st);
    return std::count(text.begin(), text.end(), '\n');
  };
  ProjectState st;
  EXPECT_EQ(lines(st), 45 + 73 + 1 + 1 + 9);
  st.AnalysisMode = 0;
  EXPECT_EQ(lines(st), 45 + 9 + 1 + 1 + 9);
  st.AnalysisMode = 2;
  st.ProfileType = 28;
  EXPECT_EQ(lines(st), 45 + 1 + 9);
}

TEST(ReadProject, ReadsATextAtAnIntsPlaceAsTheNumberItBeginsWith) {
  const std::pair<const char*, int> cases[] = {
      {"7", 7},         {"  7  ", 7},       {"-3", -3},         {"", 0},
      {"abc", 0},       {"12abc", 12},      {"7,5", 7},         {"\t7", 7},
      {"1E2", 100},     {"3.7", 4},         {"-3.7", -4},       {"2.5", 2},
      {"32767", 32767}, {"-32768", -32768}, {"32767.4", 32767}, {"1E-400", 0}};
  for (const auto& [text, value] : cases) {
    ProjectState st = DistinctState(1000);
    EXPECT_EQ(ReadProject(WithLine(kLineOfMaterial, text), st), FileResult::Ok) << text;
    EXPECT_EQ(st.MaterialIndex, value) << text;
  }
}

TEST(ReadProject, ReadsATextAtARealsPlaceAsTheNumberItBeginsWith) {
  const std::pair<const char*, float> cases[] = {
      {"1.1", 1.1F}, {" 1.1 ", 1.1F}, {".5", 0.5F},   {"-.5", -0.5F},       {"0.5", 0.5F},
      {"", 0.0F},    {"x", 0.0F},     {"1,1", 1.0F},  {"1.2E+12", 1.2E12F}, {"1.2e12", 1.2E12F},
      {"5 m", 5.0F}, {"1E-60", 0.0F}, {"\"3\"", 0.0F}};
  for (const auto& [text, value] : cases) {
    ProjectState st = DistinctState(1000);
    EXPECT_EQ(ReadProject(WithLine(kLineOfGamma, text), st), FileResult::Ok) << text;
    EXPECT_EQ(st.gammam1.Single(), value) << text;
  }
}

TEST(ReadProject, ReadsNumsInDoublePrecisionAndEmpty) {
  ProjectState st;
  EXPECT_EQ(ReadProject(WithLine(kLineOfC1, ".3333333333333333"), st), FileResult::Ok);
  EXPECT_EQ(static_cast<double>(st.C1i), .3333333333333333);
  EXPECT_EQ(ReadProject(WithLine(kLineOfC1, "abc"), st), FileResult::Ok);
  EXPECT_EQ(static_cast<double>(st.C1i), 0.0);
  EXPECT_FALSE(st.C1i.IsEmpty());
  for (const char* blank : {"", " ", "\t "}) {
    st.C1i = 3.0;
    EXPECT_EQ(ReadProject(WithLine(kLineOfC1, blank), st), FileResult::Ok);
    EXPECT_TRUE(st.C1i.IsEmpty());
  }
}

TEST(ProjectText, WritesAnEmptyNumAsAnEmptyLine) {
  ProjectState st;
  st.Za = number::Empty();
  EXPECT_EQ(ProjectText(st), WithLine(kLineOfZa, ""));
  ProjectState opened;
  opened.Za = 12.0;
  EXPECT_EQ(ReadProject(ProjectText(st), opened), FileResult::Ok);
  EXPECT_TRUE(opened.Za.IsEmpty());
}

TEST(ReadProject, StopsAtANumberThatItsTypeCannotHold) {
  struct Case {
    int line;
    const char* content;
    std::size_t fieldsBefore;
  };
  const Case cases[] = {
      {1, "40000", 0},
      {1, "1E99", 0},
      {kLineOfMaterial, "32768", 2},
      {kLineOfMaterial, "-32769", 2},
      {kLineOfMaterial, "32767.6", 2},
      {kLineOfMaterial, "99999999999", 2},
      {kLineOfMaterial, "1E999", 2},
      {kLineOfGamma, "1E99", 4},
      {kLineOfGamma, "-3.5E38", 4},
      {kLineOfGamma, "1E999", 4},
      {kLineOfC1, "1E999", 36},
  };
  for (const auto& c : cases) {
    const ProjectState before = DistinctState(1000);
    ProjectState st = before;
    EXPECT_EQ(ReadProject(WithLine(c.line, c.content), st), FileResult::OtherError) << c.content;
    EXPECT_EQ(DifferingFields(before, st).size(), c.fieldsBefore) << c.line << " " << c.content;
  }
}

TEST(ReadProject, IgnoresWhatFollowsAndAByteOrderMark) {
  const std::string text = ProjectText(DistinctState(100));
  ProjectState st;
  EXPECT_EQ(ReadProject("\xEF\xBB\xBF" + text + "more\r\nlines", st), FileResult::Ok);
  EXPECT_EQ(ProjectText(st), text);
}

TEST(ReadProject, KeepsTextsAsTheyStand) {
  for (const char* name : {"Hall 17, \"west\"", "\"quoted\"", "  blanks  ", "", "390",
                           "Sk\xC3\xB8yen \xE2\x82\xAC", "a\tb", "'"}) {
    ProjectState saved;
    saved.iproj = name;
    saved.iident = name;
    ProjectState st;
    EXPECT_EQ(ReadProject(ProjectText(saved), st), FileResult::Ok) << name;
    EXPECT_EQ(st.iproj, name);
    EXPECT_EQ(st.iident, name);
  }
}

TEST(ReadProject, ReadsTheCodePageOfOlderFiles) {
  ProjectState st;
  EXPECT_EQ(ReadProject(WithLine(2, "Sk\xF8yen \x80"), st), FileResult::Ok);
  EXPECT_EQ(st.iproj, "Sk\xC3\xB8yen \xE2\x82\xAC");
  EXPECT_EQ(ProjectText(st), WithLine(2, "Sk\xC3\xB8yen \xE2\x82\xAC"));
}

TEST(ProjectText, KeepsATextOnItsLine) {
  ProjectState saved;
  saved.iproj = "one\ntwo\r\nthree\rfour\n";
  saved.iident = "\r\n";
  saved.ProfileType = 41;
  saved.p41_name = "a\nb";
  ProjectState st;
  EXPECT_EQ(ReadProject(ProjectText(saved), st), FileResult::Ok);
  EXPECT_EQ(st.iproj, "one two three four ");
  EXPECT_EQ(st.iident, " ");
  EXPECT_EQ(st.p41_name, "a b");
  EXPECT_EQ(st.p41_Wplz, saved.p41_Wplz);
}

TEST(ReadProject, ReadsTheNameOfAGeneralProfileUpToTheClosingQuote) {
  ProjectState general;
  general.ProfileType = 41;
  general.p41_name = "*";
  const std::string text = ProjectText(general);
  const std::pair<const char*, const char*> cases[] = {{"\"Box, 2\"", "Box, 2"},
                                                       {"  \"Box\"  ", "Box"},
                                                       {"\" Box \"", " Box "},
                                                       {"\"a\"b\"", "a"},
                                                       {"\"open", "open"},
                                                       {"plain ", "plain"},
                                                       {"\"\"", ""},
                                                       {"", ""},
                                                       {"\"K\xF8yle\"", "K\xC3\xB8yle"}};
  for (const auto& [line, name] : cases) {
    std::string changed = text;
    changed.replace(changed.find("\"*\""), 3, line);
    ProjectState st;
    EXPECT_EQ(ReadProject(changed, st), FileResult::Ok) << line;
    EXPECT_EQ(st.p41_name, name) << line;
    EXPECT_EQ(st.p41_option, 1) << line;
  }
}

TEST(ReadProject, LosesWhatFollowsAQuoteInTheNameOfAGeneralProfile) {
  ProjectState saved;
  saved.ProfileType = 41;
  saved.p41_name = "8\" pipe";
  ProjectState st;
  EXPECT_EQ(ReadProject(ProjectText(saved), st), FileResult::Ok);
  EXPECT_EQ(st.p41_name, "8");
}

TEST(ReadProject, DropsTheSpareLinesOfABox) {
  ProjectState saved;
  saved.ProfileType = 27;
  std::string text = ProjectText(saved);
  text.replace(text.find("490\r\n\r\n\r\n"), 9, "490\r\n12\r\nx\r\n");
  ProjectState st;
  EXPECT_EQ(ReadProject(text, st), FileResult::Ok);
  EXPECT_EQ(ProjectText(st), ProjectText(saved));
}

TEST(ReadProject, ReadsLinesOfAnyLength) {
  const std::string name(5000000, 'n');
  ProjectState st;
  EXPECT_EQ(ReadProject(WithLine(2, name), st), FileResult::Ok);
  EXPECT_EQ(st.iproj, name);
  EXPECT_EQ(ReadProject(WithLine(kLineOfMaterial, std::string(5000000, '9')), st),
            FileResult::OtherError);
  EXPECT_EQ(ReadProject(std::string(5000000, '\0'), st), FileResult::TooShort);
}

TEST(OpenProject, TellsWhatWentWrong) {
  const TempFolder folder;
  PutFile(folder / "empty.kvn", "");
  PutFile(folder / "short.kvn", "390\r\nHall");
  PutFile(folder / "large.kvn", WithLine(kLineOfMaterial, "70000"));
  PutFile(folder / "zeros.kvn", std::string(1000, '\0'));
  PutFile(folder / "good.kvn", ProjectText(ProjectState()));
  const std::pair<std::string, FileResult> cases[] = {
      {folder / "good.kvn", FileResult::Ok},
      {folder / "missing.kvn", FileResult::NotFound},
      {folder / "missing/good.kvn", FileResult::NotFound},
      {"", FileResult::NotFound},
      {folder / "empty.kvn", FileResult::TooShort},
      {folder / "short.kvn", FileResult::TooShort},
      {folder / "zeros.kvn", FileResult::TooShort},
      {folder / "large.kvn", FileResult::OtherError},
      {folder.Path(), FileResult::OtherError},
  };
  for (const auto& [path, result] : cases) {
    ProjectState st;
    EXPECT_EQ(OpenProject(path, st), result) << path;
  }
}

TEST(OpenProject, LeavesTheStateWhereTheFileCannotBeRead) {
  const TempFolder folder;
  for (const std::string& path : {folder / "missing.kvn", folder.Path()}) {
    const ProjectState before = DistinctState(1000);
    ProjectState st = before;
    EXPECT_NE(OpenProject(path, st), FileResult::Ok);
    EXPECT_TRUE(DifferingFields(before, st).empty());
  }
}

TEST(SaveProject, TellsAMissingFolderAndLeavesTheOldFile) {
  const TempFolder folder;
  PutFile(folder / "old.kvn", "old");
  const ProjectState st;
  EXPECT_EQ(SaveProject(folder / "missing/p.kvn", st).status, WriteStatus::NoFolder);
  EXPECT_EQ(SaveProject(folder / "old.kvn/p.kvn", st).status, WriteStatus::NoFolder);
  EXPECT_EQ(SaveProject(folder.Path(), st).status, WriteStatus::IsFolder);
  EXPECT_EQ(SaveProject("", st).status, WriteStatus::BadName);
  EXPECT_EQ(GetFile(folder / "old.kvn"), "old");
  EXPECT_EQ(folder.Count(), 1);
}

TEST(OpenProject, LeavesTheHiddenLoadsOfTheProcessInEndForceMode) {
  ProjectState saved;
  saved.AnalysisMode = 0;
  saved.My_end[2] = -12.5;
  ProjectState st;
  st.q1 = 77.0;
  st.pm[3] = 8.0;
  EXPECT_EQ(ReadProject(ProjectText(saved), st), FileResult::Ok);
  EXPECT_EQ(st.My_end[2], -12.5);
  EXPECT_EQ(st.q1, 77.0);
  EXPECT_EQ(st.pm[3], 8.0);
}

TEST(OpenProject, LeavesTheFlatBarOfTheProcess) {
  ProjectState saved;
  saved.ProfileType = 28;
  saved.p28_h = 90.0;
  ProjectState st;
  st.p28_h = 200.0;
  st.p28_tw = 20.0;
  EXPECT_EQ(ReadProject(ProjectText(saved), st), FileResult::Ok);
  EXPECT_EQ(st.ProfileType, 28);
  EXPECT_EQ(st.p28_h, 200.0);
  EXPECT_EQ(st.p28_tw, 20.0);
  NewProject(st);
  EXPECT_EQ(st.p28_h, 150.0);
  EXPECT_EQ(st.p28_tw, 12.0);
}

}  // namespace
}  // namespace korvane
