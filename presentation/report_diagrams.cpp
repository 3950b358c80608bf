// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/report_diagrams.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "presentation/grafik.h"
#include "presentation/load_items.h"
#include "presentation/page.h"

namespace korvane {

namespace {

using K = DiagramKind;

/// One picture between two columns of the page.
struct Picture {
  K kind;
  double left, right;
};
/// Pictures beside each other.
using Row = std::vector<Picture>;

constexpr double kMiddle = (kC1 + kRightEdge) / 2;
constexpr double kGap = 0.5;             ///< lines between two rows
constexpr double kLeastHeight = 0.3;     ///< of the ordinates, before the letters shrink
constexpr double kLeastOrdinates = 0.1;  ///< of the ordinates, when the letters are the least

/// The place of a picture in a row of two or four.
Picture At(K kind, int column, int columns) {
  const double width = (kRightEdge - kC1) / columns;
  const double space = 2.0 * 2 / columns;  // columns between two pictures
  const double left = kC1 + column * width;
  return {kind, left + (column == 0 ? 0 : space / 2), left + width - space / 2};
}

/// Pictures one after the other from the left.
Row InARow(const std::vector<K>& kinds, int columns) {
  Row row;
  for (const K kind : kinds) row.push_back(At(kind, static_cast<int>(row.size()), columns));
  return row;
}

/// Whether a plane's picture of permanent or variable loads would show any.
bool HasLoads(const ProjectState& st, Plane plane, bool variable) {
  const LoadItems items = CollectLoads(st, plane, variable);
  return !items.distributed.empty() || !items.points.empty();
}

/// Pictures that stand in the spare lines.
using Kinds = std::vector<K>;

bool Holds(const Kinds& kinds, K kind) {
  return std::find(kinds.begin(), kinds.end(), kind) != kinds.end();
}

/// The pictures of the axial loads.
Kinds AxialKinds(const ProjectState& st) {
  Kinds kinds;
  if (st.NP != 0) kinds.push_back(K::AxialPermanent);
  if (st.NV1 != 0 || st.NV2 != 0) kinds.push_back(K::AxialVariable);
  return kinds;
}

/// The load pictures that show something, but for those that stand in the spare lines. Loads of
/// one plane stand beside each other; of both planes the z ones stand left and the y ones right,
/// or on a full page all in one row.
std::vector<Row> LoadRows(const ProjectState& st, bool full, const Kinds& spared) {
  std::vector<Row> rows;
  Kinds axial = AxialKinds(st);
  std::erase_if(axial, [&](K kind) { return Holds(spared, kind); });
  if (!axial.empty()) rows.push_back(InARow(axial, 2));

  struct Shown {
    K kind;
    int column;
    bool shown;
  };
  const Shown pictures[] = {{K::LoadPermZ, 0, HasLoads(st, Plane::Z, false)},
                            {K::LoadPermY, 1, HasLoads(st, Plane::Y, false)},
                            {K::LoadVarZ, 0, HasLoads(st, Plane::Z, true)},
                            {K::LoadVarY, 1, HasLoads(st, Plane::Y, true)}};
  const auto stays = [&](const Shown& p) { return p.shown && !Holds(spared, p.kind); };
  Kinds kinds;
  for (const Shown& p : pictures) {
    if (stays(p)) kinds.push_back(p.kind);
  }
  if (kinds.empty() && spared.empty()) kinds.push_back(K::LoadPermZ);
  if (kinds.empty()) return rows;
  if (kinds.size() <= 2 || full) {
    rows.push_back(InARow(kinds, std::max(2, static_cast<int>(kinds.size()))));
    return rows;
  }
  for (const int first : {0, 2}) {
    Row row;
    for (int i = first; i < first + 2; ++i) {
      if (stays(pictures[i])) row.push_back(At(pictures[i].kind, pictures[i].column, 2));
    }
    if (!row.empty()) rows.push_back(row);
  }
  return rows;
}

std::vector<Row> RowsOf(const ProjectState& st, bool full, const Kinds& spared) {
  if (st.AnalysisMode != 1) {
    return {InARow({K::AxialForce}, 2), InARow({K::EndMomentZ, K::EndMomentY}, 2)};
  }
  std::vector<Row> rows = LoadRows(st, full, spared);
  rows.push_back(InARow({K::MomentShearZ, K::MomentShearY}, 2));
  rows.push_back(InARow({K::DeflectionZ, K::DeflectionY}, 2));
  return rows;
}

/// Sizes of the page's pictures in page units: a grid unit of the ordinates, and the letters.
struct Scale {
  double across, letters;
};

/// A picture as it will stand: its grid units across the member are not longer than those along.
struct Fitted {
  DiagramStyle style;
  double across, height;  ///< page units a grid unit; grid units
};

Fitted Fit(const DrawingTarget& t, const Picture& p, const DiagramData& data, const Scale& s) {
  const double along = (p.right - p.left) * t.UnitX() / kPictureWidth;
  const double across = std::min(along, s.across);
  const DiagramStyle style{s.letters / across, along / across};
  return {style, across, DiagramHeight(p.kind, data, style)};
}

/// In page units.
double HeightOf(const DrawingTarget& t, const Row& row, const DiagramData& data, const Scale& s) {
  double height = 0;
  for (const Picture& p : row) {
    const Fitted f = Fit(t, p, data, s);
    height = std::max(height, f.height * f.across);
  }
  return height;
}

/// The rows of a page, the pictures in the spare lines one below the other, and the scale at which
/// all fit.
struct Sheet {
  std::vector<Row> rows, spared;
  Scale scale;

