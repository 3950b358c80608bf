// SPDX-License-Identifier: GPL-3.0-or-later
// A check as printed text, and the results of all checks.
#pragma once

#include <array>
#include <string>

#include "core/numeric.h"

namespace korvane {

/// Indices of the 16-colour basic palette that results are shown in.
inline constexpr int kBlack = 0;
inline constexpr int kGreen = 2;  ///< passes
inline constexpr int kRed = 4;    ///< fails

/// A printed check.
struct CheckLine {
  std::string label, formula, numbers, value, limit;
  double ratio = 0;     ///< as the check gave it; value is its text
  int colour = kBlack;  ///< kGreen or kRed once it is written
};

/// Palette index of a ratio: equal to the limit passes.
inline int CheckColour(double ir, double iufa) {
  return ir > iufa ? kRed : kGreen;
}

/// The checks that share the governing line of section control.
enum class Term { None, N, My, Mz, MyMz, NMy, NMz, NMyMz, Angle };

/// The numbers of a governing check, kept while the points are walked; the text is composed from
/// them once, afterwards. Forces in kN and kNm.
struct GoverningSection {
  Term term = Term::None;
  bool exact = false;  ///< interaction with exponents
  double x = 0;        ///< relative position
  double N = 0, Nd = 0, My = 0, Mz = 0;
  double Mvdy = 0, Mvdz = 0, Mvndy = 0, Mvndz = 0, alfa = 0, beta = 0;
  double Vz = 0, Vy = 0, Vdz = 0, Vdy = 0;
  int corner = 0;  ///< angles: governing corner
  int sectionClass = 0;
  /// What the capacities came from, for whoever checks them by hand: factors on the plastic
  /// moduli, capacities before shear, and those of the flanges and of the whole plastic section.
  double betay = 0, betaz = 0, Mdy = 0, Mdz = 0;
  double Mndy = 0, Mndz = 0, Mndypl = 0, Mndzpl = 0, Mfdy = 0, Mfdz = 0;
};

/// A governing shear check or, without a position, the lateral check.
struct GoverningForce {
  bool set = false;
  double acting = 0, capacity = 0;  ///< kN or kNm
  double x = 0;
  bool fails = false;
};

/// What stands in a line of the column buckling control.
enum class BucklingText {
  None,
  PureY,
  PureZ,
  PureU,
  PureV,
  Combined,
  CombinedAngle,
  SingleCombined,
  SingleLateral,
  Lateral
};

/// Ratios and lines of the last calculation.
struct CheckResults {
  number IRsection, IRvz, IRvy, IRlateral;
  number IRny, IRnz, IRcombinedY, IRcombinedZ;
  int16 ClassGoverning = 1;  ///< class at the check that set IRsection
  CheckLine lineSection, lineVz, lineVy, lineLateral;
  CheckLine lineBucklingY, lineBucklingZ, lineSlenderness;
  GoverningSection section;
  GoverningForce Vz, Vy, lateral;
  bool bucklingRan = false;  ///< the column buckling control ran in this calculation
  bool slenderness = false;  ///< and it wrote the slenderness line
  BucklingText textY = BucklingText::None, textZ = BucklingText::None;
  double Mu = 0, Mv = 0, Mud = 0, Mvd = 0;  ///< angles: moments and capacities of buckling
  std::array<double, 3> cornerIR{};         ///< angles: corner ratios of the last point
  bool hasCorners = false;                  ///< the last section control was that of an angle
};

/// Results of the column buckling control.
struct BucklingResults {
  number Lybar, Lzbar;      ///< relative slendernesses (angles: u and v)
  number LyOverI, LzOverI;  ///< geometric slendernesses
  number Xy, Xz, Xmin;      ///< reduction factors
  number Nyd, Nzd, NXmin;   ///< kN
  number ky, kz, klt;       ///< moment factors
};

/// One segment between lateral restraints, or the whole member, as its lateral resistance was
/// worked out.
struct LtbSegmentResult {
  int segment = 0;        ///< from 0
  double M1 = 0, M2 = 0;  ///< kNm, moments at its ends
  double C1 = 0, C3 = 0;
  double D = 0;      ///< mm, term of load level and asymmetry
  double sigma = 0;  ///< MPa, critical stress of plate carried families, else 0
  double Mcr = 0;    ///< N*mm, 0 where a family has a stress instead
  double alfa = 0;   ///< imperfection factor
  double beta = 0;   ///< factor on the plastic modulus
  double lamLT = 0, chiLT = 0;
  double Mdb = 0;  ///< kNm
};

/// Results of the lateral torsional buckling step.
struct LtbResults {
  LtbSegmentResult governing;  ///< the segment of Mdb
  LtbSegmentResult least;      ///< the segment of chiLT_min
  number C1, C2, C3;
  number zg;   ///< mm, load level in the formula
  number Lk;   ///< m, buckling length
  number Mcr;  ///< N*mm
  number lamLT, chiLT;
  number chiLT_min;
  number Mdb;                  ///< kNm, design moment of the governing segment
  number Mdb_min;              ///< kNm, design moment at chiLT_min
  std::string LtbSegmentText;  ///< governing segment, "1L/4 - 2L/4"
};

}  // namespace korvane
