// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/tab_order.h"

#include <QGridLayout>
#include <QLayout>
#include <QMainWindow>
#include <QScrollArea>
#include <QSplitter>
#include <QWidget>
#include <algorithm>
#include <tuple>
#include <vector>

namespace korvane {

namespace {

using Chain = std::vector<QWidget*>;

void Walk(QWidget* widget, Chain& chain);

std::vector<QLayoutItem*> ItemsInReadingOrder(const QLayout* layout) {
  std::vector<std::tuple<int, int, QLayoutItem*>> placed;
  for (int k = 0; k < layout->count(); ++k) {
    int row = 0, column = k, rows = 1, columns = 1;
    if (const auto* grid = qobject_cast<const QGridLayout*>(layout)) {
      grid->getItemPosition(k, &row, &column, &rows, &columns);
    }
    placed.emplace_back(row, column, layout->itemAt(k));
  }
  std::sort(placed.begin(), placed.end());
  std::vector<QLayoutItem*> items;
  for (const auto& [row, column, item] : placed) items.push_back(item);
  return items;
}

void Walk(const QLayout* layout, Chain& chain) {
  for (QLayoutItem* item : ItemsInReadingOrder(layout)) {
    if (item->layout() != nullptr) Walk(item->layout(), chain);
    if (item->widget() != nullptr) Walk(item->widget(), chain);
  }
}

void Walk(QWidget* widget, Chain& chain) {
  if (const auto* split = qobject_cast<QSplitter*>(widget)) {
    for (int k = 0; k < split->count(); ++k) Walk(split->widget(k), chain);
    return;
  }
  if (const auto* scroll = qobject_cast<QScrollArea*>(widget)) {
    if (scroll->widget() != nullptr) Walk(scroll->widget(), chain);
    return;
  }
  if ((widget->focusPolicy() & Qt::TabFocus) != 0) chain.push_back(widget);
  if (widget->layout() != nullptr) Walk(widget->layout(), chain);
}

}  // namespace

void ChainTabsByLayout(QWidget* root) {
  Chain chain;
  const auto* main = qobject_cast<QMainWindow*>(root);
  if (main != nullptr && main->centralWidget() != nullptr) {
    Walk(main->centralWidget(), chain);
  } else if (root->layout() != nullptr) {
    Walk(root->layout(), chain);
  }
  for (std::size_t k = 1; k < chain.size(); ++k) QWidget::setTabOrder(chain[k - 1], chain[k]);
}

}  // namespace korvane
