// SPDX-License-Identifier: GPL-3.0-or-later
// Layout of the family forms: list or dimensions, figure, values in aligned columns.
#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "front/desktop/form_window.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"

namespace korvane {

namespace {

QGroupBox* Values(WidgetMaker& maker, const QString& title,
                  const std::vector<const Control*>& controls) {
  auto* group = new QGroupBox(title);
  auto* column = new QVBoxLayout(group);
  auto* grid = new QGridLayout;
  grid->setVerticalSpacing(Ems(group, 0.25));
  grid->setColumnMinimumWidth(1, Ems(group, 5));
  grid->setColumnMinimumWidth(2, Ems(group, 4));
  grid->setColumnStretch(3, 1);
  int row = 0;
  for (const Control* c : controls) maker.ValueRow(grid, row++, c);
  column->addLayout(grid);
  column->addStretch(1);
  return group;
}

}  // namespace

void LayOutFamily(WidgetMaker& maker, QWidget* window) {
  std::vector<const Control*> dims, props, caps, others;
  const Control* list = nullptr;
  const Control* figure = nullptr;
  for (const Control& c : maker.form().controls) {
    if (c.kind == Kind::List) {
      list = &c;
    } else if (c.kind == Kind::Surface) {
      figure = &c;
    } else if (c.block == Block::None) {
      others.push_back(&c);
    } else {
      (c.block == Block::Dimensions   ? dims
       : c.block == Block::Properties ? props
                                      : caps)
          .push_back(&c);
    }
  }
  auto* all = new QVBoxLayout(window);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  if (list != nullptr) {
    QWidget* sizes = maker.MakeOpenList(list);
    sizes->setFixedWidth(std::max(sizes->minimumWidth(), Ems(window, 9)));
    left->addWidget(sizes, 1);
  }
  maker.Stack(left, others);
  if (list == nullptr) left->addStretch(1);
  columns->addLayout(left);
  QWidget* drawing = maker.Make(figure);
  drawing->setMinimumSize(Ems(window, 22), Ems(window, 22));
  columns->addWidget(drawing, 1);
  auto* right = new QVBoxLayout;
  auto* blocks = new QHBoxLayout;
  for (const auto& [title, controls] :
       {std::pair{QObject::tr("Dimensions"), &dims}, std::pair{QObject::tr("Properties"), &props},
        std::pair{QObject::tr("Capacities"), &caps}}) {
    if (!controls->empty()) blocks->addWidget(Values(maker, title, *controls));
  }
  right->addLayout(blocks);
  right->addStretch(1);
  columns->addLayout(right);
  all->addLayout(columns, 1);
  all->addLayout(maker.ButtonRow());
}

}  // namespace korvane
