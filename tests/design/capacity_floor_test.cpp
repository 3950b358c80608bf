// SPDX-License-Identifier: GPL-3.0-or-later
// The floor under the verdict a second time, from what is shown of a design alone: the capacities
// of the section table, Mdb and the column's capacity, against the forces at the points. Nothing
// of checks/capacity_floor is used. KORVANE_LONG=1 makes it a hundred thousand designs, a larger
// number that many of each family.
#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

#include "designs.h"
#include "ordinary_members.h"
#include "random_runs.h"
#include "sections/shown_values.h"

namespace korvane {
namespace {

/// Of each of the two kinds of members and each family; 32 families make 102,400 designs.
int DesignsPerFamily() {
  const char* wish = std::getenv("KORVANE_LONG");
  const int count = wish == nullptr ? 0 : std::atoi(wish);
  return count <= 0 ? 60 : count == 1 ? 1600 : count;
}

/// The force that takes the greatest share of its capacity.
struct Most {
  double share = 0;
  std::string words;
  void Hold(const char* force, double S, const std::string& capacity, double Sd) {
    if (S == 0) return;
    const double now = Sd > 0 ? std::fabs(S) / Sd : HUGE_VAL;
    if (!(now > share)) return;
    share = now;
    words = force + (" = " + std::to_string(S)) + ", " + capacity + " = " + std::to_string(Sd);
  }
};

using Printed = std::map<std::string, double, std::less<>>;

Printed PrintedCapacities(const Design& d) {
  Printed printed;
  for (const ShownValue& v : Capacities(d.st, d.rec)) printed[std::string(v.name)] = v.value;
  if (printed.count("Ncrd") != 0) printed["Ncd"] = printed["Ncrd"];
  // Shown is the shear of the unstiffened web; what stiffeners make of it stands in the results.
  if (printed.count("Vdz") != 0) printed["Vdz"] = d.rec.Vdz;
  if (printed.count("Vdy") != 0) printed["Vdy"] = d.rec.Vdy;
  if (!(d.forces.N < 0)) return printed;
  // Shown is the class of bending alone; tension makes it better, up to the plastic moment.
  const double fd = d.st.fyk / d.st.gammam1 / 1E6;
  for (const auto& [name, W] :
       {std::pair{"Mdy", d.rec.Wply}, std::pair{"Mdz", d.rec.Wplz}, std::pair{"MdyTop", d.rec.Wply},
        std::pair{"MdyBottom", d.rec.Wply}}) {
    const auto found = printed.find(name);
    if (found != printed.end()) found->second = std::max(found->second, W * fd);
  }
  return printed;
}

/// The least of the corners' capacities; 0 stands for a corner on the axis.
double Least(const Printed& printed, const char* axis) {
  double least = HUGE_VAL;
  for (const auto& [name, value] : printed) {
    if (name.starts_with(axis) && value != 0) least = std::min(least, value);
  }
  return least;
}

void HoldPoint(const Design& d, const Printed& printed, int i, Most& most) {
  const double My = d.beam.z.M_pt[i];
  const double Mz = d.beam.y.M_pt[i];
  if (printed.count("Mud1") != 0) {
    const double a = d.rec.alfadeg * std::acos(-1.0) / 180;
    most.Hold("Mu", My * std::cos(a) + Mz * std::sin(a), "Mud", Least(printed, "Mud"));
    most.Hold("Mv", Mz * std::cos(a) - My * std::sin(a), "Mvd", Least(printed, "Mvd"));
  }
  const auto hold = [&](const char* force, double S, const char* capacity) {
    const auto found = printed.find(capacity);
    if (found != printed.end()) most.Hold(force, S, capacity, found->second);
  };
  hold("My", My, "Mdy");
  hold("My", My, My > 0 ? "MdyTop" : "MdyBottom");
  hold("Mz", Mz, "Mdz");
  hold("Vz", d.beam.z.V_pt[i], "Vdz");
  hold("Vy", d.beam.y.V_pt[i], "Vdy");
}

Most FloorByThePrint(const Design& d) {
  Most most;
  const Printed printed = PrintedCapacities(d);
  const double N = d.forces.N;
  const auto axial = printed.find(N > 0 ? "Ncd" : "Ntd");
  if (axial != printed.end()) most.Hold("N", N, axial->first, axial->second);
  if (N > 0 && d.checks.bucklingRan) most.Hold("N", N, "NXmin", d.buckling.NXmin);
  for (int i = 0; i <= d.beam.pt_last; ++i) HoldPoint(d, printed, i, most);
  if (d.st.LateralTorsionalBuckling == 1 && d.ltb.Mdb != 0) {
    most.Hold("My", d.beam.My_gov, "Mdb", std::fabs(d.ltb.Mdb));
  }
  return most;
}

/// What a run of designs showed.
struct Count {
  int designs = 0, passed = 0, above = 0, wrong = 0;
  int unsaid = 0;  ///< above, and no line of the checks is above the limit
  void Take(const Design& d, const std::string& which) {
    ++designs;
    const Most most = FloorByThePrint(d);
    const bool exceeds = most.share > d.st.iufa * (1 + 1E-6);
    above += exceeds;
    unsaid += exceeds && !(MaxIR(d.checks) > d.st.iufa);
    if (!VerdictOf(d).Passes()) return;
    ++passed;
    if (!exceeds) return;
    if (++wrong < 10) ADD_FAILURE() << which << " passes with " << most.words;
  }
};

class PrintedFloor : public testing::TestWithParam<int> {};

TEST_P(PrintedFloor, NothingPassesWithAForceAboveItsCapacity) {
  const Family& family = *FindFamily(GetParam());
  const int wished = DesignsPerFamily();
  Count wild, ordinary;
  for (int i = 0; i < wished; ++i) {
    const unsigned seed =
        7'000'000U + 10'000U * static_cast<unsigned>(family.code) + static_cast<unsigned>(i);
    Dice dice(seed);
    const double ratio = dice.Uniform(0.3, 1.2);
    // Whatever the forms accept, with its loads brought to where the ratio is decided.
    try {
      Design d(SourceLibrary());
      if (!RunDesign(d, seed, family.code)) {
        BringTo(ratio * d.st.iufa, d);
        wild.Take(d, "random seed " + std::to_string(seed));
      }
    } catch (const ArithmeticFault&) {
      ++wild.designs;  // stopped: that is no passing
    }
    try {
      Design d(SourceLibrary());
      StartDesign(d);
      OrdinaryState(seed, family, d.st);
      Calculate(d);
      BringTo(ratio, d);
      ordinary.Take(d, "ordinary seed " + std::to_string(seed));
    } catch (const ArithmeticFault&) {
      ++ordinary.designs;
    }
  }
  EXPECT_EQ(wild.wrong + ordinary.wrong, 0);
  // The comparison says something only where members pass and where forces are above.
  if (family.routines.sectionControl != SectionControlKind::None) {
    EXPECT_GT(ordinary.passed, wished / 4);
  }
  EXPECT_GT(wild.above, 0);
  std::printf(
      "family %d: random %d, %d above (%d unsaid), %d pass; ordinary %d, %d above, %d pass\n",
      family.code, wild.designs, wild.above, wild.unsaid, wild.passed, ordinary.designs,
      ordinary.above, ordinary.passed);
}

std::vector<int> AllCodes() {
  std::vector<int> codes;
  for (const Family& family : AllFamilies()) codes.push_back(family.code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(Families, PrintedFloor, testing::ValuesIn(AllCodes()),
                         [](const auto& code) { return "f" + std::to_string(code.param); });

}  // namespace
}  // namespace korvane
