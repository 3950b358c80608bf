// SPDX-License-Identifier: GPL-3.0-or-later
// Both reports of every family, with all loads in use and with end forces: everything is on the
// page, nothing lies over anything else, and every figure that the page should have is there.
#include <gtest/gtest.h>

#include <algorithm>

#include "checks/results.h"
#include "core/calculation.h"
#include "core/text.h"
#include "presentation/aprint.h"
#include "presentation/page.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"
#include "tests/support/recording_target.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

void LoadFully(ProjectState& st) {
  st.iproj = "Hall 12, axis B";
  st.iident = "Column B7 \"west\"";
  st.NV1 = 20.0;
  st.NV2 = 5.0;
  st.q2 = 3.0;
  st.q2_pv = 1;
  st.q3 = 1.5;
  st.q3_yz = 0;
  st.q4 = 2.0;
  st.q4_pv = 2;
  st.qt1_1 = 2.0;
  st.qt1_2 = 4.0;
  st.qt1_x2 = 3.0;
  st.qt2_1 = 1.0;
  st.qt2_2 = 1.0;
  st.qt2_x1 = 1.0;
  st.qt2_x2 = 4.0;
  st.qt2_pv = 1;
  st.qt3_1 = 1.0;
  st.qt3_2 = 2.0;
  st.qt3_x2 = 5.0;
  st.qt3_yz = 0;
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = 2.0 + i;
    st.pmx[i] = 0.5 * i + 0.1;
    st.pm_pm[i] = i % 3 == 0 ? 1 : 0;
    st.pm_pv[i] = i % 3;
    st.pm_yz[i] = i % 4 == 0 ? 0 : 1;
  }
  st.SelfWeight = 1;
  st.ModalAnalysis = 1;
  st.check_slend = 1;
}

struct Page {
  int family;
  bool endForces;
  Report report;
};

Design Designed(const Page& page) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = page.family;
  if (page.endForces) {
    d.st.AnalysisMode = 0;
    d.st.Ne = 50.0;
    d.st.My_end[1] = 12.0;
    d.st.My_end[2] = -7.0;
    d.st.Mz_end[1] = 2.0;
    d.st.Vz_end[1] = 9.0;
  } else {
    LoadFully(d.st);
  }
  Calculate(d);
  Calculate(d);
  return d;
}

class Reports : public ::testing::TestWithParam<Page> {
protected:
  Reports() : design(Designed(GetParam())) {
    DrawReport(page, GetParam().report, design, {2026, 11, 21, 9, 5});
  }
  Design design;
  RecordingTarget page;
};

TEST_P(Reports, StayOnThePageWithNothingOverlapping) {
  const auto bounds = page.Bounds();
  ASSERT_TRUE(bounds.has_value());
  EXPECT_GE(bounds->left, 0.0);
  EXPECT_GE(bounds->top, 0.0);
  EXPECT_LE(bounds->right, kPageWidth);
  EXPECT_LE(bounds->bottom, kPageHeight);
  for (const auto& [first, second] : page.OverlappingTexts(1.5)) {
    ADD_FAILURE() << "'" << first << "' over '" << second << "'";
  }
}

TEST_P(Reports, HoldEveryFigureOfTheSection) {
  for (const ShownValues& block :
       {Dimensions(design.st, design.rec), Properties(design.st, design.rec),
        Capacities(design.st, design.rec)}) {
    for (const ShownValue& v : block) {
      EXPECT_GT(page.Count(v.text), 0) << v.name;
      EXPECT_GT(page.Count(v.unit), 0) << v.name;
    }
  }
  EXPECT_EQ(page.Count("KORVANE NS3472"), 1);
  EXPECT_EQ(page.Count("Column/Beam program based on NS3472, 3 rd ed"), 1);
  EXPECT_EQ(page.Count("1/1"), 1);
  EXPECT_EQ(page.Count("21.11.2026"), 1);
  EXPECT_EQ(page.Count("9:05"), 1);
  EXPECT_EQ(page.Count("New File"), 1);
  EXPECT_EQ(page.Count(design.st.iproj), 1);
}

