// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/study_charts.h"

#include <array>
#include <cmath>

#include "core/text.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

/// What tells curves apart on grey paper as well: colours and dashes in turn.
struct Look {
  Role colour;
  Dash dash;
};
constexpr std::array kLooks{Look{Role::Accent, Dash::Solid},  Look{Role::Second, Dash::Solid},
                            Look{Role::Ink, Dash::Dashed},    Look{Role::Accent, Dash::Dashed},
                            Look{Role::Second, Dash::Dashed}, Look{Role::Ink, Dash::Dotted},
                            Look{Role::Accent, Dash::Dotted}, Look{Role::Second, Dash::DashDot}};

Look LookOf(std::size_t i) {
  return kLooks.at(i % kLooks.size());
}

std::string NameWithUnit(const MemberInput& input) {
  const std::string unit = UnitOf(input);
  return unit.empty() ? input.name : input.name + " (" + unit + ")";
}

/// A curve through the samples that are there.
template <class Value>
ChartLine LineOf(const Curves& curves, std::string name, Look look, const Value& value) {
  ChartLine line;
  line.name = std::move(name);
  line.colour = look.colour;
  line.dash = look.dash;
  bool open = false;
  for (const CurveSample& sample : curves.samples) {
    if (!sample.there) {
      open = false;
      continue;
    }
    if (!open) line.runs.emplace_back();
    open = true;
    line.runs.back().push_back({sample.x, value(sample)});
  }
  return line;
}

double ValueOf(const CurveSample& sample, Drawn drawn) {
  return drawn == Drawn::Deflection ? std::max(sample.overZ, sample.overY) : sample.IR;
}

bool HasValues(const ChartLine& line) {
  for (const auto& run : line.runs) {
    for (const Point& p : run) {
      if (p.y > 0) return true;
    }
  }
  return false;
}

/// From zero to what is worth seeing: twice the limit at most.
ChartRange RatioRange(const std::vector<ChartLine>& lines, double limit) {
  double greatest = 0;
  for (const ChartLine& line : lines) {
    for (const auto& run : line.runs) {
      for (const Point& p : run) greatest = std::max(greatest, p.y);
    }
  }
  return {0, std::clamp(1.08 * greatest, 1.25 * limit, 2 * limit)};
}

/// Axes and limit of a chart of ratios.
Chart Begun(const Curves& curves, Drawn drawn, std::string title) {
  Chart chart;
  chart.title = std::move(title);
  chart.xName = NameWithUnit(curves.input);
  chart.yName = drawn == Drawn::Deflection ? "deflection / limit" : "IR";
  if (!curves.samples.empty()) chart.x = {curves.samples.front().x, curves.samples.back().x};
  if (!(chart.x.low < chart.x.high)) chart.x = {chart.x.low - 0.5, chart.x.low + 0.5};
  chart.limit = drawn == Drawn::Deflection ? 1.0 : curves.limit;
  chart.limitName = "limit " + Format(*chart.limit, "0.00");
  return chart;
}

void AddEach(const Curves& curves, Chart& chart) {
  for (std::size_t i = 0; i < kCurveChecks.size(); ++i) {
    ChartLine line = LineOf(curves, curves.names.at(i), LookOf(chart.lines.size()),
                            [i](const CurveSample& s) { return s.ratios.at(i); });
    if (HasValues(line)) chart.lines.push_back(std::move(line));
  }
  ChartLine greatest =
      LineOf(curves, "", {Role::Fill, Dash::Solid}, [](const CurveSample& s) { return s.IR; });
  greatest.strong = true;
  chart.lines.push_back(std::move(greatest));
}

void AddDeflections(const Curves& curves, Chart& chart) {
  const std::array planes{std::pair{"along z", &CurveSample::overZ},
                          std::pair{"along y", &CurveSample::overY}};
  for (const auto& [name, member] : planes) {
    ChartLine line = LineOf(curves, name, LookOf(chart.lines.size()),
                            [member = member](const CurveSample& s) { return s.*member; });
    if (HasValues(line)) chart.lines.push_back(std::move(line));
  }
}

