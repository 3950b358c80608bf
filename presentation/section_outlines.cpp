// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/section_outlines.h"

#include <cmath>

#include "core/numeric.h"

namespace korvane {

namespace {

// A rounded corner from one point to another; the two lines to the corner are square.
void Round(Outline& o, Point from, Point corner, Point to, ArcSteps steps) {
  o.push_back(from);
  if (steps == 1) {
    constexpr double kShare = 0.3;
    o.push_back({corner.x + kShare * (from.x + to.x - 2 * corner.x),
                 corner.y + kShare * (from.y + to.y - 2 * corner.y)});
  } else {
    const Point c{from.x + to.x - corner.x, from.y + to.y - corner.y};
    for (int i = 1; i <= steps; ++i) {
      const double angle = kPi / 2 * i / (steps + 1);
      const double u = std::cos(angle);
      const double v = std::sin(angle);
      o.push_back({c.x + u * (from.x - c.x) + v * (to.x - c.x),
                   c.y + u * (from.y - c.y) + v * (to.y - c.y)});
    }
  }
  o.push_back(to);
}

}  // namespace

Outline IOutline(const FlangedSizes& s, ArcSteps steps) {
  const double h = s.h, b = s.b, tf = s.tf, r = s.r;
  const double p = b / 2 + s.tw / 2;
  const double q = b / 2 - s.tw / 2;
  Outline o = {{0, 0}, {b, 0}, {b, s.tip}};
  Round(o, {p + r, tf}, {p, tf}, {p, tf + r}, steps);
  Round(o, {p, h - tf - r}, {p, h - tf}, {p + r, h - tf}, steps);
  o.insert(o.end(), {{b, h - s.tip}, {b, h}, {0, h}, {0, h - s.tip}});
  Round(o, {q - r, h - tf}, {q, h - tf}, {q, h - tf - r}, steps);
  Round(o, {q, tf + r}, {q, tf}, {q - r, tf}, steps);
  o.insert(o.end(), {{0, s.tip}, {0, 0}});
  return o;
}

Outline ChannelOutline(const FlangedSizes& s, ArcSteps steps) {
  const double h = s.h, b = s.b, tw = s.tw, tf = s.tf, r = s.r;
  Outline o = {{0, 0}, {b, 0}, {b, s.tip}};
  Round(o, {tw + r, tf}, {tw, tf}, {tw, tf + r}, steps);
  Round(o, {tw, h - tf - r}, {tw, h - tf}, {tw + r, h - tf}, steps);
  o.insert(o.end(), {{b, h - s.tip}, {b, h}, {0, h}, {0, 0}});
  return o;
}

Outline AngleOutline(double h, double b, double t, double r, ArcSteps steps) {
  Outline o = {{0, 0}, {b, 0}, {b, t}};
  Round(o, {t + r, t}, {t, t}, {t, t + r}, steps);
  o.insert(o.end(), {{t, h}, {0, h}, {0, 0}});
  return o;
}

Outline RoundedBox(double x, double y, double b, double h, double r, ArcSteps steps) {
  const double right = x + b;
  const double top = y + h;
  Outline o;
  Round(o, {right - r, y}, {right, y}, {right, y + r}, steps);
  Round(o, {right, top - r}, {right, top}, {right - r, top}, steps);
  Round(o, {x + r, top}, {x, top}, {x, top - r}, steps);
  Round(o, {x, y + r}, {x, y}, {x + r, y}, steps);
  o.push_back(o.front());
  return o;
}

Outline RectangleOutline(double w, double t, double x0, double y0) {
  return {{x0, y0}, {x0 + w, y0}, {x0 + w, y0 + t}, {x0, y0 + t}, {x0, y0}};
}

Outline LegOutline(const LegSizes& s, ArcSteps steps) {
  const double right = s.x0 + s.b;
  const double face = s.x0 + s.tw;
  Outline o = {{s.x0, 0}, {right, 0}};
  Round(o, {right, s.tf - s.r2}, {right, s.tf}, {right - s.r2, s.tf}, steps);
  Round(o, {face + s.r1, s.tf}, {face, s.tf}, {face, s.tf + s.r1}, steps);
  o.insert(o.end(), {{face, s.h}, {s.x0, s.h}, {s.x0, 0}});
  return o;
}

Outline BulbOutline(double h, double tw, double over, double area, double x0) {
  // The nose is a half circle of radius r, the bulb's upper side a slope of 30 degrees. Its
  // width beside the web is over + 0.45*r; r follows from the area.
  const double slope = std::tan(kPi / 6);
  const double a = kPi / 2 - 1.1 + 0.55 * 0.55 * slope / 2;
  const double b = 2 * over - 0.55 * slope * over;
  const double c = slope / 2 * over * over - area;
  const double root = std::max(0., b * b - 4 * a * c);
  const double r = std::clamp((-b + std::sqrt(root)) / (2 * a), 0., over / 0.6);
  const double face = x0 + tw;
  const double flat = std::max(0., over - 0.55 * r);
  Outline outline = {{x0, 0}, {face + flat, 0}};
  constexpr int kSteps = 12;
  for (int i = 1; i <= kSteps; ++i) {
    const double angle = kPi * i / kSteps - kPi / 2;
    outline.push_back({face + flat + r * std::cos(angle), r + r * std::sin(angle)});
  }
  outline.push_back({face, std::min(h, 2 * r + flat * slope)});
  outline.push_back({face, h});
  outline.push_back({x0, h});
  outline.push_back({x0, 0});
  return outline;
}

Outline CircleOutline(Point centre, double radius) {
  constexpr int kSteps = 72;
  Outline outline;
  for (int i = 0; i <= kSteps; ++i) {
    const double angle = 2 * kPi * i / kSteps;
    outline.push_back({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
  }
  return outline;
}

}  // namespace korvane
