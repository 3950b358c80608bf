// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/figures.h"

#include <cmath>

#include "presentation/label_placer.h"
#include "presentation/section_outlines.h"
#include "presentation/symbols.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

// Sizes as shares of the section's greater size.
constexpr int kArcSteps = 8;
constexpr double kText = 0.082;
constexpr double kThin = 0.0045;
constexpr double kOutline = 0.009;
constexpr double kHead = 0.042;
constexpr double kOffset = 0.13;       // dimension lines beside the section
constexpr double kCrowdOffset = 2.2;   // of such a line below another with its letter, in offsets
constexpr double kNear = 0.09;         // lines of flange thicknesses
constexpr double kShortEnd = 0.05;     // axes beyond the section at their short ends
constexpr double kAxis = 0.24;         // and at the ends that have the letter
constexpr double kPrincipal = 0.45;    // half length of the axes u and v
constexpr double kLetterAbove = 0.25;  // place of a letter along a line that an axis crosses

/// The figure's window: mm to the right and down, from the section's mm with y up.
struct Window {
  DrawingTarget& t;
  const SectionShape& shape;
  LabelPlacer labels;
  Point corner;  // of the bounding box, upper left
  double size;   // greater size of the section
  const FigureOptions& options;

  Point At(Point p) const { return {corner.x + p.x, corner.y + shape.H - p.y}; }
  void Pen(Role colour, double width, Dash dash = Dash::Solid) {
    t.ForeColor = colour;
    t.SetLineUnits(width * size);
    t.LineDash = dash;
  }
  void Letter(const std::string& text, Point at, Side side, double gap, Role colour,
              bool bold = false) {
    labels.Place({{{text, colour, bold}}, at, side, gap * size, false});
  }
};

std::vector<Point> Mapped(const Window& w, const std::vector<Point>& points) {
  std::vector<Point> mapped;
  for (const Point& p : points) mapped.push_back(w.At(p));
  return mapped;
}

void DrawSteel(Window& w) {
  std::vector<std::vector<Point>> outlines;
  for (const std::vector<Point>& p : w.shape.polygons) outlines.push_back(Mapped(w, p));
  w.t.FillColor = Role::Fill;
  w.t.FillOpacity = 0.6;
  w.Pen(Role::Ink, kOutline);
  if (!outlines.empty()) w.t.Area(outlines, Paint::Both);
  for (const std::vector<Point>& p : outlines) w.labels.Avoid(p);
  outlines.clear();
  for (const SectionCircle& c : w.shape.circles) {
    if (c.radius > 0) outlines.push_back(Mapped(w, CircleOutline(c.centre, c.radius)));
  }
  if (!outlines.empty()) w.t.Area(outlines, Paint::Filled);
  for (const SectionCircle& c : w.shape.circles) {
    if (c.radius > 0) w.t.Circle(w.At(c.centre), c.radius, Paint::Outline);
  }
  for (const std::vector<Point>& p : outlines) w.labels.Avoid(p);
}

// The frame of a profile that has constants but no outline.
void DrawUnknown(Window& w, const std::string& name) {
  w.Pen(Role::Quiet, kThin * 1.5, Dash::Dashed);
  const Point a = w.At({0, w.shape.H});
  const Point b = w.At({w.shape.W, 0});
  const Point corners[] = {a, {b.x, a.y}, b, {a.x, b.y}};
  w.t.Polygon(corners, Paint::Outline);
  w.Letter(name, {(a.x + b.x) / 2, b.y}, Side::Below, 0.06, Role::Ink);
}

void AxisLine(Window& w, Point from, Point to) {
  w.Pen(Role::Quiet, kThin, Dash::DashDot);
  w.t.Line(from, to);
  w.labels.Avoid(from, to);
}

void DrawAxes(Window& w) {
  const SectionShape& s = w.shape;
  const double shortEnd = kShortEnd * w.size;
  const double reach = kAxis * w.size;
  const Point up = w.At({s.zAxis, s.H + reach});
  const Point right = w.At({s.W + reach, s.yAxis});
  AxisLine(w, w.At({s.zAxis, -shortEnd}), up);
  AxisLine(w, w.At({-shortEnd, s.yAxis}), right);
  w.Letter("Z", up, Side::Above, 0.01, Role::Quiet, true);
  w.Letter("Y", right, Side::Right, 0.02, Role::Quiet, true);
}

