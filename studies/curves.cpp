// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/curves.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "sections/profile_table.h"
#include "studies/member.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

CheckRatios RatiosOf(const CheckResults& c) {
  return {c.IRsection, c.IRvz, c.IRvy, c.IRlateral, c.IRny, c.IRnz, c.IRcombinedY, c.IRcombinedZ};
}

double OverLimit(const std::optional<float>& lengthOver, double limit) {
  return lengthOver && *lengthOver > 0 ? limit / double(*lengthOver) : 0;
}

/// The words of a check as a curve has them: a section control has another term at each value.
std::string NameOf(Governing check, BucklingKind buckling) {
  if (check == Governing::Section) return "section control";
  if (check == Governing::Lateral) return "lateral torsional buckling";
  Verdict verdict;
  verdict.governing = check;
  verdict.buckling = buckling;
  return GoverningLabel(verdict);
}

/// So many digits, no more than there are.
std::string Digits(double value, int digits) {
  std::array<char, 32> text;
  return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value,
                                     std::chars_format::general, digits)
                           .ptr};
}

/// Three digits tell enough in words; on the side that passes.
std::string ShortOf(double value, bool above) {
  if (value == 0) return "0";
  const double step = std::pow(10.0, std::floor(std::log10(std::fabs(value))) - 2);
  const double steps = value / step;
  const double whole = above ? std::floor(steps + 1E-9) : std::ceil(steps - 1E-9);
  return Digits(whole * step, 6);
}

std::string WithUnit(const MemberInput& input, std::string text) {
  const std::string unit = UnitOf(input);
  return unit.empty() ? text : text + " " + unit;
}

}  // namespace

std::vector<double> EvenValues(const MemberInput& input, double low, double high, int count) {
  std::vector<double> values;
  const int steps = std::max(1, count - 1);
  for (int i = 0; i <= steps; ++i) {
    double value = low + (high - low) * i / steps;
    if (TakesWholeNumbers(input)) value = std::round(value);
    if (values.empty() || value != values.back()) values.push_back(value);
  }
  return values;
}

Curves SampleCurves(const Design& started, const ProjectState& member, const MemberInputs& inputs,
                    const MemberInput& input, const std::vector<double>& values) {
  Curves curves;
  curves.input = input;
  curves.limit = member.iufa;
  curves.samples.reserve(values.size());
  Design work = started;
  ProjectState varied = member;
  for (const double value : values) {
    CurveSample& sample = curves.samples.emplace_back();
    sample.x = value;
    varied = member;
    if (inputs.Set(input, value, varied)) continue;
    if (DesignMember(started, varied, work, Lines::None).fault) continue;
    sample.there = true;
    sample.ratios = RatiosOf(work.checks);
    sample.IR = *std::max_element(sample.ratios.begin(), sample.ratios.end());
    sample.overZ = OverLimit(LengthOverDeflectionZ(work), work.st.DeflectionLimit);
    sample.overY = OverLimit(LengthOverDeflectionY(work), work.st.DeflectionLimit);
  }
  const Family* family = FindFamily(varied.ProfileType);
  for (std::size_t i = 0; i < kCurveChecks.size(); ++i) {
    const auto kind = family == nullptr ? BucklingKind{} : family->routines.buckling;
    curves.names.at(i) = NameOf(kCurveChecks.at(i), kind);
  }
  return curves;
}

std::string WordsOf(const Trial& trial) {
  return trial.governing == Governing::Lateral ? NameOf(trial.governing, {}) : trial.check;
}

std::string WordsOfEnd(const Question& q, const Border& border, bool above) {
  // What stops it is the check of the value that fails.
  return q.input.name + (above ? " up to " : " down to ") +
         WithUnit(q.input, ShortOf(border.passing.value, above)) + ": " + WordsOf(border.failing);
}

std::vector<std::string> WordsOf(const Question& q, const Answer& answer) {
  const std::string range =
      " passes from " + Digits(q.low, 4) + " to " + WithUnit(q.input, Digits(q.high, 4));
  if (answer.intervals.empty()) return {"nothing" + range};
  std::vector<std::string> words;
  for (const PassingInterval& interval : answer.intervals) {
    if (interval.below) words.push_back(WordsOfEnd(q, *interval.below, false));
    if (interval.above) words.push_back(WordsOfEnd(q, *interval.above, true));
  }
  if (words.empty()) words.push_back("everything" + range);
  return words;
}

void DrawnRange(const ProjectState& member, Question& q) {
  DefaultRange(member, q);
  const double size = q.present == 0 ? 100 : 2 * std::fabs(q.present);
  q.low = std::max(q.low, q.present < 0 ? -size : 0.0);
  q.high = std::min(q.high, size);
  if (!(q.low < q.high)) DefaultRange(member, q);
}

}  // namespace korvane
