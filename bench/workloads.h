// SPDX-License-Identifier: GPL-3.0-or-later
// What is measured: the members and the work on them, for the times and for the counts.
#pragma once

#include <memory>

#include "core/calculation.h"
#include "optimiser/optimize.h"

namespace korvane {

inline std::shared_ptr<const Library> TheLibrary() {
  static const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  return library;
}

inline Design NewDesign() {
  Design d(TheLibrary());
  StartDesign(d);
  Calculate(d);
  return d;
}

/// Four line loads, three trapezoids and eight items, in both planes.
inline Design FullDesign() {
  Design d = NewDesign();
  ProjectState& st = d.st;
  st.q2 = 3.0;
  st.q3 = 2.0;
  st.q3_yz = 0;
  st.q4 = 1.0;
  st.qt1_1 = 2.0;
  st.qt1_2 = 4.0;
  st.qt1_x2 = 3.0;
  st.qt2_1 = 1.0;
  st.qt2_2 = 1.0;
  st.qt2_x2 = 4.0;
  st.qt2_yz = 0;
  st.qt3_1 = 1.0;
  st.qt3_2 = 2.0;
  st.qt3_x2 = 5.0;
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = 2.0 + i;
    st.pmx[i] = 0.5 * i;
    st.pm_pm[i] = i % 3 == 0 ? 1 : 0;
    st.pm_yz[i] = i % 2;
  }
  Calculate(d);
  return d;
}

/// All eleven series: 698 recalculations.
inline void SearchAll(Design& d, OptimiserResults& results) {
  for (int row = 1; row <= kOptimiserRows; ++row) SearchRow(d, row, results);
}

/// The analysis of a calculation by itself: forces at the stations and points, deflections.
inline void Analysis(Design& d) {
  AnalyseBeam(d.st, d.rec.S, d.loads, d.beam, d.forces.N);
  CombineSls(d.st, d.rec.S, d.loads);
  ComputeDeflections(d.st, d.loads, d.rec.Iy, d.rec.Iz, d.deflections);
}

}  // namespace korvane
