// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/results.h"

#include <algorithm>

#include "core/text.h"
#include "sections/profile_table.h"

namespace korvane {

float MaxIR(const CheckResults& c) {
  double most =
      std::max({0.0, double(c.IRsection), double(c.IRvz), double(c.IRvy), double(c.IRlateral),
                double(c.IRny), double(c.IRnz), double(c.IRcombinedY), double(c.IRcombinedZ)});
  if (c.hasCorners) {
    for (const double r : c.cornerIR) most = std::max(most, r);
  }
  return float32(most).Single();
}

bool Fails(const ViewLine& line, double limit) {
  return std::any_of(line.runs.begin(), line.runs.end(), [limit](const TextRun& run) {
    return run.colour == kRed || (run.ratio && *run.ratio > limit);
  });
}

bool ShowsBuckling(const ProjectState& st, double N) {
  const Family* family = FindFamily(st.ProfileType);
  return family != nullptr && family->routines.buckling != BucklingKind::None && N > 0 &&
         !(st.BucklingCaseY == 5 && st.BucklingCaseZ == 5);
}

namespace view {

ViewLine Heading(const ProjectState& st, const char* text) {
  ViewLine line;
  line.advance = 1.1;
  line.runs.push_back({text, true, true});
  if (st.cp_mode > 0) {
    std::string at = " At: x= ";
    for (int i = 1; i <= std::min<int>(st.cp_count, 3); ++i) {
      if (i > 1) at += "/";
      at += Format(st.cp_relative == 0 ? double(st.cp_x[i]) : st.cp_x[i] / st.L, "#0.00");
    }
    line.runs.push_back({at + (st.cp_relative == 0 ? " (m)" : " (L)")});
  }
  return line;
}

ViewLine SlendernessLine(const ProjectState& st, const std::string& text,
                         const BucklingResults& b) {
  ViewLine line;
  line.runs.push_back({text});
  const auto axis = [&](double factor, double slenderness) {
    if (factor == 0) return TextRun{"N/A"};
    return TextRun{Format(slenderness, "0"), true, false,
                   slenderness > st.islend_limit ? kRed : kGreen};
  };
  line.runs.push_back(axis(st.bly, b.LyOverI));
  line.runs.push_back({"/"});
  line.runs.push_back(axis(st.blz, b.LzOverI));
  line.runs.push_back({"  < " + Format(st.islend_limit, "0") + "  (Ch 11.7)"});
  return line;
}

std::string WholeText(const CheckLine& line) {
  return line.formula + line.numbers + line.value + line.limit;
}

void AddLong(View& v, const CheckLine& line, bool broken) {
  if (broken) v.push_back({{{line.formula}}, 1});
  v.push_back({{{broken ? "    = " + line.numbers : line.formula + line.numbers},
                ValueRun(line),
                {line.limit}},
               1});
}

TextRun ValueRun(const CheckLine& line) {
  return {line.value, true, false, line.colour, false, line.ratio};
}

}  // namespace view

namespace {

void AddShort(View& v, const CheckLine& line) {
  if (line.formula.empty()) return;
  ViewLine out;
  out.runs.push_back({line.label});
  out.runs.push_back({kIRPrefix, false, false, kBlack, true});
  out.runs.push_back(view::ValueRun(line));
  out.runs.push_back({line.limit});
  v.push_back(std::move(out));
}

}  // namespace

View SectionControlShort(const ProjectState& st, const CheckResults& checks) {
  View v{view::Heading(st, "SECTION CONTROL:")};
  for (const CheckLine* line :
       {&checks.lineSection, &checks.lineVz, &checks.lineVy, &checks.lineLateral}) {
    AddShort(v, *line);
  }
  return v;
}

View BucklingShort(const ProjectState& st, const CheckResults& checks, const BucklingResults& b) {
  View v{view::Heading(st, "BUCKLING CONTROL:")};
  AddShort(v, checks.lineBucklingY);
  AddShort(v, checks.lineBucklingZ);
  if (!checks.lineSlenderness.formula.empty()) {
    v.push_back(view::SlendernessLine(st, checks.lineSlenderness.label, b));
  }
  return v;
}

}  // namespace korvane
