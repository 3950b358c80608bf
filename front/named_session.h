// SPDX-License-Identifier: GPL-3.0-or-later
// The script's door to the program: forms and controls by their names, "il" or "korvane.il".
#pragma once

#include <string>
#include <vector>

#include "front/session.h"

namespace korvane {

/// A session that is driven by names. Without a form's name ahead, a name means a control of the
/// form on top. Throws UnknownControl for what does not exist.
class NamedSession : public Session {
public:
  using Session::Session;

  /// What an address means.
  const Control& Find(const std::string& address) const;
  static const Form& FormNamed(const std::string& name);

  using Session::Checked;
  using Session::Click;
  using Session::Close;
  using Session::Enabled;
  using Session::Enter;
  using Session::Focus;
  using Session::FocusField;
  using Session::Green;
  using Session::IsOpen;
  using Session::Items;
  using Session::Leave;
  using Session::Marked;
  using Session::Menu;
  using Session::Return;
  using Session::Select;
  using Session::Selected;
  using Session::Show;
  using Session::Text;
  using Session::Title;
  using Session::Type;
  using Session::Unload;
  using Session::Visible;

  void Focus(const std::string& form) { Focus(FormNamed(form)); }
  void Show(const std::string& form) { Show(FormNamed(form)); }
  void Unload(const std::string& form) { Unload(FormNamed(form)); }
  bool Close(const std::string& form) { return Close(FormNamed(form)); }
  bool IsOpen(const std::string& form) const { return IsOpen(FormNamed(form)); }
  std::string Title(const std::string& form) const { return Title(FormNamed(form)); }
  void FocusField(const std::string& field) { FocusField(Find(field)); }
  void Type(const std::string& field, const std::string& text) { Type(Find(field), text); }
  bool Leave(const std::string& field) { return Leave(Find(field)); }
  bool Enter(const std::string& field, const std::string& text) { return Enter(Find(field), text); }
  void Return(const std::string& control) { Return(Find(control)); }
  void Click(const std::string& control) { Click(Find(control)); }
  void Select(const std::string& list, int index) { Select(Find(list), index); }
  void Menu(const std::string& command);
  std::string Text(const std::string& control) const { return Text(Find(control)); }
  bool Enabled(const std::string& control) const { return Enabled(Find(control)); }
  bool Visible(const std::string& control) const { return Visible(Find(control)); }
  bool Checked(const std::string& control) const { return Checked(Find(control)); }
  bool Green(const std::string& field) const { return Green(Find(field)); }
  bool Marked(const std::string& field) const { return Marked(Find(field)); }
  std::vector<std::string> Items(const std::string& list) const { return Items(Find(list)); }
  int Selected(const std::string& list) const { return Selected(Find(list)); }

  /// Names of the open forms, the one on top last.
  std::vector<std::string> OpenForms() const;
  /// Address of the field in use, empty for none.
  std::string FocusedField() const;
};

}  // namespace korvane
