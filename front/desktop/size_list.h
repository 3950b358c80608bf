// SPDX-License-Identifier: GPL-3.0-or-later
// The list of sizes that stands open in the family forms: typing jumps to a size by its number.
#pragma once

#include <QElapsedTimer>
#include <QListWidget>

namespace korvane {

class SizeList : public QListWidget {
  Q_OBJECT

public:
  using QListWidget::QListWidget;
  /// Keys in quick succession make one text: "2", "2", "0" goes to HEA 220.
  void keyboardSearch(const QString& keys) override;

signals:
  /// The Delete key on a marked row.
  void DeleteWanted();
  /// A click or the Return key on the row that was marked already.
  void ChosenAgain(int row);

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

private:
  int RowOf(const QString& typed) const;
  QString typed_;
  QElapsedTimer since_;
};

}  // namespace korvane
