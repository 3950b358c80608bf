// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/deflections.h"

#include <cmath>

#include "analysis/running_sums.h"
#include "core/supports.h"

namespace korvane {

void PlaneDeflections(const ProjectState& st, const PlaneLoads& loads, double I,
                      StationValues& defl, float32& max, float32& min) {
  const double K = 1E12 / (st.E * I);
  PartList<DeflectionPart> parts;
  CollectDeflections(st, loads, K, parts);
  defl = {};
  max = 0;
  min = 0;
  if (parts.empty()) return;
  const auto set = [&](int i, double value) {
    defl[i] = value;
    if (defl[i] > max) max = defl[i];
    if (defl[i] < min) min = defl[i];
  };
  double start = 0;
  for (const DeflectionPart& p : parts) start += p.start;
  set(0, start);
  const double L = st.L;
  const RunningSums<DeflectionPart, DeflectionSum> sums(parts, L);
  const int last = IsCantilever(st.SupportType) ? 50 : 49;  // elsewhere the far end stands still
  for (int i = 1; i <= last; ++i) {
    const double x = (i / 50.0) * L;
    set(i, sums.AtStation(i, x).At(x, L));
  }
}

void ComputeDeflections(const ProjectState& st, const WorkingLoads& loads, double Iy, double Iz,
                        Deflections& out) {
  PlaneDeflections(st, loads.y, Iz, out.DeflY, out.DeflY_max, out.DeflY_min);
  PlaneDeflections(st, loads.z, Iy, out.DeflZ, out.DeflZ_max, out.DeflZ_min);
  out.DeflStiff = std::fabs(out.DeflZ_max * Iy);
}

}  // namespace korvane
