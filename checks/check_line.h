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
inline int CheckColour(double ir, double iufa) { return ir > iufa ? 4 : 2; }

/// Ratios and lines of the last calculation.
struct CheckResults {
  number IRsection, IRvz, IRvy, IRlateral;
  number IRny, IRnz, IRcombinedY, IRcombinedZ;
  int16 ClassGoverning = 1;  ///< class at the check that set IRsection
  CheckLine lineSection, lineVz, lineVy, lineLateral;
  CheckLine lineBucklingY, lineBucklingZ, lineSlenderness;
  std::array<double, 3> cornerIR{};  ///< angles: corner ratios of the last point
  bool hasCorners = false;           ///< the last section control was that of an angle
};

/// Results of the column buckling control.
struct BucklingResults {
  number Lybar, Lzbar;        ///< relative slendernesses (angles: u and v)
  number LyOverI, LzOverI;    ///< geometric slendernesses
  number Xy, Xz, Xmin;        ///< reduction factors
  number Nyd, Nzd, NXmin;     ///< kN
  number ky, kz, klt;         ///< moment factors
};

/// Results of the lateral torsional buckling step.
struct LtbResults {
  number C1, C2, C3;
  number zg;           ///< mm, load level in the formula
  number Lk;           ///< m, buckling length
  number Mcr;          ///< N*mm
  number lamLT, chiLT;
  number chiLT_min;
  number Mdb;          ///< kNm, design moment of the governing segment
  number Mdb_min;      ///< kNm, design moment at chiLT_min
  int16 LtbSegment;    ///< governing segment, from 0
  std::string LtbSegmentText;
};

}  // namespace korvane
