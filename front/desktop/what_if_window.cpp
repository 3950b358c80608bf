// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/what_if_window.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>

#include "front/desktop/chart_pane.h"
#include "front/desktop/desktop.h"
#include "front/desktop/theme.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

QString Q(const std::string& text) {
  return QString::fromStdString(text);
}

QLineEdit* RangeField(const char* name, const QString& what, const QWidget* window) {
  auto* field = new QLineEdit;
  field->setObjectName(QString::fromUtf8(name));
  field->setAccessibleName(what);
  field->setToolTip(what);
  field->setFixedWidth(Ems(window, 6));
  return field;
}

}  // namespace

WhatIfWindow::WhatIfWindow(Desktop& desktop, QWidget* parent)
    : QDialog(parent), desktop_(desktop), whatIf_(desktop.session()) {
  setObjectName(QStringLiteral("whatif"));
  setWindowTitle(tr("What if"));
  auto* rows = new QVBoxLayout(this);
  tabs_ = new QTabWidget;
  tabs_->setObjectName(QStringLiteral("tabs"));
  tabs_->addTab(CurvesTab(), tr("&Curves"));
  tabs_->addTab(InteractionTab(), tr("&Interaction diagram"));
  rows->addWidget(tabs_, 1);
  rows->addWidget(Foot());
  resize(QSize(Ems(this, 110), Ems(this, 60)).boundedTo(screen()->availableSize() * 0.95));
  connect(&desktop_, &Desktop::Refreshed, this, &WhatIfWindow::Follow);
  ShowRange();
  ShowCurves();
  input_->setFocus();
}

QWidget* WhatIfWindow::CurvesTab() {
  auto* tab = new QWidget;
  auto* column = new QVBoxLayout(tab);
  auto* row = new QHBoxLayout;
  const auto caption = [&](const QString& text, QWidget* of) {
    auto* label = new QLabel(text);
    label->setBuddy(of);
    row->addWidget(label);
    row->addWidget(of);
  };
  input_ = new QComboBox;
  input_->setObjectName(QStringLiteral("input"));
  input_->setAccessibleName(tr("Input to vary"));
  input_->setToolTip(tr("The input that is varied; type to find one"));
  for (const std::string& name : WhatIf::Inputs()) input_->addItem(Q(name));
  input_->setEditable(true);
  input_->setInsertPolicy(QComboBox::NoInsert);
  input_->completer()->setFilterMode(Qt::MatchContains);
  input_->completer()->setCompletionMode(QCompleter::PopupCompletion);
  input_->setMinimumWidth(Ems(this, 12));
  caption(tr("&Vary"), input_);
  from_ = RangeField("from", tr("From this value on"), this);
  to_ = RangeField("to", tr("Up to this value"), this);
  caption(tr("&from"), from_);
  caption(tr("&to"), to_);
  unit_ = new QLabel;
  unit_->setForegroundRole(QPalette::PlaceholderText);
  unit_->setMinimumWidth(Ems(this, 4));
  row->addWidget(unit_);
  row->addStretch(1);
  drawn_ = new QComboBox;
  drawn_->setObjectName(QStringLiteral("drawn"));
  drawn_->setAccessibleName(tr("What is drawn"));
  drawn_->addItems({tr("each check"), tr("greatest ratio"), tr("deflection")});
  caption(tr("&Draw"), drawn_);
  sls_ = new QCheckBox(tr("with the deflection &limit"));
  sls_->setObjectName(QStringLiteral("sls"));
  sls_->setToolTip(tr("What passes holds the deflection limit too"));
  row->addWidget(sls_);
  column->addLayout(row);
  curves_ = new ChartPane(
      desktop_.session(),
      [this](DrawingTarget& target, const Box& place, double letters) {
        DrawChart(target, place, whatIf_.CurvesDrawn(), letters);
      },
      tr("What if"));
  curves_->setObjectName(QStringLiteral("curves"));
  column->addWidget(curves_, 1);
  connect(input_, &QComboBox::textActivated, this, &WhatIfWindow::ChooseInput);
  connect(input_->lineEdit(), &QLineEdit::editingFinished, this,
          [this] { ChooseInput(input_->currentText()); });
  for (QLineEdit* field : {from_, to_}) {
    connect(field, &QLineEdit::textEdited, this, &WhatIfWindow::ReadRange);
    connect(field, &QLineEdit::editingFinished, this, &WhatIfWindow::ShowRange);
  }
  connect(drawn_, &QComboBox::currentIndexChanged, this, [this](int index) {
    whatIf_.Draw(static_cast<Drawn>(index));
    ShowCurves();
  });
  connect(sls_, &QCheckBox::toggled, this, [this](bool on) {
    whatIf_.HoldDeflections(on);
    ShowCurves();
  });
  connect(curves_, &ChartPane::Pointed, this, &WhatIfWindow::ShowValues);
  return tab;
}

