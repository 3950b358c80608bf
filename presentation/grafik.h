// SPDX-License-Identifier: GPL-3.0-or-later
// The diagrams of a member: sketch, loads, moment and shear, axial force, deflection.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "analysis/beam.h"
#include "analysis/deflections.h"
#include "core/project_state.h"
#include "presentation/drawing_target.h"

namespace korvane {

// The grid of all diagrams, in user units: the member is 70 wide and has room at both sides.
inline constexpr double kMemberWidth = 70;
inline constexpr double kMemberLeft = 7;
inline constexpr double kPictureWidth = kMemberWidth + 2 * kMemberLeft;

/// Where a diagram goes: a picture box is cleared first, a page is not.
enum class Destination { Picture, Page };

/// Upper left corner of a diagram in user units, and its kind of target.
struct DiagramOrigin {
  double x = 0, y = 0;
  Destination destination = Destination::Page;
};

/// Sizes that the owner of the picture chooses.
struct DiagramStyle {
  double text = 2.4;  ///< em height of the letters in grid units
  double pen = 1;     ///< factor on the widths of all lines
};

enum class DiagramKind {
  BeamSketch,
  AxialPermanent,
  AxialVariable,
  LoadPermZ,
  LoadVarZ,
  LoadPermY,
  LoadVarY,
  MomentShearZ,
  MomentShearY,
  EndMomentZ,
  EndMomentY,
  DeflectionZ,
  DeflectionY,
  AxialForce
};

/// Names of one diagram.
struct DiagramInfo {
  DiagramKind kind;
  const char* name;     ///< word for scripts, "my"
  const char* control;  ///< picture box of the main window
};

/// The names of a diagram.
const DiagramInfo& InfoOf(DiagramKind kind);

/// What diagrams read. N is the axial force in kN, compression positive.
struct DiagramData {
  const ProjectState& st;
  const BeamResults& beam;
  const Deflections& deflections;
  double N = 0;
};

/// The diagrams that belong to the analysis mode, in drawing order; those of the axial loads
/// only where such a load is not 0.
std::vector<DiagramKind> DiagramsOfMode(const ProjectState& st);

/// Nothing acts in a plane: no load stands there, and no moment and no shear.
bool PlaneIsEmpty(const ProjectState& st, const BeamResults& beam, Plane plane);

/// Height of a diagram in grid units; it follows from the data. The width is kPictureWidth.
double DiagramHeight(DiagramKind kind, const DiagramData& data, const DiagramStyle& style);

/// Draws a diagram with its upper left corner at the origin, one grid unit a user unit.
void DrawDiagram(DrawingTarget& target, DiagramKind kind, const DiagramOrigin& origin,
                 const DiagramData& data, const DiagramStyle& style);

/// Draws a diagram into a rectangle of the target's user units, undistorted and centred.
void DrawDiagramIn(DrawingTarget& target, DiagramKind kind, const Box& place,
                   Destination destination, const DiagramData& data, const DiagramStyle& style);

/// Whether a diagram has values at the stations.
bool HasStations(DiagramKind kind);

/// What is said for the pointer at a relative position of a diagram: the values of
/// the nearest station; empty for diagrams without stations.
std::string ValueUnderPointer(DiagramKind kind, double relative, const DiagramData& data);

/// The member with supports, stiffeners, lateral restraint points and chosen points.
void DrawBeamSketch(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                    const DiagramStyle& style);
/// Its height in grid units, as those below.
double BeamSketchHeight(const ProjectState& st, const DiagramStyle& style);

/// Axial loads of the permanent group in kN, unfactored.
void DrawAxialPermanent(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                        const DiagramStyle& style);
/// Those of both variable groups; a load of 0 has no line of its own beside one that is not.
void DrawAxialVariable(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                       const DiagramStyle& style);
/// Height of the permanent or of the variable ones in grid units.
double AxialLoadHeight(const ProjectState& st, bool variable, const DiagramStyle& style);

/// The axial force in kN, compression positive.
void DrawAxialForce(DrawingTarget& target, const DiagramOrigin& origin, double N,
                    const DiagramStyle& style);
/// Its height in grid units, whatever the force.
double AxialForceHeight(const DiagramStyle& style);

/// Loads of one plane, permanent or variable, unfactored and without self weight.
void DrawLoads(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
               Plane plane, bool variable, const DiagramStyle& style);
/// Their height in grid units, by the layers above and below the member and the positions told.
double LoadsHeight(const ProjectState& st, Plane plane, bool variable, const DiagramStyle& style);

/// Moment over shear of one plane. zeros: the positions of zero moment are told, as loads give
/// them; end forces have none.
void DrawMomentShear(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                     const BeamResults& beam, Plane plane, bool zeros, const DiagramStyle& style);
/// Height of both in grid units, by the sides of the axes to which they go.
double MomentShearHeight(const BeamResults& beam, Plane plane, const DiagramStyle& style);

/// Deflections of one plane, mm, with x of the greatest, L/x.
void DrawDeflection(DrawingTarget& target, const DiagramOrigin& origin, const ProjectState& st,
                    const Deflections& deflections, Plane plane, const DiagramStyle& style);
/// Their height in grid units.
double DeflectionHeight(const Deflections& deflections, Plane plane, const DiagramStyle& style);

}  // namespace korvane
