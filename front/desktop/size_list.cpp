// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/size_list.h"

#include <QApplication>
#include <algorithm>

namespace korvane {

namespace {

/// The text from its first digit on: "HEA 220" gives "220".
QString SizeOf(const QString& text) {
  const auto digit =
      std::find_if(text.begin(), text.end(), [](const QChar& c) { return c.isDigit(); });
  return text.mid(digit - text.begin());
}

}  // namespace

int SizeList::RowFor(const QString& typed) const {
  int begins = -1;
  for (int row = 0; row < count(); ++row) {
    const QString text = item(row)->text();
    for (const QString& name : {text, SizeOf(text)}) {
      if (name.compare(typed, Qt::CaseInsensitive) == 0) return row;
      if (begins < 0 && name.startsWith(typed, Qt::CaseInsensitive)) begins = row;
    }
  }
  return begins;
}

void SizeList::keyboardSearch(const QString& search) {
  const bool goesOn = since_.isValid() && since_.elapsed() < QApplication::keyboardInputInterval();
  typed_ = goesOn ? typed_ + search : search;
  since_.start();
  const int row = RowFor(typed_);
  if (row >= 0) setCurrentRow(row);
}

}  // namespace korvane
