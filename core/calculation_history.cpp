// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/calculation_history.h"

#include <algorithm>
#include <cmath>

#include "analysis/beam.h"
#include "checks/buckling_curves.h"
#include "checks/column_buckling.h"
#include "sections/names.h"
#include "sections/p10bas.h"
#include "sections/p26bas.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

bool AnyPointItem(const ProjectState& st, bool onlyY) {
  for (int i = 1; i <= 8; ++i) {
    if (st.pm[i] != 0 && (!onlyY || st.pm_yz[i] == 0)) return true;
  }
  return false;
}

bool AnyTrapezoid(const ProjectState& st, int last, bool onlyY) {
  for (int t = 1; t <= last; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    if ((st.*s.q1 != 0 || st.*s.q2 != 0) && (!onlyY || st.*s.yz == 0)) return true;
  }
  return false;
}

bool AnyLineLoad(const ProjectState& st, bool onlyY) {
  const auto acts = [onlyY](double q, int yz) { return q != 0 && (!onlyY || yz == 0); };
  return acts(st.q1, st.q1_yz) || acts(st.q2, st.q2_yz) || acts(st.q3, st.q3_yz) ||
         acts(st.q4, st.q4_yz);
}

bool AnyEnd(const Indexed<float32, 1, 2>& ends) {
  return ends[1] != 0 || ends[2] != 0;
}

/// What a calculation takes out of the input for a family.
enum class Removal { Nothing, AxialAndY, Transverse, EndY };

Removal RemovalOf(const ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return Removal::Nothing;
  const bool loads = st.AnalysisMode == 1;
  if (family->routines.sectionControl == SectionControlKind::T) {
    const bool ends =
        AnyEnd(st.My_end) || AnyEnd(st.Mz_end) || AnyEnd(st.Vy_end) || AnyEnd(st.Vz_end);
    const bool any = AnyLineLoad(st, false) || AnyTrapezoid(st, 3, false) ||
                     AnyPointItem(st, false) || st.SelfWeight != 0;
    return (loads ? any : ends) ? Removal::Transverse : Removal::Nothing;
  }
  if (loads) {
    if (!IsPlateType(st.ProfileType)) return Removal::Nothing;
    const bool any = st.NP != 0 || st.NV1 != 0 || st.NV2 != 0 || AnyLineLoad(st, true) ||
                     AnyTrapezoid(st, 2, true) || AnyPointItem(st, true);
    return any ? Removal::AxialAndY : Removal::Nothing;
  }
  const bool drops = family->routines.sectionControl == SectionControlKind::SingleSymmetric ||
                     family->routines.sectionControl == SectionControlKind::None;
  return drops && (AnyEnd(st.Mz_end) || AnyEnd(st.Vy_end)) ? Removal::EndY : Removal::Nothing;
}

double Size(const float32& max, const float32& min) {
  return std::max(std::fabs(max), std::fabs(min));
}

/// The forces of the input as it was entered, analysed as those of a family that keeps all.
RemovedForces ForcesRemoved(const Design& d, Removal removal) {
  constexpr int kKeepsAll = 1;
  ProjectState st = d.st;
  st.ProfileType = kKeepsAll;
  // The third trapezoid stays in the input of the plate families.
  if (removal == Removal::AxialAndY) {
    st.qt3_1 = 0;
    st.qt3_2 = 0;
  }
  WorkingLoads loads;
  BeamResults beam;
  number N;
  AnalyseBeam(st, d.rec.S, loads, beam, N);
  RemovedForces r;
  if (removal == Removal::AxialAndY) r.N = N;
  r.Mz = beam.MzAbsMax;
  r.Vy = Size(beam.y.V_max, beam.y.V_min);
  if (removal == Removal::Transverse) {
    r.My = beam.MyAbsMax;
    r.Vz = Size(beam.z.V_max, beam.z.V_min);
  }
  return r;
}

/// What is typed or chosen; the transient fields that a view sets are no change.
bool SameInput(ProjectState a, const ProjectState& b) {
  a.OptimiseOpen = b.OptimiseOpen;
  a.ResultView = b.ResultView;
  a.FigureNotToScale = b.FigureNotToScale;
  a.DatabaseMode = b.DatabaseMode;
  a.CurrentFileName = b.CurrentFileName;
  a.CurrentDir = b.CurrentDir;
  return a == b;
}

Origin Here(const ProjectState& st) {
  const SizeList sizes = SizesOf(st);
  const Family* family = FindFamily(st.ProfileType);
  const bool series = family != nullptr && family->sub != nullptr;
  return {st.ProfileType, series ? int(st.*family->sub) : 0, sizes.hasCatalogue ? sizes.row : -1};
}

bool WritesFlangeWidth(const Family& f) {
  return f.load != LoadFlatBar && f.routines.sectionControl != SectionControlKind::Tube &&
         !f.givenConstants;
}

}  // namespace

bool BeginHistory(Design& d) {
  History& h = d.history;
  h.stoppedIn.clear();
  if (d.st.LateralTorsionalBuckling == 1) h.ltbOffBy = 0;
  if (h.removed.Any() && (!h.afterRemoval || !SameInput(d.st, *h.afterRemoval))) {
    h.removed = {};
    h.afterRemoval.reset();
  }
  const Removal removal = RemovalOf(d.st);
  if (removal == Removal::Nothing) return false;
  try {
    h.removed = ForcesRemoved(d, removal);
  } catch (const ArithmeticFault&) {
    return false;  // the calculation meets the failure itself
  }
  return h.removed.Any();
}

void RememberOrigins(Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr) return;
  History& h = d.history;
  const Origin here = Here(d.st);
  if (WritesFlangeWidth(*family)) {
    h.b = here;
    if (family->routines.buckling != BucklingKind::Angle) h.tf = here;
  }
  if (family->routines.sectionControl == SectionControlKind::SingleSymmetric ||
      family->routines.sectionControl == SectionControlKind::Plate ||
      family->routines.sectionControl == SectionControlKind::None) {
    h.tf2 = here;
  }
  if (d.checks.bucklingRan && HasKlt(family->routines.buckling)) h.klt = here;
  if (d.st.ManualBucklingCurves == 0 && family->curves != CurveRule::Kept) {
    h.curves = here;
  }
}

void ForgetFormerInput(Design& d) {
  History& h = d.history;
  h.removed = {};
  h.afterRemoval.reset();
  h.ltbOffBy = 0;
  h.curves = {};
  h.stoppedIn.clear();
}

Verdict VerdictOf(const Design& d) {
  return Judge({d.st, d.rec, d.forces, d.beam, d.ltb, d.checks, d.buckling, d.deflections,
                d.history, d.lib->materials});
}

}  // namespace korvane
