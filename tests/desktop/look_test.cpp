// SPDX-License-Identifier: GPL-3.0-or-later
// What the windows tell and offer: news, marks, loads in one table, keys, drops, names and places.
#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QToolButton>

#include "front/copied_tables.h"
#include "front/desktop/field_edit.h"
#include "front/desktop/size_list.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

class LookTest : public DesktopTest {
protected:
  QString News() { return Main().findChild<QLabel*>("news")->text(); }
  FieldEdit& Edit(const char* name) { return On<FieldEdit>(Main(), name); }
  /// The tip as it comes up over a widget.
  QString TipOver(QWidget& widget) {
    QHelpEvent event(QEvent::ToolTip, QPoint(2, 2), widget.mapToGlobal(QPoint(2, 2)));
    QApplication::sendEvent(&widget, &event);
    return widget.toolTip();
  }
};

// --- Status bar ---------------------------------------------------------------------------------

TEST_F(LookTest, StatusBarTellsWhatTheCalculationRemoved) {
  Menu("mnuload1");
  TypeInto(On<QLineEdit>(Window("loading"), "inp"), "450");
  EXPECT_EQ(News(), QString());
  desktop_->CloseForm(*FindForm("loading"));
  Menu("mnup24");
  desktop_->Act([&] { session_.Focus("korvane"); });
  EXPECT_TRUE(News().contains("HSQ carries no N: 450 kN removed")) << News().toStdString();
  EXPECT_TRUE(News().contains("lateral torsional buckling switched off")) << News().toStdString();
}

TEST_F(LookTest, StatusBarTellsWhatLayOffTheMember) {
  Menu("mnuload1");
  TypeInto(On<QLineEdit>(Window("loading"), "ipm(1)"), "18");
  TypeInto(On<QLineEdit>(Window("loading"), "ipmx(1)"), "4");
  TypeInto(Field("il"), "3");
  EXPECT_TRUE(News().contains("Not on the member: point load 18.0 kN removed"))
      << News().toStdString();
}

TEST_F(LookTest, StatusBarTellsWhatWasAddedToTheDatabase) {
  Menu("mnup04");
  QTest::keyClicks(Window("p04").findChild<QListWidget*>(), "270");
  On<QPushButton>(Window("p04"), "addtodb").click();
  EXPECT_TRUE(News().endsWith("Added IPE 270 to the database (1)")) << News().toStdString();
  On<QPushButton>(Window("p04"), "addtodb").click();
  EXPECT_TRUE(News().endsWith("(2)"));
}

// --- Marks --------------------------------------------------------------------------------------

TEST_F(LookTest, TextsThatAreNotUsedAreMarkedAfterNew) {
  TypeInto(Field("il"), "8");
  EXPECT_FALSE(Edit("il").Marked());
  Menu("mnunew");
  EXPECT_TRUE(Edit("il").Marked());
  EXPECT_FALSE(Edit("igammam1").Marked());
  EXPECT_TRUE(TipOver(Edit("il")).startsWith("The calculation uses 5.000 m, not this text"))
      << Edit("il").toolTip().toStdString();
  // The mark can be seen: amber stands in the field.
  const QImage image = Edit("il").grab().toImage();
  int amber = 0;
  for (int x = 0; x < image.width(); ++x) {
    for (int y = 0; y < image.height(); ++y) amber += image.pixelColor(x, y) == QColor(255, 176, 0);
  }
  EXPECT_GT(amber, 20);
  TypeInto(Field("il"), "7");
  EXPECT_FALSE(Edit("il").Marked());
  EXPECT_FALSE(TipOver(Edit("il")).contains("not this text"));
}

TEST_F(LookTest, ARefusedValueIsMarkedWithWhatIsStored) {
  TypeInto(Field("il"), "0.01");
  EXPECT_TRUE(Edit("il").Marked());
  const QString tip = TipOver(Edit("il"));
  EXPECT_TRUE(tip.startsWith("Refused: 0.010 m is stored")) << tip.toStdString();
  EXPECT_TRUE(tip.contains("5.000")) << tip.toStdString();
  TypeInto(Field("il"), "6");
  EXPECT_FALSE(Edit("il").Marked());
}

// --- Loads --------------------------------------------------------------------------------------

