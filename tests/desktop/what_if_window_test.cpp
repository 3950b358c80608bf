// SPDX-License-Identifier: GPL-3.0-or-later
// The window "What if": its curves follow range, input and session; its pictures are those that
// the drawing routines make; looking at it changes nothing.
#include "front/desktop/what_if_window.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QMimeData>
#include <QPrinter>
#include <QTabWidget>

#include "front/desktop/chart_pane.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

class WhatIfTest : public DesktopTest {
protected:
  void Open() {
    Load("10");
    desktop_->CloseForm(*FindForm("loading"));
    On<QAbstractButton>(Main(), "open_whatif").click();
    window_ = Main().findChild<WhatIfWindow*>("whatif");
    ASSERT_NE(window_, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
  }
  QString Words() { return On<QLabel>(*window_, "words").text(); }
  QLineEdit& Range(const char* name) { return On<QLineEdit>(*window_, name); }
  ChartPane& Curves() { return On<ChartPane>(*window_, "curves"); }
  const Chart& Drawn() const { return window_->shown().CurvesDrawn(); }
  void Type(const char* field, const char* text) {
    Range(field).selectAll();
    QTest::keyClicks(&Range(field), QString::fromUtf8(text));
  }
  QByteArray Written(const char* name) {
    const QString path = folder_.filePath(QString::fromUtf8(name));
    EXPECT_TRUE(bool(Curves().Save(path)));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  WhatIfWindow* window_ = nullptr;
};

TEST_F(WhatIfTest, ShowsTheLengthAndWhereItEnds) {
  Open();
  EXPECT_EQ(On<QComboBox>(*window_, "input").currentText(), "L");
  EXPECT_EQ(Range("to").text(), "10");
  EXPECT_EQ(Drawn().present, 5.0);
  ASSERT_EQ(Drawn().marks.size(), 1u);
  const QString end = QString::fromStdString(Drawn().marks[0].text);
  EXPECT_TRUE(end.startsWith("L up to ")) << end.toStdString();
  EXPECT_TRUE(Words().endsWith(end));
  EXPECT_TRUE(Words().startsWith("L = 5 m passes, IR " + Main().verdict().Figure()))
      << Words().toStdString();
}

TEST_F(WhatIfTest, FollowsEveryKeyInTheRange) {
  Open();
  Type("to", "4");
  EXPECT_EQ(Drawn().x.high, 4);
  EXPECT_TRUE(Words().endsWith("everything passes from 0.05 to 4 m")) << Words().toStdString();
  // The next key of 45 is drawn too.
  QTest::keyClicks(&Range("to"), "5");
  EXPECT_EQ(Drawn().x.high, 45);
  Type("from", "2,5");
  EXPECT_EQ(Drawn().x.low, 2.5);
  // What is no range leaves the curves.
  Type("from", "90");
  EXPECT_EQ(Drawn().x.low, 9);
  Type("from", "x");
  EXPECT_EQ(Drawn().x.low, 9);
  EXPECT_EQ(Drawn().x.high, 45);
}

TEST_F(WhatIfTest, VariesAnotherInput) {
  Open();
  auto& input = On<QComboBox>(*window_, "input");
  input.setFocus();
  input.lineEdit()->selectAll();
  QTest::keyClicks(input.lineEdit(), "q1");
  QTest::keyClick(input.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(Drawn().xName, "q1 (kN/m)");
  EXPECT_EQ(Drawn().present, 10.0);
  EXPECT_EQ(Range("to").text(), "20");
  input.lineEdit()->selectAll();
  QTest::keyClicks(input.lineEdit(), "nothing of the kind");
  QTest::keyClick(input.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(Drawn().xName, "q1 (kN/m)");
  EXPECT_EQ(input.currentText(), "q1");
}

TEST_F(WhatIfTest, DrawsDeflectionsAndHoldsTheirLimit) {
  Open();
  const double whole = window_->shown().CurvesDrawn().marks.at(0).at.x;
  On<QCheckBox>(*window_, "sls").setChecked(true);
  EXPECT_LT(Drawn().marks.at(0).at.x, whole);
  EXPECT_TRUE(Words().endsWith("deflection"));
  On<QComboBox>(*window_, "drawn").setCurrentIndex(2);
  EXPECT_EQ(Drawn().yName, "deflection / limit");
  ASSERT_EQ(Drawn().lines.size(), 1u);
  EXPECT_EQ(Drawn().lines[0].name, "along z");
}

TEST_F(WhatIfTest, FollowsTheSessionAndKeepsAChosenRange) {
  Open();
  Type("to", "9");
  TypeInto(Field("il"), "6");
  EXPECT_EQ(Drawn().present, 6.0);
  EXPECT_EQ(Drawn().x.high, 9);
  EXPECT_TRUE(Words().startsWith("L = 6 m "));
  EXPECT_TRUE(Words().contains(Main().verdict().Figure()));
}

TEST_F(WhatIfTest, LookingChangesNothing) {
  Open();
  const ProjectState before = session_.st();
  const int calculations = session_.Calculations();
  Type("to", "30");
  On<QComboBox>(*window_, "drawn").setCurrentIndex(1);
  On<QTabWidget>(*window_, "tabs").setCurrentIndex(1);
  QCoreApplication::processEvents();
  Main().activateWindow();
  QCoreApplication::processEvents();
  EXPECT_TRUE(session_.st() == before);
  EXPECT_EQ(session_.Calculations(), calculations);
}

TEST_F(WhatIfTest, SaysWhenTheInputIsNotCalculated) {
  Open();
  TypeInto(Field("il"), "-1");
  EXPECT_TRUE(Words().startsWith("not calculated")) << Words().toStdString();
  EXPECT_EQ(Drawn().present, 5.0);
  TypeInto(Field("il"), "4");
  EXPECT_EQ(Drawn().present, 4.0);
}

TEST_F(WhatIfTest, SavesSvgPdfAndPng) {
  Open();
  const QByteArray svg = Written("a.svg");
  EXPECT_TRUE(svg.contains("<svg"));
  EXPECT_TRUE(svg.contains(QByteArray::fromStdString(Drawn().marks.at(0).text)));
  EXPECT_TRUE(Written("a.pdf").startsWith("%PDF"));
  const QImage png = QImage::fromData(Written("a.png"), "PNG");
  EXPECT_GT(png.width(), 800);
  // The limit line is there.
  EXPECT_FALSE(bool(Curves().Save(folder_.filePath("no/such/folder.svg"))));
}

TEST_F(WhatIfTest, CopiesAPictureAndItsWords) {
  Open();
  On<QAbstractButton>(*window_, "copy").click();
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_TRUE(copied->hasImage());
  EXPECT_TRUE(copied->data("image/svg+xml").contains("<svg"));
  EXPECT_EQ(copied->text(), Words());
}

TEST_F(WhatIfTest, PrintsOnOnePage) {
  Open();
  QPrinter printer(QPrinter::HighResolution);
  printer.setOutputFormat(QPrinter::PdfFormat);
  printer.setOutputFileName(folder_.filePath("print.pdf"));
  Curves().Print(printer);
  QFile file(folder_.filePath("print.pdf"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().contains("/Count 1"));
}

TEST_F(WhatIfTest, PointerTellsTheValuesThere) {
  Open();
  QTest::mouseMove(&Curves(), QPoint(10, 10));
  const Box place = Curves().Place();
  // From left to right until the present value is met.
  for (int x = 0; x < Curves().width(); ++x) {
    const double value = ValueAcross(place, Drawn(), Curves().Letters(), x);
    if (value < 5) continue;
    emit Curves().Pointed(x);
    break;
  }
  EXPECT_TRUE(Words().contains("section control 0.")) << Words().toStdString();
  EXPECT_TRUE(Words().contains("deflection z / limit"));
  emit Curves().Pointed(-1);
  EXPECT_TRUE(Words().contains("passes"));
}

TEST_F(WhatIfTest, SecondTabHoldsTheInteractionDiagrams) {
  Open();
  On<QTabWidget>(*window_, "tabs").setCurrentIndex(1);
  QCoreApplication::processEvents();
  auto& pane = On<ChartPane>(*window_, "interaction");
  EXPECT_TRUE(pane.isVisible());
  const QString path = folder_.filePath("i.svg");
  ASSERT_TRUE(bool(pane.Save(path)));
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QByteArray svg = file.readAll();
  for (const char* title : {"N and My", "N and Mz", "My and Mz"}) EXPECT_TRUE(svg.contains(title));
}

}  // namespace
}  // namespace korvane
