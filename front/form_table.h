// SPDX-License-Identifier: GPL-3.0-or-later
// Forms as tables: every control by its own name, with the rule that belongs to it.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "core/project_state.h"

namespace korvane {

class Session;

/// What a control is.
enum class Kind { Input, Option, Check, List, Picture, Button, Label, Surface, Frame, Menu };

/// A limit with its literal message: what is accepted, and how that is told.
struct Limit {
  std::function<bool(const ProjectState&, double)> accepts;
  std::function<std::string(const ProjectState&)> message;
};

/// What becomes of a refused value.
enum class Refusal { Stays, BecomesZero };

/// The rule of a text field with a number: the typed value is stored at once, shown again in its
/// format, then tested; after acceptance `then` runs.
struct FieldRule {
  std::function<double(const ProjectState&)> read;
  std::function<void(ProjectState&, double)> store;
  const char* format = "#0.0";
  Limit limit;  ///< no test when empty
  Refusal refusal = Refusal::Stays;
  std::function<void(Session&)> then;
  std::function<void(Session&)> afterRefusal;
  /// Of a field of free text: takes the text when the field is left.
  std::function<void(ProjectState&, const std::string&)> keep;
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

/// Reads and stores a field of the state, whatever its type. An int16 takes the rounded value.
template <class T>
FieldRule Bind(T ProjectState::*member, const char* format) {
  FieldRule rule;
  rule.read = [member](const ProjectState& st) { return double(st.*member); };
  rule.store = [member](ProjectState& st, double v) { StoreNumber(st.*member, v); };
  rule.format = format;
  return rule;
}

/// The same for an element of an array field.
template <class A>
FieldRule Bind(A ProjectState::*member, int index, const char* format) {
  FieldRule rule;
  rule.read = [member, index](const ProjectState& st) { return double((st.*member)[index]); };
  rule.store = [member, index](ProjectState& st, double v) { StoreNumber((st.*member)[index], v); };
  rule.format = format;
  return rule;
}

void StoreNumber(float32& field, double v);
void StoreNumber(number& field, double v);
void StoreNumber(int16& field, double v);

/// low <= v.
Limit AtLeast(double low, std::string message);
/// low < v.
Limit Above(double low, std::string message);
/// low <= v <= high.
Limit Between(double low, double high, std::string message);
/// By the state.
Limit Accept(std::function<bool(const ProjectState&, double)> accepts, std::string message);

Control Input(std::string name, std::string caption, FieldRule rule, std::string unit = {},
              std::string tip = {});
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
