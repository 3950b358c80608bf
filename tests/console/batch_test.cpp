// SPDX-License-Identifier: GPL-3.0-or-later
// Batches: the same table whatever the number of threads, a line for each project, shares of a
// list, exit statuses.
#include "front/console/batch.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include "../core/own_process.h"
#include "front/console/run_design.h"
#include "optimiser/optimize.h"
#include "projects.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using Strings = std::vector<std::string>;

std::string Table(const Strings& files, int jobs, bool optimise = false) {
  BatchOptions options;
  options.jobs = jobs;
  options.optimise = optimise;
  std::ostringstream table;
  std::ostringstream progress;
  DesignFiles(SourceLibrary(), files, options, true, table, progress, false);
  EXPECT_EQ(progress.str(), "");
  return table.str();
}

Strings Lines(const std::string& text) {
  Strings lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// The fields of a line of CSV without line ends in its fields.
Strings Fields(const std::string& line) {
  Strings fields(1);
  bool quoted = false;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] == '"' && quoted && i + 1 < line.size() && line[i + 1] == '"')
      fields.back() += line[i++];
    else if (line[i] == '"')
      quoted = !quoted;
    else if (line[i] == ',' && !quoted)
      fields.emplace_back();
    else
      fields.back() += line[i];
  }
  return fields;
}

enum Column {
  kFile,
  kSection,
  kWeight,
  kMaxIR,
  kGoverning,
  kText,
  kDeflection,
  kStatus,
  kError,
  kStanding,
  kSls,
  kNotes,
  kOptimised
};

Strings LineOf(const std::string& path, bool optimise = false) {
  const Strings lines = Lines(Table({path}, 1, optimise));
  EXPECT_EQ(lines.size(), 2U);
  return Fields(lines.at(1));
}

struct Printed {
  int status;
  std::string output, errors;
};

Printed RunWith(const BatchOptions& options) {
  std::ostringstream output;
  std::ostringstream errors;
  const int status = RunBatch(SourceLibrary(), options, output, errors, false);
  return {status, output.str(), errors.str()};
}

TEST(Batch, TheTableIsTheSameWithAnyNumberOfThreads) {
  const TempFolder folder;
  PutProjects(folder, 1000);
  PutFile(folder / "p150.kvn", "390\r\nbroken");
  const Strings files = FindProjects({folder.Path()});
  ASSERT_EQ(files.size(), 1000U);
  const std::string one = Table(files, 1);
  EXPECT_EQ(Lines(one).size(), 1001U);
  EXPECT_EQ(Table(files, 2), one);
  EXPECT_EQ(Table(files, 7), one);
  EXPECT_NE(one.find(",pass,"), std::string::npos);
  EXPECT_NE(one.find(",fail,"), std::string::npos);
  EXPECT_NE(one.find(",error,Input file not compatible with this version "), std::string::npos);
}

TEST(Batch, AProjectDoesNotDependOnThoseBeforeIt) {
  const TempFolder folder;
  PutProjects(folder, 64);
  Strings files = FindProjects({folder.Path()});
  Strings forward = Lines(Table(files, 1));
  std::reverse(files.begin(), files.end());
  Strings backward = Lines(Table(files, 1));
  std::reverse(backward.begin() + 1, backward.end());
  EXPECT_EQ(forward, backward);
}

TEST(Batch, ALineHoldsTheResultsOfTheDesign) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  PutProject(path, [](ProjectState& st) { st.q1 = 18.0; });
  Design design = StartedDesign(SourceLibrary());
  RunProject(design, path);
  const Strings line = LineOf(path);
  ASSERT_EQ(line.size(), 12U);
  EXPECT_EQ(line[kFile], path);
  EXPECT_EQ(line[kSection], SectionTitle(design.st, design.lib->catalogues));
  EXPECT_EQ(std::stof(line[kWeight]), design.rec.S.Single());
  EXPECT_EQ(std::stof(line[kMaxIR]), MaxIR(design.checks));
  EXPECT_FLOAT_EQ(std::stof(line[kDeflection]),
                  static_cast<float>(5000.0 / design.deflections.DeflZ_max));
  const CheckLine& lateral = design.checks.lineBucklingZ;
  ASSERT_FLOAT_EQ(static_cast<float>(design.checks.IRcombinedZ), MaxIR(design.checks));
  EXPECT_EQ(line[kGoverning], lateral.label);
  EXPECT_EQ(line[kText], lateral.formula + lateral.numbers + lateral.value + lateral.limit);
  EXPECT_EQ(line[kStatus], MaxIR(design.checks) > 1.0F ? "fail" : "pass");
  EXPECT_EQ(line[kError], "");
}

