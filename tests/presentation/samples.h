// SPDX-License-Identifier: GPL-3.0-or-later
// Members with known forces and sections for the tests of pictures.
#pragma once

#include <cmath>
#include <random>
#include <string>
#include <vector>

#include "analysis/beam.h"
#include "analysis/deflections.h"
#include "places.h"
#include "presentation/grafik.h"
#include "sections/profile_table.h"
#include "tests/support/recording_target.h"

namespace korvane::sample {

/// The names of all diagrams, in the order of DiagramKind.
inline std::vector<DiagramInfo> AllDiagrams() {
  std::vector<DiagramInfo> all;
  for (int kind = 0; kind <= int(DiagramKind::AxialForce); ++kind) {
    all.push_back(InfoOf(static_cast<DiagramKind>(kind)));
  }
  return all;
}

/// A member with results, as a calculation would leave them.
struct Member {
  ProjectState st;
  BeamResults beam;
  Deflections deflections;
  double N = 0;
  DiagramData Data() const { return {st, beam, deflections, N}; }
};

inline void Widen(double v, float32& max, float32& min) {
  if (v > max) max = v;
  if (v < min) min = v;
}

/// Fills a plane from two functions of the relative position.
template <class M, class V>
void Fill(PlaneForces& f, M moment, V shear) {
  for (int i = 0; i <= 50; ++i) {
    const double x = i / 50.0;
    f.M[i] = moment(x);
    f.V[i] = shear(x);
    Widen(f.M[i], f.M_max, f.M_min);
    Widen(f.V[i], f.V_max, f.V_min);
  }
}

/// Simple beam of 6 m with 10 kN/m: 45 kNm at mid-span, 30 kN at the supports, 8 mm.
inline Member SimpleBeam() {
  Member m;
  m.st.L = 6;
  Fill(
      m.beam.z, [](double x) { return 180 * x * (1 - x); },
      [](double x) { return 30 * (1 - 2 * x); });
  for (int i = 0; i <= 50; ++i) {
    const double x = i / 50.0;
    m.deflections.DeflZ[i] = 25.6 * (x - 2 * x * x * x + x * x * x * x);
    Widen(m.deflections.DeflZ[i], m.deflections.DeflZ_max, m.deflections.DeflZ_min);
  }
  return m;
}

/// Fixed beam of 6 m with 10 kN/m: -30 kNm at the ends, 15 kNm at mid-span.
inline Member FixedBeam() {
  Member m;
  m.st.L = 6;
  m.st.SupportType = 2;
  Fill(
      m.beam.z, [](double x) { return 180 * x * (1 - x) - 30; },
      [](double x) { return 30 * (1 - 2 * x); });
  m.beam.z.M_zero1 = 0.2113;
  m.beam.z.M_zero2 = 0.7887;
  return m;
}

inline double Tenths(std::mt19937& random, double low, double high) {
  const double v = std::uniform_real_distribution<double>(low, high)(random);
  return std::round(v * 10) / 10;
}

inline int Pick(std::mt19937& random, int low, int high) {
  return std::uniform_int_distribution<int>(low, high)(random);
}

/// All loads in use, with random sizes, places, groups and directions.
inline ProjectState FullLoads(unsigned seed) {
  std::mt19937 random(seed);
  ProjectState st;
  st.L = Tenths(random, 2, 20);
  const double L = st.L;
  st.SupportType = Pick(random, 0, 5);
  const auto load = [&] { return Tenths(random, -40, 160); };
  const auto group = [&] { return Pick(random, 0, 2); };
  const auto axis = [&] { return Pick(random, 0, 3) > 0 ? 1 : 0; };
  st.q1 = load(), st.q1_pv = group(), st.q1_yz = axis();
  st.q2 = load(), st.q2_pv = group(), st.q2_yz = axis();
  st.q3 = load(), st.q3_pv = group(), st.q3_yz = axis();
  st.q4 = load(), st.q4_pv = group(), st.q4_yz = axis();
  const double sign = Pick(random, 0, 3) > 0 ? 1 : -1;
  st.qt1_1 = sign * Tenths(random, 0, 50), st.qt1_2 = sign * Tenths(random, 1, 50);
  st.qt1_x1 = Tenths(random, 0, L / 3), st.qt1_x2 = Tenths(random, L / 2, L);
  st.qt1_pv = group(), st.qt1_yz = axis();
  st.qt2_1 = Tenths(random, 1, 50), st.qt2_2 = 0.0;
  st.qt2_x1 = Tenths(random, 0, L / 2), st.qt2_x2 = L;
  st.qt2_pv = group(), st.qt2_yz = axis();
  st.qt3_1 = -5.0, st.qt3_2 = -5.0;
  st.qt3_x1 = Tenths(random, 0, L / 2), st.qt3_x2 = Tenths(random, 0.6 * L, L);
  st.qt3_pv = group(), st.qt3_yz = axis();
  for (int i = 1; i <= 8; ++i) {
    st.pm[i] = load();
    st.pmx[i] = Tenths(random, 0.1, L);
    st.pm_pm[i] = Pick(random, 0, 3) == 0 ? 1 : 0;
    st.pm_pv[i] = group();
    st.pm_yz[i] = axis();
  }
  st.NP = load(), st.NV1 = load(), st.NV2 = load();
  return st;
}

/// All loads in one plane and one group, the point loads in a narrow stretch.
inline ProjectState CrowdedLoads(unsigned seed, int group) {
  ProjectState st = FullLoads(seed);
  std::mt19937 random(seed + 1000);
  for (int i = 1; i <= 8; ++i) {
    st.pm_yz[i] = 1;
    st.pm_pv[i] = group;
    st.pmx[i] = st.L * (0.3 + 0.02 * i);
  }
  for (int16* yz : {&st.qt1_yz, &st.qt2_yz, &st.qt3_yz, &st.q1_yz, &st.q2_yz}) *yz = 1;
  for (int16* pv : {&st.qt1_pv, &st.qt2_pv, &st.qt3_pv, &st.q1_pv}) *pv = group;
  return st;
}

/// The section of a family with its sizes from the catalogue of the source tree.
struct Section {
  ProjectState st;
  SectionRecord rec;
};

inline const Catalogues& Tables() {
  static const Catalogues tables = ReadCatalogues(std::string(KORVANE_SOURCE_DIR) + "/data");
  return tables;
}

inline Section SectionOf(int code) {
  Section s;
  s.st.ProfileType = code;
  s.st.FigureNotToScale = 0;
  s.st.idxIPE = 8;
  s.st.idxINP = 10;
  s.st.idxUPE = 6;
  s.st.idxUNP = 8;
  s.st.idxRHSs = s.st.idxCFRHSs = 40;
  s.st.idxRHSr = s.st.idxCFRHSr = 60;
  s.st.idxLeq = 30;
  s.st.idxLuneq = 25;
  s.st.p101_idx1 = 20;
  const Family* family = FindFamily(code);
  if (family && family->load) family->load(s.st, Tables(), s.rec);
  return s;
}

/// The codes of all families.
inline std::vector<int> AllCodes() {
  std::vector<int> codes;
  for (const Family& f : AllFamilies()) codes.push_back(f.code);
  return codes;
}

}  // namespace korvane::sample
