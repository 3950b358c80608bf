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

enum : int { a0, a, b, c, d };

}  // namespace

double ImperfectionFactor(int curve) {
  return CurveOf(curve).alfa;
}

double AngleImperfectionFactor(int curve) {
  return curve >= 0 && curve <= 2 ? CurveOf(curve + 1).alfa : CurveOf(d).alfa;
}

const char* CurveLetter(int curve) {
  return CurveOf(curve).letter;
}

const char* AngleCurveLetter(int curve) {
  return curve >= 0 && curve <= 2 ? CurveOf(curve + 1).letter : CurveOf(d).letter;
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

std::optional<CurvePair> AutomaticCurves(int profileType, const SectionRecord& rec,
                                         const ProjectState& st) {
  using Pair = CurvePair;
  switch (profileType) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 15: {
      // Compared in single precision.
      const bool deep = float32(1.2 * rec.b) < rec.h;
      if (st.fyk > 440) return deep ? Pair{a0, a0} : Pair{a, a};
      return deep ? Pair{a, b} : Pair{b, c};
    }
    case 5:
    case 16:
    case 10:
    case 11:
    case 26:
    case 28:
      return Pair{c, c};
    case 6:
    case 7:
      return Pair{a, a};
    case 8:
    case 9:
      return Pair{b, b};
    case 21:
    case 22:
      return rec.tmax <= 40 ? Pair{b, c} : Pair{c, d};
    case 23: {
      // The stockier plates of a hot welded box take the weaker curve.
      const bool stocky = rec.b / rec.tf < 30 && rec.h / rec.tw < 30;
      return st.BoxWeld == 0 && stocky ? Pair{c, c} : Pair{b, b};
    }
    case 31:
      return st.TubeKind != 0 ? Pair{a, a} : Pair{b, b};
    default:
      return std::nullopt;
  }
}

std::optional<CurvePair> CurvesOfLikeSections(int profileType, const SectionRecord& rec,
                                              const ProjectState& st) {
  switch (profileType) {
    case 101:
    case 102:
      return AutomaticCurves(1, rec, st);
    case 103:
      return AutomaticCurves(5, rec, st);
    case 41:
      return CurvePair{c, c};  // a section of any shape
    default:
      return std::nullopt;
  }
}

void ChooseBucklingCurves(const SectionRecord& rec, ProjectState& st) {
  if (const auto curves = AutomaticCurves(st.ProfileType, rec, st)) {
    st.BucklingCurveY = curves->y;
    st.BucklingCurveZ = curves->z;
  }
}

}  // namespace korvane
