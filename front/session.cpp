// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/session.h"

#include <algorithm>

#include "core/text.h"
#include "front/forms/forms.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {
constexpr const char* kMismatch = "Input string mismatch ";
}

Session::Session(std::shared_ptr<const Library> library, Platform& platform, bool decimalComma,
                 Folders folders)
    : design_(std::move(library)),
      platform_(platform),
      decimalComma_(decimalComma),
      folders_(std::move(folders)) {
  if (folders_.program.empty()) folders_.program = design_.lib->folder;
  if (folders_.own.empty()) folders_.own = folders_.program;
}

void Session::Start() {
  title_ = "KORVANE-NS3472: ";
  StartDesign(design_);
  ReadOwnDefaults();
  ResetDatabase(database_);
  database_.DbFile = "korvane.db";
  ReadDatabase(DatabasePath(database_.DbFile), database_);
  open_ = {"korvane"};
  FillMainWindow();
}

void Session::ReadOwnDefaults() {
  if (folders_.own == folders_.program) return;
  ReadDefaults(folders_.own, design_.st);
  try {
    SetMaterial(design_.lib->materials, design_.rec.tmax, design_.st);
  } catch (const ArithmeticFault&) {
    // Defaults without a material factor; the first calculation says so.
  }
}

std::string Session::DatabasePath(const std::string& file) const {
  if (file.find('/') != std::string::npos) return file;
  return folders_.own + "/" + file;
}

// --- Finding ------------------------------------------------------------------------------------

Session::Place Session::Find(const std::string& address) const {
  std::string form = open_.empty() ? "korvane" : open_.back();
  std::string name = address;
  if (const auto dot = address.find('.'); dot != std::string::npos) {
    form = address.substr(0, dot);
    name = address.substr(dot + 1);
  }
  const Form* f = FindForm(form);
  if (f == nullptr) throw UnknownControl("no form " + form);
  const Control* c = FindControl(*f, name);
  if (c == nullptr) throw UnknownControl("no control " + name + " on " + form);
  return {f, c, form + "." + name};
}

bool Session::IsOpen(const std::string& form) const {
  return std::find(open_.begin(), open_.end(), form) != open_.end();
}

// --- Fields -------------------------------------------------------------------------------------

