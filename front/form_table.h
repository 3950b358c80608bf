// SPDX-License-Identifier: GPL-3.0-or-later
// Forms as tables: every control with the rule that belongs to it. Code refers to controls and
// forms by the handles of front/forms/handles.h; names are for scripts.
#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/input_fields.h"

namespace korvane {

class Session;
struct Form;

/// What a control is.
enum class Kind { Input, Option, Check, List, Picture, Button, Label, Surface, Frame, Menu };

/// The rule of a text field with a number: the typed value is stored at once, shown again in its
/// format, then tested against the input's limit; after acceptance `then` runs.
struct FieldRule {
  InputRef input;                ///< none of a free text
  const char* format = nullptr;  ///< where the form shows it otherwise than the input's own
  /// Where a refused value is shown otherwise.
  const char* refusedFormat = nullptr;
  std::optional<Limit> limit;  ///< where another holds than the input's own
  std::function<void(Session&)> then;
  std::function<void(Session&)> afterRefusal;

  bool IsNumber() const { return input.field != nullptr && !IsText(*input.field); }
  const char* Format() const { return format != nullptr ? format : input.field->format; }
  /// Whether there are values that are refused.
  bool Limited() const { return IsNumber() && HasLimit(input.field->limit); }
};

/// The picture on a button.
struct Sign {
  enum What { None, Support, EndCondition, LoadLevel, Stiffener, Twist, Turn } what = None;
  int code = 0;
  /// Of a picture that shows the code in force.
  int16 ProjectState::*follows = nullptr;
};

/// What is painted on a surface.
enum class Painting { None, Figure, ShortResults, LongResults, Modes };

/// Where a family's form shows a value.
enum class Block { None, Dimensions, Properties, Capacities };

/// A value as it is shown, in parts. Without a text there is nothing to be seen.
struct ShownText {
  std::string text, unit;
};

/// A control of a form. Members that a kind does not use stay empty; a text that follows the
/// state is a function, anything else a literal caption.
struct Control {
  std::string name;  ///< "il", "ipm(3)", for scripts
  Kind kind = Kind::Label;
  std::string caption;
  std::function<std::string(const Session&)> text;
  FieldRule field;
  std::function<bool(const Session&)> checked;
  std::function<std::vector<std::string>(const Session&)> items;
  /// Tells lists of different items apart; without it they are always the same.
  std::function<int(const Session&)> itemsVersion;
  std::function<int(const Session&)> selected;
  std::function<void(Session&)> click;
  std::function<void(Session&, int)> select;
  std::function<void(Session&)> returnKey;  ///< of a picture that knows the Return key
  std::function<void(Session&)> deleteKey;  ///< of a list whose entries can go
  std::function<bool(const Session&)> enabled;
  std::function<bool(const Session&)> visible;
  std::function<bool(const Session&)> alarm;  ///< of a label: in red, as its words say too
  std::string unit;
  std::string tip;
  std::string spoken;  ///< what a screen reader says where caption and tip don't name it
  /// What a window writes in place of a text that is a code.
  std::function<std::string(const Session&)> words;
  std::string letter;  ///< of a dimension, as the figure writes it
  std::string parent;  ///< menu entry above this one
  Sign sign;
  Painting painting = Painting::None;
  Block block = Block::None;
  int value = -1;  ///< of a label that shows one of the form's values: which

  const Form* form = nullptr;  ///< on which it stands
  int place = 0;               ///< in the order of its form
};
/// Controls stay where they are when others are added.
using Controls = std::deque<Control>;

/// A form: its controls in the order of the Return key, and what its events do.
struct Form {
  std::string name;
  std::function<std::string(const Session&)> title;
  Controls controls;
  std::function<void(Session&)> onShow;  ///< the command that shows it
  std::function<void(Session&)> onFocus;
  std::function<bool(Session&)> onClose;  ///< false: the form stays open
  /// All values of the form that are worked out together, for the labels that name them.
  std::function<std::vector<ShownText>(const Session&)> values;
  bool modal = false;  ///< nothing else can be used until it is closed
  bool input = false;  ///< shows inputs of the project: closed when another is opened
  int family = 0;      ///< code of the family whose form it is
};

/// The form of a name, or nullptr; for scripts.
const Form* FindForm(std::string_view name);
/// The control of a name on a form, or nullptr; for scripts.
const Control* FindControl(const Form& form, std::string_view name);
/// The field of a form that holds an input, or nullptr.
const Control* FieldOf(const Form& form, const InputRef& input);
/// "korvane.il"
std::string AddressOf(const Control& control);

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
/// One of several choices; checked tells which is in force.
Control Option(std::string name, std::string caption, std::function<bool(const Session&)> checked,
               std::function<void(Session&)> click);
/// A check box.
Control Check(std::string name, std::string caption, std::function<bool(const Session&)> checked,
              std::function<void(Session&)> click);
/// A button with words.
Control Button(std::string name, std::string caption, std::function<void(Session&)> click);
/// A button with a sign.
Control Picture(std::string name, Sign sign, std::string tip, std::function<void(Session&)> click);
/// Words that stay.
Control Label(std::string name, std::string caption);
/// Words that follow the state.
Control TextLabel(std::string name, std::function<std::string(const Session&)> text);
/// A frame round other controls, which can't be used while it is disabled.
Control FrameOf(std::string name, std::string caption,
                std::function<bool(const Session&)> enabled = {});
/// A painting, whose text is what scripts and screen readers are told.
Control Surface(std::string name, Painting painting,
                std::function<std::string(const Session&)> text);

/// An option that sets an int16 field to a value and calculates.
Control ValueOption(std::string name, std::string caption, int16 ProjectState::*member, int value);
/// A check box on an int16 flag that calculates.
Control FlagCheck(std::string name, std::string caption, int16 ProjectState::*member);
/// A button that closes its form.
Control CloseButton(std::string name, std::string caption, const Form& form);

}  // namespace korvane
