// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QCheckBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QToolButton>

#include "core/text.h"
#include "front/desktop/optimiser_row.h"
#include "sections/profile_table.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

TEST_F(DesktopTest, EveryControlHasItsWidget) {
  for (const Form& form : AllForms()) {
    QWidget* window = &Main();
    if (form.name != "korvane") window = &Window(form.name);
    for (const Control& c : form.controls) {
      if (c.kind == Kind::Menu) continue;
      // Diagrams come and go with the loads; the two small pictures are drawn on the buttons.
      if (form.name == "korvane" && c.kind == Kind::Surface && c.name != "pic1" &&
          c.name != "pic31") {
        continue;
      }
      EXPECT_NE(window->findChild<QWidget*>(QString::fromStdString(c.name)), nullptr)
          << form.name << "." << c.name;
    }
  }
}

TEST_F(DesktopTest, EveryInputHasAccessibleNameAndTip) {
  for (const Form& form : AllForms()) {
    QWidget* window = &Main();
    if (form.name != "korvane") window = &Window(form.name);
    for (QLineEdit* edit : window->findChildren<QLineEdit*>()) {
      EXPECT_FALSE(edit->accessibleName().isEmpty())
          << form.name << "." << edit->objectName().toStdString();
      EXPECT_FALSE(edit->toolTip().isEmpty())
          << form.name << "." << edit->objectName().toStdString();
    }
  }
}

class FamilyWindow : public DesktopTest, public testing::WithParamInterface<Family> {};

/// The family comes in force, and a change in its form shows on the main window.
TEST_P(FamilyWindow, OpensAndChanges) {
  const Family& family = GetParam();
  Menu(family.menuControl);
  FormWindow& window = Window(family.form);
  ASSERT_TRUE(window.isVisible());
  EXPECT_EQ(window.windowTitle().toStdString(), family.formCaption);
  EXPECT_EQ(int(session_.st().ProfileType), family.code);
  const QString before = On<QLabel>(Main(), "obeam").text();
  const int calculations = session_.Calculations();
  if (auto* list = window.findChild<QListWidget*>()) {
    ASSERT_GT(list->count(), 2);
    list->setCurrentRow(list->currentRow() == 2 ? 1 : 2);
    EXPECT_GT(session_.Calculations(), calculations);
    EXPECT_NE(On<QLabel>(Main(), "obeam").text(), before);
  } else {
    const Form& form = *FindForm(family.form);
    for (const Control& c : form.controls) {
      if (c.kind != Kind::Input || !c.field.IsNumber()) continue;
      auto& edit = On<QLineEdit>(window, c.name.c_str());
      const std::string value =
          Format(ReadInput(session_.st(), c.field.input) * 1.01, c.field.Format());
      TypeInto(edit, value.c_str());
      EXPECT_EQ(edit.text().toStdString(), value) << c.name;
      break;
    }
    EXPECT_GT(session_.Calculations(), calculations);
    EXPECT_NE(On<QLabel>(Main(), "obeam").text(), "");
  }
  EXPECT_EQ(int(session_.st().ProfileType), family.code);
  EXPECT_TRUE(platform_.messages.empty());
}

INSTANTIATE_TEST_SUITE_P(All, FamilyWindow,
                         testing::ValuesIn(std::vector<Family>(AllFamilies().begin(),
                                                               AllFamilies().end())),
                         [](const auto& param) { return std::string(param.param.form); });

TEST_F(DesktopTest, RefusedDimensionKeepsTheFocus) {
  Menu("mnup21");
  auto& height = On<QLineEdit>(Window("p21"), "isth");
  TypeInto(height, "10");
  EXPECT_EQ(platform_.messages, std::vector<std::string>{" h >= 50 "});
  EXPECT_TRUE(IsGreen(height));
  EXPECT_TRUE(height.hasFocus());
}

TEST_F(DesktopTest, LoadFormRefusesToCloseOnMixedSigns) {
  Menu("mnuload1");
  FormWindow& window = Window("loading");
  TypeInto(On<QLineEdit>(window, "iqt11"), "2");
  TypeInto(On<QLineEdit>(window, "iqt12"), "-2");
  TypeInto(On<QLineEdit>(window, "iqt1x2"), "3");
  On<QPushButton>(window, "ok").click();
  EXPECT_EQ(platform_.messages,
            std::vector<std::string>{" Trapezoidal load: One positive and one negative value "});
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(session_.FocusedField(), "loading.iqt12");
  EXPECT_TRUE(On<QLineEdit>(window, "iqt12").hasFocus());
}

