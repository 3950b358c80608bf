// SPDX-License-Identifier: GPL-3.0-or-later
// Kinds of section families that the floors below the family table ask for, as words. Everything
// else about a family stands in its row of sections/profile_table.
#pragma once

namespace korvane {

/// Angles, designed about their principal axes.
constexpr bool IsAngle(int profileType) {
  return profileType == 10 || profileType == 11;
}

/// HSQ beams: two webs on a wide bottom plate, whose flange carries the load.
constexpr bool IsHsq(int profileType) {
  return profileType == 24 || profileType == 25;
}

/// HSQ beams with the bottom plate to one side.
constexpr bool IsOneSidedHsq(int profileType) {
  return profileType == 25;
}

/// Sections with two webs and unequal flanges, welded.
constexpr bool IsTwoWebUnequal(int profileType) {
  return IsHsq(profileType) || profileType == 27;
}

/// A plate on one stiffener.
constexpr bool IsStiffenedPlate(int profileType) {
  return profileType >= 51 && profileType <= 56;
}

/// Members carried by a plate: no axial load, all loads in the z direction.
constexpr bool IsPlateType(int profileType) {
  return IsTwoWebUnequal(profileType) || IsStiffenedPlate(profileType);
}

/// Sections with unequal flanges: end moments about z and end shears along y don't act.
constexpr bool HasUnequalFlanges(int profileType) {
  return profileType == 22 || IsTwoWebUnequal(profileType);
}

}  // namespace korvane
