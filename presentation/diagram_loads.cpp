// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cmath>

#include "presentation/diagram_sheet.h"
#include "presentation/load_items.h"
#include "presentation/position_row.h"
#include "presentation/symbols.h"
#include "presentation/text_metrics.h"

namespace korvane {
namespace {

constexpr double kBandTotal = 12;  // greatest height of all bands of one side together
constexpr double kBandMost = 5;    // greatest height of one band
constexpr double kBandLeast = 1;
constexpr double kArrowLeast = 2.2;  // point load above the bands
constexpr double kArrowMore = 4;     // what the greatest point load has above that
constexpr double kMomentMore = 0.9;  // what the greatest moment's radius has above the least
constexpr double kMomentGap = 0.5;   // between two moments' arrows
constexpr double kSupport = 2.8;
constexpr double kWall = 0.6 * kSupport;  // what a fixed support has above the member
constexpr double kHeadShare = 0.7;        // greatest part of an arrow that is its head
constexpr double kRise = 1.2;  // from the arrows to a row of values that had to move apart

const char* TitleOf(Plane plane, bool variable) {
  constexpr const char* titles[2][2] = {
      {"Permanent load - z-axis: (kN/kNm)", "Variable load - z-axis: (kN/kNm)"},
      {"Permanent load - y-axis: (kN/kNm)", "Variable load - y-axis: (kN/kNm)"}};
  return titles[plane == Plane::Z ? 0 : 1][variable ? 1 : 0];
}

// Heights of the picture, grid units.
struct Layout {
  double band = 0;   // height of the greatest ordinate of a layer
  double layer = 0;  // from one layer to the next: band and the line of its values
  double above = 0, below = 0;
  double positions = 0;

