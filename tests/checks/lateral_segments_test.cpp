// SPDX-License-Identifier: GPL-3.0-or-later
// Lateral torsional buckling between restraint points: which segment governs, with which
// stations, moments, factors and text.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "check_bench.h"
#include "checks/lateral_buckling.h"

namespace korvane {
namespace {

/// L = 5 m, Iz = 1E7, Ix = 1E5, Iw = 1E11, Wply = 1E6, S355, 1.1. For the whole length
/// sqrt(B) = 140.507726 and P = 829046.8158 N.
class Segments : public testing::Test {
protected:
  Segments() {
    SectionRecord& rec = bench.rec;
    rec.h = 200;
    rec.tw = 10;
    rec.Iz = 1E7;
    rec.Ix = 1E5;
    rec.Iw = 1E11;
    rec.Wply = 1E6;
    rec.betay = 1;
    rec.betaTop = 0.9;
    rec.betaBottom = 0.8;
    rec.zjTop = 30;
    rec.zjBottom = -10;
    rec.zs = 20;
    rec.ezel = 80;
  }

  void Run(int type, int points) {
    st.ProfileType = type;
    bench.family.lateral = FindFamily(type)->lateral;
    bench.family.givenConstants = FindFamily(type)->givenConstants;
    st.LtbSegments = points;
    LateralTorsionalStep(bench.family, st, bench.f, bench.rec, bench.beam, bench.ltb);
  }

  void StraightMoments(double M0, double ML) {
    for (int i = 0; i <= 50; ++i) M[i] = M0 + (ML - M0) * i / 50;
  }

