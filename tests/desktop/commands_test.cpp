// SPDX-License-Identifier: GPL-3.0-or-later
// Commands, picture buttons, exports and files in the windows.
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QImage>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPushButton>
#include <QToolButton>

#include "front/desktop/diagram_pane.h"
#include "places.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

/// Counts the paint events of a widget.
class PaintCount : public QObject {
public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  int count = 0;

protected:
  bool eventFilter(QObject*, QEvent* event) override {
    count += event->type() == QEvent::Paint ? 1 : 0;
    return false;
  }
};

TEST_F(DesktopTest, DrawResultsDrawsAnewWithoutACalculation) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  Main().activateWindow();
  QTest::qWait(50);
  PaintCount diagram(On<DiagramBox>(Main(), "picmy"));
  PaintCount results(Results());
  const int calculations = session_.Calculations();
  const QString lines = ResultText();
  QTest::mouseClick(&On<QPushButton>(Main(), "cmdpic"), Qt::LeftButton);
  EXPECT_TRUE(QTest::qWaitFor([&] { return diagram.count > 0 && results.count > 0; }, 1000));
  EXPECT_EQ(session_.Calculations(), calculations);
  EXPECT_EQ(ResultText(), lines);
}

TEST_F(DesktopTest, ButtonsOpenTheirForms) {
  Menu("mnuload1");
  TypeInto(On<QLineEdit>(Window("loading"), "inp"), "100");
  On<QCheckBox>(Main(), "ch_modal").click();
  for (const auto& [button, form] :
       {std::pair{"cbuttbucklingy", "bucklingy"}, std::pair{"cbuttbucklingz", "bucklingz"},
        std::pair{"Command1", "bucklingcurve"}, std::pair{"cbuttsupport", "endstiff"},
        std::pair{"cbuttlateral", "vipping"}, std::pair{"cp", "chpoints"},
        std::pair{"de", "detailedresult"}, std::pair{"cmd_modresult", "Modal_ns"},
        std::pair{"Picture", "Pictures"}}) {
    Main().activateWindow();
    QTest::mouseClick(&On<QAbstractButton>(Main(), button), Qt::LeftButton);
    EXPECT_TRUE(Window(form).isVisible()) << form;
    EXPECT_FALSE(Window(form).windowTitle().isEmpty()) << form;
    Window(form).close();
    EXPECT_FALSE(session_.IsOpen(form)) << form;
  }
}

TEST_F(DesktopTest, EndConditionPicturesSetTheFactor) {
  Menu("mnuload1");
  TypeInto(On<QLineEdit>(Window("loading"), "inp"), "100");
  QTest::mouseClick(&On<QToolButton>(Main(), "cbuttbucklingy"), Qt::LeftButton);
  // free 2.0, pinned 1.0, one end fixed 0.7, both fixed 0.5
  const std::vector<const char*> factors{"2.00", "1.00", "0.70", "0.50"};
  for (std::size_t k = 0; k < factors.size(); ++k) {
    const std::string name = "bucklingy" + std::to_string(k + 1);
    auto& picture = On<QToolButton>(Window("bucklingy"), name.c_str());
    QTest::mouseClick(&picture, Qt::LeftButton);
    EXPECT_TRUE(picture.isChecked()) << name;
    EXPECT_EQ(Field("ibly").text(), factors[k]) << name;
    EXPECT_EQ(Field("iblz").text(), "1.00");
  }
}

TEST_F(DesktopTest, LateralPicturesOpenTheirFields) {
  QTest::mouseClick(&On<QToolButton>(Main(), "cbuttlateral"), Qt::LeftButton);
  FormWindow& window = Window("vipping");
  EXPECT_FALSE(On<QLineEdit>(window, "ik").isEnabled());
  QTest::mouseClick(&On<QToolButton>(window, "latbuckl5"), Qt::LeftButton);
  EXPECT_TRUE(On<QLineEdit>(window, "ik").isEnabled());
  QTest::mouseClick(&On<QToolButton>(window, "latbuckl4"), Qt::LeftButton);
  EXPECT_FALSE(On<QLineEdit>(window, "ik").isEnabled());
  EXPECT_EQ(On<QLineEdit>(window, "ik").text(), "0.50");
  EXPECT_FALSE(On<QLineEdit>(window, "iza").isVisible());
  QTest::mouseClick(&On<QToolButton>(window, "loadl4"), Qt::LeftButton);
  ASSERT_TRUE(On<QLineEdit>(window, "iza").isVisible());
  TypeInto(On<QLineEdit>(window, "iza"), "-40");
  EXPECT_EQ(On<QLabel>(Main(), "oza").text(), "Za = -40 mm");
}

