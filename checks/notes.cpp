// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/notes.h"

#include <algorithm>

namespace korvane {

namespace {

using C = NoteCode;

// clang-format off
constexpr std::array kNotes{
  NoteKind{C::Stopped, "stopped", Severity::NotChecked,
    "An arithmetic failure stopped the calculation: there are no results.",
    "Mend the input that the note names, or the last one changed."},
  NoteKind{C::RatioExceeded, "ratio-exceeded", Severity::Fails,
    "The greatest ratio of all checks is above the allowable usage factor.",
    "Take a larger section, a better steel or less load."},
  NoteKind{C::SlendernessExceeded, "slenderness-exceeded", Severity::Fails,
    "The slenderness limit is on and a slenderness L/i is above it.",
    "Shorten the buckling length or take a section with a larger radius of gyration."},
  NoteKind{C::CapacityNotPositive, "capacity-not-positive", Severity::Fails,
    "Shear or axial force leaves a capacity of 0 or less for a force that acts; such a line isn't printed.",
    "Take a larger section: the force that reduces the capacity is beyond its own."},
  NoteKind{C::ForceAboveCapacity, "force-above-capacity", Severity::Fails,
    "A force alone is above its own capacity at some point and no line says so.",
    "Take a larger section; compare the force with the capacity that the note names."},
  NoteKind{C::StaleFieldFails, "stale-field-fails", Severity::Fails,
    "A check reads a value that this family doesn't write; with the family's own value it fails.",
    "Go by the ratio of the note, or choose the value by hand where that is possible."},
  NoteKind{C::NoControl, "no-control", Severity::NotChecked,
    "The program works out this family's capacities but has no control for it.",
    "Hold the forces against the capacities by hand."},
  NoteKind{C::UnknownFamily, "unknown-family", Severity::NotChecked,
    "The code of the section family in the file is none of the program's.",
    "Choose a section."},
  NoteKind{C::UnknownSeries, "unknown-series", Severity::NotChecked,
    "The series of the British sections in the file is none of the program's: no section was loaded.",
    "Choose the series and the size."},
  NoteKind{C::UnknownSupport, "unknown-support", Severity::NotChecked,
    "The support in the file is none of the program's: the loads give no forces.",
    "Choose the support."},
  NoteKind{C::SectionImpossible, "section-impossible", Severity::NotChecked,
    "The dimensions give no section that can exist: parts overlap or have no size.",
    "Mend the dimension that the note names."},
  NoteKind{C::LengthNotPositive, "length-not-positive", Severity::NotChecked,
    "The length of the member isn't above 0.",
    "Mend the length."},
  NoteKind{C::ForceUnread, "force-unread", Severity::NotChecked,
    "A force acts that the control of this family doesn't read.",
    "Check it by hand, or take a family whose control reads it."},
  NoteKind{C::RemovedBeyondCapacity, "removed-beyond-capacity", Severity::NotChecked,
    "A load that the calculation removed was alone beyond what the section can carry.",
    "Take a family that carries this load."},
  NoteKind{C::LtbUnchecked, "ltb-unchecked", Severity::NotChecked,
    "The program itself had switched lateral torsional buckling off, and the check would fail.",
    "Switch lateral torsional buckling on."},
  NoteKind{C::LoadsRemoved, "loads-removed", Severity::Caution,
    "The calculation took loads out of the input that this family can't carry.",
    "If they belong to the member, take another family and enter them again."},
  NoteKind{C::LtbOff, "ltb-off", Severity::Caution,
    "Lateral torsional buckling is off though the family has it and a moment acts.",
    "Switch it on, unless the compressed flange is held all along."},
  NoteKind{C::LtbOffByProgram, "ltb-off-by-program", Severity::Caution,
    "The program itself switched lateral torsional buckling off with an earlier section.",
    "Switch it on, unless the compressed flange is held all along."},
  NoteKind{C::ClassByTensionSide, "class-by-tension-side", Severity::Caution,
    "The class of web or flat goes by the share in tension; by the compressed share it is higher.",
    "Go by the capacity and the ratio of the note."},
  NoteKind{C::StripOfFlat, "strip-of-flat", Severity::Caution,
    "The strip taken off a slender flat counts with less than its second moment.",
    "Go by the capacity and the ratio of the note."},
  NoteKind{C::BoxOutstands, "box-outstands", Severity::Caution,
    "The outstands of the box's flanges beyond the webs are slender and no class reads them.",
    "Move the webs outwards or take thicker flanges."},
  NoteKind{C::TrapezoidFlats, "trapezoid-flats", Severity::Caution,
    "A flat between the webs of the trapezoid is more slender than the class that is used.",
    "Take a thicker plate, or go by the elastic modulus."},
  NoteKind{C::TrippingWithPlate, "tripping-with-plate", Severity::Caution,
    "The tripping check takes the second moment of plate and stiffener together.",
    "Go by the ratio of the note, which takes the stiffener's own."},
  NoteKind{C::CFactorsUnused, "c-factors-unused", Severity::Caution,
    "C factors are typed in, but the check doesn't use them.",
    "They count in load mode without restraint points, and not for a plate with stiffener."},
  NoteKind{C::StaleField, "stale-field", Severity::Caution,
    "A check reads a value that this family doesn't write: it stands from an earlier section.",
    "Compare the ratio of the note; choose the value by hand where that is possible."},
  NoteKind{C::ExponentMode, "exponent-mode", Severity::Caution,
    "The interaction with exponents is meant for double symmetric sections.",
    "Take the conservative control."},
  NoteKind{C::BucklingIgnored, "buckling-ignored", Severity::Caution,
    "Web or flange buckling is not taken into account, and that decides the class.",
    "Take the option off, unless the plates are stiffened."},
  NoteKind{C::NegativeMomentFactor, "negative-moment-factor", Severity::Caution,
    "A moment factor ky or kz below 0 lowers the ratio of a very slender member.",
    "Go by the ratio without this term."},
  NoteKind{C::UsageLimit, "usage-limit", Severity::Caution,
    "The allowable usage factor lies outside 0.3 to 2.0.",
    "Mend the usage factor."},
  NoteKind{C::Deflection, "deflection", Severity::Information,
    "The deflections of both planes against the limit.",
    "The serviceability limit state fails where L/x is below the limit; that is no check of strength."},
  NoteKind{C::GoverningHidden, "governing-hidden", Severity::Information,
    "The check with the greatest ratio has no printed line.",
    "Go by the greatest ratio."},
};
// clang-format on

constexpr bool InOrder() {
  for (std::size_t i = 0; i < kNotes.size(); ++i) {
    if (static_cast<std::size_t>(kNotes[i].code) != i) return false;
  }
  return kNotes.size() == static_cast<std::size_t>(C::Count);
}
static_assert(InOrder());

}  // namespace

std::span<const NoteKind> AllNotes() {
  return kNotes;
}

const NoteKind& KindOf(NoteCode code) {
  return kNotes.at(static_cast<std::size_t>(code));
}

const char* SeverityWord(Severity severity) {
  constexpr std::array words{"information", "caution", "not checked", "fails"};
  return words.at(static_cast<std::size_t>(severity));
}

void NoteList::Add(const Note& note) {
  if (count_ < kCapacity) {
    notes_[count_++] = note;
    return;
  }
  const auto least =
      std::min_element(notes_.begin(), notes_.end(),
                       [](const Note& a, const Note& b) { return a.Weight() < b.Weight(); });
  if (least->Weight() < note.Weight()) *least = note;
}

void NoteList::Sort() {
  // Few notes, and a stable sort of the library would allocate.
  for (std::size_t i = 1; i < count_; ++i) {
    const Note note = notes_[i];
    std::size_t k = i;
    for (; k > 0 && notes_[k - 1].Weight() < note.Weight(); --k) notes_[k] = notes_[k - 1];
    notes_[k] = note;
  }
}

bool NoteList::Has(NoteCode code) const {
  return std::any_of(begin(), end(), [code](const Note& n) { return n.code == code; });
}

Severity NoteList::Worst() const {
  Severity worst = Severity::Information;
  for (const Note& note : *this) worst = std::max(worst, note.Weight());
  return worst;
}

}  // namespace korvane
