// SPDX-License-Identifier: GPL-3.0-or-later
// The forms beside the main window: loads, points, lateral buckling, curves, defaults, database,
// optimiser, recent files.
#include <gtest/gtest.h>

#include <filesystem>

#include "core/files.h"
#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using testing::Running;

TEST(Loading, BringsTheLoadModeAndStaysOpenWhileALoadCannotStand) {
  Running r;
  r.st().AnalysisMode = 0;
  r.session.Menu("mnuload1");
  EXPECT_EQ(r.st().AnalysisMode, 1);
  r.session.Enter("iqt11", "5");
  r.session.Enter("iqt12", "-5");
  r.session.Enter("iqt1x2", "3");
  r.session.Click("ok");
  EXPECT_EQ(r.platform.messages.back(), " Trapezoidal load: One positive and one negative value ");
  EXPECT_TRUE(r.session.IsOpen("loading"));
  EXPECT_EQ(r.session.FocusedField(), "loading.iqt12");
  r.session.Enter("iqt12", "5");
  EXPECT_TRUE(r.session.Close("loading"));
  EXPECT_FALSE(r.session.IsOpen("loading"));
}

TEST(Loading, TogglesStepThroughTheirCodesAndCaptions) {
  Running r;
  r.session.Menu("mnuload1");
  for (const char* caption : {"V1", "V2", "P"}) {
    r.session.Click("iq1_pv");
    EXPECT_EQ(r.session.Text("iq1_pv"), caption);
  }
  EXPECT_EQ(r.session.Text("ipm_yz(1)"), "Z");
  r.session.Click("ipm_pm(1)");
  EXPECT_EQ(r.session.Text("ipm_pm(1)"), "M");
  EXPECT_EQ(r.session.Text("ipm_yz(1)"), "My");
  r.session.Click("ipm_yz(1)");
  EXPECT_EQ(r.session.Text("ipm_yz(1)"), "Mz");
  EXPECT_EQ(r.st().pm_yz[1], 0);
  r.session.Click("ipm_yz(1)");
  EXPECT_EQ(r.st().pm_yz[1], 1);
}

TEST(Loading, RelativePositionsAreStoredInMetres) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Click("pmxrelative");
  EXPECT_TRUE(r.session.Enter("ipmx(2)", "0.5"));
  EXPECT_EQ(r.st().pmx[2], 2.5);
  EXPECT_EQ(r.session.Text("ipmx(2)"), "0.500");
  EXPECT_FALSE(r.session.Enter("ipmx(2)", "1.01"));
  EXPECT_EQ(r.platform.messages.back(), " 0 < x <= 1 ");
  EXPECT_EQ(r.st().pmx[2], 0.0);
}

TEST(Forms, AreClosedByAButtonThatSaysOk) {
  int buttons = 0;
  for (const Form& form : AllForms()) {
    if (const Control* ok = FindControl(form, "ok")) {
      EXPECT_EQ(ok->caption, "OK") << form.name;
      ++buttons;
    }
  }
  EXPECT_GE(buttons, 8);
}

TEST(Points, AreRelativeWhileTheFlagIsOne) {
  Running r;
  r.session.Show("chpoints");
  r.session.Click("cprelative");
  EXPECT_EQ(r.st().cp_relative, 1);
  r.session.Click("cpabsolute");
  EXPECT_EQ(r.st().cp_relative, 0);
}

TEST(Loading, RemoveAllLoadsKeepsTheFactors) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Click("Command1");
  EXPECT_EQ(r.st().NP, 0.0);
  EXPECT_EQ(r.st().q1, 0.0);
  EXPECT_EQ(r.st().lfp_uls, float32(1.2));
  EXPECT_EQ(r.session.Text("iq1"), "0.0");
}

TEST(Points, ShowAsManyFieldsAsThereArePoints) {
  Running r;
  r.session.Click("cp");
  r.session.Click("cp_1");
  r.session.Click("no_cp2");
  EXPECT_TRUE(r.session.Visible("icp(2)"));
  EXPECT_FALSE(r.session.Visible("icp(3)"));
  EXPECT_EQ(r.session.design().beam.pt_last, 12);
}

TEST(Lateral, TypedFactorsStartFromTheComputedOnes) {
  Running r;
  r.session.Click("cbuttlateral");
  r.session.Click("Cfactor");
  EXPECT_NEAR(r.st().C1i, 1.132, 1e-6);
  EXPECT_TRUE(r.session.Enter("ic1", "1.5"));
  EXPECT_EQ(r.session.design().ltb.C1, 1.5);
  r.session.Click("Cfactor");
  EXPECT_NEAR(r.session.design().ltb.C1, 1.132, 1e-6);
}

