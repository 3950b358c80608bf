// SPDX-License-Identifier: GPL-3.0-or-later
// The one input record: everything that the engineer enters about the member.
#pragma once

#include <string>

#include "core/numeric.h"

namespace korvane {

/// All input of one member. Positions and member lengths in m, section dimensions in mm, loads
/// in kN, kN/m and kNm. The member initialisers are the values of a new project; a field without
/// one keeps what the defaults file, the setup form or the last opened project gave it.
struct ProjectState {
  // Identification and file
  /// Path of the project file, "New File" while there is none.
  std::string CurrentFileName = "New File";
  std::string CurrentDir;          ///< folder last used by the open and save dialogs
  std::string iproj = "Project";   ///< project name
  std::string iident = "Test";     ///< identification
  std::string FamilyName = "HEA";  ///< family word shown and printed

  // Member, material and analysis options
  float32 L = 5.0;           ///< m, member length
  float32 E = 210000.0;      ///< MPa, Young's modulus
  float32 density = 7850.0;  ///< kg/m3
  int16 MaterialIndex = 5;   ///< row in the material list, from 0
  float32 fyk;               ///< MPa, characteristic yield stress
  float32 gammam1;           ///< material factor
  float32 fd;                ///< MPa, fyk/gammam1
  float32 epsilon;           ///< sqrt(235/fyk)
  /// 0 pinned-pinned, 1 pinned-fixed, 2 fixed-fixed, 3 spring-spring, 4 fixed-free, 5
  /// pinned-spring.
  int16 SupportType = 0;
  int16 SpringRestraint = 50;      ///< %, degree of restraint of the spring ends
  int16 EndStiffener = 0;          ///< 0 weak, 1 stiff support stiffener
  int16 WebStiffener = 0;          ///< 1: web stiffeners at a_webstiff
  float32 a_webstiff = 2500.0;     ///< mm, distance between web stiffeners
  int16 AnalysisMode = 1;          ///< 1 loads, 0 end forces
  int16 BendingCapacityMode = 0;   ///< class 1-2: 0 plastic, 1 elastic section modulus
  int16 SectionControlMode = 0;    ///< 0 conservative interaction, 1 with exponents (12.2.6)
  int16 IgnoreWebBuckling = 0;     ///< 1: web buckling not taken into account
  int16 IgnoreFlangeBuckling = 0;  ///< 1: flange buckling not taken into account
  int16 ModalAnalysis = 0;         ///< 1: natural frequencies are worked out
  int16 DeflectionLimit;           ///< x of the limit L/x
  float32 iufa = 1.0;              ///< allowable usage factor
  number islend_limit;             ///< slenderness limit
  int16 check_slend = 0;           ///< 1: the slenderness limit is checked

  // Buckling
  float32 bly = 1.0;               ///< buckling length factor about y
  float32 blz = 1.0;               ///< buckling length factor about z
  int16 BucklingCaseY = 2;         ///< 1 k=2.0, 2 k=1.0, 3 k=0.7, 4 k=0.5, 5 no buckling, 6 typed
  int16 BucklingCaseZ = 2;         ///< the same about z
  int16 BucklingCurveY = 1;        ///< 0 a0, 1 a, 2 b, 3 c, any other d
  int16 BucklingCurveZ = 2;        ///< the same about z
  int16 ManualBucklingCurves = 0;  ///< 1: curves chosen by hand

  // Lateral torsional buckling
  int16 LateralTorsionalBuckling = 1;  ///< 1: the check runs
  int16 LateralBucklingCase = 2;       ///< 1 k=2.0, 2 k=1.0, 3 k=0.7, 4 k=0.5, 5 typed
  float32 k_ltb = 1.0;                 ///< lateral buckling length factor
  int16 LtbSegments = 0;               ///< number of lateral restraint points
  int16 LtbCriticalSegment = 0;        ///< governing segment, from 0, written by the check
  int16 CFactorManual = 0;             ///< 1: C1, C2, C3 are typed in
  number C1i = 1.0;                    ///< typed C1
  number C2i = 1.0;                    ///< typed C2
  number C3i = 1.0;                    ///< typed C3
  int16 LoadLevel = 1;                 ///< 1 top flange, 2 centre, 3 bottom flange, 4 typed in Za
  number Za;                           ///< mm, height of the load above the centroid

