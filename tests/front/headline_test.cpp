// SPDX-License-Identifier: GPL-3.0-or-later
// What the headline says of a finished design, and of results that don't hold.
#include "front/headline.h"

#include <gtest/gtest.h>

#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

TEST(Headline, TellsBothLimitStatesInWords) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "3");
  r.session.Focus("korvane");
  const Verdict verdict = VerdictOf(r.session.design());
  Headline h = HeadlineOf(r.session);
  EXPECT_EQ(h.figure, r.session.Shown(verdict.IR, "#0.00"));
  EXPECT_EQ(h.word, "passes");
  EXPECT_EQ(h.tone, Headline::Tone::Pass);
  // 5 q L^4 / (384 E I) by the greatest deflection that was calculated.
  const double ratio = 5000 / r.session.design().deflections.DeflZ_max;
  EXPECT_EQ(h.below.rfind("SLS L/" + r.session.Shown(ratio, "0") + ", limit L/", 0), 0U) << h.below;
  EXPECT_NE(h.below.find(": passes"), std::string::npos) << h.below;
  r.session.Focus("loading");
  r.session.Enter("iq1", "3000");
  h = HeadlineOf(r.session);
  EXPECT_EQ(h.word, "FAILS");
  EXPECT_EQ(h.tone, Headline::Tone::Fail);
  EXPECT_NE(h.below.find(": fails"), std::string::npos) << h.below;
  EXPECT_EQ(h.belowTone, Headline::Tone::Fail);
  ASSERT_FALSE(h.notes.empty());
  EXPECT_EQ(h.notes[0].rfind("fails: ", 0), 0U) << h.notes[0];
}

TEST(Headline, OfAMemberWithoutForcesHasNoFigure) {
  Running r;
  r.session.Menu("mnuload1");
  r.session.Click("Command1");
  const Headline h = HeadlineOf(r.session);
  EXPECT_EQ(h.figure, "-");
  EXPECT_EQ(h.word, "no forces");
  EXPECT_EQ(h.tone, Headline::Tone::Quiet);
}

TEST(Headline, SaysWhatIsNotCalculatedAndWhy) {
  Running r;
  EXPECT_FALSE(r.session.Enter("il", "0.01"));
  const Headline h = HeadlineOf(r.session);
  EXPECT_EQ(h.figure, "-");
  EXPECT_EQ(h.word, "not calculated");
  EXPECT_EQ(h.tone, Headline::Tone::Quiet);
  EXPECT_EQ(h.below, "L 0.010 m is refused");
}

TEST(Headline, WritesItsNumbersWithTheCommaOfTheLocale) {
  Running r(true);
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "3");
  EXPECT_NE(HeadlineOf(r.session).figure.find(','), std::string::npos);
}

TEST(Printing, CarriesTheReasonWhereTheResultsDontHold) {
  Running r;
  r.platform.print = PrintJob{1};
  r.session.Menu("mnuprint1");
  EXPECT_FALSE(r.session.Enter("il", "0.01"));
  r.session.Menu("mnuprint1");
  ASSERT_EQ(r.platform.notices.size(), 2U);
  EXPECT_EQ(r.platform.notices[0], "");
  EXPECT_EQ(r.platform.notices[1], "not calculated: L 0.010 m is refused");
}

}  // namespace
}  // namespace korvane
