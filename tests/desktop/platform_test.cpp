// SPDX-License-Identifier: GPL-3.0-or-later
#include <QAbstractButton>
#include <QApplication>
#include <QCryptographicHash>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QSettings>
#include <QSplitter>
#include <QStandardPaths>

#include "core/project_file.h"
#include "front/desktop/desktop_platform.h"
#include "front/desktop/own_folder.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/desktop/real_desktop.h"

namespace korvane {
namespace {

TEST(DesktopPlatformTest, SettingsStandInTheSectionRecentFiles) {
  DesktopPlatform platform;
  EXPECT_EQ(platform.Setting("RecentFile9"), "");
  platform.SetSetting("RecentFile9", "/a/b.kvn");
  EXPECT_EQ(platform.Setting("RecentFile9"), "/a/b.kvn");
  const QSettings store(QSettings::IniFormat, QSettings::UserScope, "Korvane_ns", "Korvane_ns");
  EXPECT_EQ(store.value("Recent Files/RecentFile9").toString(), "/a/b.kvn");
}

TEST(DesktopPlatformTest, ClockTellsADate) {
  DesktopPlatform platform;
  const DateTime now = platform.Now();
  EXPECT_EQ(QDate::currentDate(), QDate(now.year, now.month, now.day));
}

/// A refusal with the real message box: it comes up after the event, tells the text, and the
/// field has the focus again without a calculation.
TEST(DesktopPlatformTest, MessageBoxDoesNotDisturbTheField) {
  const auto library = ReadLibrary(std::string(KORVANE_SOURCE_DIR) + "/data");
  const QTemporaryDir folder;
  DesktopPlatform platform;
  Session session(library, platform, false, Folders{library->folder, folder.path().toStdString()});
  session.Start();
  Desktop desktop(session);
  platform.SetWindow(&desktop.window());
  desktop.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
  auto* length = desktop.window().findChild<QLineEdit*>("il");
  length->setFocus();
  length->selectAll();
  QString told;
  QTimer::singleShot(300, [&] {
    if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
      told = box->text();
      EXPECT_EQ(box->icon(), QMessageBox::Warning);
      box->accept();
    }
  });
  const int calculations = session.Calculations();
  QTest::keyClicks(length, "0.01");
  QTest::keyClick(length, Qt::Key_Tab);
  EXPECT_TRUE(platform.HasMessages());
  EXPECT_TRUE(QTest::qWaitFor([&] { return !platform.HasMessages(); }, 3000));
  desktop.window().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop.window()));
  EXPECT_EQ(told, " L >= 0.050 ");
  EXPECT_TRUE(length->hasFocus());
  EXPECT_EQ(session.Calculations(), calculations);
}

TEST(OwnFolderTest, AWritableProgramFolderIsUsed) {
  const QTemporaryDir folder;
  EXPECT_EQ(FoldersOf(folder.path().toStdString()).own, "");
  EXPECT_TRUE(QDir(folder.path()).entryList(QDir::Files | QDir::Hidden).isEmpty());
}

TEST(OwnFolderTest, AProgramFolderWithoutWritingGivesTheUsersOwn) {
  // Nobody can make files among the processes, whatever the rights say.
  const Folders folders = FoldersOf("/proc/self");
  EXPECT_EQ(folders.program, "/proc/self");
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  EXPECT_EQ(folders.own, own.toStdString());
  EXPECT_TRUE(QDir(own).exists());
}

QStringList FilesIn(const QString& folder) {
  return QDir(folder).entryList(QDir::Files, QDir::Name);
}

TEST_F(DesktopTest, DefaultsGoToTheOwnFolderAndAreReadFromThereFirst) {
  const QString program = QString::fromStdString(library_->folder);
  const QStringList before = FilesIn(program);
  const QByteArray defaults = QCryptographicHash::hash(
      [&] {
        QFile file(program + "/default_ns.dat");
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
      }(),
      QCryptographicHash::Sha1);
  Menu("mnusetup");
  TypeInto(On<QLineEdit>(Window("setup"), "idef_limit"), "444");
  On<QPushButton>(Window("setup"), "Command2").click();
  EXPECT_EQ(FilesIn(folder_.path()), QStringList{"default_ns.dat"});
  EXPECT_EQ(FilesIn(program), before);
  QFile kept(program + "/default_ns.dat");
  ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
  EXPECT_EQ(QCryptographicHash::hash(kept.readAll(), QCryptographicHash::Sha1), defaults);
  Session next(library_, platform_, false, Folders{library_->folder, folder_.path().toStdString()});
  next.Start();
  EXPECT_EQ(int(next.st().DeflectionLimit), 444);
  next.Menu("mnunew");
  EXPECT_EQ(int(next.st().DeflectionLimit), 444);
}

