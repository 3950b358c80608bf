// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/profile_table.h"

#include <algorithm>
#include <array>

#include "sections/family_parts.h"

namespace korvane {

namespace {

using namespace parts;

// clang-format off
constexpr auto kFamilies = std::to_array<Family>({
  {.code = 1, .menuControl = "mnup01", .menuCaption = "HEA", .form = "p01", .formCaption = "HEA", .familyWord = "HEA",
   .load = LoadHEA, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .curves = CurveRule::RolledI,
   .catalogues = {{0, Cat::HEA, &S::idxHEA}},
   .words = {.list = "HEA "},
   .outline = OutlineKind::RolledI, .search = {"HEA", "HEA", SizeText::Number, 23}},
  {.code = 2, .menuControl = "mnup02", .menuCaption = "HEB", .form = "p02", .formCaption = "HEB", .familyWord = "HEB",
   .load = LoadHEB, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .curves = CurveRule::RolledI,
   .catalogues = {{0, Cat::HEB, &S::idxHEB}},
   .words = {.list = "HEB "},
   .outline = OutlineKind::RolledI, .search = {"HEB", "HEB", SizeText::Number, 23}},
  {.code = 3, .menuControl = "mnup03", .menuCaption = "HEM", .form = "p03", .formCaption = "HEM", .familyWord = "HEM",
   .load = LoadHEM, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .curves = CurveRule::RolledI,
   .catalogues = {{0, Cat::HEM, &S::idxHEM}},
   .words = {.list = "HEM "},
   .outline = OutlineKind::RolledI, .search = {"HEM", "HEM", SizeText::Number, 23}},
  {.code = 4, .menuControl = "mnup04", .menuCaption = "IPE", .form = "p04", .formCaption = "IPE", .familyWord = "IPE",
   .load = LoadIPE, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .curves = CurveRule::RolledI,
   .catalogues = {{0, Cat::IPE, &S::idxIPE}},
   .words = {.list = "IPE "},
   .outline = OutlineKind::RolledI, .search = {"IPE", "IPE", SizeText::Number, 17}},
  {.code = 5, .menuControl = "mnup05", .menuCaption = "UPE", .form = "p05", .formCaption = "UPE",
   .load = LoadUPE, .routines = kChannel, .options = kNoWeb, .lateral = kLateralRolled, .curves = CurveRule::C,
   .catalogues = {{0, Cat::UPE, &S::idxUPE}},
   .words = {.page = "  UPE ", .list = "UPE "},
   .outline = OutlineKind::ParallelChannel, .shown = kChannelShown, .search = {"UPE", "UPE", SizeText::Number, 13}},
  {.code = 6, .menuControl = "mnup06", .menuCaption = "RHS - Square (Hotformed)", .form = "p06", .formCaption = "RHS-square - Hot formed",
   .load = LoadHotSquare, .routines = kHollow, .options = kAll, .curves = CurveRule::A,
   .catalogues = {{0, Cat::SHS, &S::idxRHSs}},
   .words = {.page = "  RHS ", .pageEnd = " (Hotf.)"},
   .outline = OutlineKind::Hollow, .shown = kHollowShown, .search = {"SHS", "RHS ", SizeText::Square, 100}},
  {.code = 7, .menuControl = "mnup07", .menuCaption = "RHS - Rect (Hotformed)", .form = "p07", .formCaption = "RHS-reqtangular - hot formed",
   .load = LoadHotRectangular, .routines = kHollow, .options = kAll, .curves = CurveRule::A,
   .catalogues = {{0, Cat::RHS, &S::idxRHSr}},
   .words = {.page = "  RHS ", .pageEnd = " (Hotf.)"},
   .outline = OutlineKind::Hollow, .shown = kHollowShown, .search = {"RHS", "RHS", SizeText::Rectangular, 157}},
  {.code = 8, .menuControl = "mnup08", .menuCaption = "CFRHS - Square (Coldformed)", .form = "p08", .formCaption = "CFRHS-square - cold formed",
   .load = LoadColdSquare, .routines = kHollow, .options = kAll, .curves = CurveRule::B,
   .catalogues = {{0, Cat::CFSHS, &S::idxCFRHSs}},
   .words = {.page = "  CHRHS-Sq ", .pageEnd = " (Coldf.)"},
   .outline = OutlineKind::Hollow, .shown = kHollowShown, .search = {"CFSHS", "CHRHS", SizeText::Rectangular, 98}},
  {.code = 9, .menuControl = "mnup09", .menuCaption = "CFRHS - Rect (Coldformed)", .form = "p09", .formCaption = "CFRHS-reqtangular - cold formed",
   .load = LoadColdRectangular, .routines = kHollow, .options = kAll, .curves = CurveRule::B,
   .catalogues = {{0, Cat::CFRHS, &S::idxCFRHSr}},
   .words = {.page = "  CFRHS-Rec ", .pageEnd = " (Coldf.)"},
   .outline = OutlineKind::Hollow, .shown = kHollowShown, .search = {"CFRHS", "CFRHS", SizeText::Rectangular, 115}},
  {.code = 10, .menuControl = "mnup10", .menuCaption = "L-equal", .form = "p10", .formCaption = "L-equal",
   .load = LoadEqualAngle, .routines = kEqualAngle, .options = kNone, .curves = CurveRule::C,
   .catalogues = {{0, Cat::L1, &S::idxLeq}},
   .words = {.page = "  L "},
   .outline = OutlineKind::Angle, .shown = kEqualAngleShown, .search = {"L1", "L ", SizeText::Square, 59}},
  {.code = 11, .menuControl = "mnup11", .menuCaption = "L-unequal", .form = "p11", .formCaption = "L-unequal", .familyWord = "L-unequal",
   .load = LoadUnequalAngle, .routines = kUnequalAngle, .options = kNone, .curves = CurveRule::C,
   .catalogues = {{0, Cat::L2, &S::idxLuneq}},
   .words = {.page = "  L "},
   .outline = OutlineKind::Angle, .shown = kUnequalAngleShown, .search = {"L2", "L ", SizeText::Rectangular, 48}},
  {.code = 15, .menuControl = "mnup15", .menuCaption = "INP", .form = "p15", .formCaption = "INP", .familyWord = "INP",
   .load = LoadINP, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .curves = CurveRule::RolledI,
   .catalogues = {{0, Cat::INP, &S::idxINP}},
   .words = {.list = "INP "},
   .outline = OutlineKind::TaperedI},
  {.code = 16, .menuControl = "mnup16", .menuCaption = "UNP", .form = "p16", .formCaption = "UNP",
   .load = LoadUNP, .routines = kChannel, .options = kNoWeb, .lateral = kLateralRolled, .curves = CurveRule::C,
   .catalogues = {{0, Cat::UNP, &S::idxUNP}},
   // The list shows the number of the same row in the table of UPE: kept as it always was.
   .words = {.page = "  UNP ", .list = "UNP ", .listCatalogue = Cat::UPE},
   .outline = OutlineKind::TaperedChannel, .shown = kTaperedChannelShown},
  {.code = 21, .menuControl = "mnup21", .menuCaption = "I - double symmetric", .form = "p21", .formCaption = "I - double symetric",
   .load = LoadWeldedI, .routines = kWelded, .options = kAll, .lateral = kLateralWelded, .curves = CurveRule::WeldedI,
   .dimensions = {{&S::p21_h, "h", kSize}, {&S::p21_b, "b", kSize}, {&S::p21_tw, "tw", kThickness},
                  {&S::p21_tf, "tf", kThickness}}, .titled = 4, .formOrder = "h b tf tw",
   .words = {.title = "I ", .page = "  I  ", .list = "I ", .joints = "x/x"},
   .outline = OutlineKind::WeldedI},
  {.code = 22, .menuControl = "mnup22", .menuCaption = "I - single symmetric", .form = "p22", .formCaption = "I - single symmetric",
   .load = LoadSingleI, .routines = kSingle, .options = kBendingAndWeb, .lateral = kLateralSingle, .curves = CurveRule::WeldedI,
   .dimensions = {{&S::p22_h, "h", kSize}, {&S::p22_b, "b1", kSize}, {&S::p22_b2, "b2", kSize},
                  {&S::p22_tw, "tw", kThickness}, {&S::p22_tf1, "tf1", kThickness},
                  {&S::p22_tf2, "tf2", kThickness}}, .titled = 6, .formOrder = "h b1 b2 tf1 tf2 tw",
   .words = {.title = "I ", .page = "  I ", .list = "I ", .joints = "x/xxx", .listEnd = "  (Single symm.)"},
   .outline = OutlineKind::SingleI, .shown = kSingleShown},
  {.code = 23, .menuControl = "mnup23", .menuCaption = "Box ", .form = "p23", .formCaption = "Box - Double symmetric",
   .load = LoadBox, .routines = kBox, .options = kAll, .curves = CurveRule::WeldedBox,
   .dimensions = {{&S::p23_h, "h", kSize}, {&S::p23_b, "b", kSize}, {&S::p23_tw, "tw", kThickness},
                  {&S::p23_tf, "tf", kThickness}, {&S::p23_a, "a", kSize}}, .titled = 4, .formOrder = "h b a tf tw",
   .words = {.title = "Box ", .page = "  Box ", .list = "Box ", .joints = "xxxx"},
   .outline = OutlineKind::Box, .shown = kBoxShown},
  {.code = 24, .menuControl = "mnup24", .menuCaption = "HSQ - Symmetric flange ", .form = "p24", .formCaption = "HSQ -  symmetric flanges",
   .load = LoadHsqSymmetric, .routines = kHsqSymmetric, .options = kBendingAndWeb, .clearsN = true,
   .dimensions = {{&S::p24_h, "h", kSize}, {&S::p24_b, "b", kSize}, {&S::p24_tw, "tw", kThickness},
                  {&S::p24_tf1, "tf1", kThickness}, {&S::p24_tf2, "tf2", kThickness},
                  {&S::p24_a, "a", kSize}, {&S::p24_c, "c", kThickness}}, .titled = 5, .formOrder = "h b a c tf1 tf2 tw",
   .words = {.title = "HSQ ", .page = " HSQ ", .list = "HSQ ", .joints = "xxxxxx", .listEnd = "  (Symm fl)"},
   .outline = OutlineKind::HsqSymmetric, .shown = kHsqSymmetricShown},
  {.code = 25, .menuControl = "mnup25", .menuCaption = "HSQ - Non symmetric flange ", .form = "p25", .formCaption = "HSQ - Non symmetric flanges",
   .load = LoadHsqOneSided, .routines = kHsqOneSided, .options = kBendingAndWeb, .clearsN = true,
   .dimensions = {{&S::p25_h, "h", kSize}, {&S::p25_b1, "b1", kSize}, {&S::p25_b2, "b2", kSize},
                  {&S::p25_tw, "tw", kThickness}, {&S::p25_tf1, "tf1", kThickness},
                  {&S::p25_tf2, "tf2", kThickness}, {&S::p25_a, "a", kSize},
                  {&S::p25_c, "c", kThickness}}, .titled = 6, .formOrder = "h b1 b2 a c tf1 tf2 tw",
   .words = {.title = "HSQ ", .page = " HSQ ", .list = "HSQ ", .joints = "xxxxxxx", .listEnd = "  (Non symm fl)"},
   .outline = OutlineKind::HsqOneSided, .shown = kSidesShown},
  {.code = 26, .menuControl = "mnu26", .menuCaption = "T", .form = "p26", .formCaption = "T",
   .load = LoadT, .routines = kT, .options = kClassFourAlone, .curves = CurveRule::C,
   .dimensions = {{&S::p26_h, "h", kSize}, {&S::p26_b, "b", kSize}, {&S::p26_tw, "tw", kThickness},
                  {&S::p26_tf, "tf", kThickness, "isttf1"}}, .titled = 4, .formOrder = "h b tf tw",
   .words = {.title = "T ", .page = "  T ", .list = "T ", .joints = "xxx"},
   .outline = OutlineKind::T, .shown = kTShown},
  {.code = 27, .menuControl = "mnup27", .menuCaption = "Box - Non symmetric flanges", .form = "p27", .formCaption = "BOX - Non symmetric flanges",
   .load = LoadBoxUnequal, .routines = kBoxUnequal, .options = kBendingAndWeb,
   .dimensions = {{&S::p27_h, "h", kSize}, {&S::p27_b1, "b1", kSize}, {&S::p27_b2, "b2", kSize},
                  {&S::p27_tw, "tw", kThickness}, {&S::p27_tf1, "tf1", kThickness},
                  {&S::p27_tf2, "tf2", kThickness}, {&S::p27_a, "a", kSize}}, .titled = 6, .formOrder = "h b1 b2 a tf1 tf2 tw",
   .words = {.title = "Box ", .page = "  Box ", .list = "BOX ", .joints = "xxxxxx", .listEnd = "  (Single sym)"},
   .outline = OutlineKind::BoxUnequal, .shown = kSidesShown},
  {.code = 28, .menuControl = "mnup28", .menuCaption = "Flatbar", .form = "p28", .formCaption = "Flatbar",
   .load = LoadFlatBar, .routines = kFlatBar, .options = kNoWebNoClassFour, .lateral = kLateralRolled, .curves = CurveRule::C,
   .dimensions = {{&S::p28_h, "h", kSize}, {&S::p28_tw, "tw", kThickness}}, .titled = 2,
   .words = {.title = "Fb ", .page = "  Fb ", .list = "Fb ", .joints = "x"},
   .outline = OutlineKind::FlatBar, .shown = kFlatBarShown},
  {.code = 31, .menuControl = "mnup31", .menuCaption = "&Tube", .form = "p31", .formCaption = "Tube",
   .load = LoadTube, .routines = kTube, .options = kNoWebNoClassFour, .curves = CurveRule::Tube,
   .dimensions = {{&S::p31_d, "d", kThickness}, {&S::p31_tw, "tw", kThickness}}, .titled = 2,
   .words = {.title = "Tube ", .page = "  Tube ", .pageOption = TubeEnd, .list = "Tube ", .joints = "x", .wall = "t"},
   .outline = OutlineKind::Tube, .shown = kTubeShown},
  {.code = 41, .menuControl = "mnup41", .menuCaption = "&General Profile ", .form = "p41", .formCaption = "General profile",
   .load = LoadGeneral, .routines = kGeneral, .options = kNoWebNoClassFour, .lateral = kLateralGeneral,
   .likeCurves = CurveRule::C, .givenConstants = true,
   .dimensions = {{&S::p41_A, "Ax", kSize}, {&S::p41_Ay, "Ay", kSize}, {&S::p41_Az, "Az", kSize},
                  {&S::p41_Iy, "Iy", kPower}, {&S::p41_Iz, "Iz", kPower},
                  {&S::p41_Ix, "Ix", kPower}, {&S::p41_Iw, "Iw", kPower},
                  {&S::p41_Wely, "Wely", kPower}, {&S::p41_Welz, "Welz", kPower},
                  {&S::p41_Wply, "Wply", kPower}, {&S::p41_Wplz, "Wplz", kPower}},
   .words = {.title = "General profile", .page = "Identification: ", .pageOption = GeneralName, .list = "General - "},
   .shown = kGeneralShown},
  {.code = 51, .menuControl = "mnu51", .menuCaption = "Plate + Fb", .form = "p51", .formCaption = "Plate + Flatbar",
   .load = LoadPlateFlat, .routines = kPlateFlat, .options = kBendingAndWeb, .lateral = kLateralFlat, .clearsN = true,
   .dimensions = {{&S::p51_b, "b1", kSize}, {&S::p51_tf1, "tf1", kThickness},
                  {&S::p51_h, "h", kSize}, {&S::p51_tw, "t", kThickness}}, .titled = 4,
   .words = {.title = "Plate + Fb ", .page = " Plate + Fb ", .list = "PLate + Fb ", .joints = "xxx", .wall = "t"},
   .outline = OutlineKind::PlateFlat, .shown = kPlateFlatShown},
  {.code = 52, .menuControl = "mnu52", .menuCaption = "Plate + L", .form = "p52", .formCaption = "Plate + L",
   .load = LoadPlateAngle, .routines = kPlateAngle, .options = kBendingAndWeb, .lateral = kLateralFlanged, .clearsN = true,
   .catalogues = {{0, Cat::L3, &S::p52_index}},
   .dimensions = {{&S::p52_b1, "b1", kSize}, {&S::p52_t1, "t1", kThickness}}, .titled = 2,
   .words = {.title = "Plate + ", .page = " Plate + L ", .list = "PLate + L ", .joints = "x", .wall = "t"},
   .outline = OutlineKind::PlateAngle, .shown = kPlateAngleShown},
  {.code = 53, .menuControl = "mnu53", .menuCaption = "Plate + L bult-up", .form = "p53", .formCaption = "Plate + L-weld",
   .load = LoadPlateWeldedAngle, .routines = kPlateAngle, .options = kBendingAndWeb, .lateral = kLateralFlanged, .clearsN = true,
   .dimensions = {{&S::p53_b1, "b1", kSize}, {&S::p53_tf1, "tf1", kThickness},
                  {&S::p53_h, "h", kSize}, {&S::p53_b2, "b2", kSize},
                  {&S::p53_tw, "tw", kThickness}, {&S::p53_tf2, "tf2", kThickness}}, .titled = 6, .formOrder = "h b1 b2 tf1 tf2 tw",
   .words = {.title = "Plate + L ", .page = " Plate + L ", .list = "PLate + L ", .joints = "xxxxx", .wall = "t"},
   .outline = OutlineKind::PlateWeldedAngle, .shown = kSidesShown},
  {.code = 54, .menuControl = "mnu54", .menuCaption = "Plate + Bulb Flat", .form = "p54", .formCaption = "Plate + Bulb Flat",
   .load = LoadPlateBulb, .routines = kPlateAngle, .options = kBendingAndWeb, .lateral = kLateralFlanged, .clearsN = true,
   .catalogues = {{0, Cat::HP, &S::p54_index}},
   .dimensions = {{&S::p54_b1, "b1", kSize}, {&S::p54_t1, "t1", kThickness}}, .titled = 2,
   .words = {.title = "Plate + ", .page = " Plate + BF ", .list = "PLate + BF ", .joints = "x", .wall = "t"},
   .outline = OutlineKind::PlateBulb, .shown = kSidesShown},
  {.code = 55, .menuControl = "mnu55", .menuCaption = "Plate + Trapez", .form = "p55", .formCaption = "Plate + Trapez",
   .load = LoadPlateTrapez, .routines = kPlateTrapez, .options = kBendingAndWeb, .lateral = kLateralFlanged, .clearsN = true,
   .dimensions = {{&S::p55_b1, "b1", kSize}, {&S::p55_tf1, "tf1", kThickness},
                  {&S::p55_h, "h", kSize}, {&S::p55_b2, "b2", kSize},
                  {&S::p55_tw, "tw", kThickness}, {&S::p55_a, "a", kSize}}, .titled = 5, .formOrder = "h b1 b2 tf1 a tw",
   .words = {.title = "Plate + Trapez ", .page = " Plate + Trapez ", .list = "Plate + Trapez ", .joints = "xxxxx", .wall = "t"},
   .outline = OutlineKind::PlateTrapez, .shown = kSidesShown},
  {.code = 56, .menuControl = "mnu56", .menuCaption = "Plate + T-girder", .form = "p56", .formCaption = "Plate + T-girder",
   .load = LoadPlateT, .routines = kPlateT, .options = kBendingAndWeb, .lateral = kLateralFlanged, .clearsN = true,
   .dimensions = {{&S::p56_b1, "b1", kSize}, {&S::p56_tf1, "tf1", kThickness},
                  {&S::p56_h, "h", kSize}, {&S::p56_b2, "b2", kSize},
                  {&S::p56_tw, "tw", kThickness}, {&S::p56_tf2, "tf2", kThickness}}, .titled = 6, .formOrder = "h b1 b2 tf1 tf2 tw",
   .words = {.title = "Plate + T ", .page = " Plate + T ", .list = "PLate + T ", .joints = "xxxxx", .wall = "t"},
   .outline = OutlineKind::PlateT, .shown = kPlateTShown},
  {.code = 101, .menuControl = "mnuu", .menuCaption = "U", .form = "p101", .formCaption = "British profile UB/UC/UBP", .familyWord = "U",
   .load = LoadBritishU, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .likeCurves = CurveRule::RolledI,
   .catalogues = {{1, Cat::UB, &S::p101_idx1, "UB", "  UB  "},
                  {2, Cat::UC, &S::p101_idx2, "UC", "  UC  "},
                  {3, Cat::UBP, &S::p101_idx3, "UBP", "  UBP  "}},
   .sub = &S::p101_sub,
   .words = {.page = "  U  "},
   .outline = OutlineKind::RolledI},
  {.code = 102, .menuControl = "mnuj", .menuCaption = "J", .form = "p102", .formCaption = "British profile J", .familyWord = "J",
   .load = LoadJ, .routines = kRolled, .options = kAll, .lateral = kLateralRolled, .likeCurves = CurveRule::RolledI,
   .catalogues = {{0, Cat::J, &S::p102_idx}},
   .words = {.page = "  J  "},
   .outline = OutlineKind::RolledI},
  {.code = 103, .menuControl = "mnuc", .menuCaption = "C", .form = "p103", .formCaption = "British profile PFC/CH",
   .load = LoadBritishC, .routines = kChannel, .options = kNoWeb, .lateral = kLateralRolled, .likeCurves = CurveRule::C,
   .catalogues = {{1, Cat::PFC, &S::p103_idx1, "PFC", "  PFC "},
                  {2, Cat::CH, &S::p103_idx2, "CH", "  CH ", "h b tw tf r r2 e es S g"}},
   .sub = &S::p103_sub,
   .words = {.page = "  PFC "},
   .outline = OutlineKind::ParallelChannel, .shown = kChannelShown},

});
// clang-format on

static_assert(std::adjacent_find(kFamilies.begin(), kFamilies.end(),
                                 [](const Family& a, const Family& b) {
                                   return a.code >= b.code;
                                 }) == kFamilies.end(),
              "FindFamily searches by ascending codes");

}  // namespace

std::span<const Family> AllFamilies() {
  return kFamilies;
}

const Family* FindFamily(int profileType) {
  const auto it = std::lower_bound(kFamilies.begin(), kFamilies.end(), profileType,
                                   [](const Family& f, int code) { return f.code < code; });
  return it != kFamilies.end() && it->code == profileType ? &*it : nullptr;
}

const FamilyCatalogue* CatalogueOfSub(const Family& family, int sub) {
  const auto it = std::find_if(family.catalogues.begin(), family.catalogues.end(),
                               [sub](const FamilyCatalogue& c) { return c.sub == sub; });
  return it == family.catalogues.end() ? nullptr : it;
}

const FamilyCatalogue* CatalogueOf(const Family& family, const ProjectState& st) {
  if (family.catalogues.empty()) return nullptr;
  if (family.sub == nullptr) return family.catalogues.begin();
  const FamilyCatalogue* chosen = CatalogueOfSub(family, st.*family.sub);
  return chosen == nullptr ? family.catalogues.begin() : chosen;
}

const Dimension* DimensionOf(const Family& family, std::string_view letter) {
  const auto it = std::find_if(family.dimensions.begin(), family.dimensions.end(),
                               [letter](const Dimension& d) { return letter == d.letter; });
  return it == family.dimensions.end() ? nullptr : it;
}

}  // namespace korvane
