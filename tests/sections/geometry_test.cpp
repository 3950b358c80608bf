// SPDX-License-Identifier: GPL-3.0-or-later
// Section constants of every family against an integration over the section's own shape.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/sections/section_support.h"
#include "tests/support/exact_shape.h"
#include "tests/support/source_library.h"
#include "tests/support/strips.h"

namespace korvane {
namespace {

using testing::Integrate;
using testing::Made;
using testing::Slab;
using testing::Stack;
using testing::StripValues;

void ExpectNear(double value, double expected, double relative, const char* what) {
  EXPECT_NEAR(value, expected, std::fabs(expected) * relative) << what;
}

/// Area, axis, moduli about y of a singly symmetric section of height H.
void ExpectSingle(const SectionRecord& rec, double H, const StripValues& v) {
  ExpectNear(rec.A, v.A, 1e-4, "A");
  ExpectNear(rec.ezel, H - v.y, 1e-4, "ezel");
  ExpectNear(rec.Iy, v.I, 1e-4, "Iy");
  ExpectNear(rec.Wely1, v.I / (H - v.y), 2e-4, "Wely1");
  ExpectNear(rec.Wely2, v.I / v.y, 2e-4, "Wely2");
  ExpectNear(rec.Wply, v.Wpl, 1e-3, "Wply");
  // The walk to the plastic axis goes in steps of 0.1 mm.
  EXPECT_NEAR(rec.ezpl, H - v.ypl, 0.15);
}

TEST(Geometry, RolledIFromTheCatalogueMatchesItsExactOutline) {
  struct Row {
    int family;
    int16 ProjectState::*index;
    int rows;
  };
  for (const Row& row : {Row{1, &ProjectState::idxHEA, 24}, Row{2, &ProjectState::idxHEB, 24},
                         Row{3, &ProjectState::idxHEM, 24}, Row{4, &ProjectState::idxIPE, 18}}) {
    for (int k = 0; k < row.rows; ++k) {
      Made m(row.family);
      m.st.*row.index = k;
      m.Load();
      const auto shape = testing::MakeI({m.rec.h, m.rec.b, m.rec.tw, m.rec.tf, m.rec.r});
      ExpectNear(m.rec.A, shape.A(), 1e-3, "A");
      ExpectNear(m.rec.Iy, shape.Iy(), 1e-3, "Iy");
      ExpectNear(m.rec.Iz, shape.Iz(), 1e-3, "Iz");
      ExpectNear(m.rec.Wply, shape.Wply(), 1e-3, "Wply");
      ExpectNear(m.rec.Wplz, shape.Wplz(), 2e-3, "Wplz");
      // The surface counts the root radii as a full circle: exact for parallel flanges.
      ExpectNear(m.rec.g * 1000, shape.Perimeter(), 1e-3, "g");
    }
  }
}

TEST(Geometry, HollowSectionsMatchTheirRoundedOutline) {
  for (int k = 0; k < 158; k += 7) {
    Made m(7);
    m.st.idxRHSr = k;
    m.Load();
    const double t = m.rec.tw;
    const auto shape = testing::MakeHollow(m.rec.h, m.rec.b, t, 1.5 * t, t);
    ExpectNear(m.rec.A, shape.A(), 1e-3, "A");
    ExpectNear(m.rec.Iy, shape.Iy(), 1e-3, "Iy");
    ExpectNear(m.rec.Wplz, shape.Wplz(), 2e-3, "Wplz");
  }
}

TEST(Geometry, AnglesMatchTheirOutline) {
  for (int k = 0; k < 49; k += 6) {
    Made m(11);
    m.st.idxLuneq = k;
    m.Load();
    const auto s = testing::MakeAngle(m.rec.h, m.rec.b, m.rec.tw, m.rec.r, m.rec.r / 2);
    ExpectNear(m.rec.A, s.A(), 2e-3, "A");
    ExpectNear(m.rec.Iy, s.Iy(), 5e-3, "Iy");
    const double mean = (s.Iy() + s.Iz()) / 2;
    const double radius = std::hypot((s.Iy() - s.Iz()) / 2, s.Iyz());
    ExpectNear(m.rec.Iu, mean + radius, 5e-3, "Iu");
    ExpectNear(m.rec.Iv, mean - radius, 5e-3, "Iv");
    const double alfa = 0.5 * std::atan2(2 * std::fabs(s.Iyz()), s.Iy() - s.Iz());
    EXPECT_NEAR(m.rec.alfadeg, alfa * 180 / kPi, 0.3);
  }
}

TEST(Geometry, WeldedIIsExact) {
  for (const auto& [h, b, tw, tf] :
       {std::array{600., 300., 12., 20.}, std::array{1200., 250., 8., 25.}}) {
    Made m(21);
    m.st.p21_h = h;
    m.st.p21_b = b;
    m.st.p21_tw = tw;
    m.st.p21_tf = tf;
    m.Load();
    const auto v = Integrate(h, Stack(Slab{b, 0, tf}, Slab{tw, tf, h - tf}, Slab{b, h - tf, h}));
    ExpectNear(m.rec.A, v.A, 1e-4, "A");
    ExpectNear(m.rec.Iy, v.I, 1e-4, "Iy");
    ExpectNear(m.rec.Wely, v.I / (h / 2), 1e-4, "Wely");
    ExpectNear(m.rec.Wply, v.Wpl, 1e-4, "Wply");
    ExpectNear(m.rec.Iz, (2 * tf * b * b * b + (h - 2 * tf) * tw * tw * tw) / 12, 1e-6, "Iz");
    // Web strips count once, without the fillets: sum of b*t^3/3.
    ExpectNear(m.rec.Ix, (2 * b * tf * tf * tf + (h - 2 * tf) * tw * tw * tw) / 3, 1e-6, "Ix");
  }
}

TEST(Geometry, SinglySymmetricI) {
  Made m(22);
  m.st.p22_h = 700.0;
  m.st.p22_b = 350.0;
  m.st.p22_b2 = 200.0;
  m.st.p22_tf1 = 25.0;
  m.st.p22_tf2 = 15.0;
  m.Load();
  ExpectSingle(m.rec, 700,
               Integrate(700, Stack(Slab{200, 0, 15}, Slab{12, 15, 675}, Slab{350, 675, 700})));
  // b1 wider than b2 gives a negative edge, which changes nothing about z.
  ExpectNear(m.rec.Iz, (25 * 350. * 350 * 350 + 15 * 200. * 200 * 200 + 660 * 12. * 12 * 12) / 12,
             1e-6, "Iz");
}

TEST(Geometry, EqualFlangesPutTheAxesAtMidHeight) {
  Made m(22);
  m.Load();
  EXPECT_NEAR(m.rec.ezel, 300, 1e-3);
  EXPECT_NEAR(m.rec.ezpl, 300, 0.1001);
  EXPECT_NEAR(m.rec.zs, 0, 1e-3);
  EXPECT_NEAR(m.rec.betafTop, 0.5, 1e-7);
}

TEST(Geometry, BoxWithItsWebsInside) {
  Made m(23);
  m.Load();  // 600x600, tw 10, tf 20, a 50
  const auto v = Integrate(600, Stack(Slab{600, 0, 20}, Slab{20, 20, 580}, Slab{600, 580, 600}));
  ExpectNear(m.rec.A, v.A, 1e-4, "A");
  ExpectNear(m.rec.Iy, v.I, 1e-4, "Iy");
  ExpectNear(m.rec.Wply, v.Wpl, 1e-4, "Wply");
  const auto z = Integrate(600, [](double x) {
    const bool web = (x > 50 && x < 60) || (x > 540 && x < 550);
    return 40. + (web ? 560 : 0);
  });
  ExpectNear(m.rec.Iz, z.I, 1e-4, "Iz");
  ExpectNear(m.rec.Wplz, z.Wpl, 1e-4, "Wplz");
  // Bredt: 4*Am^2/sum(s/t) with Am = 490*580, plus the four free edges 4*tf^3*a/3.
  const double Am = 490. * 580;
  ExpectNear(m.rec.Ix, 4 * Am * Am / (2 * 490 / 20. + 2 * 580 / 10.) + 4 * 8000. * 50 / 3, 1e-6,
             "Ix");
}

TEST(Geometry, HsqBeams) {
  Made sym(24);
  sym.Load();  // h 285, b 540, tw 6, tf1 25, tf2 15, a 120, c 5: H = 300
  ExpectSingle(sym.rec, 300,
               Integrate(300, Stack(Slab{540, 0, 15}, Slab{12, 15, 275}, Slab{290, 275, 300})));
  Made one(25);
  one.Load();  // b1 300, b2 430
  ExpectSingle(one.rec, 300,
               Integrate(300, Stack(Slab{430, 0, 15}, Slab{12, 15, 275}, Slab{290, 275, 300})));
  Made box(27);
  box.st.p27_b1 = 500.0;
  box.Load();
  ExpectSingle(box.rec, 600,
               Integrate(600, Stack(Slab{600, 0, 20}, Slab{20, 20, 580}, Slab{500, 580, 600})));
}

TEST(Geometry, TAndFlatBar) {
  for (const double b : {200., 500.}) {  // plastic axis in the web and in the flange
    Made t(26);
    t.st.p26_b = b;
    t.st.p26_tf = b > 300 ? 30.0 : 10.0;
    t.Load();
    const double tf = t.st.p26_tf;
    ExpectSingle(t.rec, 200, Integrate(200, Stack(Slab{10, 0, 200 - tf}, Slab{b, 200 - tf, 200})));
  }
  Made bar(28);
  bar.Load();
  ExpectNear(bar.rec.Iy, 12 * 150. * 150 * 150 / 12, 1e-6, "Iy");
  ExpectNear(bar.rec.Wply, 12 * 150. * 150 / 4, 1e-6, "Wply");
  ExpectNear(bar.rec.Wplz, 150 * 12. * 12 / 4, 1e-6, "Wplz");
}

TEST(Geometry, Tube) {
  Made m(31);
  m.Load();  // 300x10
  const auto v = Integrate(300, [](double y) {
    const double outer = std::sqrt(150. * 150 - (y - 150) * (y - 150));
    const double r2 = 140. * 140 - (y - 150) * (y - 150);
    return 2 * (outer - (r2 > 0 ? std::sqrt(r2) : 0));
  });
  ExpectNear(m.rec.A, v.A, 1e-4, "A");
  ExpectNear(m.rec.Iy, v.I, 1e-4, "Iy");
  ExpectNear(m.rec.Wply, v.Wpl, 1e-4, "Wply");
  // The polar moment, exact for a ring.
  ExpectNear(m.rec.Ix, 2 * v.I, 1e-4, "Ix");
}

TEST(Geometry, PlatesWithStiffeners) {
  Made flat(51);
  flat.Load();  // h 200, b 600, tw 10, tf1 10
  ExpectSingle(flat.rec, 210, Integrate(210, Stack(Slab{10, 0, 200}, Slab{600, 200, 210})));
  Made angle(53);
  angle.Load();  // h 300, b1 600, b2 100, tw 11.5, tf1 10, tf2 16
  ExpectSingle(angle.rec, 310,
               Integrate(310, Stack(Slab{100, 0, 16}, Slab{11.5, 16, 300}, Slab{600, 300, 310})));
  Made girder(56);
  girder.Load();  // h 580, b 300/300, tw 12, tf 20/20
  ExpectSingle(girder.rec, 600,
               Integrate(600, Stack(Slab{300, 0, 20}, Slab{12, 20, 580}, Slab{300, 580, 600})));
}

TEST(Geometry, TrapezStiffenerCountsItsSlopedWallsAsUprightOnes) {
  Made m(55);
  m.Load();  // h 250, b1 600, b2 200, tw 8, tf1 12, a 50
  const double wall = 8 / std::cos(std::atan(50. / 250));
  ExpectSingle(m.rec, 262,
               Integrate(262, Stack(Slab{200, 0, 8}, Slab{2 * wall, 8, 250}, Slab{600, 250, 262})));
}

TEST(Geometry, RolledAngleUnderAPlateCountsItsFillets) {
  Made m(52);
  m.Load();
  const CatalogueTable& t = SourceLibrary()->catalogues[Cat::L3];
  const double h = t(5, 1), b = t(5, 2), tw = t(5, 3), tf = t(5, 4), r1 = t(5, 5), r2 = t(5, 6);
  const double H = h + 10;
  const auto v = Integrate(H, [&](double y) {
    if (y > h) return 600.;
    double w = y < tf ? b : tw;
    // Root fillet above the leg, toe rounding at the leg's upper edge.
    if (y > tf && y < tf + r1) w += r1 - std::sqrt(r1 * r1 - std::pow(tf + r1 - y, 2));
    if (y < tf && y > tf - r2) w -= r2 - std::sqrt(r2 * r2 - std::pow(y - (tf - r2), 2));
    return w;
  });
  ExpectNear(m.rec.A, v.A, 1e-4, "A");
  ExpectNear(m.rec.ezel, H - v.y, 1e-3, "ezel");
  ExpectNear(m.rec.Iy, v.I, 1e-3, "Iy");
  ExpectNear(m.rec.Wply, v.Wpl, 2e-3, "Wply");
}

TEST(Geometry, BulbFlatKeepsTheCataloguesArea) {
  Made m(54);
  m.Load();
  const CatalogueTable& t = SourceLibrary()->catalogues[Cat::HP];
  ExpectNear(m.rec.A, t(5, 5) * 100 + 600 * 10, 1e-5, "A");
}

TEST(Geometry, RotatingARectangularHollowSectionSwapsItsAxes) {
  Made a(9);
  a.st.idxCFRHSr = 40;
  Made b = a;
  b.st.RhsOrientation = 0;
  a.Load();
  b.Load();
  EXPECT_EQ(double(a.rec.h), double(b.rec.b));
  EXPECT_EQ(double(a.rec.Iy), double(b.rec.Iz));
  EXPECT_EQ(double(a.rec.Wply), double(b.rec.Wplz));
  EXPECT_EQ(double(a.rec.Ix), double(b.rec.Ix));
}

}  // namespace
}  // namespace korvane
