// SPDX-License-Identifier: GPL-3.0-or-later
// Beam formulas of every support case, and natural frequencies.
#include <algorithm>

#include "../analysis/members.h"
#include "analysis/modal.h"
#include "case.h"

namespace korvane::verification {

namespace {

constexpr double kL = 6;
constexpr const char* kTextbook = "beam formula of the textbooks";

struct Solved {
  BeamResults beam;
  Deflections w;
};

/// A beam of 6 m with EI = 21000 kNm2 and all load factors 1.
template <class Load>
Solved Beam(int support, Load load) {
  ProjectState st = BareMember(support, kL);
  st.SpringRestraint = 50;
  load(st);
  return {Analysed(st), Deflected(st)};
}
Solved Line(int support) {
  return Beam(support, [](ProjectState& st) { st.q1 = 10; });
}
Solved Point(int support, double a) {
  return Beam(support, [&](ProjectState& st) { PutPoint(st, 1, 60, a); });
}
Solved Moment(int support, double a) {
  return Beam(support, [&](ProjectState& st) { PutMoment(st, 1, 30, a); });
}
Solved Triangle(int support) {
  return Beam(support, [](ProjectState& st) { PutTrapezoid(st, 1, 0, 10, 0, kL); });
}

constexpr const char* kMoment = "kNm";
constexpr const char* kForce = "kN";
constexpr const char* kWay = "mm";

class Rows {
public:
  Rows(const char* beam, const char* load) : name_(std::string(beam) + ", " + load) {}
  Rows& Add(const char* what, const char* formula, double exact, double ours, const char* unit,
            double tolerance = kExact, const char* remark = "") {
    cases.push_back(
        {name_ + ": " + what, kTextbook, formula, exact, ours, unit, tolerance, remark});
    return *this;
  }
  std::vector<Case> cases;

private:
  std::string name_;
};

constexpr const char* kQ = "q = 10 kN/m";
constexpr const char* kP = "P = 60 kN at mid-span";
constexpr const char* kAside = "P = 60 kN at 1.8 m";
constexpr const char* kQuarter = "P = 60 kN at L/4";
constexpr double kSlices = 3e-3;
constexpr const char* kSliced = "the ramp is cut into 20 slices";

Rows Pinned() {
  const char* beam = "pinned beam";
  Rows r(beam, kQ);
  const Solved q = Line(0);
  r.Add("M", "q L^2/8", 45, q.beam.z.M_max, kMoment);
  r.Add("V", "q L/2", 30, q.beam.z.V_max, kForce);
  r.Add("w", "5 q L^4/(384 EI)", 8.0357143, q.w.DeflZ_max, kWay);
  const Solved across = Beam(0, [](ProjectState& st) { st.q1 = 10, st.q1_yz = 0; });
  Rows y(beam, "q = 10 kN/m along y");
  y.Add("Mz", "q L^2/8", 45, across.beam.y.M_max, kMoment);
  y.Add("wy", "5 q L^4/(384 EI)", 8.0357143, across.w.DeflY_max, kWay);
  Rows p(beam, kP);
  const Solved mid = Point(0, 3);
  p.Add("M", "P L/4", 90, mid.beam.z.M_max, kMoment);
  p.Add("w", "P L^3/(48 EI)", 12.857143, mid.w.DeflZ_max, kWay);
  Rows a(beam, kAside);
  const Solved aside = Point(0, 1.8);
  a.Add("M", "P a b/L", 75.6, aside.beam.z.M_max, kMoment);
  a.Add("w at P", "P a^2 b^2/(3 EI L)", 9.072, aside.w.DeflZ[15], kWay);
  Rows third(beam, "P = 60 kN at L/3");
  third.Add("M", "P a b/L", 80, Point(0, 2).beam.z.M_max, kMoment, 1e-3,
            "no station at the load; the points beside it stand 0.1 % off");
  Rows m(beam, "Mo = 30 kNm at the left end");
  const Solved end = Moment(0, 0);
  m.Add("V", "Mo/L", -5, end.beam.z.V_min, kForce);
  m.Add("w at L/2", "Mo L^2/(16 EI)", 3.2142857, end.w.DeflZ[25], kWay);
  Rows t(beam, "q from 0 to 10 kN/m");
  const Solved ramp = Triangle(0);
  t.Add("M", "q L^2/(9 sqrt 3)", 23.094011, ramp.beam.z.M_max, kMoment, kSlices, kSliced);
  t.Add("V at the left", "q L/6", 10, ramp.beam.z.V_max, kForce, kSlices, kSliced);
  t.Add("w", "0.0065222 q L^4/EI", 4.0251194, ramp.w.DeflZ_max, kWay, kSlices, kSliced);
  for (const Rows* more : {&y, &p, &a, &third, &m, &t}) {
    r.cases.insert(r.cases.end(), more->cases.begin(), more->cases.end());
  }
  return r;
}

Rows Propped() {
  const char* beam = "propped cantilever";
  Rows r(beam, kQ);
  const Solved q = Line(1);
  r.Add("M fixed", "-q L^2/8", -45, q.beam.z.M_min, kMoment);
  r.Add("M span", "9 q L^2/128", 25.3125, q.beam.z.M_max, kMoment, 1e-3,
        "at 3/8 L, between two stations");
  r.Add("V pinned", "3 q L/8", 22.5, q.beam.z.V_max, kForce);
  r.Add("V fixed", "-5 q L/8", -37.5, q.beam.z.V_min, kForce);
  r.Add("w at L/2", "q L^4/(192 EI)", 3.2142857, q.w.DeflZ[25], kWay);
  r.Add("w", "q L^4/(184.65 EI)", 3.3424119, q.w.DeflZ_max, kWay, 1e-3,
        "at 0.4215 L, between two stations");
  Rows p(beam, kP);
  const Solved mid = Point(1, 3);
  p.Add("M fixed", "-3 P L/16", -67.5, mid.beam.z.M_min, kMoment);
  p.Add("M span", "5 P L/32", 56.25, mid.beam.z.M_max, kMoment);
  p.Add("w at L/2", "7 P L^3/(768 EI)", 5.625, mid.w.DeflZ[25], kWay);
  Rows m(beam, "Mo = 30 kNm at the pin");
  const Solved end = Moment(1, 0);
  m.Add("M fixed", "-Mo/2", -15, end.beam.z.M_min, kMoment);
  m.Add("w at L/2", "Mo L^2/(32 EI)", 1.6071429, end.w.DeflZ[25], kWay);
  for (const Rows* more : {&p, &m}) {
    r.cases.insert(r.cases.end(), more->cases.begin(), more->cases.end());
  }
  return r;
}

Rows BuiltIn() {
  const char* beam = "built-in beam";
  Rows r(beam, kQ);
  const Solved q = Line(2);
  r.Add("M ends", "-q L^2/12", -30, q.beam.z.M_min, kMoment);
  r.Add("M span", "q L^2/24", 15, q.beam.z.M_max, kMoment);
  r.Add("w", "q L^4/(384 EI)", 1.6071429, q.w.DeflZ_max, kWay);
  Rows p(beam, kP);
  const Solved mid = Point(2, 3);
  p.Add("M ends", "-P L/8", -45, mid.beam.z.M_min, kMoment);
  p.Add("M span", "P L/8", 45, mid.beam.z.M_max, kMoment);
  p.Add("w", "P L^3/(192 EI)", 3.2142857, mid.w.DeflZ_max, kWay);
  Rows a(beam, kAside);
  const Solved aside = Point(2, 1.8);
  a.Add("M left", "-P a b^2/L^2", -52.92, aside.beam.z.M[0], kMoment);
  a.Add("M right", "-P a^2 b/L^2", -22.68, aside.beam.z.M[50], kMoment);
  a.Add("w at P", "P a^3 b^3/(3 EI L^3)", 1.90512, aside.w.DeflZ[15], kWay);
  Rows m(beam, "Mo = 30 kNm at mid-span");
  const Solved couple = Moment(2, 3);
  m.Add("M left", "Mo/4", 7.5, couple.beam.z.M[0], kMoment);
  m.Add("M right", "-Mo/4", -7.5, couple.beam.z.M[50], kMoment);
  for (const Rows* more : {&p, &a, &m}) {
    r.cases.insert(r.cases.end(), more->cases.begin(), more->cases.end());
  }
  return r;
}

Rows Cantilever() {
  const char* beam = "cantilever";
  Rows r(beam, kQ);
  const Solved q = Line(4);
  r.Add("M", "-q L^2/2", -180, q.beam.z.M_min, kMoment);
  r.Add("V", "q L", 60, -q.beam.z.V_min, kForce, kExact,
        "shown with the opposite sign to the other supports, on purpose");
  r.Add("w", "q L^4/(8 EI)", 77.142857, q.w.DeflZ_max, kWay);
  Rows p(beam, "P = 60 kN at the tip");
  const Solved tip = Point(4, kL);
  p.Add("M", "-P L", -360, tip.beam.z.M_min, kMoment);
  p.Add("w", "P L^3/(3 EI)", 205.71429, tip.w.DeflZ_max, kWay);
  Rows a(beam, "P = 60 kN at 0.6 L");
  a.Add("w at the tip", "P a^2 (3 L - a)/(6 EI)", 88.868571, Point(4, 3.6).w.DeflZ[50], kWay);
  Rows m(beam, "Mo = 30 kNm at the tip");
  const Solved end = Moment(4, kL);
  m.Add("M", "-Mo", -30, end.beam.z.M_min, kMoment);
  m.Add("w at the tip", "Mo L^2/(2 EI)", 25.714286, end.w.DeflZ[50], kWay);
  for (const Rows* more : {&p, &a, &m}) {
    r.cases.insert(r.cases.end(), more->cases.begin(), more->cases.end());
  }
  return r;
}

/// Springs that hold half the fixed end moment of a line load: for equal springs at both ends
/// k = 2 EI/L. The exact end moments of other loads follow from the end rotations.
Rows Springs() {
  Rows r("beam on two springs of 50 %", kQ);
  const Solved q = Line(3);
  r.Add("M ends", "-0.5 q L^2/12", -15, q.beam.z.M_min, kMoment);
  r.Add("M span", "q L^2/8 - 0.5 q L^2/12", 30, q.beam.z.M_max, kMoment);
  r.Add("w", "5 q L^4/(384 EI) - M L^2/(8 EI)", 4.8214286, q.w.DeflZ_max, kWay);
  Rows p("beam on two springs of 50 %", kP);
  const Solved mid = Point(3, 3);
  p.Add("M ends", "k = 2 EI/L: -P L/16", -22.5, mid.beam.z.M_min, kMoment);
  p.Add("w", "P L^3/(48 EI) - M L^2/(8 EI)", 8.0357143, mid.w.DeflZ_max, kWay);
  Rows a("beam on two springs of 50 %", kQuarter);
  const Solved aside = Point(3, 1.5);
  a.Add("M left", "k = 2 EI/L at both ends", -21.09375, aside.beam.z.M[0], kMoment, 0.21,
        "the restraint blends two beams and is no stiffness: more at the near end");
  a.Add("M right", "k = 2 EI/L at both ends", -12.65625, aside.beam.z.M[50], kMoment, 0.34,
        "and less at the far end");
  Rows one("beam on a pin and a spring of 50 %", kQ);
  const Solved pin = Line(5);
  one.Add("M spring", "-0.5 q L^2/8", -22.5, pin.beam.z.M_min, kMoment);
  one.Add("w at L/2", "5 q L^4/(384 EI) - M L^2/(16 EI)", 5.625, pin.w.DeflZ[25], kWay);
  Rows two("beam on a pin and a spring of 50 %", kQuarter);
  two.Add("M spring", "k = 3 EI/L", -21.09375, Point(5, 1.5).beam.z.M_min, kMoment);
  for (const Rows* more : {&p, &a, &one, &two}) {
    r.cases.insert(r.cases.end(), more->cases.begin(), more->cases.end());
  }
  return r;
}

struct Mode {
  int support;
  const char* beam;
  double frequency[3];  ///< Hz, (beta L)^2/(2 pi L^2) sqrt(EI/m)
};
constexpr Mode kModes[] = {{0, "pinned beam", {19.9953, 79.9810, 179.957}},
                           {1, "propped cantilever", {31.2364, 101.226, 211.200}},
                           {2, "built-in beam", {45.3270, 124.946, 244.943}},
                           {4, "cantilever", {7.12325, 44.6406, 124.995}}};

}  // namespace

Chapter BeamFormulas() {
  Chapter chapter{"Beam formulas",
                  "Beams of L = 6 m with EI = 21000 kNm2, all load factors 1. Deflections are "
                  "positive downwards.",
                  {}};
  for (const Rows& rows : {Pinned(), Propped(), BuiltIn(), Cantilever(), Springs()}) {
    chapter.cases.insert(chapter.cases.end(), rows.cases.begin(), rows.cases.end());
  }
  return chapter;
}

Chapter Frequencies() {
  Chapter chapter{"Natural frequencies",
                  "Bending frequencies of a beam of 6 m, EI = 21000 kNm2, 100 kg/m: roots of the "
                  "frequency equation of the uniform beam.",
                  {}};
  for (const Mode& mode : kModes) {
    ProjectState st = BareMember(mode.support, kL);
    ModalResults modal;
    ModalAnalysisRun(st, 100, 1E8, modal);
    for (int n = 1; n <= 3; ++n) {
      chapter.cases.push_back({std::string(mode.beam) + ", mode " + std::to_string(n),
                               "uniform beam theory", "E = 210000 MPa, Iy = 1E8 mm4",
                               mode.frequency[n - 1], modal.ModalFreq[n], "Hz", 4e-3,
                               "factors with two or three digits"});
    }
  }
  ProjectState st = BareMember(0, kL);
  st.q1 = 10;
  ModalResults modal;
  ModalAnalysisRun(st, 100, 1E8, modal);
  chapter.cases.push_back({"mass of 10 kN/m and 100 kg/m", "g = 9.80665 m/s2", "100 + 10000/g",
                           1119.7162, modal.ModalMass, "kg/m", 1e-3, "1 kN/m counts as 102 kg/m"});
  return chapter;
}

}  // namespace korvane::verification
