// SPDX-License-Identifier: GPL-3.0-or-later
// Key figures of the example projects, worked out apart from the program: moments by finite
// elements, section values from plates and published tables, checks by the formulas of NS 3472.
#pragma once

namespace korvane {

/// A line with a file name begins a project; names and values follow. # begins a derivation.
inline constexpr const char* kExampleFigures = R"(
# fd = 220/1.1 = 200, typed. Mdy = 1.2E6*200/1E6 in class 2. q = 1.2*14: M = 16.8*36/8. Level 2,
# so Mcr = 1.132*pi^2*E*Iz/L^2*sqrt(L^2*G*Ix/(pi^2*E*Iz) + Iw/Iz) = 439 kNm; lambda =
# sqrt(1.2E6*220/439E6) = 0.775, alpha 0.49. Curves as the last family left them.
beam-general-profile.kvn
  N 72  A 9800  Iy 2.1E8  Wply 1.2E6  S 76.93  MdyWork 240  My_max 75.6  My_min 0  Vz_abs 50.4
  DeflZ_max 5.35714  IRsection 0.351735  IRvz 0.150509  C1 1.132  C2 0.459  Mcr 439.255
  chiLT_min 0.749325  Mdb 179.838  IRlateral 0.420378  Xy 0.946824  Xz 0.452184  ky 1.01581
  IRcombinedY 0.40122  IRcombinedZ 0.498711  klt 0.993089  MaxIR 0.498711
# The same plates. q = 1.2*(45 + 1.0535) + 1.5*25 = 92.764: M = q*36/8. Flange load 91.5*60*0.6 =
# 3294, Mf = 1.75*fd*144/6 = 13554.5: factor (sqrt(1 - 3294/13554.5) + 1.1)/2 = 0.985023.
beam-hsq-flange-loading.kvn
  N 0  A 13420  Iy 1.90091E8  classTop 1  classBottom 3  MdyTop 487.071  MdyBottom 434.793
  My_max 417.439  My_min 0  Vz_abs 278.293  DeflZ_max 30.0364  IRsection 0.857038
  IRvz 0.518602  MaxIR 0.857038
# Plates 210x25, 2 x 6x240, 420x12. Bottom outstand 100/12 = 8.33 is above 10*0.8136, so class 3
# with Iy/e. q = 1.2*(22 + 1.0535) + 1.5*12 = 45.66; flange load 44.4*60*0.6 = 1598 is below
# 0.2*Mf.
beam-hsq-floor.kvn
  N 0  A 13420  Iy 1.90091E8  Wply 1.53218E6  S 105.347  classTop 1  classBottom 3
  MdyTop 494.477  MdyBottom 441.404  My_max 205.489  My_min 0  Vz_abs 136.992  DeflZ_max 14.8181
  IRsection 0.415568  IRvz 0.255287  MaxIR 0.415568
# S235. Built-in: end moment q*L^2/12 + sum(P*a*b^2/L^2), q = 9.6, P = 42 and 15. k = 0.5, spread
# load: C1 = 1.285 - 0.573, lower flange: zg = -120. Frequency 3.56*sqrt(EI/(m*L^4)), m = 102*8 +
# S.
beam-inp240-fixed.kvn
  N 0  A 4608  Iy 4.2392E7  Wply 410690  S 36.1728  Mdy 87.7383  My_max 34.747  My_min -54.965
  Vz_abs 54.456  DeflZ_max 3.7777  ModalMass 852.173  ModalFreq1 14.5545  ModalFreq2 40.1476
  ModalFreq3 78.4963  IRsection 0.626465  IRvz 0.203203  C1 0.712  C2 0.652  Mcr 153.094
  chiLT_min 0.848905  Mdb 74.4815  IRlateral 0.737969  MaxIR 0.737969
# fd = 355/1.1 = 322.73. q = 1.2*(7.5 + 0.4224) + 1.5*9 = 23.01: M = q*L^2/8. Held at L/3: the
# middle segment has equal end moments, C1 = 1, Lk = 2 m.
beam-ipe300-floor.kvn
  N 0  A 5381.2  Iy 8.3561E7  Wply 628356  S 42.2424  Mdy 202.788  My_max 103.531  My_min 0
  Vz_abs 69.0207  DeflZ_max 16.2736  ModalMass 1725.24  ModalFreq1 4.39829  ModalFreq2 17.5931
  ModalFreq3 39.5005  IRsection 0.51054  IRvz 0.144238  C1 1  chiLT_min 0.914695  Mdb 185.489
  IRlateral 0.558153  MaxIR 0.558153
# fd = 355/1.1 = 322.73. q = 1.2*5 + 1.5*6 = 15: M = 15*49/8. Typed C1 = 1.132, level 2: Mcr =
# C1*pi^2*E*Iz/L^2*sqrt(...).
beam-ipe400-manual-c.kvn
  N 0  A 8446.4  Iy 2.3128E8  Wply 1.30715E6  S 66.3042  Mdy 421.852  My_max 91.875  My_min 0
  Vz_abs 52.5  DeflZ_max 7.08054  IRsection 0.21779  IRvz 0.0659944  C1 1.132  C2 0.459
  Mcr 210.408  chiLT_min 0.387942  Mdb 163.654  IRlateral 0.561397  MaxIR 0.561397
# fd = 355/1.1 = 322.73. P = 66 and 60 kN at 2.5 and 5.5 m, q = 1.2*(4 + 0.7757). The greatest
# moment lies between the posts. Held at the quarter points.
beam-ipe450-characteristic-points.kvn
  N 0  A 9882.1  Iy 3.3743E8  Wply 1.70179E6  S 77.5745  Mdy 549.215  My_max 203.654  My_min 0
  Vz_abs 87.0486  DeflZ_max 15.2555  IRsection 0.370251  IRvz 0.091883  C1 1.12974
  chiLT_min 0.968168  Mdb 531.732  IRlateral 0.383001  MaxIR 0.383001
# fd = 355/1.1 = 322.73. q = 1.2*(9 + 0.671) + 21 = 32.61: mid q*L^2*(1/8 - 0.6/12), ends
# -0.6*q*L^2/12. Middle third governs, C1 = 1.
beam-ub457-spring.kvn
  N 0  A 8550  Iy 2.938E8  Wply 1.471E6  S 67.1  Mdy 474.732  My_max 198.077  My_min -132.051
  Vz_abs 146.723  DeflZ_max 17.0435  IRsection 0.417239  IRvz 0.186799  C1 1  chiLT_min 0.841078
  Mdb 399.287  IRlateral 0.496076  MaxIR 0.496076
# fd = 355/1.1 = 322.73. N = -(1.2*20 + 1.5*130) = -219, A*fd = 395.9.
brace-angle80-tension.kvn
  N -219  A 1226.73  Iy 722469  S 9.62983  My_max 0  My_min 0  Vz_abs 0  DeflZ_max 0
  Ncrd 395.899  IRsection 0.553171  MaxIR 0.553171
# fd = 355/1.1 = 322.73. M = -(1.5*35*2.4 + 1.2*(1.5 + 0.76185)*2.4^2/2). k/2 = 1: point load set,
# C1 = 1.365, C2 = 0.553; hogging, so zg = -60. Deflection P*L^3/(3EI) + q*L^4/(8EI).
cantilever-hem160.kvn
  N 0  A 9705.1  Iy 5.0983E7  Wply 674565  S 76.185  Mdy 217.701  My_max 0  My_min -133.817
  Vz_abs 59.0141  DeflZ_max 15.94  ModalMass 229.185  ModalFreq1 21.0133  ModalFreq2 131.709
  ModalFreq3 368.484  IRsection 0.614683  IRvz 0.102796  C1 1.365  C2 0.553  Mcr 720.147
  chiLT_min 0.948594  Mdb 206.51  IRlateral 0.647994  MaxIR 0.647994
# fd = 355/1.1 = 322.73. N = 216 + 225. Half flange 100/10 = 10 is above 11*0.8136: class 3, Mdy =
# Iy/95*fd = 125.4. M = 4.8*16/8 = 9.6: 441/1737.3 + 9.6/125.4 = 0.330. Curves b and c (h < 1.2
# b); lambda_y = 4000/82.8/76.4 = 0.632.
column-hea200.kvn
  N 441  A 5383.1  Iy 3.6922E7  Wply 429485  S 42.2573  Mdy 125.429  My_max 9.6  My_min 0
  Vz_abs 9.6  DeflZ_max 1.3757  IRsection 0.330384  IRvz 0.0284953  C1 1.132  C2 0.459
  Mcr 190.07  chiLT_min 0.812176  Mdb 101.87  IRlateral 0.0942375  Xy 0.820623  Xz 0.510921
  ky 1.24886  IRcombinedY 0.592425  IRcombinedZ 0.588739  klt 0.975182  MaxIR 0.592425
# fd = 355/1.1 = 322.73. N = 240 + 375, My: q = 9, propped: -9*30.25/8; Mz: q = 3.75 the same way.
# Exponents: (My/Mndy)^2 + (Mz/Mndz)^max(1, 5n), n = 0.18. C1 = 0.6*U + 0.4*UF at k = 0.7.
column-heb240-biaxial.kvn
  N 615  A 10599  Iy 1.1259E8  Wply 1.05315E6  S 83.2021  Mdy 339.879  My_max 19.1392
  My_min -34.0312  Vz_abs 30.9375  MzAbsMax 14.1797  DeflZ_max 1.25766  DeflY_max 1.50407
  IRsection 0.179794  IRvz 0.0499666  C1 0.99808  C2 0.626  Mcr 585.932  chiLT_min 0.846031
  Mdb 287.548  IRlateral 0.11835  Xy 0.88911  Xz 0.644435  ky 1.07335  IRcombinedY 0.48264
  IRcombinedZ 0.492551  klt 0.99183  MaxIR 0.492551
# fd = 355/1.1 = 322.73. N = 192 + 360, q = 3.6. Curve a; ky = 1 - mu*N/(X*Nd*1.1).
column-rhs200x120.kvn
  N 552  A 4795.33  Iy 2.52868E7  Wply 312670  S 37.6433  Mdy 100.907  My_max 10.368  My_min 0
  Vz_abs 8.64  DeflZ_max 3.12393  IRsection 0.459433  IRvz 0.0154718  Xy 0.756482  Xz 0.473144
  ky 1.41776  IRcombinedY 0.899534  MaxIR 0.899534
# fd = 355/1.1 = 322.73. End moments 95 and -60: psi = -0.632, beta = 1.8 + 0.7*0.632 = 2.242, C1
# of the segment by r = -0.632. Exponents at the left end.
column-uc254-end-forces.kvn
  N 900  A 11330  Iy 1.427E8  Wply 1.224E6  S 88.9  Mdy 395.018  My_max 95  My_min -60
  Vz_abs 43  MzAbsMax 22  IRsection 0.284356  IRvz 0.0749368  C1 2.82137  chiLT_min 1
  Mdb 395.018  IRlateral 0.240495  Xy 0.947494  Xz 0.772528  ky 0.924412  IRcombinedY 0.63274
  IRcombinedZ 0.644509  klt 0.973349  MaxIR 0.644509
# fd = 355/1.1 = 322.73. Top outstand 146/16 = 9.1 is above 10 eps: class 3, top Iy/e. zs = shear
# centre from the centroid, zj = 0.4*(2*beta - 1)*hs. P = 90 kN twice, q = 1.2*(3 + 0.8698).
girder-crane-single-symmetric.kvn
  N 0  A 11080  Iy 4.72419E8  Wply 2.05559E6  S 86.978  classTop 3  classBottom 1
  MdyTop 509.514  MdyBottom 663.395  My_max 253.443  My_min 0  Vz_abs 106.253  DeflZ_max 8.90535
  IRsection 0.497421  IRvz 0.152713  zs 115.675  C1 1.132  C2 0.459  Mcr 571.027
  chiLT_min 0.59162  Mdb 301.439  IRlateral 0.840778  MaxIR 0.840778
# fd = 355/1.1 = 322.73. Plate 600x12 with 10 mm web: outstand 295/12 = 24.6 is class 4; q =
# 1.5*30 + 1.2*12 = 59.4: -59.4*25/12 at the ends. Bottom flange stays plastic, lambda < 0.6.
girder-stiffened-plate.kvn
  N 0  A 13440  Iy 3.59063E8  Wply 1.7209E6  S 105.504  classTop 4  classBottom 1  MdyTop 392.06
  MdyBottom 555.38  My_max 61.875  My_min -123.75  Vz_abs 148.5  DeflZ_max 0.906585
  IRsection 0.22282  IRvz 0.207549  chiLT_min 1  Mdb 555.38  IRlateral 0.22282  MaxIR 0.22282
# fd = 355/1.1 = 322.73. Web 1150/10 = 115, class 4: Weff of flange and web strips. Shear with
# stiffeners c/c 1500: k = 5.34 + 4*(1150/1500)^2. q = 1.2*(18 + 2.2765) + 45 = 69.33: M =
# q*L^2/8. Six segments of 3 m, no reduction.
girder-welded-1200.kvn
  N 0  A 29000  Iy 7.30854E9  Wply 1.35875E7  S 227.65  Mdy 3748.81  My_max 2807.94  My_min 0
  Vz_abs 623.986  DeflZ_max 44.7758  ModalMass 5123.65  ModalFreq1 2.6521  ModalFreq2 10.6084
  ModalFreq3 23.8182  IRsection 0.749022  IRvz 0.438455  C1 1.05775  chiLT_min 1  Mdb 3748.81
  IRlateral 0.749022  MaxIR 0.749022
# S235. Trapezoids as twenty slices each, a couple of 3.6 kNm at 1 m, 7.5 kN at 3 m; 40 % of the
# propped beam and 60 % of the simple one. C1 likewise blended.
joist-j152-trapezoid.kvn
  N 0  A 4748  Iy 1.818E7  Wply 278500  S 37.3  Mdy 59.4977  My_max 18.5486  My_min -9.62677
  Vz_abs 25.8513  DeflZ_max 5.4954  IRsection 0.311753  IRvz 0.110959  C1 1.15648  C2 0.63548
  Mcr 114.852  chiLT_min 0.871095  Mdb 51.8282  IRlateral 0.357886  MaxIR 0.357886
# fd = 355/1.1 = 322.73. Moments 210 to 80: r = 0.381. Class 3 in compression with bending: Wely.
# Weak axis held at the quarter points (0.25), beta = 1.8 - 0.7*0.381.
pile-ubp305-end-forces.kvn
  N 800  A 14010  Iy 2.356E8  Wply 1.72E6  S 110  Mdy 494.095  My_max 210  My_min 80  Vz_abs 25
  IRsection 0.601955  IRvz 0.0260823  C1 1.08379  chiLT_min 0.996264  Mdb 492.249
  IRlateral 0.426613  Xy 0.523054  Xz 0.871006  ky 1.3476  IRcombinedY 0.911031
  IRcombinedZ 0.629753  klt 1  MaxIR 0.911031
# fd = 355/1.1 = 322.73. qz = 1.44 + 3.6, qy = 0.36 + 0.9: My = 5.04*20.25/8, Mz = 1.26*20.25/8,
# linear sum. Middle third governs with C1 = 1.
purlin-upe160-biaxial.kvn
  N 0  A 2167.3  Iy 9.1106E6  Wply 131610  S 17.0133  Mdy 42.4741  My_max 12.7575  My_min 0
  Vz_abs 11.34  MzAbsMax 3.18938  DeflZ_max 10.0467  DeflY_max 21.422  IRsection 0.543037
  IRvz 0.0606456  C1 1  chiLT_min 0.884581  Mdb 37.5718  IRlateral 0.33955  MaxIR 0.543037
# fd = 355/1.1 = 322.73. A = pi*(D^2 - d^2)/4, Wpl = (D^3 - d^3)/6, N = 108 + 390. Curve a.
strut-tube168.kvn
  N 498  A 4028.78  Iy 1.29727E7  Wply 205739  S 31.6259  My_max 1.1025  My_min 0  Vz_abs 1.26
  DeflZ_max 0.43034  IRsection 0.399623  IRvz 0.00263659  Xy 0.791549  Xz 0.791549  ky 1.34996
  IRcombinedZ 0.506301  MaxIR 0.506301
# fd = 355/1.1 = 322.73. N = -(216 + 225), tension: |N|/(A*fd) + My/Mdy, no column buckling. q =
# 1.2*(0.8 + 0.1989).
tie-hea120-tension.kvn
  N -441  A 2533.6  Iy 6.0615E6  Wply 119491  S 19.8888  Mdy 38.5629  My_max 3.74583  My_min 0
  Vz_abs 2.99666  DeflZ_max 6.3861  IRsection 0.636478  IRvz 0.0190194  C1 1.132  C2 0.459
  Mcr 31.0915  chiLT_min 0.5738  Mdb 22.1274  IRlateral 0.169285  MaxIR 0.636478
# fd = 355/1.1 = 322.73. N = 1.2*90 + 1.5*60. Web 138/9 = 15.3 is class 4: lambda_p = 1.012, rho
# 0.7734, Aeff 2760.5. Curves c, L/i = 66.8 and 90.0.
chord-t150.kvn
  N 198  A 3042  Iy 6.12653E6  S 23.8797  Ncrd 890.889  IRsection 0.22225  Xy 0.641191
  Xz 0.472941  IRnz 0.469932  MaxIR 0.469932
# fd = 355/1.1 = 322.73. N = 1.2*600 + 1.5*350, q = 9 and 4.5. Webs 326/10 = 32.6: rho 0.9755, Aeff
# 14760; elastic moduli. mu = -1.4*lambda for both axes.
column-box350.kvn
  N 1245  A 14920  Iy 2.97756E8  Wply 1.95098E6  S 117.122  Ncrd 4763.5  My_max 63.2813  My_min 0
  Vz_abs 33.75  DeflZ_max 3.95318  IRsection 0.456931  Xy 0.788721  Xz 0.714559  ky 1.29146
  IRcombinedY 0.625436  MaxIR 0.625436
# fd = 355/1.1 = 322.73. N = -(1.2*120 + 1.5*90) on 1800 mm2.
hanger-flatbar.kvn
  N -279  A 1800  Iy 3.375E6  Wply 67500  S 14.13  Mdy 21.7841  My_max 0  IRsection 0.480282
  MaxIR 0.480282
)";

}  // namespace korvane
