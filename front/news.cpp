// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/news.h"

#include <cmath>
#include <vector>

#include "analysis/loads.h"
#include "core/family_kinds.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

using S = ProjectState;
using Words = std::vector<std::string>;

std::string Joined(const Words& words) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : ", ") + word;
  return text;
}

bool Gone(double before, double after) {
  return before != 0 && after == 0;
}

std::string Trimmed(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

/// "HSQ", "Plate + T-girder"
std::string FamilyWord(int profileType) {
  const Family* family = FindFamily(profileType);
  if (family == nullptr) return "This section";
  const std::string title = Trimmed(family->words.title);
  return title.empty() ? Trimmed(family->menuCaption) : title;
}

/// The axial loads that went, as one sum.
double AxialGone(const S& a, const S& b) {
  double sum = 0;
  for (const auto member : {&S::NP, &S::NV1, &S::NV2}) {
    if (Gone(a.*member, b.*member)) sum += a.*member;
  }
  return sum;
}

Words LoadsGone(const Session& s, const S& a, const S& b) {
  Words words;
  for (int n = 1; n <= 4; ++n) {
    const LineLoad& line = LineLoadOf(n);
    if (!Gone(a.*line.q, b.*line.q)) continue;
    words.push_back("q" + std::to_string(n) + " " + s.Shown(a.*line.q, "#0.0") + " kN/m");
  }
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& one = TrapezoidOf(t);
    const bool was = a.*one.q1 != 0 || a.*one.q2 != 0;
    if (was && b.*one.q1 == 0 && b.*one.q2 == 0) words.push_back("trapezoid " + std::to_string(t));
  }
  for (int i = 1; i <= 8; ++i) {
    if (!Gone(a.pm[i], b.pm[i])) continue;
    words.push_back((a.pm_pm[i] == 0 ? "point load " : "moment ") + s.Shown(a.pm[i], "#0.0") +
                    (a.pm_pm[i] == 0 ? " kN" : " kNm"));
  }
  return words;
}

Words EndsGone(const S& a, const S& b) {
  Words words;
  const auto look = [&](const char* name, Indexed<float32, 1, 2> S::*member) {
    for (int end = 1; end <= 2; ++end) {
      if (Gone((a.*member)[end], (b.*member)[end])) words.push_back(name + std::to_string(end));
    }
  };
  look("My", &S::My_end);
  look("Mz", &S::Mz_end);
  look("Vy", &S::Vy_end);
  look("Vz", &S::Vz_end);
  return words;
}

Words OptionsGone(const S& a, const S& b) {
  Words words;
  if (Gone(a.LateralTorsionalBuckling, b.LateralTorsionalBuckling)) {
    words.push_back("lateral torsional buckling");
  }
  if (Gone(a.WebStiffener, b.WebStiffener)) words.push_back("web stiffeners");
  if (Gone(a.EndStiffener, b.EndStiffener)) words.push_back("stiff support stiffener");
  return words;
}

void Add(std::string& text, const std::string& sentence) {
  text += (text.empty() ? "" : "; ") + sentence;
}

}  // namespace

std::string RemovedWords(const Session& s, const S& before, const S& after, bool byFamily) {
  std::string text;
  const std::string family = FamilyWord(after.ProfileType);
  if (const double N = AxialGone(before, after); N != 0 && byFamily) {
    Add(text, family + " carries no N: " + s.Shown(N, N == std::round(N) ? "#0" : "#0.0") +
                  " kN removed");
  }
  if (const Words loads = LoadsGone(s, before, after); !loads.empty()) {
    const std::string why = !byFamily ? "Not on the member"
                            : IsPlateType(after.ProfileType)
                                ? family + " carries no loads in the y direction"
                                : family + " carries axial force alone";
    Add(text, why + ": " + Joined(loads) + " removed");
  }
  if (const Words ends = EndsGone(before, after); !ends.empty() && byFamily) {
    Add(text, family + " doesn't carry these end forces: " + Joined(ends) + " removed");
  }
  if (const Words options = OptionsGone(before, after); !options.empty()) {
    Add(text, (byFamily ? family + " has none: " : "Not on the member: ") + Joined(options) +
                  " switched off");
  }
  return text;
}

}  // namespace korvane
