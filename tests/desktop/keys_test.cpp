// SPDX-License-Identifier: GPL-3.0-or-later
// The usual keys, typing in a list of sections, and what a person sees while a search runs.
#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QListWidget>
#include <QProcess>
#include <QProgressBar>
#include <QRegularExpression>

#include "front/desktop/desktop_platform.h"
#include "front/desktop/own_folder.h"
#include "places.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

class KeysTest : public DesktopTest {
protected:
  void Press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers more = {}) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(&window, key, Qt::ControlModifier | more);
    QCoreApplication::processEvents();
  }
  std::string Path(const char* name) const {
    return folder_.filePath(QString::fromUtf8(name)).toStdString();
  }
};

TEST_F(KeysTest, NewProject) {
  TypeInto(Field("il"), "8");
  Press(Main(), Qt::Key_N);
  EXPECT_EQ(session_.st().L, 5.0f);
}

TEST_F(KeysTest, SaveAsSaveAndOpen) {
  TypeInto(Field("il"), "6");
  platform_.answers = {Path("a.kvn")};
  Press(Main(), Qt::Key_S, Qt::ShiftModifier);
  EXPECT_TRUE(platform_.answers.empty());
  EXPECT_TRUE(QFile::exists(QString::fromStdString(Path("a.kvn"))));
  // A project with a name is saved without a question.
  TypeInto(Field("il"), "7");
  platform_.answers = {Path("never.kvn")};
  Press(Main(), Qt::Key_S);
  EXPECT_EQ(platform_.answers.size(), 1u);
  TypeInto(Field("il"), "4");
  platform_.answers = {Path("a.kvn")};
  Press(Main(), Qt::Key_O);
  EXPECT_EQ(Field("il").text(), "7.000");
}

TEST_F(KeysTest, RecentFile) {
  TypeInto(Field("il"), "6");
  platform_.answers = {Path("a.kvn")};
  Press(Main(), Qt::Key_S, Qt::ShiftModifier);
  platform_.answers = {Path("a.kvn")};
  Press(Main(), Qt::Key_O);
  TypeInto(Field("il"), "4");
  Press(Main(), Qt::Key_1);
  EXPECT_EQ(Field("il").text(), "6.000");
}

TEST_F(KeysTest, PrintAlsoFromAForm) {
  platform_.print = true;
  Press(Main(), Qt::Key_P);
  EXPECT_EQ(platform_.prints, std::vector<std::string>{"1 x 2"});
  Menu("mnuload1");
  Press(Window("loading"), Qt::Key_P);
  EXPECT_EQ(platform_.prints, (std::vector<std::string>{"1 x 2", "1 x 2"}));
}

TEST_F(KeysTest, Quit) {
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  Press(Main(), Qt::Key_Q);
  EXPECT_EQ(ended.count(), 1);
}

/// The digits of a size, typed in the open list of rolled families.
TEST_F(KeysTest, TypedSizeIsSelectedInTheList) {
  struct Typed {
    const char* menu;
    const char* form;
    const char* keys;
    const char* row;
  };
  for (const Typed& t :
       {Typed{"mnup01", "p01", "220", "HEA 220"}, Typed{"mnup04", "p04", "300", "IPE 300"},
        // 100 also begins the 1000; what stands there exactly is meant.
        Typed{"mnup02", "p02", "100", "HEB 100"}, Typed{"mnup02", "p02", "1000", "HEB 1000"},
        Typed{"mnup05", "p05", "upe 16", "UPE 160"}}) {
    Menu(t.menu);
    FormWindow& window = Window(t.form);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    auto* list = window.findChild<QListWidget*>();
    ASSERT_NE(list, nullptr) << t.form;
    list->setFocus();
    QTest::qWait(QApplication::keyboardInputInterval() + 50);
    QTest::keyClicks(list, t.keys);
    QCoreApplication::processEvents();
    ASSERT_NE(list->currentItem(), nullptr);
    EXPECT_EQ(list->currentItem()->text().toStdString(), t.row);
    EXPECT_EQ(On<QLabel>(Main(), "obeam").text().toStdString(),
              QString(t.row).remove(QLatin1Char(' ')).toStdString());
    EXPECT_TRUE(list->hasFocus());
  }
}

TEST_F(KeysTest, UnknownSizeLeavesTheList) {
  Menu("mnup01");
  FormWindow& window = Window("p01");
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto* list = window.findChild<QListWidget*>();
  list->setFocus();
  const int calculations = session_.Calculations();
  const int row = list->currentRow();
  QTest::keyClicks(list, "9z");
  // The 9 is the 900; nothing begins with 9z.
  EXPECT_EQ(list->currentItem()->text(), "HEA 900");
  EXPECT_NE(list->currentRow(), row);
  EXPECT_EQ(session_.Calculations(), calculations + 1);
}

