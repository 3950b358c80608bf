// SPDX-License-Identifier: GPL-3.0-or-later
// The result views: headings, the list of characteristic points, short and long lines, breaking,
// the slenderness line, and the greatest ratio of a calculation.
#include "checks/results.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace korvane {
namespace {

const auto kNeverBreaks = [](const std::string&) { return false; };
const auto kAlwaysBreaks = [](const std::string&) { return true; };

CheckLine Line(const std::string& label, int colour = 2) {
  return {label + ":", "IR = " + label + " = ", "1.0/2.0 = ", "0.50", "  <  1.00 (Ch 1)", 0.5,
          colour};
}

/// The texts of a line, one after the other.
std::string TextOf(const ViewLine& line) {
  std::string text;
  for (const TextRun& run : line.runs) text += run.text;
  return text;
}

std::vector<std::string> TextsOf(const View& v) {
  std::vector<std::string> texts;
  for (const ViewLine& line : v) texts.push_back(TextOf(line));
  return texts;
}

using Texts = std::vector<std::string>;

TEST(MaxIR, TakesTheGreatestOfAllRatios) {
  CheckResults c;
  EXPECT_EQ(MaxIR(c), 0);
  const std::vector<number CheckResults::*> ratios{
      &CheckResults::IRsection,   &CheckResults::IRvz,       &CheckResults::IRvy,
      &CheckResults::IRlateral,   &CheckResults::IRny,       &CheckResults::IRnz,
      &CheckResults::IRcombinedY, &CheckResults::IRcombinedZ};
  double most = 0;
  for (const auto ratio : ratios) {
    most += 0.125;
    c.*ratio = most;
    EXPECT_EQ(MaxIR(c), float(most));
  }
  c.*ratios.front() = 7;
  EXPECT_EQ(MaxIR(c), 7);
}

TEST(MaxIR, HoldsSinglePrecision) {
  CheckResults c;
  c.IRvz = 0.1;
  EXPECT_EQ(MaxIR(c), 0.1F);
}

TEST(MaxIR, TakesTheCornersOfAnglesOnly) {
  for (const std::size_t corner : {0U, 1U, 2U}) {
    CheckResults c;
    c.IRsection = 0.25;
    c.cornerIR[corner] = 0.75;
    EXPECT_EQ(MaxIR(c), 0.25F);
    c.hasCorners = true;
    EXPECT_EQ(MaxIR(c), 0.75F);
  }
}

TEST(ResultViews, HeadingIsBoldAndUnderlined) {
  const View v = SectionControlShort(ProjectState{}, CheckResults{});
  ASSERT_EQ(v.size(), 1U);
  EXPECT_EQ(v[0].advance, 1.1);
  ASSERT_EQ(v[0].runs.size(), 1U);
  EXPECT_EQ(v[0].runs[0].text, "SECTION CONTROL:");
  EXPECT_TRUE(v[0].runs[0].bold);
  EXPECT_TRUE(v[0].runs[0].underline);
  const View b = BucklingShort(ProjectState{}, CheckResults{}, BucklingResults{});
  ASSERT_EQ(b.size(), 1U);
  EXPECT_EQ(TextOf(b[0]), "BUCKLING CONTROL:");
  EXPECT_TRUE(b[0].runs[0].bold);
}

TEST(ResultViews, HeadingListsTheCharacteristicPoints) {
  ProjectState st;
  st.L = 5;
  st.cp_mode = 1;
  st.cp_count = 3;
  st.cp_relative = 0;
  st.cp_x[1] = 0.5;
  st.cp_x[2] = 1.25;
  st.cp_x[3] = 4;
  const CheckResults c;
  View v = SectionControlShort(st, c);
  EXPECT_EQ(TextOf(v[0]), "SECTION CONTROL: At: x= 0.50/1.25/4.00 (m)");
  EXPECT_FALSE(v[0].runs.back().bold);
  EXPECT_FALSE(v[0].runs.back().underline);
  st.cp_relative = 1;
  v = SectionControlLong(st, c, kNeverBreaks);
  EXPECT_EQ(TextOf(v[0]), "SECTION CONTROL: At: x= 0.10/0.25/0.80 (L)");
  st.cp_count = 1;
  v = BucklingLong(st, c, BucklingResults{}, kNeverBreaks);
  EXPECT_EQ(TextOf(v[0]), "BUCKLING CONTROL: At: x= 0.10 (L)");
  st.cp_mode = 0;
  v = BucklingShort(st, c, BucklingResults{});
  EXPECT_EQ(TextOf(v[0]), "BUCKLING CONTROL:");
}

TEST(ResultViews, ShortLinesShowLabelValueAndLimit) {
  CheckResults c;
  c.lineSection = Line("My", 4);
  const View v = SectionControlShort(ProjectState{}, c);
  ASSERT_EQ(v.size(), 2U);
  const ViewLine& line = v[1];
  EXPECT_EQ(line.advance, 1);
  ASSERT_EQ(line.runs.size(), 4U);
  EXPECT_EQ(line.runs[0].text, "My:");
  EXPECT_FALSE(line.runs[0].atTab);
  EXPECT_EQ(line.runs[1].text, "IR = ");
  EXPECT_TRUE(line.runs[1].atTab);
  EXPECT_EQ(line.runs[1].colour, 0);
  EXPECT_EQ(line.runs[2].text, "0.50");
  EXPECT_TRUE(line.runs[2].bold);
  EXPECT_EQ(line.runs[2].colour, 4);
  EXPECT_EQ(line.runs[3].text, "  <  1.00 (Ch 1)");
  EXPECT_FALSE(line.runs[3].bold);
  EXPECT_EQ(line.runs[3].colour, 0);
}

TEST(ResultViews, ShowTheLinesInTheirOrderAndSkipEmptyOnes) {
  CheckResults c;
  c.lineSection = Line("My");
  c.lineVy = Line("Vy");
  c.lineLateral = Line("Lateral");
  c.lineBucklingZ = Line("Nz");
  const ProjectState st;
  EXPECT_EQ(TextsOf(SectionControlShort(st, c)),
            (Texts{"SECTION CONTROL:", "My:IR = 0.50  <  1.00 (Ch 1)",
                   "Vy:IR = 0.50  <  1.00 (Ch 1)", "Lateral:IR = 0.50  <  1.00 (Ch 1)"}));
  c.lineVz = Line("Vz");
  EXPECT_EQ(
      TextsOf(SectionControlLong(st, c, kNeverBreaks)),
      (Texts{"SECTION CONTROL:", "IR = My = 1.0/2.0 = 0.50  <  1.00 (Ch 1)",
             "IR = Vz = 1.0/2.0 = 0.50  <  1.00 (Ch 1)", "IR = Vy = 1.0/2.0 = 0.50  <  1.00 (Ch 1)",
             "IR = Lateral = 1.0/2.0 = 0.50  <  1.00 (Ch 1)"}));
  EXPECT_EQ(TextsOf(BucklingShort(st, c, BucklingResults{})),
            (Texts{"BUCKLING CONTROL:", "Nz:IR = 0.50  <  1.00 (Ch 1)"}));
  c.lineBucklingY = Line("Ny");
  EXPECT_EQ(TextsOf(BucklingLong(st, c, BucklingResults{}, kNeverBreaks)),
            (Texts{"BUCKLING CONTROL:", "IR = Ny = 1.0/2.0 = 0.50  <  1.00 (Ch 1)",
                   "IR = Nz = 1.0/2.0 = 0.50  <  1.00 (Ch 1)"}));
}

TEST(ResultViews, LongLinesBreakBehindTheFormula) {
  CheckResults c;
  c.lineSection = Line("My", 4);
  c.lineBucklingY = Line("Ny", 4);
  const ProjectState st;
  for (const View& v : {SectionControlLong(st, c, kAlwaysBreaks),
                        BucklingLong(st, c, BucklingResults{}, kAlwaysBreaks)}) {
    ASSERT_EQ(v.size(), 3U);
    EXPECT_EQ(v[1].advance, 1);
    EXPECT_EQ(TextOf(v[1]).substr(0, 5), "IR = ");
    EXPECT_EQ(v[1].runs.size(), 1U);
    ASSERT_EQ(v[2].runs.size(), 3U);
    EXPECT_EQ(v[2].runs[0].text, "    = 1.0/2.0 = ");
    EXPECT_FALSE(v[2].runs[0].bold);
    EXPECT_EQ(v[2].runs[1].text, "0.50");
    EXPECT_TRUE(v[2].runs[1].bold);
    EXPECT_EQ(v[2].runs[1].colour, 4);
    EXPECT_EQ(v[2].runs[2].text, "  <  1.00 (Ch 1)");
    EXPECT_EQ(v[2].runs[2].colour, 0);
  }
}

// The same results fit on one target and break on another; the whole text is measured.
TEST(ResultViews, BreakByTheWidthOfTheTarget) {
  CheckResults c;
  c.lineSection = Line("My");
  c.lineVz = Line("Vz with a longer formula");
  std::vector<std::string> measured;
  const auto breaksAt = [&measured](std::size_t width) {
    return [&measured, width](const std::string& text) {
      measured.push_back(text);
      return text.size() > width;
    };
  };
  EXPECT_EQ(SectionControlLong(ProjectState{}, c, breaksAt(80)).size(), 3U);
  EXPECT_EQ(measured, (Texts{"IR = My = 1.0/2.0 = 0.50  <  1.00 (Ch 1)",
                             "IR = Vz with a longer formula = 1.0/2.0 = 0.50  <  1.00 (Ch 1)"}));
  EXPECT_EQ(SectionControlLong(ProjectState{}, c, breaksAt(50)).size(), 4U);
  EXPECT_EQ(SectionControlLong(ProjectState{}, c, breaksAt(30)).size(), 5U);
}

class SlendernessView : public testing::Test {
protected:
  SlendernessView() {
    c.lineSlenderness.label = "Slenderness: Y/Z-axis: ";
    c.lineSlenderness.formula = "Slenderness: Y/Z-axis:  L/i = ";
    st.islend_limit = 250;
    b.LyOverI = 99.6;
    b.LzOverI = 250.4;
  }

