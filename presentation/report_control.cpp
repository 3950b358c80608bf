// SPDX-License-Identifier: GPL-3.0-or-later
// The body of the report "Section and Stability Control": every block has its place on the page,
// so that a member with all loads in use stays on one sheet.
#include <algorithm>
#include <cmath>
#include <vector>

#include "analysis/loads.h"
#include "checks/buckling_curves.h"
#include "checks/results.h"
#include "checks/verdict_line.h"
#include "core/supports.h"
#include "core/text.h"
#include "presentation/figures.h"
#include "presentation/grafik.h"
#include "presentation/page.h"
#include "presentation/report_diagrams.h"
#include "presentation/report_loads.h"
#include "sections/p23bas.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

// The blocks stand one below the other; what loads and checks leave is the diagrams'.
constexpr double kSection = 15.0;
constexpr double kBottom = 86.0;
constexpr double kLeastDiagrams = 21.0;  ///< lines that the diagrams need
constexpr double kFigureLeft = 103;

/// Upper lines of the blocks below the section.
struct Layout {
  double loads, diagrams, checks;
};

// --- Buckling and lateral parameters ------------------------------------------------------------

/// Whether the lateral check of this member takes its factors from the fields C1, C2, C3.
bool TypedFactorsUsed(const Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  return d.st.CFactorManual == 1 && d.st.AnalysisMode == 1 && d.st.LtbSegments == 0 &&
         family != nullptr && family->routines.sectionControl != SectionControlKind::Plate;
}

double DrawBucklingTable(DrawingTarget& t, double line, const Design& d) {
  const bool angle = IsAngle(d.st.ProfileType);
  constexpr double first = kParametersLeft + 22;
  constexpr double second = kParametersLeft + 30;
  PutHeading(t, kParametersLeft, line, "Buckling parameters:");
  PutText(t, first, line, angle ? "U-axis" : "Y-axis");
  PutText(t, second, line, angle ? "V-axis" : "Z-axis");
  const auto row = [&](const char* name, const std::string& y, const std::string& z) {
    line += kLineStep;
    PutText(t, kParametersLeft, line, name);
    PutText(t, first, line, y);
    PutText(t, second, line, z);
  };
  const auto f2 = [](double v) { return Format(v, "##0.00"); };
  const auto letter = angle ? AngleCurveLetter : CurveLetter;
  row("Buckling length factor", f2(d.st.bly), f2(d.st.blz));
  row("Buckling Curve", letter(d.st.BucklingCurveY), letter(d.st.BucklingCurveZ));
  // Without compression no slenderness was worked out for this member.
  const auto slenderness = [&](double v) { return d.checks.bucklingRan ? f2(v) : "N/A"; };
  row("Slenderness lamda =", slenderness(d.buckling.Lybar), slenderness(d.buckling.Lzbar));
  if (d.beam.betaMy != 0 || d.beam.betaMz != 0) {
    row("Betam", f2(d.beam.betaMy), f2(d.beam.betaMz));
  }
  return line + 1.6 * kLineStep;
}

void DrawLateralParameters(DrawingTarget& t, double line, const Design& d) {
  PutHeading(t, kParametersLeft, line, "Lateral buckling parameters:");
  if (d.st.LateralTorsionalBuckling != 1) return;
  const auto f3 = [](double v) { return Format(v, "#0.000"); };
  PutText(t, kParametersLeft, line + 1,
          "k = " + Format(d.st.k_ltb, "#0.00") +
              "   Restraint points: " + std::to_string(int(d.st.LtbSegments)));
  PutText(t, kParametersLeft, line + 2,
          "   C1 = " + f3(d.ltb.C1) + "/" + f3(d.ltb.C2) + "/" + f3(d.ltb.C3) +
              (TypedFactorsUsed(d) ? "   (Manual input);" : ""));
  PutText(t, kParametersLeft, line + 3, "Za = " + Format(d.st.Za, "#0") + " mm  (from CoG)");
  std::string Mdb = "Mdb = " + Format(d.ltb.Mdb, "0.0") + " kNm";
  if (d.ltb.Mdb_min != d.ltb.Mdb) Mdb += "   Mdb_min = " + Format(d.ltb.Mdb_min, "0.0") + " kNm";
  PutFitted(t, kParametersLeft, line + 4, ShortNumbers(Mdb), kRightEdge - kParametersLeft);
}

// --- Geometry -----------------------------------------------------------------------------------

constexpr double kSketch = 5.4;  ///< lines of the heading and the sketch

bool HasWebStiffeners(const ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  return family != nullptr && family->options.web && st.WebStiffener == 1;
}

/// Lines of the geometry with the gap below it.
double GeometryLines(const ProjectState& st) {
  return kSketch + (HasWebStiffeners(st) ? 2 : 1) + 0.6;
}

/// Lines of the geometry, the buckling and the lateral parameters.
double ParameterLines(const Design& d) {
  const double betas = d.beam.betaMy != 0 || d.beam.betaMz != 0 ? 1 : 0;
  return GeometryLines(d.st) + 4 + betas + 0.6 * kLineStep +
         (d.st.LateralTorsionalBuckling == 1 ? 5 : 1);
}

