// SPDX-License-Identifier: GPL-3.0-or-later
// Ordinary members, as an engineer enters them: loads that the family carries, scaled until the
// greatest ratio is where designs end up.
#pragma once

#include <string>
#include <type_traits>

#include "checks/results.h"
#include "core/calculation.h"
#include "core/input_fields.h"
#include "core/state_field.h"
#include "random_states.h"
#include "sections/profile_table.h"

namespace korvane {

/// Multiplies all loads and end forces.
inline void ScaleLoads(ProjectState& st, double factor) {
  const auto scale = [factor](float32& v) { v = v * factor; };
  ForEachField(st, [&](const char* name, auto& field) {
    if constexpr (std::is_same_v<std::remove_cvref_t<decltype(field)>, float32>) {
      const std::string n = name;
      const bool line = n[0] == 'q' && n.find("_x") == std::string::npos && n != "qtx_relative";
      if (line || n == "NP" || n == "NV1" || n == "NV2" || n == "Ne") scale(field);
    }
  });
  for (int i = 1; i <= 8; ++i) scale(st.pm[i]);
  for (auto* ends : {&st.My_end, &st.Mz_end, &st.Vy_end, &st.Vz_end}) {
    for (float32& v : *ends) scale(v);
  }
}

namespace ordinary {

/// Whether the family's control carries axial force, loads along z and loads along y.
struct Carries {
  bool N, z, y;
};

inline Carries CarriedBy(const Family& family) {
  switch (family.routines.sectionControl) {
    case SectionControlKind::T:
      return {true, false, false};
    case SectionControlKind::Plate:
    case SectionControlKind::None:
      return {false, true, false};
    case SectionControlKind::SingleSymmetric:
      return {!family.clearsN, true, false};
    default:
      return {!family.clearsN, true, true};
  }
}

/// Typed dimensions a quarter up or down, all by nearly the same share, so that the section
/// stays one of its kind.
inline void Dimensions(Dice& dice, const Family& family, ProjectState& st) {
  const double size = dice.Uniform(0.8, 1.25);
  for (const Dimension& dimension : family.dimensions) {
    const double share = size * dice.Uniform(0.96, 1.04);
    StoreNumber(st, dimension.field, ReadNumber(st, dimension.field) * share);
  }
}

inline void Loads(Dice& dice, const Carries& carries, ProjectState& st) {
  st.q1 = carries.z && dice.Chance(85) ? dice.Uniform(1, 20) : 0;
  st.NP = carries.N && (!carries.z || dice.Chance(50)) ? dice.Uniform(10, 200) : 0;
  if (dice.Chance(15)) st.NP = -st.NP;
  if (carries.y && dice.Chance(20)) {
    st.q2 = dice.Uniform(0.1, 2);
    st.q2_yz = 0;
  }
  if (carries.z && dice.Chance(30)) {
    st.pm[1] = dice.Uniform(1, 50);
    st.pm_pm[1] = 0;
    st.pm_yz[1] = 1;
    st.pmx[1] = st.L * dice.Uniform(0.2, 0.8);
  }
}

}  // namespace ordinary

/// An ordinary member of the family: pinned or fixed, 2 to 8 m, without any of the options that
/// a new project doesn't have. st holds a new project before.
inline void OrdinaryState(unsigned seed, const Family& family, ProjectState& st) {
  Dice dice(seed);
  st.ProfileType = family.code;
  st.L = dice.Uniform(2, 8);
  constexpr int kPinned = 0;
  constexpr int kFixed = 2;
  st.SupportType = dice.Chance(70) ? kPinned : kFixed;
  const double k = st.SupportType == kFixed ? 0.5 : 1;
  st.BucklingCaseY = st.BucklingCaseZ = st.SupportType == kFixed ? 4 : 2;
  st.bly = st.blz = k;
  random_state::Rows(dice, st);
  ordinary::Dimensions(dice, family, st);
  ordinary::Loads(dice, ordinary::CarriedBy(family), st);
}

/// Scales the loads of the calculated member and calculates, until its greatest ratio is about the
/// wished one; self-weight and classes keep it from being exact. False where it has no ratio.
/// Throws ArithmeticFault.
inline bool BringTo(double ratio, Design& d) {
  for (int step = 0; step < 3; ++step) {
    const double now = MaxIR(d.checks);
    if (!(now > 0)) return false;
    ScaleLoads(d.st, ratio / now);
    Calculate(d);
  }
  return true;
}

}  // namespace korvane
