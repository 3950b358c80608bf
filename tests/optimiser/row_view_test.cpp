// SPDX-License-Identifier: GPL-3.0-or-later
// The five fields of an optimiser's row.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "optimiser/optimize.h"

namespace korvane {
namespace {

/// A library whose catalogue rows 3 hold 31, 32.5 and 33 in their first columns, the HE tables
/// and IPE the small numbers of a name.
std::shared_ptr<const Library> NumberedLibrary() {
  auto library = std::make_shared<Library>();
  for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
    const CatalogueShape& shape = ShapeOf(static_cast<Cat>(i));
    CatalogueTable table(shape.capacity, shape.columns);
    table.Set(3, 1, 31.0F);
    table.Set(3, 2, 32.5F);
    table.Set(3, 3, 33.0F);
    table.Set(4, 1, 8.0F);
    library->catalogues.tables[static_cast<std::size_t>(i)] = table;
  }
  return library;
}

Design Shown() {
  Design design(NumberedLibrary());
  for (const OptimiserRow& row : AllOptimiserRows()) design.st.*row.index = 3;
  design.rec.S = 7.25;
  design.rec.g = 0.568;
  design.rec.Iy = 2.0e7;
  design.deflections.DeflStiff = 2.0e8;
  design.st.L = 5.0;
  design.checks.IRsection = 0.775;
  return design;
}

TEST(RowView, NamesOfTheRows) {
  const std::vector<std::string> names{"HEA31",
                                       "HEB31",
                                       "HEM31",
                                       "IPE31",
                                       "UPE31",
                                       "RHS  31x 31x 32.5",
                                       "RHS 31x 32.5x 33",
                                       "CHRHS 31x 32.5x 33",
                                       "CFRHS 31x 32.5x 33",
                                       "L  31x 31x 32.5",
                                       "L  31x 32.5x 33"};
  const Design design = Shown();
  OptimiserResults results;
  for (int row = 1; row <= kOptimiserRows; ++row)
    EXPECT_EQ(ShowRow(design, row, results).name, names.at(static_cast<std::size_t>(row - 1)));
}

TEST(RowView, ASmallNumberHasTwoDigits) {
  Design design = Shown();
  design.st.idxHEA = 4;
  OptimiserResults results;
  EXPECT_EQ(ShowRow(design, 1, results).name, "HEA08");
}

TEST(RowView, ASizeOutsideItsTableIsAnIndexFailure) {
  Design design = Shown();
  design.st.idxHEA = 4000;
  OptimiserResults results;
  EXPECT_THROW(ShowRow(design, 1, results), ArithmeticFault);
}

TEST(RowView, FiguresOfTheLastRecalculation) {
  const Design design = Shown();
  OptimiserResults results;
  results.BestIR[2] = 0.456;
  const OptimiserRowView view = ShowRow(design, 2, results);
  EXPECT_EQ(view.weight, "07.3");
  EXPECT_EQ(view.surface, "0.57");
  EXPECT_EQ(view.ir, "0.46");
  EXPECT_EQ(view.deflection, "L/500");
  EXPECT_EQ(view.S, 7.25);
  EXPECT_FLOAT_EQ(static_cast<float>(view.g), 0.568F);
  EXPECT_FLOAT_EQ(static_cast<float>(view.IR), 0.456F);
}

TEST(RowView, DeflectionHasNoSign) {
  Design design = Shown();
  design.deflections.DeflStiff = -2.0e8;
  OptimiserResults results;
  EXPECT_EQ(ShowRow(design, 1, results).deflection, "L/500");
  design.deflections.DeflStiff = 0.0;
  EXPECT_EQ(ShowRow(design, 1, results).deflection, "No load");
}

TEST(RowView, Rows6To11TakeTheRatioOfTheLastRecalculation) {
  const Design design = Shown();
  for (int row = 1; row <= kOptimiserRows; ++row) {
    OptimiserResults results;
    results.BestIR[row] = 0.25;
    EXPECT_EQ(ShowRow(design, row, results).ir, row >= 6 ? "0.78" : "0.25") << row;
    EXPECT_FLOAT_EQ(results.BestIR[row].Single(), row >= 6 ? 0.775F : 0.25F) << row;
  }
}

}  // namespace
}  // namespace korvane
