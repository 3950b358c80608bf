// SPDX-License-Identifier: GPL-3.0-or-later
// What was worked out: the second half of the checker's sheet.
#include <algorithm>
#include <cmath>

#include "analysis/loads.h"
#include "checks/column_buckling.h"
#include "core/text.h"
#include "presentation/checker_rows.h"
#include "sections/capacities.h"
#include "sections/p23bas.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"
#include "sections/shown_values.h"

namespace korvane {

namespace {

using checker::Add;
using checker::AddItems;
using checker::Item;
using checker::OneSided;
using checker::Words;
using D = const Design&;
using enum SectionControlKind;

SectionControlKind KindOf(D d) {
  const Family* family = FindFamily(d.st.ProfileType);
  return family == nullptr ? None : family->routines.sectionControl;
}

bool HasCorners(D d) {
  return IsAngle(d.st.ProfileType);
}

// --- Section values
// -------------------------------------------------------------------------------

/// Values that a family writes into the record and no other block of this sheet shows. What a
/// family doesn't write stands there from another one.
std::string_view ExtrasOf(OutlineKind outline) {
  switch (outline) {
    case OutlineKind::Hollow:
      return " hw d bw c rin Avz Avy ";
    case OutlineKind::Box:
      return " hw d bw c Avz Avy ";
    case OutlineKind::Angle:
      return " u1 u2 u3 v1 v2 v3 Wu1 Wu2 Wu3 Wv1 Wv2 Wv3 ";
    case OutlineKind::SingleI:
      return " hw d c1 c2 Avz zs zjTop zjBottom betafTop betafBottom ";
    case OutlineKind::HsqSymmetric:
    case OutlineKind::HsqOneSided:
    case OutlineKind::BoxUnequal:
      return " hw d bw cm co Avz ";
    case OutlineKind::T:
      return " hw c ";
    case OutlineKind::FlatBar:
      return " Iw Avz Avy ";
    case OutlineKind::Tube:
      return " Avz Avy ";
    case OutlineKind::PlateFlat:
      return " hw d c1 Avz ";
    case OutlineKind::PlateTrapez:
      return " hw d bw cm co Avz ";
    case OutlineKind::PlateAngle:
    case OutlineKind::PlateWeldedAngle:
    case OutlineKind::PlateBulb:
    case OutlineKind::PlateT:
      return " hw d c1 c2 Afw Afc Avz ";
    case OutlineKind::General:
      return {};
    default:
      return " r hw d c Avz Avy ";
  }
}

/// An equal angle's second corner lies on an axis, and the third is the first.
bool Mirrored(D d, std::string_view name) {
  return KindOf(d) == EqualAngle &&
         (name == "v2" || name == "Wu3" || name == "Wv2" || name == "Wv3");
}

CheckerBlock SectionValues(D d) {
  CheckerBlock b{"Section values", {}};
  const auto has = [&b](std::string_view name) {
    return std::any_of(b.rows.begin(), b.rows.end(),
                       [name](const CheckerRow& row) { return row.symbol == name; });
  };
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr) return b;
  const std::string_view extras = ExtrasOf(family->outline);
  const auto listed = [extras](std::string_view name) {
    return extras.find(" " + std::string(name) + " ") != std::string_view::npos;
  };
  const ShownValues dimensions = Dimensions(d.st, d.rec);
  const ShownValues properties = Properties(d.st, d.rec);
  for (const ShownValues* values : {&dimensions, &properties}) {
    for (const ShownValue& v : *values) {
      // The values of an angle's corners come below, each under the name of its own corner.
      if (has(v.name) || (HasCorners(d) && (v.name == "Wu1" || v.name == "Wv2"))) continue;
      Add(b, std::string(v.name), v.value, std::string(v.unit));
    }
  }
  ForEachSectionField(d.rec, [&](const char* name, const auto& field) {
    if (!listed(name) || has(name) || Mirrored(d, name)) return;
    Add(b, name, field, checker::SectionUnit(name));
  });
  return b;
}

// --- Capacities
// -----------------------------------------------------------------------------------

/// Shear capacities that the lines use, where they aren't those printed: stiffeners count, and a
/// section of four walls has another area along y.
void AddCheckedShear(CheckerBlock& b, D d) {
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr || family->routines.shear == nullptr) return;
  if (family->options.web) Add(b, "Vdz line", d.rec.Vdz, "kN", "with the stiffeners");
  if (KindOf(d) == Hollow) Add(b, "Vdy line", d.rec.Vdy, "kN", "two flanges");
}