TEST(Batch, TheGoverningLineShowsTheGreatestRatioInEveryFamily) {
  const TempFolder folder;
  PutProjects(folder, 192);
  int shown = 0;
  for (const std::string& path : FindProjects({folder.Path()})) {
    const Strings line = LineOf(path);
    if (line.at(kGoverning).empty()) continue;
    ++shown;
    std::ostringstream ratio;
    ratio.setf(std::ios::fixed);
    ratio.precision(2);
    ratio << std::stod(line[kMaxIR]);
    const std::string limit = line[kText].substr(line[kText].rfind(" = ") + 3);
    EXPECT_NEAR(std::stod(limit), std::stod(ratio.str()), 0.0101) << path;
  }
  EXPECT_GE(shown, 150);
}

TEST(Batch, AFailingCheckFails) {
  const TempFolder folder;
  PutProject(folder / "a.kvn", [](ProjectState& st) { st.q1 = 1000.0; });
  const Strings line = LineOf(folder / "a.kvn");
  EXPECT_EQ(line[kStatus], "fail");
  EXPECT_GT(std::stod(line[kMaxIR]), 1.0);
}

TEST(Batch, ALineHoldsTheVerdict) {
  const TempFolder folder;
  PutProject(folder / "a.kvn", [](ProjectState& st) { st.q1 = 1000.0; });
  PutProject(folder / "b.kvn", [](ProjectState& st) {
    st.ProfileType = 22;
    st.q2 = 1.0;
    st.q2_yz = 0;
  });
  PutProject(folder / "c.kvn", [](ProjectState& st) { st.gammam1 = 0.0; });
  const Strings fails = LineOf(folder / "a.kvn");
  EXPECT_EQ(fails[kStanding], "fails");
  EXPECT_EQ(fails[kSls], "fails");
  EXPECT_EQ(fails[kNotes].find("ratio-exceeded"), 0U);
  const Strings unread = LineOf(folder / "b.kvn");
  EXPECT_EQ(unread[kStanding], "not checked");
  EXPECT_EQ(unread[kStatus], "not checked");
  EXPECT_EQ(unread[kSls], "passes");
  EXPECT_NE(unread[kNotes].find("force-unread"), std::string::npos);
  const Strings stopped = LineOf(folder / "c.kvn");
  EXPECT_EQ(stopped[kStanding], "stopped");
  EXPECT_EQ(stopped[kSls], "none");
  EXPECT_EQ(stopped[kNotes], "stopped");
}

TEST(Batch, EndForcesHaveNoDeflection) {
  const TempFolder folder;
  PutProject(folder / "a.kvn", [](ProjectState& st) {
    st.AnalysisMode = 0;
    st.Ne = 100.0;
  });
  const Strings line = LineOf(folder / "a.kvn");
  EXPECT_EQ(line[kDeflection], "");
  EXPECT_EQ(line[kStatus], "pass");
}

TEST(Batch, AnArithmeticFailureNamesItsStep) {
  const TempFolder folder;
  PutProject(folder / "a.kvn", [](ProjectState& st) { st.gammam1 = 0.0; });
  const Strings line = LineOf(folder / "a.kvn");
  EXPECT_EQ(line[kStatus], "fault");
  EXPECT_EQ(line[kError].find("arithmetic failure in SetMaterial: "), 0U);
  EXPECT_EQ(line[kMaxIR], "");
}

struct Broken {
  const char* name;
  std::string bytes;
  std::string error;
};

TEST(Batch, ABrokenFileIsALineWithItsError) {
  const TempFolder folder;
  const std::vector<Broken> table{
      {"empty.kvn", "", "Input file not compatible with this version "},
      {"short.kvn", "390\r\nname\r\n", "Input file not compatible with this version "},
      {"binary.kvn", std::string(3, '\0'), "Input file not compatible with this version "},
      {"range.kvn", "390\r\na\r\nb\r\n70000\r\n", ""},
  };
  for (const Broken& c : table) {
    PutFile(folder / c.name, c.bytes);
    const Strings line = LineOf(folder / c.name);
    EXPECT_EQ(line[kStatus], "error") << c.name;
    EXPECT_EQ(line[kSection], "") << c.name;
    if (c.error.empty())
      EXPECT_EQ(line[kError], "can't read file - " + (folder / c.name));
    else
      EXPECT_EQ(line[kError], c.error) << c.name;
  }
  EXPECT_EQ(LineOf(folder / "none.kvn")[kError], "can't find file - " + (folder / "none.kvn"));
}