/// Where the stretch between two samples of a row meets the limit.
Point Meeting(Point a, double va, Point b, double vb, double limit) {
  const double share = (limit - va) / (vb - va);
  return {a.x + (b.x - a.x) * share, a.y + (b.y - a.y) * share};
}

/// The line of the limit in a square of four samples, by marching around it.
void AddContour(const std::array<Point, 4>& corners, const std::array<double, 4>& values,
                double limit, ChartLine& line) {
  std::vector<Point> met;
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const std::size_t j = (i + 1) % corners.size();
    if ((values.at(i) > limit) == (values.at(j) > limit)) continue;
    met.push_back(Meeting(corners.at(i), values.at(i), corners.at(j), values.at(j), limit));
  }
  for (std::size_t i = 0; i + 1 < met.size(); i += 2) line.runs.push_back({met[i], met[i + 1]});
}

/// The middle between a value and its neighbour, or the value itself at an end.
double EdgeOf(std::span<const double> values, std::size_t i, int side) {
  const std::size_t j = side < 0 ? (i == 0 ? i : i - 1) : std::min(i + 1, values.size() - 1);
  return (values[i] + values[j]) / 2;
}

struct AxesNames {
  const char* title;
  const char* across;
  const char* up;
};

AxesNames NamesOf(InteractionAxes axes) {
  switch (axes) {
    case InteractionAxes::NMy:
      return {"N and My", "My (kNm)", "N (kN), compression positive"};
    case InteractionAxes::NMz:
      return {"N and Mz", "Mz (kNm)", "N (kN), compression positive"};
    case InteractionAxes::MyMz:
      break;
  }
  return {"My and Mz", "My (kNm)", "Mz (kNm)"};
}

/// A point of a diagram as it is drawn: the axial force upwards.
Point Placed(const EnvelopePoint& p, InteractionAxes axes) {
  return axes == InteractionAxes::MyMz ? Point{p.a, p.b} : Point{p.b, p.a};
}

/// A range around all values with some room.
ChartRange Around(const std::vector<double>& values) {
  const auto [low, high] = std::minmax_element(values.begin(), values.end());
  const double room = std::max(1E-6, 0.12 * (*high - *low));
  return {*low - room, *high + room};
}

}  // namespace

Chart CurvesChart(const Curves& curves, Drawn drawn, std::string title) {
  Chart chart = Begun(curves, drawn, std::move(title));
  if (drawn == Drawn::Each) AddEach(curves, chart);
  if (drawn == Drawn::Deflection) AddDeflections(curves, chart);
  if (drawn == Drawn::Greatest) {
    chart.lines.push_back(
        LineOf(curves, "max IR", LookOf(0), [](const CurveSample& s) { return s.IR; }));
  }
  chart.y = RatioRange(chart.lines, *chart.limit);
  return chart;
}

void AddAnswer(const Question& question, const Answer& answer, Chart& chart) {
  chart.present = question.present;
  chart.presentName = question.input.name + " = " + Digits(float32(question.present).Single());
  const auto mark = [&](const Border& border, bool above) {
    chart.marks.push_back({{border.passing.value, chart.limit.value_or(0)},
                           WordsOfEnd(question, border, above),
                           Role::Ink,
                           true});
  };
  for (const PassingInterval& interval : answer.intervals) {
    if (interval.below) mark(*interval.below, false);
    if (interval.above) mark(*interval.above, true);
  }
  if (chart.marks.empty()) {
    for (const std::string& words : WordsOf(question, answer)) chart.below += words;
  }
}

Chart FamilyChart(std::span<const Curves> family, std::span<const std::string> names, Drawn drawn,
                  std::string title) {
  if (family.empty()) return {};
  Chart chart = Begun(family.front(), drawn, std::move(title));
  chart.yName = drawn == Drawn::Deflection ? "deflection / limit" : "max IR";
  for (std::size_t i = 0; i < family.size(); ++i) {
    chart.lines.push_back(LineOf(family[i], names[i], LookOf(i),
                                 [drawn](const CurveSample& s) { return ValueOf(s, drawn); }));
  }
  chart.y = RatioRange(chart.lines, *chart.limit);
  return chart;
}

