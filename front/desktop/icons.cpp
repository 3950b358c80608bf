// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/icons.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "front/desktop/theme.h"

namespace korvane {

namespace {

// All pictures are drawn in a field of 40 by 28 units.
constexpr double kWide = 40, kHigh = 28;

/// Pens and shapes of the pictures.
class Sketch {
public:
  Sketch(QPainter& painter, const QPalette& palette, bool enabled) : p_(painter) {
    const auto group = enabled ? QPalette::Active : QPalette::Disabled;
    ink_ = palette.color(group, QPalette::ButtonText);
    accent_ = enabled ? ColourFor(Role::Accent, palette) : ink_;
  }
  void Thin() { Pen(ink_, 1.3); }
  void Bold() { Pen(ink_, 2.4); }
  void Accent() { Pen(accent_, 1.7); }
  void Line(double x1, double y1, double x2, double y2) {
    p_.drawLine(QPointF(x1, y1), QPointF(x2, y2));
  }
  void Path(const QPainterPath& path) { p_.drawPath(path); }
  void Text(const QRectF& box, const QString& text) {
    QFont font = p_.font();
    font.setPixelSize(9);
    font.setBold(true);
    p_.setFont(font);
    p_.drawText(box, Qt::AlignCenter, text);
  }
  void Pinned(double x, double y) {
    Thin();
    p_.drawPolygon(QPolygonF({{x, y}, {x - 4, y + 6.5}, {x + 4, y + 6.5}}));
    Line(x - 5.5, y + 8.6, x + 5.5, y + 8.6);
  }
  /// A wall with hatches towards its side (-1 left, 1 right).
  void Wall(double x, double y, int side, double half = 7) {
    Bold();
    Line(x, y - half, x, y + half);
    Thin();
    for (double dy = -half + 3; dy <= half; dy += 3.6)
      Line(x, y + dy, x + side * 3.2, y + dy - 2.6);
  }
  /// A turning spring between the member's end and its support.
  void Spring(double x, double y) {
    Accent();
    QPainterPath path;
    for (double t = 0; t < 3.2 * M_PI; t += 0.2) {
      const double r = 0.6 + 0.48 * t;
      const QPointF at(x + r * std::cos(t), y + r * std::sin(t));
      if (t == 0) {
        path.moveTo(at);
      } else {
        path.lineTo(at);
      }
    }
    Path(path);
    Thin();
    Line(x - 5.5, y + 8.6, x + 5.5, y + 8.6);
    Line(x, y + 5.3, x, y + 8.6);
  }
  /// An upright I section.
  void Section(double x, double y, double half = 8, double flange = 6) {
    Bold();
    Line(x - flange, y - half, x + flange, y - half);
    Line(x - flange, y + half, x + flange, y + half);
    Line(x, y - half, x, y + half);
  }
  void Arrow(double x, double y1, double y2) {
    Accent();
    Line(x, y1, x, y2);
    Line(x, y2, x - 2.4, y2 - 3.4);
    Line(x, y2, x + 2.4, y2 - 3.4);
  }

private:
  void Pen(const QColor& colour, double width) {
    p_.setPen(QPen(colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p_.setBrush(Qt::NoBrush);
  }
  QPainter& p_;
  QColor ink_, accent_;
};

// --- Supports: left and right end ---------------------------------------------------------------

enum class End { Pinned, Fixed, Spring, Free };

struct Ends {
  End left, right;
};
constexpr Ends kSupports[] = {{End::Pinned, End::Pinned}, {End::Pinned, End::Fixed},
                              {End::Fixed, End::Fixed},   {End::Spring, End::Spring},
                              {End::Fixed, End::Free},    {End::Pinned, End::Spring}};

void DrawEnd(Sketch& s, End end, double x, int side) {
  constexpr double y = 11;
  if (end == End::Pinned) s.Pinned(x, y + 1);
  if (end == End::Fixed) s.Wall(x, y, side);
  if (end == End::Spring) s.Spring(x, y + 3);
}

void DrawSupport(Sketch& s, int code) {
  const Ends& ends = kSupports[code];
  const double left = ends.left == End::Fixed ? 5 : 7;
  const double right = ends.right == End::Fixed ? 35 : 33;
  DrawEnd(s, ends.left, left, -1);
  DrawEnd(s, ends.right, right, 1);
  s.Bold();
  s.Line(left, 11, right, 11);
}

// --- End conditions of buckling -----------------------------------------------------------------

/// Deflected shape of a case along the length 0 to 1, at most 1.
double Buckled(int bucklingCase, double t) {
  switch (bucklingCase) {
    case 1:
      return 1 - std::cos(M_PI * t / 2);
    case 2:
      return std::sin(M_PI * t);
    case 3:
      // Fixed at 0, pinned at 1: tan(u) = u.
      return (std::sin(4.4934 * t) - 4.4934 * (t + (std::cos(4.4934 * t) - 1))) / 6.3;
    case 4:
      return (1 - std::cos(2 * M_PI * t)) / 2;
    default:
      return 0;
  }
}

void DrawBuckling(Sketch& s, int bucklingCase) {
  if (bucklingCase > 5) {  // typed
    s.Bold();
    s.Line(6, 14, 34, 14);
    s.Accent();
    s.Text({0, 0, kWide, 12}, QStringLiteral("k = ?"));
    return;
  }
  const double y = 15;
  const bool straight = bucklingCase == 5;
  s.Thin();
  for (double x = 7; x < 33; x += 4) s.Line(x, y, x + 1.8, y);
  QPainterPath shape;
  for (int i = 0; i <= 40; ++i) {
    const double t = i / 40.0;
    const QPointF at(6 + 28 * t, y - 10 * Buckled(bucklingCase, t));
    if (i == 0) {
      shape.moveTo(at);
    } else {
      shape.lineTo(at);
    }
  }
  if (straight) {
    s.Bold();
    s.Line(6, y, 34, y);
    s.Accent();
    for (const double x : {12.0, 20.0, 28.0}) {
      s.Line(x - 3, y - 6, x + 3, y + 6);
      s.Line(x - 3, y + 6, x + 3, y - 6);
    }
    return;
  }
  s.Accent();
  s.Path(shape);
  if (bucklingCase == 2) {
    s.Pinned(6, y);
    s.Pinned(34, y);
  } else {
    s.Wall(6, y, -1);
  }
  if (bucklingCase == 3) s.Pinned(34, y);
  if (bucklingCase == 4) s.Wall(34, y, 1);
}

// --- Load levels --------------------------------------------------------------------------------

void DrawLoadLevel(Sketch& s, int level) {
  s.Section(20, 18, 8, 7);
  const double tips[] = {0, 9, 17, 25.5};
  if (level == 4) {
    s.Arrow(12, 1, 9);
    s.Text({22, 0, 18, 10}, QStringLiteral("Za"));
    return;
  }
  if (level >= 1 && level <= 3) s.Arrow(20, tips[level] - 9, tips[level]);
}

// --- Other buttons ------------------------------------------------------------------------------

void DrawStiffener(Sketch& s, int) {
  s.Bold();
  s.Line(3, 5, 37, 5);
  s.Line(3, 21, 37, 21);
  s.Accent();
  for (const double x : {7.0, 20.0, 33.0}) s.Line(x, 6.5, x, 19.5);
  s.Thin();
  s.Line(3, 5, 3, 21);
  s.Line(37, 5, 37, 21);
}

void DrawTwist(QPainter& painter, Sketch& s) {
  painter.save();
  painter.setOpacity(painter.opacity() * 0.4);
  s.Section(14, 14, 9, 6);
  painter.restore();
  painter.save();
  painter.translate(24, 15);
  painter.rotate(18);
  s.Section(0, 0, 9, 6);
  painter.restore();
}

void DrawTurn(Sketch& s) {
  s.Bold();
  QPainterPath box;
  box.addRoundedRect(QRectF(5, 5, 11, 18), 2, 2);
  box.addRoundedRect(QRectF(23, 12, 15, 11), 2, 2);
  s.Path(box);
  s.Accent();
  QPainterPath arc;
  arc.moveTo(18, 6);
  arc.quadTo(27, 2, 30, 9);
  s.Path(arc);
  s.Line(30, 9, 26.5, 7.5);
  s.Line(30, 9, 31.6, 5.4);
}

class PictureEngine : public QIconEngine {
public:
  PictureEngine(const Sign& sign, const ProjectState& st) : sign_(sign), st_(st) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    const double scale = std::min(rect.width() / kWide, rect.height() / kHigh);
    painter->translate(QRectF(rect).center());
    painter->scale(scale, scale);
    painter->translate(-kWide / 2, -kHigh / 2);
    Sketch sketch(*painter, QApplication::palette(), mode != QIcon::Disabled);
    const int code = sign_.follows != nullptr ? int(st_.*sign_.follows) : sign_.code;
    switch (sign_.what) {
      case Sign::Support:
        DrawSupport(sketch, code);
        break;
      case Sign::EndCondition:
        DrawBuckling(sketch, code);
        break;
      case Sign::LoadLevel:
        DrawLoadLevel(sketch, code);
        break;
      case Sign::Stiffener:
        DrawStiffener(sketch, code);
        break;
      case Sign::Twist:
        DrawTwist(*painter, sketch);
        break;
      case Sign::Turn:
        DrawTurn(sketch);
        break;
      case Sign::None:
        break;
    }
    painter->restore();
  }

  /// Drawn anew for each size and ratio, so that no copy grows blurred.
  QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state,
                       qreal scale) override {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(0, 0), size), mode, state);
    Q_UNUSED(scale);
    return pixmap;
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return scaledPixmap(size, mode, state, 1);
  }
  QIconEngine* clone() const override { return new PictureEngine(sign_, st_); }

private:
  Sign sign_;
  const ProjectState& st_;
};

}  // namespace

QIcon PictureOf(const Sign& sign, const ProjectState& st) {
  return sign.what == Sign::None ? QIcon() : QIcon(new PictureEngine(sign, st));
}

}  // namespace korvane
