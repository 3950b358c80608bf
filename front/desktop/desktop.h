// SPDX-License-Identifier: GPL-3.0-or-later
// The running desktop: every action goes through here to the session, and the windows follow.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <string>

#include "front/failure_report.h"
#include "front/session.h"

namespace korvane {

class FormBinder;
class FormWindow;
class MainWindow;

class Desktop : public QObject {
  Q_OBJECT

public:
  /// The session must outlive the desktop and has been started.
  explicit Desktop(Session& session);
  ~Desktop() override;

  Session& session() { return session_; }
  MainWindow& window() { return *main_; }
  /// The window of a form beside the main window, made on demand; null for the main form.
  FormWindow* WindowOf(const Form& form);

  /// Runs one action of the person on the session; then all windows show the session anew and
  /// the focus goes where the session wants it. An arithmetic failure ends the program with a
  /// report. Actions inside an action are not started.
  void Act(const std::function<void()>& action);
  bool Busy() const { return busy_ > 0; }
  /// Leaves the field in which somebody has typed. False when its value is refused.
  bool Commit();
  /// A control is operated, after the field in use has been left.
  void Click(const Control& control);
  void Select(const Control& list, int index);
  void Command(const Control& command);
  /// A window came to the front.
  void Activated(const Form& form);
  void CloseForm(const Form& form);
  void OpenFile(const QString& path);

  void Attach(FormBinder* binder);
  void Detach(FormBinder* binder);
  /// All windows show the session anew.
  void Refresh();

signals:
  /// The session was shown anew.
  void Refreshed();
  void Ended();
  /// An arithmetic failure outside a text field: what a person has to know before the end.
  void Failed(const korvane::FailureReport& report);

private:
  void SyncWindows();
  void PlaceFocus();
  void Report(const char* what);

  Session& session_;
  int busy_ = 0;
  bool ended_ = false;
  bool popup_ = false;        ///< the window in front was a dialog or message box
  bool modalClosed_ = false;  ///< by the action that runs
  const Form* front_ = nullptr;
  std::vector<FormBinder*> binders_;
  std::map<const Form*, FormWindow*> windows_;
  std::unique_ptr<MainWindow> main_;
};

}  // namespace korvane
