// SPDX-License-Identifier: GPL-3.0-or-later
// What holds for any loads on any support: superposition, scaling, mirror symmetry, shear as the
// slope of the moment, jumps at the loads, and deflections against stiffness.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "members.h"

namespace korvane {
namespace {

/// Numbers that repeat with each run, from a linear congruence.
class Sequence {
public:
  explicit Sequence(std::uint32_t seed) : state_(seed) {}
  double Between(double a, double b) {
    state_ = state_ * 1664525U + 1013904223U;
    return a + (b - a) * ((state_ >> 8) / 16777216.0);
  }
  bool Coin() { return Between(0, 1) < 0.5; }

private:
  std::uint32_t state_;
};

constexpr double kL = 6;
constexpr int kTrials = 20;

/// A member with loads of all kinds in the z plane, none near a station.
ProjectState RandomMember(int support, std::uint32_t seed) {
  Sequence s(seed);
  ProjectState st = BareMember(support, kL);
  st.SpringRestraint = int(s.Between(1, 99));
  st.q1 = s.Between(-20, 20);
  for (int t = 1; t <= 3; ++t) {
    PutTrapezoid(st, t, s.Between(0, 15), s.Between(0, 15), s.Between(0, 2.5), s.Between(3, kL));
  }
  for (int i = 1; i <= 8; ++i) {
    const double x = (int(s.Between(1, 48)) + s.Between(0.25, 0.75)) * kL / 50;
    if (s.Coin()) {
      PutPoint(st, i, s.Between(-50, 50), x);
    } else {
      PutMoment(st, i, s.Between(-50, 50), x);
    }
  }
  return st;
}

std::vector<ProjectState> RandomMembers() {
  std::vector<ProjectState> all;
  for (int support = 0; support <= 5; ++support) {
    for (std::uint32_t seed = 1; seed <= kTrials; ++seed) {
      all.push_back(RandomMember(support, seed));
    }
  }
  return all;
}

std::string Name(const ProjectState& st) {
  return "support " + std::to_string(int(st.SupportType)) + ", q " + std::to_string(st.q1);
}

/// The member with line load, trapezoids or load entries alone.
enum class Share { Line, Trapezoids, OddEntries, EvenEntries };
constexpr Share kShares[] = {Share::Line, Share::Trapezoids, Share::OddEntries, Share::EvenEntries};

ProjectState Only(ProjectState st, Share share) {
  if (share != Share::Line) st.q1 = 0;
  for (int t = 1; t <= 3 && share != Share::Trapezoids; ++t) {
    st.*TrapezoidOf(t).q1 = 0;
    st.*TrapezoidOf(t).q2 = 0;
  }
  for (int i = 1; i <= 8; ++i) {
    const bool keep = share == (i % 2 == 1 ? Share::OddEntries : Share::EvenEntries);
    if (!keep) st.pm[i] = 0;
  }
  return st;
}

TEST(Properties, LoadsSuperpose) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    const BeamResults all = Analysed(st);
    const Deflections w = Deflected(st);
    double M[51] = {};
    double V[51] = {};
    double d[51] = {};
    for (const Share share : kShares) {
      const BeamResults part = Analysed(Only(st, share));
      const Deflections partW = Deflected(Only(st, share));
      for (int i = 0; i <= 50; ++i) {
        M[i] += part.z.M[i];
        V[i] += part.z.V[i];
        d[i] += partW.DeflZ[i];
      }
    }
    for (int i = 0; i <= 50; ++i) {
      EXPECT_NEAR(all.z.M[i], M[i], 5e-4) << i;
      EXPECT_NEAR(all.z.V[i], V[i], 1e-4) << i;
      EXPECT_NEAR(w.DeflZ[i], d[i], 5e-4) << i;
    }
  }
}

TEST(Properties, TwiceTheLoadFactorsAreTwiceTheForces) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    ProjectState twice = st;
    twice.lfp_uls = 2;
    twice.lfp_sls = 2;
    const BeamResults one = Analysed(st);
    const BeamResults two = Analysed(twice);
    const Deflections w1 = Deflected(st);
    const Deflections w2 = Deflected(twice);
    for (int i = 0; i <= 50; ++i) {
      // The ordinates of slices round in single precision, else doubling is exact.
      EXPECT_NEAR(two.z.M[i], 2 * one.z.M[i], 1e-4) << i;
      EXPECT_NEAR(two.z.V[i], 2 * one.z.V[i], 1e-4) << i;
      EXPECT_NEAR(w2.DeflZ[i], 2 * w1.DeflZ[i], 1e-4) << i;
    }
    EXPECT_NEAR(two.MyAbsMax, 2 * one.MyAbsMax, 1e-4);
    EXPECT_NEAR(two.betaMy, one.betaMy, 1e-5);  // a ratio
  }
}

