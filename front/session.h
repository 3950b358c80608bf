// SPDX-License-Identifier: GPL-3.0-or-later
// The program without a window: what a person does, what a person sees, and what the tables of
// the forms need to carry it out.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "checks/results.h"
#include "core/calculation.h"
#include "front/fields.h"
#include "front/forms/handles.h"
#include "front/optimiser_rows.h"
#include "front/platform.h"
#include "front/project_files.h"
#include "sections/databasebas.h"

namespace korvane {

/// A control or form that does not exist, or is not open.
class UnknownControl : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// Where the program keeps its data: read-only catalogues in the library's folder, and what it
/// writes itself (defaults, database) in a folder that can be written.
struct Folders {
  std::string program;  ///< catalogues, materials, defaults
  std::string own;      ///< what the program writes; the program folder when empty
  /// Whether the defaults in the own folder are read.
  bool ownDefaults = true;
};

/// One running program. A window shows the state, and only typing changes it: the text of a field
/// is made from the state when asked for, but for the field being typed in and for the main
/// window's fields after New. A text field that meets an arithmetic failure says "Input string
/// mismatch "; from any other control the failure leaves the call as CalculationFault, and the
/// owner ends the program with a report. A project that can't be calculated when it is opened is
/// mended first: until a calculation succeeds no failure leaves a call.
class Session {
public:
  /// decimalComma: the locale writes a comma.
  Session(std::shared_ptr<const Library> library, Platform& platform, bool decimalComma,
          Folders folders = {});

  /// The start sequence. No calculation runs: the first comes with the focus of the main window.
  void Start();

  // --- What a person does
  // -------------------------------------------------------------------------
  /// A form gains the focus: the main window calculates, others may set the mode.
  void Focus(const Form& form);
  /// The field gets the focus: green, whole text selected.
  void FocusField(const Control& field);
  /// Typing, without leaving the field.
  void Type(const Control& field, const std::string& text);
  /// Leaving a field: parse, store, show again, test; nothing of it where no key was typed. False
  /// when the focus goes back to it.
  bool Leave(const Control& field);
  /// FocusField, Type and Leave.
  bool Enter(const Control& field, const std::string& text);
  /// Taking what stands in a field by another rule than its own, as the Return key of a picture
  /// does, typed or not.
  bool LeaveBy(const Control& field, const FieldRule& rule);
  /// The Return key in a field: leaves it and focuses the next field of the form. On a picture
  /// that knows the key, what that says.
  void Return(const Control& control);
  /// Puts the last accepted value back where one was refused. False where none was.
  bool TakeBack();
  /// A button, option, check box or picture.
  void Click(const Control& control);
  /// An entry of a list, from 0.
  void Select(const Control& list, int index);
  /// A command of the menu.
  void Menu(const Control& command);
  /// Closes a form; a typed field is left first, and a form may refuse. False when it stays open.
  /// Closing the main window ends the program.
  bool Close(const Form& form);