  double Bands(int layers) const { return layers * layer; }
};

// Radius of the least moment: its arrow head is as long as the others.
double LeastRadius(const DiagramStyle& style) {
  return std::max(1.5, LeastHead(style) / kMomentHead);
}

double MomentRoom(const LoadItems& items, const DiagramStyle& style) {
  return items.greatestM > 0 ? LeastRadius(style) + kMomentMore + 0.6 : 0;
}

// Length of the least point load's arrow, which its head must not fill.
double LeastArrow(const DiagramStyle& style) {
  return std::max(kArrowLeast, LeastHead(style) / kHeadShare);
}

// Number and greatest size of the point loads of one side, and the rows that their values need.
struct PointSide {
  int count = 0, rows = 1;
  double greatest = 0;
};

std::vector<LabelRun> Runs(double value, const char* tag) {
  std::vector<LabelRun> runs = {{DiagramNumber(value)}};
  if (*tag) runs.push_back({std::string(" ") + tag, Role::Quiet});
  return runs;
}

PointSide PointsOf(const LoadItems& items, bool upward, const DiagramStyle& style) {
  PointSide side;
  double width = 0;
  for (const PointLoad& load : items.points) {
    if (load.moment || (load.value < 0) != upward) continue;
    ++side.count;
    side.greatest = std::max(side.greatest, std::fabs(load.value));
    for (const LabelRun& run : Runs(load.value, load.tag)) {
      width += ArialWidth(run.text, false) * style.text / style.pen;
    }
    width += 0.3 * style.text / style.pen;
  }
  side.rows = std::clamp(static_cast<int>(std::ceil(width / kPictureWidth)), 1, 4);
  return side;
}

double SideRoom(const LoadItems& items, const Layout& layout, bool upward,
                const DiagramStyle& style) {
  double room = layout.Bands(upward ? items.layersBelow : items.layersAbove);
  const PointSide points = PointsOf(items, upward, style);
  if (points.count > 0) {
    room += LeastArrow(style) + kArrowMore * points.greatest / items.greatestP +
            points.rows * LineOf(style) + (points.count > 1 ? kRise : 0);
  }
  return std::max(room, MomentRoom(items, style) + (upward ? 0 : LineOf(style)));
}

Layout LayoutOf(const LoadItems& items, const DiagramStyle& style) {
  Layout layout;
  const int layers = std::max({1, items.layersAbove, items.layersBelow});
  layout.band = std::max(std::min(kBandMost, kBandTotal / layers), LeastHead(style) / kHeadShare);
  layout.layer = layout.band + LineOf(style) + 0.3;
  // The wall of a fixed support reaches above the member too: the title stays clear of it.
  layout.above = std::max(kWall + 0.5, SideRoom(items, layout, false, style));
  layout.below = std::max(kSupport + 0.6, SideRoom(items, layout, true, style));
  layout.positions = PositionRowHeight(items.Positions().size(), style.text);
  return layout;
}

struct Picture {
  DiagramSheet& sheet;
  const LoadItems& items;
  const Layout& layout;
  const DiagramStyle& style;
  double axis;
};

// Height of an ordinate in its band; what is not 0 can be seen.
double BandHeight(const Picture& p, double q) {
  if (q == 0 || p.items.greatestQ == 0) return 0;
  return std::max(kBandLeast, p.layout.band * std::fabs(q) / p.items.greatestQ);
}

// More intensity, more arrows: their distance runs from 2.2 to 4.4 grid units.
int ArrowCount(const Picture& p, const DistributedLoad& load, double length) {
  const double share = (std::fabs(load.q1) + std::fabs(load.q2)) / 2 / p.items.greatestQ;
  const double spacing = 4.4 - 2.2 * std::min(1., share);
  return std::max(2, static_cast<int>(std::lround(length / spacing)) + 1);
}

void DrawBandArrows(const Picture& p, const DistributedLoad& load, double base, double sign) {
  DrawingTarget& t = p.sheet.Target();
  const double x1 = p.sheet.X(load.x1);
  const double x2 = p.sheet.X(load.x2);
  const double h1 = BandHeight(p, load.q1);
  const double h2 = BandHeight(p, load.q2);
  const int count = ArrowCount(p, load, x2 - x1);
  p.sheet.Pen(Role::Second, 0.12);
  for (int i = 0; i < count; ++i) {
    const double f = static_cast<double>(i) / (count - 1);
    const double h = h1 + f * (h2 - h1);
    if (h < 0.7) continue;
    const double x = x1 + f * (x2 - x1);
    DrawArrow(t, {x, base + sign * h}, {x, base},
              std::min(std::max(p.sheet.Sign(0.9), LeastHead(p.style)), kHeadShare * h));
  }
}

void LabelBand(const Picture& p, const DistributedLoad& load, double base, double sign) {
  const Side side = sign < 0 ? Side::Above : Side::Below;
  p.sheet.Pen(Role::Ink, 0.1);
  const auto place = [&](double x, double q, const char* tag, double slide = 0) {
    const Point anchor{p.sheet.X(x), base + sign * BandHeight(p, q)};
    p.sheet.Labels().Place({Runs(q, tag), anchor, side, 0.15, true, slide});
  };
  // One value for the whole stretch stands anywhere along it.
  const double slide = 0.3 * (p.sheet.X(load.x2) - p.sheet.X(load.x1));
  if (load.q1 == load.q2) return place((load.x1 + load.x2) / 2, load.q1, load.tag, slide);
  place(load.x1, load.q1, load.tag);
  place(load.x2, load.q2, load.tag);
}

double BandBase(const Picture& p, const DistributedLoad& load, double sign) {
  return p.axis + sign * p.layout.Bands(load.layer);
}

void DrawBand(const Picture& p, const DistributedLoad& load) {
  DrawingTarget& t = p.sheet.Target();
  const double sign = load.Upward() ? 1 : -1;  // the side of the member, y down
  const double base = BandBase(p, load, sign);
  const double x1 = p.sheet.X(load.x1);
  const double x2 = p.sheet.X(load.x2);
  const Point top1{x1, base + sign * BandHeight(p, load.q1)};
  const Point top2{x2, base + sign * BandHeight(p, load.q2)};
  const Point corners[] = {{x1, base}, top1, top2, {x2, base}};
  p.sheet.Pen(Role::Second, 0.14);
  t.FillColor = Role::Second;
  t.FillOpacity = 0.12;
  t.Polygon(corners, Paint::Both);
  p.sheet.Labels().Avoid(top1, top2);
  if (load.layer > 0) p.sheet.Labels().Avoid({x1, base}, {x2, base});
  DrawBandArrows(p, load, base, sign);
}

// Tail of a point load's arrow: above the bands, higher for the greater load.
double ArrowTail(const Picture& p, const PointLoad& load) {
  const bool upward = load.value < 0;
  const double bands = p.layout.Bands(upward ? p.items.layersBelow : p.items.layersAbove);
  const double length =
      bands + LeastArrow(p.style) + kArrowMore * std::fabs(load.value) / p.items.greatestP;
  return p.axis + (upward ? length : -length);
}

void DrawPointLoad(const Picture& p, const PointLoad& load) {
  DrawingTarget& t = p.sheet.Target();
  const double x = p.sheet.X(load.x);
  const double tail = ArrowTail(p, load);
  p.sheet.Pen(Role::Accent, 0.32);
  const double head = std::min(std::max(p.sheet.Sign(1.7), LeastHead(p.style)),
                               kHeadShare * std::fabs(p.axis - tail));
  DrawArrow(t, {x, tail}, {x, p.axis}, head);
  p.sheet.Labels().Avoid({x, tail}, {x, p.axis});
}

// A moment with the place of its arrow: those of one position stand side by side.
struct PlacedMoment {
  const PointLoad* load;
  double radius, centre;
};

std::vector<PlacedMoment> PlaceMoments(const Picture& p) {
  std::vector<PlacedMoment> moments;
  for (const PointLoad& load : p.items.points) {
    if (!load.moment) continue;
    const double share = std::fabs(load.value) / p.items.greatestM;
    moments.push_back({&load, LeastRadius(p.style) + kMomentMore * share, 0});
  }
  std::stable_sort(
      moments.begin(), moments.end(),
      [](const PlacedMoment& a, const PlacedMoment& b) { return a.load->x < b.load->x; });
  const DrawingTarget& t = p.sheet.Target();
  std::vector<double> wanted, widths;
  for (const PlacedMoment& m : moments) {
    wanted.push_back(p.sheet.X(m.load->x));
    widths.push_back(t.Across(2 * m.radius));
  }
  const std::vector<double> centres = SpreadInRow(wanted, widths, t.Across(kMomentGap),
                                                  p.sheet.Bounds().left, p.sheet.Bounds().right);
  for (std::size_t i = 0; i < moments.size(); ++i) moments[i].centre = centres[i];
  return moments;
}

void DrawMoment(const Picture& p, const PlacedMoment& moment) {
  DrawingTarget& t = p.sheet.Target();
  const Point c{moment.centre, p.axis};
  const double radius = moment.radius;
  p.sheet.Pen(Role::Accent, 0.28);
  DrawMomentArrow(t, c, radius, moment.load->value > 0);
  t.FillColor = Role::Accent;
  t.FillOpacity = 1;
  t.Circle({p.sheet.X(moment.load->x), p.axis}, 0.35, Paint::Filled);
  const Point low = Beside(t, c, -radius, -radius);
  const Point high = Beside(t, c, radius, radius);
  p.sheet.Labels().Avoid(low, {high.x, low.y});
  p.sheet.Labels().Avoid(low, {low.x, high.y});
  p.sheet.Labels().Avoid({high.x, low.y}, high);
}

void LabelMoment(const Picture& p, const PlacedMoment& moment) {
  p.sheet.Pen(Role::Ink, 0.1);
  p.sheet.Labels().Place({Runs(moment.load->value, moment.load->tag),
                          {moment.centre, p.axis - moment.radius},
                          Side::Above,
                          p.sheet.Gap(),
                          true});
}

// The values of one side's point loads: each at the tail of its arrow; where they would stand
// over each other they move apart into a row, in the order of the arrows.
void LabelPointLoads(const Picture& p, bool upward) {
  DrawingTarget& t = p.sheet.Target();
  LabelPlacer& labels = p.sheet.Labels();
  std::vector<const PointLoad*> loads;
  for (const PointLoad& load : p.items.points) {
    if (!load.moment && (load.value < 0) == upward) loads.push_back(&load);
  }
  std::stable_sort(loads.begin(), loads.end(),
                   [](const PointLoad* a, const PointLoad* b) { return a->x < b->x; });
  const double gap = t.Across(0.25 * labels.LineHeight());
  std::vector<double> wanted, widths;
  double end = p.axis;
  for (const PointLoad* load : loads) {
    wanted.push_back(p.sheet.X(load->x));
    widths.push_back(labels.WidthOf(Runs(load->value, load->tag)));
    const double tail = ArrowTail(p, *load);
    end = upward ? std::max(end, tail) : std::min(end, tail);
  }
  const std::size_t rows = static_cast<std::size_t>(PointsOf(p.items, upward, p.style).rows);
  std::vector<double> centres(loads.size());
  for (std::size_t row = 0; row < rows; ++row) {
    std::vector<double> own, ownWidths;
    for (std::size_t i = row; i < loads.size(); i += rows) {
      own.push_back(wanted[i]);
      ownWidths.push_back(widths[i]);
    }
    const std::vector<double> spread =
        SpreadInRow(own, ownWidths, gap, p.sheet.Bounds().left, p.sheet.Bounds().right);
    for (std::size_t i = row, k = 0; i < loads.size(); i += rows, ++k) centres[i] = spread[k];
  }
  const double height = labels.LineHeight();
  for (std::size_t i = 0; i < loads.size(); ++i) {
    const double tail = ArrowTail(p, *loads[i]);
    const bool moved = rows > 1 || std::fabs(centres[i] - wanted[i]) > 0.1 * widths[i];
    const double rise = kRise + static_cast<double>(i % rows) * LineOf(p.style);
    const double edge = moved ? end + (upward ? rise : -rise) : tail + (upward ? 0.2 : -0.2);
    if (moved) {
      p.sheet.Pen(Role::Quiet, 0.08);
      t.Line({wanted[i], tail}, {wanted[i], end});
      t.Line({wanted[i], end}, {centres[i], edge});
      labels.Avoid({wanted[i], end}, {centres[i], edge});
    }
    labels.Fix(Runs(loads[i]->value, loads[i]->tag),
               {centres[i] - widths[i] / 2, upward ? edge : edge - height});
  }
}

void DrawMember(const Picture& p, const ProjectState& st) {
  DrawingTarget& t = p.sheet.Target();
  p.sheet.Pen(Role::Ink, 0.16);
  const Point left{p.sheet.X(0), p.axis};
  const Point right{p.sheet.X(1), p.axis};
  DrawSupports(t, st.SupportType, left, right, 0, kSupport);
  p.sheet.Pen(Role::Ink, 0.45);
  t.Line(left, right);
  p.sheet.Labels().Avoid(left, right);
}

}  // namespace

double LoadsHeight(const ProjectState& st, Plane plane, bool variable, const DiagramStyle& style) {
  const LoadItems items = CollectLoads(st, plane, variable);
  const Layout layout = LayoutOf(items, style);
  return LineOf(style) + layout.above + layout.below + layout.positions;
}

void DrawLoads(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
               Plane plane, bool variable, const DiagramStyle& style) {
  const LoadItems items = CollectLoads(st, plane, variable);
  const Layout layout = LayoutOf(items, style);
  DiagramSheet sheet(target, origin, style, LoadsHeight(st, plane, variable, style));
  sheet.Title(TitleOf(plane, variable), origin.y);
  const Picture p{sheet, items, layout, style, origin.y + LineOf(style) + layout.above};
  for (const DistributedLoad& load : items.distributed) DrawBand(p, load);
  DrawMember(p, st);
  const std::vector<PlacedMoment> moments = PlaceMoments(p);
  for (const PlacedMoment& moment : moments) DrawMoment(p, moment);
  for (const PointLoad& load : items.points) {
    if (!load.moment) DrawPointLoad(p, load);
  }
  DrawPositionRow(sheet, items.Positions(), st.L, p.axis + layout.below, style.text);
  for (const bool upward : {false, true}) LabelPointLoads(p, upward);
  for (const PlacedMoment& moment : moments) LabelMoment(p, moment);
  for (const DistributedLoad& load : items.distributed) {
    const double sign = load.Upward() ? 1 : -1;
    LabelBand(p, load, BandBase(p, load, sign), sign);
  }
}

}  // namespace korvane