TEST(Lateral, RestraintPointsHideTheFactors) {
  Running r;
  r.session.Click("cbuttlateral");
  r.session.Select("Cbo", 3);
  EXPECT_EQ(r.st().LtbSegments, 3);
  EXPECT_FALSE(r.session.Visible("Cfactor"));
  EXPECT_EQ(r.session.Text("ic2"), "N/A");
  EXPECT_NE(r.session.Text("osegment").find("L/4"), std::string::npos);
}

TEST(Lateral, TheMomentOfASegmentStandsABlankFurtherIn) {
  Running r;
  r.session.Click("cbuttlateral");
  EXPECT_EQ(r.session.Text("omdb"), r.session.Text("omdbmin"));
  r.session.Select("Cbo", 1);  // halves of equal moment
  EXPECT_EQ(r.session.Text("omdb"), " " + r.session.Text("omdbmin"));
}

TEST(Curves, StayAsChosenByHandUntilTheProfilesMenuOpens) {
  Running r;
  r.session.Click("Command1");
  r.session.Select("cbobcy", 4);
  r.session.Close("bucklingcurve");
  EXPECT_EQ(r.session.Text("obcy"), "d");
  r.session.Enter("il", "6");
  EXPECT_EQ(r.session.Text("obcy"), "d");
  r.session.Menu("mnup01");
  r.session.Focus("korvane");
  EXPECT_EQ(r.session.Text("obcy"), "b");
}

TEST(Curves, ACaseWithoutBucklingTakesTheBlockAway) {
  Running r;
  r.session.Click("cbuttbucklingy");
  r.session.Click("bucklingy5");
  r.session.Close("bucklingy");
  r.session.Click("cbuttbucklingz");
  r.session.Click("bucklingz5");
  r.session.Close("bucklingz");
  EXPECT_EQ(r.session.Text("ibly"), "0.00");
  EXPECT_EQ(r.session.Text("pic31").find("BUCKLING CONTROL:"), std::string::npos);
}

TEST(Materials, TheFreeEntryOpensTheYieldStress) {
  Running r;
  EXPECT_FALSE(r.session.Enabled("ifyk"));
  r.session.Select("cbofyk", 0);
  EXPECT_EQ(r.session.Text("ifyk"), "235");
  r.session.Select("cbofyk", SourceLibrary()->materials.Last());
  EXPECT_TRUE(r.session.Enabled("ifyk"));
  EXPECT_TRUE(r.session.Enter("ifyk", "300"));
  EXPECT_EQ(r.st().fyk, 300.0);
  r.session.Menu("mnusetup");
  r.session.Select("cbofyk", 5);
  EXPECT_EQ(r.session.Selected("korvane.cbofyk"), 5);
  EXPECT_EQ(r.session.Text("korvane.ifyk"), "355");
}

TEST(Defaults, SaveToFileWritesWhatTheNextStartReads) {
  const TempFolder folder;
  Folders folders;
  folders.own = folder.Path();
  {
    Running r(false, folders);
    r.session.Menu("mnusetup");
    r.session.Enter("iufa", "0.9");
    r.session.Click("Command2");
    r.session.Click("Command1");
    EXPECT_FALSE(r.session.IsOpen("setup"));
  }
  Running again(false, folders);
  EXPECT_EQ(again.st().iufa, float32(0.9));
}

TEST(RecentFiles, SaveAsPushesOpenPromotesSaveDoesNeither) {
  const TempFolder folder;
  Running r;
  const auto path = [&](const char* name) { return folder.Path() + "/" + name; };
  for (const char* name : {"a.kvn", "b.kvn", "c.kvn"}) {
    r.platform.answers.emplace_back(path(name));
    r.session.Menu("mnusaveas");
  }
  EXPECT_EQ(r.session.files().Recent(1), path("c.kvn"));
  EXPECT_EQ(r.session.files().Recent(3), path("a.kvn"));
  r.session.Menu("mnusave");
  EXPECT_EQ(r.session.files().Recent(1), path("c.kvn"));
  r.session.Menu("mnurecentfile(3)");
  EXPECT_EQ(r.session.files().Recent(1), path("a.kvn"));
  EXPECT_EQ(r.session.files().Recent(2), path("c.kvn"));
  EXPECT_EQ(r.session.Text("korvane.mnurecentfile(1)"), "&1 " + path("a.kvn"));
  EXPECT_EQ(r.session.Title("korvane"), "KORVANE-NS3472: " + path("a.kvn"));
  r.platform.answers.emplace_back(path("b.kvn"));
  r.session.Menu("mnuopen");
  EXPECT_EQ(r.session.files().Recent(1), path("b.kvn"));
  EXPECT_EQ(r.session.files().Recent(3), path("c.kvn"));
}

