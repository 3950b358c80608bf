// SPDX-License-Identifier: GPL-3.0-or-later
// Unclean ends: what is kept on disk, what the report and the next start offer.
#include "front/desktop/recovery.h"

#include <QMessageBox>
#include <QPushButton>

#include "core/project_file.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

class RecoveryTest : public DesktopTest {
protected:
  RecoveryTest() { Begin(); }
  QString Folder() const { return folder_.filePath("kept"); }
  QStringList Kept() const { return QDir(Folder()).entryList({"*.kvn"}, QDir::Files); }

  void Begin() {
    recovery_ = std::make_unique<Recovery>(*desktop_, Folder());
    QObject::connect(recovery_.get(), &Recovery::StartAgain,
                     [this](const QStringList& arguments) { startedAgain_ << arguments; });
  }

  /// Answers the box that comes up with the button of this text; keeps what the box says.
  void Answer(const char* button) {
    QTimer::singleShot(0, [this, button] {
      auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      if (box == nullptr) return Answer(button);
      told_ = box->text();
      for (QAbstractButton* one : box->buttons()) {
        if (one->text().remove(QLatin1Char('&')) == QString::fromUtf8(button)) return one->click();
      }
      ADD_FAILURE() << "no button " << button;
      box->reject();
    });
  }

  /// Another program on the same folders.
  struct Next {
    explicit Next(RecoveryTest& test)
        : session(test.library_, platform, false,
                  Folders{test.library_->folder, test.folder_.path().toStdString()}) {
      session.Start();
      desktop = std::make_unique<Desktop>(session);
      recovery = std::make_unique<Recovery>(*desktop, test.Folder());
    }
    AnsweringPlatform platform;
    NamedSession session;
    std::unique_ptr<Desktop> desktop;
    std::unique_ptr<Recovery> recovery;
  };

  /// The program is gone without an end of its own: its lock is nobody's any longer.
  void Kill() {
    recovery_->Keep();
    ASSERT_TRUE(recovery_->Settled());
    const QString path = recovery_->Path();
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    file.close();
    recovery_.reset();
    ASSERT_TRUE(Kept().isEmpty());
    QFile again(path);
    ASSERT_TRUE(again.open(QIODevice::WriteOnly));
    again.write(bytes);
  }

  std::unique_ptr<Recovery> recovery_;
  QList<QStringList> startedAgain_;
  QString told_;
};

TEST_F(RecoveryTest, KeepsAChangedProjectAndRemovesItAtACleanEnd) {
  recovery_->Keep();
  EXPECT_FALSE(recovery_->Settled());
  TypeInto(Field("il"), "7");
  EXPECT_TRUE(QTest::qWaitFor([&] { return !Kept().isEmpty(); }, 5000));
  recovery_->Settled();
  const auto text = ReadWholeFile(recovery_->Path().toStdString());
  ASSERT_TRUE(text.has_value());
  EXPECT_EQ(double(ReadKept(*text, session_.st())->st.L), 7);
  recovery_.reset();
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, NothingIsOfferedOfAProgramThatRunsOrEndedCleanly) {
  TypeInto(Field("il"), "7");
  recovery_->Keep();
  ASSERT_TRUE(recovery_->Settled());
  EXPECT_FALSE(Next(*this).recovery->Offer());
  recovery_.reset();
  EXPECT_FALSE(Next(*this).recovery->Offer());
}

TEST_F(RecoveryTest, NextStartOffersWhatWasLeftBehind) {
  TypeInto(Field("iproj"), "Bridge");
  const std::string path = folder_.filePath("a.kvn").toStdString();
  platform_.answers = {path};
  Menu("mnusaveas");
  TypeInto(Field("il"), "7");
  Kill();
  {
    Next next(*this);
    Answer("Later");
    EXPECT_FALSE(next.recovery->Offer());
    EXPECT_EQ(Kept().size(), 1);
  }
  {
    Next next(*this);
    Answer("Start again with it");
    EXPECT_TRUE(next.recovery->Offer());
    EXPECT_TRUE(told_.contains(QString::fromStdString(path) + " (Bridge), with unsaved changes"))
        << told_.toStdString();
    EXPECT_EQ(double(next.session.st().L), 7);
    EXPECT_EQ(next.session.Text("korvane.iproj"), "Bridge");
    EXPECT_EQ(next.desktop->window().windowTitle().toStdString(), "KORVANE-NS3472: " + path + " *");
    EXPECT_EQ(next.session.NotCalculated(), "");
    // It is its own now, also where this program ends uncleanly.
    EXPECT_EQ(Kept().size(), 1);
    EXPECT_EQ(Kept().first(), QFileInfo(next.recovery->Path()).fileName());
  }
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, WhatNobodyWantsIsForgotten) {
  TypeInto(Field("il"), "7");
  Kill();
  Next next(*this);
  Answer("Forget it");
  EXPECT_FALSE(next.recovery->Offer());
  EXPECT_TRUE(Kept().isEmpty());
}

