// SPDX-License-Identifier: GPL-3.0-or-later
// The verdict: each rule by a member that it sees and one where it must stay silent.
#include "checks/verdict.h"

#include <gtest/gtest.h>

#include <set>
#include <string>

#include "checks/results.h"
#include "sections/profile_table.h"
#include "verdict_support.h"

namespace korvane {
namespace {

TEST(Verdict, OrdinaryMemberPassesWithItsGreatestRatio) {
  Design d = StartedDesign(1);
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_EQ(v.standing, Standing::Passes);
  EXPECT_EQ(v.IR, double(MaxIR(d.checks)));
  EXPECT_GT(v.IR, 0);
  EXPECT_EQ(v.limit, 1);
  EXPECT_FALSE(v.hidden);
  EXPECT_FALSE(GoverningLabel(v).empty());
  // 10 kN/m on 5 m: only the deflections are told.
  ASSERT_EQ(v.notes.size(), 1U);
  EXPECT_EQ(v.notes[0].code, NoteCode::Deflection);
}

TEST(Verdict, ChangesNothing) {
  Design d = StartedDesign(1);
  VerdictAfterTwo(d);
  const ProjectState st = d.st;
  const float IR = MaxIR(d.checks);
  const double Mvdy = d.rec.Mvdy;
  VerdictOf(d);
  EXPECT_TRUE(st == d.st);
  EXPECT_EQ(IR, MaxIR(d.checks));
  EXPECT_EQ(Mvdy, double(d.rec.Mvdy));
}

// --- Rule 1: stopped ----------------------------------------------------------------------------

TEST(Verdict, StoppedNamesStepAndInput) {
  Design d = StartedDesign(1);
  d.st.gammam1 = 0;
  const Verdict v = VerdictAfter(d);
  EXPECT_EQ(v.standing, Standing::Stopped);
  EXPECT_EQ(v.sls, Serviceability::None);
  EXPECT_EQ(v.IR, 0);
  EXPECT_EQ(Text(d, v, NoteCode::Stopped),
            "The calculation stopped in the material values: the material factor is 0.");
  d.st.gammam1 = 1.1;
  EXPECT_EQ(VerdictAfter(d).standing, Standing::Passes);
}

TEST(Verdict, StoppedNamesTheThickness) {
  Design d = StartedDesign(21);
  d.st.p21_tw = 0;
  const Verdict v = VerdictAfter(d);
  ASSERT_EQ(v.standing, Standing::Stopped);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::Stopped), "the web thickness tw is 0"));
}

TEST(Verdict, StoppedNamesANegativeCount) {
  Design d = StartedDesign(1);
  d.st.cp_mode = 1;
  d.st.cp_count = -1;
  Verdict v = VerdictAfter(d);
  ASSERT_EQ(v.standing, Standing::Stopped);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::Stopped), "the number of calculation points is -1"));
  d.st.cp_mode = 0;
  d.st.LtbSegments = -1;
  v = VerdictAfter(d);
  ASSERT_EQ(v.standing, Standing::Stopped);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::Stopped), "the number of restraint points is -1"));
}

// --- Rule 2: ratio and slenderness --------------------------------------------------------------

TEST(Verdict, FailsAboveTheLimitAndNotAtIt) {
  Design d = StartedDesign(1);
  VerdictAfterTwo(d);
  const double IR = MaxIR(d.checks);
  d.st.iufa = IR;  // equal to the limit passes
  EXPECT_EQ(VerdictAfter(d).standing, Standing::Passes);
  d.st.iufa = IR - 0.01;
  const Verdict v = VerdictAfter(d);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_EQ(v.notes[0].code, NoteCode::RatioExceeded);
}

