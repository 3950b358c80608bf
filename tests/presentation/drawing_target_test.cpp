// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/drawing_target.h"

#include <gtest/gtest.h>

#include "core/numeric.h"
#include "presentation/text_metrics.h"
#include "tests/support/recording_target.h"

namespace korvane {
namespace {

TEST(TextMetrics, WidthsAreThoseOfArial) {
  EXPECT_DOUBLE_EQ(ArialWidth("0", false), 0.556);
  EXPECT_DOUBLE_EQ(ArialWidth("I", false), 0.278);
  EXPECT_DOUBLE_EQ(ArialWidth("W", true), 0.944);
  EXPECT_DOUBLE_EQ(ArialWidth("My", false), 0.833 + 0.5);
  EXPECT_DOUBLE_EQ(ArialWidth("", false), 0);
}

TEST(TextMetrics, CountsCharactersNotBytes) {
  EXPECT_DOUBLE_EQ(ArialWidth("\xC3\x86", false), 1.0);        // AE
  EXPECT_DOUBLE_EQ(ArialWidth("\xC2\xB2", false), 0.333);      // superscript two
  EXPECT_DOUBLE_EQ(ArialWidth("\xE2\x88\x92", false), 0.584);  // minus sign
  EXPECT_DOUBLE_EQ(ArialWidth("\xE4\xB8\xAD", false), 0.556);  // not in the table
}

TEST(TextMetrics, ACutCharacterAtTheEndIsNoHarm) {
  EXPECT_DOUBLE_EQ(ArialWidth("\xC3", false), ArialWidth("\x03", false));
}

TEST(DrawingTarget, PrintMovesThePositionToTheEndOfTheText) {
  RecordingTarget t;
  t.FontSize = 10;
  t.CurrentX = 5;
  t.CurrentY = 7;
  t.Print("00");
  EXPECT_DOUBLE_EQ(t.CurrentX, 5 + 11.12);
  EXPECT_DOUBLE_EQ(t.CurrentY, 7);
}

TEST(DrawingTarget, PrintKeepsStyleAndPlace) {
  RecordingTarget t;
  t.FontSize = 10;
  t.FontBold = true;
  t.FontUnderline = true;
  t.ForeColor = RoleOfIndex(4);
  t.CurrentX = 3;
  t.CurrentY = 4;
  t.Print("IR");
  const RecordedShape* s = t.FindText("IR");
  ASSERT_NE(s, nullptr);
  EXPECT_TRUE(s->style.bold);
  EXPECT_TRUE(s->style.underline);
  EXPECT_EQ(s->style.colour, Role::Fail);
  EXPECT_EQ(s->style.family, "Arial");
  EXPECT_DOUBLE_EQ(s->box.left, 3);
  EXPECT_DOUBLE_EQ(s->box.top, 4);
  EXPECT_DOUBLE_EQ(s->box.Width(), 10 * (0.278 + 0.722));
}

TEST(DrawingTarget, EmptyTextDrawsNothing) {
  RecordingTarget t;
  t.Print("");
  EXPECT_TRUE(t.Shapes().empty());
}

TEST(DrawingTarget, BoldTextIsWider) {
  RecordingTarget t;
  const double plain = t.TextWidth("Bending");
  t.FontBold = true;
  EXPECT_GT(t.TextWidth("Bending"), plain);
}

TEST(DrawingTarget, FrameMapsItsWindowOntoThePlace) {
  RecordingTarget t;
  t.PushFrame(Box::At(100, 200, 136 * 2, 88 * 4), Box::At(0, 0, 136, 88));
  EXPECT_DOUBLE_EQ(t.UnitX(), 2);
  EXPECT_DOUBLE_EQ(t.UnitY(), 4);
  t.Line({0, 0}, {10, 20});
  const RecordedShape& line = t.Shapes().at(0);
  EXPECT_EQ(line.Points().at(0), (Point{100, 200}));
  EXPECT_EQ(line.Points().at(1), (Point{120, 280}));
}

TEST(DrawingTarget, FramesNest) {
  RecordingTarget t;
  t.PushFrame(Box::At(10, 10, 100, 100), Box::At(0, 0, 50, 50));
  t.PushFrame(Box::At(5, 5, 10, 10), Box::At(1, 1, 5, 5));
  EXPECT_EQ(t.ToPage({1, 1}), (Point{20, 20}));
  EXPECT_EQ(t.ToPage({2, 6}), (Point{24, 40}));
  t.PopFrame();
  EXPECT_EQ(t.ToPage({1, 1}), (Point{12, 12}));
  t.PopFrame();
  EXPECT_EQ(t.ToPage({1, 1}), (Point{1, 1}));
}

TEST(DrawingTarget, AFrameRestoresTheState) {
  RecordingTarget t;
  t.FontSize = 11;
  t.CurrentX = 3;
  {
    const ScopedFrame frame(t, Box::At(0, 0, 10, 10), Box::At(0, 0, 1, 1));
    t.FontSize = 2;
    t.CurrentX = 9;
    t.ForeColor = Role::Accent;
    t.LineDash = Dash::Dotted;
  }
  EXPECT_DOUBLE_EQ(t.FontSize, 11);
  EXPECT_DOUBLE_EQ(t.CurrentX, 3);
  EXPECT_EQ(t.ForeColor, Role::Ink);
  EXPECT_EQ(t.LineDash, Dash::Solid);
}

TEST(DrawingTarget, AWindowWithoutSizeIsAFault) {
  RecordingTarget t;
  EXPECT_THROW(t.PushFrame(Box::At(0, 0, 1, 1), Box::At(0, 0, 0, 5)), ArithmeticFault);
  t.Line({0, 0}, {1, 1});
  EXPECT_EQ(t.Shapes().at(0).Points().at(1), (Point{1, 1}));
}

TEST(DrawingTarget, TextKeepsItsProportionsInADistortedFrame) {
  RecordingTarget t;
  t.PushFrame(Box::At(0, 0, 200, 100), Box::At(0, 0, 100, 100));
  t.SetTextUnits(10);
  EXPECT_DOUBLE_EQ(t.FontSize, 10);
  EXPECT_DOUBLE_EQ(t.TextWidth("0"), 2.78);  // half of it in units that are twice as wide
  EXPECT_DOUBLE_EQ(t.TextHeight(), 11.49);
  EXPECT_DOUBLE_EQ(t.Across(4), 2);
}

TEST(DrawingTarget, CirclesStayRoundInADistortedFrame) {
  RecordingTarget t;
  t.PushFrame(Box::At(0, 0, 200, 100), Box::At(0, 0, 100, 100));
  t.Circle({50, 50}, 3, Paint::Outline);
  EXPECT_DOUBLE_EQ(t.Shapes().at(0).rx, 3);
  EXPECT_DOUBLE_EQ(t.Shapes().at(0).ry, 3);
  EXPECT_EQ(t.Shapes().at(0).centre, (Point{100, 50}));
}

TEST(DrawingTarget, FitInsideKeepsTheShapeAndCentres) {
  RecordingTarget t;
  const Box wide = t.FitInside(Box::At(0, 0, 200, 100), 10, 10);
  EXPECT_DOUBLE_EQ(wide.left, 50);
  EXPECT_DOUBLE_EQ(wide.Width(), 100);
  EXPECT_DOUBLE_EQ(wide.Height(), 100);
  const Box high = t.FitInside(Box::At(0, 0, 100, 200), 20, 10);
  EXPECT_DOUBLE_EQ(high.Width(), 100);
  EXPECT_DOUBLE_EQ(high.Height(), 50);
  EXPECT_DOUBLE_EQ(high.top, 75);
}

TEST(DrawingTarget, FitInsideSeesTheScalesOfItsFrame) {
  RecordingTarget t;
  t.PushFrame(Box::At(0, 0, 200, 100), Box::At(0, 0, 100, 100));
  const Box square = t.FitInside(Box::At(0, 0, 100, 100), 1, 1);
  EXPECT_DOUBLE_EQ(square.Width() * t.UnitX(), square.Height() * t.UnitY());
  EXPECT_DOUBLE_EQ(square.Height(), 100);
}

TEST(DrawingTarget, PaintDecidesOnLineAndFill) {
  RecordingTarget t;
  t.LineWidth = 0.7;
  t.FillOpacity = 0.25;
  t.FillColor = Role::Accent;
  const Point corners[] = {{0, 0}, {1, 0}, {1, 1}};
  t.Polygon(corners, Paint::Outline);
  t.Polygon(corners, Paint::Filled);
  t.Polygon(corners, Paint::Both);
  const auto& s = t.Shapes();
  EXPECT_DOUBLE_EQ(s.at(0).stroke.width, 0.7);
  EXPECT_DOUBLE_EQ(s.at(0).fill.opacity, 0);
  EXPECT_DOUBLE_EQ(s.at(1).stroke.width, 0);
  EXPECT_DOUBLE_EQ(s.at(1).fill.opacity, 0.25);
  EXPECT_DOUBLE_EQ(s.at(2).stroke.width, 0.7);
  EXPECT_EQ(s.at(2).fill.colour, Role::Accent);
}

TEST(Palette, CheckColoursAreTheBasicPalettes) {
  const Palette light = Palette::Light();
  EXPECT_EQ(light[RoleOfIndex(2)], (Colour{0, 128, 0}));
  EXPECT_EQ(light[RoleOfIndex(4)], (Colour{128, 0, 0}));
  EXPECT_EQ(light[RoleOfIndex(0)], (Colour{0, 0, 0}));
  EXPECT_EQ(light[Role::Paper], (Colour{255, 255, 255}));
}

TEST(Palette, InkStandsOutFromThePaperOfBothPalettes) {
  const auto brightness = [](Colour c) { return c.r + c.g + c.b; };
  for (const Palette& p : {Palette::Light(), Palette::Dark()}) {
    for (const Role role : {Role::Ink, Role::Accent, Role::Second, Role::Pass, Role::Fail}) {
      EXPECT_GT(std::abs(brightness(p[role]) - brightness(p[Role::Paper])), 250);
    }
  }
}

TEST(RecordingTarget, FindsTextsThatOverlap) {
  RecordingTarget t;
  t.FontSize = 10;
  t.Print("first");
  t.CurrentX = 10;
  t.Print("second");
  t.CurrentX = 10;
  t.CurrentY = 30;
  t.Print("third");
  const auto pairs = t.OverlappingTexts(0.1);
  ASSERT_EQ(pairs.size(), 1U);
  EXPECT_EQ(pairs.at(0).first, "first");
  EXPECT_EQ(pairs.at(0).second, "second");
}

TEST(RecordingTarget, RunsOfOneLineAndBlanksDoNotOverlap) {
  RecordingTarget t;
  t.Print("IR = ");
  t.Print("0.59");
  t.CurrentX = 0;
  t.Print("   ");
  EXPECT_TRUE(t.OverlappingTexts(0.1).empty());
}

TEST(RecordingTarget, BoundsHoldEverything) {
  RecordingTarget t;
  EXPECT_FALSE(t.Bounds().has_value());
  t.Line({5, 6}, {9, 2});
  t.Circle({20, 20}, 4, Paint::Outline);
  const Box b = t.Bounds().value();
  EXPECT_DOUBLE_EQ(b.left, 5);
  EXPECT_DOUBLE_EQ(b.top, 2);
  EXPECT_DOUBLE_EQ(b.right, 24);
  EXPECT_DOUBLE_EQ(b.bottom, 24);
}

TEST(RecordingTarget, BoundsOfAnArcHoldTheQuartersThatItPasses) {
  RecordingTarget t;
  t.Arc({0, 0}, 10, 45, 90);  // over the top
  const Box b = t.Bounds().value();
  EXPECT_NEAR(b.top, -10, 1e-12);
  EXPECT_NEAR(b.bottom, -7.0710678, 1e-6);
  EXPECT_NEAR(b.right, 7.0710678, 1e-6);
}

TEST(RecordingTarget, ClearForgets) {
  RecordingTarget t;
  t.Line({0, 0}, {1, 1});
  t.Clear();
  EXPECT_TRUE(t.Shapes().empty());
}

TEST(Geometry, LinesMeetRectangles) {
  const Box r = Box::At(0, 0, 10, 5);
  struct Case {
    Point a, b;
    bool meets;
  };
  for (const Case& c : {Case{{-5, 2}, {15, 2}, true}, Case{{2, 2}, {3, 3}, true},
                        Case{{-5, -1}, {15, -1}, false}, Case{{-1, 0}, {0, -2}, false},
                        Case{{-2, 6}, {6, -2}, true}, Case{{11, 0}, {11, 5}, false}}) {
    EXPECT_EQ(Meets(c.a, c.b, r), c.meets) << c.a.x << "," << c.a.y;
  }
}

}  // namespace
}  // namespace korvane