/// What the four entries hold after a command, one letter each.
std::string RecentAfter(const TempFolder& folder, const char* saved, const std::string& command) {
  Running r;
  for (const char* letter = saved; *letter != '\0'; ++letter) {
    r.platform.answers.emplace_back(folder / (std::string(1, *letter) + ".kvn"));
    r.session.Menu("mnusaveas");
  }
  if (command.rfind("mnu", 0) == 0) {
    r.session.Menu(command);
  } else {
    r.platform.answers.emplace_back(folder / (command + ".kvn"));
    r.session.Menu("mnuopen");
  }
  std::string letters;
  for (int k = 1; k <= 4; ++k) {
    const std::string name = std::filesystem::path(r.session.files().Recent(k)).stem();
    letters += name.empty() ? "-" : name;
  }
  return letters;
}

TEST(RecentFiles, MoveByTheirPositions) {
  const TempFolder folder;
  // Five saves push the first out; each save to a new name moves the rest.
  EXPECT_EQ(RecentAfter(folder, "abcde", "mnusave"), "edcb");
  EXPECT_EQ(RecentAfter(folder, "ab", "mnusave"), "ba--");
  // Opening: the first stays, any other comes first and those before it move up; a new one is
  // pushed.
  EXPECT_EQ(RecentAfter(folder, "abcd", "d"), "dcba");
  EXPECT_EQ(RecentAfter(folder, "abcd", "c"), "cdba");
  EXPECT_EQ(RecentAfter(folder, "abcd", "b"), "bdca");
  EXPECT_EQ(RecentAfter(folder, "abcd", "a"), "adcb");
  EXPECT_EQ(RecentAfter(folder, "abcd", "e"), "edcb");
  // The menu takes the position that was chosen: saving twice leaves a name there twice.
  EXPECT_EQ(RecentAfter(folder, "abcd", "mnurecentfile(3)"), "bdca");
  EXPECT_EQ(RecentAfter(folder, "abcb", "mnurecentfile(3)"), "bbca");
}

TEST(Files, AMissingOrShortFileIsTold) {
  const TempFolder folder;
  Running r;
  r.platform.answers.emplace_back(folder.Path() + "/none.kvn");
  r.session.Menu("mnuopen");
  EXPECT_EQ(r.platform.messages.back(), "can't find file - " + folder.Path() + "/none.kvn");
  const std::string shortFile = folder.Path() + "/short.kvn";
  ASSERT_TRUE(WriteFile(shortFile, "390\r\nName\r\n"));
  const int before = r.session.Calculations();
  r.platform.answers.emplace_back(shortFile);
  r.session.Menu("mnuopen");
  EXPECT_EQ(r.platform.messages.back(), "Input file not compatible with this version ");
  EXPECT_EQ(r.session.Calculations(), before);
  EXPECT_EQ(r.st().iproj, "Name");
}

TEST(Files, CancelChangesNothing) {
  Running r;
  r.session.Menu("mnuopen");
  r.session.Menu("mnusaveas");
  EXPECT_EQ(r.st().CurrentFileName, "New File");
  EXPECT_TRUE(r.platform.messages.empty());
}

TEST(Files, OpeningClosesTheFormsWithInputs) {
  const TempFolder folder;
  Running r;
  r.platform.answers.emplace_back(folder.Path() + "/a.kvn");
  r.session.Menu("mnusaveas");
  r.session.Menu("mnup21");
  r.session.Menu("mnuload1");
  r.platform.answers.emplace_back(folder.Path() + "/a.kvn");
  r.session.Menu("mnuopen");
  EXPECT_FALSE(r.session.IsOpen("p21"));
  EXPECT_FALSE(r.session.IsOpen("loading"));
  EXPECT_EQ(r.st().ProfileType, 1);
}

