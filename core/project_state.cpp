// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/project_state.h"

#include <utility>

namespace korvane {

void NewProject(ProjectState& st, const std::string& programFolder) {
  ProjectState fresh;
  fresh.fyk = st.fyk;
  fresh.gammam1 = st.gammam1;
  fresh.fd = st.fd;
  fresh.epsilon = st.epsilon;
  fresh.DeflectionLimit = st.DeflectionLimit;
  fresh.islend_limit = st.islend_limit;
  fresh.Za = st.Za;
  fresh.lfp_uls = st.lfp_uls;
  fresh.lfv1_uls = st.lfv1_uls;
  fresh.lfv2_uls = st.lfv2_uls;
  fresh.lfp_sls = st.lfp_sls;
  fresh.lfv1_sls = st.lfv1_sls;
  fresh.lfv2_sls = st.lfv2_sls;
  fresh.lfsw_uls = st.lfsw_uls;
  fresh.CurrentDir = programFolder;
  st = std::move(fresh);
}

namespace {

void ClearTransverseLoads(ProjectState& st) {
  const ProjectState none = [] {
    ProjectState s;
    s.q1 = 0.0;
    return s;
  }();
  st.SelfWeight = 0;
  st.pmx_relative = 0;
  st.qtx_relative = 0;
  st.q1 = none.q1;
  st.q1_pv = none.q1_pv;
  st.q1_yz = none.q1_yz;
  st.q2 = none.q2;
  st.q2_pv = none.q2_pv;
  st.q2_yz = none.q2_yz;
  st.q3 = none.q3;
  st.q3_pv = none.q3_pv;
  st.q3_yz = none.q3_yz;
  st.q4 = none.q4;
  st.q4_pv = none.q4_pv;
  st.q4_yz = none.q4_yz;
  st.qt1_1 = none.qt1_1;
  st.qt1_2 = none.qt1_2;
  st.qt1_x1 = none.qt1_x1;
  st.qt1_x2 = none.qt1_x2;
  st.qt1_pv = none.qt1_pv;
  st.qt1_yz = none.qt1_yz;
  st.qt2_1 = none.qt2_1;
  st.qt2_2 = none.qt2_2;
  st.qt2_x1 = none.qt2_x1;
  st.qt2_x2 = none.qt2_x2;
  st.qt2_pv = none.qt2_pv;
  st.qt2_yz = none.qt2_yz;
  st.qt3_1 = none.qt3_1;
  st.qt3_2 = none.qt3_2;
  st.qt3_x1 = none.qt3_x1;
  st.qt3_x2 = none.qt3_x2;
  st.qt3_pv = none.qt3_pv;
  st.qt3_yz = none.qt3_yz;
  st.pm = none.pm;
  st.pmx = none.pmx;
  st.pm_pm = none.pm_pm;
  st.pm_pv = none.pm_pv;
  st.pm_yz = none.pm_yz;
  st.LoadLevel = 1;
}

}  // namespace

void ClearLoads(ProjectState& st) {
  ClearTransverseLoads(st);
  st.NP = 0.0;
  st.NV1 = 0.0;
  st.NV2 = 0.0;
}

void ClearLoadsKeepAxial(ProjectState& st) {
  ClearTransverseLoads(st);
  st.My_end = {};
  st.Mz_end = {};
  st.Vy_end = {};
  st.Vz_end = {};
}

}  // namespace korvane
