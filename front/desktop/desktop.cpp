// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/desktop.h"

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QStandardPaths>
#include <QWindow>

#include "core/project_file.h"
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
  for (auto& [name, window] : windows_) delete window;
}

FormWindow* Desktop::WindowOf(const std::string& form) {
  if (form == "korvane") return nullptr;
  if (const auto it = windows_.find(form); it != windows_.end()) return it->second;
  const Form* table = FindForm(form);
  if (table == nullptr) return nullptr;
  auto* window = new FormWindow(*this, *table, main_.get());
  windows_[form] = window;
  return window;
}

void Desktop::Act(const std::function<void()>& action) {
  if (busy_ > 0 || ended_) return;
  ++busy_;
  try {
    action();
  } catch (const CalculationFault& fault) {
    Report(fault.Step(), fault.what());
  } catch (const ArithmeticFault& fault) {
    Report({}, fault.what());
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
}

bool Desktop::Leave(const std::string& key) {
  return session_.Leave(key);
}

bool Desktop::Commit() {
  const std::string key = session_.FocusedField();
  if (key.empty() || !session_.Green(key)) return true;
  bool accepted = true;
  Act([&] {
    accepted = Leave(key);
    // The field keeps the focus on the screen; it is in use again with the next key.
  });
  return accepted;
}

void Desktop::Click(const std::string& key) {
  if (Busy() || !Commit()) return;
  Act([&] { session_.Click(key); });
}

void Desktop::Select(const std::string& key, int index) {
  if (Busy() || !Commit()) return;
  Act([&] { session_.Select(key, index); });
}

void Desktop::Command(const std::string& menu) {
  // Nothing that stands in a field may keep the program from ending.
  if (Busy() || (menu != "mnuexit" && !Commit())) return;
  Act([&] { session_.Menu(menu); });
}

void Desktop::Activated(const std::string& form) {
  if (Busy() || ended_) return;
  if (popup_) {
    popup_ = false;
    return;
  }
  const std::string field = session_.FocusedField();
  if (!field.empty() && field.rfind(form + ".", 0) != 0 && !Commit()) return;
  const bool top = !session_.OpenForms().empty() && session_.OpenForms().back() == form;
  if (!session_.IsOpen(form) || (top && form != "korvane")) return;
  Act([&] { session_.Focus(form); });
}

void Desktop::CloseForm(const std::string& form) {
  Act([&] { session_.Close(form); });
}

void Desktop::OpenFile(const QString& path) {
  Act([&] { session_.OpenPath(path.toStdString()); });
}

void Desktop::Attach(FormBinder* binder) {
  binders_[binder->form().name] = binder;
}

void Desktop::Detach(FormBinder* binder) {
  std::erase_if(binders_, [&](const auto& entry) { return entry.second == binder; });
}

void Desktop::Refresh() {
  ++busy_;
  SyncWindows();
  CompareSection();
  for (auto& [name, binder] : binders_) {
    if (session_.IsOpen(name)) binder->Refresh();
  }
  emit Refreshed();
  --busy_;
}

void Desktop::CompareSection() {
  const std::string section = session_.Text("korvane.obeam");
  // The main window's own search composes its results anew.
  const bool aside = !session_.OpenForms().empty() && session_.OpenForms().back() != "korvane";
  awaits_ = aside && session_.Calculations() == calculation_ && section != section_;
  if (awaits_) return;
  section_ = section;
  calculation_ = session_.Calculations();
}

void Desktop::SyncWindows() {
  for (auto& [name, window] : windows_) {
    if (!session_.IsOpen(name) && window->isVisible()) window->hide();
  }
  for (const std::string& name : session_.OpenForms()) {
    FormWindow* window = WindowOf(name);
    if (window == nullptr) continue;
    window->setWindowTitle(QString::fromStdString(session_.Title(name)));
    if (!window->isVisible()) window->show();
  }
  const std::string top = session_.OpenForms().empty() ? "" : session_.OpenForms().back();
  if (top != front_ && !top.empty()) {
    if (FormWindow* window = WindowOf(top)) {
      window->raise();
      window->activateWindow();
    }
  }
  front_ = top;
}

void Desktop::PlaceFocus() {
  const std::string key = session_.FocusedField();
  if (key.empty()) return;
  const auto dot = key.find('.');
  const auto it = binders_.find(key.substr(0, dot));
  if (it != binders_.end()) it->second->TakeFocus(key.substr(dot + 1));
}

void Desktop::Report(const std::string& step, const char* what) {
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  folder.mkpath(QStringLiteral("."));
  const QString path =
      folder.filePath(QStringLiteral("recovery-") +
                      QDateTime::currentDateTime().toString(QStringLiteral("yyyyMMdd-hhmmss")) +
                      QStringLiteral(".kvn"));
  const bool saved(SaveProject(path.toStdString(), session_.st()));
  QString text = tr("The calculation failed in the step %1 and the program ends.")
                     .arg(QString::fromStdString(step.empty() ? std::string(what) : step));
  text += QStringLiteral("\n\n");
  text += saved ? tr("The project as it stands was written to\n%1\nOpen it with File, Open, and "
                     "change the last input.")
                      .arg(path)
                : tr("The project could not be written to\n%1").arg(path);
  session_.End();
  emit Failed(text);
}

}  // namespace korvane