CheckerBlock SectionCapacitiesOf(D d) {
  CheckerBlock b{"Capacities of the section", {}};
  if (const std::string text = ClassText(d.st, d.rec); !text.empty()) Words(b, "Class", text);
  for (const ShownValue& v : Capacities(d.st, d.rec)) {
    const bool shear = v.name.substr(0, 1) == "V";
    Add(b, std::string(v.name), v.value, std::string(v.unit), shear ? "as printed" : "");
  }
  AddCheckedShear(b, d);
  if (IsHsq(d.st.ProfileType)) {
    Add(b, "qf", FlangeLoad(d.st) / 60, "kN/m", "on the flange, ULS");
    Add(b, "factor", d.rec.MdyTop / MomentOf(d.st, d.rec.betaTop * d.rec.Wply), "",
        "flange load, on Mdy");
  }
  return b;
}

// --- Forces
// ---------------------------------------------------------------------------------------

CheckerBlock Forces(D d) {
  CheckerBlock b{"Forces of the member (ULS)", {}};
  static constexpr Item items[] = {
      {"N", [](D x) -> double { return x.forces.N; }, "kN", "compression positive"},
      {"My max", [](D x) -> double { return x.beam.z.M_max; }, "kNm", ""},
      {"My min", [](D x) -> double { return x.beam.z.M_min; }, "kNm", ""},
      {"Vz max", [](D x) -> double { return x.beam.z.V_max; }, "kN", ""},
      {"Vz min", [](D x) -> double { return x.beam.z.V_min; }, "kN", ""},
      {"Mz max", [](D x) -> double { return x.beam.y.M_max; }, "kNm", ""},
      {"Mz min", [](D x) -> double { return x.beam.y.M_min; }, "kNm", ""},
      {"Vy max", [](D x) -> double { return x.beam.y.V_max; }, "kN", ""},
      {"Vy min", [](D x) -> double { return x.beam.y.V_min; }, "kN", ""},
  };
  AddItems(b, items, d);
  return b;
}

// --- The lines of section control
// -------------------------------------------------------------------

bool Has(Term term, std::initializer_list<Term> terms) {
  return std::find(terms.begin(), terms.end(), term) != terms.end();
}

/// The symbol that the line gives the axial capacity.
std::string AxialSymbol(const GoverningSection& s, SectionControlKind kind) {
  if (s.term == Term::Angle) return s.N > 0 ? "Ncd" : "Ntd";
  if (s.term != Term::N || kind == Tube) return "Nd";
  return s.N < 0 ? "Ntd" : "Ncd";
}

void AddAxis(CheckerBlock& b, const GoverningSection& s, bool y, bool withN, bool tube) {
  const std::string axis = y ? "y" : "z";
  const auto add = [&](const char* symbol, double value, const char* unit, const char* from) {
    Add(b, symbol + axis, value, unit, from);
  };
  const double V = y ? s.Vz : s.Vy;
  const double Vd = y ? s.Vdz : s.Vdy;
  if (y && s.My < 0) Add(b, "|My|", -s.My, "kNm", "as the line uses it");
  add("M", y ? s.My : s.Mz, "kNm", "");
  Add(b, y ? "Vz" : "Vy", V, "kN", V > 0.5 * Vd ? "above half of Vd" : "up to half of Vd");
  Add(b, y ? "Vdz" : "Vdy", Vd, "kN");
  if (!tube) add("beta", y ? s.betay : s.betaz, "", "on Wpl");
  add("Md", y ? s.Mdy : s.Mdz, "kNm", "12.2.4");
  add("Mvd", y ? s.Mvdy : s.Mvdz, "kNm", "12.2.7, with shear");
  if (!s.exact || !withN) return;
  add("Mnd", y ? s.Mndy : s.Mndz, "kNm", "12.2.6, with N");
  if (V > 0.5 * Vd) {
    add("Mfd", y ? s.Mfdy : s.Mfdz, "kNm", "flanges alone");
    Add(b, y ? "Mndypl" : "Mndzpl", y ? s.Mndypl : s.Mndzpl, "kNm", "plastic, with N");
  }
  add("Mvnd", y ? s.Mvndy : s.Mvndz, "kNm", "12.2.8, with N and V");
  // Beyond the axial capacity nothing is left; the line of both moments takes the size about z.
  if (y || s.term != Term::NMyMz || s.Mvndz >= 0) return;
  Add(b, "|Mndz|", std::fabs(s.Mndz), "kNm", "as the line uses it");
  Add(b, "|Mvndz|", -s.Mvndz, "kNm", "as the line uses it");
}

