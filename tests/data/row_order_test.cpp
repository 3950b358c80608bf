// SPDX-License-Identifier: GPL-3.0-or-later
// Sanity of all catalogue rows: nothing empty, names unique and in order, sizes that grow.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "tests/data/row_check.h"

namespace korvane::testing {
namespace {

constexpr int kFiles = static_cast<int>(Cat::Count);

bool British(Cat cat) {
  return cat == Cat::UB || cat == Cat::UBP || cat == Cat::UC || cat == Cat::J || cat == Cat::CH ||
         cat == Cat::PFC;
}

// Columns of the figures that tell the rows of a family apart.
int NameColumns(Cat cat) {
  switch (cat) {
    case Cat::SHS:
    case Cat::L1:
    case Cat::HP:
      return 2;
    case Cat::L3:
      return 4;
    case Cat::RHS:
    case Cat::CFSHS:
    case Cat::CFRHS:
    case Cat::L2:
      return 3;
    default:
      return British(cat) ? 3 : 1;
  }
}

std::vector<double> NameOf(Cat cat, int row) {
  std::vector<double> name;
  for (int col = 1; col <= NameColumns(cat); ++col) name.push_back(Data()[cat](row, col));
  return name;
}

class EveryCatalogue : public ::testing::TestWithParam<int> {
protected:
  Cat cat() const { return static_cast<Cat>(GetParam()); }
};

TEST_P(EveryCatalogue, HasOnlyPositiveFigures) {
  for (int row = 0; row < ShapeOf(cat()).rows; ++row) {
    for (int col = 1; col <= ShapeOf(cat()).columns; ++col) {
      EXPECT_GT(Data()[cat()](row, col), 0) << "row " << row << ", column " << col;
    }
  }
}

TEST_P(EveryCatalogue, IsEmptyBehindItsLastRow) {
  for (int row = ShapeOf(cat()).rows; row < ShapeOf(cat()).capacity; ++row) {
    for (int col = 1; col <= ShapeOf(cat()).columns; ++col) {
      EXPECT_EQ(Data()[cat()](row, col), 0) << "row " << row << ", column " << col;
    }
  }
}

TEST_P(EveryCatalogue, HasUniqueNamesInOrder) {
  for (int row = 1; row < ShapeOf(cat()).rows; ++row) {
    const auto before = NameOf(cat(), row - 1);
    const auto name = NameOf(cat(), row);
    EXPECT_TRUE(British(cat()) ? name < before : name > before) << "row " << row;
  }
}

INSTANTIATE_TEST_SUITE_P(Files, EveryCatalogue, ::testing::Range(0, kFiles), [](const auto& i) {
  const std::string file = ShapeOf(static_cast<Cat>(i.param)).file;
  return file.substr(0, file.find('.'));
});

TEST(CatalogueRows, EuropeanSizesGrowInHeightAreaAndStiffness) {
  struct Columns {
    Cat cat;
    int h, A, Iy;
  };
  for (const Columns& c :
       {Columns{Cat::HEA, 2, 7, 8}, Columns{Cat::HEB, 2, 7, 8}, Columns{Cat::HEM, 2, 7, 8},
        Columns{Cat::IPE, 1, 6, 7}, Columns{Cat::UPE, 1, 8, 9}, Columns{Cat::INP, 1, 5, 6},
        Columns{Cat::UNP, 1, 9, 10}}) {
    const CatalogueTable& t = Data()[c.cat];
    for (int row = 1; row < ShapeOf(c.cat).rows; ++row) {
      SCOPED_TRACE(ShapeOf(c.cat).file + RowName(c.cat, row, 1, 1));
      EXPECT_GT(t(row, c.h), t(row - 1, c.h));
      EXPECT_GT(t(row, c.A), t(row - 1, c.A));
      EXPECT_GT(t(row, c.Iy), t(row - 1, c.Iy));
    }
  }
}

TEST(CatalogueRows, WideFlangeSeriesHaveTheSizesOfTheStandard) {
  const std::vector<int> sizes{100, 120, 140, 160, 180, 200, 220, 240, 260, 280, 300, 320,
                               340, 360, 400, 450, 500, 550, 600, 650, 700, 800, 900, 1000};
  for (const Cat cat : {Cat::HEA, Cat::HEB, Cat::HEM}) {
    for (int row = 0; row < ShapeOf(cat).rows; ++row) {
      EXPECT_EQ(Data()[cat](row, 1), sizes.at(static_cast<std::size_t>(row))) << ShapeOf(cat).file;
    }
  }
}

TEST(CatalogueRows, BritishSerialSizesAreNearTheDimensions) {
  // Heavy sizes outgrow the serial height by up to a third, the width by 7 %; the
  // lightest of 1016x305 stays 5 % below it.
  for (const Cat cat : {Cat::UB, Cat::UBP, Cat::UC, Cat::J, Cat::CH, Cat::PFC}) {
    const CatalogueTable& t = Data()[cat];
    for (int row = 0; row < ShapeOf(cat).rows; ++row) {
      SCOPED_TRACE(ShapeOf(cat).file + RowName(cat, row, 1, 3));
      EXPECT_GT(t(row, 5), 0.95 * t(row, 1));
      EXPECT_LT(t(row, 5), 1.35 * t(row, 1));
      EXPECT_NEAR(t(row, 6), t(row, 2), 0.07 * t(row, 2));
    }
  }
}

TEST(CatalogueRows, BritishNamesEndWithTheRoundedWeight) {
  for (const Cat cat : {Cat::UB, Cat::UBP, Cat::UC, Cat::J, Cat::CH, Cat::PFC}) {
    for (int row = 0; row < ShapeOf(cat).rows; ++row) {
      SCOPED_TRACE(ShapeOf(cat).file + RowName(cat, row, 1, 3));
      EXPECT_NEAR(Data()[cat](row, 3), Data()[cat](row, 4), 0.6);
    }
  }
}

TEST(CatalogueRows, BritishSizesAreHeavierWhenTheyAreLargerInOneSerialSize) {
  for (const Cat cat : {Cat::UB, Cat::UBP, Cat::UC}) {
    const CatalogueTable& t = Data()[cat];
    for (int row = 1; row < ShapeOf(cat).rows; ++row) {
      if (t(row, 1) != t(row - 1, 1) || t(row, 2) != t(row - 1, 2)) continue;
      SCOPED_TRACE(ShapeOf(cat).file + RowName(cat, row, 1, 3));
      for (const int col : {4, 5, 8, 10, 12, 14, 15}) {  // S h tf A Iy Wply Iz
        EXPECT_LT(t(row, col), t(row - 1, col)) << "column " << col;
      }
    }
  }
}

TEST(CatalogueRows, TheWebFitsBetweenTheFlanges) {
  struct Columns {
    Cat cat;
    int h, tf, r;
  };
  for (const Columns& c :
       {Columns{Cat::HEA, 2, 4, 6}, Columns{Cat::HEB, 2, 4, 6}, Columns{Cat::HEM, 2, 4, 6},
        Columns{Cat::IPE, 1, 3, 5}, Columns{Cat::UPE, 1, 4, 5}, Columns{Cat::INP, 1, 3, 4},
        Columns{Cat::UNP, 1, 4, 5}, Columns{Cat::UB, 5, 8, 9}, Columns{Cat::UBP, 5, 8, 9},
        Columns{Cat::UC, 5, 8, 9}, Columns{Cat::J, 5, 8, 9}, Columns{Cat::CH, 5, 8, 9},
        Columns{Cat::PFC, 5, 8, 9}}) {
    for (int row = 0; row < ShapeOf(c.cat).rows; ++row) {
      const CatalogueTable& t = Data()[c.cat];
      EXPECT_GT(t(row, c.h), 2 * (t(row, c.tf) + t(row, c.r)))
          << ShapeOf(c.cat).file << " row " << row;
    }
  }
}

}  // namespace
}  // namespace korvane::testing
