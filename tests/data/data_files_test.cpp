// SPDX-License-Identifier: GPL-3.0-or-later
// Proves that the data folder is what the tool makes from the tables, byte for byte.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "tests/data/row_check.h"
#include "tools/catalogue_maker.h"

namespace korvane::testing {
namespace {

namespace fs = std::filesystem;

std::string BytesOf(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  EXPECT_TRUE(in) << file;
  std::ostringstream bytes;
  bytes << in.rdbuf();
  return bytes.str();
}

TEST(DataFiles, AreWhatTheToolMakesFromTheTables) {
  const auto made = MakeDataFiles(DataFolder() + "/source");
  ASSERT_EQ(made.size(), 22U);
  for (const DataFile& file : made) {
    EXPECT_TRUE(file.bytes == BytesOf(fs::path(DataFolder()) / file.name)) << file.name;
  }
}

TEST(DataFiles, HoldNothingElse) {
  std::set<std::string> expected{"default_ns.dat"};
  for (const DataFile& file : MakeDataFiles(DataFolder() + "/source")) {
    expected.insert(file.name);
  }
  std::set<std::string> found;
  for (const auto& entry : fs::directory_iterator(DataFolder())) {
    if (entry.is_regular_file()) found.insert(entry.path().filename().string());
  }
  EXPECT_EQ(found, expected);
}

TEST(DataFiles, HaveTheSizesOfTheirTables) {
  const std::map<std::string, unsigned> sizes{
      {"hea.dat", 1056},   {"heb.dat", 1056}, {"hem.dat", 1056}, {"ipe.dat", 720},
      {"upe.dat", 784},    {"shs.dat", 2424}, {"rhs.dat", 5688}, {"cfshs.dat", 2772},
      {"cfrhs.dat", 4176}, {"l1.dat", 2640},  {"l2.dat", 3136},  {"inp.dat", 924},
      {"unp.dat", 960},    {"l3.dat", 264},   {"hp.dat", 940},   {"ub.dat", 6156},
      {"uc.dat", 2356},    {"ubp.dat", 1292}, {"j.dat", 988},    {"pfc.dat", 1344},
      {"ch.dat", 1496}};
  ASSERT_EQ(sizes.size(), 21U);
  for (const auto& [name, size] : sizes) {
    EXPECT_EQ(fs::file_size(fs::path(DataFolder()) / name), size) << name;
  }
}

TEST(DataFiles, DefaultsAreFourteenLines) {
  EXPECT_EQ(BytesOf(DataFolder() + "/default_ns.dat"),
            "1.1\r\n1.2\r\n1.5\r\n1.5\r\n1\r\n1\r\n1\r\n1.2\r\n300\r\n250\r\n0\r\n1\r\n5\r\n"
            "355\r\n");
}

TEST(DataFiles, MaterialsHoldTheGradesThatDefaultsAndProjectsCount) {
  std::ifstream in(DataFolder() + "/NSmat.dat", std::ios::binary);
  std::vector<std::string> lines;
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  ASSERT_EQ(lines.size(), 27U);
  EXPECT_EQ(lines[0], "\"S235\",235,215\r");
  EXPECT_EQ(lines[5], "\"S355\",355,335\r");
  EXPECT_EQ(lines[26], "\"User defined\",0,0\r");
}

// A folder of its own for one test, removed with it.
class Folder {
public:
  explicit Folder(const std::string& name)
      : path_(fs::path(::testing::TempDir()) / ("korvane_maker_" + name)) {
    fs::remove_all(path_);
    fs::create_directories(path_);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;
  ~Folder() { fs::remove_all(path_); }
  const fs::path& Path() const { return path_; }

private:
  fs::path path_;
};

// A copy of the tables in which the first `from` of one of them is replaced.
void CopyTables(const fs::path& to, const std::string& table, const std::string& from,
                const std::string& replacement) {
  for (const auto& entry : fs::directory_iterator(DataFolder() + "/source")) {
    fs::copy_file(entry.path(), to / entry.path().filename());
  }
  std::string text = BytesOf(to / table);
  const auto at = text.find(from);
  ASSERT_NE(at, std::string::npos) << from;
  text.replace(at, from.size(), replacement);
  std::ofstream(to / table, std::ios::binary) << text;
}

TEST(CatalogueMaker, WritesTheFilesIntoAFolderThatItMakes) {
  const Folder folder("write");
  const fs::path target = folder.Path() / "new" / "data";
  const auto made = MakeDataFiles(DataFolder() + "/source");
  WriteDataFiles(made, target);
  for (const DataFile& file : made) {
    EXPECT_TRUE(BytesOf(target / file.name) == file.bytes) << file.name;
  }
}

TEST(CatalogueMaker, ReadsTablesWithCarriageReturns) {
  const Folder folder("crlf");
  ASSERT_NO_FATAL_FAILURE(CopyTables(folder.Path(), "l3.csv", "7\n", "7\r\n"));
  EXPECT_NO_THROW(MakeDataFiles(folder.Path()));
}

struct Fault {
  const char* name;
  const char* table;
  const char* from;
  const char* to;
  const char* message;
};

class CatalogueMakerFaults : public ::testing::TestWithParam<Fault> {};

TEST_P(CatalogueMakerFaults, AreNamed) {
  const Fault& fault = GetParam();
  const Folder folder(fault.name);
  ASSERT_NO_FATAL_FAILURE(CopyTables(folder.Path(), fault.table, fault.from, fault.to));
  try {
    MakeDataFiles(folder.Path());
    ADD_FAILURE() << "the fault was not seen";
  } catch (const CatalogueError& e) {
    EXPECT_STREQ(e.what(), fault.message);
  }
}

INSTANTIATE_TEST_SUITE_P(
    Tables, CatalogueMakerFaults,
    ::testing::Values(
        Fault{"row_gone", "l3.csv", "200,90,8,14,14,7\n", "", "l3.csv: 10 rows, expected 11"},
        Fault{"column_gone", "l3.csv", "200,90,8,14,14,7", "200,90,8,14,14",
              "l3.csv, line 3: 5 columns, expected 6"},
        Fault{"column_more", "l3.csv", "200,90,8,14,14,7", "200,90,8,14,14,7,",
              "l3.csv, line 3: 7 columns, expected 6"},
        Fault{"text", "l3.csv", "200,90,8,14,14,7", "200,90,8,14,1x,7",
              "l3.csv, line 3: column 5: \"1x\" is no number"},
        Fault{"empty", "l3.csv", "200,90,8,14,14,7", "200,,8,14,14,7",
              "l3.csv, line 3: column 2: \"\" is no number"},
        Fault{"infinite", "l3.csv", "200,90,8,14,14,7", "200,inf,8,14,14,7",
              "l3.csv, line 3: column 2: \"inf\" is no number"},
        Fault{"too_large", "l3.csv", "200,90,8,14,14,7", "200,1e39,8,14,14,7",
              "l3.csv, line 3: column 2: \"1e39\" is no number"},
        Fault{"heading", "hea.csv", "tf [mm],tw [mm]", "tw [mm],tf [mm]",
              "hea.csv, line 2: column 4 is headed \"tw [mm]\", expected \"tf [mm]\""},
        Fault{"heading_short", "hea.csv", ",Iw [1E9 mm6]", "",
              "hea.csv, line 2: 10 columns, expected 11"},
        Fault{"grade_unnamed", "nsmat.csv", "S235W,", ",",
              "nsmat.csv, line 4: a name is needed, without quotation marks"},
        Fault{"grade_weak", "nsmat.csv", "S235W,235", "S235W,0",
              "nsmat.csv, line 4: the yield stresses must be above 0"}),
    [](const auto& i) { return i.param.name; });

TEST(CatalogueMaker, NamesAMissingTable) {
  const Folder folder("missing");
  ASSERT_NO_FATAL_FAILURE(CopyTables(folder.Path(), "l3.csv", "7", "7"));
  fs::remove(folder.Path() / "ub.csv");
  try {
    MakeDataFiles(folder.Path());
    ADD_FAILURE() << "the missing table was not seen";
  } catch (const CatalogueError& e) {
    EXPECT_EQ(std::string(e.what()), "ub.csv: can't be read in " + folder.Path().string());
  }
}

TEST(CatalogueMaker, NamesAFolderThatCantBeWritten) {
  const Folder folder("blocked");
  std::ofstream(folder.Path() / "file") << "no folder";
  EXPECT_THROW(WriteDataFiles({{"a.dat", "x"}}, folder.Path() / "file"), CatalogueError);
}

}  // namespace
}  // namespace korvane::testing
