// SPDX-License-Identifier: GPL-3.0-or-later
// A member with all kinds of input in use, for the tests of pages.
#pragma once

#include "core/project_state.h"

namespace korvane {

/// Every kind of load or of end force, every factor and option of a page, each with a value of its
/// own.
inline void LoadFully(ProjectState& st, bool endForces) {
  st.L = 5.237;
  st.SupportType = endForces ? 0 : 3;
  st.AnalysisMode = endForces ? 0 : 1;
  st.NP = 41.37, st.NV1 = 21.83, st.NV2 = 5.19;
  st.q1 = 3.13, st.q2 = 3.57, st.q2_pv = 1, st.q3 = 1.61, st.q3_yz = 0, st.q4 = 2.23, st.q4_pv = 2;
  st.qt1_1 = 2.07, st.qt1_2 = 4.09, st.qt1_x1 = 0.53, st.qt1_x2 = 3.01;
  st.qt2_1 = 1.11, st.qt2_2 = 1.59, st.qt2_x1 = 1.03, st.qt2_x2 = 4.07, st.qt2_pv = 1;
  st.qt3_1 = 1.17, st.qt3_2 = 2.29, st.qt3_x1 = 0.27, st.qt3_x2 = 4.79, st.qt3_yz = 0;
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = 2.047 + i;
    st.pmx[i] = 0.503 * i + 0.1;
    st.pm_pm[i] = i % 3 == 0 ? 1 : 0;
    st.pm_pv[i] = i % 3;
    st.pm_yz[i] = i % 4 == 0 ? 0 : 1;
  }
  st.Ne = 51.43;
  st.My_end[1] = 12.37, st.My_end[2] = -7.41, st.Mz_end[1] = 2.03, st.Mz_end[2] = 1.07;
  st.Vz_end[1] = 9.31, st.Vz_end[2] = 6.73, st.Vy_end[1] = 3.19, st.Vy_end[2] = -3.23;
  st.SelfWeight = 1, st.check_slend = 1, st.islend_limit = 247;
  st.gammam1 = 1.07, st.iufa = 0.97, st.density = 7851, st.DeflectionLimit = 307;
  st.bly = 0.93, st.blz = 0.89, st.BucklingCaseY = 6, st.BucklingCaseZ = 6;
  st.lfsw_uls = 1.21, st.lfp_uls = 1.23, st.lfv1_uls = 1.49, st.lfv2_uls = 1.33;
  st.lfp_sls = 1.01, st.lfv1_sls = 0.91, st.lfv2_sls = 0.71;
  st.WebStiffener = 1, st.a_webstiff = 1873;
}

}  // namespace korvane
