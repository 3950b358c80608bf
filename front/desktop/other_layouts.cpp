// SPDX-License-Identifier: GPL-3.0-or-later
// Layouts of the optimiser, database, curve, picture, default and lateral buckling forms.
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/icons.h"
#include "front/desktop/optimiser_row.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"
#include "optimiser/optimize.h"

namespace korvane {

namespace {

QLabel* Heading(const QString& text, Qt::Alignment align = Qt::AlignRight) {
  auto* label = new QLabel(text);
  label->setAlignment(align | Qt::AlignVCenter);
  label->setForegroundRole(QPalette::PlaceholderText);
  return label;
}

template <class Controls>
QHBoxLayout* PictureRow(WidgetMaker& maker, const Controls& controls) {
  auto* row = new QHBoxLayout;
  for (const Handle control : controls) row->addWidget(maker.Make(control));
  row->addStretch(1);
  return row;
}

/// What a picture says, below it.
QLabel* Legend(const std::string& tip, const QWidget* window) {
  // A factor stays on one line.
  auto* text = new QLabel(
      QString::fromStdString(tip).replace(QStringLiteral(" = "), QStringLiteral("\u00a0=\u00a0")));
  text->setWordWrap(true);
  text->setMinimumWidth(Ems(window, 9));
  text->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
  return text;
}

}  // namespace

void LayOutCases(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* grid = new QGridLayout;
  const Forms& forms = TheForms();
  const bool y = &maker.form() == forms.bucklingY;
  int column = 0;
  for (const Handle c : (y ? forms.onBucklingY : forms.onBucklingZ).cases) {
    grid->addWidget(maker.Make(c), 0, column, Qt::AlignCenter);
    grid->addWidget(Legend(c->tip, window), 1, column++);
  }
  all->addLayout(grid);
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutOptimiser(WidgetMaker& maker, QWidget* window) {
  const OptimiserControls& on = TheForms().onOptimiser;
  auto* all = new QVBoxLayout(window);
  auto* criteria = new QHBoxLayout;
  for (const Handle criterion : {on.ULS, on.SLS, on.ULSSLS}) {
    criteria->addWidget(maker.Make(criterion));
  }
  criteria->addStretch(1);
  criteria->addWidget(maker.Caption(on.idef_limit));
  criteria->addWidget(maker.Make(on.idef_limit));
  criteria->addSpacing(Ems(window, 1));
  criteria->addWidget(maker.Make(on.oufmax));
  all->addLayout(criteria);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(window, 1));
  using Row = OptimiserControls::Row;
  const std::vector<std::pair<QString, Handle Row::*>> columns{
      {QObject::tr("Profile"), &Row::name},
      {QObject::tr("kg/m"), &Row::weight},
      {QObject::tr("m2/m"), &Row::surface},
      {QObject::tr("IR"), &Row::ir},
      {QObject::tr("Deflection"), &Row::deflection}};
  grid->addWidget(Heading(QObject::tr("Search"), Qt::AlignLeft), 0, 0);
  grid->addWidget(Heading(QObject::tr("Choose"), Qt::AlignLeft), 0, 1);
  for (std::size_t k = 0; k < columns.size(); ++k) {
    grid->addWidget(Heading(columns[k].first, k == 0 ? Qt::AlignLeft : Qt::AlignRight), 0,
                    int(k) + 2);
    grid->setColumnMinimumWidth(int(k) + 2, Ems(window, k == 0 ? 11 : 6));
  }
  const int end = int(columns.size()) + 2;
  for (int row = 1; row <= kOptimiserRows; ++row) {
    const Row& controls = on.rows[row];
    grid->addWidget(maker.Make(controls.search), row, 0);
    grid->addWidget(maker.Make(controls.choose), row, 1);
    for (std::size_t k = 0; k < columns.size(); ++k) {
      auto* label = static_cast<QLabel*>(maker.Make(controls.*columns[k].second));
      label->setAlignment((k == 0 ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter);
      grid->addWidget(label, row, int(k) + 2);
    }
    grid->addWidget(new OptimiserRowMark(maker.session(), row, window), row, end);
    grid->addWidget(maker.Make(controls.words), row, end + 1);
  }
  grid->setColumnMinimumWidth(end + 1, Ems(window, 7));
  grid->setColumnStretch(end, 1);
  all->addLayout(grid);
  maker.Stack(all, maker.Rest());
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutDatabase(WidgetMaker& maker, QWidget* window) {
  const DatabaseControls& on = TheForms().onDatabase;
  auto* all = new QHBoxLayout(window);
  QWidget* list = maker.MakeOpenList(on.list);
  list->setMinimumSize(Ems(window, 26), Ems(window, 20));
  all->addWidget(list, 1);
  auto* buttons = new QVBoxLayout;
  for (const Control* c : maker.Rest()) {
    if (c == on.close) buttons->addStretch(1);
    buttons->addWidget(maker.Make(c));
  }
  all->addLayout(buttons);
}

void LayOutCurves(WidgetMaker& maker, QWidget* window) {
  const CurveControls& on = TheForms().onCurves;
  auto* all = new QVBoxLayout(window);
  auto* grid = new QGridLayout;
  int row = 0;
  for (const auto& [list, title] : {std::pair{on.cbobcy, QObject::tr("Buckling curve, Y-axis")},
                                    std::pair{on.cbobcz, QObject::tr("Buckling curve, Z-axis")}}) {
    grid->addWidget(Heading(title), row, 0);
    grid->addWidget(maker.Make(list), row++, 1);
  }
  grid->setColumnStretch(2, 1);
  all->addLayout(grid);
  all->addLayout(PictureRow(maker, on.method));
  maker.Stack(all, maker.Rest());
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

namespace {

/// A row of pictures as they stand on the buttons, with what these say.
template <class Controls>
void AddPictures(QGridLayout* grid, const Controls& controls, const Session& session,
                 const QWidget* window) {
  const int row = grid->rowCount();
  int column = 0;
  for (const Handle c : controls) {
    auto* picture = new QToolButton;
    picture->setAutoRaise(true);
    picture->setFocusPolicy(Qt::NoFocus);
    picture->setAttribute(Qt::WA_TransparentForMouseEvents);
    const int height = Ems(picture, 3);
    picture->setIcon(PictureOf(c->sign, session.st()));
    picture->setIconSize(QSize(qRound(height * kPictureRatio), height));
    grid->addWidget(picture, row, column, Qt::AlignCenter);
    grid->addWidget(Legend(c->tip, window), row + 1, column++);
  }
}

}  // namespace

void LayOutPictures(WidgetMaker& maker, QWidget* window) {
  const Forms& forms = TheForms();
  auto* all = new QVBoxLayout(window);
  all->addWidget(maker.Make(forms.onPictures.otext));
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(Ems(window, 1));
  AddPictures(grid, forms.onMain.cbutt, maker.session(), window);
  AddPictures(grid, forms.onBucklingY.cases, maker.session(), window);
  AddPictures(grid, forms.onLateral.loadl, maker.session(), window);
  all->addLayout(grid);
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

void LayOutSetup(WidgetMaker& maker, QWidget* window) {
  auto* all = new QVBoxLayout(window);
  auto* columns = new QHBoxLayout;
  auto* left = new QVBoxLayout;
  auto* right = new QVBoxLayout;
  std::vector<const Control*> first, second;
  bool loads = false;
  for (const Control* c : maker.Rest()) {
    loads = loads || c == TheForms().onSetup.frload;
    (loads ? second : first).push_back(c);
  }
  maker.Stack(left, first);
  maker.Stack(right, second);
  left->addStretch(1);
  right->addStretch(1);
  columns->addLayout(left);
  columns->addLayout(right);
  all->addLayout(columns);
  all->addLayout(maker.ButtonRow());
}

void LayOutLateral(WidgetMaker& maker, QWidget* window) {
  const LateralControls& on = TheForms().onLateral;
  auto* all = new QVBoxLayout(window);
  const auto field = [&](QBoxLayout* into, Handle control) {
    auto* row = new QHBoxLayout;
    row->addWidget(maker.Caption(control));
    row->addWidget(maker.Make(control));
    row->addWidget(maker.Unit(control));
    row->addStretch(1);
    into->addLayout(row);
  };
  field(all, on.Cbo);
  QGroupBox* length = maker.Frame(on.frlength);
  auto* column = new QVBoxLayout(length);
  column->addLayout(PictureRow(maker, on.latbuckl));
  field(column, on.ik);
  column->addWidget(maker.Make(on.ohint2));
  all->addWidget(length);
  all->addWidget(maker.Make(on.Cfactor));
  auto* factors = new QHBoxLayout;
  for (const Handle name : {on.ic1, on.ic2, on.ic3}) {
    factors->addWidget(maker.Caption(name));
    factors->addWidget(maker.Make(name));
  }
  factors->addStretch(1);
  all->addLayout(factors);
  QGroupBox* level = maker.Frame(on.frlevel);
  column = new QVBoxLayout(level);
  column->addLayout(PictureRow(maker, on.loadl));
  field(column, on.iza);
  column->addWidget(maker.Make(on.ohint1));
  all->addWidget(level);
  auto* values = new QHBoxLayout;
  for (const auto& [name, title] :
       {std::pair{on.omdb, "Md,b ="}, std::pair{on.omdbmin, "Md,b,min ="}}) {
    values->addWidget(Heading(QString::fromUtf8(title)));
    values->addWidget(maker.Make(name));
    values->addSpacing(Ems(window, 1));
  }
  values->addWidget(maker.Make(on.osegment));
  values->addStretch(1);
  all->addLayout(values);
  all->addStretch(1);
  all->addLayout(maker.ButtonRow());
}

}  // namespace korvane
