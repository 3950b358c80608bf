// SPDX-License-Identifier: GPL-3.0-or-later
#include "painter/painter_target.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QSvgGenerator>
#include <cmath>

namespace korvane {
namespace {

/// A picture of 200 by 100 page units, two pixels a unit.
class Picture {
public:
  explicit Picture(const Palette& palette = Palette::Light())
      : image_(400, 200, QImage::Format_RGB32),
        painter_(&image_),
        target(painter_, 200, 100, QRectF(0, 0, 400, 200), palette) {
    target.Clear();
  }
  QColor At(double x, double y) const {
    return image_.pixelColor(static_cast<int>(2 * x), static_cast<int>(2 * y));
  }
  /// Bounds in page units of the pixels that are darker than the paper.
  QRectF Ink() const {
    QRect box;
    for (int y = 0; y < image_.height(); ++y) {
      for (int x = 0; x < image_.width(); ++x) {
        if (image_.pixelColor(x, y).lightness() < 200) box |= QRect(x, y, 1, 1);
      }
    }
    return {box.left() / 2.0, box.top() / 2.0, box.width() / 2.0, box.height() / 2.0};
  }

private:
  QImage image_;
  QPainter painter_;

public:
  PainterTarget target;
};

TEST(PainterTarget, ClearPaintsThePaper) {
  EXPECT_EQ(Picture(Palette::Light()).At(10, 10), QColor(255, 255, 255));
  EXPECT_EQ(Picture(Palette::Dark()).At(10, 10), QColor(30, 33, 38));
}

TEST(PainterTarget, LinesStandWhereTheUserSays) {
  Picture p;
  p.target.LineWidth = 2;
  p.target.Line({50, 20}, {50, 80});
  EXPECT_EQ(p.At(50, 50), QColor(0, 0, 0));
  EXPECT_EQ(p.At(47, 50), QColor(255, 255, 255));
  EXPECT_NEAR(p.Ink().top(), 20, 0.6);
  EXPECT_NEAR(p.Ink().bottom(), 80, 0.6);
}

TEST(PainterTarget, AFillLetsThePaperThrough) {
  Picture p;
  const Point corners[] = {{10, 10}, {90, 10}, {90, 90}, {10, 90}};
  p.target.FillColor = Role::Ink;
  p.target.FillOpacity = 0.2;
  p.target.Polygon(corners, Paint::Filled);
  EXPECT_NEAR(p.At(50, 50).red(), 204, 1);
  EXPECT_EQ(p.At(95, 50).red(), 255);
}

TEST(PainterTarget, AnInnerOutlineIsAHole) {
  Picture p;
  const std::vector<std::vector<Point>> ring = {{{10, 10}, {90, 10}, {90, 90}, {10, 90}},
                                                {{30, 30}, {70, 30}, {70, 70}, {30, 70}}};
  p.target.FillColor = Role::Ink;
  p.target.Area(ring, Paint::Filled);
  EXPECT_EQ(p.At(20, 50), QColor(0, 0, 0));
  EXPECT_EQ(p.At(50, 50), QColor(255, 255, 255));
}

TEST(PainterTarget, AnArcRunsCounterClockwiseFromTheRight) {
  Picture p;
  p.target.LineWidth = 2;
  p.target.Arc({50, 50}, 30, 0, 90);
  const double k = 30 * std::sqrt(0.5);
  EXPECT_LT(p.At(50 + k, 50 - k).lightness(), 100);
  EXPECT_EQ(p.At(50 + k, 50 + k), QColor(255, 255, 255));
}

TEST(PainterTarget, ACircleHasItsRadius) {
  Picture p;
  p.target.FillColor = Role::Ink;
  p.target.Circle({100, 50}, 20, Paint::Filled);
  EXPECT_NEAR(p.Ink().width(), 40, 1);
  EXPECT_NEAR(p.Ink().height(), 40, 1);
}

TEST(PainterTarget, TextFillsTheWidthThatTheTableTells) {
  for (const char* text : {"HHHHHHHH", "Bending moment (My, kNm)", "-123.4"}) {
    for (const bool bold : {false, true}) {
      Picture p;
      p.target.FontSize = 12;
      p.target.FontBold = bold;
      p.target.CurrentX = 10;
      p.target.CurrentY = 40;
      p.target.Print(text);
      const double width = p.target.CurrentX - 10;
      EXPECT_NEAR(p.Ink().right(), 10 + width, 2) << text << bold;
      EXPECT_NEAR(p.Ink().left(), 10, 2) << text << bold;
      EXPECT_GT(p.Ink().top(), 40) << text;
      EXPECT_LT(p.Ink().bottom(), 40 + 12 * 1.15) << text;
    }
  }
}

TEST(PainterTarget, TextHasItsRolesColour) {
  Picture p;
  p.target.ForeColor = RoleOfIndex(4);
  p.target.FontSize = 60;
  p.target.FontBold = true;
  p.target.CurrentX = 10;
  p.target.CurrentY = 10;
  p.target.Print("I");
  const QRectF ink = p.Ink();
  EXPECT_EQ(p.At(ink.center().x(), ink.center().y()), QColor(128, 0, 0));
}

TEST(PainterTarget, AnSvgKeepsTextAsText) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  {
    QSvgGenerator svg;
    svg.setOutputDevice(&buffer);
    svg.setSize(QSize(200, 100));
    svg.setViewBox(QRect(0, 0, 200, 100));
    QPainter painter(&svg);
    PainterTarget target(painter, 200, 100, QRectF(0, 0, 200, 100), Palette::Light());
    target.Print("L = 5.000 m");
    target.FontBold = true;
    target.Print("0.59");
  }
  const QString xml = QString::fromUtf8(buffer.data());
  EXPECT_TRUE(xml.contains(">L = 5.000 m<"));
  EXPECT_TRUE(xml.contains(">0.59<"));
  EXPECT_TRUE(xml.contains("Liberation Sans"));
}

}  // namespace
}  // namespace korvane

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
