// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of the fields of the input record: name, unit, format and limit of each.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/limit.h"
#include "core/state_field.h"

namespace korvane {

/// A member of the record, an array of numbers as a whole.
using InputMember =
    std::variant<int16 ProjectState::*, float32 ProjectState::*, number ProjectState::*,
                 std::string ProjectState::*, Indexed<int16, 1, 8> ProjectState::*,
                 Indexed<float32, 1, 8> ProjectState::*, Indexed<float32, 1, 2> ProjectState::*,
                 Indexed<float32, 1, 3> ProjectState::*>;

/// What becomes of a refused value.
enum class Refusal { Stays, BecomesZero };

/// One field of the record. A field that nobody types has neither unit nor limit.
struct InputField {
  const char* name;  ///< of the member, "pmx"
  InputMember member;
  const char* unit = "";
  const char* format = "#0";  ///< as it is shown and typed
  Limit limit = {};
  /// Of a position, stored in m: while this flag is 1 it is read and stored as x/L.
  int16 ProjectState::*relative = nullptr;
  Refusal refusal = Refusal::Stays;
};

/// All fields of the record in the order of its declaration.
std::span<const InputField> AllInputFields();

/// The field of that name, or nullptr.
const InputField* FindInputField(std::string_view name);

/// A field, or an element of an array field by its own index.
struct InputRef {
  const InputField* field = nullptr;
  int element = 0;
};

/// The input of a member. Throws std::logic_error for a member that the table lacks.
InputRef InputOf(InputMember member, int element = 0);

/// Whether the field holds a text.
bool IsText(const InputField& field);

/// The number of an input in its unit, a position as x/L while its flag says so; 0 for a text.
double ReadInput(const ProjectState& st, const InputRef& input);

/// The number of an input as the record holds it, a position in m: what PutInput stores.
double StoredInput(const ProjectState& st, const InputRef& input);

/// Stores a number as the record holds it, a position in m, and tests nothing. Throws
/// ArithmeticFault for a value that the field can't hold.
void PutInput(ProjectState& st, const InputRef& input, double value);

/// The text of an input; empty for a number.
std::string ReadText(const ProjectState& st, const InputRef& input);
/// Stores a text as it is; nothing where the input is a number.
void StoreText(ProjectState& st, const InputRef& input, const std::string& text);

/// Copies one input from another state, as it is stored.
void CopyInput(const ProjectState& from, ProjectState& to, const InputRef& input);

/// The limit of an input as it stands for this state.
Limit LimitOf(const ProjectState& st, const InputRef& input);

/// Stores a number in the input's unit and tests it against the limit: the value as it is stored,
/// so that an int field is tested rounded. Returns nullptr, or the message of a refused value,
/// which stays in the state or becomes 0 as the field says. Throws ArithmeticFault for a value
/// that the field can't hold.
const char* StoreInput(ProjectState& st, const InputRef& input, double value);
/// The same with another limit than the input's own.
const char* StoreInput(ProjectState& st, const InputRef& input, double value, const Limit& limit);

/// Calls visit("name", field) for every field of the state, in the order of its declaration.
template <class State, class Visitor>
void ForEachField(State& st, Visitor&& visit) {
  for (const InputField& field : AllInputFields()) {
    std::visit([&](auto member) { visit(field.name, st.*member); }, field.member);
  }
}

}  // namespace korvane