  ViewLine Short() const { return BucklingShort(st, c, b).back(); }

  ProjectState st;
  CheckResults c;
  BucklingResults b;
};

TEST_F(SlendernessView, ShowsBothAxes) {
  const ViewLine line = Short();
  EXPECT_EQ(TextOf(line), "Slenderness: Y/Z-axis: 100/250  < 250  (Ch 11.7)");
  ASSERT_EQ(line.runs.size(), 5U);
  EXPECT_TRUE(line.runs[1].bold);
  EXPECT_EQ(line.runs[1].colour, 2);
  EXPECT_TRUE(line.runs[3].bold);
  EXPECT_EQ(line.runs[3].colour, 4);  // 250.4 exceeds the limit though it reads 250
  EXPECT_EQ(line.runs[2].colour, 0);
  EXPECT_EQ(line.runs[4].colour, 0);
}

TEST_F(SlendernessView, AtTheLimitPasses) {
  b.LyOverI = 250;
  EXPECT_EQ(Short().runs[1].colour, 2);
}

TEST_F(SlendernessView, LongViewShowsTheFormulaAndNeverBreaks) {
  const View v = BucklingLong(st, c, b, kAlwaysBreaks);
  ASSERT_EQ(v.size(), 2U);
  EXPECT_EQ(TextOf(v[1]), "Slenderness: Y/Z-axis:  L/i = 100/250  < 250  (Ch 11.7)");
}

TEST_F(SlendernessView, AxisThatCannotBuckleIsNotApplicable) {
  st.bly = 0;
  EXPECT_EQ(TextOf(Short()), "Slenderness: Y/Z-axis: N/A/250  < 250  (Ch 11.7)");
  EXPECT_EQ(Short().runs[1].colour, 0);
  EXPECT_FALSE(Short().runs[1].bold);
  st.bly = 1;
  st.blz = 0;
  EXPECT_EQ(TextOf(Short()), "Slenderness: Y/Z-axis: 100/N/A  < 250  (Ch 11.7)");
}

TEST_F(SlendernessView, NotAskedForIsNotThere) {
  c.lineSlenderness = {};
  EXPECT_EQ(BucklingShort(st, c, b).size(), 1U);
  EXPECT_EQ(BucklingLong(st, c, b, kNeverBreaks).size(), 1U);
}

TEST(BucklingBlock, ShowsForCompressionOfAFamilyThatHasIt) {
  ProjectState st;
  for (const int type :
       {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 15, 16, 21, 22, 23, 26, 28, 31, 41, 101, 102, 103}) {
    st.ProfileType = type;
    EXPECT_TRUE(ShowsBuckling(st, 1)) << type;
    EXPECT_FALSE(ShowsBuckling(st, 0)) << type;
    EXPECT_FALSE(ShowsBuckling(st, -1)) << type;
  }
  for (const int type : {24, 25, 27, 51, 52, 53, 54, 55, 56, 0, 99}) {
    st.ProfileType = type;
    EXPECT_FALSE(ShowsBuckling(st, 1)) << type;
  }
}

TEST(BucklingBlock, NeedsAnAxisThatCanBuckle) {
  ProjectState st;
  st.ProfileType = 1;
  st.BucklingCaseY = 5;
  EXPECT_TRUE(ShowsBuckling(st, 1));
  st.BucklingCaseZ = 5;
  EXPECT_FALSE(ShowsBuckling(st, 1));
  st.BucklingCaseY = 2;
  EXPECT_TRUE(ShowsBuckling(st, 1));
}

}  // namespace
}  // namespace korvane