TEST(Verdict, SlendernessLimitFailsOnlyWhereItIsOn) {
  Design d = StartedDesign(1);
  d.st.islend_limit = 50;  // HEA200: 5000/49.8 = 100 about z
  d.st.check_slend = 0;
  EXPECT_EQ(VerdictAfter(d).standing, Standing::Passes);
  d.st.check_slend = 1;
  const Verdict v = VerdictAfter(d);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::SlendernessExceeded), "above the limit 50"));
  d.st.islend_limit = 250;
  EXPECT_EQ(VerdictAfter(d).standing, Standing::Passes);
  d.st.islend_limit = 50;
  d.st.NP = 0;  // without compression there is no slenderness
  EXPECT_EQ(VerdictAfter(d).standing, Standing::Passes);
}

// --- Rule 3: capacities that a force needs ------------------------------------------------------

TEST(Verdict, TensionBeyondTheSectionFailsThoughTheLinesVanish) {
  Design d = StartedDesign(2);  // HEB100
  d.st.SectionControlMode = 1;
  d.st.SupportType = 2;
  d.st.q1 = 1;
  d.st.NP = -20000;  // 24,000 kN with its factor
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_LT(double(MaxIR(d.checks)), 1);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(Find(v, NoteCode::CapacityNotPositive));
  EXPECT_TRUE(Find(v, NoteCode::ForceAboveCapacity));
  EXPECT_TRUE(Has(Text(d, v, NoteCode::ForceAboveCapacity), "is above Ntd"));
}

TEST(Verdict, BendingThatShearTakesAwayFails) {
  Design d = StartedDesign(51);
  EndForces(d, 0, 10, 0, 1, 0);
  Calculate(d);
  EndForces(d, 0, 1770, 0, 0.95 * d.rec.Vdz, 0);
  const Verdict v = VerdictAfterTwo(d);
  ASSERT_LT(double(d.rec.MvdyTop), 0);
  EXPECT_LT(double(MaxIR(d.checks)), 1);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::CapacityNotPositive), "needs MvdyTop"));
}

TEST(Verdict, FlatBarInElasticModeUnderShearFails) {
  Design d = StartedDesign(28);
  d.st.BendingCapacityMode = 1;
  d.st.LateralTorsionalBuckling = 0;
  EndForces(d, 0, 1, 0, 1, 0);
  Calculate(d);
  EndForces(d, 0, 10, 0, 0.95 * d.rec.Vdz, 0);
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_LT(double(MaxIR(d.checks)), 1);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(Find(v, NoteCode::CapacityNotPositive));
  EndForces(d, 0, 1, 0, 0.3 * d.rec.Vdz, 0);
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::CapacityNotPositive));
}

// --- Rule 4: the floor --------------------------------------------------------------------------

TEST(Verdict, ShearOfAnAngleAtOneEndFails) {
  Design d = StartedDesign(10);
  d.st.idxLeq = 40;
  EndForces(d, 0, 0, 0, 0, 0);
  d.st.Vz_end[1] = 500;
  d.st.Vz_end[2] = 10;
  Calculate(d);
  const double last = 10 / d.rec.Vdz;
  ASSERT_LT(double(MaxIR(d.checks)), 1) << last;
  const Verdict v = VerdictOf(d);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::ForceAboveCapacity), "Vz = 500.0 kN at 0.00L"));
  d.st.Vz_end[1] = 10;
  EXPECT_EQ(VerdictAfter(d).standing, Standing::Passes);
}

// --- Rule 5: no control, unknown family, forces that nobody reads -------------------------------

TEST(Verdict, FamilyWithoutControlIsNotChecked) {
  Design d = StartedDesign(27);
  EndForces(d, 0, 37500, 0, 0, 0);
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_EQ(v.standing, Standing::NotChecked);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::NoControl), "My = 37500.0"));
}

TEST(Verdict, UnknownFamilyIsNotChecked) {
  for (const int code : {0, 12, 99, -3}) {
    Design d = StartedDesign(1);
    Calculate(d);
    d.st.ProfileType = code;
    const Verdict v = VerdictAfter(d);
    EXPECT_EQ(v.standing, Standing::NotChecked) << code;
    EXPECT_EQ(v.sls, Serviceability::None);
    EXPECT_TRUE(Find(v, NoteCode::UnknownFamily));
  }
}

