// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/chart.h"

#include <array>
#include <charconv>
#include <cmath>

#include "presentation/label_placer.h"
#include "presentation/text_metrics.h"

namespace korvane {

namespace {

// Widths of lines and sizes of signs in ems of the letters.
constexpr double kThin = 0.05;
constexpr double kCurve = 0.1;
constexpr double kStrong = 0.6;
constexpr double kSample = 1.7;  // of a curve, ahead of its name
constexpr double kTick = 0.35;
constexpr double kDot = 0.28;
constexpr double kFailOpacity = 0.07;
constexpr double kInsideOpacity = 0.12;

/// The digits of a round value at steps of so much.
std::string StepText(double value, double step) {
  if (std::fabs(value) < step * 1E-6) return "0";
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::general, 6)
                           .ptr};
}

/// The step of about so many round values.
double StepOf(const ChartRange& range, int wanted) {
  const double rough = range.Length() / std::max(1, wanted);
  const double power = std::pow(10.0, std::floor(std::log10(rough)));
  for (const double factor : {1.0, 2.0, 5.0}) {
    if (rough <= factor * power * (1 + 1E-9)) return factor * power;
  }
  return 10 * power;
}

class Sheet {
public:
  Sheet(DrawingTarget& target, const Box& place, const Chart& chart, double letters)
      : target_(target), chart_(chart), letters_(letters), plot_(PlotOf(place, chart, letters)) {}

  static Box PlotOf(const Box& place, const Chart& chart, double letters) {
    double names = 0;
    for (const ChartLine& line : chart.lines) {
      if (!line.closed) names = std::max(names, ArialWidth(line.name, false));
    }
    const double head = (chart.title.empty() ? 0 : 1.6) + (chart.below.empty() ? 0 : 1.4) + 1.9;
    Box plot{place.left + 4.2 * letters, place.top + head * letters,
             place.right - (names + (names > 0 ? 3.4 : 1.4)) * letters,
             place.bottom - 3.2 * letters};
    plot.right = std::max(plot.right, plot.left + letters);
    plot.bottom = std::max(plot.bottom, plot.top + letters);
    return plot;
  }

  void Draw(const Box& place) {
    target_.FontName = "Arial";
    target_.FontBold = target_.FontUnderline = false;
    target_.SetTextUnits(letters_);
    Head(place);
    for (const ChartCell& cell : chart_.cells) DrawCell(cell);
    Fails();
    Axes();
    // Names and marks keep off what is drawn ahead of them.
    LabelPlacer labels(target_, {plot_.left, plot_.top, place.right, plot_.bottom});
    Present(labels);
    Limit(labels);
    for (const bool strong : {true, false}) {
      for (const ChartLine& line : chart_.lines) {
        if (line.strong == strong) DrawLine(line, labels);
      }
    }
    Names(labels);
    for (const ChartMark& mark : chart_.marks) DrawMark(mark, labels);
  }

private:
  double X(double value) const {
    return plot_.left + plot_.Width() * (value - chart_.x.low) / chart_.x.Length();
  }
  double Y(double value) const {
    return plot_.bottom - plot_.Height() * (value - chart_.y.low) / chart_.y.Length();
  }
  Point At(Point value) const { return {X(value.x), Y(value.y)}; }

  void Pen(Role colour, double width, Dash dash = Dash::Solid) {
    target_.ForeColor = colour;
    target_.LineDash = dash;
    target_.SetLineUnits(width * letters_);
  }
  void Ground(Role colour, double opacity) {
    target_.FillColor = colour;
    target_.FillOpacity = opacity;
  }
  void Write(Point topLeft, const std::string& text) {
    target_.CurrentX = topLeft.x;
    target_.CurrentY = topLeft.y;
    target_.Print(text);
  }
  double WidthOf(const std::string& text) const { return target_.TextWidth(text); }

  void Head(const Box& place) {
    double y = place.top;
    Pen(Role::Ink, kThin);
    if (!chart_.title.empty()) {
      target_.FontBold = true;
      Write({place.left + 0.5 * letters_, y}, chart_.title);
      target_.FontBold = false;
      y += 1.6 * letters_;
    }
    if (!chart_.below.empty()) {
      Write({place.left + 0.5 * letters_, y}, chart_.below);
      y += 1.4 * letters_;
    }
    Pen(Role::Quiet, kThin);
    Write({place.left + 0.5 * letters_, plot_.top - 1.85 * letters_}, chart_.yName);
    Write({plot_.right - WidthOf(chart_.xName), plot_.bottom + 1.75 * letters_}, chart_.xName);
  }

  void DrawCell(const ChartCell& cell) {
    // Quarters of what may be used, and what is beyond in two steps.
    const double share = cell.share;
    const bool fails = share > 1;
    const double step = fails ? (share > 1.5 ? 2 : 1) : std::floor(std::max(0.0, share) * 4);
    Ground(fails ? Role::Fail : Role::Pass, fails ? 0.2 * step : 0.04 + 0.1 * step);
    const std::array<Point, 4> corners{Point{X(cell.place.left), Y(cell.place.top)},
                                       Point{X(cell.place.right), Y(cell.place.top)},
                                       Point{X(cell.place.right), Y(cell.place.bottom)},
                                       Point{X(cell.place.left), Y(cell.place.bottom)}};
    target_.Polygon(corners, Paint::Filled);
  }

