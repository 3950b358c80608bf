// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/main_window.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <QVBoxLayout>
#include <algorithm>

#include "front/desktop/desktop.h"
#include "front/desktop/diagram_pane.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/own_folder.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"
#include "front/save_words.h"

namespace korvane {

MainWindow::MainWindow(Desktop& desktop) : desktop_(desktop) {
  setObjectName(QString::fromStdString(TheForms().main->name));
  MakeMenus();
  AddKeys();
  WidgetMaker maker(*TheForms().main, desktop_.session());
  auto* split = new QSplitter(Qt::Horizontal);
  split->setObjectName(QStringLiteral("inputs_results"));
  split->setChildrenCollapsible(false);
  split->addWidget(InputColumn(maker));
  split->addWidget(ResultSide(maker));
  split->setStretchFactor(0, 0);
  split->setStretchFactor(1, 1);
  splitters_.push_back(split);
  setCentralWidget(split);
  progress_ = new QProgressBar;
  progress_->setMaximumWidth(Ems(this, 18));
  progress_->setMaximumHeight(Ems(this, 1.2));
  progress_->hide();
  statusBar()->addPermanentWidget(progress_);
  saving_ = new QLabel;
  saving_->setObjectName(QStringLiteral("saving"));
  statusBar()->addPermanentWidget(saving_);
  for (DiagramPane* plane : planes_) {
    connect(plane, &DiagramPane::Pointed, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text); });
  }
  binder_ = new FormBinder(desktop_, maker, this);
  connect(&desktop_, &Desktop::Refreshed, this, &MainWindow::Refresh);
  // The field in use has been left by then: the binder hears the button first.
  connect(static_cast<QAbstractButton*>(binder_->WidgetOf(*TheForms().onMain.cmdpic)),
          &QAbstractButton::clicked, this, &MainWindow::RaiseDiagrams);
  RestoreSizes();
}

void MainWindow::MakeMenus() {
  std::map<std::string, QMenu*> menus;
  const Form& form = *TheForms().main;
  const auto isParent = [&](const std::string& name) {
    return std::any_of(form.controls.begin(), form.controls.end(),
                       [&](const Control& c) { return c.kind == Kind::Menu && c.parent == name; });
  };
  for (const Control& c : form.controls) {
    if (c.kind != Kind::Menu) continue;
    const QString caption = QString::fromStdString(c.caption);
    QMenu* above = c.parent.empty() ? nullptr : menus[c.parent];
    QAction* action = nullptr;
    if (isParent(c.name)) {
      QMenu* menu = above == nullptr ? menuBar()->addMenu(caption) : above->addMenu(caption);
      action = menu->menuAction();
      menus[c.name] = menu;
      // Opening some menus is an action of its own.
      connect(menu, &QMenu::aboutToShow, this, [this, &c] {
        if (!desktop_.Busy()) desktop_.session().Menu(c);
      });
    } else {
      const bool separator = c.caption == "-";
      action = new QAction(separator ? QString() : caption, this);
      action->setSeparator(separator);
      connect(action, &QAction::triggered, this, [this, &c] { desktop_.Command(c); });
      if (above == nullptr) {
        menuBar()->addAction(action);
      } else {
        above->addAction(action);
      }
    }
    action->setObjectName(QString::fromStdString(c.name));
    actions_.emplace_back(&c, action);
  }
}

/// The usual keys beside the menus.
void MainWindow::AddKeys() {
  const MainControls& on = TheForms().onMain;
  const auto key = [this](const Control* command, const char* keys) {
    QAction* action = ActionOf(*command);
    action->setShortcut(QKeySequence(QString::fromUtf8(keys)));
    action->setShortcutContext(Qt::ApplicationShortcut);
  };
  key(on.mnunew, "Ctrl+N");
  key(on.mnuopen, "Ctrl+O");
  key(on.mnusave, "Ctrl+S");
  key(on.mnusaveas, "Ctrl+Shift+S");
  key(on.mnuprint11, "Ctrl+P");
  key(on.mnuexit, "Ctrl+Q");
  for (int entry = 1; entry <= kRecentFiles; ++entry) {
    key(on.mnurecentfile[entry], ("Ctrl+" + std::to_string(entry)).c_str());
  }
}

QAction* MainWindow::ActionOf(const Control& command) const {
  for (const auto& [control, action] : actions_) {
    if (control == &command) return action;
  }
  return nullptr;
}

void MainWindow::RefreshMenus() {
  const Session& s = desktop_.session();
  for (const auto& [control, action] : actions_) {
    if (control->visible) action->setVisible(s.Visible(*control));
    if (control->text) action->setText(QString::fromStdString(s.Text(*control)));
  }
}

