// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/section_shape.h"

#include <cmath>

#include "presentation/section_shapes.h"
#include "sections/profile_table.h"

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
  OutlineKind kind;
  SectionShape (*build)(const shapes::Source&);
  bool sideways;  // not symmetric left and right: the z axis follows from the outline
};

constexpr Entry kEntries[] = {
    {OutlineKind::General, shapes::General, false},
    {OutlineKind::RolledI, shapes::RolledI, false},
    {OutlineKind::TaperedI, shapes::TaperedI, false},
    {OutlineKind::ParallelChannel, shapes::ParallelChannel, false},
    {OutlineKind::TaperedChannel, shapes::TaperedChannel, false},
    {OutlineKind::Hollow, shapes::Hollow, false},
    {OutlineKind::Angle, shapes::Angle, false},
    {OutlineKind::WeldedI, shapes::WeldedI, false},
    {OutlineKind::SingleI, shapes::SingleI, false},
    {OutlineKind::Box, shapes::Box23, false},
    {OutlineKind::HsqSymmetric, shapes::Hsq24, true},
    {OutlineKind::HsqOneSided, shapes::Hsq25, true},
    {OutlineKind::T, shapes::TSection, false},
    {OutlineKind::BoxUnequal, shapes::Box27, true},
    {OutlineKind::FlatBar, shapes::FlatBar, false},
    {OutlineKind::Tube, shapes::Tube, false},
    {OutlineKind::PlateFlat, shapes::PlateFlat, false},
    {OutlineKind::PlateAngle, shapes::PlateAngle, true},
    {OutlineKind::PlateWeldedAngle, shapes::PlateWeldedAngle, true},
    {OutlineKind::PlateBulb, shapes::PlateBulb, true},
    {OutlineKind::PlateTrapez, shapes::PlateTrapeze, false},
    {OutlineKind::PlateT, shapes::PlateGirder, false},
};

const Entry* EntryOf(int profileType) {
  const Family* family = FindFamily(profileType);
  if (family == nullptr) return nullptr;
  for (const Entry& entry : kEntries) {
    if (entry.kind == family->outline) return &entry;
  }
  return nullptr;
}

}  // namespace

double SectionDimension::Length() const {
  return std::hypot(b.x - a.x, b.y - a.y);
}

SectionShape ShapeOfSection(const ProjectState& st, const SectionRecord& rec, bool notToScale,
                            int arcSteps) {
  const Entry* entry = EntryOf(st.ProfileType);
  if (entry == nullptr) return {};
  SectionShape shape = entry->build({st, rec, notToScale, arcSteps});
  if (entry->sideways) {
    // The true outline decides, also where walls are drawn thicker.
    shape.zAxis = Centroid(notToScale ? entry->build({st, rec, false, arcSteps}) : shape).x;
  }
  return shape;
}

}  // namespace korvane
