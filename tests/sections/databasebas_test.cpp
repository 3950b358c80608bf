// SPDX-License-Identifier: GPL-3.0-or-later
// The project database: what is added comes back, with the exceptions of four families; its file
// and its list.
#include "sections/databasebas.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <map>
#include <set>
#include <string>
#include <vector>

#include "../core/state_values.h"
#include "../core/temp_folder.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

using Names = std::set<std::string>;

/// The fields of a family that a row carries, from column 2 on.
struct Carried {
  int family;
  Names fields;
};

const std::vector<Carried>& CarriedFields() {
  static const std::vector<Carried> table{
      {1, {"idxHEA"}},
      {2, {"idxHEB"}},
      {3, {"idxHEM"}},
      {4, {"idxIPE"}},
      {5, {"idxUPE"}},
      {6, {"idxRHSs"}},
      {7, {"idxRHSr"}},
      {8, {"idxCFRHSs"}},
      {9, {"idxCFRHSr"}},
      {10, {"idxLeq"}},
      {11, {"idxLuneq"}},
      {15, {"idxINP"}},
      {16, {"idxUNP"}},
      {21, {"p21_h", "p21_b", "p21_tw", "p21_tf"}},
      {22, {"p22_h", "p22_b", "p22_b2", "p22_tw", "p22_tf1", "p22_tf2"}},
      {23, {"p23_h", "p23_b", "p23_a", "p23_tw", "p23_tf"}},
      {24, {"p24_h", "p24_b", "p24_a", "p24_c", "p24_tw", "p24_tf1", "p24_tf2"}},
      {25, {"p25_h", "p25_b1", "p25_b2", "p25_a", "p25_c", "p25_tw", "p25_tf1", "p25_tf2"}},
      {26, {"p26_h", "p26_b", "p26_tw", "p26_tf"}},
      {27, {"p27_h", "p27_b1", "p27_b2", "p27_tw", "p27_tf1", "p27_tf2", "p27_a"}},
      {28, {"p28_h", "p28_tw"}},
      {31, {"p31_d", "p31_tw"}},
      {41,
       {"p41_name", "p41_option", "p41_A", "p41_Az", "p41_Ay", "p41_Iy", "p41_Iz", "p41_Ix",
        "p41_Iw", "p41_Wely", "p41_Welz", "p41_Wply", "p41_Wplz"}},
      {53, {"p53_h", "p53_b1", "p53_b2", "p53_tw", "p53_tf1", "p53_tf2"}},
      {54, {"p54_index", "p54_b1", "p54_t1"}},
      {55, {"p55_h", "p55_b1", "p55_b2", "p55_tw", "p55_tf1", "p55_a"}},
      {56, {"p56_h", "p56_b1", "p56_b2", "p56_tw", "p56_tf1", "p56_tf2"}},
      {102, {"p102_idx"}},
  };
  return table;
}

/// A state of the family in which every field has a value of its own.
ProjectState Numbered(int family, int start = 1) {
  ProjectState st = DistinctState(start);
  st.ProfileType = family;
  return st;
}

Database With(ProjectState st) {
  Database db;
  AddToDatabase(st, db);
  return db;
}

class DatabaseFamily : public testing::TestWithParam<Carried> {};

TEST_P(DatabaseFamily, LoadsExactlyTheFieldsAdded) {
  const ProjectState added = Numbered(GetParam().family);
  const ProjectState before = Numbered(GetParam().family, 2000);
  ProjectState st = before;
  LoadDatabaseRow(With(added), st);
  EXPECT_EQ(DifferingFields(before, st), GetParam().fields);
  const auto want = FieldTexts(added);
  const auto got = FieldTexts(st);
  for (const std::string& field : GetParam().fields) EXPECT_EQ(got.at(field), want.at(field));
}

TEST_P(DatabaseFamily, SurvivesTheFile) {
  const TempFolder folder;
  const ProjectState added = [] {
    ProjectState st = Numbered(GetParam().family);
    st.p41_name = "K\xC3\xB8rve 3, long";
    return st;
  }();
  ASSERT_TRUE(WriteDatabase(folder / "a.db", With(added)));
  Database read;
  ReadDatabase(folder / "a.db", read);
  ASSERT_EQ(read.DbLast, 0);
  EXPECT_EQ(DatabaseRowType(read), GetParam().family);
  ProjectState st = Numbered(GetParam().family, 2000);
  LoadDatabaseRow(read, st);
  const auto want = FieldTexts(added);
  const auto got = FieldTexts(st);
  for (const std::string& field : GetParam().fields) EXPECT_EQ(got.at(field), want.at(field));
}

