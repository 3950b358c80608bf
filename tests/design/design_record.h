// SPDX-License-Identifier: GPL-3.0-or-later
// The stored results of seeded random members: which figures a row holds, how a design becomes
// a row, and how two rows are compared.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <sstream>
#include <string>
#include <vector>

#include "designs.h"
#include "random_runs.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"

namespace korvane::record {

/// Members of each family in the record.
inline constexpr int kDesignsPerFamily = 32;
/// The seeds of a family begin here; far from those of the other tests.
inline constexpr unsigned kFirstSeed = 50'000'000;

/// A figure of the record. Figures of one group share their scale: a shear of 1E-12 kN beside
/// one of 100 kN is rounding and no result.
struct Column {
  const char* name;
  int group;
  double (*read)(const Design&);
};

enum Group { kOwn = 0, kMy, kVz, kMz, kVy, kDeflZ, kDeflY };

/// All fields of the section record in one figure: each by its place and its order of magnitude,
/// so that a change of any one of them shows.
inline double SectionSumOf(const Design& d) {
  double sum = 0;
  int place = 0;
  ForEachSectionField(d.rec, [&](const char*, const auto& value) {
    sum += (1 + ++place % 7) * std::asinh(static_cast<double>(value));
  });
  return sum;
}

// clang-format off
inline const std::vector<Column>& Columns() {
  using D = const Design&;
  static const std::vector<Column> columns{
      {"N", kOwn, [](D d) -> double { return d.forces.N; }},
      {"My_max", kMy, [](D d) -> double { return d.beam.z.M_max; }},
      {"My_min", kMy, [](D d) -> double { return d.beam.z.M_min; }},
      {"My_q0", kMy, [](D d) -> double { return d.beam.z.M_q[0]; }},
      {"My_q1", kMy, [](D d) -> double { return d.beam.z.M_q[1]; }},
      {"My_q2", kMy, [](D d) -> double { return d.beam.z.M_q[2]; }},
      {"Vz_max", kVz, [](D d) -> double { return d.beam.z.V_max; }},
      {"Vz_min", kVz, [](D d) -> double { return d.beam.z.V_min; }},
      {"Mz_max", kMz, [](D d) -> double { return d.beam.y.M_max; }},
      {"Mz_min", kMz, [](D d) -> double { return d.beam.y.M_min; }},
      {"Mz_q3", kMz, [](D d) -> double { return d.beam.y.M_q[3]; }},
      {"Vy_max", kVy, [](D d) -> double { return d.beam.y.V_max; }},
      {"Vy_min", kVy, [](D d) -> double { return d.beam.y.V_min; }},
      {"betaMy", kOwn, [](D d) -> double { return d.beam.betaMy; }},
      {"betaMz", kOwn, [](D d) -> double { return d.beam.betaMz; }},
      {"A", kOwn, [](D d) -> double { return d.rec.A; }},
      {"Iy", kOwn, [](D d) -> double { return d.rec.Iy; }},
      {"Weffy", kOwn, [](D d) -> double { return d.rec.Weffy; }},
      {"section", kOwn, SectionSumOf},
      {"class", kOwn, [](D d) -> double { return d.checks.ClassGoverning; }},
      {"IRsection", kOwn, [](D d) -> double { return d.checks.IRsection; }},
      {"IRvz", kOwn, [](D d) -> double { return d.checks.IRvz; }},
      {"IRvy", kOwn, [](D d) -> double { return d.checks.IRvy; }},
      {"IRlateral", kOwn, [](D d) -> double { return d.checks.IRlateral; }},
      {"IRny", kOwn, [](D d) -> double { return d.checks.IRny; }},
      {"IRnz", kOwn, [](D d) -> double { return d.checks.IRnz; }},
      {"IRcombinedY", kOwn, [](D d) -> double { return d.checks.IRcombinedY; }},
      {"IRcombinedZ", kOwn, [](D d) -> double { return d.checks.IRcombinedZ; }},
      {"Mcr", kOwn, [](D d) -> double { return d.ltb.Mcr; }},
      {"Mdb_min", kOwn, [](D d) -> double { return d.ltb.Mdb_min; }},
      {"DeflZ_max", kDeflZ, [](D d) -> double { return d.deflections.DeflZ_max; }},
      {"DeflZ_min", kDeflZ, [](D d) -> double { return d.deflections.DeflZ_min; }},
      {"DeflY_max", kDeflY, [](D d) -> double { return d.deflections.DeflY_max; }},
      {"DeflY_min", kDeflY, [](D d) -> double { return d.deflections.DeflY_min; }},
      {"ModalFreq", kOwn, [](D d) -> double { return d.modal.ModalFreq[1]; }},
  };
  return columns;
}
// clang-format on

/// The result lines whose texts a row holds, as a hash of 32 bits each.
inline constexpr std::array<CheckLine CheckResults::*, 7> kLines{
    &CheckResults::lineSection,    &CheckResults::lineVz,        &CheckResults::lineVy,
    &CheckResults::lineLateral,    &CheckResults::lineBucklingY, &CheckResults::lineBucklingZ,
    &CheckResults::lineSlenderness};
inline constexpr std::array<const char*, 7> kLineNames{
    "textSection",   "textVz",        "textVy",         "textLateral",
    "textBucklingY", "textBucklingZ", "textSlenderness"};

/// One member's results. A calculation that stopped has the name of its step and nothing else.
struct Row {
  int family = 0;
  unsigned seed = 0;
  std::string fault;
  std::vector<double> figures;
  std::vector<std::uint32_t> texts;
};

/// All texts of a line and its colour, folded (FNV-1a).
inline std::uint32_t TextHash(const CheckLine& line) {
  std::uint32_t hash = 2166136261U;
  for (const std::string& text : {line.label, line.formula, line.numbers, line.value, line.limit,
                                  std::to_string(line.colour)}) {
    for (const char c : text + '\n') hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  }
  return hash;
}

inline Row RowOf(int family, unsigned seed) {
  Row row{family, seed, {}, {}, {}};
  Design d(SourceLibrary());
  if (const auto fault = RunDesign(d, seed, family)) {
    row.fault = *fault;
    return row;
  }
  for (const Column& column : Columns()) row.figures.push_back(column.read(d));
  for (const auto line : kLines) row.texts.push_back(TextHash(d.checks.*line));
  return row;
}

inline std::string Header() {
  std::string text = "family,seed,fault";
  for (const Column& column : Columns()) text += std::string(",") + column.name;
  for (const char* name : kLineNames) text += std::string(",") + name;
  return text;
}

inline std::string TextOf(const Row& row) {
  std::string text = std::to_string(row.family) + "," + std::to_string(row.seed) + "," + row.fault;
  char word[40];
  for (const double figure : row.figures) {
    std::snprintf(word, sizeof word, ",%.9g", figure);
    text += word;
  }
  for (const std::uint32_t hash : row.texts) {
    std::snprintf(word, sizeof word, ",%x", static_cast<unsigned>(hash));
    text += word;
  }
  return text;
}

inline Row RowFrom(const std::string& text) {
  Row row;
  std::istringstream words(text);
  std::string word;
  const auto next = [&] { return static_cast<bool>(std::getline(words, word, ',')); };
  if (next()) row.family = std::atoi(word.c_str());
  if (next()) row.seed = static_cast<unsigned>(std::strtoul(word.c_str(), nullptr, 10));
  if (next()) row.fault = word;
  for (std::size_t i = 0; i < Columns().size() && next(); ++i) {
    row.figures.push_back(std::strtod(word.c_str(), nullptr));
  }
  while (next()) {
    row.texts.push_back(static_cast<std::uint32_t>(std::strtoul(word.c_str(), nullptr, 16)));
  }
  return row;
}

/// Calls visit(family, seed) for every member of the record.
template <class Visit>
void ForEachMember(Visit&& visit) {
  for (const Family& family : AllFamilies()) {
    for (int i = 0; i < kDesignsPerFamily; ++i) {
      const int number = 1000 * family.code + i;
      visit(family.code, kFirstSeed + static_cast<unsigned>(number));
    }
  }
}

/// What differs by more than a millionth: the names of the figures and texts, empty when none.
inline std::string Differences(const Row& before, const Row& now) {
  if (before.fault != now.fault) return "fault " + before.fault + " -> " + now.fault;
  if (before.figures.size() != now.figures.size() || before.texts.size() != now.texts.size()) {
    return "another number of columns";
  }
  const std::vector<Column>& columns = Columns();
  std::string names;
  for (std::size_t i = 0; i < now.figures.size(); ++i) {
    double scale = 0;
    for (std::size_t k = 0; k < now.figures.size(); ++k) {
      if (k == i || (columns[i].group != kOwn && columns[k].group == columns[i].group)) {
        scale = std::max(scale, std::fabs(before.figures[k]));
      }
    }
    if (std::fabs(now.figures[i] - before.figures[i]) > 1e-6 * scale) {
      char word[80];
      std::snprintf(word, sizeof word, "%s %.9g -> %.9g; ", columns[i].name, before.figures[i],
                    now.figures[i]);
      names += word;
    }
  }
  for (std::size_t i = 0; i < now.texts.size(); ++i) {
    if (now.texts[i] != before.texts[i]) names += std::string(kLineNames[i]) + "; ";
  }
  return names;
}

}  // namespace korvane::record
