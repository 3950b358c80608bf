// SPDX-License-Identifier: GPL-3.0-or-later
// Pictures of studies: vary --plot and interaction.
#include <gtest/gtest.h>

#include <cmath>
#include <sstream>

#include "front/console/csv.h"
#include "front/console/studies.h"
#include "projects.h"
#include "run_program.h"
#include "studies/interaction.h"
#include "studies/member.h"

namespace korvane {
namespace {

class PlotTest : public testing::Test {
protected:
  PlotTest() {
    PutProject(file_, [](ProjectState& st) {
      st.q1 = 10;
      st.NP = 0;
      st.iproj = "Floor";
    });
  }
  int Vary(std::vector<std::string> sets, const std::string& plot, const std::string& y = "each",
           const std::string& csv = "") {
    out_.str("");
    err_.str("");
    VaryOptions options;
    options.file = file_;
    options.sets = std::move(sets);
    options.plot = plot;
    options.y = y;
    options.csv = csv;
    return RunVary(SourceLibrary(), options, out_, err_, false);
  }
  int Interaction(int directions, const std::string& plot = "", const std::string& csv = "",
                  bool json = false) {
    out_.str("");
    err_.str("");
    InteractionOptions options;
    options.file = file_;
    options.directions = directions;
    options.plot = plot;
    options.csv = csv;
    options.json = json;
    return RunInteraction(SourceLibrary(), options, out_, err_);
  }
  bool Has(const std::string& svg, const std::string& text) {
    return GetFile(folder_ / svg).find(text) != std::string::npos;
  }

