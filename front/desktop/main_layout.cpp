// SPDX-License-Identifier: GPL-3.0-or-later
// Layout of the main window: inputs on the left, results and diagrams on the right.
#include <QHBoxLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "front/desktop/desktop.h"
#include "front/desktop/diagram_pane.h"
#include "front/desktop/flow_layout.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/main_window.h"
#include "front/desktop/study_buttons.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"

namespace korvane {

namespace {

/// Least width of the diagrams of a plane, ems.
constexpr double kLeastPlane = 18;
/// Least width of the inputs, which scroll to the side below their own, ems.
constexpr double kLeastInputs = 14;

QVBoxLayout* Inside(QGroupBox* group) {
  auto* column = new QVBoxLayout(group);
  const int gap = Ems(group, 0.45);
  column->setContentsMargins(gap, gap, gap, gap);
  column->setSpacing(gap);
  return column;
}

QGridLayout* FieldGrid() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(6);
  grid->setVerticalSpacing(4);
  return grid;
}

const MainControls& On() {
  return TheForms().onMain;
}

QLabel* Pair(WidgetMaker& maker, Handle control) {
  auto* label = static_cast<QLabel*>(maker.Make(control));
  label->setWordWrap(false);
  return label;
}

QGroupBox* ProjectFrame(WidgetMaker& maker) {
  auto* group = new QGroupBox(QObject::tr("Project"));
  QGridLayout* grid = FieldGrid();
  maker.FieldRow(grid, 0, On().iproj);
  maker.FieldRow(grid, 1, On().iident);
  Inside(group)->addLayout(grid);
  return group;
}

QGroupBox* MemberFrame(WidgetMaker& maker) {
  auto* group = new QGroupBox(QObject::tr("Member"));
  QVBoxLayout* column = Inside(group);
  auto* fields = new QHBoxLayout;
  const auto field = [&](Handle control) {
    fields->addWidget(maker.Caption(control));
    QWidget* edit = maker.Make(control);
    fields->addWidget(edit);
    fields->addWidget(maker.Unit(control));
    return edit;
  };
  field(On().il);
  fields->addStretch(1);
  QWidget* spring = field(On().ispring);
  spring->setFixedWidth(Ems(spring, 3.2));
  column->addLayout(fields);
  auto* supports = new QHBoxLayout;
  supports->setSpacing(3);
  for (const Handle support : On().cbutt) supports->addWidget(maker.Make(support));
  supports->addStretch(1);
  auto* distance = Pair(maker, On().oweba);
  // In two lines: the row is no wider with stiffeners than without.
  distance->setWordWrap(true);
  distance->setFixedWidth(distance->fontMetrics().horizontalAdvance(QStringLiteral("c/c=00000")));
  supports->addWidget(distance);
  supports->addWidget(maker.Make(On().cbuttsupport));
  column->addLayout(supports);
  return group;
}

QGroupBox* MaterialFrame(WidgetMaker& maker) {
  auto* group = new QGroupBox(QObject::tr("Material"));
  QGridLayout* grid = FieldGrid();
  maker.FieldRow(grid, 0, On().cbofyk);
  maker.FieldRow(grid, 1, On().ifyk);
  maker.FieldRow(grid, 2, On().ie);
  maker.FieldRow(grid, 1, On().igammam1, 4);
  auto* strength = new QHBoxLayout;
  strength->setSpacing(grid->horizontalSpacing());
  strength->addWidget(Pair(maker, On().ofyd));
  strength->addWidget(maker.Unit(On().ofyd), 1);
  grid->addLayout(strength, 0, 4, 1, 3);
  grid->setColumnStretch(3, 1);
  Inside(group)->addLayout(grid);
  return group;
}

QGroupBox* ColumnFrame(WidgetMaker& maker) {
  QGroupBox* group = maker.Frame(On().columnframe);
  QGridLayout* grid = FieldGrid();
  int row = 0;
  grid->addWidget(Pair(maker, On().oblfactor), row, 0, 1, 3);
  auto* curve = Pair(maker, On().obuckltext);
  curve->setToolTip(QString::fromStdString(On().obcauto->caption));
  grid->addWidget(curve, row++, 4, 1, 2);
  struct Axis {
    const char* name;
    Handle field, picture, letter;
    Handle angle;  // the axis of an angle section
  };
  for (const Axis& axis : {Axis{"Y", On().ibly, On().cbuttbucklingy, On().obcy, On().ouaxis},
                           Axis{"Z", On().iblz, On().cbuttbucklingz, On().obcz, On().ovaxis}}) {
    auto* name = new QLabel(QString::fromUtf8(axis.name));
    maker.Accompany(axis.field, name);
    name->setToolTip(QString::fromStdString(axis.field->caption));
    grid->addWidget(name, row, 0, Qt::AlignRight | Qt::AlignVCenter);
    grid->addWidget(maker.Make(axis.field), row, 1);
    grid->addWidget(maker.Make(axis.picture), row, 2);
    auto* angle = Pair(maker, axis.angle);
    angle->setForegroundRole(QPalette::PlaceholderText);
    grid->addWidget(angle, row, 3);
    auto* letter = Pair(maker, axis.letter);
    letter->setAlignment(Qt::AlignCenter);
    grid->addWidget(letter, row++, 4);
  }
  grid->addWidget(maker.Make(On().Command1), 1, 5, 2, 1, Qt::AlignVCenter);
  grid->setColumnStretch(3, 1);
  QVBoxLayout* column = Inside(group);
  column->addLayout(grid);
  auto* note = Pair(maker, On().obcauto);
  note->setWordWrap(true);
  note->setForegroundRole(QPalette::PlaceholderText);
  column->addWidget(note);
  return group;
}

QGroupBox* Options(WidgetMaker& maker, Handle frame, const std::vector<Handle>& options) {
  QGroupBox* group = maker.Frame(frame);
  QVBoxLayout* column = Inside(group);
  for (const Handle option : options) column->addWidget(maker.Make(option));
  return group;
}

QLayout* Lateral(WidgetMaker& maker) {
  auto* row = new QHBoxLayout;
  row->addWidget(maker.Make(On().ch_vipp));
  row->addStretch(1);
  row->addWidget(Pair(maker, On().oza));
  row->addWidget(maker.Make(On().cbuttlateral));
  return row;
}

}  // namespace