TEST_F(RecoveryTest, FailureOutsideAFieldOffersTheLastStateThatCouldBeCalculated) {
  const std::string path = folder_.filePath("a.kvn").toStdString();
  platform_.answers = {path};
  Menu("mnusaveas");
  TypeInto(Field("il"), "6.25");
  session_.st().gammam1 = 0;
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  Answer("Start again with it");
  Menu("mnuload1");
  EXPECT_EQ(ended.count(), 1);
  EXPECT_TRUE(told_.contains("it stopped in the material values: the material factor is 0."))
      << told_.toStdString();
  EXPECT_TRUE(told_.contains("The last input was: Loading.")) << told_.toStdString();
  EXPECT_TRUE(told_.contains(QString::fromStdString(path))) << told_.toStdString();
  ASSERT_EQ(startedAgain_.size(), 1);
  EXPECT_EQ(startedAgain_[0], QStringList({"--recover", recovery_->Path()}));
  const QString kept = recovery_->Path();
  recovery_.reset();
  ASSERT_TRUE(QFile::exists(kept));
  Next next(*this);
  EXPECT_TRUE(next.recovery->TakeUp(kept));
  EXPECT_EQ(next.session.st().L, 6.25F);
  EXPECT_EQ(next.session.st().CurrentFileName, path);
  EXPECT_TRUE(next.session.files().Modified());
  EXPECT_EQ(next.session.NotCalculated(), "");
  next.desktop->Activated(*TheForms().main);
  EXPECT_FALSE(next.session.Ended());
}

TEST_F(RecoveryTest, AnEndAfterTheReportIsOfferedAtTheNextStart) {
  TypeInto(Field("il"), "6.25");
  session_.st().gammam1 = 0;
  Answer("End");
  Menu("mnuload1");
  EXPECT_TRUE(startedAgain_.isEmpty());
  recovery_.reset();
  Next next(*this);
  Answer("Start again with it");
  EXPECT_TRUE(next.recovery->Offer());
  EXPECT_EQ(next.session.st().L, 6.25F);
}

TEST_F(RecoveryTest, OwnDefaultsThatMakeEachStartFailHaveAWayOut) {
  recovery_.reset();
  ProjectState st = session_.st();
  st.gammam1 = 0;
  ASSERT_TRUE(WriteDefaults(folder_.path().toStdString(), st));
  NamedSession session(library_, platform_, false,
                       Folders{library_->folder, folder_.path().toStdString()});
  session.Start();
  desktop_ = std::make_unique<Desktop>(session);
  Begin();
  Answer("Start with the program's defaults");
  desktop_->Activated(*TheForms().main);
  EXPECT_TRUE(session.Ended());
  EXPECT_TRUE(told_.contains("Your own default values make each start fail"))
      << told_.toStdString();
  ASSERT_EQ(startedAgain_.size(), 1);
  EXPECT_EQ(startedAgain_[0], QStringList({"--program-defaults"}));
  recovery_.reset();
  desktop_.reset();
}

TEST_F(RecoveryTest, AProjectThatCannotBeCalculatedStaysOpenWhateverIsClicked) {
  ProjectState st = session_.st();
  st.gammam1 = 0;
  const QString path = folder_.filePath("bad.kvn");
  ASSERT_TRUE(SaveProject(path.toStdString(), st));
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  desktop_->OpenFile(path);
  EXPECT_EQ(Main().verdict().Word(), "not calculated");
  Menu("mnuload1");
  EXPECT_TRUE(Window("loading").isVisible());
  desktop_->Activated(*TheForms().main);
  On<QAbstractButton>(Main(), "cbutt2").click();
  EXPECT_EQ(ended.count(), 0);
  TypeInto(Field("igammam1"), "1.1");
  EXPECT_EQ(session_.NotCalculated(), "");
  EXPECT_EQ(Main().verdict().Word(), "passes");
}

}  // namespace
}  // namespace korvane
