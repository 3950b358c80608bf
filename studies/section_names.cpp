// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/section_names.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <vector>

#include "core/input_fields.h"
#include "sections/names.h"

namespace korvane {

namespace {

/// The multiplication sign in UTF-8.
constexpr std::string_view kTimes = "\xC3\x97";

/// The numbers of "600X300X12X20"; nothing for anything else.
std::optional<std::vector<double>> NumbersOf(std::string_view text) {
  std::vector<double> numbers;
  while (true) {
    double v = 0;
    const char* const end = text.data() + text.size();
    const auto read = std::from_chars(text.data(), end, v, std::chars_format::fixed);
    if (read.ec != std::errc()) return std::nullopt;
    numbers.push_back(v);
    if (read.ptr == end) return numbers;
    if (*read.ptr != 'X') return std::nullopt;
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()) + 1);
  }
}

/// The size of a rectangular section with h and b exchanged: "RHS50X100X5".
std::string TurnedKey(const std::string& key) {
  const auto digit = key.find_first_of("0123456789");
  const auto first = key.find('X', digit);
  const auto second = key.find('X', first + 1);
  if (second == std::string::npos) return key;
  return key.substr(0, digit) + key.substr(first + 1, second - first - 1) + "X" +
         key.substr(digit, first - digit) + key.substr(second);
}

}  // namespace

std::string SectionKey(std::string_view name) {
  std::string key;
  key.reserve(name.size());
  for (std::size_t i = 0; i < name.size(); ++i) {
    const char c = name[i];
    if (c == ' ' || c == '\t') continue;
    if (name.substr(i, kTimes.size()) == kTimes) {
      key += 'X';
      i += kTimes.size() - 1;
    } else if (c == '*' || c == '/') {
      key += 'X';
    } else {
      key += c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    }
  }
  return key;
}

bool CanBeTurned(Cat catalogue) {
  return catalogue == Cat::RHS || catalogue == Cat::CFRHS;
}

void TakeSize(const CatalogueSize& size, ProjectState& st) {
  st.ProfileType = size.family->code;
  if (size.family->familyWord != nullptr) st.FamilyName = size.family->familyWord;
  if (size.family->sub != nullptr) st.*size.family->sub = size.catalogue->sub;
  st.*size.catalogue->index = size.row;
  if (CanBeTurned(size.catalogue->cat)) st.RhsOrientation = size.turned ? 0 : 1;
}

bool IsInForce(const CatalogueSize& size, const ProjectState& st) {
  if (st.ProfileType != size.family->code || st.*size.catalogue->index != size.row) return false;
  if (size.family->sub != nullptr && st.*size.family->sub != size.catalogue->sub) return false;
  return !CanBeTurned(size.catalogue->cat) || (st.RhsOrientation == 0) == size.turned;
}

SectionNames::SectionNames(const Catalogues& cat) {
  for (const Family& family : AllFamilies()) {
    auto& names = family.titled > 0 ? stiffeners_ : sizes_;
    for (const FamilyCatalogue& catalogue : family.catalogues) {
      for (int row = 0; row < ListLength(catalogue.cat); ++row) {
        const std::string key = SectionKey(ListEntry(catalogue.cat, cat, row));
        names.try_emplace(key, CatalogueSize{&family, &catalogue, row, false});
        // The word of the optimiser's row too: "SHS100x100x5".
        if (family.search.name != nullptr) {
          names.try_emplace(
              SectionKey(family.search.name) + key.substr(key.find_first_of("0123456789")),
              CatalogueSize{&family, &catalogue, row, false});
        }
      }
    }
  }
  // What is no name of its own is a section turned.
  auto turned = sizes_;
  for (const auto& [key, size] : sizes_) {
    if (!CanBeTurned(size.catalogue->cat)) continue;
    CatalogueSize other = size;
    other.turned = true;
    turned.try_emplace(TurnedKey(key), other);
  }
  sizes_ = std::move(turned);
}

bool SectionNames::TakeTyped(const std::string& key, ProjectState& st) const {
  // "PLATE+600X10+HP200X10": the stiffener's name stands behind the dimensions.
  const CatalogueSize* stiffener = nullptr;
  std::string typed = key;
  if (const auto plus = key.rfind('+'); plus != std::string::npos) {
    const auto found = stiffeners_.find(key.substr(plus + 1));
    if (found != stiffeners_.end()) {
      stiffener = &found->second;
      typed.resize(plus);
    }
  }
  for (const Family& family : AllFamilies()) {
    if (family.titled == 0 || family.catalogues.empty() != (stiffener == nullptr)) continue;
    if (stiffener != nullptr && stiffener->family != &family) continue;
    const std::string word = SectionKey(family.words.title);
    if (!typed.starts_with(word)) continue;
    const auto numbers = NumbersOf(std::string_view(typed).substr(word.size()));
    if (!numbers || numbers->size() != family.titled) continue;
    ProjectState named = st;
    for (std::size_t i = 0; i < family.titled; ++i) {
      StoreNumber(named, family.dimensions[i].field, (*numbers)[i]);
    }
    named.ProfileType = family.code;
    if (family.familyWord != nullptr) named.FamilyName = family.familyWord;
    if (stiffener != nullptr) TakeSize(*stiffener, named);
    st = std::move(named);
    return true;
  }
  return false;
}

bool SectionNames::Take(std::string_view name, ProjectState& st) const {
  const std::string key = SectionKey(name);
  if (const auto found = sizes_.find(key); found != sizes_.end()) {
    TakeSize(found->second, st);
    return true;
  }
  if (TakeTyped(key, st)) return true;
  for (const Family& family : AllFamilies()) {
    // The general profile has no dimensions in its name.
    if (family.givenConstants && key == SectionKey(family.words.title)) {
      st.ProfileType = family.code;
      if (family.familyWord != nullptr) st.FamilyName = family.familyWord;
      return true;
    }
  }
  return false;
}

}  // namespace korvane
