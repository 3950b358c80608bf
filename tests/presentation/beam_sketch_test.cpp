// SPDX-License-Identifier: GPL-3.0-or-later
// The beam sketch, and the table of all diagrams.
#include <gtest/gtest.h>

#include <set>

#include "samples.h"

namespace korvane {
namespace {

constexpr DiagramStyle kStyle{};

RecordingTarget Drawn(const ProjectState& st) {
  RecordingTarget t;
  DrawBeamSketch(t, {}, st, kStyle);
  return t;
}

double X(double relative) {
  return kMemberLeft + kMemberWidth * relative;
}

// Upright lines of a pen between the member's top and bottom, with their x.
std::vector<double> Uprights(const RecordingTarget& t, double width) {
  std::vector<double> xs;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Line, 2)) {
    const std::vector<Point>& p = s->Points();
    if (p[0].x == p[1].x && std::fabs(s->stroke.width - width) < 1e-9 &&
        s->stroke.colour == Role::Ink) {
      xs.push_back(p[0].x);
    }
  }
  return xs;
}

// Triangles of pinned supports: outlined with the paper's colour inside; x of the tip.
std::vector<double> PinnedAt(const RecordingTarget& t) {
  std::vector<double> xs;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Polygon, 3)) {
    if (s->fill.colour == Role::Paper) xs.push_back(s->Points()[0].x);
  }
  return xs;
}

// Walls of fixed ends: upright lines of twice the pen, higher than the member.
std::vector<double> FixedAt(const RecordingTarget& t) {
  return Uprights(t, 0.4);
}

std::size_t Spirals(const RecordingTarget& t) {
  return t.WithPoints(ShapeKind::Line, 57).size();
}

TEST(BeamSketch, TellsTheLength) {
  ProjectState st;
  st.L = 6.25;
  EXPECT_EQ(Drawn(st).Texts(), std::vector<std::string>{"L = 6.250 m"});
}

TEST(BeamSketch, SupportsOfTheSixCases) {
  struct Case {
    int type;
    std::vector<double> pinned, fixed;
    std::size_t springs;
  };
  const double a = X(0), b = X(1);
  for (const Case& c : {Case{0, {a, b}, {}, 0}, Case{1, {a}, {b}, 0}, Case{2, {}, {a, b}, 0},
                        Case{3, {a, b}, {}, 2}, Case{4, {}, {a}, 0}, Case{5, {a, b}, {}, 1}}) {
    ProjectState st;
    st.SupportType = c.type;
    const RecordingTarget t = Drawn(st);
    EXPECT_EQ(PinnedAt(t), c.pinned) << c.type;
    EXPECT_EQ(FixedAt(t), c.fixed) << c.type;
    EXPECT_EQ(Spirals(t), c.springs) << c.type;
  }
}

TEST(BeamSketch, AnUnknownSupportTypeDrawsNoSupport) {
  ProjectState st;
  st.SupportType = 9;
  const RecordingTarget t = Drawn(st);
  EXPECT_TRUE(PinnedAt(t).empty());
  EXPECT_TRUE(FixedAt(t).empty());
}

TEST(BeamSketch, WebStiffenersStandAtTheirDistance) {
  ProjectState st;
  st.L = 5;
  st.WebStiffener = 1;
  st.a_webstiff = 1000;
  const RecordingTarget t = Drawn(st);
  const std::vector<double> at = Uprights(t, 0.16);
  ASSERT_EQ(at.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) EXPECT_NEAR(at[i], X(0.2 * (i + 1.0)), 1e-6);
  EXPECT_EQ(t.Count("web stiffener"), 1);
}

TEST(BeamSketch, NoWebStiffenersWhenTheyAreOff) {
  ProjectState st;
  st.a_webstiff = 1000;
  EXPECT_TRUE(Uprights(Drawn(st), 0.16).empty());
}

TEST(BeamSketch, CloseWebStiffenersAreThinnedOut) {
  ProjectState st;
  st.L = 20;
  st.WebStiffener = 1;
  st.a_webstiff = 100;
  const std::vector<double> at = Uprights(Drawn(st), 0.16);
  ASSERT_GT(at.size(), 50U);
  for (std::size_t i = 1; i < at.size(); ++i) EXPECT_GE(at[i] - at[i - 1], 0.6 - 1e-9);
}

