// SPDX-License-Identifier: GPL-3.0-or-later
// The driver: one Design owns all that a calculation reads and writes, and Calculate runs the
// steps of analysis, sections and checks in their fixed order.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "analysis/beam.h"
#include "analysis/deflections.h"
#include "analysis/loads.h"
#include "analysis/modal.h"
#include "checks/check_line.h"
#include "checks/history.h"
#include "checks/results.h"
#include "checks/verdict.h"
#include "core/project_state.h"
#include "core/setupbas.h"
#include "sections/readprofiles.h"
#include "sections/section_record.h"

namespace korvane {

/// What is read once at the start and shared read-only by all designs.
struct Library {
  std::string folder;
  Catalogues catalogues;
  MaterialTable materials;
};

/// Reads catalogues and materials of the data folder.
std::shared_ptr<const Library> ReadLibrary(const std::string& folder);

/// An arithmetic failure of a calculation, with the name of the step where it stopped.
class CalculationFault : public ArithmeticFault {
public:
  CalculationFault(std::string step, const std::string& what)
      : ArithmeticFault(step + ": " + what), step_(std::move(step)) {}
  const std::string& Step() const { return step_; }

private:
  std::string step_;
};

/// One member with its input and the results of the last calculation. Two designs can run in
/// two threads; they share only the library.
struct Design {
  explicit Design(std::shared_ptr<const Library> library) : lib(std::move(library)) {}

  std::shared_ptr<const Library> lib;
  ProjectState st;
  SectionRecord rec;
  SectionForces forces;
  WorkingLoads loads;
  BeamResults beam;
  Deflections deflections;
  ModalResults modal;
  LtbResults ltb;
  CheckResults checks;
  BucklingResults buckling;
  /// Messages that came up during the calculation, for a message box; the owner shows and
  /// clears them.
  std::vector<std::string> messages;
  /// What the calculations did that their numbers don't show.
  History history;
};

/// The start sequence without the window: new project, defaults file of the library's folder,
/// material step. No calculation runs. An arithmetic failure of the material step (no defaults
/// file) is passed over: the first calculation meets it again.
void StartDesign(Design& design);

/// One whole calculation from the state to the composed result lines. Throws CalculationFault
/// where a step fails; results stay as far as the calculation had got.
void Calculate(Design& design);

/// Calculate without its result lines, which stay as they were: for whoever composes them later or
/// wants numbers alone. Throws CalculationFault.
void CalculateNumbers(Design& design);

/// The verdict on the last calculation; changes nothing. Whoever shows a result asks for it.
Verdict VerdictOf(const Design& design);

/// Another input is in force: what calculations did to the former one is forgotten. To be called
/// after a project was opened or begun.
void ForgetFormerInput(Design& design);

/// Keeps of which section the record's fields, klt and the buckling curves are. Calculate does it;
/// for whoever leaves a silent calculation in force.
void RememberOrigins(Design& design);

/// Composes the result lines from the numbers of the last calculation, silent ones too.
void ComposeResults(Design& design);

/// The optimiser's calculation: section, analysis, checks, deflections, in this order; no text
/// is composed and nothing is allocated. Throws CalculationFault.
void SilentRecalculation(Design& design);

/// The same where the forces in the beam are known to be those of the calculation before: only
/// the section has changed, and its weight is no load. My_gov (kNm) is the whole member's, which
/// a section with restraint points replaces by its last segment's. Throws CalculationFault.
void SilentRecalculationOnSameBeam(Design& design, float32 My_gov);

}  // namespace korvane
