// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/shown_values.h"

#include <array>

#include "core/text.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

using Member = float32 SectionRecord::*;
using R = SectionRecord;

struct Item {
  std::string_view name;
  Member member;
  std::string_view format, unit;
};

constexpr std::string_view kLength = "#0.0";
constexpr std::string_view kPower = "0.000E+0";
constexpr std::string_view kForce = "#0.0";

// clang-format off
constexpr std::array kItems{
  Item{"h", &R::h, kLength, "mm"}, Item{"b", &R::b, kLength, "mm"},
  Item{"b1", &R::b1, kLength, "mm"}, Item{"b2", &R::b2, kLength, "mm"},
  Item{"tw", &R::tw, kLength, "mm"}, Item{"tf", &R::tf, kLength, "mm"},
  Item{"tf1", &R::tf1, kLength, "mm"}, Item{"tf2", &R::tf2, kLength, "mm"},
  Item{"t", &R::tw, kLength, "mm"}, Item{"d", &R::d, kLength, "mm"},
  Item{"r", &R::r, kLength, "mm"}, Item{"r1", &R::r1, kLength, "mm"},
  Item{"r2", &R::r2, kLength, "mm"}, Item{"e", &R::e, kLength, "mm"},
  Item{"es", &R::es, kLength, "mm"}, Item{"ey", &R::ey, kLength, "mm"},
  Item{"ez", &R::ez, kLength, "mm"}, Item{"u1", &R::u1, kLength, "mm"},
  Item{"u2", &R::u2, kLength, "mm"}, Item{"v1", &R::v1, kLength, "mm"},
  Item{"v2", &R::v2, kLength, "mm"}, Item{"ez-el", &R::ezel, kLength, "mm"},
  Item{"ez-pl", &R::ezpl, kLength, "mm"}, Item{"zs", &R::zs, kLength, "mm"},
  Item{"alfa", &R::alfadeg, "#0.0", "deg"},
  Item{"S", &R::S, "#0.0", "kg/m"}, Item{"g", &R::g, "#0.000", "m2/m"},
  Item{"A", &R::A, "#0", "mm2"}, Item{"Aeff", &R::Aeff, "#0", "mm2"},
  Item{"Avz", &R::Avz, "#0", "mm2"}, Item{"Avy", &R::Avy, "#0", "mm2"},
  Item{"Ix", &R::Ix, kPower, "mm4"}, Item{"Iy", &R::Iy, kPower, "mm4"},
  Item{"Iz", &R::Iz, kPower, "mm4"}, Item{"Iw", &R::Iw, kPower, "mm6"},
  Item{"Iu", &R::Iu, kPower, "mm4"}, Item{"Iv", &R::Iv, kPower, "mm4"},
  Item{"Wely", &R::Wely, kPower, "mm3"}, Item{"Weffy", &R::Weffy, kPower, "mm3"},
  Item{"Wply", &R::Wply, kPower, "mm3"}, Item{"Welz", &R::Welz, kPower, "mm3"},
  Item{"Weffz", &R::Weffz, kPower, "mm3"}, Item{"Wplz", &R::Wplz, kPower, "mm3"},
  Item{"Wely1", &R::Wely1, kPower, "mm3"}, Item{"Wely2", &R::Wely2, kPower, "mm3"},
  Item{"Weffy1c", &R::Weffy1c, kPower, "mm3"}, Item{"Weffy1t", &R::Weffy1t, kPower, "mm3"},
  Item{"Weffy2c", &R::Weffy2c, kPower, "mm3"}, Item{"Weffy2t", &R::Weffy2t, kPower, "mm3"},
  Item{"Wu1", &R::Wu2, kPower, "mm3"}, Item{"Wv2", &R::Wv1, kPower, "mm3"},
  Item{"Ntd", &R::Ntd, kForce, "kN"}, Item{"Ncd", &R::Ncrdshown, kForce, "kN"},
  Item{"Ncrd", &R::Ncrd, kForce, "kN"},
  Item{"Mdy", &R::Mdyshown, kForce, "kNm"}, Item{"Mdz", &R::Mdzshown, kForce, "kNm"},
  Item{"MdyTop", &R::MdyTopshown, kForce, "kNm"},
  Item{"MdyBottom", &R::MdyBottomshown, kForce, "kNm"},
  Item{"MdyWork", &R::Mdy, kForce, "kNm"}, Item{"MdzWork", &R::Mdz, kForce, "kNm"},
  Item{"Vdz", &R::Vdzshown, kForce, "kN"}, Item{"Vdy", &R::Vdyshown, kForce, "kN"},
  Item{"VdzWork", &R::Vdz, kForce, "kN"}, Item{"VdyWork", &R::Vdy, kForce, "kN"},
  Item{"Mud1", &R::Mud1, kForce, "kNm"}, Item{"Mud2", &R::Mud2, kForce, "kNm"},
  Item{"Mud3", &R::Mud3, kForce, "kNm"}, Item{"Mvd1", &R::Mvd1, kForce, "kNm"},
  Item{"Mvd2", &R::Mvd2, kForce, "kNm"}, Item{"Mvd3", &R::Mvd3, kForce, "kNm"},
};

