// SPDX-License-Identifier: GPL-3.0-or-later
// Turns the readable section tables into the binary catalogue files and the material list.
#include "tools/catalogue_maker.h"

#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string_view>
#include <system_error>

#include "sections/readprofiles.h"

namespace korvane {
namespace {

using Fields = std::vector<std::string>;

constexpr const char* kH =
    "number,h [mm],b [mm],tf [mm],tw [mm],r [mm],A [mm2],Iy [1E6 mm4],Iz [1E6 mm4],"
    "Ix [1E6 mm4],Iw [1E9 mm6]";
constexpr const char* kHollow =
    "h [mm],b [mm],t [mm],A [cm2],Iy [cm4],Iz [cm4],Wply [cm3],Wplz [cm3],Ix [cm4]";
constexpr const char* kBritish =
    "number 1,number 2,number 3,S [kg/m],h [mm],b [mm],tw [mm],tf [mm],r [mm],A [cm2],"
    "g [m2/m],Iy [cm4],Wely [cm3],Wply [cm3],Iz [cm4],Welz [cm3],Wplz [cm3],Ix [cm4],"
    "Iw [1E9 mm6]";

// The headings of the tables in the order of Cat: what stands where, and in which unit.
constexpr std::array<const char*, static_cast<std::size_t>(Cat::Count)> kHeadings{
    kH,
    kH,
    kH,
    "h [mm],b [mm],tf [mm],tw [mm],r [mm],A [mm2],Iy [1E6 mm4],Iz [1E6 mm4],Ix [1E6 mm4],"
    "Iw [1E9 mm6]",
    "h [mm],b [mm],tw [mm],tf [mm],r [mm],e [mm],es + e [mm],A [mm2],Iy [cm4],Iz [cm4],"
    "Wply [cm3],Wplz [cm3],Ix [1E3 mm4],Iw [1E9 mm6]",
    "side [mm],t [mm],A [cm2],I [cm4],Wpl [cm3],Ix [cm4]",
    kHollow,
    "h [mm],b [mm],t [mm],A [cm2],I [cm4],Wpl [cm3],Ix [cm4]",
    kHollow,
    "leg [mm],t [mm],r [mm],A [mm2],e [mm],v1 [mm],u1 [mm],u2 [mm],Iy [cm4],Iu [cm4],Iv [cm4]",
    "h [mm],b [mm],t [mm],r [mm],A [mm2],ez [mm],ey [mm],v3 [mm],v1 [mm],u2 [mm],u3 [mm],"
    "tan alfa,Iy [cm4],Iz [cm4],Iu [cm4],Iv [cm4]",
    "h [mm],b [mm],tf [mm],tw [mm],A [1E3 mm2],Iy [1E6 mm4],Wply [cm3],Iz [1E6 mm4],"
    "Wplz [cm3],Ix [1E3 mm4],Iw [1E9 mm6]",
    "h [mm],b [mm],tw [mm],tf [mm],r1 [mm],r2 [mm],e [mm],es + e [mm],A [mm2],Iy [cm4],"
    "Iz [cm4],Ix [1E6 mm4],Iw [1E9 mm6],Wply [cm3],Wplz [cm3]",
    "h [mm],b [mm],tw [mm],tf [mm],r1 [mm],r2 [mm]",
    "h [mm],tw [mm],bulb [mm],r [mm],A [cm2]",
    kBritish,
    kBritish,
    kBritish,
    kBritish,
    "number 1,number 2,number 3,S [kg/m],h [mm],b [mm],tw [mm],tf [mm],r [mm],r2 [mm],A [cm2],"
    "g [m2/m],Iy [cm4],Wely [cm3],Wply [cm3],Iz [cm4],Welz [cm3],Wplz [cm3],Ix [cm4],"
    "Iw [1E9 mm6],e [cm],es + e [cm]",
    "number 1,number 2,number 3,S [kg/m],h [mm],b [mm],tw [mm],tf [mm],r [mm],A [cm2],"
    "g [m2/m],Iy [cm4],Wely [cm3],Wply [cm3],Iz [cm4],Welz [cm3],Wplz [cm3],Ix [cm4],"
    "Iw [1E9 mm6],e [cm],es + e [cm]",
};

constexpr const char* kMaterialTable = "nsmat.csv";
constexpr const char* kMaterialFile = "NSmat.dat";
constexpr const char* kMaterialHeading = "name,fy t <= 40 mm [MPa],fy t > 40 mm [MPa]";
constexpr std::size_t kMaterialRows = 31;  // rows the program has room for

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t\r";
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

Fields Split(std::string_view line) {
  Fields fields;
  for (;;) {
    const auto comma = line.find(',');
    fields.emplace_back(Trimmed(line.substr(0, comma)));
    if (comma == std::string_view::npos) return fields;
    line.remove_prefix(comma + 1);
  }
}

// One source table; every complaint names its file and line.
class SourceTable {
public:
  SourceTable(const std::filesystem::path& folder, const std::string& name) : name_(name) {
    std::ifstream in(folder / name, std::ios::binary);
    if (!in) throw CatalogueError(name + ": can't be read in " + folder.string());
    std::string line;
    for (int number = 1; std::getline(in, line); ++number) {
      const std::string_view text = Trimmed(line);
      if (text.empty() || text.front() == '#') continue;
      lines_.push_back(number);
      rows_.push_back(Split(text));
    }
    if (in.bad()) throw CatalogueError(name + ": reading failed");
    if (rows_.empty()) throw CatalogueError(name + ": is empty");
  }

