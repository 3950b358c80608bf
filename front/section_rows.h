// SPDX-License-Identifier: GPL-3.0-or-later
// Every size of all catalogues for the member of a session, as it stands.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "front/headline.h"
#include "studies/all_sections.h"

namespace korvane {

class Session;

/// What a click on a size shows of it.
struct SizePreview {
  std::string name;    ///< "HEA200"
  std::string line;    ///< the printed result line with the greatest ratio, else the check's words
  std::string figure;  ///< as in the headline
  StandingSaid said;
  std::string below;  ///< the serviceability limit state, or the gravest note; empty for neither
  Headline::Tone belowTone = Headline::Tone::Quiet;
};

/// The rows of the window of all sections. They follow the session and change nothing in it.
class SectionRows {
public:
  /// Designs all sizes anew where the input has changed since the last time; the rows stay those
  /// of before while the session has not calculated its input. True where they changed.
  bool Follow(const Session& session);
  const std::vector<SizeResult>& All() const { return rows_; }
  /// The row of the section in force, -1 for typed dimensions.
  int InForce() const { return inForce_; }
  /// The allowable ratio of the rows.
  double Limit() const { return member_ ? double(member_->iufa) : 1.0; }
  /// The member with the size of a row. Only where there are rows.
  SizePreview Preview(const Session& session, int row) const;

private:
  std::vector<SizeResult> rows_;
  std::optional<Design> started_;
  std::optional<ProjectState> member_;  ///< the rows are of its input
  int inForce_ = -1;
};

/// Puts the size in force and calculates, as choosing it on its family's form does.
void TakeSection(const CatalogueSize& size, Session& session);

}  // namespace korvane
