// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/lateral_buckling.h"

#include <array>
#include <cmath>

#include "core/supports.h"
#include "sections/capacities.h"

namespace korvane {

namespace {

constexpr double kPi2 = kPiSingle * kPiSingle;

/// A set of C factors that falls linearly with t = (1 - k)/0.5: between the values for k = 1 and
/// k = 0.5 of a member under a spread load or a point load at mid-span, with pinned or fixed ends
/// (ENV 1993-1-1, Annex F, Table F.1.2).
struct CSet {
  double C1, C1t, C2, C2t, C3, C3t;
};
constexpr CSet kSpreadPinned{1.132, -0.16, 0.459, -0.155, 0.525, 0.455};
constexpr CSet kPointPinned{1.365, -0.295, 0.553, -0.121, 1.735, 1.315};
constexpr CSet kSpreadFixed{1.285, -0.573, 1.562, -0.91, 0.753, 0.317};
constexpr CSet kPointFixed{1.565, -0.627, 1.267, -0.552, 2.645, 2.16};

CFactors At(const CSet& s, double k) {
  const double t = (1 - k) / 0.5;
  return {s.C1 + s.C1t * t, s.C2 + s.C2t * t, s.C3 + s.C3t * t};
}

/// wa*a + wb*b.
CFactors Mix(double wa, const CFactors& a, double wb, const CFactors& b) {
  return {wa * a.C1 + wb * b.C1, wa * a.C2 + wb * b.C2, wa * a.C3 + wb * b.C3};
}

/// Moment of largest size in the middle three fifths.
double MiddleMoment(const PlaneForces& z) {
  double Mx = z.M_q[2];
  for (int i = 10; i <= 40; ++i) {
    if (std::fabs(z.M[i]) > std::fabs(Mx)) Mx = z.M[i];
  }
  return Mx;
}

/// C factors under end moments (ENV 1993-1-1, Annex F, Table F.1.1), by their ratio r.
/// Reference value and slope of C1 and C3 for k = 1, 0.7, 0.5; a row holds from r = lower on.
struct SegmentRow {
  double lower;
  std::array<std::array<double, 2>, 3> C1, C3;
};

// The references 1.27 and 1.305 of the second row and the zero slopes of the seventh break the
// smooth course: deliberately part of the table.
// clang-format off
constexpr std::array<SegmentRow, 8> kSegments{{
  {0.75,  {{{1.141, -0.141}, {1.27, -0.27},   {1.305, -0.305}}}, {{{0.998, 0.002}, {1.565, -0.452}, {2.283, -1.139}}}},
  {0.5,   {{{1.323, -0.182}, {1.27, -0.203},  {1.305, -0.209}}}, {{{0.992, 0.006}, {1.556, 0.009},  {2.271, 0.012}}}},
  {0.25,  {{{1.563, -0.24},  {1.739, -0.266}, {1.788, -0.274}}}, {{{0.977, 0.015}, {1.531, 0.025},  {2.235, 0.036}}}},
  {0,     {{{1.879, -0.316}, {2.092, -0.353}, {2.15, -0.362}}},  {{{0.939, 0.038}, {1.473, 0.058},  {2.15, 0.085}}}},
  {-0.25, {{{2.281, -0.402}, {2.538, -0.446}, {2.609, -0.459}}}, {{{0.855, 0.084}, {1.34, 0.133},   {1.957, 0.193}}}},
  {-0.5,  {{{2.704, -0.423}, {3.009, -0.471}, {3.093, -0.484}}}, {{{0.676, 0.179}, {1.059, 0.281},  {1.546, 0.411}}}},
  {-0.75, {{{2.927, -0.223}, {3.009, 0},      {3.093, 0}}},      {{{0.366, 0.31},  {0.575, 0.484},  {0.837, 0.709}}}},
  {-1,    {{{2.752, 0.175},  {3.063, -0.054}, {3.149, -0.056}}}, {{{0, 0.366},     {0, 0.575},      {0, 0.837}}}},
}};
// clang-format on

/// A plate carried family, whose stiffener is compressed.
bool IsPlate(LateralMethod method) {
  return method == LateralMethod::FlatStiffener || method == LateralMethod::FlangedStiffener;
}

/// Reduction factor by the slenderness; the transition 0.4 is fixed for all families.
double Reduction(double lam, double alpha) {
  const double phi = 0.5 * (1 + alpha * (lam - 0.4) + lam * lam);
  const double chi = 1 / (phi + std::sqrt(phi * phi - lam * lam));
  return chi > 1 ? 1 : chi;
}

/// Critical moment in N*mm for a length in mm; D is the term of load level and asymmetry in mm.
double CriticalMoment(const ProjectState& st, const SectionRecord& rec, double C1, double D,
                      double Lmm) {
  const double T = Lmm * Lmm * (st.E / 2.6) * rec.Ix / st.E;
  const double B = T / kPi2 / rec.Iz + rec.Iw / rec.Iz;
  return C1 * kPi2 * st.E * rec.Iz / (Lmm * Lmm) * (std::sqrt(B + D * D) - D);
}

/// Moment signs that select the side of an asymmetric section.
struct Signs {
  bool topCompressed;  ///< singly symmetric I: the top flange is compressed
  bool plateOnly;      ///< plate families: the plate is compressed all along
};

/// What buckles: its length in mm, the imperfection factor that counts for it, and C2*zg of the
/// loads' level in mm.
struct Segment {
  double Lmm, alpha, level;
};

/// Mcr, lamLT, chiLT of the segment, with the way there; Mdb in kNm.
LtbSegmentResult DesignMoment(const LateralRule& rule, const ProjectState& st,
                              const SectionRecord& rec, const Signs& signs, const Segment& segment,
                              LtbResults& ltb) {
  LtbSegmentResult s;
  s.C1 = ltb.C1;
  s.C3 = ltb.C3;
  s.beta = rec.betay;
  if (IsPlate(rule.method)) {
    s.beta = signs.plateOnly ? rec.betaTop : rec.betaBottom;
    ltb.chiLT = 1;
    if (!signs.plateOnly) {
      const PlateReduced reduced = PlateReduction(rule.method, st, rec, segment.Lmm);
      ltb.lamLT = reduced.lamLT;
      ltb.chiLT = reduced.chiLT;
      s.sigma = reduced.sigma;
      s.lamLT = ltb.lamLT;
    }
    s.chiLT = ltb.chiLT;
    s.Mdb = MomentOf(st, s.chiLT * s.beta * rec.Wply);
    return s;
  }
  double level = segment.level;
  if (rule.method == LateralMethod::SinglySymmetric) {
    s.beta = signs.topCompressed ? rec.betaTop : rec.betaBottom;
    level -= ltb.C3 * (signs.topCompressed ? rec.zjTop : rec.zjBottom);
  }
  ltb.Mcr = CriticalMoment(st, rec, ltb.C1, level, segment.Lmm);
  ltb.lamLT = std::sqrt(s.beta * rec.Wply * st.fyk / ltb.Mcr);
  ltb.chiLT = Reduction(ltb.lamLT, segment.alpha);
  s.alfa = segment.alpha;
  s.D = level;
  s.Mcr = ltb.Mcr;
  s.lamLT = ltb.lamLT;
  s.chiLT = ltb.chiLT;
  s.Mdb = MomentOf(st, s.chiLT * s.beta * rec.Wply);
  return s;
}

void ClassifyFor(const Family& family, const ProjectState& st, double My, SectionForces& f,
                 SectionRecord& rec) {
  f.Ncl = f.N;
  f.My = My;
  family.routines.sectionClass(st, f, rec);
  family.routines.capacities(st, f, rec);
}

/// Za by the load level and its distance zg in the formula; middle is the moment at mid-span.
void LoadLevelDistance(const Family& family, ProjectState& st, const SectionRecord& rec,
                       double middle, LtbResults& ltb) {
  if (IsPlate(family.lateral.method)) return;
  if (family.givenConstants) {
    st.Za = 0;
    ltb.zg = 0;
    st.LoadLevel = 2;
    return;
  }
  const bool single = family.lateral.method == LateralMethod::SinglySymmetric;
  switch (st.LoadLevel) {
    case 1:
      st.Za = single ? double(rec.ezel) : rec.h / 2;
      break;
    case 2:
      st.Za = 0;
      break;
    case 3:
      st.Za = single ? -(rec.h - rec.ezel) : -rec.h / 2;
      break;
    default:
      break;
  }
  const double distance = single ? st.Za - rec.zs : double(st.Za);
  ltb.zg = middle > 0 ? distance : -distance;
}

void LtbNoRestraints(const Family& family, ProjectState& st, SectionForces& f, SectionRecord& rec,
                     const BeamResults& beam, LtbResults& ltb) {
  const CFactors c = FactorsOfMember(st, beam);
  ltb.C1 = c.C1;
  ltb.C2 = c.C2;
  ltb.C3 = c.C3;
  const PlaneForces& z = beam.z;
  const double middle = z.M[25];
  LoadLevelDistance(family, st, rec, middle, ltb);
  ClassifyFor(family, st, beam.MyAbsMax, f, rec);
  if (st.CFactorManual == 1) {
    ltb.C1 = st.C1i;
    ltb.C2 = st.C2i;
    ltb.C3 = st.C3i;
  }
  ltb.Lk = st.L * st.k_ltb;
  const Signs signs{middle > 0, middle >= 0 && z.M_q[0] >= 0 && z.M_q[4] >= 0};
  ltb.governing = DesignMoment(family.lateral, st, rec, signs,
                               {ltb.Lk * 1000, family.lateral.alpha, ltb.C2 * ltb.zg}, ltb);
  ltb.governing.M1 = z.M[0];
  ltb.governing.M2 = z.M[50];
  ltb.least = ltb.governing;
  ltb.Mdb = ltb.governing.Mdb;
  ltb.Mdb_min = ltb.Mdb;
  ltb.chiLT_min = ltb.chiLT;
  if (st.LateralTorsionalBuckling == 0) {
    ltb.chiLT_min = 1;
    ltb.Mdb_min = rec.Mdy;
  }
}

/// Moment of a segment that its resistance is compared with.
double SegmentMoment(const StationValues& M, int i1, int i2, bool plate) {
  double Ms = M[i1];
  for (int i = i1; i <= i2; ++i) {
    if (plate ? M[i] < Ms : std::fabs(M[i]) > std::fabs(Ms)) Ms = M[i];
  }
  return plate && Ms > 0 ? 0 : Ms;
}

std::string SegmentText(int g, int n) {
  const std::string parts = std::to_string(n + 1);
  const auto point = [&](int i) { return std::to_string(i) + "L/" + parts; };
  if (g == 0) return "0 - L/" + parts;
  if (g == n) return point(g) + " -  L";
  return point(g) + " - " + point(g + 1);
}

void LtbWithRestraints(const Family& family, ProjectState& st, SectionForces& f, SectionRecord& rec,
                       BeamResults& beam, LtbResults& ltb) {
  const int n = st.LtbSegments;
  // Only a file can hold it; without a segment every moment would pass.
  if (n < 0) throw ArithmeticFault("restraint points below 0");
  const StationValues& M = beam.z.M;
  ltb.Mdb = 1E16;
  ltb.Mdb_min = 1E16;
  ltb.chiLT_min = 1;
  ltb.C2 = 0;
  ltb.governing = {};
  ltb.least = {};
  ltb.Lk = st.k_ltb * st.L / (n + 1);
  double worst = 0;
  double C1 = 0;
  double C3 = 0;
  for (int g = 0; g <= n; ++g) {
    const auto station = [n](int i) {
      return static_cast<int>(std::nearbyint(i * 50.0 / (n + 1)));
    };
    const int i1 = station(g);
    const int i2 = station(g + 1);
    const double M1 = M[i1];
    const double M2 = M[i2];
    const bool firstLarger = std::fabs(M1) > std::fabs(M2);
    const double larger = firstLarger ? M1 : M2;
    const double r = larger == 0 ? 0 : (firstLarger ? M2 : M1) / larger;
    const SegmentFactors c = FactorsOfSegment(r, st.k_ltb);
    ltb.C1 = c.C1;
    ltb.C3 = c.C3;
    ClassifyFor(family, st, (M1 + M2) / 2, f, rec);
    const Signs signs{(M1 + M2) / 2 > 0, M1 >= 0 && M2 >= 0};
    LtbSegmentResult segment = DesignMoment(
        family.lateral, st, rec, signs, {ltb.Lk * 1000, family.lateral.alphaRestrained, 0}, ltb);
    segment.segment = g;
    segment.M1 = M1;
    segment.M2 = M2;
    const double Mseg = segment.Mdb;
    const double Ms = SegmentMoment(M, i1, i2, IsPlate(family.lateral.method));
    const double ratio = std::fabs(Ms / Mseg);
    if (ratio >= worst) {  // a later segment wins a tie
      worst = ratio;
      beam.My_gov = Ms;
      ltb.Mdb = Mseg;
      C1 = c.C1;
      C3 = c.C3;
      st.LtbCriticalSegment = g;
      ltb.governing = segment;
    }
    if (ltb.chiLT <= ltb.chiLT_min) {
      ltb.chiLT_min = ltb.chiLT;
      ltb.Mdb_min = Mseg;
      ltb.least = segment;
    }
  }
  ltb.C1 = C1;
  ltb.C3 = C3;
  ltb.LtbSegmentText = SegmentText(st.LtbCriticalSegment, n);
}

}  // namespace

PlateReduced PlateReduction(LateralMethod method, const ProjectState& st, const SectionRecord& rec,
                            double Lmm) {
  const double G = st.E / 2.6;
  double sigma = 0;
  if (method == LateralMethod::FlatStiffener) {
    sigma = (2 * std::pow(rec.h / Lmm, 2) + 1) * G * std::pow(rec.tw / rec.h, 2);
  } else {
    const double torsion = (std::pow(rec.tf2 / rec.tw, 2) * rec.Afc + rec.Afw) * G *
                           std::pow(rec.tw / (rec.h - rec.tf), 2) / (3 * rec.Afc + rec.Afw);
    sigma = torsion + kPi2 * st.E * rec.Iz / (rec.Afw / 3 + rec.Afc) / (Lmm * Lmm);
  }
  const double lam = number(std::sqrt(st.fyk / sigma));
  const double a = 1 + (lam - 0.6) * 0.35 + lam * lam;
  return {sigma, lam, lam <= 0.6 ? 1 : (a - std::sqrt(a * a - 4 * lam * lam)) / (2 * lam * lam)};
}

SegmentFactors FactorsOfSegment(double r, double k) {
  std::size_t row = 0;
  while (row + 1 < kSegments.size() && r < kSegments[row].lower) ++row;
  const SegmentRow& s = kSegments[row];
  const auto value = [&](const std::array<std::array<double, 2>, 3>& cells) {
    const auto at = [&](std::size_t i) { return cells[i][0] + cells[i][1] * (r - s.lower) / 0.25; };
    constexpr double seven = 0.699999988079071;  // 0.7 in single precision
    if (k > seven) return at(1) + (k - 0.7) / 0.3 * (at(0) - at(1));
    return at(2) + (k - 0.5) / 0.2 * (at(1) - at(2));
  };
  return {value(s.C1), value(s.C3)};
}

CFactors FactorsOfMember(const ProjectState& st, const BeamResults& beam) {
  const PlaneForces& z = beam.z;
  const double Mx = MiddleMoment(z);
  const double M0 = z.M_q[0];
  const double ML = z.M_q[4];
  const double M12 = z.M[12];
  const double M38 = z.M[38];
  const double right = (Mx - ML) * 1.2 / 2 + ML;
  const double left = M0 + 1.2 * (Mx - M0) / 2;
  // The comparisons of the quarter points turn round with the sign of the moment.
  const auto above = [Mx](double M, double limit) { return Mx > 0 ? M > limit : M < limit; };
  const double k = st.k_ltb;
  const double s = st.SpringRestraint / 100.0;
  const CFactors U = At(kSpreadPinned, k);
  const CFactors P = At(kPointPinned, k);
  const CFactors UF = At(kSpreadFixed, k);
  const CFactors PF = At(kPointFixed, k);
  const bool oneFixedPoint = !above(M38, right);
  const bool fixedSpread = above(M38, right) || above(M12, left);
  const Support* support = FindSupport(st.SupportType);
  if (support == nullptr) return {};
  // A spring support blends the factors with those of the pinned case.
  const auto blended = [&](const CFactors& stiff, const CFactors& pinned) {
    return IsSpring(st.SupportType) ? Mix(s, stiff, 1 - s, pinned) : stiff;
  };
  switch (support->stiff) {
    case RigidCase::Pinned: {
      const double limit = std::fabs(Mx * 1.2 / 2);
      return std::fabs(M12) <= limit && std::fabs(M38) <= limit ? P : U;
    }
    case RigidCase::Propped:
      return oneFixedPoint ? blended(Mix(0.6, P, 0.4, PF), P) : blended(Mix(0.6, U, 0.4, UF), U);
    case RigidCase::Fixed:
      return fixedSpread ? blended(UF, U) : blended(PF, P);
    case RigidCase::Cantilever: {
      const bool spread = std::fabs(z.M_q[2]) > 1.2 * std::fabs(M0 + ML) / 2;
      return At(spread ? kSpreadPinned : kPointPinned, k / 2);
    }
  }
  return {};
}

void LateralTorsionalStep(const Family& family, ProjectState& st, SectionForces& f,
                          SectionRecord& rec, BeamResults& beam, LtbResults& ltb) {
  if (st.AnalysisMode == 1 && st.LtbSegments == 0) {
    LtbNoRestraints(family, st, f, rec, beam, ltb);
  } else {
    LtbWithRestraints(family, st, f, rec, beam, ltb);
  }
}

}  // namespace korvane