TEST(Batch, NamesWithCommasQuotesAndForeignBytesStayOneFieldByteForByte) {
  const TempFolder folder;
  const std::string name = folder / "a, \"b\" k\xF8.kvn";
  PutProject(name);
  const Strings line = LineOf(name);
  ASSERT_EQ(line.size(), 12U);
  EXPECT_EQ(line[kFile], name);
  EXPECT_EQ(line[kStatus], "pass");
}

TEST(Batch, TheHeaderNamesTheFields) {
  EXPECT_EQ(BatchHeader(false),
            "file,section,weight_kg_m,max_ir,governing,governing_text,deflection_ratio,status,"
            "error,standing,sls,notes\n");
  EXPECT_EQ(Fields(BatchHeader(true)).size(), 15U);
}

TEST(Batch, OptimiseAddsTheLightestSizeOfTheSeries) {
  const TempFolder folder;
  PutProject(folder / "a.kvn", [](ProjectState& st) { st.idxHEA = 20; });
  Design design = StartedDesign(SourceLibrary());
  RunProject(design, folder / "a.kvn");
  design.st.ResultView = kCriterionUls;
  OptimiserResults results;
  SearchRow(design, 1, results);
  ASSERT_TRUE(results.Passes[1]);
  const Strings line = LineOf(folder / "a.kvn", true);
  ASSERT_EQ(line.size(), 15U);
  EXPECT_NE(line[kSection], line[kOptimised]);
  EXPECT_EQ(line[kOptimised], SectionTitle(design.st, design.lib->catalogues));
  EXPECT_EQ(std::stof(line[kOptimised + 1]), design.rec.S.Single());
  EXPECT_EQ(std::stof(line[kOptimised + 2]), results.BestIR[1].Single());
}

TEST(Batch, OptimiseAddsNothingWhereNoSizePassesOrNoSeriesIs) {
  const TempFolder folder;
  PutProject(folder / "none.kvn", [](ProjectState& st) { st.q1 = 50000.0; });
  PutProject(folder / "welded.kvn", [](ProjectState& st) { st.ProfileType = 21; });
  for (const char* name : {"none.kvn", "welded.kvn"}) {
    const Strings line = LineOf(folder / name, true);
    ASSERT_EQ(line.size(), 15U);
    EXPECT_EQ(line[kOptimised] + line[kOptimised + 1] + line[kOptimised + 2], "");
    EXPECT_NE(line[kSection], "");
  }
}

// Inputs and shares

TEST(BatchInputs, AFolderGivesItsProjectsInTheOrderOfTheirNames) {
  const TempFolder folder;
  std::filesystem::create_directories(folder / "sub/deep");
  std::filesystem::create_directories(folder / "folder.kvn");
  for (const char* name : {"b.kvn", "a.KVN", "sub/c.kvn", "sub/deep/d.kvn", "notes.txt", "kvn"})
    PutFile(folder / name, "");
  EXPECT_EQ(FindProjects({folder / "b.kvn", folder.Path(), "missing.kvn"}),
            (Strings{folder / "b.kvn", folder / "a.KVN", folder / "b.kvn", folder / "sub/c.kvn",
                     folder / "sub/deep/d.kvn", "missing.kvn"}));
}

TEST(BatchShards, CoverEveryFileOnce) {
  Strings files;
  for (int i = 0; i < 101; ++i) files.push_back(std::to_string(i));
  for (const int shards : {1, 2, 7, 101, 150}) {
    Strings all;
    for (int shard = 1; shard <= shards; ++shard) {
      const Strings share = TakeShard(files, shard, shards);
      EXPECT_LE(share.size(), files.size() / static_cast<std::size_t>(shards) + 1);
      all.insert(all.end(), share.begin(), share.end());
    }
    std::sort(all.begin(), all.end());
    Strings sorted = files;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(all, sorted) << shards;
  }
  EXPECT_EQ(TakeShard(files, 2, 50), (Strings{"1", "51"}));
}

TEST(BatchShards, AreTwoNumbersOfWhichTheFirstIsNotTheGreater) {
  BatchOptions options;
  EXPECT_TRUE(ParseShard("3/8", options));
  EXPECT_EQ(options.shard, 3);
  EXPECT_EQ(options.shards, 8);
  EXPECT_TRUE(ParseShard("1/1", options));
  for (const char* text : {"", "3", "3/", "/8", "0/8", "9/8", "-1/8", "3/8x", "3 /8", "a/b",
                           "3/8/9", "1/99999999999"}) {
    EXPECT_FALSE(ParseShard(text, options)) << text;
    EXPECT_EQ(options.shards, 1);
  }
}

