// SPDX-License-Identifier: GPL-3.0-or-later
#include "naive_analysis.h"

#include <algorithm>
#include <cmath>

#include "naive_formulas.h"

namespace korvane::naive {

namespace {

/// The rigid cases of a support; a spring support blends two with the weights given.
struct Blend {
  Case pinned = kPinned;
  Case fixed = kPinned;
  double pinnedWeight = 0;
  double fixedWeight = 1;
};

Blend BlendOf(const ProjectState& st) {
  const double s = st.SpringRestraint / 100.0;
  switch (st.SupportType) {
    case 3:
      return {kPinned, kFixed, 1 - s, s};
    case 5:
      return {kPinned, kPropped, 1 - s, s};
    default:
      return {kPinned, static_cast<Case>(int(st.SupportType)), 0, 1};
  }
}

/// Calls value(case) for the cases of a support and blends what it returns.
template <class Value>
Effect BlendForce(const Blend& blend, Value&& value) {
  const Effect fixed = value(blend.fixed);
  if (blend.pinnedWeight == 0 && blend.fixedWeight == 1) return fixed;
  const Effect pinned = value(blend.pinned);
  return {blend.pinnedWeight * pinned.M + blend.fixedWeight * fixed.M,
          blend.pinnedWeight * pinned.V + blend.fixedWeight * fixed.V};
}

template <class Value>
double BlendDeflection(const Blend& blend, Value&& value) {
  const double fixed = value(blend.fixed);
  if (blend.pinnedWeight == 0 && blend.fixedWeight == 1) return fixed;
  return blend.pinnedWeight * value(blend.pinned) + blend.fixedWeight * fixed;
}

/// Calls slice(P, a) for the 20 point loads of trapezoid t.
template <class Slice>
void ForEachSlice(const ProjectState& st, const PlaneLoads& loads, int t, Slice&& slice) {
  const Trapezoid& s = TrapezoidOf(t);
  const double dx = (st.*s.x2 - st.*s.x1) / 20;
  const double dq = (loads.qt2[t] - loads.qt1[t]) / 20;
  for (int k = 1; k <= 20; ++k) {
    slice(dx * (loads.qt1[t] + k * dq - 0.5 * dq), st.*s.x1 + k * dx - 0.5 * dx);
  }
}

bool Skips(Visits visits, double load) {
  return visits == Visits::LoadsOnly && load == 0;
}

bool SkipsTrapezoid(Visits visits, const PlaneLoads& loads, int t) {
  return Skips(visits, loads.qt1[t]) && Skips(visits, loads.qt2[t]);
}

/// All loads of a plane at x.
Effect ForcesAt(const ProjectState& st, const PlaneLoads& loads, Visits visits, At at, double x,
                bool lastPoint) {
  const Blend blend = BlendOf(st);
  const double L = st.L;
  const bool spring3 = st.SupportType == 3;
  const auto isLeft = [x](Case c, double a) {
    return x < a || (x == a && (c == kFixed || c == kCantilever));
  };
  Effect sum;
  const auto add = [&sum](const Effect& e) {
    sum.M += e.M;
    sum.V += e.V;
  };
  for (int i = 1; i <= 8; ++i) {
    const double a = st.pmx[i];
    if (!Skips(visits, loads.P[i])) {
      add(BlendForce(blend, [&](Case c) {
        const bool left = spring3 ? x < a : isLeft(c, a);
        return PointForce(c, at, left, L, loads.P[i], a, x);
      }));
    }
    if (Skips(visits, loads.M[i])) continue;
    add(BlendForce(blend, [&](Case c) {
      const bool left = c == kCantilever ? x <= a : x < a;
      Effect e = MomentForce(c, at, left, L, loads.M[i], a, x);
      if (spring3 && c == kPinned && at != At::Inside) e.M = 0;
      if (lastPoint && st.SupportType == 0 && !left) e.M = -loads.M[i];
      return e;
    }));
  }
  if (!Skips(visits, loads.q)) {
    add(BlendForce(blend, [&](Case c) { return LineForce(c, at, L, loads.q, x); }));
  }
  for (int t = 1; t <= 3; ++t) {
    if (SkipsTrapezoid(visits, loads, t)) continue;
    ForEachSlice(st, loads, t, [&](double P, double a) {
      add(BlendForce(blend, [&](Case c) { return PointForce(c, at, isLeft(c, a), L, P, a, x); }));
    });
  }
  return sum;
}

void Widen(double M, double V, PlaneForces& out) {
  if (V > out.V_max) out.V_max = V;
  if (V < out.V_min) out.V_min = V;
  if (M > out.M_max) out.M_max = M;
  if (M < out.M_min) out.M_min = M;
}

double MomentZero(const StationValues& M, int first, int last) {
  int hit = 0;
  for (int i = first; i <= last; ++i) {
    if (M[i + 1] > M[i] && M[i] <= 0 && M[i + 1] >= 0) hit = i;
    if (M[i + 1] < M[i] && M[i] >= 0 && M[i + 1] <= 0) hit = i;
  }
  if (hit == 0) return 0;
  return (std::fabs(M[hit]) / std::fabs(M[hit + 1] - M[hit])) / 50 + hit / 50.0;
}

void Stations(const ProjectState& st, const PlaneLoads& loads, Visits visits, bool means,
              PlaneForces& out) {
  out.M_max = 0;
  out.M_min = 0;
  out.V_max = 0;
  out.V_min = 0;
  for (int i = 0; i <= 50; ++i) {
    const At at = i == 0 ? At::Start : i == 50 ? At::End : At::Inside;
    const Effect f = ForcesAt(st, loads, visits, at, (i / 50.0) * st.L, false);
    out.M[i] = f.M;
    out.V[i] = f.V;
    Widen(out.M[i], out.V[i], out);
  }
  for (int k = 0; k <= 4; ++k) out.M_q[k] = out.M[k * 25 / 2];
  if (means) {
    out.M_q[1] = (out.M[12] + out.M[13]) / 2;
    out.M_q[3] = (out.M[37] + out.M[38]) / 2;
  }
  for (int j = 0; j <= 10; ++j) {
    out.M_pt[j] = out.M[5 * j];
    out.V_pt[j] = out.V[5 * j];
  }
  const bool zeros = st.SupportType != 0 && st.SupportType != 4;
  out.M_zero1 = zeros ? MomentZero(out.M, 1, 25) : 0.0;
  out.M_zero2 = zeros ? MomentZero(out.M, 25, 49) : 0.0;
}

void Points(const ProjectState& st, const PlaneLoads& loads, Visits visits, const BeamResults& all,
            PlaneForces& out) {
  for (int j = all.pt_first; j <= all.pt_last; ++j) {
    const double x = st.L * all.pt_x[j];
    const Effect f = ForcesAt(st, loads, visits, At::Inside, x, all.pt_x[j] == 1);
    out.M_pt[j] = f.M;
    out.V_pt[j] = f.V;
    Widen(out.M_pt[j], out.V_pt[j], out);
  }
}

/// Points around the loads, then the user's.
void AllPoints(const ProjectState& st, Visits visits, const WorkingLoads& loads, BeamResults& out) {
  const auto evaluate = [&] {
    Points(st, loads.z, visits, out, out.z);
    Points(st, loads.y, visits, out, out.y);
  };
  for (int i = 1; i <= 8; ++i) {
    if (st.pmx[i] == 0 || st.pmx[i] == st.L) continue;
    out.pt_x[2 * i + 9] = st.pmx[i] * 0.999 / st.L;
    out.pt_x[2 * i + 10] = st.pmx[i] * 1.001 / st.L;
    out.pt_last = 2 * i + 10;
  }
  if (out.pt_last > 10) {
    out.pt_first = 11;
    evaluate();
    out.pt_first = 0;
  }
  if (st.cp_mode != 1) return;
  out.pt_first = out.pt_last + 1;
  out.pt_last = out.pt_first + st.cp_count - 1;
  for (int k = 0; k < st.cp_count; ++k) out.pt_x[out.pt_first + k] = st.cp_x[k + 1] / st.L;
  evaluate();
}

double DeflectionAt(const ProjectState& st, const PlaneLoads& loads, Visits visits, double K,
                    double x) {
  const Blend blend = BlendOf(st);
  const double L = st.L;
  double sum = 0;
  const auto point = [&](double P, double a) {
    sum += BlendDeflection(blend, [&](Case c) { return PointDeflection(c, K, L, P, a, x); });
  };
  for (int i = 1; i <= 8; ++i) {
    const double a = st.pmx[i];
    if (!Skips(visits, loads.P[i])) point(loads.P[i], a);
    if (Skips(visits, loads.M[i])) continue;
    sum +=
        BlendDeflection(blend, [&](Case c) { return MomentDeflection(c, K, L, loads.M[i], a, x); });
  }
  if (!Skips(visits, loads.q)) {
    sum += BlendDeflection(blend, [&](Case c) { return LineDeflection(c, K, L, loads.q, x); });
  }
  for (int t = 1; t <= 3; ++t) {
    if (!SkipsTrapezoid(visits, loads, t)) ForEachSlice(st, loads, t, point);
  }
  return sum;
}

void DeflectPlane(const ProjectState& st, const PlaneLoads& loads, Visits visits, double I,
                  StationValues& defl, float32& max, float32& min) {
  const double K = 1E12 / (st.E * I);
  const int last = st.SupportType == 4 ? 50 : 49;
  defl = {};
  max = 0;
  min = 0;
  for (int i = 1; i <= last; ++i) {
    defl[i] = DeflectionAt(st, loads, visits, K, (i / 50.0) * st.L);
    max = std::max<double>(max, defl[i]);
    min = std::min<double>(min, defl[i]);
  }
}

}  // namespace

void Analyse(const ProjectState& st, double S, Visits visits, WorkingLoads& loads,
             BeamResults& out) {
  out.pt_first = 0;
  out.pt_last = 10;
  CombineUls(st, S, loads);
  for (int j = 0; j <= 10; ++j) out.pt_x[j] = j / 10.0;
  Stations(st, loads.z, visits, true, out.z);
  Stations(st, loads.y, visits, false, out.y);
  MomentFactors(out);
  AllPoints(st, visits, loads, out);
  out.MyAbsMax = std::max(std::fabs(out.z.M_max), std::fabs(out.z.M_min));
  out.MzAbsMax = std::max(std::fabs(out.y.M_max), std::fabs(out.y.M_min));
}

void Deflect(const ProjectState& st, double Iy, double Iz, Visits visits, const WorkingLoads& loads,
             Deflections& out) {
  DeflectPlane(st, loads.y, visits, Iz, out.DeflY, out.DeflY_max, out.DeflY_min);
  DeflectPlane(st, loads.z, visits, Iy, out.DeflZ, out.DeflZ_max, out.DeflZ_min);
  out.DeflStiff = std::fabs(out.DeflZ_max * Iy);
}

}  // namespace korvane::naive
