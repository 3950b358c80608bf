// SPDX-License-Identifier: GPL-3.0-or-later
// Reading of whole, short, damaged and missing catalogue files.
#include "sections/readprofiles.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "places.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

const std::string kData = std::string(KORVANE_SOURCE_DIR) + "/data";

class ReadProfiles : public ::testing::Test {
protected:
  ReadProfiles() {
    const auto* info = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ = fs::path(::testing::TempDir()) / (std::string("korvane_read_") + info->name());
    fs::remove_all(folder_);
    fs::create_directories(folder_);
  }
  ~ReadProfiles() override { fs::remove_all(folder_); }

  void Write(const char* name, const std::string& bytes) const {
    std::ofstream(folder_ / name, std::ios::binary) << bytes;
  }
  Catalogues Read() const { return ReadCatalogues(folder_.string()); }

  fs::path folder_;
};

// The value's bytes, lowest first.
std::string Bytes(std::uint32_t bits) {
  std::string bytes;
  for (int shift = 0; shift < 32; shift += 8) {
    bytes += static_cast<char>(static_cast<unsigned char>((bits >> shift) & 0xFFU));
  }
  return bytes;
}
std::string Bytes(float value) {
  return Bytes(std::bit_cast<std::uint32_t>(value));
}

// `rows` rows whose values are 1000*row + column.
std::string Numbered(int rows, int columns) {
  std::string bytes;
  for (int row = 0; row < rows; ++row) {
    for (int col = 1; col <= columns; ++col) bytes += Bytes(static_cast<float>(1000 * row + col));
  }
  return bytes;
}

TEST_F(ReadProfiles, TablesHaveRoomForTheirRowsAndColumns) {
  struct Room {
    Cat cat;
    int capacity, columns;
  };
  const Catalogues cat = Read();
  for (const Room& room :
       {Room{Cat::HEA, 29, 11},   Room{Cat::HEB, 29, 11}, Room{Cat::HEM, 29, 11},
        Room{Cat::IPE, 20, 10},   Room{Cat::UPE, 16, 14}, Room{Cat::SHS, 116, 6},
        Room{Cat::CFSHS, 116, 7}, Room{Cat::RHS, 166, 9}, Room{Cat::CFRHS, 146, 9},
        Room{Cat::L1, 66, 11},    Room{Cat::L2, 51, 16},  Room{Cat::INP, 23, 11},
        Room{Cat::UNP, 23, 15},   Room{Cat::L3, 13, 6},   Room{Cat::HP, 48, 5},
        Room{Cat::UB, 86, 19},    Room{Cat::UC, 31, 19},  Room{Cat::UBP, 18, 19},
        Room{Cat::J, 21, 19},     Room{Cat::PFC, 18, 21}, Room{Cat::CH, 18, 22}}) {
    EXPECT_EQ(cat[room.cat].Capacity(), room.capacity) << ShapeOf(room.cat).file;
    EXPECT_EQ(cat[room.cat].Columns(), room.columns) << ShapeOf(room.cat).file;
    EXPECT_LE(ShapeOf(room.cat).rows, room.capacity) << ShapeOf(room.cat).file;
  }
}

TEST_F(ReadProfiles, FirstAndLastRowsOfTheRealFilesStandWhereTheyShould) {
  const Catalogues cat = ReadCatalogues(kData);
  EXPECT_EQ(cat[Cat::HEA](0, 1), 100);
  EXPECT_EQ(cat[Cat::HEA](0, 2), 96);
  EXPECT_EQ(cat[Cat::HEA](23, 1), 1000);
  EXPECT_EQ(cat[Cat::HEA](23, 11), 32074);
  EXPECT_EQ(cat[Cat::IPE](17, 1), 600);
  EXPECT_EQ(cat[Cat::UB](0, 3), 487);
  EXPECT_EQ(cat[Cat::UB](80, 1), 127);
  EXPECT_EQ(cat[Cat::CH](16, 22), static_cast<double>(3.33F));
}

TEST_F(ReadProfiles, EveryFileIsReadRowByRow) {
  for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
    const CatalogueShape& shape = ShapeOf(static_cast<Cat>(i));
    Write(shape.file, Numbered(shape.rows, shape.columns));
  }
  const Catalogues cat = Read();
  for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
    const auto c = static_cast<Cat>(i);
    const int last = ShapeOf(c).rows - 1;
    const int columns = ShapeOf(c).columns;
    EXPECT_EQ(cat[c](0, 1), 1) << ShapeOf(c).file;
    EXPECT_EQ(cat[c](1, 2), 1002) << ShapeOf(c).file;
    EXPECT_EQ(cat[c](last, columns), 1000 * last + columns) << ShapeOf(c).file;
  }
}

TEST_F(ReadProfiles, AMissingFolderGivesZerosWithoutAMessage) {
  ::testing::internal::CaptureStderr();
  ::testing::internal::CaptureStdout();
  const Catalogues cat = ReadCatalogues((folder_ / "nowhere").string());
  EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
  EXPECT_EQ(::testing::internal::GetCapturedStdout(), "");
  EXPECT_EQ(cat[Cat::HEA](0, 2), 0);
  EXPECT_EQ(cat[Cat::PFC](15, 21), 0);
}

