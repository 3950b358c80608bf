// SPDX-License-Identifier: GPL-3.0-or-later
// Elastic critical moments against the theory of lateral torsional buckling.
#include <memory>

#include "analysis/loads.h"
#include "case.h"
#include "core/calculation.h"
#include "tests/support/source_library.h"

namespace korvane::verification {

namespace {

Design Member(int profileType, double L) {
  Design d(SourceLibrary());
  StartDesign(d);
  ClearLoads(d.st);
  d.st.ProfileType = profileType;
  d.st.L = L;
  d.st.LoadLevel = 2;
  return d;
}

/// Equal and opposite end moments, or others, in kNm.
Design& WithEnds(Design& d, double left, double right) {
  d.st.AnalysisMode = 0;
  d.st.My_end[1] = left;
  d.st.My_end[2] = right;
  Calculate(d);
  Calculate(d);
  return d;
}

struct Uniform {
  const char* name;
  int profileType;
  int16 ProjectState::*row;
  int index;
  double L, Mcr;
};
/// pi/L sqrt(EIz GIx) sqrt(1 + pi^2 EIw/(L^2 GIx)), E = 210000, G = E/2.6 MPa, section values of
/// the tables.
constexpr Uniform kUniform[] = {{"HEA 200", 1, &ProjectState::idxHEA, 5, 4, 231.35492},
                                {"HEB 300", 2, &ProjectState::idxHEB, 10, 8, 752.35467},
                                {"IPE 300", 4, &ProjectState::idxIPE, 10, 6, 90.380541},
                                {"UPE 200", 5, &ProjectState::idxUPE, 6, 5, 35.445465},
                                {"UB 457x191x67", 101, &ProjectState::p101_idx1, 42, 6, 242.85822},
                                {"welded I 600x300/12x20", 21, nullptr, 0, 10, 763.42069},
                                {"flat 150x12", 28, nullptr, 0, 2, 8.8376387}};

struct Gradient {
  const char* diagram;
  double left, right;
  double exact;
  double tolerance;
};
/// Eigenvalues of phi'' + (lambda m)^2 phi = 0 with phi = 0 at both ends, by Runge-Kutta and
/// bisection: a strip without warping stiffness. C1 is lambda/pi.
constexpr Gradient kGradients[] = {{"end moments M and M", 2, 2, 1.0, kExact},
                                   {"end moments M and M/2", 2, 1, 1.3116626, 0.012},
                                   {"end moments M and 0", 2, 0, 1.7703681, 0.065},
                                   {"end moments M and -M/2", 2, -1, 2.3313420, 0.17},
                                   {"end moments M and -M", 2, -2, 2.5545001, 0.08}};

constexpr const char* kStrip = "strip without warping, eigenvalue";
constexpr const char* kTable = "the standard's table, fitted to I sections, lies above the strip";

double LoadedC1(bool point) {
  Design d = Member(28, 2);
  if (point) {
    d.st.pm[1] = 4;
    d.st.pmx[1] = 1;
  } else {
    d.st.q1 = 4;
  }
  Calculate(d);
  Calculate(d);
  return d.ltb.C1;
}

/// kNm, a strip of 2 m, fixed at one end, with a load at the tip.
double CantileverMcr() {
  Design d = Member(28, 2);
  d.st.SupportType = 4;
  d.st.k_ltb = 2;
  d.st.pm[1] = 1;
  d.st.pmx[1] = 2;
  Calculate(d);
  Calculate(d);
  return d.ltb.Mcr / 1E6;
}

}  // namespace

Chapter CriticalMoments() {
  Chapter chapter{"Critical moments",
                  "Members between forks, E = 210000 MPa, G = E/2.6. Under a uniform moment the "
                  "exact solution is closed; other diagrams are compared by their factor C1.",
                  {}};
  for (const Uniform& u : kUniform) {
    Design d = Member(u.profileType, u.L);
    if (u.row != nullptr) d.st.*u.row = u.index;
    const double ours = WithEnds(d, 2, 2).ltb.Mcr / 1E6;
    chapter.cases.push_back(
        {std::string("Mcr of ") + u.name, "pi/L sqrt(EIz GIx) sqrt(1 + pi^2 EIw/(L^2 GIx))",
         "uniform moment, L = " + std::to_string(int(u.L)) + " m", u.Mcr, ours, "kNm", kExact, ""});
  }
  for (const Gradient& g : kGradients) {
    Design d = Member(28, 2);
    const double ours = WithEnds(d, g.left, g.right).ltb.C1;
    chapter.cases.push_back(
        {"C1", kStrip, g.diagram, g.exact, ours, "", g.tolerance, g.exact == 1 ? "" : kTable});
  }
  chapter.cases.push_back({"C1", "28.3/(8 pi), Timoshenko", "line load at mid-depth", 1.1266163,
                           LoadedC1(false), "", 0.01, kTable});
  chapter.cases.push_back({"C1", "16.94/(4 pi), Timoshenko", "point load at mid-span", 1.3477346,
                           LoadedC1(true), "", 0.02, kTable});
  chapter.cases.push_back({"Mcr of a cantilever, flat 150x12", "4.013 sqrt(EIz GIx)/L, Timoshenko",
                           "load at the tip, L = 2 m, k = 2", 11.287873, CantileverMcr(), "kNm",
                           0.6,
                           "on purpose: a cantilever takes the factors of a beam of twice its "
                           "length"});
  return chapter;
}

}  // namespace korvane::verification
