// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/input_fields.h"

#include <algorithm>
#include <stdexcept>
#include <type_traits>

#include "core/supports.h"

namespace korvane {

namespace {

using S = ProjectState;

constexpr Limit kLoadFactor = Between(0, 4, " 0 < Loadfactor < 4.0 ");

// --- Limits that follow another input -----------------------------------------------------------

constexpr Limit Following(Limit (*rule)(const S&)) {
  return {.follows = rule};
}

/// A position on the member, in m or as x/L.
Limit OnMember(const S& st, int relative, const char* inMetres, const char* asShare) {
  return Between(0, relative == 1 ? 1.0 : double(st.L), relative == 1 ? asShare : inMetres);
}
Limit TrapezoidX1(const S& st) {
  return OnMember(st, st.qtx_relative, " 0 < x1 <= l ", " 0 < x1 <= 1 ");
}
Limit TrapezoidX2(const S& st) {
  return OnMember(st, st.qtx_relative, " 0 < x2 <= l ", " 0 < x2 <= 1 ");
}
Limit ItemX(const S& st) {
  return OnMember(st, st.pmx_relative, " 0 < x <= l ", " 0 < x <= 1 ");
}
Limit PointX(const S& st) {
  return OnMember(st, st.cp_relative, " 0 < x <= l ", " 0 <= x <= 1 ");
}

Limit WebStiffenerLimit(const S& st) {
  return {.low = 100, .high = 1000 * st.L, .highIncluded = false, .message = " 100 < a < l "};
}

Limit LateralFactorLimit(const S& st) {
  return IsCantilever(st.SupportType) ? Between(1, 2, " 1.0 <= k <= 2.0 ")
                                      : Between(0.5, 1, " 0.5<= k <= 1.0 ");
}

/// The web distance of a box or an HSQ, below b/2 - tw. The message is that of the end which the
/// stored value breaks.
Limit WebDistance(bool zeroAllowed, double a, double b, double tw) {
  const bool tooLow = zeroAllowed ? a < 0 : a <= 0;
  const char* low = zeroAllowed ? " a >= 0 " : " a > 0 ";
  return {.low = 0,
          .lowIncluded = zeroAllowed,
          .high = b / 2 - tw,
          .highIncluded = false,
          .message = tooLow ? low : " a < b/2-tw "};
}
Limit BoxWebDistance(const S& st) {
  return WebDistance(true, st.p23_a, st.p23_b, st.p23_tw);
}
Limit HsqWebDistance(const S& st) {
  return WebDistance(false, st.p24_a, st.p24_b, st.p24_tw);
}
template <float32 S::*tw>
Limit HsqTopCut(const S& st) {
  return Between(0, st.*tw, " 0 <= c <= tw ");
}
Limit HsqTopWidth(const S& st) {
  return {.low = 5,
          .lowIncluded = false,
          .high = st.p25_b2 - st.p25_a,
          .highIncluded = false,
          .message = " 5 < b1 < (b2-a) "};
}
Limit BoxTopWidth(const S& st) {
  return AtLeast(st.p27_a + st.p27_tw, " b1 >= (a+tw) ");
}
Limit BoxBottomWidth(const S& st) {
  return AtLeast(st.p27_a + st.p27_tw, " b2 >= (a+tw) ");
}
Limit UnequalBoxDistance(const S& st) {
  return AtLeast(2 * st.p27_tw, " a >= 2*tw ");
}

// --- The table ----------------------------------------------------------------------------------

// The third trapezoid speaks of x1 at both ends, and a few families name another flange: kept.
constexpr InputField kFields[] = {
    {"CurrentFileName", &S::CurrentFileName},
    {"CurrentDir", &S::CurrentDir},
    {"iproj", &S::iproj},
    {"iident", &S::iident},
    {"FamilyName", &S::FamilyName},
    {"L", &S::L, "m", "#0.000", AtLeast(0.05, " L >= 0.050 ")},
    {"E", &S::E, "MPa", "0.00E+0", AtLeast(1000, " 1000 <= E-modulus ")},
    {"density", &S::density, "kg/m3", "#0"},
    {"MaterialIndex", &S::MaterialIndex},
    {"fyk", &S::fyk, "MPa", "#00", Between(50, 2000, " 50 <= fyk <= 2000 ")},
    {"gammam1", &S::gammam1, "", "#0.00", Between(0.5, 1.5, " 0.5 <= gammam1 <=1.5 ")},
    {"fd", &S::fd, "MPa", "#00.0"},
    {"epsilon", &S::epsilon, "", "#0.000"},
    {"SupportType", &S::SupportType},
    {"SpringRestraint", &S::SpringRestraint, "%", "#0",
     Between(0, 100, " 1 < Spring-restraint  > 99 ")},
    {"EndStiffener", &S::EndStiffener},
    {"WebStiffener", &S::WebStiffener},
    {"a_webstiff", &S::a_webstiff, "mm", "#0", Following(WebStiffenerLimit)},
    {"AnalysisMode", &S::AnalysisMode},
    {"BendingCapacityMode", &S::BendingCapacityMode},
    {"SectionControlMode", &S::SectionControlMode},
    {"IgnoreWebBuckling", &S::IgnoreWebBuckling},
    {"IgnoreFlangeBuckling", &S::IgnoreFlangeBuckling},
    {"ModalAnalysis", &S::ModalAnalysis},
    {"DeflectionLimit", &S::DeflectionLimit, "", "#0",
     Between(100, 1500, "100 <= Deflection <=1500 ")},
    {"iufa", &S::iufa, "", "#0.00", Between(0.3, 2, " 0.3 < IR < 2.0 ")},
    {"islend_limit", &S::islend_limit, "", "#0", Between(50, 1000, "50 <= Deflection <=1000 ")},
    {"check_slend", &S::check_slend},
    {"bly", &S::bly, "", "#0.00", AtLeast(0.2, " Buckling length factor Y-axis >= 0.2 ")},
    {"blz", &S::blz, "", "#0.00", AtLeast(0.2, " Buckling length factor Z-axis >= 0.2 ")},
    {"BucklingCaseY", &S::BucklingCaseY},
    {"BucklingCaseZ", &S::BucklingCaseZ},
    {"BucklingCurveY", &S::BucklingCurveY},
    {"BucklingCurveZ", &S::BucklingCurveZ},
    {"ManualBucklingCurves", &S::ManualBucklingCurves},
    {"LateralTorsionalBuckling", &S::LateralTorsionalBuckling},
    {"LateralBucklingCase", &S::LateralBucklingCase},
    {"k_ltb", &S::k_ltb, "", "#0.00", Following(LateralFactorLimit)},
    {"LtbSegments", &S::LtbSegments},
    {"LtbCriticalSegment", &S::LtbCriticalSegment},
    {"CFactorManual", &S::CFactorManual},
    {"C1i", &S::C1i, "", "0.000", Between(0.2, 4, " 0.2 <= C1i <= 4 ")},
    {"C2i", &S::C2i, "", "0.000", Between(0, 4, " 0 <= C2i <= 4 ")},
    {"C3i", &S::C3i, "", "0.000", Between(0, 4, " 0 <= C3i <= 4 ")},
    {"LoadLevel", &S::LoadLevel},
    {"Za", &S::Za, "mm", "#0"},
    {"lfp_uls", &S::lfp_uls, "", "#0.00", kLoadFactor},
    {"lfv1_uls", &S::lfv1_uls, "", "#0.00", kLoadFactor},
    {"lfv2_uls", &S::lfv2_uls, "", "#0.00", kLoadFactor},
    {"lfp_sls", &S::lfp_sls, "", "#0.00", kLoadFactor},
    {"lfv1_sls", &S::lfv1_sls, "", "#0.00", kLoadFactor},
    {"lfv2_sls", &S::lfv2_sls, "", "#0.00", kLoadFactor},
    {"lfsw_uls", &S::lfsw_uls, "", "#0.00"},
    {"NP", &S::NP, "kN", "#0.0"},
    {"NV1", &S::NV1, "kN", "#0.0"},
    {"NV2", &S::NV2, "kN", "#0.0"},
    {"q1", &S::q1, "kN/m", "#0.0"},
    {"q1_pv", &S::q1_pv},
    {"q1_yz", &S::q1_yz},
    {"q2", &S::q2, "kN/m", "#0.0"},
    {"q2_pv", &S::q2_pv},
    {"q2_yz", &S::q2_yz},
    {"q3", &S::q3, "kN/m", "#0.0"},
    {"q3_pv", &S::q3_pv},
    {"q3_yz", &S::q3_yz},
    {"q4", &S::q4, "kN/m", "#0.0"},
    {"q4_pv", &S::q4_pv},
    {"q4_yz", &S::q4_yz},
    {"qt1_1", &S::qt1_1, "kN/m", "#0.0"},
    {"qt1_2", &S::qt1_2, "kN/m", "#0.0"},
    {"qt1_x1", &S::qt1_x1, "m", "#0.000", Following(TrapezoidX1), &S::qtx_relative,
     Refusal::BecomesZero},
    {"qt1_x2", &S::qt1_x2, "m", "#0.000", Following(TrapezoidX2), &S::qtx_relative,
     Refusal::BecomesZero},
    {"qt1_pv", &S::qt1_pv},
    {"qt1_yz", &S::qt1_yz},
    {"qt2_1", &S::qt2_1, "kN/m", "#0.0"},
    {"qt2_2", &S::qt2_2, "kN/m", "#0.0"},
    {"qt2_x1", &S::qt2_x1, "m", "#0.000", Following(TrapezoidX1), &S::qtx_relative,
     Refusal::BecomesZero},
    {"qt2_x2", &S::qt2_x2, "m", "#0.000", Following(TrapezoidX2), &S::qtx_relative,
     Refusal::BecomesZero},
    {"qt2_pv", &S::qt2_pv},
    {"qt2_yz", &S::qt2_yz},
    {"qt3_1", &S::qt3_1, "kN/m", "#0.0"},
    {"qt3_2", &S::qt3_2, "kN/m", "#0.0"},
    {"qt3_x1", &S::qt3_x1, "m", "#0.000", Following(TrapezoidX1), &S::qtx_relative,
     Refusal::BecomesZero},
    {"qt3_x2", &S::qt3_x2, "m", "#0.000", Following(TrapezoidX1), &S::qtx_relative,
     Refusal::BecomesZero},
    {"qt3_pv", &S::qt3_pv},
    {"qt3_yz", &S::qt3_yz},
    {"pm_pm", &S::pm_pm},
    {"pm", &S::pm, "kN, kNm", "#0.0"},
    {"pmx", &S::pmx, "m", "#0.000", Following(ItemX), &S::pmx_relative, Refusal::BecomesZero},
    {"pm_pv", &S::pm_pv},
    {"pm_yz", &S::pm_yz},
    {"SelfWeight", &S::SelfWeight},
    {"pmx_relative", &S::pmx_relative},
    {"qtx_relative", &S::qtx_relative},
    {"Ne", &S::Ne, "kN", "#0.0"},
    {"My_end", &S::My_end, "kNm", "#0.0"},
    {"Mz_end", &S::Mz_end, "kNm", "#0.0"},
    {"Vy_end", &S::Vy_end, "kN", "#0.0"},
    {"Vz_end", &S::Vz_end, "kN", "#0.0"},
    {"cp_mode", &S::cp_mode},
    {"cp_count", &S::cp_count},
    {"cp_relative", &S::cp_relative},
    {"cp_x", &S::cp_x, "m", "#0.000", Following(PointX), &S::cp_relative},
    {"ProfileType", &S::ProfileType},
    {"RhsOrientation", &S::RhsOrientation},
    {"HsqKind", &S::HsqKind},
    {"idxHEA", &S::idxHEA},
    {"idxHEB", &S::idxHEB},
    {"idxHEM", &S::idxHEM},
    {"idxIPE", &S::idxIPE},
    {"idxUPE", &S::idxUPE},
    {"idxRHSs", &S::idxRHSs},
    {"idxRHSr", &S::idxRHSr},
    {"idxCFRHSs", &S::idxCFRHSs},
    {"idxCFRHSr", &S::idxCFRHSr},
    {"idxLeq", &S::idxLeq},
    {"idxLuneq", &S::idxLuneq},
    {"idxINP", &S::idxINP},
    {"idxUNP", &S::idxUNP},
    {"p21_h", &S::p21_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p21_b", &S::p21_b, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p21_tw", &S::p21_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p21_tf", &S::p21_tf, "mm", "##0.0", AtLeast(0.1, " tf >= 0.1 ")},
    {"p22_h", &S::p22_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p22_b", &S::p22_b, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p22_b2", &S::p22_b2, "mm", "##0", AtLeast(5, " b2 >= 5 ")},
    {"p22_tw", &S::p22_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p22_tf1", &S::p22_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p22_tf2", &S::p22_tf2, "mm", "##0.0", AtLeast(0.1, " tf2 >= 0.1 ")},
    {"p23_h", &S::p23_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p23_b", &S::p23_b, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p23_tw", &S::p23_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p23_tf", &S::p23_tf, "mm", "##0.0", AtLeast(0.1, " tf >= 0.1 ")},
    {"p23_a", &S::p23_a, "mm", "##0", Following(BoxWebDistance)},
    {"BoxWeld", &S::BoxWeld},
    {"p24_h", &S::p24_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p24_b", &S::p24_b, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p24_tw", &S::p24_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p24_tf1", &S::p24_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p24_tf2", &S::p24_tf2, "mm", "##0.0", AtLeast(0.1, " tf2 >= 0.1 ")},
    {"p24_a", &S::p24_a, "mm", "##0", Following(HsqWebDistance)},
    {"p24_c", &S::p24_c, "mm", "##0.0", Following(HsqTopCut<&S::p24_tw>)},
    {"p24_load", &S::p24_load, "%", "##0", Between(50, 90, " 50% <= Load on one flange <= 90% ")},
    {"p25_h", &S::p25_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p25_b1", &S::p25_b1, "mm", "##0", Following(HsqTopWidth)},
    {"p25_b2", &S::p25_b2, "mm", "##0", AtLeast(5, " b2 >= 5 ")},
    {"p25_tw", &S::p25_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p25_tf1", &S::p25_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p25_tf2", &S::p25_tf2, "mm", "##0.0", AtLeast(0.1, " tf2 >= 0.1 ")},
    {"p25_a", &S::p25_a, "mm", "##0", AtLeast(0, " a >= 0 ")},
    {"p25_c", &S::p25_c, "mm", "##0.0", Following(HsqTopCut<&S::p25_tw>)},
    {"p26_h", &S::p26_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p26_b", &S::p26_b, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p26_tw", &S::p26_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p26_tf", &S::p26_tf, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p27_h", &S::p27_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p27_b1", &S::p27_b1, "mm", "##0", Following(BoxTopWidth)},
    {"p27_b2", &S::p27_b2, "mm", "##0", Following(BoxBottomWidth)},
    {"p27_tw", &S::p27_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p27_tf1", &S::p27_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p27_tf2", &S::p27_tf2, "mm", "##0.0", AtLeast(0.1, " tf2 >= 0.1 ")},
    {"p27_a", &S::p27_a, "mm", "##0", Following(UnequalBoxDistance)},
    {"p28_h", &S::p28_h, "mm", "##0", AtLeast(5, " h >= 5 ")},
    {"p28_tw", &S::p28_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p31_d", &S::p31_d, "mm", "##0.0", AtLeast(50, " d >= 50 ")},
    {"p31_tw", &S::p31_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"TubeKind", &S::TubeKind},
    {"p41_name", &S::p41_name},
    {"p41_option", &S::p41_option},
    {"p41_A", &S::p41_A, "mm2", "##0", AtLeast(50, " A >= 50 ")},
    {"p41_Ay", &S::p41_Ay, "mm2", "##0", AtLeast(50, " Ay >= 50 ")},
    {"p41_Az", &S::p41_Az, "mm2", "##0", AtLeast(50, " Az >= 50 ")},
    {"p41_Ix", &S::p41_Ix, "mm4", "0.000E+0", AtLeast(1000, " Ix >= 1000 ")},
    {"p41_Iy", &S::p41_Iy, "mm4", "0.000E+0", AtLeast(1000, " Iy >= 1000 ")},
    {"p41_Iz", &S::p41_Iz, "mm4", "0.000E+0", AtLeast(1000, " Iz >= 1000 ")},
    {"p41_Iw", &S::p41_Iw, "mm6", "0.000E+0", AtLeast(1000, " Iw >= 1000 ")},
    {"p41_Wely", &S::p41_Wely, "mm3", "0.000E+0", AtLeast(1000, " Wely >= 1000 ")},
    {"p41_Welz", &S::p41_Welz, "mm3", "0.000E+0", AtLeast(1000, " Welz >= 1000 ")},
    {"p41_Wply", &S::p41_Wply, "mm3", "0.000E+0", Above(1000, " 1000 < Wply ")},
    {"p41_Wplz", &S::p41_Wplz, "mm3", "0.000E+0", Above(1000, " 1000 < Wplz ")},
    {"p41_tmax", &S::p41_tmax, "mm", "##0.0"},
    {"p51_h", &S::p51_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p51_b", &S::p51_b, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p51_tw", &S::p51_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p51_tf1", &S::p51_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p52_index", &S::p52_index},
    {"p52_b1", &S::p52_b1, "mm", "##0", Above(0, " b1 > 0 ")},
    {"p52_t1", &S::p52_t1, "mm", "##0.0", AtLeast(0.1, " t1 >= 0.1 ")},
    {"p53_h", &S::p53_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p53_b1", &S::p53_b1, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p53_b2", &S::p53_b2, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p53_tw", &S::p53_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p53_tf1", &S::p53_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p53_tf2", &S::p53_tf2, "mm", "##0.0", AtLeast(0.1, " tf >= 0.1 ")},
    {"p54_index", &S::p54_index},
    {"p54_b1", &S::p54_b1, "mm", "##0", Above(0, " b1 > 0 ")},
    {"p54_t1", &S::p54_t1, "mm", "##0.0", AtLeast(0.1, " t1 >= 0.1 ")},
    {"p55_h", &S::p55_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p55_b1", &S::p55_b1, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p55_b2", &S::p55_b2, "mm", "##0", AtLeast(5, " b2 >= 5 ")},
    {"p55_tw", &S::p55_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p55_tf1", &S::p55_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p55_a", &S::p55_a, "mm", "##0", AtLeast(0, " a >= 0 ")},
    {"p56_h", &S::p56_h, "mm", "##0", AtLeast(50, " h >= 50 ")},
    {"p56_b1", &S::p56_b1, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p56_b2", &S::p56_b2, "mm", "##0", AtLeast(5, " b >= 5 ")},
    {"p56_tw", &S::p56_tw, "mm", "##0.0", AtLeast(0.1, " tw >= 0.1 ")},
    {"p56_tf1", &S::p56_tf1, "mm", "##0.0", AtLeast(0.1, " tf1 >= 0.1 ")},
    {"p56_tf2", &S::p56_tf2, "mm", "##0.0", AtLeast(0.1, " tf >= 0.1 ")},
    {"p101_sub", &S::p101_sub},
    {"p101_idx1", &S::p101_idx1},
    {"p101_idx2", &S::p101_idx2},
    {"p101_idx3", &S::p101_idx3},
    {"p102_idx", &S::p102_idx},
    {"p103_sub", &S::p103_sub},
    {"p103_idx1", &S::p103_idx1},
    {"p103_idx2", &S::p103_idx2},
    {"OptimiseOpen", &S::OptimiseOpen},
    {"ResultView", &S::ResultView},
    {"FigureNotToScale", &S::FigureNotToScale},
    {"DatabaseMode", &S::DatabaseMode},
};

template <class T>
inline constexpr bool kIsArray = false;
template <class T, int First, int Last>
inline constexpr bool kIsArray<Indexed<T, First, Last>> = true;

/// Calls use(element) with the number or text of an input.
template <class State, class Use>
void WithElement(State& st, const InputRef& input, Use&& use) {
  std::visit(
      [&](auto member) {
        if constexpr (kIsArray<std::remove_cvref_t<decltype(st.*member)>>) {
          use((st.*member)[input.element]);
        } else {
          use(st.*member);
        }
      },
      input.field->member);
}

bool IsRelative(const S& st, const InputRef& input) {
  return input.field->relative != nullptr && st.*input.field->relative == 1;
}

bool IsInteger(const InputField& field) {
  return std::holds_alternative<int16 S::*>(field.member) ||
         std::holds_alternative<Indexed<int16, 1, 8> S::*>(field.member);
}

void Store(S& st, const InputRef& input, double value) {
  WithElement(st, input, [value](auto& element) {
    using Element = std::remove_cvref_t<decltype(element)>;
    if constexpr (std::is_same_v<Element, int16>) {
      element = ToInt16(value);
    } else if constexpr (!std::is_same_v<Element, std::string>) {
      element = value;
    }
  });
}

}  // namespace

std::span<const InputField> AllInputFields() {
  return kFields;
}

const InputField* FindInputField(std::string_view name) {
  const auto* it = std::find_if(std::begin(kFields), std::end(kFields),
                                [&](const InputField& field) { return field.name == name; });
  return it == std::end(kFields) ? nullptr : it;
}

InputRef InputOf(InputMember member, int element) {
  for (const InputField& field : kFields) {
    if (field.member == member) return {&field, element};
  }
  throw std::logic_error("a member of the record that the table of inputs lacks");
}

bool IsText(const InputField& field) {
  return std::holds_alternative<std::string S::*>(field.member);
}

double StoredInput(const S& st, const InputRef& input) {
  double value = 0;
  WithElement(st, input, [&value](const auto& element) {
    if constexpr (!std::is_same_v<std::remove_cvref_t<decltype(element)>, std::string>) {
      value = element;
    }
  });
  return value;
}

double ReadInput(const S& st, const InputRef& input) {
  const double value = StoredInput(st, input);
  return IsRelative(st, input) ? value / st.L : value;
}

void PutInput(S& st, const InputRef& input, double value) {
  Store(st, input, value);
}

std::string ReadText(const S& st, const InputRef& input) {
  const auto* member = std::get_if<std::string S::*>(&input.field->member);
  return member == nullptr ? std::string() : st.**member;
}

void StoreText(S& st, const InputRef& input, const std::string& text) {
  if (const auto* member = std::get_if<std::string S::*>(&input.field->member)) st.** member = text;
}

void CopyInput(const S& from, S& to, const InputRef& input) {
  std::visit(
      [&](auto member) {
        if constexpr (kIsArray<std::remove_cvref_t<decltype(to.*member)>>) {
          (to.*member)[input.element] = (from.*member)[input.element];
        } else {
          to.*member = from.*member;
        }
      },
      input.field->member);
}

Limit LimitOf(const S& st, const InputRef& input) {
  return InForce(input.field->limit, st);
}

const char* StoreInput(S& st, const InputRef& input, double value) {
  return StoreInput(st, input, value, input.field->limit);
}

const char* StoreInput(S& st, const InputRef& input, double value, const Limit& limit) {
  Store(st, input, IsRelative(st, input) ? st.L * value : value);
  const double tested = IsInteger(*input.field) ? double(ToInt16(value)) : value;
  const Limit inForce = InForce(limit, st);
  if (Accepts(inForce, tested)) return nullptr;
  if (input.field->refusal == Refusal::BecomesZero) Store(st, input, 0);
  return inForce.message;
}

}  // namespace korvane
