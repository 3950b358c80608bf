// SPDX-License-Identifier: GPL-3.0-or-later
// How the tests of the verdict make members and read its notes.
#pragma once

#include <string>

#include "../design/designs.h"
#include "checks/verdict.h"

namespace korvane {

/// End forces instead of loads; index 1 at x = 0.
inline void EndForces(Design& d, double N, double My, double Mz, double Vz, double Vy) {
  d.st.AnalysisMode = 0;
  d.st.Ne = N;
  for (int end = 1; end <= 2; ++end) {
    d.st.My_end[end] = My;
    d.st.Mz_end[end] = Mz;
    d.st.Vz_end[end] = Vz;
    d.st.Vy_end[end] = Vy;
  }
}

/// The verdict after one calculation, which may stop.
inline Verdict VerdictAfter(Design& d) {
  try {
    Calculate(d);
  } catch (const CalculationFault&) {
    // Kept by the driver for the verdict.
  }
  return VerdictOf(d);
}

/// The verdict after the two calculations of opening a project.
inline Verdict VerdictAfterTwo(Design& d) {
  VerdictAfter(d);
  return VerdictAfter(d);
}

inline const Note* Find(const Verdict& v, NoteCode code) {
  for (const Note& note : v.notes)
    if (note.code == code) return &note;
  return nullptr;
}

inline std::string Text(const Design& d, const Verdict& v, NoteCode code) {
  const Note* note = Find(v, code);
  return note == nullptr ? std::string() : NoteText(*note, d.lib->catalogues);
}

inline bool Has(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

}  // namespace korvane
