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

void ChooseBucklingCurves(const SectionRecord& rec, ProjectState& st) {
  const auto choose = [&st](int y, int z) {
    st.BucklingCurveY = y;
    st.BucklingCurveZ = z;
  };
  switch (st.ProfileType) {
    case 1:
    case 2:
    case 3:
    case 4:
    case 15: {
      // Compared in single precision.
      const bool deep = float32(1.2 * rec.b) < rec.h;
      if (st.fyk > 440) return deep ? choose(a0, a0) : choose(a, a);
      return deep ? choose(a, b) : choose(b, c);
    }
    case 5:
    case 16:
    case 10:
    case 11:
    case 26:
    case 28:
      return choose(c, c);
    case 6:
    case 7:
      return choose(a, a);
    case 8:
    case 9:
      return choose(b, b);
    case 21:
    case 22:
      return rec.tmax <= 40 ? choose(b, c) : choose(c, d);
    case 23: {
      // The stockier plates of a hot welded box take the weaker curve.
      const bool stocky = rec.b / rec.tf < 30 && rec.h / rec.tw < 30;
      return st.BoxWeld == 0 && stocky ? choose(c, c) : choose(b, b);
    }
    case 31:
      return st.TubeKind != 0 ? choose(a, a) : choose(b, b);
    default:
      return;
  }
}

}  // namespace korvane
