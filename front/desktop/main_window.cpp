// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/main_window.h"

#include <QAbstractButton>
#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QSplitter>
#include <QStatusBar>
#include <algorithm>

#include "front/desktop/desktop.h"
#include "front/desktop/diagram_pane.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/theme.h"
#include "front/desktop/widget_maker.h"

namespace korvane {

namespace {

QSettings Store() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Korvane_ns"),
                   QStringLiteral("Korvane_ns"));
}

/// The usual keys beside the menus.
struct Shortcut {
  const char* command;
  const char* keys;
};
constexpr Shortcut kShortcuts[] = {{"mnunew", "Ctrl+N"},           {"mnuopen", "Ctrl+O"},
                                   {"mnusave", "Ctrl+S"},          {"mnusaveas", "Ctrl+Shift+S"},
                                   {"mnuprint11", "Ctrl+P"},       {"mnuexit", "Ctrl+Q"},
                                   {"mnurecentfile(1)", "Ctrl+1"}, {"mnurecentfile(2)", "Ctrl+2"},
                                   {"mnurecentfile(3)", "Ctrl+3"}, {"mnurecentfile(4)", "Ctrl+4"}};

}  // namespace

MainWindow::MainWindow(Desktop& desktop) : desktop_(desktop) {
  setObjectName(QStringLiteral("korvane"));
  MakeMenus();
  AddKeys();
  WidgetMaker maker(*FindForm("korvane"), desktop_.session());
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
  for (DiagramPane* plane : planes_) {
    connect(plane, &DiagramPane::Pointed, statusBar(),
            [this](const QString& text) { statusBar()->showMessage(text); });
  }
  binder_ = new FormBinder(desktop_, maker.form(), this);
  connect(&desktop_, &Desktop::Refreshed, this, &MainWindow::Refresh);
  // The field in use has been left by then: the binder hears the button first.
  connect(centralWidget()->findChild<QAbstractButton*>(QStringLiteral("cmdpic")),
          &QAbstractButton::clicked, this, &MainWindow::RaiseDiagrams);
  RestoreSizes();
}

void MainWindow::MakeMenus() {
  std::map<std::string, QMenu*> menus;
  const Form& form = *FindForm("korvane");
  const auto isParent = [&](const std::string& name) {
    for (const Control& c : form.controls) {
      if (c.kind == Kind::Menu && c.parent == name) return true;
    }
    return false;
  };
  for (const Control& c : form.controls) {
    if (c.kind != Kind::Menu) continue;
    const QString caption = QString::fromStdString(c.caption);
    QMenu* above = c.parent.empty() ? nullptr : menus[c.parent];
    if (isParent(c.name)) {
      QMenu* menu = above == nullptr ? menuBar()->addMenu(caption) : above->addMenu(caption);
      menu->menuAction()->setObjectName(QString::fromStdString(c.name));
      menus[c.name] = menu;
      // Opening some menus is an action of its own.
      connect(menu, &QMenu::aboutToShow, this, [this, name = c.name] {
        if (!desktop_.Busy()) desktop_.session().Menu(name);
      });
      continue;
    }
    auto* action = new QAction(c.caption == "-" ? QString() : caption, this);
    action->setObjectName(QString::fromStdString(c.name));
    action->setSeparator(c.caption == "-");
    connect(action, &QAction::triggered, this, [this, name = c.name] { desktop_.Command(name); });
    if (above == nullptr) {
      menuBar()->addAction(action);
    } else {
      above->addAction(action);
    }
  }
}

void MainWindow::AddKeys() {
  for (const Shortcut& s : kShortcuts) {
    QAction* action = ActionOf(s.command);
    if (action == nullptr) continue;
    action->setShortcut(QKeySequence(QString::fromUtf8(s.keys)));
    action->setShortcutContext(Qt::ApplicationShortcut);
  }
}

QAction* MainWindow::ActionOf(const std::string& command) const {
  const QString name = QString::fromStdString(command);
  for (QAction* action : findChildren<QAction*>()) {
    if (action->objectName() == name) return action;
  }
  return nullptr;
}

void MainWindow::RefreshMenus() {
  for (QAction* action : findChildren<QAction*>()) {
    const std::string name = action->objectName().toStdString();
    const Control* c = FindControl(*FindForm("korvane"), name);
    if (c == nullptr || c->kind != Kind::Menu) continue;
    if (c->visible) action->setVisible(desktop_.session().Visible("korvane." + name));
    if (c->text) {
      action->setText(QString::fromStdString(desktop_.session().Text("korvane." + name)));
    }
  }
}

void MainWindow::Refresh() {
  setWindowTitle(QString::fromStdString(desktop_.session().Title("korvane")));
  RefreshMenus();
  for (DiagramPane* plane : planes_) plane->Refresh();
  // The verdict is no control of the form.
  verdict_->Refresh();
  // No result may be taken for one of a section that it was not calculated with.
  for (Pane* pane : centralWidget()->findChildren<Pane*>()) {
    pane->SetPaled(desktop_.AwaitsCalculation());
  }
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

void MainWindow::closeEvent(QCloseEvent* event) {
  SaveSizes();
  desktop_.CloseForm("korvane");
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
  if (event->type() == QEvent::WindowActivate) desktop_.Activated("korvane");
  return QMainWindow::event(event);
}

void MainWindow::contextMenuEvent(QContextMenuEvent* event) {
  if (QAction* help = ActionOf("mnuhelp")) {
    if (help->menu() != nullptr) help->menu()->popup(event->globalPos());
  }
}

void MainWindow::RestoreSizes() {
  const QSettings store = Store();
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
  QSettings store = Store();
  store.setValue(QStringLiteral("Window/geometry"), saveGeometry());
  for (const QSplitter* splitter : splitters_) {
    store.setValue(QStringLiteral("Window/") + splitter->objectName(), splitter->saveState());
  }
}

}  // namespace korvane