  TempFolder folder_;
  std::string file_ = folder_ / "m.kvn";
  std::ostringstream out_, err_;
};

TEST_F(PlotTest, OneInputDrawsACurveForEachCheckAndTellsItsEnd) {
  EXPECT_EQ(Vary({"L=1:12:0.1"}, folder_ / "a.svg"), 0);
  EXPECT_EQ(out_.str(), "");
  for (const char* text : {"section control", "shear Vz", "lateral torsional buckling", "L up to ",
                           "limit 1.00", "L = 5", "L (m)", "HEA200, Floor"}) {
    EXPECT_TRUE(Has("a.svg", text)) << text;
  }
}

TEST_F(PlotTest, TheTableIsWrittenBesideWhereItIsAskedFor) {
  EXPECT_EQ(Vary({"L=1:3:1"}, folder_ / "a.svg", "IR", folder_ / "a.csv"), 0);
  EXPECT_TRUE(Has("a.svg", "max IR"));
  EXPECT_FALSE(Has("a.svg", "shear Vz"));
  const std::string table = GetFile(folder_ / "a.csv");
  EXPECT_EQ(std::count(table.begin(), table.end(), '\n'), 4);
}

TEST_F(PlotTest, TwoInputsDrawAFamilyOrAMap) {
  EXPECT_EQ(Vary({"L=2:8:0.5", "q1=5,10,20"}, folder_ / "a.svg"), 0);
  for (const char* text : {"q1 = 5 kN/m", "q1 = 20 kN/m", "max IR"}) {
    EXPECT_TRUE(Has("a.svg", text)) << text;
  }
  EXPECT_EQ(Vary({"L=2:8:0.5", "q1=2:20:2"}, folder_ / "b.svg", "deflection"), 0);
  EXPECT_TRUE(Has("b.svg", "the line is limit 1.00"));
  EXPECT_TRUE(Has("b.svg", "q1 (kN/m)"));
  // Names can't be drawn along; they name the curves wherever they stand.
  EXPECT_EQ(Vary({"section=HEA160,HEA220", "L=2:8:0.5"}, folder_ / "c.svg"), 0);
  EXPECT_TRUE(Has("c.svg", "HEA220"));
  EXPECT_TRUE(Has("c.svg", "L (m)"));
  EXPECT_FALSE(Has("c.svg", "HEA200"));
}

TEST_F(PlotTest, RefusesWhatItCantDraw) {
  EXPECT_EQ(Vary({"section=HEA160,HEA220"}, folder_ / "a.svg"), 2);
  EXPECT_EQ(err_.str(), "--plot draws along numbers, not along section\n");
  EXPECT_EQ(Vary({"L=1:2:1", "q1=1,2", "q2=1,2"}, folder_ / "a.svg"), 2);
  EXPECT_EQ(Vary({"L=1:2:1"}, folder_ / "a.gif"), 2);
  EXPECT_EQ(Vary({"L=1:2:1"}, file_), 2);
  EXPECT_EQ(Vary({"L=1:2:1", "q1=1,x"}, folder_ / "a.svg"), 2);
  EXPECT_FALSE(std::filesystem::exists(folder_ / "a.svg"));
}

/// Rows of the interaction's table: diagram, point, N, My, Mz.
std::vector<std::vector<std::string>> Rows(const std::string& text) {
  std::vector<std::vector<std::string>> rows;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) {
    std::vector<std::string>& cells = rows.emplace_back();
    std::istringstream row(line);
    for (std::string cell; std::getline(row, cell, ',');) cells.push_back(cell);
    cells.resize(5);
  }
  return rows;
}

TEST_F(PlotTest, InteractionWritesEnvelopeAndPoints) {
  EXPECT_EQ(Interaction(8), 0);
  const auto rows = Rows(out_.str());
  EXPECT_EQ(out_.str().substr(0, out_.str().find('\n')), "diagram,point,N,My,Mz");
  int envelope = 0, governing = 0;
  const Design started = StartedDesign(SourceLibrary());
  ProjectState member = started.st;
  ASSERT_EQ(ReadProject(GetFile(file_), member), FileResult::Ok);
  Design work = started;
  DesignMember(started, member, work);
  const double Mymax = work.checks.section.My;
  for (const auto& row : rows) {
    envelope += row[1] == "envelope";
    governing += row[1] == "governing";
    if (row[0] != "N-Mz" || row[1] != "envelope") continue;
    EXPECT_TRUE(row[3].empty());
    // My is that of the governing point.
    const PointForces at{std::stod(row[2]), Mymax, std::stod(row[4]), 0, 0};
    EXPECT_NEAR(SectionRatio(started, member, at, work), 1, 1e-4) << row[2] << " " << row[4];
  }
  EXPECT_EQ(envelope, 24);
  EXPECT_EQ(governing, 3);
  EXPECT_EQ(out_.str().find("e-"), std::string::npos);
}

TEST_F(PlotTest, InteractionDrawsThreeDiagrams) {
  EXPECT_EQ(Interaction(16, folder_ / "i.svg"), 0);
  EXPECT_EQ(out_.str(), "");
  for (const char* text : {"N and My", "N and Mz", "My and Mz", "IR 0."}) {
    EXPECT_TRUE(Has("i.svg", text)) << text;
  }
  EXPECT_EQ(Interaction(4, folder_ / "i.svg", folder_ / "i.csv"), 0);
  EXPECT_TRUE(Has("i.csv", "My-Mz,governing"));
  EXPECT_EQ(Interaction(4, "", "", true), 0);
  EXPECT_NE(out_.str().find("\"diagram\": \"N-My\""), std::string::npos) << out_.str().substr(0, 99);
}

TEST_F(PlotTest, TheProgramWritesPngAndPdfThroughThePainter) {
  for (const auto& [name, begins] : {std::pair{"a.png", "\x89PNG"}, {"a.pdf", "%PDF"}}) {
    const ProgramRun run =
        RunProgram({"vary", file_, "--set", "L=1:5:0.5", "--plot", folder_ / name});
    EXPECT_EQ(run.status, 0) << run.errors;
    EXPECT_TRUE(GetFile(folder_ / name).starts_with(begins)) << name;
  }
  EXPECT_EQ(RunProgram({"interaction", file_, "--plot", folder_ / "i.pdf"}).status, 0);
  EXPECT_EQ(RunProgram({"interaction", folder_ / "none.kvn"}).status, 2);
}

TEST_F(PlotTest, HelpOfEveryStudyHasTwoExamples) {
  for (const char* command : {"sections", "table", "vary", "solve", "interaction"}) {
    const std::string help = RunProgram({command, "--help"}).output;
    const auto examples = help.find("Examples:");
    ASSERT_NE(examples, std::string::npos) << command;
    const std::string line = std::string("korvane-cli ") + command;
    const auto first = help.find(line, examples);
    ASSERT_NE(first, std::string::npos) << command;
    EXPECT_NE(help.find(line, first + 1), std::string::npos) << command;
  }
}

}  // namespace
}  // namespace korvane
