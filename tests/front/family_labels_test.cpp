// SPDX-License-Identifier: GPL-3.0-or-later
// How the family forms label the values of their sections, where that differs from the page.
#include <gtest/gtest.h>

#include <string>

#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

struct LabelCase {
  const char* menu;
  const char* form;
  const char* control;
  const char* caption;
  const char* text;  ///< nullptr: not looked at
};

// Smallest RHS of the table: 50x30x2.6, r = 1.5*2.6. The T 200x200x10x10 has A = 3900 mm2, its
// centroid (2000*5 + 1900*105)/3900 = 53.7 mm and its plastic axis 1950/200 = 9.75 mm below the
// top; its web 190/10 is slender. The box of 600x600 with equal flanges is symmetric.
constexpr LabelCase kLabels[] = {
    {"mnup07", "p07", "osth", "h =", "50 mm"},
    {"mnup07", "p07", "ostb", "b =", "30 mm"},
    {"mnup07", "p07", "ostt", "t =", "2.6 mm"},
    {"mnup07", "p07", "ostr", "r =", "3.9 mm"},
    {"mnup01", "p01", "osth", "h =", "190.0 mm"},
    {"mnup01", "p01", "oncrd", "Ncd =", "1737.3 kN"},
    {"mnup10", "p10", "oncrd", "Ncd =", nullptr},
    {"mnup10", "p10", "ovrzd", "Vdz =", nullptr},
    {"mnup10", "p10", "ovryd", "Vdy =", nullptr},
    {"mnup11", "p11", "oncrd", "Ncd =", nullptr},
    {"mnup11", "p11", "ovrzd", "Vzd =", nullptr},
    {"mnup11", "p11", "ovryd", "Vyd =", nullptr},
    {"mnu26", "p26", "ontrd", "Ntrd =", nullptr},
    {"mnu26", "p26", "oncrd", "Ncrd =", nullptr},
    {"mnu26", "p26", "osclass", " ", "Sectionclass : 4 (N)"},
    {"mnu26", "p26", "ostezel", "ez-el =", "53.7 mm (elastic)"},
    {"mnu26", "p26", "ostezpl", "ez-pl =", "9.8 mm (plastic)"},
    {"mnup01", "p01", "osclass", "Sectionclass:", nullptr},
    {"mnup22", "p22", "ostweffy1c", "Weffy1 =", nullptr},
    {"mnup22", "p22", "ostweffy1t", "Weffy1 =", nullptr},
    {"mnup22", "p22", "ostweffy2c", "Weffy2=", nullptr},
    {"mnup22", "p22", "ostweffy2t", "Weffy2=", nullptr},
    {"mnup22", "p22", "omcyrd1", "Mdy =", nullptr},
    {"mnup22", "p22", "omcyrd2", "Mdy =", nullptr},
    {"mnup27", "p27", "ostezel", "ez-el =", "300.0 mm (elastic)"},
    {"mnup27", "p27", "osclass1", "Top flange in compression", nullptr},
    {"mnup27", "p27", "osclass2", "Bottom flange in compression", nullptr},
};

class FormLabels : public ::testing::TestWithParam<LabelCase> {};

TEST_P(FormLabels, StandAsTheFormWritesThem) {
  const LabelCase& c = GetParam();
  const Control* control = FindControl(*FindForm(c.form), c.control);
  ASSERT_NE(control, nullptr);
  EXPECT_EQ(control->caption, c.caption);
  if (c.text == nullptr) return;
  Running r;
  r.session.Menu(c.menu);
  r.session.Focus("korvane");
  EXPECT_EQ(r.session.Text(std::string(c.form) + "." + c.control), c.text);
}

INSTANTIATE_TEST_SUITE_P(Families, FormLabels, ::testing::ValuesIn(kLabels), [](const auto& test) {
  return std::string(test.param.form) + "_" + test.param.control + "_" + std::to_string(test.index);
});

// A hollow section sets no Iw: the field keeps what it held.
TEST(FormLabels, HollowSectionsShowTheIwOfTheSectionBefore) {
  Running r;
  r.session.Menu("mnup01");
  r.session.Select("Cbo", 5);
  const std::string before = r.session.Text("p01.ostiw");
  EXPECT_NE(before, "0.000E+0 mm6");
  for (const char* form : {"p06", "p07", "p08", "p09"}) {
    r.session.Menu(std::string("mnu") + form);
    r.session.Select("Cbo", 3);
    EXPECT_EQ(r.session.Text(std::string(form) + ".ostiw"), before) << form;
    EXPECT_EQ(FindControl(*FindForm(form), "ostiw")->caption, "Iw =");
  }
  EXPECT_EQ(FindControl(*FindForm("p31"), "ostiw"), nullptr);
}

TEST(FormLabels, TheSingleSymmetricSectionHasNoTorsionConstant) {
  const Form& form = *FindForm("p22");
  for (const char* absent : {"ostix", "ostwplz", "ostweffz"}) {
    EXPECT_EQ(FindControl(form, absent), nullptr) << absent;
  }
  EXPECT_NE(FindControl(form, "ostiw"), nullptr);
}

TEST(FormLabels, TheGeneralProfileHasNoCapacities) {
  const Form& form = *FindForm("p41");
  for (const char* absent : {"ontrd", "oncrd", "omcyrd", "omczrd", "ovrzd", "ovryd"}) {
    EXPECT_EQ(FindControl(form, absent), nullptr) << absent;
  }
  EXPECT_NE(FindControl(form, "ostwely"), nullptr);
}

// The plate is the slender flange: of class 4 compressed, of no concern in tension.
TEST(FormLabels, EachSideTellsItsOwnClass) {
  Running r;
  r.session.Menu("mnu52");
  r.session.Focus("korvane");
  EXPECT_EQ(r.session.Text("p52.osclass1"), "class 4");
  EXPECT_EQ(r.session.Text("p52.osclass2"), "class 1");
  EXPECT_EQ(FindControl(*FindForm("p52"), "osclass"), nullptr);
}

}  // namespace
}  // namespace korvane