  // Load factors
  float32 lfp_uls;   ///< permanent, ULS
  float32 lfv1_uls;  ///< variable 1, ULS
  float32 lfv2_uls;  ///< variable 2, ULS
  float32 lfp_sls;   ///< permanent, SLS
  float32 lfv1_sls;  ///< variable 1, SLS
  float32 lfv2_sls;  ///< variable 2, SLS
  float32 lfsw_uls;  ///< self weight, ULS

  // Loads. _pv: 0 permanent, 1 variable 1, 2 variable 2; _yz: 0 y, 1 z
  float32 NP = 100.0;            ///< kN, axial load, permanent; compression positive
  float32 NV1 = 0.0;             ///< kN, variable 1
  float32 NV2 = 0.0;             ///< kN, variable 2
  float32 q1 = 10.0;             ///< kN/m, line load over the whole length
  int16 q1_pv = 0;               ///< category
  int16 q1_yz = 1;               ///< direction
  float32 q2 = 0.0;              ///< kN/m, line load over the whole length
  int16 q2_pv = 0;               ///< category
  int16 q2_yz = 1;               ///< direction
  float32 q3 = 0.0;              ///< kN/m, line load over the whole length
  int16 q3_pv = 0;               ///< category
  int16 q3_yz = 1;               ///< direction
  float32 q4 = 0.0;              ///< kN/m, line load over the whole length
  int16 q4_pv = 0;               ///< category
  int16 q4_yz = 1;               ///< direction
  float32 qt1_1 = 0.0;           ///< kN/m, ordinate at the start
  float32 qt1_2 = 0.0;           ///< kN/m, ordinate at the end
  float32 qt1_x1 = 0.0;          ///< m, start
  float32 qt1_x2 = 0.0;          ///< m, end
  int16 qt1_pv = 0;              ///< category
  int16 qt1_yz = 1;              ///< direction
  float32 qt2_1 = 0.0;           ///< kN/m, ordinate at the start
  float32 qt2_2 = 0.0;           ///< kN/m, ordinate at the end
  float32 qt2_x1 = 0.0;          ///< m, start
  float32 qt2_x2 = 0.0;          ///< m, end
  int16 qt2_pv = 0;              ///< category
  int16 qt2_yz = 1;              ///< direction
  float32 qt3_1 = 0.0;           ///< kN/m, ordinate at the start
  float32 qt3_2 = 0.0;           ///< kN/m, ordinate at the end
  float32 qt3_x1 = 0.0;          ///< m, start
  float32 qt3_x2 = 0.0;          ///< m, end
  int16 qt3_pv = 0;              ///< category
  int16 qt3_yz = 1;              ///< direction
  Indexed<int16, 1, 8> pm_pm{};  ///< 0 point load, 1 moment
  Indexed<float32, 1, 8> pm{};   ///< kN or kNm
  Indexed<float32, 1, 8> pmx{};  ///< m, position from the left end
  Indexed<int16, 1, 8> pm_pv{};  ///< category
  Indexed<int16, 1, 8> pm_yz = Filled<int16, 1, 8>(1);  ///< direction: 0 y (Mz), 1 z (My)
  int16 SelfWeight = 0;                                 ///< 1: self weight is added
  int16 pmx_relative = 0;  ///< display: positions of point items as x/L
  int16 qtx_relative = 0;  ///< display: positions of trapezoids as x/L

  // End forces, index 1 at x = 0, 2 at x = L
  float32 Ne = 0.0;                 ///< kN, compression positive
  Indexed<float32, 1, 2> My_end{};  ///< kNm
  Indexed<float32, 1, 2> Mz_end{};  ///< kNm
  Indexed<float32, 1, 2> Vy_end{};  ///< kN
  Indexed<float32, 1, 2> Vz_end{};  ///< kN

  // Calculation points
  int16 cp_mode = 0;                              ///< 1: the characteristic points below are added
  int16 cp_count = 1;                             ///< 1 to 3
  int16 cp_relative = 0;                          ///< display: positions as x/L
  Indexed<float32, 1, 3> cp_x = InitialPoints();  ///< m

