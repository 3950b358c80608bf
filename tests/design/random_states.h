// SPDX-License-Identifier: GPL-3.0-or-later
// Random members within the limits that the input forms accept, the same on every machine.
#pragma once

#include <algorithm>
#include <cmath>
#include <random>
#include <string>

#include "core/input_fields.h"
#include "core/project_state.h"
#include "sections/names.h"

namespace korvane {

/// Numbers from a seed. The distributions of the standard library differ between makers; these
/// don't.
class Dice {
public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  /// 0 to n - 1.
  int Below(int n) { return static_cast<int>(engine_() % static_cast<unsigned>(n)); }
  int Between(int lo, int hi) { return lo + Below(hi - lo + 1); }
  bool Chance(int percent) { return Below(100) < percent; }
  double Unit() { return engine_() / 4294967296.0; }
  double Uniform(double lo, double hi) { return lo + (hi - lo) * Unit(); }
  /// Each order of magnitude alike; now and then one of the limits themselves.
  double Spread(double lo, double hi) {
    if (Chance(4)) return Chance(50) ? lo : hi;
    return lo * std::pow(hi / lo, Unit());
  }
  /// A load: often none, of either sign.
  double Load(double largest) {
    if (Chance(35)) return 0;
    return (Chance(70) ? 1 : -1) * Spread(0.01, largest);
  }

private:
  std::mt19937 engine_;
};

namespace random_state {

inline void Options(Dice& dice, ProjectState& st) {
  st.MaterialIndex = dice.Chance(80) ? dice.Between(0, 26) : 27;
  st.fyk = dice.Uniform(50, 2000);
  st.gammam1 = dice.Chance(60) ? 1.1 : dice.Uniform(0.5, 1.5);
  st.E = dice.Chance(80) ? 210000 : dice.Spread(1000, 1E6);
  st.iufa = dice.Uniform(0.3, 2.0);
  st.BendingCapacityMode = dice.Below(2);
  st.SectionControlMode = dice.Below(2);
  st.IgnoreWebBuckling = dice.Chance(15);
  st.IgnoreFlangeBuckling = dice.Chance(15);
  st.EndStiffener = dice.Below(2);
  st.WebStiffener = dice.Chance(30);
  st.a_webstiff = dice.Spread(100, std::max(100.5, 1000 * st.L - 0.5));
  st.ModalAnalysis = dice.Below(2);
  st.check_slend = dice.Below(2);
  st.islend_limit = dice.Uniform(50, 400);
}

inline void Supports(Dice& dice, ProjectState& st) {
  constexpr double kFactor[] = {0, 2.0, 1.0, 0.7, 0.5, 0};
  st.SupportType = dice.Below(6);
  st.SpringRestraint = dice.Between(0, 100);
  st.BucklingCaseY = dice.Between(1, 6);
  st.BucklingCaseZ = dice.Between(1, 6);
  st.bly = st.BucklingCaseY == 6 ? dice.Spread(0.2, 10) : kFactor[st.BucklingCaseY];
  st.blz = st.BucklingCaseZ == 6 ? dice.Spread(0.2, 10) : kFactor[st.BucklingCaseZ];
  st.ManualBucklingCurves = dice.Chance(30);
  st.BucklingCurveY = dice.Below(5);
  st.BucklingCurveZ = dice.Below(5);
  st.LateralTorsionalBuckling = dice.Chance(85);
  st.LateralBucklingCase = dice.Between(1, 5);
  st.k_ltb = st.LateralBucklingCase < 5 ? kFactor[st.LateralBucklingCase]
             : st.SupportType == 4      ? dice.Uniform(1, 2)
                                        : dice.Uniform(0.5, 1);
  if (st.LateralTorsionalBuckling == 0) st.k_ltb = 0.001;
  st.LtbSegments = dice.Chance(50) ? 0 : dice.Between(0, 6);
  st.CFactorManual = dice.Chance(20);
  st.C1i = dice.Uniform(0.2, 4);
  st.C2i = dice.Uniform(0, 4);
  st.C3i = dice.Uniform(0, 4);
  st.LoadLevel = dice.Between(1, 4);
  st.Za = dice.Uniform(-1000, 1000);
}

/// A position on the member; the ends and the stations come up too.
inline double Position(Dice& dice, double L) {
  return dice.Chance(30) ? L * dice.Below(51) / 50 : dice.Uniform(0, L);
}

inline void LineLoads(Dice& dice, ProjectState& st) {
  ForEachField(st, [&](const char* name, auto& field) {
    const std::string n = name;
    const bool load = n.size() > 1 && n[0] == 'q' && n != "qtx_relative";
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(field)>, int16>) {
      if (load && n.ends_with("_pv")) field = dice.Below(3);
      if (load && n.ends_with("_yz")) field = dice.Chance(70);
    } else if constexpr (std::is_same_v<std::remove_cvref_t<decltype(field)>, float32>) {
      if (!load) return;
      if (n.find("_x") != std::string::npos) {
        field = Position(dice, st.L);
      } else {
        field = dice.Load(1000);
      }
    }
  });
}

inline void Loads(Dice& dice, ProjectState& st) {
  for (float32* factor : {&st.lfp_uls, &st.lfv1_uls, &st.lfv2_uls, &st.lfp_sls, &st.lfv1_sls,
                          &st.lfv2_sls, &st.lfsw_uls}) {
    *factor = dice.Chance(10) ? 0 : dice.Uniform(0, 4);
  }
  for (float32* axial : {&st.NP, &st.NV1, &st.NV2, &st.Ne}) *axial = dice.Load(1E5);
  LineLoads(dice, st);
  st.SelfWeight = dice.Below(2);
  for (int i = 1; i <= 8; ++i) {
    if (dice.Chance(60)) continue;
    st.pm[i] = dice.Load(1E4);
    st.pmx[i] = Position(dice, st.L);
    st.pm_pm[i] = dice.Below(2);
    st.pm_pv[i] = dice.Below(3);
    st.pm_yz[i] = dice.Chance(70);
  }
  for (auto* ends : {&st.My_end, &st.Mz_end, &st.Vy_end, &st.Vz_end}) {
    for (float32& value : *ends) value = dice.Load(1E4);
  }
  st.cp_mode = dice.Chance(30);
  st.cp_count = dice.Between(1, 3);
  for (float32& x : st.cp_x) x = Position(dice, st.L);
}

/// A row of the family's catalogue into the field that holds it.
inline void Row(Dice& dice, ProjectState& st, int16& index) {
  index = dice.Below(ListLength(SizesOf(st).catalogue));
}

inline void Rows(Dice& dice, ProjectState& st) {
  st.RhsOrientation = dice.Below(2);
  st.p101_sub = dice.Between(1, 3);
  st.p103_sub = dice.Between(1, 2);
  for (int16* index :
       {&st.idxHEA,   &st.idxHEB,    &st.idxHEM,    &st.idxIPE,    &st.idxUPE,    &st.idxRHSs,
        &st.idxRHSr,  &st.idxCFRHSs, &st.idxCFRHSr, &st.idxLeq,    &st.idxLuneq,  &st.idxINP,
        &st.idxUNP,   &st.p52_index, &st.p54_index, &st.p101_idx1, &st.p101_idx2, &st.p101_idx3,
        &st.p102_idx, &st.p103_idx1, &st.p103_idx2}) {
    if (SizesOf(st).hasCatalogue) Row(dice, st, *index);
  }
}

/// Heights, widths and thicknesses of the typed families at or above their limits.
inline void Plates(Dice& dice, ProjectState& st) {
  ForEachField(st, [&](const char* name, auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    if constexpr (std::is_same_v<Field, float32> || std::is_same_v<Field, number>) {
      const std::string n = name;
      if (n[0] != 'p' || n.size() < 5 || n[3] != '_' || n.starts_with("p41")) return;
      const std::string part = n.substr(4);
      if (part == "h" || part == "d") field = dice.Spread(n == "p28_h" ? 5 : 50, 3000);
      if (part[0] == 'b') field = dice.Spread(5, 3000);
      if (part[0] == 't') field = dice.Spread(0.1, 120);
    }
  });
  st.TubeKind = dice.Below(2);
  st.BoxWeld = dice.Below(2);
  st.HsqKind = dice.Below(2);
  st.p24_load = dice.Uniform(50, 90);
  st.p53_b2 = std::max<double>(5, st.p53_b2);
}

/// Dimensions that hold one another within limits.
inline void Webs(Dice& dice, ProjectState& st) {
  const auto fit = [&](float32& b, const float32& tw) {
    b = std::max<double>(b, 2 * tw + 5);
    return (b / 2 - tw) * dice.Uniform(0.001, 0.999);
  };
  st.p23_a = fit(st.p23_b, st.p23_tw);
  if (dice.Chance(20)) st.p23_a = 0;
  st.p24_a = fit(st.p24_b, st.p24_tw);
  st.p24_c = st.p24_tw * dice.Unit();
  st.p25_c = st.p25_tw * dice.Unit();
  st.p25_b2 = std::max<double>(st.p25_b2, 12);
  st.p25_a = (st.p25_b2 - 6) * dice.Uniform(0, 0.9);
  st.p25_b1 = dice.Uniform(5.1, std::max(5.2, st.p25_b2 - st.p25_a - 0.1));
  st.p27_a = 2 * st.p27_tw + dice.Spread(0.1, 2000);
  st.p27_b1 = st.p27_a + st.p27_tw + dice.Spread(0.01, 500);
  st.p27_b2 = st.p27_a + st.p27_tw + dice.Spread(0.01, 500);
  st.p55_a = dice.Uniform(0, 300);
  st.p52_b1 = dice.Spread(5, 3000);
  st.p54_b1 = dice.Spread(5, 3000);
}

/// Section constants of the general profile, from 1000 up; areas from 50.
inline void General(Dice& dice, ProjectState& st) {
  st.p41_option = dice.Between(1, 3);
  for (float32* area : {&st.p41_A, &st.p41_Ay, &st.p41_Az}) *area = dice.Spread(50, 1E6);
  for (float32* I : {&st.p41_Ix, &st.p41_Iy, &st.p41_Iz}) *I = dice.Spread(1000, 1E11);
  st.p41_Iw = dice.Spread(1000, 1E16);
  for (float32* W : {&st.p41_Wely, &st.p41_Welz, &st.p41_Wply, &st.p41_Wplz}) {
    *W = dice.Spread(1001, 1E9);
  }
}

}  // namespace random_state

/// A member of the family with everything else at random. st holds a new project before.
inline void RandomState(unsigned seed, int profileType, ProjectState& st) {
  Dice dice(seed);
  st.ProfileType = profileType;
  st.L = dice.Spread(0.05, 100);
  st.AnalysisMode = dice.Chance(75);
  random_state::Supports(dice, st);
  random_state::Options(dice, st);
  random_state::Loads(dice, st);
  random_state::Rows(dice, st);
  random_state::Plates(dice, st);
  random_state::Webs(dice, st);
  random_state::General(dice, st);
  if (st.AnalysisMode == 0) st.SupportType = 0;
}

}  // namespace korvane
