// SPDX-License-Identifier: GPL-3.0-or-later
// What the figures of single families are built with: drawn thicknesses and dimensions.
#pragma once

#include "presentation/section_outlines.h"
#include "presentation/section_shape.h"

namespace korvane::shapes {

/// What a builder reads.
struct Source {
  const ProjectState& st;
  const SectionRecord& rec;
  bool notToScale;
  ArcSteps steps;
};

/// Flange tip over flange thickness of sections with tapered flanges.
inline constexpr double kTipShare = 0.6;

/// Thicknesses as they are drawn.
class Walls {
public:
  Walls(const Source& s, double greatest) : least_(s.notToScale ? kLeastWall * greatest : 0) {}
  /// t, but not less than can be seen as far as the room allows.
  double operator()(double t, double room) const { return std::max(t, std::min(least_, room)); }

private:
  static constexpr double kLeastWall = 0.045;  // of the greatest size
  double least_;
};

/// Radius drawn beside walls that are drawn thicker, as far as the room allows.
double DrawnRadius(double r, double thickness, double drawn, double room);

/// A dimension; none for two equal points.
void Add(SectionShape& s, const char* letter, Point a, Point b, DimensionSide side);
/// A height told at the left of the section.
void AddHeight(SectionShape& s, const char* letter, double from, double to);
/// Thickness of a flange whose edge is at x.
void AddFlange(SectionShape& s, const char* letter, double x, double from, double to);
/// Thickness of a web from x, told at the height y.
void AddWeb(SectionShape& s, const char* letter, double x, double t, double y);

// The outlines of the families, mm: each reads the section record, which the dimension step has
// written, and what the record lacks from the state; each returns polygons, size, axes and the
// dimensions with their letters.

/// Parallel flanges with root fillets: HEA, HEB, HEM, IPE, UB, UC, UBP, J.
SectionShape RolledI(const Source& s);
/// Tapered flanges with rounded tips: INP.
SectionShape TaperedI(const Source& s);
/// Two equal flanges and a web, welded.
SectionShape WeldedI(const Source& s);
/// UPE, PFC, CH.
SectionShape ParallelChannel(const Source& s);
/// UNP.
SectionShape TaperedChannel(const Source& s);
/// Square and rectangular hollow sections, turned as RhsOrientation tells.
SectionShape Hollow(const Source& s);
/// Equal and unequal angles, with the principal axes.
SectionShape Angle(const Source& s);
/// Welded I with flanges of two sizes.
SectionShape SingleI(const Source& s);
/// T, flange at the top.
SectionShape TSection(const Source& s);
/// Box with equal flanges; the webs stand p23_a from their edges.
SectionShape Box23(const Source& s);
/// HSQ, the bottom plate wider on both sides.
SectionShape Hsq24(const Source& s);
/// HSQ, the bottom plate wider on one side.
SectionShape Hsq25(const Source& s);
/// Box with unequal flanges, the webs p27_a apart.
SectionShape Box27(const Source& s);
/// Flat bar, upright.
SectionShape FlatBar(const Source& s);
/// Two circles.
SectionShape Tube(const Source& s);
/// Plate with a flat below; so with the stiffeners that follow.
SectionShape PlateFlat(const Source& s);
/// With a rolled angle, its roundings drawn.
SectionShape PlateAngle(const Source& s);
/// With an angle of two plates.
SectionShape PlateWeldedAngle(const Source& s);
/// With a bulb flat.
SectionShape PlateBulb(const Source& s);
/// With a trapezoid of one wall thickness.
SectionShape PlateTrapeze(const Source& s);
/// With a T girder.
SectionShape PlateGirder(const Source& s);
/// No outline: a square of 100 mm with its axes.
SectionShape General(const Source& s);

}  // namespace korvane::shapes