void DrawGeometry(DrawingTarget& t, double line, const Design& d) {
  const ProjectState& st = d.st;
  PutHeading(t, kParametersLeft, line, "Geometry/Loading:");
  DiagramStyle style;
  style.text = kReportLetters / ((kRightEdge - kParametersLeft) * t.UnitX() / kPictureWidth);
  const DiagramData data{st, d.beam, d.deflections, d.forces.N};
  DrawDiagramIn(t, DiagramKind::BeamSketch,
                Box{kParametersLeft, line + 0.9, kRightEdge, line + 5.3}, Destination::Page, data,
                style);
  double below = line + kSketch;
  std::string options;
  if (IsSpring(st.SupportType)) {
    options = "Spring restraint:" + Format(st.SpringRestraint, "00") + "%  ";
  }
  const Family* family = FindFamily(st.ProfileType);
  if (family != nullptr && family->options.web) {
    options += std::string("Support stiffener: ") + (st.EndStiffener == 1 ? "Stiff" : "Weak");
    if (HasWebStiffeners(st)) {
      PutText(t, kParametersLeft, below + 1,
              "Web stiffener: c/c " + Format(st.a_webstiff, "##0") + " mm");
    }
  }
  PutText(t, kParametersLeft, below, options);
}

// --- Checks -------------------------------------------------------------------------------------

/// Stands before a line whose ratio is beyond its limit, for paper without colours.
constexpr const char* kFailMark = "> ";

/// The rows as they are printed: a failing line bold and marked at its first row, numbers short
/// where they are too long.
struct PrintedRow {
  std::vector<TextRun> runs;
  double advance;
  bool mark;
};