TEST(Verdict, UnknownSeriesAndSupportAreNotChecked) {
  Design d = StartedDesign(1);
  Calculate(d);
  d.st.ProfileType = 101;
  d.st.p101_sub = 4;
  EXPECT_TRUE(Find(VerdictAfterTwo(d), NoteCode::UnknownSeries));
  EXPECT_EQ(VerdictOf(d).standing, Standing::NotChecked);
  d.st.p101_sub = 2;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::UnknownSeries));
  d = StartedDesign(1);
  d.st.LateralTorsionalBuckling = 0;  // which no factor is known for
  Calculate(d);
  d.st.ProfileType = 6;
  d.st.NP = 1;
  d.st.SupportType = 7;
  EXPECT_EQ(VerdictAfterTwo(d).standing, Standing::NotChecked);
  EXPECT_TRUE(Find(VerdictOf(d), NoteCode::UnknownSupport));
}

/// No dimension step runs, so no new name stands either.
TEST(Verdict, UnknownSeriesHasNoNameOfItsOwn) {
  for (const int code : {101, 103}) {
    Design d = StartedDesign(1);
    Calculate(d);
    const SectionRecord before = d.rec;
    d.st.ProfileType = code;
    (code == 101 ? d.st.p101_sub : d.st.p103_sub) = 9;
    VerdictAfter(d);
    EXPECT_EQ(double(d.rec.h), double(before.h));
    EXPECT_EQ(double(d.rec.A), double(before.A));
    EXPECT_EQ(SectionTitle(d.st, d.lib->catalogues), "") << code;
  }
}

TEST(Verdict, ForcesThatTheControlDoesNotReadAreNotChecked) {
  Design d = StartedDesign(22);
  d.st.q2 = 10000;  // 12,000 kN/m with its factor: 37,500 kNm on 5 m
  d.st.q2_yz = 0;
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_LT(v.IR, 1);
  EXPECT_EQ(v.standing, Standing::NotChecked);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::ForceUnread), "Mz = 37500.0 kNm"));
  d.st.q2 = 0;
  EXPECT_EQ(VerdictAfterTwo(d).standing, Standing::Passes);
  // A doubly symmetric section reads it.
  d = StartedDesign(21);
  d.st.q2 = 1;
  d.st.q2_yz = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::ForceUnread));
}

TEST(Verdict, AxialEndForceOfAPlateIsNotChecked) {
  Design d = StartedDesign(51);
  EndForces(d, 500, 1, 0, 1, 0);
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_EQ(v.standing, Standing::NotChecked);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::ForceUnread), "N = 500.0 kN"));
}

// --- Rule 6: sections that can't exist ----------------------------------------------------------

TEST(Verdict, OverlappingFlangesDoNotPass) {
  Design d = StartedDesign(21);
  d.st.p21_h = 100;
  d.st.p21_b = 200;
  d.st.p21_tf = 60;
  d.st.q1 = 1;
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_NE(v.standing, Standing::Passes);
  EXPECT_EQ(Text(d, v, NoteCode::SectionImpossible),
            "The section can't exist: the web height between the flanges is -20.");
  d.st.p21_tf = 40;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::SectionImpossible));
}

TEST(Verdict, TubeWithoutAHoleIsNotChecked) {
  Design d = StartedDesign(31);
  d.st.p31_d = 50;
  d.st.p31_tw = 100;
  EXPECT_NE(VerdictAfterTwo(d).standing, Standing::Passes);
  EXPECT_TRUE(Find(VerdictOf(d), NoteCode::SectionImpossible));
}

