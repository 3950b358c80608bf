// SPDX-License-Identifier: GPL-3.0-or-later
// Forms as tables: every control by its own name, with the rule that belongs to it.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/input_fields.h"

namespace korvane {

class Session;

/// What a control is.
enum class Kind { Input, Option, Check, List, Picture, Button, Label, Surface, Frame, Menu };

/// The rule of a text field with a number: the typed value is stored at once, shown again in its
/// format, then tested against the input's limit; after acceptance `then` runs.
struct FieldRule {
  InputRef input;                ///< none of a free text
  const char* format = nullptr;  ///< where the form writes it otherwise than the input's own
  std::optional<Limit> limit;    ///< where another holds than the input's own
  std::function<void(Session&)> then;
  std::function<void(Session&)> afterRefusal;
  /// Of a field of free text: takes the text when the field is left.
  std::function<void(ProjectState&, const std::string&)> keep;

  bool IsNumber() const { return input.field != nullptr; }
  const char* Format() const { return format != nullptr ? format : input.field->format; }
};

/// A control of a form. Members that a kind does not use stay empty; a text that follows the
/// state is a function, anything else a literal caption.
struct Control {
  std::string name;  ///< "il", "ipm(3)"
  Kind kind = Kind::Label;
  std::string caption;
  std::function<std::string(const Session&)> text;
  FieldRule field;
  std::function<bool(const Session&)> checked;
  std::function<std::vector<std::string>(const Session&)> items;
  std::function<int(const Session&)> selected;
  std::function<void(Session&)> click;
  std::function<void(Session&, int)> select;
  std::function<void(Session&)> returnKey;  ///< of a picture that knows the Return key
  std::function<bool(const Session&)> enabled;
  std::function<bool(const Session&)> visible;
  std::string unit;
  std::string tip;
  std::string parent;  ///< menu entry above this one
};

/// A form: its controls in the order of the Return key, and what its events do.
struct Form {
  std::string name;
  std::function<std::string(const Session&)> title;
  std::vector<Control> controls;
  std::function<void(Session&)> onFocus;
  std::function<bool(Session&)> onClose;  ///< false: the form stays open
};

/// All forms of the program, made once.
const std::vector<Form>& AllForms();
const Form* FindForm(const std::string& name);
const Control* FindControl(const Form& form, const std::string& name);

// --- Building blocks of the tables --------------------------------------------------------------

/// The rule of an input of the record, without a follow-up.
FieldRule Bind(InputMember member, int element = 0);
/// The same that calculates after acceptance: the usual follow-up.
FieldRule Calculated(InputMember member, int element = 0);

/// The field of an input: its unit is the input's own, its tip tells the accepted values behind
/// the words.
Control Input(std::string name, std::string caption, FieldRule rule, std::string tip = {});
/// What a tip says of a field: its words and the accepted values as they stand.
std::string TipOf(const Control& control, const ProjectState& st);
Control Option(std::string name, std::string caption, std::function<bool(const Session&)> checked,
               std::function<void(Session&)> click);
Control Check(std::string name, std::string caption, std::function<bool(const Session&)> checked,
              std::function<void(Session&)> click);
Control Button(std::string name, std::string caption, std::function<void(Session&)> click);
Control Picture(std::string name, std::string tip, std::function<void(Session&)> click);
Control Label(std::string name, std::string caption);
Control TextLabel(std::string name, std::function<std::string(const Session&)> text);
Control FrameOf(std::string name, std::string caption,
                std::function<bool(const Session&)> enabled = {});

/// An option that sets an int16 field to a value and calculates.
Control ValueOption(std::string name, std::string caption, int16 ProjectState::*member, int value);
/// A check box on an int16 flag that calculates.
Control FlagCheck(std::string name, std::string caption, int16 ProjectState::*member);

}  // namespace korvane
