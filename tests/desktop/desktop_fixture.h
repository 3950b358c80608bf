// SPDX-License-Identifier: GPL-3.0-or-later
// A desktop on a display of its own, with dialogs that a test answers.
#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QTemporaryDir>
#include <QtTest>
#include <deque>

#include "front/desktop/desktop.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/main_window.h"
#include "front/desktop/panes.h"
#include "front/desktop/theme.h"
#include "front/named_session.h"
#include "tests/support/source_library.h"

namespace korvane {

/// Keeps what is said and answers dialogs from a list.
class AnsweringPlatform : public Platform {
public:
  std::vector<std::string> messages, helps, prints;
  std::deque<std::string> answers;
  bool print = false;
  int progress = 0;

  void Message(const std::string& text) override { messages.push_back(text); }
  DateTime Now() override { return {2026, 3, 1, 14, 5}; }
  std::optional<std::string> AskOpen(const std::string&, const std::string&) override {
    return Next();
  }
  std::optional<std::string> AskSave(const std::string&, const std::string&) override {
    return Next();
  }
  std::optional<PrintJob> AskPrint() override {
    return print ? std::optional<PrintJob>(PrintJob{2}) : std::nullopt;
  }
  void Print(const Design&, int kind, const PrintJob& job) override {
    prints.push_back(std::to_string(kind) + " x " + std::to_string(job.copies));
  }
  void OpenHelp(const std::string& file) override { helps.push_back(file); }
  void Progress(int, int) override { ++progress; }

private:
  std::optional<std::string> Next() {
    if (answers.empty()) return std::nullopt;
    const std::string answer = answers.front();
    answers.pop_front();
    return answer;
  }
};

class DesktopTest : public testing::Test {
protected:
  DesktopTest()
      : library_(SourceLibrary()),
        session_(library_, platform_, false,
                 Folders{library_->folder, folder_.path().toStdString()}) {
    session_.Start();
    desktop_ = std::make_unique<Desktop>(session_);
    Main().show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
  }

  MainWindow& Main() { return desktop_->window(); }
  FormWindow& Window(const std::string& form) { return *desktop_->WindowOf(*FindForm(form)); }
  QAction* ActionOf(const std::string& command) {
    return Main().ActionOf(*FindControl(*TheForms().main, command));
  }

  template <class W>
  W& On(QWidget& window, const char* name) {
    // The windows of the forms are children of the main window.
    QWidget* root = &window == &Main() ? Main().centralWidget() : &window;
    W* widget = root->findChild<W*>(QString::fromUtf8(name));
    if (widget == nullptr) throw UnknownControl(std::string("no widget ") + name);
    return *widget;
  }
  QLineEdit& Field(const char* name) { return On<QLineEdit>(Main(), name); }
  ResultPane& Results() { return On<ResultPane>(Main(), "pic31"); }
  QString ResultText() { return Results().Lines().join(QLatin1Char('\n')); }

  /// Types a text in place of what stands in the field, and a key after it.
  void TypeInto(QLineEdit& field, const char* text, Qt::Key end = Qt::Key_Return) {
    // A window manager answers in its own time; keys before that go astray.
    field.window()->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(field.window()));
    field.setFocus();
    EXPECT_TRUE(QTest::qWaitFor([&field] { return field.hasFocus(); }));
    field.selectAll();
    QTest::keyClicks(&field, QString::fromUtf8(text));
    QTest::keyClick(&field, end);
    QCoreApplication::processEvents();
  }
  void Menu(const char* command) {
    ActionOf(command)->trigger();
    QCoreApplication::processEvents();
  }
  void Load(const char* q) {
    Menu("mnuload1");
    TypeInto(On<QLineEdit>(Window("loading"), "iq1"), q);
  }
  static bool IsGreen(const QLineEdit& field) {
    return field.palette().color(QPalette::Active, QPalette::Base) == QColor(0, 255, 0);
  }

  QTemporaryDir folder_;
  AnsweringPlatform platform_;
  std::shared_ptr<const Library> library_;
  NamedSession session_;
  std::unique_ptr<Desktop> desktop_;
};

}  // namespace korvane
