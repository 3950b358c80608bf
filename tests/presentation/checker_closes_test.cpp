// SPDX-License-Identifier: GPL-3.0-or-later
// From the text of the printed sheets alone every line of the checks is worked out again, by the
// formula that the line itself prints, and so is the way from the inputs to its terms.
#include <gtest/gtest.h>

#include <regex>

#include "core/calculation.h"
#include "presentation/aprint.h"
#include "sections/profile_table.h"
#include "tests/design/random_states.h"
#include "tests/presentation/sheet_reader.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

constexpr unsigned kMembersPerFamily = 16;  // 512 of all 32

RecordingTarget Printed(const Design& d, Report report) {
  RecordingTarget page;
  DrawReport(page, report, d, {});
  return page;
}

/// The words of a printed formula in the symbols of the sheet. Nf is N; Ncd and Nd of column
/// buckling are one. What a line of two moments without N prints is kept as it is: it asks the
/// shear along z for both moments, and may name My in the place of Mz.
std::string Plain(std::string formula, bool buckling) {
  const auto replace = [&formula](const char* what, const char* by) {
    formula = std::regex_replace(formula, std::regex(what), by);
  };
  replace("\\bNf\\b", "N");
  if (buckling) {
    replace("\\bNcd\\b", "Nd");
    return formula;
  }
  const bool two =
      formula.find("My") != std::string::npos && formula.find("N/") == std::string::npos &&
      formula.find("Mn") == std::string::npos && formula.find("Mvn") == std::string::npos &&
      (formula.find("Mz") != std::string::npos || formula.find(" + My/Mvdy") != std::string::npos);
  if (!two) return formula;
  replace(" \\+ My/Mvdy", " + Mz/Mvdz");
  replace("Md([yz])", "Mvd$1");
  return formula;
}

/// The block that a line stands on.
const char* BlockOf(const sheet::Line& line) {
  if (line.formula.find("Mdb") != std::string::npos) return "Lateral line";
  if (line.formula.find("Vdz") != std::string::npos) return "Shear lines";
  if (line.formula.find("Vdy") != std::string::npos) return "Shear lines";
  return line.formula.find('X') != std::string::npos ? "Column buckling lines" : "Section line";
}

/// Seven printed digits, of which several go into a ratio and some into a power.
double Room(double value) {
  return 0.005 + 1E-9 + 2E-6 * std::fabs(value);
}

class CheckerCloses : public ::testing::TestWithParam<int> {
protected:
  template <class Test>
  void ForEachMember(Test&& test) {
    for (unsigned n = 0; n < kMembersPerFamily; ++n) {
      Design d(SourceLibrary());
      StartDesign(d);
      RandomState(1000 * n + static_cast<unsigned>(GetParam()), GetParam(), d.st);
      try {
        Calculate(d);
        Calculate(d);
      } catch (const ArithmeticFault&) {
        continue;
      }
      SCOPED_TRACE("member " + std::to_string(n));
      test(d);
    }
  }
};

TEST_P(CheckerCloses, EveryLineByItsOwnFormula) {
  int lines = 0;
  ForEachMember([&lines](const Design& d) {
    const auto blocks = sheet::ReadChecker(Printed(d, Report::Checker));
    const auto printed = sheet::ReadCheckLines(Printed(d, Report::SectionAndStability));
    int composed = 0;
    for (const CheckLine* line :
         {&d.checks.lineSection, &d.checks.lineVz, &d.checks.lineVy, &d.checks.lineLateral}) {
      composed += line->formula.empty() ? 0 : 1;
    }
    if (ShowsBuckling(d.st, d.forces.N)) {
      composed += (d.checks.lineBucklingY.formula.empty() ? 0 : 1) +
                  (d.checks.lineBucklingZ.formula.empty() ? 0 : 1);
    }
    ASSERT_EQ(static_cast<int>(printed.size()), composed);
    for (const sheet::Line& line : printed) {
      const std::string name = BlockOf(line);
      const auto block = blocks.find(name);
      ASSERT_NE(block, blocks.end()) << name << " for " << line.formula;
      std::string text = Plain(line.formula, name[0] == 'C');
      bool size = false;
      if (const auto sum = block->second.find("Sum"); sum != block->second.end()) {
        text = sum->second.value.substr(1, sum->second.value.size() - 2);
        size = true;
      }
      sheet::Formula formula(text, block->second);
      const auto value = formula.Work();
      ASSERT_TRUE(value.has_value()) << text << " lacks" << formula.missing();
      const double ratio = size ? std::fabs(*value) : *value;
      EXPECT_NEAR(ratio, std::strtod(line.value.c_str(), nullptr), Room(formula.greatest()))
          << text << " | " << line.numbers;
      ++lines;
    }
  });
  const bool checked = FindFamily(GetParam())->routines.sectionControl != SectionControlKind::None;
  EXPECT_EQ(lines > 0, checked);
}

