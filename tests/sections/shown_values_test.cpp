// SPDX-License-Identifier: GPL-3.0-or-later
// What a family shows of its record: which values in which order, formats and units, class.
#include "sections/shown_values.h"

#include <gtest/gtest.h>

#include <map>
#include <set>

#include "tests/sections/section_support.h"

namespace korvane {
namespace {

using testing::Made;

std::string NamesOf(const ShownValues& values) {
  std::string names;
  for (const ShownValue& v : values) {
    names += (names.empty() ? "" : " ") + std::string(v.name);
  }
  return names;
}

struct Shown {
  std::set<int> families;
  const char* dimensions;
  const char* properties;
  const char* capacities;
};

constexpr const char* kDouble = "A Aeff Ix Iy Iz Iw Wely Weffy Wply Welz Weffz Wplz";
constexpr const char* kSingle =
    "A Aeff Ix Iy Iz Iw Wely1 Wely2 Wply Weffy1c Weffy1t Weffy2c Weffy2t";
constexpr const char* kSix = "Ntd Ncd Mdy Mdz Vdz Vdy";
constexpr const char* kWorking = "Ntd Ncrd Mdy Mdz Vdz Vdy";
constexpr const char* kSides = "MdyTop MdyBottom Vdz";
constexpr const char* kUnequal = "h b1 b2 tw tf1 tf2 ez-el ez-pl S g";

TEST(ShownValues, ListsOfAllFamilies) {
  const Shown all[] = {
      {{1, 2, 3, 4, 15, 21, 101, 102}, "h b tw tf r S g", kDouble, kSix},
      {{5, 103}, "h b tw tf r e es S g", kDouble, kSix},
      {{16}, "h b tw tf r1 r2 e es S g", kDouble, kSix},
      {{6, 7, 8, 9}, "h b t r S g", "A Aeff Ix Iy Iz Wely Weffy Wply Welz Weffz Wplz", kSix},
      {{10},
       "h b t r ey ez u1 u2 v1 S g",
       "A Aeff Ix Iy Iz Iu Iv Wu1 Wv2 alfa",
       "Ntd Ncrd Mud1 Mud3 Mvd1 Mvd2 Mvd3 Vdz Vdy"},
      {{11},
       "h b t r ey ez u1 u2 v1 v2 S g",
       "A Aeff Ix Iy Iz Iu Iv Wu1 Wv2 alfa",
       "Ntd Ncrd Mud1 Mud2 Mud3 Mvd1 Mvd2 Mvd3 Vdz Vdy"},
      {{22}, "h b1 b2 tw tf1 tf2 ez-el ez-pl zs S g", kSingle, "Ntd Ncd MdyTop MdyBottom Vdz Vdy"},
      {{23}, "h b tw tf S g", kDouble, kSix},
      {{24}, "h b tw tf1 tf2 ez-el ez-pl S g", kSingle, kSides},
      {{25, 27, 53, 54, 55}, kUnequal, kSingle, kSides},
      {{26}, "h b tw tf ez-el ez-pl S g", "A Aeff Ix Iy Iz Iw Wely1 Wely2 Wply Welz", "Ntd Ncrd"},
      {{28}, "h tw S g", "A Ix Iy Iz Wely Wply Welz Wplz", kSix},
      {{31}, "d t S g", "A Ix Iy Iz Wely Wply Welz Wplz", kWorking},
      {{41}, "S", "A Avy Avz Ix Iy Iz Iw Wely Wply Welz Wplz", kWorking},
      {{51}, "h b1 tw tf1 ez-el ez-pl S g", kSingle, kSides},
      {{52}, "h b1 b2 tw tf1 tf2 r1 r2 ez-el ez-pl S g", kSingle, kSides},
      {{56}, "h b1 b2 tw tf1 tf2 ez-el ez-pl zs S g", kSingle, kSides},
  };
  std::set<int> seen;
  const SectionRecord rec;
  for (const Shown& s : all) {
    for (const int family : s.families) {
      SCOPED_TRACE(family);
      seen.insert(family);
      ProjectState st;
      st.ProfileType = family;
      EXPECT_EQ(NamesOf(Dimensions(st, rec)), s.dimensions);
      EXPECT_EQ(NamesOf(Properties(st, rec)), s.properties);
      EXPECT_EQ(NamesOf(Capacities(st, rec)), s.capacities);
    }
  }
  EXPECT_EQ(seen.size(), AllFamilies().size());
  ProjectState st;
  st.ProfileType = 103;
  st.p103_sub = 2;
  EXPECT_EQ(NamesOf(Dimensions(st, rec)), "h b tw tf r r2 e es S g");
}

TEST(ShownValues, FormatsAndUnitsOfAWideFlange) {
  Made m(1);
  m.All();
  std::map<std::string, std::string> text;
  for (const ShownValues& block :
       {Dimensions(m.st, m.rec), Properties(m.st, m.rec), Capacities(m.st, m.rec)}) {
    for (const ShownValue& v : block)
      text[std::string(v.name)] = v.text + " " + std::string(v.unit);
  }
  // HEA200 of the section tables, S355 with 1.10.
  EXPECT_EQ(text["h"], "190.0 mm");
  EXPECT_EQ(text["b"], "200.0 mm");
  EXPECT_EQ(text["tw"], "6.5 mm");
  EXPECT_EQ(text["r"], "18.0 mm");
  EXPECT_EQ(text["S"], "42.3 kg/m");
  EXPECT_EQ(text["g"], "1.136 m2/m");
  EXPECT_EQ(text["A"], "5383 mm2");
  EXPECT_EQ(text["Iy"], "3.692E+7 mm4");
  EXPECT_EQ(text["Iw"], "1.080E+11 mm6");
  EXPECT_EQ(text["Wply"], "4.295E+5 mm3");
  EXPECT_EQ(text["Ntd"], "1737.3 kN");
  EXPECT_EQ(text["Mdy"], "125.4 kNm");
}

TEST(ShownValues, HollowSectionsHaveWholeSides) {
  for (const int family : {6, 7, 8, 9}) {
    SCOPED_TRACE(family);
    SectionRecord rec;
    rec.h = 200.0;
    rec.b = 120.0;
    rec.tw = 6.3;
    rec.r = 9.6;
    ProjectState st;
    st.ProfileType = family;
    const ShownValues values = Dimensions(st, rec);
    ASSERT_GE(values.size(), 4U);
    EXPECT_EQ(values[0].text, "200");
    EXPECT_EQ(values[1].text, "120");
    EXPECT_EQ(values[2].text, "6.3");
    EXPECT_EQ(values[3].text, "9.6");
  }
}

// The labels of the angle's moduli are not renumbered: Wu1 shows Iv/u2, Wv2 shows Iu/v1.
TEST(ShownValues, ModuliOfAnglesUnderTheirKeptLabels) {
  Made m(11);
  m.st.idxLuneq = 20;
  m.All();
  for (const ShownValue& v : Properties(m.st, m.rec)) {
    if (v.name == "Wu1") {
      EXPECT_NEAR(v.value, m.rec.Iv / m.rec.u2, v.value * 1e-5);
    }
    if (v.name == "Wv2") {
      EXPECT_NEAR(v.value, m.rec.Iu / m.rec.v1, v.value * 1e-5);
    }
  }
}

TEST(ShownValues, ClassOfEachKindOfSection) {
  SectionRecord rec;
  rec.class_ = 1;
  rec.classN = 2;
  rec.classMy = 3;
  rec.classTop = 6;
  rec.classBottom = 7;
  rec.classTopshown = 4;
  rec.classBottomshown = 5;
  const std::pair<std::set<int>, const char*> texts[] = {
      {{26}, "1 (N)"},
      {{10, 11, 31, 41}, "1"},
      {{22, 24, 25, 27, 51, 52, 53, 54, 55, 56}, "4 (top), 5 (bottom)"},
      {{1, 2, 3, 4, 5, 6, 7, 8, 9, 15, 16, 21, 23, 28, 101, 102, 103}, "2/3 N/My"},
      {{77}, ""}};
  for (const auto& [families, text] : texts) {
    for (const int family : families) {
      SCOPED_TRACE(family);
      ProjectState st;
      st.ProfileType = family;
      EXPECT_EQ(ClassText(st, rec), text);
    }
  }
}

}  // namespace
}  // namespace korvane
