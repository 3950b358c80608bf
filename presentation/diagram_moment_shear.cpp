// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/text.h"
#include "presentation/diagram_sheet.h"

namespace korvane {
namespace {

// Ordinates of the greatest value: moments are drawn on the tension side, so that positive ones
// hang below the axis; positive shear stands above it.
constexpr double kMomentScale = -12;
constexpr double kShearScale = 12;

struct Names {
  const char* moment;
  const char* shear;
  const char* zeros;
};
constexpr Names kNames[] = {{"Bending moment (My, kNm)", "Shear (Vz, kN)", "My=0 at "},
                            {"Bending moment (Mz, kNm)", "Shear (Vy, kN)", "Mz=0 at "}};

const PlaneForces& ForcesOf(const BeamResults& beam, Plane plane) {
  return plane == Plane::Z ? beam.z : beam.y;
}

std::vector<Point> PointValuesOf(const BeamResults& beam, const PointValues& values) {
  std::vector<Point> points;
  for (int j = 0; j <= beam.pt_last && j <= PointValues::kLast; ++j) {
    points.push_back({beam.pt_x[j], values[j]});
  }
  return points;
}

std::vector<double> ZerosOf(const PlaneForces& f) {
  std::vector<double> zeros;
  for (const double zero : {double{f.M_zero1}, double{f.M_zero2}}) {
    if (zero != 0) zeros.push_back(zero);
  }
  return zeros;
}

// The zero positions at the right end of the title's line, in a smaller size if they need it.
void PrintZeros(DiagramSheet& sheet, const char* head, const std::vector<double>& zeros, double L,
                const Box& title) {
  std::string text = head;
  for (const double zero : zeros) text += " x = " + Format(zero * L, "#0.000") + " m";
  DrawingTarget& t = sheet.Target();
  const double size = t.FontSize;
  const double room = sheet.Bounds().right - title.right - t.Across(sheet.Labels().LineHeight());
  const double width = t.TextWidth(text);
  if (width > room) t.FontSize = size * room / width;
  const std::vector<LabelRun> runs = {{text, Role::Quiet}};
  sheet.Labels().Fix(runs, {sheet.Bounds().right - sheet.Labels().WidthOf(runs),
                            title.bottom - sheet.Labels().LineHeight()});
  t.FontSize = size;
}

}  // namespace

double MomentShearHeight(const BeamResults& beam, Plane plane, const DiagramStyle& style) {
  const PlaneForces& f = ForcesOf(beam, plane);
  const CurveRoom m = RoomOf(f.M_max, f.M_min, kMomentScale, style);
  const CurveRoom v = RoomOf(f.V_max, f.V_min, kShearScale, style);
  return 2 * LineOf(style) + m.above + m.below + v.above + v.below;
}

void DrawMomentShear(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                     const BeamResults& beam, Plane plane, bool zeros, const DiagramStyle& style) {
  const PlaneForces& f = ForcesOf(beam, plane);
  const Names& names = kNames[plane == Plane::Z ? 0 : 1];
  DiagramSheet sheet(target, origin, style, MomentShearHeight(beam, plane, style));
  const CurveRoom m = RoomOf(f.M_max, f.M_min, kMomentScale, style);
  const CurveRoom v = RoomOf(f.V_max, f.V_min, kShearScale, style);

  const Box title = sheet.Title(names.moment, origin.y);
  const std::vector<double> at = zeros ? ZerosOf(f) : std::vector<double>{};
  if (!at.empty()) PrintZeros(sheet, names.zeros, at, st.L, title);
  const double shearTitle = origin.y + LineOf(style) + m.above + m.below;
  sheet.Title(names.shear, shearTitle);
  DrawCurve(sheet,
            {f.M, f.M_max, f.M_min, kMomentScale, Role::Accent, PointValuesOf(beam, f.M_pt), at},
            origin.y + LineOf(style) + m.above);
  DrawCurve(sheet,
            {f.V, f.V_max, f.V_min, kShearScale, Role::Second, PointValuesOf(beam, f.V_pt), {}},
            shearTitle + LineOf(style) + v.above);
}

}  // namespace korvane
