// SPDX-License-Identifier: GPL-3.0-or-later
// Lateral torsional buckling: load level, critical moment, reduction and design moment of cases
// worked out by hand, and the walk over the segments between restraint points.
#include "checks/lateral_buckling.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "check_bench.h"

namespace korvane {
namespace {

/// A member of 5 m with h = 200, Iz = 1E7, Ix = 1E5, Iw = 1E11, Wply = 1E6, S355, 1.1, with
/// typed factors 1.1, 0.5, 0.4. With pi^2 = 9.869604:
/// T = 5000^2 * 1E5/2.6 = 9.615385E11; B = T/pi^2/1E7 + 1E11/1E7 = 9742.421 + 10000 = 19742.421;
/// P = pi^2*210000*1E7/5000^2 = 829046.8 N.
class Lateral : public testing::Test {
protected:
  Lateral() {
    st.L = 5;
    st.E = 210000;
    st.LateralTorsionalBuckling = 1;
    st.CFactorManual = 1;
    st.C1i = 1.1;
    st.C2i = 0.5;
    st.C3i = 0.4;
    SectionRecord& rec = bench.rec;
    rec.h = 200;
    rec.Iz = 1E7;
    rec.Ix = 1E5;
    rec.Iw = 1E11;
    rec.Wply = 1E6;
    rec.betay = 1;
    rec.ezel = 80;
    rec.zs = 20;
    rec.zjTop = 30;
    rec.zjBottom = -10;
    rec.betaTop = 0.9;
    rec.betaBottom = 0.8;
  }

  void Run(int type) {
    st.ProfileType = type;
    bench.family.lateral = FindFamily(type)->lateral;
    bench.family.givenConstants = FindFamily(type)->givenConstants;
    LateralTorsionalStep(bench.family, st, bench.f, bench.rec, bench.beam, bench.ltb);
  }

  /// A straight moment diagram over the whole member.
  void StraightMoments(double M0, double ML) {
    for (int i = 0; i <= 50; ++i) bench.beam.z.M[i] = M0 + (ML - M0) * i / 50;
    bench.beam.z.M_q[0] = M0;
    bench.beam.z.M_q[2] = bench.beam.z.M[25];
    bench.beam.z.M_q[4] = ML;
  }