INSTANTIATE_TEST_SUITE_P(All, DatabaseFamily, testing::ValuesIn(CarriedFields()),
                         [](const auto& test) { return std::to_string(test.param.family); });

TEST(Database, EveryFamilyOfTheProgramHasAnEntryInTheList) {
  const Catalogues cat = [] {
    Catalogues c;
    for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
      const CatalogueShape& shape = ShapeOf(static_cast<Cat>(i));
      c.tables[static_cast<std::size_t>(i)] = CatalogueTable(shape.capacity, shape.columns);
    }
    return c;
  }();
  for (const Family& family : AllFamilies()) {
    ProjectState st;
    st.ProfileType = family.code;
    EXPECT_NE(FillDatabaseList(With(st), cat).at(0), " ") << family.code;
  }
}

/// Columns as a row holds them after adding, by the field's name.
struct Column {
  int family;
  int column;
  std::string field;
};

TEST(Database, ColumnsStandInTheirPlaces) {
  const std::vector<Column> table{
      {1, 2, "idxHEA"},     {16, 2, "idxUNP"},   {102, 2, "p102_idx"}, {23, 5, "p23_a"},
      {23, 6, "p23_tw"},    {24, 5, "p24_a"},    {24, 6, "p24_c"},     {24, 9, "p24_tf2"},
      {25, 6, "p25_a"},     {25, 10, "p25_tf2"}, {27, 9, "p27_a"},     {41, 4, "p41_A"},
      {41, 5, "p41_Az"},    {41, 6, "p41_Ay"},   {41, 7, "p41_Iy"},    {41, 8, "p41_Iz"},
      {41, 9, "p41_Ix"},    {41, 10, "p41_Iw"},  {41, 14, "p41_Wplz"}, {41, 15, "p41_option"},
      {51, 3, "p51_h"},     {51, 4, "p51_b"},    {51, 5, "p51_tw"},    {51, 6, "p51_tf1"},
      {52, 2, "p52_index"}, {52, 3, "p52_b1"},   {52, 4, "p52_t1"},    {54, 2, "p54_index"},
      {55, 8, "p55_a"},     {56, 8, "p56_tf2"},
  };
  for (const Column& c : table) {
    const ProjectState st = Numbered(c.family);
    const Database db = With(st);
    const number& value = db.DbTable[0].col[c.column];
    const std::string want = FieldTexts(st).at(c.field);
    // A single precision field reads with more digits from its double precision column.
    EXPECT_EQ(FileText(float32(double(value))), FileText(float32(LeadingNumber(want)))) << c.field;
    EXPECT_EQ(double(db.DbTable[0].col[1]), c.family);
  }
}

TEST(Database, UnusedColumnsAreZeroEvenOverAnOldRow) {
  Database db;
  db.DbTable[0].col.Fill(7.0);
  db.DbTable[0].name = "old";
  ProjectState st = Numbered(28);
  AddToDatabase(st, db);
  for (const int column : {2, 5, 6, 16}) EXPECT_EQ(double(db.DbTable[0].col[column]), 0.0);
  EXPECT_EQ(db.DbTable[0].name, "");
}

TEST(Database, AddingLeavesTheDatabaseModeAndSelectsTheRow) {
  Database db;
  ProjectState st;
  for (int i = 0; i < 3; ++i) {
    st.DatabaseMode = 1;
    AddToDatabase(st, db);
    EXPECT_EQ(st.DatabaseMode, 0);
    EXPECT_EQ(db.DbLast, i);
    EXPECT_EQ(db.DbRow, i);
  }
}

TEST(Database, The82ndRowIsAnIndexFailureAndLosesNothing) {
  Database db;
  ProjectState st = Numbered(21);
  for (int i = 0; i < 81; ++i) AddToDatabase(st, db);
  EXPECT_EQ(db.DbLast, 80);
  EXPECT_THROW(AddToDatabase(st, db), ArithmeticFault);
  EXPECT_EQ(db.DbLast, 80);
  EXPECT_EQ(DatabaseRowType(db), 21);
}

