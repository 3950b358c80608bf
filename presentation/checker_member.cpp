// SPDX-License-Identifier: GPL-3.0-or-later
// What was worked out for the member: lateral and column buckling, deflections, frequencies.
#include "analysis/loads.h"
#include "checks/column_buckling.h"
#include "presentation/checker_rows.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

using checker::Add;
using checker::AddItems;
using checker::Item;
using checker::OneSided;
using D = const Design&;

bool IsSingleI(D d) {
  const Family* family = FindFamily(d.st.ProfileType);
  return family != nullptr && family->outline == OutlineKind::SingleI;
}
// --- Lateral torsional buckling
// ---------------------------------------------------------------------

void AddSegment(CheckerBlock& b, D d, const LtbSegmentResult& s) {
  const bool segments = d.st.AnalysisMode != 1 || d.st.LtbSegments != 0;
  if (segments) {
    Add(b, "segment", s.segment + 1, "", "from the left end");
    Add(b, "My left", s.M1, "kNm", "of the segment");
    Add(b, "My right", s.M2, "kNm", "of the segment");
  }
  Add(b, "Lk", d.ltb.Lk, "m", "k*L/(restraints+1)");
  const bool single = IsSingleI(d);
  if (s.Mcr != 0) {
    Add(b, "C1", s.C1);
    if (!segments) Add(b, "C2", d.ltb.C2);
    if (single) Add(b, "C3", s.C3);
    if (!segments) Add(b, "zg", d.ltb.zg, "mm");
    if (single)
      Add(b, "zj", s.C3 == 0 ? 0 : ((segments ? 0 : d.ltb.C2 * d.ltb.zg) - s.D) / s.C3, "mm");
    Add(b, "D", s.D, "mm", single ? "C2*zg - C3*zj" : "C2*zg");
    Add(b, "Mcr", s.Mcr / 1E6, "kNm", "12.3.4.1");
  }
  if (s.sigma != 0) Add(b, "sigma cr", s.sigma, "MPa");
  Add(b, "beta", s.beta, "", "on Wply");
  if (s.lamLT != 0) Add(b, "lambda_LT", s.lamLT);
  if (s.alfa != 0) Add(b, "alfa_LT", s.alfa);
  Add(b, "chi_LT", s.chiLT);
  Add(b, "Mdb", s.Mdb, "kNm", "chi*beta*Wply*fd");
}

CheckerBlock LateralLine(D d) {
  const GoverningForce& g = d.checks.lateral;
  CheckerBlock b{"Lateral line", {}};
  if (!g.set) return b;
  Add(b, "My", g.acting, "kNm", "governing, signed");
  if (g.acting < 0) Add(b, "|My|", -g.acting, "kNm", "as the line uses it");
  AddSegment(b, d, d.ltb.governing);
  Add(b, "IR", d.checks.IRlateral);
  return b;
}

/// The reduction that column buckling takes, where it comes from another segment.
CheckerBlock LeastLateral(D d) {
  CheckerBlock b{"Lateral, least chi", {}};
  const LtbResults& l = d.ltb;
  const bool used = d.st.LateralTorsionalBuckling == 1 && l.least.segment != l.governing.segment;
  if (!used || l.least.chiLT == 0) return b;
  AddSegment(b, d, l.least);
  b.rows.back().symbol = "Mdb_min";
  return b;
}

// --- Column buckling
// --------------------------------------------------------------------------------

bool ComputesKlt(D d) {
  const Family* family = FindFamily(d.st.ProfileType);
  return family != nullptr && HasKlt(family->routines.buckling);
}

bool UsesKlt(D d) {
  return d.checks.textZ == BucklingText::Lateral || d.checks.textZ == BucklingText::SingleLateral;
}

void AddSlenderness(CheckerBlock& b, D d, bool y, bool angle) {
  const std::string axis = angle ? (y ? "u" : "v") : (y ? "y" : "z");
  Add(b, "L/i " + axis, y ? d.buckling.LyOverI : d.buckling.LzOverI, "", "11.7");
  Add(b, "lambda " + axis, y ? d.buckling.Lybar : d.buckling.Lzbar, "",
      angle ? "0.35+0.7*bar" : "12.3.2");
  Add(b, "X" + axis, y ? d.buckling.Xy : d.buckling.Xz, "", "12.3.2");
}