  CheckBench bench{1, SectionControlKind::DoubleSymmetric, BucklingKind::DoubleSymmetric};
  ProjectState& st = bench.st;
  LtbResults& ltb = bench.ltb;
};

// D = 0.5*100 = 50, sqrt(B + 2500) = 149.13893, Mcr = 1.1*829046.8*99.13893 = 9.040990E7,
// lamLT = sqrt(1E6*355/Mcr) = 1.981555, phi = 0.5*(1 + 0.21*1.581555 + lamLT^2) = 2.629344,
// chiLT = 1/(phi + sqrt(phi^2 - lamLT^2)) = 0.2294838, Mdb = chiLT*355/1.1 = 74.06069.
TEST_F(Lateral, LoadOnTheTopOfASaggingMember) {
  StraightMoments(10, 10);
  Run(1);
  EXPECT_EQ(ltb.zg, 100);
  EXPECT_EQ(ltb.Lk, 5);
  EXPECT_NEAR(ltb.Mcr, 9.040990E7, 50);
  EXPECT_NEAR(ltb.lamLT, 1.981555, 1e-6);
  EXPECT_NEAR(ltb.chiLT, 0.2294838, 1e-7);
  EXPECT_NEAR(ltb.chiLT_min, 0.2294838, 1e-7);
  EXPECT_NEAR(ltb.Mdb, 74.06069, 1e-5);
  EXPECT_NEAR(ltb.Mdb_min, 74.06069, 1e-5);
}

// The same load under a hogging moment stabilises: D = -50, Mcr = 1.1*P*199.13893 = 1.816050E8.
TEST_F(Lateral, LoadOnTheTopOfAHoggingMember) {
  StraightMoments(-10, -10);
  Run(1);
  EXPECT_EQ(st.Za, 100);
  EXPECT_EQ(ltb.zg, -100);
  EXPECT_NEAR(ltb.Mcr, 1.816050E8, 100);
  EXPECT_NEAR(ltb.chiLT, 0.4305051, 1e-7);
}

// Imperfection 0.49: phi = 0.5*(1 + 0.49*1.581555 + 3.926561) = 2.850762, chiLT = 0.2040725.
TEST_F(Lateral, WeldedSectionsTakeTheHigherImperfection) {
  StraightMoments(10, 10);
  Run(21);
  EXPECT_NEAR(ltb.lamLT, 1.981555, 1e-6);
  EXPECT_NEAR(ltb.chiLT, 0.2040725, 1e-7);
}

TEST_F(Lateral, AStockyMemberIsNotReduced) {
  StraightMoments(10, 10);
  st.L = 1;
  bench.rec.Ix = 1E7;
  bench.rec.Iz = 1E8;
  bench.rec.Iw = 1E12;
  Run(1);
  EXPECT_LT(ltb.lamLT, 0.4);
  EXPECT_EQ(ltb.chiLT, 1);
  EXPECT_NEAR(ltb.Mdb, 355 / 1.1, 1e-4);
}

struct LevelCase {
  int type, level;
  double Za, zgSagging;
};

TEST_F(Lateral, LevelSetsTheHeightOfTheLoad) {
  // Doubly symmetric: h/2; singly symmetric: from the elastic axis 80 below the top, less the
  // shear centre's 20. Level 4 keeps what was typed.
  const std::vector<LevelCase> cases{{1, 1, 100, 100}, {1, 2, 0, 0},      {1, 3, -100, -100},
                                     {1, 4, 37, 37},   {28, 1, 100, 100}, {103, 3, -100, -100},
                                     {22, 1, 80, 60},  {22, 2, 0, -20},   {22, 3, -120, -140},
                                     {22, 4, 37, 17},  {41, 1, 0, 0},     {41, 4, 0, 0}};
  for (const LevelCase& c : cases) {
    for (const double sign : {1.0, -1.0}) {
      SCOPED_TRACE(testing::Message() << c.type << " level " << c.level << " sign " << sign);
      StraightMoments(10 * sign, 10 * sign);
      st.LoadLevel = c.level;
      st.Za = 37;
      Run(c.type);
      EXPECT_EQ(st.Za, c.Za);
      EXPECT_EQ(ltb.zg, sign * c.zgSagging);
      EXPECT_EQ(st.LoadLevel, c.type == 41 ? 2 : c.level);
    }
  }
}

TEST_F(Lateral, NoMomentAtMidSpanCountsAsHogging) {
  StraightMoments(10, -10);
  Run(1);
  EXPECT_EQ(ltb.zg, -100);
}

TEST_F(Lateral, PlateFamiliesHaveNoLoadLevel) {
  StraightMoments(10, 10);
  st.LoadLevel = 3;
  st.Za = 37;
  ltb.zg = 5;
  Run(51);
  EXPECT_EQ(st.Za, 37);
  EXPECT_EQ(ltb.zg, 5);
}

// Top compressed: D = 0.5*(80 - 20) - 0.4*30 = 18, sqrt(B + 324) = 141.65600, Mcr = 1.127683E8,
// lamLT = sqrt(0.9*3.55E8/Mcr) = 1.683224, alpha 0.49: chiLT = 0.2706133, Mdb = 78.60085.
TEST_F(Lateral, SinglySymmetricSagging) {
  StraightMoments(10, 10);
  Run(22);
  EXPECT_NEAR(ltb.Mcr, 1.127683E8, 60);
  EXPECT_NEAR(ltb.lamLT, 1.683224, 1e-6);
  EXPECT_NEAR(ltb.chiLT, 0.2706133, 1e-7);
  EXPECT_NEAR(ltb.Mdb, 78.60085, 1e-5);
}

// Bottom compressed: D = -0.5*60 + 0.4*10 = -26, lamLT = sqrt(0.8*3.55E8/1.540223E8).
TEST_F(Lateral, SinglySymmetricHogging) {
  StraightMoments(-10, -10);
  Run(22);
  EXPECT_NEAR(ltb.Mcr, 1.540223E8, 80);
  EXPECT_NEAR(ltb.lamLT, 1.357899, 1e-6);
  EXPECT_NEAR(ltb.Mdb, 99.08750, 2e-5);
}

// D = 0, Mcr = 1.1*829046.8*140.50773 = 1.281362E8, alpha 0.49.
TEST_F(Lateral, GeneralProfileHasNoLoadLevel) {
  StraightMoments(10, 10);
  Run(41);
  EXPECT_NEAR(ltb.Mcr, 1.281362E8, 60);
  EXPECT_NEAR(ltb.chiLT, 0.2757839, 1e-7);
}

TEST_F(Lateral, SaggingPlateIsNotReduced) {
  for (const int type : {51, 52, 53, 54, 55, 56}) {
    StraightMoments(0, 10);  // a moment of exactly 0 still counts as sagging
    Run(type);
    EXPECT_EQ(ltb.chiLT, 1) << type;
    EXPECT_NEAR(ltb.Mdb, 0.9 * 355 / 1.1, 2e-5) << type;
  }
}

// sigma = (2*(200/5000)^2 + 1)*80769.23*(10/200)^2 = 202.56923, lamLT = sqrt(355/sigma) =
// 1.323815, eta = 0.2533354, a = 1 + eta + lamLT^2 = 3.005823,
// chiLT = (a - sqrt(a^2 - 4*lamLT^2))/(2*lamLT^2) = 0.4515840, Mdb = chiLT*0.8*355/1.1.
TEST_F(Lateral, FlatStiffenerCompressed) {
  StraightMoments(-1, 10);  // one hogging end is enough
  bench.rec.tw = 10;
  Run(51);
  EXPECT_NEAR(ltb.lamLT, 1.323815, 1e-6);
  EXPECT_NEAR(ltb.chiLT, 0.4515840, 1e-7);
  EXPECT_NEAR(ltb.Mdb, 116.5908, 1e-4);
}

TEST_F(Lateral, ShortFlatStiffenerIsNotReduced) {
  StraightMoments(-10, -10);
  bench.rec.tw = 25;  // sigma = 1266.06, lamLT = 0.5295
  Run(51);
  EXPECT_NEAR(ltb.lamLT, 0.5295, 1e-4);
  EXPECT_EQ(ltb.chiLT, 1);
  EXPECT_NEAR(ltb.Mdb, 0.8 * 355 / 1.1, 2e-5);
}

// Torsion (1.5^2*1500 + 2000)*80769.23*(10/200)^2/(3*1500 + 2000) = 166.97485, bending
// pi^2*210000*1E7/(2000/3 + 1500)/5000^2 = 382.63699, sigma = 549.61184, lamLT = 0.8036855,
// a = 1.717200, chiLT = 0.8615251.
TEST_F(Lateral, FlangedStiffenerCompressed) {
  SectionRecord& rec = bench.rec;
  rec.h = 215;
  rec.tf = 15;
  rec.tf2 = 15;
  rec.tw = 10;
  rec.Afc = 1500;
  rec.Afw = 2000;
  for (const int type : {52, 53, 54, 55, 56}) {
    StraightMoments(-10, -10);
    Run(type);
    EXPECT_NEAR(ltb.lamLT, 0.8036855, 1e-7) << type;
    EXPECT_NEAR(ltb.chiLT, 0.8615251, 1e-7) << type;
    EXPECT_NEAR(ltb.Mdb, 222.4301, 1e-4) << type;
  }
}

TEST_F(Lateral, SwitchedOffKeepsTheResultsButShowsTheBendingCapacity) {
  StraightMoments(10, 10);
  st.LateralTorsionalBuckling = 0;
  Run(1);
  EXPECT_NEAR(ltb.chiLT, 0.2294838, 1e-7);
  EXPECT_NEAR(ltb.Mdb, 74.06069, 1e-5);
  EXPECT_EQ(ltb.chiLT_min, 1);
  EXPECT_EQ(ltb.Mdb_min, bench.rec.Mdy);
}

TEST_F(Lateral, WholeMemberTakesTheFactorsOfItsDiagram) {
  StraightMoments(0, 0);
  bench.beam.z.M[25] = bench.beam.z.M_q[2] = 10;
  st.CFactorManual = 0;
  st.LoadLevel = 2;
  Run(1);
  EXPECT_DOUBLE_EQ(ltb.C1, 1.365);
  EXPECT_DOUBLE_EQ(ltb.C2, 0.553);
  EXPECT_DOUBLE_EQ(ltb.C3, 1.735);
  EXPECT_NEAR(ltb.Mcr, 1.365 * 829046.8158 * 140.507726, 5);
}

TEST_F(Lateral, LengthFactorScalesTheLength) {
  StraightMoments(10, 10);
  st.k_ltb = 0.5;
  Run(1);
  EXPECT_EQ(ltb.Lk, 2.5);
  st.LtbSegments = 4;
  Run(1);
  EXPECT_EQ(ltb.Lk, 0.5);
}

/// Capacity routine that notes the forces that it was asked for.
void NoteForces(const ProjectState&, const SectionForces& f, SectionRecord& rec) {
  rec.Mdy = f.My;
  rec.Ncrd = f.Ncl;
}

TEST_F(Lateral, CapacitiesAreAskedForTheMomentConsidered) {
  bench.family.routines.capacities = NoteForces;
  bench.f.N = -33;
  bench.beam.MyAbsMax = 77;
  StraightMoments(10, 30);
  Run(1);
  EXPECT_EQ(bench.rec.Mdy, 77);
  EXPECT_EQ(bench.rec.Ncrd, -33);
  st.AnalysisMode = 0;  // one segment: the mean of its ends
  Run(1);
  EXPECT_EQ(bench.rec.Mdy, 20);
}

}  // namespace
}  // namespace korvane