TEST_F(DesktopTest, EverySupportPictureDrawsItsMember) {
  Load("10");
  // w = 1.2 * 10 over 5 m: wL2/8, wL2/8, wL2/12, -, wL2/2, - ; springs lie between
  const double w = 12, L2 = 25;
  const std::vector<double> greatest{w * L2 / 8, w * L2 / 8, w * L2 / 12, 0, w * L2 / 2, 0};
  for (int k = 0; k < 6; ++k) {
    const std::string name = "cbutt" + std::to_string(k);
    Main().activateWindow();
    QTest::mouseClick(&On<QToolButton>(Main(), name.c_str()), Qt::LeftButton);
    EXPECT_EQ(int(session_.st().SupportType), k);
    EXPECT_TRUE(On<QToolButton>(Main(), name.c_str()).isChecked());
    const auto& z = session_.design().beam.z;
    const double found = std::max(double(z.M_max), -double(z.M_min));
    const double wanted = greatest[static_cast<std::size_t>(k)];
    if (wanted > 0) {
      EXPECT_NEAR(found, wanted, wanted * 1e-4) << k;
    } else {
      EXPECT_GT(found, w * L2 / 16) << k;
      EXPECT_LT(found, w * L2 / 8) << k;
    }
  }
}

TEST_F(DesktopTest, OpenedEditedSavedAndReopened) {
  const QString path = folder_.filePath("column.kvn");
  ASSERT_TRUE(QFile::copy(QString(KORVANE_SOURCE_DIR) + "/examples/column-hea200.kvn", path));
  ASSERT_TRUE(QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner));
  platform_.answers = {path.toStdString()};
  Menu("mnuopen");
  EXPECT_EQ(Main().windowTitle(), "KORVANE-NS3472: " + path);
  const QString project = Field("iproj").text();
  EXPECT_FALSE(project.isEmpty());
  TypeInto(Field("il"), "4.25");
  Menu("mnup02");
  On<QListWidget>(Window("p02"), "Cbo").setCurrentRow(4);
  const QString profile = On<QLabel>(Main(), "obeam").text();
  Menu("mnusave");
  const QString results = ResultText();
  Menu("mnunew");
  EXPECT_NE(On<QLabel>(Main(), "obeam").text(), profile);
  Menu("mnurecentfile(1)");
  EXPECT_EQ(Main().windowTitle(), "KORVANE-NS3472: " + path);
  EXPECT_EQ(Field("il").text(), "4.250");
  EXPECT_EQ(Field("iproj").text(), project);
  EXPECT_EQ(On<QLabel>(Main(), "obeam").text(), profile);
  EXPECT_EQ(ResultText(), results);
  EXPECT_TRUE(platform_.messages.empty());
}

TEST_F(DesktopTest, FamilyFormsCloseWhenAProjectIsOpened) {
  Menu("mnup21");
  ASSERT_TRUE(Window("p21").isVisible());
  desktop_->OpenFile(QString(KORVANE_SOURCE_DIR) + "/examples/column-hea200.kvn");
  EXPECT_FALSE(Window("p21").isVisible());
}

/// Opens the context menu of a widget and runs one of its entries.
void ChooseFromMenu(QWidget& widget, const QString& entry) {
  QStringList seen;
  QTimer::singleShot(50, [&] {
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return;
    QAction* wanted = nullptr;
    for (QAction* action : menu->actions()) {
      seen << action->text();
      if (action->text().startsWith(entry)) wanted = action;
    }
    if (wanted != nullptr) {
      menu->setActiveAction(wanted);
      QTest::keyClick(menu, Qt::Key_Return);
    } else {
      menu->close();
    }
  });
  const QPoint middle = widget.rect().center();
  QContextMenuEvent event(QContextMenuEvent::Mouse, middle, widget.mapToGlobal(middle));
  QApplication::sendEvent(&widget, &event);
  EXPECT_EQ(seen.filter(entry).size(), 1) << seen.join(", ").toStdString();
}

