// SPDX-License-Identifier: GPL-3.0-or-later
// A window shows the state, and only typing changes it: on the real windows, with the focus where
// the window system puts it.
#include <QApplication>
#include <QClipboard>
#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>

#include "core/project_file.h"
#include "core/text.h"
#include "front/state_compare.h"
#include "sections/profile_table.h"
#include "tests/design/random_states.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

class ShownState : public DesktopTest {
protected:
  void Click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
    QCoreApplication::processEvents();
  }
  void Activate(QWidget& window) {
    window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    QCoreApplication::processEvents();
  }
  QWidget& WindowOf(const Form& form) {
    FormWindow* window = desktop_->WindowOf(form);
    return window == nullptr ? static_cast<QWidget&>(Main()) : *window;
  }

  /// Every visible field of every open form, but the one typed in, is the state in its format.
  void ExpectState(const std::string& where) {
    for (const Form* form : session_.Session::OpenForms()) {
      QWidget* root = form == TheForms().main ? Main().centralWidget() : &WindowOf(*form);
      for (const Control& c : form->controls) {
        if (!c.field.IsNumber() || c.text || session_.Typed(c)) continue;
        const auto* edit = root->findChild<QLineEdit*>(QString::fromStdString(c.name));
        if (edit == nullptr || !edit->isVisible()) continue;
        EXPECT_EQ(edit->text().toStdString(),
                  Format(ReadInput(session_.st(), c.field.input), c.field.Format()))
            << AddressOf(c) << " " << where;
      }
    }
  }
};

TEST_F(ShownState, AProjectOpenedBehindTheLoadsKeepsItsOwn) {
  const std::string path = folder_.filePath("other.kvn").toStdString();
  ProjectState st = session_.st();
  st.AnalysisMode = 1;
  st.q2 = 9;
  ASSERT_TRUE(SaveProject(path, st));
  Menu("mnuload1");
  FormWindow& loading = Window("loading");
  Activate(loading);
  Click(On<QLineEdit>(loading, "iq2"));
  ASSERT_TRUE(On<QLineEdit>(loading, "iq2").hasFocus());
  platform_.answers = {path};
  Menu("mnuopen");
  EXPECT_FALSE(loading.isVisible());
  Click(*Main().centralWidget());
  Activate(Main());
  EXPECT_EQ(double(session_.st().q2), 9);
  ExpectState("opened");
  EXPECT_EQ(session_.NotCalculated(), "");
}

TEST_F(ShownState, TabThroughEveryFieldChangesNothing) {
  Menu("mnup21");
  TypeInto(On<QLineEdit>(Window("p21"), "isth"), "600.4");
  Load("7.25");
  for (const char* form : {"p21", "loading", "korvane"}) {
    QWidget& window = WindowOf(*FindForm(form));
    Activate(window);
    const ProjectState before = session_.st();
    for (int k = 0; k < 60; ++k) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
      QCoreApplication::processEvents();
    }
    EXPECT_TRUE(SameInputs(before, session_.st())) << form;
  }
  EXPECT_EQ(session_.st().p21_h, float32(600.4));
  EXPECT_EQ(session_.st().q1, float32(7.25));
  ExpectState("tabbed");
}

