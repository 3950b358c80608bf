// SPDX-License-Identifier: GPL-3.0-or-later
// Sequences over forms, files and refused values, as a person meets them in a day's work.
#include <gtest/gtest.h>

#include "checks/results.h"
#include "core/project_file.h"
#include "front/headline.h"
#include "places.h"
#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

double Ratio(const Running& r) {
  return MaxIR(r.session.design().checks);
}

// --- Opening ------------------------------------------------------------------------------------

/// Three roads to the same project.
void OpenBy(Running& r, const std::string& road, const std::string& path) {
  if (road == "open") {
    r.platform.answers = {path};
    r.session.Menu("mnuopen");
  } else if (road == "recent") {
    r.platform.SetSetting("RecentFile1", path);
    r.session.Menu("mnurecentfile(1)");
  } else {
    r.session.files().OpenPath(path);
  }
}

TEST(Opening, ByEveryRoadFocusesTheMainWindowAndWeighsItsOwnSection) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  Running made;
  made.session.Menu("mnuload1");
  made.session.Enter("iq1", "5");
  if (made.st().SelfWeight != 1) made.session.Click("check_selfweight");
  made.session.Menu("mnup03");
  made.session.Select("Cbo", 20);
  made.session.Focus("korvane");
  made.session.Focus("korvane");
  made.session.files().SavePathAs(path);
  const double expected = Ratio(made);
  for (const char* road : {"open", "recent", "drop"}) {
    Running r;
    r.session.Menu("mnup04");
    r.session.Select("Cbo", 1);
    r.session.Show("detailedresult");
    r.session.Show("about");
    OpenBy(r, road, path);
    EXPECT_EQ(r.session.OpenForms().back(), "korvane") << road;
    EXPECT_EQ(Ratio(r), expected) << road;
    EXPECT_EQ(r.session.NotCalculated(), "") << road;
    EXPECT_FALSE(r.session.IsOpen("p04")) << road;
    // The forms that hold no input may stay.
    EXPECT_TRUE(r.session.IsOpen("detailedresult")) << road;
  }
}

TEST(Opening, OfAProjectThatCannotBeCalculatedShowsNothingOfTheOneBefore) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  ProjectState st = Running().st();
  st.E = 0;
  ASSERT_TRUE(SaveProject(path, st));
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "3");
  EXPECT_EQ(HeadlineOf(r.session).word, "passes");
  for (const char* road : {"open", "recent", "drop"}) {
    OpenBy(r, road, path);
    EXPECT_EQ(r.session.OpenForms(), std::vector<std::string>{"korvane"}) << road;
    EXPECT_EQ(HeadlineOf(r.session).word, "not calculated") << road;
    EXPECT_NE(HeadlineOf(r.session).below.find("Young's modulus E is 0"), std::string::npos)
        << HeadlineOf(r.session).below;
    EXPECT_EQ(r.session.Text("ie"), "0.00E+0") << road;
  }
}

TEST(Opening, ThatFailsLeavesTheProjectMarkedAsNotThatOfItsFile) {
  const TempFolder folder;
  const std::string path = folder / "torn.kvn";
  std::ofstream(path) << "390\r\nBridge\r\nB\r\n1\r\n";
  Running r;
  r.session.files().OpenPath(path);
  EXPECT_TRUE(r.session.files().Modified());
  r.session.files().OpenPath(folder / "none.kvn");
  EXPECT_EQ(r.platform.messages.back(), "can't find file - " + (folder / "none.kvn"));
  EXPECT_TRUE(r.session.files().Modified());
}

// --- What forms show after a calculation elsewhere ----------------------------------------------

TEST(OpenForms, ShowWhatACalculationHasCutAndChanged) {
  Running r;
  r.session.Show("chpoints");
  r.session.Click("cp_1");
  r.session.Enter("icp(1)", "4");
  r.session.Show("endstiff");
  r.session.Click("cwebstiff1");
  r.session.Enter("iweba", "3000");
  r.session.Menu("mnup04");
  r.session.Select("Cbo", 9);
  r.session.Enter("korvane.il", "2.5");
  EXPECT_EQ(r.session.Text("chpoints.icp(1)"), "2.500");
  EXPECT_EQ(r.session.Text("endstiff.iweba"), r.session.Shown(r.st().a_webstiff, "#0"));
  EXPECT_LE(double(r.st().a_webstiff), 2500);
  EXPECT_EQ(r.session.Visible("endstiff.iweba"), r.st().WebStiffener == 1);
  // Another grade changes the capacities on the family's form.
  const std::string capacity = r.session.Text("p04.omcyrd");
  r.session.Select("korvane.cbofyk", 0);
  EXPECT_NE(r.session.Text("p04.omcyrd"), capacity);
}

