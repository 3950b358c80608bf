// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/profile_table.h"

#include <algorithm>
#include <array>

#include "sections/capacities.h"
#include "sections/p01bas.h"
#include "sections/p05bas.h"
#include "sections/p06bas.h"
#include "sections/p10bas.h"
#include "sections/p22bas.h"
#include "sections/p23bas.h"
#include "sections/p26bas.h"
#include "sections/p31bas.h"
#include "sections/p51bas.h"

namespace korvane {

namespace {

/// The steps of a family after its dimension step.
struct RoutineSet {
  SectionFn effective, shear;
  ForceFn sectionClass, capacities, bucklingClass;
  NominalFn nominal;
  SectionControlKind sectionControl;
  BucklingKind buckling;
  bool lateral;
};

using SC = SectionControlKind;
using BK = BucklingKind;

constexpr RoutineSet kRolled{EffectiveSection,    RolledShear,         SectionClass,
                             SectionCapacities,   SectionClass,        NominalCapacities,
                             SC::DoubleSymmetric, BK::DoubleSymmetric, true};
// Column buckling classifies channels by the rolled I routine.
constexpr RoutineSet kChannel{ChannelEffectiveSection, ChannelShear,        ChannelClass,
                              SectionCapacities,       SectionClass,        NominalCapacities,
                              SC::DoubleSymmetric,     BK::DoubleSymmetric, true};
constexpr RoutineSet kHollow{BoxEffectiveSection, HollowShear, BoxClass,   BoxCapacities, BoxClass,
                             NominalCapacities,   SC::Hollow,  BK::Hollow, false};
constexpr RoutineSet kBox{BoxEffectiveSection, BoxShear,   BoxClass,   BoxCapacities, BoxClass,
                          NominalCapacities,   SC::Hollow, BK::Hollow, false};
constexpr RoutineSet kEqualAngle{
    EqualAngleCapacities, nullptr, nullptr, nullptr, nullptr, nullptr, SC::Angle, BK::Angle, false};
constexpr RoutineSet kUnequalAngle{UnequalAngleCapacities,
                                   nullptr,
                                   nullptr,
                                   nullptr,
                                   nullptr,
                                   nullptr,
                                   SC::Angle,
                                   BK::Angle,
                                   false};
constexpr RoutineSet kWelded{EffectiveSection,    WeldedShear,         WeldedClass,
                             SectionCapacities,   WeldedClass,         NominalCapacities,
                             SC::DoubleSymmetric, BK::DoubleSymmetric, true};
constexpr RoutineSet kSingle{SingleEffectiveSection, WeldedShear,         SingleClass,
                             SingleCapacities,       SingleClass,         SingleNominalCapacities,
                             SC::SingleSymmetric,    BK::SingleSymmetric, true};
constexpr RoutineSet kHsqSymmetric{HsqSymmetricEffective, TwoWebShear, HsqClass,
                                   HsqCapacities,         nullptr,     BendingNominalCapacities,
                                   SC::SingleSymmetric,   BK::None,    false};
constexpr RoutineSet kHsqOneSided{HsqOneSidedEffective, TwoWebShear, HsqClass,
                                  HsqCapacities,        nullptr,     BendingNominalCapacities,
                                  SC::SingleSymmetric,  BK::None,    false};
// The box with unequal flanges has capacities but no control of its own.
constexpr RoutineSet kBoxUnequal{
    BoxUnequalEffective,      TwoWebShear, HsqClass, HsqCapacities, nullptr,
    BendingNominalCapacities, SC::None,    BK::None, false};
constexpr RoutineSet kT{TClass, nullptr, nullptr, nullptr, nullptr, nullptr, SC::T, BK::T, false};
constexpr RoutineSet kFlatBar{FlatShear,      nullptr,     FlatClass,
                              FlatCapacities, FlatClass,   FlatNominalCapacities,
                              SC::FlatBar,    BK::FlatBar, true};
constexpr RoutineSet kTube{TubeShear, nullptr,  TubeClass, TubeCapacities, TubeClass,
                           nullptr,   SC::Tube, BK::Tube,  false};
constexpr RoutineSet kGeneral{GeneralEffective,
                              nullptr,
                              GeneralClass,
                              GeneralCapacities,
                              GeneralClass,
                              GeneralNominalCapacities,
                              SC::DoubleSymmetric,
                              BK::DoubleSymmetric,
                              true};
constexpr RoutineSet kPlateFlat{FlatStiffenerEffective,
                                WeldedShear,
                                FlatStiffenerClass,
                                FlatStiffenerCapacities,
                                nullptr,
                                BendingNominalCapacities,
                                SC::Plate,
                                BK::None,
                                true};
constexpr RoutineSet kPlateAngle{AngleStiffenerEffective,
                                 WeldedShear,
                                 SingleClass,
                                 SingleCapacities,
                                 nullptr,
                                 BendingNominalCapacities,
                                 SC::Plate,
                                 BK::None,
                                 true};
constexpr RoutineSet kPlateTrapez{TrapezEffective,  TwoWebShear, SingleClass,
                                  SingleCapacities, nullptr,     BendingNominalCapacities,
                                  SC::Plate,        BK::None,    true};
constexpr RoutineSet kPlateT{SingleEffectiveSection,
                             WeldedShear,
                             SingleClass,
                             SingleCapacities,
                             nullptr,
                             BendingNominalCapacities,
                             SC::Plate,
                             BK::None,
                             true};

/// Which frames and options of the windows apply to a family.
struct Options {
  bool web, sectionControl, bending;
};
constexpr Options kAll{true, true, true};
constexpr Options kNoWeb{false, true, true};
constexpr Options kBendingAndWeb{true, false, true};
constexpr Options kNone{false, false, false};

constexpr Family Row(int code, const char* menuControl, const char* menuCaption, const char* form,
                     const char* formCaption, const char* word, LoadFn load, const RoutineSet& r,
                     const Options& o) {
  return {code,      menuControl,      menuCaption, form,           formCaption,  word,
          load,      r.effective,      r.shear,     r.sectionClass, r.capacities, r.bucklingClass,
          r.nominal, r.sectionControl, r.buckling,  r.lateral,      o.web,        o.sectionControl,
          o.bending};
}

// clang-format off
constexpr std::array kFamilies{
  Row(1, "mnup01", "HEA", "p01", "HEA", "HEA", LoadHEA, kRolled, kAll),
  Row(2, "mnup02", "HEB", "p02", "HEB", "HEB", LoadHEB, kRolled, kAll),
  Row(3, "mnup03", "HEM", "p03", "HEM", "HEM", LoadHEM, kRolled, kAll),
  Row(4, "mnup04", "IPE", "p04", "IPE", "IPE", LoadIPE, kRolled, kAll),
  Row(5, "mnup05", "UPE", "p05", "UPE", nullptr, LoadUPE, kChannel, kNoWeb),
  Row(6, "mnup06", "RHS - Square (Hotformed)", "p06", "RHS-square - Hot formed", nullptr, LoadHotSquare, kHollow, kAll),
  Row(7, "mnup07", "RHS - Rect (Hotformed)", "p07", "RHS-reqtangular - hot formed", nullptr, LoadHotRectangular, kHollow, kAll),
  Row(8, "mnup08", "CFRHS - Square (Coldformed)", "p08", "CFRHS-square - cold formed", nullptr, LoadColdSquare, kHollow, kAll),
  Row(9, "mnup09", "CFRHS - Rect (Coldformed)", "p09", "CFRHS-reqtangular - cold formed", nullptr, LoadColdRectangular, kHollow, kAll),
  Row(10, "mnup10", "L-equal", "p10", "L-equal", nullptr, LoadEqualAngle, kEqualAngle, kNone),
  Row(11, "mnup11", "L-unequal", "p11", "L-unequal", "L-unequal", LoadUnequalAngle, kUnequalAngle, kNone),
  Row(15, "mnup15", "INP", "p15", "INP", "INP", LoadINP, kRolled, kAll),
  Row(16, "mnup16", "UNP", "p16", "UNP", nullptr, LoadUNP, kChannel, kNoWeb),
  Row(21, "mnup21", "I - double symmetric", "p21", "I - double symetric", nullptr, LoadWeldedI, kWelded, kAll),
  Row(22, "mnup22", "I - single symmetric", "p22", "I - single symmetric", nullptr, LoadSingleI, kSingle, kBendingAndWeb),
  Row(23, "mnup23", "Box ", "p23", "Box - Double symmetric", nullptr, LoadBox, kBox, kAll),
  Row(24, "mnup24", "HSQ - Symmetric flange ", "p24", "HSQ -  symmetric flanges", nullptr, LoadHsqSymmetric, kHsqSymmetric, kBendingAndWeb),
  Row(25, "mnup25", "HSQ - Non symmetric flange ", "p25", "HSQ - Non symmetric flanges", nullptr, LoadHsqOneSided, kHsqOneSided, kBendingAndWeb),
  Row(26, "mnu26", "T", "p26", "T", nullptr, LoadT, kT, kNone),
  Row(27, "mnup27", "Box - Non symmetric flanges", "p27", "BOX - Non symmetric flanges", nullptr, LoadBoxUnequal, kBoxUnequal, kBendingAndWeb),
  Row(28, "mnup28", "Flatbar", "p28", "Flatbar", nullptr, LoadFlatBar, kFlatBar, kNoWeb),
  Row(31, "mnup31", "&Tube", "p31", "Tube", nullptr, LoadTube, kTube, kNoWeb),
  Row(41, "mnup41", "&General Profile ", "p41", "General profile", nullptr, LoadGeneral, kGeneral, kNoWeb),
  Row(51, "mnu51", "Plate + Fb", "p51", "Plate + Flatbar", nullptr, LoadPlateFlat, kPlateFlat, kBendingAndWeb),
  Row(52, "mnu52", "Plate + L", "p52", "Plate + L", nullptr, LoadPlateAngle, kPlateAngle, kBendingAndWeb),
  Row(53, "mnu53", "Plate + L bult-up", "p53", "Plate + L-weld", nullptr, LoadPlateWeldedAngle, kPlateAngle, kBendingAndWeb),
  Row(54, "mnu54", "Plate + Bulb Flat", "p54", "Plate + Bulb Flat", nullptr, LoadPlateBulb, kPlateAngle, kBendingAndWeb),
  Row(55, "mnu55", "Plate + Trapez", "p55", "Plate + Trapez", nullptr, LoadPlateTrapez, kPlateTrapez, kBendingAndWeb),
  Row(56, "mnu56", "Plate + T-girder", "p56", "Plate + T-girder", nullptr, LoadPlateT, kPlateT, kBendingAndWeb),
  Row(101, "mnuu", "U", "p101", "British profile UB/UC/UBP", "U", LoadBritishU, kRolled, kAll),
  Row(102, "mnuj", "J", "p102", "British profile J", "J", LoadJ, kRolled, kAll),
  Row(103, "mnuc", "C", "p103", "British profile PFC/CH", nullptr, LoadBritishC, kChannel, kNoWeb),
};
// clang-format on

}  // namespace

std::span<const Family> AllFamilies() {
  return kFamilies;
}

const Family* FindFamily(int profileType) {
  const auto it = std::lower_bound(kFamilies.begin(), kFamilies.end(), profileType,
                                   [](const Family& f, int code) { return f.code < code; });
  return it != kFamilies.end() && it->code == profileType ? &*it : nullptr;
}

}  // namespace korvane
