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
#include "sections/p23bas.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

// The blocks stand one below the other; what loads and checks leave is the diagrams'.
constexpr double kSection = 15.0;
constexpr double kBottom = 86.0;
constexpr double kLeastDiagrams = 21.0;  ///< lines that the diagrams need
constexpr double kFigureLeft = 103;
constexpr double kParameters = 90;  ///< left column of the buckling block

/// Upper lines of the blocks below the section.
struct Layout {
  double loads, diagrams, checks;
};

// --- Load information ---------------------------------------------------------------------------

std::string Category(int pv) {
  return pv == 0 ? "P" : pv == 1 ? "V1" : "V2";
}

/// One row of the load table.
struct LoadRow {
  std::string load, value, position, category;
};

/// The loads of one direction that are not 0: line loads, point items, trapezoids.
std::vector<LoadRow> LoadRows(const ProjectState& st, bool z) {
  std::vector<LoadRow> rows;
  const auto value = [](double v) { return ShortNumbers(Format(v, "##0.0")); };
  // Two values of a stretch share a field: beyond a million they are printed short.
  const auto half = [](double v) { return Format(v, std::fabs(v) < 1E6 ? "##0.0" : "0.000E+0"); };
  const auto position = [](double x) { return Format(x, "##0.000"); };
  for (int n = 1; n <= 4; ++n) {
    const LineLoad& l = LineLoadOf(n);
    if (st.*l.q == 0 || (st.*l.yz != 0) != z) continue;
    rows.push_back({"q " + std::to_string(n), value(st.*l.q), "", Category(st.*l.pv)});
  }
  for (int i = 1; i <= 8; ++i) {
    if (st.pm[i] == 0) continue;
    const bool moment = st.pm_pm[i] != 0;
    const bool inZ = moment ? st.pm_yz[i] == 1 : st.pm_yz[i] != 0;
    if (inZ != z) continue;
    rows.push_back({moment ? (z ? "My" : "Mz") : "P", value(st.pm[i]), position(st.pmx[i]),
                    Category(st.pm_pv[i])});
  }
  for (int n = 1; n <= 3; ++n) {
    const Trapezoid& tr = TrapezoidOf(n);
    if ((st.*tr.q1 == 0 && st.*tr.q2 == 0) || (st.*tr.yz != 0) != z) continue;
    rows.push_back({"q", half(st.*tr.q1) + "/" + half(st.*tr.q2),
                    position(st.*tr.x1) + "/" + position(st.*tr.x2), Category(st.*tr.pv)});
  }
  return rows;
}

/// Where the columns of a load table begin, and the letters at which they keep clear.
struct LoadStops {
  double value = 5, position = 16, category = 32;
  double letters = 1;  ///< share of the size in force
};

constexpr double kSecondTable = 39.5;  ///< from the first table
constexpr double kTableWidth = 36;     ///< of each table, so that two stand left of the parameters

/// Long values push the positions to the right, and then both tables take smaller letters.
LoadStops StopsOf(const DrawingTarget& t, std::vector<LoadRow> rows,
                  const std::vector<LoadRow>& more) {
  rows.insert(rows.end(), more.begin(), more.end());
  double value = 0, position = 0;
  for (const LoadRow& row : rows) {
    value = std::max(value, t.TextWidth(row.value));
    position = std::max(position, t.TextWidth(row.position));
  }
  constexpr double gap = 1.2;
  LoadStops stops;
  const double need = stops.value + value + gap + position + gap + t.TextWidth("V1");
  stops.letters = std::min(1.0, kTableWidth / need);
  stops.value *= stops.letters;
  stops.position = std::max(stops.position, stops.value + (value + gap) * stops.letters);
  stops.category = std::max(stops.category, stops.position + (position + gap) * stops.letters);
  const double most = kTableWidth - t.TextWidth("V1") * stops.letters;
  if (stops.category > most) {
    stops.position -= stops.category - most;
    stops.category = most;
  }
  return stops;
}

void DrawLoadTable(DrawingTarget& t, double column, double line, double step, const char* heading,
                   const std::vector<LoadRow>& rows, const LoadStops& at) {
  PutText(t, column, line, heading);
  line += step;
  const double size = t.FontSize;
  t.FontSize = size * at.letters;
  t.ForeColor = Role::Quiet;
  PutText(t, column, line, "Load");
  PutText(t, column + at.value, line, "kN/kNm");
  PutText(t, column + at.position, line, "x/x1/x2 (m)");
  PutText(t, column + at.category, line, "P/V");
  t.ForeColor = Role::Ink;
  for (const LoadRow& row : rows) {
    line += step;
    PutText(t, column, line, row.load);
    PutText(t, column + at.value, line, row.value);
    PutText(t, column + at.position, line, row.position);
    PutText(t, column + at.category, line, row.category);
  }
  t.FontSize = size;
}

