// SPDX-License-Identifier: GPL-3.0-or-later
// A text field that can carry a mark: its text is not what the calculation uses.
#pragma once

#include <QLineEdit>

namespace korvane {

class FieldEdit : public QLineEdit {
  Q_OBJECT

public:
  using QLineEdit::QLineEdit;
  void SetMarked(bool marked);
  bool Marked() const { return marked_; }

protected:
  /// The mark is an amber triangle with an exclamation mark at the left end.
  void paintEvent(QPaintEvent* event) override;

private:
  bool marked_ = false;
};

}  // namespace korvane
