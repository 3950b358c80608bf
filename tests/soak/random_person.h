// SPDX-License-Identifier: GPL-3.0-or-later
// A person who does anything that the program lets a person do, by a seed.
#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "../design/random_states.h"
#include "front/named_session.h"

namespace korvane {

/// Files that dialogs are answered with.
struct SoakFiles {
  std::string folder;             ///< what the program writes lands here
  std::vector<std::string> open;  ///< projects, and paths that are none
  std::vector<std::string> save;  ///< good paths, and ones that can't be written
};

/// How often what came up.
struct SoakCounts {
  long actions = 0;
  long sessions = 0;
  long calculations = 0;
  long messages = 0;
  long faults = 0;       ///< sessions that an arithmetic failure ended
  long badDefaults = 0;  ///< of these, those that could not start
  long dialogs = 0;
  long forms = 0;  ///< forms on top, summed over the actions that found another form than korvane
};

/// Answers each dialog with a path or a refusal.
class SoakPlatform : public Platform {
public:
  SoakPlatform(Dice& dice, const SoakFiles& files, SoakCounts& counts)
      : dice_(dice), files_(files), counts_(counts) {}
  std::optional<std::string> AskOpen(const std::string&, const std::string&) override {
    return Answer(files_.open);
  }
  std::optional<std::string> AskSave(const std::string&, const std::string&) override {
    return Answer(files_.save);
  }
  void Message(const std::string& text) override;
  std::optional<PrintJob> AskPrint() override;

private:
  std::optional<std::string> Answer(const std::vector<std::string>& paths);
  Dice& dice_;
  const SoakFiles& files_;
  SoakCounts& counts_;
};

class RandomPerson {
public:
  RandomPerson(std::shared_ptr<const Library> library, const SoakFiles& files, unsigned seed);

  /// One action on the running session; starts another when it has ended. Throws anything that
  /// a person must never meet.
  void Act();
  /// Ends the session, so that nothing of it is left on the heap.
  void Rest();
  const SoakCounts& Counts() const { return counts_; }

private:
  struct Target {
    const Form* form;
    const Control* control;
    std::string Key() const { return form->name + "." + control->name; }
  };

  void StartSession();
  void Do();
  void EnterValue();
  void Press();
  void Choose();
  void Command();
  void MoveBetweenForms();
  void LookAtForm();
  void UseFiles();
  void KeysInField();
  void CheckWhatIsSeen() const;
  /// Each visible number of the open forms is the state's, but the one in use and those that New
  /// has left.
  void CheckFields() const;

  /// A control of one of the kinds on an open form, mostly the top one; none when there is none.
  std::optional<Target> Find(std::initializer_list<Kind> kinds);
  std::string Value(const std::string& shown);

  std::shared_ptr<const Library> library_;
  const SoakFiles& files_;
  Dice dice_;
  SoakCounts counts_;
  std::unique_ptr<SoakPlatform> platform_;
  std::unique_ptr<NamedSession> session_;
  bool newProject_ = false;  ///< New was chosen in this session
};

}  // namespace korvane