  // Section choice
  int16 ProfileType = 1;  ///< code of the section family
  /// Rectangular hollow sections: 1 as catalogued, 0 turned by 90 degrees.
  int16 RhsOrientation = 1;
  int16 HsqKind = 0;                 ///< flange loading of HSQ sections: 0 considered, 1 off
  int16 idxHEA = 5;                  ///< row in the catalogue
  int16 idxHEB = 0;                  ///< row in the catalogue
  int16 idxHEM = 0;                  ///< row in the catalogue
  int16 idxIPE = 0;                  ///< row in the catalogue
  int16 idxUPE = 0;                  ///< row in the catalogue
  int16 idxRHSs = 0;                 ///< row in the catalogue
  int16 idxRHSr = 0;                 ///< row in the catalogue
  int16 idxCFRHSs = 0;               ///< row in the catalogue
  int16 idxCFRHSr = 0;               ///< row in the catalogue
  int16 idxLeq = 0;                  ///< row in the catalogue
  int16 idxLuneq = 0;                ///< row in the catalogue
  int16 idxINP = 0;                  ///< row in the catalogue
  int16 idxUNP = 0;                  ///< row in the catalogue
  float32 p21_h = 600.0;             ///< mm
  float32 p21_b = 300.0;             ///< mm
  float32 p21_tw = 12.0;             ///< mm
  float32 p21_tf = 20.0;             ///< mm
  float32 p22_h = 600.0;             ///< mm
  float32 p22_b = 300.0;             ///< mm
  float32 p22_b2 = 300.0;            ///< mm
  float32 p22_tw = 12.0;             ///< mm
  float32 p22_tf1 = 20.0;            ///< mm
  float32 p22_tf2 = 20.0;            ///< mm
  float32 p23_h = 600.0;             ///< mm
  float32 p23_b = 600.0;             ///< mm
  float32 p23_tw = 10.0;             ///< mm
  float32 p23_tf = 20.0;             ///< mm
  float32 p23_a = 50.0;              ///< mm
  int16 BoxWeld = 0;                 ///< box, based on cold rolling: 0 yes, 1 no
  float32 p24_h = 285.0;             ///< mm
  float32 p24_b = 540.0;             ///< mm
  float32 p24_tw = 6.0;              ///< mm
  float32 p24_tf1 = 25.0;            ///< mm
  float32 p24_tf2 = 15.0;            ///< mm
  float32 p24_a = 120.0;             ///< mm
  float32 p24_c = 5.0;               ///< mm
  float32 p24_load = 50.0;           ///< %, share of the line load on one flange
  float32 p25_h = 285.0;             ///< mm
  float32 p25_b1 = 300.0;            ///< mm
  float32 p25_b2 = 430.0;            ///< mm
  float32 p25_tw = 6.0;              ///< mm
  float32 p25_tf1 = 25.0;            ///< mm
  float32 p25_tf2 = 15.0;            ///< mm
  float32 p25_a = 10.0;              ///< mm
  float32 p25_c = 5.0;               ///< mm
  number p26_h = 200.0;              ///< mm
  number p26_b = 200.0;              ///< mm
  number p26_tw = 10.0;              ///< mm
  float32 p26_tf = 10.0;             ///< mm
  number p27_h = 600.0;              ///< mm
  number p27_b1 = 600.0;             ///< mm
  number p27_b2 = 600.0;             ///< mm
  number p27_tw = 10.0;              ///< mm
  number p27_tf1 = 20.0;             ///< mm
  number p27_tf2 = 20.0;             ///< mm
  float32 p27_a = 490.0;             ///< mm
  float32 p28_h = 150.0;             ///< mm
  float32 p28_tw = 12.0;             ///< mm
  float32 p31_d = 300.0;             ///< mm
  float32 p31_tw = 10.0;             ///< mm
  int16 TubeKind = 1;                ///< 0 cold formed, 1 hot formed
  std::string p41_name = "General";  ///< name of the general profile
  int16 p41_option = 1;              ///< its class, 1 to 3
  float32 p41_A = 11000.0;           ///< mm2
  float32 p41_Ay = 8000.0;           ///< mm2, shear area along y
  float32 p41_Az = 3000.0;           ///< mm2, shear area along z
  float32 p41_Ix = 8000000.0;        ///< mm4
  float32 p41_Iy = 182600000.0;      ///< mm4
  float32 p41_Iz = 63000000.0;       ///< mm4
  float32 p41_Iw = 1.2E12;           ///< mm6
  float32 p41_Wely = 1300000.0;      ///< mm3
  float32 p41_Welz = 420000.0;       ///< mm3
  float32 p41_Wply = 1650000.0;      ///< mm3
  float32 p41_Wplz = 5500000.0;      ///< mm3
  float32 p41_tmax = 25.0;           ///< mm, not stored in the project file
  number p51_h = 200.0;              ///< mm
  number p51_b = 600.0;              ///< mm
  number p51_tw = 10.0;              ///< mm
  float32 p51_tf1 = 10.0;            ///< mm
  int16 p52_index = 5;               ///< row of l3.dat
  number p52_b1 = 600.0;             ///< mm
  float32 p52_t1 = 10.0;             ///< mm
  number p53_h = 300.0;              ///< mm
  number p53_b1 = 600.0;             ///< mm
  number p53_b2 = 100.0;             ///< mm
  number p53_tw = 11.5;              ///< mm
  number p53_tf1 = 10.0;             ///< mm
  float32 p53_tf2 = 16.0;            ///< mm
  int16 p54_index = 5;               ///< row of hp.dat
  number p54_b1 = 600.0;             ///< mm
  float32 p54_t1 = 10.0;             ///< mm
  number p55_h = 250.0;              ///< mm
  number p55_b1 = 600.0;             ///< mm
  number p55_b2 = 200.0;             ///< mm
  float32 p55_tw = 8.0;              ///< mm
  number p55_tf1 = 12.0;             ///< mm
  number p55_a = 50.0;               ///< mm
  number p56_h = 580.0;              ///< mm
  number p56_b1 = 300.0;             ///< mm
  number p56_b2 = 300.0;             ///< mm
  number p56_tw = 12.0;              ///< mm
  number p56_tf1 = 20.0;             ///< mm
  float32 p56_tf2 = 20.0;            ///< mm
  int16 p101_sub = 1;                ///< 1 UB, 2 UC, 3 UBP
  int16 p101_idx1 = 0;               ///< row
  int16 p101_idx2 = 0;               ///< row
  int16 p101_idx3 = 0;               ///< row
  int16 p102_idx = 0;                ///< row
  int16 p103_sub = 1;                ///< 1 PFC, 2 CH
  int16 p103_idx1 = 0;               ///< row
  int16 p103_idx2 = 0;               ///< row

