// SPDX-License-Identifier: GPL-3.0-or-later
// A session on the real data with a platform that remembers what it was asked.
#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "front/named_session.h"
#include "tests/support/source_library.h"

namespace korvane::testing {

class RememberingPlatform : public Platform {
public:
  void Message(const std::string& text) override { messages.push_back(text); }
  void Remark(const std::string& text) override { remarks.push_back(text); }
  bool AskOverwrite(const std::string& path) override {
    overwriteAsked.push_back(path);
    return overwrite;
  }
  DateTime Now() override { return {2026, 3, 1, 14, 5}; }
  void Beep() override { ++beeps; }
  std::optional<std::string> AskOpen(const std::string& filter, const std::string&) override {
    filters.push_back(filter);
    return Next();
  }
  std::optional<std::string> AskSave(const std::string& filter, const std::string&) override {
    filters.push_back(filter);
    return Next();
  }
  std::optional<PrintJob> AskPrint() override {
    ++printDialogs;
    return print;
  }
  void Print(const Design&, int kind, const PrintJob& job) override {
    printed.push_back({kind, job.copies});
    notices.push_back(job.notice);
  }
  void OpenHelp(const std::string& topic) override { help.push_back(topic); }

  std::vector<std::string> messages, remarks, filters, help, notices, overwriteAsked;
  bool overwrite = false;  ///< answer to the question about a file that has changed
  std::deque<std::optional<std::string>> answers;
  std::optional<PrintJob> print;
  std::vector<std::pair<int, int>> printed;
  int beeps = 0;
  int printDialogs = 0;

private:
  std::optional<std::string> Next() {
    if (answers.empty()) return std::nullopt;
    auto answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

/// A started session whose main window has the focus.
struct Running {
  explicit Running(bool comma = false, Folders folders = {})
      : session(SourceLibrary(), platform, comma, std::move(folders)) {
    session.Start();
    session.Focus("korvane");
  }
  ProjectState& st() { return session.st(); }
  RememberingPlatform platform;
  NamedSession session;
};

/// The choices by which the form shows and enables every field that it has.
inline void ShowEveryField(const std::string& form, ProjectState& st) {
  if (form == "endstiff") st.WebStiffener = 1;
  if (form == "chpoints") {
    st.cp_mode = 1;
    st.cp_count = 3;
  }
  if (form == "vipping") {
    st.LateralBucklingCase = 5;
    st.CFactorManual = 1;
    st.LoadLevel = 4;
  }
}

}  // namespace korvane::testing
