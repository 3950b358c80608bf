// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: menus, the input column, result lines, section figure and diagrams.
#pragma once

#include <QMainWindow>
#include <vector>

class QLabel;
class QProgressBar;
class QSplitter;

namespace korvane {

class Desktop;
class DiagramPane;
struct Control;
class FormBinder;
class VerdictPane;
class WidgetMaker;

class MainWindow : public QMainWindow {
  Q_OBJECT

public:
  explicit MainWindow(Desktop& desktop);
  FormBinder& binder() { return *binder_; }
  VerdictPane& verdict() { return *verdict_; }
  /// The menu entry of a command.
  QAction* ActionOf(const Control& command) const;
  /// Progress of a search in the status bar; all is 0 at its end.
  void ShowProgress(int done, int all);
  /// Shows the notes of the verdict and marks the governing line.
  void ShowNotes();
  /// Draws the diagrams anew, gives them the room that they need and scrolls to the moments.
  void RaiseDiagrams();

protected:
  void closeEvent(QCloseEvent* event) override;
  bool event(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  void MakeMenus();
  void AddKeys();
  void RefreshMenus();
  void RefreshSaving();
  void Refresh();
  QWidget* InputColumn(WidgetMaker& maker);
  QWidget* ResultSide(WidgetMaker& maker);
  QWidget* Plane(WidgetMaker& maker, const Control* frame, std::vector<std::string> boxes);
  QWidget* OptimiserPanel(WidgetMaker& maker);
  void RestoreSizes();
  void SaveSizes() const;

  Desktop& desktop_;
  FormBinder* binder_ = nullptr;
  VerdictPane* verdict_ = nullptr;
  std::vector<std::pair<const Control*, QAction*>> actions_;
  std::vector<DiagramPane*> planes_;
  std::vector<QSplitter*> splitters_;
  QProgressBar* progress_ = nullptr;
  QLabel* saving_ = nullptr;
};

}  // namespace korvane
