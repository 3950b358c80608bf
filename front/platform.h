// SPDX-License-Identifier: GPL-3.0-or-later
// What the program needs of its platform: settings, dialogs, message boxes, printer, help, clock.
#pragma once

#include <functional>
#include <map>
#include <optional>
#include <string>

namespace korvane {

struct Design;

/// A print dialog's answer.
struct PrintJob {
  int copies = 1;
  std::string notice{};  ///< stands at the head of each page; empty where the results hold
};

/// Local date and time of the page frame.
struct DateTime {
  int year = 0, month = 0, day = 0, hour = 0, minute = 0;
};

/// The platform's operations. This class is a whole platform by itself: settings in memory, every
/// dialog cancelled, nothing shown. Fronts and tests override what they have.
class Platform {
public:
  virtual ~Platform() = default;

  /// Settings store of the application Korvane_ns, section Recent Files: strings by key, empty
  /// when there is none. A store that can't be read or written behaves as an empty one.
  virtual std::string Setting(const std::string& key) {
    const auto it = settings_.find(key);
    return it == settings_.end() ? std::string() : it->second;
  }
  virtual void SetSetting(const std::string& key, const std::string& value) {
    settings_[key] = value;
  }

  /// File dialogs with a filter ("*.kvn") and a default extension; nothing on cancel.
  virtual std::optional<std::string> AskOpen(const std::string&, const std::string&) {
    return std::nullopt;
  }
  virtual std::optional<std::string> AskSave(const std::string&, const std::string&) {
    return std::nullopt;
  }

  /// Whether a file that has changed on disk since it was read may be overwritten.
  virtual bool AskOverwrite(const std::string&) { return false; }

  /// A message box with the exclamation icon.
  virtual void Message(const std::string&) {}
  /// What needs no box: windows show it by the state, a script prints it.
  virtual void Remark(const std::string&) {}
  virtual void Beep() {}
  /// What the next AskPrint is about, for a preview and a proposed name: design, report, notice.
  virtual void PreparePrint(const Design&, int, const std::string&) {}
  virtual std::optional<PrintJob> AskPrint() { return std::nullopt; }
  /// Prints report 0 (section property and capacity) or 1 (section and stability control).
  virtual void Print(const Design&, int, const PrintJob&) {}
  virtual void OpenHelp(const std::string&) {}
  virtual DateTime Now() { return {}; }
  /// Raised while a search blocks the input, and its progress.
  virtual void WaitCursor(bool) {}
  virtual void Progress(int, int) {}

private:
  std::map<std::string, std::string> settings_;
};

/// Raises the wait cursor while it lives, whatever ends it.
class Waiting {
public:
  explicit Waiting(Platform& platform) : platform_(platform) { platform_.WaitCursor(true); }
  ~Waiting() { platform_.WaitCursor(false); }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

private:
  Platform& platform_;
};

}  // namespace korvane
