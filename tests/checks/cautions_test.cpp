// SPDX-License-Identifier: GPL-3.0-or-later
// The cautions of the verdict: each by a member that has it and one where it must stay silent.
#include "checks/cautions.h"

#include <gtest/gtest.h>

#include <cmath>

#include "checks/results.h"
#include "sections/names.h"
#include "verdict_support.h"

namespace korvane {
namespace {

// --- Rules that lean to the unsafe side ---------------------------------------------------------

/// I 800 with flanges 400x25 and 150x10 and a web of 10 mm: hogging, its web is of class 4 by the
/// compressed share.
Design NarrowBelow() {
  Design d = StartedDesign(22);
  d.st.p22_h = 800;
  d.st.p22_b = 400;
  d.st.p22_b2 = 150;
  d.st.p22_tw = 10;
  d.st.p22_tf1 = 25;
  d.st.p22_tf2 = 10;
  d.st.NP = 0;
  return d;
}

TEST(Cautions, ClassOfAHoggingWebGoesByTheShareInTension) {
  Design d = NarrowBelow();
  d.st.LateralTorsionalBuckling = 0;
  EndForces(d, 0, -400, 0, 0, 0);
  Verdict v = VerdictAfterTwo(d);
  const Note* note = Find(v, NoteCode::ClassByTensionSide);
  ASSERT_TRUE(note);
  EXPECT_EQ(note->v[1], 4);  // 76.5 above 62.9
  EXPECT_LT(note->v[0], 4);
  EXPECT_GT(note->v[3], MaxIR(d.checks));
  EndForces(d, 0, 400, 0, 0, 0);  // sagging
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::ClassByTensionSide));
}

/// Flat 400 x 6 under a plate 200 x 10: hogging, 400/6 is of class 4. The strip of width w off its
/// tip counts with tw*w*w/2 in place of tw*w*w*w/4 about its own edge.
TEST(Cautions, StripTakenOffASlenderFlat) {
  Design d = StartedDesign(51);
  d.st.LateralTorsionalBuckling = 0;
  d.st.p51_b = 200;
  d.st.p51_h = 400;
  d.st.p51_tw = 6;
  EndForces(d, 0, -20, 0, 0, 0);
  const Verdict v = VerdictAfterTwo(d);
  const Note* note = Find(v, NoteCode::StripOfFlat);
  ASSERT_TRUE(note);
  EXPECT_LT(note->v[1], note->v[0]);
  EXPECT_NEAR(note->v[2], 20 / note->v[1], 1e-9);
  EXPECT_GT(note->v[2], MaxIR(d.checks));
  EXPECT_TRUE(Has(Text(d, v, NoteCode::StripOfFlat), "with the whole strip"));
  d.st.p51_tw = 30;  // class 1 to 3: nothing is taken off
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::StripOfFlat));
  d.st.p51_tw = 6;
  EndForces(d, 0, 20, 0, 0, 0);  // sagging: the tip is in tension
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::StripOfFlat));
}

TEST(Cautions, OutstandsOfABoxBeyondFourteenEpsilon) {
  Design d = StartedDesign(23);
  d.st.p23_tf = 8;
  const double limit = 14 * std::sqrt(235.0 / 355.0);
  d.st.p23_a = 8 * limit * 1.01;
  EXPECT_TRUE(Find(VerdictAfterTwo(d), NoteCode::BoxOutstands));
  d.st.p23_a = 8 * limit * 0.99;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::BoxOutstands));
  d.st.p23_a = 8 * limit * 1.01;
  d.st.NP = -100;  // nothing is compressed
  d.st.q1 = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::BoxOutstands));
}

TEST(Cautions, PlateBetweenTheWallsOfATrapezoid) {
  Design d = StartedDesign(55);
  d.st.p55_b1 = 350;  // outstands of 25 mm are of no account
  d.st.p55_tf1 = 5;   // about 284/5 = 57 between the walls, above 42 eps = 34
  d.st.q1 = 5;
  EXPECT_TRUE(Find(VerdictAfterTwo(d), NoteCode::TrapezoidFlats));
  d.st.p55_tf1 = 12;  // 24, within 33 eps = 27
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::TrapezoidFlats));
}

TEST(Cautions, TrippingTakesThePlateOnlyWhereItHogs) {
  Design d = StartedDesign(56);
  d.st.L = 8;
  d.st.NP = 0;
  d.st.q1 = 50;
  d.st.SupportType = 2;
  d.st.p56_b1 = 600;
  d.st.p56_b2 = 120;
  Verdict v = VerdictAfterTwo(d);
  const Note* note = Find(v, NoteCode::TrippingWithPlate);
  ASSERT_TRUE(note);
  EXPECT_LT(note->v[1], note->v[0]);
  d.st.SupportType = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::TrippingWithPlate));
}

TEST(Cautions, TypedFactorsThatNobodyReads) {
  Design d = StartedDesign(1);
  d.st.CFactorManual = 1;
  d.st.C1i = 1.1;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::CFactorsUnused));
  d.st.LtbSegments = 2;
  Verdict v = VerdictAfterTwo(d);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::CFactorsUnused), "restraint points"));
  d.st.CFactorManual = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::CFactorsUnused));
  d.st.CFactorManual = 1;
  EndForces(d, 0, 10, 0, 0, 0);
  v = VerdictAfterTwo(d);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::CFactorsUnused), "end forces"));
}

// --- Options ------------------------------------------------------------------------------------