void DrawPrincipalAxes(Window& w) {
  const Point c{w.shape.zAxis, w.shape.yAxis};
  const auto axis = [&](const char* letter, double degrees) {
    const double a = degrees * kPi / 180;
    const double dx = kPrincipal * w.size * std::cos(a);
    const double dy = kPrincipal * w.size * std::sin(a);
    const Point end = w.At({c.x + dx, c.y + dy});
    AxisLine(w, w.At({c.x - dx * 0.7, c.y - dy * 0.7}), end);
    // The letter stands beyond the end of its axis.
    w.Letter(letter, {end.x + 0.05 * w.size * std::cos(a), end.y - 0.05 * w.size * std::sin(a)},
             Side::Centre, 0, Role::Quiet, true);
  };
  axis("u", w.shape.alfa);
  axis("v", w.shape.alfa + 90);
}

void DrawCentroid(Window& w) {
  w.t.FillColor = Role::Quiet;
  w.t.FillOpacity = 1;
  w.t.Circle(w.At({w.shape.zAxis, w.shape.yAxis}), 0.012 * w.size, Paint::Filled);
}

/// A dimension line in the window with the place of its letter.
struct DimensionLine {
  Point a, b;
  Point letter;
  Side side;
};

bool Outside(const Window& w, const SectionDimension& d) {
  return d.Length() <= kOutsideHeads * kHead * w.size;
}

// A letter beside a line whose heads stand outside.
Point BeyondEnd(const Window& w, Point a, Point b) {
  const double length = std::hypot(b.x - a.x, b.y - a.y);
  const double f = 2.4 * kHead * w.size / length;
  return {b.x + f * (b.x - a.x), b.y + f * (b.y - a.y)};
}

/// Two dimensions below the section that touch, one of them too short for its heads: the second
/// stands a line lower, so that neither's arrows and letter meet the other's.
struct Crowd {
  const SectionDimension* first = nullptr;
  const SectionDimension* second = nullptr;
};
Crowd CrowdBelow(const Window& w) {
  Crowd crowd;
  for (const SectionDimension& d : w.shape.dimensions) {
    if (d.side == DimensionSide::Below) (crowd.first ? crowd.second : crowd.first) = &d;
  }
  const bool tight =
      crowd.second != nullptr && (Outside(w, *crowd.first) || Outside(w, *crowd.second));
  return tight ? crowd : Crowd{};
}

DimensionLine LineOf(const Window& w, const SectionDimension& d) {
  const Crowd crowd = CrowdBelow(w);
  const double offset = kOffset * w.size;
  const double near = kNear * w.size;
  DimensionLine line{d.a, d.b, {}, Side::Below};
  switch (d.side) {
    case DimensionSide::Below:
      line.a.y = line.b.y = -offset * (&d == crowd.second ? kCrowdOffset : 1);
      break;
    case DimensionSide::Above:
      line.a.y = line.b.y = w.shape.H + offset;
      line.side = Side::Above;
      break;
    case DimensionSide::Left:
      line.a.x = line.b.x = -offset;
      line.side = Side::Left;
      break;
    case DimensionSide::Right:
      line.a.x = line.b.x = d.a.x + near;
      line.side = Side::Right;
      break;
    case DimensionSide::Inside:
      line.side = Outside(w, d) ? Side::Right : Side::Above;
      break;
  }
  const double f = d.side == DimensionSide::Above ? kLetterAbove : 0.5;
  const double middle = (line.a.y + line.b.y) / 2;
  if (d.side == DimensionSide::Right && Outside(w, d) &&
      std::fabs(middle - w.shape.yAxis) < kText * w.size) {
    // The axis takes the place beside the middle: the letter stands at the outer arrow.
    const double outer = middle < w.shape.H / 2 ? std::min(line.a.y, line.b.y) - kText * w.size
                                                : std::max(line.a.y, line.b.y) + kText * w.size;
    line.letter = {line.a.x, outer};
    return line;
  }
  line.letter = {line.a.x + f * (line.b.x - line.a.x), line.a.y + f * (line.b.y - line.a.y)};
  const bool flat = d.side == DimensionSide::Below || d.side == DimensionSide::Above;
  if (Outside(w, d) && (flat || d.side == DimensionSide::Inside)) {
    const bool left = &d == crowd.first;
    line.letter = left ? BeyondEnd(w, line.b, line.a) : BeyondEnd(w, line.a, line.b);
    if (flat) line.side = left ? Side::Left : Side::Right;
  }
  return line;
}