TEST_F(KeysTest, ManualTellsEveryKeyAndOption) {
  QFile file(KORVANE_SOURCE_DIR "/docs/man/korvane.1");
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString manual = QString::fromUtf8(file.readAll()).remove(QLatin1Char('\\'));
  int keys = 0;
  for (const QAction* action : Main().findChildren<QAction*>()) {
    const QString key = action->shortcut().toString();
    // The latest projects are told as a range.
    if (key.isEmpty() || key == "Ctrl+2" || key == "Ctrl+3") continue;
    ++keys;
    EXPECT_TRUE(manual.contains(key)) << key.toStdString();
  }
  EXPECT_EQ(keys, 8);
  QProcess program;
  program.start(KORVANE_PROGRAM, {"--help"});
  ASSERT_TRUE(program.waitForFinished());
  const QString help = QString::fromUtf8(program.readAllStandardOutput());
  int options = 0;
  auto match = QRegularExpression("--(\\w+)").globalMatch(help);
  while (match.hasNext()) {
    const QString option = match.next().captured(0);
    ++options;
    EXPECT_TRUE(manual.contains(option)) << option.toStdString();
  }
  EXPECT_GE(options, 4);
}

TEST(SearchOnTheScreen, ShowsItsProgressUnderAWaitCursor) {
  const auto& library = SourceLibrary();
  const QTemporaryDir folder;
  DesktopPlatform platform;
  NamedSession session(library, platform, false,
                       Folders{library->folder, folder.path().toStdString()});
  session.Start();
  Desktop desktop(session);
  MainWindow& window = desktop.window();
  platform.SetWindow(&window);
  QObject::connect(&platform, &DesktopPlatform::Progressed, &window, &MainWindow::ShowProgress);
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  auto* bar = window.findChild<QProgressBar*>();
  ASSERT_NE(bar, nullptr);
  EXPECT_FALSE(bar->isVisible());
  int steps = 0, shown = 0, waiting = 0, greatest = 0;
  QObject::connect(&platform, &DesktopPlatform::Progressed, [&](int done, int all) {
    if (all == 0) return;
    ++steps;
    shown += bar->isVisible() && bar->value() == done && bar->maximum() == all;
    const QCursor* cursor = QApplication::overrideCursor();
    waiting += cursor != nullptr && cursor->shape() == Qt::WaitCursor;
    greatest = std::max(greatest, done);
  });
  window.findChild<QCheckBox*>("optimize")->click();
  window.findChild<QAbstractButton*>("ULS")->click();
  // Every size of the family in force is a step of the search.
  EXPECT_GT(steps, 10);
  EXPECT_EQ(greatest, steps);
  EXPECT_EQ(shown, steps);
  EXPECT_EQ(waiting, steps);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_FALSE(bar->isVisible());
}

TEST(OwnFolder, IsOnlyTakenWhereTheDataCannotBeWritten) {
  const QTemporaryDir data;
  const QString own = data.filePath("person/korvane");
  EXPECT_EQ(FoldersOf(data.path().toStdString(), own).own, "");
  EXPECT_FALSE(QDir(own).exists());
  // A folder that is not there can be written by nobody, whoever runs the test.
  const Folders folders = FoldersOf(data.filePath("gone").toStdString(), own);
  EXPECT_EQ(folders.program, data.filePath("gone").toStdString());
  EXPECT_EQ(folders.own, own.toStdString());
  EXPECT_TRUE(QDir(own).exists());
}

TEST(OwnFolder, IsTakenWhereTheDataAreReadOnly) {
  const QTemporaryDir folder;
  const QString data = folder.filePath("data");
  ASSERT_TRUE(QDir().mkpath(data));
  QFile::setPermissions(data, QFile::ReadOwner | QFile::ExeOwner);
  if (QFileInfo(data).isWritable()) GTEST_SKIP() << "the administrator writes everywhere";
  EXPECT_EQ(FoldersOf(data.toStdString(), folder.filePath("own")).own,
            folder.filePath("own").toStdString());
}

TEST_F(KeysTest, DefaultsAreKeptInTheOwnFolder) {
  const auto filesOf = [](const std::string& folder) {
    return QDir(QString::fromStdString(folder)).entryList(QDir::Files);
  };
  const QStringList program = filesOf(library_->folder);
  ASSERT_TRUE(filesOf(session_.folders().own).isEmpty());
  Menu("mnusetup");
  TypeInto(On<QLineEdit>(Window("setup"), "iufa"), "0.8");
  On<QAbstractButton>(Window("setup"), "Command2").click();
  EXPECT_EQ(filesOf(session_.folders().own).size(), 1);
  EXPECT_EQ(filesOf(library_->folder), program);
  NamedSession next(library_, platform_, false, session_.folders());
  next.Start();
  EXPECT_EQ(next.st().iufa, 0.8f);
}

}  // namespace
}  // namespace korvane
