// SPDX-License-Identifier: GPL-3.0-or-later
// Steps of the members of open sections: floor beam, column, beam-column, welded girder.
#include "members.h"

namespace korvane::verification {

namespace {

/// Simply supported IPE 300 of S235, 6 m, 5 kN/m permanent and 8 kN/m variable load.
const Step kFloor[] = {
    {"fd", "fyk/gammam1 = 235/1.1", 213.6364, "MPa",
     [](const Design& d) -> double { return d.st.fd; }},
    {"S", "7850 kg/m3 * 5381.2 mm2", 42.24242, "kg/m",
     [](const Design& d) -> double { return d.rec.S; }},
    {"My", "q*L^2/8 with q = 1.2*(5 + 0.42242) + 1.5*8 = 18.507 kN/m", 83.28109, "kNm",
     [](const Design& d) -> double { return d.beam.MyAbsMax; }},
    {"Vz", "q*L/2", 55.52073, "kN", [](const Design& d) -> double { return d.beam.z.V_max; }},
    {"c/tf", "b/2 over tf = 75/10.7, below 10 eps = 10: class 1", 7.009346, "",
     [](const Design& d) { return d.rec.c / d.rec.tf; }},
    {"class", "flange 7.0 below 10, web in bending 248.6/7.1 = 35 below 72: class 1", 1, "",
     [](const Design& d) { return double(d.rec.classMy); }},
    {"Mdy", "Wply*fd, Wply = 628356 mm3 of the exact outline", 134.2397, "kNm",
     [](const Design& d) -> double { return d.rec.Mdyshown; }},
    {"Vdz", "Av*fyk/sqrt(3)/gammam1, Av = A - 2 b tf + (tw + 2 r) tf", 316.7658, "kN",
     [](const Design& d) -> double { return d.rec.Vdz; }},
    {"IR My", "My/Mdy at mid-span", 0.620391, "",
     [](const Design& d) -> double { return d.checks.IRsection; }},
    {"IR Vz", "Vz/Vdz at the support", 0.1752737, "",
     [](const Design& d) -> double { return d.checks.IRvz; }},
    {"Mcr", "C1 = 1.132, C2 = 0.459, load on the top flange, zg = 150 mm", 78.74479, "kNm",
     [](const Design& d) { return d.ltb.Mcr / 1E6; }},
    {"lambda_LT", "sqrt(Wply*fyk/Mcr)", 1.369386, "",
     [](const Design& d) -> double { return d.ltb.lamLT; }},
    {"chi_LT", "alpha = 0.21, plateau 0.4", 0.4459082, "",
     [](const Design& d) -> double { return d.ltb.chiLT; }},
    {"Mdb", "chi_LT*Mdy", 59.85858, "kNm", [](const Design& d) -> double { return d.ltb.Mdb; }},
    {"IR lateral", "My/Mdb", 1.391298, "",
     [](const Design& d) -> double { return d.checks.IRlateral; }},
    {"w", "5 q L^4/(384 E Iy) with q = 5 + 8 + 0.42242 kN/m", 12.90779, "mm",
     [](const Design& d) -> double { return d.deflections.DeflZ_max; }},
};

/// HEB 240 of S355, 4.5 m between pins, 800 kN permanent and 400 kN variable load.
const Step kColumn[] = {
    {"N", "1.2*800 + 1.5*400", 1560, "kN", [](const Design& d) -> double { return d.forces.N; }},
    {"Ncd", "A*fd", 3420.586, "kN", [](const Design& d) -> double { return d.rec.Ncrd; }},
    {"IR N", "N/Ncd", 0.4560622, "", [](const Design& d) -> double { return d.checks.IRsection; }},
    {"L/iy", "4500/sqrt(Iy/A), i = 103.07 mm", 43.66114, "",
     [](const Design& d) -> double { return d.buckling.LyOverI; }},
    {"lambda y", "L/i/(pi*sqrt(E/fyk))", 0.5714125, "",
     [](const Design& d) -> double { return d.buckling.Lybar; }},
    {"Xy", "curve b: root of (1 - X)(1 - X lambda^2) = 0.34 (lambda - 0.2) X", 0.8511495, "",
     [](const Design& d) -> double { return d.buckling.Xy; }},
    {"L/iz", "4500/sqrt(Iz/A), i = 60.84 mm", 73.96945, "",
     [](const Design& d) -> double { return d.buckling.LzOverI; }},
    {"lambda z", "L/i/(pi*sqrt(E/fyk))", 0.9680707, "",
     [](const Design& d) -> double { return d.buckling.Lzbar; }},
    {"Xz", "curve c: root of (1 - X)(1 - X lambda^2) = 0.49 (lambda - 0.2) X", 0.558676, "",
     [](const Design& d) -> double { return d.buckling.Xz; }},
    {"Nyd", "Xy*A*fd", 2911.43, "kN", [](const Design& d) -> double { return d.buckling.Nyd; }},
    {"Nzd", "Xz*A*fd", 1911, "kN", [](const Design& d) -> double { return d.buckling.Nzd; }},
    {"IR Ny", "N/Nyd", 0.5358191, "", [](const Design& d) -> double { return d.checks.IRny; }},
    {"IR Nz", "N/Nzd", 0.8163267, "", [](const Design& d) -> double { return d.checks.IRnz; }},
};

/// HEB 300 of S355, 6 m between pins, compression and a load across at mid-depth.
const Step kBeamColumn[] = {
    {"N", "1.2*500 + 1.5*400", 1200, "kN", [](const Design& d) -> double { return d.forces.N; }},
    {"My", "(1.2*10 + 1.5*8)*6^2/8", 108, "kNm",
     [](const Design& d) -> double { return d.beam.MyAbsMax; }},
    {"Ncd", "A*fd", 4811.218, "kN", [](const Design& d) -> double { return d.rec.Ncrd; }},
    {"Mdy", "Wply*fd, class 1: b/2 over tf = 7.89 below 10 eps = 8.14", 603.0721, "kNm",
     [](const Design& d) -> double { return d.rec.Mdyshown; }},
    {"IR N+My", "N/Ncd + My/Mdy at mid-span", 0.4285002, "",
     [](const Design& d) -> double { return d.checks.IRsection; }},
    {"lambda y", "6000/sqrt(Iy/A)/(pi*sqrt(E/fyk))", 0.6043778, "",
     [](const Design& d) -> double { return d.buckling.Lybar; }},
    {"lambda z", "6000/sqrt(Iz/A)/(pi*sqrt(E/fyk))", 1.036114, "",
     [](const Design& d) -> double { return d.buckling.Lzbar; }},
    {"Xy", "curve b", 0.8348563, "", [](const Design& d) -> double { return d.buckling.Xy; }},
    {"Xz", "curve c", 0.5192718, "", [](const Design& d) -> double { return d.buckling.Xz; }},
    {"beta My", "1.3, line load between pins", 1.3, "",
     [](const Design& d) -> double { return d.beam.betaMy; }},
    {"ky", "1 - mu N/(Xy Ncd gammam1), mu = lambda_y (2*1.3 - 4) + Wply/Wely - 1 = -0.7323",
     1.198895, "", [](const Design& d) -> double { return d.buckling.ky; }},
    {"klt", "1 - mu N/(Xz Ncd gammam1), mu = 0.15 (1.3 lambda_z - 1) = 0.0520", 0.9772755, "",
     [](const Design& d) -> double { return d.buckling.klt; }},
    {"Mcr", "C1 = 1.132, load at mid-depth", 1248.216, "kNm",
     [](const Design& d) { return d.ltb.Mcr / 1E6; }},
    {"chi_LT", "lambda_LT = 0.7290, alpha = 0.21, plateau 0.4", 0.8846411, "",
     [](const Design& d) -> double { return d.ltb.chiLT; }},
    {"IR flexural", "N/(Xmin Ncd) + ky My/Mdy", 0.6950225, "",
     [](const Design& d) -> double { return d.checks.IRcombinedY; }},
    {"IR lateral-flexural", "N/(Xz Ncd) + klt My/(chi_LT Mdy)", 0.6781564, "",
     [](const Design& d) -> double { return d.checks.IRcombinedZ; }},
};

/// Welded girder 1200x300, web 8, flanges 15, S355, 12 m, held at every 2 m.
const Step kGirder[] = {
    {"Iy", "tw hw^3/12 + 2 (b tf^3/12 + b tf ((h - tf)/2)^2)", 4.227417e+09, "mm4",
     [](const Design& d) -> double { return d.rec.Iy; }},
    {"class", "flange 146/15 = 9.73 below 14 eps = 11.39: 3; web 146.25 above 124 eps = 100.9: 4",
     4, "", [](const Design& d) { return double(d.rec.classMy); }},
    {"Weffy",
     "plates 15x300, 150.0x8, 810.0x8, 15x300 about their own axis; rho = 0.6409 at lambda_p = "
     "1.2952",
     6347939, "mm3", [](const Design& d) -> double { return d.rec.Weffy; }},
    {"Mdy", "Weffy*fd", 2048.653, "kNm", [](const Design& d) -> double { return d.rec.Mdyshown; }},
    {"Vdz", "hw tw chi fyk/sqrt(3)/gammam1, lambda_v = 2.0805, chi = 0.83/lambda_v", 695.7714, "kN",
     [](const Design& d) -> double { return d.rec.Vdz; }},
    {"My", "q*L^2/8, q = 1.2*20 + 1.5*25 = 61.5 kN/m", 1107, "kNm",
     [](const Design& d) -> double { return d.beam.MyAbsMax; }},
    {"IR My", "My/Mdy", 0.5403551, "",
     [](const Design& d) -> double { return d.checks.IRsection; }},
    {"IR Vz", "q*L/2 over Vdz", 0.5303466, "",
     [](const Design& d) -> double { return d.checks.IRvz; }},
    {"C1", "segment from mid-span to 2/3 L (station 33), r = 0.8976: 1.141 - 0.141 (r - 0.75)/0.25",
     1.057754, "", [](const Design& d) -> double { return d.ltb.C1; }},
    {"chi_LT", "lambda_LT = 0.3201 below the plateau of 0.4", 1, "",
     [](const Design& d) -> double { return d.ltb.chiLT_min; }},
    {"IR lateral", "My/Mdy", 0.5403551, "",
     [](const Design& d) -> double { return d.checks.IRlateral; }},
};

}  // namespace

std::span<const Step> FloorSteps() {
  return kFloor;
}
std::span<const Step> ColumnSteps() {
  return kColumn;
}
std::span<const Step> BeamColumnSteps() {
  return kBeamColumn;
}
std::span<const Step> GirderSteps() {
  return kGirder;
}

}  // namespace korvane::verification