TEST_F(ReadProfiles, OneMissingFileLeavesTheOthers) {
  Write("heb.dat", Numbered(24, 11));
  const Catalogues cat = Read();
  EXPECT_EQ(cat[Cat::HEA](5, 2), 0);
  EXPECT_EQ(cat[Cat::HEB](5, 2), 5002);
}

TEST_F(ReadProfiles, AFolderInTheFilesPlaceGivesZeros) {
  fs::create_directories(folder_ / "hea.dat");
  EXPECT_EQ(Read()[Cat::HEA](0, 2), 0);
}

TEST_F(ReadProfiles, ACompleteHeaFileGives24Rows) {
  Write("hea.dat", Numbered(24, 11));
  ASSERT_EQ(fs::file_size(folder_ / "hea.dat"), 1056U);
  const CatalogueTable hea = Read()[Cat::HEA];
  EXPECT_EQ(hea(23, 11), 23011);
  EXPECT_EQ(hea(24, 1), 0);
}

TEST_F(ReadProfiles, AHeaFileOneValueShortLeavesTheLastColumnOfTheLastRow0) {
  fs::copy_file(kData + "/hea.dat", folder_ / "hea.dat");
  fs::resize_file(folder_ / "hea.dat", 1052);
  const CatalogueTable cut = Read()[Cat::HEA];
  const CatalogueTable whole = ReadCatalogues(kData)[Cat::HEA];
  EXPECT_EQ(cut(23, 11), 0);
  EXPECT_GT(whole(23, 11), 0);
  for (int row = 0; row < 24; ++row) {
    for (int col = 1; col <= (row < 23 ? 11 : 10); ++col) {
      EXPECT_EQ(cut(row, col), whole(row, col)) << row << ' ' << col;
    }
  }
}

TEST_F(ReadProfiles, AValueCutInTheMiddleIsNoValue) {
  Write("hea.dat", Numbered(1, 11).substr(0, 4 * 3 + 2));
  const CatalogueTable hea = Read()[Cat::HEA];
  EXPECT_EQ(hea(0, 3), 3);
  EXPECT_EQ(hea(0, 4), 0);
}

TEST_F(ReadProfiles, RowsBehindTheListedOnesAreNotRead) {
  Write("hea.dat", Numbered(29, 11));
  const CatalogueTable hea = Read()[Cat::HEA];
  EXPECT_EQ(hea(23, 1), 23001);
  EXPECT_EQ(hea(24, 1), 0);
}

TEST_F(ReadProfiles, PileRowsAreReadAsFarAsTheTableHasRoom) {
  Write("ubp.dat", Numbered(81, 19));
  const CatalogueTable ubp = Read()[Cat::UBP];
  EXPECT_EQ(ubp.Capacity(), 18);
  EXPECT_EQ(ubp(16, 19), 16019);
  EXPECT_EQ(ubp(17, 19), 17019);
  EXPECT_THROW(ubp(18, 1), ArithmeticFault);
}

TEST_F(ReadProfiles, ValuesThatAreNotFiniteReadAs0AndRaiseNoFlag) {
  const std::uint32_t infinity = 0x7F800000U;
  const std::uint32_t minusInfinity = 0xFF800000U;
  const std::uint32_t quiet = 0x7FC00000U;
  const std::uint32_t signalling = 0x7F800001U;
  Write("hea.dat", Bytes(infinity) + Bytes(minusInfinity) + Bytes(quiet) + Bytes(signalling) +
                       Bytes(3.4028235e38F) + Bytes(-2.5F));
  const FloatWatch watch;
  const CatalogueTable hea = Read()[Cat::HEA];
  EXPECT_NO_THROW(watch.Check());
  for (int col = 1; col <= 4; ++col) EXPECT_EQ(hea(0, col), 0) << col;
  EXPECT_EQ(hea(0, 5), static_cast<double>(3.4028235e38F));
  EXPECT_EQ(hea(0, 6), -2.5);
}

TEST_F(ReadProfiles, AccessOutsideATableIsAnArithmeticFault) {
  CatalogueTable hea = Read()[Cat::HEA];
  EXPECT_THROW(hea(-1, 1), ArithmeticFault);
  EXPECT_THROW(hea(29, 1), ArithmeticFault);
  EXPECT_THROW(hea(0, 0), ArithmeticFault);
  EXPECT_THROW(hea(0, 12), ArithmeticFault);
  EXPECT_THROW(hea.Set(29, 1, 1.0F), ArithmeticFault);
  EXPECT_THROW(CatalogueTable()(0, 1), ArithmeticFault);
  EXPECT_THROW(ShapeOf(Cat::Count), ArithmeticFault);
}

TEST_F(ReadProfiles, MissingFilesAreNamed) {
  EXPECT_TRUE(MissingCatalogues(kData).empty());
  EXPECT_EQ(MissingCatalogues(folder_.string()).size(), 21U);
  for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
    const CatalogueShape& shape = ShapeOf(static_cast<Cat>(i));
    if (std::string(shape.file) != "uc.dat") Write(shape.file, "");
  }
  EXPECT_EQ(MissingCatalogues(folder_.string()), std::vector<std::string>{"uc.dat"});
}

}  // namespace
}  // namespace korvane