/// The sub-family stands in column 2, its row in column 3.
struct SubFamily {
  int family, sub;
  std::string index;
};

TEST(Database, SubFamiliesCarryTheRowOfTheirOwn) {
  for (const SubFamily& c : std::vector<SubFamily>{{101, 1, "p101_idx1"},
                                                   {101, 2, "p101_idx2"},
                                                   {101, 3, "p101_idx3"},
                                                   {103, 1, "p103_idx1"},
                                                   {103, 2, "p103_idx2"}}) {
    ProjectState st = Numbered(c.family);
    st.p101_sub = c.sub;
    st.p103_sub = c.sub;
    const Database db = With(st);
    EXPECT_EQ(double(db.DbTable[0].col[2]), c.sub);
    EXPECT_EQ(FileText(double(db.DbTable[0].col[3])), FieldTexts(st).at(c.index));
    const ProjectState before = Numbered(c.family, 2000);
    ProjectState after = before;
    LoadDatabaseRow(db, after);
    const std::string sub = c.family == 101 ? "p101_sub" : "p103_sub";
    EXPECT_EQ(DifferingFields(before, after), (Names{sub, c.index}));
  }
}

TEST(Database, Families27And55LoadTheLastRowWhicheverIsSelected) {
  for (const int family : {27, 55}) {
    Database db;
    ProjectState first = Numbered(family);
    ProjectState other = Numbered(21, 4000);
    AddToDatabase(first, db);
    AddToDatabase(other, db);
    db.DbRow = 0;
    ProjectState st = Numbered(family, 2000);
    LoadDatabaseRow(db, st);
    const double h = family == 27 ? st.p27_h : st.p55_h;
    const double tf1 = family == 27 ? st.p27_tf1 : st.p55_tf1;
    EXPECT_EQ(h, double(other.p21_h));
    EXPECT_EQ(tf1, 0.0);
  }
}

TEST(Database, Family51RestoresItsHeightAndWritesFamily56) {
  const ProjectState added = Numbered(51);
  Database db = With(added);
  db.DbTable[0].col[7] = 33.5;
  const ProjectState before = Numbered(51, 2000);
  ProjectState st = before;
  LoadDatabaseRow(db, st);
  EXPECT_EQ(DifferingFields(before, st), (Names{"p51_h", "p56_b1", "p56_tw", "p56_tf1"}));
  EXPECT_EQ(double(st.p51_h), double(added.p51_h));
  EXPECT_EQ(double(st.p56_b1), double(added.p51_b));
  EXPECT_EQ(double(st.p56_tw), double(added.p51_tf1));
  EXPECT_EQ(double(st.p56_tf1), 33.5);
}

TEST(Database, Family52RestoresItsRowAndWritesFamily56) {
  const ProjectState added = Numbered(52);
  const ProjectState before = Numbered(52, 2000);
  ProjectState st = before;
  LoadDatabaseRow(With(added), st);
  EXPECT_EQ(DifferingFields(before, st), (Names{"p52_index", "p56_b1", "p56_tf1"}));
  EXPECT_EQ(int(st.p52_index), int(added.p52_index));
  EXPECT_EQ(double(st.p56_b1), double(added.p52_b1));
  EXPECT_EQ(double(st.p56_tf1), double(added.p52_t1));
}

TEST(Database, AnUnknownFamilyLoadsNothing) {
  const ProjectState before = Numbered(0, 2000);
  ProjectState st = before;
  LoadDatabaseRow(With(Numbered(21)), st);
  EXPECT_EQ(DifferingFields(before, st), Names{});
}

TEST(Database, AColumnBeyondItsFieldIsAnArithmeticFailure) {
  Database db = With(Numbered(1));
  ProjectState st = Numbered(1);
  db.DbTable[0].col[2] = 40000.0;
  EXPECT_THROW(LoadDatabaseRow(db, st), ArithmeticFault);
  db = With(Numbered(21));
  st.ProfileType = 21;
  db.DbTable[0].col[3] = 1e300;
  EXPECT_THROW(LoadDatabaseRow(db, st), ArithmeticFault);
}

