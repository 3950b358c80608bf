// SPDX-License-Identifier: GPL-3.0-or-later
// Elementary beam solutions: one load on one support case as a few polynomial coefficients, and
// a plane's loads as a list of them.
#pragma once

#include <array>
#include <cstddef>
#include <new>
#include <type_traits>

#include "analysis/loads.h"
#include "core/project_state.h"

namespace korvane {

/// Moment m0 + m1*x + m2*x^2 (kNm) and shear v0 + v1*x (kN) on one side of a load.
struct ForceBranch {
  double m0 = 0, m1 = 0, m2 = 0, v0 = 0, v1 = 0;

  double M(double x) const { return m0 + (m1 + m2 * x) * x; }
  double V(double x) const { return v0 + v1 * x; }
  void Add(const ForceBranch& b) {
    m0 += b.m0;
    m1 += b.m1;
    m2 += b.m2;
    v0 += b.v0;
    v1 += b.v1;
  }
};

/// A load's forces: the branch left of its position a, the one right of it, and the values at
/// the ends of the member, which have rules of their own.
struct ForcePart {
  double a = 0;
  bool inclusive = false;  ///< x = a belongs to the left branch
  ForceBranch left, right;
  double V0 = 0, VL = 0, M0 = 0, ML = 0;
  double endMoment = 0;  ///< the right branch's moment at a point at exactly x = L, no rounding

  bool LeftAt(double x) const { return x < a || (inclusive && x == a); }
  const ForceBranch& At(double x) const { return LeftAt(x) ? left : right; }
};

/// Deflection in mm on one side of a load: a quartic of x, or of L - x where mirrored.
struct DeflectionBranch {
  std::array<double, 5> c{};
  bool mirrored = false;
};

/// A load's deflection; x = a belongs to the right branch.
struct DeflectionPart {
  double a = 0;
  DeflectionBranch left, right;
  double start = 0;  ///< at x = 0, which stands still but under a moment before a clamped end

  bool LeftAt(double x) const { return x < a; }
  const DeflectionBranch& At(double x) const { return LeftAt(x) ? left : right; }
};

/// Deflections added up: a quartic of x and one of L - x.
struct DeflectionSum {
  std::array<double, 5> plain{}, mirrored{};

  /// mm at x.
  double At(double x, double L) const { return Quartic(plain, x) + Quartic(mirrored, L - x); }
  /// The same where no load is mirrored, whose quartic is 0.
  double PlainAt(double x) const { return Quartic(plain, x) + 0.0; }
  void Add(const DeflectionBranch& b) { AddTo(b.mirrored ? mirrored : plain, b.c); }
  void Add(const DeflectionSum& s) {
    AddTo(plain, s.plain);
    AddTo(mirrored, s.mirrored);
  }

private:
  static double Quartic(const std::array<double, 5>& c, double t) {
    return c[0] + (c[1] + (c[2] + (c[3] + c[4] * t) * t) * t) * t;
  }
  static void AddTo(std::array<double, 5>& sum, const std::array<double, 5>& c) {
    for (std::size_t k = 0; k < 5; ++k) sum[k] += c[k];
  }
};

/// Places for values that are not there before they are written.
template <class T, std::size_t Size>
union Places {
  static_assert(std::is_trivially_copyable_v<T> && std::is_trivially_destructible_v<T>);
  Places() {}
  std::array<T, Size> values;
};

/// Fixed-capacity list: a plane has at most a line load, 60 slices and 16 load entries, each in
/// two parts where a spring support blends two cases. A member has few loads as a rule, so the
/// places of the others are never written.
template <class Part>
class PartList {
public:
  static constexpr std::size_t kCapacity = 160;

  PartList() = default;
  PartList(const PartList&) = delete;
  PartList& operator=(const PartList&) = delete;

  void Add(const Part& part) {
    if (count_ == kCapacity) throw ArithmeticFault("too many loads");
    ::new (static_cast<void*>(&places_.values[count_])) Part(part);
    ++count_;
  }
  std::size_t size() const { return count_; }
  bool empty() const { return count_ == 0; }
  const Part& operator[](std::size_t i) const { return begin()[i]; }
  const Part* begin() const { return places_.values.data(); }
  const Part* end() const { return begin() + count_; }

private:
  Places<Part, kCapacity> places_;
  std::size_t count_ = 0;
};

/// All loads of one plane on the member's support, as forces. L in m, loads in kN, kN/m, kNm.
void CollectForces(const ProjectState& st, const PlaneLoads& loads, PartList<ForcePart>& parts);

/// All loads of one plane as deflections; K = 1E12/(E*I) turns kN*m^3 into mm.
void CollectDeflections(const ProjectState& st, const PlaneLoads& loads, double K,
                        PartList<DeflectionPart>& parts);

}  // namespace korvane
