// SPDX-License-Identifier: GPL-3.0-or-later
// Members that the analysis tests start from, and the short way through an analysis.
#pragma once

#include "analysis/beam.h"
#include "analysis/deflections.h"
#include "analysis/loads.h"
#include "core/project_state.h"

namespace korvane {

/// A rolled member without any load, with all load factors 1.
inline ProjectState BareMember(int support, double L) {
  ProjectState st;
  ClearLoads(st);
  st.SupportType = support;
  st.L = L;
  for (float32* f : {&st.lfp_uls, &st.lfv1_uls, &st.lfv2_uls, &st.lfp_sls, &st.lfv1_sls,
                     &st.lfv2_sls, &st.lfsw_uls}) {
    *f = 1;
  }
  return st;
}

/// Load entry i: a point load P (kN) at x (m).
inline void PutPoint(ProjectState& st, int i, double P, double x, int axis = 1) {
  st.pm_pm[i] = 0;
  st.pm_yz[i] = axis;
  st.pm[i] = P;
  st.pmx[i] = x;
}

/// Load entry i: a moment Mo (kNm) at x (m).
inline void PutMoment(ProjectState& st, int i, double Mo, double x, int axis = 1) {
  PutPoint(st, i, Mo, x, axis);
  st.pm_pm[i] = 1;
}

/// Trapezoid t from q1 (kN/m) at x1 (m) to q2 at x2.
inline void PutTrapezoid(ProjectState& st, int t, double q1, double q2, double x1, double x2) {
  const Trapezoid& s = TrapezoidOf(t);
  st.*s.q1 = q1;
  st.*s.q2 = q2;
  st.*s.x1 = x1;
  st.*s.x2 = x2;
}

/// The whole analysis of a copy of the member, weighing S kg/m.
inline BeamResults Analysed(ProjectState st, double S = 0) {
  WorkingLoads loads;
  BeamResults out;
  number N;
  AnalyseBeam(st, S, loads, out, N);
  return out;
}

/// Deflections (mm) of the member with the second moments of area given (mm4).
inline Deflections Deflected(const ProjectState& st, double Iy = 1E8, double Iz = 1E8,
                             double S = 0) {
  WorkingLoads loads;
  Deflections out;
  CombineSls(st, S, loads);
  ComputeDeflections(st, loads, Iy, Iz, out);
  return out;
}

}  // namespace korvane