// Order

std::vector<int> Types(const Database& db) {
  std::vector<int> types;
  for (int i = 0; i <= db.DbLast; ++i) types.push_back(static_cast<int>(db.DbTable[i].col[1]));
  return types;
}

Database OfTypes(const std::vector<int>& types) {
  Database db;
  for (const int type : types) {
    ProjectState st = Numbered(type);
    AddToDatabase(st, db);
  }
  return db;
}

using Rows = std::vector<int>;

TEST(DatabaseOrder, MovesUp) {
  Database db = OfTypes({21, 41, 31});
  EXPECT_FALSE(MoveRowUp(db, 0));
  EXPECT_EQ(Types(db), (Rows{21, 41, 31}));
  EXPECT_TRUE(MoveRowUp(db, 1));
  EXPECT_EQ(Types(db), (Rows{41, 21, 31}));
  EXPECT_EQ(db.DbTable[0].name, Numbered(41).p41_name);
  EXPECT_FALSE(MoveRowUp(db, 3));
  EXPECT_EQ(Types(db), (Rows{41, 21, 31}));
}

TEST(DatabaseOrder, MovesDown) {
  Database db = OfTypes({21, 41, 31});
  EXPECT_FALSE(MoveRowDown(db, 2));
  EXPECT_FALSE(MoveRowDown(db, -1));
  EXPECT_EQ(Types(db), (Rows{21, 41, 31}));
  EXPECT_TRUE(MoveRowDown(db, 1));
  EXPECT_EQ(Types(db), (Rows{21, 31, 41}));
}

TEST(DatabaseOrder, MovingLowersTheFlagOfListUpdates) {
  Database db = OfTypes({21, 41});
  db.listUpdate = true;
  MoveRowDown(db, 0);
  EXPECT_FALSE(db.listUpdate);
  db.listUpdate = true;
  ResetDatabase(db);
  EXPECT_FALSE(db.listUpdate);
  EXPECT_EQ(db.DbLast, 1);
}

TEST(DatabaseOrder, Removes) {
  Database db = OfTypes({21, 41, 31});
  EXPECT_FALSE(RemoveRow(db, -1));
  EXPECT_FALSE(RemoveRow(db, 3));
  EXPECT_TRUE(RemoveRow(db, 0));
  EXPECT_EQ(Types(db), (Rows{41, 31}));
  EXPECT_EQ(db.DbTable[0].name, Numbered(41).p41_name);
}

TEST(DatabaseOrder, RemovingTheOnlyRowLeavesAnEmptyTable) {
  Database db = OfTypes({21});
  EXPECT_TRUE(RemoveRow(db, 0));
  EXPECT_EQ(db.DbLast, -1);
  EXPECT_TRUE(FillDatabaseList(db, Catalogues{}).empty());
  EXPECT_FALSE(RemoveRow(db, 0));
  EXPECT_EQ(db.DbLast, -1);
}

TEST(DatabaseOrder, RemovesFromAFullTable) {
  Database db = OfTypes(Rows(81, 21));
  db.DbTable[80].col[1] = 31;
  EXPECT_TRUE(RemoveRow(db, 79));
  EXPECT_EQ(db.DbLast, 79);
  EXPECT_EQ(double(db.DbTable[79].col[1]), 31.0);
  EXPECT_EQ(double(db.DbTable[80].col[1]), 0.0);
}

TEST(DatabaseOrder, Clears) {
  Database db = OfTypes({21, 41});
  ClearDatabase(db);
  EXPECT_EQ(db.DbLast, -1);
  EXPECT_EQ(double(db.DbTable[0].col[1]), 0.0);
  EXPECT_EQ(db.DbTable[1].name, "");
}

// File

/// Sixteen lines of one row; the third as text where given.
std::string FileRow(const std::string& family, const std::string& third, const std::string& rest) {
  std::string text = family + "\r\n5\r\n" + third + "\r\n";
  for (int i = 4; i <= 16; ++i) text += rest + "\r\n";
  return text;
}