  // --- What a person sees
  // ---------------------------------------------------------------------------
  std::string Title(const Form& form) const;
  /// What stands in a field, on a label or in a painting.
  std::string Text(const Control& control) const;
  /// The words at the pointer, for a field with the values that it accepts now.
  std::string Tip(const Control& control) const;
  /// Whether the person can use it.
  bool Enabled(const Control& control) const;
  /// Whether it is to be seen.
  bool Visible(const Control& control) const;
  /// Whether an option or a check box is set.
  bool Checked(const Control& control) const;
  /// In use and to be seen.
  bool Green(const Control& field) const;
  /// The field's text is not what the calculation uses, or its value was refused.
  bool Marked(const Control& field) const;
  /// Keys were typed into the field in use, or its value was refused.
  bool Typed(const Control& field) const { return fields_.IsTyped(field); }
  /// The value of the field was refused, and can be taken back.
  bool IsRefused(const Control& field) const { return Refused() == &field; }
  /// The field whose value was refused and still stands, or nullptr.
  const Control* Refused() const { return fields_.Refused() ? fields_.Refused()->field : nullptr; }
  /// What TakeBack puts back, as it will be shown; empty where nothing was refused.
  std::string LastAccepted() const;
  /// What the state holds of a field, as it would be shown.
  std::string StateText(const Control& field) const;
  /// The entries of a list.
  std::vector<std::string> Items(const Control& list) const;
  /// The entry that is chosen, from 0; -1 for none.
  int Selected(const Control& list) const;
  const std::vector<const Form*>& OpenForms() const { return open_; }
  /// Whether the form has been shown and not been closed.
  bool IsOpen(const Form& form) const;
  /// The form on top.
  const Form& Top() const { return *open_.back(); }
  const Control* FocusedField() const { return fields_.InUse(); }
  /// Counts how often a field was given the focus, so that an owner sees whether one was.
  int Focusings() const { return focusings_; }
  bool Ended() const { return ended_; }
  /// Counts the calculations, so that an owner sees whether one ran.
  int Calculations() const { return calculations_; }
  /// Why the results are not those of the state in force, as a sentence; empty when they are.
  std::string NotCalculated() const;
  /// The state of the last calculation that succeeded since the project was opened or begun.
  const std::optional<ProjectState>& LastCalculated() const { return calculated_; }
  /// The opened project could not be calculated yet.
  bool Mending() const { return mending_; }
  /// The control that was operated last, or nullptr.
  const Control* LastInput() const { return lastInput_; }
  /// A number as it is shown, with the platform's decimal mark.
  std::string Shown(double value, const char* format) const;
  /// A text of the engine, its numbers with the platform's decimal mark.
  std::string OnScreen(std::string text) const;
  bool DecimalComma() const { return decimalComma_; }
  const Design& design() const { return design_; }
  const ProjectState& st() const { return design_.st; }
  const Database& database() const { return database_; }
  const OptimiserRows& rows() const { return rows_; }
  const ProjectFiles& files() const { return files_; }

  // --- For the tables of the forms
  // ------------------------------------------------------------------
  Design& design() { return design_; }
  ProjectState& st() { return design_.st; }
  Platform& platform() { return platform_; }
  Database& database() { return database_; }
  OptimiserRows& rows() { return rows_; }
  ProjectFiles& files() { return files_; }
  const Folders& folders() const { return folders_; }
  /// One calculation; its messages go to message boxes.
  void Calculate();
  /// Runs what puts another section in force. Where that can't be designed, as in a damaged list,
  /// it beeps and the member is as it was.
  void TakeSection(const std::function<void()>& take);
  /// Composes the result lines of a silent calculation: they are those of the state now.
  void ComposeResults();
  /// Shows a form on top.
  void Show(const Form& form);
  /// Takes a form away without asking it.
  void Unload(const Form& form);
  /// A field of the main window is written anew from the state.
  void Fill(const Control& field) { fields_.Fill(field); }
  /// All fields of the main window are.
  void FillMainWindow();
  void End() { ended_ = true; }
  /// Tells something in the status bar, with the time in front; it stands until the next one.
  void Tell(const std::string& news);
  const std::string& News() const { return news_; }
  /// Tells what an action took away between a former state and now.
  void TellRemoved(const ProjectState& before, bool byFamily);
  std::optional<ProjectState> removedLoads;  ///< what stood before all loads were removed
  int databaseSelection = -1;                ///< selected entry of the database list
  int databaseVersion = 0;                   ///< counts the changes of the list

private:
  friend class ProjectFiles;
  /// Defaults that the program has written itself stand above those of its folder.
  void ReadOwnDefaults();
  void TellMessages();
  bool Accept(const Control& field, const FieldRule& rule);
  void Mismatch(const Control& field);
  /// Another project is in force; nothing has been calculated with it.
  void BeginProject();
  /// Runs an action; while a project is mended its failure goes no further.
  void Guard(const std::function<void()>& action);
  /// New's exception: the fields of the main window keep their texts.
  void KeepTexts();

  Design design_;
  Platform& platform_;
  bool decimalComma_;
  Folders folders_;
  Database database_;
  OptimiserRows rows_;
  ProjectFiles files_;
  Fields fields_;
  std::vector<const Form*> open_;
  /// The state of the last calculation that succeeded; none yet for a project that was opened.
  std::optional<ProjectState> calculated_;
  std::string failedStep_;  ///< of the last calculation; empty where it succeeded
  bool mending_ = false;
  const Control* lastInput_ = nullptr;
  std::string news_;
  int calculations_ = 0;
  int focusings_ = 0;
  bool ended_ = false;
};

}  // namespace korvane
