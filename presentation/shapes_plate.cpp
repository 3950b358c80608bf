// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "presentation/section_shapes.h"

namespace korvane::shapes {

/// The plate of a plate with stiffener: everything below it is drawn by the family.
struct Plate {
  SectionShape shape;
  double under;  // height of the plate's lower side
  double cx;     // middle of the plate
};

static Plate PlateOf(const Source& s, double width) {
  const SectionRecord& rec = s.rec;
  Plate p;
  p.shape.H = rec.h;
  p.shape.W = width;
  const Walls wall(s, p.shape.Greatest());
  const double b1 = rec.b1;
  const double tf1 = wall(rec.tf1, p.shape.H / 6);
  p.under = p.shape.H - tf1;
  p.cx = width / 2;
  const double left = p.cx - b1 / 2;
  p.shape.polygons = {RectangleOutline(b1, tf1, left, p.under)};
  p.shape.yAxis = p.shape.H - rec.ezel;
  p.shape.zAxis = p.cx;
  Add(p.shape, "b1", {left, p.shape.H}, {left + b1, p.shape.H}, DimensionSide::Above);
  AddHeight(p.shape, "h", 0, p.under);
  AddFlange(p.shape, "tf1", left + b1, p.under, p.shape.H);
  return p;
}

SectionShape PlateFlat(const Source& s) {
  Plate p = PlateOf(s, s.rec.b1);
  const double tw = Walls(s, p.shape.Greatest())(s.rec.tw, p.shape.W / 4);
  p.shape.polygons.push_back(RectangleOutline(tw, p.under, p.cx - tw / 2, 0));
  AddWeb(p.shape, "tw", p.cx - tw / 2, tw, 0.28 * p.shape.H);
  return p.shape;
}

// A leg to the right at the foot of the web, with or without radii.
static SectionShape PlateLeg(const Source& s, bool rolled) {
  const SectionRecord& rec = s.rec;
  Plate p = PlateOf(s, std::max<double>(rec.b1, 2 * rec.b2));
  const Walls wall(s, p.shape.Greatest());
  const double tw = wall(rec.tw, rec.b2 / 3);
  const double tf2 = wall(rec.tf2, p.under / 4);
  const double x0 = p.cx - tw / 2;
  const double r1 = rolled ? double{rec.r1} : 0;
  const double r2 = rolled ? std::min<double>(rec.r2, tf2) : 0;
  p.shape.polygons.push_back(LegOutline({p.under, rec.b2, tw, tf2, r1, r2, x0}, s.steps));
  Add(p.shape, "b2", {x0, 0}, {x0 + rec.b2, 0}, DimensionSide::Below);
  AddWeb(p.shape, "tw", x0, tw, 0.45 * p.shape.H);
  AddFlange(p.shape, "tf2", x0 + rec.b2, 0, tf2);
  return p.shape;
}

SectionShape PlateAngle(const Source& s) {
  return PlateLeg(s, true);
}
SectionShape PlateWeldedAngle(const Source& s) {
  return PlateLeg(s, false);
}

SectionShape PlateBulb(const Source& s) {
  const SectionRecord& rec = s.rec;
  Plate p = PlateOf(s, std::max<double>(rec.b1, 2 * rec.b2));
  const double over = rec.b2 - rec.tw;
  const double tw = Walls(s, p.shape.Greatest())(rec.tw, std::max(over, 0.));
  const double x0 = p.cx - tw / 2;
  p.shape.polygons.push_back(BulbOutline(p.under, tw, over, over * rec.tf2, x0));
  AddWeb(p.shape, "tw", x0, tw, 0.5 * p.shape.H);
  return p.shape;
}

SectionShape PlateTrapeze(const Source& s) {
  const SectionRecord& rec = s.rec;
  const double a = s.st.p55_a, b2 = rec.b2;
  Plate p = PlateOf(s, std::max<double>(rec.b1, b2 + 2 * a));
  const double tw = Walls(s, p.shape.Greatest())(rec.tw, std::min(b2, p.under) / 5);
  const double slope = p.under > 0 ? a / p.under : 0;
  const double ww = tw * std::sqrt(1 + slope * slope);
  const auto wall = [&](double side) {
    // Outer face at y, running outwards to the plate.
    const auto x = [&](double y, double in) { return p.cx + side * (b2 / 2 + slope * y - in); };
    return Outline{{x(tw, 0), tw},
                   {x(p.under, 0), p.under},
                   {x(p.under, ww), p.under},
                   {x(tw, ww), tw},
                   {x(tw, 0), tw}};
  };
  p.shape.polygons.push_back(wall(-1));
  p.shape.polygons.push_back(wall(1));
  const double half = b2 / 2;
  const double upper = half + slope * tw;
  p.shape.polygons.push_back({{p.cx - half, 0},
                              {p.cx + half, 0},
                              {p.cx + upper, tw},
                              {p.cx - upper, tw},
                              {p.cx - half, 0}});
  Add(p.shape, "b2", {p.cx - half, 0}, {p.cx + half, 0}, DimensionSide::Below);
  Add(p.shape, "a", {p.cx + half, 0}, {p.cx + half + a, 0}, DimensionSide::Below);
  // Across the wall, not along the horizontal.
  const double y = 0.5 * p.under;
  const Point face{p.cx - half - slope * y, y};
  const double n = std::sqrt(1 + slope * slope);
  Add(p.shape, "tw", face, {face.x + tw / n, face.y + tw * slope / n}, DimensionSide::Inside);
  return p.shape;
}

SectionShape PlateGirder(const Source& s) {
  const SectionRecord& rec = s.rec;
  Plate p = PlateOf(s, std::max<double>(rec.b1, rec.b2));
  const Walls wall(s, p.shape.Greatest());
  const double tw = wall(rec.tw, p.shape.W / 4);
  const double tf2 = wall(rec.tf2, p.shape.H / 6);
  const double b2 = rec.b2;
  p.shape.polygons.push_back(RectangleOutline(tw, p.under - tf2, p.cx - tw / 2, tf2));
  p.shape.polygons.push_back(RectangleOutline(b2, tf2, p.cx - b2 / 2, 0));
  Add(p.shape, "b2", {p.cx - b2 / 2, 0}, {p.cx + b2 / 2, 0}, DimensionSide::Below);
  AddWeb(p.shape, "tw", p.cx - tw / 2, tw, 0.4 * p.shape.H);
  AddFlange(p.shape, "tf2", p.cx + b2 / 2, 0, tf2);
  return p.shape;
}

}  // namespace korvane::shapes
