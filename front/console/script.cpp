// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/script.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <deque>

#include "front/console/design_text.h"
#include "front/console/exit_status.h"
#include "front/design_json.h"
#include "front/named_session.h"
#include "front/nearest.h"
#include "front/save_words.h"

namespace korvane {

namespace {

/// Answers dialogs from the script and prints messages.
class ScriptPlatform : public Platform {
public:
  explicit ScriptPlatform(std::ostream& out) : out_(out) {}
  /// Nobody is there to be asked.
  bool AskOverwrite(const std::string& path) override {
    Remark(path + " has changed on disk since it was read, and is overwritten");
    return true;
  }
  void Remark(const std::string& text) override {
    const bool failed = text.find("not saved: ") != std::string::npos;
    out_ << (failed ? "" : "remark: ") << text << "\n";
  }
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
  Script(std::shared_ptr<const Library> library, bool comma, std::ostream& out, std::ostream& err)
      : out_(out), err_(err), platform_(out), session_(std::move(library), platform_, comma) {
    session_.Start();
  }

  /// where: the line, for what is said of it.
  void Run(const std::string& line, const std::string& where) {
    named_ = Named::Nothing;
    where_ = where;
    auto [action, rest] = Split(line);
    rest.erase(0, std::min(rest.find_first_not_of(' '), rest.size()));
    using Handler = void (Script::*)(const std::string&);
    static const std::vector<std::pair<std::string, Handler>> handlers{
        {"focus", &Script::Focus},        {"menu", &Script::MenuCommand},
        {"enter", &Script::Enter},        {"return", &Script::ReturnKey},
        {"click", &Script::ClickOn},      {"select", &Script::SelectEntry},
        {"close", &Script::CloseForm},    {"open", &Script::Open},
        {"save", &Script::Save},          {"answer", &Script::Answer},
        {"show", &Script::Show},          {"results", &Script::Results},
        {"verdict", &Script::SayVerdict}, {"json", &Script::Json},
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

  /// Whether a file could not be saved, and has not been since.
  bool NotSaved() const { return SaveWordsOf(session_).failed; }

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

  /// Says that a person could not have used the control: the script goes on.
  void RemarkUnusable(const std::string& address) {
    RemarkUnusable(session_.Find(address), address);
  }
  void RemarkUnusable(const Control& c, const std::string& address) {
    const char* why = !session_.Session::IsOpen(*c.form) ? " is on a form that isn't open"
                      : !session_.Session::Visible(c)    ? " is hidden"
                      : !session_.Session::Enabled(c)    ? " is disabled"
                                                         : nullptr;
    if (why == nullptr) return;
    out_ << "remark: " << address << why << "\n";
    err_ << where_ << address << why << "\n";
  }

  /// Says where the focus is now.
  void ReportFocus() {
    const std::string key = session_.FocusedField();
    if (key.empty()) return;
    const std::string prefix = OnTop() + ".";
    out_ << "focus: " << (key.rfind(prefix, 0) == 0 ? key.substr(prefix.size()) : key) << "\n";
  }

  void Focus(const std::string& form) { session_.Focus(Name(Named::Form, form)); }
  void MenuCommand(const std::string& name) {
    Name(Named::Command, name);
    const Control* command = FindControl(*TheForms().main, name);
    if (command != nullptr) RemarkUnusable(*command, name);
    session_.Menu(name);
  }
  void Enter(const std::string& rest) {
    const auto [control, text] = Split(rest);
    RemarkUnusable(Name(Named::Control, control));
    if (!session_.Enter(control, text)) ReportFocus();
  }
  void ReturnKey(const std::string& control) {
    RemarkUnusable(Name(Named::Control, control));
    session_.Return(control);
    ReportFocus();
  }
  void ClickOn(const std::string& control) {
    RemarkUnusable(Name(Named::Control, control));
    session_.Click(control);
    ReportMovedFocus();
  }
  void SelectEntry(const std::string& rest) {
    const auto [control, text] = Split(rest);
    RemarkUnusable(Name(Named::Control, control));
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
    if (const std::string why = session_.NotCalculated(); !why.empty()) out_ << why << "\n";
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

  void SayVerdict(const std::string&) {
    out_ << session_.OnScreen(VerdictText(session_.design(), false));
  }

  void Json(const std::string&) {
    const std::string why = session_.NotCalculated();
    out_ << DesignJson(session_.design(), why.empty() ? std::nullopt : std::optional(why)) << "\n";
  }

  std::ostream& out_;
  std::ostream& err_;
  std::string where_;
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
  Script script(std::move(library), decimalComma, out, err);
  std::string line;
  for (int number = 1; !script.Ended() && std::getline(in, line); ++number) {
    if (number == 1 && line.starts_with(kByteOrderMark)) line.erase(0, kByteOrderMark.size());
    if (!line.empty() && line.back() == '\r') line.pop_back();
    line = Trimmed(std::move(line));
    if (line.empty() || line.front() == '#') continue;
    const std::string where = "line " + std::to_string(number) + ": ";
    try {
      script.Run(line, where);
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
  return script.NotSaved() ? kBadInput : kAllPass;
}

}  // namespace korvane
