// SPDX-License-Identifier: GPL-3.0-or-later
// Key figures of one project of each section family, worked out as those of the examples.
#pragma once

namespace korvane {

/// A line with a file name begins a project; names and values follow. # begins a derivation.
inline constexpr const char* kFamilyFigures = R"(
# fd = 355/1.1 = 322.73. N = 360, M = 12*25/8. Flange 130/12.5 = 10.4: class 3 (15 eps = 12.2).
f001.kvn
  N 360  A 8681.9  Iy 1.0455E8  Wply 919771  S 68.1529  Mdy 269.929  My_max 37.5  My_min 0
  Vz_abs 30  DeflZ_max 2.96528  IRsection 0.268384  IRvz 0.05599  C1 1.132  C2 0.459
  Mcr 411.301  chiLT_min 0.813745  Mdb 219.653  IRlateral 0.170724  Xy 0.840029  Xz 0.5382
  ky 1.11652  IRcombinedY 0.395654  IRcombinedZ 0.409562  klt 0.990032  MaxIR 0.409562
# fd = 355/1.1 = 322.73. N = 480, M = 12*16/8. Flange 100/15 = 6.7: class 1.
f002.kvn
  N 480  A 7808.1  Iy 5.6962E7  Wply 642547  S 61.2936  Mdy 207.367  My_max 24  My_min 0
  Vz_abs 24  DeflZ_max 2.7866  IRsection 0.306221  IRvz 0.0518731  C1 1.132  C2 0.459
  Mcr 366.283  chiLT_min 0.851762  Mdb 176.628  IRlateral 0.135879  Xy 0.83053  Xz 0.520757
  ky 1.15222  IRcombinedY 0.499138  IRcombinedZ 0.499335  klt 0.982865  MaxIR 0.499335
# fd = 355/1.1 = 322.73. N = 420, P = 30 at mid-span: M = 30*3.5/4, point load set of C factors.
f003.kvn
  N 420  A 8055.6  Iy 3.2914E7  Wply 493826  S 63.2365  Mdy 159.371  My_max 26.25  My_min 0
  Vz_abs 15  DeflZ_max 2.5846  IRsection 0.326263  IRvz 0.0329178  C1 1.365  C2 0.553
  Mcr 512.762  chiLT_min 0.945781  Mdb 150.73  IRlateral 0.174152  Xy 0.774248  Xz 0.42651
  ky 1.12513  IRcombinedY 0.564099  IRcombinedZ 0.546622  klt 0.963767  MaxIR 0.564099
# fd = 355/1.1 = 322.73. M = 10.8*25/8, held at the ends alone: Mcr = 50.8 kNm with the load on
# the top flange.
f004.kvn
  N 0  A 3911.6  Iy 3.8916E7  Wply 366645  S 30.7061  Mdy 118.326  My_max 33.75  My_min 0
  Vz_abs 27  DeflZ_max 8.96218  IRsection 0.285228  IRvz 0.0756946  C1 1.132  C2 0.459
  Mcr 50.7882  chiLT_min 0.339599  Mdb 40.1836  IRlateral 0.839895  MaxIR 0.839895
# fd = 355/1.1 = 322.73. N = 96, M = 6*16/8. Curve c about both axes.
f005.kvn
  N 96  A 2900.5  Iy 1.9093E7  Wply 220090  S 22.7689  Mdy 71.029  My_max 12  My_min 0
  Vz_abs 12  DeflZ_max 4.15676  IRsection 0.271501  IRvz 0.0477236  C1 1.132  C2 0.459
  Mcr 40.6285  chiLT_min 0.436523  Mdb 31.0058  IRlateral 0.387024  Xy 0.758264  Xz 0.186422
  ky 1.09229  IRcombinedY 0.734667  IRcombinedZ 0.888433  klt 0.874113  MaxIR 0.888433
# fd = 355/1.1 = 322.73. N = 300, M = 6*16/8. Curve a. ky reaches its limit 1.5.
f006.kvn
  N 300  A 3515.33  Iy 7.26307E6  Wply 146457  S 27.5953  Mdy 47.2658  My_max 12  My_min 0
  Vz_abs 12  DeflZ_max 8.74177  IRsection 0.518319  IRvz 0.0366413  Xy 0.561208  Xz 0.561208
  ky 1.5  IRcombinedY 0.852015  MaxIR 0.852015
# fd = 355/1.1 = 322.73. Turned: h = 80, Iy and Iz change places. N = 240, M = 4.8*9/8.
f007.kvn
  N 240  A 3515.33  Iy 3.55843E6  Wply 105591  S 27.5953  Mdy 34.077  My_max 5.4  My_min 0
  Vz_abs 7.2  DeflZ_max 5.64555  IRsection 0.370013  IRvz 0.0329771  Xy 0.508899  Xz 0.845532
  ky 1.5  IRcombinedY 0.653395  MaxIR 0.653395
# fd = 355/1.1 = 322.73. N = 144, M = 3*9/8. Curve b, cold formed.
f008.kvn
  N 144  A 1835.62  Iy 2.71102E6  Wply 64591.4  S 14.4096  Mdy 20.8454  My_max 3.375  My_min 0
  Vz_abs 4.5  DeflZ_max 3.70511  IRsection 0.404983  IRvz 0.0263139  Xy 0.583347  Xz 0.583347
  ky 1.46936  IRcombinedY 0.654593  MaxIR 0.654593
# fd = 355/1.1 = 322.73. N = 180, M = 4.5*16/8. Curve b.
f009.kvn
  N 180  A 2763.29  Iy 8.34685E6  Wply 136683  S 21.6918  Mdy 44.1115  My_max 9  My_min 0
  Vz_abs 9  DeflZ_max 5.70503  IRsection 0.40587  IRvz 0.0291333  Xy 0.627389  Xz 0.424147
  ky 1.32328  IRcombinedY 0.745863  MaxIR 0.745863
# fd = 355/1.1 = 322.73. N = 72, pure compression about the principal axes, effective slenderness
# 0.35 + 0.7*lambda, alpha 0.76 of index 3.
f010.kvn
  N 72  A 1915.45  Iy 1.76676E6  S 15.0363  My_max 0  My_min 0  Vz_abs 0  DeflZ_max 0
  Ncrd 618.168  IRsection 0.116473  Xy 0.493979  Xz 0.270399  IRny 0.235786  IRnz 0.430745
  MaxIR 0.430745
# fd = 355/1.1 = 322.73. N = -108, My = 2.4*6.25/8 turned into u and v by tan(alfa); three
# corners. (h + b)/2t = 10.4 is above 11.5 eps: effective area in compression only.
f011.kvn
  N -108  A 2871.45  Iy 6.50546E6  S 22.5409  My_max 1.875  My_min 0  Vz_abs 3
  DeflZ_max 0.744615  Ncrd 862.162  IRsection 0.213872  MaxIR 0.213872
# fd = 235/1.1 = 213.64. M = 13.2*36/8.
f015.kvn
  N 0  A 6899.5  Iy 9.7851E7  Wply 761460  S 54.1611  Mdy 162.676  My_max 59.4  My_min 0
  Vz_abs 39.6  DeflZ_max 9.03341  IRsection 0.365144  IRvz 0.0951451  C1 1.132  C2 0.459
  Mcr 111.643  chiLT_min 0.507146  Mdb 82.5003  IRlateral 0.719998  MaxIR 0.719998
# fd = 235/1.1 = 213.64. M = 10.8*16/8. No radius in the shear area: 3744.4 - 2*80*12.5 + 9*12.5
# = 1856.9 mm2, Vd = 229.0 kN.
f016.kvn
  N 0  A 3744.4  Iy 2.6911E7  Wply 291490  S 29.3935  Mdy 62.2729  My_max 21.6  My_min 0
  Vz_abs 21.6  DeflZ_max 5.3085  IRsection 0.346861  IRvz 0.0943085  C1 1.132  C2 0.459
  Mcr 56.4002  chiLT_min 0.62287  Mdb 38.7879  IRlateral 0.556875  MaxIR 0.556875
# fd = 355/1.1 = 322.73. A = 2*250*16 + 10*468. N = 240, M = 18*64/8. Outstand 120/16 = 7.5 is
# class 2 (8.1), web 46.8.
f021.kvn
  N 240  A 12680  Iy 5.54102E8  Wply 2.48356E6  S 99.538  Mdy 801.513  My_max 144  My_min 0
  Vz_abs 72  DeflZ_max 5.5001  IRsection 0.243673  IRvz 0.082568  C1 1.132  C2 0.459  Mcr 358.21
  chiLT_min 0.30444  Mdb 244.012  IRlateral 0.590134  Xy 0.893225  Xz 0.24633  ky 1.03587
  IRcombinedY 0.445972  IRcombinedZ 0.823408  klt 0.954937  MaxIR 0.823408
# fd = 355/1.1 = 322.73. Plates 250x16, 10x422, 150x12; equal area axis in the web. M = 18*36/8.
f022.kvn
  N 0  A 10020  Iy 3.15823E8  Wply 1.59081E6  S 78.657  classTop 2  classBottom 1
  MdyTop 513.398  MdyBottom 513.398  My_max 81  My_min 0  Vz_abs 54  DeflZ_max 3.81656
  IRsection 0.157772  IRvz 0.0686762  zs 109.772  C1 1.132  C2 0.459  Mcr 431.18
  chiLT_min 0.492849  Mdb 253.028  IRlateral 0.320123  MaxIR 0.320123
# fd = 355/1.1 = 322.73. Plates 2 x 400x16, 2 x 10x368. N = 1800, M = 22.5*64/8. Web 368/10 = 36.8
# with eps = 0.8136: class 4 in compression alone (Aeff/A = 0.967), class 3 with the bending.
f023.kvn
  N 1800  A 20160  Iy 5.55192E8  Wply 3.13472E6  S 158.256  Mdy 1011.66  My_max 180  My_min 0
  Vz_abs 90  DeflZ_max 6.86163  IRsection 0.487103  IRvz 0.0656281  Xy 0.826729  Xz 0.756848
  ky 1.2733  IRcombinedY 0.633956  MaxIR 0.633956
# fd = 355/1.1 = 322.73. Plates 262x30, 2 x 8x270, 450x15. M = 24*49/8; flange load 24*60*0.5
# below 0.2*Mf.
f024.kvn
  N 0  A 18930  Iy 3.38387E8  Wply 2.41322E6  S 148.6  classTop 1  classBottom 1  MdyTop 778.813
  MdyBottom 778.813  My_max 147  My_min 0  Vz_abs 84  DeflZ_max 8.7989  IRsection 0.188749
  IRvz 0.104357  MaxIR 0.188749
# fd = 355/1.1 = 322.73. Plates 274x25, 2 x 8x255, 420x14. Outstand 420 - 280 - 12 = 128 over 14
# is class 3. M = 19.2*36/8.
f025.kvn
  N 0  A 16810  Iy 2.6151E8  Wply 1.99526E6  S 131.958  classTop 1  classBottom 3
  MdyTop 643.924  MdyBottom 557.064  My_max 86.4  My_min 0  Vz_abs 57.6  DeflZ_max 4.9165
  IRsection 0.134177  IRvz 0.0757683  MaxIR 0.134177
# fd = 355/1.1 = 322.73. Web 166/9 = 18.4 > 15 eps: rho = 0.673, Aeff/A = 0.869. N = 180, curve c.
f026.kvn
  N 180  A 3734  Iy 1.07269E7  Wply 138812  S 29.3119  My_max 0  My_min 0  Vz_abs 0  DeflZ_max 0
  Ncrd 1047.41  IRsection 0.171852  Xy 0.735222  Xz 0.527205  IRny 0.233741  IRnz 0.325968
  MaxIR 0.325968
# fd = 355/1.1 = 322.73. Plates 400x20, 2 x 10x464, 350x16. No check runs for this family. M =
# 21.6*64/8.
f027.kvn
  N 0  A 22880  Iy 9.42636E8  Wply 4.28448E6  S 179.608  classTop 1  classBottom 1
  MdyTop 1382.72  MdyBottom 1382.72  My_max 172.8  My_min 0  Vz_abs 86.4  DeflZ_max 4.84962
  MaxIR 0
# fd = 355/1.1 = 322.73. 150x12 as a new project has it. N = -72, M = 7.2*2.25/8.
f028.kvn
  N -72  A 1800  Iy 3.375E6  Wply 67500  S 14.13  Mdy 21.7841  My_max 2.025  My_min 0
  Vz_abs 5.4  DeflZ_max 0.558036  IRsection 0.216901  IRvz 0.0241511  C1 1.132  C2 0.459
  Mcr 12.5861  chiLT_min 0.440242  Mdb 9.59027  IRlateral 0.211151  MaxIR 0.216901
# fd = 355/1.1 = 322.73. D/t = 21.9 < 50*eps^2: plastic. N = 480, M = 7.5*25/8. Curve b.
f031.kvn
  N 480  A 6569.07  Iy 3.59844E7  Wply 437561  S 51.5672  My_max 23.4375  My_min 0  Vz_abs 18.75
  DeflZ_max 5.38462  IRsection 0.392386  IRvz 0.0240626  Xy 0.671367  Xz 0.671367  ky 1.27767
  IRcombinedZ 0.5493  MaxIR 0.5493
# fd = 355/1.1 = 322.73. Typed values, class 1. N = 180, M = 18*25/8, load at the centre.
f041.kvn
  N 180  A 9000  Iy 1.7E8  Wply 1.08E6  S 70.65  MdyWork 348.545  My_max 56.25  My_min 0
  Vz_abs 45  DeflZ_max 3.41934  IRsection 0.223357  IRvz 0.086254  C1 1.132  C2 0.459
  Mcr 512.74  chiLT_min 0.682555  Mdb 237.902  IRlateral 0.236442  Xy 0.931524  Xz 0.41571
  ky 1.03204  IRcombinedY 0.31563  IRcombinedZ 0.382054  klt 0.985352  MaxIR 0.382054
# fd = 355/1.1 = 322.73. Plate 500x12: outstand 242.5/12 = 20.2 is class 4 on top. M = 19.2*9/8.
f051.kvn
  N 0  A 8250  Iy 1.50269E7  Wply 197719  S 64.7625  classTop 4  classBottom 1  MdyTop 34.7291
  MdyBottom 63.8092  My_max 21.6  My_min 0  Vz_abs 28.8  DeflZ_max 5.34754  IRsection 0.621957
  IRvz 0.0686966  MaxIR 0.621957
# fd = 355/1.1 = 322.73. Angle 300x90x13x17 with fillets as 0.2146*r^2 at 0.2234*r from the
# corner. Plate outstand class 4. M = 24*16/8.
f052.kvn
  N 0  A 12467.1  Iy 1.62261E8  Wply 1.02429E6  S 97.8668  classTop 4  classBottom 1
  MdyTop 219.082  MdyBottom 330.566  My_max 48  My_min 0  Vz_abs 48  DeflZ_max 1.95649
  IRsection 0.219096  IRvz 0.0700223  MaxIR 0.219096
# fd = 355/1.1 = 322.73. Built in: -48*16/12 at the ends, 48*16/24 in the middle.
f053.kvn
  N 0  A 11765  Iy 1.37729E8  Wply 876169  S 92.3552  classTop 4  classBottom 1  MdyTop 198.185
  MdyBottom 282.764  My_max 32  My_min -64  Vz_abs 96  DeflZ_max 0.921983  IRsection 0.226337
  IRvz 0.176749  chiLT_min 1  Mdb 282.764  IRlateral 0.226337  MaxIR 0.226337
# fd = 355/1.1 = 322.73. Bulb as an equivalent flange. M = 24*12.25/8.
f054.kvn
  N 0  A 9849  Iy 7.00177E7  Wply 514039  S 77.3147  classTop 4  classBottom 1  MdyTop 110.518
  MdyBottom 165.894  My_max 36.75  My_min 0  Vz_abs 42  DeflZ_max 2.65775  IRsection 0.332524
  IRvz 0.106718  MaxIR 0.332524
# fd = 355/1.1 = 322.73. Walls 9/cos(atan(60/250)) each. M = 21.6*25/8.
f055.kvn
  N 0  A 13281.2  Iy 1.24444E8  Wply 977961  S 104.257  classTop 4  classBottom 1
  MdyTop 218.474  MdyBottom 315.615  My_max 67.5  My_min 0  Vz_abs 54  DeflZ_max 5.60528
  IRsection 0.308961  IRvz 0.0668081  MaxIR 0.308961
# fd = 355/1.1 = 322.73. Propped: -42*20.25/8 at the fixed end; 9/128 of q*L^2 at 0.375 L, of
# which the station at 0.38 L shows 59.79.
f056.kvn
  N 0  A 11320  Iy 2.29986E8  Wply 1.27253E6  S 88.862  classTop 4  classBottom 1
  MdyTop 290.897  MdyBottom 410.68  My_max 59.7901  My_min -106.313  Vz_abs 118.125
  DeflZ_max 1.60946  IRsection 0.25887  IRvz 0.188681  chiLT_min 1  Mdb 410.68
  IRlateral 0.25887  MaxIR 0.25887
# fd = 355/1.1 = 322.73. M = 24*36/8. Tabled moduli.
f101.kvn
  N 0  A 8550  Iy 1.946E8  Wply 1.211E6  S 67.1  Mdy 390.823  My_max 108  My_min 0  Vz_abs 72
  DeflZ_max 8.2587  IRsection 0.27634  IRvz 0.108099  C1 1.132  C2 0.459  Mcr 198.953
  chiLT_min 0.394916  Mdb 154.342  IRlateral 0.699744  MaxIR 0.699744
# fd = 235/1.1 = 213.64. N = 120, M = 18*16/8. Curves of the project, as no rule sets them.
f102.kvn
  N 120  A 6656  Iy 4.798E7  Wply 540900  S 52.3  Mdy 115.556  My_max 36  My_min 0  Vz_abs 36
  DeflZ_max 4.96239  IRsection 0.395928  IRvz 0.127724  C1 1.132  C2 0.459  Mcr 238.693
  chiLT_min 0.884269  Mdb 102.183  IRlateral 0.352311  Xy 0.923756  Xz 0.469237  ky 1.04627
  IRcombinedY 0.505797  IRcombinedZ 0.527132  klt 0.985739  MaxIR 0.527132
# fd = 235/1.1 = 213.64. M = 10.8*16/8.
f103.kvn
  N 0  A 4170  Iy 3.39E7  Wply 348000  S 32.7  Mdy 74.3455  My_max 21.6  My_min 0  Vz_abs 21.6
  DeflZ_max 4.21408  IRsection 0.290536  IRvz 0.0833177  C1 1.132  C2 0.459  Mcr 77.5099
  chiLT_min 0.681134  Mdb 50.6392  IRlateral 0.426547  MaxIR 0.426547
)";

}  // namespace korvane
