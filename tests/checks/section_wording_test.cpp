// SPDX-License-Identifier: GPL-3.0-or-later
// The texts of section control, to the blank: formula, numbers, value and clause of every check
// of every kind of section, with the slips in them that are kept.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "check_bench.h"

namespace korvane {
namespace {

using Kind = SectionControlKind;

struct WordingCase {
  const char* name;
  double N, My, Vz, Mz, Vy;
  int mode, sectionClass;
  const char *label, *formula, *numbers, *value, *reference;
};

/// Capacities: Ntd 1000, Ncrd 800, Mvdy 100, Mvdz 50, Mvndy 80, Mvndz 40, Vdz 200, Vdy 300,
/// exponents 3 and 1.5; top 120 and bottom 90 of a singly symmetric section.
void ExpectWordings(int type, Kind kind, const std::vector<WordingCase>& cases) {
  for (const WordingCase& c : cases) {
    SCOPED_TRACE(c.name);
    CheckBench bench(type, kind, BucklingKind::None);
    bench.rec.MvdyTop = 120;
    bench.rec.MvdyBottom = 90;
    bench.rec.class_ = c.sectionClass;
    bench.st.SectionControlMode = c.mode;
    bench.f.N = c.N;
    bench.AddPoint({0.3, c.My, c.Vz, c.Mz, c.Vy});
    bench.ControlSection();
    const CheckLine& line = bench.out.lineSection;
    EXPECT_EQ(line.label, c.label);
    EXPECT_EQ(line.formula, c.formula);
    EXPECT_EQ(line.numbers, c.numbers);
    EXPECT_EQ(line.value, c.value);
    EXPECT_EQ(line.limit, std::string("  <  1.00 (0.30") + c.reference);
  }
}

// clang-format off
/// Axial force and one moment: the same words for open sections, hollow sections and flat bars.
const std::vector<WordingCase> kPlain{
    {"tension", -500, 0, 0, 0, 0, 0, 1, "N:", "IR = N/Ntd = ", "-500.0/1000.0 = ", "0.50", "L; Ch 12.2.3.1)"},
    {"compression", 400, 0, 0, 0, 0, 0, 1, "N:", "IR = N/Ncd = ", "400.0/800.0 = ", "0.50", "L; Ch 12.2.3.2)"},
    {"My", 0, 50, 99.9, 0, 0, 0, 1, "My:", "IR = My/Mdy = ", "50.0/100.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"hogging My", 0, -50, -99.9, 0, 0, 0, 1, "My:", "IR = My/Mdy = ", "50.0/100.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"My, half of the shear capacity", 0, 50, 100, 0, 0, 0, 1, "My:", "IR = My/Mvdy = ", "50.0/100.0 = ", "0.50", "L; Ch 12.2.7)"},
    {"Mz", 0, 0, 0, 25, 149.9, 0, 1, "Mz:", "IR = Mz/Mdz = ", "25.0/50.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"Mz, half of the shear capacity", 0, 0, 0, -25, 150, 0, 1, "Mz:", "IR = Mz/Mvdz = ", "25.0/50.0 = ", "0.50", "L; Ch 12.2.7)"},
    // 400/800 + 50/100; in tension 500/1000 + 50/100.
    {"N+My", 400, 50, 100, 0, 0, 0, 1, "N+My:", "IR = N/Nd+My/Mdy = ", "400.0/800.0 + 50.0/100.0 = ", "1.00", "L; Ch 12.2.6)"},
    {"N+My, sheared", 400, 50, 100.1, 0, 0, 0, 1, "N+My:", "IR = N/Nd+My/Mvdy = ", "400.0/800.0 + 50.0/100.0 = ", "1.00", "L; Ch 12.2.6/12.2.8)"},
    {"N+My, tension", -500, 50, 0, 0, 0, 0, 1, "N+My:", "IR = N/Nd+My/Mdy = ", "-500.0/1000.0 + 50.0/100.0 = ", "1.00", "L; Ch 12.2.6)"},
    {"N+My, class 3", 400, 50, 0, 0, 0, 1, 3, "N+My:", "IR = N/Nd+My/Mdy = ", "400.0/800.0 + 50.0/100.0 = ", "1.00", "L; Ch 12.2.6)"},
    {"N+Mz", 400, 0, 0, 25, 150, 0, 1, "N+Mz:", "IR = N/Nd+Mz/Mdz = ", "400.0/800.0 + 25.0/50.0 = ", "1.00", "L; Ch 12.2.6)"},
    {"N+Mz, sheared", 400, 0, 0, 25, 150.1, 0, 1, "N+Mz:", "IR = N/Nd+Mz/Mvdz = ", "400.0/800.0 + 25.0/50.0 = ", "1.00", "L; Ch 12.2.6/12.2.8)"},
    // With exponents: 40/80 is more than 40/100.
    {"N+My, exact", 400, 40, 100, 0, 0, 1, 2, "N+My:", "IR = My/Mndy = ", "40.0/80.0 = ", "0.50", "L; Ch 12.2.6)"},
    {"N+My, exact, sheared", 400, 40, 100.1, 0, 0, 1, 2, "N+My:", "IR = My/Mvndy = ", "40.0/80.0 = ", "0.50", "L; Ch 12.2.6/12.2.8)"},
    {"N+Mz, exact", -400, 0, 0, 20, 150, 1, 2, "N+Mz:", "IR = Mz/Mndz = ", "20.0/40.0 = ", "0.50", "L; Ch 12.2.6)"},
    {"N+Mz, exact, sheared", 400, 0, 0, 20, 150.1, 1, 2, "N+Mz:", "IR = Mz/Mvndz = ", "20.0/40.0 = ", "0.50", "L; Ch 12.2.6/12.2.8)"},
    {"N+My+Mz", 400, 50, 100, 25, 150, 0, 1, "N+My+Mz:", "IR = N/Nd+My/Mdy+Mz/Mdz = ", "400.0/800.0 + 50.0/100.0 + 25.0/50.0 = ", "1.50", "L; Ch 12.2.6)"},
    {"N+My+Mz, sheared in z", -500, 50, 100.1, 25, 0, 0, 1, "N+My+Mz:", "IR = N/Nd+My/Mvdy+Mz/Mdz = ", "-500.0/1000.0 + 50.0/100.0 + 25.0/50.0 = ", "1.50", "L; Ch 12.2.6/12.2.8)"},
    {"N+My+Mz, sheared in y", 400, 50, 0, 25, 150.1, 0, 1, "N+My+Mz:", "IR = N/Nd+My/Mdy+Mz/Mvdz = ", "400.0/800.0 + 50.0/100.0 + 25.0/50.0 = ", "1.50", "L; Ch 12.2.6/12.2.8)"},
};

/// Biaxial bending of open sections. The second half compares Vy with half of Vdz (100, not 150),
/// its last form names My in the place of Mz, and the exponent 2.00 is literal (it is 3 here).
/// 0.8^3 + 0.8^1.5 = 0.512 + 0.715542 = 1.227542.
const std::vector<WordingCase> kOpen{
    {"linear", 0, 50, 99.9, 25, 99.9, 0, 1, "My+Mz:", "IR = My/Mdy + Mz/Mdz = ", "50.0/100.0 + 25.0/50.0 = ", "1.00", "L; Ch 12.2.6.)"},
    {"linear, Vz", 0, 50, 100, 25, 0, 0, 1, "My+Mz:", "IR = My/Mvdy + Mz/Mdz = ", "50.0/100.0 + 25.0/50.0 = ", "1.00", "L; Ch 12.2.6.)"},
    {"linear, Vy", 0, 50, 0, 25, 100, 0, 1, "My+Mz:", "IR = My/Mdy + My/Mvdy = ", "50.0/100.0 + 25.0/50.0 = ", "1.00", "L; Ch 12.2.6.)"},
    {"linear by class", 0, 50, 0, 25, 0, 1, 3, "My+Mz:", "IR = My/Mdy + Mz/Mdz = ", "50.0/100.0 + 25.0/50.0 = ", "1.00", "L; Ch 12.2.6.)"},
    {"exact", 0, 80, 0, 40, 0, 1, 2, "My+Mz:", "IR = [My/Mdy]^alfa + [Mz/Mdz]^beta = ", "[80.0/100.0]^2.00 + (40.0/50.0)^1.50 = ", "1.23", "L; Ch 12.2.6.)"},
    {"exact, Vz and Vy", 0, 80, 100, 40, 100, 1, 1, "My+Mz:", "IR = [My/Mvdy]^alfa + [Mz/Mvdz]^beta = ", "[80.0/100.0]^2.00 + (40.0/50.0)^1.50 = ", "1.23", "L; Ch 12.2.6.)"},
    {"exact with N", 400, 64, 100, 32, 150, 1, 2, "N+My+Mz:", "IR = (My/Mndy)^alfa  + (Mz/Mndz)^beta = ", "(64.0/80.0)^2.00 + (32.0/40.0)^1.50 = ", "1.23", "L; Ch 12.2.6)"},
    {"exact with N and shear", 400, 64, 100.1, 32, 150.1, 1, 2, "N+My+Mz:", "IR = (My/Mvndy)^alfa  + (Mz/Mvndz)^beta = ", "(64.0/80.0)^2.00 + (32.0/40.0)^1.50 = ", "1.23", "L; Ch 12.2.6/12.2.8)"},
};

/// Biaxial bending of closed sections: alfa is shown, the linear numbers end with two blanks.
const std::vector<WordingCase> kClosed{
    {"linear", 0, 50, 99.9, 25, 99.9, 0, 1, "My+Mz:", "IR = My/Mdy + Mz/Mdz = ", "50.0/100.0 + 25.0/50.0 =  ", "1.00", "L; Ch 12.2.6.)"},
    {"linear, Vz and Vy", 0, 50, 100, 25, 100, 0, 1, "My+Mz:", "IR = My/Mvdy + Mz/Mvdz = ", "50.0/100.0 + 25.0/50.0 =  ", "1.00", "L; Ch 12.2.6.)"},
    // Each half by its own force, and that along y against half of Vdz = 200.
    {"linear, Vz alone", 0, 50, 100, 25, 99.9, 0, 1, "My+Mz:", "IR = My/Mvdy + Mz/Mdz = ", "50.0/100.0 + 25.0/50.0 =  ", "1.00", "L; Ch 12.2.6.)"},
    {"linear, Vy alone", 0, 50, 99.9, 25, 100, 0, 1, "My+Mz:", "IR = My/Mdy + Mz/Mvdz = ", "50.0/100.0 + 25.0/50.0 =  ", "1.00", "L; Ch 12.2.6.)"},
    {"exact", 0, 80, 0, 40, 0, 1, 2, "My+Mz:", "IR = [My/Mdy]^alfa + [Mz/Mdz]^beta = ", "[80.0/100.0]^3.00 + [40.0/50.0]^1.50 = ", "1.23", "L; Ch 12.2.6.)"},
    {"exact, Vz and Vy", 0, 80, 100, 40, 100, 1, 1, "My+Mz:", "IR = [My/Mvdy]^alfa + [Mz/Mvdz]^beta = ", "[80.0/100.0]^3.00 + [40.0/50.0]^1.50 = ", "1.23", "L; Ch 12.2.6.)"},
    {"exact with N", 400, 64, 100, 32, 150, 1, 2, "N+My+Mz:", "IR = (My/Mndy)^alfa  + (Mz/Mndz)^beta = ", "[64.0/80.0]^3.00 + [32.0/40.0]^1.50 = ", "1.23", "L; Ch 12.2.6)"},
    {"exact with N and shear", 400, 64, 100.1, 32, 150.1, 1, 2, "N+My+Mz:", "IR = (My/Mvndy)^alfa  + (Mz/Mvndz)^beta = ", "[64.0/80.0]^3.00 + [32.0/40.0]^1.50 = ", "1.23", "L; Ch 12.2.6/12.2.8)"},
};

/// Tubes: N always on the tension capacity, labels that name the shear.
const std::vector<WordingCase> kTube{
    {"tension", -500, 0, 0, 0, 0, 0, 1, "N:", "IR = N/Nd = ", "-500.0/1000.0 = ", "0.50", "L; Ch 12.2.3)"},
    {"compression", 500, 0, 0, 0, 0, 0, 1, "N:", "IR = N/Nd = ", "500.0/1000.0 = ", "0.50", "L; Ch 12.2.3)"},
    {"My", 0, 50, 99.9, 0, 0, 0, 1, "My:", "IR = My/Mdy = ", "50.0/100.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"My, sheared", 0, 50, 100, 0, 0, 0, 1, "My+Vz:", "IR = My/Mvdy = ", "50.0/100.0 = ", "0.50", "L; Ch 12.2.7)"},
    {"Mz", 0, 0, 0, 25, 149.9, 0, 1, "Mz:", "IR = Mz/Mdz = ", "25.0/50.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"Mz, sheared", 0, 0, 0, 25, 150, 0, 1, "Mz+Vy:", "IR = Mz/Mvdz = ", "25.0/50.0 = ", "0.50", "L; Ch 12.2.7)"},
    {"N+My", 400, 50, 0, 0, 0, 0, 1, "N+My:", "IR = N/Nd+My/Mdy = ", "400.0/800.0 + 50.0/100.0 = ", "1.00", "L; Ch 12.2.6)"},
    // Exact, and the moment alone doesn't run beside N: 40/80 although 40/100 + ... is not there.
    {"N+My, exact", 400, 40, 0, 0, 0, 1, 2, "N+My:", "IR = My/Mndy = ", "40.0/80.0 = ", "0.50", "L; Ch 12.2.6)"},
};

/// Singly symmetric sections: My with its sign on the capacity of the compressed side; nothing
/// about z; never with exponents.
const std::vector<WordingCase> kSingle{
    {"sagging", 0, 60, 99.9, 0, 0, 0, 1, "My:", "IR = My/Mdy = ", "60.0/120.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"hogging", 0, -45, 0, 0, 0, 0, 1, "My:", "IR = My/Mdy = ", "-45.0/90.0 = ", "0.50", "L; Ch 12.2.4)"},
    {"sheared", 0, 60, 100, 0, 0, 0, 1, "My:", "IR = My/Mvdy = ", "60.0/120.0 = ", "0.50", "L; Ch 12.2.7)"},
    {"Mz and Vy take no part", 0, 60, 0, 500, 500, 0, 1, "My:", "IR = My/Mdy = ", "60.0/120.0 = ", "0.50", "L; Ch 12.2.4)"},
};

const std::vector<WordingCase> kSingleWithN{
    {"tension", -500, 0, 0, 0, 0, 0, 1, "N:", "IR = N/Ntd = ", "-500.0/1000.0 = ", "0.50", "L; Ch 12.2.3.1)"},
    {"compression", 400, 0, 0, 0, 0, 0, 1, "N:", "IR = N/Ncd = ", "400.0/800.0 = ", "0.50", "L; Ch 12.2.3.2)"},
    {"N+My", 400, 60, 100, 0, 0, 1, 1, "N+My:", "IR = N/Nd+My/Mdy = ", "400.0/800.0 + 60.0/120.0 = ", "1.00", "L; Ch 12.2.6)"},
    {"N+My hogging, sheared", -500, -45, 100.1, 0, 0, 1, 1, "N+My:", "IR = N/Nd+My/Mvdy = ", "-500.0/1000.0 + -45.0/90.0 = ", "1.00", "L; Ch 12.2.6/12.2.8)"},
};

const std::vector<WordingCase> kT{
    {"tension", -500, 9, 9, 9, 9, 0, 1, "N:", "IR = N/Ntd = ", "-500.0/1000.0 = ", "0.50", "L; Ch 12.2.3.1)"},
    {"compression", 400, 9, 9, 9, 9, 0, 1, "N:", "IR = N/Ncd = ", "400.0/800.0 = ", "0.50", "L; Ch 12.2.3.2)"},
};
// clang-format on

TEST(SectionWording, OfOpenSections) {
  ExpectWordings(1, Kind::DoubleSymmetric, kPlain);
  ExpectWordings(1, Kind::DoubleSymmetric, kOpen);
}

TEST(SectionWording, OfFlatBars) {
  ExpectWordings(28, Kind::FlatBar, kPlain);
  ExpectWordings(28, Kind::FlatBar, kOpen);
}

TEST(SectionWording, OfHollowSections) {
  ExpectWordings(6, Kind::Hollow, kPlain);
  ExpectWordings(6, Kind::Hollow, kClosed);
}

TEST(SectionWording, OfTubes) {
  ExpectWordings(31, Kind::Tube, kTube);
  ExpectWordings(31, Kind::Tube, kClosed);
}

TEST(SectionWording, OfSinglySymmetricSections) {
  ExpectWordings(22, Kind::SingleSymmetric, kSingle);
  ExpectWordings(22, Kind::SingleSymmetric, kSingleWithN);
}

TEST(SectionWording, OfPlates) {
  ExpectWordings(51, Kind::Plate, kSingle);
}

TEST(SectionWording, OfTSections) {
  ExpectWordings(26, Kind::T, kT);
}

TEST(SectionWording, OfShear) {
  CheckBench bench(1, Kind::DoubleSymmetric, BucklingKind::None);
  bench.AddPoint({0.3, 0, -100, 0, 60});
  bench.ControlSection();
  const CheckLine& z = bench.out.lineVz;
  EXPECT_EQ(z.label, "Vz:");
  EXPECT_EQ(z.formula, "IR = Vz/Vdz = ");
  EXPECT_EQ(z.numbers, "100.0/200.0 = ");
  EXPECT_EQ(z.value, "0.50");
  EXPECT_EQ(z.limit, "  <  1.00 (0.30L; Ch 12.2.5)");
  const CheckLine& y = bench.out.lineVy;
  EXPECT_EQ(y.label, "Vy:");
  EXPECT_EQ(y.formula, "IR = Vy/Vdy = ");
  EXPECT_EQ(y.numbers, "60.0/300.0 = ");
  EXPECT_EQ(y.value, "0.20");
  EXPECT_EQ(y.limit, "  <  1.00 (0.30L; Ch 12.2.5)");
  EXPECT_EQ(bench.out.lineSection.formula, "");
}

TEST(SectionWording, OfLateralBuckling) {
  CheckBench bench(1, Kind::DoubleSymmetric, BucklingKind::None);
  bench.st.LateralTorsionalBuckling = 1;
  bench.beam.MyAbsMax = 60;
  bench.beam.My_gov = -60;
  bench.ltb.Mdb = 80;
  bench.ControlSection();
  const CheckLine& line = bench.out.lineLateral;
  EXPECT_EQ(line.label, "Lateral:");
  EXPECT_EQ(line.formula, "IR = My/Mdb = ");
  EXPECT_EQ(line.numbers, "-60.0/80.0 = ");
  EXPECT_EQ(line.value, "0.75");
  EXPECT_EQ(line.limit, "  <  1.00 (Ch 12.3.4.1)");
  bench.st.LtbSegments = 3;
  bench.ltb.LtbSegmentText = "1L/4 - 2L/4";
  bench.ControlSection();
  EXPECT_EQ(line.limit, "  <  1.00 (1L/4 - 2L/4;  (Ch 12.3.4.1))");
}

}  // namespace
}  // namespace korvane
