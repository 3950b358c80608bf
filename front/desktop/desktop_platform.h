// SPDX-License-Identifier: GPL-3.0-or-later
// The platform of the windows: settings, dialogs, message boxes, printer and clock of Qt.
#pragma once

#include <QLocale>
#include <QObject>
#include <QPointer>
#include <QPrinter>
#include <QStringList>
#include <QWidget>
#include <memory>

#include "front/platform.h"
#include "presentation/aprint.h"

namespace korvane {

/// Whether fields show a decimal comma under a locale.
bool WritesComma(const QLocale& locale);

class DesktopPlatform : public QObject, public Platform {
  Q_OBJECT

public:
  DesktopPlatform();
  /// The window that dialogs belong to.
  void SetWindow(QWidget* window) { window_ = window; }
  /// Whether messages are waiting for their box.
  bool HasMessages() const { return !waiting_.isEmpty(); }

  std::string Setting(const std::string& key) override;
  void SetSetting(const std::string& key, const std::string& value) override;
  std::optional<std::string> AskOpen(const std::string& filter,
                                     const std::string& extension) override;
  std::optional<std::string> AskSave(const std::string& filter,
                                     const std::string& extension) override;
  bool AskOverwrite(const std::string& path) override;
  /// The box comes up when the action that said so is over and its result is on the screen.
  void Message(const std::string& text) override;
  void Beep() override;
  std::optional<PrintJob> AskPrint() override;
  void Print(const Design& design, int kind, const PrintJob& job) override;
  void OpenHelp(const std::string& file) override;
  DateTime Now() override;
  void WaitCursor(bool on) override;
  void Progress(int done, int all) override;

signals:
  /// A search has come so far; all is 0 when it has ended.
  void Progressed(int done, int all);
  void HelpWanted(const QString& file);

private slots:
  void ShowMessages();

private:
  /// The window in front, which a dialog belongs to.
  QWidget* Owner() const;
  std::optional<std::string> AskFile(bool save, const std::string& filter,
                                     const std::string& extension);
  /// A PDF is painted into memory and written as every other file, by the same routines as the
  /// console program's.
  void PrintToFile(const Design& design, const std::vector<Report>& sheets, const PrintJob& print);
  bool withChecker_ = false;  ///< the checker's sheet was asked for in the dialog
  QPointer<QWidget> window_;
  QStringList waiting_;
  bool waitCursor_ = false;
  std::unique_ptr<QPrinter> printer_;
};

}  // namespace korvane