/// Clicks into fields, Tab and Return, other windows and back, without a character typed.
TEST_F(ShownState, AWalkWithoutTypingChangesNoInputAndShowsTheState) {
  const int seeds = qEnvironmentVariableIntValue("KORVANE_WALK_SEEDS");
  const auto families = AllFamilies();
  int walked = 0;
  for (unsigned seed = 0; seed < unsigned(seeds > 0 ? seeds : 10); ++seed) {
    Dice dice(seed);
    desktop_->Act([&] {
      RandomState(seed, families[seed % families.size()].code, session_.st());
      session_.st().CFactorManual = 0;
    });
    desktop_->Act([&] {
      try {
        session_.Calculate();
        session_.Show(seed % 2 == 0 ? "loading" : "endforce");
        session_.Show(FamilyForm(session_.st().ProfileType));
        session_.Focus("korvane");
        session_.Calculate();
        ++walked;
      } catch (const ArithmeticFault&) {
        // Not every random member can be calculated.
      }
    });
    if (!session_.NotCalculated().empty()) continue;
    platform_.messages.clear();
    const ProjectState before = session_.st();
    for (int step = 0; step < 25; ++step) {
      const auto& open = session_.Session::OpenForms();
      const Form& form = *open[std::size_t(dice.Below(int(open.size())))];
      QWidget& window = WindowOf(form);
      Activate(window);
      QList<QLineEdit*> fields;
      for (QLineEdit* one : window.findChildren<QLineEdit*>()) {
        if (one->isVisible() && one->isEnabled() && one->window() == &window) fields << one;
      }
      if (fields.isEmpty()) continue;
      Click(*fields[dice.Below(int(fields.size()))]);
      if (dice.Chance(40)) {
        QTest::keyClick(QApplication::focusWidget(),
                        dice.Chance(50) ? Qt::Key_Tab : Qt::Key_Return);
      }
      QCoreApplication::processEvents();
    }
    const std::string where = "seed " + std::to_string(seed);
    ExpectState(where);
    EXPECT_TRUE(platform_.messages.empty()) << where;
    // The mode follows the form that was looked at, and with it what is worked out.
    ProjectState after = session_.st();
    after.AnalysisMode = before.AnalysisMode;
    after.DatabaseMode = before.DatabaseMode;
    after.fyk = before.fyk;
    after.fd = before.fd;
    after.epsilon = before.epsilon;
    after.BucklingCurveY = before.BucklingCurveY;
    after.BucklingCurveZ = before.BucklingCurveZ;
    after.LtbCriticalSegment = before.LtbCriticalSegment;
    EXPECT_TRUE(SameInputs(before, after)) << where;
    const std::vector<const Form*> open = session_.Session::OpenForms();
    desktop_->Act([&] {
      for (const Form* one : open) {
        if (one != TheForms().main) session_.Unload(*one);
      }
    });
  }
  EXPECT_GT(walked, (seeds > 0 ? seeds : 10) * 7 / 10);
}

// --- Refused values -----------------------------------------------------------------------------

TEST_F(ShownState, EscapePutsTheLastValueBackBeforeItClosesAnything) {
  Menu("mnup21");
  FormWindow& window = Window("p21");
  auto& height = On<QLineEdit>(window, "isth");
  const QString before = height.text();
  TypeInto(height, "1");
  EXPECT_EQ(session_.st().p21_h, 1.0F);
  EXPECT_EQ(Main().verdict().Word(), "not calculated");
  QTest::keyClick(&height, Qt::Key_Escape);
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(height.text(), before);
  EXPECT_NE(session_.st().p21_h, 1.0F);
  EXPECT_EQ(session_.Refused(), nullptr);
  QTest::keyClick(&height, Qt::Key_Escape);
  EXPECT_FALSE(window.isVisible());

  // In the main window, which Escape never closes.
  TypeInto(Field("il"), "0.01");
  QTest::keyClick(&Field("il"), Qt::Key_Escape);
  EXPECT_EQ(Field("il").text(), "5.000");
  EXPECT_EQ(session_.NotCalculated(), "");
  QTest::keyClick(&Field("il"), Qt::Key_Escape);
  EXPECT_TRUE(Main().isVisible());
  EXPECT_FALSE(session_.Ended());
}

TEST_F(ShownState, MenuOfARefusedFieldOffersTheLastValue) {
  auto& length = Field("il");
  TypeInto(length, "0.01");
  const auto menuOf = [](QLineEdit& field) {
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(2, 2),
                            field.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&field, &event);
    QCoreApplication::processEvents();
    return qobject_cast<QMenu*>(QApplication::activePopupWidget());
  };
  QMenu* menu = menuOf(length);
  ASSERT_NE(menu, nullptr);
  QAction* back = menu->actions().first();
  EXPECT_EQ(back->text(), "Put back 5.000");
  back->trigger();
  menu->close();
  QCoreApplication::processEvents();
  EXPECT_EQ(length.text(), "5.000");
  EXPECT_EQ(double(session_.st().L), 5);
  EXPECT_EQ(session_.NotCalculated(), "");
}