std::string Combination(const char* name, const std::string& selfWeight, double p, double v1,
                        double v2) {
  const auto f = [](double v) { return Format(v, "#0.00"); };
  return name + selfWeight + f(p) + "*P+" + f(v1) + "*V1+" + f(v2) + "*V2";
}

/// Lines of the load information at full size.
double LoadLines(const ProjectState& st) {
  return 7.6 + static_cast<double>(std::max(LoadRows(st, true).size(), LoadRows(st, false).size()));
}

/// Lines that a table shorter than its neighbour leaves empty.
Box DrawLoadInformation(DrawingTarget& t, const Layout& at, const ProjectState& st) {
  const auto z = LoadRows(st, true);
  const auto y = LoadRows(st, false);
  const double step = std::min(kLineStep, (at.diagrams - at.loads - 0.6) / LoadLines(st));
  const double size = t.FontSize;
  t.FontSize = std::min(size, size * (step / kLineStep) * 1.12);
  double line = at.loads;
  PutHeading(t, kC1, line, "Loading information: (kN/kNm/m)");
  PutText(t, kC1 + 34, line, "P=Permanent; V=Variable; S=Selfweight");
  line += step * 1.2;
  PutFitted(t, kC1, line,
            ShortNumbers("N = " + Format(st.NP, "##0.0") +
                         " (Permanent)    N = " + Format(st.NV1, "##0.0") +
                         " (V1)    N = " + Format(st.NV2, "##0.0") + " (V2)"),
            kParameters - kC1 - 1);
  line += step * 1.2;
  const LoadStops stops = StopsOf(t, z, y);
  DrawLoadTable(t, kC1, line, step, "Loading in z-direction:", z, stops);
  DrawLoadTable(t, kC1 + kSecondTable, line, step, "Loading in y-direction:", y, stops);
  const double longer = static_cast<double>(std::max(z.size(), y.size()));
  const double end = line + step * (2 + longer);
  const auto below = [=](const std::vector<LoadRow>& rows) {
    return line + step * (2.6 + static_cast<double>(rows.size()));
  };
  line += step * (2.2 + longer);
  PutText(
      t, kC1, line,
      st.SelfWeight == 1 ? "Selfweight of member included " : "Selfweight  of member not included");
  line += step;
  const std::string uls = Combination("ULS(Sect/Buckl)= ", Format(st.lfsw_uls, "#0.00") + "*S+",
                                      st.lfp_uls, st.lfv1_uls, st.lfv2_uls);
  PutText(t, kC1, line, uls);
  const double right = std::max(kSecondTable, t.TextWidth(uls) + 1.2);
  line += step;
  PutText(t, kC1, line,
          Combination("SLS(Def.) = ", "1.00*S+", st.lfp_sls, st.lfv1_sls, st.lfv2_sls));
  t.FontSize = size;
  if (z.size() < y.size()) return {kC1, below(z), kC1 + kTableWidth, end};
  return {kC1 + right, below(y), kParameters - 1.5, at.diagrams - 0.4};
}

// --- Buckling and lateral parameters ------------------------------------------------------------

/// Whether the lateral check of this member takes its factors from the fields C1, C2, C3.
bool TypedFactorsUsed(const Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  return d.st.CFactorManual == 1 && d.st.AnalysisMode == 1 && d.st.LtbSegments == 0 &&
         family != nullptr && family->routines.sectionControl != SectionControlKind::Plate;
}