QWidget* MainWindow::InputColumn(WidgetMaker& maker) {
  auto* inputs = new QWidget;
  auto* column = new QVBoxLayout(inputs);
  const int gap = Ems(this, 0.5);
  column->setContentsMargins(gap, gap, gap, gap);
  column->setSpacing(gap);
  column->addWidget(ProjectFrame(maker));
  column->addWidget(MemberFrame(maker));
  column->addWidget(MaterialFrame(maker));
  column->addWidget(ColumnFrame(maker));
  column->addLayout(Lateral(maker));
  column->addWidget(Options(maker, On().frbuckling, {On().obuckling0, On().obuckling1}));
  column->addWidget(Options(maker, On().fr15, {On().ch_webbuck, On().ch_flangebuck}));
  column->addWidget(Options(maker, On().frsectionc, {On().osectionc0, On().osectionc1}));
  column->addWidget(maker.Make(On().ch_modal));
  auto* buttons = new QGridLayout;
  int at = 0;
  for (const Handle button : {On().cp, On().cmd_modresult, On().Picture}) {
    buttons->addWidget(maker.Make(button), 0, at++);
  }
  column->addLayout(buttons);
  column->addStretch(1);
  auto* scroll = new QScrollArea;
  scroll->setWidget(inputs);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setMinimumWidth(Ems(this, kLeastInputs));
  inputWidth_ = inputs->minimumSizeHint().width() + scroll->verticalScrollBar()->sizeHint().width();
  return scroll;
}

void MainWindow::RefreshPlanes() {
  const Session& session = desktop_.session();
  const bool z = session.Visible(*On().fr21);
  const bool y = session.Visible(*On().fr22);
  // The axial loads of a plane that has folded away stand in the other.
  std::vector<std::string> ofZ, ofY;
  if (z) ofZ = {"picloadpn", y ? "" : "picloadvn", "picloadzp", "picloadzv", "picmy", "picdz"};
  if (y) ofY = {z ? "" : "picloadpn", "picloadvn", "picloadyp", "picloadyv", "picmz", "picdy"};
  planes_[0]->SetBoxes(std::move(ofZ));
  planes_[1]->SetBoxes(std::move(ofY));
  for (DiagramPane* plane : planes_) plane->Refresh();
}

