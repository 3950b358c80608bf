// SPDX-License-Identifier: GPL-3.0-or-later
// The catalogues of rolled sections: 21 binary tables, read once and shared read-only.
#pragma once

#include <array>
#include <span>
#include <string>
#include <vector>

#include "core/numeric.h"

namespace korvane {

/// The catalogue files, in the order in which they are read.
enum class Cat {
  HEA,
  HEB,
  HEM,
  IPE,
  UPE,
  SHS,
  RHS,
  CFSHS,
  CFRHS,
  L1,
  L2,
  INP,
  UNP,
  L3,
  HP,
  UB,
  UBP,
  UC,
  J,
  CH,
  PFC,
  Count
};

/// Shape of one catalogue file: little-endian 32-bit floats, row after row, nothing else.
struct CatalogueShape {
  const char* file;  ///< "hea.dat"
  int rows;          ///< rows listed
  int columns;       ///< columns of a row, numbered from 1
  int capacity;      ///< rows that the table has room for
};

/// The table of the 21 files.
const CatalogueShape& ShapeOf(Cat cat);

/// One catalogue in memory. Rows from 0, columns from 1; what the file does not hold is 0.
class CatalogueTable {
public:
  CatalogueTable() = default;
  CatalogueTable(int capacity, int columns)
      : columns_(columns), values_(static_cast<std::size_t>(capacity) * columns, 0.0F) {}
  /// The file's number; throws ArithmeticFault outside the table.
  double operator()(int row, int col) const;
  /// Writes one number; throws ArithmeticFault outside the table.
  void Set(int row, int col, float v);
  /// All numbers, row after row.
  std::span<float> Values() { return values_; }
  /// Rows that there is room for.
  int Capacity() const { return columns_ ? static_cast<int>(values_.size()) / columns_ : 0; }
  int Columns() const { return columns_; }

private:
  std::size_t Slot(int row, int col) const;
  int columns_ = 0;
  std::vector<float> values_;
};

/// All catalogues.
struct Catalogues {
  std::array<CatalogueTable, static_cast<std::size_t>(Cat::Count)> tables;
  const CatalogueTable& operator[](Cat c) const { return tables[static_cast<std::size_t>(c)]; }
};

/// Reads all catalogue files of the folder. A missing or short file gives no message: what was
/// not read stays 0. Values that are not finite read as 0.
Catalogues ReadCatalogues(const std::string& folder);

/// Names of the catalogue files that the folder lacks.
std::vector<std::string> MissingCatalogues(const std::string& folder);

}  // namespace korvane
