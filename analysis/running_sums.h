// SPDX-License-Identifier: GPL-3.0-or-later
// A plane's loads as one polynomial a station: the branches of all loads added up once, left
// ones from the far end, right ones from the near end. Nothing is ever taken off a sum again, so
// that what is exactly 0 stays 0.
#pragma once

#include <array>
#include <cstddef>

#include "analysis/elementary.h"

namespace korvane {

/// Sum takes branches with Add and other sums with Add.
template <class Part, class Sum>
class RunningSums {
public:
  static constexpr int kLast = 50;  ///< the last station; station i stands at (i/50)*L

  /// Keeps a reference to the parts. L in m.
  RunningSums(const PartList<Part>& parts, double L)
      : parts_(parts), L_(L), ordered_(L > 0), walks_(!ordered_ || parts.size() <= kFew) {
    if (!ordered_) return;
    first_.fill(kNone);
    for (std::size_t n = 0; n < parts.size(); ++n) {
      const std::size_t i = FirstRightOf(parts[n]);
      next_[n] = first_[i];
      first_[i] = static_cast<Index>(n);
    }
    if (walks_) return;
    auto& left = left_.values;
    auto& right = right_.values;
    left[kLast + 1] = {};
    for (std::size_t i = kLast + 1; i-- > 0;) {
      left[i] = left[i + 1];
      ForEachAt(i + 1, [&](const Part& part) { left[i].Add(part.left); });
    }
    for (std::size_t i = 0; i <= kLast; ++i) {
      right[i] = i == 0 ? Sum{} : right[i - 1];
      ForEachAt(i, [&](const Part& part) { right[i].Add(part.right); });
    }
  }

  /// All loads at station i, at its place x.
  Sum AtStation(int i, double x) const {
    if (walks_) return Walk(x);
    Sum sum = left_.values[static_cast<std::size_t>(i)];
    sum.Add(right_.values[static_cast<std::size_t>(i)]);
    return sum;
  }

  /// The last station, up to `last`, with the same sum as station i.
  int RunEnd(int i, int last) const {
    if (!ordered_) return i;
    while (i < last && first_[static_cast<std::size_t>(i) + 1] == kNone) ++i;
    return i;
  }

  /// All loads at any x: the loads between its two stations are asked one by one.
  Sum At(double x) const {
    if (walks_ || !(x >= 0 && x < L_)) return Walk(x);
    auto i = static_cast<std::size_t>(x / L_ * kLast);
    // The quotient is rounded; x < L keeps i below the last station.
    if (x < Station(i)) --i;
    if (x >= Station(i + 1)) ++i;
    Sum sum = left_.values[i + 1];
    sum.Add(right_.values[i]);
    ForEachAt(i + 1, [&](const Part& part) { sum.Add(part.At(x)); });
    return sum;
  }

private:
  using Index = unsigned char;
  static constexpr Index kNone = 255;
  static_assert(PartList<Part>::kCapacity < kNone);

  /// So few parts are sooner asked one by one at every station than added up.
  static constexpr std::size_t kFew = 3;

  double Station(std::size_t i) const { return (static_cast<double>(i) / kLast) * L_; }

  /// The first station on the right of the part; kLast + 1 when there is none.
  std::size_t FirstRightOf(const Part& part) const {
    const double near = part.a / L_ * kLast;
    std::size_t i = near > 0 ? near < kLast ? static_cast<std::size_t>(near) : kLast : 0;
    // The quotient's rounding is the estimate's; the comparison with the station decides.
    while (i > 0 && !part.LeftAt(Station(i - 1))) --i;
    while (i <= kLast && part.LeftAt(Station(i))) ++i;
    return i;
  }

  template <class Visit>
  void ForEachAt(std::size_t station, Visit&& visit) const {
    for (Index n = first_[station]; n != kNone; n = next_[n]) visit(parts_[n]);
  }

  Sum Walk(double x) const {
    Sum sum;
    for (const Part& part : parts_) sum.Add(part.At(x));
    return sum;
  }

  const PartList<Part>& parts_;
  double L_;
  bool ordered_;  ///< the length is positive, so the stations stand in order
  bool walks_;    ///< asks the parts one by one: there are few, or the stations have no order
  std::array<Index, kLast + 2> first_;  ///< parts whose right begins at a station, chained
  std::array<Index, PartList<Part>::kCapacity> next_;
  Places<Sum, kLast + 2> left_;   ///< of the parts that a station is on the left of
  Places<Sum, kLast + 2> right_;  ///< of the others
};

}  // namespace korvane
