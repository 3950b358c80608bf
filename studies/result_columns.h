// SPDX-License-Identifier: GPL-3.0-or-later
// The results of a designed member as named columns, for tables of many members.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "core/calculation.h"

namespace korvane {

/// A member that was calculated, with its verdict.
struct Designed {
  const Design& design;
  const Verdict& verdict;
};

/// A result; either text or number is set.
struct ResultColumn {
  const char* name;
  const char* unit;
  const char* meaning;
  std::string (*text)(const Designed&);
  std::optional<float> (*value)(const Designed&);
  /// Stands for a member whose calculation stopped, too.
  bool always = false;
};

/// All results in the order of a table.
std::span<const ResultColumn> AllResultColumns();
/// The column of a name, or nullptr.
const ResultColumn* FindResultColumn(std::string_view name);

/// The cell of a result, empty where there is none: of a number the shortest digits that read back
/// to the same value.
std::string CellOf(const ResultColumn& column, const Designed& member);
/// The shortest digits that read back to the same value.
std::string Digits(float value);
/// The decimals that stand for a value in single precision, 0.1 for 0.100000001.
double Typed(float value);

/// x of the greatest deflection L/x along z; none without deflection and with end forces, which
/// give none.
std::optional<float> LengthOverDeflectionZ(const Design& d);
/// The same along y.
std::optional<float> LengthOverDeflectionY(const Design& d);

/// The codes of the notes of caution or worse, separated by blanks.
std::string NoteCodes(const Verdict& verdict);

/// The lightest size by ULS of the member's own series.
struct LightestSize {
  std::string section;
  float weight = 0;  ///< kg/m
  float IR = 0;
};
/// Searches it; leaves the design at that size. Nothing for a family without a series and where no
/// size passes. Throws ArithmeticFault.
std::optional<LightestSize> FindLightestSize(Design& design);

}  // namespace korvane
