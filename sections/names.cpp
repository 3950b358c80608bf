// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/names.h"

#include <array>
#include <initializer_list>

#include "core/text.h"
#include "sections/profile_table.h"

namespace korvane {

SizeList SizesOf(const ProjectState& st) {
  switch (st.ProfileType) {
    case 1:
      return {true, Cat::HEA, st.idxHEA};
    case 2:
      return {true, Cat::HEB, st.idxHEB};
    case 3:
      return {true, Cat::HEM, st.idxHEM};
    case 4:
      return {true, Cat::IPE, st.idxIPE};
    case 5:
      return {true, Cat::UPE, st.idxUPE};
    case 6:
      return {true, Cat::SHS, st.idxRHSs};
    case 7:
      return {true, Cat::RHS, st.idxRHSr};
    case 8:
      return {true, Cat::CFSHS, st.idxCFRHSs};
    case 9:
      return {true, Cat::CFRHS, st.idxCFRHSr};
    case 10:
      return {true, Cat::L1, st.idxLeq};
    case 11:
      return {true, Cat::L2, st.idxLuneq};
    case 15:
      return {true, Cat::INP, st.idxINP};
    case 16:
      return {true, Cat::UNP, st.idxUNP};
    case 52:
      return {true, Cat::L3, st.p52_index};
    case 54:
      return {true, Cat::HP, st.p54_index};
    case 101:
      if (st.p101_sub == 1) return {true, Cat::UB, st.p101_idx1};
      if (st.p101_sub == 2) return {true, Cat::UC, st.p101_idx2};
      if (st.p101_sub == 3) return {true, Cat::UBP, st.p101_idx3};
      return {};  // no dimension step, so no name either
    case 102:
      return {true, Cat::J, st.p102_idx};
    case 103:
      if (st.p103_sub == 1) return {true, Cat::PFC, st.p103_idx1};
      if (st.p103_sub == 2) return {true, Cat::CH, st.p103_idx2};
      return {};
    default:
      return {};
  }
}

namespace {

/// What an entry is made of: a word, the columns whose numbers follow, joined by "x".
struct EntryForm {
  const char* word;
  std::array<int, 4> columns;  ///< 0 after the last
};

EntryForm FormOf(Cat catalogue) {
  switch (catalogue) {
    case Cat::HEA:
      return {"HEA", {1}};
    case Cat::HEB:
      return {"HEB", {1}};
    case Cat::HEM:
      return {"HEM", {1}};
    case Cat::IPE:
      return {"IPE", {1}};
    case Cat::UPE:
      return {"UPE", {1}};
    case Cat::INP:
      return {"INP", {1}};
    case Cat::UNP:
      return {"UNP", {1}};
    case Cat::SHS:
      return {"RHS ", {1, 1, 2}};
    case Cat::RHS:
      return {"RHS ", {1, 2, 3}};
    case Cat::CFSHS:
      return {"CFRHS ", {1, 2, 3}};
    case Cat::CFRHS:
      return {"CFRHS ", {1, 2, 3}};
    case Cat::L1:
      return {"L ", {1, 1, 2}};
    case Cat::L2:
      return {"L ", {1, 2, 3}};
    case Cat::L3:
      return {"L ", {1, 2, 3, 4}};
    case Cat::HP:
      return {"HP ", {1, 2}};
    case Cat::UB:
      return {"UB ", {1, 2, 3}};
    case Cat::UC:
      return {"UC ", {1, 2, 3}};
    case Cat::UBP:
      return {"UBP ", {1, 2, 3}};
    case Cat::J:
      return {"J ", {1, 2, 3}};
    case Cat::PFC:
      return {"PFC ", {1, 2, 3}};
    case Cat::CH:
      return {"CH ", {1, 2, 3}};
    case Cat::Count:
      break;
  }
  return {"", {}};
}

/// "600x300x12" after a word.
std::string Joined(std::string text, std::initializer_list<double> values) {
  bool first = true;
  for (const double v : values) {
    if (!first) text += "x";
    text += Plain(v);
    first = false;
  }
  return text;
}

std::string TypedTitle(const ProjectState& s) {
  switch (s.ProfileType) {
    case 21:
      return Joined("I ", {s.p21_h, s.p21_b, s.p21_tw, s.p21_tf});
    case 22:
      return Joined("I ", {s.p22_h, s.p22_b, s.p22_b2, s.p22_tw, s.p22_tf1, s.p22_tf2});
    case 23:
      return Joined("Box ", {s.p23_h, s.p23_b, s.p23_tw, s.p23_tf});
    case 24:
      return Joined("HSQ ", {s.p24_h, s.p24_b, s.p24_tw, s.p24_tf1, s.p24_tf2});
    case 25:
      return Joined("HSQ ", {s.p25_h, s.p25_b1, s.p25_b2, s.p25_tw, s.p25_tf1, s.p25_tf2});
    case 26:
      return Joined("T ", {s.p26_h, s.p26_b, s.p26_tw, s.p26_tf});
    case 27:
      return Joined("Box ", {s.p27_h, s.p27_b1, s.p27_b2, s.p27_tw, s.p27_tf1, s.p27_tf2});
    case 28:
      return Joined("Fb ", {s.p28_h, s.p28_tw});
    case 31:
      return Joined("Tube ", {s.p31_d, s.p31_tw});
    case 41:
      return "General profile";
    case 51:
      return Joined("Plate + Fb ", {s.p51_b, s.p51_tf1, s.p51_h, s.p51_tw});
    case 53:
      return Joined("Plate + L ", {s.p53_b1, s.p53_tf1, s.p53_h, s.p53_b2, s.p53_tw, s.p53_tf2});
    case 55:
      return Joined("Plate + Trapez ", {s.p55_b1, s.p55_tf1, s.p55_h, s.p55_b2, s.p55_tw});
    case 56:
      return Joined("Plate + T ", {s.p56_b1, s.p56_tf1, s.p56_h, s.p56_b2, s.p56_tw, s.p56_tf2});
    default:
      return {};
  }
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
  const EntryForm form = FormOf(catalogue);
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
  const SizeList sizes = SizesOf(st);
  if (!sizes.hasCatalogue) return TypedTitle(st);
  const CatalogueTable& table = cat[sizes.catalogue];
  if (sizes.row < 0 || sizes.row >= table.Capacity()) return {};
  std::string entry = ListEntry(sizes.catalogue, cat, sizes.row);
  if (st.ProfileType == 52) return Joined("Plate + ", {st.p52_b1, st.p52_t1}) + " + " + entry;
  if (st.ProfileType == 54) return Joined("Plate + ", {st.p54_b1, st.p54_t1}) + " + " + entry;
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
