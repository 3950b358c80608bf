// SPDX-License-Identifier: GPL-3.0-or-later
// Rules that the program keeps although mechanics says otherwise, with what they cost.
#include <cstdio>

#include "../sections/section_support.h"
#include "case.h"

namespace korvane::verification {

namespace {

/// I 800 with flanges 400x25 and 150x10 and a web of 10 mm, hogging: the narrow flange is
/// compressed, 0.730 of the web with it, psi = -0.370, 765/10 above 126 eps/(2 + psi) = 62.9.
Case HoggingWeb() {
  testing::Made made(22);
  made.st.p22_h = 800;
  made.st.p22_b = 400;
  made.st.p22_b2 = 150;
  made.st.p22_tw = 10;
  made.st.p22_tf1 = 25;
  made.st.p22_tf2 = 10;
  made.All();
  made.ClassFor(0, -100, 0);
  return {"class of I 800, 400x25 top, 150x10 bottom, web 10, hogging",
          "table of the standard, compressed share of the web from the plates' axis",
          "alpha = 0.730, web 76.5, limits 38.0, 43.7, 62.9",
          4,
          double(made.rec.classBottom),
          "",
          0.8,
          "under a negative moment the web's rule takes the share in tension for alpha"};
}

struct Stiffener {
  double h, tw;
  double modulus;  ///< mm3, plate and the rest of the flat about their own axis
  double tolerance;
};

/// The strip of (1 - rho) times the height below the axis is cut off the tip; distances go to
/// the tip that was.
constexpr Stiffener kStiffeners[] = {
    {120, 8, 27477.343, 0.01}, {200, 10, 55130.729, 0.04}, {300, 5, 6507.3005, 5}};

Case CompressedTip(const Stiffener& s) {
  testing::Made made(51);
  made.st.p51_h = s.h;
  made.st.p51_tw = s.tw;
  char name[80];
  std::snprintf(name, sizeof name, "plate 600x10 on flat %gx%g, tip compressed, Weffy2c", s.h,
                s.tw);
  return {name,
          "plates that remain, about their own axis",
          "S355, strip cut off the tip",
          s.modulus,
          double(made.All().Weffy2c),
          "mm3",
          s.tolerance,
          "the strip counts tw/2 w^2 in the second moment, not tw w (w/2)^2"};
}

}  // namespace

Chapter SettledRules() {
  Chapter chapter{"Settled rules against mechanics",
                  "Rules that stand in the program as they are, each with what mechanics gives. "
                  "Both lie on the unsafe side: check such members by hand.",
                  {}};
  chapter.cases.push_back(HoggingWeb());
  for (const Stiffener& s : kStiffeners) chapter.cases.push_back(CompressedTip(s));
  return chapter;
}

}  // namespace korvane::verification
