// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/load_items.h"

#include <algorithm>
#include <cmath>

namespace korvane {
namespace {

constexpr const char* kTags[] = {"", "V1", "V2"};

// Any group beside 0 and 1 counts as variable 2.
int GroupOf(int pv) {
  return pv == 0 || pv == 1 ? pv : 2;
}

bool Wanted(int group, bool variable) {
  return variable ? group > 0 : group == 0;
}

double Relative(double x, double L) {
  return L > 0 ? std::clamp(x / L, 0., 1.) : 0;
}

void AddDistributed(const ProjectState& st, const PlaneLoads& loads,
                    const Indexed<float32, 0, 2>& sums, bool variable, LoadItems& items) {
  for (int group = 0; group <= 2; ++group) {
    if (!Wanted(group, variable) || sums[group] == 0) continue;
    items.distributed.push_back({0, 1, sums[group], sums[group], 0, st.L, true, kTags[group], 0});
  }
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& slot = TrapezoidOf(t);
    const int group = GroupOf(st.*slot.pv);
    const double x1 = st.*slot.x1;
    const double x2 = st.*slot.x2;
    const double q1 = loads.qt1[t];
    const double q2 = loads.qt2[t];
    if (!Wanted(group, variable) || (q1 == 0 && q2 == 0) || x2 <= x1) continue;
    items.distributed.push_back(
        {Relative(x1, st.L), Relative(x2, st.L), q1, q2, x1, x2, false, kTags[group], 0});
  }
}

void AddPoints(const ProjectState& st, const PlaneLoads& loads, bool variable, LoadItems& items) {
  for (int i = 1; i <= 8; ++i) {
    const int group = GroupOf(st.pm_pv[i]);
    if (!Wanted(group, variable)) continue;
    const double x = Relative(st.pmx[i], st.L);
    if (loads.P[i] != 0) {
      items.points.push_back({x, loads.P[i], st.pmx[i], kTags[group], false});
    }
    if (loads.M[i] != 0) {
      items.points.push_back({x, loads.M[i], st.pmx[i], kTags[group], true});
    }
  }
}

// Gives each distributed load the lowest layer of its side where its stretch is free.
int StackSide(std::vector<DistributedLoad>& loads, bool upward) {
  constexpr double kApart = 0.12;  // of the length: room for the values at the ends
  int layers = 0;
  for (std::size_t i = 0; i < loads.size(); ++i) {
    DistributedLoad& load = loads[i];
    if (load.Upward() != upward) continue;
    const auto taken = [&](int layer) {
      return std::any_of(loads.begin(), loads.begin() + static_cast<std::ptrdiff_t>(i),
                         [&](const DistributedLoad& o) {
                           return o.Upward() == upward && o.layer == layer &&
                                  o.x1 < load.x2 + kApart && load.x1 < o.x2 + kApart;
                         });
    };
    while (taken(load.layer)) ++load.layer;
    layers = std::max(layers, load.layer + 1);
  }
  return layers;
}

}  // namespace

std::vector<double> LoadItems::Positions() const {
  std::vector<double> at;
  for (const DistributedLoad& load : distributed) {
    if (load.whole) continue;
    at.push_back(load.at1);
    at.push_back(load.at2);
  }
  for (const PointLoad& load : points) at.push_back(load.at);
  std::sort(at.begin(), at.end());
  at.erase(std::unique(at.begin(), at.end()), at.end());
  return at;
}

LoadItems CollectLoads(const ProjectState& st, Plane plane, bool variable) {
  WorkingLoads working;
  CombineCharacteristic(st, working);
  const bool z = plane == Plane::Z;
  const PlaneLoads& loads = z ? working.z : working.y;
  LoadItems items;
  AddDistributed(st, loads, z ? working.qzByGroup : working.qyByGroup, variable, items);
  AddPoints(st, loads, variable, items);
  items.layersAbove = StackSide(items.distributed, false);
  items.layersBelow = StackSide(items.distributed, true);
  for (const DistributedLoad& d : items.distributed) {
    items.greatestQ = std::max({items.greatestQ, std::fabs(d.q1), std::fabs(d.q2)});
  }
  for (const PointLoad& p : items.points) {
    double& greatest = p.moment ? items.greatestM : items.greatestP;
    greatest = std::max(greatest, std::fabs(p.value));
  }
  return items;
}

}  // namespace korvane
