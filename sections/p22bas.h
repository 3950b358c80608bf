// SPDX-License-Identifier: GPL-3.0-or-later
// Welded I sections, and the routines of singly symmetric sections: everything exists twice,
// once with the top and once with the bottom flange in compression.
#pragma once

#include "sections/profile_table.h"
#include "sections/section_sum.h"

namespace korvane {

/// Doubly symmetric welded I.
void LoadWeldedI(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);
/// SectionClass with the limits of welded flanges; the two buckling options are not applied.
void WeldedClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Stocky shear area tw*hw.
void WeldedShear(const ProjectState& st, SectionRecord& rec);

/// Singly symmetric welded I.
void LoadSingleI(const ProjectState& st, const Catalogues& cat, SectionRecord& rec);

/// Warping constant, shear centre zs from the elastic axis, zj and betaf of two flanges at the
/// distance of their middles in a section of overall height H (rec: b1, tf1, b2, tf2, ezel).
void TwoFlangeWarping(double H, SectionRecord& rec);

/// One flange of a singly symmetric section: thickness, area removed, area removed as its
/// moments count it.
struct RemovedFlange {
  double t, area, momentArea;
};

/// The web or webs as the effective moduli take them, mm.
struct EffectiveWeb {
  double thickness;  ///< of all webs together
  double H;          ///< overall height of the section
  double depth;      ///< that psi goes by
  bool fullStripInertia = false;
};
/// Weffy1c, Weffy2t, Weffy2c, Weffy1t in mm3 for the flanges given (12.2); elastic axis ezel from
/// the top.
void EffectiveModuli(const ProjectState& st, const RemovedFlange& top, const RemovedFlange& bottom,
                     const EffectiveWeb& web, SectionRecord& rec);

/// Aeff in mm2 and the effective moduli of both sides in mm3, for every class (12.2).
void SingleEffectiveSection(const ProjectState& st, SectionRecord& rec);
/// Moment of the class tests by side, kNm: signed, and 1 when there is none, so that the pattern
/// of stresses stays that of bending.
inline double ClassMoment(const SectionForces& f) {
  return f.My == 0 ? 1.0 : double(f.My);
}

/// Writes classTop and classBottom; `class` stays unwritten.
void SingleClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

/// Class of the bottom side under the hogging moment of f, with the web judged by the share of it
/// that is compressed; SingleClass judges it by the share in tension.
int BottomClassByCompression(const ProjectState& st, const SectionForces& f,
                             const SectionRecord& rec);

/// betaTop, betaBottom, MdyTop, MdyBottom for the classes that the record holds; factor
/// multiplies both (flange loading of HSQ sections).
void SideCapacities(const ProjectState& st, double factor, SectionRecord& rec);

/// Web of the shear reduction: heights from the lower edge to the plastic axis at ep.
struct ShearedWeb {
  double above;   ///< ep beyond this: the whole web lies on one side
  double height;  ///< web height
  double a;       ///< web part on the upper side
  double e;       ///< web part on the lower side
};
/// Mvred, MvdyTop, MvdyBottom (12.2.7).
void SideShear(const ProjectState& st, const SectionForces& f, const ShearedWeb& web,
               SectionRecord& rec);
/// The sheared web of a section with its flanges inside the overall height H.
ShearedWeb WebBetweenFlanges(double H, const SectionRecord& rec);

/// Axial capacities in kN and moment capacities by side in kNm, reduced for shear (12.2.3,
/// 12.2.4, 12.2.7), for the classes that the record holds; Mdy is the lesser side.
void SingleCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);
/// Two passes, My = 10 and Ncl = 10; the shown values are those of the first.
void SingleNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                             SectionRecord& rec);
/// One pass, My = 10, whose classes and capacities by side are the shown ones: sections that take
/// bending only.
void BendingNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                              SectionRecord& rec);

}  // namespace korvane
