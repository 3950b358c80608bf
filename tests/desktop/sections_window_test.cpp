// SPDX-License-Identifier: GPL-3.0-or-later
// The window of all sections: it follows, sorts, filters, previews and takes, and looking at it
// changes nothing.
#include "front/desktop/sections_window.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QHeaderView>
#include <QListWidget>
#include <QScrollBar>
#include <QTableView>

#include "front/desktop/sections_model.h"
#include "studies/member.h"
#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

class SectionsWindowTest : public DesktopTest {
protected:
  void Open() {
    On<QAbstractButton>(Main(), "open_sections").click();
    window_ = Main().findChild<SectionsWindow*>("sections");
    ASSERT_NE(window_, nullptr);
    ASSERT_TRUE(QTest::qWaitForWindowActive(window_));
    view_ = &On<QTableView>(*window_, "sizes");
  }
  QString Cell(int row, SizeColumn column) const {
    return view_->model()->index(row, int(column)).data().toString();
  }
  double Number(int row, SizeColumn column) const {
    return view_->model()->index(row, int(column)).data(SectionsModel::SortRole).toDouble();
  }
  /// The row of a name as the view has it, -1 where it is filtered out.
  int RowOf(const QString& name) const {
    for (int row = 0; row < view_->model()->rowCount(); ++row) {
      const QString cell = Cell(row, SizeColumn::Name);
      if (cell == name || cell.startsWith(name + "  ")) return row;
    }
    return -1;
  }
  QString Chosen() const { return Cell(view_->currentIndex().row(), SizeColumn::Name); }
  void Choose(const QString& name) {
    const QModelIndex cell = view_->model()->index(RowOf(name), 0);
    view_->scrollTo(cell);
    QTest::mouseClick(view_->viewport(), Qt::LeftButton, {}, view_->visualRect(cell).center());
  }
  QString Preview() { return On<QLabel>(*window_, "preview").text(); }
  void Sort(SizeColumn column, Qt::SortOrder order = Qt::AscendingOrder) {
    view_->sortByColumn(int(column), order);
  }

  SectionsWindow* window_ = nullptr;
  QTableView* view_ = nullptr;
};

TEST_F(SectionsWindowTest, ShowsEverySizeWithTheSectionInForceMarkedAndInSight) {
  Load("10");
  Open();
  EXPECT_EQ(view_->model()->rowCount(), int(AllSizes().size()));
  int marked = 0;
  for (int row = 0; row < view_->model()->rowCount(); ++row) {
    marked += Cell(row, SizeColumn::Name).contains("in force");
  }
  EXPECT_EQ(marked, 1);
  EXPECT_EQ(Chosen(), "HEA200  \u25C0 in force");
  EXPECT_TRUE(
      view_->viewport()->rect().contains(view_->visualRect(view_->currentIndex()).center()));
  // The row of the section in force says what the headline says.
  const int row = view_->currentIndex().row();
  EXPECT_EQ(Cell(row, SizeColumn::Ratio), Main().verdict().Figure());
  EXPECT_EQ(Cell(row, SizeColumn::Uls), Main().verdict().Word());
}

TEST_F(SectionsWindowTest, RowsAreTheDesignsOfTheirSizes) {
  Load("10");
  Open();
  ProjectState st = session_.st();
  st.ProfileType = 4;  // IPE
  st.idxIPE = 5;
  Design work = StartedDesign(library_);
  DesignMember(StartedDesign(library_), st, work);
  const int row = RowOf("IPE180");
  ASSERT_GE(row, 0);
  EXPECT_EQ(work.rec.h, 180.0f);
  EXPECT_EQ(Number(row, SizeColumn::Ratio), double(MaxIR(work.checks)));
  EXPECT_EQ(Number(row, SizeColumn::Weight), double(work.rec.S.Single()));
}

TEST_F(SectionsWindowTest, SortsByNumbersAndByWords) {
  Load("10");
  Open();
  Sort(SizeColumn::Height, Qt::DescendingOrder);
  for (int row = 1; row < view_->model()->rowCount(); ++row) {
    ASSERT_GE(Number(row - 1, SizeColumn::Height), Number(row, SizeColumn::Height));
  }
  Sort(SizeColumn::Governing);
  for (int row = 1; row < view_->model()->rowCount(); ++row) {
    ASSERT_LE(Cell(row - 1, SizeColumn::Governing), Cell(row, SizeColumn::Governing));
  }
}

TEST_F(SectionsWindowTest, FiltersByNameSeriesSizeAndStanding) {
  Load("10");
  Open();
  auto& search = On<QLineEdit>(*window_, "search");
  search.setText("rhs 100 * 60");
  ASSERT_GT(view_->model()->rowCount(), 0);
  for (int row = 0; row < view_->model()->rowCount(); ++row) {
    EXPECT_TRUE(Cell(row, SizeColumn::Name).remove(' ').contains("RHS100x60"));
  }
  search.clear();
  auto& series = On<QListWidget>(*window_, "series");
  series.findItems("HEA", Qt::MatchExactly).first()->setCheckState(Qt::Checked);
  series.findItems("HEB", Qt::MatchExactly).first()->setCheckState(Qt::Checked);
  On<QLineEdit>(*window_, "maxheight").setText("200");
  On<QLineEdit>(*window_, "maxwidth").setText("160,5");
  // HEA 100 to 160 are 100 to 160 wide and lower than that; HEB 100 to 160 as high as wide.
  EXPECT_EQ(view_->model()->rowCount(), 8);
  EXPECT_GE(RowOf("HEA160"), 0);
  EXPECT_EQ(RowOf("HEA180"), -1);
  On<QLineEdit>(*window_, "maxwidth").setText("wide");
  EXPECT_GE(RowOf("HEA180"), 0);
  On<QCheckBox>(*window_, "passing").setChecked(true);
  ASSERT_GT(view_->model()->rowCount(), 0);
  for (int row = 0; row < view_->model()->rowCount(); ++row) {
    EXPECT_EQ(Cell(row, SizeColumn::Uls), "passes");
  }
  EXPECT_EQ(RowOf("HEA100"), -1);
}

