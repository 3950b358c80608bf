// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/cautions.h"

#include <algorithm>
#include <cmath>

#include "checks/lateral_buckling.h"
#include "core/powers.h"
#include "sections/capacities.h"
#include "sections/elements.h"
#include "sections/p05bas.h"
#include "sections/p22bas.h"
#include "sections/p51bas.h"

namespace korvane {

namespace {

/// |N/Nd| of the member.
double AxialShare(const Finished& d) {
  const double N = d.forces.N;
  return N == 0 ? 0 : std::fabs(N / (N > 0 ? d.rec.Ncrd : d.rec.Ntd));
}

/// Hogging: the web's or flat's class by the side that is compressed.
void ClassByTensionSide(const Family& family, const Finished& d, double IR, NoteList& notes) {
  const bool flat = family.routines.sectionClass == FlatStiffenerClass;
  if (!flat && family.routines.sectionClass != SingleClass) return;
  const double M = d.beam.z.M_min;
  if (!(M < 0)) return;
  SectionForces f = d.forces;
  SectionRecord rec = d.rec;
  f.My = M;
  f.Ncl = f.N;
  family.routines.sectionClass(d.st, f, rec);
  const int used = rec.classBottom;
  const int compressed =
      flat ? FlatClassByCompression(d.st, f, rec) : BottomClassByCompression(d.st, f, rec);
  if (compressed <= used) return;
  rec.classBottom = compressed;
  SideCapacities(d.st, 1, rec);
  if (!(rec.MdyBottom > 0)) return;
  const double ratio = AxialShare(d) + -M / rec.MdyBottom;
  if (ratio > IR * kMatters) {
    notes.Add({NoteCode::ClassByTensionSide,
               {double(used), double(compressed), rec.MdyBottom, ratio},
               flat ? "flat" : "web"});
  }
}

void StripOfFlat(const Family& family, const Finished& d, double IR, NoteList& notes) {
  if (family.routines.sectionClass != FlatStiffenerClass) return;
  const double M = d.beam.z.M_min;
  if (!(M < 0)) return;
  SectionForces f = d.forces;
  SectionRecord rec = d.rec;
  f.My = M;
  family.routines.sectionClass(d.st, f, rec);
  if (rec.classBottom != 4) return;
  SideCapacities(d.st, 1, rec);
  const double whole = FlatTipCapacity(d.st, rec);
  if (!(whole > 0) || !(-M / whole > IR * kMatters)) return;
  notes.Add({NoteCode::StripOfFlat, {rec.MdyBottom, whole, -M / whole}});
}

/// Whether anything compresses a plate of the section.
bool Compressed(const Finished& d) {
  return d.forces.N > 0 || d.beam.MyAbsMax != 0 || d.beam.MzAbsMax != 0;
}

void BoxOutstands(const Family& family, const Finished& d, NoteList& notes) {
  if (family.outline != OutlineKind::Box || !Compressed(d)) return;
  const double ratio = d.st.p23_a / d.rec.tf;
  if (ratio > 14 * d.st.epsilon) {
    notes.Add({NoteCode::BoxOutstands, {d.st.p23_a, ratio, 14 * d.st.epsilon}});
  }
}

/// The plate between the walls and the bottom of a trapezoid, each where it is compressed.
void TrapezoidFlats(const Family& family, const Finished& d, NoteList& notes) {
  if (family.outline != OutlineKind::PlateTrapez) return;
  const double eps = d.st.epsilon;
  const double wall = d.rec.tw / std::cos(std::atan(d.st.p55_a / d.st.p55_h));
  const auto look = [&](const char* flat, bool acts, double width, double t, int used) {
    if (!acts) return;
    const int by = ClassByLimits(width / t, 33 * eps, 38 * eps, 42 * eps, true);
    if (by <= std::max(used, 2)) return;
    notes.Add({NoteCode::TrapezoidFlats, {width / t, double(by), double(used)}, flat});
  };
  look("plate between the walls", d.beam.z.M_max > 0, d.rec.cm, d.rec.tf1, d.rec.classTop);
  look("bottom", d.beam.z.M_min < 0, d.rec.b2 - 2 * wall, d.rec.tw, d.rec.classBottom);
}

/// Second moment about z of web and flange alone, about their common centroid; the walls of a
/// trapezoid stand apart.
double StiffenerIz(const Family& family, const Finished& d) {
  const SectionRecord& rec = d.rec;
  const double flange = rec.tf2 * Cube(rec.b2) / 12;
  if (family.outline == OutlineKind::PlateTrapez) {
    const double a = d.st.p55_a;
    const double thickness = rec.tw / std::cos(std::atan(a / d.st.p55_h));
    const double middle = (rec.cm + rec.b2) / 4;
    return flange +
           2 * rec.hw * thickness * (middle * middle + (a * a + thickness * thickness) / 12);
  }
  const double web = rec.hw * rec.tw;
  const double leg = rec.tf2 * rec.b2;
  const double e = rec.c2 - (rec.b2 - rec.tw) / 2;  // none for a T
  return flange + web * rec.tw * rec.tw / 12 + e * e * leg / (1 + leg / web);
}

void TrippingWithPlate(const Family& family, const Finished& d, double IR, NoteList& notes) {
  const bool plate = family.routines.sectionControl == SectionControlKind::Plate;
  if (!plate || family.routines.sectionClass == FlatStiffenerClass) return;
  if (d.st.LateralTorsionalBuckling != 1 || !(d.beam.My_gov < 0) || d.ltb.Mdb == 0) return;
  SectionRecord rec = d.rec;
  const double Lmm = d.ltb.Lk * 1000;
  const LateralMethod method = family.lateral.method;
  const double used = PlateReduction(method, d.st, rec, Lmm).chiLT;
  rec.Iz = StiffenerIz(family, d);
  const double own = PlateReduction(method, d.st, rec, Lmm).chiLT;
  if (!(own > 0) || !(own < used)) return;
  const double ratio = std::fabs(d.beam.My_gov / d.ltb.Mdb) * used / own;
  if (ratio > IR * kMatters) {
    notes.Add({NoteCode::TrippingWithPlate, {d.rec.Iz, rec.Iz, own, ratio}});
  }
}

void CFactorsUnused(const Family& family, const Finished& d, NoteList& notes) {
  const ProjectState& st = d.st;
  if (st.CFactorManual != 1 || st.LateralTorsionalBuckling != 1) return;
  if (!LateralMomentActs(family, d)) return;
  const char* why = family.routines.sectionControl == SectionControlKind::Plate
                        ? "a plate with stiffener has no C factors"
                    : st.AnalysisMode != 1 ? "end forces give the factors by segment"
                    : st.LtbSegments != 0  ? "restraint points give the factors by segment"
                                           : nullptr;
  if (why != nullptr) {
    notes.Add({NoteCode::CFactorsUnused, {st.C1i, st.C2i, st.C3i, d.ltb.C1, d.ltb.C3}, why});
  }
}

bool IsChannel(const Family& family) {
  return family.routines.sectionClass == ChannelClass;
}

/// The interaction with exponents on a channel or a typed section of unknown shape.
void ExponentMode(const Family& family, const Finished& d, NoteList& notes) {
  if (d.st.SectionControlMode == 0 || d.checks.ClassGoverning > 2) return;
  const bool general = family.givenConstants;
  if (!general && !IsChannel(family)) return;
  const int acting = (d.forces.N != 0) + (d.beam.MyAbsMax != 0) + (d.beam.MzAbsMax != 0);
  if (acting < 2) return;
  notes.Add({NoteCode::ExponentMode, {}, general ? "a general profile" : "a channel"});
}

/// The class and the effective area with buckling taken into account.
void BucklingIgnored(const Family& family, const Finished& d, NoteList& notes) {
  const ProjectState& st = d.st;
  const bool web = st.IgnoreWebBuckling == 1;
  const bool flange = st.IgnoreFlangeBuckling == 1;
  if (!web && !flange) return;
  ProjectState counted = st;
  counted.IgnoreWebBuckling = 0;
  counted.IgnoreFlangeBuckling = 0;
  SectionRecord rec = d.rec;
  SectionForces f = d.forces;
  const char* which = web && flange ? "web and flange" : web ? "web" : "flange";
  const auto differs = [&](int with, int without) {
    if (without <= with || without < 3) return false;
    notes.Add({NoteCode::BucklingIgnored, {double(with), double(without)}, which});
    return true;
  };
  if (family.routines.sectionClass != nullptr) {
    const bool sides = family.routines.sectionControl == SectionControlKind::SingleSymmetric ||
                       family.routines.sectionControl == SectionControlKind::Plate;
    f.Ncl = f.N;
    for (const double My : {double(d.beam.z.M_max), double(d.beam.z.M_min)}) {
      if (!sides || My == 0) continue;
      f.My = My;
      family.routines.sectionClass(st, f, rec);
      const int with = My > 0 ? rec.classTop : rec.classBottom;
      family.routines.sectionClass(counted, f, rec);
      if (differs(with, My > 0 ? rec.classTop : rec.classBottom)) return;
    }
    if (!sides && d.checks.section.term != Term::None) {
      f.My = d.checks.section.My;
      f.Mz = d.checks.section.Mz;
      family.routines.sectionClass(st, f, rec);
      const int with = rec.class_;
      family.routines.sectionClass(counted, f, rec);
      if (differs(with, rec.class_)) return;
    }
  }
  if (family.routines.effective == nullptr) return;
  rec = d.rec;
  family.routines.effective(counted, rec);
  if (d.forces.N > 0 && rec.Aeff < d.rec.Aeff * 0.999) {
    notes.Add({NoteCode::BucklingIgnored, {0, 0, d.rec.Aeff, rec.Aeff}, which, "Aeff"});
  } else if (d.checks.ClassGoverning == 4 && d.beam.MyAbsMax != 0 &&
             rec.Weffy < d.rec.Weffy * 0.999) {
    // Some families' class stays 4, and the option keeps the modulus whole.
    notes.Add({NoteCode::BucklingIgnored, {0, 0, d.rec.Weffy, rec.Weffy}, which, "Weffy"});
  }
}

void NegativeMomentFactors(const Finished& d, NoteList& notes) {
  if (!d.checks.bucklingRan) return;
  const auto look = [&](const char* factor, double k, double M, const char* moment) {
    if (M != 0 && k < 0) notes.Add({NoteCode::NegativeMomentFactor, {k, M}, factor, moment});
  };
  look("ky", d.buckling.ky, d.beam.MyAbsMax, "My");
  look("kz", d.buckling.kz, d.beam.MzAbsMax, "Mz");
}

}  // namespace

bool LateralMomentActs(const Family& family, const Finished& d) {
  if (family.lateral.method == LateralMethod::None || d.beam.MyAbsMax == 0) return false;
  return family.routines.sectionControl != SectionControlKind::Plate || d.beam.My_gov < 0;
}

void AddSectionCautions(const Family& family, const Finished& d, double IR, NoteList& notes) {
  ClassByTensionSide(family, d, IR, notes);
  StripOfFlat(family, d, IR, notes);
  BoxOutstands(family, d, notes);
  TrapezoidFlats(family, d, notes);
  TrippingWithPlate(family, d, IR, notes);
}

void AddOptionCautions(const Family& family, const Finished& d, NoteList& notes) {
  CFactorsUnused(family, d, notes);
  ExponentMode(family, d, notes);
  BucklingIgnored(family, d, notes);
  NegativeMomentFactors(d, notes);
  if (d.st.iufa < 0.3 - 1E-6 || d.st.iufa > 2.0) {
    notes.Add({NoteCode::UsageLimit, {d.st.iufa}});
  }
}

}  // namespace korvane
