// SPDX-License-Identifier: GPL-3.0-or-later
// Every limit of every form: the last accepted and the first refused number that the field can
// hold on each side, with the message, the state, the focus and whether a calculation ran.
#include <gtest/gtest.h>

#include <cctype>

#include "tests/front/front_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using testing::Running;

/// What a field must do with a text.
struct Case {
  const char* form;
  const char* control;
  const char* typed;
  const char* message;  ///< nullptr: accepted
  double stored;        ///< what the state holds afterwards
  int calculations;     ///< how many ran
};

/// Reads what a field is bound to.
double StateOf(const Session& s, const std::string& form, const std::string& control) {
  return ReadInput(s.st(), FindControl(*FindForm(form), control)->field.input);
}

int TheFreeRow() {
  return SourceLibrary()->materials.Last();
}

void Prepare(Running& r, const std::string& form, const std::string& control) {
  ProjectState& st = r.st();
  st.MaterialIndex = TheFreeRow();
  if (control == "ispring") st.SupportType = 3;
  if (control == "idef_limit") st.OptimiseOpen = 1;
  // A thin flange that carries no load can't be overloaded, which would be told.
  if (control == "isttf2") st.HsqKind = 1;
  if (form == "korvane") return;
  if (form == "optroll") st.ResultView = 1;
  st.check_slend = 1;
  testing::ShowEveryField(form, st);
  if (form[0] == 'p') st.ProfileType = std::stoi(form.substr(1));
  r.session.Show(form);
}