double DrawBucklingTable(DrawingTarget& t, double line, const Design& d) {
  const bool angle = IsAngle(d.st.ProfileType);
  constexpr double first = kParameters + 22;
  constexpr double second = kParameters + 30;
  PutHeading(t, kParameters, line, "Buckling parameters:");
  PutText(t, first, line, angle ? "U-axis" : "Y-axis");
  PutText(t, second, line, angle ? "V-axis" : "Z-axis");
  const auto row = [&](const char* name, const std::string& y, const std::string& z) {
    line += kLineStep;
    PutText(t, kParameters, line, name);
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
  PutHeading(t, kParameters, line, "Lateral buckling parameters:");
  if (d.st.LateralTorsionalBuckling != 1) return;
  const auto f3 = [](double v) { return Format(v, "#0.000"); };
  PutText(t, kParameters, line + 1,
          "k = " + Format(d.st.k_ltb, "#0.00") +
              "   Restraint points: " + std::to_string(int(d.st.LtbSegments)));
  PutText(t, kParameters, line + 2,
          "   C1 = " + f3(d.ltb.C1) + "/" + f3(d.ltb.C2) + "/" + f3(d.ltb.C3) +
              (TypedFactorsUsed(d) ? "   (Manual input);" : ""));
  PutText(t, kParameters, line + 3, "Za = " + Format(d.st.Za, "#0") + " mm  (from CoG)");
  std::string Mdb = "Mdb = " + Format(d.ltb.Mdb, "0.0") + " kNm";
  if (d.ltb.Mdb_min != d.ltb.Mdb) Mdb += "   Mdb_min = " + Format(d.ltb.Mdb_min, "0.0") + " kNm";
  PutFitted(t, kParameters, line + 4, ShortNumbers(Mdb), kRightEdge - kParameters);
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
  PutHeading(t, kParameters, line, "Geometry/Loading:");
  DiagramStyle style;
  style.text = kReportLetters / ((kRightEdge - kParameters) * t.UnitX() / kPictureWidth);
  const DiagramData data{st, d.beam, d.deflections, d.forces.N};
  DrawDiagramIn(t, DiagramKind::BeamSketch, Box{kParameters, line + 0.9, kRightEdge, line + 5.3},
                Destination::Page, data, style);
  double below = line + kSketch;
  std::string options;
  if (IsSpring(st.SupportType)) {
    options = "Spring restraint:" + Format(st.SpringRestraint, "00") + "%  ";
  }
  const Family* family = FindFamily(st.ProfileType);
  if (family != nullptr && family->options.web) {
    options += std::string("Support stiffener: ") + (st.EndStiffener == 1 ? "Stiff" : "Weak");
    if (HasWebStiffeners(st)) {
      PutText(t, kParameters, below + 1,
              "Web stiffener: c/c " + Format(st.a_webstiff, "##0") + " mm");
    }
  }
  PutText(t, kParameters, below, options);
}

// --- Checks -------------------------------------------------------------------------------------

/// Stands before a line whose ratio is beyond its limit, for paper without colours.
constexpr const char* kFailMark = "> ";

bool Fails(const ViewLine& row) {
  return std::any_of(row.runs.begin(), row.runs.end(), [](const TextRun& run) {
    return run.bold && RoleOfIndex(run.colour) == Role::Fail;
  });
}

/// The rows as they are printed: a failing line bold and marked at its first row, numbers short
/// where they are too long.
struct PrintedRow {
  std::vector<TextRun> runs;
  double advance;
  bool mark;
};

std::vector<PrintedRow> Printed(const View& view) {
  std::vector<PrintedRow> rows;
  for (std::size_t i = 0; i < view.size(); ++i) {
    // A formula without its ratio goes on in the next row.
    const bool goesOn = view[i].runs.size() == 1 && i + 1 < view.size() && i > 0;
    const bool second = !rows.empty() && i > 1 && view[i - 1].runs.size() == 1;
    const bool fails = Fails(goesOn ? view[i + 1] : view[i]);
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

double DrawView(DrawingTarget& t, const View& view, double line, double step) {
  const double size = t.FontSize;
  for (const PrintedRow& row : Printed(view)) {
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
  line = DrawView(t, block.section, line, step);
  if (!block.buckling.empty()) line = DrawView(t, block.buckling, line + 0.3 * step, step);
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
  const Box spare = d.st.AnalysisMode == 1 ? DrawLoadInformation(t, at, d.st) : Box{};
  DrawGeometry(t, at.loads, d);
  const double next = DrawBucklingTable(t, at.loads + GeometryLines(d.st), d);
  DrawLateralParameters(t, next, d);
  PutHeading(t, kC1, at.diagrams,
             d.st.AnalysisMode == 1 ? "Loading/Moment: (kN/kNm/m)" : "Endforces: (kN/kNm/m)");
  DrawReportDiagrams(t, at.diagrams + 1.3, at.checks - 0.4, spare, d);
  DrawChecks(t, checks, at.checks, d);
}

}  // namespace korvane