TEST(Verdict, PlateNarrowerThanItsTrapezoidIsNotChecked) {
  Design d = StartedDesign(55);
  d.st.p55_b1 = 250;  // 200 + 2*50 at the top of the trapezoid
  EXPECT_TRUE(Find(VerdictAfterTwo(d), NoteCode::SectionImpossible));
  d.st.p55_b1 = 300;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::SectionImpossible));
}

TEST(Verdict, DefaultSectionsOfAllFamiliesExist) {
  for (const Family& family : AllFamilies()) {
    Design d = StartedDesign(family.code);
    EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::SectionImpossible)) << family.code;
  }
}

// --- Rule 7: loads that the calculation removed -------------------------------------------------

TEST(Verdict, RemovedAxialForceOfAPlateIsTold) {
  Design d = StartedDesign(51);
  d.st.q1 = 1;
  Verdict v = VerdictAfterTwo(d);  // N = 100 kN with the factor 1.2
  EXPECT_EQ(Text(d, v, NoteCode::LoadsRemoved),
            "The calculation removed loads that this family can't carry, with design forces up "
            "to N = 120.0 kN.");
  EXPECT_EQ(v.standing, Standing::Passes);
  d.st.q1 = 2;  // the next accepted change
  v = VerdictAfter(d);
  EXPECT_FALSE(Find(v, NoteCode::LoadsRemoved));
}

TEST(Verdict, RemovedBeyondCapacityIsNotChecked) {
  Design d = StartedDesign(51);
  d.st.q1 = 1;
  d.st.NP = 100000;
  EXPECT_EQ(VerdictAfterTwo(d).standing, Standing::NotChecked);
  EXPECT_TRUE(Find(VerdictOf(d), NoteCode::RemovedBeyondCapacity));
  d = StartedDesign(26);
  d.st.q1 = 10000;
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_EQ(v.standing, Standing::NotChecked);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::LoadsRemoved), "My = 37500.0 kNm"));
}

TEST(Verdict, NothingRemovedNothingTold) {
  Design d = StartedDesign(26);
  d.st.q1 = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::LoadsRemoved));
  d = StartedDesign(1);
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::LoadsRemoved));
}

// --- Rule 8: lateral torsional buckling off -----------------------------------------------------

TEST(Verdict, LateralBucklingOffByThePersonIsACaution) {
  Design d = StartedDesign(4);  // IPE80
  d.st.NP = 0;
  d.st.q1 = 0.5;
  d.st.LateralTorsionalBuckling = 1;
  Calculate(d);
  const double ratio = d.checks.IRlateral;
  d.st.LateralTorsionalBuckling = 0;
  const Verdict v = VerdictAfter(d);
  ASSERT_TRUE(Find(v, NoteCode::LtbOff));
  EXPECT_NEAR(Find(v, NoteCode::LtbOff)->v[0], ratio, 1e-6 * ratio);
  EXPECT_FALSE(Find(v, NoteCode::LtbOffByProgram));
}

TEST(Verdict, VisitToAHollowSectionLeavesTheMemberUnchecked) {
  Design d = StartedDesign(4);
  d.st.NP = 0;
  d.st.q1 = 1;
  d.st.idxIPE = 2;
  Calculate(d);
  const double ratio = d.checks.IRlateral;
  ASSERT_GT(ratio, 0);
  d.st.ProfileType = 6;
  EXPECT_FALSE(Find(VerdictAfter(d), NoteCode::LtbOffByProgram));  // it has no such check
  d.st.ProfileType = 4;
  d.st.iufa = ratio * 0.9;
  Verdict v = VerdictAfter(d);
  EXPECT_EQ(v.standing, Standing::NotChecked);
  ASSERT_TRUE(Find(v, NoteCode::LtbUnchecked));
  EXPECT_TRUE(Has(Text(d, v, NoteCode::LtbUnchecked),
                  "switched off by the program with a section "
                  "RHS - Square (Hotformed)"));
  EXPECT_NEAR(Find(v, NoteCode::LtbUnchecked)->v[0], ratio, 1e-5 * ratio);
  d.st.iufa = ratio * 1.1;
  v = VerdictAfter(d);
  EXPECT_TRUE(Find(v, NoteCode::LtbOffByProgram));
  EXPECT_EQ(v.standing, Standing::Passes);
  d.st.LateralTorsionalBuckling = 1;
  EXPECT_FALSE(Find(VerdictAfter(d), NoteCode::LtbOffByProgram));
}

