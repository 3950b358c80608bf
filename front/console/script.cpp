// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/script.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>

#include "front/console/exit_status.h"
#include "front/design_json.h"
#include "front/named_session.h"
#include "front/nearest.h"

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
  void Print(const Design&, int kind, const PrintJob& job) override {
    out_ << "print: "
         << (kind == 0 ? "Section Property and Capacity" : "Section and Stability Control");
    if (!job.notice.empty()) out_ << " (" << job.notice << ")";
    out_ << "\n";
  }
  void OpenHelp(const std::string& topic) override { out_ << "help: " << topic << "\n"; }
  void Answer(std::optional<std::string> path) { answers_.push_back(std::move(path)); }
  /// For the dialog that the same action opens, before all answers that wait.
  void AnswerAtOnce(std::string path) { answers_.emplace_front(std::move(path)); }

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

class Script {
public:
  Script(std::shared_ptr<const Library> library, bool comma, std::ostream& out)
      : out_(out), platform_(out), session_(std::move(library), platform_, comma) {
    session_.Start();
  }

  void Run(const std::string& line) {
    named_ = Named::Nothing;
    auto [action, rest] = Split(line);
    rest.erase(0, std::min(rest.find_first_not_of(' '), rest.size()));
    using Handler = void (Script::*)(const std::string&);
    static const std::vector<std::pair<std::string, Handler>> handlers{
        {"focus", &Script::Focus},     {"menu", &Script::MenuCommand},
        {"enter", &Script::Enter},     {"return", &Script::ReturnKey},
        {"click", &Script::ClickOn},   {"select", &Script::SelectEntry},
        {"close", &Script::CloseForm}, {"open", &Script::Open},
        {"save", &Script::Save},       {"answer", &Script::Answer},
        {"show", &Script::Show},       {"results", &Script::Results},
        {"json", &Script::Json},
    };
    std::vector<std::string> actions;
    for (const auto& [name, handler] : handlers) {
      if (action == name) {
        focusings_ = session_.Focusings();
        (this->*handler)(rest);
        return;
      }
      actions.push_back(name);
    }
    throw ScriptError("no action " + action + Hint(NearestWord(action, actions)));
  }

  /// Whether the program has been left.
  bool Ended() const { return session_.Ended(); }

  /// What the line that failed may have meant, for the end of its report.
  std::string Hint() const {
    if (named_ == Named::Form) return Hint(NearestForm(name_));
    if (named_ == Named::Command) return Hint(NearestCommand(name_));
    if (named_ == Named::Control) return Hint(NearestControl(name_, OnTop()));
    return {};
  }

private:
  /// The first word, and what follows the blank behind it.
  static std::pair<std::string, std::string> Split(const std::string& line) {
    const auto blank = line.find(' ');
    if (blank == std::string::npos) return {line, {}};
    return {line.substr(0, blank), line.substr(blank + 1)};
  }

  /// What the word of a line names, so that an error can tell the nearest one.
  enum class Named { Nothing, Form, Command, Control };

  static std::string Hint(const std::string& nearest) {
    return nearest.empty() ? std::string() : " (nearest: " + nearest + ")";
  }

  const std::string& Name(Named kind, const std::string& name) {
    named_ = kind;
    name_ = name;
    return name_;
  }

  std::string OnTop() const {
    return session_.OpenForms().empty() ? "korvane" : session_.OpenForms().back();
  }

  /// Says where the focus is now.
  void ReportFocus() {
    const std::string key = session_.FocusedField();
    if (key.empty()) return;
    const std::string prefix = OnTop() + ".";
    out_ << "focus: " << (key.rfind(prefix, 0) == 0 ? key.substr(prefix.size()) : key) << "\n";
  }