TEST_F(DesktopTest, DatabaseGoesToTheOwnFolder) {
  const QStringList before = FilesIn(QString::fromStdString(library_->folder));
  Menu("mnup04");
  On<QPushButton>(Window("p04"), "addtodb").click();
  Menu("mnudb");
  platform_.answers = {"korvane.db"};
  On<QPushButton>(Window("database"), "save_db").click();
  EXPECT_EQ(FilesIn(folder_.path()), QStringList{"korvane.db"});
  EXPECT_EQ(FilesIn(QString::fromStdString(library_->folder)), before);
  On<QPushButton>(Window("database"), "Command1").click();
  EXPECT_EQ(On<QListWidget>(Window("database"), "cbo").count(), 0);
  platform_.answers = {folder_.filePath("korvane.db").toStdString()};
  On<QPushButton>(Window("database"), "open_db").click();
  EXPECT_EQ(On<QListWidget>(Window("database"), "cbo").count(), 1);
  Session next(library_, platform_, false, Folders{library_->folder, folder_.path().toStdString()});
  next.Start();
  EXPECT_EQ(next.Items("database.cbo").size(), 1u);
}

TEST_F(RealDesktopTest, SearchShowsWaitCursorAndProgress) {
  desktop_->Command("mnuload1");
  desktop_->Act([&] {
    session_.Enter("loading.iq1", "10");
    session_.Close("loading");
  });
  auto* bar = Main().findChild<QProgressBar*>();
  ASSERT_NE(bar, nullptr);
  int waiting = 0, shown = 0, last = 0;
  QObject::connect(&platform_, &DesktopPlatform::Progressed, [&](int done, int all) {
    if (all == 0) return;
    const QCursor* cursor = QApplication::overrideCursor();
    waiting += cursor != nullptr && cursor->shape() == Qt::WaitCursor ? 1 : 0;
    shown += bar->isVisible() ? 1 : 0;
    EXPECT_GE(done, last);
    last = done;
  });
  desktop_->Command("mnuopt");
  FormWindow& window = *desktop_->WindowOf("optroll");
  window.findChild<QAbstractButton*>("cbp04")->click();
  EXPECT_GT(waiting, 3);
  EXPECT_EQ(shown, waiting);
  EXPECT_GT(last, 0);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(bar->isVisible());
}

TEST_F(DesktopTest, FailureOutsideAFieldWritesARecoveryProject) {
  QString report;
  QObject::connect(desktop_.get(), &Desktop::Failed, [&](const QString& text) { report = text; });
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  session_.st().L = 6.25f;
  session_.st().gammam1 = 0;
  Menu("mnuload1");
  EXPECT_EQ(ended.count(), 1);
  const QDir folder(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation));
  QString path;
  for (const QString& line : report.split(QLatin1Char('\n'))) {
    if (line.startsWith(folder.path())) path = line;
  }
  ASSERT_FALSE(path.isEmpty()) << report.toStdString();
  ProjectState recovered;
  EXPECT_EQ(OpenProject(path.toStdString(), recovered), FileResult::Ok);
  EXPECT_EQ(recovered.L, 6.25f);
  EXPECT_TRUE(QFile::remove(path));
}

TEST_F(DesktopTest, FailureInAFieldSaysMismatch) {
  session_.st().gammam1 = 0;
  TypeInto(Field("il"), "6");
  EXPECT_EQ(platform_.messages, std::vector<std::string>{"Input string mismatch "});
  EXPECT_TRUE(Field("il").hasFocus());
}

TEST_F(DesktopTest, SplittersRememberTheirSizes) {
  auto* split = Main().findChild<QSplitter*>("planes");
  const int all = split->sizes().at(0) + split->sizes().at(1);
  split->setSizes({all * 6 / 10, all * 4 / 10});
  const QList<int> sizes = split->sizes();
  Main().close();
  desktop_.reset();
  Session next(library_, platform_, false, Folders{library_->folder, folder_.path().toStdString()});
  next.Start();
  Desktop again(next);
  again.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&again.window()));
  EXPECT_EQ(again.window().findChild<QSplitter*>("planes")->sizes(), sizes);
}

}  // namespace
}  // namespace korvane
