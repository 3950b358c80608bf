// SPDX-License-Identifier: GPL-3.0-or-later
// Options of the family forms and what follows from them in the design: flange loading, the
// making of boxes and tubes, the class of the general profile.
#include <gtest/gtest.h>

#include <string>

#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

// Mf = 1.75*322.73*15^2/6 = 21179 N carries q = 21179/(60*0.5*1.2) = 588 kN/m on half a flange.
TEST(FlangeLoading, AHeavierLineLoadSaysSoOnceAndTakesTheOptionOff) {
  Running r;
  r.session.Menu("mnup24");
  EXPECT_TRUE(r.session.Checked("p24.opthsq0"));
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "580");
  EXPECT_TRUE(r.platform.messages.empty());
  EXPECT_EQ(r.st().HsqKind, 0);
  r.session.Enter("iq1", "600");
  ASSERT_EQ(r.platform.messages.size(), 1U);
  EXPECT_EQ(r.platform.messages[0], " Flange overloaded! Program removes flangeloading ");
  EXPECT_EQ(r.st().HsqKind, 1);
  EXPECT_TRUE(r.session.Checked("p24.opthsq1"));
  // It stays off, however small the load is afterwards.
  r.session.Enter("iq1", "700");
  r.session.Enter("iq1", "1");
  EXPECT_EQ(r.platform.messages.size(), 1U);
  EXPECT_EQ(r.st().HsqKind, 1);
  r.session.Click("p24.opthsq0");
  EXPECT_EQ(r.st().HsqKind, 0);
}

TEST(FlangeLoading, TheShareOfTheFlangeDecidesWhatItCarries) {
  Running r;
  r.session.Menu("mnup24");
  r.session.Menu("mnuload1");
  r.session.Enter("iq1", "400");
  EXPECT_TRUE(r.platform.messages.empty());
  r.session.Enter("p24.iload", "90");  // 400 against 327 kN/m
  ASSERT_EQ(r.platform.messages.size(), 1U);
  EXPECT_EQ(r.st().HsqKind, 1);
}

TEST(BucklingCurves, OfABoxFollowItsWeld) {
  Running r;
  r.session.Menu("mnup23");
  r.session.Enter("p23.isttf", "25");  // 24 thicknesses both ways
  r.session.Enter("p23.isttw", "25");
  EXPECT_EQ(r.session.Text("korvane.obcy"), "c");
  r.session.Click("p23.oweld1");
  EXPECT_EQ(r.st().BoxWeld, 1);
  EXPECT_EQ(r.session.Text("korvane.obcy"), "b");
  EXPECT_EQ(r.session.Text("korvane.obcz"), "b");
  r.session.Click("p23.oweld0");
  EXPECT_EQ(r.session.Text("korvane.obcz"), "c");
}

TEST(BucklingCurves, OfATubeFollowItsForming) {
  Running r;
  r.session.Menu("mnup31");
  r.session.Click("p31.optcold");
  EXPECT_EQ(r.st().TubeKind, 0);
  EXPECT_EQ(r.session.Text("korvane.obcy"), "b");
  r.session.Click("p31.opthot");
  EXPECT_EQ(r.st().TubeKind, 1);
  EXPECT_EQ(r.session.Text("korvane.obcy"), "a");
  EXPECT_EQ(r.session.Text("korvane.obcz"), "a");
}

// Labels that the forms have of their own; most are the symbol of the value.
TEST(FormLabels, OfCapacitiesAndConstants) {
  const struct {
    const char *form, *control, *caption;  // caption nullptr: the form has no such label
  } labels[] = {
      {"p01", "oncrd", "Ncd ="},   {"p10", "ontrd", "Ntd ="},    {"p10", "oncrd", "Ncd ="},
      {"p10", "ovrzd", "Vdz ="},   {"p11", "oncrd", "Ncd ="},    {"p11", "ovrzd", "Vzd ="},
      {"p11", "ovryd", "Vyd ="},   {"p21", "ostix", "Ix ="},     {"p22", "ostix", nullptr},
      {"p22", "ostwplz", nullptr}, {"p22", "ostweffz", nullptr}, {"p22", "ostiy", "Iy ="},
      {"p26", "ontrd", "Ntrd ="},  {"p26", "oncrd", "Ncrd ="},   {"p26", "ostwply", "Wply ="},
      {"p31", "ontrd", "Ntd ="},   {"p41", "ontrd", nullptr},    {"p41", "omcyrd", nullptr},
      {"p41", "ovrzd", nullptr}};
  for (const auto& label : labels) {
    SCOPED_TRACE(std::string(label.form) + "." + label.control);
    const Form* form = FindForm(label.form);
    ASSERT_NE(form, nullptr);
    const Control* control = FindControl(*form, label.control);
    ASSERT_EQ(control != nullptr, label.caption != nullptr);
    if (control != nullptr) {
      EXPECT_EQ(control->caption, label.caption);
    }
  }
}

TEST(GeneralProfile, TheClassIsChosenOnItsForm) {
  Running r;
  r.session.Menu("mnup41");
  for (const int sectionClass : {3, 2, 1}) {
    r.session.Click("p41.op" + std::to_string(sectionClass));
    EXPECT_EQ(r.st().p41_option, sectionClass);
    EXPECT_EQ(r.session.design().rec.class_, sectionClass);
    const double W = sectionClass == 3 ? 1.3E6 : 1.65E6;
    EXPECT_NEAR(r.session.design().rec.Mdy, W * 355 / 1.1 / 1E6, 1e-2) << sectionClass;
  }
}

}  // namespace
}  // namespace korvane
