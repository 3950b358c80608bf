// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/beam.h"

#include <algorithm>
#include <cmath>

#include "analysis/elementary.h"

namespace korvane {

namespace {

struct Force {
  double M = 0, V = 0;
};

Force Interior(const PartList<ForcePart>& parts, double x) {
  Force f;
  for (const ForcePart& p : parts) {
    const ForceBranch& b = p.At(x);
    f.M += b.m0 + (b.m1 + b.m2 * x) * x;
    f.V += b.v0 + b.v1 * x;
  }
  return f;
}

void Widen(const Force& f, PlaneForces& out) {
  if (f.V > out.V_max) out.V_max = f.V;
  if (f.V < out.V_min) out.V_min = f.V;
  if (f.M > out.M_max) out.M_max = f.M;
  if (f.M < out.M_min) out.M_min = f.M;
}

/// Relative position of the last moment zero between the stations first..last, 0 if none.
double MomentZero(const StationValues& M, int first, int last) {
  int hit = 0;
  for (int i = first; i <= last; ++i) {
    const double m = M[i];
    const double next = M[i + 1];
    if ((next > m && m <= 0 && next >= 0) || (next < m && m >= 0 && next <= 0)) hit = i;
  }
  if (hit == 0) return 0;
  const double m = M[hit];
  return std::fabs(m) / std::fabs(M[hit + 1] - m) / 50 + hit / 50.0;
}

void QuarterPoints(Plane plane, PlaneForces& out) {
  const StationValues& M = out.M;
  // Means of two stations for My, single stations for Mz: the difference stays.
  const bool means = plane == Plane::Z;
  out.M_q[0] = M[0];
  out.M_q[1] = means ? (M[12] + M[13]) / 2 : double(M[12]);
  out.M_q[2] = M[25];
  out.M_q[3] = means ? (M[37] + M[38]) / 2 : double(M[37]);
  out.M_q[4] = M[50];
}

PlaneForces& Of(Plane plane, BeamResults& out) {
  return plane == Plane::Z ? out.z : out.y;
}

double MomentFactor(const PlaneForces& p) {
  const double M0 = p.M_q[0];
  const double ML = p.M_q[4];
  const double Mm = p.M_q[2];
  const bool right = std::fabs(ML) > std::fabs(M0);
  const double small = right ? M0 : ML;
  const double big = right ? ML : M0;
  if (small == 0 && big == 0) {
    const double limit = 1.2 * std::fabs(Mm / 2);
    return std::fabs(p.M[12]) > limit || std::fabs(p.M[38]) > limit ? 1.3 : 1.4;
  }
  const double psi = big == 0 ? 0 : small / big;
  const double betaPsi = 1.8 - 0.7 * psi;
  const double MQ = std::fabs((small + big) / 2 - Mm);
  const double betaQ = MQ != 0 ? 1.3 : 0;
  const double A = big >= 0 ? std::max(big, Mm) : std::fabs(std::max(small, Mm));
  const double B = big >= 0 ? std::fabs(std::min(small, Mm)) : std::fabs(std::min(big, Mm));
  const double dM = A + B;
  return dM == 0 ? 1 : betaPsi + (MQ / dM) * (betaQ - betaPsi);
}

/// Two points around each load entry away from the ends; slots are bound to the entry's number.
void AddLoadPoints(const ProjectState& st, BeamResults& out) {
  for (int i = 1; i <= 8; ++i) {
    if (st.pmx[i] == 0 || st.pmx[i] == st.L) continue;
    out.pt_x[2 * i + 9] = st.pmx[i] * 0.999 / st.L;
    out.pt_x[2 * i + 10] = st.pmx[i] * 1.001 / st.L;
    out.pt_last = 2 * i + 10;
  }
}

/// Characteristic points behind the last slot in use.
void AddUserPoints(const ProjectState& st, BeamResults& out) {
  out.pt_first = out.pt_last + 1;
  out.pt_last = out.pt_last + st.cp_count;
  for (int k = 0; k < st.cp_count; ++k) out.pt_x[out.pt_first + k] = st.cp_x[k + 1] / st.L;
}

void Finals(const ProjectState& st, BeamResults& out) {
  const auto larger = [](double max, double min) {
    return std::max(std::fabs(max), std::fabs(min));
  };
  out.MyAbsMax = larger(out.z.M_max, out.z.M_min);
  out.MzAbsMax = larger(out.y.M_max, out.y.M_min);
  if (st.ProfileType >= 51 && st.ProfileType <= 56) {
    out.My_gov = std::min<double>(out.z.M_min, 0);  // only hogging counts
  } else {
    out.My_gov = std::fabs(out.z.M_min) < std::fabs(out.z.M_max) ? out.z.M_max : out.z.M_min;
  }
}

void AnalyseLoads(ProjectState& st, double S, WorkingLoads& loads, BeamResults& out, number& N) {
  StripForPlateTypes(st);
  CombineUls(st, S, loads);
  PlaneStations(st, loads.z, Plane::Z, out);
  PlaneStations(st, loads.y, Plane::Y, out);
  MomentFactors(out);
  N = AxialForceUls(st);
  AddLoadPoints(st, out);
  if (out.pt_last != 10) {
    out.pt_first = 11;
    PlanePoints(st, loads.z, Plane::Z, out);
    PlanePoints(st, loads.y, Plane::Y, out);
    out.pt_first = 0;
  }
}

void AnalyseEndForces(ProjectState& st, BeamResults& out, number& N) {
  const int type = st.ProfileType;
  if (type == 22 || type == 24 || type == 25 || type == 27) {
    st.Mz_end = {};
    st.Vy_end = {};
  }
  EndForceStations(st, out);
  EndForceMomentFactors(st, out);
  N = st.Ne;
}

}  // namespace

void PlaneStations(const ProjectState& st, const PlaneLoads& loads, Plane plane,
                   BeamResults& results) {
  PlaneForces& out = Of(plane, results);
  PartList<ForcePart> parts;
  CollectForces(st, loads, parts);
  out.M_max = 0;
  out.M_min = 0;
  out.V_max = 0;
  out.V_min = 0;
  for (int i = 0; i <= 50; ++i) {
    Force f;
    if (i == 0) {
      for (const ForcePart& p : parts) f = {f.M + p.M0, f.V + p.V0};
    } else if (i == 50) {
      for (const ForcePart& p : parts) f = {f.M + p.ML, f.V + p.VL};
    } else {
      f = Interior(parts, (i / 50.0) * st.L);
    }
    out.M[i] = f.M;
    out.V[i] = f.V;
    Widen({out.M[i], out.V[i]}, out);
  }
  QuarterPoints(plane, out);
  for (int j = 0; j <= 10; ++j) {
    out.M_pt[j] = out.M[5 * j];
    out.V_pt[j] = out.V[5 * j];
    if (plane == Plane::Z) results.pt_x[j] = j / 10.0;
  }
  const bool restrained =
      st.SupportType == 1 || st.SupportType == 2 || st.SupportType == 3 || st.SupportType == 5;
  out.M_zero1 = restrained ? MomentZero(out.M, 1, 25) : 0;
  out.M_zero2 = restrained ? MomentZero(out.M, 25, 49) : 0;
}

void PlanePoints(const ProjectState& st, const PlaneLoads& loads, Plane plane,
                 BeamResults& results) {
  PlaneForces& out = Of(plane, results);
  PartList<ForcePart> parts;
  CollectForces(st, loads, parts);
  for (int j = results.pt_first; j <= results.pt_last; ++j) {
    const double x = st.L * results.pt_x[j];
    Force f = Interior(parts, x);
    if (results.pt_x[j] == 1) {
      // At exactly x = L a pinned member's moment load on the right branch counts in full.
      for (const ForcePart& p : parts) {
        if (p.endMoment == 0 || x < p.a) continue;
        const ForceBranch& b = p.right;
        f.M += p.endMoment - (b.m0 + (b.m1 + b.m2 * x) * x);
      }
    }
    out.M_pt[j] = f.M;
    out.V_pt[j] = f.V;
    Widen({out.M_pt[j], out.V_pt[j]}, out);
  }
}

void MomentFactors(BeamResults& out) {
  out.betaMy = MomentFactor(out.z);
  out.betaMz = MomentFactor(out.y);
}

void AnalyseBeam(ProjectState& st, double S, WorkingLoads& loads, BeamResults& out, number& N) {
  out.pt_first = 0;
  out.pt_last = 10;
  const bool loadMode = st.AnalysisMode == 1;
  if (loadMode) {
    AnalyseLoads(st, S, loads, out, N);
  } else {
    AnalyseEndForces(st, out, N);
  }
  if (st.cp_mode == 1) {
    AddUserPoints(st, out);
    if (loadMode) {
      PlanePoints(st, loads.z, Plane::Z, out);
      PlanePoints(st, loads.y, Plane::Y, out);
    } else {
      EndForcePoints(st, out);
    }
  }
  Finals(st, out);
}

}  // namespace korvane
