// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/elements.h"

#include <algorithm>
#include <cmath>

#include "core/powers.h"

namespace korvane {

// The reduced slenderness sqrt(fy/sigma_cr) with sigma_cr = k*pi^2*E/(12*(1 - nu^2))*(t/c)^2 and
// nu = 0.3: 28.4 is what remains for fy = 235 MPa.
double PlateSlenderness(double ratio, double eps, double k) {
  return ratio / (28.4 * eps * std::sqrt(k));
}

double EffectiveWidth(double ratio, double eps, double k, bool ignored) {
  if (ignored) return 1;
  const double lam = PlateSlenderness(ratio, eps, k);
  return lam > 0.673 ? (lam - 0.22) / (lam * lam) : 1;
}

// Buckling factors of flat elements under a gradient of stress, for -1 <= psi <= 0 (internal) and
// -3 <= psi <= 1 (outstand), as in ENV 1993-1-1, Tables 5.3.2 and 5.3.3.
double InternalBendingFactor(double psi) {
  return 7.81 - 6.29 * psi + 9.78 * psi * psi;
}

double OutstandFactor(double psi) {
  return 0.57 - 0.21 * psi + 0.07 * psi * psi;
}

// Class limits of internal elements and outstands: 12.1, the numbers of EN 1993-1-1, Table 5.2;
// class 3 of a mixed web is 126/(2 + psi) where that table rounds to 42/(0.67 + 0.33*psi).
int MixedInternalClass(double alpha, double psi, double w, double eps) {
  if (alpha > 0.5) {
    if (w <= 396 * eps / (13 * alpha - 1)) return 1;
    if (w <= 456 * eps / (13 * alpha - 1)) return 2;
  } else {
    if (w <= 36 * eps / alpha) return 1;
    if (w <= 41.5 * eps / alpha) return 2;
  }
  const double third = psi > -1 ? 126 * eps / (2 + psi) : 62 * eps * (1 - psi) * std::sqrt(-psi);
  return w <= third ? 3 : 4;
}

int InternalClass(double s1, double s2, double w, double eps, ZeroStress zero) {
  if (s1 >= 0 && s2 >= 0) return 1;
  const bool compressed = s1 < 0 && (zero == ZeroStress::Compressed ? s2 <= 0 : s2 < 0);
  if (compressed) {
    if (w < 33 * eps) return 1;
    if (w < 38 * eps) return 2;
    return w < 126 * eps / (2 + s2 / s1) ? 3 : 4;
  }
  return MixedInternalClass(-s1 / (-s1 + s2), s2 / s1, w, eps);
}

int OutstandClass(double s3, double s4, double f, double eps, const OutstandLimits& limits) {
  if (s3 >= 0 && s4 >= 0) return 1;
  if (s3 < 0 && s4 <= 0) {
    if (f < limits.first * eps) return 1;
    if (f < limits.second * eps) return 2;
    return f < limits.third * eps ? 3 : 4;
  }
  const double alpha = -s3 / (-s3 + s4);
  const double psi = s3 == 0 ? 0 : s4 / s3;
  if (f < limits.first * eps) return 1;
  if (f < limits.second * eps / alpha) return 2;
  return f <= limits.mixedThird * eps * std::sqrt(OutstandFactor(psi)) ? 3 : 4;
}

int ClassByLimits(double ratio, double first, double second, double third, bool strict) {
  if (strict ? ratio < first : ratio <= first) return 1;
  if (strict ? ratio < second : ratio <= second) return 2;
  return ratio <= third ? 3 : 4;
}

int GoverningClass(const ProjectState& st, int webClass, int flangeClass) {
  if (st.IgnoreFlangeBuckling == 1) flangeClass = 1;
  if (st.IgnoreWebBuckling == 1) webClass = 1;
  return std::max(webClass, flangeClass);
}

// First the flange loses what buckles of it, which moves the axis to e1; the web is then reduced by
// the stresses about that axis: of its compressed height hc it keeps 0.4*rho*hc at the flange and
// 0.6*rho*hc at the axis. What is left has its axis at e2 from the compressed edge.
BentSection ReduceInBending(const CompressedSide& s, double eps) {
  const double moment = s.z * s.A;
  const double A1 = s.A - s.removed;
  const double e1 = (moment - s.removedMoments * s.t / 2) / A1;
  const double hc = e1 - s.t;
  const double psi = -(s.depth - hc) / hc;
  const double rho = EffectiveWidth(s.webRatio, eps, InternalBendingFactor(psi), s.ignoreWeb);

  const double strip = (1 - rho) * s.webs * hc;
  const double m = e1 - 0.6 * rho * hc - (1 - rho) * hc / 2;
  const double A2 = A1 - strip;
  const double e2 = (moment - strip * m - s.removedMoments * s.t / 2) / A2;
  const double own = s.fullStripInertia ? (1 - rho) * s.webs * hc * hc * hc / 12
                                        : s.webs * Cube((1 - rho) * hc) / 12;
  const double flange = s.removedMoments * (s.t * s.t / 12 + s.t * s.t / 4);
  return {e2, s.z * moment + s.I - own - strip * m * m - flange - A2 * e2 * e2};
}

double ShearEta(const ProjectState& st) {
  return st.fyk < 400 ? 1.2 : 1.05;
}

double ShearCapacityOf(const ProjectState& st, double area, double chi) {
  return area * chi * (st.fyk / std::sqrt(3.0)) / st.gammam1 / 1000;
}

namespace {

struct WallLimit {
  double stocky;  ///< limit of depth/thickness
  double lam;     ///< shear slenderness
};

// A wall is stocky up to 72*eps/eta, and 31*eps*sqrt(k)/eta between stiffeners; 86.4 and 37.4 are
// what sqrt(fy/(tau_cr*sqrt(3))) leaves for fy = 235 MPa, with k = 5.34 for a long panel.
WallLimit Unstiffened(const ProjectState& st, const ShearWall& wall) {
  return {72 * st.epsilon / ShearEta(st), (1 / 86.4) / st.epsilon * wall.ratio};
}

WallLimit Stiffened(const ProjectState& st, const ShearWall& wall) {
  const double q = wall.depth / st.a_webstiff;
  const double k = st.a_webstiff / wall.depth >= 1 ? 5.34 + 4 * q * q : 4 + 5.34 * q * q;
  return {31 * st.epsilon * std::sqrt(k) / ShearEta(st),
          (1 / 37.4) / st.epsilon / std::sqrt(k) * wall.ratio};
}

// Contribution of the web by its slenderness; a stiff end post carries the tension field
// beyond 1.08. 12.2.5, the numbers of EN 1993-1-5, Table 5.1.
double WallShear(const ProjectState& st, const ShearWall& wall, const WallLimit& limit,
                 bool stiffEnd, float32& area) {
  if (wall.ratio < limit.stocky) {
    area = wall.stocky;
    return ShearCapacityOf(st, area, 1);
  }
  area = wall.slender;
  const double eta = ShearEta(st);
  double chi = 0.83 / limit.lam;
  if (limit.lam < 0.83 / eta) {
    chi = eta;
  } else if (stiffEnd && limit.lam >= 1.08) {
    chi = 1.37 / (0.7 + limit.lam);
  }
  return ShearCapacityOf(st, area, chi);
}

}  // namespace

double UnstiffenedShear(const ProjectState& st, const ShearWall& wall, float32& area) {
  return WallShear(st, wall, Unstiffened(st, wall), false, area);
}

double WorkingShear(const ProjectState& st, const ShearWall& wall, float32& area) {
  const WallLimit limit = st.WebStiffener == 1 ? Stiffened(st, wall) : Unstiffened(st, wall);
  return WallShear(st, wall, limit, st.EndStiffener == 1, area);
}

double ShearShare(double V, double Vd) {
  const double q = 2 * V / Vd - 1;
  return std::min(q * q, 1.0);
}

}  // namespace korvane
