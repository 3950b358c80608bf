// SPDX-License-Identifier: GPL-3.0-or-later
// The window of all sections: every size for the member in force, to be sorted, filtered, looked
// at and taken.
#pragma once

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QModelIndex;
class QPushButton;
class QTableView;

namespace korvane {

class Desktop;
class SectionsModel;
class SectionsProxy;
class ToneDelegate;

class SectionsWindow : public QDialog {
  Q_OBJECT

public:
  explicit SectionsWindow(Desktop& desktop, QWidget* parent = nullptr);
  /// Shows the window with the section in force in sight.
  void Open();

protected:
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  QWidget* Filters();
  QWidget* Table();
  QWidget* Foot();
  /// The rows follow the session, each where it stands in the view.
  void Follow();
  void ApplyFilter();
  /// A limit in mm; infinite for an empty field, which a text that is no number is marked as well.
  double LimitOf(QLineEdit& field) const;
  void ShowPreview();
  void Select(int sourceRow, bool centre);
  void Take();
  int CurrentRow() const;
  /// The session has not calculated its input.
  bool Pale() const;

  Desktop& desktop_;
  SectionsModel* model_;
  SectionsProxy* proxy_;
  QTableView* view_ = nullptr;
  ToneDelegate* delegate_ = nullptr;
  QLineEdit* search_ = nullptr;
  QLineEdit* maxHeight_ = nullptr;
  QLineEdit* maxWidth_ = nullptr;
  QListWidget* series_ = nullptr;
  QCheckBox* passing_ = nullptr;
  QCheckBox* sls_ = nullptr;
  QLabel* count_ = nullptr;
  QLabel* preview_ = nullptr;
  QPushButton* take_ = nullptr;
};

}  // namespace korvane
