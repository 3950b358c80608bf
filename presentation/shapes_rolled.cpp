// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "presentation/section_shapes.h"

namespace korvane::shapes {

double DrawnRadius(double r, double thickness, double drawn, double room) {
  if (drawn <= thickness) return r;
  return std::min(r * drawn / thickness, std::max(r, 0.8 * room));
}

void Add(SectionShape& s, const char* letter, Point a, Point b, DimensionSide side) {
  if (a == b) return;
  s.dimensions.push_back({letter, a, b, side});
}

void AddHeight(SectionShape& s, const char* letter, double from, double to) {
  Add(s, letter, {0, from}, {0, to}, DimensionSide::Left);
}

void AddFlange(SectionShape& s, const char* letter, double x, double from, double to) {
  Add(s, letter, {x, from}, {x, to}, DimensionSide::Right);
}

void AddWeb(SectionShape& s, const char* letter, double x, double t, double y) {
  Add(s, letter, {x, y}, {x + t, y}, DimensionSide::Inside);
}

/// A flange as it is drawn: the thickness of its tip in shares of tf, and where from the tip the
/// catalogue measures tf, in shares of b.
struct Flange {
  double tip = 1, measured = 0;
};
constexpr Flange kTaperedI{kTipShare, 0.25};
constexpr Flange kTaperedChannel{kTipShare, 0.5};

static FlangedSizes DrawnFlanges(const Source& s, double r, const Flange& flange, double flanges) {
  const SectionRecord& rec = s.rec;
  const Walls wall(s, std::max<double>(rec.h, rec.b));
  FlangedSizes d{rec.h, rec.b, wall(rec.tw, rec.b / 4), wall(rec.tf, rec.h / 6), r, 0};
  const double room = std::min((d.b - d.tw) / flanges, d.h / 2 - d.tf);
  d.r = DrawnRadius(r, rec.tf, d.tf, room);
  d.tip = flange.tip * d.tf;
  return d;
}

/// Thickest where the root's radius begins: tf is that of the place where it is measured.
static FlangedSizes Tapered(FlangedSizes d, const Flange& flange, double flanges) {
  const double root = (d.b - d.tw) / flanges - d.r;
  const double measured = flange.measured * d.b;
  if (measured > 0 && root > 0) d.tf = d.tip + (d.tf - d.tip) * root / measured;
  return d;
}

/// tf at the tip of a parallel flange, else where it is measured.
static void AddFlangeOf(SectionShape& shape, const FlangedSizes& d, const Flange& flange) {
  if (flange.measured == 0) return AddFlange(shape, "tf", d.b, d.h - d.tf, d.h);
  const double x = d.b * (1 - flange.measured);
  Add(shape, "tf", {x, d.h - d.tf}, {x, d.h}, DimensionSide::Inside);
}

static SectionShape ISection(const Source& s, double r, const Flange& flange) {
  const FlangedSizes d = DrawnFlanges(s, r, flange, 2);
  SectionShape shape;
  shape.polygons = {IOutline(Tapered(d, flange, 2), s.steps)};
  shape.H = d.h;
  shape.W = d.b;
  shape.yAxis = d.h / 2;
  shape.zAxis = d.b / 2;
  Add(shape, "b", {0, 0}, {d.b, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, d.h);
  AddWeb(shape, "tw", (d.b - d.tw) / 2, d.tw, 0.28 * d.h);
  AddFlangeOf(shape, d, flange);
  return shape;
}

SectionShape RolledI(const Source& s) {
  return ISection(s, s.rec.r, {});
}
SectionShape TaperedI(const Source& s) {
  return ISection(s, s.rec.r, kTaperedI);
}
SectionShape WeldedI(const Source& s) {
  return ISection(s, 0, {});
}

static SectionShape Channel(const Source& s, double r, const Flange& flange) {
  const FlangedSizes d = DrawnFlanges(s, r, flange, 1);
  SectionShape shape;
  shape.polygons = {ChannelOutline(Tapered(d, flange, 1), s.steps)};
  shape.H = d.h;
  shape.W = d.b;
  shape.yAxis = d.h / 2;
  shape.zAxis = s.rec.e;
  Add(shape, "b", {0, 0}, {d.b, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, d.h);
  AddWeb(shape, "tw", 0, d.tw, 0.28 * d.h);
  AddFlangeOf(shape, d, flange);
  return shape;
}

SectionShape ParallelChannel(const Source& s) {
  return Channel(s, s.rec.r, {});
}
SectionShape TaperedChannel(const Source& s) {
  return Channel(s, s.rec.r1, kTaperedChannel);
}

SectionShape Hollow(const Source& s) {
  const SectionRecord& rec = s.rec;
  const double h = rec.h, b = rec.b;
  const Walls wall(s, std::max(h, b));
  const double t = wall(rec.tw, std::min(h, b) / 5);
  const double r = DrawnRadius(rec.r, rec.tw, t, 0.3 * std::min(h, b));
  const double rin = std::max(0., r - t);
  SectionShape shape;
  shape.polygons = {RoundedBox(0, 0, b, h, r, s.steps),
                    RoundedBox(t, t, b - 2 * t, h - 2 * t, rin, s.steps)};
  shape.H = h;
  shape.W = b;
  shape.yAxis = h / 2;
  shape.zAxis = b / 2;
  Add(shape, "b", {0, 0}, {b, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, h);
  AddFlange(shape, "t", b, h - t, h);
  return shape;
}

SectionShape Angle(const Source& s) {
  const SectionRecord& rec = s.rec;
  const double h = rec.h, b = rec.b;
  const Walls wall(s, std::max(h, b));
  const double t = wall(rec.tw, std::min(h, b) / 5);
  const double r = DrawnRadius(rec.r, rec.tw, t, std::min(h, b) / 3);
  SectionShape shape;
  shape.polygons = {AngleOutline(h, b, t, r, s.steps)};
  shape.H = h;
  shape.W = b;
  shape.yAxis = rec.ez;
  shape.zAxis = rec.ey;
  shape.principal = true;
  shape.alfa = rec.alfadeg;
  Add(shape, "b", {0, 0}, {b, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, h);
  AddFlange(shape, "t", b, 0, t);
  return shape;
}

}  // namespace korvane::shapes
