// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/flow_layout.h"

#include <algorithm>

namespace korvane {

FlowLayout::FlowLayout(int gap) : gap_(gap) {
  setContentsMargins(0, 0, 0, 0);
}

FlowLayout::~FlowLayout() {
  qDeleteAll(items_);
}

QLayoutItem* FlowLayout::takeAt(int index) {
  return index >= 0 && index < count() ? items_.takeAt(index) : nullptr;
}

void FlowLayout::setGeometry(const QRect& room) {
  QLayout::setGeometry(room);
  Arrange(room, true);
}

QSize FlowLayout::sizeHint() const {
  QSize all;
  int seen = 0;
  for (const QLayoutItem* item : items_) {
    if (item->isEmpty()) continue;
    const QSize hint = item->sizeHint();
    all = QSize(all.width() + hint.width() + (seen++ > 0 ? gap_ : 0),
                std::max(all.height(), hint.height()));
  }
  return all;
}

QSize FlowLayout::minimumSize() const {
  QSize least;
  for (const QLayoutItem* item : items_) {
    if (!item->isEmpty()) least = least.expandedTo(item->minimumSize());
  }
  return least;
}

int FlowLayout::Arrange(const QRect& room, bool place) const {
  int y = room.y();
  std::size_t next = 0;
  std::vector<QLayoutItem*> shown;
  for (QLayoutItem* item : items_) {
    if (!item->isEmpty()) shown.push_back(item);
  }
  while (next < shown.size()) {
    // As many as the line has room for, at least one.
    const std::size_t first = next;
    int height = 0;
    for (int x = room.x(); next < shown.size(); ++next) {
      const QSize hint = shown[next]->sizeHint();
      if (next > first && x + hint.width() > room.x() + room.width()) break;
      x += hint.width() + gap_;
      height = std::max(height, hint.height());
    }
    int x = room.x();
    for (std::size_t k = first; place && k < next; ++k) {
      const QSize hint = shown[k]->sizeHint();
      const int width = std::min(hint.width(), room.width());
      shown[k]->setGeometry(QRect(x, y + (height - hint.height()) / 2, width, hint.height()));
      x += hint.width() + gap_;
    }
    y += height + (next < shown.size() ? gap_ : 0);
  }
  return y - room.y();
}

}  // namespace korvane