TEST_P(Reports, HoldEveryCheckLine) {
  if (GetParam().report != Report::SectionAndStability) {
    EXPECT_EQ(page.Count("SECTION CONTROL:"), 0);
    return;
  }
  const bool buckling = ShowsBuckling(design.st, design.forces.N);
  EXPECT_EQ(page.Count("SECTION CONTROL:"), 1);
  EXPECT_EQ(page.Count("BUCKLING CONTROL:"), buckling ? 1 : 0);
  const CheckResults& c = design.checks;
  std::vector<const CheckLine*> lines{&c.lineSection, &c.lineVz, &c.lineVy, &c.lineLateral};
  if (buckling) lines.insert(lines.end(), {&c.lineBucklingY, &c.lineBucklingZ});
  for (const CheckLine* line : lines) {
    if (line->formula.empty()) continue;
    const bool whole = page.Count(line->formula + line->numbers) > 0;
    const bool broken = page.Count(line->formula) > 0 && page.Count("    = " + line->numbers) > 0;
    EXPECT_TRUE(whole || broken) << line->formula << line->numbers;
    EXPECT_GT(page.Count(line->value), 0) << line->formula;
    EXPECT_GT(page.Count(line->limit), 0) << line->formula;
  }
}

TEST_P(Reports, SayTheVerdictAtTheFoot) {
  const bool control = GetParam().report == Report::SectionAndStability;
  ASSERT_EQ(page.Count("Verdict: "), control ? 1 : 0);
  if (!control) return;
  const Verdict v = VerdictOf(design);
  const RecordedShape* standing = page.FindText(StandingWord(v.standing));
  ASSERT_NE(standing, nullptr);
  EXPECT_EQ(standing->style.colour, v.Passes() ? Role::Pass : Role::Fail);
  const std::string ratio = "greatest IR = " + Format(v.IR, "0.00") + " (limit 1.00)";
  const std::vector<std::string> texts = page.Texts();
  const auto line = std::find_if(texts.begin(), texts.end(), [&](const std::string& text) {
    return text.find(ratio) != std::string::npos;
  });
  ASSERT_NE(line, texts.end());
  EXPECT_NE(line->find(GoverningLabel(v)), std::string::npos) << *line;
  // Under it the notes of caution or worse, long ones on more lines, and nothing else.
  std::ptrdiff_t notes = 0;
  for (auto text = line + 1; text != texts.end(); ++text) {
    const bool begins = text->starts_with("caution: ") || text->starts_with("fails: ") ||
                        text->starts_with("not checked: ");
    EXPECT_TRUE(begins || text->starts_with("    ")) << *text;
    if (begins) ++notes;
  }
  EXPECT_EQ(notes, std::count_if(v.notes.begin(), v.notes.end(), [](const Note& note) {
              return note.Weight() >= Severity::Caution;
            }));
}

std::vector<Page> AllPages() {
  std::vector<Page> pages;
  for (const Family& family : AllFamilies()) {
    for (const bool endForces : {false, true}) {
      for (const Report report : {Report::SectionProperty, Report::SectionAndStability}) {
        pages.push_back({family.code, endForces, report});
      }
    }
  }
  return pages;
}

std::string PageName(const ::testing::TestParamInfo<Page>& info) {
  return "f" + std::to_string(info.param.family) + (info.param.endForces ? "_ends" : "_loads") +
         (info.param.report == Report::SectionProperty ? "_section" : "_control");
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, Reports, ::testing::ValuesIn(AllPages()), PageName);

/// Where a text begins on a page, -1 where there is none.
double LeftOf(const RecordingTarget& page, const std::string& text) {
  const RecordedShape* shape = page.FindText(text);
  return shape == nullptr ? -1 : shape->box.left;
}

RecordingTarget Drawn(const Design& d, Report report) {
  RecordingTarget page;
  DrawReport(page, report, d, {});
  return page;
}

