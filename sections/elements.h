// SPDX-License-Identifier: GPL-3.0-or-later
// Plate elements of a section: slenderness, effective widths, class tests, bending of a section
// with a reduced flange and web, shear buckling. NS 3472, 12.1 and 12.2.
#pragma once

#include "core/project_state.h"
#include "sections/section_record.h"

namespace korvane {

/// Reduced slenderness of a plate element: (c/t)/(28.4*eps*sqrt(k)).
double PlateSlenderness(double ratio, double eps, double k);

/// Effective width factor rho of a plate element: (lam - 0.22)/lam^2 for lam above 0.673, else
/// 1; 1 as well when the buckling of the element is not taken into account (12.2).
double EffectiveWidth(double ratio, double eps, double k, bool ignored);

/// Buckling factor of an internal element in bending, psi the ratio of its edge stresses.
double InternalBendingFactor(double psi);

/// Buckling factor of an outstand with its tip in compression.
double OutstandFactor(double psi);

/// Whether a web with s2 = 0 counts as wholly compressed.
enum class ZeroStress { Compressed, Mixed };

/// Class 1 to 4 of an internal element of slenderness w = d/tw under the stresses s1 and s2 at
/// its ends (compression negative). The all-compressed limits are strict, the mixed are not.
int InternalClass(double s1, double s2, double w, double eps, ZeroStress zero);

/// The mixed branch of InternalClass alone, with alpha the compressed part and psi = s2/s1.
int MixedInternalClass(double alpha, double psi, double w, double eps);

/// Limits of c/t, as multiples of eps, of an outstand flange.
struct OutstandLimits {
  double first, second, third;  ///< classes 1, 2, 3 in uniform compression
  double mixedThird;            ///< class 3 under a stress gradient, times sqrt(k)
};
inline constexpr OutstandLimits kRolledOutstand{10, 11, 15, 23};
inline constexpr OutstandLimits kWeldedOutstand{9, 10, 14, 21};

/// Class of an outstand f = c/tf under the stresses s3 (tip) and s4 (at the web). Under a
/// gradient the limit of class 1 carries no alpha, on purpose.
int OutstandClass(double s3, double s4, double f, double eps, const OutstandLimits& limits);

/// Class by three limits; strict tells whether the first two are tested by < (else <=). The
/// third is tested by <=.
int ClassByLimits(double ratio, double first, double second, double third, bool strict);

/// The larger of web and flange class after the two options that take buckling out of account.
int GoverningClass(const ProjectState& st, int webClass, int flangeClass);

/// Bending with the flange at one edge compressed: what is removed from flange and web.
/// Lengths in mm, areas in mm2.
struct CompressedSide {
  double A;               ///< gross area
  double I;               ///< gross second moment about the elastic axis
  double z;               ///< compressed edge to elastic axis
  double t;               ///< thickness of the compressed flange
  double removed;         ///< area removed from the flange
  double removedMoments;  ///< removed area as first and second moments count it
  double webs;            ///< total thickness of the webs
  double depth;           ///< web depth in psi
  double webRatio;        ///< slenderness of one web
  bool ignoreWeb;
  bool fullStripInertia = false;  ///< own inertia of the strip as (1 - rho)*webs*hc^3/12
};

/// Effective section in bending: distance of its axis from the compressed edge and its second
/// moment about that axis.
struct BentSection {
  double e;  ///< mm
  double I;  ///< mm4
};
/// Takes away the flange's part, then the web's strip (1 - rho)*hc that leaves 0.6*rho*hc beside
/// the axis found without the flange's part; no further round (12.2).
BentSection ReduceInBending(const CompressedSide& side, double eps);

/// Shear area and buckling of one wall direction.
struct ShearWall {
  double stocky;   ///< mm2, area of a stocky wall
  double slender;  ///< mm2, area of a slender wall
  double depth;    ///< mm, clear depth
  double ratio;    ///< depth over thickness
};

/// 1.2 below fyk = 400 MPa, else 1.05.
double ShearEta(const ProjectState& st);

/// Shear capacity in kN without stiffeners; writes the area in use (12.2.5).
double UnstiffenedShear(const ProjectState& st, const ShearWall& wall, float32& area);

/// Shear capacity in kN with the options for web and end stiffeners; writes the area in use.
double WorkingShear(const ProjectState& st, const ShearWall& wall, float32& area);

/// Design shear capacity of an area without buckling, kN: area*chi*(fyk/sqrt(3))/gammam1/1000.
double ShearCapacityOf(const ProjectState& st, double area, double chi);

/// (2*V/Vd - 1)^2, at most 1: the part of the web that shear takes (12.2.7).
double ShearShare(double V, double Vd);

}  // namespace korvane
