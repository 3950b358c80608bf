// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/label_placer.h"

#include <cmath>

#include "presentation/text_metrics.h"

namespace korvane {
namespace {

// Moves that are tried, in line heights, nearest first.
struct Move {
  double dx, dy, distance;
};

const std::vector<Move>& Moves() {
  static const std::vector<Move> moves = [] {
    std::vector<Move> all;
    for (int i = -48; i <= 48; ++i) {
      for (int j = -20; j <= 20; ++j) {
        const double dx = i * 0.5;
        const double dy = j * 0.25;
        // A label reads better beside its point than a line further away.
        all.push_back({dx, dy, std::hypot(dx * 0.8, dy)});
      }
    }
    std::stable_sort(all.begin(), all.end(),
                     [](const Move& a, const Move& b) { return a.distance < b.distance; });
    return all;
  }();
  return moves;
}

constexpr double kCrossing = 3;       // cost of standing on a line
constexpr double kOutside = 50;       // leaving the bounds, per line height
constexpr double kOverlapping = 1e3;  // standing on another label
constexpr double kTooMuch = 1e9;

}  // namespace

LabelPlacer::LabelPlacer(DrawingTarget& target, const Box& bounds)
    : target_(target), bounds_(bounds) {}

void LabelPlacer::Avoid(Point a, Point b) {
  lines_.push_back({a, b});
}

void LabelPlacer::Avoid(const std::vector<Point>& polyline) {
  for (std::size_t i = 1; i < polyline.size(); ++i) Avoid(polyline[i - 1], polyline[i]);
}

double LabelPlacer::LineHeight() const {
  return (kArialAscent + kArialDescent) * target_.FontSize / target_.UnitY();
}

double LabelPlacer::WidthOf(const std::vector<LabelRun>& runs) const {
  double width = 0;
  for (const LabelRun& run : runs) {
    width += ArialWidth(run.text, run.bold) * target_.FontSize / target_.UnitX();
  }
  return width;
}

Box LabelPlacer::Preferred(const Label& label, double width) const {
  const double height = LineHeight();
  const double across = target_.Across(label.gap);
  const Point p = label.anchor;
  const Box centred = Box::At(p.x - width / 2, p.y - height / 2, width, height);
  switch (label.side) {
    case Side::Above:
      return centred.Moved(0, -height / 2 - label.gap);
    case Side::Below:
      return centred.Moved(0, height / 2 + label.gap);
    case Side::Left:
      return centred.Moved(-width / 2 - across, 0);
    case Side::Right:
      return centred.Moved(width / 2 + across, 0);
    case Side::Centre:
      break;
  }
  return centred;
}

// Cost of a place apart from its distance; stops counting above the least cost known.
double LabelPlacer::Cost(const Box& r, double least) const {
  const double height = LineHeight();
  const double over = std::max({0., bounds_.left - r.left, r.right - bounds_.right}) +
                      std::max({0., bounds_.top - r.top, r.bottom - bounds_.bottom});
  double cost = over > 1e-9 ? kOutside * (1 + over / height) : 0;
  const Box air = r.Grown(target_.Across(0.4 * height), 0);
  for (const Box& k : kept_) {
    if (cost >= least) return cost;
    if (air.Overlaps(k)) cost += kOverlapping;
  }
  for (const Segment& s : lines_) {
    if (cost >= least) return cost;
    if (Meets(s.a, s.b, r)) cost += kCrossing;
  }
  return cost;
}

LabelPlacer::Candidate LabelPlacer::BestPlace(const Box& preferred) const {
  const double step = LineHeight();
  Candidate best{preferred, kTooMuch};
  for (const Move& m : Moves()) {
    if (m.distance >= best.cost) break;
    const Box r = preferred.Moved(target_.Across(m.dx * step), m.dy * step);
    const double cost = m.distance + Cost(r, best.cost - m.distance);
    if (cost < best.cost) best = {r, cost};
  }
  return best;
}

Box LabelPlacer::Place(const Label& label) {
  Box preferred = Preferred(label, WidthOf(label.runs));
  Candidate place = BestPlace(preferred);
  if (label.slide > 0 && place.cost > 0) {
    const Box middle = preferred;
    for (const double share : {-0.5, 0.5, -1., 1.}) {
      const Box wanted = middle.Moved(share * label.slide, 0);
      const Candidate other = BestPlace(wanted);
      if (other.cost >= place.cost) continue;
      place = other;
      preferred = wanted;
    }
  }
  const Box box = place.box;
  const double height = LineHeight();
  const double moved = std::hypot((box.left - preferred.left) / target_.Across(height),
                                  (box.top - preferred.top) / height);
  if (label.leader && moved > 0.8) DrawLeader(label, box);
  Draw(label.runs, {box.left, box.top});
  Keep(box);
  return box;
}

Box LabelPlacer::Fix(const std::vector<LabelRun>& runs, Point topLeft) {
  const Box box = Box::At(topLeft.x, topLeft.y, WidthOf(runs), LineHeight());
  Draw(runs, topLeft);
  Keep(box);
  return box;
}

void LabelPlacer::Draw(const std::vector<LabelRun>& runs, Point topLeft) {
  target_.CurrentX = topLeft.x;
  target_.CurrentY = topLeft.y;
  const DrawingState before = target_;
  for (const LabelRun& run : runs) {
    target_.ForeColor = run.colour;
    target_.FontBold = run.bold;
    target_.Print(run.text);
  }
  target_.ForeColor = before.ForeColor;
  target_.FontBold = before.FontBold;
}

void LabelPlacer::DrawLeader(const Label& label, const Box& box) {
  const Role before = target_.ForeColor;
  target_.ForeColor = Role::Quiet;
  const Point end{std::clamp(label.anchor.x, box.left, box.right),
                  std::clamp(label.anchor.y, box.top, box.bottom)};
  target_.Line(label.anchor, end);
  Avoid(label.anchor, end);
  target_.ForeColor = before;
}

std::vector<double> SpreadInRow(const std::vector<double>& wanted,
                                const std::vector<double>& widths, double gap, double low,
                                double high) {
  // Boxes that would overlap join into a block that stands at the mean of what its members
  // want; blocks that meet join again.
  struct Block {
    std::size_t first = 0, count = 0;
    double length = 0;  // with the gaps inside
    double sum = 0;     // of the left edges that the members want for the block
    double left = 0;
  };
  const auto settle = [&](Block& b) {
    b.left = b.sum / static_cast<double>(b.count);
    b.left = std::max(low, std::min(b.left, high - b.length));
  };
  std::vector<Block> blocks;
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    Block b{i, 1, widths.at(i), wanted[i] - widths[i] / 2, 0};
    settle(b);
    while (!blocks.empty() && blocks.back().left + blocks.back().length + gap > b.left) {
      const Block& before = blocks.back();
      const double shift = before.length + gap;
      Block joined{before.first, before.count + b.count, shift + b.length,
                   before.sum + b.sum - shift * static_cast<double>(b.count), 0};
      settle(joined);
      blocks.pop_back();
      b = joined;
    }
    blocks.push_back(b);
  }
  std::vector<double> centres(wanted.size());
  for (const Block& b : blocks) {
    double x = b.left;
    for (std::size_t i = b.first; i < b.first + b.count; ++i) {
      centres[i] = x + widths[i] / 2;
      x += widths[i] + gap;
    }
  }
  return centres;
}

}  // namespace korvane