void AddBending(CheckerBlock& b, D d, bool angle) {
  const BucklingResults& r = d.buckling;
  Add(b, "betaMy", d.beam.betaMy);
  Add(b, "betaMz", d.beam.betaMz);
  Add(b, angle ? "ku" : "ky", r.ky, "", "12.3.4.2");
  if (!OneSided(d)) Add(b, angle ? "kv" : "kz", r.kz, "", "12.3.4.2");
  if (angle) {
    Add(b, "Mu", d.checks.Mu, "kNm", "size");
    Add(b, "Mud", d.checks.Mud, "kNm", "least corner");
    Add(b, "Mv", d.checks.Mv, "kNm", "size");
    Add(b, "Mvd", d.checks.Mvd, "kNm", "least corner");
    return;
  }
  Add(b, "My", d.beam.MyAbsMax, "kNm", "greatest size");
  Add(b, "Mdy", d.rec.Mdy, "kNm", "for this class");
  if (d.beam.MzAbsMax != 0 && !OneSided(d)) {
    Add(b, "Mz", d.beam.MzAbsMax, "kNm", "greatest size");
    Add(b, "Mdz", d.rec.Mdz, "kNm", "for this class");
  }
  if (!UsesKlt(d)) return;
  Add(b, "klt", r.klt, "", ComputesKlt(d) ? "12.3.4.2" : "of the I before");
  Add(b, "Xlt", LateralReduction(d.st, d.ltb), "",
      d.st.LateralTorsionalBuckling == 0 ? "lateral check off" : "least chi_LT");
}

CheckerBlock Buckling(D d) {
  CheckerBlock b{"Column buckling lines", {}};
  if (!d.checks.bucklingRan) return b;
  const bool angle = IsAngle(d.st.ProfileType);
  const bool bending =
      d.checks.textY != BucklingText::None && (d.beam.MyAbsMax != 0 || d.beam.MzAbsMax != 0);
  if (!OneSided(d)) Add(b, "class", d.rec.class_, "", "for N and the moments");
  if (OneSided(d)) {
    // The moment factor asks the class of a section that has one class: kept.
    Add(b, "class", d.rec.class_, "", "of the section before");
    Add(b, "class top", d.rec.classTop, "", "compressed");
    Add(b, "class bottom", d.rec.classBottom, "", "compressed");
  }
  Add(b, "betaA", d.rec.betaA, "", "Aeff/A");
  Add(b, "N", d.forces.N, "kN");
  Add(b, "Nd", d.rec.Ncrd, "kN", "= Ncrd, this class");
  AddSlenderness(b, d, true, angle);
  AddSlenderness(b, d, false, angle);
  Add(b, "Xmin", d.buckling.Xmin);
  if (bending) AddBending(b, d, angle);
  static constexpr Item ratios[] = {
      {"IR Ny", [](D x) -> double { return x.checks.IRny; }, "", ""},
      {"IR Nz", [](D x) -> double { return x.checks.IRnz; }, "", ""},
      {"IR first", [](D x) -> double { return x.checks.IRcombinedY; }, "", "with bending"},
      {"IR second", [](D x) -> double { return x.checks.IRcombinedZ; }, "", "with bending"},
  };
  for (const Item& item : ratios) {
    if (item.value(d) != 0) Add(b, item.symbol, item.value(d), item.unit, item.from);
  }
  return b;
}

// --- Serviceability
// -------------------------------------------------------------------------------

CheckerBlock Deflection(D d) {
  CheckerBlock b{"Deflection (SLS) and frequencies", {}};
  if (d.st.AnalysisMode == 1) {
    static constexpr Item items[] = {
        {"z max", [](D x) -> double { return x.deflections.DeflZ_max; }, "mm", ""},
        {"z min", [](D x) -> double { return x.deflections.DeflZ_min; }, "mm", ""},
        {"y max", [](D x) -> double { return x.deflections.DeflY_max; }, "mm", ""},
        {"y min", [](D x) -> double { return x.deflections.DeflY_min; }, "mm", ""},
    };
    AddItems(b, items, d);
  }
  if (d.st.ModalAnalysis != 1) return b;
  Add(b, "q modal", ModalLineLoad(d.st), "kN/m", "SLS, axis z");
  Add(b, "m", d.modal.ModalMass, "kg/m", "102*q + weight");
  for (int n = 1; n <= 3; ++n) {
    Add(b, "f" + std::to_string(n), d.modal.ModalFreq[n], "Hz");
  }
  return b;
}

}  // namespace

CheckerBlocks checker::MemberResults(const Design& d) {
  return {LateralLine(d), LeastLateral(d), Buckling(d), Deflection(d)};
}

}  // namespace korvane
