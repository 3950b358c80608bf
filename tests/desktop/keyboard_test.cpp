// SPDX-License-Identifier: GPL-3.0-or-later
// The program by keyboard alone: lists, the order of the Tab key, shortcuts, mnemonics, panes.
#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QWheelEvent>

#include "front/desktop/diagram_pane.h"
#include "front/desktop/size_list.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

QString Chosen(const SizeList& list) {
  return list.currentItem()->text().simplified();
}

TEST_F(DesktopTest, TypedNumberChoosesTheSize) {
  Menu("mnup01");
  auto& list = On<SizeList>(Window("p01"), "Cbo");
  QTest::keyClicks(&list, "220");
  EXPECT_EQ(Chosen(list), "HEA 220");
  EXPECT_EQ(session_.Text("korvane.obeam").substr(0, 6), "HEA220");
  EXPECT_NEAR(session_.design().rec.h, 210, 0.01);
}

TEST_F(DesktopTest, TypedNumberOfATwoSidedSize) {
  Menu("mnup07");
  auto& list = On<SizeList>(Window("p07"), "Cbo");
  QTest::keyClicks(&list, "200x100x8");
  EXPECT_EQ(Chosen(list).remove(' '), "RHS200x100x8");
}

TEST_F(DesktopTest, TypedNumberPrefersTheWholeSize) {
  Menu("mnup01");
  auto& list = On<SizeList>(Window("p01"), "Cbo");
  QTest::keyClicks(&list, "100");
  EXPECT_EQ(Chosen(list), "HEA 100");  // and not HEA 1000
  // What leads nowhere begins anew with its last key.
  QTest::keyClicks(&list, "2");
  EXPECT_EQ(Chosen(list), "HEA 200");
}

TEST_F(DesktopTest, WheelTurnsAListOnlyWithTheFocus) {
  auto& list = On<QComboBox>(Main(), "cbofyk");
  const int before = session_.st().MaterialIndex;
  ASSERT_GT(before, 0);
  const auto turn = [&] {
    const QPointF middle = QRectF(list.rect()).center();
    QWheelEvent event(middle, list.mapToGlobal(middle), {}, {0, 120}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&list, &event);
  };
  Field("iproj").setFocus();
  turn();
  EXPECT_EQ(int(session_.st().MaterialIndex), before);
  list.setFocus();
  turn();
  EXPECT_EQ(int(session_.st().MaterialIndex), before - 1);
}

/// Names of the widgets that Tab visits from a field on.
QStringList TabOrder(QWidget& window, QWidget& from, int count) {
  QStringList names;
  from.setFocus();
  for (int k = 0; k < count; ++k) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCoreApplication::processEvents();
    names << QApplication::focusWidget()->objectName();
  }
  EXPECT_EQ(QApplication::activeWindow(), &window);
  return names;
}

TEST_F(DesktopTest, TabFollowsTheLayout) {
  EXPECT_EQ(TabOrder(Main(), Field("iproj"), 12),
            QStringList({"iident", "il", "cbutt0", "cbutt1", "cbutt2", "cbutt3", "cbutt4", "cbutt5",
                         "cbuttsupport", "cbofyk", "igammam1", "ie"}));
}

TEST_F(DesktopTest, TabGoesAlongTheRowsOfTheLoads) {
  Menu("mnuload1");
  FormWindow& window = Window("loading");
  EXPECT_EQ(TabOrder(window, On<QLineEdit>(window, "iqt11"), 7),
            QStringList({"iqt12", "iqt1x1", "iqt1x2", "iqt1_pv", "iqt1_yz", "iqt21", "iqt22"}));
}

