// SPDX-License-Identifier: GPL-3.0-or-later
// The diagrams of the main window: the command that draws them, values under the pointer, export.
#include <QAbstractButton>
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QImage>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QScrollArea>
#include <QSplitter>
#include <QSvgGenerator>

#include "front/desktop/desktop_platform.h"
#include "front/desktop/diagram_pane.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

class DiagramsTest : public DesktopTest {
protected:
  std::function<void()> lastMoment_ = [] {};  ///< runs when the file dialog is accepted
  DiagramPane& PlaneOf(const char* control) {
    for (DiagramPane* one : Main().centralWidget()->findChildren<DiagramPane*>()) {
      if (one->Box(control) != nullptr) return *one;
    }
    throw UnknownControl(std::string("no diagram ") + control);
  }
  /// What stands under the pointer at a relative position of the member.
  std::string Under(const char* control, double relative) {
    DiagramPane& plane = PlaneOf(control);
    DiagramBox* box = plane.Box(control);
    QSignalSpy pointed(&plane, &DiagramPane::Pointed);
    const double x = (kMemberLeft + relative * kMemberWidth) / kPictureWidth * box->width();
    QMouseEvent move(QEvent::MouseMove, QPointF(x, 5), QPointF(), Qt::NoButton, Qt::NoButton,
                     Qt::NoModifier);
    QCoreApplication::sendEvent(box, &move);
    return pointed.isEmpty() ? "" : pointed.last().first().toString().toStdString();
  }
  /// Opens the context menu of a widget and takes an entry; a file dialog gets the path.
  void FromContextMenu(QWidget& widget, const char* entry, const QString& path) {
    QTimer answer;
    bool chosen = false;
    QObject::connect(&answer, &QTimer::timeout, [&] {
      if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
        for (QAction* action : menu->actions()) {
          if (action->text() != QString::fromUtf8(entry)) continue;
          chosen = true;
          // A click on the entry, as the menu gets it from the mouse.
          QTest::mouseClick(menu, Qt::LeftButton, Qt::NoModifier,
                            menu->actionGeometry(action).center());
          return;
        }
        menu->close();
      }
    });
    // A timer does not run within its own call, and the dialog comes up within the other's.
    QTimer save;
    QObject::connect(&save, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
      QObject::connect(dialog, &QDialog::accepted, [&] { lastMoment_(); });
      QMetaObject::invokeMethod(dialog, "accept");
    });
    save.start(20);
    answer.start(20);
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3),
                            widget.mapToGlobal(QPoint(3, 3)));
    QCoreApplication::sendEvent(&widget, &event);
    EXPECT_TRUE(chosen) << entry;
  }
};

TEST_F(DiagramsTest, DrawResultsGivesTheDiagramsTheirRoom) {
  Load("10");
  Main().activateWindow();
  Main().resize(1280, 900);
  QCoreApplication::processEvents();
  auto* rows = Main().findChild<QSplitter*>("results_diagrams");
  rows->setSizes({10000, 1});
  QCoreApplication::processEvents();
  DiagramPane& plane = PlaneOf("picmy");
  const int before = rows->sizes().at(1);
  ASSERT_LT(plane.parentWidget()->height(), plane.minimumHeight());
  const int calculations = session_.Calculations();
  QTest::mouseClick(&On<QAbstractButton>(Main(), "cmdpic"), Qt::LeftButton);
  QCoreApplication::processEvents();
  EXPECT_GT(rows->sizes().at(1), before);
  const QRect seen = plane.Box("picmy")->visibleRegion().boundingRect();
  EXPECT_EQ(seen, plane.Box("picmy")->rect());
  // Drawing calculates nothing.
  EXPECT_EQ(session_.Calculations(), calculations);
}

TEST_F(DiagramsTest, DrawResultsTakesTheFieldInUse) {
  Load("10");
  Main().activateWindow();
  QLineEdit& length = Field("il");
  length.setFocus();
  length.selectAll();
  QTest::keyClicks(&length, "8");
  QTest::mouseClick(&On<QAbstractButton>(Main(), "cmdpic"), Qt::LeftButton);
  // 1.2 * 10 kN/m * 8^2 / 8 in the middle.
  EXPECT_EQ(Under("picmy", 0.5), " x = 4.000 m  My = 96.0 kNm  Vz = 0.0 kN");
}

TEST_F(DiagramsTest, PointerTellsTheNearestStation) {
  Load("10");
  // Stations stand 0.1 m apart; at 0.212 of 5 m the nearest is the one at 1.1 m.
  // M = 12 * 1.1 * (5 - 1.1) / 2, V = 12 * (2.5 - 1.1).
  EXPECT_EQ(Under("picmy", 0.212), " x = 1.100 m  My = 25.7 kNm  Vz = 16.8 kN");
}

