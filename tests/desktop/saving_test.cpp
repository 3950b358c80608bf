// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window says of its file: the status bar and the mark in the title.
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>

#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/real_desktop.h"

namespace korvane {
namespace {

bool IsRed(const QLabel& label) {
  return label.palette().color(QPalette::WindowText) == ColourFor(Role::Fail, label.palette());
}

TEST_F(DesktopTest, StatusBarTellsASavingThatFailedUntilOneSucceeds) {
  auto& saving = *Main().findChild<QLabel*>("saving");
  EXPECT_EQ(saving.text(), "");
  TypeInto(Field("il"), "7");
  EXPECT_EQ(saving.text(), "unsaved changes");
  EXPECT_FALSE(IsRed(saving));
  EXPECT_TRUE(Main().windowTitle().endsWith(" *"));
  const QString path = folder_.filePath("a.kvn");
  platform_.answers = {path.toStdString()};
  Menu("mnusaveas");
  EXPECT_EQ(saving.text(), "saved 14:05");
  EXPECT_EQ(Main().windowTitle(), "KORVANE-NS3472: " + path);
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner));
  TypeInto(Field("il"), "8");
  Menu("mnusave");
  EXPECT_EQ(saving.text(), "NOT SAVED: the file is read-only");
  EXPECT_TRUE(IsRed(saving));
  EXPECT_EQ(Main().windowTitle(), "KORVANE-NS3472: " + path + " *");
  EXPECT_TRUE(platform_.messages.empty());
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
  Menu("mnusave");
  EXPECT_EQ(saving.text(), "saved 14:05");
  EXPECT_FALSE(IsRed(saving));
  EXPECT_EQ(Main().windowTitle(), "KORVANE-NS3472: " + path);
}

TEST_F(RealDesktopTest, AsksBeforeItOverwritesAFileThatHasChanged) {
  const auto answer = [&](const char* button, bool expected) {
    QString told;
    QTimer::singleShot(0, [&] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(box, nullptr);
      told = box->text();
      for (QAbstractButton* one : box->buttons()) {
        if (one->text().remove(QLatin1Char('&')) == QString::fromUtf8(button)) return one->click();
      }
      ADD_FAILURE() << "no button " << button;
      box->reject();
    });
    EXPECT_EQ(platform_.AskOverwrite("/a/b.kvn"), expected);
    EXPECT_TRUE(told.startsWith("/a/b.kvn\nhas changed on disk")) << told.toStdString();
  };
  answer("Overwrite", true);
  answer("Cancel", false);
}

}  // namespace
}  // namespace korvane
