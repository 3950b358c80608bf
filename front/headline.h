// SPDX-License-Identifier: GPL-3.0-or-later
// The headline of the main window: both limit states in words and figures, never in colour alone.
#pragma once

#include <string>
#include <vector>

#include "checks/verdict.h"

namespace korvane {

class Session;

struct Headline {
  enum class Tone { Quiet, Pass, Fail };
  std::string figure;  ///< greatest ratio, "-" where there is none that holds
  double ratio = 0;    ///< that ratio, where there is one
  std::string word;    ///< "passes", "FAILS", "not checked", "not calculated"
  Tone tone = Tone::Quiet;
  std::string below;  ///< of the serviceability limit state, or the reason of the word
  Tone belowTone = Tone::Quiet;
  std::vector<std::string> notes;  ///< "caution: ...", the most severe first
};

/// A standing in the headline's words. forces: any check had something to check.
struct StandingSaid {
  const char* word;
  Headline::Tone tone;
};
StandingSaid SaidOf(Standing standing, bool forces);
/// The tone of the serviceability limit state.
Headline::Tone ToneOf(Serviceability sls);

/// What is to be said of the last calculation, or that it isn't one of the state in force.
Headline HeadlineOf(const Session& session);

}  // namespace korvane
