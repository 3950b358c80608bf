// SPDX-License-Identifier: GPL-3.0-or-later
// The life of the main window: start, fields, pictures, toggles, commands, failures.
#include <gtest/gtest.h>

#include "front/named_session.h"
#include "sections/profile_table.h"
#include "tests/front/front_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using testing::Running;

TEST(Start, NoCalculationRunsBeforeTheMainWindowHasTheFocus) {
  testing::RememberingPlatform platform;
  NamedSession s(SourceLibrary(), platform, false);
  s.Start();
  EXPECT_EQ(s.Calculations(), 0);
  EXPECT_EQ(s.Title("korvane"), "KORVANE-NS3472: ");
  EXPECT_EQ(s.Text("il"), "5.000");
  s.Focus("korvane");
  EXPECT_EQ(s.Calculations(), 1);
  s.Focus("korvane");
  EXPECT_EQ(s.Calculations(), 2);
}

TEST(Fields, AreGreenWhileTheyHaveTheFocusAndWhiteWhenAccepted) {
  Running r;
  r.session.FocusField("il");
  EXPECT_TRUE(r.session.Green("il"));
  r.session.Type("il", "7.5");
  EXPECT_EQ(r.st().L, 5.0);
  EXPECT_TRUE(r.session.Leave("il"));
  EXPECT_FALSE(r.session.Green("il"));
  EXPECT_EQ(r.session.Text("il"), "7.500");
  EXPECT_EQ(r.st().L, 7.5);
}

TEST(Fields, BothDecimalMarksReadOnBothLocales) {
  for (const bool comma : {false, true}) {
    Running r(comma);
    EXPECT_TRUE(r.session.Enter("il", "2,5"));
    EXPECT_EQ(r.st().L, 2.5);
    EXPECT_TRUE(r.session.Enter("il", "3.5"));
    EXPECT_EQ(r.st().L, 3.5);
    EXPECT_EQ(r.session.Text("il"), comma ? "3,500" : "3.500");
  }
}

TEST(Fields, TextThatIsNoNumberIsZeroWithAPointAndAMismatchWithAComma) {
  Running point(false);
  EXPECT_FALSE(point.session.Enter("il", "abc"));
  EXPECT_EQ(point.platform.messages, std::vector<std::string>{" L >= 0.050 "});
  EXPECT_EQ(point.st().L, 0.0);
  Running comma(true);
  EXPECT_FALSE(comma.session.Enter("il", "abc"));
  EXPECT_EQ(comma.platform.messages, std::vector<std::string>{"Input string mismatch "});
  EXPECT_EQ(comma.st().L, 5.0);
}

TEST(Fields, ARefusedValueStaysAndTheNextCalculationUsesIt) {
  Running r;
  r.session.Menu("mnuload1");
  EXPECT_FALSE(r.session.Enter("loading.ilfp_uls", "4.5"));
  EXPECT_EQ(r.st().lfp_uls, 4.5);
  EXPECT_TRUE(r.session.Enter("loading.iq2", "0"));
  // 10 kN/m with the factor 4.5 on 5 m: 4.5*10*25/8.
  EXPECT_NEAR(r.session.design().beam.z.M_max, 140.625, 1e-3);
}

TEST(Fields, AFailureInsideTheCalculationIsAMismatchWithTheFocusBack) {
  Running r;
  r.st().ProfileType = 21;
  r.st().p21_tf = 0.0;  // c/tf divides by zero
  EXPECT_FALSE(r.session.Enter("il", "6"));
  EXPECT_EQ(r.platform.messages, std::vector<std::string>{"Input string mismatch "});
  EXPECT_EQ(r.session.FocusedField(), "korvane.il");
  EXPECT_EQ(r.st().L, 6.0);
}

TEST(Fields, AFailureFromAnOptionOrPictureLeavesTheCall) {
  Running r;
  r.st().ProfileType = 21;
  r.st().p21_tf = 0.0;
  EXPECT_THROW(r.session.Click("obuckling1"), CalculationFault);
  EXPECT_THROW(r.session.Click("cbutt1"), CalculationFault);
  EXPECT_THROW(r.session.Focus("korvane"), CalculationFault);
  EXPECT_TRUE(r.platform.messages.empty());
}

TEST(Fields, ReturnMovesToTheNextOpenField) {
  Running r;
  r.session.FocusField("il");
  r.session.Return("il");
  // fyk is locked while a grade of the list is chosen.
  EXPECT_EQ(r.session.FocusedField(), "korvane.ie");
  r.session.Type("ie", "1");
  r.session.Return("ie");
  EXPECT_EQ(r.session.FocusedField(), "korvane.ie");
  EXPECT_EQ(r.platform.messages.back(), " 1000 <= E-modulus ");
}

