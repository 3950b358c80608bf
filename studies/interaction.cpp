// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/interaction.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "studies/member.h"

namespace korvane {

namespace {

constexpr int kDoublings = 60;
constexpr int kSteps = 120;
constexpr double kNear = 1E-7;  // forces are held in single precision

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

/// The forces as a point of the plane.
EnvelopePoint In(const PointForces& forces, InteractionAxes axes) {
  switch (axes) {
    case InteractionAxes::NMy:
      return {forces.N, forces.My};
    case InteractionAxes::NMz:
      return {forces.N, forces.Mz};
    case InteractionAxes::MyMz:
      break;
  }
  return {forces.My, forces.Mz};
}

/// How far along (a, b) the ratio stays within the limit; nothing where it is beyond it at the
/// origin or never gets there. Reach within 1E-7 of itself. The ratio nearly rises in a straight
/// line, so the line through both ends of what is left is tried; every third step halves, as a
/// change of the section's class makes it jump.
template <class Ratio>
std::optional<double> Reach(const Ratio& ratio, double limit, double a, double b) {
  double below = ratio(0, 0) - limit;
  if (below > 0) return std::nullopt;
  double inside = 0;
  double outside = 1;
  double beyond = ratio(a, b) - limit;
  for (int i = 0; i < kDoublings && !(beyond > 0); ++i) {
    inside = outside;
    below = beyond;
    outside *= 2;
    if (outside > 1E12) return std::nullopt;
    beyond = ratio(outside * a, outside * b) - limit;
  }
  int side = 0;
  for (int i = 1; i <= kSteps && outside - inside > kNear * outside; ++i) {
    const double share = i % 3 == 0 ? 0.5 : below / (below - beyond);
    // Off the ends, so that what is left shrinks from both.
    const double off = 0.4 * kNear * outside / (outside - inside);
    const double at = inside + (outside - inside) * std::clamp(share, off, 1 - off);
    const double value = ratio(at * a, at * b) - limit;
    const bool out = value > 0;
    (out ? outside : inside) = at;
    (out ? beyond : below) = value;
    // An end that stays is given half its weight: the other one comes to it.
    if (out && side > 0) below /= 2;
    if (!out && side < 0) beyond /= 2;
    side = out ? 1 : -1;
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
    // On an axis the other force is none at all.
    const double a = *alongA * (4 * i % (2 * directions) == directions ? 0 : std::cos(angle));
    const double b = *alongB * (2 * i % directions == 0 ? 0 : std::sin(angle));
    if (const auto reach = Reach(ratio, limit, a, b)) {
      envelope.push_back({*reach * a, *reach * b});
    }
  }
  return envelope;
}

const char* WordOf(InteractionAxes axes) {
  constexpr std::array words{"N-My", "N-Mz", "My-Mz"};
  return words.at(static_cast<std::size_t>(axes));
}

std::vector<InteractionDiagram> InteractionDiagrams(const Design& started,
                                                    const ProjectState& member, int directions) {
  Design d = started;
  std::vector<InteractionDiagram> diagrams;
  if (DesignMember(started, member, d, Lines::None).fault) return diagrams;
  PointForces governing = GoverningForces(d);
  std::vector<PointForces> points;
  for (int i = 0; i <= d.beam.pt_last; ++i) {
    points.push_back({d.forces.N, d.beam.z.M_pt[i], d.beam.y.M_pt[i], 0, 0});
    // Most controls take the moments' sizes; here they stand where the member has them.
    const bool own = d.beam.pt_x[i] == d.checks.section.x;
    if (own && std::fabs(points.back().My) == std::fabs(governing.My)) {
      governing.My = points.back().My;
    }
    if (own && std::fabs(points.back().Mz) == std::fabs(governing.Mz)) {
      governing.Mz = points.back().Mz;
    }
  }
  for (const auto axes : {InteractionAxes::NMy, InteractionAxes::NMz, InteractionAxes::MyMz}) {
    InteractionDiagram& diagram = diagrams.emplace_back();
    diagram.axes = axes;
    diagram.ratio = d.checks.IRsection;
    diagram.envelope = InteractionEnvelope(started, d.st, axes, governing, directions);
    diagram.governing = In(governing, axes);
    for (const PointForces& at : points) diagram.points.push_back(In(at, axes));
  }
  return diagrams;
}

}  // namespace korvane
