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
  h.belowTone = v.sls == Serviceability::Fails ? Tone::Fail : Tone::Pass;
}

/// Why nothing is said of the ultimate limit state.
void AddReason(const Session& s, const Verdict& v, Headline& h) {
  if (v.notes.empty()) return;
  h.below = s.OnScreen(NoteText(v.notes[0], s.design().lib->catalogues));
  h.belowTone = Tone::Quiet;
}

}  // namespace

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
  switch (v.standing) {
    case Standing::Passes:
      h.word = v.governing == Governing::None ? "no forces" : StandingWord(v.standing);
      h.tone = v.governing == Governing::None ? Tone::Quiet : Tone::Pass;
      break;
    case Standing::Fails:
      h.word = "FAILS";
      h.tone = Tone::Fail;
      break;
    case Standing::NotChecked:
    case Standing::Stopped:
      h.word = StandingWord(Standing::NotChecked);
      AddReason(s, v, h);
      break;
  }
  return h;
}

}  // namespace korvane