TEST(Report, ANoticeStandsAboveTheFrame) {
  const Design d = Designed({1, false, Report::SectionProperty});
  for (const Report report :
       {Report::SectionProperty, Report::SectionAndStability, Report::Checker}) {
    RecordingTarget page;
    DrawReport(page, report, d, {}, "not calculated: L 0.010 m is refused");
    const RecordedShape* notice = page.FindText("not calculated: L 0.010 m is refused");
    ASSERT_NE(notice, nullptr);
    EXPECT_EQ(notice->style.colour, Role::Fail);
    const RecordedShape* name = page.FindText("KORVANE NS3472");
    ASSERT_NE(name, nullptr);
    EXPECT_LT(notice->box.bottom, name->box.top);
    EXPECT_EQ(name->style.colour, Role::Ink);
  }
}

TEST(Report, ChannelsHaveABlankBeforeTheirSize) {
  for (const auto& [family, line] : {std::pair{5, "  UPE "}, std::pair{16, "  UNP "}}) {
    const Design d = Designed({family, false, Report::SectionProperty});
    const CatalogueTable& table = d.lib->catalogues[family == 5 ? Cat::UPE : Cat::UNP];
    const int row = family == 5 ? d.st.idxUPE : d.st.idxUNP;
    const std::string whole = line + std::to_string(static_cast<int>(table(row, 1)));
    for (const Report report : {Report::SectionProperty, Report::SectionAndStability}) {
      EXPECT_EQ(Drawn(d, report).Count(whole), 1) << whole;
    }
  }
}

TEST(Report, TheWeightOfBoxesAndHatsStandsWithTheirProperties) {
  for (const int family : {24, 25, 27, 21}) {
    const Design d = Designed({family, false, Report::SectionProperty});
    const RecordingTarget page = Drawn(d, Report::SectionProperty);
    const bool apart = family != 21;
    const double column =
        LeftOf(page, apart ? "Weight and Section property:" : "Dimensions and weight:");
    ASSERT_GE(column, 0) << family;
    EXPECT_NEAR(LeftOf(page, "g"), column, 1e-6) << family;
    EXPECT_NEAR(LeftOf(page, "S"), column, 1e-6) << family;
  }
}

TEST(Report, TheDistanceOfTheWebsIsListed) {
  Design d(SourceLibrary());
  StartDesign(d);
  using S = ProjectState;
  constexpr std::pair<int, float32 S::*> distances[] = {
      {23, &S::p23_a}, {24, &S::p24_a}, {25, &S::p25_a}, {27, &S::p27_a}};
  for (const auto& [family, a] : distances) {
    d.st.ProfileType = family;
    d.st.*a = 37.5;
    Calculate(d);
    EXPECT_EQ(Drawn(d, Report::SectionProperty).Count("37.5"), 1) << family;
  }
  d.st.ProfileType = 55;
  d.st.p55_a = 37.5;
  Calculate(d);
  EXPECT_EQ(Drawn(d, Report::SectionProperty).Count("37.5"), 1);
}

// What is printed smaller than this can't be read on paper.
TEST(Report, LettersOfTheFigureAndTheSketchAreReadable) {
  constexpr double least = 6;  // pt
  for (const int family : {1, 6, 10, 25, 31, 53}) {
    const Design d = Designed({family, false, Report::SectionAndStability});
    const RecordingTarget page = Drawn(d, Report::SectionAndStability);
    for (const char* text : {"Z", "Y", "Figure not to scale", "L = 5.000 m"}) {
      const RecordedShape* shape = page.FindText(text);
      ASSERT_NE(shape, nullptr) << family << text;
      EXPECT_GE(shape->style.size, least) << family << text;
    }
  }
}

