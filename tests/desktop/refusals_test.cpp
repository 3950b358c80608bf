// SPDX-License-Identifier: GPL-3.0-or-later
// A refused value in every form with limits: what is said, and where the person stands afterwards.
#include <QLineEdit>
#include <algorithm>
#include <cctype>

#include "tests/desktop/desktop_fixture.h"

namespace korvane {
namespace {

/// A field with a text that is refused and one that is taken.
struct Refused {
  const char* form;
  const char* control;
  const char* typed;
  const char* message;
  const char* good;
};

void PrintTo(const Refused& one, std::ostream* out) {
  *out << one.form << "." << one.control << " " << one.typed;
}

constexpr const char* kMismatch = "Input string mismatch ";

const Refused kRefused[] = {
    {"korvane", "igammam1", "1.51", " 0.5 <= gammam1 <=1.5 ", "1.1"},
    {"loading", "ilfp_uls", "4.5", " 0 < Loadfactor < 4.0 ", "1.2"},
    {"endforce", "imy1", "1e39", kMismatch, "2"},
    {"endstiff", "iweba", "99", " 100 < a < l ", "100"},
    {"chpoints", "icp(1)", "5.1", " 0 < x <= l ", "2.5"},
    {"vipping", "ic1", "0.19", " 0.2 <= C1i <= 4 ", "1.132"},
    {"setup", "iufa", "2.01", " 0.3 < IR < 2.0 ", "1"},
    {"optroll", "idef_limit", "99", "100 <= Deflection <=1500 ", "300"},
    {"p21", "istb1", "4.9", " b >= 5 ", "200"},
    {"p22", "isttf2", "0.09", " tf2 >= 0.1 ", "12"},
    {"p23", "ista", "290", " a < b/2-tw ", "20"},
    {"p24", "iload", "91", " 50% <= Load on one flange <= 90% ", "60"},
    {"p25", "istb1", "420", " 5 < b1 < (b2-a) ", "300"},
    {"p26", "isttf1", "0.09", " tf1 >= 0.1 ", "12"},
    {"p27", "istb2", "499", " b2 >= (a+tw) ", "500"},
    {"p28", "isth", "4.9", " h >= 5 ", "100"},
    {"p31", "istd", "49", " d >= 50 ", "100"},
    {"p41", "istwply", "1000", " 1000 < Wply ", "900000"},
    {"p51", "isttw", "0.09", " tw >= 0.1 ", "6"},
    {"p52", "istb1", "0", " b1 > 0 ", "100"},
    {"p53", "isttf2", "0.09", " tf >= 0.1 ", "6"},
    {"p54", "istt1", "0.09", " t1 >= 0.1 ", "6"},
    {"p55", "ista", "-0.1", " a >= 0 ", "20"},
    {"p56", "istb2", "4.9", " b >= 5 ", "100"},
};

class RefusedField : public DesktopTest, public testing::WithParamInterface<Refused> {
protected:
  /// Brings the form to the front with the field in it free for input.
  QLineEdit& Open(const Refused& one) {
    const std::string form = one.form;
    ProjectState& st = session_.st();
    st.WebStiffener = 1;
    st.cp_mode = 1;
    st.cp_count = 3;
    st.LateralBucklingCase = 5;
    st.CFactorManual = 1;
    if (form == "optroll") st.ResultView = 1;
    if (form[0] == 'p') st.ProfileType = static_cast<int16>(std::stoi(form.substr(1)));
    if (form == "korvane") return Field(one.control);
    desktop_->Act([&] { session_.Show(form); });
    return On<QLineEdit>(Window(form), one.control);
  }
};

TEST_P(RefusedField, IsSaidAndKeepsTheFocusUntilAGoodValueStands) {
  const Refused& one = GetParam();
  QLineEdit& field = Open(one);
  ASSERT_TRUE(field.isVisible());
  ASSERT_TRUE(field.isEnabled());
  TypeInto(field, one.typed);
  EXPECT_EQ(platform_.messages, std::vector<std::string>{one.message});
  EXPECT_TRUE(field.hasFocus());
  EXPECT_TRUE(field.window()->isVisible());
  EXPECT_TRUE(IsGreen(field));

  platform_.messages.clear();
  TypeInto(field, one.good);
  EXPECT_TRUE(platform_.messages.empty()) << platform_.messages.front();
  EXPECT_FALSE(IsGreen(field));
}

INSTANTIATE_TEST_SUITE_P(All, RefusedField, testing::ValuesIn(kRefused),
                         [](const auto& param) { return std::string(param.param.form); });

TEST(RefusedFieldTable, NamesEveryFormWithLimits) {
  for (const Form& form : AllForms()) {
    const bool limited =
        std::any_of(form.controls.begin(), form.controls.end(), [](const Control& c) {
          return c.field.IsNumber() && HasLimit(c.field.input.field->limit);
        });
    const bool named = std::any_of(std::begin(kRefused), std::end(kRefused),
                                   [&](const Refused& one) { return form.name == one.form; });
    EXPECT_TRUE(named || !limited) << form.name;
  }
}

}  // namespace
}  // namespace korvane
