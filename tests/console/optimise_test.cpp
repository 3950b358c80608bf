// SPDX-License-Identifier: GPL-3.0-or-later
// The optimiser's command: what it prints, saves and refuses.
#include "front/console/optimise.h"

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "front/console/run_design.h"
#include "projects.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

struct Printed {
  int status;
  std::string output, errors;
};

Printed RunWith(const OptimiseOptions& options, bool colour = false) {
  std::ostringstream output;
  std::ostringstream errors;
  const int status = RunOptimise(SourceLibrary(), options, output, errors, colour, false);
  return {status, output.str(), errors.str()};
}

class Optimise : public testing::Test {
protected:
  OptimiseOptions For(const std::function<void(ProjectState&)>& change = {}) {
    OptimiseOptions options;
    options.file = folder_ / "a.kvn";
    PutProject(options.file, change);
    return options;
  }
  nlohmann::json Json(OptimiseOptions options) {
    options.json = true;
    const Printed run = RunWith(options);
    EXPECT_EQ(run.errors, "");
    return nlohmann::json::parse(run.output);
  }
  const TempFolder folder_;
};

TEST_F(Optimise, JsonHoldsTheElevenRowsOfTheSearch) {
  const OptimiseOptions options = For();
  const auto json = Json(options);
  Design design = StartedDesign(SourceLibrary());
  RunProject(design, options.file);
  design.st.ResultView = kCriterionUls;
  OptimiserResults results;
  ASSERT_EQ(json["rows"].size(), 11U);
  for (int row = 1; row <= kOptimiserRows; ++row) {
    SearchRow(design, row, results);
    const OptimiserRowView view = ShowRow(design, row, results);
    const auto& object = json["rows"][static_cast<std::size_t>(row - 1)];
    EXPECT_EQ(object["row"], row);
    EXPECT_EQ(object["ProfileType"], row);
    EXPECT_EQ(object["index"], int(design.st.*OptimiserRowOf(row).index));
    EXPECT_EQ(object["name"], view.name);
    EXPECT_EQ(object["weight"], view.S);
    EXPECT_EQ(object["surface"], view.g);
    EXPECT_EQ(object["IR"], view.IR);
    EXPECT_EQ(object["deflection"], view.deflection);
    EXPECT_EQ(object["passes"], bool(results.Passes[row]));
    EXPECT_EQ(object["remark"], view.remark);
    EXPECT_EQ(object.size(), 10U);
  }
  EXPECT_EQ(json["criterion"], "uls");
  EXPECT_EQ(json["ProfileType"], 11);
  EXPECT_EQ(json.size(), 3U);
}

TEST_F(Optimise, SearchesTheRowsAskedForInTheirOrder) {
  OptimiseOptions options = For();
  options.rows = {1, 4};
  const auto json = Json(options);
  ASSERT_EQ(json["rows"].size(), 2U);
  EXPECT_EQ(json["rows"][0]["row"], 1);
  EXPECT_EQ(json["rows"][1]["row"], 4);
  EXPECT_EQ(json["ProfileType"], 4);
}

TEST_F(Optimise, TheCriterionAndTheLimitDecide) {
  OptimiseOptions options = For();
  options.rows = {4};
  const double uls = Json(options)["rows"][0]["weight"];
  options.criterion = "uls-sls";
  options.limit = 1500.0;
  const auto both = Json(options);
  EXPECT_EQ(both["criterion"], "uls-sls");
  EXPECT_GT(both["rows"][0]["weight"], uls);
  const std::string deflection = both["rows"][0]["deflection"];
  EXPECT_GT(std::stod(deflection.substr(2)), 1500.0);
  options.limit = 200.0;
  EXPECT_LT(Json(options)["rows"][0]["weight"], both["rows"][0]["weight"]);
}

