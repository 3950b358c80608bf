// SPDX-License-Identifier: GPL-3.0-or-later
// What was entered: the first half of the checker's sheet.
#include <charconv>

#include "analysis/loads.h"
#include "checks/buckling_curves.h"
#include "core/supports.h"
#include "core/text.h"
#include "presentation/checker_rows.h"
#include "sections/names.h"
#include "sections/profile_table.h"

namespace korvane {

std::string CheckerDigits(double value) {
  if (value == 0) return "0";
  char text[40];
  const auto end = std::to_chars(text, text + sizeof text, value, std::chars_format::general, 7);
  std::string digits(text, end.ptr);
  for (char& c : digits) {
    if (c == 'e') c = 'E';
  }
  return digits;
}

std::string checker::SectionUnit(std::string_view name) {
  if (name == "Iw") return "mm6";
  if (name.substr(0, 4) == "beta") return "";
  const std::string_view first = name.substr(0, 1);
  return first == "A" ? "mm2" : first == "W" ? "mm3" : first == "I" ? "mm4" : "mm";
}

namespace {

using checker::AddItems;
using checker::Item;
using checker::Words;
using D = const Design&;

/// An input as it was entered.
template <class Field>
void Typed(CheckerBlock& block, std::string symbol, const Field& value, std::string unit,
           std::string from = "entered") {
  block.rows.push_back({std::move(symbol), FileText(value), std::move(unit), std::move(from)});
}
void Typed(CheckerBlock& block, std::string symbol, const int16& value, std::string unit,
           std::string from = "entered") {
  block.rows.push_back(
      {std::move(symbol), std::to_string(int(value)), std::move(unit), std::move(from)});
}

void AddPoints(CheckerBlock& block, const ProjectState& st) {
  if (st.cp_mode == 0) return;
  for (int i = 1; i <= st.cp_count && i <= 3; ++i) {
    Typed(block, "point " + std::to_string(i), st.cp_x[i], "m", "checked too");
  }
}

CheckerBlock Member(D d) {
  const ProjectState& st = d.st;
  const Family* family = FindFamily(st.ProfileType);
  CheckerBlock b{"Member and supports", {}};
  Typed(b, "L", st.L, "m");
  Words(b, "Forces by", st.AnalysisMode == 1 ? "loads" : "end forces");
  const Support* support = FindSupport(st.SupportType);
  Words(b, "Supports", support != nullptr ? support->name : "no such support");
  if (IsSpring(st.SupportType)) {
    Typed(b, "Restraint", st.SpringRestraint, "%", "of a fixed end");
  }
  AddPoints(b, st);
  if (family != nullptr && family->options.web) {
    Words(b, "End stiff.", st.EndStiffener == 1 ? "stiff" : "weak");
    if (st.WebStiffener == 1) {
      Typed(b, "a", st.a_webstiff, "mm", "between web stiffeners");
    } else {
      Words(b, "Web stiff.", "none");
    }
  }
  if (family != nullptr && family->options.bending) {
    Words(b, "Modulus",
          st.BendingCapacityMode == 1 ? "elastic in class 1-2" : "plastic in class 1-2");
  }
  if (family != nullptr && family->options.sectionControl) {
    Words(b, "Interaction",
          st.SectionControlMode == 1 ? "with exponents (12.2.6)" : "conservative sum (12.2.6)");
  }
  if (st.IgnoreWebBuckling == 1) Words(b, "Class 4", "web buckling left out");
  if (st.IgnoreFlangeBuckling == 1) Words(b, "Class 4", "flange buckling left out");
  return b;
}

CheckerBlock MaterialAndFactors(D d) {
  const ProjectState& st = d.st;
  CheckerBlock b{"Material and factors", {}};
  const auto& rows = d.lib->materials.rows;
  const int row = st.MaterialIndex;
  const bool listed = row >= 0 && row < d.lib->materials.Last();
  if (row >= 0 && row < static_cast<int>(rows.size())) {
    Words(b, "Material", rows[static_cast<std::size_t>(row)].name);
  }
  static constexpr Item items[] = {
      {"tmax", [](D x) -> double { return x.rec.tmax; }, "mm", "governs fy"},
      {"fd", [](D x) -> double { return x.st.fd; }, "MPa", "fy/gm1"},
      {"epsilon", [](D x) -> double { return x.st.epsilon; }, "", "sqrt(235/fy)"},
      {"G", [](D x) -> double { return x.st.E / 2.6; }, "MPa", "E/2.6"},
  };
  Typed(b, "fy", st.fyk, "MPa", listed ? "list, by tmax" : "entered");
  Typed(b, "gm1", st.gammam1, "");
  Typed(b, "E", st.E, "MPa");
  Typed(b, "density", st.density, "kg/m3");
  AddItems(b, items, d);
  Typed(b, "iufa", st.iufa, "", "ratio allowed");
  if (st.check_slend == 1) Typed(b, "L/i limit", st.islend_limit, "", "11.7");
  if (st.AnalysisMode == 1) Typed(b, "L/x limit", st.DeflectionLimit, "", "x of the deflection");
  return b;
}

/// An option that a family has for itself.
struct OwnOption {
  OutlineKind family;
  const char* symbol;
  std::string (*words)(const ProjectState&);
};
std::string Turned(const ProjectState& st) {
  return st.RhsOrientation == 1 ? "no" : "by 90 degrees";
}
std::string FlangeLoading(const ProjectState& st) {
  return st.HsqKind == 0 ? "considered" : "off";
}
constexpr OwnOption kOwnOptions[] = {
    {OutlineKind::General, "Class",
     [](const ProjectState& st) { return std::to_string(int(st.p41_option)) + ", entered"; }},
    {OutlineKind::Tube, "Made",
     [](const ProjectState& st) -> std::string {
       return st.TubeKind == 1 ? "hot formed" : "cold formed";
     }},
    {OutlineKind::Box, "Curves as",
     [](const ProjectState& st) -> std::string {
       return st.BoxWeld == 0 ? "cold rolled" : "welded";
     }},
    {OutlineKind::HsqSymmetric, "Share",
     [](const ProjectState& st) { return FileText(st.p24_load) + " % on one flange"; }},
    {OutlineKind::HsqSymmetric, "Flange load", FlangeLoading},
    {OutlineKind::HsqOneSided, "Flange load", FlangeLoading},
    {OutlineKind::Hollow, "Turned", Turned},
};

/// Typed dimensions, or for a general profile its constants.
void AddDimensions(CheckerBlock& b, const Family& family, const ProjectState& st) {
  for (const Dimension& dimension : family.dimensions) {
    std::visit(
        [&](auto member) {
          if constexpr (!std::is_same_v<decltype(member), std::string ProjectState::*>) {
            Typed(b, dimension.letter, st.*member, checker::SectionUnit(dimension.letter));
          }
        },
        dimension.field);
  }
  for (const OwnOption& own : kOwnOptions) {
    if (own.family == family.outline) Words(b, own.symbol, own.words(st));
  }
}

CheckerBlock SectionInput(D d) {
  const ProjectState& st = d.st;
  const Family* family = FindFamily(st.ProfileType);
  CheckerBlock b{"Section as entered", {}};
  if (family != nullptr) Words(b, "Family", family->menuCaption);
  const SizeList sizes = SizesOf(st);
  if (sizes.hasCatalogue) {
    Words(b, "Size", ListEntry(sizes.catalogue, d.lib->catalogues, sizes.row));
    Words(b, "Row", std::to_string(sizes.row + 1) + " of " + ShapeOf(sizes.catalogue).file);
  }
  if (family != nullptr) AddDimensions(b, *family, st);
  if (sizes.hasCatalogue && sizes.catalogue == Cat::HP) {
    const CatalogueTable& bulb = d.lib->catalogues[Cat::HP];
    b.rows.push_back({"bulb width", CheckerDigits(bulb(sizes.row, 3)), "mm", "catalogue"});
    b.rows.push_back({"bulb radius", CheckerDigits(bulb(sizes.row, 4)), "mm", "catalogue"});
    b.rows.push_back({"A bulb flat", CheckerDigits(bulb(sizes.row, 5) * 100), "mm2", "catalogue"});
  }
  return b;
}

// --- Loads --------------------------------------------------------------------------------------

std::string Where(int axis, int group) {
  return std::string(axis != 0 ? "z" : "y") + ", " + (group == 0 ? "P" : group == 1 ? "V1" : "V2");
}

std::string At(const float32& x) {
  return "at " + FileText(x) + " m";
}

void AddFactors(CheckerBlock& b, const ProjectState& st) {
  struct Factor {
    const char* symbol;
    float32 ProjectState::*factor;
    const char* from;
  };
  static constexpr Factor factors[] = {
      {"ULS S", &ProjectState::lfsw_uls, "self weight"},
      {"ULS P", &ProjectState::lfp_uls, "entered"},
      {"ULS V1", &ProjectState::lfv1_uls, "entered"},
      {"ULS V2", &ProjectState::lfv2_uls, "entered"},
      {"SLS P", &ProjectState::lfp_sls, "entered"},
      {"SLS V1", &ProjectState::lfv1_sls, "entered"},
      {"SLS V2", &ProjectState::lfv2_sls, "entered"},
  };
  for (const Factor& f : factors) Typed(b, f.symbol, st.*f.factor, "", f.from);
}

CheckerBlock LoadsEntered(const ProjectState& st) {
  CheckerBlock b{"Loads (z: bends about y; y: about z)", {}};
  AddFactors(b, st);
  Words(b, "Self weight", st.SelfWeight == 1 ? "included, 1 kg/m = 0.01 kN/m" : "not included");
  if (st.NP != 0) Typed(b, "N P", st.NP, "kN");
  if (st.NV1 != 0) Typed(b, "N V1", st.NV1, "kN");
  if (st.NV2 != 0) Typed(b, "N V2", st.NV2, "kN");
  for (int n = 1; n <= 4; ++n) {
    const LineLoad& l = LineLoadOf(n);
    if (st.*l.q == 0) continue;
    Typed(b, "q " + std::to_string(n), st.*l.q, "kN/m", Where(st.*l.yz, st.*l.pv));
  }
  for (int i = 1; i <= 8; ++i) {
    // The points beside a position are checked, whether a load stands there or not.
    if (st.pm[i] == 0 && st.pmx[i] == 0) continue;
    const bool moment = st.pm_pm[i] != 0;
    Typed(b, (moment ? "M " : "P ") + std::to_string(i), st.pm[i], moment ? "kNm" : "kN",
          Where(st.pm_yz[i], st.pm_pv[i]) + ", " + At(st.pmx[i]));
  }
  for (int n = 1; n <= 3; ++n) {
    const Trapezoid& s = TrapezoidOf(n);
    if (st.*s.q1 == 0 && st.*s.q2 == 0) continue;
    const std::string name = "q" + std::to_string(n);
    const std::string where = Where(st.*s.yz, st.*s.pv) + ", ";
    Typed(b, name + " begins", st.*s.q1, "kN/m", where + At(st.*s.x1));
    Typed(b, name + " ends", st.*s.q2, "kN/m", where + At(st.*s.x2));
  }
  return b;
}

CheckerBlock EndForces(const ProjectState& st) {
  CheckerBlock b{"End forces (1 at x = 0, 2 at x = L)", {}};
  Typed(b, "N", st.Ne, "kN", "compression positive");
  const auto ends = [&b](const char* name, const Indexed<float32, 1, 2>& values, const char* unit) {
    for (int i = 1; i <= 2; ++i) Typed(b, name + std::to_string(i), values[i], unit);
  };
  ends("My", st.My_end, "kNm");
  ends("Mz", st.Mz_end, "kNm");
  ends("Vy", st.Vy_end, "kN");
  ends("Vz", st.Vz_end, "kN");
  return b;
}

// --- Lengths, curves and lateral buckling
// ----------------------------------------------------------

CheckerBlock BucklingInput(D d) {
  const ProjectState& st = d.st;
  const Family* family = FindFamily(st.ProfileType);
  CheckerBlock b{"Column buckling as entered", {}};
  if (family == nullptr || family->routines.buckling == BucklingKind::None) return b;
  const bool angle = family->routines.buckling == BucklingKind::Angle;
  const auto factor = [&](const char* symbol, const float32& k, int c) {
    Typed(b, symbol, k, "",
          c == 6   ? "entered"
          : c == 5 ? "can't buckle"
                   : "by end case " + std::to_string(c));
  };
  factor(angle ? "k u" : "k y", st.bly, st.BucklingCaseY);
  factor(angle ? "k v" : "k z", st.blz, st.BucklingCaseZ);
  const char* chosen = st.ManualBucklingCurves == 1 ? ", by hand" : ", by the section";
  const auto letter = angle ? AngleCurveLetter : CurveLetter;
  const auto alfa = angle ? AngleImperfectionFactor : ImperfectionFactor;
  Words(b, angle ? "curve u" : "curve y", std::string(letter(st.BucklingCurveY)) + chosen);
  Words(b, angle ? "curve v" : "curve z", std::string(letter(st.BucklingCurveZ)) + chosen);
  b.rows.push_back(
      {angle ? "alfa u" : "alfa y", CheckerDigits(alfa(st.BucklingCurveY)), "", "12.3.2"});
  b.rows.push_back(
      {angle ? "alfa v" : "alfa z", CheckerDigits(alfa(st.BucklingCurveZ)), "", "12.3.2"});
  return b;
}

const char* LevelName(int level) {
  constexpr const char* names[] = {"top flange", "centre", "bottom flange", "typed"};
  return level >= 1 && level <= 4 ? names[level - 1] : "typed";
}

CheckerBlock LateralInput(D d) {
  const ProjectState& st = d.st;
  const Family* family = FindFamily(st.ProfileType);
  CheckerBlock b{"Lateral buckling as entered", {}};
  if (family == nullptr || family->lateral.method == LateralMethod::None) return b;
  Words(b, "Check", st.LateralTorsionalBuckling == 1 ? "on" : "off");
  if (st.LateralTorsionalBuckling != 1) return b;
  Typed(b, "k", st.k_ltb, "", st.LateralBucklingCase == 5 ? "entered" : "by end case");
  Typed(b, "restraints", st.LtbSegments, "", "points on the flange");
  const bool whole = st.AnalysisMode == 1 && st.LtbSegments == 0;
  Words(b, "Method", whole ? "whole member, by its diagram" : "by segments, C2 and Za unused");
  const bool plate = family->routines.sectionControl == SectionControlKind::Plate;
  if (plate) {
    Words(b, "C1 C2 C3 Za", "used by nothing in this family");
  } else if (whole) {
    const bool typed = st.CFactorManual == 1;
    Words(b, "C factors", typed ? "entered" : "by the diagram");
    if (typed) {
      Typed(b, "C1", st.C1i, "");
      Typed(b, "C2", st.C2i, "");
      Typed(b, "C3", st.C3i, "");
    }
    Words(b, "Load level", LevelName(st.LoadLevel));
    if (st.LoadLevel == 4) {
      Typed(b, "Za", st.Za, "mm");
    } else {
      b.rows.push_back({"Za", CheckerDigits(st.Za), "mm", "from the centroid"});
    }
  }
  return b;
}

}  // namespace

CheckerBlocks CheckerInputs(const Design& d) {
  return {Member(d),        MaterialAndFactors(d),
          SectionInput(d),  d.st.AnalysisMode == 1 ? LoadsEntered(d.st) : EndForces(d.st),
          BucklingInput(d), LateralInput(d)};
}

}  // namespace korvane