Chart MapChart(std::span<const Curves> rows, const MemberInput& second,
               std::span<const double> values, Drawn drawn, std::string title) {
  if (rows.empty() || rows.front().samples.empty()) return {};
  Chart chart = Begun(rows.front(), drawn, std::move(title));
  const double limit = *chart.limit;
  chart.below = std::string(drawn == Drawn::Deflection ? "deflection / limit" : "max IR") +
                ": the line is " + chart.limitName + "; each shade a quarter of it";
  chart.limit.reset();
  chart.yName = NameWithUnit(second);
  chart.y = {values.front(), values.back()};
  std::vector<double> across;
  for (const CurveSample& sample : rows.front().samples) across.push_back(sample.x);
  ChartLine contour;
  contour.colour = Role::Ink;
  const auto at = [&](std::size_t j, std::size_t i) { return ValueOf(rows[j].samples[i], drawn); };
  const auto there = [&](std::size_t j, std::size_t i) { return rows[j].samples[i].there; };
  for (std::size_t j = 0; j < rows.size(); ++j) {
    for (std::size_t i = 0; i < across.size(); ++i) {
      if (!there(j, i)) continue;
      chart.cells.push_back({{EdgeOf(across, i, -1), EdgeOf(values, j, -1), EdgeOf(across, i, 1),
                              EdgeOf(values, j, 1)},
                             at(j, i) / limit});
      if (i + 1 >= across.size() || j + 1 >= rows.size()) continue;
      if (!there(j, i + 1) || !there(j + 1, i) || !there(j + 1, i + 1)) continue;
      AddContour({Point{across[i], values[j]}, Point{across[i + 1], values[j]},
                  Point{across[i + 1], values[j + 1]}, Point{across[i], values[j + 1]}},
                 {at(j, i), at(j, i + 1), at(j + 1, i + 1), at(j + 1, i)}, limit, contour);
    }
  }
  chart.lines.push_back(std::move(contour));
  return chart;
}

Chart InteractionChart(const InteractionDiagram& diagram, double limit) {
  const AxesNames names = NamesOf(diagram.axes);
  Chart chart;
  chart.title = names.title;
  chart.xName = names.across;
  chart.yName = names.up;
  std::vector<double> across{0};
  std::vector<double> up{0};
  ChartLine envelope;
  envelope.closed = true;
  envelope.runs.emplace_back();
  const auto seen = [&](const EnvelopePoint& p) {
    const Point placed = Placed(p, diagram.axes);
    across.push_back(placed.x);
    up.push_back(placed.y);
    return placed;
  };
  for (const EnvelopePoint& p : diagram.envelope) envelope.runs[0].push_back(seen(p));
  if (diagram.envelope.size() > 2) chart.lines.push_back(std::move(envelope));
  for (const EnvelopePoint& p : diagram.points) {
    chart.marks.push_back({seen(p), "", Role::Second, false});
  }
  if (diagram.ratio > 0) {
    chart.marks.push_back({seen(diagram.governing), "IR " + Format(diagram.ratio, "0.00"),
                           diagram.ratio > limit ? Role::Fail : Role::Pass, false});
  }
  if (diagram.envelope.empty())
    chart.below = "no envelope: the other forces alone exceed the limit";
  chart.x = Around(across);
  chart.y = Around(up);
  return chart;
}

void DrawInteraction(DrawingTarget& target, const Box& place,
                     std::span<const InteractionDiagram> diagrams, double limit, double letters) {
  const bool row = place.Width() > place.Height();
  const double count = static_cast<double>(diagrams.size());
  for (std::size_t i = 0; i < diagrams.size(); ++i) {
    const double from = static_cast<double>(i) / count;
    const double to = static_cast<double>(i + 1) / count;
    Box part = place;
    (row ? part.left : part.top) =
        row ? place.left + place.Width() * from : place.top + place.Height() * from;
    (row ? part.right : part.bottom) =
        row ? place.left + place.Width() * to : place.top + place.Height() * to;
    DrawChart(target, part, InteractionChart(diagrams[i], limit), letters);
  }
}

}  // namespace korvane
