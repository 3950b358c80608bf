// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the widgets of a form from its table, each with its control's name, and lays them out.
#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <set>
#include <string>
#include <vector>

#include "front/session.h"

namespace korvane {

class WidgetMaker {
public:
  WidgetMaker(const Form& form, const Session& session) : form_(form), session_(session) {}

  const Form& form() const { return form_; }
  const Session& session() const { return session_; }
  bool Has(const std::string& name) const { return FindControl(form_, name) != nullptr; }
  bool Done(const std::string& name) const { return made_.contains(name); }
  /// The widget of a control; lists become a drop-down.
  QWidget* Make(const std::string& name);
  /// A list that stands open.
  QWidget* MakeOpenList(const std::string& name);
  /// A picture button of a code that changes.
  QToolButton* MakePicture(const std::string& name, std::function<int()> code);
  /// Caption and unit of a field, as quiet companions.
  QLabel* Caption(const std::string& name) const;
  QLabel* Unit(const std::string& name) const;

  /// Caption, field and unit in a row of a grid from a column on.
  void FieldRow(QGridLayout* grid, int row, const std::string& name, int column = 0);
  /// Caption, value and unit of a label.
  void ValueRow(QGridLayout* grid, int row, const std::string& name);
  /// A frame with its caption.
  QGroupBox* Frame(const std::string& name);
  /// Lays out a run of controls below each other in the way that their kinds ask for. Frames
  /// begin groups; buttons are left.
  void Stack(QBoxLayout* into, const std::vector<const Control*>& controls);
  /// All controls that have not been made.
  std::vector<const Control*> Rest() const;
  /// The buttons that have not been made, in a row at the right end.
  QLayout* ButtonRow();

private:
  const Control& At(const std::string& name) const;
  QWidget* NewWidget(const Control& control);
  QToolButton* NewPicture(const Control& control, std::function<int()> code);
  const Form& form_;
  const Session& session_;
  std::set<std::string> made_;
};

}  // namespace korvane
