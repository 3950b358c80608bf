// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/forms/family_fields.h"

#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

namespace {

using S = ProjectState;

constexpr const char* kSize = "##0";
constexpr const char* kThickness = "##0.0";

/// Appends the fields of one family.
class Fields {
public:
  explicit Fields(std::vector<Control>& controls) : controls_(controls) {}

  template <class T>
  Fields& Add(const char* name, const char* letter, T S::*member, const char* format, Limit limit,
              const char* unit = "mm") {
    FieldRule rule = Bind(member, format);
    rule.limit = std::move(limit);
    rule.then = CalculateAfter;
    const std::string words = letter;
    const std::string caption = words.back() == ':' ? words : words + " =";
    controls_.push_back(Input(name, caption, std::move(rule), unit));
    return *this;
  }

  template <class T>
  Fields& Height(const char* name, T S::*member, double low = 50) {
    return Add(name, "h", member, kSize, AtLeast(low, low == 50 ? " h >= 50 " : " h >= 5 "));
  }
  /// A width of at least 5 mm; the message names it.
  template <class T>
  Fields& Width(const char* name, const char* letter, T S::*member, const char* message) {
    return Add(name, letter, member, kSize, AtLeast(5, message));
  }
  /// A thickness of at least 0.1 mm.
  template <class T>
  Fields& Thick(const char* name, const char* letter, T S::*member, const char* message) {
    return Add(name, letter, member, kThickness, AtLeast(0.1, message));
  }

private:
  std::vector<Control>& controls_;
};

/// The web distance of a box or an HSQ: from its lower limit to less than b/2 - tw. The message
/// is that of the limit which the stored value breaks.
Limit WebDistance(bool zeroAllowed, float32 S::*a, float32 S::*b, float32 S::*tw) {
  Limit limit;
  const auto low = [zeroAllowed](double v) { return zeroAllowed ? v >= 0 : v > 0; };
  limit.accepts = [=](const S& st, double v) { return low(v) && v < st.*b / 2 - st.*tw; };
  limit.message = [=](const S& st) {
    if (!low(st.*a)) return std::string(zeroAllowed ? " a >= 0 " : " a > 0 ");
    return std::string(" a < b/2-tw ");
  };
  return limit;
}

Limit TopCut(float32 S::*tw) {
  return Accept([tw](const S& st, double c) { return c >= 0 && c <= st.*tw; }, " 0 <= c <= tw ");
}

void WeldedFields(int code, Fields& f) {
  switch (code) {
    case 21:
      f.Height("isth", &S::p21_h)
          .Width("istb1", "b", &S::p21_b, " b >= 5 ")
          .Thick("isttf", "tf", &S::p21_tf, " tf >= 0.1 ")
          .Thick("isttw", "tw", &S::p21_tw, " tw >= 0.1 ");
      return;
    case 22:
      f.Height("isth", &S::p22_h)
          .Width("istb1", "b1", &S::p22_b, " b >= 5 ")
          .Width("istb2", "b2", &S::p22_b2, " b2 >= 5 ")
          .Thick("isttf1", "tf1", &S::p22_tf1, " tf1 >= 0.1 ")
          .Thick("isttf2", "tf2", &S::p22_tf2, " tf2 >= 0.1 ")
          .Thick("isttw", "tw", &S::p22_tw, " tw >= 0.1 ");
      return;
    case 26:
      f.Height("isth", &S::p26_h)
          .Width("istb1", "b", &S::p26_b, " b >= 5 ")
          .Thick("isttf1", "tf", &S::p26_tf, " tf1 >= 0.1 ")
          .Thick("isttw", "tw", &S::p26_tw, " tw >= 0.1 ");
      return;
    case 28:
      f.Height("isth", &S::p28_h, 5).Thick("isttw", "tw", &S::p28_tw, " tw >= 0.1 ");
      return;
    case 31:
      f.Add("istd", "d", &S::p31_d, kThickness, AtLeast(50, " d >= 50 "))
          .Thick("isttw", "tw", &S::p31_tw, " tw >= 0.1 ");
      return;
    default:
      return;
  }
}

void BoxFields(int code, Fields& f) {
  switch (code) {
    case 23:
      f.Height("isth", &S::p23_h)
          .Width("istb1", "b", &S::p23_b, " b >= 5 ")
          .Add("ista", "a", &S::p23_a, kSize, WebDistance(true, &S::p23_a, &S::p23_b, &S::p23_tw))
          .Thick("isttf", "tf", &S::p23_tf, " tf >= 0.1 ")
          .Thick("isttw", "tw", &S::p23_tw, " tw >= 0.1 ");
      return;
    case 24:
      f.Height("isth", &S::p24_h)
          .Width("istb1", "b", &S::p24_b, " b >= 5 ")
          .Add("ista", "a", &S::p24_a, kSize, WebDistance(false, &S::p24_a, &S::p24_b, &S::p24_tw))
          .Add("istc", "c", &S::p24_c, kThickness, TopCut(&S::p24_tw))
          .Thick("isttf1", "tf1", &S::p24_tf1, " tf1 >= 0.1 ")
          .Thick("isttf2", "tf2", &S::p24_tf2, " tf2 >= 0.1 ")
          .Thick("isttw", "tw", &S::p24_tw, " tw >= 0.1 ");
      break;
    case 25:
      f.Height("isth", &S::p25_h)
          .Add("istb1", "b1", &S::p25_b1, kSize,
               Accept([](const S& st, double v) { return v > 5 && v < st.p25_b2 - st.p25_a; },
                      " 5 < b1 < (b2-a) "))
          .Width("istb2", "b2", &S::p25_b2, " b2 >= 5 ")
          .Add("ista", "a", &S::p25_a, kSize, AtLeast(0, " a >= 0 "))
          .Add("istc", "c", &S::p25_c, kThickness, TopCut(&S::p25_tw))
          .Thick("isttf1", "tf1", &S::p25_tf1, " tf1 >= 0.1 ")
          .Thick("isttf2", "tf2", &S::p25_tf2, " tf2 >= 0.1 ")
          .Thick("isttw", "tw", &S::p25_tw, " tw >= 0.1 ");
      break;
    case 27: {
      const auto outside = [](const S& st, double b) { return b >= st.p27_a + st.p27_tw; };
      f.Height("isth", &S::p27_h)
          .Add("istb1", "b1", &S::p27_b1, kSize, Accept(outside, " b1 >= (a+tw) "))
          .Add("istb2", "b2", &S::p27_b2, kSize, Accept(outside, " b2 >= (a+tw) "))
          .Add("ista", "a", &S::p27_a, kSize,
               Accept([](const S& st, double a) { return a >= 2 * st.p27_tw; }, " a >= 2*tw "))
          .Thick("isttf1", "tf1", &S::p27_tf1, " tf1 >= 0.1 ")
          .Thick("isttf2", "tf2", &S::p27_tf2, " tf2 >= 0.1 ")
          .Thick("isttw", "tw", &S::p27_tw, " tw >= 0.1 ");
      return;
    }
    default:
      return;
  }
  f.Add("iload", "Max loading on one flange (%):", &S::p24_load, kSize,
        Between(50, 90, " 50% <= Load on one flange <= 90% "), "%");
}

void PlateFields(int code, Fields& f) {
  switch (code) {
    case 51:
      f.Width("istb1", "b1", &S::p51_b, " b >= 5 ")
          .Thick("isttf1", "tf1", &S::p51_tf1, " tf1 >= 0.1 ")
          .Height("isth", &S::p51_h)
          .Thick("isttw", "t", &S::p51_tw, " tw >= 0.1 ");
      return;
    case 52:
      f.Add("istb1", "b1", &S::p52_b1, kSize, Above(0, " b1 > 0 "))
          .Thick("istt1", "t1", &S::p52_t1, " t1 >= 0.1 ");
      return;
    case 53:
      f.Height("isth", &S::p53_h)
          .Width("istb1", "b1", &S::p53_b1, " b >= 5 ")
          .Width("istb2", "b2", &S::p53_b2, " b >= 5 ")
          .Thick("isttf1", "tf1", &S::p53_tf1, " tf1 >= 0.1 ")
          .Thick("isttf2", "tf2", &S::p53_tf2, " tf >= 0.1 ")
          .Thick("isttw", "tw", &S::p53_tw, " tw >= 0.1 ");
      return;
    case 54:
      f.Add("istb1", "b1", &S::p54_b1, kSize, Above(0, " b1 > 0 "))
          .Thick("istt1", "t1", &S::p54_t1, " t1 >= 0.1 ");
      return;
    case 55:
      f.Height("isth", &S::p55_h)
          .Width("istb1", "b1", &S::p55_b1, " b >= 5 ")
          .Width("istb2", "b2", &S::p55_b2, " b2 >= 5 ")
          .Thick("isttf1", "tf1", &S::p55_tf1, " tf1 >= 0.1 ")
          .Add("ista", "a", &S::p55_a, kSize, AtLeast(0, " a >= 0 "))
          .Thick("isttw", "tw", &S::p55_tw, " tw >= 0.1 ");
      return;
    case 56:
      f.Height("isth", &S::p56_h)
          .Width("istb1", "b1", &S::p56_b1, " b >= 5 ")
          .Width("istb2", "b2", &S::p56_b2, " b >= 5 ")
          .Thick("isttf1", "tf1", &S::p56_tf1, " tf1 >= 0.1 ")
          .Thick("isttf2", "tf2", &S::p56_tf2, " tf >= 0.1 ")
          .Thick("isttw", "tw", &S::p56_tw, " tw >= 0.1 ");
      return;
    default:
      return;
  }
}

void GeneralFields(std::vector<Control>& controls) {
  Control name = Input("iident", "Ident:", {});
  name.text = [](const Session& s) { return s.st().p41_name; };
  name.field.keep = [](ProjectState& st, const std::string& text) { st.p41_name = text; };
  controls.push_back(std::move(name));
  constexpr const char* kPower = "0.000E+0";
  Fields f(controls);
  f.Add("istax", "Ax", &S::p41_A, kSize, AtLeast(50, " A >= 50 "), "mm2")
      .Add("istay", "Ay", &S::p41_Ay, kSize, AtLeast(50, " Ay >= 50 "), "mm2")
      .Add("istaz", "Az", &S::p41_Az, kSize, AtLeast(50, " Az >= 50 "), "mm2")
      .Add("istiy", "Iy", &S::p41_Iy, kPower, AtLeast(1000, " Iy >= 1000 "), "mm4")
      .Add("istiz", "Iz", &S::p41_Iz, kPower, AtLeast(1000, " Iz >= 1000 "), "mm4")
      .Add("istix", "Ix", &S::p41_Ix, kPower, AtLeast(1000, " Ix >= 1000 "), "mm4")
      .Add("istiw", "Iw", &S::p41_Iw, kPower, AtLeast(1000, " Iw >= 1000 "), "mm6")
      .Add("istwely", "Wely", &S::p41_Wely, kPower, AtLeast(1000, " Wely >= 1000 "), "mm3")
      .Add("istwelz", "Welz", &S::p41_Welz, kPower, AtLeast(1000, " Welz >= 1000 "), "mm3")
      .Add("istwply", "Wply", &S::p41_Wply, kPower, Above(1000, " 1000 < Wply "), "mm3")
      .Add("istwplz", "Wplz", &S::p41_Wplz, kPower, Above(1000, " 1000 < Wplz "), "mm3");
}

}  // namespace

void AddTypedFields(int code, std::vector<Control>& controls) {
  Fields f(controls);
  WeldedFields(code, f);
  BoxFields(code, f);
  PlateFields(code, f);
  if (code == 41) GeneralFields(controls);
}

}  // namespace korvane