TEST(Report, TheDiagramsBeginBelowTheParametersThatAreThere) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 1;
  d.st.AnalysisMode = 0;
  d.st.Ne = 50.0;
  const auto top = [&d](int lateral) {
    d.st.LateralTorsionalBuckling = lateral;
    Calculate(d);
    const RecordingTarget page = Drawn(d, Report::SectionAndStability);
    const RecordedShape* heading = page.FindText("Endforces: (kN/kNm/m)");
    if (heading == nullptr) return -1.0;
    const RecordedShape* last = page.FindText("Lateral buckling parameters:");
    EXPECT_TRUE(last != nullptr && heading->box.top > last->box.bottom);
    return heading->box.top;
  };
  const double without = top(0);
  EXPECT_GT(without, 0);
  // Four lines of the grid's 88.
  EXPECT_NEAR(top(1) - without, 4 * kPageHeight / 88, 1e-6);
}

// A wide plate over a small angle: the letters stand close to the arrows of their neighbours.
TEST(Report, LettersOfTheFigureStayOffTheArrows) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 52;
  d.st.p52_b1 = 771.0;
  d.st.p52_t1 = 14.0;
  d.st.p52_index = 5;
  Calculate(d);
  const RecordingTarget page = Drawn(d, Report::SectionAndStability);
  // The rows of the table have the same names further to the left.
  const Box* letter = nullptr;
  for (const RecordedShape* s : page.OfKind(ShapeKind::Text)) {
    if (s->text == "t" && s->box.left > kPageWidth / 2) letter = &s->box;
  }
  ASSERT_NE(letter, nullptr);
  const Box inner = letter->Grown(-0.1, -0.1);
  for (const RecordedShape* s : page.WithPoints(ShapeKind::Line, 2)) {
    const bool upright = s->box.Width() < 0.01;
    EXPECT_FALSE(upright && inner.Overlaps(s->box.Grown(0.05, 0)))
        << s->box.left << " " << s->box.top;
  }
}

// The second line below a narrow trapeze has its arrows under the first one's letter.
TEST(Report, LettersBelowATrapezeStandBetweenItsLines) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 55;
  Calculate(d);
  const RecordingTarget page = Drawn(d, Report::SectionAndStability);
  const RecordedShape* letter = nullptr;
  for (const RecordedShape* s : page.OfKind(ShapeKind::Text)) {
    if (s->text == "b2" && s->box.left > kPageWidth / 2) letter = s;
  }
  ASSERT_NE(letter, nullptr);
  for (const RecordedShape* s : page.WithPoints(ShapeKind::Line, 2)) {
    const bool level = s->box.Height() < 0.01 && s->box.Width() < 20;
    const double right = letter->box.right;
    const bool beside = level && s->box.left < right + 2 && s->box.right > letter->box.left;
    EXPECT_FALSE(beside && s->box.top < letter->box.bottom && s->box.top > letter->box.top)
        << s->box.left << " " << s->box.top;
  }
}

TEST(Report, TheOneWallHasTheLetterOfItsRowInTheFigureToo) {
  for (const int type : {31, 51, 52, 53, 54, 55, 56}) {
    SCOPED_TRACE(type);
    const RecordingTarget page =
        Drawn(Designed({type, false, Report::SectionProperty}), Report::SectionProperty);
    EXPECT_EQ(page.Count("t"), 2);
    EXPECT_EQ(page.Count("tw"), 0);
  }
}

TEST(Report, RowsOfTheParametersStandWithoutTheirValues) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 1;
  d.st.AnalysisMode = 0;
  d.st.Ne = -50.0;
  d.st.LateralTorsionalBuckling = 0;
  Calculate(d);
  const RecordingTarget tension = Drawn(d, Report::SectionAndStability);
  EXPECT_EQ(tension.Count("Slenderness lamda ="), 1);
  EXPECT_EQ(tension.Count("N/A"), 2);
  EXPECT_EQ(tension.Count("Lateral buckling parameters:"), 1);
  d.st.Ne = 50.0;
  Calculate(d);
  EXPECT_EQ(Drawn(d, Report::SectionAndStability).Count("N/A"), 0);
}