TEST(Fields, TypingALengthFactorMakesItsCaseTyped) {
  Running r;
  EXPECT_TRUE(r.session.Enter("ibly", "1.0"));
  EXPECT_EQ(r.st().BucklingCaseY, 6);
  EXPECT_EQ(r.st().BucklingCaseZ, 2);
}

TEST(Fields, AShorterMemberCutsAndRemovesTrapezoids) {
  Running r;
  r.st().qt1_1 = 5.0;
  r.st().qt1_2 = 5.0;
  r.st().qt1_x1 = 2.0;
  r.st().qt1_x2 = 4.5;
  EXPECT_TRUE(r.session.Enter("il", "4"));
  EXPECT_EQ(r.st().qt1_x2, 4.0);
  EXPECT_TRUE(r.session.Enter("il", "1.5"));
  EXPECT_EQ(r.st().qt1_1, 0.0);
  EXPECT_EQ(r.st().qt1_x2, 0.0);
}

struct SupportCase {
  int support;
  double factor;
  int bucklingCase;
  double k;
};

class Support : public ::testing::TestWithParam<SupportCase> {};

TEST_P(Support, SetsItsFactors) {
  const SupportCase& c = GetParam();
  Running r;
  r.session.Click("cbutt" + std::to_string(c.support));
  EXPECT_EQ(r.st().SupportType, c.support);
  EXPECT_EQ(r.st().bly, float32(c.factor));
  EXPECT_EQ(r.st().blz, float32(c.factor));
  EXPECT_EQ(r.st().BucklingCaseY, c.bucklingCase);
  EXPECT_EQ(r.st().LateralBucklingCase, c.bucklingCase);
  EXPECT_EQ(r.st().k_ltb, float32(c.k));
  const bool spring = c.support == 3 || c.support == 5;
  EXPECT_EQ(r.session.Enabled("ispring"), spring);
  EXPECT_EQ(r.session.FocusedField(), spring ? "korvane.ispring" : "");
  EXPECT_EQ(r.session.Calculations(), 2);
}

INSTANTIATE_TEST_SUITE_P(All, Support,
                         ::testing::Values(SupportCase{0, 1.0, 2, 1.0}, SupportCase{1, 0.7, 3, 0.7},
                                           SupportCase{2, 0.5, 4, 0.5}, SupportCase{3, 1.0, 2, 1.0},
                                           SupportCase{4, 2.0, 1, 2.0},
                                           SupportCase{5, 1.0, 2, 1.0}));

TEST(Supports, LeaveAnAxisAloneThatDoesNotBuckleOrIsTyped) {
  Running r;
  r.st().BucklingCaseY = 5;
  r.st().bly = 0.0;
  r.st().BucklingCaseZ = 6;
  r.st().blz = 1.3;
  r.session.Click("cbutt4");
  EXPECT_EQ(r.st().BucklingCaseY, 5);
  EXPECT_EQ(r.st().bly, 0.0);
  EXPECT_EQ(r.st().blz, float32(1.3));
  EXPECT_EQ(r.st().k_ltb, 2.0);
}

TEST(Supports, TheCantileverKeepsALoadAtItsTipAndTheOthersTidyItAway) {
  Running r;
  r.st().pm[1] = 10.0;
  r.st().pmx[1] = 5.0;
  r.session.Click("cbutt4");
  EXPECT_EQ(r.st().pmx[1], 5.0);
  EXPECT_EQ(r.st().pm[1], 10.0);
  r.session.Click("cbutt0");
  EXPECT_EQ(r.st().pm[1], 0.0);
}

TEST(Toggles, ModalAnalysisIsRefusedOnSprings) {
  Running r;
  r.session.Click("cbutt3");
  r.session.Click("ch_modal");
  EXPECT_EQ(r.platform.messages.back(), " Modal analysis not possible for spring supports ");
  EXPECT_FALSE(r.session.Checked("ch_modal"));
  r.session.Click("cbutt0");
  r.session.Click("ch_modal");
  EXPECT_TRUE(r.session.Checked("ch_modal"));
  // A spring support clears it without a word.
  const auto said = r.platform.messages.size();
  r.session.Click("cbutt5");
  EXPECT_FALSE(r.session.Checked("ch_modal"));
  EXPECT_EQ(r.platform.messages.size(), said);
}

TEST(Toggles, LateralBucklingOffAndOnAgain) {
  Running r;
  r.st().LateralBucklingCase = 3;
  r.st().LtbSegments = 2;
  r.session.Click("ch_vipp");
  EXPECT_EQ(r.st().LateralTorsionalBuckling, 0);
  EXPECT_EQ(r.st().LtbSegments, 0);
  EXPECT_EQ(r.st().k_ltb, float32(0.001));
  r.session.Click("ch_vipp");
  EXPECT_EQ(r.st().k_ltb, float32(0.7));
}