TEST_F(DesktopTest, EveryInputCanBeReachedByTab) {
  QSet<QString> reached;
  Field("iproj").setFocus();
  for (int k = 0; k < 80; ++k) {
    reached << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCoreApplication::processEvents();
  }
  for (const Control& c : FindForm("korvane")->controls) {
    const std::string key = "korvane." + c.name;
    const bool operated = c.kind == Kind::Input || c.kind == Kind::Option ||
                          c.kind == Kind::Check || c.kind == Kind::List ||
                          c.kind == Kind::Picture || c.kind == Kind::Button || c.name == "pic1" ||
                          c.name == "pic31" || c.name == "picmy";
    if (!operated || !session_.Enabled(key) || !session_.Visible(key)) continue;
    EXPECT_TRUE(reached.contains(QString::fromStdString(c.name))) << c.name;
  }
}

TEST_F(DesktopTest, ShortcutsRunTheirCommands) {
  const std::string path = folder_.filePath("keys.kvn").toStdString();
  TypeInto(Field("il"), "7");
  platform_.answers = {path};
  QTest::keyClick(&Main(), Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(session_.Title("korvane"), "KORVANE-NS3472: " + path);
  TypeInto(Field("il"), "8");
  QTest::keyClick(&Main(), Qt::Key_S, Qt::ControlModifier);
  QTest::keyClick(&Main(), Qt::Key_N, Qt::ControlModifier);
  EXPECT_EQ(session_.st().L, 5.0f);
  platform_.answers = {path};
  QTest::keyClick(&Main(), Qt::Key_O, Qt::ControlModifier);
  EXPECT_EQ(session_.st().L, 8.0f);
  platform_.print = true;
  QTest::keyClick(&Main(), Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(platform_.prints, std::vector<std::string>{"1 x 2"});
  QTest::keyClick(&Main(), Qt::Key_N, Qt::ControlModifier);
  QTest::keyClick(&Main(), Qt::Key_1, Qt::ControlModifier);
  EXPECT_EQ(session_.st().L, 8.0f);
  QSignalSpy ended(desktop_.get(), &Desktop::Ended);
  QTest::keyClick(&Main(), Qt::Key_Q, Qt::ControlModifier);
  EXPECT_EQ(ended.count(), 1);
}

TEST_F(DesktopTest, MnemonicsOpenTheMenus) {
  for (const auto& [key, name] :
       {std::pair{Qt::Key_F, "mnufile"}, std::pair{Qt::Key_P, "mnustiff"},
        std::pair{Qt::Key_R, "mnuprint"}, std::pair{Qt::Key_H, "mnuhelp"}}) {
    QTest::keyClick(&Main(), key, Qt::AltModifier);
    QMenu* menu = ActionOf(name)->menu();
    EXPECT_TRUE(menu->isVisible()) << name;
    menu->close();
    QTest::keyClick(Main().menuBar(), Qt::Key_Escape);
  }
  for (const auto& [key, form] : {std::pair{Qt::Key_E, "endforce"}, std::pair{Qt::Key_O, "optroll"},
                                  std::pair{Qt::Key_D, "setup"}}) {
    Main().activateWindow();
    QTest::keyClick(&Main(), key, Qt::AltModifier);
    EXPECT_TRUE(session_.IsOpen(form)) << form;
    desktop_->CloseForm(*FindForm(form));
  }
}

TEST_F(DesktopTest, OpeningTheProfilesMenuLeavesManualCurves) {
  session_.st().ManualBucklingCurves = 1;
  ActionOf("mnufile")->menu()->popup({});
  ActionOf("mnufile")->menu()->close();
  EXPECT_EQ(int(session_.st().ManualBucklingCurves), 1);
  ActionOf("mnustiff")->menu()->popup({});
  ActionOf("mnustiff")->menu()->close();
  EXPECT_EQ(int(session_.st().ManualBucklingCurves), 0);
}

TEST_F(DesktopTest, SpaceOnTheFigureTurnsItsScale) {
  const int before = session_.st().FigureNotToScale;
  QTest::keyClick(&On<FigurePane>(Main(), "pic1"), Qt::Key_Space);
  EXPECT_EQ(int(session_.st().FigureNotToScale), 1 - before);
}

TEST_F(DesktopTest, ReturnOnTheSpringPictureTakesTheSpringWithinItsOwnRange) {
  auto& picture = On<QAbstractButton>(Main(), "cbutt5");
  picture.click();
  // The field takes 0, the picture's Return key does not.
  TypeInto(Field("ispring"), "0", Qt::Key_Tab);
  EXPECT_TRUE(platform_.messages.empty());
  picture.setFocus();
  QTest::keyClick(&picture, Qt::Key_Return);
  EXPECT_EQ(platform_.messages, std::vector<std::string>{" 1 < springstiffness 99 "});
  EXPECT_TRUE(Field("ispring").hasFocus());
  EXPECT_TRUE(IsGreen(Field("ispring")));

  TypeInto(Field("ispring"), "40", Qt::Key_Tab);
  picture.setFocus();
  const int calculations = session_.Calculations();
  QTest::keyClick(&picture, Qt::Key_Enter);
  EXPECT_EQ(platform_.messages.size(), 1u);
  EXPECT_EQ(session_.Calculations(), calculations + 1);
  EXPECT_EQ(Field("ispring").text(), "40");
  EXPECT_TRUE(picture.hasFocus());
  EXPECT_TRUE(picture.isChecked());
}

TEST_F(DesktopTest, CopyKeyTakesTheResultLines) {
  Load("10");
  QTest::keyClick(&Results(), Qt::Key_C, Qt::ControlModifier);
  const QString copied = QApplication::clipboard()->text();
  EXPECT_EQ(copied, ResultText());
  EXPECT_TRUE(copied.contains("SECTION CONTROL:\n")) << copied.toStdString();
}

TEST_F(DesktopTest, ArrowKeysWalkAlongTheDiagram) {
  Load("10");
  Main().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
  auto& box = On<DiagramBox>(Main(), "picmy");
  const auto* tag = box.parentWidget()->findChild<QLabel*>("pointer_tag");
  ASSERT_NE(tag, nullptr);
  EXPECT_FALSE(tag->isVisible());
  box.setFocus();
  EXPECT_TRUE(QTest::qWaitFor([&box] { return box.hasFocus(); }));
  QTest::keyClick(&box, Qt::Key_Home);
  EXPECT_TRUE(tag->isVisible());
  EXPECT_EQ(tag->text(), "x = 0.000 m\nMy = 0.0 kNm\nVz = 30.0 kN");
  for (int k = 0; k < 25; ++k) QTest::keyClick(&box, Qt::Key_Right);
  // 1.2 * 10 * 5^2 / 8 at the middle
  EXPECT_EQ(tag->text(), "x = 2.500 m\nMy = 37.5 kNm\nVz = 0.0 kN");
  QTest::keyClick(&box, Qt::Key_End);
  EXPECT_EQ(tag->text(), "x = 5.000 m\nMy = 0.0 kNm\nVz = -30.0 kN");
  // Beside the hairline, within the plane.
  EXPECT_TRUE(box.parentWidget()->rect().contains(tag->geometry()));
  Field("il").setFocus();
  EXPECT_FALSE(tag->isVisible());
}

/// Presses Tab until a control of the window has the focus.
void TabTo(QWidget& window, const char* name) {
  ASSERT_TRUE(QTest::qWaitFor([&] { return QApplication::activeWindow() == &window; })) << name;
  for (int k = 0; k < 120; ++k) {
    QWidget* now = QApplication::focusWidget();
    if (now != nullptr && now->objectName() == QString::fromUtf8(name)) return;
    QTest::keyClick(now == nullptr ? &window : now, Qt::Key_Tab);
    QCoreApplication::processEvents();
  }
  FAIL() << name << " can't be reached";
}

void PressFocused(Qt::Key key, Qt::KeyboardModifiers with = Qt::NoModifier) {
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  QTest::keyClick(QApplication::focusWidget(), key, with);
  QCoreApplication::processEvents();
}

void TypeFocused(const char* text) {
  ASSERT_NE(QApplication::focusWidget(), nullptr);
  QTest::keyClicks(QApplication::focusWidget(), QString::fromUtf8(text));
  PressFocused(Qt::Key_Return);
}

// The jobs of the help book's first chapter, from the new project to the printed report.
TEST_F(DesktopTest, FirstDesignByKeysAlone) {
  const std::string path = folder_.filePath("floor.kvn").toStdString();
  TabTo(Main(), "iproj");
  PressFocused(Qt::Key_N, Qt::ControlModifier);
  TabTo(Main(), "iproj");
  TypeFocused("Warehouse");
  TypeFocused("Floor beam");
  EXPECT_TRUE(Field("il").hasFocus());
  TypeFocused("6");
  TabTo(Main(), "cbutt0");
  PressFocused(Qt::Key_Return);
  TabTo(Main(), "cbofyk");
  TypeFocused("S355");

  QTest::keyClick(&Main(), Qt::Key_P, Qt::AltModifier);
  QMenu* profiles = ActionOf("mnustiff")->menu();
  ASSERT_TRUE(profiles->isVisible());
  for (int k = 0; k < 10 && profiles->activeAction() != ActionOf("mnup04"); ++k) {
    QTest::keyClick(profiles, Qt::Key_Down);
  }
  QTest::keyClick(profiles, Qt::Key_Return);
  QCoreApplication::processEvents();
  ASSERT_TRUE(session_.IsOpen("p04"));
  TabTo(Window("p04"), "Cbo");
  QTest::keyClicks(QApplication::focusWidget(), "300");
  PressFocused(Qt::Key_Escape);
  EXPECT_FALSE(session_.IsOpen("p04"));

  Main().activateWindow();
  TabTo(Main(), "iproj");
  QTest::keyClick(&Main(), Qt::Key_L, Qt::AltModifier);
  FormWindow& loading = Window("loading");
  TabTo(loading, "inp");
  TypeFocused("0");
  TabTo(loading, "iq1");
  TypeFocused("7.5");
  TabTo(loading, "iq2");
  TypeFocused("9");
  TabTo(loading, "iq2_pv");
  PressFocused(Qt::Key_Return);
  TabTo(loading, "check_selfweight");
  PressFocused(Qt::Key_Space);
  TabTo(loading, "ok");
  PressFocused(Qt::Key_Return);
  EXPECT_FALSE(session_.IsOpen("loading"));

  Main().activateWindow();
  TabTo(Main(), "cbuttlateral");
  PressFocused(Qt::Key_Return);
  TabTo(Window("vipping"), "Cbo");
  QTest::keyClicks(QApplication::focusWidget(), "2");
  TabTo(Window("vipping"), "ok");
  PressFocused(Qt::Key_Return);

  const ProjectState& st = session_.st();
  EXPECT_EQ(st.L, 6.0f);
  EXPECT_EQ(session_.Text("korvane.obeam").substr(0, 6), "IPE300");
  EXPECT_EQ(st.NP, 0.0f);
  EXPECT_EQ(st.q1, 7.5f);
  EXPECT_EQ(st.q2, 9.0f);
  EXPECT_EQ(int(st.q2_pv), 1);
  EXPECT_EQ(int(st.SelfWeight), 1);
  EXPECT_EQ(int(st.LtbSegments), 2);
  EXPECT_EQ(Main().verdict().Word(), "passes");
  EXPECT_EQ(Main().verdict().Figure(), "0.56");

  // The details, the values along the member, the file, the paper.
  Main().activateWindow();
  TabTo(Main(), "de");
  PressFocused(Qt::Key_Return);
  EXPECT_TRUE(session_.IsOpen("detailedresult"));
  QTest::keyClick(&Window("detailedresult"), Qt::Key_Escape);
  Main().activateWindow();
  TabTo(Main(), "picmy");
  PressFocused(Qt::Key_Home);
  platform_.answers = {path};
  PressFocused(Qt::Key_S, Qt::ControlModifier);
  EXPECT_TRUE(QFile::exists(QString::fromStdString(path)));
  platform_.print = true;
  PressFocused(Qt::Key_P, Qt::ControlModifier);
  EXPECT_EQ(platform_.prints, std::vector<std::string>{"1 x 2"});
}

}  // namespace
}  // namespace korvane