// clang-format on

/// The lists of the family in force; none for a code that does not exist.
ShownLists ListsOf(const ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return {"", "", ""};
  ShownLists lists = family->shown;
  const FamilyCatalogue* catalogue = CatalogueOf(*family, st);
  if (catalogue != nullptr && catalogue->shownDimensions != nullptr) {
    lists.dimensions = catalogue->shownDimensions;
  }
  return lists;
}

/// The symbol as printed: working values are listed under their plain names.
std::string_view Symbol(std::string_view name) {
  const auto work = name.find("Work");
  return work == std::string_view::npos ? name : name.substr(0, work);
}

ShownValues Collect(const char* names, const SectionRecord& rec) {
  ShownValues out;
  std::string_view rest = names;
  while (!rest.empty()) {
    const auto blank = rest.find(' ');
    const std::string_view name = rest.substr(0, blank);
    rest = blank == std::string_view::npos ? std::string_view{} : rest.substr(blank + 1);
    for (const Item& item : kItems) {
      if (item.name != name) continue;
      const double value = rec.*item.member;
      out.push_back({Symbol(item.name), value, Format(value, item.format), item.unit});
    }
  }
  return out;
}

}  // namespace

ShownValues Dimensions(const ProjectState& st, const SectionRecord& rec) {
  const ShownLists lists = ListsOf(st);
  ShownValues values = Collect(lists.dimensions, rec);
  if (!lists.wholeMillimetres) return values;
  // Hollow sections come in whole millimetres; only their walls and corners have a decimal.
  for (ShownValue& v : values) {
    if (v.name == "h" || v.name == "b") v.text = Format(v.value, "##0");
  }
  return values;
}

ShownValues Properties(const ProjectState& st, const SectionRecord& rec) {
  return Collect(ListsOf(st).properties, rec);
}

ShownValues Capacities(const ProjectState& st, const SectionRecord& rec) {
  return Collect(ListsOf(st).capacities, rec);
}

std::string ClassText(const ProjectState& st, const SectionRecord& rec) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return {};
  switch (family->routines.sectionControl) {
    case SectionControlKind::T:
      return std::to_string(int(rec.class_)) + " (N)";
    case SectionControlKind::EqualAngle:
    case SectionControlKind::UnequalAngle:
    case SectionControlKind::Tube:
      return std::to_string(int(rec.class_));
    case SectionControlKind::SingleSymmetric:
    case SectionControlKind::Plate:
    case SectionControlKind::None:
      return std::to_string(int(rec.classTopshown)) + " (top), " +
             std::to_string(int(rec.classBottomshown)) + " (bottom)";
    default:
      break;
  }
  if (family->givenConstants) return std::to_string(int(rec.class_));
  return std::to_string(int(rec.classN)) + "/" + std::to_string(int(rec.classMy)) + " N/My";
}

}  // namespace korvane