TEST(DatabaseFile, HasSixteenLinesARow) {
  const TempFolder folder;
  ProjectState st;
  st.ProfileType = 26;
  st.p26_h = number::Empty();
  st.p26_b = 0.5;
  Database db = With(st);
  st.ProfileType = 41;
  AddToDatabase(st, db);
  ASSERT_TRUE(WriteDatabase(folder / "a.db", db));
  const std::string zeros9 = "0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n0\r\n";
  EXPECT_EQ(GetFile(folder / "a.db"),
            "26\r\n0\r\n\r\n.5\r\n10\r\n10\r\n0\r\n" + zeros9 +
                "41\r\n0\r\n\"General\"\r\n11000\r\n3000\r\n8000\r\n182600000\r\n63000000\r\n"
                "8000000\r\n1199999942656\r\n1300000\r\n420000\r\n1650000\r\n5500000\r\n1\r\n"
                "0\r\n");
  EXPECT_EQ(folder.Count(), 1);
}

TEST(DatabaseFile, AnEmptyNumberStaysEmpty) {
  const TempFolder folder;
  PutFile(folder / "a.db", FileRow("26", "", "1"));
  Database db;
  ReadDatabase(folder / "a.db", db);
  EXPECT_TRUE(db.DbTable[0].col[3].IsEmpty());
  EXPECT_FALSE(db.DbTable[0].col[4].IsEmpty());
}

TEST(DatabaseFile, IsReadWhateverItsLineEndsAndBytes) {
  const TempFolder folder;
  std::string lines = FileRow("41", "\"K\xF8rve\"", "1.5E+2");
  std::erase(lines, '\r');
  PutFile(folder / "a.db", lines);
  Database db;
  ReadDatabase(folder / "a.db", db);
  ASSERT_EQ(db.DbLast, 0);
  EXPECT_EQ(db.DbTable[0].name, "K\xC3\xB8rve");
  EXPECT_EQ(double(db.DbTable[0].col[4]), 150.0);
}

struct Damage {
  const char* name;
  std::string text;
  int last;
};

TEST(DatabaseFile, CountsTheCompleteRows) {
  const std::string row = FileRow("21", "300", "10");
  const std::vector<Damage> table{
      {"empty", "", -1},
      {"one", row, 0},
      {"no line end at the end", row.substr(0, row.size() - 2), 0},
      {"fifteen lines", row.substr(0, row.size() - 4), -1},
      {"incomplete second row", row + "21\r\n5\r\n", 0},
      {"a number beyond double precision in the second row",
       row + FileRow("21", "1E999", "10") + row, 0},
      {"text for a number reads as 0", FileRow("21", "text", "10"), 0},
      {"binary", std::string(64, '\0'), -1},
  };
  const TempFolder folder;
  for (const Damage& c : table) {
    PutFile(folder / "a.db", c.text);
    Database db = OfTypes({31, 31, 31});
    ReadDatabase(folder / "a.db", db);
    EXPECT_EQ(db.DbLast, c.last) << c.name;
  }
}

TEST(DatabaseFile, Keeps81Rows) {
  const TempFolder folder;
  std::string text;
  for (int i = 0; i < 85; ++i) text += FileRow("21", std::to_string(i), "1");
  PutFile(folder / "a.db", text);
  Database db;
  ReadDatabase(folder / "a.db", db);
  EXPECT_EQ(db.DbLast, 80);
  EXPECT_EQ(double(db.DbTable[80].col[3]), 80.0);
}

TEST(DatabaseFile, AMissingOrUnreadableFileIsAnEmptyTable) {
  const TempFolder folder;
  for (const std::string& path : {folder / "missing.db", folder.Path()}) {
    Database db = OfTypes({31});
    ReadDatabase(path, db);
    EXPECT_EQ(db.DbLast, -1);
    EXPECT_TRUE(FillDatabaseList(db, Catalogues{}).empty());
  }
}

TEST(DatabaseFile, AFailedWriteKeepsWhatIsThere) {
  const TempFolder folder;
  EXPECT_FALSE(WriteDatabase(folder / "no/such/folder.db", OfTypes({31})));
  EXPECT_FALSE(WriteDatabase(folder.Path(), OfTypes({31})));
  EXPECT_EQ(folder.Count(), 0);
}

// List

