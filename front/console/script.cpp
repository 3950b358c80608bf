// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/script.h"

#include <langinfo.h>
#include <locale.h>  // NOLINT(modernize-deprecated-headers): newlocale is of POSIX

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>

#include "front/console/design_json.h"
#include "front/console/exit_status.h"
#include "front/session.h"

namespace korvane {

namespace {

/// Answers dialogs from the script and prints messages.
class ScriptPlatform : public Platform {
public:
  explicit ScriptPlatform(std::ostream& out) : out_(out) {}
  std::optional<std::string> AskOpen(const std::string&, const std::string&) override {
    return Next();
  }
  std::optional<std::string> AskSave(const std::string&, const std::string&) override {
    return Next();
  }
  void Message(const std::string& text) override { out_ << "message: " << text << "\n"; }
  std::optional<PrintJob> AskPrint() override {
    return Next() ? std::optional<PrintJob>(PrintJob{}) : std::nullopt;
  }
  void Print(const Design&, int kind, int) override {
    out_ << "print: "
         << (kind == 0 ? "Section Property and Capacity" : "Section and Stability Control") << "\n";
  }
  void OpenHelp(const std::string& topic) override { out_ << "help: " << topic << "\n"; }
  void Answer(std::optional<std::string> path) { answers_.push_back(std::move(path)); }

private:
  /// The next answer; a dialog that the script did not foresee is cancelled.
  std::optional<std::string> Next() {
    if (answers_.empty()) return std::nullopt;
    auto answer = answers_.front();
    answers_.pop_front();
    return answer;
  }
  std::ostream& out_;
  std::deque<std::optional<std::string>> answers_;
};

/// An error of the script itself.
struct ScriptError : std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// Number of changes of single letters that turn one word into the other.
std::size_t Distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t above = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1] ? 1 : 0)});
      diagonal = above;
    }
  }
  return row[b.size()];
}

class Script {
public:
  Script(std::shared_ptr<const Library> library, bool comma, std::ostream& out)
      : out_(out), platform_(out), session_(std::move(library), platform_, comma) {
    session_.Start();
  }

  void Run(const std::string& line) {
    const auto [action, rest] = Split(line);
    using Handler = void (Script::*)(const std::string&);
    static constexpr std::array<std::pair<const char*, Handler>, 14> handlers{{
        {"focus", &Script::Focus},
        {"menu", &Script::MenuCommand},
        {"enter", &Script::Enter},
        {"return", &Script::ReturnKey},
        {"click", &Script::ClickOn},
        {"select", &Script::SelectEntry},
        {"close", &Script::CloseForm},
        {"open", &Script::Open},
        {"save", &Script::Save},
        {"answer", &Script::Answer},
        {"show", &Script::Show},
        {"results", &Script::Results},
        {"json", &Script::Json},
        {"", nullptr},
    }};
    for (const auto& [name, handler] : handlers) {
      if (action != name || handler == nullptr) continue;
      before_ = session_.FocusedField();
      (this->*handler)(rest);
      return;
    }
    throw ScriptError("no action " + action);
  }

  /// The control of the form on top (or of the form named) that is nearest in letters.
  std::string Nearest(const std::string& address) const {
    std::string form = session_.OpenForms().empty() ? "korvane" : session_.OpenForms().back();
    std::string name = address;
    if (const auto dot = address.find('.'); dot != std::string::npos) {
      if (FindForm(address.substr(0, dot)) != nullptr) form = address.substr(0, dot);
      name = address.substr(dot + 1);
    }
    std::string best;
    std::size_t least = std::string::npos;
    for (const Control& c : FindForm(form)->controls) {
      const std::size_t d = Distance(name, c.name);
      if (d < least) {
        least = d;
        best = c.name;
      }
    }
    return best;
  }

  const std::string& LastControl() const { return control_; }

private:
  static std::pair<std::string, std::string> Split(const std::string& line) {
    const auto blank = line.find(' ');
    if (blank == std::string::npos) return {line, {}};
    return {line.substr(0, blank), line.substr(blank + 1)};
  }

  /// Says so when the focus was put back to a field.
  void ReportFocus(bool accepted) {
    if (accepted) return;
    out_ << "focus: " << Short(session_.FocusedField()) << "\n";
  }

  std::string Short(const std::string& key) const {
    const std::string prefix =
        (session_.OpenForms().empty() ? "korvane" : session_.OpenForms().back()) + ".";
    return key.rfind(prefix, 0) == 0 ? key.substr(prefix.size()) : key;
  }

