// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/form_table.h"

#include <algorithm>
#include <map>

#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

const std::vector<Form>& AllForms() {
  static const std::vector<Form> forms = [] {
    std::vector<Form> all;
    AddMainForm(all);
    AddLoadForms(all);
    AddBucklingForms(all);
    AddSetupForms(all);
    AddOptimiserForm(all);
    AddDatabaseForm(all);
    AddFamilyForms(all);
    return all;
  }();
  return forms;
}

const Form* FindForm(const std::string& name) {
  static const std::map<std::string, const Form*> index = [] {
    std::map<std::string, const Form*> m;
    for (const Form& form : AllForms()) m[form.name] = &form;
    return m;
  }();
  const auto it = index.find(name);
  return it == index.end() ? nullptr : it->second;
}

const Control* FindControl(const Form& form, const std::string& name) {
  const auto it = std::find_if(form.controls.begin(), form.controls.end(),
                               [&](const Control& c) { return c.name == name; });
  return it == form.controls.end() ? nullptr : &*it;
}

FieldRule Bind(InputMember member, int element) {
  FieldRule rule;
  rule.input = InputOf(member, element);
  return rule;
}

FieldRule Calculated(InputMember member, int element) {
  FieldRule rule = Bind(member, element);
  rule.then = [](Session& s) { s.Calculate(); };
  return rule;
}

Control Input(std::string name, std::string caption, FieldRule rule, std::string tip) {
  Control c;
  c.name = std::move(name);
  c.kind = Kind::Input;
  c.caption = std::move(caption);
  c.field = std::move(rule);
  if (c.field.IsNumber()) c.unit = c.field.input.field->unit;
  c.tip = std::move(tip);
  return c;
}

std::string TipOf(const Control& c, const ProjectState& st) {
  if (c.kind != Kind::Input || !c.field.IsNumber()) return c.tip;
  const Limit limit = LimitOf(st, c.field.input);
  if (!HasLimit(limit)) return c.tip;
  std::string range = RangeWords(limit);
  if (!c.unit.empty()) range += " " + c.unit;
  return c.tip.empty() ? range : c.tip + ", " + range;
}

namespace {

Control Clickable(Kind kind, std::string name, std::string caption,
                  std::function<void(Session&)> click) {
  Control c;
  c.name = std::move(name);
  c.kind = kind;
  c.caption = std::move(caption);
  c.click = std::move(click);
  return c;
}

}  // namespace

Control Option(std::string name, std::string caption, std::function<bool(const Session&)> checked,
               std::function<void(Session&)> click) {
  Control c = Clickable(Kind::Option, std::move(name), std::move(caption), std::move(click));
  c.checked = std::move(checked);
  return c;
}

Control Check(std::string name, std::string caption, std::function<bool(const Session&)> checked,
              std::function<void(Session&)> click) {
  Control c = Clickable(Kind::Check, std::move(name), std::move(caption), std::move(click));
  c.checked = std::move(checked);
  return c;
}

Control Button(std::string name, std::string caption, std::function<void(Session&)> click) {
  return Clickable(Kind::Button, std::move(name), std::move(caption), std::move(click));
}

Control Picture(std::string name, std::string tip, std::function<void(Session&)> click) {
  Control c = Clickable(Kind::Picture, std::move(name), {}, std::move(click));
  c.tip = std::move(tip);
  return c;
}

Control Label(std::string name, std::string caption) {
  return Clickable(Kind::Label, std::move(name), std::move(caption), {});
}

Control TextLabel(std::string name, std::function<std::string(const Session&)> text) {
  Control c = Clickable(Kind::Label, std::move(name), {}, {});
  c.text = std::move(text);
  return c;
}

Control FrameOf(std::string name, std::string caption,
                std::function<bool(const Session&)> enabled) {
  Control c = Clickable(Kind::Frame, std::move(name), std::move(caption), {});
  c.enabled = std::move(enabled);
  return c;
}

Control ValueOption(std::string name, std::string caption, int16 ProjectState::*member, int value) {
  return Option(
      std::move(name), std::move(caption),
      [member, value](const Session& s) { return s.st().*member == value; },
      [member, value](Session& s) {
        s.st().*member = value;
        s.Calculate();
      });
}

Control FlagCheck(std::string name, std::string caption, int16 ProjectState::*member) {
  return Check(
      std::move(name), std::move(caption),
      [member](const Session& s) { return s.st().*member == 1; },
      [member](Session& s) {
        s.st().*member = s.st().*member == 1 ? 0 : 1;
        s.Calculate();
      });
}

}  // namespace korvane