TEST_F(LookTest, RemovedLoadsComeBack) {
  Load("12.5");
  FormWindow& window = Window("loading");
  TypeInto(On<QLineEdit>(window, "ipm(3)"), "7");
  TypeInto(On<QLineEdit>(window, "ipmx(3)"), "2");
  auto& undo = On<QPushButton>(window, "undoremove");
  EXPECT_FALSE(undo.isVisible());
  const QString before = ResultText();
  On<QPushButton>(window, "Command1").click();
  EXPECT_EQ(On<QLineEdit>(window, "iq1").text(), "0.0");
  ASSERT_TRUE(undo.isVisible());
  undo.click();
  EXPECT_EQ(On<QLineEdit>(window, "iq1").text(), "12.5");
  EXPECT_EQ(On<QLineEdit>(window, "ipm(3)").text(), "7.0");
  EXPECT_EQ(On<QLineEdit>(window, "ipmx(3)").text(), "2.000");
  EXPECT_EQ(On<QLineEdit>(window, "inp").text(), "100.0");
  EXPECT_EQ(ResultText(), before);
  EXPECT_FALSE(undo.isVisible());
  // Another project has nothing to bring back.
  On<QPushButton>(window, "Command1").click();
  Menu("mnunew");
  EXPECT_FALSE(undo.isVisible());
}

TEST_F(LookTest, TogglesOfTheLoadsSayWords) {
  Menu("mnuload1");
  FormWindow& window = Window("loading");
  auto& group = On<QToolButton>(window, "iq1_pv");
  EXPECT_EQ(group.text(), "Permanent");
  EXPECT_EQ(group.accessibleName(), "Load group of q1: Permanent");
  EXPECT_FALSE(group.toolTip().isEmpty());
  group.click();
  EXPECT_EQ(group.text(), "Variable 1");
  EXPECT_EQ(group.accessibleName(), "Load group of q1: Variable 1");
  auto& kind = On<QToolButton>(window, "ipm_pm(2)");
  EXPECT_EQ(kind.text(), "Point load");
  kind.click();
  EXPECT_EQ(kind.text(), "Moment");
  EXPECT_EQ(On<QToolButton>(window, "ipm_yz(2)").text(), "My");
  for (const char* heading : {"Kind", "Value", "x", "Group", "Direction"}) {
    const auto labels = window.findChildren<QLabel*>();
    EXPECT_TRUE(std::any_of(labels.begin(), labels.end(), [&](QLabel* label) {
      return label->text() == heading && label->isVisible();
    })) << heading;
  }
}

TEST_F(LookTest, ResultsStandBesideTheLoads) {
  Load("10");
  auto* lines = Window("loading").findChild<ResultPane*>();
  ASSERT_NE(lines, nullptr);
  EXPECT_TRUE(lines->isVisible());
  EXPECT_EQ(lines->Lines(), Results().Lines());
  TypeInto(On<QLineEdit>(Window("loading"), "iq1"), "25");
  EXPECT_EQ(lines->Lines(), Results().Lines());
  EXPECT_EQ(Window("loading").findChild<VerdictPane*>()->Figure(), Main().verdict().Figure());
}

TEST_F(LookTest, MessageAboutALoadBringsTheFocusToIt) {
  Menu("mnuload1");
  TypeInto(On<QLineEdit>(Window("loading"), "iqt11"), "5");
  TypeInto(On<QLineEdit>(Window("loading"), "iqt12"), "-5");
  TypeInto(On<QLineEdit>(Window("loading"), "iqt1x2"), "2");
  TypeInto(Field("il"), "6", Qt::Key_Tab);
  ASSERT_EQ(platform_.messages.size(), 1u);
  EXPECT_TRUE(session_.IsOpen("loading"));
  EXPECT_EQ(session_.FocusedField().substr(0, 12), "loading.iqt1");
}

// --- Keys, drops, menus -------------------------------------------------------------------------

TEST_F(LookTest, ReturnPressesTheButtonWithTheFocus) {
  auto& details = On<QPushButton>(Main(), "de");
  details.setFocus();
  QTest::keyClick(&details, Qt::Key_Return);
  EXPECT_TRUE(session_.IsOpen("detailedresult"));
  desktop_->CloseForm(*FindForm("detailedresult"));
  QTest::keyClick(&On<QToolButton>(Main(), "cbutt2"), Qt::Key_Enter);
  EXPECT_EQ(int(session_.st().SupportType), 2);
}

