// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/buckling_curves.h"

#include <array>

namespace korvane {

namespace {

struct Curve {
  double alfa;
  const char* letter;
};
constexpr std::array<Curve, 5> kCurves{
    {{0.13, "a0"}, {0.21, "a"}, {0.34, "b"}, {0.49, "c"}, {0.76, "d"}}};

const Curve& CurveOf(int index) {
  return kCurves[index >= 0 && index < 4 ? static_cast<std::size_t>(index) : 4];
}

/// Numbers of the curves.
enum : int { kA0, kA, kB, kC, kD };

}  // namespace

double ImperfectionFactor(int curve) {
  return CurveOf(curve).alfa;
}

double AngleImperfectionFactor(int curve) {
  return curve >= 0 && curve <= 2 ? CurveOf(curve + 1).alfa : CurveOf(kD).alfa;
}

const char* CurveLetter(int curve) {
  return CurveOf(curve).letter;
}

const char* AngleCurveLetter(int curve) {
  return curve >= 0 && curve <= 2 ? CurveOf(curve + 1).letter : CurveOf(kD).letter;
}

double LengthFactorOfCase(int bucklingCase) {
  switch (bucklingCase) {
    case 1:
      return 2.0;
    case 2:
      return 1.0;
    case 3:
      return 0.7;
    case 4:
      return 0.5;
    case 5:
      return 0;
    default:
      return -1;
  }
}

void TakeSupport(const Support& support, ProjectState& st) {
  const double factor = LengthFactorOfCase(support.bucklingCase);
  st.SupportType = support.code;
  if (st.BucklingCaseY < 5) {
    st.bly = factor;
    st.BucklingCaseY = support.bucklingCase;
  }
  if (st.BucklingCaseZ < 5) {
    st.blz = factor;
    st.BucklingCaseZ = support.bucklingCase;
  }
  st.LateralBucklingCase = support.bucklingCase;
  st.k_ltb = factor;
}

std::optional<CurvePair> CurvesOf(CurveRule rule, const SectionRecord& rec,
                                  const ProjectState& st) {
  using Pair = CurvePair;
  switch (rule) {
    case CurveRule::RolledI: {
      // Compared in single precision.
      const bool deep = float32(1.2 * rec.b) < rec.h;
      if (st.fyk > 440) return deep ? Pair{kA0, kA0} : Pair{kA, kA};
      return deep ? Pair{kA, kB} : Pair{kB, kC};
    }
    case CurveRule::WeldedI:
      return rec.tmax <= 40 ? Pair{kB, kC} : Pair{kC, kD};
    case CurveRule::WeldedBox: {
      // The stockier plates of a hot welded box take the weaker curve.
      const bool stocky = rec.b / rec.tf < 30 && rec.h / rec.tw < 30;
      return st.BoxWeld == 0 && stocky ? Pair{kC, kC} : Pair{kB, kB};
    }
    case CurveRule::Tube:
      return st.TubeKind != 0 ? Pair{kA, kA} : Pair{kB, kB};
    case CurveRule::A:
      return Pair{kA, kA};
    case CurveRule::B:
      return Pair{kB, kB};
    case CurveRule::C:
      return Pair{kC, kC};
    case CurveRule::Kept:
      break;
  }
  return std::nullopt;
}

void ChooseBucklingCurves(CurveRule rule, const SectionRecord& rec, ProjectState& st) {
  if (const auto curves = CurvesOf(rule, rec, st)) {
    st.BucklingCurveY = curves->y;
    st.BucklingCurveZ = curves->z;
  }
}

}  // namespace korvane
