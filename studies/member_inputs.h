// SPDX-License-Identifier: GPL-3.0-or-later
// The inputs of a member by name, set from numbers or from the cells of a table, with the limits
// and messages of the forms.
#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/calculation.h"
#include "core/input_fields.h"
#include "studies/section_names.h"

namespace korvane {

/// What a name stands for.
enum class InputKind {
  Field,     ///< a number of the record
  Text,      ///< a text of the record
  Section,   ///< the section by its name
  Material,  ///< the material by its name
  Support,   ///< the support by its words
  Loads      ///< a factor on all loads and end forces; the self weight stays
};

/// An input by its name.
struct MemberInput {
  InputKind kind = InputKind::Field;
  std::string name;  ///< "q1", "My_end[1]", "section"
  InputRef ref;      ///< of a field or a text
};

/// The input of a name as `design --json` writes it, or nothing. A field of several elements is
/// named with its index, "pm[3]". "N" is the axial force of the state's mode.
std::optional<MemberInput> FindMemberInput(std::string_view name, const ProjectState& st);

/// All names, elements one by one.
std::vector<std::string> MemberInputNames();

/// Unit of an input, "" for none.
const char* UnitOf(const MemberInput& input);

/// Accepted values in words, "" for any.
std::string RangeOf(const MemberInput& input, const ProjectState& st);

/// A cell of a row: a text, or a number that was one before. Without either the base's value stays.
struct InputCell {
  const MemberInput* input = nullptr;
  std::string_view text = {};
  std::optional<double> number = {};
  bool IsGiven() const { return number || !text.empty(); }
};

/// An input that was not taken.
struct RefusedInput {
  std::string name;     ///< of the input
  std::string message;  ///< literal, as the forms show it
  /// "column q1: ..." without the message's blanks at its ends; with a row "column q1, row 17:
  /// ...".
  std::string InColumn(std::optional<std::size_t> row = {}) const;
};

/// What the inputs by name need beside the state.
class MemberInputs {
public:
  explicit MemberInputs(std::shared_ptr<const Library> library);

  /// Sets the inputs that are given: the words first, then the fields in their order, as they
  /// stand in a project file (positions in m). What a form sets along with a field is set too,
  /// unless a cell of its own says otherwise: the buckling case of a factor and the factor of a
  /// case; the buckling cases of a support chosen by its words. Then tests what was set against
  /// the limits that hold for the finished state. Returns nothing, or the first that is refused or
  /// unreadable; the state then holds a part.
  std::optional<RefusedInput> Put(std::span<const InputCell> cells, bool decimalComma,
                                  ProjectState& st) const;

  /// The same with the words of a table, "column q1: ...".
  std::optional<std::string> Set(std::span<const InputCell> cells, bool decimalComma,
                                 ProjectState& st) const;

  /// Sets one number in the same way.
  std::optional<std::string> Set(const MemberInput& input, double value, ProjectState& st) const;

  const SectionNames& Names() const { return names_; }

private:
  std::optional<RefusedInput> SetWord(const InputCell& cell, bool decimalComma,
                                      ProjectState& st) const;
  std::optional<RefusedInput> Refused(const MemberInput& input, const ProjectState& st) const;
  std::shared_ptr<const Library> library_;
  SectionNames names_;
};

/// All loads and end forces by the factor; the self weight stays. Throws ArithmeticFault.
void ScaleLoads(double factor, ProjectState& st);

}  // namespace korvane