Catalogues NumberedCatalogues() {
  Catalogues cat;
  for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
    const CatalogueShape& shape = ShapeOf(static_cast<Cat>(i));
    CatalogueTable& table = cat.tables[static_cast<std::size_t>(i)];
    table = CatalogueTable(shape.capacity, shape.columns);
    for (int row = 0; row < shape.rows; ++row)
      for (int column = 1; column <= 3; ++column)
        table.Set(row, column,
                  static_cast<float>(100 * i + 10 * row + column) + 0.5F * (column / 3));
  }
  return cat;
}

struct Entry {
  int family, column2, column3;
  const char* text;
};

TEST(DatabaseList, RolledSectionsByTheirCatalogues) {
  const Catalogues cat = NumberedCatalogues();
  const std::vector<Entry> table{
      {1, 0, 0, "HEA 01"},
      {1, 2, 0, "HEA 21"},
      {2, 0, 0, "HEB 101"},
      {3, 0, 0, "HEM 201"},
      {4, 0, 0, "IPE 301"},
      {5, 1, 0, "UPE 411"},
      {6, 0, 0, "RHS  501x 501x 502"},
      {7, 1, 0, "RHS  611x 612x 613.5"},
      {8, 0, 0, "CFRHS  701x 702x 703.5"},
      {9, 0, 0, "CFRHS  801x 802x 803.5"},
      {10, 0, 0, "L  901x 901x 902"},
      {11, 0, 0, "L  1001x 1002x 1003.5"},
      {15, 0, 0, "INP 1101"},
      {16, 1, 0, "UNP 411"},  // the number of the same row of the UPE table
      {16, 15, 0, "UNP 00"},  // which that table has not
      {101, 1, 2, "UB  1521x 1522x 1523.5"},
      {101, 2, 2, "UC  1721x 1722x 1723.5"},
      {101, 3, 2, "UBP  1621x 1622x 1623.5"},
      {102, 2, 0, "J  1821x 1822x 1823.5"},
      {103, 1, 2, "PFC  2021x 2022x 2023.5"},
      {103, 2, 2, "CH  1921x 1922x 1923.5"},
      {101, 4, 2, " "},
      {0, 0, 0, " "},
      {99, 0, 0, " "},
  };
  for (const Entry& c : table) {
    DatabaseRow row;
    row.col[1] = c.family;
    row.col[2] = c.column2;
    row.col[3] = c.column3;
    EXPECT_EQ(DatabaseEntry(row, cat), c.text);
  }
}

TEST(DatabaseList, TypedSectionsByTheirNumbers) {
  const std::map<int, std::string> table{
      {21, "I 1x2/3x4.5"},
      {22, "I 1x2/3x4.5x5x6  (Single symm.)"},
      {23, "Box 1x2x3x4.5x5"},
      {24, "HSQ 1x2x3x4.5x5x6x7  (Symm fl)"},
      {25, "HSQ 1x2x3x4.5x5x6x7x8  (Non symm fl)"},
      {26, "T 1x2x3x4.5"},
      {27, "BOX 1x2x3x4.5x5x6x7  (Single sym)"},
      {28, "Fb 1x2"},
      {31, "Tube 1x2"},
      {41, "General - beam 7"},
      {51, "PLate + Fb 1x2x3x4.5"},
      {52, "PLate + L 1x2"},
      {53, "PLate + L 1x2x3x4.5x5x6"},
      {54, "PLate + BF 1x2"},
      {55, "Plate + Trapez 1x2x3x4.5x5x6"},
      {56, "PLate + T 1x2x3x4.5x5x6"},
  };
  for (const auto& [family, text] : table) {
    DatabaseRow row;
    row.col[1] = family;
    for (int column = 3; column <= 16; ++column) row.col[column] = column - 2;
    row.col[6] = 4.5;
    row.name = "beam 7";
    EXPECT_EQ(DatabaseEntry(row, Catalogues{}), text);
  }
}

TEST(DatabaseList, ARowOutsideItsCatalogueIsBlankAndLeavesTheOthers) {
  Database db = OfTypes({1, 31});
  db.DbTable[0].col[2] = 4000.0;
  const std::vector<std::string> list = FillDatabaseList(db, NumberedCatalogues());
  ASSERT_EQ(list.size(), 2U);
  EXPECT_EQ(list[0], " ");
  EXPECT_EQ(list[1].substr(0, 5), "Tube ");
}

}  // namespace
}  // namespace korvane
