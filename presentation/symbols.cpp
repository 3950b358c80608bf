// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/symbols.h"

#include <cmath>
#include <vector>

#include "core/numeric.h"
#include "core/supports.h"

namespace korvane {
namespace {

// Strokes side by side along a way from a point.
void Hatch(DrawingTarget& t, Point from, Point way, Point stroke) {
  constexpr int strokes = 6;
  for (int i = 0; i < strokes; ++i) {
    const double f = (i + 0.5) / strokes;
    const Point p = Beside(t, from, way.x * f, way.y * f);
    t.Line(p, Beside(t, p, stroke.x, stroke.y));
  }
}

void DrawPinned(DrawingTarget& t, Point p, double size) {
  const double half = size * 0.55;
  const Point left = Beside(t, p, -half, size * 0.8);
  const Point right = Beside(t, p, half, size * 0.8);
  const Point corners[] = {p, right, left};
  const Role before = t.FillColor;
  t.FillColor = Role::Paper;
  t.Polygon(corners, Paint::Both);
  t.FillColor = before;
  const Point ground = Beside(t, p, -half * 1.35, size * 0.8);
  t.Line(ground, Beside(t, p, half * 1.35, size * 0.8));
  Hatch(t, ground, {half * 2.7, 0}, {-size * 0.16, size * 0.2});
}

// outward: -1 at the left end, 1 at the right end.
void DrawFixed(DrawingTarget& t, Point p, double member, double size, int outward) {
  const double half = member + size * 0.6;
  const Point top = Beside(t, p, 0, -half);
  const double width = t.LineWidth;
  t.LineWidth = width * 2;
  t.Line(top, Beside(t, p, 0, half));
  t.LineWidth = width;
  Hatch(t, top, {0, 2 * half}, {outward * size * 0.25, size * 0.18});
}

// A pinned support with the spiral of a rotational spring round the node.
void DrawSpring(DrawingTarget& t, Point p, double member, double size, int outward) {
  DrawPinned(t, Beside(t, p, 0, member), size);
  std::vector<Point> spiral;
  constexpr int kSteps = 56;
  for (int i = 0; i <= kSteps; ++i) {
    const double f = static_cast<double>(i) / kSteps;
    const double angle = (0.5 + 3.75 * f) * kPi;
    const double r = size * (0.12 + 0.4 * f);
    spiral.push_back(Beside(t, p, outward * r * std::cos(angle), -r * std::sin(angle)));
  }
  t.Polyline(spiral);
  // Its outer end is held.
  const Point end = spiral.back();
  t.Line(Beside(t, end, -size * 0.22, 0), Beside(t, end, size * 0.22, 0));
}

void DrawEnd(DrawingTarget& t, MemberEnd end, Point p, double member, double size, int outward) {
  switch (end) {
    case MemberEnd::Pinned:
      return DrawPinned(t, Beside(t, p, 0, member), size);
    case MemberEnd::Fixed:
      return DrawFixed(t, p, member, size, outward);
    case MemberEnd::Spring:
      return DrawSpring(t, p, member, size, outward);
    case MemberEnd::Free:
      return;
  }
}

}  // namespace

Point Beside(const DrawingTarget& target, Point p, double dx, double dy) {
  return {p.x + target.Across(dx), p.y + dy};
}

void DrawArrowHead(DrawingTarget& target, Point tip, double dx, double dy, double size) {
  // Directions are compared as they look on the page.
  const double px = dx / target.Across(1);
  const double length = std::hypot(px, dy);
  if (length == 0) return;
  const double ux = px / length;
  const double uy = dy / length;
  const double half = size * 0.3;
  const Point corners[] = {tip, Beside(target, tip, -ux * size - uy * half, -uy * size + ux * half),
                           Beside(target, tip, -ux * size + uy * half, -uy * size - ux * half)};
  const DrawingState before = target;
  target.FillColor = target.ForeColor;
  target.FillOpacity = 1;
  target.Polygon(corners, Paint::Filled);
  target.FillColor = before.FillColor;
  target.FillOpacity = before.FillOpacity;
}

void DrawArrow(DrawingTarget& target, Point tail, Point tip, double head) {
  const double dx = tip.x - tail.x;
  const double dy = tip.y - tail.y;
  const double length = std::hypot(dx / target.Across(1), dy);
  if (length == 0) return;
  // The line ends inside the head, so that the tip stays sharp.
  const double f = std::max(0., 1 - 0.8 * head / length);
  target.Line(tail, {tail.x + f * dx, tail.y + f * dy});
  DrawArrowHead(target, tip, dx, dy, std::min(head, length));
}

void DrawMomentArrow(DrawingTarget& target, Point centre, double radius, bool clockwise) {
  // Three quarters of a circle, open towards the member's right or left.
  const double start = clockwise ? 225 : -45;
  const double sweep = clockwise ? -250 : 250;
  target.Arc(centre, radius, start, sweep);
  // The head follows the curve: it points along the chord of its own length.
  const double head = kMomentHead * radius;
  const double turn = head / radius * 180 / kPi * (clockwise ? -1 : 1);
  const auto at = [&](double degrees) {
    const double a = degrees * kPi / 180;
    return Beside(target, centre, radius * std::cos(a), -radius * std::sin(a));
  };
  const Point from = at(start + sweep);
  const Point tip = at(start + sweep + turn);
  DrawArrowHead(target, tip, tip.x - from.x, tip.y - from.y, head);
}

void DrawDimension(DrawingTarget& target, Point a, Point b, double head) {
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double length = std::hypot(dx / target.Across(1), dy);
  if (length == 0) return;
  const double ux = dx / target.Across(1) / length;
  const double uy = dy / length;
  if (length > kOutsideHeads * head) {
    target.Line(a, b);
    DrawArrowHead(target, a, -dx, -dy, head);
    DrawArrowHead(target, b, dx, dy, head);
    return;
  }
  const double tail = kOutsideTail * head;
  target.Line(Beside(target, a, -ux * tail, -uy * tail), a);
  target.Line(b, Beside(target, b, ux * tail, uy * tail));
  DrawArrowHead(target, a, dx, dy, head);
  DrawArrowHead(target, b, -dx, -dy, head);
}

void DrawSupports(DrawingTarget& target, int supportType, Point left, Point right, double half,
                  double size) {
  const Support* support = FindSupport(supportType);
  if (support == nullptr) return;
  DrawEnd(target, support->left, left, half, size, -1);
  DrawEnd(target, support->right, right, half, size, 1);
}

}  // namespace korvane