  // Transient, not saved
  float32 k_ltb_before = 1.0;  ///< k_ltb in force before the check was switched off
  int16 OptimiseOpen = 0;      ///< 1: the optimiser group of the main window is open
  int16 ResultView = 3;        ///< optimiser criterion: 0 ULS, 1 SLS, 2 ULS/SLS, 3 none
  int16 FigureNotToScale = 1;  ///< 1: the section figure is not to scale
  int16 DatabaseMode = 0;      ///< 1 while a section form is open from the database

  friend bool operator==(const ProjectState&, const ProjectState&) = default;

private:
  template <class T, int First, int Last>
  static constexpr Indexed<T, First, Last> Filled(int v) {
    Indexed<T, First, Last> a;
    a.Fill(T(v));
    return a;
  }
  static constexpr Indexed<float32, 1, 3> InitialPoints() {
    Indexed<float32, 1, 3> x;
    for (int i = 1; i <= 3; ++i) x[i] = i;
    return x;
  }
};

/// Sets every field of a new project; those without an initial value stay as they are.
/// CurrentDir becomes programFolder.
void NewProject(ProjectState& st, const std::string& programFolder = {});

/// Zeroes all loads and axial loads, self weight and the relative flags; categories 0, axes z,
/// kinds point load, load level 1. Load factors stay.
void ClearLoads(ProjectState& st);

/// ClearLoads without NP, NV1, NV2, but with all end moments and end shears (T sections carry
/// axial force alone).
void ClearLoadsKeepAxial(ProjectState& st);

}  // namespace korvane