TEST(BeamSketch, AStiffSupportIsALongerLineAtBothEnds) {
  ProjectState st;
  st.EndStiffener = 1;
  const RecordingTarget t = Drawn(st);
  const std::vector<double> at = Uprights(t, 0.5);
  ASSERT_EQ(at.size(), 3U);  // both ends and the legend
  EXPECT_DOUBLE_EQ(at[0], X(0));
  EXPECT_DOUBLE_EQ(at[1], X(1));
  EXPECT_EQ(t.Count("stiff support"), 1);
}

TEST(BeamSketch, LateralSupportsDivideTheMemberEvenly) {
  ProjectState st;
  st.LtbSegments = 3;
  const RecordingTarget t = Drawn(st);
  std::set<double> middles;
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Line, 2)) {
    if (s->stroke.colour == Role::Accent) {
      middles.insert(std::round(s->box.Centre().x * 1e6) / 1e6);
    }
  }
  EXPECT_EQ(middles.count(std::round(X(0.25) * 1e6) / 1e6), 1U);
  EXPECT_EQ(middles.count(std::round(X(0.5) * 1e6) / 1e6), 1U);
  EXPECT_EQ(middles.count(std::round(X(0.75) * 1e6) / 1e6), 1U);
  EXPECT_EQ(middles.size(), 4U);  // and the legend
}

TEST(BeamSketch, ChosenPointsAreMarkedWhereTheyAre) {
  ProjectState st;
  st.L = 4;
  st.cp_mode = 1;
  st.cp_count = 2;
  st.cp_x[1] = 1;
  st.cp_x[2] = 9;  // beyond the member: drawn at its end
  st.cp_x[3] = 2;  // not in use
  std::vector<double> at;
  const RecordingTarget t = Drawn(st);
  for (const RecordedShape* s : t.WithPoints(ShapeKind::Polygon, 3)) {
    if (s->fill.colour == Role::Second) at.push_back(s->Points()[0].x);
  }
  ASSERT_EQ(at.size(), 3U);  // the last one is the legend's
  EXPECT_DOUBLE_EQ(at[0], X(0.25));
  EXPECT_DOUBLE_EQ(at[1], X(1));
}

TEST(BeamSketch, StaysInsideItsHeightWithEverythingOn) {
  for (int type = 0; type <= 5; ++type) {
    ProjectState st;
    st.SupportType = type;
    st.WebStiffener = st.EndStiffener = 1;
    st.LtbSegments = 6;
    st.cp_mode = 1;
    st.cp_count = 3;
    const RecordingTarget t = Drawn(st);
    const Box page{0, 0, kPictureWidth, BeamSketchHeight(st, kStyle)};
    EXPECT_TRUE(Within(page, t.Bounds().value(), 1e-9)) << type;
    for (const auto& [a, b] : t.OverlappingTexts(0.02)) ADD_FAILURE() << a << " over " << b;
    EXPECT_TRUE(t.OverlappingTexts(0.02).empty()) << type;
  }
}

TEST(Diagrams, TheTableIsInTheOrderOfTheKinds) {
  std::set<std::string> names;
  int index = 0;
  for (const DiagramInfo& info : sample::AllDiagrams()) {
    EXPECT_EQ(static_cast<int>(info.kind), index++);
    EXPECT_TRUE(names.insert(info.name).second) << info.name;
  }
  EXPECT_EQ(index, 14);
  EXPECT_STREQ(InfoOf(DiagramKind::MomentShearZ).control, "picmy");
}

TEST(Diagrams, LoadModeShowsAxialPicturesOnlyWithALoad) {
  using K = DiagramKind;
  ProjectState st;
  st.NP = 0;
  const std::vector<K> bare = DiagramsOfMode(st);
  EXPECT_EQ(std::count(bare.begin(), bare.end(), K::AxialPermanent), 0);
  EXPECT_EQ(std::count(bare.begin(), bare.end(), K::AxialVariable), 0);
  st.NP = -1;
  st.NV2 = 3;
  const std::vector<K> loaded = DiagramsOfMode(st);
  EXPECT_EQ(loaded,
            (std::vector<K>{K::BeamSketch, K::AxialPermanent, K::AxialVariable, K::LoadPermZ,
                            K::LoadVarZ, K::LoadPermY, K::LoadVarY, K::MomentShearZ,
                            K::MomentShearY, K::DeflectionZ, K::DeflectionY}));
}