std::string Session::Shown(double value, const char* format) const {
  std::string text = Format(value, format);
  if (decimalComma_) std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

std::string Session::OnScreen(std::string text) const {
  return decimalComma_ ? WithDecimalComma(std::move(text)) : text;
}

void Session::Refill(const std::string& form, const std::string& control) {
  const Form* f = FindForm(form);
  const Control* c = f == nullptr ? nullptr : FindControl(*f, control);
  if (c == nullptr || c->kind != Kind::Input) return;
  FieldState& field = fields_[form + "." + control];
  field.text = c->text ? c->text(*this) : Shown(ReadInput(st(), c->field.input), c->field.Format());
  field.green = false;
}

void Session::Fill(const std::string& form) {
  const Form* f = FindForm(form);
  if (f == nullptr) return;
  for (const Control& c : f->controls) Refill(form, c.name);
}

void Session::FillMainWindow() {
  Fill("korvane");
}

void Session::FocusField(const std::string& control) {
  const Place place = Find(control);
  if (place.control->kind != Kind::Input) return;
  focus_ = place.key;
  ++focusings_;
  fields_[place.key].green = true;
}

void Session::Type(const std::string& control, const std::string& text) {
  const Place place = Find(control);
  if (place.control->kind != Kind::Input) {
    throw UnknownControl(place.control->name + " is no input field");
  }
  fields_[place.key].text = text;
}

void Session::Mismatch(const Place& place) {
  platform_.Message(kMismatch);
  focus_ = place.key;
  fields_[place.key].green = true;
}

bool Session::Accept(const Place& place, const FieldRule& rule) {
  FieldState& field = fields_[place.key];
  if (!rule.IsNumber()) {  // free text; project and identification are read on saving only
    if (rule.keep) rule.keep(st(), field.text);
    return true;
  }
  const auto typed = ParseNumber(field.text, decimalComma_);
  if (!typed) {
    Mismatch(place);
    return false;
  }
  const double value = float32(*typed);
  const char* refusal =
      StoreInput(st(), rule.input, value, rule.limit ? *rule.limit : rule.input.field->limit);
  field.text = Shown(ReadInput(st(), rule.input), rule.Format());
  if (refusal != nullptr) {
    platform_.Message(refusal);
    focus_ = place.key;
    if (rule.afterRefusal) rule.afterRefusal(*this);
    return false;
  }
  if (rule.then) rule.then(*this);
  return true;
}

bool Session::Leave(const std::string& control) {
  return LeaveBy(control, Find(control).control->field);
}

bool Session::LeaveBy(const std::string& control, const FieldRule& rule) {
  const Place place = Find(control);
  if (place.control->kind != Kind::Input) return true;
  try {
    if (!Accept(place, rule)) {
      fields_[place.key].green = true;
      return false;
    }
  } catch (const ArithmeticFault&) {
    Mismatch(place);
    return false;
  }
  FieldState& field = fields_[place.key];
  if (focus_ == place.key) {
    // The follow-up may have sent the focus elsewhere; it stands there then.
    focus_.clear();
  }
  field.green = false;
  return true;
}

bool Session::Enter(const std::string& control, const std::string& text) {
  FocusField(control);
  Type(control, text);
  return Leave(control);
}

void Session::Return(const std::string& control) {
  const Place place = Find(control);
  if (place.control->returnKey && Enabled(place.key)) place.control->returnKey(*this);
  if (place.control->kind != Kind::Input) return;
  if (!Leave(place.key) || !focus_.empty()) return;
  const std::vector<Control>& all = place.form->controls;
  const auto count = all.size();
  const auto at = static_cast<std::size_t>(place.control - all.data());
  for (std::size_t k = 1; k < count; ++k) {
    const Control& next = all[(at + k) % count];
    const std::string key = place.form->name + "." + next.name;
    if (next.kind == Kind::Input && Enabled(key) && Visible(key)) {
      FocusField(key);
      return;
    }
  }
}

const std::string& Session::FieldText(const std::string& form, const std::string& control) const {
  static const std::string none;
  const auto it = fields_.find(form + "." + control);
  return it == fields_.end() ? none : it->second.text;
}

// --- Other controls -----------------------------------------------------------------------------

void Session::Click(const std::string& control) {
  const Place place = Find(control);
  if (!Enabled(place.key) || !Visible(place.key)) return;
  if (place.control->click) place.control->click(*this);
}

void Session::Select(const std::string& control, int index) {
  const Place place = Find(control);
  if (!place.control->select) throw UnknownControl(place.control->name + " is no list");
  if (!Enabled(place.key)) return;
  const auto items = Items(place.key);
  if (index < 0 || index >= static_cast<int>(items.size())) {
    throw UnknownControl(place.control->name + " has no entry " + std::to_string(index));
  }
  place.control->select(*this, index);
}

void Session::Menu(const std::string& command) {
  const Form* main = FindForm("korvane");
  const Control* c = FindControl(*main, command);
  if (c == nullptr || c->kind != Kind::Menu) throw UnknownControl("no command " + command);
  // Opening a menu comes before its entries.
  for (const Control* above = c; !above->parent.empty();) {
    above = FindControl(*main, above->parent);
    if (above == nullptr) break;
    if (above->name == "mnustiff") st().ManualBucklingCurves = 0;
  }
  if (c->name == "mnustiff") st().ManualBucklingCurves = 0;
  if (c->click && Visible("korvane." + command)) c->click(*this);
}

void Session::Show(const std::string& form) {
  if (FindForm(form) == nullptr) throw UnknownControl("no form " + form);
  std::erase(open_, form);
  open_.push_back(form);
  Fill(form);
  Focus(form);
}

void Session::Focus(const std::string& form) {
  const Form* f = FindForm(form);
  if (f == nullptr) throw UnknownControl("no form " + form);
  if (!IsOpen(form)) throw UnknownControl("form " + form + " is not open");
  std::erase(open_, form);
  open_.push_back(form);
  if (f->onFocus) f->onFocus(*this);
}

void Session::Unload(const std::string& form) {
  std::erase(open_, form);
  if (focus_.rfind(form + ".", 0) == 0) focus_.clear();
}

bool Session::Close(const std::string& form) {
  const Form* f = FindForm(form);
  if (f == nullptr) throw UnknownControl("no form " + form);
  if (form == "korvane") {
    End();
    return true;
  }
  if (!IsOpen(form)) return true;
  if (f->onClose && !f->onClose(*this)) return false;
  Unload(form);
  return true;
}

void Session::Calculate() {
  ++calculations_;
  try {
    korvane::Calculate(design_);
  } catch (...) {
    RunCalculation();
    throw;
  }
  // The material step chose the stress by the thickness of the section in force. A field in use
  // keeps its colour.
  const bool green = Green("korvane.ifyk");
  Refill("korvane", "ifyk");
  fields_["korvane.ifyk"].green = green;
  RunCalculation();
}

void Session::RunCalculation() {
  for (const std::string& message : design_.messages) platform_.Message(message);
  design_.messages.clear();
}

// --- What is seen -------------------------------------------------------------------------------

std::string Session::Title(const std::string& form) const {
  const Form* f = FindForm(form);
  if (f == nullptr) throw UnknownControl("no form " + form);
  return f->title ? f->title(*this) : std::string();
}

std::string Session::Text(const std::string& control) const {
  const Place place = Find(control);
  const Control& c = *place.control;
  if (c.kind == Kind::Input) return FieldText(place.form->name, c.name);
  if (c.kind == Kind::List) {
    const auto items = Items(place.key);
    const int index = Selected(place.key);
    return index >= 0 && index < static_cast<int>(items.size())
               ? items[static_cast<std::size_t>(index)]
               : std::string();
  }
  return c.text ? c.text(*this) : c.caption;
}

bool Session::Enabled(const std::string& control) const {
  const Place place = Find(control);
  return !place.control->enabled || place.control->enabled(*this);
}

bool Session::Visible(const std::string& control) const {
  const Place place = Find(control);
  return !place.control->visible || place.control->visible(*this);
}

bool Session::Checked(const std::string& control) const {
  const Place place = Find(control);
  return place.control->checked && place.control->checked(*this);
}

bool Session::Green(const std::string& control) const {
  const Place place = Find(control);
  const auto it = fields_.find(place.key);
  return it != fields_.end() && it->second.green;
}

std::vector<std::string> Session::Items(const std::string& control) const {
  const Place place = Find(control);
  return place.control->items ? place.control->items(*this) : std::vector<std::string>();
}

int Session::Selected(const std::string& control) const {
  const Place place = Find(control);
  return place.control->selected ? place.control->selected(*this) : -1;
}

}  // namespace korvane
