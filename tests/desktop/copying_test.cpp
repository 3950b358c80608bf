// SPDX-License-Identifier: GPL-3.0-or-later
// What the panes give to other programs: pictures and tables, with a notice where they don't hold.
#include <QApplication>
#include <QClipboard>
#include <QMimeData>
#include <QTableWidget>

#include "front/copied_tables.h"
#include "front/desktop/diagram_pane.h"
#include "front/desktop/member_strip.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

class CopyingTest : public DesktopTest {
protected:
  /// Copies by the key and gives what lies on the clipboard then.
  const QMimeData& CopiedFrom(QWidget& pane) {
    QApplication::clipboard()->clear();
    QTest::keyClick(&pane, Qt::Key_C, Qt::ControlModifier);
    return *QApplication::clipboard()->mimeData();
  }
  DiagramBox& Moments() { return On<DiagramBox>(Main(), "picmy"); }
};

TEST_F(CopyingTest, DiagramIsCopiedAsPictureAndStations) {
  Load("10");
  const QMimeData& copied = CopiedFrom(Moments());
  EXPECT_TRUE(copied.hasImage());
  EXPECT_EQ(copied.imageData().value<QImage>().size(), Moments().size() * 2);
  const QStringList lines = copied.text().split('\n');
  ASSERT_EQ(lines.size(), 52);
  EXPECT_EQ(lines[0], "x (m)\tMy (kNm)\tVz (kN)\tMz (kNm)\tVy (kN)\tz (mm)\ty (mm)");
  // 1.2 * 10 * 5^2 / 8 and 1.2 * 10 * 5 / 2
  EXPECT_TRUE(lines[26].startsWith("2.500\t37.50\t0.00\t0.00\t0.00\t")) << lines[26].toStdString();
  EXPECT_TRUE(lines[1].startsWith("0.000\t0.00\t30.00\t")) << lines[1].toStdString();
}

TEST_F(CopyingTest, EndForcesHaveNoDeflections) {
  Menu("mnuendforces");
  TypeInto(On<QLineEdit>(Window("endforce"), "imy1"), "25");
  const auto rows = StationRows(session_);
  EXPECT_EQ(rows.size(), 52u);
  EXPECT_EQ(rows[0].size(), 5u);
  EXPECT_EQ(rows[1][1], "25.00");
}

TEST_F(CopyingTest, PicturesOfResultsThatDoNotHoldSaySo) {
  Load("10");
  Pane& figure = On<FigurePane>(Main(), "pic1");
  const QSize usual = figure.Picture().size();
  EXPECT_EQ(usual, figure.size() * 2);
  TypeInto(Field("il"), "0.01");
  const QImage told = figure.Picture();
  EXPECT_EQ(told.width(), usual.width());
  EXPECT_GT(told.height(), usual.height());
  // The words stand at the head.
  const QRgb paper = told.pixel(0, 0);
  int ink = 0;
  for (int y = 0; y < told.height() - usual.height(); ++y) {
    for (int x = 0; x < told.width(); ++x) ink += told.pixel(x, y) != paper;
  }
  EXPECT_GT(ink, 200);
  const std::string why = session_.NotCalculated();
  ASSERT_FALSE(why.empty());
  for (const std::string& text :
       {StationTable(session_), CheckTable(session_), Moments().Table().toStdString()}) {
    EXPECT_EQ(text.substr(0, why.size() + 1), why + "\n");
  }
}

TEST_F(CopyingTest, PicturesAreOnPaperInTheDark) {
  Load("10");
  ApplyTheme(Theme::Dark);
  QCoreApplication::processEvents();
  EXPECT_LT(Moments().palette().color(QPalette::Base).lightness(), 60);
  const QImage picture = Moments().Picture();
  const QColor ground = Moments().palette().color(QPalette::Base);
  ApplyTheme(Theme::Light);
  QCoreApplication::processEvents();
  EXPECT_EQ(picture.pixelColor(0, picture.height() - 1), QColor(Qt::white));
  EXPECT_LT(ground.lightness(), 60);
}

TEST_F(CopyingTest, ChecksAreATable) {
  Load("10");
  const QStringList lines = Results().Table().split('\n');
  EXPECT_EQ(lines[0].toStdString(), session_.Text("korvane.obeam"));
  EXPECT_EQ(lines[1], "Check\tFormula\tNumbers\tIR\tLimit");
  ASSERT_GT(lines.size(), 3);
  for (const QString& line : lines.mid(2)) {
    EXPECT_EQ(line.count('\t'), 4) << line.toStdString();
  }
  // The ratio of the headline stands in one of them.
  const QString greatest = Main().verdict().Figure();
  EXPECT_EQ(lines.filter("\t" + greatest + "\t").size(), 1) << Results().Table().toStdString();
}

TEST_F(CopyingTest, StationsStandInATableThatFollows) {
  Load("10");
  emit Moments().TableWanted();
  auto* window = Main().findChild<QDialog*>("stations");
  ASSERT_NE(window, nullptr);
  auto* table = window->findChild<QTableWidget*>();
  EXPECT_EQ(table->rowCount(), 51);
  EXPECT_EQ(table->item(25, 1)->text(), "37.50");
  TypeInto(Field("il"), "8");
  EXPECT_EQ(table->item(25, 1)->text(), "96.00");
  QTest::keyClick(&Moments(), Qt::Key_End);
  EXPECT_EQ(table->currentRow(), 50);
  QApplication::clipboard()->clear();
  window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(window));
  QTest::keyClick(table, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text().toStdString(), StationTable(session_));
}

TEST_F(CopyingTest, MemberStandsUnderItsLoads) {
  Load("10");
  auto* strip = Moments().parentWidget()->findChild<MemberStrip*>();
  ASSERT_NE(strip, nullptr);
  EXPECT_TRUE(strip->isVisible());
  EXPECT_EQ(strip->accessibleName(), "L = 5.000 m");
  desktop_->Act([&] {
    session_.Show("vipping");
    session_.Select("vipping.Cbo", 2);
  });
  EXPECT_EQ(strip->accessibleName(), "L = 5.000 m, 2 lateral restraint points");
  // Between the loads and the moments.
  EXPECT_LE(On<DiagramBox>(Main(), "picloadzv").geometry().bottom(), strip->geometry().top());
  EXPECT_LE(strip->geometry().bottom(), Moments().geometry().top());
}

}  // namespace
}  // namespace korvane
