// SPDX-License-Identifier: GPL-3.0-or-later
#include <functional>

#include "core/text.h"
#include "presentation/diagram_sheet.h"
#include "presentation/symbols.h"

namespace korvane {
namespace {

constexpr double kBeam = 2.4;     // height of the member
constexpr double kAbove = 3.4;    // room above it for marks
constexpr double kSupport = 3.6;  // size of the supports
constexpr double kDimension = 3.2;
constexpr double kLeastSpacing = 0.6;  // web stiffeners closer than this are thinned out

struct Sketch {
  DiagramSheet& sheet;
  const ProjectState& st;
  double top, axis, bottom;
};

// Relative positions of web stiffeners from the left support.
std::vector<double> WebStiffeners(const ProjectState& st) {
  std::vector<double> at;
  const double length = st.L * 1000;
  const double step = st.a_webstiff;
  if (st.WebStiffener != 1 || step <= 0 || length <= 0) return at;
  double last = 0;
  for (int i = 1; i * step < length * (1 - 1e-6) && i < 10000; ++i) {
    const double x = i * step / length;
    if ((x - last) * kMemberWidth < kLeastSpacing) continue;
    at.push_back(x);
    last = x;
  }
  return at;
}

std::vector<double> RestraintPoints(const ProjectState& st) {
  std::vector<double> at;
  for (int i = 1; i <= st.LtbSegments; ++i) at.push_back(i / (st.LtbSegments + 1.0));
  return at;
}

std::vector<double> ChosenPoints(const ProjectState& st) {
  std::vector<double> at;
  if (st.cp_mode == 0 || st.L <= 0) return at;
  for (int i = 1; i <= st.cp_count && i <= 3; ++i) {
    at.push_back(std::clamp(st.cp_x[i] / st.L, 0., 1.));
  }
  return at;
}

void DrawCross(const Sketch& s, Point p) {
  DrawingTarget& t = s.sheet.Target();
  s.sheet.Pen(Role::Accent, 0.26);
  t.Line(Beside(t, p, -0.7, -0.7), Beside(t, p, 0.7, 0.7));
  t.Line(Beside(t, p, -0.7, 0.7), Beside(t, p, 0.7, -0.7));
}

void DrawChosen(const Sketch& s, Point p) {
  DrawingTarget& t = s.sheet.Target();
  const Point corners[] = {p, Beside(t, p, -0.8, -1.5), Beside(t, p, 0.8, -1.5)};
  t.FillColor = Role::Second;
  t.FillOpacity = 1;
  t.Polygon(corners, Paint::Filled);
}

void DrawStiffener(const Sketch& s, double x, double from, double to, double width) {
  s.sheet.Pen(Role::Ink, width);
  s.sheet.Target().Line({x, from}, {x, to});
}

struct LegendEntry {
  std::string text;
  std::function<void(Point)> sign;  // drawn with its middle at the point
};

std::vector<LegendEntry> LegendOf(const Sketch& s) {
  std::vector<LegendEntry> entries;
  if (s.st.EndStiffener == 1) {
    entries.push_back(
        {"stiff support", [&s](Point p) { DrawStiffener(s, p.x, p.y - 0.9, p.y + 0.9, 0.5); }});
  }
  if (!WebStiffeners(s.st).empty()) {
    entries.push_back(
        {"web stiffener", [&s](Point p) { DrawStiffener(s, p.x, p.y - 0.8, p.y + 0.8, 0.2); }});
  }
  if (s.st.LtbSegments > 0) {
    entries.push_back({"lateral support", [&s](Point p) { DrawCross(s, p); }});
  }
  if (s.st.cp_mode != 0) {
    entries.push_back({"calculation point", [&s](Point p) { DrawChosen(s, {p.x, p.y + 0.75}); }});
  }
  return entries;
}

bool HasLegend(const ProjectState& st) {
  return st.EndStiffener == 1 || st.WebStiffener == 1 || st.LtbSegments > 0 || st.cp_mode != 0;
}

void DrawLegend(const Sketch& s, double y) {
  constexpr double beside = 1.6, apart = 3;
  DrawingTarget& t = s.sheet.Target();
  LabelPlacer& labels = s.sheet.Labels();
  const std::vector<LegendEntry> entries = LegendOf(s);
  double words = 0;
  for (const LegendEntry& entry : entries) words += labels.WidthOf({{entry.text, Role::Quiet}});
  double x = s.sheet.X(0);
  const double signs = t.Across((beside + apart) * static_cast<double>(entries.size()) - apart);
  const double size = t.FontSize;
  t.FontSize = size * std::min(1.0, (s.sheet.Bounds().right - x - signs) / words);
  for (const LegendEntry& entry : entries) {
    entry.sign({x, y + labels.LineHeight() / 2});
    s.sheet.Pen(Role::Quiet, 0.1);
    const Box box = labels.Fix({{entry.text, Role::Quiet}}, {x + t.Across(beside), y});
    x = box.right + t.Across(apart);
  }
  t.FontSize = size;
}

void DrawMemberBody(const Sketch& s) {
  DrawingTarget& t = s.sheet.Target();
  const Point corners[] = {{s.sheet.X(0), s.top},
                           {s.sheet.X(1), s.top},
                           {s.sheet.X(1), s.bottom},
                           {s.sheet.X(0), s.bottom}};
  t.FillColor = Role::Fill;
  t.FillOpacity = 0.35;
  s.sheet.Pen(Role::Ink, 0.2);
  t.Polygon(corners, Paint::Both);
}

void DrawMarks(const Sketch& s) {
  for (const double x : WebStiffeners(s.st)) {
    DrawStiffener(s, s.sheet.X(x), s.top, s.bottom, 0.16);
  }
  if (s.st.EndStiffener == 1) {
    // Longer than the member is high: the support stiffener of both ends.
    for (const double x : {0., 1.}) {
      DrawStiffener(s, s.sheet.X(x), s.top - 1, s.bottom + 1, 0.5);
    }
  }
  for (const double x : RestraintPoints(s.st)) DrawCross(s, {s.sheet.X(x), s.top});
  for (const double x : ChosenPoints(s.st)) DrawChosen(s, {s.sheet.X(x), s.top - 1});
}

void DrawLength(const Sketch& s, double y) {
  DrawingTarget& t = s.sheet.Target();
  s.sheet.Pen(Role::Quiet, 0.12);
  for (const double x : {0., 1.}) {
    t.Line({s.sheet.X(x), y - 1.2}, {s.sheet.X(x), y + 0.8});
  }
  DrawDimension(t, {s.sheet.X(0), y}, {s.sheet.X(1), y}, 1.4);
  s.sheet.Pen(Role::Ink, 0.12);
  s.sheet.Labels().Place(
      {{{"L = " + Format(s.st.L, "#0.000") + " m"}}, {s.sheet.X(0.5), y}, Side::Below, 0.2, false});
}

}  // namespace

double BeamSketchHeight(const ProjectState& st, const DiagramStyle& style) {
  return kAbove + kBeam + kSupport + kDimension + (HasLegend(st) ? 2 : 1) * LineOf(style);
}

void DrawBeamSketch(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                    const DiagramStyle& style) {
  DiagramSheet sheet(target, origin, style, BeamSketchHeight(st, style));
  const double top = origin.y + kAbove;
  const Sketch s{sheet, st, top, top + kBeam / 2, top + kBeam};
  DrawMemberBody(s);
  sheet.Pen(Role::Ink, 0.2);
  DrawSupports(target, st.SupportType, {sheet.X(0), s.axis}, {sheet.X(1), s.axis}, kBeam / 2,
               kSupport);
  DrawMarks(s);
  const double y = s.bottom + kSupport + 1.6;
  DrawLength(s, y);
  if (HasLegend(st)) DrawLegend(s, origin.y + BeamSketchHeight(st, style) - LineOf(style));
}

}  // namespace korvane
