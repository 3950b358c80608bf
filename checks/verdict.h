// SPDX-License-Identifier: GPL-3.0-or-later
// The verdict on a member: what may be said of a finished calculation as a whole, with notes.
// "Passes" is said only where every force that acts was held against a capacity.
#pragma once

#include <array>
#include <cstddef>
#include <string>

#include "analysis/deflections.h"
#include "checks/check_line.h"
#include "checks/history.h"
#include "checks/notes.h"
#include "core/setupbas.h"
#include "sections/section_record.h"

namespace korvane {

enum class BucklingKind;

/// Standing of the ultimate limit state.
enum class Standing { Passes, Fails, NotChecked, Stopped };
/// Standing of the serviceability limit state; None without a deflection.
enum class Serviceability { None, Passes, Fails };

/// The check whose ratio is the greatest.
enum class Governing { None, Section, Vz, Vy, Lateral, Ny, Nz, CombinedY, CombinedZ };

struct Verdict {
  Standing standing = Standing::Passes;
  Serviceability sls = Serviceability::None;
  double IR = 0;     ///< greatest ratio of all checks, printed or not
  double limit = 0;  ///< iufa
  Governing governing = Governing::None;
  Term term = Term::None;   ///< of Governing::Section
  BucklingKind buckling{};  ///< the family's, for the label
  bool hidden = false;      ///< no printed line shows the greatest ratio
  NoteList notes;           ///< most severe first

  bool Passes() const { return standing == Standing::Passes; }
};

/// The finished numbers that a verdict is taken from.
struct Finished {
  const ProjectState& st;
  const SectionRecord& rec;
  const SectionForces& forces;
  const BeamResults& beam;
  const LtbResults& ltb;
  const CheckResults& checks;
  const BucklingResults& buckling;
  const Deflections& deflections;
  const History& history;
  const MaterialTable& materials;
};

/// Changes nothing and never throws. Allocates nothing for an ordinary member; only the question
/// what an option left out of account would give copies the state.
Verdict Judge(const Finished& d);

/// "passes", "fails", "not checked", "stopped".
const char* StandingWord(Standing standing);
/// "passes", "fails", "none".
const char* ServiceabilityWord(Serviceability sls);
/// The governing check in the words of its line: "section N+My", "buckling Nz"; empty for none.
std::string GoverningLabel(const Verdict& verdict);

}  // namespace korvane
