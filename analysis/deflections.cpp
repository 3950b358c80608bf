// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/deflections.h"

#include <algorithm>
#include <cmath>

#include "analysis/running_sums.h"
#include "analysis/stations.h"
#include "core/supports.h"

namespace korvane {

namespace {

/// The deflections of the stations from..to, which have the same sum.
void AddRun(const DeflectionSum& sum, int from, int to, double L, StationRow& row) {
  const auto first = static_cast<std::size_t>(from);
  const auto end = static_cast<std::size_t>(to) + 1;
  if (sum.mirrored == decltype(sum.mirrored){}) {
    for (std::size_t i = first; i < end; ++i) row[i] = sum.PlainAt(kStationPlaces[i] * L);
  } else {
    for (std::size_t i = first; i < end; ++i) row[i] = sum.At(kStationPlaces[i] * L, L);
  }
}

/// mm; what is less counts as no deflection.
constexpr double kLeast = 1E-3;

}  // namespace

double LengthOverDeflection(double L, double max, double min) {
  const double greatest = std::max(std::fabs(max), std::fabs(min));
  return greatest < kLeast ? 0 : std::fabs(L * 1000 / greatest);
}

void PlaneDeflections(const ProjectState& st, const PlaneLoads& loads, double I,
                      StationValues& defl, float32& max, float32& min) {
  const double K = 1E12 / (st.E * I);
  PartList<DeflectionPart> parts;
  CollectDeflections(st, loads, K, parts);
  defl = {};
  max = 0;
  min = 0;
  if (parts.empty()) return;
  StationRow row;
  row[0] = 0;
  for (const DeflectionPart& p : parts) row[0] += p.start;
  const double L = st.L;
  const RunningSums<DeflectionPart, DeflectionSum> sums(parts, L);
  const int last = IsCantilever(st.SupportType) ? 50 : 49;  // elsewhere the far end stands still
  for (int i = 1; i <= last;) {
    const int end = sums.RunEnd(i, last);
    AddRun(sums.AtStation(i, kStationPlaces[static_cast<std::size_t>(i)] * L), i, end, L, row);
    i = end + 1;
  }
  if (L < 0 && last == 50) {
    // Every station lies before the loads then; the free end takes the tip values all the same.
    DeflectionSum tip;
    for (const DeflectionPart& p : parts) tip.Add(p.right.mirrored ? p.right : p.At(L));
    row[50] = tip.At(L, L);
  }
  for (int i = 0; i <= last; ++i) defl[i] = row[static_cast<std::size_t>(i)];
  Widen(defl, max, min);
}

void ComputeDeflections(const ProjectState& st, const WorkingLoads& loads, double Iy, double Iz,
                        Deflections& out) {
  PlaneDeflections(st, loads.y, Iz, out.DeflY, out.DeflY_max, out.DeflY_min);
  PlaneDeflections(st, loads.z, Iy, out.DeflZ, out.DeflZ_max, out.DeflZ_min);
  out.DeflStiff = std::fabs(out.DeflZ_max * Iy);
}

}  // namespace korvane
