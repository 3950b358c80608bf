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

/// The results as far as the calculation of this member got, every other one empty: those that
/// stand from the start are another member's.
void KeepOwnResults(const ProjectState& opened, Design& design) {
  Design own(design.lib);
  own.st = opened;
  try {
    CalculateOpened(own, Lines::Composed);
    own = Design(design.lib);  // the failure hangs on what another section left: nothing is known
  } catch (const CalculationFault&) {
    // The same failure: what was reached stands.
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
    KeepOwnResults(opened, design);
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
