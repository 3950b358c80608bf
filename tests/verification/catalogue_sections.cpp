// SPDX-License-Identifier: GPL-3.0-or-later
// Section values of every catalogue family against outlines and printed tables.
#include "core/project_state.h"
#include "sections.h"

namespace korvane::verification {

namespace {

constexpr const char* kOutline = "exact outline, integrated";
constexpr const char* kEuropean = "European section tables, as printed";
constexpr const char* kBritish = "BS 4-1, as printed";

void HEA200(ProjectState& s) {
  s.ProfileType = 1;
  s.idxHEA = 5;
}
void HEB300(ProjectState& s) {
  s.ProfileType = 2;
  s.idxHEB = 10;
}
void HEM200(ProjectState& s) {
  s.ProfileType = 3;
  s.idxHEM = 5;
}
void IPE300(ProjectState& s) {
  s.ProfileType = 4;
  s.idxIPE = 10;
}
void UPE200(ProjectState& s) {
  s.ProfileType = 5;
  s.idxUPE = 6;
}
void SHS(ProjectState& s) {
  s.ProfileType = 6;
  s.idxRHSs = 27;
}
void RHS(ProjectState& s) {
  s.ProfileType = 7;
  s.idxRHSr = 65;
}
void CFSHS(ProjectState& s) {
  s.ProfileType = 8;
  s.idxCFRHSs = 29;
}
void CFRHS(ProjectState& s) {
  s.ProfileType = 9;
  s.idxCFRHSr = 69;
}
void L100(ProjectState& s) {
  s.ProfileType = 10;
  s.idxLeq = 27;
}
void L150(ProjectState& s) {
  s.ProfileType = 11;
  s.idxLuneq = 39;
}
void INP200(ProjectState& s) {
  s.ProfileType = 15;
  s.idxINP = 6;
}
void UNP200(ProjectState& s) {
  s.ProfileType = 16;
  s.idxUNP = 6;
}
void UB(ProjectState& s) {
  s.ProfileType = 101;
  s.p101_sub = 1;
  s.p101_idx1 = 42;
}
void UC(ProjectState& s) {
  s.ProfileType = 101;
  s.p101_sub = 2;
  s.p101_idx2 = 21;
}
void UBP(ProjectState& s) {
  s.ProfileType = 101;
  s.p101_sub = 3;
  s.p101_idx3 = 8;
}
void J(ProjectState& s) {
  s.ProfileType = 102;
  s.p102_idx = 3;
}
void PFC(ProjectState& s) {
  s.ProfileType = 103;
  s.p103_sub = 1;
  s.p103_idx1 = 8;
}
void CH(ProjectState& s) {
  s.ProfileType = 103;
  s.p103_sub = 2;
  s.p103_idx2 = 5;
}

const SectionValue kValues[] = {
    {HEA200, "HEA 200", "A", &SectionRecord::A, 5383.1, "mm2", kOutline},
    {HEA200, "HEA 200", "Wply", &SectionRecord::Wply, 429485, "mm3", kOutline},
    {HEA200, "HEA 200", "Wplz", &SectionRecord::Wplz, 203818, "mm3", kOutline},
    {HEA200, "HEA 200", "Iy", &SectionRecord::Iy, 36920000, "mm4", kEuropean, kPrinted},
    {HEA200, "HEA 200", "S", &SectionRecord::S, 42.3, "kg/m", kEuropean, kPrinted},
    {HEB300, "HEB 300", "Wply", &SectionRecord::Wply, 1868674, "mm3", kOutline},
    {HEB300, "HEB 300", "Wplz", &SectionRecord::Wplz, 870141, "mm3", kOutline},
    {HEB300, "HEB 300", "Ix", &SectionRecord::Ix, 1850000, "mm4", kEuropean, kPrinted},
    {HEB300, "HEB 300", "Iw", &SectionRecord::Iw, 1.688e+12, "mm6", kEuropean, kPrinted},
    {HEB300, "HEB 300", "g", &SectionRecord::g, 1.731646, "m2/m", kOutline},
    {HEM200, "HEM 200", "Wply", &SectionRecord::Wply, 1135147, "mm3", kOutline},
    {HEM200, "HEM 200", "Welz", &SectionRecord::Welz, 354487, "mm3", kOutline},
    {HEM200, "HEM 200", "Iz", &SectionRecord::Iz, 36510000, "mm4", kEuropean, kPrinted},
    {IPE300, "IPE 300", "Wely", &SectionRecord::Wely, 557074, "mm3", kOutline},
    {IPE300, "IPE 300", "Wply", &SectionRecord::Wply, 628356, "mm3", kOutline},
    {IPE300, "IPE 300", "Wplz", &SectionRecord::Wplz, 125219, "mm3", kOutline},
    {IPE300, "IPE 300", "Ix", &SectionRecord::Ix, 201200, "mm4", kEuropean, kPrinted},
    {IPE300, "IPE 300", "Iw", &SectionRecord::Iw, 1.259e+11, "mm6", kEuropean, kPrinted},
    {IPE300, "IPE 300", "g", &SectionRecord::g, 1.160048, "m2/m", kOutline},
    {UPE200, "UPE 200", "A", &SectionRecord::A, 2900.536, "mm2", kOutline},
    {UPE200, "UPE 200", "Wply", &SectionRecord::Wply, 220091, "mm3", kOutline},
    {UPE200, "UPE 200", "Welz", &SectionRecord::Welz, 34428.7, "mm3", kOutline, 1e-4},
    {UPE200, "UPE 200", "e", &SectionRecord::e, 25.59867, "mm", kOutline},
    {UPE200, "UPE 200", "g", &SectionRecord::g, 0.6968407, "m2/m", kOutline},
    {SHS, "RHS 100x100x5, hot", "Wely", &SectionRecord::Wely, 55886.46, "mm3", kOutline},
    {SHS, "RHS 100x100x5, hot", "Wply", &SectionRecord::Wply, 66358.35, "mm3", kOutline},
    {SHS, "RHS 100x100x5, hot", "S", &SectionRecord::S, 14.7, "kg/m", kEuropean, kPrinted},
    {SHS, "RHS 100x100x5, hot", "g", &SectionRecord::g, 0.3871239, "m2/m", kOutline, 0.03,
     "corners of 2.5 t in the surface of all hollow sections, whatever their radius"},
    {RHS, "RHS 200x100x8, hot", "Wply", &SectionRecord::Wply, 281950.4, "mm3", kOutline},
    {RHS, "RHS 200x100x8, hot", "Wplz", &SectionRecord::Wplz, 171784, "mm3", kOutline},
    {RHS, "RHS 200x100x8, hot", "Welz", &SectionRecord::Welz, 147801.9, "mm3", kOutline},
    {RHS, "RHS 200x100x8, hot", "Ix", &SectionRecord::Ix, 18040000, "mm4", kEuropean, kPrinted},
    {CFSHS, "RHS 100x100x5, cold", "Iy", &SectionRecord::Iy, 2711020, "mm4", kOutline},
    {CFSHS, "RHS 100x100x5, cold", "Wply", &SectionRecord::Wply, 64591.43, "mm3", kOutline},
    {CFRHS, "RHS 200x100x8, cold", "A", &SectionRecord::A, 4324.247, "mm2", kOutline},
    {CFRHS, "RHS 200x100x8, cold", "Wply", &SectionRecord::Wply, 267262.4, "mm3", kOutline},
    {CFRHS, "RHS 200x100x8, cold", "Iz", &SectionRecord::Iz, 7053572, "mm4", kOutline},
    {L100, "L 100x100x10", "Iu", &SectionRecord::Iu, 2803473, "mm4", kOutline},
    {L100, "L 100x100x10", "Iv", &SectionRecord::Iv, 730054.5, "mm4", kOutline},
    {L100, "L 100x100x10", "ez", &SectionRecord::ez, 28.22454, "mm", kOutline},
    {L150, "L 150x100x10", "Iu", &SectionRecord::Iu, 6368802, "mm4", kOutline},
    {L150, "L 150x100x10", "Iv", &SectionRecord::Iv, 1142020, "mm4", kOutline},
    {L150, "L 150x100x10", "angle of u", &SectionRecord::alfadeg, 23.675047, "deg", kOutline},
    {INP200, "INP 200", "A", &SectionRecord::A, 3340, "mm2", kEuropean, kPrinted},
    {INP200, "INP 200", "Wely", &SectionRecord::Wely, 214000, "mm3", kEuropean, kPrinted},
    {INP200, "INP 200", "g", &SectionRecord::g, 0.709, "m2/m", kEuropean, 0.02,
     "the slope of 14 % counts as 14 degrees"},
    {UNP200, "UNP 200", "A", &SectionRecord::A, 3220, "mm2", kEuropean, kPrinted},
    {UNP200, "UNP 200", "Wely", &SectionRecord::Wely, 191000, "mm3", kEuropean, kPrinted},
    {UNP200, "UNP 200", "Welz", &SectionRecord::Welz, 27000, "mm3", kEuropean, kPrinted},
    {UB, "UB 457x191x67", "Wply", &SectionRecord::Wply, 1471024, "mm3", kOutline, kPrinted},
    {UB, "UB 457x191x67", "Iw", &SectionRecord::Iw, 7.05e+11, "mm6", kBritish, kPrinted},
    {UC, "UC 254x254x89", "Iy", &SectionRecord::Iy, 142677500, "mm4", kOutline, kPrinted},
    {UC, "UC 254x254x89", "Wplz", &SectionRecord::Wplz, 575307.7, "mm3", kOutline, kPrinted},
    {UBP, "UBP 305x305x110", "Iy", &SectionRecord::Iy, 235625600, "mm4", kOutline, kPrinted},
    {UBP, "UBP 305x305x110", "Welz", &SectionRecord::Welz, 496242, "mm3", kOutline, kPrinted},
    {J, "J 152x127x37", "Iy", &SectionRecord::Iy, 18180000, "mm4", kBritish, kPrinted},
    {J, "J 152x127x37", "Wply", &SectionRecord::Wply, 279000, "mm3", kBritish, kPrinted},
    {PFC, "PFC 200x90x30", "Wply", &SectionRecord::Wply, 291281.6, "mm3", kOutline, kPrinted},
    {PFC, "PFC 200x90x30", "e", &SectionRecord::e, 31.22514, "mm", kOutline, kPrinted},
    {CH, "CH 254x76x28", "Iy", &SectionRecord::Iy, 33700000, "mm4", kBritish, kPrinted},
    {CH, "CH 254x76x28", "Wply", &SectionRecord::Wply, 317000, "mm3", kBritish, kPrinted},
};

}  // namespace

Chapter CatalogueSections() {
  return {"Sections of the catalogues",
          "Values that the program computes from a catalogue row, or takes from it, against the "
          "exact outline of the section and against printed tables. The outline has the fillets as "
          "arcs of 600 chords and is integrated by Green's theorem; plastic moduli halve its area.",
          SectionCases(kValues)};
}

}  // namespace korvane::verification