// --- Refused values -----------------------------------------------------------------------------

TEST(Refused, TakesBackWhatFollowedTheValueToo) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("ipm(1)", "10");
  r.session.Enter("ipmx(1)", "3");
  r.st().gammam1 = 0;
  // The load beyond the new length is removed, then the calculation fails.
  EXPECT_FALSE(r.session.Enter("korvane.il", "2"));
  EXPECT_EQ(double(r.st().pm[1]), 0);
  r.st().gammam1 = Running().st().gammam1;
  EXPECT_FALSE(r.session.Enter("korvane.il", "0.01"));
  EXPECT_TRUE(r.session.TakeBack());
  EXPECT_EQ(double(r.st().L), 5);

  Running whole;
  whole.session.Menu("mnuload1");
  whole.session.Enter("inp", "100");
  whole.session.Focus("korvane");
  const ProjectState before = whole.st();
  whole.st().E = 0;  // of a file, say
  EXPECT_FALSE(whole.session.Enter("korvane.ibly", "0.8"));
  EXPECT_EQ(int(whole.st().BucklingCaseY), 6);
  EXPECT_NE(whole.session.NotCalculated().find("can't be calculated"), std::string::npos);
  EXPECT_TRUE(whole.session.TakeBack());
  EXPECT_EQ(whole.st().bly, before.bly);
  EXPECT_EQ(whole.st().BucklingCaseY, before.BucklingCaseY);
}

TEST(Refused, AfterTakingBackTheResultsAreThoseOfTheState) {
  Running r;
  const double before = Ratio(r);
  EXPECT_FALSE(r.session.Enter("igammam1", "0"));
  EXPECT_EQ(r.session.LastAccepted(), r.session.Shown(Running().st().gammam1, "#0.00"));
  EXPECT_TRUE(r.session.TakeBack());
  EXPECT_EQ(r.session.LastAccepted(), "");
  EXPECT_EQ(r.session.NotCalculated(), "");
  EXPECT_EQ(Ratio(r), before);
  // A focus in between calculates with the refused value; taking it back calculates again.
  EXPECT_FALSE(r.session.Enter("il", "0.01"));
  r.session.Focus("korvane");
  EXPECT_EQ(r.session.NotCalculated(), "");
  EXPECT_TRUE(r.session.TakeBack());
  EXPECT_EQ(r.session.NotCalculated(), "");
  EXPECT_EQ(Ratio(r), before);
}

TEST(Refused, OfANewSectionIsNamedAndNothingIsCalculatedWithIt) {
  Running r;
  r.session.Menu("mnup21");
  const int calculations = r.session.Calculations();
  EXPECT_FALSE(r.session.Enter("isth", "1"));
  EXPECT_EQ(r.session.Calculations(), calculations);
  EXPECT_EQ(HeadlineOf(r.session).below, "h = 1 mm is refused");
  EXPECT_EQ(HeadlineOf(r.session).figure, "-");
  // OK and the close box take the field alike.
  EXPECT_FALSE(r.session.Close("p21"));
  EXPECT_TRUE(r.session.IsOpen("p21"));
  EXPECT_TRUE(r.session.TakeBack());
  EXPECT_TRUE(r.session.Close("p21"));
}

TEST(ClosingAForm, TakesTheFieldBeingTyped) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.FocusField("iq1");
  r.session.Type("iq1", "12");
  EXPECT_TRUE(r.session.Close("loading"));
  EXPECT_EQ(double(r.st().q1), 12);
}

// --- Small ones ---------------------------------------------------------------------------------

TEST(Fields, StressAndStrengthAreThoseOfOneState) {
  Running r;
  // A failure behind the material step: fyk and fd were worked out anew together.
  r.session.Menu("mnuload1");
  r.session.Enter("inp", "100");
  r.session.Focus("korvane");
  r.st().E = 0;
  EXPECT_THROW(r.session.Select("cbofyk", 0), CalculationFault);
  EXPECT_EQ(r.session.Text("ifyk"), "235");
  EXPECT_EQ(r.session.Text("ofyd"), "fd = " + r.session.Shown(235 / r.st().gammam1, "#00.0"));
}