/// The member seen from its other end.
ProjectState Mirrored(ProjectState st) {
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    const double q1 = st.*s.q1;
    const double x1 = st.*s.x1;
    st.*s.q1 = st.*s.q2;
    st.*s.q2 = q1;
    st.*s.x1 = kL - st.*s.x2;
    st.*s.x2 = kL - x1;
  }
  for (int i = 1; i <= 8; ++i) {
    st.pmx[i] = kL - st.pmx[i];
    if (st.pm_pm[i] == 1) st.pm[i] = -st.pm[i];
  }
  return st;
}

/// Except where a slice stands at a station, whose side is not mirrored.
TEST(Properties, SymmetricSupportsMirror) {
  for (const ProjectState& st : RandomMembers()) {
    const int support = st.SupportType;
    if (support != 0 && support != 2 && support != 3) continue;
    SCOPED_TRACE(Name(st));
    const BeamResults a = Analysed(st);
    const BeamResults b = Analysed(Mirrored(st));
    const Deflections wa = Deflected(st);
    const Deflections wb = Deflected(Mirrored(st));
    for (int i = 0; i <= 50; ++i) {
      EXPECT_NEAR(a.z.M[i], b.z.M[50 - i], 5e-4) << i;
      EXPECT_NEAR(a.z.V[i], -b.z.V[50 - i], 1e-4) << i;
      EXPECT_NEAR(wa.DeflZ[i], wb.DeflZ[50 - i], 5e-4) << i;
    }
  }
}

/// With a line load and load entries, between two stations without an entry between them.
TEST(Properties, ShearIsTheSlopeOfTheMoment) {
  for (ProjectState st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    for (int t = 1; t <= 3; ++t) PutTrapezoid(st, t, 0, 0, 0, 0);
    const BeamResults r = Analysed(st);
    const double h = kL / 50;
    const double sign = st.SupportType == 4 ? -1 : 1;  // the cantilever's shear
    for (int i = 1; i < 49; ++i) {
      bool loaded = false;
      for (int e = 1; e <= 8; ++e) loaded |= st.pmx[e] > i * h && st.pmx[e] < (i + 1) * h;
      if (loaded) continue;
      const double slope = (r.z.M[i + 1] - r.z.M[i]) / h;
      EXPECT_NEAR(slope, sign * (r.z.V[i] + r.z.V[i + 1]) / 2, 1e-3) << i;
    }
  }
}

/// The two points around an entry show its jump: in the shear for a point load, in the moment
/// for a moment, beside what the shear adds to the moment on the way.
TEST(Properties, JumpsEqualTheLoads) {
  for (ProjectState st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    for (int t = 1; t <= 3; ++t) PutTrapezoid(st, t, 0, 0, 0, 0);
    for (int i = 2; i <= 8; ++i) st.pmx[i] = 0;
    for (int i = 2; i <= 8; ++i) st.pm[i] = 0;
    const BeamResults r = Analysed(st);
    const double dx = 0.002 * st.pmx[1];
    const double sign = st.SupportType == 4 ? -1 : 1;  // the cantilever's shear
    const double V = sign * (r.z.V_pt[12] - r.z.V_pt[11]);
    const double M = r.z.M_pt[12] - r.z.M_pt[11];
    const double way = sign * (r.z.V_pt[11] + r.z.V_pt[12]) / 2 * dx;
    const bool moment = st.pm_pm[1] == 1;
    EXPECT_NEAR(V, -(moment ? 0 : double(st.pm[1])) - st.q1 * dx, 1e-4);
    EXPECT_NEAR(M, (moment ? double(st.pm[1]) : 0) + way, 2e-4);
  }
}

