// SPDX-License-Identifier: GPL-3.0-or-later
// What the window "What if" shows of a session: curves over one varied input, how far it can go,
// and the interaction diagrams. It follows the session and changes nothing in it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "presentation/study_charts.h"

namespace korvane {

class Session;

class WhatIf {
public:
  explicit WhatIf(const Session& session);

  /// Takes over the session's input where that is calculated and has changed. True where it had.
  bool Follow();
  /// The inputs that can be varied by numbers, the usual ones first.
  static std::vector<std::string> Inputs();
  /// Varies another input over its usual range; false for a name that is none.
  bool Vary(const std::string& name);
  /// Looks over another range; false, and nothing changed, unless low is less than high.
  bool Look(double low, double high);
  void Draw(Drawn drawn);
  /// Passing holds the deflection limit too.
  void HoldDeflections(bool hold);

  const Question& question() const { return question_; }
  Drawn drawn() const { return drawn_; }
  const Chart& CurvesDrawn() const { return chart_; }
  /// "L = 5 m passes, IR 0.87; L up to 5.61 m: lateral torsional buckling".
  const std::string& Words() const { return words_; }
  /// The values at a place of the curves, as a status line says them; empty beyond them.
  std::string ValuesAt(double x) const;
  /// Designed when first asked for after a change.
  const std::vector<InteractionDiagram>& Interaction();
  double Limit() const { return member_ ? double(member_->iufa) : 1.0; }

private:
  void Renew();
  const Session& session_;
  MemberInputs inputs_;
  std::optional<Design> started_;
  std::optional<ProjectState> member_;
  Question question_;
  bool ownRange_ = false;  ///< the range was chosen
  Drawn drawn_ = Drawn::Each;
  Curves curves_;
  Chart chart_;
  std::string words_;
  std::optional<std::vector<InteractionDiagram>> interaction_;
};

/// Curves have so many values.
inline constexpr int kCurveValues = 200;

}  // namespace korvane
