// SPDX-License-Identifier: GPL-3.0-or-later
// The 51 stations of a member as rows of plain doubles, for loops that run several stations at
// once.
#pragma once

#include <array>
#include <cstddef>

#include "core/numeric.h"

namespace korvane {

inline constexpr int kLastStation = 50;
/// Values at the stations before they are rounded into their fields.
using StationRow = std::array<double, kLastStation + 1>;

/// i/50, the relative place of each station.
inline constexpr StationRow kStationPlaces = [] {
  StationRow places{};
  for (std::size_t i = 0; i < places.size(); ++i) places[i] = static_cast<double>(i) / kLastStation;
  return places;
}();

/// Takes the values into max where they are greater and into min where they are less.
inline void Widen(const Indexed<float32, 0, kLastStation>& values, float32& max, float32& min) {
  // Four lanes that don't wait for each other.
  constexpr std::size_t lanes = 4;
  std::array<float, lanes> most;
  std::array<float, lanes> least;
  most.fill(max.Single());
  least.fill(min.Single());
  const float32* const v = values.begin();
  const auto take = [&](std::size_t lane, float value) {
    most[lane] = value > most[lane] ? value : most[lane];
    least[lane] = value < least[lane] ? value : least[lane];
  };
  constexpr std::size_t whole = (kLastStation + 1) / lanes * lanes;
  for (std::size_t i = 0; i < whole; i += lanes) {
    for (std::size_t lane = 0; lane < lanes; ++lane) take(lane, v[i + lane].Single());
  }
  for (std::size_t i = whole; i <= kLastStation; ++i) take(i - whole, v[i].Single());
  for (std::size_t lane = 0; lane < lanes; ++lane) {
    if (most[lane] > max.Single()) max = double(most[lane]);
    if (least[lane] < min.Single()) min = double(least[lane]);
  }
}

}  // namespace korvane