  void Fails() {
    if (!chart_.limit || *chart_.limit >= chart_.y.high) return;
    Ground(Role::Fail, kFailOpacity);
    const double y = Y(std::max(*chart_.limit, chart_.y.low));
    const std::array<Point, 4> corners{Point{plot_.left, plot_.top}, Point{plot_.right, plot_.top},
                                       Point{plot_.right, y}, Point{plot_.left, y}};
    target_.Polygon(corners, Paint::Filled);
  }

  void Axes() {
    const double tick = kTick * letters_;
    const int across = std::max(2, static_cast<int>(plot_.Width() / (6 * letters_)));
    const int up = std::max(2, static_cast<int>(plot_.Height() / (3 * letters_)));
    for (const double value : RoundSteps(chart_.x, across)) {
      const double x = X(value);
      Pen(Role::Fill, kThin);
      target_.Line({x, plot_.top}, {x, plot_.bottom});
      Pen(Role::Ink, kThin);
      target_.Line({x, plot_.bottom}, {x, plot_.bottom + tick});
      const std::string text = StepText(value, StepOf(chart_.x, across));
      Write({x - WidthOf(text) / 2, plot_.bottom + 0.45 * letters_}, text);
    }
    for (const double value : RoundSteps(chart_.y, up)) {
      const double y = Y(value);
      Pen(Role::Fill, kThin);
      target_.Line({plot_.left, y}, {plot_.right, y});
      Pen(Role::Ink, kThin);
      target_.Line({plot_.left - tick, y}, {plot_.left, y});
      const std::string text = StepText(value, StepOf(chart_.y, up));
      Write({plot_.left - 0.6 * letters_ - WidthOf(text), y - kArialLine * letters_ / 2}, text);
    }
    Pen(Role::Ink, kThin);
    target_.Line({plot_.left, plot_.bottom}, {plot_.right, plot_.bottom});
    target_.Line({plot_.left, plot_.top}, {plot_.left, plot_.bottom});
    Pen(Role::Quiet, 2 * kThin);
    if (chart_.x.low < 0 && chart_.x.high > 0) {
      target_.Line({X(0), plot_.top}, {X(0), plot_.bottom});
    }
    if (chart_.y.low < 0 && chart_.y.high > 0) {
      target_.Line({plot_.left, Y(0)}, {plot_.right, Y(0)});
    }
  }

  void Present(LabelPlacer& labels) {
    if (!chart_.present || *chart_.present < chart_.x.low || *chart_.present > chart_.x.high) {
      return;
    }
    const double x = X(*chart_.present);
    Pen(Role::Quiet, 2 * kThin, Dash::Dashed);
    target_.Line({x, plot_.top}, {x, plot_.bottom});
    labels.Avoid({x, plot_.top}, {x, plot_.bottom});
    Pen(Role::Ink, kThin);
    labels.Place(
        {{{chart_.presentName}}, {x, plot_.bottom - letters_}, Side::Right, 0.4 * letters_});
  }

  void Limit(LabelPlacer& labels) {
    if (!chart_.limit || *chart_.limit < chart_.y.low || *chart_.limit > chart_.y.high) return;
    const double y = Y(*chart_.limit);
    Pen(Role::Fail, kCurve);
    target_.Line({plot_.left, y}, {plot_.right, y});
    labels.Avoid({plot_.left, y}, {plot_.right, y});
    const double width = WidthOf(chart_.limitName);
    labels.Fix({{chart_.limitName, Role::Fail}},
               {plot_.left + std::min(0.5 * letters_, plot_.Width() - width),
                y - (kArialAscent + kArialDescent + 0.1) * letters_});
  }

  /// The stretches of a run inside the plot.
  std::vector<std::vector<Point>> Inside(const std::vector<Point>& run) const {
    std::vector<std::vector<Point>> parts;
    for (std::size_t i = 0; i + 1 < run.size(); ++i) {
      Point a = run[i];
      Point b = run[i + 1];
      const bool seen = Clip(a, b);
      if (!seen) continue;
      if (parts.empty() || !(parts.back().back() == a)) parts.push_back({a});
      parts.back().push_back(b);
    }
    return parts;
  }

  /// Cuts a stretch at the ranges of both axes, Liang and Barsky's way; false where nothing is
  /// left.
  bool Clip(Point& a, Point& b) const {
    const Point d{b.x - a.x, b.y - a.y};
    double from = 0;
    double to = 1;
    const std::array<std::array<double, 2>, 4> borders{{{-d.x, a.x - chart_.x.low},
                                                        {d.x, chart_.x.high - a.x},
                                                        {-d.y, a.y - chart_.y.low},
                                                        {d.y, chart_.y.high - a.y}}};
    for (const auto& [toward, room] : borders) {
      if (toward == 0) {
        if (room < 0) return false;
        continue;
      }
      const double share = room / toward;
      (toward < 0 ? from : to) = toward < 0 ? std::max(from, share) : std::min(to, share);
    }
    if (from > to) return false;
    const Point start = a;
    if (to < 1) b = {start.x + d.x * to, start.y + d.y * to};
    if (from > 0) a = {start.x + d.x * from, start.y + d.y * from};
    return true;
  }

