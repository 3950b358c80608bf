// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/result_columns.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "checks/results.h"
#include "optimiser/optimize.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

/// A ratio as it is shown: none beyond single precision.
std::optional<float> Single(double v) {
  if (!(std::fabs(v) <= static_cast<double>(std::numeric_limits<float>::max()))) return {};
  return static_cast<float>(v);
}

std::optional<float> LengthOver(const Design& d, double max, double min) {
  if (d.st.AnalysisMode != 1) return {};
  const double ratio = LengthOverDeflection(d.st.L, max, min);
  if (ratio == 0) return {};
  // Beyond single precision there is no deflection worth a ratio.
  return Single(ratio);
}

double BucklingRatio(const CheckResults& c) {
  return std::max({double(c.IRny), double(c.IRnz), double(c.IRcombinedY), double(c.IRcombinedZ)});
}

using M = const Designed&;

constexpr ResultColumn kColumns[] = {
    {"section", "", "the section's name",
     [](M m) { return SectionTitle(m.design.st, m.design.lib->catalogues); }, nullptr},
    {"weight", "kg/m", "weight of the section", nullptr,
     [](M m) { return std::optional(m.design.rec.S.Single()); }},
    {"standing", "", "passes, fails, not checked, stopped, refused",
     [](M m) { return std::string(StandingWord(m.verdict.standing)); }, nullptr, true},
    {"MaxIR", "", "greatest ratio of all checks", nullptr,
     [](M m) { return std::optional(MaxIR(m.design.checks)); }},
    {"governing", "", "the check with the greatest ratio",
     [](M m) { return GoverningLabel(m.verdict); }, nullptr},
    {"IR_section", "", "ratio of the section control", nullptr,
     [](M m) { return Single(m.design.checks.IRsection); }},
    {"IR_Vz", "", "ratio of shear along z", nullptr,
     [](M m) { return Single(m.design.checks.IRvz); }},
    {"IR_Vy", "", "ratio of shear along y", nullptr,
     [](M m) { return Single(m.design.checks.IRvy); }},
    {"IR_lateral", "", "ratio of lateral torsional buckling", nullptr,
     [](M m) { return Single(m.design.checks.IRlateral); }},
    {"IR_buckling", "", "greatest ratio of column buckling", nullptr,
     [](M m) { return Single(BucklingRatio(m.design.checks)); }},
    {"L_over_z", "", "x of the deflection L/x along z", nullptr,
     [](M m) { return LengthOverDeflectionZ(m.design); }},
    {"L_over_y", "", "x of the deflection L/x along y", nullptr,
     [](M m) { return LengthOverDeflectionY(m.design); }},
    {"sls", "", "standing of the deflection: passes, fails, none",
     [](M m) { return std::string(ServiceabilityWord(m.verdict.sls)); }, nullptr, true},
    {"notes", "", "codes of the notes; of a refused row the reason",
     [](M m) { return NoteCodes(m.verdict); }, nullptr, true},
};

}  // namespace

std::span<const ResultColumn> AllResultColumns() {
  return kColumns;
}

const ResultColumn* FindResultColumn(std::string_view name) {
  const auto* it = std::find_if(std::begin(kColumns), std::end(kColumns),
                                [&](const ResultColumn& c) { return name == c.name; });
  return it == std::end(kColumns) ? nullptr : it;
}

std::string Digits(float value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  return {text.data(), end};
}

double Typed(float value) {
  std::array<char, 32> text{};
  const auto end = std::to_chars(text.data(), text.data() + text.size(), value).ptr;
  double typed = 0;
  std::from_chars(text.data(), end, typed);
  return typed;
}

std::string CellOf(const ResultColumn& column, const Designed& member) {
  if (member.verdict.standing == Standing::Stopped && !column.always) return {};
  if (column.text != nullptr) return column.text(member);
  const auto value = column.value(member);
  return value ? Digits(*value) : std::string();
}

std::optional<float> LengthOverDeflectionZ(const Design& d) {
  return LengthOver(d, d.deflections.DeflZ_max, d.deflections.DeflZ_min);
}

std::optional<float> LengthOverDeflectionY(const Design& d) {
  return LengthOver(d, d.deflections.DeflY_max, d.deflections.DeflY_min);
}

std::string NoteCodes(const Verdict& verdict) {
  std::string codes;
  for (const Note& note : verdict.notes) {
    if (note.Weight() == Severity::Information) continue;
    if (!codes.empty()) codes += ' ';
    codes += KindOf(note.code).word;
  }
  return codes;
}

std::optional<LightestSize> FindLightestSize(Design& d) {
  d.st.ManualBucklingCurves = 0;
  d.st.ResultView = kCriterionUls;
  OptimiserResults results;
  if (!OptimiseCurrent(d, results)) return {};
  const int row = d.st.ProfileType;
  if (!results.Passes[row]) return {};
  return LightestSize{SectionTitle(d.st, d.lib->catalogues), d.rec.S.Single(),
                      results.BestIR[row].Single()};
}

}  // namespace korvane
