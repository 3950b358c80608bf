// SPDX-License-Identifier: GPL-3.0-or-later
// The life of the program: start, forms, calculation, and the other controls than fields.
#include "front/session.h"

#include <algorithm>

#include "core/text.h"
#include "front/input_words.h"
#include "front/news.h"
#include "front/state_compare.h"

namespace korvane {

Session::Session(std::shared_ptr<const Library> library, Platform& platform, bool decimalComma,
                 Folders folders)
    : design_(std::move(library)),
      platform_(platform),
      decimalComma_(decimalComma),
      folders_(std::move(folders)),
      files_(*this),
      open_{TheForms().main} {
  if (folders_.program.empty()) folders_.program = design_.lib->folder;
  if (folders_.own.empty()) folders_.own = folders_.program;
}

void Session::Start() {
  files_.SetTitle(ProjectFiles::TitleOf(""));
  StartDesign(design_);
  ReadOwnDefaults();
  ResetDatabase(database_);
  database_.DbFile = "korvane.db";
  ReadDatabase(folders_.own + "/" + database_.DbFile, database_);
  FillMainWindow();
  files_.Settle();
}

void Session::ReadOwnDefaults() {
  if (folders_.own == folders_.program || !folders_.ownDefaults) return;
  ReadDefaults(folders_.own, design_.st);
  try {
    SetMaterial(design_.lib->materials, design_.rec.tmax, design_.st);
  } catch (const ArithmeticFault&) {
    // Defaults without a material factor; the first calculation says so.
  }
}

// --- Forms --------------------------------------------------------------------------------------

bool Session::IsOpen(const Form& form) const {
  return std::find(open_.begin(), open_.end(), &form) != open_.end();
}

void Session::Show(const Form& form) {
  std::erase(open_, &form);
  open_.push_back(&form);
  Guard([&] {
    if (form.onShow) form.onShow(*this);
  });
  Focus(form);
}

void Session::Focus(const Form& form) {
  if (!IsOpen(form)) throw UnknownControl("form " + form.name + " is not open");
  std::erase(open_, &form);
  open_.push_back(&form);
  const bool first = calculations_ == 0;
  Guard([&] {
    if (form.onFocus) form.onFocus(*this);
  });
  // What the first calculation writes is no change of the person's.
  if (first && &form == TheForms().main) files_.Settle();
}

void Session::Unload(const Form& form) {
  std::erase(open_, &form);
  fields_.Release(form);
}

bool Session::Close(const Form& form) {
  if (&form == TheForms().main) {
    End();
    return true;
  }
  if (!IsOpen(form)) return true;
  const Control* field = FocusedField();
  if (field != nullptr && field->form == &form && !Leave(*field)) return false;
  bool closes = true;
  Guard([&] { closes = !form.onClose || form.onClose(*this); });
  if (!closes) return false;
  Unload(form);
  return true;
}

std::string Session::Title(const Form& form) const {
  return form.title ? form.title(*this) : std::string();
}

// --- Calculation --------------------------------------------------------------------------------

void Session::Calculate() {
  ++calculations_;
  const ProjectState before = st();
  try {
    korvane::Calculate(design_);
  } catch (const CalculationFault& fault) {
    failedStep_ = fault.Step();
    TellMessages();
    if (mending_) return;
    throw;
  }
  failedStep_.clear();
  mending_ = false;
  calculated_ = design_.st;
  TellRemoved(before, true);
  TellMessages();
}

void Session::TakeSection(const std::function<void()>& take) {
  const ProjectState before = st();
  try {
    take();
  } catch (const ArithmeticFault&) {
    platform_.Beep();
    st() = before;
    Calculate();
  }
}

void Session::Tell(const std::string& news) {
  const DateTime now = platform_.Now();
  news_ = Format(now.hour, "00") + ":" + Format(now.minute, "00") + "  " + news;
}

void Session::TellRemoved(const ProjectState& before, bool byFamily) {
  if (const std::string words = RemovedWords(*this, before, st(), byFamily); !words.empty()) {
    Tell(words);
  }
}

void Session::BeginProject() {
  calculated_.reset();
  failedStep_.clear();
  mending_ = true;
  news_.clear();
  removedLoads.reset();
}

void Session::Guard(const std::function<void()>& action) {
  try {
    action();
  } catch (const ArithmeticFault&) {
    if (!mending_) throw;
  }
}

void Session::ComposeResults() {
  korvane::ComposeResults(design_);
  failedStep_.clear();
  mending_ = false;
  calculated_ = design_.st;
}

void Session::TellMessages() {
  for (const std::string& message : design_.messages) platform_.Message(message);
  design_.messages.clear();
}

std::string Session::NotCalculated() const {
  const bool failed = !failedStep_.empty();
  if (!failed && calculated_ && SameResults(*calculated_, design_.st)) return {};
  if (const auto& refused = fields_.Refused()) {
    return "not calculated: " + InputWords(*this, *refused->field) +
           (failed ? " can't be calculated" : " is refused");
  }
  if (failed) return "not calculated: " + OnScreen(FailureWords(design_));
  return "not calculated with these inputs yet";
}

// --- Other controls than fields -----------------------------------------------------------------

void Session::Click(const Control& control) {
  if (!Enabled(control) || !Visible(control)) return;
  lastInput_ = &control;
  Guard([&] {
    if (control.click) control.click(*this);
  });
}

void Session::Select(const Control& list, int index) {
  if (!list.select) throw UnknownControl(list.name + " is no list");
  if (!Enabled(list)) return;
  if (index < 0 || index >= static_cast<int>(Items(list).size())) {
    throw UnknownControl(list.name + " has no entry " + std::to_string(index));
  }
  lastInput_ = &list;
  Guard([&] { list.select(*this, index); });
}

void Session::Menu(const Control& command) {
  if (command.kind != Kind::Menu) throw UnknownControl("no command " + command.name);
  // Opening a menu comes before its entries.
  const Control* above = &command;
  while (above != nullptr) {
    if (above == TheForms().onMain.mnustiff) st().ManualBucklingCurves = 0;
    above = above->parent.empty() ? nullptr : FindControl(*TheForms().main, above->parent);
  }
  if (!command.click || !Visible(command)) return;
  lastInput_ = &command;
  Guard([&] { command.click(*this); });
}

std::string Session::Text(const Control& c) const {
  if (c.kind == Kind::Input) {
    const std::string* own = fields_.OwnText(c);
    return own != nullptr ? *own : StateText(c);
  }
  if (c.kind == Kind::List) {
    const auto items = Items(c);
    const int index = Selected(c);
    return index >= 0 && index < static_cast<int>(items.size())
               ? items[static_cast<std::size_t>(index)]
               : std::string();
  }
  if (c.value >= 0) {
    const ShownText shown = c.form->values(*this)[static_cast<std::size_t>(c.value)];
    return shown.unit.empty() ? shown.text : shown.text + " " + shown.unit;
  }
  return c.text ? c.text(*this) : c.caption;
}

std::string Session::Tip(const Control& control) const {
  return TipOf(control, st());
}

bool Session::Enabled(const Control& c) const {
  return !c.enabled || c.enabled(*this);
}

bool Session::Visible(const Control& c) const {
  if (c.value >= 0) return !c.form->values(*this)[static_cast<std::size_t>(c.value)].text.empty();
  return !c.visible || c.visible(*this);
}

bool Session::Checked(const Control& c) const {
  return c.checked && c.checked(*this);
}

std::vector<std::string> Session::Items(const Control& list) const {
  return list.items ? list.items(*this) : std::vector<std::string>();
}

int Session::Selected(const Control& list) const {
  return list.selected ? list.selected(*this) : -1;
}

}  // namespace korvane
