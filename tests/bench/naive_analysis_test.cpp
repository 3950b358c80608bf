// SPDX-License-Identifier: GPL-3.0-or-later
// The analysis against its plain yardstick: the same forces, extremes and deflections, on every
// support, with every kind of load. One proves the other, since they share no formula's form.
#include "bench/naive_analysis.h"

#include <gtest/gtest.h>

#include "../design/designs.h"
#include "../design/random_states.h"
#include "bench/workloads.h"

namespace korvane {
namespace {

/// Within a millionth of the greatest value of the list.
template <class List>
void ExpectClose(const char* name, const List& ours, const List& plain) {
  double scale = 0;
  for (const auto& value : plain) scale = std::max(scale, std::fabs(double(value)));
  auto it = plain.begin();
  int i = 0;
  for (const auto& value : ours) {
    EXPECT_NEAR(value, *it, 1e-6 * scale) << name << " " << i;
    ++it;
    ++i;
  }
}

void ExpectSame(const char* name, double ours, double plain, double scale) {
  EXPECT_NEAR(ours, plain, 1e-6 * scale) << name;
}

void ExpectPlane(const PlaneForces& ours, const PlaneForces& plain) {
  ExpectClose("M", ours.M, plain.M);
  ExpectClose("V", ours.V, plain.V);
  const double M = std::max(std::fabs(plain.M_max), std::fabs(plain.M_min));
  const double V = std::max(std::fabs(plain.V_max), std::fabs(plain.V_min));
  ExpectSame("M_max", ours.M_max, plain.M_max, M);
  ExpectSame("M_min", ours.M_min, plain.M_min, M);
  ExpectSame("V_max", ours.V_max, plain.V_max, V);
  ExpectSame("V_min", ours.V_min, plain.V_min, V);
  ExpectClose("M_q", ours.M_q, plain.M_q);
  ExpectClose("M_pt", ours.M_pt, plain.M_pt);
  ExpectClose("V_pt", ours.V_pt, plain.V_pt);
}

/// The design's own analysis and the plain one of the same loads.
void ExpectAgreement(Design& d, naive::Visits visits) {
  // The plain way starts from the same points: unused ones keep what they had.
  BeamResults plain = d.beam;
  Deflections defl;
  WorkingLoads loads;
  Analysis(d);
  naive::Analyse(d.st, d.rec.S, visits, loads, plain);
  ExpectPlane(d.beam.z, plain.z);
  ExpectPlane(d.beam.y, plain.y);
  EXPECT_EQ(d.beam.pt_last, plain.pt_last);
  ExpectClose("pt_x", d.beam.pt_x, plain.pt_x);
  EXPECT_NEAR(d.beam.MyAbsMax, plain.MyAbsMax, 1e-6 * plain.MyAbsMax);
  CombineSls(d.st, d.rec.S, loads);
  naive::Deflect(d.st, d.rec.Iy, d.rec.Iz, visits, loads, defl);
  ExpectClose("DeflZ", d.deflections.DeflZ, defl.DeflZ);
  ExpectClose("DeflY", d.deflections.DeflY, defl.DeflY);
  EXPECT_NEAR(d.deflections.DeflStiff, defl.DeflStiff,
              1e-6 * std::max(std::fabs(defl.DeflZ_max), std::fabs(defl.DeflZ_min)) * d.rec.Iy);
}

TEST(NaiveAnalysis, AgreesOnTheMemberThatIsMeasured) {
  for (const auto visits : {naive::Visits::AllSlots, naive::Visits::LoadsOnly}) {
    for (int support = 0; support <= 5; ++support) {
      SCOPED_TRACE(support);
      Design d = FullDesign();
      d.st.SupportType = support;
      d.st.SpringRestraint = 37;
      ExpectAgreement(d, visits);
      EXPECT_GT(d.beam.MyAbsMax, 10);
    }
  }
}

TEST(NaiveAnalysis, AgreesOnRandomLoadsOfEverySupport) {
  int used = 0;
  for (unsigned seed = 1; seed <= 1200; ++seed) {
    SCOPED_TRACE(seed);
    Design d = NewDesign();
    RandomState(seed, 1, d.st);
    if (d.st.AnalysisMode == 0) continue;
    NormaliseLoads(d.st);
    ExpectAgreement(d, seed % 2 == 0 ? naive::Visits::AllSlots : naive::Visits::LoadsOnly);
    ++used;
    if (HasFailure()) break;
  }
  EXPECT_GT(used, 600);
}

}  // namespace
}  // namespace korvane