TEST_F(DesktopTest, LoadFormClosesByItsFrame) {
  Menu("mnuload1");
  Window("loading").close();
  EXPECT_FALSE(Window("loading").isVisible());
  EXPECT_FALSE(session_.IsOpen("loading"));
}

TEST_F(DesktopTest, CategoryButtonStepsItsText) {
  Menu("mnuload1");
  auto& toggle = On<QToolButton>(Window("loading"), "iq1_pv");
  EXPECT_EQ(toggle.text(), "Permanent");
  QTest::mouseClick(&toggle, Qt::LeftButton);
  EXPECT_EQ(toggle.text(), "Variable 1");
  QTest::mouseClick(&toggle, Qt::LeftButton);
  EXPECT_EQ(toggle.text(), "Variable 2");
}

TEST_F(DesktopTest, RefusedPositionBecomesZero) {
  Menu("mnuload1");
  auto& position = On<QLineEdit>(Window("loading"), "ipmx(1)");
  TypeInto(position, "9");
  EXPECT_EQ(position.text(), "0.000");
  EXPECT_EQ(platform_.messages, std::vector<std::string>{" 0 < x <= l "});
  EXPECT_TRUE(position.hasFocus());
}

TEST_F(DesktopTest, OptimiserMarksTheLightestRowAndTakesIt) {
  Load("10");
  Menu("mnuopt");
  FormWindow& window = Window("optroll");
  ASSERT_TRUE(window.isVisible());
  On<QCheckBox>(window, "cbp04").click();
  EXPECT_TRUE(On<QLabel>(window, "oname4").text().startsWith("IPE"));
  EXPECT_EQ(LightestRow(session_.rows()), 4);
  On<QAbstractButton>(window, "op04").click();
  On<QPushButton>(window, "Command2").click();
  EXPECT_FALSE(window.isVisible());
  EXPECT_TRUE(On<QLabel>(Main(), "obeam").text().startsWith("IPE"));
}

/// Whether there is full ink anywhere on a pane, as in the letters of its lines.
bool HasInk(Pane& pane) {
  const QImage image = pane.grab().toImage();
  const QColor ink = pane.palette().color(QPalette::Text);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (image.pixelColor(x, y) == ink) return true;
    }
  }
  return false;
}

TEST_F(DesktopTest, ResultsOfAnotherSectionArePaledUntilACalculation) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  Main().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
  EXPECT_TRUE(HasInk(Results()));
  Menu("mnuopt");
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Window("optroll")));
  EXPECT_TRUE(HasInk(Results()));
  On<QAbstractButton>(Window("optroll"), "cbp04").click();
  ASSERT_NE(On<QLabel>(Main(), "obeam").text().toStdString().find("IPE"), std::string::npos);
  EXPECT_FALSE(HasInk(Results()));
  desktop_->CloseForm(*FindForm("optroll"));
  Main().activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&Main()));
  EXPECT_TRUE(HasInk(Results()));

  // A family's command waits for the first change of its form.
  desktop_->Act([&] { session_.Menu("mnup02"); });
  EXPECT_FALSE(HasInk(Results()));
  QTest::keyClicks(Window("p02").findChild<QListWidget*>(), "200");
  EXPECT_TRUE(HasInk(Results()));
}

TEST_F(DesktopTest, WeldedSectionIsNotOptimised) {
  Menu("mnup21");
  Menu("mnuopt");
  EXPECT_EQ(platform_.messages,
            std::vector<std::string>{" Only database profiles can be optimized "});
  EXPECT_FALSE(session_.IsOpen("optroll"));
}

TEST_F(DesktopTest, DatabaseListShowsWhatWasAdded) {
  Menu("mnup04");
  On<QPushButton>(Window("p04"), "addtodb").click();
  Menu("mnudb");
  EXPECT_EQ(On<QListWidget>(Window("database"), "cbo").count(), 1);
  On<QPushButton>(Window("database"), "cmd_x").click();
  EXPECT_EQ(On<QListWidget>(Window("database"), "cbo").count(), 0);
}

TEST_F(DesktopTest, EndForceFieldMovesOn) {
  Menu("mnuendforces");
  FormWindow& window = Window("endforce");
  TypeInto(On<QLineEdit>(window, "imy1"), "25");
  EXPECT_TRUE(On<QLineEdit>(window, "imy2").hasFocus());
  EXPECT_TRUE(ResultText().contains("My"));
}

}  // namespace
}  // namespace korvane