/// The sum of stresses at the governing corner: the line of an angle leaves its signs out.
std::string CornerSum(const GoverningSection& s, const std::string& axial) {
  std::string sum = s.N != 0 ? "-N/" + axial : "";
  if (s.My != 0) sum += s.corner == 1 ? " - Msud/Mrud" : " + Msud/Mrud";
  if (s.Mz != 0) sum += s.corner == 2 ? " - Msvd/Mrvd" : " + Msvd/Mrvd";
  return "|" + sum + "|";
}

void AddAngle(CheckerBlock& b, const GoverningSection& s) {
  Add(b, "corner", s.corner);
  Words(b, "Sum", CornerSum(s, AxialSymbol(s, EqualAngle)));
  if (s.My != 0) {
    Add(b, "Msud", s.My, "kNm", "about u");
    Add(b, "Mrud", s.Mvdy, "kNm", "at the corner");
  }
  if (s.Mz == 0) return;
  Add(b, "Msvd", s.Mz, "kNm", "about v");
  Add(b, "Mrvd", s.Mvdz, "kNm", "at the corner");
}

CheckerBlock SectionLine(D d) {
  const GoverningSection& s = d.checks.section;
  CheckerBlock b{"Section line", {}};
  if (s.term == Term::None) return b;
  b.heading += " (" + d.checks.lineSection.label + ")";
  Add(b, "x/L", s.x);
  // The side of a one-sided section that N alone meets has no class of its own.
  if (!(OneSided(d) && s.term == Term::N)) Add(b, "class", s.sectionClass, "", "at this point");
  const bool n = Has(s.term, {Term::N, Term::NMy, Term::NMz, Term::NMyMz}) ||
                 (s.term == Term::Angle && s.N != 0);
  const bool both = s.term == Term::MyMz || s.term == Term::NMyMz;
  if (n) {
    Add(b, "N", s.N, "kN", "compression positive");
    if (s.term != Term::Angle && !s.exact)
      Add(b, "|N|", std::fabs(s.N), "kN", "as the line uses it");
    const char* from = s.N > 0 && KindOf(d) != Tube ? "= Ncrd" : "= Ntd";
    if (!s.exact) Add(b, AxialSymbol(s, KindOf(d)), s.Nd, "kN", from);
    if (s.exact) Add(b, "n", std::fabs(s.N / s.Nd), "", "|N|/Nd");
  }
  if (s.term == Term::Angle) AddAngle(b, s);
  const bool tube = KindOf(d) == Tube;
  if (Has(s.term, {Term::My, Term::MyMz, Term::NMy, Term::NMyMz})) AddAxis(b, s, true, n, tube);
  if (Has(s.term, {Term::Mz, Term::MyMz, Term::NMz, Term::NMyMz})) AddAxis(b, s, false, n, tube);
  if (s.exact && both) {
    Add(b, "alfa", s.alfa, "", "exponent");
    Add(b, "beta", s.beta, "", "exponent");
  }
  Add(b, "IR", d.checks.IRsection);
  return b;
}

void AddShear(CheckerBlock& b, const GoverningForce& g, const char* V, const char* Vd) {
  if (!g.set) return;
  Add(b, std::string("x/L ") + V, g.x);
  Add(b, V, g.acting, "kN");
  Add(b, Vd, g.capacity, "kN", "12.2.5");
  Add(b, std::string("IR ") + V, g.acting / g.capacity);
}

CheckerBlock ShearLines(D d) {
  CheckerBlock b{"Shear lines", {}};
  AddShear(b, d.checks.Vz, "Vz", "Vdz");
  AddShear(b, d.checks.Vy, "Vy", "Vdy");
  return b;
}

}  // namespace

bool checker::OneSided(const Design& d) {
  return KindOf(d) == SingleSymmetric || KindOf(d) == Plate;
}

CheckerBlocks CheckerResults(const Design& d) {
  CheckerBlocks blocks{SectionValues(d), SectionCapacitiesOf(d), Forces(d), SectionLine(d),
                       ShearLines(d)};
  for (CheckerBlock& block : checker::MemberResults(d)) blocks.push_back(std::move(block));
  return blocks;
}

}  // namespace korvane
