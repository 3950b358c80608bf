// SPDX-License-Identifier: GPL-3.0-or-later
// What rows of the family table share: routine sets, options, lateral rules, lists of shown values.
// Read by profile_table.cpp alone.
#pragma once

#include <string>

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
#include "sections/profile_table.h"

namespace korvane::parts {

using S = ProjectState;
using SC = SectionControlKind;
using BK = BucklingKind;

inline constexpr RoutineSet kRolled{
    .effective = EffectiveSection,
    .shear = RolledShear,
    .sectionClass = SectionClass,
    .capacities = SectionCapacities,
    .bucklingClass = SectionClass,
    .nominal = NominalCapacities,
    .sectionControl = SC::DoubleSymmetric,
    .buckling = BK::DoubleSymmetric,
};
// Column buckling classifies channels by the rolled I routine.
inline constexpr RoutineSet kChannel{
    .effective = ChannelEffectiveSection,
    .shear = ChannelShear,
    .sectionClass = ChannelClass,
    .capacities = SectionCapacities,
    .bucklingClass = SectionClass,
    .nominal = NominalCapacities,
    .sectionControl = SC::DoubleSymmetric,
    .buckling = BK::DoubleSymmetric,
};
inline constexpr RoutineSet kHollow{
    .effective = BoxEffectiveSection,
    .shear = HollowShear,
    .sectionClass = BoxClass,
    .capacities = BoxCapacities,
    .bucklingClass = BoxClass,
    .nominal = NominalCapacities,
    .sectionControl = SC::Hollow,
    .buckling = BK::Hollow,
};
inline constexpr RoutineSet kBox{
    .effective = BoxEffectiveSection,
    .shear = BoxShear,
    .sectionClass = BoxClass,
    .capacities = BoxCapacities,
    .bucklingClass = BoxClass,
    .nominal = NominalCapacities,
    .sectionControl = SC::Hollow,
    .buckling = BK::Hollow,
};
inline constexpr RoutineSet kEqualAngle{
    .effective = EqualAngleCapacities,
    .shear = EqualAngleShear,
    .sectionControl = SC::EqualAngle,
    .buckling = BK::Angle,
};
inline constexpr RoutineSet kUnequalAngle{
    .effective = UnequalAngleCapacities,
    .shear = UnequalAngleShear,
    .sectionControl = SC::UnequalAngle,
    .buckling = BK::Angle,
};
inline constexpr RoutineSet kWelded{
    .effective = EffectiveSection,
    .shear = WeldedShear,
    .sectionClass = WeldedClass,
    .capacities = SectionCapacities,
    .bucklingClass = WeldedClass,
    .nominal = NominalCapacities,
    .sectionControl = SC::DoubleSymmetric,
    .buckling = BK::DoubleSymmetric,
};
inline constexpr RoutineSet kSingle{
    .effective = SingleEffectiveSection,
    .shear = WeldedShear,
    .sectionClass = SingleClass,
    .capacities = SingleCapacities,
    .bucklingClass = SingleClass,
    .nominal = SingleNominalCapacities,
    .sectionControl = SC::SingleSymmetric,
    .buckling = BK::SingleSymmetric,
};
inline constexpr RoutineSet kHsqSymmetric{
    .effective = HsqSymmetricEffective,
    .shear = TwoWebShear,
    .sectionClass = HsqClass,
    .capacities = HsqCapacities,
    .nominal = BendingNominalCapacities,
    .sectionControl = SC::SingleSymmetric,
};
inline constexpr RoutineSet kHsqOneSided{
    .effective = HsqOneSidedEffective,
    .shear = TwoWebShear,
    .sectionClass = HsqClass,
    .capacities = HsqCapacities,
    .nominal = BendingNominalCapacities,
    .sectionControl = SC::SingleSymmetric,
};
// The box with unequal flanges has capacities but no control of its own.
inline constexpr RoutineSet kBoxUnequal{
    .effective = BoxUnequalEffective,
    .shear = TwoWebShear,
    .sectionClass = BoxUnequalClass,
    .capacities = BoxUnequalCapacities,
    .nominal = BendingNominalCapacities,
};
inline constexpr RoutineSet kT{
    .effective = TClass,
    .sectionControl = SC::T,
    .buckling = BK::T,
};
inline constexpr RoutineSet kFlatBar{
    .shear = FlatShear,
    .sectionClass = FlatClass,
    .capacities = FlatCapacities,
    .bucklingClass = FlatClass,
    .nominal = FlatNominalCapacities,
    .sectionControl = SC::FlatBar,
    .buckling = BK::FlatBar,
};
inline constexpr RoutineSet kTube{
    .shear = TubeShear,
    .sectionClass = TubeClass,
    .capacities = TubeCapacities,
    .bucklingClass = TubeClass,
    .sectionControl = SC::Tube,
    .buckling = BK::Tube,
};
inline constexpr RoutineSet kGeneral{
    .effective = GeneralEffective,
    .sectionClass = GeneralClass,
    .capacities = GeneralCapacities,
    .bucklingClass = GeneralClass,
    .nominal = GeneralNominalCapacities,
    .sectionControl = SC::DoubleSymmetric,
    .buckling = BK::DoubleSymmetric,
};
inline constexpr RoutineSet kPlateFlat{
    .effective = FlatStiffenerEffective,
    .shear = WeldedShear,
    .sectionClass = FlatStiffenerClass,
    .capacities = FlatStiffenerCapacities,
    .nominal = BendingNominalCapacities,
    .sectionControl = SC::Plate,
};
inline constexpr RoutineSet kPlateAngle{
    .effective = AngleStiffenerEffective,
    .shear = WeldedShear,
    .sectionClass = SingleClass,
    .capacities = SingleCapacities,
    .nominal = BendingNominalCapacities,
    .sectionControl = SC::Plate,
};
inline constexpr RoutineSet kPlateTrapez{
    .effective = TrapezEffective,
    .shear = TwoWebShear,
    .sectionClass = SingleClass,
    .capacities = SingleCapacities,
    .nominal = BendingNominalCapacities,
    .sectionControl = SC::Plate,
};
inline constexpr RoutineSet kPlateT{
    .effective = SingleEffectiveSection,
    .shear = WeldedShear,
    .sectionClass = SingleClass,
    .capacities = SingleCapacities,
    .nominal = BendingNominalCapacities,
    .sectionControl = SC::Plate,
};

inline constexpr FamilyOptions kAll{
    .web = true, .sectionControl = true, .bending = true, .classFour = true};
inline constexpr FamilyOptions kNoWeb{
    .web = false, .sectionControl = true, .bending = true, .classFour = true};
inline constexpr FamilyOptions kNoWebNoClassFour{
    .web = false, .sectionControl = true, .bending = true, .classFour = false};
inline constexpr FamilyOptions kBendingAndWeb{
    .web = true, .sectionControl = false, .bending = true, .classFour = true};
inline constexpr FamilyOptions kClassFourAlone{
    .web = false, .sectionControl = false, .bending = false, .classFour = true};
inline constexpr FamilyOptions kNone{
    .web = false, .sectionControl = false, .bending = false, .classFour = false};

inline constexpr LateralRule kLateralRolled{LateralMethod::CriticalMoment, 0.21, 0.21};
inline constexpr LateralRule kLateralWelded{LateralMethod::CriticalMoment, 0.49, 0.49};
inline constexpr LateralRule kLateralGeneral{LateralMethod::CriticalMoment, 0.49, 0.21};
inline constexpr LateralRule kLateralSingle{LateralMethod::SinglySymmetric, 0.49, 0.21};
// The reduction of a compressed stiffener has no imperfection factor.
inline constexpr LateralRule kLateralFlat{.method = LateralMethod::FlatStiffener};
inline constexpr LateralRule kLateralFlanged{.method = LateralMethod::FlangedStiffener};

inline constexpr const char* kIProperties = ShownLists{}.properties;
inline constexpr const char* kICapacities = ShownLists{}.capacities;
inline constexpr const char* kSideProperties =
    "A Aeff Ix Iy Iz Iw Wely1 Wely2 Wply Weffy1c Weffy1t Weffy2c Weffy2t";
inline constexpr const char* kSideCapacities = "MdyTop MdyBottom Vdz";
inline constexpr const char* kAngleProperties = "A Aeff Ix Iy Iz Iu Iv Wu1 Wv2 alfa";
inline constexpr const char* kRoundProperties = "A Ix Iy Iz Wely Wply Welz Wplz";
inline constexpr const char* kWorkCapacities = "Ntd Ncrd MdyWork MdzWork VdzWork VdyWork";

inline constexpr ShownLists kChannelShown{"h b tw tf r e es S g", kIProperties, kICapacities};
inline constexpr ShownLists kTaperedChannelShown{"h b tw tf r1 r2 e es S g", kIProperties,
                                                 kICapacities};
inline constexpr ShownLists kHollowShown{
    "h b t r S g", "A Aeff Ix Iy Iz Wely Weffy Wply Welz Weffz Wplz", kICapacities, true};
inline constexpr ShownLists kBoxShown{"h b tw tf S g", kIProperties, kICapacities};
inline constexpr ShownLists kEqualAngleShown{"h b t r ey ez u1 u2 v1 S g", kAngleProperties,
                                             "Ntd Ncrd Mud1 Mud3 Mvd1 Mvd2 Mvd3 VdzWork VdyWork"};
inline constexpr ShownLists kUnequalAngleShown{
    "h b t r ey ez u1 u2 v1 v2 S g", kAngleProperties,
    "Ntd Ncrd Mud1 Mud2 Mud3 Mvd1 Mvd2 Mvd3 VdzWork VdyWork"};
inline constexpr ShownLists kSingleShown{"h b1 b2 tw tf1 tf2 ez-el ez-pl zs S g", kSideProperties,
                                         "Ntd Ncd MdyTop MdyBottom Vdz Vdy"};
inline constexpr ShownLists kHsqSymmetricShown{"h b tw tf1 tf2 ez-el ez-pl S g", kSideProperties,
                                               kSideCapacities};
inline constexpr ShownLists kSidesShown{"h b1 b2 tw tf1 tf2 ez-el ez-pl S g", kSideProperties,
                                        kSideCapacities};
inline constexpr ShownLists kTShown{"h b tw tf ez-el ez-pl S g",
                                    "A Aeff Ix Iy Iz Iw Wely1 Wely2 Wply Welz", "Ntd Ncrd"};
inline constexpr ShownLists kFlatBarShown{"h tw S g", kRoundProperties, kICapacities};
inline constexpr ShownLists kTubeShown{"d t S g", kRoundProperties, kWorkCapacities};
inline constexpr ShownLists kGeneralShown{"S", "A Avy Avz Ix Iy Iz Iw Wely Wply Welz Wplz",
                                          kWorkCapacities};
inline constexpr ShownLists kPlateFlatShown{"h b1 tw tf1 ez-el ez-pl S g", kSideProperties,
                                            kSideCapacities};
inline constexpr ShownLists kPlateAngleShown{"h b1 b2 tw tf1 tf2 r1 r2 ez-el ez-pl S g",
                                             kSideProperties, kSideCapacities};
inline constexpr ShownLists kPlateTShown{"h b1 b2 tw tf1 tf2 ez-el ez-pl zs S g", kSideProperties,
                                         kSideCapacities};

inline constexpr const char* kSize = "##0";
inline constexpr const char* kThickness = "##0.0";
inline constexpr const char* kPower = "0.000E+0";

/// What stands behind a tube's size on the printed page: how it was made.
inline std::string TubeEnd(const ProjectState& st) {
  return st.TubeKind == 1 ? " (Hot formed)" : " (Cold formed)";
}

/// The name typed for a section with given constants.
inline std::string GeneralName(const ProjectState& st) {
  return st.p41_name;
}

}  // namespace korvane::parts