TEST(BatchShards, PutTogetherGiveTheLinesOfTheWhole) {
  const TempFolder folder;
  PutProjects(folder, 50);
  BatchOptions options;
  options.inputs = {folder.Path()};
  Strings whole = Lines(RunWith(options).output);
  options.shards = 3;
  std::string together;
  for (options.shard = 1; options.shard <= 3; ++options.shard) together += RunWith(options).output;
  Strings parts = Lines(together);
  EXPECT_EQ(parts.at(0), whole.at(0));
  std::sort(whole.begin(), whole.end());
  std::sort(parts.begin(), parts.end());
  EXPECT_EQ(parts, whole);
}

// The command

TEST(BatchRun, ExitStatusTellsTheWorstThatCameUp) {
  struct Case {
    BatchCounts counts;
    int status;
  };
  for (const Case& c : std::vector<Case>{{{3, 0, 0, 0}, 0},
                                         {{3, 1, 0, 0}, 1},
                                         {{3, 1, 1, 0}, 3},
                                         {{3, 1, 1, 1}, 2},
                                         {{3, 0, 0, 0, 1}, 1},
                                         {{3, 0, 1, 0, 1}, 3},
                                         {{0, 0, 0, 1}, 2}})
    EXPECT_EQ(c.counts.ExitStatus(), c.status);
}

TEST(BatchRun, ABrokenFileDoesNotStopTheRest) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  PutFile(folder / "b.kvn", "390");
  PutProject(folder / "c.kvn", [](ProjectState& st) { st.q1 = 1000.0; });
  BatchOptions options;
  options.inputs = {folder.Path()};
  const Printed run = RunWith(options);
  EXPECT_EQ(run.status, 2);
  const Strings lines = Lines(run.output);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(Fields(lines[1])[kStatus], "pass");
  EXPECT_EQ(Fields(lines[2])[kStatus], "error");
  EXPECT_EQ(Fields(lines[3])[kStatus], "fail");
  EXPECT_EQ(run.errors,
            "3 projects: 1 pass, 1 fail, 0 not checked, 0 arithmetic failures, 1 unreadable\n");
}

TEST(BatchRun, WritesTheTableToAFile) {
  const TempFolder folder;
  const TempFolder target;
  PutProjects(folder, 20);
  BatchOptions options;
  options.inputs = {folder.Path()};
  const std::string printed = RunWith(options).output;
  options.csv = target / "t.csv";
  PutFile(options.csv, "old");
  const Printed run = RunWith(options);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(GetFile(options.csv), printed);
  EXPECT_EQ(target.Count(), 1);
}

TEST(BatchRun, ATargetThatCannotBeWrittenIsSaid) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  BatchOptions options;
  options.inputs = {folder / "a.kvn"};
  PutFile(folder / "list", (folder / "a.kvn") + "\n");
  options.list = folder / "list";
  PutFile(folder / "locked.csv", "old");
  std::filesystem::permissions(folder / "locked.csv", std::filesystem::perms(0444));
  struct Case {
    std::string csv;
    WriteStatus status;
  };
  for (const Case& c : std::vector<Case>{{folder / "no/folder.csv", WriteStatus::NoFolder},
                                         {folder.Path(), WriteStatus::IsFolder},
                                         {"/dev/full", WriteStatus::NotAFile},
                                         {folder / "a.kvn", WriteStatus::IsInput},
                                         {folder / "list", WriteStatus::IsInput},
                                         {folder / "locked.csv", WriteStatus::ReadOnly}}) {
    options.csv = c.csv;
    const Printed run = RunWith(options);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "can't save file - " + c.csv + "\n" + ResultOf(c.status).why + "\n");
  }
  EXPECT_EQ(folder.Count(), 3);
  EXPECT_EQ(GetFile(folder / "locked.csv"), "old");
}

TEST(BatchRun, WritesThroughLinksAndLeavesThem) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  PutFile(folder / "real.csv", "old");
  std::filesystem::create_symlink("real.csv", folder / "link.csv");
  BatchOptions options;
  options.inputs = {folder / "a.kvn"};
  options.csv = folder / "link.csv";
  EXPECT_EQ(RunWith(options).status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(options.csv));
  EXPECT_EQ(Lines(GetFile(folder / "real.csv")).size(), 2U);
}