TEST_F(LookTest, ArrowKeysGoFromChoiceToChoice) {
  auto& plastic = On<QRadioButton>(Main(), "obuckling0");
  QTest::keyClick(&plastic, Qt::Key_Down);
  EXPECT_TRUE(On<QRadioButton>(Main(), "obuckling1").isChecked());
  EXPECT_FALSE(plastic.isChecked());
  QTest::keyClick(&On<QToolButton>(Main(), "cbutt0"), Qt::Key_Right);
  EXPECT_EQ(int(session_.st().SupportType), 1);
  // The first has none before it.
  QTest::keyClick(&On<QToolButton>(Main(), "cbutt0"), Qt::Key_Left);
  EXPECT_EQ(int(session_.st().SupportType), 1);
}

TEST_F(LookTest, DeleteRemovesADatabaseRow) {
  Menu("mnup04");
  On<QPushButton>(Window("p04"), "addtodb").click();
  On<QPushButton>(Window("p04"), "addtodb").click();
  Menu("mnudb");
  auto& list = On<SizeList>(Window("database"), "cbo");
  ASSERT_EQ(list.count(), 2);
  list.setCurrentRow(0);
  QTest::keyClick(&list, Qt::Key_Delete);
  EXPECT_EQ(list.count(), 1);
}

TEST_F(LookTest, PresentFamilyIsMarkedInTheMenu) {
  EXPECT_TRUE(ActionOf("mnup01")->isChecked());
  Menu("mnup04");
  EXPECT_TRUE(ActionOf("mnup04")->isChecked());
  EXPECT_FALSE(ActionOf("mnup01")->isChecked());
  // Its own command once more doesn't take the mark away.
  Menu("mnup04");
  EXPECT_TRUE(ActionOf("mnup04")->isChecked());
}

TEST_F(LookTest, ADroppedProjectIsOpened) {
  const QString path = folder_.filePath("dropped.kvn");
  TypeInto(Field("il"), "6.5");
  platform_.answers = {path.toStdString()};
  Menu("mnusaveas");
  TypeInto(Field("il"), "4");
  const auto drop = [&](const QString& file) {
    QMimeData dragged;
    dragged.setUrls({QUrl::fromLocalFile(file)});
    QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Main(), &enter);
    QDropEvent event(QPointF(50, 50), Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&Main(), &event);
    return enter.isAccepted();
  };
  EXPECT_FALSE(drop(folder_.filePath("picture.png")));
  EXPECT_EQ(Field("il").text(), "4.000");
  EXPECT_TRUE(drop(path));
  EXPECT_EQ(Field("il").text(), "6.500");
}

// --- Names and looks ----------------------------------------------------------------------------

TEST_F(LookTest, NoControlIsCalledByItsCode) {
  for (const Form& form : AllForms()) {
    FormWindow* window = desktop_->WindowOf(form);
    FormBinder& binder = window == nullptr ? Main().binder() : window->binder();
    for (const Control& c : form.controls) {
      const QWidget* widget = binder.WidgetOf(c);
      if (widget == nullptr || c.kind == Kind::Surface) continue;
      if (c.kind == Kind::Label && c.caption.empty() && c.spoken.empty()) continue;
      EXPECT_NE(widget->accessibleName(), QString::fromStdString(c.name)) << AddressOf(c);
      EXPECT_FALSE(widget->accessibleName().isEmpty()) << AddressOf(c);
    }
  }
}

TEST_F(LookTest, PicturesToChooseFromAreRadioButtons) {
  for (const auto& [name, checked] : {std::pair{"cbutt0", true}, std::pair{"cbutt4", false}}) {
    QAccessibleInterface* spoken =
        QAccessible::queryAccessibleInterface(&On<QToolButton>(Main(), name));
    ASSERT_NE(spoken, nullptr);
    EXPECT_EQ(spoken->role(), QAccessible::RadioButton) << name;
    EXPECT_EQ(bool(spoken->state().checked), checked) << name;
  }
}

