// SPDX-License-Identifier: GPL-3.0-or-later
// The text fields of the session: typing, leaving, and what they show.
#include <algorithm>

#include "core/text.h"
#include "front/session.h"
#include "front/state_compare.h"

namespace korvane {

namespace {
constexpr const char* kMismatch = "Input string mismatch ";
}

std::string Session::Shown(double value, const char* format) const {
  std::string text = Format(value, format);
  if (decimalComma_) std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

std::string Session::OnScreen(std::string text) const {
  return decimalComma_ ? WithDecimalComma(std::move(text)) : text;
}

std::string Session::StateText(const Control& field) const {
  if (field.text) return field.text(*this);
  return Shown(ReadInput(st(), field.field.input), field.field.Format());
}

bool Session::Green(const Control& field) const {
  return fields_.InUse() == &field && Visible(field);
}

bool Session::Marked(const Control& field) const {
  if (IsRefused(field)) return true;
  const std::string* own = fields_.OwnText(field);
  return own != nullptr && !fields_.IsTyped(field) && *own != StateText(field);
}

void Session::KeepTexts() {
  // The calculation writes the stress and the restraint of the springs anew.
  const MainControls& on = TheForms().onMain;
  for (const Control& c : TheForms().main->controls) {
    if (c.kind == Kind::Input && &c != on.ifyk && &c != on.ispring) fields_.Keep(c, Text(c));
  }
  fields_.ForgetRefused();
  removedLoads.reset();
  news_.clear();
}

void Session::FillMainWindow() {
  removedLoads.reset();
  fields_.FillAll();
}

void Session::FocusField(const Control& field) {
  if (field.kind != Kind::Input) return;
  fields_.Use(field);
  ++focusings_;
}

void Session::Type(const Control& field, const std::string& text) {
  if (field.kind != Kind::Input) throw UnknownControl(field.name + " is no input field");
  fields_.Use(field);
  fields_.Type(text);
}

void Session::Mismatch(const Control& field) {
  platform_.Message(kMismatch);
  fields_.Use(field);
}

bool Session::Accept(const Control& field, const FieldRule& rule) {
  if (!rule.IsNumber()) {
    // Project and identification are read on saving only.
    if (rule.input.field != nullptr) {
      StoreText(st(), rule.input, Text(field));
    } else {
      fields_.Keep(field, Text(field));
    }
    return true;
  }
  const auto typed = ParseNumber(Text(field), decimalComma_);
  if (!typed) {
    Mismatch(field);
    return false;
  }
  const double value = float32(*typed);
  const ProjectState before = IsRefused(field) ? fields_.Refused()->before : st();
  const char* refusal =
      StoreInput(st(), rule.input, value, rule.limit ? *rule.limit : rule.input.field->limit);
  fields_.Use(field);
  fields_.Fill(field);
  fields_.Type(Shown(
      ReadInput(st(), rule.input),
      refusal != nullptr && rule.refusedFormat != nullptr ? rule.refusedFormat : rule.Format()));
  if (refusal != nullptr) {
    fields_.Refuse(field, before, st());
    platform_.Message(refusal);
    if (rule.afterRefusal) rule.afterRefusal(*this);
    return false;
  }
  const int calculations = calculations_;
  fields_.Accept(field);
  try {
    if (rule.then) rule.then(*this);
    if (mending_ && calculations_ != calculations) throw ArithmeticFault("not mended yet");
  } catch (const ArithmeticFault&) {
    // While a project is mended the failure may be another input's.
    if (!mending_) fields_.Refuse(field, before, st());
    throw;
  }
  return true;
}

bool Session::Leave(const Control& field) {
  if (field.kind == Kind::Input && !fields_.IsTyped(field)) {
    // A free text stands beside the state until it is saved.
    if (field.field.input.field != nullptr) fields_.Fill(field);
    fields_.Left(field);
    return true;
  }
  return LeaveBy(field, field.field);
}

bool Session::LeaveBy(const Control& field, const FieldRule& rule) {
  if (field.kind != Kind::Input) return true;
  lastInput_ = &field;
  const int calculations = calculations_;
  try {
    if (!Accept(field, rule)) return false;
  } catch (const ArithmeticFault&) {
    Mismatch(field);
    if (mending_ && calculations_ != calculations) {
      // The value is stored; the next input may be the one that mends.
      fields_.Left(field);
      fields_.Use(field);
    }
    return false;
  }
  fields_.Left(field);
  return true;
}

bool Session::Enter(const Control& field, const std::string& text) {
  FocusField(field);
  Type(field, text);
  return Leave(field);
}

void Session::Return(const Control& control) {
  if (control.returnKey && Enabled(control)) control.returnKey(*this);
  if (control.kind != Kind::Input) return;
  if (!Leave(control) || FocusedField() != nullptr) return;
  const Controls& all = control.form->controls;
  const auto count = static_cast<int>(all.size());
  for (int k = 1; k < count; ++k) {
    const Control& next = all[static_cast<std::size_t>((control.place + k) % count)];
    if (next.kind == Kind::Input && Enabled(next) && Visible(next)) {
      FocusField(next);
      return;
    }
  }
}

const Control* Session::Refused() const {
  const auto& refused = fields_.Refused();
  if (!refused) return nullptr;
  // Another control may have put another value in its place.
  ProjectState probe = refused->after;
  CopyInput(st(), probe, refused->field->field.input);
  return SameInputs(probe, refused->after) ? refused->field : nullptr;
}

std::string Session::LastAccepted() const {
  const auto& refused = fields_.Refused();
  if (!refused) return {};
  const FieldRule& rule = refused->field->field;
  return Shown(ReadInput(refused->before, rule.input), rule.Format());
}

bool Session::TakeBack() {
  if (!fields_.Refused()) return false;
  const RefusedValue refused = *fields_.Refused();
  // What followed the value, such as loads cut to a new length, goes back with it.
  if (SameInputs(st(), refused.after)) {
    st() = refused.before;
  } else {
    CopyInput(refused.before, st(), refused.field->field.input);
  }
  fields_.ForgetRefused();
  // The field stays in use, showing what is in force.
  if (fields_.IsTyped(*refused.field)) {
    fields_.Left(*refused.field);
    fields_.Use(*refused.field);
  }
  // A focus may have calculated with the value, and a failure left its results half way.
  try {
    Calculate();
  } catch (const ArithmeticFault&) {
    // As it was before the value came; the headline tells it.
  }
  return true;
}

}  // namespace korvane
