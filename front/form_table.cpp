// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/form_table.h"

#include <algorithm>
#include <stdexcept>

#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

Form& Forms::Add(std::string name, std::function<std::string(const Session&)> title) {
  Form& form = all.emplace_back();
  form.name = std::move(name);
  form.title = std::move(title);
  return form;
}

const Forms& TheForms() {
  // Controls and forms stay where they are when the deques move.
  static const Forms forms = [] {
    Forms f{};
    AddMainForm(f);
    AddLoadForms(f);
    AddBucklingForms(f);
    AddSetupForms(f);
    AddOptimiserForm(f);
    AddDatabaseForm(f);
    AddFamilyForms(f);
    for (Form& form : f.all) {
      int place = 0;
      for (Control& c : form.controls) {
        c.form = &form;
        c.place = place++;
      }
    }
    return f;
  }();
  return forms;
}

const Form& FamilyForm(int code) {
  for (const Form& form : AllForms()) {
    if (form.family == code && code != 0) return form;
  }
  throw std::logic_error("no form of family " + std::to_string(code));
}

const Form* FindForm(std::string_view name) {
  const auto& all = AllForms();
  const auto it =
      std::find_if(all.begin(), all.end(), [&](const Form& form) { return form.name == name; });
  return it == all.end() ? nullptr : &*it;
}

const Control* FindControl(const Form& form, std::string_view name) {
  const auto it = std::find_if(form.controls.begin(), form.controls.end(),
                               [&](const Control& c) { return c.name == name; });
  return it == form.controls.end() ? nullptr : &*it;
}

const Control* FieldOf(const Form& form, const InputRef& input) {
  const auto it = std::find_if(form.controls.begin(), form.controls.end(), [&](const Control& c) {
    return c.field.input.field == input.field && c.field.input.element == input.element;
  });
  return it == form.controls.end() ? nullptr : &*it;
}

std::string AddressOf(const Control& control) {
  return control.form->name + "." + control.name;
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
  if (!c.field.Limited()) return c.tip;
  std::string range = RangeWords(LimitOf(st, c.field.input));
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

Control Picture(std::string name, Sign sign, std::string tip, std::function<void(Session&)> click) {
  Control c = Clickable(Kind::Picture, std::move(name), {}, std::move(click));
  c.sign = sign;
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

Control Surface(std::string name, Painting painting,
                std::function<std::string(const Session&)> text) {
  Control c = Clickable(Kind::Surface, std::move(name), {}, {});
  c.painting = painting;
  c.text = std::move(text);
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

Control CloseButton(std::string name, std::string caption, const Form& form) {
  return Button(std::move(name), std::move(caption), [&form](Session& s) { s.Close(form); });
}

}  // namespace korvane
