// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/named_session.h"

namespace korvane {

const Form& NamedSession::FormNamed(const std::string& name) {
  const Form* form = FindForm(name);
  if (form == nullptr) throw UnknownControl("no form " + name);
  return *form;
}

const Control& NamedSession::Find(const std::string& address) const {
  const Form* form = &Top();
  std::string name = address;
  if (const auto dot = address.find('.'); dot != std::string::npos) {
    form = &FormNamed(address.substr(0, dot));
    name = address.substr(dot + 1);
  }
  const Control* control = FindControl(*form, name);
  if (control == nullptr) throw UnknownControl("no control " + name + " on " + form->name);
  return *control;
}

void NamedSession::Menu(const std::string& command) {
  const Control* control = FindControl(*TheForms().main, command);
  if (control == nullptr) throw UnknownControl("no command " + command);
  Menu(*control);
}

std::vector<std::string> NamedSession::OpenForms() const {
  std::vector<std::string> names;
  for (const Form* form : Session::OpenForms()) names.push_back(form->name);
  return names;
}

std::string NamedSession::FocusedField() const {
  const Control* field = Session::FocusedField();
  return field == nullptr ? std::string() : AddressOf(*field);
}

}  // namespace korvane