TEST(Report, WeightIsPrintedUnderGAndSurfaceUnderS) {
  const Design d = Designed({1, false, Report::SectionProperty});
  RecordingTarget page;
  DrawReport(page, Report::SectionProperty, d, {});
  const RecordedShape* weight = page.FindText("42.3");  // kg/m
  ASSERT_NE(weight, nullptr);
  bool named = false;
  for (const RecordedShape* s : page.OfKind(ShapeKind::Text)) {
    named |= s->text == "g" && std::abs(s->box.top - weight->box.top) < 0.1;
  }
  EXPECT_TRUE(named);
}

bool HasText(const RecordingTarget& page, const std::string& part) {
  const auto texts = page.Texts();
  return std::any_of(texts.begin(), texts.end(),
                     [&](const std::string& t) { return t.find(part) != std::string::npos; });
}

TEST(Report, ManualInputIsSaidOnlyWhereTypedFactorsAreUsed) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 1;
  d.st.q1 = 5.0;
  d.st.LateralTorsionalBuckling = 1;
  d.st.CFactorManual = 1;
  const auto said = [&d] {
    Calculate(d);
    return HasText(Drawn(d, Report::SectionAndStability), "   (Manual input);");
  };
  EXPECT_TRUE(said());
  d.st.LtbSegments = 2;
  EXPECT_FALSE(said());
  d.st.LtbSegments = 0;
  d.st.AnalysisMode = 0;
  EXPECT_FALSE(said());
}

// The narrow bottom flange reduces most where it is compressed, though little moment acts there.
TEST(Report, TheLeastDesignMomentStandsBesideAnother) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 22;
  d.st.p22_b2 = 100.0;
  d.st.L = 12.0;
  d.st.AnalysisMode = 0;
  d.st.My_end[1] = 100.0;
  d.st.My_end[2] = -20.0;
  d.st.LateralTorsionalBuckling = 1;
  Calculate(d);
  ASSERT_EQ(double(d.ltb.Mdb), double(d.ltb.Mdb_min));
  EXPECT_FALSE(HasText(Drawn(d, Report::SectionAndStability), "Mdb_min"));
  d.st.LtbSegments = 2;
  Calculate(d);
  ASSERT_NE(double(d.ltb.Mdb), double(d.ltb.Mdb_min));
  EXPECT_TRUE(HasText(Drawn(d, Report::SectionAndStability), "Mdb_min = "));
}

TEST(Report, AFailingLineIsBoldAndMarked) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 1;
  d.st.q1 = 5.0;
  Calculate(d);
  ASSERT_LT(d.checks.IRsection, 1);
  EXPECT_EQ(Drawn(d, Report::SectionAndStability).Count("> "), 0);
  d.st.q1 = 200.0;
  Calculate(d);
  ASSERT_GT(d.checks.IRsection, 1);
  const RecordingTarget page = Drawn(d, Report::SectionAndStability);
  EXPECT_GT(page.Count("> "), 0);
  const CheckLine& line = d.checks.lineSection;
  const RecordedShape* printed = page.FindText(line.formula + line.numbers);
  ASSERT_NE(printed, nullptr);
  EXPECT_TRUE(printed->style.bold);
  EXPECT_TRUE(HasText(page, "fails: The greatest ratio"));
}

// The colour of this line never turns (kept); paper without colours tells it all the same.
TEST(Report, AnAnglesShearBeyondItsCapacityIsBoldAndMarked) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 10;
  d.st.q1 = 60.0;
  Calculate(d);
  const CheckLine& line = d.checks.lineVz;
  ASSERT_GT(line.ratio, 1);
  ASSERT_EQ(line.colour, kGreen);
  const RecordingTarget page = Drawn(d, Report::SectionAndStability);
  const RecordedShape* printed = page.FindText(line.formula + line.numbers);
  ASSERT_NE(printed, nullptr);
  EXPECT_TRUE(printed->style.bold);
  for (const RecordedShape* mark : page.OfKind(ShapeKind::Text)) {
    if (mark->text == "> " && std::fabs(mark->box.top - printed->box.top) < 0.1) return;
  }
  ADD_FAILURE() << "no mark before " << printed->text;
}

