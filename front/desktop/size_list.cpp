// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/size_list.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>

namespace korvane {

namespace {

/// A pause of so many milliseconds begins a new text.
constexpr int kPause = 1500;

/// Blanks and the case of letters count for nothing.
QString Squeezed(const QString& text) {
  return text.toLower().remove(QLatin1Char(' '));
}

/// The text from its first digit on.
QString FromNumber(const QString& text) {
  const auto digit = std::find_if(text.begin(), text.end(), [](QChar c) { return c.isDigit(); });
  return text.mid(static_cast<int>(digit - text.begin()));
}

}  // namespace

int SizeList::RowOf(const QString& typed) const {
  int beginning = -1;
  for (int row = 0; row < count(); ++row) {
    const QString name = Squeezed(item(row)->text());
    const QString number = FromNumber(name);
    if (name == typed || number == typed) return row;
    if (beginning < 0 && (name.startsWith(typed) || number.startsWith(typed))) beginning = row;
  }
  return beginning;
}

void SizeList::mousePressEvent(QMouseEvent* event) {
  const int before = currentRow();
  QListWidget::mousePressEvent(event);
  const bool onRow = itemAt(event->position().toPoint()) != nullptr;
  if (onRow && before >= 0 && before == currentRow()) emit ChosenAgain(before);
}

void SizeList::keyPressEvent(QKeyEvent* event) {
  const bool chooses = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (chooses && currentRow() >= 0) {
    emit ChosenAgain(currentRow());
  } else if (event->key() == Qt::Key_Delete && currentRow() >= 0) {
    emit DeleteWanted();
  } else {
    QListWidget::keyPressEvent(event);
  }
}

void SizeList::keyboardSearch(const QString& keys) {
  if (!since_.isValid() || since_.hasExpired(kPause)) typed_.clear();
  since_.start();
  typed_ += Squeezed(keys);
  if (typed_.isEmpty()) return;
  int row = RowOf(typed_);
  if (row < 0) {
    // What goes nowhere is forgotten but for its last key, which may begin a new size.
    typed_ = Squeezed(keys);
    row = RowOf(typed_);
  }
  if (row >= 0) setCurrentRow(row);
}

}  // namespace korvane
