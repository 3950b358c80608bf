// SPDX-License-Identifier: GPL-3.0-or-later
// Buckling curves, plate elements and class limits.
#include "sections/elements.h"

#include <cstdio>
#include <functional>
#include <numbers>

#include "case.h"
#include "checks/buckling_curves.h"
#include "checks/column_buckling.h"

namespace korvane::verification {

namespace {

/// sqrt(235/355).
constexpr double kEps355 = 0.81361651;

struct CurvePoint {
  int curve;
  double lambda;
  double worked;  ///< root of the Perry-Robertson equation, by bisection
};
constexpr CurvePoint kCurvePoints[] = {{0, 0.75, 0.876409}, {0, 1.5, 0.395336}, {0, 3, 0.106300},
                                       {1, 0.75, 0.823005}, {1, 1.5, 0.372437}, {1, 3, 0.103563},
                                       {2, 0.75, 0.754741}, {2, 1.5, 0.342235}, {2, 3, 0.099432},
                                       {3, 0.75, 0.693536}, {3, 1.5, 0.314535}, {3, 3, 0.095092},
                                       {4, 0.75, 0.610929}, {4, 1.5, 0.276570}, {4, 3, 0.088231}};

/// The European column curves as their table prints them, four digits.
constexpr CurvePoint kPrintedPoints[] = {
    {0, 0.5, 0.9513}, {0, 1, 0.7253},   {0, 2, 0.2323},   {1, 0.5, 0.9243}, {1, 1, 0.6656},
    {1, 2, 0.2229},   {2, 0.5, 0.8842}, {2, 1, 0.5970},   {2, 2, 0.2095},   {3, 0.5, 0.8430},
    {3, 1, 0.5399},   {3, 2, 0.1962},   {4, 0.5, 0.7793}, {4, 1, 0.4671},   {4, 2, 0.1766}};

Case CurveCase(const CurvePoint& p, const char* source, double tolerance) {
  char slenderness[40];
  std::snprintf(slenderness, sizeof slenderness, "lambda = %.2f", p.lambda);
  return {std::string("X of curve ") + CurveLetter(p.curve),      source, slenderness, p.worked,
          ColumnReduction(p.lambda, ImperfectionFactor(p.curve)), "",     tolerance,   ""};
}

/// The largest slenderness up to which a class routine stays within a class, between 1 and 400.
double Limit(int within, const std::function<int(double)>& classOf) {
  double low = 1;
  double high = 400;
  while (high - low > 1e-9) {
    const double middle = (low + high) / 2;
    (classOf(middle) <= within ? low : high) = middle;
  }
  return low;
}

struct LimitRow {
  const char* element;
  const char* stresses;
  std::function<int(double)> classOf;
  double limits[3];  ///< times eps, of classes 1 to 3
  double tolerance = kExact;
  const char* remark = "";
};

std::vector<LimitRow> LimitRows() {
  const auto internal = [](double s1, double s2) {
    return [=](double w) { return InternalClass(s1, s2, w, kEps355, ZeroStress::Compressed); };
  };
  const auto outstand = [](const OutstandLimits& limits) {
    return [=](double f) { return OutstandClass(-1, -1, f, kEps355, limits); };
  };
  return {
      {"internal element", "compression", internal(-1, -1), {33, 38, 42}},
      {"internal element", "bending", internal(-1, 1), {72, 83, 124}},
      {"internal element",
       "three quarters compressed",
       internal(-3, 1),
       {396 / 8.75, 456 / 8.75, 42 / (0.67 - 0.33 / 3)},
       1e-2,
       "class 3 by 126/(2 + psi), the print's 42/(0.67 + 0.33 psi) unrounded"},
      {"internal element",
       "a quarter compressed",
       internal(-1, 3),
       {36 / 0.25, 41.5 / 0.25, 62 * 4 * std::numbers::sqrt3}},
      {"outstand, rolled", "compression", outstand(kRolledOutstand), {10, 11, 15}},
      {"outstand, welded", "compression", outstand(kWeldedOutstand), {9, 10, 14}},
  };
}

struct WidthRow {
  double ratio, k, fyk, exact;
  const char* element;
};
/// (lambda - 0.22)/lambda^2 with lambda^2 = fyk over the critical stress of the plate,
/// k pi^2 E/(12 (1 - nu^2)) (t/c)^2.
constexpr WidthRow kWidths[] = {{60, 4, 355, 0.64005688, "internal, compression"},
                                {100, 4, 235, 0.49731309, "internal, compression"},
                                {150, 23.9, 355, 0.62866011, "internal, bending"},
                                {20, 0.43, 355, 0.63167625, "outstand, compression"}};

constexpr const char* kCritical = "28.4 eps for 28.419 eps of the critical stress";

Case WidthCase(const WidthRow& w) {
  const double k = w.k > 20 ? InternalBendingFactor(-1) : w.k;
  char inputs[60];
  std::snprintf(inputs, sizeof inputs, "c/t = %g, fyk = %g MPa", w.ratio, w.fyk);
  return {std::string("rho, ") + w.element,
          "critical stress of a plate, nu = 0.3",
          inputs,
          w.exact,
          EffectiveWidth(w.ratio, std::sqrt(235 / w.fyk), k, false),
          "",
          1.5e-3,
          kCritical};
}

struct FactorRow {
  const char* element;
  const char* inputs;
  double exact;
  double ours;
  double tolerance;
  const char* remark;
};

/// 9360 mm2 of web, hw/tw = 146.25, without stiffeners.
double SlenderShear() {
  ProjectState st;
  st.fyk = 355;
  st.gammam1 = 1.1;
  st.epsilon = kEps355;
  float32 area;
  return UnstiffenedShear(st, {9360, 9360, 1170, 146.25}, area);
}

}  // namespace

Chapter BucklingCurveCases() {
  Chapter chapter{
      "Buckling curves",
      "Reduction factor X of NS 3472, 12.3.2. Worked values are the root of (1 - X)(1 - "
      "X lambda^2) = alfa (lambda - 0.2) X, found by bisection.",
      {}};
  for (const CurvePoint& p : kCurvePoints) {
    chapter.cases.push_back(CurveCase(p, "Perry-Robertson root", kExact));
  }
  for (const CurvePoint& p : kPrintedPoints) {
    chapter.cases.push_back(CurveCase(p, "table of the European column curves", 3e-4));
  }
  return chapter;
}

Chapter PlateElements() {
  Chapter chapter{"Plate elements",
                  "Effective widths, plate buckling factors and shear buckling against the theory "
                  "of elastic plates, E = 210000 MPa, nu = 0.3.",
                  {}};
  for (const WidthRow& w : kWidths) chapter.cases.push_back(WidthCase(w));
  const FactorRow factors[] = {
      {"k of an internal element", "pure bending", 23.9, InternalBendingFactor(-1), 2e-3,
       "7.81 - 6.29 psi + 9.78 psi^2 fits the theory"},
      {"k of an outstand", "compression", 0.425, OutstandFactor(1), 1.5e-2,
       "0.43 of the standard, rounded from the long plate's 0.425"},
      {"k of an outstand", "tip compressed, no stress at the web", 0.57, OutstandFactor(0), kExact,
       ""},
      {"k of an outstand", "tip compressed, web in tension alike", 0.85, OutstandFactor(-1), kExact,
       ""},
      {"Vd of a slender web, kN", "1170x8 of S355, 0.83/lambda, k = 5.34", 696.01416,
       SlenderShear(), 1e-3, "86.4 eps for the critical stress's 86.43 eps"},
  };
  for (const FactorRow& f : factors) {
    chapter.cases.push_back({f.element, "theory of plates, EN 1993-1-5 tables 4.1 and 4.2",
                             f.inputs, f.exact, f.ours, "", f.tolerance, f.remark});
  }
  return chapter;
}

Chapter ClassLimits() {
  Chapter chapter{"Class limits",
                  "The largest c/t within a class, found by halving on the program's class routine "
                  "for S355, against the limits of the standard's table times sqrt(235/355).",
                  {}};
  for (const LimitRow& row : LimitRows()) {
    for (int within = 1; within <= 3; ++within) {
      const bool printed = within == 3 || row.tolerance == kExact;
      chapter.cases.push_back({std::string(row.element) + ", class " + std::to_string(within),
                               "EN 1993-1-1 table 5.2, NS 3472 12.1", row.stresses,
                               row.limits[within - 1] * kEps355, Limit(within, row.classOf), "",
                               printed ? row.tolerance : kExact, within == 3 ? row.remark : ""});
    }
  }
  return chapter;
}

}  // namespace korvane::verification