TEST(Diagrams, EndForceModeShowsForcesAlone) {
  using K = DiagramKind;
  ProjectState st;
  st.AnalysisMode = 0;
  EXPECT_EQ(DiagramsOfMode(st),
            (std::vector<K>{K::BeamSketch, K::AxialForce, K::EndMomentZ, K::EndMomentY}));
}

TEST(Diagrams, EveryKindDrawsInsideTheHeightThatItTells) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    sample::Member m = seed % 2 ? sample::SimpleBeam() : sample::FixedBeam();
    m.st = sample::FullLoads(seed);
    m.N = seed % 3 ? 120 : -120;
    for (const DiagramInfo& info : sample::AllDiagrams()) {
      RecordingTarget t;
      DrawDiagram(t, info.kind, {}, m.Data(), kStyle);
      const Box page{0, 0, kPictureWidth, DiagramHeight(info.kind, m.Data(), kStyle)};
      EXPECT_TRUE(Within(page, t.Bounds().value(), 0.3)) << info.name << " seed " << seed;
      EXPECT_TRUE(t.OverlappingTexts(0.02).empty()) << info.name << " seed " << seed;
    }
  }
}

TEST(Diagrams, LargerLettersOverlapAsLittle) {
  const DiagramStyle large{3.4};
  for (unsigned seed = 1; seed <= 40; ++seed) {
    sample::Member m = sample::FixedBeam();
    m.st = sample::FullLoads(seed);
    for (const DiagramInfo& info : sample::AllDiagrams()) {
      RecordingTarget t;
      DrawDiagram(t, info.kind, {}, m.Data(), large);
      EXPECT_TRUE(t.OverlappingTexts(0.02).empty()) << info.name << " seed " << seed;
    }
  }
}

TEST(Diagrams, APlaceIsFilledWithoutDistortion) {
  const sample::Member m = sample::FixedBeam();
  RecordingTarget t;
  const Box place = Box::At(50, 60, 200, 400);
  DrawDiagramIn(t, DiagramKind::MomentShearZ, place, Destination::Page, m.Data(), kStyle);
  EXPECT_TRUE(Within(place, t.Bounds().value(), 0.1));
  const std::vector<Point>& curve = t.WithPoints(ShapeKind::Line, 51).at(0)->Points();
  const double unit = 200 / kPictureWidth;
  EXPECT_NEAR(curve[1].x - curve[0].x, 1.4 * unit, 1e-9);
  EXPECT_NEAR(curve[25].y - curve[0].y, 18 * unit, 1e-4);
}

TEST(Diagrams, LabelsHoldInADistortedFrame) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    sample::Member m = sample::FixedBeam();
    m.st = sample::FullLoads(seed);
    for (const DiagramInfo& info : sample::AllDiagrams()) {
      RecordingTarget t;
      const double height = DiagramHeight(info.kind, m.Data(), kStyle);
      const ScopedFrame frame(t, Box::At(0, 0, 2 * kPictureWidth, height),
                              Box::At(0, 0, kPictureWidth, height));
      DrawDiagram(t, info.kind, {}, m.Data(), kStyle);
      EXPECT_TRUE(t.OverlappingTexts(0.02).empty()) << info.name << " seed " << seed;
    }
  }
}

TEST(Diagrams, ThePointerTellsTheNearestStation) {
  const sample::Member m = sample::SimpleBeam();
  EXPECT_EQ(ValueUnderPointer(DiagramKind::MomentShearZ, 0.502, m.Data()),
            " x = 3.000 m  My = 45.0 kNm  Vz = 0.0 kN");
  EXPECT_EQ(ValueUnderPointer(DiagramKind::MomentShearY, 0.25, m.Data()),
            " x = 1.560 m  Mz = 0.0 kNm  Vy = 0.0 kN");
  EXPECT_EQ(ValueUnderPointer(DiagramKind::DeflectionZ, 0.5, m.Data()), " x = 3.000 m  y = 8.0 mm");
  EXPECT_EQ(ValueUnderPointer(DiagramKind::MomentShearZ, 7, m.Data()),
            " x = 6.000 m  My = 0.0 kNm  Vz = -30.0 kN");
  EXPECT_EQ(ValueUnderPointer(DiagramKind::BeamSketch, 0.5, m.Data()), "");
}

}  // namespace
}  // namespace korvane