TEST_F(Optimise, TheTableMarksASeriesWithoutAPassingSize) {
  OptimiseOptions options = For([](ProjectState& st) { st.NP = 3000.0; });
  options.rows = {1, 10};
  const Printed run = RunWith(options);
  EXPECT_EQ(run.status, 0);
  std::istringstream lines(run.output);
  std::string line;
  std::vector<std::string> rows;
  while (std::getline(lines, line)) rows.push_back(line);
  ASSERT_EQ(rows.size(), 5U);
  EXPECT_EQ(rows[0], "Optimize rolled profiles: ULS (Buckling/Section Control)");
  EXPECT_EQ(rows[3].find("no section"), std::string::npos);
  EXPECT_NE(rows[4].find("L  "), std::string::npos);
  EXPECT_TRUE(rows[4].ends_with("  fails: ratio-exceeded; no section of this series passes"));
  EXPECT_EQ(run.output.find('\x1b'), std::string::npos);
  const Printed coloured = RunWith(options, true);
  EXPECT_EQ(coloured.output.find("\x1b[31m"), coloured.output.rfind("\x1b[31m"));
  EXPECT_NE(coloured.output.find("\x1b[31m"), std::string::npos);
}

// Fixed ends and a tension of 24,000 kN make the reduced moment capacities of small sections
// negative: their lines vanish, and the ratio that is left passes.
TEST_F(Optimise, ARowTellsThatItsSizeDoesNotPassByTheVerdict) {
  OptimiseOptions options = For([](ProjectState& st) {
    st.SectionControlMode = 1;
    st.SupportType = 2;
    st.q1 = 1;
    st.NP = -20000;
  });
  options.rows = {4};  // IPE
  const auto row = Json(options)["rows"][0];
  EXPECT_TRUE(row["passes"]);  // the search goes by the ratio
  EXPECT_LT(row["IR"], 1.0);
  EXPECT_EQ(row["remark"], "fails: capacity-not-positive");
  EXPECT_NE(RunWith(options).output.find("  fails: capacity-not-positive\n"), std::string::npos);
}

TEST_F(Optimise, ARowTellsThatItWasSearchedWithoutLateralTorsionalBuckling) {
  OptimiseOptions options = For([](ProjectState& st) { st.q1 = 30; });
  options.rows = {6};  // a hollow section switches the check off
  EXPECT_EQ(Json(options)["rows"][0]["remark"], "");
  options.rows = {4};
  EXPECT_EQ(Json(options)["rows"][0]["remark"], "");
  options.file = folder_ / "off.kvn";
  PutProject(options.file, [](ProjectState& st) {
    st.q1 = 30;
    st.LateralTorsionalBuckling = 0;
  });
  const std::string remark = Json(options)["rows"][0]["remark"];
  EXPECT_TRUE(remark.ends_with("without lateral torsional buckling")) << remark;
}

TEST_F(Optimise, EndForcesSayThatNoDeflectionIsTested) {
  OptimiseOptions options = For([](ProjectState& st) {
    st.AnalysisMode = 0;
    st.My_end[1] = 20;
  });
  options.rows = {4};
  const auto said = [&] {
    return RunWith(options).output.find("the deflection limit isn't tested") != std::string::npos;
  };
  EXPECT_FALSE(said());
  options.criterion = "uls-sls";
  EXPECT_TRUE(said());
  EXPECT_TRUE(Json(options).contains("note"));
}

TEST_F(Optimise, NoSectionAtAllIsAFailingCheckAndSavesNothing) {
  OptimiseOptions options = For([](ProjectState& st) { st.q1 = 50000.0; });
  EXPECT_EQ(RunWith(options).status, 1);
  options.save = folder_ / "out.kvn";
  const Printed run = RunWith(options);
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.errors, "no section passes, nothing is saved\n");
  EXPECT_EQ(folder_.Count(), 1);
}

