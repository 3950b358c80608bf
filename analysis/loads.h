// SPDX-License-Identifier: GPL-3.0-or-later
// The load record of the member: tidying rules and the three combinations.
#pragma once

#include <optional>
#include <string>

#include "core/project_state.h"

namespace korvane {

/// Members of the state that hold one trapezoid.
struct Trapezoid {
  float32 ProjectState::*q1;
  float32 ProjectState::*q2;
  float32 ProjectState::*x1;
  float32 ProjectState::*x2;
  int16 ProjectState::*pv;
  int16 ProjectState::*yz;
};
/// Trapezoid 1 to 3.
const Trapezoid& TrapezoidOf(int t);

/// Members of the state that hold one line load over the whole length.
struct LineLoad {
  float32 ProjectState::*q;
  int16 ProjectState::*pv;
  int16 ProjectState::*yz;
};
/// Line load 1 to 4.
const LineLoad& LineLoadOf(int n);

/// Loads of one plane. Index 1..3 trapezoids, 1..8 load entries. kN/m, kN, kNm.
struct PlaneLoads {
  float32 q;                        ///< full line load
  Indexed<float32, 1, 3> qt1, qt2;  ///< trapezoid ordinates at start and end
  Indexed<float32, 1, 8> P;         ///< point loads
  Indexed<float32, 1, 8> M;         ///< moment loads
};

/// The working load set, overwritten by each combination. Plane z bends about y (qz, qtz, Pz,
/// Mpy), plane y about z (qy, qty, Py, Mpz). Positions are read from the load record.
struct WorkingLoads {
  PlaneLoads z, y;
  /// Sums of the unfactored line loads by direction and group (kN/m), for the load figures;
  /// index 0 permanent, 1 variable 1, 2 variable 2.
  Indexed<float32, 0, 2> qzByGroup, qyByGroup;
};

/// ULS values; S is the section's weight in kg/m, of which 1 kg/m counts as 0.01 kN/m.
void CombineUls(const ProjectState& st, double S, WorkingLoads& w);
/// SLS values; self weight with factor 1.
void CombineSls(const ProjectState& st, double S, WorkingLoads& w);
/// Unfactored values without self weight; the line loads go to the sums by group, and the line
/// loads of the two planes stay as they stood.
void CombineCharacteristic(const ProjectState& st, WorkingLoads& w);

/// ULS axial force in kN, compression positive.
double AxialForceUls(const ProjectState& st);

/// Sum over the z line loads of factor times load, without self weight (kN/m), ULS.
double FlangeLineLoad(const ProjectState& st);

/// Sum over the line loads that lie on axis z of SLS factor times load (kN/m), for the mass.
double ModalLineLoad(const ProjectState& st);

/// Members carried by a plate (IsPlateType) lose axial loads and everything in the y direction,
/// for good; trapezoid 3 is deliberately left as it stands. Other types are not touched.
void StripForPlateTypes(ProjectState& st);

/// All loads of the load form, with their groups, directions and positions, as another state has
/// them; end forces and factors stay.
void TakeLoads(const ProjectState& from, ProjectState& to);

/// What NormaliseLoads has to say when it fails.
struct LoadMessage {
  std::string text;              ///< literal message
  float32 ProjectState::*field;  ///< at fault: it gets the focus
};

/// Tidies the load record, the characteristic points and the stiffener distance against length
/// and support. Returns nothing when all is well, else the message; the load form then stays
/// open. After a failed trapezoid the tidying goes on with the point items.
std::optional<LoadMessage> NormaliseLoads(ProjectState& st);

}  // namespace korvane
