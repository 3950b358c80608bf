// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/report_loads.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "analysis/loads.h"
#include "core/text.h"
#include "presentation/page.h"

namespace korvane {

namespace {

std::string Category(int pv) {
  return pv == 0 ? "P" : pv == 1 ? "V1" : "V2";
}

/// One row of the load table.
struct LoadRow {
  std::string load, value, position, category;
};

/// The loads of one direction that are not 0: line loads, point items, trapezoids.
std::vector<LoadRow> LoadRows(const ProjectState& st, bool z) {
  std::vector<LoadRow> rows;
  const auto value = [](double v) { return ShortNumbers(Format(v, "##0.0")); };
  // Two values of a stretch share a field: beyond a million they are printed short.
  const auto half = [](double v) { return Format(v, std::fabs(v) < 1E6 ? "##0.0" : "0.000E+0"); };
  const auto position = [](double x) { return Format(x, "##0.000"); };
  for (int n = 1; n <= 4; ++n) {
    const LineLoad& l = LineLoadOf(n);
    if (st.*l.q == 0 || (st.*l.yz != 0) != z) continue;
    rows.push_back({"q " + std::to_string(n), value(st.*l.q), "", Category(st.*l.pv)});
  }
  for (int i = 1; i <= 8; ++i) {
    if (st.pm[i] == 0) continue;
    const bool moment = st.pm_pm[i] != 0;
    const bool inZ = moment ? st.pm_yz[i] == 1 : st.pm_yz[i] != 0;
    if (inZ != z) continue;
    rows.push_back({moment ? (z ? "My" : "Mz") : "P", value(st.pm[i]), position(st.pmx[i]),
                    Category(st.pm_pv[i])});
  }
  for (int n = 1; n <= 3; ++n) {
    const Trapezoid& tr = TrapezoidOf(n);
    if ((st.*tr.q1 == 0 && st.*tr.q2 == 0) || (st.*tr.yz != 0) != z) continue;
    rows.push_back({"q", half(st.*tr.q1) + "/" + half(st.*tr.q2),
                    position(st.*tr.x1) + "/" + position(st.*tr.x2), Category(st.*tr.pv)});
  }
  return rows;
}

/// Where the columns of a load table begin, and the letters at which they keep clear.
struct LoadStops {
  double value = 5, position = 16, category = 32;
  double letters = 1;  ///< share of the size in force
};

constexpr double kSecondTable = 39.5;  ///< from the first table
constexpr double kTableWidth = 36;     ///< of each table, so that two stand left of the parameters

/// Long values push the positions to the right, and then both tables take smaller letters.
LoadStops StopsOf(const DrawingTarget& t, std::vector<LoadRow> rows,
                  const std::vector<LoadRow>& more) {
  rows.insert(rows.end(), more.begin(), more.end());
  double value = 0, position = 0;
  for (const LoadRow& row : rows) {
    value = std::max(value, t.TextWidth(row.value));
    position = std::max(position, t.TextWidth(row.position));
  }
  constexpr double gap = 1.2;
  LoadStops stops;
  const double need = stops.value + value + gap + position + gap + t.TextWidth("V1");
  stops.letters = std::min(1.0, kTableWidth / need);
  stops.value *= stops.letters;
  stops.position = std::max(stops.position, stops.value + (value + gap) * stops.letters);
  stops.category = std::max(stops.category, stops.position + (position + gap) * stops.letters);
  const double most = kTableWidth - t.TextWidth("V1") * stops.letters;
  if (stops.category > most) {
    stops.position -= stops.category - most;
    stops.category = most;
  }
  return stops;
}

void DrawLoadTable(DrawingTarget& t, Point place, double step, const char* heading,
                   const std::vector<LoadRow>& rows, const LoadStops& at) {
  auto [column, line] = place;
  PutText(t, column, line, heading);
  line += step;
  const double size = t.FontSize;
  t.FontSize = size * at.letters;
  t.ForeColor = Role::Quiet;
  PutText(t, column, line, "Load");
  PutText(t, column + at.value, line, "kN/kNm");
  PutText(t, column + at.position, line, "x/x1/x2 (m)");
  PutText(t, column + at.category, line, "P/V");
  t.ForeColor = Role::Ink;
  for (const LoadRow& row : rows) {
    line += step;
    PutText(t, column, line, row.load);
    PutText(t, column + at.value, line, row.value);
    PutText(t, column + at.position, line, row.position);
    PutText(t, column + at.category, line, row.category);
  }
  t.FontSize = size;
}

std::string Combination(const char* name, const std::string& selfWeight, double p, double v1,
                        double v2) {
  const auto f = [](double v) { return Format(v, "#0.00"); };
  return name + selfWeight + f(p) + "*P+" + f(v1) + "*V1+" + f(v2) + "*V2";
}

}  // namespace

double LoadLines(const ProjectState& st) {
  return 7.6 + static_cast<double>(std::max(LoadRows(st, true).size(), LoadRows(st, false).size()));
}

Box DrawLoadInformation(DrawingTarget& t, double from, double to, const ProjectState& st) {
  const auto z = LoadRows(st, true);
  const auto y = LoadRows(st, false);
  const double step = std::min(kLineStep, (to - from - 0.6) / LoadLines(st));
  const double size = t.FontSize;
  t.FontSize = std::min(size, size * (step / kLineStep) * 1.12);
  double line = from;
  PutHeading(t, kC1, line, "Loading information: (kN/kNm/m)");
  PutText(t, kC1 + 34, line, "P=Permanent; V=Variable; S=Selfweight");
  line += step * 1.2;
  PutFitted(t, kC1, line,
            ShortNumbers("N = " + Format(st.NP, "##0.0") +
                         " (Permanent)    N = " + Format(st.NV1, "##0.0") +
                         " (V1)    N = " + Format(st.NV2, "##0.0") + " (V2)"),
            kParametersLeft - kC1 - 1);
  line += step * 1.2;
  const LoadStops stops = StopsOf(t, z, y);
  DrawLoadTable(t, {kC1, line}, step, "Loading in z-direction:", z, stops);
  DrawLoadTable(t, {kC1 + kSecondTable, line}, step, "Loading in y-direction:", y, stops);
  const double longer = static_cast<double>(std::max(z.size(), y.size()));
  const double end = line + step * (2 + longer);
  const auto below = [=](const std::vector<LoadRow>& rows) {
    return line + step * (2.6 + static_cast<double>(rows.size()));
  };
  line += step * (2.2 + longer);
  PutText(
      t, kC1, line,
      st.SelfWeight == 1 ? "Selfweight of member included " : "Selfweight  of member not included");
  line += step;
  const std::string uls = Combination("ULS(Sect/Buckl)= ", Format(st.lfsw_uls, "#0.00") + "*S+",
                                      st.lfp_uls, st.lfv1_uls, st.lfv2_uls);
  PutText(t, kC1, line, uls);
  const double right = std::max(kSecondTable, t.TextWidth(uls) + 1.2);
  line += step;
  PutText(t, kC1, line,
          Combination("SLS(Def.) = ", "1.00*S+", st.lfp_sls, st.lfv1_sls, st.lfv2_sls));
  t.FontSize = size;
  if (z.size() < y.size()) return {kC1, below(z), kC1 + kTableWidth, end};
  return {kC1 + right, below(y), kParametersLeft - 1.5, to - 0.4};
}

}  // namespace korvane
