// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/solve.h"

#include <algorithm>
#include <cmath>

#include "studies/member.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

/// Values looked at before anything is narrowed: a run shorter than this share of the range may be
/// missed.
constexpr int kScanned = 240;
constexpr int kHalvings = 60;

/// One step of the sixth digit.
double SixthDigit(double value) {
  if (value == 0) return 1E-6;
  return std::pow(10.0, std::floor(std::log10(std::fabs(value))) - 5);
}

template <class Try>
Border Narrow(const MemberInput& input, const Try& tryValue, Trial passing, Trial failing) {
  const bool whole = TakesWholeNumbers(input);
  for (int i = 0; i < kHalvings; ++i) {
    double middle = (passing.value + failing.value) / 2;
    if (whole) middle = std::round(middle);
    const double apart = std::fabs(failing.value - passing.value);
    if (whole ? apart <= 1 : apart < SixthDigit(passing.value) / 4) break;
    Trial trial = tryValue(middle);
    (trial.passes ? passing : failing) = std::move(trial);
  }
  if (whole) return {passing, failing};
  // Onto the sixth digit, the passing side of it: both sides are designed.
  const double step = SixthDigit(passing.value);
  const double toward = failing.value > passing.value ? 1 : -1;
  const auto onDigit = [&](double steps) { return steps / std::round(1 / step); };
  const auto value = [&](double steps) { return step < 1 ? onDigit(steps) : steps * step; };
  double steps =
      toward > 0 ? std::floor(passing.value / step + 1E-9) : std::ceil(passing.value / step - 1E-9);
  Trial here = tryValue(value(steps));
  for (int i = 0; i < 4 && !here.passes; ++i) here = tryValue(value(steps -= toward));
  Trial next = tryValue(value(steps + toward));
  for (int i = 0; i < 4 && next.passes; ++i) {
    here = std::move(next);
    steps += toward;
    next = tryValue(value(steps + toward));
  }
  return {std::move(here), std::move(next)};
}

}  // namespace

const PassingInterval* Answer::OfPresent(double value) const {
  for (const PassingInterval& interval : intervals) {
    if (value >= interval.low && value <= interval.high) return &interval;
  }
  return nullptr;
}

bool TakesWholeNumbers(const MemberInput& input) {
  return input.ref.field != nullptr &&
         (std::holds_alternative<int16 ProjectState::*>(input.ref.field->member) ||
          std::holds_alternative<Indexed<int16, 1, 8> ProjectState::*>(input.ref.field->member));
}

Trial TryValue(const Design& started, const ProjectState& member, const MemberInputs& inputs,
               const Question& question, double value, Design& work) {
  Trial trial;
  trial.value = value;
  ProjectState input = member;
  if (const auto refused = inputs.Set(question.input, value, input)) {
    trial.check = *refused;
    return trial;
  }
  const MemberRun run = DesignMember(started, input, work, Lines::None);
  const Verdict verdict = VerdictOf(work);
  trial.IR = verdict.IR;
  trial.check = GoverningLabel(verdict);
  trial.governing = verdict.governing;
  trial.passes = verdict.Passes();
  if (run.fault) {
    trial.IR = 0;
    trial.check = FaultText(*run.fault);
    trial.governing = Governing::None;
  } else if (trial.passes && question.sls && verdict.sls == Serviceability::Fails) {
    trial.passes = false;
    trial.check = "deflection";
    trial.governing = Governing::None;
  } else if (!trial.passes && !(verdict.IR > verdict.limit) && !verdict.notes.empty()) {
    trial.check = KindOf(verdict.notes.begin()->code).word;
    trial.governing = Governing::None;
  }
  return trial;
}

double PresentValue(const ProjectState& member, const MemberInput& input) {
  if (input.kind == InputKind::Loads) return 1;
  // The decimals that were typed, not those of single precision.
  return Typed(float32(StoredInput(member, input.ref)).Single());
}

void DefaultRange(const ProjectState& member, Question& q) {
  const double size = q.present == 0 ? 100 : 10 * std::fabs(q.present);
  q.low = q.present < 0 ? -size : 0;
  q.high = size;
  if (q.input.ref.field == nullptr) return;
  const Limit limit = LimitOf(member, q.input.ref);
  q.low = std::max(q.low, limit.low);
  q.high = std::min(q.high, limit.high);
}

Answer Solve(const Design& started, const ProjectState& member, const MemberInputs& inputs,
             const Question& question) {
  Design work = started;
  const auto tryValue = [&](double value) {
    return TryValue(started, member, inputs, question, value, work);
  };
  Answer answer;
  answer.present = tryValue(question.present);
  std::vector<Trial> trials;
  for (int i = 0; i <= kScanned; ++i) {
    double value = question.low + (question.high - question.low) * i / kScanned;
    if (TakesWholeNumbers(question.input)) value = std::round(value);
    if (trials.empty() || value != trials.back().value) trials.push_back(tryValue(value));
  }
  if (question.present > question.low && question.present < question.high) {
    const auto place =
        std::lower_bound(trials.begin(), trials.end(), question.present,
                         [](const Trial& trial, double value) { return trial.value < value; });
    if (place->value != question.present) trials.insert(place, answer.present);
  }
  for (std::size_t i = 0; i < trials.size(); ++i) {
    if (!trials[i].passes) continue;
    PassingInterval interval;
    interval.low = trials[i].value;
    if (i > 0) {
      interval.below = Narrow(question.input, tryValue, trials[i], trials[i - 1]);
      interval.low = interval.below->passing.value;
    }
    while (i + 1 < trials.size() && trials[i + 1].passes) ++i;
    interval.high = trials[i].value;
    if (i + 1 < trials.size()) {
      interval.above = Narrow(question.input, tryValue, trials[i], trials[i + 1]);
      interval.high = interval.above->passing.value;
    }
    answer.intervals.push_back(std::move(interval));
  }
  return answer;
}

}  // namespace korvane