  bool Better(const Sheet& other) const {
    if (scale.letters != other.scale.letters) return scale.letters > other.scale.letters;
    return scale.across > 1.02 * other.scale.across;
  }
};

/// Page units.
double HeightOf(const DrawingTarget& t, const std::vector<Row>& rows, const DiagramData& data,
                const Scale& s) {
  double height = rows.empty() ? 0 : kGap * t.UnitY() * static_cast<double>(rows.size() - 1);
  for (const Row& row : rows) height += HeightOf(t, row, data, s);
  return height;
}

/// The largest letters, then the tallest ordinates, whose rows fit between two lines.
Sheet SheetOf(const DrawingTarget& t, std::vector<Row> rows, std::vector<Row> spared,
              const DiagramData& data, double lines, double spareLines) {
  const auto fits = [&](const Scale& s) {
    return HeightOf(t, rows, data, s) <= lines * t.UnitY() &&
           HeightOf(t, spared, data, s) <= spareLines * t.UnitY();
  };
  const double high = (kMiddle - 1 - kC1) * t.UnitX() / kPictureWidth;
  Scale s{high, kBodySize};
  if (!fits(s)) {
    s.across = kLeastHeight * high;
    while (!fits(s) && s.letters > kLeastSize) s.letters = std::max(kLeastSize, 0.97 * s.letters);
    double low = fits(s) ? s.across : kLeastOrdinates * high;
    double most = fits(s) ? high : s.across;
    for (int i = 0; i < 16; ++i) {
      s.across = (low + most) / 2;
      (fits(s) ? low : most) = s.across;
    }
    s.across = low;
    // Not even the least fits: of two such pages the one with less to draw is the better.
    if (!fits(s)) s.letters = kLeastSize - HeightOf(t, rows, data, s) / (lines * t.UnitY());
  }
  return {std::move(rows), std::move(spared), s};
}

void DrawPicture(DrawingTarget& t, const Picture& p, double top, const DiagramData& data,
                 const Scale& s) {
  const Fitted f = Fit(t, p, data, s);
  const Box place{p.left, top, p.right, top + f.height * f.across / t.UnitY()};
  const ScopedFrame frame(t, place, Box::At(0, 0, kPictureWidth, f.height));
  DrawDiagram(t, p.kind, {0, 0, Destination::Page}, data, f.style);
}

}  // namespace

namespace {

/// What may stand in the spare lines, the axial loads first.
std::vector<Kinds> Choices(const ProjectState& st) {
  const Kinds axial = AxialKinds(st);
  std::vector<Kinds> choices;
  if (!axial.empty()) choices.push_back(axial);
  for (const Plane plane : {Plane::Y, Plane::Z}) {
    Kinds kinds;
    if (HasLoads(st, plane, false)) {
      kinds.push_back(plane == Plane::Y ? K::LoadPermY : K::LoadPermZ);
    }
    if (HasLoads(st, plane, true)) {
      kinds.push_back(plane == Plane::Y ? K::LoadVarY : K::LoadVarZ);
    }
    if (kinds.empty()) continue;
    choices.push_back(kinds);
    if (kinds.size() > 1) {
      for (const K kind : kinds) choices.push_back({kind});
    }
    if (axial.empty()) continue;
    kinds.insert(kinds.begin(), axial.begin(), axial.end());
    choices.push_back(kinds);
  }
  return choices;
}

/// Pictures one below the other in the spare lines.
std::vector<Row> Stacked(const Kinds& kinds, const Box& spare) {
  std::vector<Row> rows;
  for (const K kind : kinds) rows.push_back({{kind, spare.left, spare.right}});
  return rows;
}

Sheet BestSheet(const DrawingTarget& t, double lines, const Box& spare, const DiagramData& data) {
  const auto with = [&](bool full, const Kinds& spared) {
    return SheetOf(t, RowsOf(data.st, full, spared), Stacked(spared, spare), data, lines,
                   spare.Height());
  };
  Sheet best = with(false, {});
  // Pictures stay in their order and at their place while they can be read well.
  const double tall = 0.6 * (kMiddle - 1 - kC1) * t.UnitX() / kPictureWidth;
  const auto poor = [&] { return best.scale.letters < kBodySize || best.scale.across < tall; };
  if (best.scale.letters >= kBodySize) return best;
  const auto consider = [&](Sheet sheet) {
    if (sheet.Better(best)) best = std::move(sheet);
  };
  consider(with(true, {}));
  if (!poor() || data.st.AnalysisMode != 1 || spare.Height() < 4) return best;
  for (const Kinds& kinds : Choices(data.st)) {
    for (const bool full : {false, true}) consider(with(full, kinds));
  }
  return best;
}

/// Rows from a line on.
void DrawRows(DrawingTarget& t, const std::vector<Row>& rows, double line, const DiagramData& data,
              const Scale& scale) {
  for (const Row& row : rows) {
    for (const Picture& p : row) DrawPicture(t, p, line, data, scale);
    line += HeightOf(t, row, data, scale) / t.UnitY() + kGap;
  }
}

}  // namespace

void DrawReportDiagrams(DrawingTarget& t, double top, double bottom, const Box& spare,
                        const Design& d) {
  const DiagramData data{d.st, d.beam, d.deflections, d.forces.N};
  Sheet sheet = BestSheet(t, bottom - top, spare, data);
  sheet.scale.letters = std::max(sheet.scale.letters, kLeastSize);
  DrawRows(t, sheet.rows, top, data, sheet.scale);
  DrawRows(t, sheet.spared, spare.top, data, sheet.scale);
}

}  // namespace korvane
