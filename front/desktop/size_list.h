// SPDX-License-Identifier: GPL-3.0-or-later
// A list of section sizes in which typing jumps to the size, by its number or by its whole name.
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

private:
  int RowOf(const QString& typed) const;
  QString typed_;
  QElapsedTimer since_;
};

}  // namespace korvane
