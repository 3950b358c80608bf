// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/headline.h"

#include <algorithm>

#include "front/session.h"

namespace korvane {

namespace {

using Tone = Headline::Tone;

/// The reason behind "not calculated: "; a sentence without one stays whole.
std::string ReasonOf(const std::string& sentence) {
  const auto colon = sentence.find(": ");
  return colon == std::string::npos ? sentence : sentence.substr(colon + 2);
}

/// "SLS L/250, limit L/300: fails", of the plane that bends most.
void AddServiceability(const Session& s, const Verdict& v, Headline& h) {
  if (v.sls == Serviceability::None) return;
  const auto note = std::find_if(v.notes.begin(), v.notes.end(),
                                 [](const Note& n) { return n.code == NoteCode::Deflection; });
  if (note == v.notes.end()) return;
  const double z = note->v[0];
  const double y = note->v[1];
  const double least = z == 0 ? y : y == 0 ? z : std::min(z, y);
  h.below = "SLS L/" + s.Shown(least, "0") + ", limit L/" + s.Shown(note->v[2], "0") + ": " +
            ServiceabilityWord(v.sls);
  h.belowTone = ToneOf(v.sls);
}

/// Why nothing is said of the ultimate limit state.
void AddReason(const Session& s, const Verdict& v, Headline& h) {
  if (v.notes.empty()) return;
  h.below = s.OnScreen(NoteText(v.notes[0], s.design().lib->catalogues));
  h.belowTone = Tone::Quiet;
}

}  // namespace

StandingSaid SaidOf(Standing standing, bool forces) {
  switch (standing) {
    case Standing::Passes:
      if (!forces) return {"no forces", Tone::Quiet};
      return {StandingWord(standing), Tone::Pass};
    case Standing::Fails:
      return {"FAILS", Tone::Fail};
    case Standing::NotChecked:
    case Standing::Stopped:
      break;
  }
  return {StandingWord(Standing::NotChecked), Tone::Quiet};
}

Tone ToneOf(Serviceability sls) {
  return sls == Serviceability::Fails    ? Tone::Fail
         : sls == Serviceability::Passes ? Tone::Pass
                                         : Tone::Quiet;
}

Headline HeadlineOf(const Session& s) {
  Headline h;
  h.figure = "-";
  if (const std::string why = s.NotCalculated(); !why.empty()) {
    h.word = "not calculated";
    h.below = ReasonOf(why);
    return h;
  }
  const Design& d = s.design();
  const Verdict v = VerdictOf(d);
  for (const Note& note : v.notes) {
    h.notes.push_back(std::string(SeverityWord(KindOf(note.code).severity)) + ": " +
                      s.OnScreen(NoteText(note, d.lib->catalogues)));
  }
  if (v.governing != Governing::None) {
    h.ratio = v.IR;
    h.figure = s.Shown(v.IR, "#0.00");
  }
  AddServiceability(s, v, h);
  const StandingSaid said = SaidOf(v.standing, v.governing != Governing::None);
  h.word = said.word;
  h.tone = said.tone;
  if (v.standing == Standing::NotChecked || v.standing == Standing::Stopped) AddReason(s, v, h);
  return h;
}

}  // namespace korvane