// Thin lines from the section to the dimension line and a little over it.
void DrawExtension(Window& w, Point from, Point to) {
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (length == 0) return;
  const double gap = std::min(0.02 * w.size, length / 3);
  const double over = 0.025 * w.size;
  const double ux = (to.x - from.x) / length;
  const double uy = (to.y - from.y) / length;
  const Point start = w.At({from.x + ux * gap, from.y + uy * gap});
  const Point end = w.At({to.x + ux * over, to.y + uy * over});
  w.t.Line(start, end);
  w.labels.Avoid(start, end);
}

void DrawDimensionOf(Window& w, const SectionDimension& d, const DimensionLine& line) {
  const bool lit = d.letter == w.options.highlight;
  w.Pen(lit ? Role::Accent : Role::Ink, lit ? 2 * kThin : kThin);
  if (d.side != DimensionSide::Inside) {
    DrawExtension(w, d.a, line.a);
    DrawExtension(w, d.b, line.b);
  }
  const Point a = w.At(line.a);
  const Point b = w.At(line.b);
  DrawDimension(w.t, a, b, kHead * w.size);
  // Heads outside have their tails beyond the ends.
  const double length = std::hypot(b.x - a.x, b.y - a.y);
  const double f = Outside(w, d) && length > 0 ? kOutsideTail * kHead * w.size / length : 0;
  const Point over{f * (b.x - a.x), f * (b.y - a.y)};
  w.labels.Avoid({a.x - over.x, a.y - over.y}, {b.x + over.x, b.y + over.y});
}

void DrawDimensions(Window& w) {
  std::vector<DimensionLine> lines;
  for (const SectionDimension& d : w.shape.dimensions) {
    lines.push_back(LineOf(w, d));
    DrawDimensionOf(w, d, lines.back());
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const SectionDimension& d = w.shape.dimensions[i];
    const bool lit = d.letter == w.options.highlight;
    w.Letter(d.letter, w.At(lines[i].letter), lines[i].side,
             lines[i].side == Side::Right ? 0.05 : 0.03, lit ? Role::Accent : Role::Ink, lit);
  }
}

// At the foot of the place, which may reach below the window.
void DrawCaption(Window& w, bool notToScale, double foot) {
  const double room = kFigureRoom * w.size;
  const double size = w.t.FontSize;
  w.t.FontSize =
      w.options.report ? std::max(0.85 * size, std::min(kReportLetters, size)) : 0.85 * size;
  w.labels.Fix({{notToScale ? "Figure not to scale" : "Figure to scale", Role::Quiet}},
               {0.02 * room, foot - w.labels.LineHeight() - 0.005 * room});
  w.t.FontSize = size;
}

}  // namespace

Point FigureOrigin(double H, double W) {
  const double room = kFigureRoom * (W > H ? W : H);
  return {(room - W) * 0.5, (room - H) * 0.5};
}

std::string_view ReportLetter(int profileType, std::string_view letter) {
  const Family* family = FindFamily(profileType);
  return family != nullptr && letter == "tw" ? family->words.wall : letter;
}

void DrawSectionFigure(DrawingTarget& target, const Box& place, Destination destination,
                       const ProjectState& st, const SectionRecord& rec,
                       const FigureOptions& options) {
  if (destination == Destination::Picture) target.Clear();
  const bool notToScale = st.FigureNotToScale == 1;
  SectionShape shape = ShapeOfSection(st, rec, notToScale, kArcSteps);
  if (options.report) {
    for (SectionDimension& d : shape.dimensions) d.letter = ReportLetter(st.ProfileType, d.letter);
  }
  const double size = shape.Greatest();
  if (size <= 0) return;
  const double room = kFigureRoom * size;
  const Box square = target.FitInside(place, 1, 1);
  const double below = options.report ? place.bottom - square.bottom : 0;
  const double foot = room * (1 + below / square.Height());
  const ScopedFrame frame(target, square, Box::At(0, 0, room, room));
  target.FontName = "Arial";
  target.FontBold = target.FontUnderline = false;
  target.SetTextUnits(kText * size);
  if (options.report) target.FontSize = std::max(double(target.FontSize), kReportLetters);
  Window w{target,
           shape,
           LabelPlacer(target, Box::At(0, 0, room, room)),
           FigureOrigin(shape.H, shape.W),
           size,
           options};
  if (shape.HasOutline()) {
    DrawSteel(w);
  } else {
    DrawUnknown(w, st.p41_name);
  }
  if (options.caption && shape.HasOutline()) DrawCaption(w, notToScale, foot);
  DrawAxes(w);
  if (shape.principal) DrawPrincipalAxes(w);
  DrawCentroid(w);
  if (options.dimensions) DrawDimensions(w);
}

}  // namespace korvane
