// SPDX-License-Identifier: GPL-3.0-or-later
// The program without a window: every form and control by its own name, with their rules.
#pragma once

#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

#include "checks/results.h"
#include "core/calculation.h"
#include "front/form_table.h"
#include "front/platform.h"
#include "optimiser/optimize.h"
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
};

/// One running program. A text field that meets an arithmetic failure says "Input string
/// mismatch "; from any other control the failure leaves the call as CalculationFault, and the
/// owner ends the program with a report.
class Session {
public:
  /// decimalComma: the locale writes a comma.
  Session(std::shared_ptr<const Library> library, Platform& platform, bool decimalComma,
          Folders folders = {});

  /// The start sequence. No calculation runs: the first comes with the focus of the main window.
  void Start();

  // --- What a person does ---
  /// A form gains the focus: korvane calculates, others fill themselves or set the mode.
  void Focus(const std::string& form);
  /// The field gets the focus: green, whole text selected.
  void FocusField(const std::string& control);
  /// Typing, without leaving the field.
  void Type(const std::string& control, const std::string& text);
  /// Leaving a field: parse, store, show again, test. False when the focus goes back to it.
  bool Leave(const std::string& control);
  /// FocusField, Type and Leave.
  bool Enter(const std::string& control, const std::string& text);
  /// Leaving a field by another rule than its own, as the Return key of a picture does.
  bool LeaveBy(const std::string& control, const FieldRule& rule);
  /// The Return key in a field: leaves it and focuses the next field of the form. On a picture
  /// that knows the key, what that says.
  void Return(const std::string& control);
  void Click(const std::string& control);
  void Select(const std::string& control, int index);
  void Menu(const std::string& command);
  /// Closes a form; a form may refuse. False when it stays open. Closing korvane ends the program.
  bool Close(const std::string& form);

  // --- What a person sees ---
  std::string Title(const std::string& form) const;
  std::string Text(const std::string& control) const;
  bool Enabled(const std::string& control) const;
  bool Visible(const std::string& control) const;
  bool Checked(const std::string& control) const;
  bool Green(const std::string& control) const;
  std::vector<std::string> Items(const std::string& control) const;
  int Selected(const std::string& control) const;
  const std::vector<std::string>& OpenForms() const { return open_; }
  bool IsOpen(const std::string& form) const;
  const std::string& FocusedField() const { return focus_; }
  /// Counts how often a field was given the focus, so that an owner sees whether one was.
  int Focusings() const { return focusings_; }
  bool Ended() const { return ended_; }
  /// Counts the calculations, so that an owner sees whether one ran.
  int Calculations() const { return calculations_; }

  // --- For the tables of the forms and the drawings ---
  Design& design() { return design_; }
  const Design& design() const { return design_; }
  ProjectState& st() { return design_.st; }
  const ProjectState& st() const { return design_.st; }
  Platform& platform() { return platform_; }
  Database& database() { return database_; }
  const Database& database() const { return database_; }
  OptimiserResults& optimiser() { return optimiser_; }
  const OptimiserResults& optimiser() const { return optimiser_; }
  const Folders& folders() const { return folders_; }
  std::string DatabasePath(const std::string& file) const;

  /// One calculation; its messages go to message boxes.
  void Calculate();
  /// Shows a form on top.
  void Show(const std::string& form);
  void Unload(const std::string& form);
  /// Writes the text of a field from the state, white.
  void Refill(const std::string& form, const std::string& control);
  /// Writes all fields of a form from the state.
  void Fill(const std::string& form);
  void FillMainWindow();
  /// A number as it is shown, with the platform's decimal mark.
  std::string Shown(double value, const char* format) const;
  /// A text of the engine, its numbers with the platform's decimal mark.
  std::string OnScreen(std::string text) const;
  void SetTitle(std::string title) { title_ = std::move(title); }
  const std::string& MainTitle() const { return title_; }
  /// The commands on files.
  void NewCommand();
  void OpenCommand();
  void OpenRecent(int entry);
  void SaveCommand();
  void SaveAsCommand();
  std::string RecentFile(int entry) const;
  /// Opens a path as the dialog would have given it.
  void OpenPath(const std::string& path);
  void SavePathAs(const std::string& path);
  void End() { ended_ = true; }
  bool DecimalComma() const { return decimalComma_; }

  /// Text of the fields that are no numbers (iproj, iident, p41's name).
  const std::string& FieldText(const std::string& form, const std::string& control) const;

  /// State of the optimiser form.
  struct OptimiserRowState {
    bool searched = false;
    OptimiserRowView view;
  };
  std::array<OptimiserRowState, kOptimiserRows + 1>& rows() { return rows_; }
  const std::array<OptimiserRowState, kOptimiserRows + 1>& rows() const { return rows_; }
  int databaseSelection = -1;  ///< selected entry of the database list

private:
  struct Place {
    const Form* form;
    const Control* control;
    std::string key;  ///< "form.control"
  };
  struct FieldState {
    std::string text;
    bool green = false;
  };

  Place Find(const std::string& address) const;
  /// Defaults that the program has written itself stand above those of its folder.
  void ReadOwnDefaults();
  void RunCalculation();
  bool Accept(const Place& place, const FieldRule& rule);
  void Mismatch(const Place& place);
  void Push(const std::string& name);
  void Promote(const std::string& name);
  void PromoteEntry(int entry);
  void AfterOpen();
  bool ReadInto(const std::string& path);

  Design design_;
  Platform& platform_;
  bool decimalComma_;
  Folders folders_;
  Database database_;
  OptimiserResults optimiser_;
  std::array<OptimiserRowState, kOptimiserRows + 1> rows_;
  std::vector<std::string> open_;
  std::map<std::string, FieldState> fields_;
  std::string focus_;
  std::string title_;
  int calculations_ = 0;
  int focusings_ = 0;
  bool ended_ = false;
};

}  // namespace korvane
