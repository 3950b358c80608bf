// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/section_rows.h"

#include <algorithm>

#include "checks/results.h"
#include "core/text.h"
#include "front/session.h"
#include "studies/member.h"

namespace korvane {

namespace {

/// The ratio of a printed line; nothing where it shows none.
std::optional<double> RatioOf(const ViewLine& line) {
  bool ratio = false;
  for (const TextRun& run : line.runs) {
    if (ratio) return ParseNumber(run.text, false);
    ratio = run.text == kIRPrefix;
  }
  return std::nullopt;
}

std::string TextOf(const ViewLine& line) {
  std::string text;
  for (const TextRun& run : line.runs) {
    if (run.atTab && !text.ends_with(' ')) text += ' ';
    text += run.text;
  }
  return text;
}

/// The first printed line with the greatest ratio; empty where none shows one.
std::string GreatestLine(const Design& d) {
  View lines = SectionControlShort(d.st, d.checks);
  if (ShowsBuckling(d.st, d.forces.N)) {
    const View more = BucklingShort(d.st, d.checks, d.buckling);
    lines.insert(lines.end(), more.begin(), more.end());
  }
  const auto greatest =
      std::max_element(lines.begin(), lines.end(), [](const ViewLine& a, const ViewLine& b) {
        return RatioOf(a).value_or(-1) < RatioOf(b).value_or(-1);
      });
  if (greatest == lines.end() || !RatioOf(*greatest)) return {};
  return TextOf(*greatest);
}

}  // namespace

bool SectionRows::Follow(const Session& session) {
  if (!session.NotCalculated().empty() || (member_ && *member_ == session.st())) return false;
  if (!started_) started_.emplace(StartedDesign(session.design().lib));
  member_ = session.st();
  rows_ = DesignSizes(*started_, *member_, {});
  const auto inForce = std::find_if(rows_.begin(), rows_.end(), [&](const SizeResult& row) {
    return IsInForce(row.size, *member_);
  });
  inForce_ = inForce == rows_.end() ? -1 : static_cast<int>(inForce - rows_.begin());
  return true;
}

SizePreview SectionRows::Preview(const Session& session, int row) const {
  const SizeResult& size = rows_.at(static_cast<std::size_t>(row));
  Design work = *started_;
  const MemberRun run = DesignMember(*started_, WithSize(*member_, size.size), work);
  const Verdict verdict = VerdictOf(work);
  const bool forces = verdict.governing != Governing::None;
  SizePreview preview;
  preview.name = size.name;
  preview.said = SaidOf(verdict.standing, forces);
  preview.figure = forces ? session.Shown(verdict.IR, "#0.00") : "-";
  if (run.fault) {
    preview.below = "arithmetic failure in " + *run.fault;
    return preview;
  }
  const std::string line = verdict.hidden ? std::string() : GreatestLine(work);
  preview.line = line.empty() ? GoverningLabel(verdict) : session.OnScreen(line);
  const auto note = std::find_if(verdict.notes.begin(), verdict.notes.end(), [&](const Note& n) {
    return verdict.standing == Standing::NotChecked || n.code == NoteCode::Deflection;
  });
  if (note == verdict.notes.end()) return preview;
  preview.below = session.OnScreen(NoteText(*note, work.lib->catalogues));
  if (note->code == NoteCode::Deflection) preview.belowTone = ToneOf(verdict.sls);
  return preview;
}

void TakeSection(const CatalogueSize& size, Session& session) {
  session.TakeSection([&] {
    TakeSize(size, session.st());
    session.Calculate();
  });
}

}  // namespace korvane
