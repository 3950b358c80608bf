// SPDX-License-Identifier: GPL-3.0-or-later
// The interaction diagram of a section: where the section control reaches the allowable ratio.
#pragma once

#include <vector>

#include "core/calculation.h"

namespace korvane {

/// The two forces of a diagram; the others keep the values of the point.
enum class InteractionAxes { NMy, NMz, MyMz };

/// Forces at a point: N in kN, compression positive, My and Mz in kNm, Vy and Vz in kN.
struct PointForces {
  double N = 0, My = 0, Mz = 0, Vy = 0, Vz = 0;
};

/// A point of the envelope, in the units of its axes; none is kept in a direction in which the
/// control never reaches the limit.
struct EnvelopePoint {
  double a = 0, b = 0;
};

/// The forces that governed the section control of a calculated member.
PointForces GoverningForces(const Design& design);

/// The section control's ratio for forces given: the calculation of a member of the same section
/// with these forces at both ends, without stability. 0 where it stops. work is written over.
double SectionRatio(const Design& started, const ProjectState& member, const PointForces& forces,
                    Design& work);

/// The envelope through iufa in directions evenly spread over the plane of the axes, each scaled by
/// the section's own reach along it; the forces that are not on an axis as in at.
std::vector<EnvelopePoint> InteractionEnvelope(const Design& started, const ProjectState& member,
                                               InteractionAxes axes, const PointForces& at,
                                               int directions = 72);

/// A diagram of a member: the envelope and the member's own points in its plane.
struct InteractionDiagram {
  InteractionAxes axes = InteractionAxes::NMy;
  std::vector<EnvelopePoint> envelope;  ///< with the other forces of the governing point
  std::vector<EnvelopePoint> points;    ///< the calculation points
  EnvelopePoint governing;
  double ratio = 0;  ///< of the section control at the governing point, 0 for none
};

/// The three diagrams of a member, in the order of InteractionAxes; none where it can't be
/// calculated.
std::vector<InteractionDiagram> InteractionDiagrams(const Design& started,
                                                    const ProjectState& member,
                                                    int directions = 72);

/// "N-My", "N-Mz", "My-Mz".
const char* WordOf(InteractionAxes axes);

}  // namespace korvane
