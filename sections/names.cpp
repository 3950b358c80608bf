// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/names.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "core/text.h"
#include "sections/profile_table.h"

namespace korvane {

SizeList SizesOf(const ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return {};
  // A series that does not exist has no dimension step, so no name either.
  if (family->sub != nullptr && CatalogueOfSub(*family, st.*family->sub) == nullptr) return {};
  const FamilyCatalogue* catalogue = CatalogueOf(*family, st);
  if (catalogue == nullptr) return {};
  return {true, catalogue->cat, st.*catalogue->index};
}

namespace {

/// What an entry is made of: a word, the columns whose numbers follow, joined by "x".
struct EntryForm {
  Cat catalogue;
  const char* word;
  std::array<int, 4> columns;  ///< 0 after the last
};

constexpr EntryForm kEntryForms[] = {{Cat::HEA, "HEA", {1}},
                                     {Cat::HEB, "HEB", {1}},
                                     {Cat::HEM, "HEM", {1}},
                                     {Cat::IPE, "IPE", {1}},
                                     {Cat::UPE, "UPE", {1}},
                                     {Cat::INP, "INP", {1}},
                                     {Cat::UNP, "UNP", {1}},
                                     {Cat::SHS, "RHS ", {1, 1, 2}},
                                     {Cat::RHS, "RHS ", {1, 2, 3}},
                                     {Cat::CFSHS, "CFRHS ", {1, 2, 3}},
                                     {Cat::CFRHS, "CFRHS ", {1, 2, 3}},
                                     {Cat::L1, "L ", {1, 1, 2}},
                                     {Cat::L2, "L ", {1, 2, 3}},
                                     {Cat::L3, "L ", {1, 2, 3, 4}},
                                     {Cat::HP, "HP ", {1, 2}},
                                     {Cat::UB, "UB ", {1, 2, 3}},
                                     {Cat::UC, "UC ", {1, 2, 3}},
                                     {Cat::UBP, "UBP ", {1, 2, 3}},
                                     {Cat::J, "J ", {1, 2, 3}},
                                     {Cat::PFC, "PFC ", {1, 2, 3}},
                                     {Cat::CH, "CH ", {1, 2, 3}}};

const EntryForm& FormOf(Cat catalogue) {
  const auto* form =
      std::find_if(std::begin(kEntryForms), std::end(kEntryForms),
                   [catalogue](const EntryForm& f) { return f.catalogue == catalogue; });
  if (form == std::end(kEntryForms)) throw ArithmeticFault("no such catalogue");
  return *form;
}

/// The typed dimensions that stand in the name, joined by "x".
std::string TitledDimensions(const Family& family, const ProjectState& st) {
  std::string text;
  for (std::size_t i = 0; i < family.titled; ++i) {
    if (i > 0) text += "x";
    text += Plain(ReadNumber(st, family.dimensions[i].field));
  }
  return text;
}

bool IsSingleNumber(Cat c) {
  return FormOf(c).columns[1] == 0;
}

}  // namespace

std::string Plain(double value) {
  // Dimensions are single precision values; their shortest single form is what was typed.
  std::string text = Str(float32(value));
  if (!text.empty() && text.front() == ' ') text.erase(0, 1);
  return text;
}

int ListLength(Cat catalogue) {
  return ShapeOf(catalogue).rows;
}

std::string ListEntry(Cat catalogue, const Catalogues& cat, int row) {
  const EntryForm& form = FormOf(catalogue);
  std::string text = form.word;
  bool first = true;
  for (const int col : form.columns) {
    if (col == 0) break;
    if (!first) text += "x";
    text += Str(float32(cat[catalogue](row, col)));
    first = false;
  }
  return text;
}

std::string SectionTitle(const ProjectState& st, const Catalogues& cat) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return {};
  std::string typed = family->words.title + TitledDimensions(*family, st);
  const SizeList sizes = SizesOf(st);
  if (!sizes.hasCatalogue) return typed;
  const CatalogueTable& table = cat[sizes.catalogue];
  if (sizes.row < 0 || sizes.row >= table.Capacity()) return {};
  const std::string entry = ListEntry(sizes.catalogue, cat, sizes.row);
  if (!typed.empty()) return typed + " + " + entry;
  if (!IsSingleNumber(sizes.catalogue)) return entry;
  return FormOf(sizes.catalogue).word + Format(table(sizes.row, 1), "00");
}

std::string NameDimensions(const ProjectState& st, const Catalogues& cat) {
  const std::string title = SectionTitle(st, cat);
  const auto digit = title.find_first_of("0123456789.");
  if (digit == std::string::npos) return {};
  std::string out;
  for (const char ch : title.substr(digit)) {
    // List entries carry a blank for the sign of each number.
    if (ch == ' ' && !out.empty() && (out.back() == 'x' || out.back() == ' ')) continue;
    out += ch;
  }
  return out;
}

}  // namespace korvane