void AnswerFileDialog(const QString& path) {
  QTimer::singleShot(250, [path] {
    auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    dialog->findChild<QLineEdit*>("fileNameEdit")->setText(path);
    static_cast<QDialog*>(dialog)->accept();
  });
}

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST_F(DesktopTest, DiagramsAndFigureAreSavedAsPictures) {
  Load("10");
  for (const auto& [name, text] : {std::pair{"picmy", "Bending moment"},
                                   std::pair{"picdz", "Deflection"}, std::pair{"pic1", "<svg"}}) {
    auto& pane = On<Pane>(Main(), name);
    const QString svg = folder_.filePath(QString(name) + ".svg");
    AnswerFileDialog(svg);
    ChooseFromMenu(pane, "Save as SVG");
    const QByteArray drawn = ContentOf(svg);
    EXPECT_TRUE(drawn.contains(text)) << name;
    EXPECT_TRUE(drawn.contains("<path") || drawn.contains("<poly")) << name;
    const QString png = folder_.filePath(QString(name) + ".png");
    AnswerFileDialog(png);
    ChooseFromMenu(pane, "Save as PNG");
    const QImage picture(png);
    EXPECT_EQ(picture.size(), pane.size() * 2) << name;
    EXPECT_GT(picture.convertToFormat(QImage::Format_Indexed8).colorCount(), 8) << name;
  }
}

TEST_F(DesktopTest, ResultLinesAreCopiedFromTheMenu) {
  Load("10");
  QApplication::clipboard()->clear();
  ChooseFromMenu(Results(), "Copy result lines");
  EXPECT_EQ(QApplication::clipboard()->text(), ResultText());
}

TEST_F(DesktopTest, RightButtonOpensTheHelpMenu) {
  QMenu* help = ActionOf("mnuhelp")->menu();
  for (const char* name : {"fr31", "columnframe", "obeam", "obuckltext"}) {
    auto& widget = On<QWidget>(Main(), name);
    QContextMenuEvent event(QContextMenuEvent::Mouse, {2, 2}, widget.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&widget, &event);
    EXPECT_TRUE(help->isVisible()) << name;
    help->close();
  }
}

TEST_F(DesktopTest, PointerTellsTheDeflection) {
  Load("10");
  auto& box = On<DiagramBox>(Main(), "picdz");
  auto* plane = qobject_cast<DiagramPane*>(box.parentWidget());
  QSignalSpy pointed(plane, &DiagramPane::Pointed);
  const QPointF middle = QRectF(box.rect()).center();
  QMouseEvent move(QEvent::MouseMove, middle, box.mapToGlobal(middle), Qt::NoButton, Qt::NoButton,
                   Qt::NoModifier);
  QApplication::sendEvent(&box, &move);
  ASSERT_GT(pointed.count(), 0);
  const QString text = pointed.last().at(0).toString();
  EXPECT_TRUE(text.startsWith(" x = ") && text.contains("  y = ") && text.endsWith(" mm"))
      << text.toStdString();
}

TEST_F(DesktopTest, DatabaseKeepsAndGivesBackASection) {
  Menu("mnup01");
  On<QListWidget>(Window("p01"), "Cbo").setCurrentRow(6);
  const QString kept = On<QLabel>(Main(), "obeam").text();
  On<QPushButton>(Window("p01"), "addtodb").click();
  On<QListWidget>(Window("p01"), "Cbo").setCurrentRow(0);
  On<QPushButton>(Window("p01"), "addtodb").click();
  EXPECT_NE(On<QLabel>(Main(), "obeam").text(), kept);
  Menu("mnudb");
  auto& list = On<QListWidget>(Window("database"), "cbo");
  ASSERT_EQ(list.count(), 2);
  list.setCurrentRow(1);
  list.setCurrentRow(0);
  EXPECT_EQ(On<QLabel>(Main(), "obeam").text(), kept);
}

}  // namespace
}  // namespace korvane
