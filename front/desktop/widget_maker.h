// SPDX-License-Identifier: GPL-3.0-or-later
// Makes the widgets of a form from its table, and lays them out. A widget's objectName is the name
// of its control, for tests.
#pragma once

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>
#include <vector>

#include "front/session.h"

namespace korvane {

class WidgetMaker {
public:
  /// A widget and the control that it shows, or whose caption or unit it is.
  struct Made {
    const Control* control;
    QWidget* widget;
  };

  WidgetMaker(const Form& form, const Session& session) : form_(form), session_(session) {}

  const Form& form() const { return form_; }
  const Session& session() const { return session_; }
  const std::vector<Made>& AllMade() const { return made_; }
  const std::vector<Made>& Companions() const { return companions_; }
  /// The widget of a control; lists become a drop-down.
  QWidget* Make(const Control* control);
  /// A list that stands open.
  QWidget* MakeOpenList(const Control* list);
  /// Caption and unit of a field, as quiet companions.
  QLabel* Caption(const Control* control);
  QLabel* Unit(const Control* control);
  /// The widget comes and goes with the control.
  void Accompany(const Control* control, QWidget* widget);

  /// Caption, field and unit in a row of a grid from a column on.
  void FieldRow(QGridLayout* grid, int row, const Control* field, int column = 0);
  /// Caption, value and unit of a label.
  void ValueRow(QGridLayout* grid, int row, const Control* label);
  /// A frame with its caption.
  QGroupBox* Frame(const Control* frame);
  /// Lays out a run of controls below each other in the way that their kinds ask for. Frames
  /// begin groups; buttons are left.
  void Stack(QBoxLayout* into, const std::vector<const Control*>& controls);
  /// All controls that have not been made.
  std::vector<const Control*> Rest() const;
  /// The buttons that have not been made, in a row at the right end.
  QLayout* ButtonRow();

private:
  bool Done(const Control* control) const;
  QWidget* Named(const Control* control, QWidget* widget);
  QWidget* NewWidget(const Control& control);
  QWidget* NewSurface(const Control& control);
  QToolButton* NewPicture(const Control& control);
  const Form& form_;
  const Session& session_;
  std::vector<Made> made_, companions_;
};

}  // namespace korvane
