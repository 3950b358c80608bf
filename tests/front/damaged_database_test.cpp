// SPDX-License-Identifier: GPL-3.0-or-later
// Project databases that are damaged, missing or can't be written: the program goes on with what
// there is.
#include <filesystem>
#include <string>
#include <vector>

#include "tests/front/damage_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using testing::CollectOne;
using testing::ExpectAlive;
using testing::OwnFolder;
using testing::Running;
using Strings = std::vector<std::string>;

/// Sixteen lines of a row: the code, column 2, and the numbers from column 3 on.
std::string DatabaseLines(const std::string& code, const std::string& index,
                          const Strings& numbers) {
  std::string text = code + "\r\n" + index + "\r\n";
  for (std::size_t i = 0; i < 14; ++i) text += (i < numbers.size() ? numbers[i] : "0") + "\r\n";
  return text;
}

/// Opens the form and selects every row, as a person who looks through the list.
void LookThroughTheDatabase(Running& r, const std::string& name) {
  ASSERT_NO_THROW(r.session.Menu("mnudb")) << name;
  const int rows = static_cast<int>(r.session.Items("database.cbo").size());
  for (int row = 0; row < rows; ++row) {
    ASSERT_NO_THROW(r.session.Select("database.cbo", row)) << name << ", row " << row;
    ASSERT_NO_THROW(r.session.Focus("database")) << name << ", row " << row;
    ASSERT_NO_THROW(r.session.Focus("korvane")) << name << ", row " << row;
  }
  EXPECT_TRUE(r.session.Close("database"));
  ExpectAlive(r, name);
}

struct Damage {
  const char* name;
  std::string text;
  std::size_t rows;
};

TEST(DamagedDatabase, NeverEndsTheProgramAndIsNotTouched) {
  const Strings plate{"300", "150", "8", "12"};
  const std::string good = DatabaseLines("21", "0", plate);
  for (const Damage& c : std::vector<Damage>{
           {"empty", "", 0},
           {"binary", std::string(400, '\x01'), 0},
           {"no family", good + DatabaseLines("0", "0", {}), 2},
           {"unknown family", DatabaseLines("999", "3", plate) + good, 2},
           {"negative family", DatabaseLines("-4", "3", plate) + good, 2},
           {"family beyond its field", DatabaseLines("1E10", "3", plate) + good, 2},
           {"row beyond the catalogue", DatabaseLines("1", "500", {}) + good, 2},
           {"row below the catalogue", DatabaseLines("4", "-1", {}) + good, 2},
           {"sub-family that is none", DatabaseLines("101", "9", {"1"}) + good, 2},
           {"no dimensions", DatabaseLines("21", "0", {}) + good, 2},
           {"dimensions beyond their fields", DatabaseLines("23", "0", {"1E300"}) + good, 2},
           {"negative dimensions",
            DatabaseLines("22", "0", {"-300", "-150", "-150", "-8", "-12", "-12"}) + good, 2},
           {"text for numbers", DatabaseLines("HEA", "200", {"x", "y"}) + good, 2},
           {"cut short", good + good.substr(0, good.size() / 2), 1},
       }) {
    const TempFolder folder;
    PutFile(folder / "korvane.db", c.text);
    Running r(false, OwnFolder(folder));
    EXPECT_EQ(r.session.Items("database.cbo").size(), c.rows) << c.name;
    LookThroughTheDatabase(r, c.name);
    EXPECT_TRUE(r.platform.messages.empty()) << c.name;
    EXPECT_EQ(GetFile(folder / "korvane.db"), c.text) << c.name;
  }
}

TEST(DamagedDatabase, ARowThatCannotBeDesignedLeavesTheMemberAsItWas) {
  const TempFolder folder;
  PutFile(folder / "korvane.db",
          DatabaseLines("21", "0", {"300", "150", "8", "12"}) + DatabaseLines("21", "0", {}));
  Running r(false, OwnFolder(folder));
  r.session.Menu("mnudb");
  r.session.Select("cbo", 0);
  const double ratio = MaxIR(r.session.design().checks);
  r.session.Select("cbo", 1);
  EXPECT_EQ(r.platform.beeps, 1);
  EXPECT_EQ(r.st().p21_h, 300.0);
  EXPECT_EQ(r.st().p21_tf, 12.0);
  EXPECT_EQ(MaxIR(r.session.design().checks), ratio);
}

TEST(DamagedDatabase, CutAnywhereItHasItsCompleteRows) {
  const std::string row = DatabaseLines("21", "0", {"300", "150", "8", "12"});
  const std::string text = row + row;
  for (std::size_t size = 0; size <= text.size(); ++size) {
    const TempFolder folder;
    PutFile(folder / "korvane.db", text.substr(0, size));
    testing::RememberingPlatform platform;
    NamedSession s(SourceLibrary(), platform, false, OwnFolder(folder));
    s.Start();
    // The last line counts without its line end.
    const int complete = size + 2 >= 2 * row.size() ? 2 : size + 2 >= row.size() ? 1 : 0;
    EXPECT_EQ(s.database().DbLast, complete - 1) << size;
  }
}

TEST(MissingDatabase, IsAnEmptyListWithoutAWord) {
  const TempFolder folder;
  Running none(false, OwnFolder(folder));
  LookThroughTheDatabase(none, "missing");
  EXPECT_TRUE(none.platform.messages.empty());
  EXPECT_EQ(folder.Count(), 0);
  fs::create_directory(folder / "korvane.db");
  Running blocked(false, OwnFolder(folder));
  LookThroughTheDatabase(blocked, "a folder in its place");
  // A list that is opened and can't be read is empty, too.
  Running r(false, OwnFolder(folder));
  r.session.Menu("mnup01");
  r.session.Click("addtodb");
  r.session.Menu("mnudb");
  r.platform.answers.emplace_back(folder / "gone.db");
  r.session.Click("open_db");
  EXPECT_TRUE(r.session.Items("cbo").empty());
  ExpectAlive(r, "opened");
}

TEST(Database, ASaveThatFailsKeepsTheListAndTheOldFile) {
  const TempFolder folder;
  PutFile(folder / "file", "old");
  fs::create_directory(folder / "folder.db");
  Running r(false, OwnFolder(folder));
  CollectOne(r);
  for (const std::string& path :
       {folder / "no/such.db", folder / "file/inside.db", folder / "folder.db"}) {
    r.platform.answers.emplace_back(path);
    EXPECT_NO_THROW(r.session.Click("save_db"));
    EXPECT_EQ(r.session.Items("cbo").size(), 1U) << path;
  }
  EXPECT_TRUE(r.platform.messages.empty());
  EXPECT_EQ(GetFile(folder / "file"), "old");
  EXPECT_EQ(folder.Count(), 2);
  ExpectAlive(r, "saved nowhere");
}

}  // namespace
}  // namespace korvane
