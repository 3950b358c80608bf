// SPDX-License-Identifier: GPL-3.0-or-later
// The one record of section values that every family writes and all checks read.
#pragma once

#include "core/numeric.h"

namespace korvane {

/// Forces that class and capacity routines read, set by their callers. A routine that does not
/// set one leaves the last value standing.
struct SectionForces {
  number N;    ///< kN, axial force of the checks, compression positive
  number Ncl;  ///< kN, axial force for classification, compression positive
  number My;   ///< kNm
  number Mz;   ///< kNm
  number Vy;   ///< kN
  number Vz;   ///< kN
};

/// Section values in mm, mm2, mm3, mm4, mm6, kN, kNm. One record lives as long as the design:
/// a family's routine may leave fields unwritten, and then they keep the value of the family
/// that last wrote them.
struct SectionRecord {
  // Dimensions and derived geometry
  float32 h, b, tw, tf, r;
  float32 S;     ///< kg/m, weight
  float32 g;     ///< m2/m, surface
  float32 hw;    ///< web height between flanges
  float32 d;     ///< straight part of the web
  float32 c;     ///< flange outstand (or flat part) of the slenderness tests
  float32 bw;    ///< clear width between two webs
  float32 rin;   ///< inner corner radius of hollow sections
  float32 tmax;  ///< governing thickness for the yield stress
  float32 Af, Aw;
  float32 e;       ///< channels: centroid from the back of the web
  float32 es;      ///< channels: shear centre from the centroid
  float32 r1, r2;  ///< root and toe radii
  float32 ey, ez;  ///< angles: centroid from the heel
  float32 b1, b2, tf1, tf2, c1, c2;
  float32 cm;   ///< plate part between two webs
  float32 co;   ///< plate outstand
  float32 Afw;  ///< web area of the lateral check of plate families
  float32 Afc;  ///< area of the second flange

  // Section constants
  float32 A, Ix, Iy, Iz, Iw;
  float32 Wely, Welz, Wply, Wplz;
  float32 Aeff, Weffy, Weffz;

  // Angles: principal axes
  float32 alfadeg;  ///< deg, angle between y and the principal axis u
  float32 Iu, Iv;
  float32 u1, u2, u3, v1, v2, v3;
  float32 Wu1, Wu2, Wu3, Wv1, Wv2, Wv3;
  float32 Mud1, Mud2, Mud3, Mvd1, Mvd2, Mvd3;

  // Singly symmetric sections: digit 1 top, 2 bottom; c compressed, t in tension
  float32 ezel, ezpl;  ///< elastic and plastic axis from the top edge
  float32 Wely1, Wely2;
  float32 Weffy1c, Weffy1t, Weffy2c, Weffy2t;
  int16 classTop, classBottom;
  float32 betaTop, betaBottom;
  float32 MdyTop, MdyBottom, MvdyTop, MvdyBottom, Mvred;
  float32 zs;  ///< shear centre from the elastic axis
  float32 zjTop, zjBottom, betafTop, betafBottom;

  // Class and capacities: the working set, rewritten for the forces then current
  int16 class_;  ///< shown as "class"
  float32 betaA, betay, betaz;
  float32 Ntd, Ncrd, Mdy, Mdz, Vdz, Vdy;
  float32 Mvdy, Mvdz, Mndy, Mndz, Mndypl, Mndzpl, Mfdy, Mfdz, Mvndy, Mvndz;
  float32 alfa, beta;  ///< exponents of the biaxial check
  float32 Avz, Avy;

  // The shown set, written by the nominal capacities only
  int16 classN, classMy;
  float32 Ncrdshown, Mdyshown, Mdzshown, Vdzshown, Vdyshown;
  int16 classTopshown, classBottomshown;  ///< singly symmetric sections: those of My = 10
  float32 MdyTopshown, MdyBottomshown;

  /// Set by the capacities of HSQ sections when the loading of one flange exceeds what the
  /// flange can carry; the driver then takes the option off and reports it.
  bool flangeOverloaded = false;
};

}  // namespace korvane