TEST(Verdict, PlateThatLostItsCheckOnPinnedEndsIsNotChecked) {
  Design d = StartedDesign(56);
  d.st.L = 20;
  d.st.q1 = 100;
  d.st.p56_b2 = 100;
  Calculate(d);
  ASSERT_EQ(int(d.st.LateralTorsionalBuckling), 0);
  EXPECT_FALSE(Find(VerdictOf(d), NoteCode::LtbOffByProgram));  // nothing hogs
  d.st.SupportType = 2;
  const Verdict v = VerdictAfter(d);
  EXPECT_TRUE(Find(v, NoteCode::LtbUnchecked) || Find(v, NoteCode::LtbOffByProgram));
  d.st.LateralTorsionalBuckling = 1;
  Calculate(d);
  EXPECT_EQ(int(d.st.LateralTorsionalBuckling), 1);
  EXPECT_FALSE(Find(VerdictOf(d), NoteCode::LtbUnchecked));
}

// --- Rule 10: values of other sections ----------------------------------------------------------

TEST(Verdict, KltOfAnotherMemberIsTold) {
  const auto single = [](Design& d) {
    d.st.ProfileType = 22;
    d.st.q1 = 60;
    d.st.NP = 1500;
  };
  Design d = StartedDesign(1);
  d.st.NP = 300;
  Calculate(d);
  const double stale = d.buckling.klt;
  single(d);
  Verdict v = VerdictAfter(d);
  const Note* note = Find(v, NoteCode::StaleField);
  if (note == nullptr) note = Find(v, NoteCode::StaleFieldFails);
  ASSERT_TRUE(note);
  EXPECT_STREQ(note->word, "klt");
  EXPECT_EQ(note->v[0], stale);
  EXPECT_TRUE(Has(NoteText(*note, d.lib->catalogues), "stands from HEA 200"));
}

TEST(Verdict, CurvesOfAnotherFamilyFailWhereTheOwnDo) {
  Design d = StartedDesign(31);  // a tube: curves a, a
  d.st.q1 = 0;
  Calculate(d);
  d.st.ProfileType = 103;
  Verdict v = VerdictAfter(d);
  const Note* note = Find(v, NoteCode::StaleField);
  ASSERT_TRUE(note);
  EXPECT_STREQ(note->word, "curves");
  EXPECT_GT(note->v[3], note->v[2]);
  EXPECT_TRUE(
      Has(NoteText(*note, d.lib->catalogues), "The buckling curves a, a stand from Tube; "));
  d.st.iufa = (note->v[2] + note->v[3]) / 2;
  v = VerdictAfter(d);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(Find(v, NoteCode::StaleFieldFails));
  d.st.ManualBucklingCurves = 1;  // the person's own choice
  EXPECT_FALSE(Find(VerdictAfter(d), NoteCode::StaleFieldFails));
}

// --- Rule 11: deflections, hidden lines ---------------------------------------------------------

TEST(Verdict, DeflectionBelowTheLimitFailsServiceability) {
  Design d = StartedDesign(1);
  d.st.DeflectionLimit = 300;
  Verdict v = VerdictAfter(d);
  EXPECT_EQ(v.sls, Serviceability::Passes);
  d.st.q1 = 30;
  d.st.iufa = 2;
  v = VerdictAfter(d);
  EXPECT_EQ(v.sls, Serviceability::Fails);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::Deflection), "(below), y none, limit L/300"));
  d.st.AnalysisMode = 0;
  EXPECT_EQ(VerdictAfter(d).sls, Serviceability::None);
}

