// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/section_exists.h"

#include <array>
#include <cmath>

namespace korvane {

namespace {

using State = ProjectState;

/// A value of a family that must be above 0.
struct Part {
  int family;
  const char* words;
  double (*value)(const State&);
};

#define KORVANE_TYPED(family, field, words)                         \
  Part {                                                            \
    family, words, [](const State& s) -> double { return s.field; } \
  }
#define KORVANE_REST(family, rest, words)                        \
  Part {                                                         \
    family, words, [](const State& s) -> double { return rest; } \
  }

// clang-format off
constexpr std::array kTyped{
  KORVANE_TYPED(21, p21_h, "the height h"), KORVANE_TYPED(21, p21_b, "the width b"),
  KORVANE_TYPED(21, p21_tw, "the web thickness tw"), KORVANE_TYPED(21, p21_tf, "the flange thickness tf"),
  KORVANE_TYPED(22, p22_h, "the height h"), KORVANE_TYPED(22, p22_b, "the top width b1"),
  KORVANE_TYPED(22, p22_b2, "the bottom width b2"), KORVANE_TYPED(22, p22_tw, "the web thickness tw"),
  KORVANE_TYPED(22, p22_tf1, "the top flange thickness tf1"), KORVANE_TYPED(22, p22_tf2, "the bottom flange thickness tf2"),
  KORVANE_TYPED(23, p23_h, "the height h"), KORVANE_TYPED(23, p23_b, "the width b"),
  KORVANE_TYPED(23, p23_tw, "the web thickness tw"), KORVANE_TYPED(23, p23_tf, "the flange thickness tf"),
  KORVANE_TYPED(24, p24_h, "the height h"), KORVANE_TYPED(24, p24_b, "the width b"),
  KORVANE_TYPED(24, p24_tw, "the web thickness tw"), KORVANE_TYPED(24, p24_tf1, "the top plate thickness tf1"),
  KORVANE_TYPED(24, p24_tf2, "the bottom plate thickness tf2"),
  KORVANE_TYPED(25, p25_h, "the height h"), KORVANE_TYPED(25, p25_b1, "the top width b1"),
  KORVANE_TYPED(25, p25_b2, "the bottom width b2"), KORVANE_TYPED(25, p25_tw, "the web thickness tw"),
  KORVANE_TYPED(25, p25_tf1, "the top plate thickness tf1"), KORVANE_TYPED(25, p25_tf2, "the bottom plate thickness tf2"),
  KORVANE_TYPED(26, p26_h, "the height h"), KORVANE_TYPED(26, p26_b, "the width b"),
  KORVANE_TYPED(26, p26_tw, "the web thickness tw"), KORVANE_TYPED(26, p26_tf, "the flange thickness tf"),
  KORVANE_TYPED(27, p27_h, "the height h"), KORVANE_TYPED(27, p27_b1, "the top width b1"),
  KORVANE_TYPED(27, p27_b2, "the bottom width b2"), KORVANE_TYPED(27, p27_tw, "the web thickness tw"),
  KORVANE_TYPED(27, p27_tf1, "the top flange thickness tf1"), KORVANE_TYPED(27, p27_tf2, "the bottom flange thickness tf2"),
  KORVANE_TYPED(28, p28_h, "the height h"), KORVANE_TYPED(28, p28_tw, "the thickness tw"),
  KORVANE_TYPED(31, p31_d, "the diameter d"), KORVANE_TYPED(31, p31_tw, "the wall thickness t"),
  KORVANE_TYPED(41, p41_A, "the area Ax"), KORVANE_TYPED(41, p41_Iy, "the second moment Iy"),
  KORVANE_TYPED(41, p41_Iz, "the second moment Iz"), KORVANE_TYPED(41, p41_Wely, "the modulus Wely"),
  KORVANE_TYPED(41, p41_Welz, "the modulus Welz"), KORVANE_TYPED(41, p41_Wply, "the modulus Wply"),
  KORVANE_TYPED(41, p41_Wplz, "the modulus Wplz"),
  KORVANE_TYPED(51, p51_h, "the height h of the flat"), KORVANE_TYPED(51, p51_b, "the plate width b"),
  KORVANE_TYPED(51, p51_tw, "the flat's thickness tw"), KORVANE_TYPED(51, p51_tf1, "the plate thickness tf1"),
  KORVANE_TYPED(52, p52_b1, "the plate width b1"), KORVANE_TYPED(52, p52_t1, "the plate thickness t1"),
  KORVANE_TYPED(53, p53_h, "the height h"), KORVANE_TYPED(53, p53_b1, "the plate width b1"),
  KORVANE_TYPED(53, p53_b2, "the leg width b2"), KORVANE_TYPED(53, p53_tw, "the web thickness tw"),
  KORVANE_TYPED(53, p53_tf1, "the plate thickness tf1"), KORVANE_TYPED(53, p53_tf2, "the leg thickness tf2"),
  KORVANE_TYPED(54, p54_b1, "the plate width b1"), KORVANE_TYPED(54, p54_t1, "the plate thickness t1"),
  KORVANE_TYPED(55, p55_h, "the height h"), KORVANE_TYPED(55, p55_b1, "the plate width b1"),
  KORVANE_TYPED(55, p55_b2, "the bottom width b2"), KORVANE_TYPED(55, p55_tw, "the wall thickness tw"),
  KORVANE_TYPED(55, p55_tf1, "the plate thickness tf1"),
  KORVANE_TYPED(56, p56_h, "the height h of the girder"), KORVANE_TYPED(56, p56_b1, "the plate width b1"),
  KORVANE_TYPED(56, p56_b2, "the bottom width b2"), KORVANE_TYPED(56, p56_tw, "the web thickness tw"),
  KORVANE_TYPED(56, p56_tf1, "the plate thickness tf1"), KORVANE_TYPED(56, p56_tf2, "the bottom flange thickness tf2"),
};

/// What is left between typed parts: above 0.
constexpr std::array kBetween{
  KORVANE_REST(21, s.p21_h - 2 * s.p21_tf, "the web height between the flanges"),
  KORVANE_REST(22, s.p22_h - s.p22_tf1 - s.p22_tf2, "the web height between the flanges"),
  KORVANE_REST(23, s.p23_h - 2 * s.p23_tf, "the web height between the flanges"),
  KORVANE_REST(23, s.p23_b - 2 * (s.p23_a + s.p23_tw), "the clear width between the webs"),
  KORVANE_REST(24, s.p24_h - s.p24_tf1, "the web height below the top plate"),
  KORVANE_REST(24, s.p24_b - 2 * (s.p24_a + s.p24_c), "the width of the top plate"),
  KORVANE_REST(24, s.p24_b - 2 * (s.p24_a + s.p24_tw), "the clear width between the webs"),
  KORVANE_REST(25, s.p25_h - s.p25_tf1, "the web height below the top plate"),
  KORVANE_REST(25, s.p25_b1 - 2 * s.p25_c, "the width of the top plate"),
  KORVANE_REST(25, s.p25_b1 - 2 * s.p25_tw, "the clear width between the webs"),
  KORVANE_REST(26, s.p26_h - s.p26_tf, "the web height below the flange"),
  KORVANE_REST(27, s.p27_h - s.p27_tf1 - s.p27_tf2, "the web height between the flanges"),
  KORVANE_REST(27, s.p27_a - s.p27_tw, "the clear width between the webs"),
  KORVANE_REST(31, s.p31_d - 2 * s.p31_tw, "the hole of the tube"),
  KORVANE_REST(53, s.p53_h - s.p53_tf2, "the web height above the leg"),
  KORVANE_REST(55, s.p55_h - s.p55_tw, "the wall height of the trapezoid"),
  KORVANE_REST(55, s.p55_b2 - 2 * s.p55_tw / std::cos(std::atan(s.p55_a / s.p55_h)), "the clear width at the trapezoid's bottom"),
  KORVANE_REST(56, s.p56_h - s.p56_tf2, "the web height above the flange"),
};

/// What sticks out beside a web or a plate: 0 or more.
constexpr std::array kBeside{
  KORVANE_REST(21, s.p21_b - s.p21_tw, "the flange width beside the web"),
  KORVANE_REST(22, s.p22_b - s.p22_tw, "the top flange width beside the web"),
  KORVANE_REST(22, s.p22_b2 - s.p22_tw, "the bottom flange width beside the web"),
  KORVANE_REST(23, s.p23_a, "the distance a of the webs from the flange edges"),
  KORVANE_REST(24, s.p24_a, "the distance a of the webs from the plate edges"),
  KORVANE_REST(24, s.p24_c, "the distance c of the top plate from the webs' outer faces"),
  KORVANE_REST(24, s.p24_tw - s.p24_c, "the bearing of the top plate on the webs"),
  KORVANE_REST(25, s.p25_a, "the distance a of the web from the plate edge"),
  KORVANE_REST(25, s.p25_c, "the distance c of the top plate from the webs' outer faces"),
  KORVANE_REST(25, s.p25_tw - s.p25_c, "the bearing of the top plate on the webs"),
  KORVANE_REST(25, s.p25_b2 - s.p25_b1 - s.p25_a, "the bottom plate beside the webs"),
  KORVANE_REST(26, s.p26_b - s.p26_tw, "the flange width beside the web"),
  KORVANE_REST(27, s.p27_b1 - s.p27_a - s.p27_tw, "the top flange width beside the webs"),
  KORVANE_REST(27, s.p27_b2 - s.p27_a - s.p27_tw, "the bottom flange width beside the webs"),
  KORVANE_REST(51, s.p51_b - s.p51_tw, "the plate width beside the flat"),
  KORVANE_REST(53, s.p53_b1 - s.p53_tw, "the plate width beside the web"),
  KORVANE_REST(53, s.p53_b2 - s.p53_tw, "the leg width beside the web"),
  KORVANE_REST(55, s.p55_a, "the slope run a of the trapezoid"),
  KORVANE_REST(55, s.p55_b1 - s.p55_b2 - 2 * s.p55_a, "the plate width beside the trapezoid"),
  KORVANE_REST(56, s.p56_b1 - s.p56_tw, "the plate width beside the web"),
  KORVANE_REST(56, s.p56_b2 - s.p56_tw, "the flange width beside the web"),
};

/// What every calculation divides by.
constexpr std::array kCommon{
  KORVANE_TYPED(0, gammam1, "the material factor"), KORVANE_TYPED(0, fyk, "the yield stress fyk"),
  KORVANE_TYPED(0, E, "Young's modulus E"), KORVANE_TYPED(0, L, "the length L"),
};
// clang-format on

#undef KORVANE_TYPED
#undef KORVANE_REST

/// Differences of single precision inputs leave crumbs.
constexpr double kCrumb = -1E-3;

/// The first part of the family whose value isn't above `least`.
template <class Parts>
WrongInput FirstWrong(const Parts& parts, const State& st, int family, double least = 0) {
  for (const Part& part : parts) {
    if (part.family != family) continue;
    const double v = part.value(st);
    if (!(v > least)) return {part.words, v};
  }
  return {};
}

}  // namespace

bool UnknownSeries(const Family& family, const ProjectState& st) {
  return family.sub != nullptr && CatalogueOfSub(family, st.*family.sub) == nullptr;
}

WrongInput ImpossiblePart(const ProjectState& st, const SectionRecord& rec) {
  const int family = st.ProfileType;
  if (const WrongInput w = FirstWrong(kTyped, st, family); w.Set()) return w;
  if (const WrongInput w = FirstWrong(kBetween, st, family); w.Set()) return w;
  if (const WrongInput w = FirstWrong(kBeside, st, family, kCrumb); w.Set()) return w;
  if (!(rec.A > 0)) return {"the area A", rec.A};
  if (!(rec.Iy > 0)) return {"the second moment Iy", rec.Iy};
  if (!(rec.Iz > 0)) return {"the second moment Iz", rec.Iz};
  return {};
}

WrongInput InputOfFailure(const ProjectState& st) {
  if (st.LtbSegments < 0) return {"the number of restraint points", double(st.LtbSegments)};
  if (st.cp_mode == 1 && st.cp_count < 0) {
    return {"the number of calculation points", double(st.cp_count)};
  }
  if (const WrongInput w = FirstWrong(kCommon, st, 0); w.Set()) return w;
  if (const WrongInput w = FirstWrong(kTyped, st, st.ProfileType); w.Set()) return w;
  if (const WrongInput w = FirstWrong(kBetween, st, st.ProfileType); w.Set()) return w;
  if (st.WebStiffener == 1 && !(st.a_webstiff > 0)) {
    return {"the distance of the web stiffeners", st.a_webstiff};
  }
  if (!(st.k_ltb > 0)) return {"the length factor k of lateral buckling", st.k_ltb};
  return {};
}

}  // namespace korvane
