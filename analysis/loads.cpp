// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/loads.h"

#include <array>

#include "core/family_kinds.h"
#include "core/supports.h"

namespace korvane {

namespace {

/// Factors of the groups permanent, variable 1, variable 2; any other group counts as 2.
struct GroupFactors {
  double p, v1, v2;
  double Of(int group) const { return group == 0 ? p : group == 1 ? v1 : v2; }
};

constexpr std::array<LineLoad, 4> kLineLoads{{
    {&ProjectState::q1, &ProjectState::q1_pv, &ProjectState::q1_yz},
    {&ProjectState::q2, &ProjectState::q2_pv, &ProjectState::q2_yz},
    {&ProjectState::q3, &ProjectState::q3_pv, &ProjectState::q3_yz},
    {&ProjectState::q4, &ProjectState::q4_pv, &ProjectState::q4_yz},
}};

void ClearPlane(PlaneLoads& plane) {
  plane.qt1 = {};
  plane.qt2 = {};
  plane.P = {};
  plane.M = {};
}

/// Trapezoids and load entries with the factors given.
void DistributeItems(const ProjectState& st, const GroupFactors& f, WorkingLoads& w) {
  ClearPlane(w.z);
  ClearPlane(w.y);
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    const double factor = f.Of(st.*s.pv);
    PlaneLoads& plane = st.*s.yz == 0 ? w.y : w.z;
    plane.qt1[t] = factor * (st.*s.q1);
    plane.qt2[t] = factor * (st.*s.q2);
  }
  for (int i = 1; i <= 8; ++i) {
    const double v = f.Of(st.pm_pv[i]) * st.pm[i];
    if (st.pm_pm[i] == 0) {
      (st.pm_yz[i] == 0 ? w.y : w.z).P[i] = v;
    } else {
      (st.pm_yz[i] == 1 ? w.z : w.y).M[i] = v;
    }
  }
}

void Combine(const ProjectState& st, const GroupFactors& f, double selfWeight, WorkingLoads& w) {
  // The sums are working fields of single precision: every load added rounds them.
  w.z.q = 0;
  w.y.q = 0;
  for (const LineLoad& l : kLineLoads) {
    (st.*l.yz == 0 ? w.y : w.z).q += f.Of(st.*l.pv) * (st.*l.q);
  }
  if (st.SelfWeight == 1) w.z.q += selfWeight;
  DistributeItems(st, f, w);
}

GroupFactors UlsFactors(const ProjectState& st) {
  return {st.lfp_uls, st.lfv1_uls, st.lfv2_uls};
}

}  // namespace

const LineLoad& LineLoadOf(int n) {
  return kLineLoads.at(static_cast<std::size_t>(n - 1));
}

const Trapezoid& TrapezoidOf(int t) {
  using State = ProjectState;
  static constexpr std::array<Trapezoid, 3> table{{
      {&State::qt1_1, &State::qt1_2, &State::qt1_x1, &State::qt1_x2, &State::qt1_pv,
       &State::qt1_yz},
      {&State::qt2_1, &State::qt2_2, &State::qt2_x1, &State::qt2_x2, &State::qt2_pv,
       &State::qt2_yz},
      {&State::qt3_1, &State::qt3_2, &State::qt3_x1, &State::qt3_x2, &State::qt3_pv,
       &State::qt3_yz},
  }};
  if (t < 1 || t > 3) throw ArithmeticFault("index out of range");
  return table[static_cast<std::size_t>(t - 1)];
}

void CombineUls(const ProjectState& st, double S, WorkingLoads& w) {
  Combine(st, UlsFactors(st), S * 0.01 * st.lfsw_uls, w);
}

void CombineSls(const ProjectState& st, double S, WorkingLoads& w) {
  Combine(st, {st.lfp_sls, st.lfv1_sls, st.lfv2_sls}, S * 0.01, w);
}

void CombineCharacteristic(const ProjectState& st, WorkingLoads& w) {
  w.qzByGroup = {};
  w.qyByGroup = {};
  for (const LineLoad& l : kLineLoads) {
    const int pv = st.*l.pv;
    const int group = pv == 0 || pv == 1 ? pv : 2;
    (st.*l.yz == 0 ? w.qyByGroup : w.qzByGroup)[group] += st.*l.q;
  }
  DistributeItems(st, {1, 1, 1}, w);
}

double AxialForceUls(const ProjectState& st) {
  return st.lfp_uls * st.NP + st.lfv1_uls * st.NV1 + st.lfv2_uls * st.NV2;
}