TEST(Verdict, HiddenBucklingLinesAreTold) {
  Design d = StartedDesign(1);
  d.st.BucklingCaseY = 5;
  d.st.BucklingCaseZ = 5;
  d.st.bly = 0;
  d.st.blz = 0;
  d.st.LateralTorsionalBuckling = 0;
  d.st.NP = 800;
  d.st.q1_yz = 0;
  d.st.q1 = 3;
  const Verdict v = VerdictAfter(d);
  EXPECT_EQ(v.hidden, Find(v, NoteCode::GoverningHidden) != nullptr);
  EXPECT_TRUE(v.hidden) << GoverningLabel(v);
}

/// The single symmetric I: the line with the lateral factor takes the place of the one about y,
/// whose ratio then governs in no line.
TEST(Verdict, RatioAboutYThatItsLineLostGoverns) {
  Design d = StartedDesign(22);
  d.st.L = 20;
  d.st.BucklingCaseZ = 4;
  d.st.blz = 0.2;
  d.st.LateralTorsionalBuckling = 1;
  d.st.LtbSegments = 8;
  double over = 0;
  for (int N = 100; N < 4000 && over == 0; N += 50) {
    EndForces(d, N, 60, 0, 0, 0);
    Verdict v = VerdictAfter(d);
    if (v.governing == Governing::CombinedY && v.IR > d.st.iufa) over = v.IR;
  }
  ASSERT_GT(over, 1);
  EXPECT_LT(double(d.checks.IRcombinedZ), 1);
  EXPECT_EQ(d.checks.lineBucklingZ.colour, kGreen);
  const Verdict v = VerdictOf(d);
  EXPECT_EQ(v.standing, Standing::Fails);
  EXPECT_TRUE(v.hidden);
  EXPECT_TRUE(Find(v, NoteCode::GoverningHidden));
}

TEST(Verdict, LengthOfNothingIsNotChecked) {
  Design d = StartedDesign(1);
  d.st.L = -3;
  EXPECT_TRUE(Find(VerdictAfter(d), NoteCode::LengthNotPositive));
  EXPECT_NE(VerdictOf(d).standing, Standing::Passes);
  d.st.L = 3;
  EXPECT_FALSE(Find(VerdictAfter(d), NoteCode::LengthNotPositive));
}

/// Only a file can hold a limit that the form refuses.
TEST(Verdict, UsageLimitThatNoFormTakesIsACaution) {
  Design d = StartedDesign(1);
  d.st.iufa = 5;
  const Verdict v = VerdictAfter(d);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::UsageLimit), "5.00 lies outside 0.3 to 2.0"));
  d.st.iufa = 2;
  EXPECT_FALSE(Find(VerdictAfter(d), NoteCode::UsageLimit));
}

// --- Codes --------------------------------------------------------------------------------------

TEST(Notes, CodesAreWordsOfTheirOwn) {
  std::set<std::string> words;
  for (const NoteKind& kind : AllNotes()) {
    const std::string word = kind.word;
    EXPECT_TRUE(words.insert(word).second) << word;
    EXPECT_EQ(word.find_first_not_of("abcdefghijklmnopqrstuvwxyz-"), std::string::npos) << word;
    EXPECT_NE(std::string(kind.meaning).size(), 0U);
    EXPECT_NE(std::string(kind.remedy).size(), 0U);
  }
}

TEST(Notes, ListKeepsTheMostSevere) {
  NoteList list;
  for (std::size_t i = 0; i < NoteList::kCapacity; ++i) list.Add({NoteCode::Deflection});
  list.Add({NoteCode::RatioExceeded});
  list.Sort();
  EXPECT_EQ(list.size(), NoteList::kCapacity);
  EXPECT_EQ(list[0].code, NoteCode::RatioExceeded);
}

}  // namespace
}  // namespace korvane
