// SPDX-License-Identifier: GPL-3.0-or-later
// Section values of the families with typed dimensions.
#include "core/project_state.h"
#include "sections.h"

namespace korvane::verification {

namespace {

void WeldedI(ProjectState& s) {
  s.ProfileType = 21;
}
void Unequal(ProjectState& s) {
  s.ProfileType = 22;
  s.p22_h = 800;
  s.p22_b = 300;
  s.p22_b2 = 200;
  s.p22_tw = 10;
  s.p22_tf1 = 20;
  s.p22_tf2 = 15;
}
void Box(ProjectState& s) {
  s.ProfileType = 23;
}
void Hsq(ProjectState& s) {
  s.ProfileType = 24;
}
void HsqEdge(ProjectState& s) {
  s.ProfileType = 25;
}
void Tee(ProjectState& s) {
  s.ProfileType = 26;
}
void Box2(ProjectState& s) {
  s.ProfileType = 27;
  s.p27_h = 700;
  s.p27_b2 = 500;
  s.p27_tf1 = 25;
  s.p27_a = 400;
}
void Flat(ProjectState& s) {
  s.ProfileType = 28;
}
void Tube(ProjectState& s) {
  s.ProfileType = 31;
}
void PlateFlat(ProjectState& s) {
  s.ProfileType = 51;
}
void PlateAngle(ProjectState& s) {
  s.ProfileType = 52;
  s.p52_index = 2;
}
void PlateWeld(ProjectState& s) {
  s.ProfileType = 53;
}
void PlateBulb(ProjectState& s) {
  s.ProfileType = 54;
  s.p54_index = 18;
}
void PlateTrapez(ProjectState& s) {
  s.ProfileType = 55;
}
void PlateT(ProjectState& s) {
  s.ProfileType = 56;
}

const SectionValue kValues[] = {
    {WeldedI, "I 600x300/12x20", "Iy", &SectionRecord::Iy, 1.185216e+09, "mm4", kPlates},
    {WeldedI, "I 600x300/12x20", "Wply", &SectionRecord::Wply, 4420800, "mm3", kPlates},
    {WeldedI, "I 600x300/12x20", "Iw", &SectionRecord::Iw, 7.569e+12, "mm6",
     "Iz of the flanges times (h - tf)^2/4"},
    {Unequal, "I 800, 300x20 top, 200x15 bottom, web 10", "ezel", &SectionRecord::ezel, 331.3288,
     "mm", kPlates},
    {Unequal, "I 800, 300x20 top, 200x15 bottom, web 10", "Iy", &SectionRecord::Iy, 1.669637e+09,
     "mm4", kPlates},
    {Unequal, "I 800, 300x20 top, 200x15 bottom, web 10", "Wply", &SectionRecord::Wply, 4763062,
     "mm3", kPlates, 2e-3, "the plastic axis is walked in steps of 0.1 mm"},
    {Box, "box 600x600, webs 10, flanges 20, a 50", "Iz", &SectionRecord::Iz, 1.392373e+09, "mm4",
     kPlates},
    {Box, "box 600x600, webs 10, flanges 20, a 50", "Wplz", &SectionRecord::Wplz, 6344000, "mm3",
     kPlates},
    {Box, "box 600x600, webs 10, flanges 20, a 50", "Ix", &SectionRecord::Ix, 1.95858521e+09, "mm4",
     "Bredt: 4 Am^2 over the sum of s/t, and the four outstands"},
    {Hsq, "HSQ 285x540, webs 6, 25/15, a 120, c 5", "Wely1", &SectionRecord::Wely1, 1996135, "mm3",
     kPlates},
    {Hsq, "HSQ 285x540, webs 6, 25/15, a 120, c 5", "Wply", &SectionRecord::Wply, 2334623, "mm3",
     kPlates, 2e-3, "the plastic axis is walked in steps of 0.1 mm"},
    {HsqEdge, "HSQ 285, 300/430, webs 6, 25/15", "Iy", &SectionRecord::Iy, 285968500, "mm4",
     kPlates},
    {HsqEdge, "HSQ 285, 300/430, webs 6, 25/15", "Wely2", &SectionRecord::Wely2, 1860623, "mm3",
     kPlates},
    {Tee, "T 200x200, 10", "ezel", &SectionRecord::ezel, 53.71795, "mm", kPlates},
    {Tee, "T 200x200, 10", "Wply", &SectionRecord::Wply, 190487.5, "mm3", kPlates},
    {Tee, "T 200x200, 10", "Iz", &SectionRecord::Iz, 6682500, "mm4", kPlates},
    {Box2, "box 700, 600x25 top, 500x20 bottom, webs 10 at 400", "Iy", &SectionRecord::Iy,
     3.264429e+09, "mm4", kPlates},
    {Box2, "box 700, 600x25 top, 500x20 bottom, webs 10 at 400", "Wply", &SectionRecord::Wply,
     10307630, "mm3", kPlates, 2e-3, "the plastic axis is walked in steps of 0.1 mm"},
    {Flat, "flat 150x12", "Wply", &SectionRecord::Wply, 67500, "mm3", "tw h^2/4"},
    {Flat, "flat 150x12", "Ix", &SectionRecord::Ix, 82045.4549, "mm4",
     "rectangle in torsion, Saint-Venant", 0.06, "a strip without the loss at its ends: tw^3 h/3"},
    {Tube, "tube 300x10", "Iy", &SectionRecord::Iy, 95889261.8, "mm4", "pi/64 (d^4 - di^4)"},
    {Tube, "tube 300x10", "Wply", &SectionRecord::Wply, 841333.333, "mm3", "(d^3 - di^3)/6"},
    {Tube, "tube 300x10", "Ix", &SectionRecord::Ix, 191778524, "mm4",
     "polar moment of the ring, twice Iy"},
    {PlateFlat, "plate 600x10 on flat 200x10", "Wely2", &SectionRecord::Wely2, 130093.2, "mm3",
     kPlates},
    {PlateFlat, "plate 600x10 on flat 200x10", "Wply", &SectionRecord::Wply, 223333.3, "mm3",
     kPlates},
    {PlateAngle, "plate 600x10 on L 250x90x10/15", "A", &SectionRecord::A, 9746.515, "mm2",
     "exact outline, integrated", kPrinted},
    {PlateAngle, "plate 600x10 on L 250x90x10/15", "Iy", &SectionRecord::Iy, 90306520, "mm4",
     "exact outline, integrated", kPrinted},
    {PlateWeld, "plate 600x10 on L 300x100x11.5/16", "Iy", &SectionRecord::Iy, 149758500, "mm4",
     kPlates},
    {PlateWeld, "plate 600x10 on L 300x100x11.5/16", "Wply", &SectionRecord::Wply, 960436.2, "mm3",
     kPlates, 2e-3},
    {PlateBulb, "plate 600x10 on bulb flat 200x10", "A", &SectionRecord::A, 8566, "mm2",
     "EN 10067, 25.66 cm2, and the plate"},
    {PlateTrapez, "plate 600x12 on trapez 250, 200, 8, a 50", "A", &SectionRecord::A, 12748.68,
     "mm2", kPlates},
    {PlateTrapez, "plate 600x12 on trapez 250, 200, 8, a 50", "Iy", &SectionRecord::Iy, 120461700,
     "mm4", kPlates},
    {PlateT, "plate 300x20 on T 580x300/12x20", "Iy", &SectionRecord::Iy, 1.185216e+09, "mm4",
     kPlates},
    {PlateT, "plate 300x20 on T 580x300/12x20", "Wply", &SectionRecord::Wply, 4420800, "mm3",
     kPlates, 2e-3, "the plastic axis is walked in steps of 0.1 mm"},
};

}  // namespace

Chapter BuiltSections() {
  return {"Sections of typed dimensions",
          "Values of typed sections, each plate summed with its own inertia about the common axis; "
          "plastic moduli halve the area.",
          SectionCases(kValues)};
}

}  // namespace korvane::verification
