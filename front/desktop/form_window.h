// SPDX-License-Identifier: GPL-3.0-or-later
// The window of a form beside the main window, laid out from the form's table.
#pragma once

#include <QDialog>

#include "front/form_table.h"

class QScrollArea;

namespace korvane {

class Desktop;
class FormBinder;
class WidgetMaker;

class FormWindow : public QDialog {
  Q_OBJECT

public:
  FormWindow(Desktop& desktop, const Form& form, QWidget* parent);
  FormBinder& binder() { return *binder_; }
  /// Escape closes as the frame's button does.
  void reject() override { close(); }
  /// What the controls ask for, within the screen: what has no room there is scrolled to.
  QSize sizeHint() const override;

protected:
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool event(QEvent* event) override;

private:
  /// Where the window stands when it is shown for the first time.
  void Place();
  /// Its key in the settings.
  QString PlaceKey() const;
  /// The window grows with what its controls need, within the screen.
  void FitContent();
  /// The values of a family's form go to the clipboard.
  void CopyValues();
  Desktop& desktop_;
  const Form& form_;
  FormBinder* binder_;
  QScrollArea* scroll_;
  bool placed_ = false;
  QPoint placedAt_;  ///< where it stood at first: kept only when a person moves it
  QSize fitted_;     ///< least size that the controls were given
};

// Layouts of forms that have one of their own; all others are stacked.
void LayOutLoading(WidgetMaker& maker, QWidget* window);
void LayOutEndForces(WidgetMaker& maker, QWidget* window);
void LayOutOptimiser(WidgetMaker& maker, QWidget* window);
void LayOutFamily(WidgetMaker& maker, QWidget* window);
void LayOutStacked(WidgetMaker& maker, QWidget* window);
void LayOutDatabase(WidgetMaker& maker, QWidget* window);
void LayOutCases(WidgetMaker& maker, QWidget* window);  ///< bucklingy, bucklingz
void LayOutCurves(WidgetMaker& maker, QWidget* window);
void LayOutPictures(WidgetMaker& maker, QWidget* window);
void LayOutSetup(WidgetMaker& maker, QWidget* window);
void LayOutLateral(WidgetMaker& maker, QWidget* window);

}  // namespace korvane
