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
constexpr double kGap = 0.5;          ///< lines between two rows
constexpr double kLeastHeight = 0.3;  ///< of the ordinates, before the letters shrink
constexpr double kLeastLetters = 3;   ///< pt

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

/// The load pictures that show something. Loads of one plane stand beside each other; of both
/// planes the z ones stand left and the y ones right, or on a full page all in one row.
std::vector<Row> LoadRows(const ProjectState& st, bool full) {
  std::vector<Row> rows;
  std::vector<K> axial;
  if (st.NP != 0) axial.push_back(K::AxialPermanent);
  if (st.NV1 != 0 || st.NV2 != 0) axial.push_back(K::AxialVariable);
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
  std::vector<K> kinds;
  for (const Shown& p : pictures) {
    if (p.shown) kinds.push_back(p.kind);
  }
  if (kinds.empty()) kinds.push_back(K::LoadPermZ);
  if (kinds.size() <= 2 || full) {
    rows.push_back(InARow(kinds, kinds.size() <= 2 ? 2 : 4));
    return rows;
  }
  for (const int first : {0, 2}) {
    Row row;
    for (int i = first; i < first + 2; ++i) {
      if (pictures[i].shown) row.push_back(At(pictures[i].kind, pictures[i].column, 2));
    }
    if (!row.empty()) rows.push_back(row);
  }
  return rows;
}

std::vector<Row> RowsOf(const ProjectState& st, bool full) {
  if (st.AnalysisMode != 1) {
    return {InARow({K::AxialForce}, 2), InARow({K::EndMomentZ, K::EndMomentY}, 2)};
  }
  std::vector<Row> rows = LoadRows(st, full);
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

/// The rows of a page and the scale at which they fit it.
struct Sheet {
  std::vector<Row> rows;
  Scale scale;
};

/// The largest letters, then the tallest ordinates, whose rows fit between two lines.
Sheet SheetOf(const DrawingTarget& t, std::vector<Row> rows, const DiagramData& data,
              double lines) {
  const double room = (lines - kGap * static_cast<double>(rows.size() - 1)) * t.UnitY();
  const auto fits = [&](const Scale& s) {
    double height = 0;
    for (const Row& row : rows) height += HeightOf(t, row, data, s);
    return height <= room;
  };
  double high = (kMiddle - 1 - kC1) * t.UnitX() / kPictureWidth;
  Scale s{high, kBodySize};
  if (!fits(s)) {
    double low = s.across = kLeastHeight * high;
    while (!fits(s) && s.letters > kLeastLetters) s.letters *= 0.97;
    for (int i = 0; i < 16; ++i) {
      s.across = (low + high) / 2;
      (fits(s) ? low : high) = s.across;
    }
    s.across = low;
  }
  return {std::move(rows), s};
}

void DrawPicture(DrawingTarget& t, const Picture& p, double top, const DiagramData& data,
                 const Scale& s) {
  const Fitted f = Fit(t, p, data, s);
  const Box place{p.left, top, p.right, top + f.height * f.across / t.UnitY()};
  const ScopedFrame frame(t, place, Box::At(0, 0, kPictureWidth, f.height));
  DrawDiagram(t, p.kind, {0, 0, Destination::Page}, data, f.style);
}

}  // namespace

void DrawReportDiagrams(DrawingTarget& t, double top, double bottom, const Design& d) {
  const DiagramData data{d.st, d.beam, d.deflections, d.forces.N};
  Sheet sheet = SheetOf(t, RowsOf(d.st, false), data, bottom - top);
  if (sheet.scale.letters < kBodySize) {
    Sheet full = SheetOf(t, RowsOf(d.st, true), data, bottom - top);
    if (full.scale.letters > sheet.scale.letters) sheet = std::move(full);
  }
  double line = top;
  for (const Row& row : sheet.rows) {
    for (const Picture& p : row) DrawPicture(t, p, line, data, sheet.scale);
    line += HeightOf(t, row, data, sheet.scale) / t.UnitY() + kGap;
  }
}

}  // namespace korvane
