// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/design_text.h"

#include <algorithm>
#include <cmath>

#include "checks/buckling_curves.h"
#include "checks/results.h"
#include "checks/verdict_line.h"
#include "core/supports.h"
#include "core/text.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"

namespace korvane {

namespace {

constexpr std::size_t kWidth = 100;

std::string Pad(std::string text, std::size_t width, bool right = false) {
  if (text.size() >= width) return text;
  const std::string blanks(width - text.size(), ' ');
  return right ? blanks + text : text + blanks;
}

/// Three columns of name, value and unit.
void AddValues(std::string& out, const char* heading, const ShownValues& values) {
  out += std::string(heading) + "\n";
  for (std::size_t i = 0; i < values.size(); ++i) {
    const ShownValue& v = values[i];
    std::string cell = "  " + Pad(std::string(v.name), 9) + " = " + Pad(v.text, 11, true) + " " +
                       std::string(v.unit);
    const bool last = i % 3 == 2 || i + 1 == values.size();
    out += last ? cell + "\n" : Pad(cell, 34);
  }
}

std::string Paint(const TextRun& run, bool colour) {
  if (!colour || (run.colour != kGreen && run.colour != kRed)) return run.text;
  return (run.colour == kGreen ? "\033[1;32m" : "\033[1;31m") + run.text + "\033[0m";
}

void AddView(std::string& out, const View& view, bool colour) {
  for (std::size_t i = 0; i < view.size(); ++i) {
    std::string line = i == 0 ? "" : "  ";
    for (const TextRun& run : view[i].runs) line += Paint(run, colour);
    while (!line.empty() && line.back() == ' ') line.pop_back();
    out += line + "\n";
  }
}

void AddMember(std::string& out, const Design& d) {
  const ProjectState& st = d.st;
  out += "Project:         " + st.iproj + "\n";
  out += "Identification:  " + st.iident + "\n";
  out += "Member:          L = " + Format(st.L, "#0.000") + " m";
  if (const Support* support = FindSupport(st.SupportType)) {
    out += std::string(", ") + support->name;
    if (IsSpring(st.SupportType)) {
      out += " (restraint " + Format(st.SpringRestraint, "#0") + " %)";
    }
  }
  const auto& rows = d.lib->materials.rows;
  const int row = st.MaterialIndex;
  out += "\nMaterial:        ";
  if (row >= 0 && row < static_cast<int>(rows.size())) {
    out += rows[static_cast<std::size_t>(row)].name + ", ";
  }
  out += "fyk = " + Format(st.fyk, "#00") + " MPa, fd = " + Format(st.fd, "#00.0") +
         " MPa, gm1 = " + Format(st.gammam1, "#0.00") + ", E = " + Format(st.E, "0.00E+0") +
         " MPa\n";
  out += "Section:         " + SectionTitle(st, d.lib->catalogues) + "   class " +
         ClassText(st, d.rec) + "\n\n";
}

void AddForces(std::string& out, const Design& d) {
  const auto range = [](const char* name, double max, double min, const char* unit) {
    return "  " + Pad(name, 4) + Pad(Format(max, "#0.0"), 11, true) +
           Pad(Format(min, "#0.0"), 11, true) + " " + unit + "\n";
  };
  const PlaneForces& z = d.beam.z;
  const PlaneForces& y = d.beam.y;
  out += "Design forces:         max        min\n";
  out += "  N   " + Pad(Format(d.forces.N, "#0.0"), 11, true) + std::string(11, ' ') +
         " kN  (compression positive)\n";
  out += range("My", z.M_max, z.M_min, "kNm") + range("Vz", z.V_max, z.V_min, "kN");
  out += range("Mz", y.M_max, y.M_min, "kNm") + range("Vy", y.V_max, y.V_min, "kN");
}

void AddBuckling(std::string& out, const Design& d) {
  const bool angle = IsAngle(d.st.ProfileType);
  const auto letter = angle ? AngleCurveLetter : CurveLetter;
  out += std::string("Buckling (") + (angle ? "u, v" : "y, z") + "):  length factor " +
         Format(d.st.bly, "#0.00") + ", " + Format(d.st.blz, "#0.00") + "   curve " +
         letter(d.st.BucklingCurveY) + ", " + letter(d.st.BucklingCurveZ) + "   lambda " +
         Format(d.buckling.Lybar, "#0.00") + ", " + Format(d.buckling.Lzbar, "#0.00") + "   X " +
         Format(d.buckling.Xy, "#0.00") + ", " + Format(d.buckling.Xz, "#0.00") + "\n";
}

void AddLateral(std::string& out, const Design& d) {
  if (d.st.LateralTorsionalBuckling != 1) return;
  out += "Lateral buckling:  k = " + Format(d.st.k_ltb, "#0.00") +
         "   C1/C2/C3 = " + Format(d.ltb.C1, "#0.000") + "/" + Format(d.ltb.C2, "#0.000") + "/" +
         Format(d.ltb.C3, "#0.000") + "   Mcr = " + Format(d.ltb.Mcr / 1E6, "#0.0") +
         " kNm   lambda = " + Format(d.ltb.lamLT, "#0.00") +
         "   Mdb = " + Format(d.ltb.Mdb, "#0.0") + " kNm\n";
}

void AddDeflection(std::string& out, const Design& d, const char* axis, double max, double min) {
  const double extreme = std::fabs(min) >= std::fabs(max) ? min : max;
  out += std::string("Deflection (SLS): ") + axis + " = " + Format(extreme, "#0.0") + " mm, L/" +
         Format(LengthOverDeflection(d.st.L, max, min), "#0") + "\n";
}

void AddModal(std::string& out, const Design& d) {
  if (d.st.ModalAnalysis != 1) return;
  out +=
      "Modal analysis (SLS - selfweigth + q-loads): Mass: m = " + Format(d.modal.ModalMass, "#0") +
      " kg/m\n";
  for (int n = 1; n <= 3; ++n) {
    const double f = d.modal.ModalFreq[n];
    out += "  Mode " + std::to_string(n) + ": " + Format(f, "#0.00") + " Hz";
    if (f != 0) out += "/" + Format(1 / f, "#0.00") + "s";
    out += "\n";
  }
}

/// The standing in colour, the greatest ratio with its check, and the notes.
void AddVerdict(std::string& out, const Design& d, bool colour) {
  const Verdict v = VerdictOf(d);
  for (const TextRun& run : VerdictLine(v).runs) out += Paint(run, colour);
  out += "\n";
  for (const Note& note : v.notes) {
    const NoteKind& kind = KindOf(note.code);
    out += "  " + std::string(SeverityWord(kind.severity)) + ": " +
           NoteText(note, d.lib->catalogues) + " [" + kind.word + "]\n";
  }
}

}  // namespace

std::string VerdictText(const Design& d, bool colour) {
  std::string out;
  AddVerdict(out, d, colour);
  return out;
}

std::string DesignText(const Design& d, bool colour) {
  std::string out;
  AddMember(out, d);
  AddValues(out, "Dimensions and weight:", Dimensions(d.st, d.rec));
  AddValues(out, "Section property:", Properties(d.st, d.rec));
  AddValues(out, "Capacity:", Capacities(d.st, d.rec));
  out += "\n";
  AddForces(out, d);
  out += "\n";
  if (ShowsBuckling(d.st, d.forces.N)) AddBuckling(out, d);
  AddLateral(out, d);
  const auto tooLong = [](const std::string& text) { return text.size() > kWidth; };
  AddView(out, SectionControlLong(d.st, d.checks, tooLong), colour);
  if (ShowsBuckling(d.st, d.forces.N)) {
    AddView(out, BucklingLong(d.st, d.checks, d.buckling, tooLong), colour);
  }
  out += "\n";
  // Of an unknown family no section bends.
  if (d.st.AnalysisMode == 1 && FindFamily(d.st.ProfileType) != nullptr) {
    AddDeflection(out, d, "z", d.deflections.DeflZ_max, d.deflections.DeflZ_min);
    AddDeflection(out, d, "y", d.deflections.DeflY_max, d.deflections.DeflY_min);
  }
  AddModal(out, d);
  AddVerdict(out, d, colour);
  return out;
}

}  // namespace korvane
