// SPDX-License-Identifier: GPL-3.0-or-later
// The notes of a verdict: fixed codes with severity, meaning and remedy, and their sentences.
#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string>

#include "checks/history.h"
#include "sections/readprofiles.h"

namespace korvane {

/// How far a note reaches, the least first.
enum class Severity { Information, Caution, NotChecked, Fails };

enum class NoteCode {
  Stopped,
  RatioExceeded,
  SlendernessExceeded,
  CapacityNotPositive,
  ForceAboveCapacity,
  StaleFieldFails,
  NoControl,
  UnknownFamily,
  UnknownSeries,
  UnknownSupport,
  SectionImpossible,
  LengthNotPositive,
  ForceUnread,
  RemovedBeyondCapacity,
  LtbUnchecked,
  LoadsRemoved,
  LtbOff,
  LtbOffByProgram,
  ClassByTensionSide,
  StripOfFlat,
  BoxOutstands,
  TrapezoidFlats,
  TrippingWithPlate,
  CFactorsUnused,
  StaleField,
  ExponentMode,
  BucklingIgnored,
  NegativeMomentFactor,
  UsageLimit,
  Deflection,
  GoverningHidden,
  Count
};

/// What stands behind a code.
struct NoteKind {
  NoteCode code;
  const char* word;  ///< the fixed code
  Severity severity;
  const char* meaning;
  const char* remedy;
};

/// All notes in the order of their codes.
std::span<const NoteKind> AllNotes();
/// The row of a code.
const NoteKind& KindOf(NoteCode code);
/// "information", "caution", "fails", "not checked".
const char* SeverityWord(Severity severity);

/// A note before it is a sentence. What v, word and other hold differs with the code.
struct Note {
  NoteCode code = NoteCode::Count;
  std::array<double, 5> v{};
  const char* word = "";   ///< a field, a capacity, a force: static text
  const char* other = "";  ///< a second one
  Origin origin{};

  Severity Weight() const { return KindOf(code).severity; }
};

/// Fixed-capacity list; a note beyond it is dropped, the least severe ones last of all.
class NoteList {
public:
  static constexpr std::size_t kCapacity = 24;
  /// At the end. In a full list it takes the place of a less severe one, or is dropped.
  void Add(const Note& note);
  /// Most severe first, notes of one severity in the order of their adding.
  void Sort();
  std::size_t size() const { return count_; }
  bool empty() const { return count_ == 0; }
  const Note* begin() const { return notes_.data(); }
  const Note* end() const { return notes_.data() + count_; }
  const Note& operator[](std::size_t i) const { return notes_.at(i); }
  /// Whether a note of this code is in the list.
  bool Has(NoteCode code) const;
  /// The greatest severity, Information for an empty list.
  Severity Worst() const;

private:
  std::array<Note, kCapacity> notes_{};
  std::size_t count_ = 0;
};

/// The driver's step in the engineer's words, static text.
const char* StepWords(const std::string& step);

/// The note as one sentence in the engineer's words, with its numbers.
std::string NoteText(const Note& note, const Catalogues& cat);

}  // namespace korvane
