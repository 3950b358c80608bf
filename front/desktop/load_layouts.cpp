// SPDX-License-Identifier: GPL-3.0-or-later
// Layouts of the load forms: one table per kind of load, one row per load.
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "front/desktop/diagram_pane.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"

namespace korvane {

namespace {

QLabel* Heading(const QString& text) {
  auto* label = new QLabel(text);
  label->setAlignment(Qt::AlignCenter);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

/// A table: a line of headings, then one row per entry of `rows`, each the names of its widgets.
void Table(WidgetMaker& maker, QGroupBox* group, const QStringList& headings,
           const std::vector<std::pair<QString, std::vector<std::string>>>& rows) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(group, 0.5));
  for (int k = 0; k < headings.size(); ++k) grid->addWidget(Heading(headings[k]), 0, k + 1);
  int row = 1;
  for (const auto& [title, names] : rows) {
    grid->addWidget(Heading(title), row, 0);
    int column = 1;
    for (const std::string& name : names) {
      if (!name.empty()) grid->addWidget(maker.Make(name), row, column);
      ++column;
    }
    ++row;
  }
  grid->setColumnStretch(grid->columnCount(), 1);
  auto* box = static_cast<QVBoxLayout*>(group->layout());
  box->addLayout(grid);
}

QGroupBox* Group(const QString& title) {
  auto* group = new QGroupBox(title);
  new QVBoxLayout(group);
  return group;
}

QLayout* Row(WidgetMaker& maker, const std::vector<std::string>& names) {
  auto* row = new QHBoxLayout;
  for (const std::string& name : names) row->addWidget(maker.Make(name));
  row->addStretch(1);
  return row;
}

QString CaptionOf(const WidgetMaker& maker, const std::string& name) {
  return QString::fromStdString(FindControl(maker.form(), name)->caption);
}
QString UnitOf(const WidgetMaker& maker, const std::string& name) {
  return QString::fromStdString(FindControl(maker.form(), name)->unit);
}

/// The tables beside it stay where they are when the widget comes and goes.
void KeepRoom(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

/// Column of the selfweight in the table of factors, which is hidden without it.
constexpr int kSelfweightColumn = 4;

QGroupBox* Factors(WidgetMaker& maker) {
  QGroupBox* group = Group(QObject::tr("Load factors and axial loads"));
  Table(maker, group, {"P", "V1", "V2", QObject::tr("Selfweight")},
        {{"ULS", {"ilfp_uls", "ilfv1_uls", "ilfv2_uls", "ilfsw_ULS"}},
         {"SLS", {"ilfp_sls", "ilfv1_Sls", "ilfv2_Sls", "ilfsw_SLS"}},
         {"N " + UnitOf(maker, "inp"), {"inp", "inv1", "inv2"}}});
  group->layout()->addWidget(maker.Make("slsfactor"));
  group->layout()->addWidget(maker.Make("check_selfweight"));
  auto* grid = static_cast<QGridLayout*>(group->layout()->itemAt(0)->layout());
  const auto selfweight = [grid](int row) {
    return grid->itemAtPosition(row, kSelfweightColumn)->widget();
  };
  selfweight(0)->setProperty(kBelongsTo, QStringLiteral("ilfsw_ULS"));
  static_cast<QLabel*>(selfweight(2))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // The heading or a field is the widest, as the font has it.
  for (int row = 0; row <= 2; ++row) KeepRoom(selfweight(row));
  return group;
}

QGroupBox* Lines(WidgetMaker& maker) {
  QGroupBox* group = Group(QObject::tr("Uniform loads"));
  std::vector<std::pair<QString, std::vector<std::string>>> rows;
  for (int k = 1; k <= 4; ++k) {
    const std::string name = "iq" + std::to_string(k);
    rows.push_back({CaptionOf(maker, name), {name, name + "_pv", name + "_yz"}});
  }
  Table(maker, group, {UnitOf(maker, "iq1"), QString(), QString()}, rows);
  return group;
}

QGroupBox* Trapezoids(WidgetMaker& maker) {
  QGroupBox* group = Group(QObject::tr("Trapezoidal loads"));
  std::vector<std::pair<QString, std::vector<std::string>>> rows;
  for (int t = 1; t <= 3; ++t) {
    const std::string n = "iqt" + std::to_string(t);
    rows.push_back(
        {QString::number(t), {n + "1", n + "2", n + "x1", n + "x2", n + "_pv", n + "_yz"}});
  }
  const QString q = UnitOf(maker, "iqt11");
  Table(maker, group, {"q1 " + q, "q2 " + q, "x1", "x2", QString(), QString()}, rows);
  static_cast<QVBoxLayout*>(group->layout())->addLayout(Row(maker, {"qtxabsolute", "qtxrelative"}));
  return group;
}

QGroupBox* Items(WidgetMaker& maker) {
  QGroupBox* group = Group(QObject::tr("Point loads and moments"));
  std::vector<std::pair<QString, std::vector<std::string>>> rows;
  for (int i = 1; i <= 8; ++i) {
    const std::string at = "(" + std::to_string(i) + ")";
    rows.push_back({QString::number(i),
                    {"ipm_pm" + at, "ipm" + at, "ipmx" + at, "ipm_pv" + at, "ipm_yz" + at}});
  }
  Table(maker, group, {QString(), UnitOf(maker, "ipm(1)"), "x", QString(), QString()}, rows);
  static_cast<QVBoxLayout*>(group->layout())->addLayout(Row(maker, {"pmxabsolute", "pmxrelative"}));
  return group;
}

/// The loads of one plane, drawn as they are typed.
DiagramPane* Drawn(WidgetMaker& maker, std::vector<std::string> boxes, QWidget* window) {
  return new DiagramPane(maker.session(), std::move(boxes), window);
}

}  // namespace

void LayOutLoading(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* drawings = new QHBoxLayout;
  drawings->addWidget(Drawn(maker, {"picloadpn", "picloadzp", "picloadzv"}, window));
  drawings->addWidget(Drawn(maker, {"picloadvn", "picloadyp", "picloadyv"}, window));
  all->addLayout(drawings, 1);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addWidget(Factors(maker));
  left->addStretch(1);
  auto* middle = new QVBoxLayout;
  middle->addWidget(Lines(maker));
  middle->addWidget(Trapezoids(maker));
  middle->addStretch(1);
  auto* right = new QVBoxLayout;
  right->addWidget(Items(maker));
  right->addStretch(1);
  columns->addLayout(left);
  columns->addLayout(middle);
  columns->addLayout(right);
  all->addLayout(columns);
  all->addLayout(maker.ButtonRow());
}

void LayOutEndForces(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* axial = new QHBoxLayout;
  axial->addWidget(maker.Caption("ine"));
  axial->addWidget(maker.Make("ine"));
  axial->addWidget(maker.Unit("ine"));
  axial->addWidget(maker.Make("osign"));
  axial->addStretch(1);
  all->addLayout(axial);
  auto* grid = new QGridLayout;
  int row = 0;
  for (const std::string name : {"imy", "imz", "ivy", "ivz"}) {
    maker.FieldRow(grid, row, name + "1", 0);
    maker.FieldRow(grid, row, name + "2", 3);
    ++row;
  }
  grid->setColumnStretch(6, 1);
  all->addLayout(grid);
  all->addWidget(maker.Make("onote"));
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

}  // namespace korvane
