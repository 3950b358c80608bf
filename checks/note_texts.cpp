// SPDX-License-Identifier: GPL-3.0-or-later
// The sentences of the notes.
#include <array>
#include <cmath>
#include <string_view>

#include "checks/buckling_curves.h"
#include "checks/notes.h"
#include "core/text.h"
#include "sections/names.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

std::string F0(double v) {
  return Format(v, "#0");
}
std::string F1(double v) {
  return Format(v, "#0.0");
}
std::string F2(double v) {
  return Format(v, "#0.00");
}

/// Up to three decimals; a whole number without the point that the format leaves behind it.
std::string UpTo3(double v) {
  std::string text = Format(v, "#0.###");
  if (text.ends_with('.')) text.pop_back();
  return text;
}

/// Ratios that only say "far over" keep no decimals.
std::string Ratio(double v) {
  return std::fabs(v) < 1000 ? F2(v) : F0(v);
}

std::string Caption(const Family& family) {
  std::string text = family.menuCaption;
  std::erase(text, '&');
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

std::string OriginText(const Origin& o, const Catalogues& cat) {
  const Family* family = FindFamily(o.family);
  if (family == nullptr) return "the project file or the start";
  ProjectState st;
  st.ProfileType = o.family;
  if (family->sub != nullptr) st.*family->sub = o.series;
  const SizeList sizes = SizesOf(st);
  if (!sizes.hasCatalogue || o.row < 0 || o.row >= ListLength(sizes.catalogue)) {
    return Caption(*family);
  }
  return ListEntry(sizes.catalogue, cat, o.row);
}

const char* UnitOf(std::string_view force) {
  return force.front() == 'M' ? " kNm" : " kN";
}

std::string StoppedText(const Note& n) {
  std::string text = std::string("The calculation stopped in ") + n.word;
  if (*n.other != '\0') text += std::string(": ") + n.other + " is " + Plain(n.v[0]);
  return text + ".";
}

std::string NotPositiveText(const Note& n) {
  return std::string(n.word) + " = " + F1(n.v[0]) + UnitOf(n.word) + " at " + F2(n.v[2]) +
         "L needs " + n.other + ", of which shear and axial force leave " + F1(n.v[1]) +
         UnitOf(n.word) + ".";
}

std::string AboveText(const Note& n) {
  return std::string(n.word) + " = " + F1(n.v[0]) + UnitOf(n.word) + " at " + F2(n.v[2]) +
         "L is above " + n.other + " = " + F1(n.v[1]) + UnitOf(n.word) + " (" + Ratio(n.v[3]) +
         "), and no line says so.";
}

std::string RemovedText(const Note& n) {
  constexpr std::array<const char*, 5> names{"N", "My", "Mz", "Vy", "Vz"};
  std::string forces;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (n.v[i] == 0) continue;
    if (!forces.empty()) forces += ", ";
    forces += std::string(names[i]) + " = " + F1(n.v[i]) + UnitOf(names[i]);
  }
  return "The calculation removed loads that this family can't carry, with design forces up to " +
         forces + ".";
}

std::string LateralText(const Note& n) {
  std::string text = "Lateral torsional buckling is off";
  if (const Family* by = FindFamily(n.origin.family)) {
    text += ", switched off by the program with a section " + Caption(*by);
  }
  return text + "; the check would give " + Ratio(n.v[0]) + " (My = " + F1(n.v[1]) +
         " kNm, Mdb = " + F1(n.v[2]) + " kNm).";
}

