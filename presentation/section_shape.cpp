// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/section_shape.h"

#include <cmath>

#include "presentation/section_shapes.h"

namespace korvane {
namespace shapes {

// The frame of a profile of which only constants are known.
SectionShape General(const Source&) {
  SectionShape shape;
  shape.H = shape.W = 100;
  shape.yAxis = shape.zAxis = 50;
  return shape;
}

}  // namespace shapes

namespace {

// Centroid of all polygons.
Point Centroid(const SectionShape& s) {
  double area = 0, x = 0, y = 0;
  for (const Outline& o : s.polygons) {
    for (std::size_t i = 1; i < o.size(); ++i) {
      const double cross = o[i - 1].x * o[i].y - o[i].x * o[i - 1].y;
      area += cross / 2;
      x += (o[i - 1].x + o[i].x) * cross / 6;
      y += (o[i - 1].y + o[i].y) * cross / 6;
    }
  }
  if (area == 0) return {s.W / 2, s.H / 2};
  return {x / area, y / area};
}

struct Entry {
  int code;
  SectionShape (*build)(const shapes::Source&);
  bool sideways;  // not symmetric left and right: the z axis follows from the outline
};

constexpr Entry kEntries[] = {
    {1, shapes::RolledI, false},         {2, shapes::RolledI, false},
    {3, shapes::RolledI, false},         {4, shapes::RolledI, false},
    {5, shapes::ParallelChannel, false}, {6, shapes::Hollow, false},
    {7, shapes::Hollow, false},          {8, shapes::Hollow, false},
    {9, shapes::Hollow, false},          {10, shapes::Angle, false},
    {11, shapes::Angle, false},          {15, shapes::TaperedI, false},
    {16, shapes::TaperedChannel, false}, {21, shapes::WeldedI, false},
    {22, shapes::SingleI, false},        {23, shapes::Box23, false},
    {24, shapes::Hsq24, true},           {25, shapes::Hsq25, true},
    {26, shapes::TSection, false},       {27, shapes::Box27, true},
    {28, shapes::FlatBar, false},        {31, shapes::Tube, false},
    {41, shapes::General, false},        {51, shapes::PlateFlat, false},
    {52, shapes::PlateAngle, true},      {53, shapes::PlateWeldedAngle, true},
    {54, shapes::PlateBulb, true},       {55, shapes::PlateTrapeze, false},
    {56, shapes::PlateGirder, false},    {101, shapes::RolledI, false},
    {102, shapes::RolledI, false},       {103, shapes::ParallelChannel, false}};

}  // namespace

double SectionDimension::Length() const {
  return std::hypot(b.x - a.x, b.y - a.y);
}

SectionShape ShapeOfSection(const ProjectState& st, const SectionRecord& rec, bool notToScale,
                            int arcSteps) {
  for (const Entry& entry : kEntries) {
    if (entry.code != st.ProfileType) continue;
    SectionShape shape = entry.build({st, rec, notToScale, arcSteps});
    if (entry.sideways) {
      // The true outline decides, also where walls are drawn thicker.
      shape.zAxis = Centroid(notToScale ? entry.build({st, rec, false, arcSteps}) : shape).x;
    }
    return shape;
  }
  return {};
}

}  // namespace korvane
