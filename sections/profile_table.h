// SPDX-License-Identifier: GPL-3.0-or-later
// The one table of the 32 section families: who they are, which routines they run, and what
// catalogues, dimensions, rules and words they have.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "core/family_kinds.h"
#include "core/fixed_list.h"
#include "core/project_state.h"
#include "core/state_field.h"
#include "sections/readprofiles.h"
#include "sections/section_record.h"

namespace korvane {

/// Dimension step: row of the catalogue or typed dimensions into the record.
using LoadFn = void (*)(const ProjectState&, const Catalogues&, SectionRecord&);
/// Effective section or shear step.
using SectionFn = void (*)(const ProjectState&, SectionRecord&);
/// Class or capacities for the forces given.
using ForceFn = void (*)(const ProjectState&, const SectionForces&, SectionRecord&);

struct Family;
/// Shown capacities: runs class and capacities for nominal forces, which it leaves set.
using NominalFn = void (*)(const ProjectState&, const Family&, SectionForces&, SectionRecord&);

/// Which section control routine a family has.
enum class SectionControlKind {
  None,
  DoubleSymmetric,
  Hollow,
  EqualAngle,
  UnequalAngle,
  SingleSymmetric,
  T,
  FlatBar,
  Tube,
  Plate
};
/// Which column buckling routine a family has.
enum class BucklingKind { None, DoubleSymmetric, Hollow, Angle, SingleSymmetric, T, FlatBar, Tube };

/// The steps of a family after its dimension step. One that is left out does not exist: the
/// driver passes over the first two and the last, the checks never ask for the others.
struct RoutineSet {
  SectionFn effective = nullptr;
  SectionFn shear = nullptr;
  ForceFn sectionClass = nullptr;
  ForceFn capacities = nullptr;
  ForceFn bucklingClass = nullptr;  ///< class routine of the column buckling control
  NominalFn nominal = nullptr;
  SectionControlKind sectionControl = SectionControlKind::None;
  BucklingKind buckling = BucklingKind::None;
};

/// Which frames and options of the windows apply to a family.
struct FamilyOptions {
  bool web;             ///< stiffener options
  bool sectionControl;  ///< the section control mode
  bool bending;         ///< the bending capacity mode
  bool classFour;       ///< buckling of webs and flanges of class 4 may be left out of account
};

/// What the moment resistance against lateral buckling is worked out from; None: the step does
/// not run.
enum class LateralMethod {
  None,
  CriticalMoment,
  SinglySymmetric,
  FlatStiffener,    ///< plate carried, a flat bar compressed
  FlangedStiffener  ///< plate carried, a stiffener with a flange compressed
};

/// Lateral buckling of a family.
struct LateralRule {
  LateralMethod method = LateralMethod::None;
  double alpha = 0;            ///< imperfection factor of the reduction
  double alphaRestrained = 0;  ///< the same with restraint points
};

/// How the buckling curves of a family are chosen (Table 11); Kept: they stay as they are.
enum class CurveRule { Kept, RolledI, WeldedI, WeldedBox, Tube, A, B, C };

/// A catalogue of a family and the state's field for the chosen row in it.
struct FamilyCatalogue {
  int sub;  ///< value of the family's sub-family field, 0 where it has none
  Cat cat;
  int16 ProjectState::*index;
  const char* word = "";                  ///< of the sub-family: "UB"
  const char* page = nullptr;             ///< page word in place of the family's
  const char* shownDimensions = nullptr;  ///< in place of the family's
};

/// A typed dimension.
struct Dimension {
  StateField field{};
  const char* letter = "";  ///< as forms and figures name it
  const char* format = "";
  const char* control = nullptr;  ///< its field on the form; nullptr: named by the letter
};

/// The words of a family; they go around the dimensions in its name.
struct FamilyWords {
  const char* title = "";      ///< ahead of the typed dimensions in the name
  const char* page = nullptr;  ///< on the printed page; nullptr: the name after two blanks
  const char* pageEnd = "";    ///< behind the size there
  /// What follows the size by an option, or nullptr.
  std::string (*pageOption)(const ProjectState&) = nullptr;
  /// In the list of the project database; nullptr: the entry of the size list.
  const char* list = nullptr;
  Cat listCatalogue = Cat::Count;  ///< there: the table of the number; Count: the family's own
  const char* joints = "";         ///< there: the mark before each number but the first
  const char* listEnd = "";        ///< there: behind the numbers
  const char* wall = "tw";         ///< thickness of the web in reports
};

/// The values that a family shows: names of sections/shown_values, separated by blanks.
struct ShownLists {
  const char* dimensions = "h b tw tf r S g";
  const char* properties = "A Aeff Ix Iy Iz Iw Wely Weffy Wply Welz Weffz Wplz";
  const char* capacities = "Ntd Ncd Mdy Mdz Vdz Vdy";
  bool wholeMillimetres = false;  ///< h and b have no decimal
};

/// The outline of a family.
enum class OutlineKind {
  General,
  RolledI,
  TaperedI,
  ParallelChannel,
  TaperedChannel,
  Hollow,
  Angle,
  WeldedI,
  SingleI,
  Box,
  HsqSymmetric,
  HsqOneSided,
  T,
  BoxUnequal,
  FlatBar,
  Tube,
  PlateFlat,
  PlateAngle,
  PlateWeldedAngle,
  PlateBulb,
  PlateTrapez,
  PlateT
};

/// How a row of the optimiser shows the size.
enum class SizeText {
  Number,      ///< the designation with two digits at least: "HEA100"
  Square,      ///< side x side x thickness, columns 1, 1, 2
  Rectangular  ///< h x b x thickness, columns 1, 2, 3
};

/// A series that the optimiser searches.
struct SearchSeries {
  const char* name = nullptr;  ///< in words of the command line; nullptr: the family has no row
  const char* word = "";       ///< beginning of the name on the row
  SizeText size = SizeText::Number;
  int last = 0;  ///< last catalogue row of the search
};

/// One row of the table.
struct Family {
  int code = 0;                      ///< ProfileType
  const char* menuControl = "";      ///< "mnup01"
  const char* menuCaption = "";      ///< literal caption
  const char* form = "";             ///< "p01"
  const char* formCaption = "";      ///< literal caption of the form
  const char* familyWord = nullptr;  ///< what the menu command stores in FamilyName, or nullptr
  LoadFn load = nullptr;
  RoutineSet routines{};
  FamilyOptions options{};
  LateralRule lateral{};
  CurveRule curves = CurveRule::Kept;
  /// Of sections alike, where the family itself keeps the curves and has a buckling control.
  CurveRule likeCurves = CurveRule::Kept;
  bool clearsN = false;  ///< the driver takes the axial force off ahead of section and checks
  /// The constants are typed, and the class: there is no outline, the load acts at the centroid.
  bool givenConstants = false;
  FixedList<FamilyCatalogue, 3> catalogues{};
  int16 ProjectState::*sub = nullptr;  ///< which of several catalogues is in force
  /// Typed dimensions, those of the name first and in its order.
  FixedList<Dimension, 11> dimensions{};
  std::size_t titled = 0;  ///< how many of them stand in the name
  /// Their letters in the order of the form, separated by blanks; nullptr: as they stand.
  const char* formOrder = nullptr;
  FamilyWords words{};
  OutlineKind outline = OutlineKind::General;
  ShownLists shown{};
  SearchSeries search{};
};

/// All families in the order of their codes.
std::span<const Family> AllFamilies();

/// The family's row, or nullptr for a code that does not exist.
const Family* FindFamily(int profileType);

/// The catalogue in force: that of the sub-family chosen, the first one for a sub-family that
/// does not exist; nullptr for a family of typed dimensions.
const FamilyCatalogue* CatalogueOf(const Family& family, const ProjectState& st);

/// The catalogue of exactly this sub-family (0 where the family has none), or nullptr.
const FamilyCatalogue* CatalogueOfSub(const Family& family, int sub);

/// The dimension of a letter ("a", the distance of two webs), or nullptr.
const Dimension* DimensionOf(const Family& family, std::string_view letter);

/// The section's name as titles show it ("HEA200", "RHS 100x 100x 5", "I 600x300/12x20").
std::string SectionTitle(const ProjectState& st, const Catalogues& cat);

}  // namespace korvane