TEST(Toggles, LateralBucklingOfATypedFactorTakesItAgain) {
  Running r;
  r.st().LateralBucklingCase = 5;
  r.st().k_ltb = 0.85;
  r.session.Click("ch_vipp");
  EXPECT_EQ(r.st().k_ltb, float32(0.001));
  r.session.Click("ch_vipp");
  EXPECT_EQ(r.st().k_ltb, float32(0.85));
  EXPECT_EQ(r.st().LateralTorsionalBuckling, 1);
}

TEST(Toggles, LateralBucklingShowsUncheckedAndDisabledForHollowSections) {
  Running r;
  r.session.Menu("mnup06");
  r.session.Focus("korvane");
  EXPECT_FALSE(r.session.Enabled("ch_vipp"));
  EXPECT_FALSE(r.session.Checked("ch_vipp"));
}

TEST(Commands, NewKeepsTheFieldsButDesignsANewMember) {
  Running r;
  r.session.Enter("il", "9");
  r.st().lfp_uls = 1.1;
  r.session.Menu("mnunew");
  EXPECT_EQ(r.session.Text("il"), "9.000");
  EXPECT_EQ(r.st().L, 5.0);
  EXPECT_EQ(r.st().lfp_uls, float32(1.1));
}

TEST(Commands, TheOptimiserIsForDatabaseProfilesOnly) {
  Running r;
  r.session.Menu("mnup21");
  r.session.Close("p21");
  r.session.Menu("mnuopt");
  EXPECT_EQ(r.platform.messages.back(), " Only database profiles can be optimized ");
  EXPECT_FALSE(r.session.IsOpen("optroll"));
}

TEST(Commands, OpeningTheProfilesMenuGoesBackToAutomaticCurves) {
  Running r;
  r.session.Click("Command1");
  EXPECT_EQ(r.st().ManualBucklingCurves, 1);
  r.session.Close("bucklingcurve");
  r.session.Menu("mnup02");
  EXPECT_EQ(r.st().ManualBucklingCurves, 0);
}

TEST(Commands, EndforcesSetTheModeAndPinnedSupports) {
  Running r;
  r.session.Click("cbutt2");
  r.session.Menu("mnuendforces");
  EXPECT_EQ(r.st().AnalysisMode, 0);
  EXPECT_EQ(r.st().SupportType, 0);
  EXPECT_EQ(r.session.OpenForms().back(), "endforce");
  r.session.Enter("imy1", "25");
  EXPECT_EQ(r.session.design().beam.z.M[0], 25.0);
}

TEST(Commands, PrintingAsksOnceAndHonoursCopiesAndCancel) {
  Running r;
  r.session.Menu("mnuprint0");
  EXPECT_EQ(r.platform.printDialogs, 1);
  EXPECT_TRUE(r.platform.printed.empty());
  r.platform.print = PrintJob{3};
  r.session.Menu("mnuprint11");
  ASSERT_EQ(r.platform.printed.size(), 1U);
  EXPECT_EQ(r.platform.printed[0], std::make_pair(1, 3));
}

TEST(Commands, BothHelpEntriesOpenTheHelpFile) {
  Running r;
  r.session.Menu("mnuhelpcont");
  r.session.Menu("mnuhelpsearch");
  ASSERT_EQ(r.platform.help.size(), 2U);
  for (const std::string& topic : r.platform.help) {
    EXPECT_TRUE(topic.ends_with("\\Korvane NS3472.chm")) << topic;
  }
}

TEST(Commands, ExitEndsWithoutAQuestion) {
  Running r;
  r.session.Enter("il", "9");
  r.session.Menu("mnuexit");
  EXPECT_TRUE(r.session.Ended());
  EXPECT_TRUE(r.platform.messages.empty());
}

TEST(Commands, EveryFamilyFormOpensFillsAndDesigns) {
  for (const bool comma : {false, true}) {
    for (const Family& family : AllFamilies()) {
      Running r(comma);
      r.session.Menu(family.menuControl);
      EXPECT_EQ(r.session.OpenForms().back(), family.form);
      EXPECT_EQ(r.session.Title(family.form), family.formCaption);
      r.session.Focus("korvane");
      EXPECT_EQ(r.st().ProfileType, family.code);
      EXPECT_NE(r.session.Text("obeam"), "") << family.code;
    }
  }
}

TEST(Names, AnUnknownControlIsTold) {
  Running r;
  EXPECT_THROW(r.session.Click("nothing"), UnknownControl);
  EXPECT_THROW(r.session.Text("setup.nothing"), UnknownControl);
  EXPECT_THROW(r.session.Menu("il"), UnknownControl);
  EXPECT_THROW(r.session.Focus("setup"), UnknownControl);
}

}  // namespace
}  // namespace korvane
