// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/verdict.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "checks/capacity_floor.h"
#include "checks/cautions.h"
#include "checks/column_buckling.h"
#include "checks/results.h"
#include "checks/section_exists.h"
#include "core/supports.h"

namespace korvane {

namespace {

/// Runs a part that uses the section's own routines; what those refuse leaves the part out.
template <class Body>
void Guarded(Body&& body) {
  try {
    body();
  } catch (const ArithmeticFault&) {
    // The calculation itself went through: the figures asked for here have no value.
  }
}

/// Whether the views print a line with this ratio.
bool Printed(const Finished& d, Governing check) {
  const CheckResults& c = d.checks;
  const bool buckling = c.bucklingRan && ShowsBuckling(d.st, d.forces.N);
  using T = BucklingText;
  switch (check) {
    case Governing::Section:
      return c.section.term != Term::None;
    case Governing::Vz:
      return c.Vz.set;
    case Governing::Vy:
      // An angle's shear along z is stored in the place of that along y, under its own line.
      return (c.Vy.set && c.Vy.acting / c.Vy.capacity >= c.IRvy) ||
             (c.Vz.set && c.Vz.acting / c.Vz.capacity >= c.IRvy);
    case Governing::Lateral:
      return c.lateral.set;
    case Governing::Ny:
      return buckling && (c.textY == T::PureY || c.textY == T::PureU);
    case Governing::Nz:
      return buckling && (c.textY == T::PureZ || c.textZ == T::PureZ || c.textZ == T::PureV);
    case Governing::CombinedY:
      return buckling && (c.textY == T::Combined || c.textZ == T::SingleCombined);
    case Governing::CombinedZ:
      return buckling &&
             (c.textY == T::CombinedAngle || c.textZ == T::Lateral || c.textZ == T::SingleLateral ||
              (c.textY == T::Combined && c.textZ == T::None));
    case Governing::None:
      break;
  }
  return true;
}

void FindGoverning(const Finished& d, Verdict& v) {
  const CheckResults& c = d.checks;
  const std::pair<Governing, double> checks[] = {{Governing::Section, c.IRsection},
                                                 {Governing::Vz, c.IRvz},
                                                 {Governing::Vy, c.IRvy},
                                                 {Governing::Lateral, c.IRlateral},
                                                 {Governing::Ny, c.IRny},
                                                 {Governing::Nz, c.IRnz},
                                                 {Governing::CombinedY, c.IRcombinedY},
                                                 {Governing::CombinedZ, c.IRcombinedZ}};
  double most = 0;
  for (const auto& [check, ratio] : checks) {
    const bool better = ratio > most || (ratio == most && ratio > 0 && v.hidden);
    if (!better) continue;
    const bool printed = Printed(d, check);
    if (ratio == most && !printed) continue;
    most = ratio;
    v.governing = check;
    v.hidden = !printed;
  }
  v.IR = MaxIR(c);
  v.term = c.section.term;
}

void Slenderness(const Finished& d, NoteList& notes) {
  if (!d.checks.bucklingRan || !d.checks.slenderness) return;
  const auto look = [&](const char* axis, double factor, double slenderness) {
    if (factor != 0 && slenderness > d.st.islend_limit) {
      notes.Add({NoteCode::SlendernessExceeded, {slenderness, d.st.islend_limit}, axis});
    }
  };
  const bool angle =
      d.rec.Iu > 0 && FindFamily(d.st.ProfileType)->routines.buckling == BucklingKind::Angle;
  look(angle ? "u" : "y", d.st.bly, d.buckling.LyOverI);
  look(angle ? "v" : "z", d.st.blz, d.buckling.LzOverI);
}

void Floor(const Family& family, const Finished& d, double IR, NoteList& notes) {
  const CapacityFloor floor = FloorOf(family, d);
  if (const HeldForce& h = floor.lost; h.Set()) {
    notes.Add({NoteCode::CapacityNotPositive, {h.acting, h.held, h.x}, h.force, h.capacity});
  }
  if (const HeldForce& h = floor.worst; floor.ratio > d.st.iufa && !(IR > d.st.iufa)) {
    notes.Add(
        {NoteCode::ForceAboveCapacity, {h.acting, h.held, h.x, floor.ratio}, h.force, h.capacity});
  }
}

double Size(const float32& max, const float32& min) {
  return std::max(std::fabs(max), std::fabs(min));
}

/// Forces that act but that the family's control doesn't read.
void UnreadForces(const Family& family, const Finished& d, NoteList& notes) {
  const auto unread = [&](const char* force, double size, const char* unit) {
    if (size != 0) notes.Add({NoteCode::ForceUnread, {size}, force, unit});
  };
  const SectionControlKind kind = family.routines.sectionControl;
  if (kind == SectionControlKind::SingleSymmetric || kind == SectionControlKind::Plate) {
    unread("Mz", d.beam.MzAbsMax, "kNm");
    unread("Vy", Size(d.beam.y.V_max, d.beam.y.V_min), "kN");
  }
  // End forces keep the axial force in the input, and the checks of these sections drop it.
  if (family.clearsN && d.st.AnalysisMode != 1) unread("N", d.st.Ne, "kN");
}

/// The elastic ratio of one force on the section as it stands, without any check of stability.
double ElasticRatio(const Finished& d, const RemovedForces& r) {
  const SectionRecord& rec = d.rec;
  const double fd = d.st.fyk / d.st.gammam1;
  if (!(fd > 0) || !(rec.A > 0)) return 0;
  const auto modulus = [](double I, double depth) { return I / (depth / 2); };
  const double width = std::max({double(rec.b), double(rec.b1), double(rec.b2)});
  const double Wy = modulus(rec.Iy, rec.h);
  const double Wz = modulus(rec.Iz, width);
  const double shear = rec.A * fd / std::sqrt(3.0) / 1000;
  return std::max({std::fabs(r.N) / (rec.A * fd / 1000), Wy > 0 ? r.My / (Wy * fd / 1E6) : 0,
                   Wz > 0 ? r.Mz / (Wz * fd / 1E6) : 0, r.Vz / shear, r.Vy / shear});
}

void Removed(const Finished& d, NoteList& notes) {
  const RemovedForces& r = d.history.removed;
  if (!r.Any()) return;
  notes.Add({NoteCode::LoadsRemoved, {r.N, r.My, r.Mz, r.Vy, r.Vz}});
  const double ratio = ElasticRatio(d, r);
  if (ratio > d.st.iufa) notes.Add({NoteCode::RemovedBeyondCapacity, {ratio}});
}

/// What the lateral check would give, alone and in the buckling check with klt.
void LateralOff(const Family& family, const Finished& d, NoteList& notes) {
  if (d.st.LateralTorsionalBuckling == 1 || !LateralMomentActs(family, d)) return;
  const bool wholeMember = d.st.AnalysisMode == 1 && d.st.LtbSegments == 0;
  const double chi = wholeMember ? d.ltb.chiLT : d.ltb.chiLT_min;
  if (!(chi > 0) || d.ltb.Mdb == 0) return;
  double ratio = std::fabs(d.beam.My_gov / d.ltb.Mdb);
  if (d.checks.bucklingRan && d.checks.IRcombinedZ > 0 && d.rec.Mdy > 0) {
    const double bending = d.buckling.klt * d.beam.MyAbsMax / d.rec.Mdy;
    const double inForce = LateralReduction(d.st, d.ltb);
    ratio = std::max(ratio, d.checks.IRcombinedZ + bending / chi - bending / inForce);
  }
  if (chi >= 1 && !(ratio > d.st.iufa)) return;  // nothing is taken off
  const bool program = d.history.ltbOffBy != 0;
  Note note{program ? NoteCode::LtbOffByProgram : NoteCode::LtbOff,
            {ratio, d.beam.My_gov, d.ltb.Mdb, d.st.iufa}};
  note.origin.family = d.history.ltbOffBy;
  if (program && ratio > d.st.iufa) note.code = NoteCode::LtbUnchecked;
  notes.Add(note);
}

void Deflection(const Finished& d, Verdict& v) {
  if (d.st.AnalysisMode != 1) return;
  const Deflections& by = d.deflections;
  const double z = LengthOverDeflection(d.st.L, by.DeflZ_max, by.DeflZ_min);
  const double y = LengthOverDeflection(d.st.L, by.DeflY_max, by.DeflY_min);
  if (z == 0 && y == 0) return;
  const double limit = d.st.DeflectionLimit;
  const bool fails = (z != 0 && z < limit) || (y != 0 && y < limit);
  v.sls = fails ? Serviceability::Fails : Serviceability::Passes;
  v.notes.Add({NoteCode::Deflection, {z, y, limit}});
}

/// What makes the figures void, whatever they are.
void Voids(const Family& family, const Finished& d, NoteList& notes) {
  if (UnknownSeries(family, d.st)) {
    notes.Add({NoteCode::UnknownSeries, {double(d.st.*family.sub)}});
  }
  if (const WrongInput w = ImpossiblePart(d.st, d.rec); w.Set()) {
    notes.Add({NoteCode::SectionImpossible, {w.value}, w.words});
  }
  if (d.st.AnalysisMode == 1 && FindSupport(d.st.SupportType) == nullptr) {
    notes.Add({NoteCode::UnknownSupport, {double(d.st.SupportType)}});
  }
  if (!(d.st.L > 0)) notes.Add({NoteCode::LengthNotPositive, {d.st.L}});
  if (family.routines.sectionControl == SectionControlKind::None) {
    notes.Add(
        {NoteCode::NoControl, {d.beam.z.M_max, d.beam.z.M_min, d.rec.MdyTop, d.rec.MdyBottom}});
  }
}

Standing StandingOf(const NoteList& notes) {
  switch (notes.Worst()) {
    case Severity::Fails:
      return Standing::Fails;
    case Severity::NotChecked:
      return Standing::NotChecked;
    default:
      return Standing::Passes;
  }
}

void JudgeFinished(const Family& family, const Finished& d, Verdict& v) {
  v.buckling = family.routines.buckling;
  NoteList& notes = v.notes;
  Guarded([&] { FindGoverning(d, v); });
  Voids(family, d, notes);
  if (v.IR > d.st.iufa) notes.Add({NoteCode::RatioExceeded, {v.IR, d.st.iufa}});
  Slenderness(d, notes);
  Guarded([&] { Floor(family, d, v.IR, notes); });
  UnreadForces(family, d, notes);
  Removed(d, notes);
  Guarded([&] { LateralOff(family, d, notes); });
  Guarded([&] { AddStaleValues(family, d, v.IR, notes); });
  Guarded([&] { AddSectionCautions(family, d, v.IR, notes); });
  Guarded([&] { AddOptionCautions(family, d, notes); });
  if (v.hidden) notes.Add({NoteCode::GoverningHidden, {v.IR}});
}

}  // namespace

Verdict Judge(const Finished& d) {
  Verdict v;
  v.limit = d.st.iufa;
  if (!d.history.stoppedIn.empty()) {
    v.standing = Standing::Stopped;
    const WrongInput w = InputOfFailure(d.st);
    v.notes.Add({NoteCode::Stopped, {w.value}, StepWords(d.history.stoppedIn), w.words});
    return v;
  }
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr) {
    v.notes.Add({NoteCode::UnknownFamily, {double(d.st.ProfileType)}});
  } else {
    JudgeFinished(*family, d, v);
    Guarded([&] { Deflection(d, v); });
  }
  v.notes.Sort();
  v.standing = StandingOf(v.notes);
  return v;
}

