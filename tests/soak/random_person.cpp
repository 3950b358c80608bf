// SPDX-License-Identifier: GPL-3.0-or-later
#include "random_person.h"

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "checks/results.h"
#include "core/text.h"

namespace korvane {

namespace {

/// What a person may type by mistake or by malice.
constexpr std::array<const char*, 14> kBadValues{
    "",     "abc", "1.2.3", "-",    "1e999", "99999999999", "-1000",
    "1,5,", "0",   "1e-30", "  7 ", "+-3",   "NaN",         "%s%n"};

bool IsLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

/// A broken number, as a word of its own.
bool ShowsNoNumber(const std::string& text) {
  for (const std::string word : {"inf", "nan"}) {
    for (auto at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
      const std::size_t end = at + word.size();
      const bool begins = at == 0 || !IsLetter(text[at - 1]);
      if (begins && (end == text.size() || !IsLetter(text[end]))) return true;
    }
  }
  return false;
}

}  // namespace

void SoakPlatform::Message(const std::string& text) {
  if (text.empty()) throw std::logic_error("an empty message box");
  ++counts_.messages;
}

std::optional<PrintJob> SoakPlatform::AskPrint() {
  ++counts_.dialogs;
  if (dice_.Chance(50)) return std::nullopt;
  return PrintJob{dice_.Between(1, 3)};
}

std::optional<std::string> SoakPlatform::Answer(const std::vector<std::string>& paths) {
  ++counts_.dialogs;
  if (dice_.Chance(20)) return std::nullopt;
  return paths[static_cast<std::size_t>(dice_.Below(static_cast<int>(paths.size())))];
}

RandomPerson::RandomPerson(std::shared_ptr<const Library> library, const SoakFiles& files,
                           unsigned seed)
    : library_(std::move(library)), files_(files), dice_(seed) {}

void RandomPerson::StartSession() {
  platform_ = std::make_unique<SoakPlatform>(dice_, files_, counts_);
  session_ = std::make_unique<NamedSession>(library_, *platform_, dice_.Chance(30),
                                            Folders{library_->folder, files_.folder});
  newProject_ = false;
  ++counts_.sessions;
  try {
    session_->Start();
    session_->Focus("korvane");
  } catch (const ArithmeticFault&) {
    // A refused value stays stored, and saved as a default it stops every calculation; a person
    // takes the file away.
    ++counts_.badDefaults;
    std::filesystem::remove(files_.folder + "/default_ns.dat");
    throw;
  }
}

void RandomPerson::Rest() {
  session_.reset();
  platform_.reset();
}

void RandomPerson::Act() {
  ++counts_.actions;
  const int before = session_ ? session_->Calculations() : 0;
  try {
    if (!session_ || session_->Ended()) {
      Rest();
      StartSession();
      return;
    }
    if (session_->OpenForms().back() != "korvane") ++counts_.forms;
    Do();
    counts_.calculations += session_->Calculations() - before;
    CheckWhatIsSeen();
  } catch (const ArithmeticFault&) {
    // Outside a text field the owner ends the program with a report.
    ++counts_.faults;
    Rest();
  }
}

void RandomPerson::Do() {
  using Action = void (RandomPerson::*)();
  struct Share {
    int percent;
    Action action;
  };
  static constexpr std::array<Share, 8> shares{{{28, &RandomPerson::EnterValue},
                                                {24, &RandomPerson::Press},
                                                {12, &RandomPerson::Choose},
                                                {10, &RandomPerson::Command},
                                                {14, &RandomPerson::MoveBetweenForms},
                                                {4, &RandomPerson::UseFiles},
                                                {4, &RandomPerson::KeysInField},
                                                {4, &RandomPerson::LookAtForm}}};
  int left = dice_.Below(100);
  for (const Share& share : shares) {
    left -= share.percent;
    if (left < 0) return (this->*share.action)();
  }
}

std::optional<RandomPerson::Target> RandomPerson::Find(std::initializer_list<Kind> kinds) {
  const std::vector<std::string> open = session_->OpenForms();
  const bool top = dice_.Chance(80);
  const std::string& name =
      top ? open.back()
          : open[static_cast<std::size_t>(dice_.Below(static_cast<int>(open.size())))];
  const Form* form = FindForm(name);
  if (form == nullptr) throw std::logic_error("an open form that does not exist: " + name);
  std::vector<const Control*> fit;
  for (const Control& c : form->controls) {
    if (std::find(kinds.begin(), kinds.end(), c.kind) != kinds.end()) fit.push_back(&c);
  }
  if (fit.empty()) return std::nullopt;
  return Target{form, fit[static_cast<std::size_t>(dice_.Below(static_cast<int>(fit.size())))]};
}

/// Mostly a value near the one that stands there, else any number, else rubbish.
std::string RandomPerson::Value(const std::string& shown) {
  const int way = dice_.Below(100);
  if (way < 12) return kBadValues[static_cast<std::size_t>(dice_.Below(kBadValues.size()))];
  double value = dice_.Chance(50) ? dice_.Between(0, 20) : dice_.Spread(0.01, 5000);
  if (way < 60) {
    if (const auto now = ParseNumber(shown, session_->DecimalComma()); now && *now != 0) {
      value = std::clamp(*now * dice_.Uniform(0.5, 1.8), -1e6, 1e6);
    }
  }
  return session_->Shown(value, dice_.Chance(30) ? "0" : "#0.000");
}

void RandomPerson::EnterValue() {
  const auto target = Find({Kind::Input});
  if (!target) return;
  const std::string key = target->Key();
  if (!session_->Visible(key) || !session_->Enabled(key)) return;
  session_->Enter(key, Value(session_->Text(key)));
}

void RandomPerson::KeysInField() {
  const auto target = Find({Kind::Input});
  if (!target) return;
  const std::string key = target->Key();
  if (!session_->Visible(key) || !session_->Enabled(key)) return;
  session_->FocusField(key);
  if (dice_.Chance(50)) session_->Type(key, Value(session_->Text(key)));
  if (dice_.Chance(50)) session_->Return(key);
}

void RandomPerson::Press() {
  const auto target =
      Find({Kind::Option, Kind::Check, Kind::Picture, Kind::Button, Kind::Label, Kind::Surface});
  if (target) session_->Click(target->Key());
}

void RandomPerson::Choose() {
  const auto target = Find({Kind::List});
  if (!target) return;
  const std::string key = target->Key();
  if (!session_->Visible(key)) return;
  const int count = static_cast<int>(session_->Items(key).size());
  if (count > 0) session_->Select(key, dice_.Below(count));
}

void RandomPerson::Command() {
  const Form* main = FindForm("korvane");
  std::vector<const Control*> commands;
  for (const Control& c : main->controls) {
    if (c.kind == Kind::Menu) commands.push_back(&c);
  }
  const Control& command =
      *commands[static_cast<std::size_t>(dice_.Below(static_cast<int>(commands.size())))];
  newProject_ = newProject_ || &command == TheForms().onMain.mnunew;
  session_->Menu(command.name);
}

/// Comes back to a form, or closes the one on top; the main window only now and then.
void RandomPerson::MoveBetweenForms() {
  const std::vector<std::string> open = session_->OpenForms();
  const std::string& name =
      open[static_cast<std::size_t>(dice_.Below(static_cast<int>(open.size())))];
  if (dice_.Chance(40)) {
    session_->Focus(name);
  } else if (open.back() != "korvane") {
    session_->Close(open.back());
  } else if (dice_.Chance(1)) {
    session_->Close("korvane");
  }
}

void RandomPerson::UseFiles() {
  switch (dice_.Below(5)) {
    case 0:
      return session_->files().Open();
    case 1:
      return session_->files().SaveAs();
    case 2:
      return session_->files().Save();
    case 3:
      return session_->files().OpenRecent(dice_.Between(1, 4));
    default:
      newProject_ = true;
      return session_->files().New();
  }
}

/// Reads all that a form shows.
void RandomPerson::LookAtForm() {
  const Form* form = FindForm(session_->OpenForms().back());
  std::string all = session_->Title(form->name);
  for (const Control& c : form->controls) {
    const std::string key = form->name + "." + c.name;
    const std::string text = session_->Text(key);
    // A field may hold what was typed.
    if (c.kind != Kind::Input && ShowsNoNumber(text)) {
      throw std::logic_error(key + " shows " + text);
    }
    all += text;
    for (const std::string& item : session_->Items(key)) all += item;
    if (session_->Enabled(key) && session_->Visible(key) && session_->Checked(key)) all += "x";
  }
}

void RandomPerson::CheckFields() const {
  const Session& s = *session_;
  // A project that was opened has filled the fields that New had left.
  const FileRecord& file = s.files().Record();
  const bool opened = file.disk && !file.savedAt && !file.unread.contains(file.path);
  const bool mayBeLeft = newProject_ && !opened;
  for (const Form* form : s.OpenForms()) {
    for (const Control& c : form->controls) {
      if (!c.field.IsNumber() || c.text || s.Typed(c) || !s.Visible(c)) continue;
      const std::string state = s.Shown(ReadInput(s.st(), c.field.input), c.field.Format());
      const std::string shown = s.Text(c);
      const bool left = mayBeLeft && form == TheForms().main && s.Marked(c) && !s.IsRefused(c);
      if (shown == state || left) continue;
      throw std::logic_error(AddressOf(c) + " shows " + shown + " for " + state);
    }
  }
}

void RandomPerson::CheckWhatIsSeen() const {
  CheckFields();
  if (!session_->Ended() && session_->OpenForms().empty()) throw std::logic_error("no form open");
  const Design& d = session_->design();
  for (const CheckLine* line : {&d.checks.lineSection, &d.checks.lineBucklingY}) {
    if (ShowsNoNumber(line->numbers) || ShowsNoNumber(line->value)) {
      throw std::logic_error("a result line shows " + line->numbers + line->value);
    }
  }
}

}  // namespace korvane
