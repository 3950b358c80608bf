// SPDX-License-Identifier: GPL-3.0-or-later
// Capacities that several families share, and the shown capacities.
#pragma once

#include "sections/profile_table.h"
#include "sections/section_record.h"

namespace korvane {

/// Design value of a modulus in kNm: W*fyk/gammam1/1E6.
double MomentOf(const ProjectState& st, double W);
/// Design value of an area in kN: A*fyk/gammam1/1000.
double ForceOf(const ProjectState& st, double A);

/// Ntd, betaA, Ncrd (the effective area at every class), betay, Mdy, betaz, Mdz for the class
/// that the record holds. 12.2.3, 12.2.4.
void AxialAndBending(const ProjectState& st, SectionRecord& rec);

/// betay or betaz: 1 for class 1 and 2 on the plastic modulus, else elastic or effective over
/// plastic modulus.
double ModulusFactor(const ProjectState& st, int sectionClass, double Weff, double Wel, double Wpl);

/// Axial ratio |N/Nd|, Nd the tension capacity up to N = 0, else the compression capacity.
double AxialRatio(const SectionRecord& rec, const SectionForces& f);

/// Bending reduced for shear, axial force and both, of sections with two flanges and one web:
/// Mvdy, Mvdz, alfa, beta, Mndy, Mndz, Mndypl, Mndzpl, Mvndy, Mvndz. Reads Mfdy, Mfdz.
/// 12.2.6 to 12.2.8.
void TwoFlangeInteraction(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

/// Mvndy and Mvndz from Mfd, Mnpl and the shear ratios (12.2.8).
void ShearAndAxial(const SectionForces& f, SectionRecord& rec);

/// The model of all families: capacities of rolled and welded doubly symmetric I sections.
void SectionCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec);

/// Shown capacities by three passes: My = 10, Ncl = 10, Mz = 10; the values of 10 only set the
/// direction of the stresses and stay as the last pass set them.
void NominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                       SectionRecord& rec);

}  // namespace korvane
