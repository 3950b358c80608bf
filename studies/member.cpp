// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/member.h"

#include <utility>

namespace korvane {

Design StartedDesign(std::shared_ptr<const Library> library) {
  Design design(std::move(library));
  StartDesign(design);
  try {
    Calculate(design);
  } catch (const CalculationFault&) {
    // The new project's own failure is not the member's.
  }
  design.messages.clear();
  return design;
}

ProjectState NewMember(std::shared_ptr<const Library> library) {
  Design design(std::move(library));
  StartDesign(design);
  return design.st;
}

namespace {

/// The opening of a project: material step, then the calculations of opening and of the focus. The
/// lines of the first would be written anew by the second.
void CalculateOpened(Design& design, Lines lines) {
  ForgetFormerInput(design);
  try {
    SetMaterial(design.lib->materials, design.rec.tmax, design.st);
  } catch (const ArithmeticFault& fault) {
    design.history.stoppedIn = "SetMaterial";
    throw CalculationFault("SetMaterial", fault.what());
  }
  CalculateNumbers(design);
  lines == Lines::Composed ? Calculate(design) : CalculateNumbers(design);
}

/// The steps of a calculation whose results stand apart, in order.
enum Stage { kForces, kSection, kLateral, kChecks, kBuckling, kComplete };

/// The stage that a failing step belongs to; its results and those behind it are not reached.
Stage StageOf(const std::string& step) {
  if (step == "AnalyseBeam") return kForces;
  if (step == "LateralTorsionalBuckling") return kLateral;
  if (step == "ChooseBucklingCurves" || step == "SectionControl") return kChecks;
  if (step == "BucklingControl") return kBuckling;
  const bool behind = step == "MaxIR" || step == "Deflections" || step == "ModalAnalysis";
  return behind ? kComplete : kSection;
}

/// The ratios without the lines, which are composed last of all.
CheckResults WithoutLines(CheckResults c) {
  for (CheckLine* line : {&c.lineSection, &c.lineVz, &c.lineVy, &c.lineLateral, &c.lineBucklingY,
                          &c.lineBucklingZ, &c.lineSlenderness}) {
    *line = {};
  }
  return c;
}

/// The results as far as the calculation of this member got, every other one empty: those that
/// stand from the start are another member's.
void KeepOwnResults(const ProjectState& opened, const std::string& step, Design& design) {
  Design own(design.lib);
  own.st = opened;
  std::string stopped;
  try {
    CalculateOpened(own, Lines::Composed);
  } catch (const CalculationFault& fault) {
    stopped = fault.Step();
  }
  if (stopped != step) {  // the failure hangs on what another section left in the record
    const Stage stage = StageOf(step);
    own = Design(design.lib);
    if (stage > kForces) own.beam = design.beam;
    if (stage > kForces) own.forces = design.forces;
    if (stage > kSection) own.rec = design.rec;
    if (stage > kLateral) own.ltb = design.ltb;
    if (stage > kChecks) own.checks = WithoutLines(design.checks);
    if (stage > kBuckling) own.buckling = design.buckling;
  }
  own.st = std::move(design.st);
  own.messages = std::move(design.messages);
  own.history = std::move(design.history);
  design = std::move(own);
}

MemberRun Run(const ProjectState& opened, Design& design, Lines lines) {
  MemberRun run;
  try {
    CalculateOpened(design, lines);
  } catch (const CalculationFault& fault) {
    run.fault = fault.Step();
    run.what = fault.what();
    KeepOwnResults(opened, fault.Step(), design);
  }
  return run;
}

}  // namespace

MemberRun OpenMember(Design& design, Lines lines) {
  const ProjectState opened = design.st;
  return Run(opened, design, lines);
}

MemberRun DesignMember(const Design& started, const ProjectState& input, Design& work,
                       Lines lines) {
  work = started;
  work.st = input;
  return Run(input, work, lines);
}

}  // namespace korvane
