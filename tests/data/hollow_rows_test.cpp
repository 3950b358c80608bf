// SPDX-License-Identifier: GPL-3.0-or-later
// Recomputes every row of the hollow section catalogues from its dimensions.
#include <gtest/gtest.h>

#include <numbers>

#include "tests/data/row_check.h"
#include "tests/support/exact_shape.h"

namespace korvane::testing {
namespace {

// The figures are computed and held to single precision; the arcs of the outline are cut into
// chords.
constexpr double kTolerance = 5e-5;

struct Radii {
  double outer;
  double inner;
};

// Corner radii that EN 10210-2 and EN 10219-2 compute their tables with.
Radii HotCorners(double t) {
  return {1.5 * t, t};
}
Radii ColdCorners(double t) {
  const double outer = t <= 6 ? 2 : t <= 10 ? 2.5 : 3;
  return {outer * t, (outer - 1) * t};
}

// Torsion constant by the annex of both standards: Bredt's closed cell on the middle line and
// the wall's own part.
double Torsion(double h, double b, double t, const Radii& r) {
  const double corner = (4 - std::numbers::pi) * (r.outer + r.inner) / 2;
  const double area = (b - t) * (h - t) - corner * (r.outer + r.inner) / 2;
  const double line = 2 * (b - t + h - t) - 2 * corner;
  return t * t * t * line / 3 + 4 * area * area * t / line;
}

// Columns; in square sections one column serves both axes.
struct Series {
  const char* name;
  Cat cat;
  Radii (*corners)(double t);
  int b, t, A, Iy, Iz, Wply, Wplz, Ix;
};

constexpr Series kSeries[] = {{"SHS", Cat::SHS, HotCorners, 1, 2, 3, 4, 4, 5, 5, 6},
                              {"RHS", Cat::RHS, HotCorners, 2, 3, 4, 5, 6, 7, 8, 9},
                              {"CFSHS", Cat::CFSHS, ColdCorners, 2, 3, 4, 5, 5, 6, 6, 7},
                              {"CFRHS", Cat::CFRHS, ColdCorners, 2, 3, 4, 5, 6, 7, 8, 9}};

class HollowRows : public ::testing::TestWithParam<Series> {};

TEST_P(HollowRows, AgreeWithTheExactOutline) {
  const Series& s = GetParam();
  const CatalogueTable& t = Data()[s.cat];
  for (int row = 0; row < ShapeOf(s.cat).rows; ++row) {
    SCOPED_TRACE(std::string(s.name) + ' ' + RowName(s.cat, row, 1, s.t));
    const double h = t(row, 1);
    const double b = t(row, s.b);
    const double wall = t(row, s.t);
    const Radii r = s.corners(wall);
    const Shape shape = MakeHollow(h, b, wall, r.outer, r.inner);
    ExpectWithin("A", t(row, s.A) * 1e2, shape.A(), kTolerance);
    ExpectWithin("Iy", t(row, s.Iy) * 1e4, shape.Iy(), kTolerance);
    ExpectWithin("Iz", t(row, s.Iz) * 1e4, shape.Iz(), kTolerance);
    ExpectWithin("Wply", t(row, s.Wply) * 1e3, shape.Wply(), kTolerance);
    ExpectWithin("Wplz", t(row, s.Wplz) * 1e3, shape.Wplz(), kTolerance);
    ExpectWithin("Ix", t(row, s.Ix) * 1e4, Torsion(h, b, wall, r), kTolerance);
  }
}

INSTANTIATE_TEST_SUITE_P(Series, HollowRows, ::testing::ValuesIn(kSeries),
                         [](const auto& i) { return i.param.name; });

TEST(HollowRows, SquareAndRectangularAreWhatTheirNamesSay) {
  for (int row = 0; row < ShapeOf(Cat::CFSHS).rows; ++row) {
    EXPECT_EQ(Data()[Cat::CFSHS](row, 1), Data()[Cat::CFSHS](row, 2)) << "row " << row;
  }
  for (const Cat cat : {Cat::RHS, Cat::CFRHS}) {
    for (int row = 0; row < ShapeOf(cat).rows; ++row) {
      EXPECT_GT(Data()[cat](row, 1), Data()[cat](row, 2)) << ShapeOf(cat).file << row;
    }
  }
}

}  // namespace
}  // namespace korvane::testing
