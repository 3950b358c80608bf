// SPDX-License-Identifier: GPL-3.0-or-later
// The window "What if": curves over a varied input, and the interaction diagrams.
#pragma once

#include <QDialog>

#include "front/what_if.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QTabWidget;

namespace korvane {

class ChartPane;
class Desktop;

class WhatIfWindow : public QDialog {
  Q_OBJECT

public:
  explicit WhatIfWindow(Desktop& desktop, QWidget* parent = nullptr);
  void Open();
  const WhatIf& shown() const { return whatIf_; }

protected:
  void showEvent(QShowEvent* event) override;

private:
  QWidget* CurvesTab();
  QWidget* InteractionTab();
  QWidget* Foot();
  void Follow();
  /// Everything but the fields in which somebody types shows the curves anew.
  void ShowCurves();
  /// The fields show the range in force.
  void ShowRange();
  void ChooseInput(const QString& text);
  void ReadRange();
  void ShowValues(double x);
  ChartPane& PaneInFront() const;

  Desktop& desktop_;
  WhatIf whatIf_;
  QTabWidget* tabs_ = nullptr;
  QComboBox* input_ = nullptr;
  QLineEdit* from_ = nullptr;
  QLineEdit* to_ = nullptr;
  QLabel* unit_ = nullptr;
  QComboBox* drawn_ = nullptr;
  QCheckBox* sls_ = nullptr;
  ChartPane* curves_ = nullptr;
  ChartPane* interaction_ = nullptr;
  QLabel* words_ = nullptr;
};

}  // namespace korvane
