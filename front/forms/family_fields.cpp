// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/forms/family_fields.h"

#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

namespace {

using S = ProjectState;

/// A typed dimension of a family, in the order of its form.
struct FieldRow {
  int family;
  const char* control;
  const char* letter;  ///< as the figure writes it; a field of another kind has its caption
  InputMember member;
};

constexpr const char* kFlangeLoad = "Max loading on one flange (%):";

constexpr FieldRow kRows[] = {
    {21, "isth", "h", &S::p21_h},
    {21, "istb1", "b", &S::p21_b},
    {21, "isttf", "tf", &S::p21_tf},
    {21, "isttw", "tw", &S::p21_tw},
    {22, "isth", "h", &S::p22_h},
    {22, "istb1", "b1", &S::p22_b},
    {22, "istb2", "b2", &S::p22_b2},
    {22, "isttf1", "tf1", &S::p22_tf1},
    {22, "isttf2", "tf2", &S::p22_tf2},
    {22, "isttw", "tw", &S::p22_tw},
    {23, "isth", "h", &S::p23_h},
    {23, "istb1", "b", &S::p23_b},
    {23, "ista", "a", &S::p23_a},
    {23, "isttf", "tf", &S::p23_tf},
    {23, "isttw", "tw", &S::p23_tw},
    {24, "isth", "h", &S::p24_h},
    {24, "istb1", "b", &S::p24_b},
    {24, "ista", "a", &S::p24_a},
    {24, "istc", "c", &S::p24_c},
    {24, "isttf1", "tf1", &S::p24_tf1},
    {24, "isttf2", "tf2", &S::p24_tf2},
    {24, "isttw", "tw", &S::p24_tw},
    {24, "iload", kFlangeLoad, &S::p24_load},
    {25, "isth", "h", &S::p25_h},
    {25, "istb1", "b1", &S::p25_b1},
    {25, "istb2", "b2", &S::p25_b2},
    {25, "ista", "a", &S::p25_a},
    {25, "istc", "c", &S::p25_c},
    {25, "isttf1", "tf1", &S::p25_tf1},
    {25, "isttf2", "tf2", &S::p25_tf2},
    {25, "isttw", "tw", &S::p25_tw},
    {25, "iload", kFlangeLoad, &S::p24_load},
    {26, "isth", "h", &S::p26_h},
    {26, "istb1", "b", &S::p26_b},
    {26, "isttf1", "tf", &S::p26_tf},
    {26, "isttw", "tw", &S::p26_tw},
    {27, "isth", "h", &S::p27_h},
    {27, "istb1", "b1", &S::p27_b1},
    {27, "istb2", "b2", &S::p27_b2},
    {27, "ista", "a", &S::p27_a},
    {27, "isttf1", "tf1", &S::p27_tf1},
    {27, "isttf2", "tf2", &S::p27_tf2},
    {27, "isttw", "tw", &S::p27_tw},
    {28, "isth", "h", &S::p28_h},
    {28, "isttw", "tw", &S::p28_tw},
    {31, "istd", "d", &S::p31_d},
    {31, "isttw", "tw", &S::p31_tw},
    {41, "istax", "Ax", &S::p41_A},
    {41, "istay", "Ay", &S::p41_Ay},
    {41, "istaz", "Az", &S::p41_Az},
    {41, "istiy", "Iy", &S::p41_Iy},
    {41, "istiz", "Iz", &S::p41_Iz},
    {41, "istix", "Ix", &S::p41_Ix},
    {41, "istiw", "Iw", &S::p41_Iw},
    {41, "istwely", "Wely", &S::p41_Wely},
    {41, "istwelz", "Welz", &S::p41_Welz},
    {41, "istwply", "Wply", &S::p41_Wply},
    {41, "istwplz", "Wplz", &S::p41_Wplz},
    {51, "istb1", "b1", &S::p51_b},
    {51, "isttf1", "tf1", &S::p51_tf1},
    {51, "isth", "h", &S::p51_h},
    {51, "isttw", "t", &S::p51_tw},
    {52, "istb1", "b1", &S::p52_b1},
    {52, "istt1", "t1", &S::p52_t1},
    {53, "isth", "h", &S::p53_h},
    {53, "istb1", "b1", &S::p53_b1},
    {53, "istb2", "b2", &S::p53_b2},
    {53, "isttf1", "tf1", &S::p53_tf1},
    {53, "isttf2", "tf2", &S::p53_tf2},
    {53, "isttw", "tw", &S::p53_tw},
    {54, "istb1", "b1", &S::p54_b1},
    {54, "istt1", "t1", &S::p54_t1},
    {55, "isth", "h", &S::p55_h},
    {55, "istb1", "b1", &S::p55_b1},
    {55, "istb2", "b2", &S::p55_b2},
    {55, "isttf1", "tf1", &S::p55_tf1},
    {55, "ista", "a", &S::p55_a},
    {55, "isttw", "tw", &S::p55_tw},
    {56, "isth", "h", &S::p56_h},
    {56, "istb1", "b1", &S::p56_b1},
    {56, "istb2", "b2", &S::p56_b2},
    {56, "isttf1", "tf1", &S::p56_tf1},
    {56, "isttf2", "tf2", &S::p56_tf2},
    {56, "isttw", "tw", &S::p56_tw},
};

Control NameOfGeneralProfile() {
  Control name = Input("iident", "Ident:", Bind(&S::p41_name));
  name.text = [](const Session& s) { return s.st().p41_name; };
  return name;
}

}  // namespace

void AddTypedFields(int code, Form& form) {
  if (code == 41) Put(form, NameOfGeneralProfile());
  for (const FieldRow& row : kRows) {
    if (row.family != code) continue;
    const std::string letter = row.letter;
    const bool dimension = letter.back() != ':';
    Control c = Input(row.control, dimension ? letter + " =" : letter, Calculated(row.member));
    if (dimension) c.letter = letter;
    Put(form, std::move(c));
  }
}

}  // namespace korvane