/// Field, value and origin of a value that stands from another section, and the ratios.
std::string StaleText(const Note& n, const Catalogues& cat) {
  const std::string from = OriginText(n.origin, cat);
  const std::string_view field = n.word;
  std::string text;
  std::string own;
  if (field == "curves") {
    const int pair = static_cast<int>(n.v[4]);
    text = std::string("The buckling curves ") + CurveLetter(static_cast<int>(n.v[0])) + ", " +
           CurveLetter(static_cast<int>(n.v[1])) + " stand";
    own = std::string("the curves ") + CurveLetter(pair / 10) + ", " + CurveLetter(pair % 10) +
          " of like sections";
  } else if (field == "klt") {
    text = "The factor klt = " + F2(n.v[0]) + " stands";
    own = "klt = " + F2(n.v[1]) + " of this section";
  } else if (field == "flanges") {
    text = "The flange b = " + F1(n.v[0]) + " mm, tf = " + F1(n.v[1]) + " mm stands";
    own = "the flat bar without flanges";
  } else {
    text = "The flange thickness tf2 = " + F1(n.v[0]) + " mm that chooses the yield stress stands";
    own = "tmax = " + F1(n.v[1]) + " mm, fyk = " + F0(n.v[4]) + " MPa";
  }
  return text + " from " + from + "; the ratio is " + Ratio(n.v[2]) + ", with " + own + " " +
         Ratio(n.v[3]) + ".";
}

std::string IgnoredText(const Note& n) {
  const std::string which = n.word;
  if (n.v[1] != 0) {
    return "Buckling of " + which + " is not taken into account: class " + F0(n.v[0]) +
           ", with it class " + F0(n.v[1]) + ".";
  }
  const std::string name = n.other;
  const std::string unit = name == "Aeff" ? " mm2" : " mm3";
  return "Buckling of " + which + " is not taken into account: " + name + " = " + F0(n.v[2]) +
         unit + ", with it " + F0(n.v[3]) + unit + ".";
}

std::string DeflectionText(const Note& n) {
  const auto plane = [&](const char* axis, double ratio) {
    if (ratio == 0) return std::string(axis) + " none";
    return std::string(axis) + " L/" + F0(ratio) + (ratio < n.v[2] ? " (below)" : "");
  };
  return "Deflection (SLS): " + plane("z", n.v[0]) + ", " + plane("y", n.v[1]) + ", limit L/" +
         F0(n.v[2]) + ".";
}

std::string TypedFactorsText(const Note& n) {
  return "The typed factors C1 = " + F2(n.v[0]) + ", C2 = " + F2(n.v[1]) + ", C3 = " + F2(n.v[2]) +
         " aren't in use: " + n.word + ".";
}

}  // namespace

const char* StepWords(const std::string& step) {
  struct Step {
    const char* name;
    const char* words;
  };
  constexpr std::array steps{
      Step{"AnalyseBeam", "the internal forces"},
      Step{"LoadSection", "the section's dimensions"},
      Step{"SetMaterial", "the material values"},
      Step{"EffectiveSection", "the effective section"},
      Step{"ShearCapacity", "the shear capacity"},
      Step{"NominalCapacities", "the class and the capacities"},
      Step{"LateralTorsionalBuckling", "lateral torsional buckling"},
      Step{"ChooseBucklingCurves", "the choice of the buckling curves"},
      Step{"SectionControl", "the section control"},
      Step{"BucklingControl", "the buckling control"},
      Step{"MaxIR", "the greatest ratio, which is beyond all bounds"},
      Step{"Deflections", "the deflections"},
      Step{"ModalAnalysis", "the modal analysis"},
  };
  for (const Step& s : steps) {
    if (step == s.name) return s.words;
  }
  return "a step of its own";
}

