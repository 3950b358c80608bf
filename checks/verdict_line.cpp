// SPDX-License-Identifier: GPL-3.0-or-later
#include "checks/verdict_line.h"

#include "core/text.h"

namespace korvane {

ViewLine VerdictLine(const Verdict& v) {
  constexpr int kPass = 2;
  constexpr int kFail = 4;
  ViewLine line;
  line.runs.push_back({"Verdict: "});
  line.runs.push_back({StandingWord(v.standing), true, false, v.Passes() ? kPass : kFail});
  std::string text =
      "   greatest IR = " + Format(v.IR, "0.00") + " (limit " + Format(v.limit, "0.00") + ")";
  const std::string governing = GoverningLabel(v);
  if (!governing.empty()) text += ", " + governing;
  if (v.sls != Serviceability::None) {
    text += std::string("   serviceability: ") + ServiceabilityWord(v.sls);
  }
  line.runs.push_back({text});
  return line;
}

}  // namespace korvane
