// SPDX-License-Identifier: GPL-3.0-or-later
// A check as printed text, and the results of all checks.
#pragma once

#include <array>
#include <string>

#include "core/numeric.h"

namespace korvane {

/// A printed check. colour is an index of the 16-colour basic palette.
struct CheckLine {
  std::string label, formula, numbers, value, limit;
  int colour = 0;  ///< 2 green: passes, 4 red: fails
};

/// Palette index of a ratio: equal to the limit passes.
inline int CheckColour(double ir, double iufa) {
  return ir > iufa ? 4 : 2;
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
};

/// A governing shear check or, without a position, the lateral check.
struct GoverningForce {
  bool set = false;
  double S = 0, Sd = 0;
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

/// Results of the lateral torsional buckling step.
struct LtbResults {
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
