// SPDX-License-Identifier: GPL-3.0-or-later
// The open list of a family's sizes, in which typing jumps to a size.
#pragma once

#include <QElapsedTimer>
#include <QListWidget>

namespace korvane {

class SizeList : public QListWidget {
  Q_OBJECT

public:
  using QListWidget::QListWidget;
  /// Keys that follow each other make up a text. The row of that size comes first, then the
  /// first one that begins with it; the series' name before the size may be typed or left out.
  void keyboardSearch(const QString& search) override;

private:
  int RowFor(const QString& typed) const;
  QString typed_;
  QElapsedTimer since_;
};

}  // namespace korvane