  void CheckHeading(const char* heading) const {
    const Fields expected = Split(heading);
    CheckColumns(0, expected.size());
    for (std::size_t i = 0; i < expected.size(); ++i) {
      if (rows_[0][i] != expected[i]) {
        Fail(0, "column " + std::to_string(i + 1) + " is headed \"" + rows_[0][i] +
                    "\", expected \"" + expected[i] + "\"");
      }
    }
  }

  /// Rows of figures, numbered from 1: row 0 is the heading.
  std::size_t Rows() const { return rows_.size() - 1; }
  const Fields& Row(std::size_t row) const { return rows_[row]; }

  void CheckColumns(std::size_t row, std::size_t columns) const {
    if (rows_[row].size() != columns) {
      Fail(row,
           std::to_string(rows_[row].size()) + " columns, expected " + std::to_string(columns));
    }
  }

  float Number(std::size_t row, std::size_t column) const {
    const std::string& text = rows_[row][column];
    float value = 0.0F;
    const char* end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (error != std::errc() || stop != end || !std::isfinite(value)) {
      Fail(row, "column " + std::to_string(column + 1) + ": \"" + text + "\" is no number");
    }
    return value;
  }

  [[noreturn]] void Fail(std::size_t row, const std::string& what) const {
    throw CatalogueError(name_ + ", line " + std::to_string(lines_[row]) + ": " + what);
  }
  [[noreturn]] void Fail(const std::string& what) const {
    throw CatalogueError(name_ + ": " + what);
  }

private:
  std::string name_;
  std::vector<int> lines_;
  std::vector<Fields> rows_;
};

// Four bytes, lowest first on every machine.
void AppendBytes(std::string& bytes, float value) {
  const auto bits = std::bit_cast<std::uint32_t>(value);
  for (int shift = 0; shift < 32; shift += 8) {
    bytes.push_back(static_cast<char>(static_cast<unsigned char>((bits >> shift) & 0xFFU)));
  }
}

DataFile MakeCatalogue(const std::filesystem::path& source, Cat cat) {
  const CatalogueShape& shape = ShapeOf(cat);
  const auto rows = static_cast<std::size_t>(shape.rows);
  const auto columns = static_cast<std::size_t>(shape.columns);
  const SourceTable table(source, std::filesystem::path(shape.file).stem().string() + ".csv");
  table.CheckColumns(0, columns);
  table.CheckHeading(kHeadings[static_cast<std::size_t>(cat)]);
  if (table.Rows() != rows) {
    table.Fail(std::to_string(table.Rows()) + " rows, expected " + std::to_string(rows));
  }
  DataFile file{shape.file, {}};
  for (std::size_t row = 1; row <= rows; ++row) {
    table.CheckColumns(row, columns);
    for (std::size_t column = 0; column < columns; ++column) {
      AppendBytes(file.bytes, table.Number(row, column));
    }
  }
  return file;
}

// The shortest digits that read back to the same value.
std::string Digits(float value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

DataFile MakeMaterials(const std::filesystem::path& source) {
  const SourceTable table(source, kMaterialTable);
  table.CheckHeading(kMaterialHeading);
  if (table.Rows() < 1 || table.Rows() > kMaterialRows) {
    table.Fail(std::to_string(table.Rows()) + " rows, expected 1 to " +
               std::to_string(kMaterialRows));
  }
  DataFile file{kMaterialFile, {}};
  for (std::size_t row = 1; row <= table.Rows(); ++row) {
    table.CheckColumns(row, 3);
    const std::string& name = table.Row(row)[0];
    if (name.empty() || name.find('"') != std::string::npos) {
      table.Fail(row, "a name is needed, without quotation marks");
    }
    const float thin = table.Number(row, 1);
    const float thick = table.Number(row, 2);
    // The last row is the free entry, whose figures nobody uses.
    if (row < table.Rows() && !(thin > 0 && thick > 0)) {
      table.Fail(row, "the yield stresses must be above 0");
    }
    file.bytes += '"' + name + "\"," + Digits(thin) + ',' + Digits(thick) + "\r\n";
  }
  return file;
}

}  // namespace

std::vector<DataFile> MakeDataFiles(const std::filesystem::path& source) {
  std::vector<DataFile> files;
  for (int i = 0; i < static_cast<int>(Cat::Count); ++i) {
    files.push_back(MakeCatalogue(source, static_cast<Cat>(i)));
  }
  files.push_back(MakeMaterials(source));
  return files;
}

void WriteDataFiles(const std::vector<DataFile>& files, const std::filesystem::path& target) {
  std::error_code error;
  std::filesystem::create_directories(target, error);
  if (error) throw CatalogueError(target.string() + ": " + error.message());
  for (const DataFile& file : files) {
    std::ofstream out(target / file.name, std::ios::binary | std::ios::trunc);
    out.write(file.bytes.data(), static_cast<std::streamsize>(file.bytes.size()));
    out.close();
    if (!out) throw CatalogueError((target / file.name).string() + ": can't be written");
  }
}

}  // namespace korvane
