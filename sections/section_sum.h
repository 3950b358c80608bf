// SPDX-License-Identifier: GPL-3.0-or-later
// Sections built of rectangles: area, centroid, second moments, plastic axis.
#pragma once

#include <array>
#include <cstddef>

namespace korvane {

/// A rectangle of width w and height t (mm), its left edge at x0 and its lower edge at y0;
/// x to the right, y up from the lowest edge of the section.
struct Rect {
  double w, t, x0, y0;
  double Top() const { return y0 + t; }
  double Area() const { return w * t; }
};

/// A fillet as an area at a point with its own second moment (mm2, mm, mm4); a rounding that
/// takes area away is negative.
struct Fillet {
  double area, x, y, own;
};

/// The rectangles of a section, at most eight, and up to two fillets.
struct RectList {
  static constexpr std::size_t kCapacity = 8;
  std::array<Rect, kCapacity> rects{};
  int count = 0;
  std::array<Fillet, 2> fillets{};
  int filletCount = 0;

  void Add(const Rect& r) { rects.at(static_cast<std::size_t>(count++)) = r; }
  void Add(const Fillet& f) { fillets.at(static_cast<std::size_t>(filletCount++)) = f; }
  const Rect* begin() const { return rects.data(); }
  const Rect* end() const { return rects.data() + count; }
};

/// Totals of a list of rectangles: mm2, mm, mm4. The torsion constant is the sum of long side
/// times short side cubed over 3.
struct SumResult {
  double A = 0, xbar = 0, ybar = 0, Iy = 0, Iz = 0, Ix = 0;
};
/// Areas, centroid (from the left and the lowest edge) and second moments about its axes.
SumResult SectionSum(const RectList& list);

/// Plastic axis above the lowest edge, found by a walk from 2 mm in steps of 0.1 mm to the first
/// height with at least half the area A below it. Throws ArithmeticFault beyond the height H.
double WalkPlasticAxis(const RectList& list, double A, double H);

/// Plastic modulus about the axis at height y. The rectangle with y0 < y <= y1 is the cut one.
double PlasticModulus(const RectList& list, double y);

/// Plastic axis (from the top) and modulus of a T with its flange b x tf at the top and a web
/// hw x tw below, of area A; closed form. Lengths in mm, the modulus in mm3.
struct PlasticT {
  double y;
  double Wply;
};
/// The axis lies in the flange where that has half of the area, else in the web.
PlasticT PlasticAxisOfT(double A, double b, double tf, double hw, double tw);

}  // namespace korvane