  CheckBench bench{1, SectionControlKind::DoubleSymmetric, BucklingKind::DoubleSymmetric};
  ProjectState& st = bench.st;
  LtbResults& ltb = bench.ltb;
  StationValues& M = bench.beam.z.M;
};

// Constant moment: r = 1, C1 = C3 = 1; Mcr = 829046.8*140.50773 = 1.164875E8, lamLT = 1.745720,
// phi = 0.5*(1 + 0.21*1.345720 + 3.047538) = 2.165069, chiLT = 0.2902177, Mdb = 93.66115.
TEST_F(Segments, EndForcesWithoutRestraintsAreOneSegment) {
  st.AnalysisMode = 0;
  StraightMoments(10, 10);
  Run(1, 0);
  EXPECT_NEAR(ltb.C1, 1, 1e-12);
  EXPECT_EQ(ltb.C2, 0);
  EXPECT_NEAR(ltb.C3, 1, 1e-12);
  EXPECT_EQ(ltb.Lk, 5);
  EXPECT_NEAR(ltb.Mcr, 1.164875E8, 60);
  EXPECT_NEAR(ltb.chiLT, 0.2902177, 1e-7);
  EXPECT_NEAR(ltb.Mdb, 93.66115, 1e-5);
  EXPECT_EQ(ltb.LtbSegmentText, "0 - L/1");
  EXPECT_EQ(st.LtbCriticalSegment, 0);
}

// A damaged file may say so; no segment would be left that could fail.
TEST_F(Segments, FewerThanNoRestraintPointsStopTheCalculation) {
  StraightMoments(10, 10);
  for (const int points : {-1, -2, -32768}) {
    EXPECT_THROW(Run(1, points), ArithmeticFault) << points;
  }
}

TEST_F(Segments, EndMomentRatioIsTheSmallerOverTheLarger) {
  st.AnalysisMode = 0;
  StraightMoments(10, -40);  // r = -0.25, C1 = 2.281
  Run(1, 0);
  EXPECT_NEAR(ltb.C1, 2.281, 1e-12);
  StraightMoments(-40, 10);
  Run(1, 0);
  EXPECT_NEAR(ltb.C1, 2.281, 1e-12);
  StraightMoments(0, 0);  // no moment: r = 0
  Run(1, 0);
  EXPECT_NEAR(ltb.C1, 1.879, 1e-12);
}

TEST_F(Segments, LoadLevelAndTypedFactorsHaveNoEffect) {
  StraightMoments(10, 10);
  Run(1, 1);
  const double Mcr = ltb.Mcr;
  st.LoadLevel = 3;
  st.CFactorManual = 1;
  st.C1i = 3;
  st.C2i = 2;
  ltb.zg = 77;
  Run(1, 1);
  EXPECT_EQ(ltb.Mcr, Mcr);
  EXPECT_EQ(ltb.C2, 0);
  EXPECT_EQ(ltb.zg, 77);
}

struct TextCase {
  int points, governing;
  const char* text;
};

TEST_F(Segments, TextNamesTheGoverningSegment) {
  const std::vector<TextCase> cases{
      {1, 0, "0 - L/2"},     {1, 1, "1L/2 -  L"},   {2, 0, "0 - L/3"},     {2, 1, "1L/3 - 2L/3"},
      {2, 2, "2L/3 -  L"},   {3, 1, "1L/4 - 2L/4"}, {3, 2, "2L/4 - 3L/4"}, {6, 0, "0 - L/7"},
      {6, 3, "3L/7 - 4L/7"}, {6, 6, "6L/7 -  L"}};
  for (const TextCase& c : cases) {
    SCOPED_TRACE(c.text);
    StraightMoments(0, 0);
    // A peak inside the segment, off its ends.
    M[static_cast<int>(50 * (c.governing + 0.5) / (c.points + 1))] = 10;
    Run(1, c.points);
    EXPECT_EQ(ltb.LtbSegmentText, c.text);
    EXPECT_EQ(st.LtbCriticalSegment, c.governing);
    EXPECT_EQ(bench.beam.My_gov, 10);
  }
}

TEST_F(Segments, LaterSegmentWinsATie) {
  StraightMoments(10, 10);
  Run(1, 1);
  EXPECT_EQ(st.LtbCriticalSegment, 1);
  Run(1, 3);
  EXPECT_EQ(st.LtbCriticalSegment, 3);
}

// The quarter point 12.5 rounds to station 12, 37.5 to station 38: the segment between the two
// moments has r = 0.5, C1 = 1.323, and is the weaker one.
TEST_F(Segments, HalvesRoundToTheEvenStation) {
  for (const int station : {12, 38}) {
    StraightMoments(0, 0);
    M[station] = 10;
    M[25] = 5;
    Run(1, 3);
    EXPECT_EQ(st.LtbCriticalSegment, station == 12 ? 1 : 2);
    EXPECT_NEAR(ltb.C1, 1.323, 1e-12);
    EXPECT_EQ(bench.beam.My_gov, 10);
  }
}

TEST_F(Segments, MomentOfLargestSizeGovernsWithItsSign) {
  StraightMoments(10, 10);
  M[7] = -30;
  M[40] = 25;
  bench.beam.My_gov = 99;
  Run(1, 1);
  EXPECT_EQ(bench.beam.My_gov, -30);
  EXPECT_EQ(st.LtbCriticalSegment, 0);
}

// The first of two moments of the same size stands.
TEST_F(Segments, FirstOfEqualMomentsStands) {
  st.AnalysisMode = 0;
  StraightMoments(0, 0);
  M[20] = -30;
  M[30] = 30;
  Run(1, 0);
  EXPECT_EQ(bench.beam.My_gov, -30);
}

// The smallest reduction may belong to another segment than the largest ratio: a constant moment
// of 10 has r = 1, the steeper half next to it r = 0 and a larger moment inside.
TEST_F(Segments, SmallestReductionIsKeptApart) {
  StraightMoments(10, 10);
  for (int i = 26; i <= 50; ++i) M[i] = 0;
  M[40] = 100;
  Run(1, 1);
  EXPECT_EQ(st.LtbCriticalSegment, 1);
  EXPECT_NEAR(ltb.C1, 1.879, 1e-12);
  EXPECT_LT(ltb.chiLT_min, ltb.chiLT);
  EXPECT_NEAR(ltb.Mdb_min, ltb.chiLT_min * 355 / 1.1, 2e-5);
  EXPECT_NEAR(ltb.Mdb, ltb.chiLT * 355 / 1.1, 2e-5);  // the last segment governs here
}

// D = -1*30, sqrt(B + 900) = 143.67471, Mcr = 829046.8*173.67471 = 1.439845E8,
// lamLT = sqrt(0.9*3.55E8/Mcr) = 1.489627, here with 0.21: chiLT = 0.3858648, Mdb = 112.0762.
TEST_F(Segments, SinglySymmetricTakesTheLowerImperfection) {
  st.AnalysisMode = 0;
  StraightMoments(10, 10);
  Run(22, 0);
  EXPECT_NEAR(ltb.Mcr, 1.439845E8, 80);
  EXPECT_NEAR(ltb.chiLT, 0.3858648, 1e-7);
  EXPECT_NEAR(ltb.Mdb, 112.0762, 1e-4);
}

TEST_F(Segments, SinglySymmetricHoggingTakesTheBottom) {
  st.AnalysisMode = 0;
  StraightMoments(-10, -10);
  Run(22, 0);
  // D = 10: Mcr = 829046.8*(sqrt(19742.421 + 100) - 10).
  EXPECT_NEAR(ltb.Mcr, 829046.8158 * (std::sqrt(19842.42096) - 10), 60);
  EXPECT_NEAR(ltb.lamLT, std::sqrt(0.8 * 355E6 / ltb.Mcr), 1e-7);
}

TEST_F(Segments, SinglySymmetricWithoutMeanMomentTakesTheBottom) {
  st.AnalysisMode = 0;
  StraightMoments(10, -10);  // r = -1: C3 = 0
  Run(22, 0);
  EXPECT_NEAR(ltb.lamLT, std::sqrt(0.8 * 355E6 / ltb.Mcr), 1e-7);
}

TEST_F(Segments, GeneralProfileTakesTheLowerImperfection) {
  st.AnalysisMode = 0;
  StraightMoments(10, 10);
  Run(41, 0);
  EXPECT_NEAR(ltb.chiLT, 0.2902177, 1e-7);
}

TEST_F(Segments, PlateTakesTheMostNegativeMoment) {
  StraightMoments(50, 50);
  M[30] = -20;
  Run(51, 1);
  EXPECT_EQ(bench.beam.My_gov, -20);
  EXPECT_EQ(st.LtbCriticalSegment, 1);
}

TEST_F(Segments, PlateWithoutHoggingHasNoGoverningMoment) {
  StraightMoments(50, 50);
  Run(51, 2);
  EXPECT_EQ(bench.beam.My_gov, 0);
  EXPECT_EQ(ltb.chiLT, 1);
  EXPECT_EQ(st.LtbCriticalSegment, 2);
  EXPECT_NEAR(ltb.Mdb, 0.9 * 355 / 1.1, 2e-5);
}

// Only the ends of a segment decide which side is compressed.
TEST_F(Segments, PlateGoesByTheEndsOfTheSegment) {
  st.AnalysisMode = 0;
  StraightMoments(0, 50);
  M[30] = -20;
  Run(51, 0);
  EXPECT_EQ(bench.beam.My_gov, -20);
  EXPECT_EQ(ltb.chiLT, 1);
  StraightMoments(-1, 50);
  Run(51, 0);
  EXPECT_NEAR(ltb.chiLT, 0.4515840, 1e-7);  // as over the whole length
  EXPECT_NEAR(ltb.Mdb, 116.5908, 1e-4);
}

// Of segments reduced alike the last gives the smallest design moment, also where none is reduced.
TEST_F(Segments, LastOfEqualReductionsGivesTheSmallestDesignMoment) {
  StraightMoments(50, 50);
  Run(51, 1);
  EXPECT_EQ(ltb.chiLT_min, 1);
  EXPECT_NEAR(ltb.Mdb_min, 0.9 * 355 / 1.1, 2e-5);
  bench.rec.tw = 25;  // stocky: not reduced on the other side either
  M[50] = -50;
  Run(51, 1);
  EXPECT_EQ(ltb.chiLT_min, 1);
  EXPECT_NEAR(ltb.Mdb_min, 0.8 * 355 / 1.1, 2e-5);
}

TEST_F(Segments, NoMomentLeavesTheLastSegmentGoverning) {
  StraightMoments(0, 0);
  Run(1, 4);
  EXPECT_EQ(st.LtbCriticalSegment, 4);
  EXPECT_EQ(bench.beam.My_gov, 0);
}

}  // namespace
}  // namespace korvane
