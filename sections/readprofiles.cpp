// SPDX-License-Identifier: GPL-3.0-or-later
// Reads the binary catalogue files of rolled sections into their tables.
#include "sections/readprofiles.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <filesystem>
#include <string>
#include <system_error>

#include "core/file_path.h"
#include "core/files.h"

namespace korvane {
namespace {

constexpr std::size_t kCatalogues = static_cast<std::size_t>(Cat::Count);
constexpr std::size_t kBytesPerValue = 4;

// In the order of Cat.
constexpr std::array<CatalogueShape, kCatalogues> kShapes{{
    {"hea.dat", 24, 11, 29},     // number h b tf tw r A Iy Iz Ix Iw
    {"heb.dat", 24, 11, 29},     //
    {"hem.dat", 24, 11, 29},     //
    {"ipe.dat", 18, 10, 20},     // h b tf tw r A Iy Iz Ix Iw
    {"upe.dat", 14, 14, 16},     // h b tw tf r e es+e A Iy Iz Wply Wplz Ix Iw
    {"shs.dat", 101, 6, 116},    // side t A I Wpl Ix
    {"rhs.dat", 158, 9, 166},    // h b t A Iy Iz Wply Wplz Ix
    {"cfshs.dat", 99, 7, 116},   // h b t A I Wpl Ix
    {"cfrhs.dat", 116, 9, 146},  // as rhs.dat
    {"l1.dat", 60, 11, 66},      // leg t r A e v1 u1 u2 Iy Iu Iv
    {"l2.dat", 49, 16, 51},      // h b t r A ez ey v3 v1 u2 u3 tan(alfa) Iy Iz Iu Iv
    {"inp.dat", 21, 11, 23},     // h b tf tw A Iy Wply Iz Wplz Ix Iw
    {"unp.dat", 16, 15, 23},     // h b tw tf r1 r2 e es+e A Iy Iz Ix Iw Wply Wplz
    {"l3.dat", 11, 6, 13},       // h b tw tf r1 r2
    {"hp.dat", 47, 5, 48},       // h tw bulb r A
    {"ub.dat", 81, 19, 86},      // three numbers, S h b tw tf r A g, six of bending, Ix Iw
    {"ubp.dat", 17, 19, 18},     // as ub.dat
    {"uc.dat", 31, 19, 31},      // as ub.dat
    {"j.dat", 13, 19, 21},       // as ub.dat
    {"ch.dat", 17, 22, 18},      // as pfc.dat with the toe radius after r
    {"pfc.dat", 16, 21, 18},     // as ub.dat, then e es+e
}};

// ubp.dat is read like ub.dat over this many rows. Its table is far smaller, so that surplus
// rows of a longer file end where the table does.
constexpr int kUbpRowsRead = 81;

int RowsRead(Cat cat) {
  const CatalogueShape& shape = ShapeOf(cat);
  return std::min(cat == Cat::UBP ? kUbpRowsRead : shape.rows, shape.capacity);
}

std::string PathOf(const std::string& folder, Cat cat) {
  return folder.empty() || folder.back() == '/' ? folder + ShapeOf(cat).file
                                                : folder + '/' + ShapeOf(cat).file;
}

// The value of four bytes, lowest byte first on every machine. What is not finite reads as 0;
// the exponent bits tell, so that no floating-point flag comes up.
float Value(const char* bytes) {
  constexpr std::uint32_t exponent = 0x7F800000U;
  std::uint32_t bits = 0;
  for (std::size_t i = 0; i < kBytesPerValue; ++i) {
    bits |= std::uint32_t{static_cast<unsigned char>(bytes[i])} << (8 * i);
  }
  return (bits & exponent) == exponent ? 0.0F : std::bit_cast<float>(bits);
}

CatalogueTable ReadTable(const std::string& folder, Cat cat) {
  const CatalogueShape& shape = ShapeOf(cat);
  CatalogueTable table(shape.capacity, shape.columns);
  const auto bytes = ReadWholeFile(PathOf(folder, cat));
  if (!bytes) return table;
  // An incomplete value at the end of a cut file is no value.
  const auto rows = static_cast<std::size_t>(RowsRead(cat));
  const std::span<float> values = table.Values();
  const std::size_t count =
      std::min(rows * static_cast<std::size_t>(shape.columns), bytes->size() / kBytesPerValue);
  for (std::size_t i = 0; i < count; ++i) values[i] = Value(bytes->data() + i * kBytesPerValue);
  return table;
}

}  // namespace

const CatalogueShape& ShapeOf(Cat cat) {
  const auto i = static_cast<std::size_t>(cat);
  if (i >= kCatalogues) throw ArithmeticFault("index out of range");
  return kShapes[i];
}

std::size_t CatalogueTable::Slot(int row, int col) const {
  const std::size_t slot = static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
                           static_cast<std::size_t>(col - 1);
  if (row < 0 || col < 1 || col > columns_ || slot >= values_.size()) {
    throw ArithmeticFault("index out of range");
  }
  return slot;
}

double CatalogueTable::operator()(int row, int col) const {
  return static_cast<double>(values_[Slot(row, col)]);
}

void CatalogueTable::Set(int row, int col, float v) {
  values_[Slot(row, col)] = v;
}

Catalogues ReadCatalogues(const std::string& folder) {
  Catalogues cat;
  for (std::size_t i = 0; i < kCatalogues; ++i) {
    cat.tables[i] = ReadTable(folder, static_cast<Cat>(i));
  }
  return cat;
}

std::vector<std::string> MissingCatalogues(const std::string& folder) {
  std::vector<std::string> missing;
  for (std::size_t i = 0; i < kCatalogues; ++i) {
    const auto cat = static_cast<Cat>(i);
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(FilePath(PathOf(folder, cat)), ignored)) {
      missing.emplace_back(ShapeOf(cat).file);
    }
  }
  return missing;
}

}  // namespace korvane