TEST(Cautions, ExponentsOnAChannel) {
  Design d = StartedDesign(5);
  d.st.SectionControlMode = 1;
  EXPECT_TRUE(Has(Text(d, VerdictAfterTwo(d), NoteCode::ExponentMode), "a channel"));
  d.st.SectionControlMode = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::ExponentMode));
  d = StartedDesign(1);
  d.st.SectionControlMode = 1;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::ExponentMode));
  d = StartedDesign(5);
  d.st.SectionControlMode = 1;
  d.st.NP = 0;  // one force alone has no interaction
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::ExponentMode));
}

/// The web of an IPE 600 is 514/12 = 42.8, above 42 eps = 34 in pure compression.
TEST(Cautions, WebBucklingLeftOutDecidesTheEffectiveArea) {
  Design d = StartedDesign(4);
  d.st.idxIPE = ListLength(SizesOf(d.st).catalogue) - 1;
  d.st.q1 = 0;
  d.st.NP = 500;
  d.st.IgnoreWebBuckling = 1;
  EXPECT_TRUE(
      Has(Text(d, VerdictAfterTwo(d), NoteCode::BucklingIgnored), "Buckling of web is not"));
  d.st.IgnoreWebBuckling = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::BucklingIgnored));
  d.st.IgnoreWebBuckling = 1;
  d.st.idxIPE = 0;  // IPE 80 is stocky: nothing is left out
  d.st.NP = 5;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::BucklingIgnored));
}

/// A welded web of 800/5 = 160 is of class 4 with and without the option, which keeps the modulus
/// whole.
TEST(Cautions, WebBucklingLeftOutDecidesTheModulus) {
  Design d = StartedDesign(21);
  d.st.p21_h = 840;
  d.st.p21_tw = 5;
  d.st.NP = 0;
  d.st.IgnoreWebBuckling = 1;
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_TRUE(Has(Text(d, v, NoteCode::BucklingIgnored), "not taken into account: Weffy = "));
  const Note* note = Find(v, NoteCode::BucklingIgnored);
  ASSERT_TRUE(note);
  EXPECT_LT(note->v[3], d.rec.Weffy);
  d.st.p21_tw = 20;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::BucklingIgnored));
}

// ky = 1 - mu*N/(Xy*Ncrd*gammam1) with mu of at most 0.9, which a column under end moments of
// opposite bending has: HEA 200, 12 m, Nyd about 420 kN.
TEST(Cautions, AMomentFactorBelowZero) {
  Design d = StartedDesign(1);
  d.st.L = 12;
  EndForces(d, 1000, 10, 0, 0, 0);
  d.st.My_end[2] = -10;
  const Verdict v = VerdictAfterTwo(d);
  const Note* note = Find(v, NoteCode::NegativeMomentFactor);
  ASSERT_TRUE(note);
  EXPECT_STREQ(note->word, "ky");
  EXPECT_EQ(note->v[0], d.buckling.ky);
  EndForces(d, 100, 10, 0, 0, 0);
  d.st.My_end[2] = -10;
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::NegativeMomentFactor));
}

// --- Values of other sections -------------------------------------------------------------------

TEST(Cautions, FlangesOfAnotherSectionInAFlatBar) {
  Design d = StartedDesign(1);
  Calculate(d);  // HEA 200: 200 x 10
  d.st.ProfileType = 28;
  d.st.SectionControlMode = 1;
  d.st.LateralTorsionalBuckling = 0;
  d.st.L = 1;
  d.st.NP = -100;
  d.st.q1 = 5;
  const Verdict v = VerdictAfterTwo(d);
  const Note* note = Find(v, NoteCode::StaleField);
  if (note == nullptr) note = Find(v, NoteCode::StaleFieldFails);
  ASSERT_TRUE(note);
  EXPECT_STREQ(note->word, "flanges");
  EXPECT_EQ(note->v[0], 200);
  EXPECT_EQ(note->v[1], 10);
  EXPECT_TRUE(Has(NoteText(*note, d.lib->catalogues), "stands from HEA 200"));
  d.st.SectionControlMode = 0;  // the flanges are read by the exponents alone
  EXPECT_FALSE(Find(VerdictAfterTwo(d), NoteCode::StaleField));
}

TEST(Cautions, FlangeThicknessThatChoosesTheSteelOfAT) {
  Design d = StartedDesign(22);
  d.st.p22_tf2 = 60;
  Calculate(d);
  d.st.ProfileType = 26;  // tmax = 60 stands: fyk = 335 for S355 instead of 355
  d.st.q1 = 0;
  d.st.NP = 200;
  d.st.LateralTorsionalBuckling = 0;
  const Verdict v = VerdictAfterTwo(d);
  ASSERT_EQ(double(d.rec.tmax), 60);
  const Note* note = Find(v, NoteCode::StaleField);
  ASSERT_TRUE(note);
  EXPECT_STREQ(note->word, "tf2");
  EXPECT_EQ(note->v[0], 60);
  Design fresh = StartedDesign(26);
  fresh.st.q1 = 0;
  EXPECT_FALSE(Find(VerdictAfterTwo(fresh), NoteCode::StaleField));
}

// --- Members of which the lines said too little -------------------------------------------------

TEST(Cautions, AVeryShortDeflectionPrintsNone) {
  Design d = StartedDesign(1);
  d.st.q1 = 0;
  d.st.NP = 10;
  const Verdict v = VerdictAfterTwo(d);
  EXPECT_EQ(v.sls, Serviceability::None);
  EXPECT_FALSE(Find(v, NoteCode::Deflection));
}

}  // namespace
}  // namespace korvane
