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

/// Names of what a family shows, separated by blanks.
struct Lists {
  const char* dimensions;
  const char* properties;
  const char* capacities;
};

constexpr const char* kIProperties = "A Aeff Ix Iy Iz Iw Wely Weffy Wply Welz Weffz Wplz";
constexpr const char* kICapacities = "Ntd Ncd Mdy Mdz Vdz Vdy";
constexpr const char* kSideProperties =
    "A Aeff Ix Iy Iz Iw Wely1 Wely2 Wply Weffy1c Weffy1t Weffy2c Weffy2t";
constexpr const char* kSideCapacities = "MdyTop MdyBottom Vdz";
constexpr const char* kPlateDimensions = "h b1 b2 tw tf1 tf2 ez-el ez-pl S g";
// clang-format on

Lists ListsOf(int profileType, int britishChannel) {
  if (FindFamily(profileType) == nullptr) return {"", "", ""};
  switch (profileType) {
    case 5:
      return {"h b tw tf r e es S g", kIProperties, kICapacities};
    case 16:
      return {"h b tw tf r1 r2 e es S g", kIProperties, kICapacities};
    case 103:
      return {britishChannel == 2 ? "h b tw tf r r2 e es S g" : "h b tw tf r e es S g",
              kIProperties, kICapacities};
    case 6:
    case 7:
    case 8:
    case 9:
      return {"h b t r S g", "A Aeff Ix Iy Iz Wely Weffy Wply Welz Weffz Wplz", kICapacities};
    case 23:
      return {"h b tw tf S g", kIProperties, kICapacities};
    case 10:
      return {"h b t r ey ez u1 u2 v1 S g", "A Aeff Ix Iy Iz Iu Iv Wu1 Wv2 alfa",
              "Ntd Ncrd Mud1 Mud3 Mvd1 Mvd2 Mvd3 VdzWork VdyWork"};
    case 11:
      return {"h b t r ey ez u1 u2 v1 v2 S g", "A Aeff Ix Iy Iz Iu Iv Wu1 Wv2 alfa",
              "Ntd Ncrd Mud1 Mud2 Mud3 Mvd1 Mvd2 Mvd3 VdzWork VdyWork"};
    case 22:
      return {"h b1 b2 tw tf1 tf2 ez-el ez-pl zs S g", kSideProperties,
              "Ntd Ncd MdyTop MdyBottom Vdz Vdy"};
    case 24:
      return {"h b tw tf1 tf2 ez-el ez-pl S g", kSideProperties, kSideCapacities};
    case 25:
    case 27:
      return {kPlateDimensions, kSideProperties, kSideCapacities};
    case 26:
      return {"h b tw tf ez-el ez-pl S g", "A Aeff Ix Iy Iz Iw Wely1 Wely2 Wply Welz", "Ntd Ncrd"};
    case 28:
      return {"h tw S g", "A Ix Iy Iz Wely Wply Welz Wplz", kICapacities};
    case 31:
      return {"d t S g", "A Ix Iy Iz Wely Wply Welz Wplz",
              "Ntd Ncrd MdyWork MdzWork VdzWork VdyWork"};
    case 41:
      return {"S", "A Avy Avz Ix Iy Iz Iw Wely Wply Welz Wplz",
              "Ntd Ncrd MdyWork MdzWork VdzWork VdyWork"};
    case 51:
      return {"h b1 tw tf1 ez-el ez-pl S g", kSideProperties, kSideCapacities};
    case 52:
      return {"h b1 b2 tw tf1 tf2 r1 r2 ez-el ez-pl S g", kSideProperties, kSideCapacities};
    case 53:
    case 54:
    case 55:
      return {kPlateDimensions, kSideProperties, kSideCapacities};
    case 56:
      return {"h b1 b2 tw tf1 tf2 ez-el ez-pl zs S g", kSideProperties, kSideCapacities};
    default:
      return {"h b tw tf r S g", kIProperties, kICapacities};
  }
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
  ShownValues values = Collect(ListsOf(st.ProfileType, st.p103_sub).dimensions, rec);
  if (st.ProfileType < 6 || st.ProfileType > 9) return values;
  // Hollow sections come in whole millimetres; only their walls and corners have a decimal.
  for (ShownValue& v : values) {
    if (v.name == "h" || v.name == "b") v.text = Format(v.value, "##0");
  }
  return values;
}

ShownValues Properties(const ProjectState& st, const SectionRecord& rec) {
  return Collect(ListsOf(st.ProfileType, st.p103_sub).properties, rec);
}

ShownValues Capacities(const ProjectState& st, const SectionRecord& rec) {
  return Collect(ListsOf(st.ProfileType, st.p103_sub).capacities, rec);
}

std::string ClassText(const ProjectState& st, const SectionRecord& rec) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return {};
  switch (family->sectionControl) {
    case SectionControlKind::T:
      return std::to_string(int(rec.class_)) + " (N)";
    case SectionControlKind::Angle:
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
  if (st.ProfileType == 41) return std::to_string(int(rec.class_));
  return std::to_string(int(rec.classN)) + "/" + std::to_string(int(rec.classMy)) + " N/My";
}

}  // namespace korvane