/// A step of the design from printed numbers, and the printed number that it leads to.
void Closes(const char* what, std::optional<double> printed, double worked, double term = 1E-3) {
  ASSERT_TRUE(printed.has_value()) << what;
  EXPECT_NEAR(*printed, worked, 4E-6 * std::fmax(std::fabs(worked), term)) << what;
}

/// Reads symbols of one block; what isn't there makes the test fail.
class Reader {
public:
  Reader(const sheet::Blocks& blocks, const std::string& name) {
    const auto found = blocks.find(name);
    if (found != blocks.end()) block_ = found->second;
  }
  bool Has(const std::string& symbol) const { return block_.count(symbol) != 0; }
  std::string Words(const std::string& symbol) const {
    const auto row = block_.find(symbol);
    return row == block_.end() ? "" : row->second.value;
  }
  bool Empty() const { return block_.empty(); }
  std::optional<double> operator[](const std::string& symbol) const {
    return sheet::Value(block_, symbol);
  }
  double operator()(const std::string& symbol) const {
    const auto value = sheet::Value(block_, symbol);
    EXPECT_TRUE(value.has_value()) << "no " << symbol;
    return value.value_or(1);
  }

private:
  sheet::Block block_;
};

constexpr double kPi = 3.14159265358979;

/// 12.3.2: the reduction of a slenderness.
double ReductionOf(double lambda, double alfa) {
  if (lambda <= 0.2) return 1;
  const double phi = 0.5 * (1 + alfa * (lambda - 0.2) + lambda * lambda);
  return std::fmin(1 / (phi + std::sqrt(phi * phi - lambda * lambda)), 1);
}

TEST_P(CheckerCloses, ColumnBucklingFromTheInputs) {
  ForEachMember([](const Design& d) {
    const auto blocks = sheet::ReadChecker(Printed(d, Report::Checker));
    const Reader member(blocks, "Member and supports"), material(blocks, "Material and factors");
    const Reader input(blocks, "Column buckling as entered"), section(blocks, "Section values");
    const Reader r(blocks, "Column buckling lines");
    if (r.Empty()) return;
    const bool angle = input.Has("k u");
    const double area = section.Has("Ax") ? section("Ax") : section("A");
    Closes("Nd", r["Nd"], r("betaA") * area * material("fd") / 1000);
    for (const bool first : {true, false}) {
      const std::string axis = angle ? (first ? "u" : "v") : (first ? "y" : "z");
      const double i = std::sqrt(section("I" + axis) / area);
      const double slender = member("L") * 1000 * input("k " + axis) / i;
      Closes("L/i", r["L/i " + axis], slender);
      const double bar =
          slender / kPi * std::sqrt(material("fy") / material("E")) * std::sqrt(r("betaA"));
      Closes("lambda", r["lambda " + axis], angle ? 0.35 + 0.7 * bar : bar);
      Closes("X", r["X" + axis], ReductionOf(r("lambda " + axis), input("alfa " + axis)));
    }
  });
}

TEST_P(CheckerCloses, MomentFactorsOfColumnBuckling) {
  ForEachMember([](const Design& d) {
    const auto blocks = sheet::ReadChecker(Printed(d, Report::Checker));
    const Reader r(blocks, "Column buckling lines"), section(blocks, "Section values");
    const Reader member(blocks, "Member and supports"), material(blocks, "Material and factors");
    if (!r.Has("ky")) return;
    const bool plastic =
        r.Has("class") && r("class") <= 2 && member.Words("Modulus") == "plastic in class 1-2";
    // The factor is what a term, perhaps a large one, leaves of 1.
    const auto closes = [&](const char* k, double mu, double X, double most) {
      const double term = std::fmin(mu, 0.9) * r("N") / X / r("Nd") / material("gm1");
      Closes(k, r[k], std::fmin(1 - term, most), 1 + std::fabs(term) + std::fabs(term / mu));
    };
    const double Wely =
        section.Has("Wely") ? section("Wely") : std::fmin(section("Wely1"), section("Wely2"));
    const double shapeY = plastic ? section("Wply") / Wely - 1 : 0;
    closes("ky", r("lambda y") * (2 * r("betaMy") - 4) + shapeY, r("Xy"), 1.5);
    if (r.Has("kz")) {
      const double shapeZ = plastic ? section("Wplz") / section("Welz") - 1 : 0;
      closes("kz", r("lambda z") * (2 * r("betaMz") - 4) + shapeZ, r("Xz"), 1.5);
    }
    if (r.Has("klt") &&
        FindFamily(d.st.ProfileType)->routines.buckling == BucklingKind::DoubleSymmetric) {
      closes("klt", 0.15 * (r("lambda z") * r("betaMy") - 1), r("Xz"), 1);
    }
  });
}

