// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "presentation/section_shapes.h"

namespace korvane::shapes {

// Two flanges on one web, or a T with only one of them.
SectionShape SingleI(const Source& s) {
  const SectionRecord& rec = s.rec;
  SectionShape shape;
  shape.H = rec.h;
  shape.W = std::max<double>(rec.b1, rec.b2);
  const Walls wall(s, shape.Greatest());
  const double b1 = rec.b1, b2 = rec.b2, cx = shape.W / 2;
  const double tf1 = wall(rec.tf1, shape.H / 6);
  const double tf2 = wall(rec.tf2, shape.H / 6);
  const double tw = wall(rec.tw, shape.W / 4);
  const double top = shape.H - tf1;
  shape.polygons = {RectangleOutline(b1, tf1, cx - b1 / 2, top),
                    RectangleOutline(tw, top - tf2, cx - tw / 2, tf2),
                    RectangleOutline(b2, tf2, cx - b2 / 2, 0)};
  shape.yAxis = shape.H - rec.ezel;
  shape.zAxis = cx;
  Add(shape, "b1", {cx - b1 / 2, shape.H}, {cx + b1 / 2, shape.H}, DimensionSide::Above);
  Add(shape, "b2", {cx - b2 / 2, 0}, {cx + b2 / 2, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, shape.H);
  AddWeb(shape, "tw", cx - tw / 2, tw, 0.28 * shape.H);
  AddFlange(shape, "tf1", cx + b1 / 2, top, shape.H);
  AddFlange(shape, "tf2", cx + b2 / 2, 0, tf2);
  return shape;
}

SectionShape TSection(const Source& s) {
  const SectionRecord& rec = s.rec;
  SectionShape shape;
  shape.H = rec.h;
  shape.W = rec.b;
  const Walls wall(s, shape.Greatest());
  const double tf = wall(rec.tf, shape.H / 6);
  const double tw = wall(rec.tw, shape.W / 4);
  const double cx = shape.W / 2;
  shape.polygons = {RectangleOutline(shape.W, tf, 0, shape.H - tf),
                    RectangleOutline(tw, shape.H - tf, cx - tw / 2, 0)};
  shape.yAxis = shape.H - rec.ezel;
  shape.zAxis = cx;
  Add(shape, "b", {0, shape.H}, {shape.W, shape.H}, DimensionSide::Above);
  AddHeight(shape, "h", 0, shape.H);
  AddWeb(shape, "tw", cx - tw / 2, tw, 0.28 * shape.H);
  AddFlange(shape, "tf", shape.W, shape.H - tf, shape.H);
  return shape;
}

SectionShape Box23(const Source& s) {
  const SectionRecord& rec = s.rec;
  SectionShape shape;
  shape.H = rec.h;
  shape.W = rec.b;
  const Walls wall(s, shape.Greatest());
  const double b = rec.b, h = rec.h, a = s.st.p23_a;
  const double tf = wall(rec.tf, h / 6);
  const double tw = wall(rec.tw, (b / 2 - a) / 2);
  shape.polygons = {RectangleOutline(b, tf, 0, h - tf), RectangleOutline(tw, h - 2 * tf, a, tf),
                    RectangleOutline(tw, h - 2 * tf, b - a - tw, tf),
                    RectangleOutline(b, tf, 0, 0)};
  shape.yAxis = h / 2;
  shape.zAxis = b / 2;
  Add(shape, "b", {0, 0}, {b, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, h);
  AddWeb(shape, "a", 0, a, 0.72 * h);
  AddWeb(shape, "tw", a, tw, 0.28 * h);
  AddFlange(shape, "tf", b, h - tf, h);
  return shape;
}

/// A top plate on two webs on a wider bottom plate; the webs' outer faces are at left and
/// left + width, the top plate is c narrower on each side.
struct Hat {
  double width, left;
  const char* topLetter;  // nullptr: the width over the webs is not an input
  const char* bottomLetter;
};

static SectionShape HatShape(const Source& s, const Hat& hat, double c) {
  const SectionRecord& rec = s.rec;
  SectionShape shape;
  shape.H = rec.h + rec.tf2;
  shape.W = rec.b;
  const Walls wall(s, shape.Greatest());
  const double tf1 = wall(rec.tf1, shape.H / 6);
  const double tf2 = wall(rec.tf2, shape.H / 6);
  const double tw = wall(rec.tw, hat.width / 4);
  const double rim = rec.tw > 0 ? c * tw / rec.tw : c;
  const double top = shape.H - tf1;
  const double right = hat.left + hat.width;
  shape.polygons = {RectangleOutline(hat.width - 2 * rim, tf1, hat.left + rim, top),
                    RectangleOutline(tw, top - tf2, hat.left, tf2),
                    RectangleOutline(tw, top - tf2, right - tw, tf2),
                    RectangleOutline(shape.W, tf2, 0, 0)};
  shape.yAxis = shape.H - rec.ezel;
  if (hat.topLetter) {
    Add(shape, hat.topLetter, {hat.left, shape.H}, {right, shape.H}, DimensionSide::Above);
  }
  Add(shape, hat.bottomLetter, {0, 0}, {shape.W, 0}, DimensionSide::Below);
  // From the top of the bottom plate, as it is drawn.
  AddHeight(shape, "h", tf2, shape.H);
  AddWeb(shape, "a", 0, hat.left, tf2 + 0.2 * shape.H);
  AddWeb(shape, "tw", right - tw, tw, 0.4 * shape.H);
  AddFlange(shape, "tf1", right - rim, top, shape.H);
  AddFlange(shape, "tf2", shape.W, 0, tf2);
  return shape;
}

SectionShape Hsq24(const Source& s) {
  const double a = s.st.p24_a;
  return HatShape(s, {s.rec.b - 2 * a, a, nullptr, "b"}, s.st.p24_c);
}

SectionShape Hsq25(const Source& s) {
  return HatShape(s, {s.rec.b1, s.st.p25_a, "b1", "b2"}, s.st.p25_c);
}

SectionShape Box27(const Source& s) {
  const SectionRecord& rec = s.rec;
  SectionShape shape;
  shape.H = rec.h;
  shape.W = std::max<double>(rec.b1, rec.b2);
  const Walls wall(s, shape.Greatest());
  const double b1 = rec.b1, b2 = rec.b2, a = s.st.p27_a, cx = shape.W / 2;
  const double tf1 = wall(rec.tf1, shape.H / 6);
  const double tf2 = wall(rec.tf2, shape.H / 6);
  const double tw = wall(rec.tw, a / 4);
  const double top = shape.H - tf1;
  shape.polygons = {RectangleOutline(b1, tf1, cx - b1 / 2, top),
                    RectangleOutline(tw, top - tf2, cx - a / 2 - tw / 2, tf2),
                    RectangleOutline(tw, top - tf2, cx + a / 2 - tw / 2, tf2),
                    RectangleOutline(b2, tf2, cx - b2 / 2, 0)};
  shape.yAxis = shape.H - rec.ezel;
  Add(shape, "b1", {cx - b1 / 2, shape.H}, {cx + b1 / 2, shape.H}, DimensionSide::Above);
  Add(shape, "b2", {cx - b2 / 2, 0}, {cx + b2 / 2, 0}, DimensionSide::Below);
  AddHeight(shape, "h", 0, shape.H);
  // Between the middles of the webs.
  AddWeb(shape, "a", cx - a / 2, a, 0.72 * shape.H);
  AddWeb(shape, "tw", cx - a / 2 - tw / 2, tw, 0.28 * shape.H);
  AddFlange(shape, "tf1", cx + b1 / 2, top, shape.H);
  AddFlange(shape, "tf2", cx + b2 / 2, 0, tf2);
  return shape;
}

SectionShape FlatBar(const Source& s) {
  SectionShape shape;
  shape.H = s.rec.h;
  shape.W = s.rec.tw;
  shape.polygons = {RectangleOutline(shape.W, shape.H, 0, 0)};
  shape.yAxis = shape.H / 2;
  shape.zAxis = shape.W / 2;
  AddHeight(shape, "h", 0, shape.H);
  Add(shape, "tw", {0, 0}, {shape.W, 0}, DimensionSide::Below);
  return shape;
}

SectionShape Tube(const Source& s) {
  SectionShape shape;
  shape.H = shape.W = s.st.p31_d;
  const Walls wall(s, shape.H);
  const double d = shape.H;
  const double t = std::min(wall(s.rec.tw, d / 6), d / 2);
  const Point c{d / 2, d / 2};
  shape.circles = {{c, d / 2}, {c, d / 2 - t}};
  shape.yAxis = shape.zAxis = d / 2;
  Add(shape, "d", {0, 0}, {d, 0}, DimensionSide::Below);
  // The wall along a line at 45 degrees, clear of the axes.
  const auto at = [&](double radius) {
    const double k = std::sqrt(0.5) * radius;
    return Point{c.x + k, c.y + k};
  };
  Add(shape, "tw", at(d / 2 - t), at(d / 2), DimensionSide::Inside);
  return shape;
}

}  // namespace korvane::shapes
