// SPDX-License-Identifier: GPL-3.0-or-later
// A window shows the state, and only typing changes it: sequences over several open forms.
#include <gtest/gtest.h>

#include "checks/results.h"
#include "core/project_file.h"
#include "places.h"
#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

/// A project on disk that differs from the new one as told.
template <class Change>
std::string Project(const TempFolder& folder, Change&& change) {
  ProjectState st = Running().st();
  change(st);
  const std::string path = folder / "other.kvn";
  EXPECT_TRUE(SaveProject(path, st));
  return path;
}

double Ratio(const Running& r) {
  return MaxIR(r.session.design().checks);
}

// --- Another project behind an open form --------------------------------------------------------

TEST(OpenForms, AnotherProjectKeepsItsLoadsWhateverFieldWasInUse) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) { st.q2 = 9; });
  Running r;
  r.session.files().OpenPath(path);
  const double alone = Ratio(r);
  Running over;
  over.session.Menu("mnuload1");
  over.session.FocusField("iq2");
  EXPECT_EQ(over.session.Text("iq2"), "0.0");
  over.session.files().OpenPath(path);
  over.session.Focus("korvane");
  EXPECT_EQ(double(over.st().q2), 9);
  EXPECT_EQ(Ratio(over), alone);
  EXPECT_GT(alone, 0);
}

/// Each form with inputs, opened the way a person opens it.
void OpenForm(Running& r, const std::string& form) {
  if (form == "loading") return r.session.Menu("mnuload1");
  if (form == "endforce") return r.session.Menu("mnuendforces");
  if (form == "setup") return r.session.Menu("mnusetup");
  if (form == "database") return r.session.Menu("mnudb");
  r.session.Show(form);
}

TEST(OpenForms, AreClosedByAnotherProjectAndLeaveNothingInIt) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) {
    st.AnalysisMode = 0;
    st.My_end[1] = 12;
    st.lfv2_uls = float32(1.35);
    st.cp_mode = 1;
    st.cp_count = 2;
    st.cp_x[1] = float32(1.25);
    st.WebStiffener = 1;
    st.a_webstiff = 700;
  });
  Running plain;
  plain.session.files().OpenPath(path);
  for (const char* form :
       {"loading", "endforce", "chpoints", "setup", "vipping", "database", "endstiff", "bucklingy",
        "bucklingz", "bucklingcurve", "optroll", "p01", "p23"}) {
    Running r;
    OpenForm(r, form);
    ASSERT_TRUE(r.session.IsOpen(form)) << form;
    for (const Control& c : FindForm(form)->controls) {
      if (c.kind == Kind::Input && c.field.input.field != nullptr) r.session.FocusField(c);
    }
    r.session.files().OpenPath(path);
    EXPECT_EQ(r.session.OpenForms(), std::vector<std::string>{"korvane"}) << form;
    EXPECT_EQ(r.session.FocusedField(), "") << form;
    r.session.Focus("korvane");
    EXPECT_EQ(r.st().AnalysisMode, 0) << form;
    EXPECT_EQ(double(r.st().My_end[1]), 12) << form;
    EXPECT_EQ(r.st().lfv2_uls, float32(1.35)) << form;
    EXPECT_EQ(r.st().cp_x[1], float32(1.25)) << form;
    EXPECT_EQ(double(r.st().a_webstiff), 700) << form;
    EXPECT_EQ(Ratio(r), Ratio(plain)) << form;
  }
}

TEST(OpenForms, NewShowsItsLoadsAtOnce) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "25");
  r.session.FocusField("iq1");
  r.session.Menu("mnunew");
  ASSERT_TRUE(r.session.IsOpen("loading"));
  const float32 fresh = Running().st().q1;
  EXPECT_NE(double(fresh), 25);
  EXPECT_EQ(r.session.Text("loading.iq1"), r.session.Shown(fresh, "#0.0"));
  r.session.Focus("loading");
  EXPECT_TRUE(r.session.Leave("loading.iq1"));
  EXPECT_EQ(r.st().q1, fresh);
}

// --- The same value on two forms ----------------------------------------------------------------

TEST(OpenForms, AnotherLengthLeavesALoadWhereItIsAndShowsItsNewPlace) {
  Running r;
  r.session.Enter("il", "5");
  r.session.Menu("mnuload1");
  r.session.Enter("ipm(1)", "10");
  r.session.Click("pmxrelative");
  r.session.Enter("ipmx(1)", "0.5");
  EXPECT_EQ(double(r.st().pmx[1]), 2.5);
  r.session.FocusField("ipmx(1)");
  r.session.Enter("korvane.il", "10");
  EXPECT_EQ(r.session.Text("loading.ipmx(1)"), "0.250");
  r.session.FocusField("loading.ipmx(1)");
  EXPECT_TRUE(r.session.Leave("loading.ipmx(1)"));
  EXPECT_EQ(double(r.st().pmx[1]), 2.5);
}

