// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/beam.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "analysis/running_sums.h"
#include "analysis/stations.h"
#include "core/family_kinds.h"
#include "core/supports.h"

namespace korvane {

namespace {

struct Force {
  double M = 0, V = 0;
};

/// The loads of a plane, ready to be asked for their forces anywhere.
class PlaneModel {
public:
  PlaneModel(const ProjectState& st, const PlaneLoads& loads) {
    CollectForces(st, loads, parts_);
    if (!parts_.empty()) sums_.emplace(parts_, st.L);
  }
  PlaneModel(const PlaneModel&) = delete;
  PlaneModel& operator=(const PlaneModel&) = delete;

  const PartList<ForcePart>& Parts() const { return parts_; }
  /// Moments and shears of the stations away from the ends.
  void AtStations(double L, StationRow& M, StationRow& V) const {
    if (!sums_) {
      M = {};
      V = {};
      return;
    }
    for (std::size_t i = 1; i < kLastStation;) {
      const auto end = static_cast<std::size_t>(sums_->RunEnd(int(i), kLastStation - 1)) + 1;
      const ForceBranch sum = sums_->AtStation(int(i), kStationPlaces[i] * L);
      for (; i < end; ++i) {
        const double x = kStationPlaces[i] * L;
        M[i] = sum.M(x);
        V[i] = sum.V(x);
      }
    }
  }
  /// By the branches alone, without the rules of the ends.
  Force At(double x) const { return sums_ ? Forces(sums_->At(x), x) : Force{}; }

private:
  static Force Forces(const ForceBranch& sum, double x) { return {sum.M(x), sum.V(x)}; }

  PartList<ForcePart> parts_;
  std::optional<RunningSums<ForcePart, ForceBranch>> sums_;
};

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
  // Only a file can hold it; fewer points than the even ones would be checked.
  if (st.cp_count < 0) throw ArithmeticFault("calculation points below 0");
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
  if (IsStiffenedPlate(st.ProfileType)) {
    out.My_gov = std::min<double>(out.z.M_min, 0);  // only hogging counts
  } else {
    out.My_gov = std::fabs(out.z.M_min) < std::fabs(out.z.M_max) ? out.z.M_max : out.z.M_min;
  }
}

/// Fills stations, extremes (which start at 0), quarter-point moments, the eleven even points
/// (and for the z plane their pt_x) and the moment zeros of one plane.
void PlaneStations(const ProjectState& st, const PlaneModel& model, Plane plane,
                   BeamResults& results) {
  PlaneForces& out = Of(plane, results);
  StationRow M;
  StationRow V;
  model.AtStations(st.L, M, V);
  Force start;
  Force end;
  for (const ForcePart& p : model.Parts()) {
    start = {start.M + p.M0, start.V + p.V0};
    end = {end.M + p.ML, end.V + p.VL};
  }
  M.front() = start.M;
  V.front() = start.V;
  M.back() = end.M;
  V.back() = end.V;
  for (int i = 0; i <= kLastStation; ++i) {
    out.M[i] = M[static_cast<std::size_t>(i)];
    out.V[i] = V[static_cast<std::size_t>(i)];
  }
  out.M_max = 0;
  out.M_min = 0;
  out.V_max = 0;
  out.V_min = 0;
  Widen(out.M, out.M_max, out.M_min);
  Widen(out.V, out.V_max, out.V_min);
  QuarterPoints(plane, out);
  for (int j = 0; j <= 10; ++j) {
    out.M_pt[j] = out.M[5 * j];
    out.V_pt[j] = out.V[5 * j];
    if (plane == Plane::Z) results.pt_x[j] = j / 10.0;
  }
  const bool restrained = IsRestrained(st.SupportType);
  out.M_zero1 = restrained ? MomentZero(out.M, 1, 25) : 0;
  out.M_zero2 = restrained ? MomentZero(out.M, 25, 49) : 0;
}

/// Evaluates the same formulas at the points pt_first..pt_last, without end value logic, and
/// widens the extremes.
void PlanePoints(const ProjectState& st, const PlaneModel& model, Plane plane,
                 BeamResults& results) {
  PlaneForces& out = Of(plane, results);
  for (int j = results.pt_first; j <= results.pt_last; ++j) {
    const double x = st.L * results.pt_x[j];
    Force f = model.At(x);
    if (results.pt_x[j] == 1) {
      // At exactly x = L the right branches are their end values: a sum of rounded polynomials
      // would leave crumbs where the moment is 0, and a pinned member's moment load counts in full.
      f.M = 0;
      for (const ForcePart& p : model.Parts()) f.M += p.LeftAt(x) ? p.left.M(x) : p.endMoment;
    }
    out.M_pt[j] = f.M;
    out.V_pt[j] = f.V;
    Widen({out.M_pt[j], out.V_pt[j]}, out);
  }
}

void AnalyseLoads(ProjectState& st, double S, WorkingLoads& loads, BeamResults& out, number& N) {
  StripForPlateTypes(st);
  CombineUls(st, S, loads);
  const PlaneModel z(st, loads.z);
  const PlaneModel y(st, loads.y);
  const auto evaluatePoints = [&] {
    PlanePoints(st, z, Plane::Z, out);
    PlanePoints(st, y, Plane::Y, out);
  };
  PlaneStations(st, z, Plane::Z, out);
  PlaneStations(st, y, Plane::Y, out);
  MomentFactors(out);
  N = AxialForceUls(st);
  AddLoadPoints(st, out);
  if (out.pt_last != 10) {
    out.pt_first = 11;
    evaluatePoints();
    out.pt_first = 0;
  }
  if (st.cp_mode == 1) {
    AddUserPoints(st, out);
    evaluatePoints();
  }
}

void AnalyseEndForces(ProjectState& st, BeamResults& out, number& N) {
  if (HasUnequalFlanges(st.ProfileType)) {
    st.Mz_end = {};
    st.Vy_end = {};
  }
  EndForceStations(st, out);
  EndForceMomentFactors(st, out);
  N = st.Ne;
  if (st.cp_mode == 1) {
    AddUserPoints(st, out);
    EndForcePoints(st, out);
  }
}

}  // namespace

void MomentFactors(BeamResults& out) {
  out.betaMy = MomentFactor(out.z);
  out.betaMz = MomentFactor(out.y);
}

void AnalyseBeam(ProjectState& st, double S, WorkingLoads& loads, BeamResults& out, number& N) {
  out.pt_first = 0;
  out.pt_last = 10;
  if (st.AnalysisMode == 1) {
    AnalyseLoads(st, S, loads, out, N);
  } else {
    AnalyseEndForces(st, out, N);
  }
  Finals(st, out);
}

}  // namespace korvane
