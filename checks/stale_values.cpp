// SPDX-License-Identifier: GPL-3.0-or-later
// Values that a family's checks read and its own routines don't write: what they decide.
#include <algorithm>
#include <cmath>

#include "checks/buckling_curves.h"
#include "checks/cautions.h"
#include "checks/column_buckling.h"
#include "checks/results.h"
#include "sections/elements.h"

namespace korvane {

namespace {

/// Adds the note where the value in force or the family's own decides the greatest ratio.
void Report(const Finished& d, double IR, double inForce, double own, Note note, NoteList& notes) {
  const double change = std::fabs(own - inForce);
  if (!(change > 0.005 * std::max(own, inForce)) || std::max(own, inForce) < IR) return;
  note.code = own > d.st.iufa ? NoteCode::StaleFieldFails : NoteCode::StaleField;
  note.v[2] = inForce;
  note.v[3] = own;
  notes.Add(note);
}

/// Greatest ratio of the buckling control with another choice, on copies.
double BucklingRatio(const Family& family, const Finished& d, const BucklingChoice& choice) {
  SectionForces f = d.forces;
  SectionRecord rec = d.rec;
  BucklingResults b = d.buckling;
  CheckResults out;
  out.ClassGoverning = d.checks.ClassGoverning;
  BucklingControlWith(choice, {family, d.st, d.beam, d.ltb}, f, rec, b, out);
  return MaxIR(out);
}

double BucklingInForce(const CheckResults& c) {
  return std::max({double(c.IRny), double(c.IRnz), double(c.IRcombinedY), double(c.IRcombinedZ)});
}

void Curves(const Family& family, const Finished& d, double IR, NoteList& notes) {
  const ProjectState& st = d.st;
  if (!d.checks.bucklingRan || st.ManualBucklingCurves != 0) return;
  const auto own = CurvesOf(family.likeCurves, d.rec, st);
  if (!own || (own->y == st.BucklingCurveY && own->z == st.BucklingCurveZ)) return;
  const double ratio = BucklingRatio(family, d, {own->y, own->z, false});
  Note note;
  note.v = {double(st.BucklingCurveY), double(st.BucklingCurveZ), 0, 0,
            double(10 * own->y + own->z)};
  note.word = "curves";
  note.origin = d.history.curves;
  Report(d, IR, BucklingInForce(d.checks), ratio, note, notes);
}

void Klt(const Family& family, const Finished& d, double IR, NoteList& notes) {
  if (family.routines.buckling != BucklingKind::SingleSymmetric || !d.checks.bucklingRan) return;
  if (d.beam.MyAbsMax == 0) return;
  SectionForces f = d.forces;
  SectionRecord rec = d.rec;
  BucklingResults b = d.buckling;
  CheckResults out;
  BucklingControlWith({d.st.BucklingCurveY, d.st.BucklingCurveZ, true},
                      {family, d.st, d.beam, d.ltb}, f, rec, b, out);
  Note note;
  note.v = {d.buckling.klt, b.klt};
  note.word = "klt";
  note.origin = d.history.klt;
  Report(d, IR, d.checks.IRcombinedZ, out.IRcombinedZ, note, notes);
}

/// A flat bar has no flanges; the rectangle's own interaction is M*(1 - n^2), and shear takes
/// from it what shear takes.
void Flanges(const Family& family, const Finished& d, double IR, NoteList& notes) {
  if (family.routines.sectionControl != SectionControlKind::FlatBar) return;
  const bool exact = d.st.SectionControlMode != 0;
  const double N = d.forces.N;
  SectionForces f = d.forces;
  SectionRecord rec = d.rec;
  double inForce = 0;
  double own = 0;
  for (int i = 0; i <= d.beam.pt_last; ++i) {
    f.My = std::fabs(d.beam.z.M_pt[i]);
    f.Mz = std::fabs(d.beam.y.M_pt[i]);
    f.Vz = std::fabs(d.beam.z.V_pt[i]);
    f.Vy = std::fabs(d.beam.y.V_pt[i]);
    const bool sheared = f.Mz != 0 && f.Vy > 0.5 * rec.Vdy;
    if (!sheared && !(exact && N != 0 && (f.My != 0 || f.Mz != 0))) continue;
    family.routines.capacities(d.st, f, rec);
    const double n = N == 0 ? 0 : std::fabs(N / (N > 0 ? rec.Ncrd : rec.Ntd));
    const double Mvdz = sheared ? rec.Mdz * (1 - ShearShare(f.Vy, rec.Vdy)) : double(rec.Mvdz);
    const double left = exact ? 1 - n * n : 1;
    if (!(left > 0) || !(rec.Mvdy > 0) || !(Mvdz > 0)) continue;
    const double ry = f.My / rec.Mvdy / left;
    const double rz = f.Mz / Mvdz / left;
    const bool squared = exact && n == 0 && rz != 0 && ry != 0;
    own = std::max(own, (exact ? 0 : n) + (squared ? ry * ry : ry) + rz);
    inForce = std::max(inForce, double(d.checks.IRsection));
  }
  if (own == 0) return;
  Note note;
  note.v = {d.rec.b, d.rec.tf};
  note.word = "flanges";
  note.origin = d.history.tf;
  Report(d, IR, inForce, own, note, notes);
}

/// The thickness that chooses the yield stress of a T may be another section's.
void ThicknessOfT(const Family& family, const Finished& d, double IR, NoteList& notes) {
  if (family.routines.sectionControl != SectionControlKind::T) return;
  const double own = std::max<double>(d.rec.tf, d.rec.tw);
  if ((d.rec.tmax > 40) == (own > 40)) return;
  ProjectState st = d.st;
  SectionRecord rec = d.rec;
  SetMaterial(d.materials, own, st);
  if (st.fyk == d.st.fyk) return;
  family.routines.effective(st, rec);
  const double N = std::fabs(d.forces.N);
  double ratio = N / (d.forces.N > 0 ? rec.Ncrd : rec.Ntd);
  if (d.checks.bucklingRan) {
    SectionForces f = d.forces;
    BucklingResults b = d.buckling;
    CheckResults out;
    BucklingControl({family, st, d.beam, d.ltb}, f, rec, b, out);
    ratio = std::max<double>(ratio, MaxIR(out));
  }
  Note note;
  note.v = {d.rec.tf2, own, 0, 0, st.fyk};
  note.word = "tf2";
  note.origin = d.history.tf2;
  Report(d, IR, IR, ratio, note, notes);
}

}  // namespace

void AddStaleValues(const Family& family, const Finished& d, double IR, NoteList& notes) {
  Curves(family, d, IR, notes);
  Klt(family, d, IR, notes);
  Flanges(family, d, IR, notes);
  ThicknessOfT(family, d, IR, notes);
}

}  // namespace korvane