TEST(Properties, EndShearsCarryTheWholeLoad) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    double load = st.q1 * kL;
    for (int t = 1; t <= 3; ++t) {
      const Trapezoid& s = TrapezoidOf(t);
      load += (st.*s.q1 + st.*s.q2) / 2 * (st.*s.x2 - st.*s.x1);
    }
    for (int i = 1; i <= 8; ++i) load += st.pm_pm[i] == 0 ? double(st.pm[i]) : 0;
    const BeamResults r = Analysed(st);
    const double sign = st.SupportType == 4 ? -1 : 1;
    EXPECT_NEAR(sign * (r.z.V[0] - r.z.V[50]), load, 1e-4);
  }
}

TEST(Properties, TwiceTheModulusHalvesDeflectionsAndLeavesForces) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    ProjectState stiff = st;
    stiff.E = 2 * st.E;
    const Deflections soft = Deflected(st);
    const Deflections hard = Deflected(stiff);
    const BeamResults a = Analysed(st);
    const BeamResults b = Analysed(stiff);
    for (int i = 0; i <= 50; ++i) {
      EXPECT_NEAR(hard.DeflZ[i], soft.DeflZ[i] / 2, 1e-6 * std::fabs(soft.DeflZ[i])) << i;
      EXPECT_EQ(a.z.M[i], b.z.M[i]) << i;
    }
  }
}

TEST(Properties, TwiceTheSecondMomentOfAreaHalvesDeflections) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    const Deflections soft = Deflected(st, 1E8);
    const Deflections hard = Deflected(st, 2E8);
    for (int i = 0; i <= 50; ++i) {
      EXPECT_NEAR(hard.DeflZ[i], soft.DeflZ[i] / 2, 1e-6 * std::fabs(soft.DeflZ[i])) << i;
    }
  }
}

/// Curvature of the deflection line is -M/EI, seen by second differences between the loads.
TEST(Properties, CurvatureFollowsTheMoment) {
  for (ProjectState st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    for (int t = 1; t <= 3; ++t) PutTrapezoid(st, t, 0, 0, 0, 0);
    const Deflections d = Deflected(st);
    const BeamResults r = Analysed(st);
    const double h = kL / 50;
    const double K = 1E12 / (st.E * 1E8);
    for (int i = 2; i < 49; ++i) {
      bool loaded = false;
      for (int e = 1; e <= 8; ++e) {
        loaded |= st.pmx[e] > (i - 1) * h && st.pmx[e] < (i + 1) * h;
      }
      if (loaded) continue;
      const double bend = d.DeflZ[i - 1] - 2 * d.DeflZ[i] + d.DeflZ[i + 1];
      const double rounding = 4e-7 * std::fabs(d.DeflZ[i]) / (h * h * K);
      // a line load adds q*h^2/12 to the mean of the moment over the three stations
      const double mean = r.z.M[i] - st.q1 * h * h / 12;
      EXPECT_NEAR(-bend / (h * h * K), mean, rounding + 1e-3) << i;
    }
  }
}

/// The largest absolute moment is that of the extremes, and no station or point leaves them.
TEST(Properties, ExtremesHoldAllStationsAndPoints) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    const BeamResults r = Analysed(st);
    for (int i = 0; i <= 50; ++i) {
      EXPECT_LE(r.z.M[i], r.z.M_max) << i;
      EXPECT_GE(r.z.M[i], r.z.M_min) << i;
      EXPECT_LE(r.z.V[i], r.z.V_max) << i;
      EXPECT_GE(r.z.V[i], r.z.V_min) << i;
    }
    for (int j = 0; j <= r.pt_last; ++j) {
      EXPECT_LE(r.z.M_pt[j], r.z.M_max) << j;
      EXPECT_GE(r.z.M_pt[j], r.z.M_min) << j;
    }
    EXPECT_EQ(r.MyAbsMax, std::max<double>(r.z.M_max, -r.z.M_min));
  }
}

TEST(Properties, TheSameMemberGivesTheSameResult) {
  for (const ProjectState& st : RandomMembers()) {
    SCOPED_TRACE(Name(st));
    const BeamResults a = Analysed(st);
    const BeamResults b = Analysed(st);
    for (int i = 0; i <= 50; ++i) EXPECT_EQ(a.z.M[i], b.z.M[i]) << i;
    EXPECT_EQ(a.betaMy, b.betaMy);
  }
}

}  // namespace
}  // namespace korvane
