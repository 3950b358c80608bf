// SPDX-License-Identifier: GPL-3.0-or-later
// One project of a batch: its design and its line.
#include <algorithm>
#include <array>
#include <cmath>
#include <exception>
#include <initializer_list>
#include <string_view>

#include "core/text.h"
#include "front/console/batch.h"
#include "front/console/run_design.h"
#include "front/console/terminal.h"
#include "sections/profile_table.h"
#include "studies/result_columns.h"

namespace korvane {
namespace {

constexpr const char* kColumns =
    "file,section,weight_kg_m,max_ir,governing,governing_text,deflection_ratio,status,error,"
    "standing,sls,notes";
constexpr const char* kOptimisedColumns = ",optimised_section,optimised_weight_kg_m,optimised_ir";

/// The fields of a line; empty where the project did not get so far.
struct Line {
  std::string section, weight, maxIR, governing, governingText, deflection, status, error;
  std::string standing, sls, notes;
  std::string optimisedSection, optimisedWeight, optimisedIR;
};

/// A spreadsheet takes a cell that begins so for a formula.
constexpr std::string_view kFormulaBegins = "=+-@";

/// A cell of text, as a spreadsheet takes it for one.
std::string TextCell(std::string_view text) {
  const bool guarded = !text.empty() && kFormulaBegins.find(text.front()) != std::string_view::npos;
  return (guarded ? "'" : "") + std::string(text);
}

void AppendField(std::string_view field, std::string& lines) {
  if (field.find_first_of(",\"\r\n") == std::string_view::npos) {
    lines += field;
    return;
  }
  lines += '"';
  for (const char c : field) {
    if (c == '"') lines += '"';
    lines += c;
  }
  lines += '"';
}

/// A ratio with the lines that may show it. Which line a buckling ratio goes to differs with the
/// family, so the line's own ratio decides.
struct Candidate {
  double ir;
  std::array<const CheckLine*, 2> lines{};
};

/// Two ways of working out one ratio differ in the last digits of its division at most.
bool Same(double a, double b) {
  return std::fabs(a - b) <= 1e-6 * b;
}

const CheckLine* LineOf(const Candidate& candidate) {
  for (const CheckLine* line : candidate.lines)
    if (line != nullptr && !line->value.empty() && Same(line->ratio, candidate.ir)) return line;
  return nullptr;
}

/// The line of the greatest ratio, or nullptr where no line shows it.
const CheckLine* GoverningLine(const CheckResults& c) {
  const double corner =
      c.hasCorners ? *std::max_element(c.cornerIR.begin(), c.cornerIR.end()) : 0.0;
  const std::array<Candidate, 9> candidates{{
      {c.IRsection, {&c.lineSection}},
      {c.IRvz, {&c.lineVz}},
      {c.IRvy, {&c.lineVy}},
      {c.IRlateral, {&c.lineLateral}},
      {c.IRny, {&c.lineBucklingY, &c.lineBucklingZ}},
      {c.IRnz, {&c.lineBucklingZ, &c.lineBucklingY}},
      {c.IRcombinedY, {&c.lineBucklingY, &c.lineBucklingZ}},
      {c.IRcombinedZ, {&c.lineBucklingZ, &c.lineBucklingY}},
      {corner, {&c.lineSection}},
  }};
  const auto governing =
      std::max_element(candidates.begin(), candidates.end(),
                       [](const Candidate& a, const Candidate& b) { return a.ir < b.ir; });
  return governing->ir > 0.0 ? LineOf(*governing) : nullptr;
}

/// x of the greatest deflection L/x of both planes.
std::string DeflectionRatio(const Design& d) {
  const auto z = LengthOverDeflectionZ(d);
  const auto y = LengthOverDeflectionY(d);
  if (!z && !y) return {};
  return Digits(std::min(z.value_or(*(y ? y : z)), y.value_or(*(z ? z : y))));
}

void FillResults(const Design& d, Line& line) {
  const float maxIR = MaxIR(d.checks);
  line.section = TextCell(SectionTitle(d.st, d.lib->catalogues));
  line.weight = Digits(d.rec.S.Single());
  line.maxIR = Digits(maxIR);
  if (const CheckLine* governing = GoverningLine(d.checks)) {
    line.governing = TextCell(governing->label);
    line.governingText =
        TextCell(governing->formula + governing->numbers + governing->value + governing->limit);
  }
  line.deflection = DeflectionRatio(d);
}

/// The standing also as the older column has it, and the codes of the notes of caution or worse.
void FillVerdict(const Verdict& v, Line& line) {
  line.standing = StandingWord(v.standing);
  line.sls = ServiceabilityWord(v.sls);
  line.notes = NoteCodes(v);
  constexpr std::array status{"pass", "fail", "not checked", "fault"};
  line.status = status.at(static_cast<std::size_t>(v.standing));
}

/// The lightest size of the project's own series by ULS; nothing for a family without a series
/// and where no size passes.
void FillOptimised(Design& d, Line& line) {
  const auto lightest = FindLightestSize(d);
  if (!lightest) return;
  line.optimisedSection = TextCell(lightest->section);
  line.optimisedWeight = Digits(lightest->weight);
  line.optimisedIR = Digits(lightest->IR);
}

void DesignOne(const std::string& path, Design& work, bool optimise, Line& line,
               std::string& remarks) {
  const DesignRun run = RunProject(work, path);
  for (const std::string& remark : run.remarks)
    remarks += NameOnErrors(path) + ": " + remark + "\n";
  if (run.file != FileResult::Ok) {
    line.status = "error";
    line.error = FileMessage(run.file, path);
    return;
  }
  FillVerdict(VerdictOf(work), line);
  if (run.fault) throw ArithmeticFault(run.what);
  FillResults(work, line);
  if (optimise) FillOptimised(work, line);
}

void Count(const std::string& status, BatchCounts& counts) {
  if (status == "pass")
    ++counts.pass;
  else if (status == "fail")
    ++counts.fail;
  else if (status == "fault")
    ++counts.fault;
  else if (status == "not checked")
    ++counts.notChecked;
  else
    ++counts.unread;
}

}  // namespace

std::string BatchHeader(bool optimise) {
  return std::string(kColumns) + (optimise ? kOptimisedColumns : "") + "\n";
}

void AppendBatchLine(const std::string& path, const Design& started, Design& work, bool optimise,
                     BatchPiece& piece) {
  Line line;
  work = started;
  try {
    DesignOne(path, work, optimise, line, piece.remarks);
  } catch (const ArithmeticFault& fault) {
    line.status = "fault";
    line.error = FaultText(fault.what());
  } catch (const std::exception& other) {
    line.status = "error";
    line.error = other.what();
  }
  Count(line.status, piece.counts);
  std::string& lines = piece.lines;
  AppendField(TextCell(path), lines);
  for (const std::string* field :
       {&line.section, &line.weight, &line.maxIR, &line.governing, &line.governingText,
        &line.deflection, &line.status, &line.error, &line.standing, &line.sls, &line.notes}) {
    lines += ',';
    AppendField(*field, lines);
  }
  if (optimise)
    for (const std::string* field :
         {&line.optimisedSection, &line.optimisedWeight, &line.optimisedIR}) {
      lines += ',';
      AppendField(*field, lines);
    }
  lines += '\n';
}

}  // namespace korvane
