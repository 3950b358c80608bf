// SPDX-License-Identifier: GPL-3.0-or-later
#include <cmath>

#include "core/text.h"
#include "presentation/diagram_sheet.h"
#include "presentation/symbols.h"

namespace korvane {
namespace {

constexpr double kArrow = 5.5;       // length of an axial arrow
constexpr double kHead = 1.6;        // of its head
constexpr double kGreatestHead = 4;  // that stays in the room of the member's line
constexpr double kBand = 6;          // height of the axial force diagram
constexpr double kMemberBand = 1.2;  // half height of the room of a member's line

struct AxialLoad {
  double value;  // kN, compression positive
  const char* tag;
};

// An arrow at one end: outward -1 at the left, 1 at the right; compression points at the member.
void DrawEndArrow(DiagramSheet& sheet, double y, int outward, bool compression) {
  DrawingTarget& t = sheet.Target();
  const Point at{sheet.X(outward < 0 ? 0 : 1), y};
  const Point near = Beside(t, at, outward * 0.5, 0);
  const Point far = Beside(t, at, outward * sheet.Sign(kArrow), 0);
  const double head = std::min(sheet.Sign(kHead), kGreatestHead);
  sheet.Pen(Role::Second, 0.3);
  if (compression) {
    DrawArrow(t, far, near, head);
  } else {
    DrawArrow(t, near, far, head);
  }
}

void DrawMember(DiagramSheet& sheet, double y) {
  sheet.Pen(Role::Ink, 0.45);
  sheet.Target().Line({sheet.X(0), y}, {sheet.X(1), y});
}

// The loads of one picture; at least one line.
std::vector<AxialLoad> LoadsOf(const ProjectState& st, bool variable) {
  if (!variable) return {{st.NP, ""}};
  std::vector<AxialLoad> loads;
  if (st.NV1 != 0 || st.NV2 == 0) loads.push_back({st.NV1, "V1"});
  if (st.NV2 != 0) loads.push_back({st.NV2, "V2"});
  return loads;
}

std::vector<LabelRun> Runs(const AxialLoad& load) {
  std::vector<LabelRun> runs = {{DiagramNumber(load.value)}, {" kN", Role::Quiet}};
  if (*load.tag) runs.push_back({std::string("  ") + load.tag, Role::Quiet});
  return runs;
}

void DrawAxialLoads(DrawingTarget& target, const DiagramOrigin& origin, const char* title,
                    const ProjectState& st, bool variable, const DiagramStyle& style) {
  DiagramSheet sheet(target, origin, style, AxialLoadHeight(st, variable, style));
  sheet.Title(title, origin.y);
  double y = origin.y + LineOf(style);
  for (const AxialLoad& load : LoadsOf(st, variable)) {
    const double axis = y + LineOf(style) + 0.4;
    DrawMember(sheet, axis);
    if (load.value != 0) {
      DrawEndArrow(sheet, axis, -1, load.value > 0);
      DrawEndArrow(sheet, axis, 1, load.value > 0);
      sheet.Pen(Role::Ink, 0.1);
      sheet.Labels().Place({Runs(load), {sheet.X(0.5), axis}, Side::Above, 0.4, false});
    }
    y = axis + kMemberBand;
  }
}

}  // namespace

double AxialLoadHeight(const ProjectState& st, bool variable, const DiagramStyle& style) {
  const auto rows = static_cast<double>(LoadsOf(st, variable).size());
  return LineOf(style) + rows * (LineOf(style) + 0.4 + kMemberBand);
}

void DrawAxialPermanent(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                        const DiagramStyle& style) {
  DrawAxialLoads(target, origin, "Permanent axial load", st, false, style);
}

void DrawAxialVariable(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                       const DiagramStyle& style) {
  DrawAxialLoads(target, origin, "Variable axial load", st, true, style);
}

double AxialForceHeight(const DiagramStyle& style) {
  return 2 * LineOf(style) + kBand + 2 * kMemberBand;
}

void DrawAxialForce(DrawingTarget& target, const DiagramOrigin& origin, double N,
                    const DiagramStyle& style) {
  DiagramSheet sheet(target, origin, style, AxialForceHeight(style));
  sheet.Title(" Axial force (kN) ", origin.y);
  const double top = origin.y + 2 * LineOf(style) + 0.4;
  const double base = top + kBand;
  // Compression above the line, tension below it.
  const double axis = N < 0 ? top : base;
  if (N != 0) {
    target.FillColor = Role::Accent;
    target.FillOpacity = 0.16;
    const double edge = N < 0 ? base : top;
    const Point corners[] = {
        {sheet.X(0), axis}, {sheet.X(1), axis}, {sheet.X(1), edge}, {sheet.X(0), edge}};
    sheet.Pen(Role::Accent, 0.26);
    target.Polygon(corners, Paint::Both);
    const Point at{sheet.X(0.5), (top + base) / 2};
    sheet.Pen(Role::Ink, 0.1);
    sheet.Labels().Place({{{DiagramNumber(N)}}, at, Side::Centre, 0, false});
  }
  sheet.Axis(axis);
  if (N != 0) {
    DrawEndArrow(sheet, axis, -1, N > 0);
    DrawEndArrow(sheet, axis, 1, N > 0);
  }
}

}  // namespace korvane
