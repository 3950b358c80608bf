// SPDX-License-Identifier: GPL-3.0-or-later
// Whole members worked out step by step, every intermediate value beside the program's.
#include "members.h"

#include <functional>
#include <memory>

#include "analysis/loads.h"
#include "case.h"
#include "tests/support/source_library.h"

namespace korvane::verification {

namespace {

/// Row numbers of the lists of grades.
constexpr int kS235 = 0;
constexpr int kS355 = 5;

Design Bare(int profileType, int grade, double L) {
  Design d(SourceLibrary());
  StartDesign(d);
  ClearLoads(d.st);
  d.st.ProfileType = profileType;
  d.st.MaterialIndex = grade;
  d.st.L = L;
  d.st.lfp_uls = 1.2;
  d.st.lfv1_uls = 1.5;
  d.st.lfsw_uls = 1.2;
  d.st.lfp_sls = 1;
  d.st.lfv1_sls = 1;
  return d;
}

/// Permanent and variable line load along z, kN/m.
void PutLineLoads(ProjectState& st, double permanent, double variable) {
  st.q1 = permanent;
  st.q2 = variable;
  st.q2_pv = 1;
}

/// Twice, so that self weight and lateral buckling see the section that was chosen.
Design& Settle(Design& d) {
  Calculate(d);
  Calculate(d);
  return d;
}

Design Floor() {
  Design d = Bare(4, kS235, 6);
  d.st.idxIPE = 10;
  d.st.SelfWeight = 1;
  PutLineLoads(d.st, 5, 8);
  return Settle(d);
}

Design Column() {
  Design d = Bare(2, kS355, 4.5);
  d.st.idxHEB = 7;
  d.st.NP = 800;
  d.st.NV1 = 400;
  return Settle(d);
}

Design BeamColumn() {
  Design d = Bare(2, kS355, 6);
  d.st.idxHEB = 10;
  d.st.NP = 500;
  d.st.NV1 = 400;
  d.st.LoadLevel = 2;
  PutLineLoads(d.st, 10, 8);
  return Settle(d);
}

Design Hollow() {
  Design d = Bare(7, kS355, 4);
  d.st.idxRHSr = 65;
  d.st.SectionControlMode = 1;
  d.st.NP = 150;
  d.st.q1 = 20;
  d.st.q2 = 10;
  d.st.q2_yz = 0;
  return Settle(d);
}

Design Girder() {
  Design d = Bare(21, kS355, 12);
  d.st.p21_h = 1200;
  d.st.p21_b = 300;
  d.st.p21_tw = 8;
  d.st.p21_tf = 15;
  d.st.LtbSegments = 5;
  PutLineLoads(d.st, 20, 25);
  return Settle(d);
}

Design Tube() {
  Design d = Bare(31, kS355, 3.5);
  d.st.p31_d = 168.3;
  d.st.p31_tw = 8;
  d.st.NP = 400;
  d.st.q1 = 1;
  return Settle(d);
}

Design Strut() {
  Design d = Bare(10, kS355, 2);
  d.st.idxLeq = 27;
  d.st.NP = 150;
  return Settle(d);
}

Chapter Worked(const char* title, const char* introduction, const Design& d,
               std::span<const Step> steps) {
  Chapter chapter{std::string("Member: ") + title, introduction, {}};
  for (const Step& s : steps) {
    chapter.cases.push_back({s.symbol, "worked step by step", s.how, s.value, s.ours(d), s.unit,
                             s.tolerance, s.remark});
  }
  return chapter;
}

}  // namespace

std::vector<Chapter> Members() {
  return {
      Worked("floor beam",
             "Simply supported IPE 300 of S235, 6 m, 5 kN/m permanent and 8 kN/m "
             "variable load and its own weight, on the top flange.",
             Floor(), FloorSteps()),
      Worked("column",
             "HEB 240 of S355, 4.5 m between pins, 800 kN permanent and 400 kN variable "
             "load.",
             Column(), ColumnSteps()),
      Worked("beam-column",
             "HEB 300 of S355, 6 m between pins, 500 kN permanent and 400 kN "
             "variable compression, 10 kN/m permanent and 8 kN/m variable load at mid-depth.",
             BeamColumn(), BeamColumnSteps()),
      Worked("hollow section",
             "Hot formed RHS 200x100x8 of S355, 4 m, permanent loads: 150 kN "
             "compression, 20 kN/m along z and 10 kN/m along y; interaction with exponents.",
             Hollow(), HollowSteps()),
      Worked("welded girder of class 4",
             "Welded I 1200x300, web 8 mm, flanges 15 mm, S355, 12 m, "
             "held at every 2 m, 20 kN/m permanent and 25 kN/m variable load.",
             Girder(), GirderSteps()),
      Worked("tube",
             "Hot formed tube 168.3x8 of S355, 3.5 m, 400 kN permanent compression and "
             "1 kN/m across.",
             Tube(), TubeSteps()),
      Worked("angle strut", "Angle 100x100x10 of S355, 2 m, 150 kN permanent compression.", Strut(),
             StrutSteps()),
  };
}

}  // namespace korvane::verification