TEST(OpenForms, AFactorOfOneFormShowsOnTheOther) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Menu("mnusetup");
  r.session.Enter("setup.ilfv1_uls", "1.35");
  EXPECT_EQ(r.session.Text("loading.ilfv1_uls"), "1.35");
  r.session.Focus("loading");
  r.session.FocusField("loading.ilfv1_uls");
  r.session.Leave("loading.ilfv1_uls");
  EXPECT_EQ(r.st().lfv1_uls, float32(1.35));
}

TEST(OpenForms, DefaultsClosedByTheirBoxShowInTheMainWindow) {
  Running r;
  r.session.Menu("mnusetup");
  r.session.Enter("igammam1", "1.3");
  EXPECT_TRUE(r.session.Close("setup"));
  EXPECT_EQ(r.session.Text("korvane.igammam1"), "1.30");
  EXPECT_EQ(r.st().gammam1, float32(1.3));
}

TEST(OpenForms, FollowACalculationMadeElsewhere) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "20");
  r.session.Show("vipping");
  const std::string before = r.session.Text("vipping.omdb");
  r.session.Enter("korvane.il", "9");
  EXPECT_NE(r.session.Text("vipping.omdb"), before);
  // A thicker section has a lower stress, and the defaults show it.
  r.session.Menu("mnusetup");
  r.session.Menu("mnup03");
  r.session.Select("p03.Cbo", int(r.session.Items("p03.Cbo").size()) - 1);
  EXPECT_EQ(r.session.Text("setup.ifyk"), r.session.Text("korvane.ifyk"));
}

TEST(Lateral, ShowsNoFactorThatIsNotInUse) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "10");
  r.session.Show("vipping");
  r.session.Click("Cfactor");
  r.session.Enter("ic1", "2.5");
  EXPECT_EQ(r.session.Text("ic1"), "2.500");
  // End forces type no factors: what the moments give is shown.
  r.session.Menu("mnuendforces");
  EXPECT_NE(r.session.Text("vipping.ic1"), "2.500");
  EXPECT_FALSE(r.session.Enabled("vipping.ic1"));
}

// --- Passing through ----------------------------------------------------------------------------

TEST(PassingThrough, ANarrowFormatRoundsNothing) {
  Running r;
  r.session.Menu("mnup21");
  r.session.Enter("isth", "600.4");
  EXPECT_EQ(r.session.Text("isth"), "600");
  const int calculations = r.session.Calculations();
  r.session.FocusField("isth");
  EXPECT_TRUE(r.session.Leave("isth"));
  r.session.FocusField("isth");
  r.session.Return("isth");
  EXPECT_EQ(r.st().p21_h, float32(600.4));
  EXPECT_EQ(r.session.Calculations(), calculations);
}

TEST(PassingThrough, ABucklingLengthFactorIsNotTyped) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("inp", "100");
  r.session.Close("loading");
  r.session.FocusField("ibly");
  r.session.Return("ibly");
  r.session.FocusField("iblz");
  EXPECT_TRUE(r.session.Leave("iblz"));
  EXPECT_LT(int(r.st().BucklingCaseY), 5);
  EXPECT_LT(int(r.st().BucklingCaseZ), 5);
  r.session.Click("cbutt4");
  EXPECT_EQ(double(r.st().bly), 2);
  EXPECT_EQ(double(r.st().blz), 2);
}

TEST(PassingThrough, ARefusedValueCountsAsTypedUntilAnotherIsAccepted) {
  Running r;
  EXPECT_FALSE(r.session.Enter("il", "0.01"));
  const auto messages = r.platform.messages.size();
  EXPECT_FALSE(r.session.Leave("il"));
  EXPECT_GT(r.platform.messages.size(), messages);
  EXPECT_TRUE(r.session.Enter("il", "7"));
  EXPECT_EQ(r.session.NotCalculated(), "");
}

TEST(PassingThrough, AnIntFieldTestsWhatItStores) {
  Running r;
  r.session.Click("cbutt3");
  EXPECT_TRUE(r.session.Enter("ispring", "100.4"));
  EXPECT_EQ(int(r.st().SpringRestraint), 100);
  EXPECT_FALSE(r.session.Enter("ispring", "100.6"));
}

