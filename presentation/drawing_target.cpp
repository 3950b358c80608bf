// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/drawing_target.h"

#include <cmath>

#include "checks/check_line.h"
#include "core/numeric.h"
#include "presentation/text_metrics.h"

namespace korvane {

Palette Palette::Light() {
  return {{{{0, 0, 0},
            {110, 116, 124},
            {22, 92, 158},
            {176, 88, 16},
            {0, 128, 0},
            {128, 0, 0},
            {150, 164, 182},
            {255, 255, 255}}}};
}

Palette Palette::Dark() {
  return {{{{232, 234, 237},
            {150, 156, 166},
            {110, 176, 240},
            {240, 166, 92},
            {104, 205, 116},
            {255, 118, 110},
            {112, 128, 150},
            {30, 33, 38}}}};
}

Role RoleOfIndex(int paletteIndex) {
  if (paletteIndex == kGreen) return Role::Pass;
  return paletteIndex == kRed ? Role::Fail : Role::Ink;
}

void DrawingTarget::Print(std::string_view text) {
  if (text.empty()) return;
  const TextStyle style{FontName, FontSize, FontBold, FontUnderline, ForeColor};
  const double width = ArialWidth(text, FontBold) * FontSize;
  OnText(ToPage({CurrentX, CurrentY}), std::string(text), width, style);
  CurrentX += width / frame_.sx;
}

double DrawingTarget::TextWidth(std::string_view text) const {
  return ArialWidth(text, FontBold) * FontSize / frame_.sx;
}

double DrawingTarget::TextHeight() const {
  return kArialLine * FontSize / frame_.sy;
}

void DrawingTarget::Line(Point a, Point b) {
  OnPath({{ToPage(a), ToPage(b)}}, false, CurrentStroke(Paint::Outline), {});
}

void DrawingTarget::Polyline(std::span<const Point> points) {
  OnPath({Mapped(points)}, false, CurrentStroke(Paint::Outline), {});
}

void DrawingTarget::Polygon(std::span<const Point> points, Paint paint) {
  OnPath({Mapped(points)}, true, CurrentStroke(paint), CurrentFill(paint));
}

void DrawingTarget::Area(std::span<const std::vector<Point>> outlines, Paint paint) {
  std::vector<std::vector<Point>> mapped;
  mapped.reserve(outlines.size());
  for (const std::vector<Point>& outline : outlines) mapped.push_back(Mapped(outline));
  OnPath(mapped, true, CurrentStroke(paint), CurrentFill(paint));
}

void DrawingTarget::Circle(Point centre, double radius, Paint paint) {
  const double r = radius * frame_.sy;
  OnEllipse(ToPage(centre), r, r, CurrentStroke(paint), CurrentFill(paint));
}

void DrawingTarget::Arc(Point centre, double radius, double start, double sweep) {
  OnArc(ToPage(centre), radius * frame_.sy, start, sweep, CurrentStroke(Paint::Outline));
}

void DrawingTarget::PushFrame(const Box& place, const Box& window) {
  if (window.Width() == 0 || window.Height() == 0) {
    throw ArithmeticFault("division by zero");
  }
  saved_.emplace_back(frame_, static_cast<const DrawingState&>(*this));
  const Point corner = ToPage({place.left, place.top});
  Frame inner;
  inner.sx = frame_.sx * place.Width() / window.Width();
  inner.sy = frame_.sy * place.Height() / window.Height();
  inner.x0 = corner.x - window.left * inner.sx;
  inner.y0 = corner.y - window.top * inner.sy;
  frame_ = inner;
}

void DrawingTarget::PopFrame() {
  if (saved_.empty()) return;
  frame_ = saved_.back().first;
  static_cast<DrawingState&>(*this) = saved_.back().second;
  saved_.pop_back();
}

Box DrawingTarget::FitInside(const Box& place, double width, double height) const {
  if (width <= 0 || height <= 0) return place;
  const double scale =
      std::min(place.Width() * frame_.sx / width, place.Height() * frame_.sy / height);
  const double w = width * scale / frame_.sx;
  const double h = height * scale / frame_.sy;
  return Box::At(place.left + (place.Width() - w) / 2, place.top + (place.Height() - h) / 2, w, h);
}

Stroke DrawingTarget::CurrentStroke(Paint paint) const {
  return {paint == Paint::Filled ? 0 : LineWidth, LineDash, ForeColor};
}

Fill DrawingTarget::CurrentFill(Paint paint) const {
  return {FillColor, paint == Paint::Outline ? 0 : FillOpacity};
}

std::vector<Point> DrawingTarget::Mapped(std::span<const Point> points) const {
  std::vector<Point> mapped;
  mapped.reserve(points.size());
  for (const Point& p : points) mapped.push_back(ToPage(p));
  return mapped;
}

}  // namespace korvane