// clang-format off
const Case kCases[] = {
    {"korvane", "il", "0.05", nullptr, 0.05, 1},
    {"korvane", "il", "100", nullptr, 100.0, 1},
    {"korvane", "il", "0.049999997", " L >= 0.050 ", 0.049999997, 0},
    {"korvane", "ie", "1000", nullptr, 1000.0, 1},
    {"korvane", "ie", "300000", nullptr, 300000.0, 1},
    {"korvane", "ie", "999.99994", " 1000 <= E-modulus ", 999.99994, 0},
    {"korvane", "ifyk", "50", nullptr, 50.0, 1},
    {"korvane", "ifyk", "2000", nullptr, 2000.0, 1},
    {"korvane", "ifyk", "49.999996", " 50 <= fyk <= 2000 ", 49.999996, 0},
    {"korvane", "ifyk", "2000.0001", " 50 <= fyk <= 2000 ", 2000.0001, 0},
    {"korvane", "igammam1", "0.5", nullptr, 0.5, 1},
    {"korvane", "igammam1", "1.5", nullptr, 1.5, 1},
    {"korvane", "igammam1", "0.49999997", " 0.5 <= gammam1 <=1.5 ", 0.49999997, 0},
    {"korvane", "igammam1", "1.5000001", " 0.5 <= gammam1 <=1.5 ", 1.5000001, 0},
    {"korvane", "ibly", "0.2", nullptr, 0.2, 1},
    {"korvane", "ibly", "3", nullptr, 3.0, 1},
    {"korvane", "ibly", "0.19999999", " Buckling length factor Y-axis >= 0.2 ", 0.19999999, 0},
    {"korvane", "iblz", "0.2", nullptr, 0.2, 1},
    {"korvane", "iblz", "3", nullptr, 3.0, 1},
    {"korvane", "iblz", "0.19999999", " Buckling length factor Z-axis >= 0.2 ", 0.19999999, 0},
    {"korvane", "ispring", "0", nullptr, 0.0, 1},
    {"korvane", "ispring", "100", nullptr, 100.0, 1},
    {"korvane", "ispring", "-1", " 1 < Spring-restraint  > 99 ", -1.0, 0},
    {"korvane", "ispring", "101", " 1 < Spring-restraint  > 99 ", 101.0, 0},
    {"korvane", "idef_limit", "100", nullptr, 100.0, 0},
    {"korvane", "idef_limit", "1500", nullptr, 1500.0, 0},
    {"korvane", "idef_limit", "99", "100 <= Deflection <=1500 ", 99.0, 0},
    {"korvane", "idef_limit", "1501", "100 <= Deflection <=1500 ", 1501.0, 0},
    {"loading", "ilfp_uls", "0", nullptr, 0.0, 1},
    {"loading", "ilfp_uls", "4", nullptr, 4.0, 1},
    {"loading", "ilfp_uls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"loading", "ilfp_uls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"loading", "ilfv1_uls", "0", nullptr, 0.0, 1},
    {"loading", "ilfv1_uls", "4", nullptr, 4.0, 1},
    {"loading", "ilfv1_uls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"loading", "ilfv1_uls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"loading", "ilfv2_uls", "0", nullptr, 0.0, 1},
    {"loading", "ilfv2_uls", "4", nullptr, 4.0, 1},
    {"loading", "ilfv2_uls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"loading", "ilfv2_uls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"loading", "ilfp_sls", "0", nullptr, 0.0, 1},
    {"loading", "ilfp_sls", "4", nullptr, 4.0, 1},
    {"loading", "ilfp_sls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"loading", "ilfp_sls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"loading", "ilfv1_Sls", "0", nullptr, 0.0, 1},
    {"loading", "ilfv1_Sls", "4", nullptr, 4.0, 1},
    {"loading", "ilfv1_Sls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"loading", "ilfv1_Sls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"loading", "ilfv2_Sls", "0", nullptr, 0.0, 1},
    {"loading", "ilfv2_Sls", "4", nullptr, 4.0, 1},
    {"loading", "ilfv2_Sls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"loading", "ilfv2_Sls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"loading", "ilfsw_ULS", "-3", nullptr, -3.0, 1},
    {"loading", "ilfsw_ULS", "9", nullptr, 9.0, 1},
    {"setup", "ilfp_uls", "0", nullptr, 0.0, 1},
    {"setup", "ilfp_uls", "4", nullptr, 4.0, 1},
    {"setup", "ilfp_uls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"setup", "ilfp_uls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"setup", "ilfv1_uls", "0", nullptr, 0.0, 1},
    {"setup", "ilfv1_uls", "4", nullptr, 4.0, 1},
    {"setup", "ilfv1_uls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"setup", "ilfv1_uls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"setup", "ilfv2_uls", "0", nullptr, 0.0, 1},
    {"setup", "ilfv2_uls", "4", nullptr, 4.0, 1},
    {"setup", "ilfv2_uls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"setup", "ilfv2_uls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"setup", "ilfp_sls", "0", nullptr, 0.0, 1},
    {"setup", "ilfp_sls", "4", nullptr, 4.0, 1},
    {"setup", "ilfp_sls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"setup", "ilfp_sls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"setup", "ilfv1_Sls", "0", nullptr, 0.0, 1},
    {"setup", "ilfv1_Sls", "4", nullptr, 4.0, 1},
    {"setup", "ilfv1_Sls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"setup", "ilfv1_Sls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"setup", "ilfv2_Sls", "0", nullptr, 0.0, 1},
    {"setup", "ilfv2_Sls", "4", nullptr, 4.0, 1},
    {"setup", "ilfv2_Sls", "-1e-45", " 0 < Loadfactor < 4.0 ", -1e-45, 0},
    {"setup", "ilfv2_Sls", "4.0000005", " 0 < Loadfactor < 4.0 ", 4.0000005, 0},
    {"setup", "ilfsw_ULS", "-3", nullptr, -3.0, 1},
    {"setup", "ilfsw_ULS", "9", nullptr, 9.0, 1},
    {"loading", "inp", "-25.5", nullptr, -25.5, 1},
    {"loading", "inp", "1000", nullptr, 1000.0, 1},
    {"loading", "inv1", "-25.5", nullptr, -25.5, 1},
    {"loading", "inv1", "1000", nullptr, 1000.0, 1},
    {"loading", "inv2", "-25.5", nullptr, -25.5, 1},
    {"loading", "inv2", "1000", nullptr, 1000.0, 1},
    {"loading", "iq1", "-25.5", nullptr, -25.5, 1},
    {"loading", "iq1", "1000", nullptr, 1000.0, 1},
    {"loading", "iq2", "-25.5", nullptr, -25.5, 1},
    {"loading", "iq2", "1000", nullptr, 1000.0, 1},
    {"loading", "iq3", "-25.5", nullptr, -25.5, 1},
    {"loading", "iq3", "1000", nullptr, 1000.0, 1},
    {"loading", "iq4", "-25.5", nullptr, -25.5, 1},
    {"loading", "iq4", "1000", nullptr, 1000.0, 1},
    {"loading", "ipm(1)", "-25.5", nullptr, -25.5, 1},
    {"loading", "ipm(1)", "1000", nullptr, 1000.0, 1},
    {"loading", "ipm(8)", "-25.5", nullptr, -25.5, 1},
    {"loading", "ipm(8)", "1000", nullptr, 1000.0, 1},
    {"loading", "iqt11", "-25.5", nullptr, -25.5, 1},
    {"loading", "iqt11", "1000", nullptr, 1000.0, 1},
    {"loading", "iqt12", "-25.5", nullptr, -25.5, 1},
    {"loading", "iqt12", "1000", nullptr, 1000.0, 1},
    {"loading", "iqt21", "-25.5", nullptr, -25.5, 1},
    {"loading", "iqt21", "1000", nullptr, 1000.0, 1},
    {"loading", "iqt22", "-25.5", nullptr, -25.5, 1},
    {"loading", "iqt22", "1000", nullptr, 1000.0, 1},
    {"loading", "iqt31", "-25.5", nullptr, -25.5, 1},
    {"loading", "iqt31", "1000", nullptr, 1000.0, 1},
    {"loading", "iqt32", "-25.5", nullptr, -25.5, 1},
    {"loading", "iqt32", "1000", nullptr, 1000.0, 1},
    {"loading", "ipmx(1)", "0", nullptr, 0.0, 1},
    {"loading", "ipmx(1)", "5", nullptr, 5.0, 1},
    {"loading", "ipmx(1)", "-1e-45", " 0 < x <= l ", 0.0, 0},
    {"loading", "ipmx(1)", "5.0000005", " 0 < x <= l ", 0.0, 0},
    {"loading", "ipmx(8)", "0", nullptr, 0.0, 1},
    {"loading", "ipmx(8)", "5", nullptr, 5.0, 1},
    {"loading", "ipmx(8)", "-1e-45", " 0 < x <= l ", 0.0, 0},
    {"loading", "ipmx(8)", "5.0000005", " 0 < x <= l ", 0.0, 0},
    {"loading", "iqt1x1", "0", nullptr, 0.0, 1},
    {"loading", "iqt1x1", "5", nullptr, 5.0, 1},
    {"loading", "iqt1x1", "-1e-45", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt1x1", "5.0000005", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt1x2", "0", nullptr, 0.0, 1},
    {"loading", "iqt1x2", "5", nullptr, 5.0, 1},
    {"loading", "iqt1x2", "-1e-45", " 0 < x2 <= l ", 0.0, 0},
    {"loading", "iqt1x2", "5.0000005", " 0 < x2 <= l ", 0.0, 0},
    {"loading", "iqt2x1", "0", nullptr, 0.0, 1},
    {"loading", "iqt2x1", "5", nullptr, 5.0, 1},
    {"loading", "iqt2x1", "-1e-45", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt2x1", "5.0000005", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt2x2", "0", nullptr, 0.0, 1},
    {"loading", "iqt2x2", "5", nullptr, 5.0, 1},
    {"loading", "iqt2x2", "-1e-45", " 0 < x2 <= l ", 0.0, 0},
    {"loading", "iqt2x2", "5.0000005", " 0 < x2 <= l ", 0.0, 0},
    {"loading", "iqt3x1", "0", nullptr, 0.0, 1},
    {"loading", "iqt3x1", "5", nullptr, 5.0, 1},
    {"loading", "iqt3x1", "-1e-45", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt3x1", "5.0000005", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt3x2", "0", nullptr, 0.0, 1},
    {"loading", "iqt3x2", "5", nullptr, 5.0, 1},
    {"loading", "iqt3x2", "-1e-45", " 0 < x1 <= l ", 0.0, 0},
    {"loading", "iqt3x2", "5.0000005", " 0 < x1 <= l ", 0.0, 0},
    {"endforce", "ine", "-40", nullptr, -40.0, 1},
    {"endforce", "ine", "40", nullptr, 40.0, 1},
    {"endforce", "imy1", "-40", nullptr, -40.0, 1},
    {"endforce", "imy1", "40", nullptr, 40.0, 1},
    {"endforce", "imy2", "-40", nullptr, -40.0, 1},
    {"endforce", "imy2", "40", nullptr, 40.0, 1},
    {"endforce", "imz1", "-40", nullptr, -40.0, 1},
    {"endforce", "imz1", "40", nullptr, 40.0, 1},
    {"endforce", "imz2", "-40", nullptr, -40.0, 1},
    {"endforce", "imz2", "40", nullptr, 40.0, 1},
    {"endforce", "ivy1", "-40", nullptr, -40.0, 1},
    {"endforce", "ivy1", "40", nullptr, 40.0, 1},
    {"endforce", "ivy2", "-40", nullptr, -40.0, 1},
    {"endforce", "ivy2", "40", nullptr, 40.0, 1},
    {"endforce", "ivz1", "-40", nullptr, -40.0, 1},
    {"endforce", "ivz1", "40", nullptr, 40.0, 1},
    {"endforce", "ivz2", "-40", nullptr, -40.0, 1},
    {"endforce", "ivz2", "40", nullptr, 40.0, 1},
    {"endstiff", "iweba", "100", nullptr, 100.0, 1},
    {"endstiff", "iweba", "4999.9995", nullptr, 4999.9995, 1},
    {"endstiff", "iweba", "99.99999", " 100 < a < l ", 99.99999, 0},
    {"endstiff", "iweba", "5000", " 100 < a < l ", 5000.0, 0},
    {"chpoints", "icp(1)", "0", nullptr, 0.0, 1},
    {"chpoints", "icp(1)", "5", nullptr, 5.0, 1},
    {"chpoints", "icp(1)", "-1e-45", " 0 < x <= l ", -1e-45, 1},
    {"chpoints", "icp(1)", "5.0000005", " 0 < x <= l ", 5.0000005, 1},
    {"chpoints", "icp(2)", "0", nullptr, 0.0, 1},
    {"chpoints", "icp(2)", "5", nullptr, 5.0, 1},
    {"chpoints", "icp(2)", "-1e-45", " 0 < x <= l ", -1e-45, 1},
    {"chpoints", "icp(2)", "5.0000005", " 0 < x <= l ", 5.0000005, 1},
    {"chpoints", "icp(3)", "0", nullptr, 0.0, 1},
    {"chpoints", "icp(3)", "5", nullptr, 5.0, 1},
    {"chpoints", "icp(3)", "-1e-45", " 0 < x <= l ", -1e-45, 1},
    {"chpoints", "icp(3)", "5.0000005", " 0 < x <= l ", 5.0000005, 1},
    {"vipping", "ic1", "0.2", nullptr, 0.2, 1},
    {"vipping", "ic1", "4", nullptr, 4.0, 1},
    {"vipping", "ic1", "0.19999999", " 0.2 <= C1i <= 4 ", 0.19999999, 0},
    {"vipping", "ic1", "4.0000005", " 0.2 <= C1i <= 4 ", 4.0000005, 0},
    {"vipping", "ic2", "0", nullptr, 0.0, 1},
    {"vipping", "ic2", "4", nullptr, 4.0, 1},
    {"vipping", "ic2", "-1e-45", " 0 <= C2i <= 4 ", -1e-45, 0},
    {"vipping", "ic2", "4.0000005", " 0 <= C2i <= 4 ", 4.0000005, 0},
    {"vipping", "ic3", "0", nullptr, 0.0, 1},
    {"vipping", "ic3", "4", nullptr, 4.0, 1},
    {"vipping", "ic3", "-1e-45", " 0 <= C3i <= 4 ", -1e-45, 0},
    {"vipping", "ic3", "4.0000005", " 0 <= C3i <= 4 ", 4.0000005, 0},
    {"vipping", "iza", "-500", nullptr, -500.0, 1},
    {"vipping", "iza", "500", nullptr, 500.0, 1},
    {"vipping", "ik", "0.5", nullptr, 0.5, 1},
    {"vipping", "ik", "1", nullptr, 1.0, 1},
    {"vipping", "ik", "0.49999997", " 0.5<= k <= 1.0 ", 0.49999997, 0},
    {"vipping", "ik", "1.0000001", " 0.5<= k <= 1.0 ", 1.0000001, 0},
    {"setup", "iufa", "0.3", nullptr, 0.3, 1},
    {"setup", "iufa", "2", nullptr, 2.0, 1},
    {"setup", "iufa", "0.29999998", " 0.3 < IR < 2.0 ", 0.29999998, 0},
    {"setup", "iufa", "2.0000002", " 0.3 < IR < 2.0 ", 2.0000002, 0},
    {"setup", "islend_limit", "50", nullptr, 50.0, 0},
    {"setup", "islend_limit", "1000", nullptr, 1000.0, 0},
    {"setup", "islend_limit", "49.999996", "50 <= Deflection <=1000 ", 49.999996, 0},
    {"setup", "islend_limit", "1000.00006", "50 <= Deflection <=1000 ", 1000.00006, 0},
    {"setup", "idef_limit", "100", nullptr, 100.0, 0},
    {"setup", "idef_limit", "1500", nullptr, 1500.0, 0},
    {"setup", "idef_limit", "99", "100 <= Deflection <=1500 ", 99.0, 0},
    {"setup", "idef_limit", "1501", "100 <= Deflection <=1500 ", 1501.0, 0},
    {"setup", "ifyk", "50", nullptr, 50.0, 1},
    {"setup", "ifyk", "2000", nullptr, 2000.0, 1},
    {"setup", "ifyk", "49.999996", " 50 <= fyk <= 2000 ", 49.999996, 0},
    {"setup", "ifyk", "2000.0001", " 50 <= fyk <= 2000 ", 2000.0001, 0},
    {"setup", "igammam1", "0.5", nullptr, 0.5, 1},
    {"setup", "igammam1", "1.5", nullptr, 1.5, 1},
    {"setup", "igammam1", "0.49999997", " 0.5 <= gammam1 <=1.5 ", 0.49999997, 0},
    {"setup", "igammam1", "1.5000001", " 0.5 <= gammam1 <=1.5 ", 1.5000001, 0},
    {"optroll", "idef_limit", "100", nullptr, 100.0, 0},
    {"optroll", "idef_limit", "1500", nullptr, 1500.0, 0},
    {"optroll", "idef_limit", "99", "100 <= Deflection <=1500 ", 99.0, 0},
    {"optroll", "idef_limit", "1501", "100 <= Deflection <=1500 ", 1501.0, 0},
    {"p21", "isth", "50", nullptr, 50.0, 1},
    {"p21", "isth", "300", nullptr, 300.0, 1},
    {"p21", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p21", "istb1", "5", nullptr, 5.0, 1},
    {"p21", "istb1", "300", nullptr, 300.0, 1},
    {"p21", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p21", "isttf", "0.1", nullptr, 0.1, 1},
    {"p21", "isttf", "30", nullptr, 30.0, 1},
    {"p21", "isttf", "0.099999994", " tf >= 0.1 ", 0.099999994, 0},
    {"p21", "isttw", "0.1", nullptr, 0.1, 1},
    {"p21", "isttw", "30", nullptr, 30.0, 1},
    {"p21", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p22", "isth", "50", nullptr, 50.0, 1},
    {"p22", "isth", "300", nullptr, 300.0, 1},
    {"p22", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p22", "istb1", "5", nullptr, 5.0, 1},
    {"p22", "istb1", "300", nullptr, 300.0, 1},
    {"p22", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p22", "istb2", "5", nullptr, 5.0, 1},
    {"p22", "istb2", "300", nullptr, 300.0, 1},
    {"p22", "istb2", "4.9999995", " b2 >= 5 ", 4.9999995, 0},
    {"p22", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p22", "isttf1", "30", nullptr, 30.0, 1},
    {"p22", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p22", "isttf2", "0.1", nullptr, 0.1, 1},
    {"p22", "isttf2", "30", nullptr, 30.0, 1},
    {"p22", "isttf2", "0.099999994", " tf2 >= 0.1 ", 0.099999994, 0},
    {"p22", "isttw", "0.1", nullptr, 0.1, 1},
    {"p22", "isttw", "30", nullptr, 30.0, 1},
    {"p22", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p23", "isth", "50", nullptr, 50.0, 1},
    {"p23", "isth", "300", nullptr, 300.0, 1},
    {"p23", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p23", "istb1", "5", nullptr, 5.0, 1},
    {"p23", "istb1", "400", nullptr, 400.0, 1},
    {"p23", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p23", "ista", "0", nullptr, 0.0, 1},
    {"p23", "ista", "289.99997", nullptr, 289.99997, 1},
    {"p23", "ista", "-1e-45", " a >= 0 ", -1e-45, 0},
    {"p23", "ista", "290", " a < b/2-tw ", 290.0, 0},
    {"p23", "isttf", "0.1", nullptr, 0.1, 1},
    {"p23", "isttf", "30", nullptr, 30.0, 1},
    {"p23", "isttf", "0.099999994", " tf >= 0.1 ", 0.099999994, 0},
    {"p23", "isttw", "0.1", nullptr, 0.1, 1},
    {"p23", "isttw", "30", nullptr, 30.0, 1},
    {"p23", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p24", "isth", "50", nullptr, 50.0, 1},
    {"p24", "isth", "300", nullptr, 300.0, 1},
    {"p24", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p24", "istb1", "5", nullptr, 5.0, 1},
    {"p24", "istb1", "400", nullptr, 400.0, 1},
    {"p24", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p24", "ista", "1e-45", nullptr, 1e-45, 1},
    {"p24", "ista", "263.99997", nullptr, 263.99997, 1},
    {"p24", "ista", "0", " a > 0 ", 0.0, 0},
    {"p24", "ista", "264", " a < b/2-tw ", 264.0, 0},
    {"p24", "istc", "0", nullptr, 0.0, 1},
    {"p24", "istc", "6", nullptr, 6.0, 1},
    {"p24", "istc", "-1e-45", " 0 <= c <= tw ", -1e-45, 0},
    {"p24", "istc", "6.0000005", " 0 <= c <= tw ", 6.0000005, 0},
    {"p24", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p24", "isttf1", "30", nullptr, 30.0, 1},
    {"p24", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p24", "isttf2", "0.1", nullptr, 0.1, 1},
    {"p24", "isttf2", "30", nullptr, 30.0, 1},
    {"p24", "isttf2", "0.099999994", " tf2 >= 0.1 ", 0.099999994, 0},
    {"p24", "isttw", "0.1", nullptr, 0.1, 1},
    {"p24", "isttw", "30", nullptr, 30.0, 1},
    {"p24", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p24", "iload", "50", nullptr, 50.0, 1},
    {"p24", "iload", "90", nullptr, 90.0, 1},
    {"p24", "iload", "49.999996", " 50% <= Load on one flange <= 90% ", 49.999996, 0},
    {"p24", "iload", "90.00001", " 50% <= Load on one flange <= 90% ", 90.00001, 0},
    {"p25", "iload", "50", nullptr, 50.0, 1},
    {"p25", "iload", "90", nullptr, 90.0, 1},
    {"p25", "iload", "49.999996", " 50% <= Load on one flange <= 90% ", 49.999996, 0},
    {"p25", "iload", "90.00001", " 50% <= Load on one flange <= 90% ", 90.00001, 0},
    {"p25", "isth", "50", nullptr, 50.0, 1},
    {"p25", "isth", "300", nullptr, 300.0, 1},
    {"p25", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p25", "istb1", "5.0000005", nullptr, 5.0000005, 1},
    {"p25", "istb1", "419.99997", nullptr, 419.99997, 1},
    {"p25", "istb1", "5", " 5 < b1 < (b2-a) ", 5.0, 0},
    {"p25", "istb1", "420", " 5 < b1 < (b2-a) ", 420.0, 0},
    {"p25", "istb2", "5", nullptr, 5.0, 1},
    {"p25", "istb2", "500", nullptr, 500.0, 1},
    {"p25", "istb2", "4.9999995", " b2 >= 5 ", 4.9999995, 0},
    {"p25", "ista", "0", nullptr, 0.0, 1},
    {"p25", "ista", "20", nullptr, 20.0, 1},
    {"p25", "ista", "-1e-45", " a >= 0 ", -1e-45, 0},
    {"p25", "istc", "0", nullptr, 0.0, 1},
    {"p25", "istc", "6", nullptr, 6.0, 1},
    {"p25", "istc", "-1e-45", " 0 <= c <= tw ", -1e-45, 0},
    {"p25", "istc", "6.0000005", " 0 <= c <= tw ", 6.0000005, 0},
    {"p25", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p25", "isttf1", "30", nullptr, 30.0, 1},
    {"p25", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p25", "isttf2", "0.1", nullptr, 0.1, 1},
    {"p25", "isttf2", "30", nullptr, 30.0, 1},
    {"p25", "isttf2", "0.099999994", " tf2 >= 0.1 ", 0.099999994, 0},
    {"p25", "isttw", "0.1", nullptr, 0.1, 1},
    {"p25", "isttw", "30", nullptr, 30.0, 1},
    {"p25", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p26", "isth", "50", nullptr, 50.0, 1},
    {"p26", "isth", "300", nullptr, 300.0, 1},
    {"p26", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p26", "istb1", "5", nullptr, 5.0, 1},
    {"p26", "istb1", "300", nullptr, 300.0, 1},
    {"p26", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p26", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p26", "isttf1", "30", nullptr, 30.0, 1},
    {"p26", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p26", "isttw", "0.1", nullptr, 0.1, 1},
    {"p26", "isttw", "30", nullptr, 30.0, 1},
    {"p26", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p27", "isth", "50", nullptr, 50.0, 1},
    {"p27", "isth", "300", nullptr, 300.0, 1},
    {"p27", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p27", "istb1", "500", nullptr, 500.0, 1},
    {"p27", "istb1", "500", nullptr, 500.0, 1},
    {"p27", "istb1", "499.99997", " b1 >= (a+tw) ", 499.99997, 0},
    {"p27", "istb2", "500", nullptr, 500.0, 1},
    {"p27", "istb2", "500", nullptr, 500.0, 1},
    {"p27", "istb2", "499.99997", " b2 >= (a+tw) ", 499.99997, 0},
    {"p27", "ista", "20", nullptr, 20.0, 1},
    {"p27", "ista", "400", nullptr, 400.0, 1},
    {"p27", "ista", "19.999998", " a >= 2*tw ", 19.999998, 0},
    {"p27", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p27", "isttf1", "30", nullptr, 30.0, 1},
    {"p27", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p27", "isttf2", "0.1", nullptr, 0.1, 1},
    {"p27", "isttf2", "30", nullptr, 30.0, 1},
    {"p27", "isttf2", "0.099999994", " tf2 >= 0.1 ", 0.099999994, 0},
    {"p27", "isttw", "0.1", nullptr, 0.1, 1},
    {"p27", "isttw", "30", nullptr, 30.0, 1},
    {"p27", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p28", "isth", "5", nullptr, 5.0, 1},
    {"p28", "isth", "500", nullptr, 500.0, 1},
    {"p28", "isth", "4.9999995", " h >= 5 ", 4.9999995, 0},
    {"p28", "isttw", "0.1", nullptr, 0.1, 1},
    {"p28", "isttw", "30", nullptr, 30.0, 1},
    {"p28", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p31", "istd", "50", nullptr, 50.0, 1},
    {"p31", "istd", "500", nullptr, 500.0, 1},
    {"p31", "istd", "49.999996", " d >= 50 ", 49.999996, 0},
    {"p31", "isttw", "0.1", nullptr, 0.1, 1},
    {"p31", "isttw", "30", nullptr, 30.0, 1},
    {"p31", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p41", "istax", "50", nullptr, 50.0, 1},
    {"p41", "istax", "9000", nullptr, 9000.0, 1},
    {"p41", "istax", "49.999996", " A >= 50 ", 49.999996, 0},
    {"p41", "istay", "50", nullptr, 50.0, 1},
    {"p41", "istay", "9000", nullptr, 9000.0, 1},
    {"p41", "istay", "49.999996", " Ay >= 50 ", 49.999996, 0},
    {"p41", "istaz", "50", nullptr, 50.0, 1},
    {"p41", "istaz", "9000", nullptr, 9000.0, 1},
    {"p41", "istaz", "49.999996", " Az >= 50 ", 49.999996, 0},
    {"p41", "istiy", "1000", nullptr, 1000.0, 1},
    {"p41", "istiy", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istiy", "999.99994", " Iy >= 1000 ", 999.99994, 0},
    {"p41", "istiz", "1000", nullptr, 1000.0, 1},
    {"p41", "istiz", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istiz", "999.99994", " Iz >= 1000 ", 999.99994, 0},
    {"p41", "istix", "1000", nullptr, 1000.0, 1},
    {"p41", "istix", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istix", "999.99994", " Ix >= 1000 ", 999.99994, 0},
    {"p41", "istiw", "1000", nullptr, 1000.0, 1},
    {"p41", "istiw", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istiw", "999.99994", " Iw >= 1000 ", 999.99994, 0},
    {"p41", "istwely", "1000", nullptr, 1000.0, 1},
    {"p41", "istwely", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istwely", "999.99994", " Wely >= 1000 ", 999.99994, 0},
    {"p41", "istwelz", "1000", nullptr, 1000.0, 1},
    {"p41", "istwelz", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istwelz", "999.99994", " Welz >= 1000 ", 999.99994, 0},
    {"p41", "istwply", "1000.00006", nullptr, 1000.00006, 1},
    {"p41", "istwply", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istwply", "1000", " 1000 < Wply ", 1000.0, 0},
    {"p41", "istwplz", "1000.00006", nullptr, 1000.00006, 1},
    {"p41", "istwplz", "1000000", nullptr, 1000000.0, 1},
    {"p41", "istwplz", "1000", " 1000 < Wplz ", 1000.0, 0},
    {"p51", "istb1", "5", nullptr, 5.0, 1},
    {"p51", "istb1", "300", nullptr, 300.0, 1},
    {"p51", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p51", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p51", "isttf1", "30", nullptr, 30.0, 1},
    {"p51", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p51", "isth", "50", nullptr, 50.0, 1},
    {"p51", "isth", "300", nullptr, 300.0, 1},
    {"p51", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p51", "isttw", "0.1", nullptr, 0.1, 1},
    {"p51", "isttw", "30", nullptr, 30.0, 1},
    {"p51", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p52", "istb1", "1e-45", nullptr, 1e-45, 1},
    {"p52", "istb1", "300", nullptr, 300.0, 1},
    {"p52", "istb1", "0", " b1 > 0 ", 0.0, 0},
    {"p52", "istt1", "0.1", nullptr, 0.1, 1},
    {"p52", "istt1", "30", nullptr, 30.0, 1},
    {"p52", "istt1", "0.099999994", " t1 >= 0.1 ", 0.099999994, 0},
    {"p54", "istb1", "1e-45", nullptr, 1e-45, 1},
    {"p54", "istb1", "300", nullptr, 300.0, 1},
    {"p54", "istb1", "0", " b1 > 0 ", 0.0, 0},
    {"p54", "istt1", "0.1", nullptr, 0.1, 1},
    {"p54", "istt1", "30", nullptr, 30.0, 1},
    {"p54", "istt1", "0.099999994", " t1 >= 0.1 ", 0.099999994, 0},
    {"p53", "isth", "50", nullptr, 50.0, 1},
    {"p53", "isth", "300", nullptr, 300.0, 1},
    {"p53", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p53", "istb1", "5", nullptr, 5.0, 1},
    {"p53", "istb1", "300", nullptr, 300.0, 1},
    {"p53", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p53", "istb2", "5", nullptr, 5.0, 1},
    {"p53", "istb2", "100", nullptr, 100.0, 1},
    {"p53", "istb2", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p53", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p53", "isttf1", "30", nullptr, 30.0, 1},
    {"p53", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p53", "isttf2", "0.1", nullptr, 0.1, 1},
    {"p53", "isttf2", "30", nullptr, 30.0, 1},
    {"p53", "isttf2", "0.099999994", " tf >= 0.1 ", 0.099999994, 0},
    {"p53", "isttw", "0.1", nullptr, 0.1, 1},
    {"p53", "isttw", "30", nullptr, 30.0, 1},
    {"p53", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p55", "isth", "50", nullptr, 50.0, 1},
    {"p55", "isth", "300", nullptr, 300.0, 1},
    {"p55", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p55", "istb1", "5", nullptr, 5.0, 1},
    {"p55", "istb1", "500", nullptr, 500.0, 1},
    {"p55", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p55", "istb2", "5", nullptr, 5.0, 1},
    {"p55", "istb2", "150", nullptr, 150.0, 1},
    {"p55", "istb2", "4.9999995", " b2 >= 5 ", 4.9999995, 0},
    {"p55", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p55", "isttf1", "30", nullptr, 30.0, 1},
    {"p55", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p55", "ista", "0", nullptr, 0.0, 1},
    {"p55", "ista", "60", nullptr, 60.0, 1},
    {"p55", "ista", "-1e-45", " a >= 0 ", -1e-45, 0},
    {"p55", "isttw", "0.1", nullptr, 0.1, 1},
    {"p55", "isttw", "30", nullptr, 30.0, 1},
    {"p55", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
    {"p56", "isth", "50", nullptr, 50.0, 1},
    {"p56", "isth", "300", nullptr, 300.0, 1},
    {"p56", "isth", "49.999996", " h >= 50 ", 49.999996, 0},
    {"p56", "istb1", "5", nullptr, 5.0, 1},
    {"p56", "istb1", "300", nullptr, 300.0, 1},
    {"p56", "istb1", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p56", "istb2", "5", nullptr, 5.0, 1},
    {"p56", "istb2", "300", nullptr, 300.0, 1},
    {"p56", "istb2", "4.9999995", " b >= 5 ", 4.9999995, 0},
    {"p56", "isttf1", "0.1", nullptr, 0.1, 1},
    {"p56", "isttf1", "30", nullptr, 30.0, 1},
    {"p56", "isttf1", "0.099999994", " tf1 >= 0.1 ", 0.099999994, 0},
    {"p56", "isttf2", "0.1", nullptr, 0.1, 1},
    {"p56", "isttf2", "30", nullptr, 30.0, 1},
    {"p56", "isttf2", "0.099999994", " tf >= 0.1 ", 0.099999994, 0},
    {"p56", "isttw", "0.1", nullptr, 0.1, 1},
    {"p56", "isttw", "30", nullptr, 30.0, 1},
    {"p56", "isttw", "0.099999994", " tw >= 0.1 ", 0.099999994, 0},
};
// clang-format on

class InputRule : public ::testing::TestWithParam<Case> {};

TEST_P(InputRule, HoldsItsLimit) {
  const Case& c = GetParam();
  Running r;
  Prepare(r, c.form, c.control);
  const std::string key = std::string(c.form) + "." + c.control;
  const int before = r.session.Calculations();
  const bool accepted = r.session.Enter(key, c.typed);
  EXPECT_EQ(accepted, c.message == nullptr);
  EXPECT_EQ(static_cast<float>(StateOf(r.session, c.form, c.control)),
            static_cast<float>(c.stored));
  EXPECT_EQ(r.session.Calculations() - before, c.calculations);
  EXPECT_EQ(r.session.Green(key), c.message != nullptr);
  if (c.message == nullptr) {
    EXPECT_TRUE(r.platform.messages.empty()) << r.platform.messages.front();
  } else {
    ASSERT_EQ(r.platform.messages.size(), 1U);
    EXPECT_EQ(r.platform.messages.front(), c.message);
    EXPECT_EQ(r.session.FocusedField(), key);
  }
}

std::string CaseName(const ::testing::TestParamInfo<Case>& info) {
  std::string name;
  for (const std::string part : {info.param.form, info.param.control, info.param.typed}) {
    for (const char ch : part + "_")
      name += std::isalnum(static_cast<unsigned char>(ch)) ? ch : '_';
  }
  return name + std::to_string(info.index);
}

INSTANTIATE_TEST_SUITE_P(AllForms, InputRule, ::testing::ValuesIn(kCases), CaseName);

/// A limit that follows another input, told with values of those inputs that no other field has.
struct Following {
  const char* form;
  const char* control;
  void (*set)(ProjectState&);
  const char* last;     ///< still accepted
  const char* refused;  ///< the next number that the field can hold
  const char* message;
};

// clang-format off
const Following kFollowing[] = {
    {"loading", "ipmx(3)", [](ProjectState& st) { st.L = 6.5; }, "6.5", "6.5000005", " 0 < x <= l "},
    {"loading", "iqt1x1", [](ProjectState& st) { st.L = 6.5; }, "6.5", "6.5000005", " 0 < x1 <= l "},
    {"loading", "iqt2x2", [](ProjectState& st) { st.L = 6.5; }, "6.5", "6.5000005", " 0 < x2 <= l "},
    {"chpoints", "icp(2)", [](ProjectState& st) { st.L = 6.5; }, "6.5", "6.5000005", " 0 < x <= l "},
    {"endstiff", "iweba", [](ProjectState& st) { st.L = 6.5; }, "6499.9995", "6500", " 100 < a < l "},
    // b/2 - tw = 510/2 - 8 = 247
    {"p23", "ista", [](ProjectState& st) { st.p23_b = 510; st.p23_tw = 8; }, "246.99998", "247", " a < b/2-tw "},
    {"p24", "ista", [](ProjectState& st) { st.p24_b = 510; st.p24_tw = 8; }, "246.99998", "247", " a < b/2-tw "},
    {"p24", "istc", [](ProjectState& st) { st.p24_tw = 8; }, "8", "8.000001", " 0 <= c <= tw "},
    {"p25", "istc", [](ProjectState& st) { st.p25_tw = 9; }, "9", "9.000001", " 0 <= c <= tw "},
    // b2 - a = 450 - 12 = 438
    {"p25", "istb1", [](ProjectState& st) { st.p25_b2 = 450; st.p25_a = 12; }, "437.99997", "438", " 5 < b1 < (b2-a) "},
    // a + tw = 480 + 11 = 491, 2*tw = 22
    {"p27", "istb1", [](ProjectState& st) { st.p27_a = 480; st.p27_tw = 11; }, "491", "490.99997", " b1 >= (a+tw) "},
    {"p27", "istb2", [](ProjectState& st) { st.p27_a = 480; st.p27_tw = 11; }, "491", "490.99997", " b2 >= (a+tw) "},
    {"p27", "ista", [](ProjectState& st) { st.p27_tw = 11; }, "22", "21.999998", " a >= 2*tw "},
};
// clang-format on

TEST(InputRules, ALimitFollowsItsInput) {
  for (const Following& c : kFollowing) {
    const std::string key = std::string(c.form) + "." + c.control;
    for (const char* typed : {c.last, c.refused}) {
      Running r;
      Prepare(r, c.form, c.control);
      c.set(r.st());
      const bool refused = typed == c.refused;
      EXPECT_EQ(r.session.Enter(key, typed), !refused) << key << " " << typed;
      const std::vector<std::string> told =
          refused ? std::vector<std::string>{c.message} : std::vector<std::string>{};
      EXPECT_EQ(r.platform.messages, told) << key << " " << typed;
    }
  }
}

/// Every field with a limit stands in the table above.
TEST(InputRules, NoLimitIsLeftOut) {
  for (const Form& form : AllForms()) {
    for (const Control& control : form.controls) {
      if (control.kind != Kind::Input || !control.field.IsNumber()) continue;
      if (!HasLimit(control.field.input.field->limit)) continue;
      const bool array = control.name.find('(') != std::string::npos;
      bool listed = false;
      for (const Case& c : kCases) {
        const std::string name = c.control;
        listed |=
            form.name == c.form &&
            (name == control.name || (array && name.substr(0, name.find('(')) ==
                                                   control.name.substr(0, control.name.find('('))));
      }
      EXPECT_TRUE(listed) << form.name << "." << control.name;
    }
  }
}

}  // namespace
}  // namespace korvane
