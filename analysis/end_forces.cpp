// SPDX-License-Identifier: GPL-3.0-or-later
// End-force mode: everything between the two ends is a straight line.
#include <cmath>

#include "analysis/beam.h"

namespace korvane {

namespace {

using Ends = Indexed<float32, 1, 2>;

void Line(const Ends& ends, StationValues& station, PointValues& points, float32& max,
          float32& min) {
  const double rise = ends[2] - ends[1];
  max = ends[1];
  min = ends[1];
  for (int i = 0; i <= 50; ++i) {
    station[i] = ends[1] + i * rise / 50;  // so that the last station is the second end's value
    if (station[i] > max) max = station[i];
    if (station[i] < min) min = station[i];
  }
  points[0] = ends[1];
  points[10] = ends[2];
  for (int j = 1; j <= 9; ++j) points[j] = points[j - 1] + rise / 10;
}

double Factor(const Ends& M) {
  const bool right = std::fabs(M[2]) > std::fabs(M[1]);
  const double small = right ? M[1] : M[2];
  const double big = right ? M[2] : M[1];
  return 1.8 - 0.7 * (big == 0 ? 0 : small / big);
}

}  // namespace

void EndForceStations(const ProjectState& st, BeamResults& out) {
  PlaneForces& z = out.z;
  PlaneForces& y = out.y;
  z.M_q[0] = st.My_end[1];
  z.M_q[4] = st.My_end[2];
  y.M_q[0] = st.Mz_end[1];
  y.M_q[4] = st.Mz_end[2];
  Line(st.My_end, z.M, z.M_pt, z.M_max, z.M_min);
  Line(st.Vz_end, z.V, z.V_pt, z.V_max, z.V_min);
  Line(st.Mz_end, y.M, y.M_pt, y.M_max, y.M_min);
  Line(st.Vy_end, y.V, y.V_pt, y.V_max, y.V_min);
  for (int j = 0; j <= 10; ++j) out.pt_x[j] = j / 10.0;
}

void EndForceMomentFactors(const ProjectState& st, BeamResults& out) {
  out.betaMy = Factor(st.My_end);
  out.betaMz = Factor(st.Mz_end);
}

void EndForcePoints(const ProjectState& st, BeamResults& out) {
  for (int j = out.pt_first; j <= out.pt_last; ++j) {
    const double x = out.pt_x[j];
    const auto at = [x](const Ends& e) { return e[1] + (e[2] - e[1]) * x; };
    out.z.M_pt[j] = at(st.My_end);
    out.z.V_pt[j] = at(st.Vz_end);
    out.y.M_pt[j] = at(st.Mz_end);
    out.y.V_pt[j] = at(st.Vy_end);
  }
}

}  // namespace korvane