TEST_F(LookTest, TipsTellTheLimits) {
  Menu("mnuload1");
  EXPECT_TRUE(TipOver(On<QLineEdit>(Window("loading"), "ipmx(1)")).contains("0 to 5 m"))
      << On<QLineEdit>(Window("loading"), "ipmx(1)").toolTip().toStdString();
  EXPECT_TRUE(TipOver(On<QLineEdit>(Window("loading"), "iqt1x2")).contains("0 to 5 m"));
  desktop_->Act([&] { session_.Show("vipping"); });
  for (const char* factor : {"ic1", "ic2", "ic3"}) {
    EXPECT_TRUE(TipOver(On<QLineEdit>(Window("vipping"), factor)).contains("4"))
        << On<QLineEdit>(Window("vipping"), factor).toolTip().toStdString();
  }
}

TEST_F(LookTest, OptionsStandInFrames) {
  desktop_->Act([&] {
    session_.Show("endstiff");
    session_.Show("chpoints");
  });
  for (const auto& [form, frame, option] :
       {std::tuple{"endstiff", "frend", "oendstiff0"},
        std::tuple{"endstiff", "frweb", "cwebstiff1"}, std::tuple{"chpoints", "frpoints", "cp_0"},
        std::tuple{"chpoints", "frchosen", "no_cp1"}}) {
    auto& group = On<QGroupBox>(Window(form), frame);
    EXPECT_FALSE(group.title().isEmpty());
    EXPECT_NE(group.findChild<QWidget*>(option), nullptr) << form << " " << option;
  }
}

TEST_F(LookTest, LockedFieldsCanBeReadInTheDark) {
  const auto luminance = [](const QColor& c) {
    const auto linear = [](double v) {
      return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(c.redF()) + 0.7152 * linear(c.greenF()) + 0.0722 * linear(c.blueF());
  };
  for (const Theme theme : {Theme::Dark, Theme::Light}) {
    ApplyTheme(theme);
    QCoreApplication::processEvents();
    desktop_->Refresh();
    ASSERT_FALSE(Field("ifyk").isEnabled());
    const QPalette palette = Field("ifyk").palette();
    const double text = luminance(palette.color(QPalette::Disabled, QPalette::Text));
    const double ground = luminance(palette.color(QPalette::Disabled, QPalette::Base));
    EXPECT_GE((std::max(text, ground) + 0.05) / (std::min(text, ground) + 0.05), 4.0) << int(theme);
  }
  ApplyTheme(Theme::Light);
}

TEST_F(LookTest, FormsStandWhereTheyWereLeft) {
  const Form& form = *FindForm("endstiff");
  desktop_->Act([&] { session_.Show("endstiff"); });
  Window("endstiff").move(123, 77);
  QCoreApplication::processEvents();
  const QPoint left = Window("endstiff").pos();
  desktop_->CloseForm(form);
  Desktop again(session_);
  again.window().show();
  again.Act([&] { session_.Show("endstiff"); });
  // A window manager may count its frame in.
  const QPoint off = again.WindowOf(form)->pos() - left;
  EXPECT_LE(std::abs(off.x()), kWindowFrame.width());
  EXPECT_LE(std::abs(off.y()), kWindowFrame.height());
  QSettings(QSettings::IniFormat, QSettings::UserScope, "Korvane_ns", "Korvane_ns").clear();
}

TEST_F(LookTest, ValuesOfASectionAreCopied) {
  Menu("mnup04");
  auto& list = On<SizeList>(Window("p04"), "Cbo");
  QTest::keyClicks(&list, "270");
  QApplication::clipboard()->clear();
  QTest::keyClick(&list, Qt::Key_C, Qt::ControlModifier);
  const QStringList lines = QApplication::clipboard()->text().split('\n');
  EXPECT_TRUE(lines[0].startsWith("IPE270")) << lines[0].toStdString();
  EXPECT_TRUE(lines.contains("h\t270.0\tmm")) << lines.join('|').toStdString();
  EXPECT_EQ(lines.filter(QRegularExpression("^Mdy\t[0-9.]+\tkNm$")).size(), 1);
}

TEST_F(LookTest, GoverningLineIsMarkedByItsOwnRatio) {
  Load("10");
  QTest::mouseClick(&Main().verdict(), Qt::LeftButton);
  const QString line = Results().MarkedLine();
  EXPECT_TRUE(line.contains("IR = " + Main().verdict().Figure())) << line.toStdString();
  QTest::keyClick(Main().findChild<QDialog*>("verdict_notes"), Qt::Key_Escape);
  TypeInto(Field("il"), "9");
  EXPECT_EQ(Results().MarkedLine(), QString());
}

}  // namespace
}  // namespace korvane
