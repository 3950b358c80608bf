// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/calculation.h"

#include "checks/buckling_curves.h"
#include "checks/column_buckling.h"
#include "checks/compose.h"
#include "checks/lateral_buckling.h"
#include "checks/section_control.h"
#include "core/calculation_history.h"
#include "core/supports.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

/// Runs one step under the watch of the floating-point flags and names it when it fails.
template <class Body>
void RunStep(const char* name, Body&& body) {
  try {
    const FloatWatch watch;
    body();
    watch.Check();
  } catch (const CalculationFault&) {
    throw;
  } catch (const ArithmeticFault& fault) {
    throw CalculationFault(name, fault.what());
  }
}

/// Section record, material values, capacities, lateral buckling values, curves.
void ComputeSection(Design& d) {
  ProjectState& st = d.st;
  SectionRecord& rec = d.rec;
  d.ltb.C1 = 0;
  d.ltb.C2 = 0;
  d.ltb.C3 = 0;
  const Family* family = FindFamily(st.ProfileType);
  if (family == nullptr) return;

  if (family->clearsN) d.forces.N = 0;
  RunStep("LoadSection", [&] { family->load(st, d.lib->catalogues, rec); });
  RunStep("SetMaterial", [&] { SetMaterial(d.lib->materials, rec.tmax, st); });
  const RoutineSet& routines = family->routines;
  if (routines.effective) RunStep("EffectiveSection", [&] { routines.effective(st, rec); });
  if (routines.shear) RunStep("ShearCapacity", [&] { routines.shear(st, rec); });
  if (routines.nominal) {
    RunStep("NominalCapacities", [&] { routines.nominal(st, *family, d.forces, rec); });
  }
  if (rec.flangeOverloaded) {
    rec.flangeOverloaded = false;
    st.HsqKind = 1;
    d.messages.emplace_back(" Flange overloaded! Program removes flangeloading ");
  }
  if (family->lateral.method != LateralMethod::None) {
    RunStep("LateralTorsionalBuckling",
            [&] { LateralTorsionalStep(*family, st, d.forces, rec, d.beam, d.ltb); });
  } else {
    if (st.LateralTorsionalBuckling != 0) d.history.ltbOffBy = st.ProfileType;
    st.LateralTorsionalBuckling = 0;
    st.LtbSegments = 0;
  }
  if (st.ManualBucklingCurves == 0) {
    RunStep("ChooseBucklingCurves", [&] { ChooseBucklingCurves(family->curves, rec, st); });
  }
}

/// Section control and, in compression, column buckling. No text.
void RunChecks(Design& d) {
  CheckResults& c = d.checks;
  c.IRny = 0;
  c.IRnz = 0;
  c.IRcombinedY = 0;
  c.IRcombinedZ = 0;
  c.bucklingRan = false;
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr) {
    ClearSectionResults(c);
    return;
  }
  if (family->clearsN) d.forces.N = 0;
  if (family->routines.sectionControl == SectionControlKind::T) {
    ClearLoadsKeepAxial(d.st);
    d.forces.My = 0;
    d.forces.Mz = 0;
    d.forces.Vy = 0;
    d.forces.Vz = 0;
  }
  const int lateral = d.st.LateralTorsionalBuckling;
  RunStep("SectionControl",
          [&] { SectionControl(*family, d.st, d.beam, d.ltb, d.forces, d.rec, c); });
  if (lateral != 0 && d.st.LateralTorsionalBuckling == 0) d.history.ltbOffBy = family->code;
  if (d.forces.N > 0 && family->routines.buckling != BucklingKind::None) {
    RunStep("BucklingControl", [&] {
      BucklingControl({*family, d.st, d.beam, d.ltb}, d.forces, d.rec, d.buckling, c);
    });
  }
  // A ratio beyond single precision fails here, so that no view meets it.
  RunStep("MaxIR", [&] { MaxIR(c); });
}

void Deflect(Design& d) {
  if (d.st.AnalysisMode != 1) {
    d.deflections = {};
    return;
  }
  RunStep("Deflections", [&] {
    CombineSls(d.st, d.rec.S, d.loads);
    ComputeDeflections(d.st, d.loads, d.rec.Iy, d.rec.Iz, d.deflections);
  });
}

void Analyse(Design& d) {
  RunStep("AnalyseBeam", [&] { AnalyseBeam(d.st, d.rec.S, d.loads, d.beam, d.forces.N); });
}

/// The part of the refresh of the controls that changes the state, with and without a window.
void RefreshState(ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  if (family != nullptr && !family->options.web) {
    st.WebStiffener = 0;
    st.EndStiffener = 0;
  }
  if (IsSpring(st.SupportType)) st.ModalAnalysis = 0;
  if (st.a_webstiff > 1000 * st.L) st.a_webstiff = 1000 * st.L;
}

}  // namespace

std::shared_ptr<const Library> ReadLibrary(const std::string& folder) {
  return std::make_shared<const Library>(
      Library{folder, ReadCatalogues(folder), ReadMaterials(folder)});
}

void StartDesign(Design& d) {
  NewProject(d.st, d.lib->folder);
  ReadDefaults(d.lib->folder, d.st);
  try {
    RunStep("SetMaterial", [&] { SetMaterial(d.lib->materials, d.rec.tmax, d.st); });
  } catch (const CalculationFault&) {
    // Without defaults there is no material factor; the first calculation fails visibly.
  }
}

namespace {

/// The steps of a calculation; compose writes the result lines where they are wanted.
template <class Compose>
void RunCalculation(Design& d, Compose&& compose) {
  d.st.OptimiseOpen = 0;
  d.st.ResultView = 3;
  const bool removes = BeginHistory(d);
  try {
    Analyse(d);
    ComputeSection(d);
    RunChecks(d);
    Deflect(d);
    if (d.st.ModalAnalysis == 1) {
      RunStep("ModalAnalysis", [&] { ModalAnalysisRun(d.st, d.rec.S, d.rec.Iy, d.modal); });
    }
    compose();
    RefreshState(d.st);
  } catch (const CalculationFault& fault) {
    d.history.stoppedIn = fault.Step();
    throw;
  }
  RememberOrigins(d);
  if (removes) d.history.afterRemoval = std::make_shared<const ProjectState>(d.st);
}

}  // namespace

void Calculate(Design& d) {
  RunCalculation(d, [&] { ComposeResults(d); });
}

void CalculateNumbers(Design& d) {
  RunCalculation(d, [] {});
}

void ComposeResults(Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr) return ClearLines(d.checks);
  ComposeLines({*family, d.st, d.beam, d.ltb}, d.rec, d.forces, d.buckling, d.checks);
}

void SilentRecalculation(Design& d) {
  ComputeSection(d);
  Analyse(d);
  RunChecks(d);
  Deflect(d);
}

void SilentRecalculationOnSameBeam(Design& d, float32 My_gov) {
  ComputeSection(d);
  d.beam.My_gov = My_gov;
  RunChecks(d);
  Deflect(d);
}

}  // namespace korvane
