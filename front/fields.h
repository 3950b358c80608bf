// SPDX-License-Identifier: GPL-3.0-or-later
// The field in use, and the few texts that are not the state's: all others are made from the
// state when asked for.
#pragma once

#include <map>
#include <optional>
#include <string>

#include "front/form_table.h"

namespace korvane {

/// A value that its field has refused: it stands in the state until another is accepted.
struct RefusedValue {
  const Control* field = nullptr;
  ProjectState before;  ///< the state with the last accepted value
  ProjectState after;   ///< and with the refused one
};

class Fields {
public:
  /// The field that has the focus, or nullptr.
  const Control* InUse() const { return inUse_; }
  /// A key has been typed in the field in use, or its value was refused.
  bool IsTyped(const Control& field) const { return inUse_ == &field && typed_.has_value(); }
  /// The text of a field that does not come from the state, or nullptr.
  const std::string* OwnText(const Control& field) const;

  /// The field gets the focus; what was typed in another and never left is forgotten.
  void Use(const Control& field);
  void Type(std::string text) { typed_ = std::move(text); }
  /// The field shows the state again; the focus may stay.
  void Left(const Control& field);
  /// No field of the form is in use any longer.
  void Release(const Form& form);

  /// A text that stands beside the state until the field is filled again.
  void Keep(const Control& field, std::string text) { kept_[&field] = std::move(text); }
  /// Filled: the field shows the state.
  void Fill(const Control& field) { kept_.erase(&field); }
  void FillAll() { kept_.clear(); }

  /// The value in force is refused; `before` is the state ahead of it. The first one counts
  /// while a field goes from one refused value to the next.
  void Refuse(const Control& field, const ProjectState& before, const ProjectState& after);
  void Accept(const Control& field);
  void ForgetRefused() { refused_.reset(); }
  const std::optional<RefusedValue>& Refused() const { return refused_; }

private:
  const Control* inUse_ = nullptr;
  std::optional<std::string> typed_;
  std::map<const Control*, std::string> kept_;
  std::optional<RefusedValue> refused_;
};

}  // namespace korvane
