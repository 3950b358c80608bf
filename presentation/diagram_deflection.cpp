// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text.h"
#include "presentation/diagram_sheet.h"

namespace korvane {
namespace {

// Positive deflections hang below the axis, as the member does.
constexpr double kDeflectionScale = -10;

struct Deflected {
  const StationValues& values;
  double max, min;
  const char* title;
};

Deflected Of(const Deflections& d, Plane plane) {
  if (plane == Plane::Z) {
    return {d.DeflZ, d.DeflZ_max, d.DeflZ_min, "Deflection (SLS): z (mm): L/"};
  }
  return {d.DeflY, d.DeflY_max, d.DeflY_min, "Deflection (SLS): y (mm): L/"};
}

}  // namespace

double DeflectionHeight(const Deflections& deflections, Plane plane, const DiagramStyle& style) {
  const Deflected d = Of(deflections, plane);
  const CurveRoom room = RoomOf(d.max, d.min, kDeflectionScale, style);
  return LineOf(style) + room.above + room.below;
}

void DrawDeflection(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                    const Deflections& deflections, Plane plane, const DiagramStyle& style) {
  const Deflected d = Of(deflections, plane);
  DiagramSheet sheet(target, origin, style, DeflectionHeight(deflections, plane, style));
  sheet.Title(d.title + Format(LengthOverDeflection(st.L, d.max, d.min), "#0"), origin.y);
  const CurveRoom room = RoomOf(d.max, d.min, kDeflectionScale, style);
  DrawCurve(sheet, {d.values, d.max, d.min, kDeflectionScale, Role::Accent, {}, {}},
            origin.y + LineOf(style) + room.above);
}

}  // namespace korvane
