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

using TableRow = std::pair<QString, std::vector<Handle>>;

/// A table: a line of headings, then one row per entry of `rows`, each with its controls.
QGridLayout* Table(WidgetMaker& maker, QGroupBox* group, const QStringList& headings,
                   const std::vector<TableRow>& rows) {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(group, 0.5));
  for (int k = 0; k < headings.size(); ++k) grid->addWidget(Heading(headings[k]), 0, k + 1);
  int row = 1;
  for (const auto& [title, controls] : rows) {
    grid->addWidget(Heading(title), row, 0);
    int column = 1;
    for (const Handle control : controls) grid->addWidget(maker.Make(control), row, column++);
    ++row;
  }
  grid->setColumnStretch(grid->columnCount(), 1);
  static_cast<QVBoxLayout*>(group->layout())->addLayout(grid);
  return grid;
}

QGroupBox* Group(const QString& title) {
  auto* group = new QGroupBox(title);
  new QVBoxLayout(group);
  return group;
}

QLayout* Row(WidgetMaker& maker, const std::vector<Handle>& controls) {
  auto* row = new QHBoxLayout;
  for (const Handle control : controls) row->addWidget(maker.Make(control));
  row->addStretch(1);
  return row;
}

QString CaptionOf(Handle control) {
  return QString::fromStdString(control->caption);
}
QString UnitOf(Handle control) {
  return QString::fromStdString(control->unit);
}

/// The tables beside it stay where they are when the widget comes and goes.
void KeepRoom(QWidget* widget) {
  QSizePolicy policy = widget->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget->setSizePolicy(policy);
}

/// Column of the selfweight in the table of factors, which is hidden without it.
constexpr int kSelfweightColumn = 4;

const LoadingControls& OnLoading() {
  return TheForms().onLoading;
}

QGroupBox* Factors(WidgetMaker& maker) {
  const LoadingControls& on = OnLoading();
  QGroupBox* group = Group(QObject::tr("Load factors and axial loads"));
  const QGridLayout* grid = Table(maker, group, {"P", "V1", "V2", QObject::tr("Selfweight")},
                                  {{"ULS", {on.ilfp_uls, on.ilfv1_uls, on.ilfv2_uls, on.ilfsw_ULS}},
                                   {"SLS", {on.ilfp_sls, on.ilfv1_Sls, on.ilfv2_Sls, on.ilfsw_SLS}},
                                   {"N " + UnitOf(on.inp), {on.inp, on.inv1, on.inv2}}});
  group->layout()->addWidget(maker.Make(on.slsfactor));
  group->layout()->addWidget(maker.Make(on.check_selfweight));
  const auto selfweight = [grid](int row) {
    return grid->itemAtPosition(row, kSelfweightColumn)->widget();
  };
  maker.Accompany(on.ilfsw_ULS, selfweight(0));
  static_cast<QLabel*>(selfweight(2))->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // The heading or a field is the widest, as the font has it.
  for (int row = 0; row <= 2; ++row) KeepRoom(selfweight(row));
  return group;
}

QGroupBox* Lines(WidgetMaker& maker) {
  QGroupBox* group = Group(QObject::tr("Uniform loads"));
  std::vector<TableRow> rows;
  for (const LoadingControls::Line& line : OnLoading().lines) {
    rows.push_back({CaptionOf(line.q), {line.q, line.pv, line.yz}});
  }
  Table(maker, group, {UnitOf(OnLoading().lines[1].q), QString(), QString()}, rows);
  return group;
}

QGroupBox* Trapezoids(WidgetMaker& maker) {
  const LoadingControls& on = OnLoading();
  QGroupBox* group = Group(QObject::tr("Trapezoidal loads"));
  std::vector<TableRow> rows;
  for (const LoadingControls::Trapezoid& t : on.trapezoids) {
    rows.push_back({QString::number(rows.size() + 1), {t.q1, t.q2, t.x1, t.x2, t.pv, t.yz}});
  }
  const QString q = UnitOf(on.trapezoids[1].q1);
  Table(maker, group, {"q1 " + q, "q2 " + q, "x1", "x2", QString(), QString()}, rows);
  static_cast<QVBoxLayout*>(group->layout())
      ->addLayout(Row(maker, {on.qtxabsolute, on.qtxrelative}));
  return group;
}

QGroupBox* Items(WidgetMaker& maker) {
  const LoadingControls& on = OnLoading();
  QGroupBox* group = Group(QObject::tr("Point loads and moments"));
  std::vector<TableRow> rows;
  for (const LoadingControls::Item& item : on.items) {
    rows.push_back(
        {QString::number(rows.size() + 1), {item.kind, item.value, item.x, item.pv, item.yz}});
  }
  Table(maker, group, {QString(), UnitOf(on.items[1].value), "x", QString(), QString()}, rows);
  static_cast<QVBoxLayout*>(group->layout())
      ->addLayout(Row(maker, {on.pmxabsolute, on.pmxrelative}));
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
  const EndForceControls& on = TheForms().onEndForces;
  auto* all = new QVBoxLayout(window);
  auto* axial = new QHBoxLayout;
  axial->addWidget(maker.Caption(on.ine));
  axial->addWidget(maker.Make(on.ine));
  axial->addWidget(maker.Unit(on.ine));
  axial->addWidget(maker.Make(on.osign));
  axial->addStretch(1);
  all->addLayout(axial);
  auto* grid = new QGridLayout;
  int row = 0;
  for (const EndForceControls::Row& force : on.rows) {
    maker.FieldRow(grid, row, force.left, 0);
    maker.FieldRow(grid, row++, force.right, 3);
  }
  grid->setColumnStretch(6, 1);
  all->addLayout(grid);
  all->addWidget(maker.Make(on.onote));
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

}  // namespace korvane
