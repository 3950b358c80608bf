// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QToolButton>

#include "front/desktop/diagram_pane.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

TEST_F(DesktopTest, FirstActivationCalculates) {
  EXPECT_GE(session_.Calculations(), 1);
}

TEST_F(DesktopTest, TypedLengthChangesResultLines) {
  Load("10");
  const QString before = ResultText();
  TypeInto(Field("il"), "8");
  EXPECT_EQ(Field("il").text(), "8.000");
  EXPECT_NE(ResultText(), before);
  // 10 kN/m * 1.2 * 8^2 / 8
  EXPECT_NEAR(session_.design().beam.z.M_max, 96.0, 0.01);
}

TEST_F(DesktopTest, VerdictFailsWithTheLongMember) {
  Load("10");
  EXPECT_EQ(Main().verdict().Word(), "passes");
  TypeInto(Field("il"), "15");
  EXPECT_EQ(Main().verdict().Word(), "FAILS");
  EXPECT_TRUE(Results().toolTip().contains("IR = "));
}

TEST_F(DesktopTest, AClickOnTheVerdictShowsItsNotes) {
  Load("10");
  TypeInto(Field("il"), "15");
  QTest::mouseClick(&Main().verdict(), Qt::LeftButton);
  auto* notes = Main().findChild<QDialog*>("verdict_notes");
  ASSERT_NE(notes, nullptr);
  EXPECT_TRUE(notes->isVisible());
  EXPECT_TRUE(notes->findChild<QLabel*>()->text().contains("fails: "));
  QTest::keyClick(notes, Qt::Key_Escape);
  EXPECT_FALSE(notes->isVisible());
  // The marked line is the one that governs.
  ResultPane& lines = Results();
  EXPECT_TRUE(lines.MarkedLine().contains("IR = " + Main().verdict().Figure()))
      << lines.MarkedLine().toStdString();
  EXPECT_TRUE(lines.MarkRatio(999).isEmpty());
  EXPECT_EQ(lines.MarkedLine(), QString());
}

TEST_F(DesktopTest, FieldIsGreenWithFocusAndWhiteAfterwards) {
  QLineEdit& length = Field("il");
  length.setFocus();
  QCoreApplication::processEvents();
  EXPECT_TRUE(IsGreen(length));
  EXPECT_EQ(length.selectedText(), length.text());
  TypeInto(length, "6");
  EXPECT_FALSE(IsGreen(length));
}

TEST_F(DesktopTest, ReturnMovesToTheNextField) {
  TypeInto(Field("iproj"), "Warehouse");
  EXPECT_TRUE(Field("iident").hasFocus());
  TypeInto(Field("iident"), "C12");
  EXPECT_TRUE(Field("il").hasFocus());
  EXPECT_TRUE(IsGreen(Field("il")));
}

TEST_F(DesktopTest, TabLeavesTheField) {
  TypeInto(Field("il"), "7", Qt::Key_Tab);
  EXPECT_EQ(session_.st().L, 7.0f);
  EXPECT_FALSE(Field("il").hasFocus());
}

TEST_F(DesktopTest, RefusedValueKeepsTheFocus) {
  TypeInto(Field("il"), "0.01");
  EXPECT_EQ(platform_.messages, std::vector<std::string>{" L >= 0.050 "});
  EXPECT_TRUE(Field("il").hasFocus());
  EXPECT_TRUE(IsGreen(Field("il")));
}

TEST_F(DesktopTest, RefusedValueIsSaidOnceOnLeavingByTab) {
  TypeInto(Field("igammam1"), "3", Qt::Key_Tab);
  EXPECT_EQ(platform_.messages, std::vector<std::string>{" 0.5 <= gammam1 <=1.5 "});
  EXPECT_TRUE(Field("igammam1").hasFocus());
}

TEST_F(DesktopTest, SupportPictureIsMarkedAndOpensTheSpring) {
  QTest::mouseClick(&On<QToolButton>(Main(), "cbutt3"), Qt::LeftButton);
  EXPECT_TRUE(On<QToolButton>(Main(), "cbutt3").isChecked());
  EXPECT_FALSE(On<QToolButton>(Main(), "cbutt0").isChecked());
  EXPECT_TRUE(Field("ispring").isEnabled());
  EXPECT_TRUE(Field("ispring").hasFocus());
}

TEST_F(DesktopTest, RefusedCheckStaysUnchecked) {
  QTest::mouseClick(&On<QToolButton>(Main(), "cbutt3"), Qt::LeftButton);
  On<QCheckBox>(Main(), "ch_modal").click();
  EXPECT_FALSE(On<QCheckBox>(Main(), "ch_modal").isChecked());
  EXPECT_EQ(platform_.messages,
            std::vector<std::string>{" Modal analysis not possible for spring supports "});
}

TEST_F(DesktopTest, FreeMaterialOpensTheYieldField) {
  EXPECT_FALSE(Field("ifyk").isEnabled());
  auto& list = On<QComboBox>(Main(), "cbofyk");
  emit list.activated(list.count() - 1);
  EXPECT_TRUE(Field("ifyk").isEnabled());
}

TEST_F(DesktopTest, ColumnFrameNeedsCompression) {
  Menu("mnuload1");
  TypeInto(On<QLineEdit>(Window("loading"), "inp"), "0");
  EXPECT_FALSE(On<QGroupBox>(Main(), "columnframe").isEnabled());
  TypeInto(On<QLineEdit>(Window("loading"), "inp"), "100");
  EXPECT_TRUE(On<QGroupBox>(Main(), "columnframe").isEnabled());
}