std::string NoteText(const Note& n, const Catalogues& cat) {
  using C = NoteCode;
  const std::string word = n.word;
  switch (n.code) {
    case C::Stopped:
      return StoppedText(n);
    case C::RatioExceeded:
      return "The greatest ratio " + Ratio(n.v[0]) + " is above the limit " + F2(n.v[1]) + ".";
    case C::SlendernessExceeded:
      return "The slenderness L/i = " + F0(n.v[0]) + " about " + word + " is above the limit " +
             F0(n.v[1]) + ".";
    case C::CapacityNotPositive:
      return NotPositiveText(n);
    case C::ForceAboveCapacity:
      return AboveText(n);
    case C::NoControl:
      return "The program has no control for this family: My = " + F1(n.v[0]) + " to " +
             F1(n.v[1]) + " kNm stands against MdyTop = " + F1(n.v[2]) +
             " kNm, MdyBottom = " + F1(n.v[3]) + " kNm.";
    case C::UnknownFamily:
      return "The section family " + F0(n.v[0]) + " is unknown: nothing was checked.";
    case C::UnknownSeries:
      return "The series " + F0(n.v[0]) +
             " of the British sections is unknown: the figures are those of an earlier section.";
    case C::UnknownSupport:
      return "The support " + F0(n.v[0]) + " is unknown: the loads give no forces.";
    case C::SectionImpossible:
      return "The section can't exist: " + word + " is " + UpTo3(n.v[0]) + ".";
    case C::LengthNotPositive:
      return "The length " + Format(n.v[0], "#0.000") + " m isn't above 0.";
    case C::ForceUnread:
      return word + " = " + F1(n.v[0]) + " " + n.other +
             " acts and this family's control doesn't " + "read it.";
    case C::RemovedBeyondCapacity:
      return "The loads removed alone give " + Ratio(n.v[0]) +
             " of what the section can carry elastically.";
    case C::LtbUnchecked:
    case C::LtbOff:
    case C::LtbOffByProgram:
      return LateralText(n);
    case C::LoadsRemoved:
      return RemovedText(n);
    case C::ClassByTensionSide:
      return "The class " + F0(n.v[0]) + " of the " + word +
             " goes by its share in tension; by the compressed side it is class " + F0(n.v[1]) +
             ", MdyBottom = " + F1(n.v[2]) + " kNm, ratio " + Ratio(n.v[3]) + ".";
    case C::StripOfFlat:
      return "The strip taken off the slender flat counts too little: MdyBottom = " + F1(n.v[0]) +
             " kNm, with the whole strip " + F1(n.v[1]) + " kNm, ratio " + Ratio(n.v[2]) + ".";
    case C::BoxOutstands:
      return "The outstands a = " + F1(n.v[0]) + " mm of the box have a/tf = " + F1(n.v[1]) +
             ", above " + F1(n.v[2]) + ", and no class reads them.";
    case C::TrapezoidFlats:
      return "The " + word + " has c/t = " + F1(n.v[0]) + ", class " + F0(n.v[1]) +
             "; the class in use is " + F0(n.v[2]) + ".";
    case C::TrippingWithPlate:
      return "Tripping takes Iz = " + Format(n.v[0], "0.000E+0") +
             " mm4 with the plate; with the stiffener's own " + Format(n.v[1], "0.000E+0") +
             " mm4 the reduction is " + F2(n.v[2]) + " and the ratio " + Ratio(n.v[3]) + ".";
    case C::CFactorsUnused:
      return TypedFactorsText(n);
    case C::StaleField:
    case C::StaleFieldFails:
      return StaleText(n, cat);
    case C::ExponentMode:
      return "The interaction with exponents is meant for double symmetric sections, not for " +
             word + ".";
    case C::BucklingIgnored:
      return IgnoredText(n);
    case C::NegativeMomentFactor:
      return "The factor " + word + " = " + F2(n.v[0]) + " is below 0: " + n.other + " = " +
             F1(n.v[1]) + " kNm lowers the ratio.";
    case C::UsageLimit:
      return "The allowable usage factor " + F2(n.v[0]) + " lies outside 0.3 to 2.0.";
    case C::Deflection:
      return DeflectionText(n);
    case C::GoverningHidden:
      return "The check with the greatest ratio " + Ratio(n.v[0]) + " has no printed line.";
    case C::Count:
      break;
  }
  return {};
}

}  // namespace korvane
