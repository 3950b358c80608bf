// SPDX-License-Identifier: GPL-3.0-or-later
// What a person sees at a glance: marks in both themes, whole result lines, legends and units.
#include <QAbstractButton>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>
#include <QStyleOption>
#include <algorithm>
#include <cmath>

#include "front/desktop/help_viewer.h"
#include "places.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

/// Relative luminance of a colour, 0 to 1, as the rules for accessible contrast define it.
double Luminance(const QColor& c) {
  const auto linear = [](double v) {
    return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
}

double Contrast(const QColor& a, const QColor& b) {
  const double light = std::max(Luminance(a), Luminance(b));
  const double dark = std::min(Luminance(a), Luminance(b));
  return (light + 0.05) / (dark + 0.05);
}

/// Greatest contrast that a primitive of the style has with the window that it stands on.
double ContrastOf(QStyle::PrimitiveElement element, QStyle::State state) {
  QStyleOptionButton option;
  option.palette = QApplication::palette();
  option.rect = QRect(0, 0, 16, 16);
  option.state = state | QStyle::State_Enabled | QStyle::State_Active;
  const QColor window = option.palette.color(QPalette::Window);
  QImage image(option.rect.size(), QImage::Format_RGB32);
  image.fill(window);
  QPainter painter(&image);
  QApplication::style()->drawPrimitive(element, &option, &painter);
  painter.end();
  double greatest = 1;
  // The outline: the row through the middle, its outer quarter.
  for (int x = 0; x < 4; ++x)
    greatest = std::max(greatest, Contrast(image.pixelColor(x, 8), window));
  return greatest;
}

TEST(MarksOfTheStyle, StandOutInBothThemes) {
  for (const Theme theme : {Theme::Light, Theme::Dark}) {
    ApplyTheme(theme);
    for (const auto element : {QStyle::PE_IndicatorCheckBox, QStyle::PE_IndicatorRadioButton}) {
      for (const auto state : {QStyle::State_Off, QStyle::State_On}) {
        EXPECT_GE(ContrastOf(element, state), 3.0) << int(element) << " " << int(state);
      }
    }
    EXPECT_GE(ContrastOf(QStyle::PE_PanelButtonTool, QStyle::State_On), 3.0);
  }
  ApplyTheme(Theme::Light);
}

/// Gives the row of the results a height.
void SetResultHeight(MainWindow& window, int height) {
  auto* rows = window.centralWidget()->findChild<QSplitter*>("results_diagrams");
  const int all = rows->sizes()[0] + rows->sizes()[1];
  rows->setSizes({height, all - height});
  QCoreApplication::processEvents();
}

TEST_F(DesktopTest, ResultLinesMoveTogetherBeforeTheyAreCut) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  Main().resize(1280, 720);
  QCoreApplication::processEvents();
  auto* scroll = qobject_cast<QScrollArea*>(Results().parentWidget()->parentWidget());
  ASSERT_NE(scroll, nullptr);
  const int frame = scroll->parentWidget()->height() - scroll->viewport()->height();
  SetResultHeight(Main(), Results().minimumHeight() + frame);
  EXPECT_EQ(scroll->verticalScrollBar()->maximum(), 0);
  // The usual distance of the lines would need more than there is.
  const double usual = 1.35 * QFontMetricsF(Results().font()).height();
  EXPECT_LT(Results().height(), usual * (Results().Lines().size() + 1));
}

TEST_F(DesktopTest, ResultLettersGrowWithTheRoom) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  Main().resize(1280, 720);
  QCoreApplication::processEvents();
  const double small = Results().font().pointSizeF();
  Main().resize(3840, 2160);
  QCoreApplication::processEvents();
  EXPECT_GT(Results().font().pointSizeF(), 1.3 * small);
  auto* scroll = qobject_cast<QScrollArea*>(Results().parentWidget()->parentWidget());
  EXPECT_EQ(scroll->verticalScrollBar()->maximum(), 0);
  EXPECT_EQ(scroll->horizontalScrollBar()->maximum(), 0);
}

bool Says(const QWidget& window, const QString& text) {
  const auto labels = window.findChildren<QLabel*>();
  return std::any_of(labels.begin(), labels.end(), [&](const QLabel* label) {
    return label->isVisible() && QString(label->text()).replace(QChar::Nbsp, ' ') == text;
  });
}

TEST_F(DesktopTest, EndConditionsSayWhatTheyAre) {
  desktop_->Act([&] { session_.Show("bucklingz"); });
  FormWindow& window = Window("bucklingz");
  for (const char* text : {"Fixed - free, k = 2.0", "Pinned - pinned, k = 1.0",
                           "Pinned - fixed, k = 0.7", "Fixed - fixed, k = 0.5"}) {
    EXPECT_TRUE(Says(window, text)) << text;
  }
}

TEST_F(DesktopTest, DesignStrengthHasItsUnit) {
  const auto& strength = On<QLabel>(Main(), "ofyd");
  bool beside = false;
  for (const QLabel* label : Main().centralWidget()->findChildren<QLabel*>()) {
    const bool right =
        label->x() > strength.x() && label->parent() == strength.parent() &&
        std::abs(label->geometry().center().y() - strength.geometry().center().y()) < 3;
    beside = beside || (right && label->text() == "MPa" && label->isVisible());
  }
  EXPECT_TRUE(beside);
}

TEST_F(DesktopTest, LongNameIsReadFromItsBeginning) {
  const std::string name(120, 'n');
  TypeInto(Field("iident"), name.c_str());
  const std::string path = folder_.filePath("long.kvn").toStdString();
  platform_.answers = {path, path};
  Menu("mnusaveas");
  TypeInto(Field("iident"), "short");
  Menu("mnuopen");
  EXPECT_EQ(Field("iident").text().toStdString(), name);
  EXPECT_EQ(Field("iident").cursorPosition(), 0);
}

TEST_F(DesktopTest, FactorsOfTheSelfweightComeAndGoWithTheirHeading) {
  Menu("mnuload1");
  FormWindow& window = Window("loading");
  auto& check = On<QAbstractButton>(window, "check_selfweight");
  auto& tables = On<QLineEdit>(window, "iq1");
  if (check.isChecked()) check.click();
  QCoreApplication::processEvents();
  EXPECT_FALSE(Says(window, "Selfweight"));
  const QPoint before = tables.mapTo(&window, QPoint());
  check.click();
  QCoreApplication::processEvents();
  EXPECT_TRUE(Says(window, "Selfweight"));
  EXPECT_EQ(tables.mapTo(&window, QPoint()).x(), before.x());
}

TEST_F(DesktopTest, FormsOpenInTheLowerRightCorner) {
  desktop_->Act([&] { session_.Show("endstiff"); });
  const QRect form = Window("endstiff").frameGeometry();
  const QRect main = Main().frameGeometry();
  EXPECT_TRUE(main.contains(form));
  EXPECT_GT(form.center().x(), main.center().x());
  EXPECT_GT(form.center().y(), main.center().y());
}

TEST(HelpPictures, AreNoWiderThanANarrowPage) {
  const HelpBook book(QStringLiteral(KORVANE_SOURCE_DIR "/docs/help"));
  HelpViewer viewer(book);
  viewer.resize(560, 480);
  viewer.show();
  QCoreApplication::processEvents();
  viewer.Open(QStringLiteral("main-window.html"));
  QCoreApplication::processEvents();
  auto* page = viewer.findChild<HelpPageView*>("help_page");
  ASSERT_NE(page, nullptr);
  EXPECT_LT(page->viewport()->width(), 600);
  EXPECT_EQ(page->horizontalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace korvane