TEST_F(ShownState, CloseBoxTakesTheFieldAndKeepsARefusedOneOpen) {
  Menu("mnuload1");
  FormWindow& window = Window("loading");
  auto& load = On<QLineEdit>(window, "iq1");
  Activate(window);
  load.setFocus();
  load.selectAll();
  QTest::keyClicks(&load, "12");
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(double(session_.st().q1), 12);

  Menu("mnuload1");
  Activate(window);
  auto& factor = On<QLineEdit>(window, "ilfp_uls");
  factor.setFocus();
  factor.selectAll();
  QTest::keyClicks(&factor, "9");
  window.close();
  EXPECT_TRUE(window.isVisible());
  EXPECT_EQ(platform_.messages, std::vector<std::string>{" 0 < Loadfactor < 4.0 "});
  EXPECT_TRUE(factor.hasFocus());
  QTest::keyClick(&factor, Qt::Key_Escape);
  window.close();
  EXPECT_FALSE(window.isVisible());
  EXPECT_EQ(session_.NotCalculated(), "");
}

TEST_F(ShownState, WhatIsCopiedSaysThatItDoesntHold) {
  Load("10");
  Results().Copy();
  EXPECT_FALSE(QApplication::clipboard()->text().contains("not calculated"));
  desktop_->CloseForm(*FindForm("loading"));
  TypeInto(Field("il"), "0.01");
  Results().Copy();
  EXPECT_EQ(QApplication::clipboard()->text().section(QLatin1Char('\n'), 0, 0),
            "not calculated: L 0.010 m is refused");
}

// --- Database and optimiser ---------------------------------------------------------------------

TEST_F(ShownState, AClickOrReturnOnTheMarkedRowLoadsIt) {
  Menu("mnup04");
  On<QPushButton>(Window("p04"), "addtodb").click();
  Menu("mnup21");
  On<QPushButton>(Window("p21"), "Command1").click();
  Activate(Main());
  Menu("mnudb");
  auto& list = On<QListWidget>(Window("database"), "cbo");
  // The row just added is marked; it comes in force with the form.
  ASSERT_EQ(list.currentRow(), 0);
  for (const bool key : {false, true}) {
    desktop_->Act([&] {
      session_.st().ProfileType = 21;
      session_.Calculate();
    });
    ASSERT_EQ(int(session_.st().ProfileType), 21);
    if (key) {
      QTest::keyClick(&list, Qt::Key_Return);
    } else {
      QTest::mouseClick(list.viewport(), Qt::LeftButton, Qt::NoModifier,
                        list.visualItemRect(list.item(0)).center());
    }
    EXPECT_EQ(int(session_.st().ProfileType), 4) << key;
  }
}

TEST_F(ShownState, OptimiserIsModalAndItsFailingRowsAreRed) {
  Load("900");
  desktop_->CloseForm(*FindForm("loading"));
  Activate(Main());
  Menu("mnuopt");
  FormWindow& window = Window("optroll");
  ASSERT_TRUE(window.isVisible());
  EXPECT_TRUE(window.isModal());
  EXPECT_FALSE(Window("loading").isModal());
  EXPECT_TRUE(Window("bucklingy").isModal());
  EXPECT_TRUE(Window("bucklingz").isModal());
  const QColor red = ColourFor(Role::Fail, window.palette());
  const auto colour = [&](const char* name) {
    return On<QLabel>(window, name).palette().color(QPalette::WindowText);
  };
  EXPECT_EQ(colour("oir1"), red);
  EXPECT_EQ(colour("owords1"), red);
  EXPECT_NE(colour("oir2"), red);
  EXPECT_TRUE(On<QLabel>(window, "owords1").text().startsWith("not searched; fails"));
  // Nothing behind it takes part.
  EXPECT_EQ(QApplication::activeModalWidget(), &window);
}

}  // namespace
}  // namespace korvane