  void DrawLine(const ChartLine& line, LabelPlacer& labels) {
    for (const std::vector<Point>& run : line.runs) {
      if (line.closed) {
        std::vector<Point> corners;
        for (const Point& p : run) corners.push_back(At(p));
        Ground(line.colour, kInsideOpacity);
        Pen(line.colour, kCurve, line.dash);
        target_.Polygon(corners, Paint::Both);
        continue;
      }
      for (const std::vector<Point>& part : Inside(run)) {
        std::vector<Point> points;
        points.reserve(part.size());
        for (const Point& p : part) points.push_back(At(p));
        Pen(line.colour, line.strong ? kStrong : kCurve, line.dash);
        target_.Polyline(points);
        if (!line.strong) labels.Avoid(Thinned(points));
      }
    }
  }

  /// As many points as labels need to see where a curve runs.
  static std::vector<Point> Thinned(const std::vector<Point>& points) {
    constexpr std::size_t enough = 40;
    const std::size_t step = points.size() / enough + 1;
    std::vector<Point> some;
    for (std::size_t i = 0; i < points.size(); i += step) some.push_back(points[i]);
    if ((points.size() - 1) % step != 0) some.push_back(points.back());
    return some;
  }

  /// The names of the curves at their right ends, none over another.
  void Names(LabelPlacer& labels) {
    struct End {
      const ChartLine* line;
      Point at;
    };
    std::vector<End> ends;
    for (const ChartLine& line : chart_.lines) {
      if (line.closed || line.name.empty()) continue;
      const Point* last = nullptr;
      std::vector<Point> part;
      for (auto run = line.runs.rbegin(); run != line.runs.rend() && last == nullptr; ++run) {
        auto parts = Inside(*run);
        if (parts.empty()) continue;
        part = std::move(parts.back());
        last = &part.back();
      }
      if (last != nullptr) ends.push_back({&line, At(*last)});
    }
    std::sort(ends.begin(), ends.end(), [](const End& a, const End& b) { return a.at.y < b.at.y; });
    std::vector<double> wanted;
    for (const End& end : ends) wanted.push_back(end.at.y);
    const double height = labels.LineHeight();
    const std::vector<double> centres =
        SpreadInRow(wanted, std::vector<double>(ends.size(), height), 0, plot_.top, plot_.bottom);
    for (std::size_t i = 0; i < ends.size(); ++i) {
      // A curve that ends inside, where it is cut off, is known by the sample ahead of its name.
      const double left = plot_.right + 0.9 * letters_;
      const double right = left + kSample * letters_;
      Pen(ends[i].line->colour, kThin);
      if (ends[i].at.x > plot_.right - kThin) target_.Line(ends[i].at, {left, centres[i]});
      Pen(ends[i].line->colour, kCurve, ends[i].line->dash);
      target_.Line({left, centres[i]}, {right, centres[i]});
      labels.Fix({{ends[i].line->name, ends[i].line->colour}},
                 {right + 0.3 * letters_, centres[i] - height / 2});
    }
  }

  void DrawMark(const ChartMark& mark, LabelPlacer& labels) {
    const Point at = At(mark.at);
    if (mark.at.x < chart_.x.low || mark.at.x > chart_.x.high || mark.at.y < chart_.y.low ||
        mark.at.y > chart_.y.high) {
      return;
    }
    if (mark.upright) {
      Pen(mark.colour, 2 * kThin, Dash::Dotted);
      target_.Line(at, {at.x, plot_.bottom});
    }
    Pen(mark.colour, kThin);
    Ground(mark.colour, 1);
    target_.Circle(at, kDot * letters_, Paint::Filled);
    if (mark.text.empty()) return;
    Pen(Role::Ink, kThin);
    labels.Place({{{mark.text, mark.colour, true}}, at, Side::Above, 0.6 * letters_, true});
  }

  DrawingTarget& target_;
  const Chart& chart_;
  double letters_;
  Box plot_;
};

}  // namespace

std::vector<double> RoundSteps(const ChartRange& range, int wanted) {
  std::vector<double> values;
  if (!(range.Length() > 0) || !std::isfinite(range.Length())) return values;
  const double step = StepOf(range, wanted);
  for (double i = std::ceil(range.low / step - 1E-9); i * step <= range.high + step * 1E-9; ++i) {
    values.push_back(i * step);
  }
  return values;
}

void DrawChart(DrawingTarget& target, const Box& place, const Chart& chart, double letters) {
  const DrawingState before = target;
  Sheet(target, place, chart, letters).Draw(place);
  static_cast<DrawingState&>(target) = before;
}

double ValueAcross(const Box& place, const Chart& chart, double letters, double x) {
  const Box plot = Sheet::PlotOf(place, chart, letters);
  return chart.x.low + chart.x.Length() * (x - plot.left) / plot.Width();
}

}  // namespace korvane