TEST(Fields, SelfWeightsSlsFactorAndCaptionFollowTheDecimalMark) {
  Running comma(true);
  comma.session.Menu("mnuload1");
  EXPECT_EQ(comma.session.Text("ilfsw_SLS"), "1,00");
  EXPECT_EQ(comma.session.Text("slsfactor"), "SLS loadfactor = 1,0");
  Running point;
  point.session.Menu("mnuload1");
  EXPECT_EQ(point.session.Text("ilfsw_SLS"), "1.00");
  EXPECT_EQ(point.session.Text("slsfactor"), "SLS loadfactor = 1.0");
}

TEST(Fields, BucklingFactorsAreDisabledWithTheirFrame) {
  Running r;
  for (const char* N : {"0", "100", "-100"}) {
    r.session.Menu("mnuload1");
    r.session.Enter("inp", N);
    r.session.Focus("korvane");
    const bool column = r.session.Enabled("columnframe");
    EXPECT_EQ(column, std::string(N) == "100");
    for (const char* name : {"ibly", "iblz", "cbuttbucklingy", "cbuttbucklingz", "Command1"}) {
      EXPECT_EQ(r.session.Enabled(name), column) << name << " " << N;
    }
  }
}

TEST(Fields, HiddenOnesAreNeverGreen) {
  Running r;
  r.session.Click("cbutt3");
  EXPECT_EQ(r.session.FocusedField(), "korvane.ispring");
  EXPECT_TRUE(r.session.Green("ispring"));
  r.session.Click("cbutt0");
  EXPECT_FALSE(r.session.Visible("ispring"));
  EXPECT_FALSE(r.session.Green("ispring"));
}

TEST(Modal, AreTheCasesAndTheOptimiserAlone) {
  for (const Form& form : AllForms()) {
    const bool modal =
        form.name == "bucklingy" || form.name == "bucklingz" || form.name == "optroll";
    EXPECT_EQ(form.modal, modal) << form.name;
  }
}

// --- Optimiser ----------------------------------------------------------------------------------

TEST(OptimiserForm, RowsSayWhatTheVerdictSaysAndFailInRed) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "900");
  r.session.Focus("korvane");
  r.session.Menu("mnuopt");
  const Control& ratio = r.session.Find("oir1");
  // Not searched yet: the literal 0.00, and yet the section in force fails.
  EXPECT_EQ(r.session.Text("oir1"), "0.00");
  EXPECT_EQ(r.session.Text("owords1").rfind("not searched; fails: ratio-exceeded", 0), 0U)
      << r.session.Text("owords1");
  EXPECT_TRUE(ratio.alarm(r.session));
  r.session.Click("cbp01");  // out
  EXPECT_EQ(r.session.Text("owords1"), "");
  EXPECT_FALSE(ratio.alarm(r.session));
  r.session.Click("cbp01");
  const bool passes = r.session.rows().results.Passes[1];
  EXPECT_EQ(ratio.alarm(r.session), !passes);
  EXPECT_EQ(r.session.Text("owords1").rfind(passes ? "lightest" : "none passes; fails: ", 0), 0U)
      << r.session.Text("owords1");
  r.session.Close("optroll");

  Running light;
  light.session.Menu("mnuload1");
  light.session.Enter("iq1", "1");
  light.session.Focus("korvane");
  light.session.Menu("mnuopt");
  light.session.Click("cbp04");
  EXPECT_EQ(light.session.Text("owords4").rfind("lightest", 0), 0U)
      << light.session.Text("owords4");
  EXPECT_FALSE(light.session.Find("oir4").alarm(light.session));
}

TEST(OptimiserForm, SaysThatEndForcesTestNoDeflection) {
  Running r;
  r.session.Menu("mnuopt");
  EXPECT_FALSE(r.session.Visible("onodefl"));
  r.session.Close("optroll");
  r.session.Menu("mnuendforces");
  r.session.Enter("imy1", "20");
  r.session.Close("endforce");
  r.session.Menu("mnuopt");
  EXPECT_TRUE(r.session.Visible("onodefl"));
  EXPECT_EQ(r.session.Text("onodefl"),
            "End forces give no deflections: the deflection is not tested");
  r.session.Click("ULSSLS");
  r.session.Click("cbp04");
  EXPECT_NE(r.session.Text("oname4"), "");
}

TEST(OptimiserForm, ChangesNoSectionByBeingLookedAt) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "10");
  r.session.Focus("korvane");
  const std::string section = r.session.Text("obeam");
  const double before = Ratio(r);
  r.session.Menu("mnuopt");
  r.session.Click("Command1");
  r.session.Focus("korvane");
  EXPECT_EQ(r.session.Text("obeam"), section);
  EXPECT_EQ(Ratio(r), before);
  EXPECT_EQ(FindControl(*TheForms().optimiser, "Command1")->caption, "Close");
}

}  // namespace
}  // namespace korvane
