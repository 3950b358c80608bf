// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/what_if.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/text.h"
#include "front/session.h"
#include "studies/member.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

constexpr std::array kUsual{"L", "loads", "N", "q1", "q2", "pm[1]", "bly", "blz", "fyk", "iufa"};

std::string WithUnit(const MemberInput& input, double value) {
  const std::string unit = UnitOf(input);
  return input.name + " = " + Digits(float32(value).Single()) + (unit.empty() ? "" : " " + unit);
}

}  // namespace

WhatIf::WhatIf(const Session& session) : session_(session), inputs_(session.design().lib) {
  question_.input.name = kUsual.front();
  Follow();
}

std::vector<std::string> WhatIf::Inputs() {
  const ProjectState st;
  std::vector<std::string> names(kUsual.begin(), kUsual.end());
  for (const std::string& name : MemberInputNames()) {
    const auto input = FindMemberInput(name, st);
    if (!input || (input->kind != InputKind::Field && input->kind != InputKind::Loads)) continue;
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(name);
  }
  return names;
}

bool WhatIf::Follow() {
  if (!session_.NotCalculated().empty() || (member_ && *member_ == session_.st())) return false;
  if (!started_) started_.emplace(StartedDesign(session_.design().lib));
  member_ = session_.st();
  interaction_.reset();
  // What a name stands for may follow the state: N is the axial force of its mode.
  question_.input = *FindMemberInput(question_.input.name, *member_);
  question_.present = PresentValue(*member_, question_.input);
  if (!ownRange_) DrawnRange(*member_, question_);
  Renew();
  return true;
}

bool WhatIf::Vary(const std::string& name) {
  const ProjectState& st = member_ ? *member_ : session_.st();
  const auto input = FindMemberInput(name, st);
  if (!input || (input->kind != InputKind::Field && input->kind != InputKind::Loads)) return false;
  question_.input = *input;
  question_.input.name = name;
  question_.present = PresentValue(st, *input);
  ownRange_ = false;
  DrawnRange(st, question_);
  Renew();
  return true;
}

bool WhatIf::Look(double low, double high) {
  if (!(low < high)) return false;
  question_.low = low;
  question_.high = high;
  ownRange_ = true;
  Renew();
  return true;
}

void WhatIf::Draw(Drawn drawn) {
  drawn_ = drawn;
  Renew();
}

void WhatIf::HoldDeflections(bool hold) {
  question_.sls = hold;
  Renew();
}

void WhatIf::Renew() {
  if (!member_) return;
  curves_ = SampleCurves(*started_, *member_, inputs_, question_.input,
                         EvenValues(question_.input, question_.low, question_.high, kCurveValues));
  // Deflections are held against their own limit alone.
  Question question = question_;
  question.sls = question_.sls || drawn_ == Drawn::Deflection;
  const Answer answer = Solve(*started_, *member_, inputs_, question);
  chart_ = CurvesChart(curves_, drawn_, "");
  AddAnswer(question, answer, chart_);
  words_ = WithUnit(question.input, question.present) +
           (answer.present.passes ? " passes, IR " : " does not pass, IR ") +
           Format(answer.present.IR, "0.00");
  for (const std::string& end : WordsOf(question, answer)) words_ += "; " + end;
}

std::string WhatIf::ValuesAt(double x) const {
  if (!(x >= question_.low && x <= question_.high) || curves_.samples.empty()) return {};
  const auto nearest = std::min_element(
      curves_.samples.begin(), curves_.samples.end(),
      [x](const auto& a, const auto& b) { return std::fabs(a.x - x) < std::fabs(b.x - x); });
  std::string text = WithUnit(question_.input, nearest->x);
  if (!nearest->there) return text + ": not designed";
  for (std::size_t i = 0; i < nearest->ratios.size(); ++i) {
    const double ratio = nearest->ratios.at(i);
    if (ratio > 0) text += "   " + curves_.names.at(i) + " " + Format(ratio, "0.00");
  }
  for (const auto& [name, over] : {std::pair{"deflection z / limit ", nearest->overZ},
                                   {"deflection y / limit ", nearest->overY}}) {
    if (over > 0) text += "   " + (name + Format(over, "0.00"));
  }
  return text;
}

const std::vector<InteractionDiagram>& WhatIf::Interaction() {
  if (!interaction_) {
    interaction_ =
        member_ ? InteractionDiagrams(*started_, *member_) : std::vector<InteractionDiagram>();
  }
  return *interaction_;
}

}  // namespace korvane