/// 12.3.4.1 from Mcr on; families carried by a plate have a stress instead.
void LateralCloses(const Reader& s, const Reader& section, const Reader& material,
                   const char* Mdb) {
  if (s.Has("Mcr")) {
    const double E = material("E");
    const double L = s("Lk") * 1000;
    const double Iz = section("Iz");
    const double B =
        L * L * material("G") * section("Ix") / E / kPi / kPi / Iz + section("Iw") / Iz;
    const double D = s("D");
    const double root = std::sqrt(B + D * D);
    const double scale = s("C1") * kPi * kPi * E * Iz / (L * L) / 1E6;
    EXPECT_NEAR(s("Mcr"), scale * (root - D), 1E-6 * scale * root * 4) << "Mcr";
    Closes("lambda_LT", s["lambda_LT"],
           std::sqrt(s("beta") * section("Wply") * material("fy") / s("Mcr") / 1E6));
    const double lam = s("lambda_LT");
    const double phi = 0.5 * (1 + s("alfa_LT") * (lam - 0.4) + lam * lam);
    Closes("chi_LT", s["chi_LT"], std::fmin(1, 1 / (phi + std::sqrt(phi * phi - lam * lam))));
  } else if (s.Has("sigma cr")) {
    Closes("lambda_LT", s["lambda_LT"], std::sqrt(material("fy") / s("sigma cr")));
  } else {
    EXPECT_EQ(s("chi_LT"), 1.0);
  }
  Closes("Mdb", s[Mdb], s("chi_LT") * s("beta") * section("Wply") * material("fd") / 1E6);
}

TEST_P(CheckerCloses, LateralBucklingFromTheSection) {
  ForEachMember([](const Design& d) {
    const auto blocks = sheet::ReadChecker(Printed(d, Report::Checker));
    const Reader section(blocks, "Section values"), material(blocks, "Material and factors");
    const Reader line(blocks, "Lateral line"), least(blocks, "Lateral, least chi");
    if (!line.Empty()) LateralCloses(line, section, material, "Mdb");
    if (!least.Empty()) LateralCloses(least, section, material, "Mdb_min");
    const Reader column(blocks, "Column buckling lines");
    if (!column.Has("Xlt") || d.st.LateralTorsionalBuckling != 1 || line.Empty()) return;
    Closes("Xlt", column["Xlt"], least.Empty() ? line("chi_LT") : least("chi_LT"));
  });
}

TEST_P(CheckerCloses, BendingAtTheGoverningPoint) {
  ForEachMember([](const Design& d) {
    const auto blocks = sheet::ReadChecker(Printed(d, Report::Checker));
    const Reader s(blocks, "Section line"), section(blocks, "Section values");
    const Reader material(blocks, "Material and factors");
    const Reader capacities(blocks, "Capacities of the section");
    const double flange = capacities.Has("factor") ? capacities("factor") : 1;
    for (const char* axis : {"y", "z"}) {
      const std::string a = axis;
      if (!s.Has("Md" + a)) continue;
      // A tube takes the one modulus or the other.
      const double W = s.Has("beta" + a) ? s("beta" + a) * section("Wpl" + a)
                       : s("class") <= 2 && d.st.BendingCapacityMode == 0 ? section("Wply")
                                                                          : section("Wely");
      Closes("Md", s["Md" + a], W * material("fd") / 1E6 * flange);
      const bool sheared = s(a == "y" ? "Vz" : "Vy") > 0.5 * s(a == "y" ? "Vdz" : "Vdy");
      if (!sheared) Closes("Mvd", s["Mvd" + a], s("Md" + a));
      if (s.Has("Mvnd" + a) && !sheared) Closes("Mvnd", s["Mvnd" + a], s("Mnd" + a));
      if (!s.Has("Mfd" + a)) continue;
      const double q = a == "y" ? 2 * s("Vz") / s("Vdz") - 1 : 2 * s("Vy") / s("Vdy") - 1;
      const double f = s("Mfd" + a);
      const double w = f + (s("Mnd" + a + "pl") - f) * (1 - q * q);
      Closes("Mvnd", s["Mvnd" + a], w,
             (std::fabs(f) + std::fabs(s("Mnd" + a + "pl"))) * (1 + q * q));
    }
  });
}

std::vector<int> AllCodes() {
  std::vector<int> codes;
  for (const Family& f : AllFamilies()) codes.push_back(f.code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, CheckerCloses, ::testing::ValuesIn(AllCodes()),
                         [](const auto& i) { return "f" + std::to_string(i.param); });

}  // namespace
}  // namespace korvane