void TakeLoads(const ProjectState& from, ProjectState& to) {
  const auto take = [&](auto... member) { ((to.*member = from.*member), ...); };
  take(&ProjectState::NP, &ProjectState::NV1, &ProjectState::NV2);
  for (const LineLoad& l : kLineLoads) take(l.q, l.pv, l.yz);
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& one = TrapezoidOf(t);
    take(one.q1, one.q2, one.x1, one.x2, one.pv, one.yz);
  }
  take(&ProjectState::pm_pm, &ProjectState::pm, &ProjectState::pmx, &ProjectState::pm_pv,
       &ProjectState::pm_yz);
}

double FlangeLineLoad(const ProjectState& st) {
  const GroupFactors f = UlsFactors(st);
  double q = 0;
  for (const LineLoad& l : kLineLoads) {
    if (st.*l.yz != 0) q += f.Of(st.*l.pv) * (st.*l.q);
  }
  return q;
}

double ModalLineLoad(const ProjectState& st) {
  const GroupFactors f{st.lfp_sls, st.lfv1_sls, st.lfv2_sls};
  double q = 0;
  for (const LineLoad& l : kLineLoads) {
    if (st.*l.yz == 1) q += f.Of(st.*l.pv) * (st.*l.q);
  }
  return q;
}

void StripForPlateTypes(ProjectState& st) {
  if (!IsPlateType(st.ProfileType)) return;
  st.NP = 0;
  st.NV1 = 0;
  st.NV2 = 0;
  for (const LineLoad& l : kLineLoads) {
    if (st.*l.yz == 0) st.*l.q = 0;
    st.*l.yz = 1;
  }
  // Trapezoid 3 is deliberately not treated.
  for (int t = 1; t <= 2; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    if (st.*s.yz == 0) {
      st.*s.q1 = 0;
      st.*s.q2 = 0;
    }
    st.*s.yz = 1;
  }
  for (int i = 1; i <= 8; ++i) {
    if (st.pm_yz[i] != 0) continue;
    st.pm_yz[i] = 1;
    st.pm[i] = 0;
    st.pm_pv[i] = 0;
    st.pmx[i] = 0;
  }
}

namespace {

void TidyTrapezoid(ProjectState& st, const Trapezoid& s) {
  const auto clearOrdinates = [&] {
    st.*s.q1 = 0;
    st.*s.q2 = 0;
  };
  const auto clearPositions = [&] {
    st.*s.x1 = 0;
    st.*s.x2 = 0;
  };
  if (st.*s.q1 == 0 && st.*s.q2 == 0) {
    clearPositions();
  } else if (st.*s.x1 >= st.L && st.*s.x2 >= st.L) {
    clearOrdinates();
    clearPositions();
  }
  if (st.*s.x2 > st.L) st.*s.x2 = st.L;
  if (st.*s.x1 == 0 && st.*s.x2 == 0) clearOrdinates();
}

/// The first trapezoid that can't stand, with its message and the field to mend.
std::optional<LoadMessage> CheckTrapezoids(const ProjectState& st) {
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    const double q1 = st.*s.q1;
    const double q2 = st.*s.q2;
    if ((q1 > 0 && q2 < 0) || (q1 < 0 && q2 > 0)) {
      return LoadMessage{" Trapezoidal load: One positive and one negative value ", s.q2};
    }
  }
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    if (st.*s.x1 > st.*s.x2) return LoadMessage{" x1 < x2 ", s.x2};
  }
  return std::nullopt;
}

bool KeepsItem(const ProjectState& st, int i) {
  const double x = st.pmx[i];
  const double L = st.L;
  if (st.pm_pm[i] == 0) return x != 0 && (IsCantilever(st.SupportType) ? x <= L : x < L);
  const Support* support = FindSupport(st.SupportType);
  if (support == nullptr) return true;
  return (support->momentAtStart || x != 0) && (support->momentAtEnd ? x <= L : x < L);
}

}  // namespace

std::optional<LoadMessage> NormaliseLoads(ProjectState& st) {
  for (int t = 1; t <= 3; ++t) TidyTrapezoid(st, TrapezoidOf(t));
  std::optional<LoadMessage> message = CheckTrapezoids(st);
  for (int i = 1; i <= 8; ++i) {
    if (st.pm[i] == 0) st.pmx[i] = 0;
    if (!KeepsItem(st, i)) {
      st.pm[i] = 0;
      st.pmx[i] = 0;
    }
  }
  for (int i = 1; i <= 3; ++i) {
    if (st.cp_x[i] > st.L) st.cp_x[i] = st.L;
  }
  if (st.L * 1000 < st.a_webstiff) {
    st.WebStiffener = 0;
    st.a_webstiff = st.L * 1000 / 2;
  }
  return message;
}

}  // namespace korvane