  void Focus(const std::string& form) { session_.Focus(Name(Named::Form, form)); }
  void MenuCommand(const std::string& name) { session_.Menu(Name(Named::Command, name)); }
  void Enter(const std::string& rest) {
    const auto [control, text] = Split(rest);
    if (!session_.Enter(Name(Named::Control, control), text)) ReportFocus();
  }
  void ReturnKey(const std::string& control) {
    session_.Return(Name(Named::Control, control));
    ReportFocus();
  }
  void ClickOn(const std::string& control) {
    session_.Click(Name(Named::Control, control));
    ReportMovedFocus();
  }
  void SelectEntry(const std::string& rest) {
    const auto [control, text] = Split(rest);
    Name(Named::Control, control);
    char* end = nullptr;
    const long index = std::strtol(text.c_str(), &end, 10);
    if (text.empty() || *end != '\0') throw ScriptError("select needs an index, not " + text);
    session_.Select(control, static_cast<int>(std::clamp(index, -1L, 1000000L)));
  }
  void CloseForm(const std::string& form) {
    session_.Close(Name(Named::Form, form));
    ReportMovedFocus();
  }
  void ReportMovedFocus() {
    if (session_.Focusings() != focusings_) ReportFocus();
  }
  void Open(const std::string& path) {
    platform_.AnswerAtOnce(path);
    session_.files().Open();
  }
  void Save(const std::string& path) {
    platform_.AnswerAtOnce(path);
    session_.files().SaveAs();
  }
  void Answer(const std::string& path) {
    platform_.Answer(path == "cancel" ? std::nullopt : std::optional<std::string>(path));
  }

  void ShowControl(const std::string& address, const std::string& name) {
    const std::string text = session_.Text(address);
    out_ << name << " = " << text;
    if (!session_.Enabled(address)) out_ << " [disabled]";
    if (!session_.Visible(address)) out_ << " [hidden]";
    if (session_.Checked(address)) out_ << " [checked]";
    if (session_.Green(address)) out_ << " [green]";
    out_ << "\n";
  }

  void Show(const std::string& what) {
    const Form* form = FindForm(what);
    if (form == nullptr) {
      ShowControl(Name(Named::Control, what), what);
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
      out_ << session_.OnScreen(std::move(text)) << "\n";
    }
  }

  void Json(const std::string&) { out_ << DesignJson(session_.design(), std::nullopt) << "\n"; }

  std::ostream& out_;
  ScriptPlatform platform_;
  NamedSession session_;
  Named named_ = Named::Nothing;
  std::string name_;
  int focusings_ = 0;
};

/// What some editors put before the first line.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// The line without the blanks around it; what is typed keeps those behind it.
std::string Trimmed(std::string line) {
  line.erase(0, std::min(line.find_first_not_of(" \t"), line.size()));
  if (line.rfind("enter ", 0) != 0) line.erase(line.find_last_not_of(" \t") + 1);
  return line;
}

}  // namespace

int RunScript(std::shared_ptr<const Library> library, bool decimalComma, std::istream& in,
              std::ostream& out, std::ostream& err) {
  Script script(std::move(library), decimalComma, out);
  std::string line;
  for (int number = 1; !script.Ended() && std::getline(in, line); ++number) {
    if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    if (!line.empty() && line.back() == '\r') line.pop_back();
    line = Trimmed(std::move(line));
    if (line.empty() || line.front() == '#') continue;
    const std::string where = "line " + std::to_string(number) + ": ";
    try {
      script.Run(line);
    } catch (const UnknownControl& error) {
      err << where << error.what() << script.Hint() << "\n";
      return kBadInput;
    } catch (const ScriptError& error) {
      err << where << error.what() << "\n";
      return kBadInput;
    } catch (const CalculationFault& fault) {
      err << where << FaultText(fault.what()) << "\n";
      return kArithmeticFailure;
    } catch (const ArithmeticFault& fault) {
      err << where << "arithmetic failure: " << fault.what() << "\n";
      return kArithmeticFailure;
    }
  }
  return kAllPass;
}

}  // namespace korvane