std::vector<PrintedRow> Printed(const View& view, double limit) {
  std::vector<PrintedRow> rows;
  for (std::size_t i = 0; i < view.size(); ++i) {
    // A formula without its ratio goes on in the next row.
    const bool goesOn = view[i].runs.size() == 1 && i + 1 < view.size() && i > 0;
    const bool second = !rows.empty() && i > 1 && view[i - 1].runs.size() == 1;
    const bool fails = Fails(goesOn ? view[i + 1] : view[i], limit);
    PrintedRow row{view[i].runs, view[i].advance, fails && !second};
    for (TextRun& run : row.runs) {
      run.text = ShortNumbers(run.text);
      run.bold |= fails;
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

double WidthOf(DrawingTarget& t, const std::vector<TextRun>& runs) {
  double width = 0;
  for (const TextRun& run : runs) {
    t.FontBold = run.bold;
    width += t.TextWidth(run.text);
  }
  t.FontBold = false;
  return width;
}

double DrawView(DrawingTarget& t, const View& view, double limit, double line, double step) {
  const double size = t.FontSize;
  for (const PrintedRow& row : Printed(view, limit)) {
    if (row.mark) {
      t.FontBold = true;
      PutRight(t, kC1, line, kFailMark);
    }
    t.FontSize = size * std::min(1.0, (kRightEdge - kC1) / WidthOf(t, row.runs));
    t.CurrentX = kC1;
    t.CurrentY = line;
    for (const TextRun& run : row.runs) {
      t.FontBold = run.bold;
      t.FontUnderline = run.underline;
      t.ForeColor = run.colour == kBlack ? Role::Ink : RoleOfIndex(run.colour);
      t.Print(run.text);
    }
    t.FontSize = size;
    t.FontBold = false;
    t.FontUnderline = false;
    t.ForeColor = Role::Ink;
    line += row.advance * step;
  }
  return line;
}

std::string ModalModes(const Design& d) {
  std::string text;
  for (int n = 1; n <= 3; ++n) {
    const double f = d.modal.ModalFreq[n];
    text += "Mode " + std::to_string(n) + ": " + Format(f, "#0.00") + " Hz/" +
            Format(f == 0 ? 0 : 1 / f, "#0.00") + "s     ";
  }
  return text;
}

constexpr double kNoteSize = 6.5;  ///< pt
constexpr double kNoteStep = 0.8;  ///< lines

/// The verdict's notes of caution or worse as lines of print, long ones wrapped.
std::vector<std::string> NoteLines(DrawingTarget& t, const Design& d) {
  const double size = t.FontSize;
  t.FontSize = kNoteSize;
  std::vector<std::string> lines;
  for (const Note& note : VerdictOf(d).notes) {
    if (note.Weight() < Severity::Caution) continue;
    std::string text =
        std::string(SeverityWord(note.Weight())) + ": " + NoteText(note, d.lib->catalogues);
    text = ShortNumbers(text);
    while (t.TextWidth(text) > kRightEdge - kC1) {
      const std::size_t end = LineBreak(t, text, kRightEdge - kC1);
      lines.push_back(text.substr(0, end));
      text = "    " + text.substr(end);
    }
    lines.push_back(text);
  }
  t.FontSize = size;
  return lines;
}

/// The result lines of the page.
struct CheckBlock {
  View section, buckling;
  bool modal = false;
  std::vector<std::string> notes;
  /// The verdict and its notes.
  double Foot() const { return 1.5 + kNoteStep * static_cast<double>(notes.size()); }
  double Lines() const {
    double lines = 0;
    for (const ViewLine& row : section) lines += row.advance;
    for (const ViewLine& row : buckling) lines += row.advance;
    return lines + (buckling.empty() ? 0 : 0.3) + (modal ? 2.4 : 0) + Foot();
  }
};

CheckBlock ChecksOf(DrawingTarget& t, const Design& d) {
  constexpr double breakWidth = 80;
  const auto breaks = [&t](const std::string& text) { return t.TextWidth(text) > breakWidth; };
  CheckBlock block;
  block.section = SectionControlLong(d.st, d.checks, breaks);
  if (ShowsBuckling(d.st, d.forces.N)) {
    block.buckling = BucklingLong(d.st, d.checks, d.buckling, breaks);
  }
  block.modal = d.st.ModalAnalysis == 1;
  block.notes = NoteLines(t, d);
  return block;
}

void DrawVerdict(DrawingTarget& t, double line, const Design& d) {
  t.CurrentX = kC1;
  t.CurrentY = line;
  for (const TextRun& run : VerdictLine(VerdictOf(d)).runs) {
    t.FontBold = run.bold;
    t.ForeColor = run.colour == kBlack ? Role::Ink : RoleOfIndex(run.colour);
    t.Print(run.text);
  }
  t.FontBold = false;
  t.ForeColor = Role::Ink;
}

void DrawChecks(DrawingTarget& t, const CheckBlock& block, double line, const Design& d) {
  const double step = std::min(kLineStep, (kBottom - line) / block.Lines());
  const double limit = d.st.iufa;
  line = DrawView(t, block.section, limit, line, step);
  if (!block.buckling.empty()) line = DrawView(t, block.buckling, limit, line + 0.3 * step, step);
  if (block.modal) {
    line += 0.3 * step;
    PutHeading(t, kC1, line, "Modal analysis:");
    PutText(t, kC1 + 16, line,
            ShortNumbers(" (SLS - selfweigth + q-loads)   Mass: m = " +
                         Format(d.modal.ModalMass, "#0") + " kg/m"));
    PutFitted(t, kC1 + 16, line + step, ShortNumbers(ModalModes(d)), kRightEdge - kC1 - 16);
    line += 2.1 * step;
  }
  line += 0.5 * step;
  DrawVerdict(t, line, d);
  line += step;
  const double size = t.FontSize;
  t.FontSize = std::max(kLeastSize, kNoteSize * step);
  for (const std::string& note : block.notes) {
    PutText(t, kC1, line, note);
    line += kNoteStep * step;
  }
  t.FontSize = size;
}

/// Loads below the section values, checks at the foot, diagrams between them.
Layout LayoutOf(const Design& d, double sectionEnd, double checkLines) {
  Layout at{};
  at.loads = std::max(sectionEnd, 28.0) + 0.6;
  at.checks = std::max(kBottom - checkLines, 71.0);
  const double loads = d.st.AnalysisMode == 1 ? LoadLines(d.st) + 0.8 : 0;
  at.diagrams =
      std::min(at.loads + std::max(loads, ParameterLines(d) + 0.6), at.checks - kLeastDiagrams);
  return at;
}

}  // namespace

void DrawControlReport(DrawingTarget& t, double line, const Design& d) {
  t.FontSize = kBodySize;
  line += 1;
  DrawMaterial(t, line, "General: ", d);
  PutText(t, kC1, line + 1.2, ModulusLine(d));
  PutText(t, kC1 + 48, line + 1.2, ClassFourLine(d));
  PutHeading(t, kC1, kSection - 0.4, "Profile:");
  PutText(t, kC1 + 8, kSection - 0.4, ProfileLine(d));
  if (IsHsq(d.st.ProfileType)) {
    PutText(t, kC1 + 48, kSection - 0.4, FlangeLoadLine(d));
  }
  const double sectionEnd = DrawSectionValues(t, kSection + 0.8, d);
  const CheckBlock checks = ChecksOf(t, d);
  const Layout at = LayoutOf(d, sectionEnd, checks.Lines());
  FigureOptions figure;
  figure.report = true;
  DrawSectionFigure(t, Box{kFigureLeft, kSection + 0.6, kRightEdge, at.loads - 0.6},
                    Destination::Page, d.st, d.rec, figure);
  const Box spare =
      d.st.AnalysisMode == 1 ? DrawLoadInformation(t, at.loads, at.diagrams, d.st) : Box{};
  DrawGeometry(t, at.loads, d);
  const double next = DrawBucklingTable(t, at.loads + GeometryLines(d.st), d);
  DrawLateralParameters(t, next, d);
  PutHeading(t, kC1, at.diagrams,
             d.st.AnalysisMode == 1 ? "Loading/Moment: (kN/kNm/m)" : "Endforces: (kN/kNm/m)");
  DrawReportDiagrams(t, at.diagrams + 1.3, at.checks - 0.4, spare, d);
  DrawChecks(t, checks, at.checks, d);
}

}  // namespace korvane
