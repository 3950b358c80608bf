// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/diagram_sheet.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"
#include "presentation/symbols.h"

namespace korvane {
namespace {

constexpr double kThin = 0.1;
constexpr double kCurveWidth = 0.26;
constexpr double kAreaOpacity = 0.16;
constexpr double kLeastRoom = 2.4;  // holds the plus of the positive side

// Relative position of an extreme: the middle of the stations that have it, or the point
// between the stations that comes nearest.
double PositionOf(const Curve& curve, double value) {
  constexpr int last = StationValues::kLast;
  int first = -1, end = -1;
  for (int i = 0; i <= last; ++i) {
    if (curve.values[i] != value) {
      if (first >= 0) break;
      continue;
    }
    if (first < 0) first = i;
    end = i;
  }
  if (first >= 0) return (first + end) / 2.0 / last;
  double best = 0;
  double least = -1;
  for (const Point& p : curve.between) {
    const double off = std::fabs(p.y - value);
    if (least < 0 || off < least) {
      least = off;
      best = p.x;
    }
  }
  return best;
}

double GreatestOf(double max, double min) {
  return std::max(std::fabs(max), std::fabs(min));
}

void DrawExtreme(DiagramSheet& sheet, const Curve& curve, double value, double axis) {
  DrawingTarget& t = sheet.Target();
  const double ordinate = Ordinate(value, GreatestOf(curve.max, curve.min), curve.scale);
  const Point p{sheet.X(PositionOf(curve, value)), axis - ordinate};
  sheet.Pen(curve.colour, kThin);
  t.Line({p.x, axis}, p);
  t.FillColor = curve.colour;
  t.FillOpacity = 1;
  t.Circle(p, 0.42, Paint::Filled);
  sheet.Pen(Role::Ink, kThin);
  sheet.Labels().Place(
      {{{DiagramNumber(value)}}, p, ordinate >= 0 ? Side::Above : Side::Below, sheet.Gap(), true});
}

// A small plus on the side of the positive values, at the left of the axis.
void MarkPositiveSide(DiagramSheet& sheet, const Curve& curve, double axis) {
  DrawingTarget& t = sheet.Target();
  const double up = curve.scale > 0 ? -1 : 1;
  const Point c = Beside(t, {sheet.X(0), axis}, -2.4, 1.5 * up);
  sheet.Pen(Role::Quiet, 0.16);
  t.Line(Beside(t, c, -0.6, 0), Beside(t, c, 0.6, 0));
  t.Line(Beside(t, c, 0, -0.6), Beside(t, c, 0, 0.6));
  const Point low = Beside(t, c, -0.8, -0.8);
  const Point high = Beside(t, c, 0.8, 0.8);
  sheet.Labels().Keep({low.x, low.y, high.x, high.y});
}

std::vector<Point> CurvePoints(const DiagramSheet& sheet, const Curve& curve, double axis) {
  const double greatest = GreatestOf(curve.max, curve.min);
  std::vector<Point> points;
  for (int i = 0; i <= StationValues::kLast; ++i) {
    points.push_back({sheet.X(static_cast<double>(i) / StationValues::kLast),
                      axis - Ordinate(curve.values[i], greatest, curve.scale)});
  }
  return points;
}

void DrawArea(DiagramSheet& sheet, const Curve& curve, const std::vector<Point>& points,
              double axis) {
  DrawingTarget& t = sheet.Target();
  std::vector<Point> area = points;
  area.push_back({points.back().x, axis});
  area.push_back({points.front().x, axis});
  t.FillColor = curve.colour;
  t.FillOpacity = kAreaOpacity;
  t.Polygon(area, Paint::Filled);
}

}  // namespace

DiagramSheet::DiagramSheet(DrawingTarget& target, const DiagramOrigin& origin,
                           const DiagramStyle& style, double height)
    : target_(target),
      before_(target),
      bounds_(Box::At(origin.x, origin.y, kPictureWidth, height)),
      labels_(target, bounds_),
      pen_(style.pen),
      gap_(LabelGap(style)) {
  if (origin.destination == Destination::Picture) target_.Clear();
  target_.FontName = "Arial";
  target_.FontBold = target_.FontUnderline = false;
  target_.SetTextUnits(style.text);
  target_.LineDash = Dash::Solid;
  Pen(Role::Ink, kThin);
}

DiagramSheet::~DiagramSheet() {
  static_cast<DrawingState&>(target_) = before_;
}

Box DiagramSheet::Title(const std::string& text, double y) {
  const double size = target_.FontSize;
  target_.FontBold = true;
  target_.FontSize *= std::min(1.0, bounds_.Width() / target_.TextWidth(text));
  target_.FontBold = false;
  const Box title = labels_.Fix({{text, Role::Ink, true}}, {bounds_.left, y});
  target_.FontSize = size;
  return title;
}

void DiagramSheet::Axis(double y) {
  constexpr double kTick = 0.7;
  Pen(Role::Ink, 0.16);
  target_.Line({X(0), y}, {X(1), y});
  for (const double end : {0., 1.}) target_.Line({X(end), y - kTick}, {X(end), y + kTick});
  labels_.Avoid({X(0), y}, {X(1), y});
}

void DiagramSheet::Pen(Role colour, double width) {
  target_.ForeColor = colour;
  target_.SetLineUnits(width * pen_);
}

std::string DiagramNumber(double value) {
  return Format(value, std::fabs(value) < 1E12 ? "#0.0" : "0.000E+0");
}

double Ordinate(double value, double greatest, double scale) {
  return greatest == 0 ? 0 : value * scale / greatest;
}

CurveRoom RoomOf(double max, double min, double scale, const DiagramStyle& style) {
  const double greatest = GreatestOf(max, min);
  const double a = Ordinate(max, greatest, scale);
  const double b = Ordinate(min, greatest, scale);
  const double up = std::max({0., a, b});
  const double down = std::max({0., -a, -b});
  const auto room = [&](double side) {
    return side > 0 ? side + LabelGap(style) + LineOf(style) : kLeastRoom;
  };
  return {room(up), room(down)};
}

void DrawCurve(DiagramSheet& sheet, const Curve& curve, double axis) {
  DrawingTarget& t = sheet.Target();
  const std::vector<Point> points = CurvePoints(sheet, curve, axis);
  const bool flat = GreatestOf(curve.max, curve.min) == 0;
  if (!flat) DrawArea(sheet, curve, points, axis);
  sheet.Axis(axis);
  sheet.Pen(curve.colour, kCurveWidth);
  t.Polyline(points);
  t.Line({points.front().x, axis}, points.front());
  t.Line({points.back().x, axis}, points.back());
  sheet.Labels().Avoid(points);
  if (flat) return;
  MarkPositiveSide(sheet, curve, axis);
  for (const double zero : curve.zeros) {
    t.FillColor = Role::Paper;
    t.FillOpacity = 1;
    sheet.Pen(curve.colour, kThin * 1.5);
    t.Circle({sheet.X(zero), axis}, 0.45, Paint::Both);
  }
  // The greater one is labelled first: it has the better place.
  const bool maxFirst = std::fabs(curve.min) < curve.max;
  const double first = maxFirst ? curve.max : curve.min;
  const double second = maxFirst ? curve.min : curve.max;
  if (first != 0) DrawExtreme(sheet, curve, first, axis);
  if (second != 0 && second != first) DrawExtreme(sheet, curve, second, axis);
}

}  // namespace korvane