const char* StandingWord(Standing standing) {
  constexpr std::array words{"passes", "fails", "not checked", "stopped"};
  return words.at(static_cast<std::size_t>(standing));
}

const char* ServiceabilityWord(Serviceability sls) {
  constexpr std::array words{"none", "passes", "fails"};
  return words.at(static_cast<std::size_t>(sls));
}

std::string GoverningLabel(const Verdict& v) {
  constexpr std::array terms{"", "N", "My", "Mz", "My+Mz", "N+My", "N+Mz", "N+My+Mz", "N+Mu+Mv"};
  const bool angle = v.buckling == BucklingKind::Angle;
  switch (v.governing) {
    case Governing::Section:
      return std::string("section ") + terms.at(static_cast<std::size_t>(v.term));
    case Governing::Vz:
      return "shear Vz";
    case Governing::Vy:
      return angle ? "shear Vz/Vy" : "shear Vy";
    case Governing::Lateral:
      return "lateral buckling";
    case Governing::Ny:
      return angle ? "buckling Nu" : "buckling Ny";
    case Governing::Nz:
      return angle ? "buckling Nv" : "buckling Nz";
    case Governing::CombinedY:
      return v.buckling == BucklingKind::SingleSymmetric ? "buckling N+My" : "buckling N+My+Mz";
    case Governing::CombinedZ:
      return angle                                         ? "buckling N+Mu+Mv"
             : v.buckling == BucklingKind::Tube            ? "buckling N+My+Mz"
             : v.buckling == BucklingKind::SingleSymmetric ? "lateral and buckling N+My"
                                                           : "lateral and buckling N+My+Mz";
    case Governing::None:
      break;
  }
  return {};
}

}  // namespace korvane
