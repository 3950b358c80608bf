// SPDX-License-Identifier: GPL-3.0-or-later
// A field of the input record as a value, so that tables can name fields of different types.
#pragma once

#include <cmath>
#include <string>
#include <type_traits>
#include <variant>

#include "core/project_state.h"

namespace korvane {

/// Which field; one built without a member names none.
using StateField = std::variant<int16 ProjectState::*, float32 ProjectState::*,
                                number ProjectState::*, std::string ProjectState::*>;

/// Whether it names no field.
constexpr bool IsNone(const StateField& field) {
  return std::visit([](auto member) { return member == nullptr; }, field);
}

/// Whether the field holds a text.
constexpr bool IsText(const StateField& field) {
  return std::holds_alternative<std::string ProjectState::*>(field);
}

/// A number as a 16-bit integer, halves to even. Throws ArithmeticFault beyond its range.
inline int16 ToInt16(double v) {
  const double rounded = std::nearbyint(v);
  if (!(rounded >= -32768.0 && rounded <= 32767.0)) throw ArithmeticFault("16-bit overflow");
  return static_cast<int>(rounded);
}

/// The field's number; 0 for a text and for no field.
inline double ReadNumber(const ProjectState& st, const StateField& field) {
  return std::visit(
      [&st](auto member) -> double {
        if constexpr (std::is_same_v<decltype(member), std::string ProjectState::*>) {
          return 0;
        } else {
          return member == nullptr ? 0.0 : double(st.*member);
        }
      },
      field);
}

/// Stores a number; an integer field takes it rounded, a text and no field take nothing. Throws
/// ArithmeticFault for a value that the field can't hold.
inline void StoreNumber(ProjectState& st, const StateField& field, double v) {
  std::visit(
      [&st, v](auto member) {
        using Member = decltype(member);
        if constexpr (std::is_same_v<Member, int16 ProjectState::*>) {
          if (member != nullptr) st.*member = ToInt16(v);
        } else if constexpr (!std::is_same_v<Member, std::string ProjectState::*>) {
          if (member != nullptr) st.*member = v;
        }
      },
      field);
}

/// The field's text; empty for a number.
inline std::string ReadText(const ProjectState& st, const StateField& field) {
  const auto* member = std::get_if<std::string ProjectState::*>(&field);
  return member == nullptr || *member == nullptr ? std::string() : st.**member;
}

/// Stores a text; a number takes nothing.
inline void StoreText(ProjectState& st, const StateField& field, const std::string& text) {
  const auto* member = std::get_if<std::string ProjectState::*>(&field);
  if (member != nullptr && *member != nullptr) st.** member = text;
}

}  // namespace korvane