TEST_F(SectionsWindowTest, PassingMayHoldTheDeflectionLimitToo) {
  Load("10");
  Open();
  On<QCheckBox>(*window_, "passing").setChecked(true);
  const int all = view_->model()->rowCount();
  On<QCheckBox>(*window_, "sls").setChecked(true);
  EXPECT_LT(view_->model()->rowCount(), all);
  for (int row = 0; row < view_->model()->rowCount(); ++row) {
    ASSERT_EQ(Cell(row, SizeColumn::Sls), "passes");
  }
}

TEST_F(SectionsWindowTest, ClickPreviewsAndChangesNothing) {
  Load("10");
  Open();
  const ProjectState before = session_.st();
  const int calculations = session_.Calculations();
  Choose("IPE100");
  EXPECT_TRUE(Preview().contains("<b>IPE100</b>")) << Preview().toStdString();
  EXPECT_TRUE(Preview().contains("FAILS"));
  EXPECT_TRUE(Preview().contains("IR = "));
  for (const char* name : {"HEB300", "J300", "T100x100x11"}) {
    if (RowOf(name) >= 0) Choose(name);
  }
  Sort(SizeColumn::Ratio);
  On<QCheckBox>(*window_, "passing").setChecked(true);
  Main().activateWindow();
  QCoreApplication::processEvents();
  EXPECT_TRUE(session_.st() == before);
  EXPECT_EQ(session_.Calculations(), calculations);
}

TEST_F(SectionsWindowTest, ReturnAndDoubleClickTakeTheSection) {
  Load("10");
  Open();
  Choose("HEB220");
  QTest::keyClick(view_, Qt::Key_Return);
  EXPECT_EQ(On<QLabel>(Main(), "obeam").text(), "HEB220");
  EXPECT_TRUE(Cell(RowOf("HEB220"), SizeColumn::Name).contains("in force"));
  EXPECT_FALSE(Cell(RowOf("HEA200"), SizeColumn::Name).contains("in force"));
  Choose("IPE300");
  QTest::mouseDClick(view_->viewport(), Qt::LeftButton, {},
                     view_->visualRect(view_->currentIndex()).center());
  EXPECT_EQ(On<QLabel>(Main(), "obeam").text(), "IPE300");
  EXPECT_EQ(Main().verdict().Figure(), Cell(RowOf("IPE300"), SizeColumn::Ratio));
}

TEST_F(SectionsWindowTest, TakesARectangleTurned) {
  Open();
  Choose("RHS 60x100x5");
  QTest::keyClick(view_, Qt::Key_Return);
  EXPECT_EQ(session_.design().rec.h, 60.0f);
  EXPECT_EQ(session_.design().rec.b, 100.0f);
}

TEST_F(SectionsWindowTest, FollowsTheInputAtItsPlaceAndInItsOrder) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  Open();
  Sort(SizeColumn::Ratio);
  Choose("HEB220");
  const double before = Number(RowOf("HEB220"), SizeColumn::Ratio);
  const int top = view_->visualRect(view_->currentIndex()).top();
  TypeInto(Field("il"), "8");
  EXPECT_NE(Number(RowOf("HEB220"), SizeColumn::Ratio), before);
  EXPECT_EQ(Chosen(), "HEB220");
  EXPECT_EQ(view_->visualRect(view_->currentIndex()).top(), top);
  for (int row = 1; row < view_->model()->rowCount(); ++row) {
    ASSERT_LE(Number(row - 1, SizeColumn::Ratio), Number(row, SizeColumn::Ratio));
  }
  EXPECT_EQ(Number(RowOf("HEA200"), SizeColumn::Ratio), double(MaxIR(session_.design().checks)));
}

TEST_F(SectionsWindowTest, IsPaleWhileTheInputIsNotCalculated) {
  Load("10");
  desktop_->CloseForm(*FindForm("loading"));
  Open();
  Choose("HEB220");
  const double before = Number(RowOf("HEB220"), SizeColumn::Ratio);
  TypeInto(Field("il"), "-1");
  ASSERT_FALSE(session_.NotCalculated().empty());
  EXPECT_EQ(Number(RowOf("HEB220"), SizeColumn::Ratio), before);
  EXPECT_TRUE(Preview().contains("not calculated"));
  EXPECT_FALSE(On<QAbstractButton>(*window_, "take").isEnabled());
  QTest::keyClick(view_, Qt::Key_Return);
  EXPECT_EQ(session_.st().ProfileType, 1);
  TypeInto(Field("il"), "6");
  EXPECT_TRUE(Preview().contains("HEB220"));
  EXPECT_TRUE(On<QAbstractButton>(*window_, "take").isEnabled());
}

TEST_F(SectionsWindowTest, GoesFromTheSearchIntoTheTableByKeys) {
  Open();
  auto& search = On<QLineEdit>(*window_, "search");
  search.setFocus();
  QTest::keyClicks(&search, "heb 240");
  QTest::keyClick(&search, Qt::Key_Return);
  EXPECT_EQ(window_->focusWidget(), view_);
  EXPECT_EQ(Chosen(), "HEB240");
  QTest::keyClick(view_, Qt::Key_Return);
  EXPECT_EQ(On<QLabel>(Main(), "obeam").text(), "HEB240");
}

}  // namespace
}  // namespace korvane
