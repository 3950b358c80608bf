// SPDX-License-Identifier: GPL-3.0-or-later
// The running desktop: every action goes through here to the session, and the windows follow.
#pragma once

#include <QObject>
#include <QPointer>
#include <functional>
#include <map>
#include <string>

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
  /// The window of a form, made on demand; null for korvane and unknown forms.
  FormWindow* WindowOf(const std::string& form);

  /// Runs one action of the person on the session; then all windows show the session anew and
  /// the focus goes where the session wants it. An arithmetic failure ends the program with a
  /// report. Actions inside an action are not started.
  void Act(const std::function<void()>& action);
  bool Busy() const { return busy_ > 0; }
  /// Leaves the field in which somebody has typed. False when its value is refused.
  bool Commit();
  /// A control is operated, after the field in use has been left.
  void Click(const std::string& key);
  void Select(const std::string& key, int index);
  void Command(const std::string& menu);
  /// A window came to the front.
  void Activated(const std::string& form);
  void CloseForm(const std::string& form);
  void OpenFile(const QString& path);

  void Attach(FormBinder* binder);
  void Detach(FormBinder* binder);
  /// All windows show the session anew.
  void Refresh();
  /// Whether a form has put another section in force and no calculation has followed yet: a
  /// search of the optimiser, a family's command.
  bool AwaitsCalculation() const { return awaits_; }

signals:
  /// The session was shown anew.
  void Refreshed();
  void Ended();
  /// An arithmetic failure outside a text field: what a person has to know before the end.
  void Failed(const QString& report);

private:
  bool Leave(const std::string& key);
  void SyncWindows();
  void CompareSection();
  void PlaceFocus();
  void Report(const std::string& step, const char* what);

  Session& session_;
  int busy_ = 0;
  bool ended_ = false;
  bool popup_ = false;  ///< the window in front was a dialog or message box
  std::string front_;
  bool awaits_ = false;
  std::string section_;   ///< that the last calculation was of
  int calculation_ = -1;  ///< its number
  std::map<std::string, FormBinder*> binders_;
  std::map<std::string, FormWindow*> windows_;
  std::unique_ptr<MainWindow> main_;
};

}  // namespace korvane