TEST_F(Optimise, SavesTheLightestPassingSectionWithTheChecksItWasSearchedBy) {
  OptimiseOptions options = For();
  options.rows = {1, 2, 9};
  const auto json = Json(options);
  std::size_t lightest = 0;
  for (std::size_t i = 1; i < 3; ++i)
    if (json["rows"][i]["weight"] < json["rows"][lightest]["weight"]) lightest = i;
  options.save = folder_ / "out.kvn";
  ASSERT_EQ(RunWith(options).status, 0);
  Design design = StartedDesign(SourceLibrary());
  const DesignRun run = RunProject(design, options.save);
  ASSERT_EQ(run.file, FileResult::Ok);
  EXPECT_EQ(int(design.st.ProfileType), json["rows"][lightest]["ProfileType"]);
  EXPECT_EQ(double(design.rec.S), json["rows"][lightest]["weight"]);
  EXPECT_LT(MaxIR(design.checks), 1.0F);

  // Hollow sections are searched after the open ones and switch the lateral check off; the
  // project with an open one keeps it.
  options.file = folder_ / "heavy.kvn";
  PutProject(options.file, [](ProjectState& st) {
    st.NP = 0.0;
    st.q1 = 150.0;
    st.L = 2.0;
  });
  options.rows = {4, 8};
  const auto heavy = Json(options);
  ASSERT_LT(heavy["rows"][0]["weight"], heavy["rows"][1]["weight"]);
  EXPECT_EQ(RunWith(options).status, 0);
  Design again = StartedDesign(SourceLibrary());
  RunProject(again, options.save);
  EXPECT_EQ(again.st.ProfileType, 4);
  EXPECT_EQ(again.st.LateralTorsionalBuckling, 1);
  EXPECT_LT(MaxIR(again.checks), 1.0F);
}

TEST_F(Optimise, ATargetThatCannotBeWrittenIsSaid) {
  OptimiseOptions options = For();
  options.rows = {1};
  options.save = folder_ / "no/folder.kvn";
  const Printed run = RunWith(options);
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.errors, "can't save file - " + options.save + "\nThe folder doesn't exist.\n");
}

TEST_F(Optimise, RefusesOtherFamilies) {
  for (const int family : {15, 16, 21, 103}) {
    const OptimiseOptions options = For([&](ProjectState& st) { st.ProfileType = family; });
    const Printed run = RunWith(options);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, " Only database profiles can be optimized \n");
    EXPECT_EQ(run.output, "");
  }
}

TEST_F(Optimise, RefusesLimitsOutsideTheirRange) {
  OptimiseOptions options = For();
  options.rows = {1};
  for (const double limit : {99.4, 1500.6, -100.0, 40000.0}) {
    options.limit = limit;
    const Printed run = RunWith(options);
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "100 <= Deflection <=1500 \n");
  }
  // A limit is a whole number: 99.6 is 100.
  for (const double limit : {99.6, 100.0, 1500.0, 1500.4}) {
    options.limit = limit;
    EXPECT_EQ(RunWith(options).status, 0);
  }
}

TEST_F(Optimise, SaysWhatIsWrongWithTheFile) {
  OptimiseOptions options;
  options.file = folder_ / "none.kvn";
  EXPECT_EQ(RunWith(options).status, 2);
  EXPECT_EQ(RunWith(options).errors, "can't find file - " + options.file + "\n");
  PutFile(options.file, "390\r\n");
  EXPECT_EQ(RunWith(options).errors, "Input file not compatible with this version \n");
}

TEST_F(Optimise, AnArithmeticFailureIsSaidAndPrintsNoTable) {
  OptimiseOptions options = For([](ProjectState& st) { st.gammam1 = 0.0; });
  Printed run = RunWith(options);
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.errors.find("arithmetic failure in SetMaterial: "), 0U);
  options = For([](ProjectState& st) { ClearLoads(st); });
  options.criterion = "sls";
  run = RunWith(options);
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.errors, "arithmetic failure in optimiser deflection: division by zero\n");
  EXPECT_EQ(run.output, "");
}

TEST(OptimiseWords, NameTheSeriesInTheOrderOfTheRows) {
  std::string unknown;
  EXPECT_EQ(RowsOf("IPE,hea,IPE,L2", unknown), (std::vector<int>{1, 4, 11}));
  EXPECT_EQ(RowsOf("", unknown), std::vector<int>{});
  EXPECT_EQ(RowsOf(SeriesWords(), unknown)->size(), 11U);
  EXPECT_EQ(RowsOf("HEA,HEC", unknown), std::nullopt);
  EXPECT_EQ(unknown, "HEC");
}

TEST(OptimiseWords, NameTheCriterion) {
  EXPECT_EQ(CriterionOf("uls"), kCriterionUls);
  EXPECT_EQ(CriterionOf("sls"), kCriterionSls);
  EXPECT_EQ(CriterionOf("uls-sls"), kCriterionUlsSls);
  EXPECT_EQ(CriterionOf("ULS "), std::nullopt);
}

}  // namespace
}  // namespace korvane