// --- Refused values -----------------------------------------------------------------------------

TEST(Refused, StaysInTheStateIsToldAndCanBeTakenBack) {
  Running r;
  EXPECT_FALSE(r.session.Enter("il", "0.01"));
  EXPECT_EQ(r.st().L, float32(0.01));
  EXPECT_NE(r.session.NotCalculated().find("is refused"), std::string::npos);
  EXPECT_TRUE(r.session.Marked("il"));
  EXPECT_TRUE(r.session.TakeBack());
  EXPECT_EQ(r.st().L, Running().st().L);
  EXPECT_EQ(r.session.Text("il"), r.session.StateText(r.session.Find("korvane.il")));
  EXPECT_EQ(r.session.NotCalculated(), "");
  EXPECT_FALSE(r.session.TakeBack());
}

TEST(Refused, AStressShowsWithTwoDigitsInTheMainWindow) {
  Running r;
  r.st().MaterialIndex = r.session.design().lib->materials.Last();
  EXPECT_FALSE(r.session.Enter("ifyk", "7"));
  EXPECT_EQ(r.session.Text("ifyk"), "07");
}

// --- Results of another state -------------------------------------------------------------------

TEST(Results, OfAFormerSectionAreTold) {
  Running r;
  EXPECT_EQ(r.session.NotCalculated(), "");
  r.session.Menu("mnup05");
  EXPECT_NE(r.session.NotCalculated(), "");
  r.session.Focus("korvane");
  EXPECT_EQ(r.session.NotCalculated(), "");
}

TEST(Results, AProjectThatCannotBeCalculatedOpensWithItsInputsAndTheReason) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) {
    st.gammam1 = 0;
    st.q1 = 7;
  });
  Running r;
  EXPECT_NO_THROW(r.session.files().OpenPath(path));
  EXPECT_EQ(r.session.Text("igammam1"), "0.00");
  EXPECT_EQ(double(r.st().q1), 7);
  EXPECT_NE(r.session.NotCalculated(), "");
  EXPECT_TRUE(r.session.Enter("igammam1", "1.1"));
  EXPECT_EQ(r.session.NotCalculated(), "");
}

TEST(Results, OpeningWeighsTheSectionThatWasOpened) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) {
    st.SelfWeight = 1;
    st.q1 = 5;
    st.idxHEA = 12;
  });
  Running r;
  r.session.files().OpenPath(path);
  const double opened = Ratio(r);
  r.session.Focus("korvane");
  EXPECT_EQ(opened, Ratio(r));
}

// --- Database and optimiser ---------------------------------------------------------------------

TEST(DatabaseForm, ChangesNothingUntilARowIsSelected) {
  Running r;
  r.session.Menu("mnup05");
  r.session.Select("Cbo", 6);
  r.session.Click("addtodb");
  r.session.databaseSelection = -1;
  r.session.Menu("mnup01");
  r.session.Focus("korvane");
  const ProjectState before = r.st();
  r.session.Menu("mnudb");
  EXPECT_EQ(r.st().ProfileType, before.ProfileType);
  EXPECT_EQ(r.session.Selected("database.cbo"), -1);
  // The only entry is loaded by one click.
  r.session.Select("database.cbo", 0);
  EXPECT_EQ(int(r.st().ProfileType), 5);
  EXPECT_EQ(r.session.NotCalculated(), "");
}

TEST(DatabaseForm, IsAliveAgainAfterASectionWasAdded) {
  Running r;
  r.session.Menu("mnudb");
  r.session.Menu("mnup05");
  r.session.Click("addtodb");
  EXPECT_EQ(r.session.Selected("database.cbo"), r.session.database().DbRow);
  r.session.Menu("mnup01");
  r.session.Focus("database");
  r.session.Select("database.cbo", 0);
  EXPECT_EQ(int(r.st().ProfileType), 5);
}

TEST(OptimiserForm, IsModalAndTellsWhatIsNotSearched) {
  Running r;
  const ProjectState before = r.st();
  r.session.Menu("mnuopt");
  EXPECT_TRUE(TheForms().optimiser->modal);
  EXPECT_EQ(r.session.Text("owords1"), "not searched");
  EXPECT_EQ(r.session.Text("oir1"), "0.00");
  EXPECT_TRUE(r.session.Close("optroll"));
  EXPECT_EQ(r.st().ProfileType, before.ProfileType);
  EXPECT_EQ(r.st().idxHEA, before.idxHEA);
}

}  // namespace
}  // namespace korvane