QWidget* MainWindow::Plane(WidgetMaker& maker, const Control* frame) {
  QGroupBox* group = maker.Frame(frame);
  auto* column = new QVBoxLayout(group);
  column->setContentsMargins(1, 1, 1, 1);
  auto* plane = new DiagramPane(desktop_.session(), {}, group);
  planes_.push_back(plane);
  auto* scroll = new QScrollArea;
  scroll->setWidget(plane);
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  scroll->setMinimumWidth(Ems(this, kLeastPlane));
  // The frame's caption may be wider; large letters on a small screen need the room.
  group->setMinimumWidth(Ems(this, kLeastPlane + 0.5));
  column->addWidget(scroll);
  return group;
}

QWidget* MainWindow::OptimiserPanel(WidgetMaker& maker) {
  auto* panel = new QWidget;
  auto* row = new FlowLayout(Ems(this, 0.8));
  panel->setLayout(row);
  row->addWidget(maker.Make(On().optimize));
  for (const Handle criterion : {On().ULS, On().SLS, On().ULSSLS}) {
    row->addWidget(maker.Make(criterion));
  }
  auto* together = new QWidget;
  auto* pair = new QHBoxLayout(together);
  pair->setContentsMargins(0, 0, 0, 0);
  pair->addWidget(maker.Caption(On().idef_limit));
  auto* limit = maker.Make(On().idef_limit);
  limit->setFixedWidth(Ems(this, 4));
  pair->addWidget(limit);
  row->addWidget(together);
  // The row keeps its height when the options come and go.
  panel->setMinimumHeight(limit->sizeHint().height());
  return panel;
}

QLayout* MainWindow::Head(WidgetMaker& maker) {
  auto* head = new QHBoxLayout;
  head->setSpacing(Ems(this, 1));
  // Title and views stand beside each other where the verdict leaves them the room.
  auto* section = new FlowLayout(Ems(this, 0.5));
  auto* title = static_cast<QLabel*>(maker.Make(On().obeam));
  QFont large = title->font();
  large.setPixelSize(Ems(this, 1.7));
  large.setBold(true);
  title->setFont(large);
  section->addWidget(title);
  for (const Handle view : {On().cmdpic, On().de}) section->addWidget(maker.Make(view));
  AddStudyButtons(desktop_, section);
  head->addLayout(section, 1);
  verdict_ = new VerdictPane(desktop_.session());
  head->addWidget(verdict_, 1);
  connect(verdict_, &Pane::Clicked, this, &MainWindow::ShowNotes);
  return head;
}

QWidget* MainWindow::ResultSide(WidgetMaker& maker) {
  auto* side = new QWidget;
  auto* column = new QVBoxLayout(side);
  const int gap = Ems(this, 0.5);
  column->setContentsMargins(0, gap, gap, gap);
  column->setSpacing(gap);
  column->addLayout(Head(maker));

  auto* top = new QSplitter(Qt::Horizontal);
  top->setObjectName(QStringLiteral("figure_results"));
  top->addWidget(maker.Make(On().pic1));
  QGroupBox* results = maker.Frame(On().fr31);
  auto* inside = new QVBoxLayout(results);
  inside->setContentsMargins(1, 1, 1, 1);
  auto* scroll = new QScrollArea;
  scroll->setWidget(maker.Make(On().pic31));
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  inside->addWidget(scroll);
  top->addWidget(results);
  top->setStretchFactor(0, 1);
  top->setStretchFactor(1, 3);

  auto* planes = new QSplitter(Qt::Horizontal);
  planes->setObjectName(QStringLiteral("planes"));
  for (const Handle plane : {On().fr21, On().fr22}) planes->addWidget(Plane(maker, plane));

  auto* rows = new QSplitter(Qt::Vertical);
  rows->setObjectName(QStringLiteral("results_diagrams"));
  rows->addWidget(top);
  rows->addWidget(planes);
  rows->setStretchFactor(0, 2);
  rows->setStretchFactor(1, 3);
  top->setSizes({Ems(this, 26), Ems(this, 52)});
  rows->setSizes({Ems(this, 22), Ems(this, 36)});
  for (QSplitter* s : {top, planes, rows}) {
    s->setChildrenCollapsible(false);
    splitters_.push_back(s);
  }
  column->addWidget(rows, 1);
  column->addWidget(OptimiserPanel(maker));
  return side;
}

}  // namespace korvane