TEST_F(DiagramsTest, PointerTellsTheDeflection) {
  Load("10");
  const std::string text = Under("picdz", 0.5);
  EXPECT_EQ(text.rfind(" x = 2.500 m  y = ", 0), 0u) << text;
  // 5/384 q L^4 / EI of the member in force, within the shear's share and the rounding.
  const double bending = 5.0 / 384 * 10 * 5.0e3 * 5.0e3 * 5.0e3 * 5.0e3 /
                         (double(session_.st().E) * double(session_.design().rec.Iy));
  EXPECT_NEAR(std::abs(std::stod(text.substr(18))), bending, 0.1 * bending + 0.05);
}

TEST_F(DiagramsTest, PointerTellsTheOtherPlane) {
  Menu("mnuload1");
  auto& window = Window("loading");
  QTest::mouseClick(&On<QAbstractButton>(window, "iq1_yz"), Qt::LeftButton);
  TypeInto(On<QLineEdit>(window, "iq1"), "10");
  EXPECT_EQ(Under("picmz", 0.5), " x = 2.500 m  Mz = 37.5 kNm  Vy = 0.0 kN");
}

TEST_F(DiagramsTest, PicturesAreSavedFromTheirContextMenus) {
  Load("10");
  struct Picture {
    QWidget* widget;
    const char* name;
  };
  for (const Picture& p : {Picture{PlaneOf("picmy").Box("picmy"), "moment"},
                           Picture{PlaneOf("picdz").Box("picdz"), "deflection"},
                           Picture{&On<FigurePane>(Main(), "pic1"), "figure"}}) {
    const QString svg = folder_.filePath(QString::fromUtf8(p.name) + ".svg");
    FromContextMenu(*p.widget, "Save as SVG...", svg);
    QFile file(svg);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << p.name;
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.contains("<svg")) << p.name;
    EXPECT_GT(text.count("<path") + text.count("<poly") + text.count("<text"), 3) << p.name;
    const QString png = folder_.filePath(QString::fromUtf8(p.name) + ".png");
    FromContextMenu(*p.widget, "Save as PNG...", png);
    const QImage image(png);
    EXPECT_EQ(image.size(), p.widget->size() * 2) << p.name;
    // Something is drawn on the paper.
    const QRgb paper = image.pixel(0, 0);
    int drawn = 0;
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) drawn += image.pixel(x, y) != paper;
    }
    EXPECT_GT(drawn, 500) << p.name;
  }
}

TEST_F(DiagramsTest, PictureThatCannotBeWrittenIsTold) {
  Load("10");
  QString told;
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    told = box->text();
    box->accept();
  });
  answer.start(20);
  ASSERT_TRUE(QDir(folder_.path()).mkdir("gone"));
  const QString path = folder_.filePath("gone/figure.svg");
  // The folder goes when the dialog has been answered.
  lastMoment_ = [this] { QDir(folder_.path()).rmdir("gone"); };
  FromContextMenu(On<FigurePane>(Main(), "pic1"), "Save as SVG...", path);
  EXPECT_TRUE(told.endsWith(path + "\nThe folder doesn't exist.")) << told.toStdString();
  EXPECT_FALSE(QFile::exists(path));
}

TEST_F(DiagramsTest, ResultLinesAreCopiedAsText) {
  Load("10");
  QApplication::clipboard()->clear();
  FromContextMenu(Results(), "Copy result lines", {});
  const QString text = QApplication::clipboard()->text();
  EXPECT_EQ(text, ResultText());
  EXPECT_TRUE(text.contains("IR = "));
}

// A pinned beam with 10 kN/m over 5 m: My = 1.2*10*25/8 in the middle, Vz = 1.2*10*5/2.
TEST(DecimalComma, IsThatOfTheDrawnPanes) {
  const auto& library = SourceLibrary();
  const QTemporaryDir folder;
  DesktopPlatform platform;
  NamedSession session(library, platform, true,
                       Folders{library->folder, folder.path().toStdString()});
  session.Start();
  session.Focus("korvane");
  const ResultPane results(session, ResultPane::Length::Short);
  EXPECT_TRUE(results.Lines().join('\n').contains("IR = 0,37  <  1,00 (0,50L; Ch 12.2.6)"));

  DiagramPane plane(session, {"picmy"}, nullptr);
  plane.resize(600, 400);
  plane.Refresh();
  DiagramBox* box = plane.Box("picmy");
  ASSERT_NE(box, nullptr);
  QAccessibleInterface* told = QAccessible::queryAccessibleInterface(box);
  ASSERT_NE(told, nullptr);
  EXPECT_TRUE(told->text(QAccessible::Name).contains("37,5"));
  QSignalSpy pointed(&plane, &DiagramPane::Pointed);
  QTest::keyClick(box, Qt::Key_End);
  ASSERT_FALSE(pointed.isEmpty());
  EXPECT_EQ(pointed.last().first().toString(), " x = 5,000 m  My = 0,0 kNm  Vz = -30,0 kN");

  QBuffer drawn;
  ASSERT_TRUE(drawn.open(QIODevice::WriteOnly));
  {
    QSvgGenerator generator;
    generator.setOutputDevice(&drawn);
    generator.setSize(box->size());
    box->render(&generator);
  }
  EXPECT_TRUE(drawn.data().contains("37,5"));
  EXPECT_FALSE(drawn.data().contains(">37.5"));
}

}  // namespace
}  // namespace korvane
