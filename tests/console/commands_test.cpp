// SPDX-License-Identifier: GPL-3.0-or-later
// Arguments of the commands, and the progress that they show.
#include <gtest/gtest.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "front/console/more_commands.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"
#include "places.h"
#include "projects.h"

namespace korvane {
namespace {

struct Printed {
  int status = -1;
  std::string output, errors;
};

/// Runs the arguments (the last first, as the parser takes them); a refusal has status 2.
Printed RunArguments(std::vector<std::string> arguments) {
  CLI::App app;
  Printed run;
  AddBatchCommands(app, run.status);
  arguments.emplace_back("--data");
  arguments.emplace_back(KORVANE_SOURCE_DIR "/data");
  std::reverse(arguments.begin(), arguments.end());
  testing::internal::CaptureStdout();
  testing::internal::CaptureStderr();
  try {
    app.parse(arguments);
  } catch (const CLI::ParseError&) {
    run.status = 2;
  }
  run.output = testing::internal::GetCapturedStdout();
  run.errors = testing::internal::GetCapturedStderr();
  return run;
}

TEST(Commands, RunABatch) {
  const TempFolder folder;
  PutProjects(folder, 12);
  const Printed whole = RunArguments({"batch", folder.Path(), "--jobs", "2", "--optimise"});
  EXPECT_EQ(std::count(whole.output.begin(), whole.output.end(), '\n'), 13);
  EXPECT_NE(whole.output.find("optimised_section"), std::string::npos);
  const Printed share =
      RunArguments({"batch", folder / "p001.kvn", folder / "p002.kvn", "--shard", "2/2"});
  EXPECT_EQ(share.output.find(folder / "p002.kvn"), 0U);
  EXPECT_EQ(std::count(share.output.begin(), share.output.end(), '\n'), 1);
}

TEST(Commands, RefuseWrongArgumentsOfABatch) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  const std::string file = folder / "a.kvn";
  EXPECT_EQ(RunArguments({"batch", file}).status, 0);
  EXPECT_EQ(RunArguments({"batch"}).status, 2);
  EXPECT_EQ(RunArguments({"batch", file, "--jobs", "0"}).status, 2);
  EXPECT_EQ(RunArguments({"batch", file, "--jobs", "many"}).status, 2);
  const Printed shard = RunArguments({"batch", file, "--shard", "3/2"});
  EXPECT_EQ(shard.status, 2);
  EXPECT_EQ(shard.errors.find("--shard I/N"), 0U);
  EXPECT_EQ(shard.output, "");
}

TEST(Commands, RunASearch) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  const Printed run =
      RunArguments({"optimise", "--families", "ipe,hea", folder / "a.kvn", "--json", "--criterion",
                    "uls-sls", "--limit", "250", "-o", folder / "out.kvn"});
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.output.find("\"criterion\": \"uls-sls\""), std::string::npos);
  EXPECT_EQ(folder.Count(), 2);
}

TEST(Commands, RefuseWrongArgumentsOfASearch) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  const std::string file = folder / "a.kvn";
  EXPECT_EQ(RunArguments({"optimise"}).status, 2);
  EXPECT_EQ(RunArguments({"optimise", file, "--criterion", "all"}).status, 2);
  EXPECT_EQ(RunArguments({"optimise", file, "--limit", "x"}).status, 2);
  EXPECT_EQ(RunArguments({"optimise", file, "--limit", "50"}).status, 2);
  const Printed series = RunArguments({"optimise", file, "--families", "HEA,HEX"});
  EXPECT_EQ(series.status, 2);
  EXPECT_EQ(series.errors, "unknown series HEX: HEA,HEB,HEM,IPE,UPE,SHS,RHS,CFSHS,CFRHS,L1,L2\n");
}

TEST(Commands, ADataFolderWithoutCataloguesIsAnError) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  CLI::App app;
  int status = -1;
  AddBatchCommands(app, status);
  EXPECT_THROW(
      app.parse(std::vector<std::string>{folder.Path(), "--data", folder / "a.kvn", "batch"}),
      DataFolderError);
}

TEST(Progress, ShowsBarCountRateAndTimeLeft) {
  EXPECT_EQ(ProgressLine(0, 400, 0.0, "projects"), "[" + std::string(24, '.') + "] 0/400 projects");
  EXPECT_EQ(ProgressLine(100, 400, 2.0, "projects"),
            "[######" + std::string(18, '.') + "] 100/400 projects  50/s  6 s left");
  EXPECT_EQ(ProgressLine(1, 400, 1.0, "projects"),
            "[" + std::string(24, '.') + "] 1/400 projects  1/s  6 min 39 s left");
  EXPECT_EQ(ProgressLine(1, 10000, 1.0, "projects"),
            "[" + std::string(24, '.') + "] 1/10000 projects  1/s  2 h 46 min left");
  EXPECT_EQ(ProgressLine(400, 400, 2.0, "projects"),
            "[" + std::string(24, '#') + "] 400/400 projects  200/s  0 s left");
}

TEST(Progress, IsTakenOffTheLineAndNeverWrittenWhereItIsNotShown) {
  std::ostringstream shown;
  ProgressBar bar(shown, true, "projects");
  bar.Update(1, 2);
  EXPECT_NE(shown.str().find("1/2 projects"), std::string::npos);
  const auto length = shown.str().size();
  bar.Update(2, 2);  // too soon after the first
  EXPECT_EQ(shown.str().size(), length);
  bar.Finish();
  EXPECT_TRUE(shown.str().ends_with("\r\x1b[K"));
  std::ostringstream hidden;
  ProgressBar none(hidden, false, "projects");
  none.Update(1, 2);
  none.Finish();
  EXPECT_EQ(hidden.str(), "");
}

}  // namespace
}  // namespace korvane
