// SPDX-License-Identifier: GPL-3.0-or-later
// Layouts of the load forms: one table per kind of load, one row per load.
#include <QHBoxLayout>
#include <QVBoxLayout>
#include <array>

#include "front/desktop/diagram_pane.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/panes.h"
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
  grid->setVerticalSpacing(Ems(group, 0.2));
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
  auto* column = new QVBoxLayout(group);
  const int gap = Ems(group, 0.4);
  column->setContentsMargins(gap, gap, gap, gap);
  column->setSpacing(gap);
  return group;
}

QLayout* Row(WidgetMaker& maker, const QString& title, const std::vector<Handle>& controls) {
  auto* row = new QHBoxLayout;
  row->addWidget(Heading(title));
  for (const Handle control : controls) row->addWidget(maker.Make(control));
  row->addStretch(1);
  return row;
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

/// Columns of the table of loads.
enum Column { Kind_, Value, Value2, X, X2, Group_, Direction_, Columns };

/// One row of the table of loads; columns without a control stay empty.
struct LoadRow {
  QString kind;  ///< in words, where no control tells it
  std::array<Handle, Columns> controls{};
};

std::vector<LoadRow> LoadRows() {
  const LoadingControls& on = OnLoading();
  std::vector<LoadRow> rows;
  for (const LoadingControls::Line& line : on.lines) {
    LoadRow row{QObject::tr("Uniform q%1").arg(rows.size() + 1), {}};
    row.controls[Value] = line.q;
    row.controls[Group_] = line.pv;
    row.controls[Direction_] = line.yz;
    rows.push_back(row);
  }
  int number = 1;
  for (const LoadingControls::Trapezoid& t : on.trapezoids) {
    rows.push_back(
        {QObject::tr("Trapezoid %1").arg(number++), {nullptr, t.q1, t.q2, t.x1, t.x2, t.pv, t.yz}});
  }
  for (const LoadingControls::Item& item : on.items) {
    rows.push_back({{}, {item.kind, item.value, nullptr, item.x, nullptr, item.pv, item.yz}});
  }
  return rows;
}

/// All loads across the member in one table.
QGroupBox* Loads(WidgetMaker& maker) {
  const LoadingControls& on = OnLoading();
  QGroupBox* group = Group(QObject::tr("Loads: q in kN/m, P in kN, M in kNm"));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(group, 0.4));
  grid->setVerticalSpacing(Ems(group, 0.15));
  const QStringList headings{QObject::tr("Kind"),     QObject::tr("Value"), QObject::tr("to"),
                             QObject::tr("x"),        QObject::tr("to"),    QObject::tr("Group"),
                             QObject::tr("Direction")};
  for (int k = 0; k < Columns; ++k) grid->addWidget(Heading(headings[k]), 0, k);
  int line = 1;
  for (const LoadRow& row : LoadRows()) {
    if (!row.kind.isEmpty()) grid->addWidget(new QLabel(row.kind), line, Kind_);
    for (std::size_t k = 0; k < Columns; ++k) {
      if (row.controls[k] == nullptr) continue;
      grid->addWidget(maker.Make(row.controls[k]), line, static_cast<int>(k));
    }
    ++line;
  }
  auto* column = static_cast<QVBoxLayout*>(group->layout());
  column->addLayout(grid);
  column->addLayout(Row(maker, QObject::tr("x of trapezoids:"), {on.qtxabsolute, on.qtxrelative}));
  column->addLayout(Row(maker, QObject::tr("x of point loads:"), {on.pmxabsolute, on.pmxrelative}));
  return group;
}

/// The loads of both planes, drawn as they are typed.
void AddDrawnLoads(WidgetMaker& maker, QBoxLayout* into, QWidget* window) {
  const auto add = [&](std::vector<std::string> boxes, Plane plane, double height) {
    auto* pane = new DiagramPane(maker.session(), std::move(boxes), window);
    pane->ShowLoadsOf(plane, height);
    into->addWidget(pane, qRound(height));
  };
  add({"picloadpn", "picloadvn", "picloadzp", "picloadzv"}, Plane::Z, 8);
  add({"picloadyp", "picloadyv"}, Plane::Y, 5);
}

}  // namespace

void LayOutLoading(WidgetMaker& maker, QWidget* window) {
  const LoadingControls& on = OnLoading();
  auto* all = new QVBoxLayout(window);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  left->addWidget(Loads(maker));
  left->addStretch(1);
  auto* right = new QVBoxLayout;
  right->addWidget(Factors(maker));
  // What the loads do stays in sight.
  right->addWidget(new VerdictPane(maker.session()));
  auto* lines = new QWidget;
  (new QVBoxLayout(lines))->setContentsMargins(0, 0, 0, 0);
  lines->layout()->addWidget(new ResultPane(maker.session(), ResultPane::Length::Short));
  lines->setMinimumSize(Ems(window, 26), Ems(window, 13.5));
  right->addWidget(lines, 10);
  AddDrawnLoads(maker, right, window);
  columns->addLayout(left);
  columns->addLayout(right, 1);
  all->addLayout(columns);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(maker.Make(on.remove));
  buttons->addWidget(maker.Make(on.undo));
  buttons->addStretch(1);
  buttons->addLayout(maker.ButtonRow());
  all->addLayout(buttons);
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