  void Focus(const std::string& form) { session_.Focus(form); }
  void MenuCommand(const std::string& name) {
    control_ = "korvane." + name;
    session_.Menu(name);
  }
  void Enter(const std::string& rest) {
    const auto [control, text] = Split(rest);
    control_ = control;
    ReportFocus(session_.Enter(control, text));
  }
  void ReturnKey(const std::string& control) {
    control_ = control;
    session_.Return(control);
    out_ << "focus: " << Short(session_.FocusedField()) << "\n";
  }
  void ClickOn(const std::string& control) {
    control_ = control;
    session_.Click(control);
    ReportMovedFocus();
  }
  void SelectEntry(const std::string& rest) {
    const auto [control, text] = Split(rest);
    control_ = control;
    char* end = nullptr;
    const long index = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0') throw ScriptError("select needs an index, not " + text);
    session_.Select(control, static_cast<int>(std::clamp(index, -1L, 1000000L)));
  }
  void CloseForm(const std::string& form) {
    session_.Close(form);
    ReportMovedFocus();
  }
  void ReportMovedFocus() {
    if (!session_.FocusedField().empty() && session_.FocusedField() != before_) {
      out_ << "focus: " << Short(session_.FocusedField()) << "\n";
    }
  }
  void Open(const std::string& path) {
    platform_.Answer(path);
    session_.OpenCommand();
  }
  void Save(const std::string& path) {
    platform_.Answer(path);
    session_.SaveAsCommand();
  }
  void Answer(const std::string& path) {
    platform_.Answer(path == "cancel" ? std::nullopt : std::optional<std::string>(path));
  }

  void ShowControl(const std::string& address, const std::string& name) {
    out_ << name << " = " << session_.Text(address);
    if (!session_.Enabled(address)) out_ << " [disabled]";
    if (!session_.Visible(address)) out_ << " [hidden]";
    if (session_.Checked(address)) out_ << " [checked]";
    if (session_.Green(address)) out_ << " [green]";
    out_ << "\n";
  }

  void Show(const std::string& what) {
    const Form* form = FindForm(what);
    if (form == nullptr) {
      control_ = what;
      ShowControl(what, what);
      return;
    }
    out_ << what << " = " << session_.Title(what) << "\n";
    for (const Control& c : form->controls) ShowControl(what + "." + c.name, c.name);
  }

  void Results(const std::string&) {
    const Design& d = session_.design();
    PrintView(SectionControlShort(d.st, d.checks));
    if (ShowsBuckling(d.st, d.forces.N)) {
      PrintView(BucklingShort(d.st, d.checks, d.buckling));
    }
  }

  void PrintView(const View& view) {
    for (const ViewLine& line : view) {
      std::string text;
      for (const TextRun& run : line.runs) {
        if (run.atTab && text.size() < 10) text.resize(10, ' ');
        text += run.text;
      }
      out_ << text << "\n";
    }
  }

  void Json(const std::string&) { out_ << DesignJson(session_.design(), std::nullopt) << "\n"; }

  std::ostream& out_;
  ScriptPlatform platform_;
  Session session_;
  std::string control_;
  std::string before_;
};

}  // namespace

bool LocaleWritesComma() {
  for (const char* name : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* value = std::getenv(name);
    if (value == nullptr || *value == '\0') continue;
    if (locale_t locale = newlocale(LC_NUMERIC_MASK, value, static_cast<locale_t>(nullptr))) {
      const bool comma = *nl_langinfo_l(RADIXCHAR, locale) == ',';
      freelocale(locale);
      return comma;
    }
    // A locale that the machine has not generated: the language decides.
    static constexpr std::array comma{"nb", "nn", "no", "da", "sv", "fi", "is", "de", "fr", "nl",
                                      "it", "es", "pt", "pl", "cs", "sk", "hu", "ru", "et", "lv",
                                      "lt", "ro", "bg", "el", "tr", "uk", "sl", "hr"};
    const std::string language = std::string(value).substr(0, 2);
    return std::any_of(comma.begin(), comma.end(),
                       [&](const char* code) { return language == code; });
  }
  return false;
}

int RunScript(std::shared_ptr<const Library> library, bool decimalComma, std::istream& in,
              std::ostream& out, std::ostream& err) {
  Script script(std::move(library), decimalComma, out);
  std::string line;
  for (int number = 1; std::getline(in, line); ++number) {
    if (!line.empty() && line.back() == '\r') line.pop_back();
    if (line.empty() || line.front() == '#') continue;
    const std::string where = "line " + std::to_string(number) + ": ";
    try {
      script.Run(line);
    } catch (const UnknownControl& error) {
      err << where << error.what();
      const std::string nearest = script.Nearest(script.LastControl());
      if (!nearest.empty()) err << " (nearest: " << nearest << ")";
      err << "\n";
      return kBadInput;
    } catch (const ScriptError& error) {
      err << where << error.what() << "\n";
      return kBadInput;
    } catch (const ArithmeticFault& fault) {
      err << where << "arithmetic failure in " << fault.what() << "\n";
      return kArithmeticFailure;
    }
  }
  return kAllPass;
}

}  // namespace korvane