TEST_F(DesktopTest, ResultLinesAreThoseOfTheSession) {
  Load("10");
  QStringList lines;
  for (const QString& line : Results().Lines())
    lines << QString(line).replace(QLatin1Char('\t'), QLatin1Char(' '));
  EXPECT_EQ(lines.join(" | ").toStdString(), session_.Text("korvane.pic31"));
}

TEST_F(DesktopTest, PointerTellsTheMoment) {
  Load("10");
  DiagramPane* plane = nullptr;
  for (DiagramPane* one : Main().centralWidget()->findChildren<DiagramPane*>()) {
    if (one->Box("picmy") != nullptr) plane = one;
  }
  ASSERT_NE(plane, nullptr);
  QSignalSpy pointed(plane, &DiagramPane::Pointed);
  DiagramBox* box = plane->Box("picmy");
  ASSERT_NE(box, nullptr);
  QMouseEvent move(QEvent::MouseMove, QPointF(box->width() / 2.0, 5), QPointF(), Qt::NoButton,
                   Qt::NoButton, Qt::NoModifier);
  QCoreApplication::sendEvent(box, &move);
  ASSERT_EQ(pointed.count(), 1);
  EXPECT_EQ(pointed.first().first().toString().toStdString(),
            " x = 2.500 m  My = 37.5 kNm  Vz = 0.0 kN");
}

TEST_F(DesktopTest, ClickOnTheFigureTurnsItsScale) {
  const auto before = session_.st().FigureNotToScale;
  QTest::mouseClick(&On<FigurePane>(Main(), "pic1"), Qt::LeftButton);
  EXPECT_NE(int(session_.st().FigureNotToScale), int(before));
}

TEST_F(DesktopTest, OptimiserPanelOpensAndSearches) {
  Load("10");
  On<QCheckBox>(Main(), "optimize").click();
  auto& uls = On<QAbstractButton>(Main(), "ULS");
  ASSERT_TRUE(uls.isVisible());
  uls.click();
  EXPECT_GT(platform_.progress, 0);
  EXPECT_EQ(Main().verdict().Word(), "passes");
}

TEST_F(DesktopTest, SaveAndOpenBringBackTheMember) {
  const std::string path = folder_.filePath("a.kvn").toStdString();
  TypeInto(Field("iproj"), "Warehouse");
  TypeInto(Field("il"), "6.5");
  platform_.answers = {path};
  Menu("mnusaveas");
  EXPECT_EQ(Main().windowTitle().toStdString(), "KORVANE-NS3472: " + path);
  TypeInto(Field("il"), "4");
  platform_.answers = {path};
  Menu("mnuopen");
  EXPECT_EQ(Field("il").text(), "6.500");
  EXPECT_EQ(Field("iproj").text(), "Warehouse");
  EXPECT_TRUE(ActionOf("mnurecentfile(1)")->isVisible());
  EXPECT_TRUE(ActionOf("mnurecentfile(1)")->text().endsWith("a.kvn"));
}

TEST_F(DesktopTest, SavingTakesTheFieldInUse) {
  const std::string path = folder_.filePath("b.kvn").toStdString();
  QLineEdit& length = Field("il");
  length.setFocus();
  length.selectAll();
  QTest::keyClicks(&length, "9");
  platform_.answers = {path};
  Menu("mnusaveas");
  platform_.answers = {path};
  Menu("mnuopen");
  EXPECT_EQ(length.text(), "9.000");
}

TEST_F(DesktopTest, NewKeepsTheFieldTexts) {
  TypeInto(Field("il"), "8");
  Menu("mnunew");
  EXPECT_EQ(Field("il").text(), "8.000");
  EXPECT_EQ(session_.st().L, 5.0f);
}

TEST_F(DesktopTest, EveryCommandHasItsCaptionAndRuns) {
  for (const Control& c : FindForm("korvane")->controls) {
    if (c.kind != Kind::Menu || c.caption == "-" || c.name == "mnuexit") continue;
    QAction* action = ActionOf(c.name);
    ASSERT_NE(action, nullptr) << c.name;
    if (!c.text) {
      EXPECT_EQ(action->text().toStdString(), c.caption);
    }
    if (action->menu() != nullptr || !action->isVisible()) continue;
    action->trigger();
    QCoreApplication::processEvents();
    for (const std::string& form : session_.OpenForms()) {
      if (form == "korvane") continue;
      EXPECT_TRUE(Window(form).isVisible()) << c.name << " " << form;
    }
  }
  EXPECT_EQ(platform_.helps.size(), 2u);
  EXPECT_TRUE(Window("setup").isVisible());
  EXPECT_TRUE(Window("about").isVisible());
}

TEST_F(DesktopTest, PrintTakesTheCopies) {
  Menu("mnuprint0");
  EXPECT_TRUE(platform_.prints.empty());
  platform_.print = true;
  Menu("mnuprint0");
  Menu("mnuprint11");
  EXPECT_EQ(platform_.prints, (std::vector<std::string>{"0 x 2", "1 x 2"}));
}

TEST_F(DesktopTest, MnemonicOpensTheLoads) {
  QTest::keyClick(&Main(), Qt::Key_L, Qt::AltModifier);
  QCoreApplication::processEvents();
  EXPECT_TRUE(session_.IsOpen("loading"));
  EXPECT_TRUE(Window("loading").isVisible());
}

TEST_F(DesktopTest, ExitEndsWhateverStandsInAField) {
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  Field("il").setFocus();
  Field("il").selectAll();
  QTest::keyClicks(&Field("il"), "0");
  Menu("mnuexit");
  EXPECT_EQ(ended.count(), 1);
}

TEST_F(DesktopTest, ExitEnds) {
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  Menu("mnuexit");
  EXPECT_EQ(ended.count(), 1);
}

}  // namespace
}  // namespace korvane
