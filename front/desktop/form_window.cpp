// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/form_window.h"

#include <QApplication>
#include <QClipboard>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>

#include "front/copied_tables.h"
#include "front/desktop/desktop.h"
#include "front/desktop/diagram_pane.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/own_folder.h"
#include "front/desktop/size_list.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"

namespace korvane {

namespace {

using LayOut = void (*)(WidgetMaker&, QWidget*);

LayOut LayOutOf(const Form& form) {
  const Forms& forms = TheForms();
  const std::pair<const Form*, LayOut> own[] = {
      {forms.loading, LayOutLoading},     {forms.endForces, LayOutEndForces},
      {forms.optimiser, LayOutOptimiser}, {forms.database, LayOutDatabase},
      {forms.curves, LayOutCurves},       {forms.pictures, LayOutPictures},
      {forms.setup, LayOutSetup},         {forms.lateral, LayOutLateral},
      {forms.bucklingY, LayOutCases},     {forms.bucklingZ, LayOutCases}};
  for (const auto& [which, layOut] : own) {
    if (which == &form) return layOut;
  }
  return form.family != 0 ? LayOutFamily : LayOutStacked;
}

}  // namespace

FormWindow::FormWindow(Desktop& desktop, const Form& form, QWidget* parent)
    : QDialog(parent), desktop_(desktop), form_(form) {
  setObjectName(QString::fromStdString(form.name));
  setModal(form.modal);
  WidgetMaker maker(form, desktop.session());
  auto* controls = new QWidget;
  LayOutOf(form)(maker, controls);
  scroll_ = new QScrollArea;
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setWidgetResizable(true);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(controls);
  controls->installEventFilter(this);
  auto* all = new QVBoxLayout(this);
  all->setContentsMargins(0, 0, 0, 0);
  all->addWidget(scroll_);
  binder_ = new FormBinder(desktop, maker, this);
  if (form.values) {
    for (SizeList* list : findChildren<SizeList*>()) list->installEventFilter(this);
  }
  // Drawings that are no control of the form follow the session too.
  connect(&desktop, &Desktop::Refreshed, this, [this] {
    if (!isVisible()) return;
    for (DiagramPane* pane : findChildren<DiagramPane*>()) pane->Refresh();
    const bool awaits = !desktop_.session().NotCalculated().empty();
    for (Pane* pane : findChildren<Pane*>()) {
      pane->SetPaled(awaits);
      // A control's pane has been refreshed by the binder.
      if (FindControl(form_, pane->objectName().toStdString()) == nullptr) {
        pane->Refresh();
      } else {
        pane->update();
      }
    }
    // The values of a family's form are those of the section before until a size is chosen.
    for (ValueLabel* value : findChildren<ValueLabel*>()) {
      value->setForegroundRole(awaits ? QPalette::Mid : QPalette::WindowText);
    }
  });
}

QSize FormWindow::sizeHint() const {
  const QSize whole = scroll_->widget()->sizeHint();
  const QSize room = screen()->availableSize() - kWindowFrame;
  QSize fits = whole.boundedTo(room);
  // A bar takes room of its own from what is seen.
  if (fits.height() < whole.height()) fits.rwidth() += scroll_->verticalScrollBar()->width();
  if (fits.width() < whole.width()) fits.rheight() += scroll_->horizontalScrollBar()->height();
  return fits.boundedTo(room);
}

void FormWindow::contextMenuEvent(QContextMenuEvent* event) {
  if (!form_.values) return QDialog::contextMenuEvent(event);
  QMenu menu;
  menu.addAction(tr("Copy values as a table"), QKeySequence::Copy, this, &FormWindow::CopyValues);
  menu.exec(event->globalPos());
}

void FormWindow::CopyValues() {
  QApplication::clipboard()->setText(QString::fromStdString(ValueTable(desktop_.session(), form_)));
}

void FormWindow::FitContent() {
  // A person who made the window smaller wants it so.
  if (!placed_ || size().width() < fitted_.width() || size().height() < fitted_.height()) return;
  const QSize room = screen()->availableSize() - kWindowFrame;
  fitted_ = scroll_->widget()->minimumSizeHint().boundedTo(room);
  if (const QSize wanted = size().expandedTo(fitted_); wanted != size()) resize(wanted);
}

bool FormWindow::eventFilter(QObject* watched, QEvent* event) {
  if (watched == scroll_->widget()) {
    // Values come and go with the section, and need their room.
    if (event->type() == QEvent::LayoutRequest) {
      QMetaObject::invokeMethod(this, &FormWindow::FitContent, Qt::QueuedConnection);
    }
    return false;
  }
  // The list of sizes would copy the name of the marked one.
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    CopyValues();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  if (form_.values && event->matches(QKeySequence::Copy)) return CopyValues();
  QDialog::keyPressEvent(event);
}

void FormWindow::hideEvent(QHideEvent* event) {
  if (!event->spontaneous() && pos() != placedAt_) {
    QSettings store = UserSettings();
    store.setValue(PlaceKey(), saveGeometry());
  }
  QDialog::hideEvent(event);
}

QString FormWindow::PlaceKey() const {
  return QStringLiteral("Window/form-") + objectName();
}

void FormWindow::closeEvent(QCloseEvent* event) {
  desktop_.CloseForm(form_);
  if (desktop_.session().IsOpen(form_)) {
    event->ignore();
  } else {
    event->accept();
  }
}

void FormWindow::showEvent(QShowEvent* event) {
  const bool first = !placed_;
  placed_ = true;
  if (first && !event->spontaneous()) {
    FitContent();  // the place goes by the size
    Place();
  }
  QDialog::showEvent(event);
  if (!first) return;
  placedAt_ = pos();
  FitContent();
}

void FormWindow::Place() {
  // Where a person has put it, as far as the screens still have that place.
  const QByteArray kept = UserSettings().value(PlaceKey()).toByteArray();
  if (!kept.isEmpty() && restoreGeometry(kept)) return;
  const QRect room = screen()->availableGeometry();
  const QWidget* main = parentWidget();
  // The frame that the window manager gives the main window is what this window gets too.
  const QSize frame = main->frameGeometry().size() - main->size();
  QRect place(QPoint(), size() + frame);
  if (&form_ == TheForms().setup) {
    place.moveCenter(room.center());
  } else {
    // Over the diagrams: inputs and result lines stay in sight.
    const int gap = Ems(this, 1);
    place.moveBottomRight(main->frameGeometry().bottomRight() - QPoint(gap, gap));
  }
  move(std::max(room.left(), place.left()), std::max(room.top(), place.top()));
}

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) desktop_.Activated(form_);
  return QDialog::event(event);
}

void LayOutStacked(WidgetMaker& maker, QWidget* window) {
  auto* column = new QVBoxLayout(window);
  maker.Stack(column, maker.Rest());
  column->addStretch(0);
  column->addLayout(maker.ButtonRow());
}

}  // namespace korvane
