// SPDX-License-Identifier: GPL-3.0-or-later
// The figures that the verdict's notes bring of their own, beside the check lines.
#include <functional>

#include "case.h"
#include "core/calculation.h"
#include "tests/support/source_library.h"

namespace korvane::verification {

namespace {

/// A figure of a note on a member; 0 where the member doesn't have the note.
double FigureOf(NoteCode code, std::size_t figure, int family,
                const std::function<void(ProjectState&)>& change) {
  Design d(SourceLibrary());
  StartDesign(d);
  d.st.ProfileType = family;
  change(d.st);
  Calculate(d);
  // A first calculation may take loads out of the input and switch lateral buckling off.
  change(d.st);
  Calculate(d);
  for (const Note& note : VerdictOf(d).notes) {
    if (note.code == code) return note.v.at(figure);
  }
  return 0;
}

void HeldAtItsEnds(ProjectState& st) {
  st.SupportType = 2;
  st.q1 = 200;
  st.NP = 0;
  st.L = 8;
  st.LateralTorsionalBuckling = 1;
}

Case TrippingOfT() {
  const double Iz = FigureOf(NoteCode::TrippingWithPlate, 1, 56, [](ProjectState& st) {
    HeldAtItsEnds(st);
    st.p56_h = 250;
    st.p56_b1 = 600;
    st.p56_b2 = 120;
    st.p56_tw = 10;
    st.p56_tf1 = 10;
    st.p56_tf2 = 15;
  });
  return {"tripping-with-plate: Iz of T 235x10 + 120x15 alone",
          "rectangles about the web",
          "15 120^3/12 + 235 10^3/12",
          2179583.3,
          Iz,
          "mm4",
          kExact,
          ""};
}

Case TrippingOfAngle() {
  const double Iz = FigureOf(NoteCode::TrippingWithPlate, 1, 53, [](ProjectState& st) {
    HeldAtItsEnds(st);
    st.p53_h = 250;
    st.p53_b1 = 600;
    st.p53_b2 = 100;
    st.p53_tw = 10;
    st.p53_tf1 = 10;
    st.p53_tf2 = 15;
  });
  return {"tripping-with-plate: Iz of angle 235x10 + 100x15 alone",
          "rectangles about their common centroid, middles 45 mm apart",
          "15 100^3/12 + 235 10^3/12 + 45^2 2350 1500/3850",
          3123641.8,
          Iz,
          "mm4",
          kExact,
          ""};
}

Case SlendernessOfTheNote() {
  const double L = FigureOf(NoteCode::SlendernessExceeded, 0, 1, [](ProjectState& st) {
    st.check_slend = 1;
    st.islend_limit = 80;
  });
  return {"slenderness-exceeded: L/i about z of HEA 200",
          "iz = 49.8 mm as catalogues print it",
          "5000/49.8",
          100.40,
          L,
          "",
          kPrinted,
          ""};
}

Case TensionBeyondTheSection() {
  const double ratio = FigureOf(NoteCode::ForceAboveCapacity, 3, 2, [](ProjectState& st) {
    st.idxHEB = 0;
    st.SectionControlMode = 1;
    st.SupportType = 2;
    st.q1 = 1;
    st.NP = -20000;
  });
  return {"force-above-capacity: N/Ntd of HEB 100",
          "A = 26.04 cm2 as catalogues print it",
          "N = 1.2 20000 kN, Ntd = 2604 355/1.1",
          28.559,
          ratio,
          "",
          kPrinted,
          ""};
}

Case DeflectionOfTheNote() {
  const double z = FigureOf(NoteCode::Deflection, 0, 1, [](ProjectState&) {});
  return {"deflection: L/x of HEA 200, 5 m, 10 kN/m",
          "5 q L^4/(384 E Iy), Iy = 3692 cm4",
          "x = 10.496 mm",
          476.36,
          z,
          "",
          kPrinted,
          ""};
}

Case RemovedForce() {
  const double My = FigureOf(NoteCode::LoadsRemoved, 1, 26, [](ProjectState& st) { st.q1 = 8; });
  return {"loads-removed: My that a T lost", "q L^2/8", "1.2 8 5^2/8", 30, My, "kNm", kExact, ""};
}

Case OutstandsOfABox() {
  const double a = FigureOf(NoteCode::BoxOutstands, 1, 23, [](ProjectState& st) {
    st.p23_h = 400;
    st.p23_b = 400;
    st.p23_tw = 10;
    st.p23_tf = 8;
    st.p23_a = 150;
  });
  return {
      "box-outstands: a/tf", "division", "150/8, above 14 eps = 11.39", 18.75, a, "", kExact, ""};
}

Case UnreadForceOfAnI() {
  const double Mz = FigureOf(NoteCode::ForceUnread, 0, 22, [](ProjectState& st) {
    st.q2 = 10;
    st.q2_yz = 0;
  });
  return {"force-unread: Mz of a single symmetric I",
          "q L^2/8",
          "1.2 10 5^2/8",
          37.5,
          Mz,
          "kNm",
          kExact,
          ""};
}

Case LateralBucklingOff() {
  const double My = FigureOf(NoteCode::LtbOff, 1, 4, [](ProjectState& st) {
    st.NP = 0;
    st.q1 = 0.5;
    st.LateralTorsionalBuckling = 0;
  });
  return {"ltb-off: My that the check would judge",
          "q L^2/8",
          "1.2 0.5 5^2/8",
          1.875,
          My,
          "kNm",
          kExact,
          ""};
}

/// 200 x 10 on a flat 150 x 12.
void PlateOnAFlat(ProjectState& st) {
  st.p51_b = 200;
  st.p51_tf1 = 10;
  st.p51_h = 150;
  st.p51_tw = 12;
  st.LateralTorsionalBuckling = 0;
}

Case CompressedSideOfAFlat() {
  const double Md = FigureOf(NoteCode::ClassByTensionSide, 2, 51, [](ProjectState& st) {
    PlateOnAFlat(st);
    st.AnalysisMode = 0;
    st.My_end[1] = -10;
    st.My_end[2] = -10;
  });
  return {"class-by-tension-side: MdyBottom of plate 200x10 on flat 150x12, hogging",
          "class 3 by the compressed share 0.78: 12.5 above 11 eps/alpha = 11.5, below 14.9",
          "Wel = 9454825/117.105 mm3, 355/1.1",
          26.0563,
          Md,
          "kNm",
          kExact,
          ""};
}

Case RemovedBeyond() {
  const double ratio = FigureOf(NoteCode::RemovedBeyondCapacity, 0, 51, [](ProjectState& st) {
    PlateOnAFlat(st);
    st.NP = 2000;
    st.q1 = 0;
  });
  return {"removed-beyond-capacity: N of plate 200x10 on flat 150x12",
          "N/(A fd)",
          "1.2 2000/(3800 0.355/1.1)",
          1.95700,
          ratio,
          "",
          kExact,
          ""};
}

Case MomentFactorBelowZero() {
  const double ky = FigureOf(NoteCode::NegativeMomentFactor, 0, 1, [](ProjectState& st) {
    st.L = 12;
    st.AnalysisMode = 0;
    st.Ne = 1000;
    st.My_end[1] = 10;
    st.My_end[2] = -10;
  });
  return {"negative-moment-factor: ky of HEA 200, 12 m, N = 1000 kN, moments 10 and -10",
          "1 - 0.9 N/(Xy A fyk), curve b, iy = 82.8 mm and A = 53.83 cm2 as catalogues print them",
          "lambda = 1.8967, Xy = 0.23005",
          -1.0472,
          ky,
          "",
          kPrinted,
          ""};
}

Case WebLeftOut() {
  const double with = FigureOf(NoteCode::BucklingIgnored, 1, 4, [](ProjectState& st) {
    st.idxIPE = 17;
    st.q1 = 0;
    st.NP = 500;
    st.IgnoreWebBuckling = 1;
  });
  return {"buckling-ignored: class of IPE 600 in compression, its web counted",
          "table of the standard, web 514 x 12",
          "42.83 above 42 eps = 34.2",
          4,
          with,
          "",
          kExact,
          ""};
}

Case CapacityWithoutControl() {
  const double Md = FigureOf(NoteCode::NoControl, 2, 27, [](ProjectState& st) {
    st.p27_h = 400;
    st.p27_b1 = 300;
    st.p27_b2 = 300;
    st.p27_a = 200;
    st.p27_tw = 10;
    st.p27_tf1 = 20;
    st.p27_tf2 = 20;
    st.q1 = 10;
  });
  return {"no-control: MdyTop of box 300x20, webs 360x10",
          "plates about the middle",
          "(6000 380 + 2 10 360^2/4) 355/1.1",
          944.9455,
          Md,
          "kNm",
          kExact,
          ""};
}

Case FlatOfATrapezoid() {
  const double slenderness = FigureOf(NoteCode::TrapezoidFlats, 0, 55, [](ProjectState& st) {
    st.p55_b1 = 350;
    st.p55_tf1 = 5;
    st.q1 = 5;
  });
  return {"trapezoid-flats: c/t of the plate between the walls",
          "200 + 2 50 less two walls of 8 mm cut along the plate",
          "(300 - 16 sqrt(1 + 0.2^2))/5",
          56.7366,
          slenderness,
          "",
          kExact,
          ""};
}

Case CapacityBelowZero() {
  const double Mn = FigureOf(NoteCode::CapacityNotPositive, 1, 2, [](ProjectState& st) {
    st.idxHEB = 0;
    st.SectionControlMode = 1;
    st.SupportType = 2;
    st.q1 = 1;
    st.NP = -20000;
  });
  return {"capacity-not-positive: Mndy of HEB 100 under N = -24000 kN",
          "Mdy (1 - n)/(1 - 0.5 a), Wpl = 104.2 cm3, A = 26.04 cm2 as catalogues print them",
          "n = 28.56, a = 604/2604, Mdy = 33.63 kNm",
          -1048.32,
          Mn,
          "kNm",
          kPrinted,
          ""};
}

}  // namespace

Chapter NoteFigures() {
  return {"Figures of the verdict's notes",
          "What a note says beside the check lines. Which note a member has, and that ordinary "
          "members have few, is tested apart.",
          {TrippingOfT(), TrippingOfAngle(), SlendernessOfTheNote(), TensionBeyondTheSection(),
           DeflectionOfTheNote(), RemovedForce(), OutstandsOfABox(), UnreadForceOfAnI(),
           LateralBucklingOff(), CompressedSideOfAFlat(), RemovedBeyond(), MomentFactorBelowZero(),
           WebLeftOut(), CapacityWithoutControl(), FlatOfATrapezoid(), CapacityBelowZero()}};
}

}  // namespace korvane::verification