void MainWindow::RefreshSaving() {
  const Session& s = desktop_.session();
  const QString mark = s.files().Modified() ? QStringLiteral(" *") : QString();
  setWindowTitle(QString::fromStdString(s.Title(*TheForms().main)) + mark);
  const SaveWords words = SaveWordsOf(s);
  saving_->setText(QString::fromStdString(words.text));
  QPalette colours = palette();
  if (words.failed) colours.setColor(QPalette::WindowText, ColourFor(Role::Fail, palette()));
  saving_->setPalette(colours);
}

void MainWindow::Refresh() {
  RefreshSaving();
  RefreshMenus();
  for (DiagramPane* plane : planes_) plane->Refresh();
  // The verdict is no control of the form.
  verdict_->Refresh();
  // No result may be taken for one of a section that it was not calculated with.
  const bool pale = !desktop_.session().NotCalculated().empty();
  for (Pane* pane : centralWidget()->findChildren<Pane*>()) pane->SetPaled(pale);
}

void MainWindow::ShowProgress(int done, int all) {
  progress_->setVisible(all > 0);
  if (all == 0) return;
  progress_->setMaximum(all);
  progress_->setValue(done);
  // The search blocks the input; only its own progress is painted.
  progress_->repaint();
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::ShowNotes() {
  auto* lines = static_cast<ResultPane*>(binder_->WidgetOf(*TheForms().onMain.pic31));
  if (const QRect place = lines->MarkRatio(verdict_->Figure()); !place.isEmpty()) {
    auto* scroll = qobject_cast<QScrollArea*>(lines->parentWidget()->parentWidget());
    if (scroll != nullptr) {
      scroll->ensureVisible(0, place.top(), 0, 0);
      scroll->ensureVisible(0, place.bottom(), 0, 0);
    }
  }
  auto* popup = new QDialog(this, Qt::Popup);
  popup->setObjectName(QStringLiteral("verdict_notes"));
  popup->setAttribute(Qt::WA_DeleteOnClose);
  auto* text = new QLabel(verdict_->toolTip(), popup);
  text->setWordWrap(true);
  text->setTextFormat(Qt::PlainText);
  text->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  text->setMinimumWidth(Ems(this, 36));
  (new QVBoxLayout(popup))->addWidget(text);
  popup->adjustSize();
  const QPoint corner = verdict_->mapToGlobal(QPoint(verdict_->width(), verdict_->height()));
  popup->move(corner - QPoint(popup->width(), 0));
  popup->show();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  SaveSizes();
  desktop_.CloseForm(*TheForms().main);
  event->accept();
}

void MainWindow::RaiseDiagrams() {
  raise();
  int missing = 0;
  for (DiagramPane* plane : planes_) {
    plane->Refresh();
    missing = std::max(missing, plane->minimumHeight() - plane->parentWidget()->height());
  }
  auto* rows = centralWidget()->findChild<QSplitter*>(QStringLiteral("results_diagrams"));
  const QList<int> sizes = rows->sizes();
  // The splitter keeps the least height of the results above.
  if (missing > 0) rows->setSizes({std::max(0, sizes[0] - missing), sizes[1] + missing});
  for (const DiagramPane* plane : planes_) {
    auto* scroll = qobject_cast<QScrollArea*>(plane->parentWidget()->parentWidget());
    for (const char* moments : {"picmy", "picmz"}) {
      DiagramBox* box = plane->Box(moments);
      if (scroll != nullptr && box != nullptr) scroll->ensureWidgetVisible(box, 0, 0);
    }
  }
}

bool MainWindow::event(QEvent* event) {
  if (event->type() == QEvent::WindowActivate) desktop_.Activated(*TheForms().main);
  return QMainWindow::event(event);
}

void MainWindow::contextMenuEvent(QContextMenuEvent* event) {
  ActionOf(*TheForms().onMain.mnuhelp)->menu()->popup(event->globalPos());
}

void MainWindow::RestoreSizes() {
  const QSettings store = UserSettings();
  // The first time most of the screen is taken, and never less than the smallest one offers.
  const QSize room = screen()->availableSize() * 9 / 10;
  resize(QSize(1760, 990).boundedTo(room).expandedTo(QSize(1280, 720)));
  restoreGeometry(store.value(QStringLiteral("Window/geometry")).toByteArray());
  for (QSplitter* splitter : splitters_) {
    splitter->restoreState(
        store.value(QStringLiteral("Window/") + splitter->objectName()).toByteArray());
  }
}

void MainWindow::SaveSizes() const {
  QSettings store = UserSettings();
  store.setValue(QStringLiteral("Window/geometry"), saveGeometry());
  for (const QSplitter* splitter : splitters_) {
    store.setValue(QStringLiteral("Window/") + splitter->objectName(), splitter->saveState());
  }
}

}  // namespace korvane
