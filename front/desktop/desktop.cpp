// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/desktop.h"

#include <QApplication>
#include <QWindow>
#include <utility>

#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/main_window.h"

namespace korvane {

Desktop::Desktop(Session& session) : session_(session) {
  main_ = std::make_unique<MainWindow>(*this);
  connect(qApp, &QGuiApplication::focusWindowChanged, this, [this](QWindow* window) {
    // A dialog on top is no change of the window: the form below does not gain the focus anew.
    if (window == nullptr) return;
    const QWidget* active = QApplication::activeWindow();
    popup_ = active != nullptr && active != main_.get() &&
             qobject_cast<const FormWindow*>(active) == nullptr;
  });
  Refresh();
}

Desktop::~Desktop() {
  ++busy_;
  for (auto& [form, window] : windows_) delete window;
}

FormWindow* Desktop::WindowOf(const Form& form) {
  if (&form == TheForms().main) return nullptr;
  FormWindow*& window = windows_[&form];
  if (window == nullptr) window = new FormWindow(*this, form, main_.get());
  return window;
}

void Desktop::Act(const std::function<void()>& action) {
  if (busy_ > 0 || ended_) return;
  ++busy_;
  try {
    action();
  } catch (const ArithmeticFault& fault) {
    Report(fault.what());
  }
  if (session_.Ended()) {
    ended_ = true;
    --busy_;
    emit Ended();
    return;
  }
  Refresh();
  PlaceFocus();
  --busy_;
  // The main window was active again while the action still ran.
  if (std::exchange(modalClosed_, false) && &session_.Top() == TheForms().main) {
    Activated(*TheForms().main);
  }
}

bool Desktop::Commit() {
  const Control* field = session_.FocusedField();
  if (field == nullptr) return true;
  bool accepted = true;
  // The field keeps the focus on the screen; it is in use again with the next key.
  Act([&] { accepted = session_.Leave(*field); });
  return accepted;
}

void Desktop::Click(const Control& control) {
  if (Busy() || !Commit()) return;
  Act([&] { session_.Click(control); });
}

void Desktop::Select(const Control& list, int index) {
  if (Busy() || !Commit()) return;
  Act([&] { session_.Select(list, index); });
}

void Desktop::Command(const Control& command) {
  // Nothing that stands in a field may keep the program from ending.
  if (Busy() || (&command != TheForms().onMain.mnuexit && !Commit())) return;
  Act([&] { session_.Menu(command); });
}

void Desktop::Activated(const Form& form) {
  if (Busy() || ended_) return;
  if (popup_) {
    popup_ = false;
    return;
  }
  const Control* field = session_.FocusedField();
  if (field != nullptr && field->form != &form && !Commit()) return;
  const bool top = &session_.Top() == &form;
  if (!session_.IsOpen(form) || (top && &form != TheForms().main)) return;
  Act([&] { session_.Focus(form); });
}

void Desktop::CloseForm(const Form& form) {
  Act([&] { session_.Close(form); });
}

void Desktop::OpenFile(const QString& path) {
  Act([&] { session_.files().OpenPath(path.toStdString()); });
}

void Desktop::Attach(FormBinder* binder) {
  binders_.push_back(binder);
}

void Desktop::Detach(FormBinder* binder) {
  std::erase(binders_, binder);
}

void Desktop::Refresh() {
  ++busy_;
  SyncWindows();
  for (FormBinder* binder : binders_) {
    if (session_.IsOpen(binder->form())) binder->Refresh();
  }
  emit Refreshed();
  --busy_;
}

void Desktop::SyncWindows() {
  for (auto& [form, window] : windows_) {
    if (session_.IsOpen(*form) || !window->isVisible()) continue;
    modalClosed_ = modalClosed_ || form->modal;
    window->hide();
  }
  for (const Form* form : session_.OpenForms()) {
    FormWindow* window = WindowOf(*form);
    if (window == nullptr) continue;
    window->setWindowTitle(QString::fromStdString(session_.Title(*form)));
    if (!window->isVisible()) window->show();
  }
  const Form* top = &session_.Top();
  if (top != front_) {
    if (FormWindow* window = WindowOf(*top)) {
      window->raise();
      // Two windows that each ask for the front while the other one gets it would never end.
      if (!window->isActiveWindow()) window->activateWindow();
    }
  }
  front_ = top;
}

void Desktop::PlaceFocus() {
  const Control* field = session_.FocusedField();
  if (field == nullptr) return;
  for (FormBinder* binder : binders_) {
    if (&binder->form() == field->form) binder->TakeFocus(*field);
  }
}

void Desktop::Report(const char* what) {
  const FailureReport report = ReportOf(session_, what);
  session_.End();
  emit Failed(report);
}

}  // namespace korvane
