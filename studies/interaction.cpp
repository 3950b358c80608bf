// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/interaction.h"

#include <cmath>
#include <optional>

#include "studies/member.h"

namespace korvane {

namespace {

constexpr int kDoublings = 60;
constexpr int kHalvings = 40;

/// Moves a point of the plane into the forces.
PointForces At(PointForces forces, InteractionAxes axes, double a, double b) {
  switch (axes) {
    case InteractionAxes::NMy:
      forces.N = a;
      forces.My = b;
      break;
    case InteractionAxes::NMz:
      forces.N = a;
      forces.Mz = b;
      break;
    case InteractionAxes::MyMz:
      forces.My = a;
      forces.Mz = b;
      break;
  }
  return forces;
}

/// How far along (a, b) the ratio stays within the limit; nothing where it is beyond it at the
/// origin or never gets there. Reach within 1E-9 of itself.
template <class Ratio>
std::optional<double> Reach(const Ratio& ratio, double limit, double a, double b) {
  if (ratio(0, 0) > limit) return std::nullopt;
  double inside = 0;
  double outside = 1;
  for (int i = 0; i < kDoublings && !(ratio(outside * a, outside * b) > limit); ++i) {
    inside = outside;
    outside *= 2;
    if (outside > 1E12) return std::nullopt;
  }
  for (int i = 0; i < kHalvings; ++i) {
    const double middle = (inside + outside) / 2;
    (ratio(middle * a, middle * b) > limit ? outside : inside) = middle;
  }
  return inside;
}

}  // namespace

PointForces GoverningForces(const Design& d) {
  const GoverningSection& s = d.checks.section;
  return {s.N, s.My, s.Mz, s.Vy, s.Vz};
}

double SectionRatio(const Design& started, const ProjectState& member, const PointForces& forces,
                    Design& work) {
  ProjectState st = member;
  st.AnalysisMode = 0;
  st.LateralTorsionalBuckling = 0;
  st.ModalAnalysis = 0;
  try {
    st.Ne = forces.N;
    st.My_end.Fill(forces.My);
    st.Mz_end.Fill(forces.Mz);
    st.Vy_end.Fill(forces.Vy);
    st.Vz_end.Fill(forces.Vz);
  } catch (const ArithmeticFault&) {
    return 0;  // beyond what a field holds: never reached by a section
  }
  if (DesignMember(started, st, work, Lines::None).fault) return 0;
  return work.checks.IRsection;
}

std::vector<EnvelopePoint> InteractionEnvelope(const Design& started, const ProjectState& member,
                                               InteractionAxes axes, const PointForces& at,
                                               int directions) {
  Design work = started;
  const auto ratio = [&](double a, double b) {
    return SectionRatio(started, member, At(at, axes, a, b), work);
  };
  const double limit = member.iufa;
  std::vector<EnvelopePoint> envelope;
  const auto alongA = Reach(ratio, limit, 1, 0);
  const auto alongB = Reach(ratio, limit, 0, 1);
  if (!alongA || !alongB) return envelope;
  for (int i = 0; i < directions; ++i) {
    const double angle = 2 * kPi * i / directions;
    const double a = *alongA * std::cos(angle);
    const double b = *alongB * std::sin(angle);
    if (const auto reach = Reach(ratio, limit, a, b)) {
      envelope.push_back({*reach * a, *reach * b});
    }
  }
  return envelope;
}

}  // namespace korvane