TEST(FamilyForms, TurningAHollowSectionTwiceRestoresIt) {
  for (const char* form : {"p07", "p09"}) {
    SCOPED_TRACE(form);
    Running r;
    r.st().idxRHSr = r.st().idxCFRHSr = 60;
    r.session.Menu("mnu" + std::string(form));
    r.session.Calculate();
    const std::string key = std::string(form) + ".cbuttbucklingy";
    const SectionRecord before = r.session.design().rec;
    ASSERT_GT(before.h, before.b);
    r.session.Click(key);
    EXPECT_EQ(double(r.session.design().rec.h), double(before.b));
    EXPECT_EQ(double(r.session.design().rec.Iy), double(before.Iz));
    r.session.Click(key);
    EXPECT_EQ(double(r.session.design().rec.h), double(before.h));
    EXPECT_EQ(double(r.session.design().rec.Iy), double(before.Iy));
    EXPECT_EQ(double(r.session.design().rec.Wplz), double(before.Wplz));
  }
}

TEST(DatabaseForm, CollectsMovesLoadsAndRemoves) {
  Running r;
  r.session.Menu("mnup01");
  r.session.Select("Cbo", 3);
  r.session.Click("addtodb");
  r.session.Close("p01");
  r.session.Menu("mnup21");
  r.session.Click("addtodb");
  r.session.Close("p21");
  r.session.Menu("mnudb");
  EXPECT_EQ(r.session.Title("database"), "Database file: korvane.db");
  ASSERT_EQ(r.session.Items("cbo").size(), 2U);
  EXPECT_EQ(r.session.Items("cbo")[0], "HEA 160");
  r.session.Select("cbo", 1);
  EXPECT_EQ(r.st().ProfileType, 21);
  r.session.Select("cbo", 0);
  EXPECT_EQ(r.st().ProfileType, 1);
  EXPECT_EQ(r.st().idxHEA, 3);
  r.session.Click("Com_pilupp");
  EXPECT_EQ(r.session.Items("cbo")[0], "HEA 160");
  r.session.Click("Com_pilner");
  EXPECT_EQ(r.session.Items("cbo")[1], "HEA 160");
  r.session.Click("cmd_x");
  r.session.Click("cmd_x");
  EXPECT_TRUE(r.session.Items("cbo").empty());
  EXPECT_EQ(r.session.database().DbLast, -1);
  r.session.Click("cmd_x");
  EXPECT_EQ(r.platform.beeps, 1);
}

TEST(OptimiserForm, MarksTheFamilyInForceSearchesAndTakesOver) {
  Running r;
  r.session.Menu("mnuopt");
  EXPECT_TRUE(r.session.Checked("cbp01"));
  EXPECT_EQ(r.session.Text("oname1"), "HEA200");
  EXPECT_FALSE(r.session.Enabled("op04"));
  r.session.Click("cbp04");
  EXPECT_TRUE(r.session.Enabled("op04"));
  EXPECT_NE(r.session.Text("oname4"), "");
  r.session.Click("op04");
  r.session.Click("Command2");
  EXPECT_FALSE(r.session.IsOpen("optroll"));
  EXPECT_EQ(r.st().ProfileType, 4);
  r.session.Focus("korvane");
  EXPECT_LT(MaxIR(r.session.design().checks), 1.0F);
}

TEST(OptimiserForm, ShowsTheHemRowThroughTheHeaRow) {
  Running r;
  r.session.Menu("mnuopt");
  r.session.Click("cbp03");
  const std::string hem = r.session.Text("oweight3");
  r.session.Click("ULS");
  EXPECT_EQ(r.session.Text("oweight3"), hem);
  EXPECT_EQ(r.session.Text("oweight1"), hem);
  EXPECT_EQ(r.session.Text("oname1").substr(0, 3), "HEA");
}

TEST(OptimiserGroup, SearchesTheFamilyAndRewritesTheLinesWithoutACalculation) {
  Running r;
  r.session.Click("optimize");
  EXPECT_TRUE(r.session.Visible("ULS"));
  const int before = r.session.Calculations();
  r.session.Click("ULS");
  EXPECT_EQ(r.session.Calculations(), before);
  EXPECT_EQ(r.st().ResultView, 0);
  const double ir = MaxIR(r.session.design().checks);
  EXPECT_LT(ir, 1.0);
  EXPECT_NE(r.st().idxHEA, 5);
  r.session.Focus("korvane");
  EXPECT_EQ(r.st().ResultView, 3);
  EXPECT_FALSE(r.session.Visible("ULS"));
}

}  // namespace
}  // namespace korvane