TEST(Report, LongNamesWrapAndLoseTheirEndOnlyWithDots) {
  Design d = Designed({1, false, Report::SectionProperty});
  d.st.iproj = "Extension of the assembly hall at the harbour, block B, phase 3";
  const RecordingTarget page = Drawn(d, Report::SectionProperty);
  EXPECT_EQ(page.Count(d.st.iproj), 0);
  std::string whole;
  for (const std::string& text : page.Texts()) {
    if (d.st.iproj.find(text) != std::string::npos && text.size() > 5) whole += text;
  }
  EXPECT_EQ(whole, d.st.iproj);
  d.st.iident = std::string(400, 'm');
  const RecordingTarget cut = Drawn(d, Report::SectionProperty);
  EXPECT_TRUE(HasText(cut, "mm..."));
  for (const RecordedShape* s : cut.OfKind(ShapeKind::Text)) EXPECT_GE(s->style.size, 6) << s->text;
}

// Every load in use, each at the greatest size that forms are typed with, and far beyond it.
TEST(Report, GreatLoadsStayInTheirColumnsAndOnThePage) {
  for (const double factor : {1.0, 9999.9, 1E6}) {
    for (const int family : {22, 27, 51}) {
      Design d(SourceLibrary());
      StartDesign(d);
      d.st.ProfileType = family;
      LoadFully(d.st);
      for (float32* load : {&d.st.q1, &d.st.q2, &d.st.q3, &d.st.q4, &d.st.qt1_1, &d.st.qt1_2,
                            &d.st.qt2_1, &d.st.qt2_2, &d.st.qt3_1, &d.st.qt3_2, &d.st.NV1}) {
        *load = *load * factor;
      }
      for (int i = 1; i <= 8; ++i) d.st.pm[i] = d.st.pm[i] * -factor;
      SCOPED_TRACE(family);
      ASSERT_NO_THROW(Calculate(d)) << factor;
      const RecordingTarget page = Drawn(d, Report::SectionAndStability);
      const auto bounds = page.Bounds();
      ASSERT_TRUE(bounds.has_value());
      EXPECT_GE(bounds->left, 0) << family << " " << factor;
      EXPECT_LE(bounds->right, kPageWidth - 20) << family << " " << factor;
      EXPECT_LE(bounds->bottom, kPageHeight) << family << " " << factor;
      for (const RecordedShape* s : page.OfKind(ShapeKind::Text)) {
        EXPECT_TRUE(factor > 1E5 || s->style.size >= 5.99) << s->text;
      }
      if (factor > 1E5) continue;
      for (const auto& [first, second] : page.OverlappingTexts(1.5)) {
        ADD_FAILURE() << family << " " << factor << ": '" << first << "' over '" << second << "'";
      }
    }
  }
}

TEST(Report, NumbersAreShortBeyondTwelveDigits) {
  EXPECT_EQ(ShortNumbers("N = 999999999999.9 kN"), "N = 999999999999.9 kN");
  EXPECT_EQ(ShortNumbers("= -1234567890123.4/12.5 +"), "= -1.235E+12/12.5 +");
  EXPECT_EQ(ShortNumbers("0.12345678901234"), "0.12345678901234");
  EXPECT_EQ(ShortNumbers(""), "");
}

TEST(Report, AnOverloadedFlangeIsTold) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = 24;
  d.st.q1 = 5.0;
  Calculate(d);
  EXPECT_FALSE(HasText(Drawn(d, Report::SectionProperty), "overloaded"));
  // 1.5*5000/2*60 = 225,000 on a flange that carries 1.75*355/1.1*15^2/6 = 21,179.
  d.st.q1 = 5000.0;
  Calculate(d);
  Calculate(d);
  EXPECT_EQ(int(d.st.HsqKind), 1);
  EXPECT_TRUE(HasText(Drawn(d, Report::SectionProperty), "(incl loadf) - removed: overloaded"));
  d.st.q1 = 5.0;
  Calculate(d);
  EXPECT_FALSE(HasText(Drawn(d, Report::SectionProperty), "overloaded"));
}

}  // namespace
}  // namespace korvane
