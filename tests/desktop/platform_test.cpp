// SPDX-License-Identifier: GPL-3.0-or-later
#include <sys/resource.h>

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>
#include <QSettings>
#include <QSplitter>
#include <csignal>

#include "front/desktop/desktop_platform.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/support/source_library.h"

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

/// While one stands, no file can grow: writing fails as on a full disk.
class FullDisk {
public:
  FullDisk() : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
    ::getrlimit(RLIMIT_FSIZE, &before_);
    const rlimit none{0, before_.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &none);
  }
  ~FullDisk() {
    ::setrlimit(RLIMIT_FSIZE, &before_);
    std::signal(SIGXFSZ, handler_);
  }
  FullDisk(const FullDisk&) = delete;
  FullDisk& operator=(const FullDisk&) = delete;

private:
  rlimit before_{};
  void (*handler_)(int);
};

QByteArray BytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(DesktopPlatformTest, AFullDiskLeavesTheRecentFilesAsTheyWere) {
  DesktopPlatform platform;
  platform.SetSetting("RecentFile8", "/a/old.kvn");
  const QString path =
      QSettings(QSettings::IniFormat, QSettings::UserScope, "Korvane_ns", "Korvane_ns").fileName();
  const QByteArray old = BytesOf(path);
  ASSERT_TRUE(old.contains("/a/old.kvn"));
  {
    const FullDisk full;
    platform.SetSetting("RecentFile8", "/a/new.kvn");
    EXPECT_EQ(BytesOf(path), old);
  }
  const QFileInfo file(path);
  const QString mine = file.fileName() + QStringLiteral(".*");
  EXPECT_EQ(file.dir().entryList({mine}, QDir::Files | QDir::Hidden), QStringList());
  platform.SetSetting("RecentFile8", "/a/new.kvn");
  EXPECT_TRUE(BytesOf(path).contains("/a/new.kvn"));
}

TEST(DesktopPlatformTest, DecimalMarkIsThatOfTheLocale) {
  EXPECT_TRUE(WritesComma(QLocale("nb_NO")));
  EXPECT_TRUE(WritesComma(QLocale("de_DE")));
  EXPECT_FALSE(WritesComma(QLocale("de_CH")));
  EXPECT_FALSE(WritesComma(QLocale("en_GB")));
  EXPECT_FALSE(WritesComma(QLocale::c()));
}

TEST(DesktopPlatformTest, ClockTellsADate) {
  DesktopPlatform platform;
  const DateTime now = platform.Now();
  EXPECT_EQ(QDate::currentDate(), QDate(now.year, now.month, now.day));
}

/// A refusal with the real message box: it comes up after the event, tells the text, and the
/// field has the focus again without a calculation.
TEST(DesktopPlatformTest, MessageBoxDoesNotDisturbTheField) {
  const auto& library = SourceLibrary();
  const QTemporaryDir folder;
  DesktopPlatform platform;
  NamedSession session(library, platform, false,
                       Folders{library->folder, folder.path().toStdString()});
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
  NamedSession next(library_, platform_, false,
                    Folders{library_->folder, folder_.path().toStdString()});
  next.Start();
  Desktop again(next);
  again.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&again.window()));
  EXPECT_EQ(again.window().findChild<QSplitter*>("planes")->sizes(), sizes);
}

}  // namespace
}  // namespace korvane
