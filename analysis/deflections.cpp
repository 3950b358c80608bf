// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/deflections.h"

#include <cmath>

#include "analysis/elementary.h"

namespace korvane {

void PlaneDeflections(const ProjectState& st, const PlaneLoads& loads, double I,
                      StationValues& defl, float32& max, float32& min) {
  const double K = 1E12 / (st.E * I);
  PartList<DeflectionPart> parts;
  CollectDeflections(st, loads, K, parts);
  const double L = st.L;
  const int last = st.SupportType == 4 ? 50 : 49;  // elsewhere the far end stands still
  defl = {};
  max = 0;
  min = 0;
  const auto set = [&](int i, double value) {
    defl[i] = value;
    if (defl[i] > max) max = defl[i];
    if (defl[i] < min) min = defl[i];
  };
  double start = 0;
  for (const DeflectionPart& p : parts) start += p.start;
  set(0, start);
  for (int i = 1; i <= last; ++i) {
    const double x = (i / 50.0) * L;
    double sum = 0;
    for (const DeflectionPart& p : parts) {
      const DeflectionBranch& b = x < p.a ? p.left : p.right;
      const double t = b.mirrored ? L - x : x;
      sum += b.c[0] + (b.c[1] + (b.c[2] + (b.c[3] + b.c[4] * t) * t) * t) * t;
    }
    set(i, sum);
  }
}

void ComputeDeflections(const ProjectState& st, const WorkingLoads& loads, double Iy, double Iz,
                        Deflections& out) {
  PlaneDeflections(st, loads.y, Iz, out.DeflY, out.DeflY_max, out.DeflY_min);
  PlaneDeflections(st, loads.z, Iy, out.DeflZ, out.DeflZ_max, out.DeflZ_min);
  out.DeflStiff = std::fabs(out.DeflZ_max * Iy);
}

}  // namespace korvane