TEST(BatchRun, TakesMoreInputsFromAList) {
  const TempFolder folder;
  for (const char* name : {"a.kvn", "b c.kvn", "d.kvn"}) PutProject(folder / name);
  PutFile(folder / "list", (folder / "d.kvn") + "\r\n\n" + (folder / "b c.kvn"));
  BatchOptions options;
  options.inputs = {folder / "a.kvn"};
  options.list = folder / "list";
  const Strings lines = Lines(RunWith(options).output);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(Fields(lines[1])[kFile], folder / "a.kvn");
  EXPECT_EQ(Fields(lines[2])[kFile], folder / "d.kvn");
  EXPECT_EQ(Fields(lines[3])[kFile], folder / "b c.kvn");
  options.list = folder / "missing";
  EXPECT_EQ(RunWith(options).status, 2);
  EXPECT_EQ(RunWith(options).errors, "can't read file - " + options.list + "\n");
}

TEST(BatchRun, TellsAFileWithoutAVersion) {
  const TempFolder folder;
  std::string old = "Projects of 1998\r\n";
  for (int i = 0; i < 200; ++i) old += "1\r\n";
  PutFile(folder / "a.kvn", old);
  PutProject(folder / "b.kvn");
  BatchOptions options;
  options.inputs = {folder.Path()};
  const Printed run = RunWith(options);
  EXPECT_EQ(run.errors.find((folder / "a.kvn") +
                            ": first line holds no version number; read as an old project\n"),
            0U)
      << run.errors;
  EXPECT_EQ(run.errors.find("b.kvn"), std::string::npos);
}

TEST(BatchRun, AFolderThatCannotBeReadIsAnUnreadableRow) {
  const TempFolder folder;
  std::filesystem::create_directories(folder / "open/closed");
  PutProject(folder / "open/a.kvn");
  std::filesystem::permissions(folder.Path(), std::filesystem::perms(0755));
  std::filesystem::permissions(folder / "open/closed", std::filesystem::perms::none);
  SourceLibrary();
  const int status = InAProcessOfItsOwn([&folder] {
    if (!BecomeAPlainUser()) return 4;
    BatchOptions options;
    options.inputs = {folder / "open"};
    const Printed run = RunWith(options);
    const Strings lines = Lines(run.output);
    if (run.status != 2 || lines.size() != 3) return 5;
    const Strings row = Fields(lines[2]);
    const bool told = row[kStatus] == "error" && row[kFile] == folder / "open/closed" &&
                      row[kError] == "can't read file - " + (folder / "open/closed");
    return told ? 0 : 6;
  });
  std::filesystem::permissions(folder / "open/closed", std::filesystem::perms::owner_all);
  EXPECT_EQ(status, 0);
}

TEST(Batch, CellsThatASpreadsheetWouldCalculateAreGuarded) {
  const TempFolder folder;
  const auto before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  for (const char* name : {"=1+2.kvn", "+a.kvn", "-b.kvn", "@c.kvn"}) {
    PutProject(name);
    EXPECT_EQ(LineOf(name)[kFile], std::string("'") + name);
  }
  PutProject("d=.kvn");
  EXPECT_EQ(LineOf("d=.kvn")[kFile], "d=.kvn");
  std::filesystem::current_path(before);
}

TEST(Batch, ADeflectionTooSmallToMeasureHasNoRatio) {
  const TempFolder folder;
  PutProject(folder / "a.kvn", [](ProjectState& st) { st.q1 = 1E-40F; });
  const Strings line = LineOf(folder / "a.kvn");
  EXPECT_EQ(line[kDeflection].find("inf"), std::string::npos);
  PutProject(folder / "b.kvn", [](ProjectState& st) { st.q1 = 1E-30F; });
  EXPECT_EQ(LineOf(folder / "b.kvn")[kDeflection].find("inf"), std::string::npos);
}

TEST(BatchRun, NothingToDesignIsSaid) {
  const TempFolder folder;
  BatchOptions options;
  options.inputs = {folder.Path()};
  const Printed run = RunWith(options);
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(run.errors, "no project (*.kvn) found\n");
}

TEST(BatchRun, AShareWithoutFilesIsAnEmptyTable) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  BatchOptions options;
  options.inputs = {folder.Path()};
  options.shard = 2;
  options.shards = 2;
  const Printed run = RunWith(options);
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.output, "");
}

}  // namespace
}  // namespace korvane
