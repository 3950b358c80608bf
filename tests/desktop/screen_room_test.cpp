// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows need of a screen: nothing is cut off, an empty plane gives its room away.
#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStatusBar>

#include "front/desktop/diagram_pane.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

/// 1920 x 1080 at 175 %, without what a title bar and a panel of the desktop take.
constexpr QSize kSmallest{1097, 617 - 60};

/// The area that a widget is scrolled in; null where it is in none.
QScrollArea* ScrollOf(const QWidget& widget) {
  for (QWidget* above = widget.parentWidget(); above != nullptr; above = above->parentWidget()) {
    if (auto* scroll = qobject_cast<QScrollArea*>(above)) return scroll;
  }
  return nullptr;
}

class RoomTest : public DesktopTest {
protected:
  /// Everything that takes room: stiffeners, a spring, a typed load level, the optimiser's row.
  void FillUp() {
    desktop_->Act([&] {
      session_.Show("endstiff");
      session_.Click("endstiff.cwebstiff1");
      session_.Enter("endstiff.iweba", "4999");
      session_.Close("endstiff");
      session_.Show("vipping");
      session_.Click("vipping.loadl4");
      session_.Enter("vipping.iza", "-1234");
      session_.Close("vipping");
      session_.Click("korvane.cbutt5");
      session_.Enter("korvane.ispring", "50");
      session_.Click("korvane.optimize");
    });
    QCoreApplication::processEvents();
  }
};

TEST_F(RoomTest, EverythingHasItsPlaceOnASmallScreen) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  FillUp();
  Main().resize(kSmallest);
  // A window manager takes its time, and what wraps needs another round.
  EXPECT_TRUE(QTest::qWaitFor([&] { return Main().size() == kSmallest; }));
  const QRect window = Main().rect();
  EXPECT_TRUE(QTest::qWaitFor([&] {
    auto& last = On<QWidget>(Main(), "ULSSLS");
    return window.contains(QRect(last.mapTo(&Main(), QPoint()), last.size()));
  }));
  for (const char* name : {"obeam", "cmdpic", "de", "pic1", "fr31", "fr21", "optimize", "ULSSLS"}) {
    auto& widget = On<QWidget>(Main(), name);
    EXPECT_TRUE(window.contains(QRect(widget.mapTo(&Main(), QPoint()), widget.size()))) << name;
    EXPECT_GE(widget.width(), widget.minimumSizeHint().width()) << name;
  }
  EXPECT_TRUE(window.contains(Main().statusBar()->geometry()));
  const QRect verdict(Main().verdict().mapTo(&Main(), QPoint()), Main().verdict().size());
  EXPECT_TRUE(window.contains(verdict));
}

TEST_F(RoomTest, InputsAreNeverCutOff) {
  QScrollArea* scroll = ScrollOf(Field("il"));
  ASSERT_NE(scroll, nullptr);
  Main().resize(1366, 700);
  FillUp();
  ASSERT_TRUE(On<QLabel>(Main(), "oweba").isVisible());
  EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0);
  // Words in two lines are whole too.
  const auto& distance = On<QLabel>(Main(), "oweba");
  EXPECT_GE(distance.height(), distance.heightForWidth(distance.width()));
  EXPECT_GE(distance.width(), distance.fontMetrics().horizontalAdvance("c/c=4999"));
  // Narrower than they are, they scroll to the side.
  auto* split = Main().findChild<QSplitter*>("inputs_results");
  split->setSizes({200, 1100});
  QCoreApplication::processEvents();
  EXPECT_LT(scroll->width(), scroll->widget()->width());
  EXPECT_GT(scroll->horizontalScrollBar()->maximum(), 0);
}

TEST_F(RoomTest, ReturnBringsTheNextFieldIntoSight) {
  Main().resize(1100, 480);
  Main().activateWindow();
  QCoreApplication::processEvents();
  QLineEdit& factor = Field("iblz");
  QScrollArea* scroll = ScrollOf(factor);
  scroll->verticalScrollBar()->setValue(0);
  desktop_->Act([&] { session_.FocusField("korvane.iblz"); });
  const QRect place(factor.mapTo(scroll->viewport(), QPoint()), factor.size());
  EXPECT_TRUE(scroll->viewport()->rect().contains(place));
}

TEST_F(RoomTest, FirstWindowIsWithinTheScreen) {
  Desktop fresh(session_);
  EXPECT_LE(fresh.window().width(), fresh.window().screen()->availableSize().width());
  EXPECT_LE(fresh.window().height(), fresh.window().screen()->availableSize().height());
}

TEST_F(RoomTest, FormsThatDoNotFitScroll) {
  for (const char* command : {"mnup24", "mnup41", "mnuload1"}) {
    Menu(command);
    FormWindow& window = Window(session_.OpenForms().back());
    const QSize room = window.screen()->availableSize();
    EXPECT_LE(window.width(), room.width()) << command;
    EXPECT_LE(window.height(), room.height()) << command;
    window.resize(500, 260);
    QCoreApplication::processEvents();
    auto* scroll = window.findChild<QScrollArea*>();
    EXPECT_EQ(window.size(), QSize(500, 260)) << command;
    EXPECT_GT(scroll->horizontalScrollBar()->maximum() + scroll->verticalScrollBar()->maximum(), 0)
        << command;
    desktop_->CloseForm(*FindForm(session_.OpenForms().back()));
  }
}

TEST_F(RoomTest, AnEmptyPlaneGivesItsRoomAway) {
  Load("10");
  Main().resize(1366, 768);
  QCoreApplication::processEvents();
  auto& z = On<QGroupBox>(Main(), "fr21");
  auto& y = On<QGroupBox>(Main(), "fr22");
  EXPECT_TRUE(z.isVisible());
  EXPECT_FALSE(y.isVisible());
  const int whole = z.width();
  // An axial load of the variable group belongs to neither.
  TypeInto(On<QLineEdit>(Window("loading"), "inv1"), "40");
  EXPECT_FALSE(y.isVisible());
  EXPECT_TRUE(On<DiagramBox>(Main(), "picloadvn").isVisible());

  On<QAbstractButton>(Window("loading"), "iq2_yz").click();
  TypeInto(On<QLineEdit>(Window("loading"), "iq2"), "3");
  QCoreApplication::processEvents();
  EXPECT_TRUE(z.isVisible());
  EXPECT_TRUE(y.isVisible());
  EXPECT_LT(z.width(), whole);

  TypeInto(On<QLineEdit>(Window("loading"), "iq1"), "0");
  EXPECT_FALSE(z.isVisible());
  EXPECT_TRUE(y.isVisible());
  EXPECT_TRUE(On<DiagramBox>(Main(), "picmz").isVisible());
  // Without any load the plane of My stays.
  TypeInto(On<QLineEdit>(Window("loading"), "iq2"), "0");
  EXPECT_TRUE(z.isVisible());
  EXPECT_FALSE(y.isVisible());
}

}  // namespace
}  // namespace korvane