QWidget* WhatIfWindow::InteractionTab() {
  interaction_ = new ChartPane(
      desktop_.session(),
      [this](DrawingTarget& target, const Box& place, double letters) {
        DrawInteraction(target, place, whatIf_.Interaction(), whatIf_.Limit(), letters);
      },
      tr("Interaction diagram"));
  interaction_->setObjectName(QStringLiteral("interaction"));
  interaction_->setAccessibleName(
      tr("Interaction diagrams of the section: where its control reaches the limit"));
  return interaction_;
}

QWidget* WhatIfWindow::Foot() {
  auto* foot = new QWidget;
  auto* row = new QHBoxLayout(foot);
  row->setContentsMargins(0, 0, 0, 0);
  words_ = new QLabel;
  words_->setObjectName(QStringLiteral("words"));
  words_->setWordWrap(true);
  words_->setTextInteractionFlags(Qt::TextSelectableByMouse);
  words_->setMinimumHeight(2 * fontMetrics().lineSpacing());
  row->addWidget(words_, 1);
  const auto button = [&](const char* name, const QString& text, auto&& click) {
    auto* b = new QPushButton(text);
    b->setObjectName(QString::fromUtf8(name));
    b->setAutoDefault(false);
    connect(b, &QPushButton::clicked, this, click);
    row->addWidget(b, 0, Qt::AlignBottom);
  };
  button("save", tr("&Save..."), [this] { PaneInFront().AskSave(); });
  button("print", tr("&Print..."), [this] { PaneInFront().AskPrint(); });
  button("copy", tr("C&opy"), [this] { PaneInFront().Copy(); });
  button("close", tr("Clos&e"), [this] { close(); });
  return foot;
}

ChartPane& WhatIfWindow::PaneInFront() const {
  return tabs_->currentIndex() == 0 ? *curves_ : *interaction_;
}

void WhatIfWindow::Open() {
  show();
  raise();
  activateWindow();
}

void WhatIfWindow::showEvent(QShowEvent* event) {
  Follow();
  QDialog::showEvent(event);
}

void WhatIfWindow::Follow() {
  if (!isVisible()) return;
  // What isn't the result of the state in force is pale.
  const std::string why = desktop_.session().NotCalculated();
  for (ChartPane* pane : {curves_, interaction_}) pane->SetPaled(!why.empty());
  if (!why.empty()) {
    words_->setText(Q(why));
    return;
  }
  whatIf_.Follow();
  ShowRange();
  ShowCurves();
}

void WhatIfWindow::ShowCurves() {
  unit_->setText(QString::fromUtf8(UnitOf(whatIf_.question().input)));
  const QString words = Q(desktop_.session().OnScreen(whatIf_.Words()));
  words_->setText(words);
  curves_->setAccessibleName(words);
  curves_->update();
  interaction_->update();
}

void WhatIfWindow::ShowRange() {
  const Session& s = desktop_.session();
  const auto show = [&](QLineEdit* field, double value) {
    if (!field->hasFocus() || !field->isModified()) {
      field->setText(Q(s.OnScreen(Digits(float32(value).Single()))));
    }
    field->setPalette(palette());
  };
  show(from_, whatIf_.question().low);
  show(to_, whatIf_.question().high);
  if (!input_->lineEdit()->isModified()) {
    input_->setCurrentText(Q(whatIf_.question().input.name));
  }
}

void WhatIfWindow::ChooseInput(const QString& text) {
  input_->lineEdit()->setModified(false);
  const std::string name = text.trimmed().toStdString();
  if (name == whatIf_.question().input.name) return;
  // A name that is none leaves the one before.
  if (whatIf_.Vary(name)) ShowCurves();
  ShowRange();
}

void WhatIfWindow::ReadRange() {
  // Both decimal marks are read.
  const auto read = [](const QLineEdit* field, bool& good) {
    QString text = field->text().trimmed();
    return text.replace(QLatin1Char(','), QLatin1Char('.')).toDouble(&good);
  };
  bool from = false;
  bool to = false;
  const double low = read(from_, from);
  const double high = read(to_, to);
  const bool good = from && to && whatIf_.Look(low, high);
  QPalette colours = palette();
  if (!good) colours.setColor(QPalette::Text, ColourFor(Role::Fail, colours));
  for (QLineEdit* field : {from_, to_}) field->setPalette(colours);
  if (good) ShowCurves();
}

void WhatIfWindow::ShowValues(double x) {
  const std::string values =
      x < 0 ? std::string()
            : whatIf_.ValuesAt(
                  ValueAcross(curves_->Place(), whatIf_.CurvesDrawn(), curves_->Letters(), x));
  words_->setText(Q(desktop_.session().OnScreen(values.empty() ? whatIf_.Words() : values)));
}

}  // namespace korvane
