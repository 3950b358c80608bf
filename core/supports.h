// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of the six supports of the member.
#pragma once

#include <array>
#include <cstddef>

namespace korvane {

/// What holds an end of the member.
enum class MemberEnd { Pinned, Fixed, Spring, Free };

/// The rigid case of the closed-form solutions.
enum class RigidCase { Pinned, Propped, Fixed, Cantilever };

/// One support.
struct Support {
  int code;               ///< SupportType
  const char* name;       ///< "pinned - fixed", the left end first
  MemberEnd left, right;  ///< at x = 0 and x = L
  /// The case with stiff springs. A spring support blends it with the pinned one by
  /// SpringRestraint.
  RigidCase stiff;
  /// The case whose length factor the member takes about both axes (LengthFactorOfCase), and
  /// against lateral buckling.
  int bucklingCase;
  bool momentAtStart, momentAtEnd;  ///< whether a moment load at x = 0, x = L counts
};

inline constexpr std::array<Support, 6> kSupports{{
    {0, "pinned - pinned", MemberEnd::Pinned, MemberEnd::Pinned, RigidCase::Pinned, 2, true, true},
    {1, "pinned - fixed", MemberEnd::Pinned, MemberEnd::Fixed, RigidCase::Propped, 3, true, false},
    {2, "fixed - fixed", MemberEnd::Fixed, MemberEnd::Fixed, RigidCase::Fixed, 4, false, false},
    {3, "spring - spring", MemberEnd::Spring, MemberEnd::Spring, RigidCase::Fixed, 2, true, true},
    {4, "fixed - free", MemberEnd::Fixed, MemberEnd::Free, RigidCase::Cantilever, 1, false, true},
    {5, "pinned - spring", MemberEnd::Pinned, MemberEnd::Spring, RigidCase::Propped, 2, true,
     false},
}};

/// The support, or nullptr for a code that does not exist.
constexpr const Support* FindSupport(int supportType) {
  static_assert(
      [] {
        for (std::size_t i = 0; i < kSupports.size(); ++i)
          if (kSupports[i].code != static_cast<int>(i)) return false;
        return true;
      }(),
      "a support stands at the place of its code");
  if (supportType < 0 || supportType >= static_cast<int>(kSupports.size())) return nullptr;
  return &kSupports[static_cast<std::size_t>(supportType)];
}

/// A rotational spring holds one end or both.
constexpr bool IsSpring(int supportType) {
  const Support* s = FindSupport(supportType);
  return s != nullptr && s->right == MemberEnd::Spring;
}

/// A rotational spring holds each end.
constexpr bool IsSpringAtBothEnds(int supportType) {
  const Support* s = FindSupport(supportType);
  return s != nullptr && s->left == MemberEnd::Spring && s->right == MemberEnd::Spring;
}

/// The end at x = L is free.
constexpr bool IsCantilever(int supportType) {
  const Support* s = FindSupport(supportType);
  return s != nullptr && s->right == MemberEnd::Free;
}

/// Both ends are held, and one of them or both against turning too.
constexpr bool IsRestrained(int supportType) {
  const Support* s = FindSupport(supportType);
  return s != nullptr && s->right != MemberEnd::Free && s->stiff != RigidCase::Pinned;
}

}  // namespace korvane
