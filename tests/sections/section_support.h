// SPDX-License-Identifier: GPL-3.0-or-later
// A section of one family through all its steps on the real data.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <string>

#include "core/calculation.h"
#include "sections/profile_table.h"
#include "tests/support/source_library.h"

namespace korvane::testing {

/// Design strength of the sections below, MPa.
constexpr double kFd = 355 / 1.1;

/// Within what single precision holds of a figure that was worked out in six digits or more.
inline void ExpectClose(double value, double expected, const char* what) {
  EXPECT_NEAR(value, expected, std::fabs(expected) * 1e-5) << what;
}

/// Effective width factor as the clause has it, for a ratio c/t and a buckling factor.
inline double Rho(double ratio, double eps, double k) {
  const double lam = ratio / (28.4 * eps * std::sqrt(k));
  return lam > 0.673 ? (lam - 0.22) / lam / lam : 1;
}

/// Yield stress for which a plate of this slenderness stands at `limit` times eps.
inline double YieldFor(double ratio, double limit) {
  return 235 / std::pow(ratio / limit, 2);
}

/// Moduli of the two sides of a section in class 4, mm3, and its area, mm2.
struct Effective {
  double Weffy1c, Weffy2t, Weffy2c, Weffy1t, Aeff;
};

inline void ExpectEffective(const SectionRecord& rec, const Effective& e) {
  ExpectClose(rec.Weffy1c, e.Weffy1c, "Weffy1c");
  ExpectClose(rec.Weffy2t, e.Weffy2t, "Weffy2t");
  ExpectClose(rec.Weffy2c, e.Weffy2c, "Weffy2c");
  ExpectClose(rec.Weffy1t, e.Weffy1t, "Weffy1t");
  ExpectClose(rec.Aeff, e.Aeff, "Aeff");
}

/// The steps of ComputeSection for a state, without a member around it.
struct Made {
  explicit Made(int type) { st.ProfileType = type; }

  ProjectState st = [] {
    ProjectState s;
    s.fyk = 355.0;
    s.gammam1 = 1.1;
    return s;
  }();
  SectionRecord rec;
  SectionForces f;

  const Family& family() const { return *FindFamily(st.ProfileType); }
  void Load() {
    st.epsilon = std::sqrt(235 / st.fyk);
    st.fd = st.fyk / st.gammam1;
    family().load(st, SourceLibrary()->catalogues, rec);
  }
  SectionRecord& All() {
    Load();
    const RoutineSet& routines = family().routines;
    if (routines.effective) routines.effective(st, rec);
    if (routines.shear) routines.shear(st, rec);
    if (routines.nominal) routines.nominal(st, family(), f, rec);
    return rec;
  }
  void ClassFor(double N, double My, double Mz) {
    f.Ncl = N;
    f.N = N;
    f.My = My;
    f.Mz = Mz;
    family().routines.sectionClass(st, f, rec);
  }
};

/// An HSQ with plates so thin that every part of them is reduced.
inline Made ThinHsq() {
  Made m(24);
  m.st.p24_h = 800.0;
  m.st.p24_b = 900.0;
  m.st.p24_tw = 5.0;
  m.st.p24_tf1 = 8.0;
  m.st.p24_tf2 = 10.0;
  m.st.p24_a = 160.0;
  m.st.p24_c = 4.0;
  return m;
}

}  // namespace korvane::testing
