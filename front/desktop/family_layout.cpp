// SPDX-License-Identifier: GPL-3.0-or-later
// Layout of the family forms: list or dimensions, figure, values in aligned columns.
#include <QFrame>
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <algorithm>

#include "front/desktop/form_window.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"
#include "front/forms/family_fields.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"

namespace korvane {

namespace {

int CodeOf(const std::string& form) {
  for (const Family& family : AllFamilies()) {
    if (form == family.form) return family.code;
  }
  return 0;
}

/// Whether one of the values stands in the control.
bool Among(const ShownValues& values, const std::string& control) {
  return std::any_of(values.begin(), values.end(),
                     [&](const ShownValue& v) { return ValueControlName(v.name) == control; });
}

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
  for (const Control* c : controls) maker.ValueRow(grid, row++, c->name);
  column->addLayout(grid);
  column->addStretch(1);
  return group;
}

}  // namespace

void LayOutFamily(WidgetMaker& maker, QWidget* window) {
  ProjectState st;
  st.ProfileType = CodeOf(maker.form().name);
  st.p103_sub = 2;
  const SectionRecord none;
  const ShownValues properties = Properties(st, none);
  const ShownValues capacities = Capacities(st, none);
  std::vector<const Control*> dims, props, caps, others;
  std::string list;
  for (const Control& c : maker.form().controls) {
    const bool value = c.kind == Kind::Label && c.text && !c.caption.empty();
    if (c.kind == Kind::List) {
      list = c.name;
    } else if (!value) {
      if (c.kind != Kind::Surface) others.push_back(&c);
    } else if (c.name.starts_with("osclass") || Among(capacities, c.name)) {
      caps.push_back(&c);
    } else {
      (Among(properties, c.name) ? props : dims).push_back(&c);
    }
  }
  auto* all = new QVBoxLayout(window);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  if (!list.empty()) {
    QWidget* sizes = maker.MakeOpenList(list);
    sizes->setFixedWidth(std::max(sizes->minimumWidth(), Ems(window, 9)));
    left->addWidget(sizes, 1);
  }
  maker.Stack(left, others);
  if (list.empty()) left->addStretch(1);
  columns->addLayout(left);
  QWidget* figure = maker.Make("pic1");
  figure->setMinimumSize(Ems(window, 22), Ems(window, 22));
  columns->addWidget(figure, 1);
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
