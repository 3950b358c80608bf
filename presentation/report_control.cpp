// SPDX-License-Identifier: GPL-3.0-or-later
// The body of the report "Section and Stability Control": every block has its place on the page,
// so that a member with all loads in use stays on one sheet.
#include <algorithm>
#include <vector>

#include "analysis/loads.h"
#include "checks/buckling_curves.h"
#include "checks/results.h"
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
  const auto value = [](double v) { return Format(v, "##0.0"); };
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
    rows.push_back({"q", value(st.*tr.q1) + "/" + value(st.*tr.q2),
                    position(st.*tr.x1) + "/" + position(st.*tr.x2), Category(st.*tr.pv)});
  }
  return rows;
}

void DrawLoadTable(DrawingTarget& t, double column, double line, double step, const char* heading,
                   const std::vector<LoadRow>& rows) {
  PutText(t, column, line, heading);
  line += step;
  t.ForeColor = Role::Quiet;
  PutText(t, column, line, "Load");
  PutText(t, column + 5, line, "kN/kNm");
  PutText(t, column + 16, line, "x/x1/x2 (m)");
  PutText(t, column + 32, line, "P/V");
  t.ForeColor = Role::Ink;
  for (const LoadRow& row : rows) {
    line += step;
    PutText(t, column, line, row.load);
    PutText(t, column + 5, line, row.value);
    PutText(t, column + 16, line, row.position);
    PutText(t, column + 32, line, row.category);
  }
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

void DrawLoadInformation(DrawingTarget& t, const Layout& at, const ProjectState& st) {
  const auto z = LoadRows(st, true);
  const auto y = LoadRows(st, false);
  const double step = std::min(kLineStep, (at.diagrams - at.loads - 0.6) / LoadLines(st));
  const double size = t.FontSize;
  t.FontSize = std::min(size, size * (step / kLineStep) * 1.12);
  double line = at.loads;
  PutHeading(t, kC1, line, "Loading information: (kN/kNm/m)");
  PutText(t, kC1 + 34, line, "P=Permanent; V=Variable; S=Selfweight");
  line += step * 1.2;
  PutText(t, kC1, line,
          "N = " + Format(st.NP, "##0.0") + " (Permanent)    N = " + Format(st.NV1, "##0.0") +
              " (V1)    N = " + Format(st.NV2, "##0.0") + " (V2)");
  line += step * 1.2;
  DrawLoadTable(t, kC1, line, step, "Loading in z-direction:", z);
  DrawLoadTable(t, kC1 + 40, line, step, "Loading in y-direction:", y);
  line += step * (2.2 + static_cast<double>(std::max(z.size(), y.size())));
  PutText(
      t, kC1, line,
      st.SelfWeight == 1 ? "Selfweight of member included " : "Selfweight  of member not included");
  line += step;
  PutText(t, kC1, line,
          Combination("ULS(Sect/Buckl)= ", Format(st.lfsw_uls, "#0.00") + "*S+", st.lfp_uls,
                      st.lfv1_uls, st.lfv2_uls));
  line += step;
  PutText(t, kC1, line,
          Combination("SLS(Def.) = ", "1.00*S+", st.lfp_sls, st.lfv1_sls, st.lfv2_sls));
  t.FontSize = size;
}

// --- Buckling and lateral parameters ------------------------------------------------------------

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
              (d.st.CFactorManual == 1 ? "   (Manual input);" : ""));
  PutText(t, kParameters, line + 3, "Za = " + Format(d.st.Za, "#0") + " mm  (from CoG)");
  PutText(t, kParameters, line + 4, "Mdb = " + Format(d.ltb.Mdb, "0.0") + " kNm");
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

double DrawView(DrawingTarget& t, const View& view, double line, double step) {
  for (const ViewLine& row : view) {
    t.CurrentX = kC1;
    t.CurrentY = line;
    for (const TextRun& run : row.runs) {
      t.FontBold = run.bold;
      t.FontUnderline = run.underline;
      t.ForeColor = run.colour == 0 ? Role::Ink : RoleOfIndex(run.colour);
      t.Print(run.text);
    }
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

/// The result lines of the page.
struct CheckBlock {
  View section, buckling;
  bool modal = false;
  double Lines() const {
    double lines = 0;
    for (const ViewLine& row : section) lines += row.advance;
    for (const ViewLine& row : buckling) lines += row.advance;
    return lines + (buckling.empty() ? 0 : 0.3) + (modal ? 2.4 : 0);
  }
};

CheckBlock ChecksOf(const DrawingTarget& t, const Design& d) {
  constexpr double breakWidth = 80;
  const auto breaks = [&t](const std::string& text) { return t.TextWidth(text) > breakWidth; };
  CheckBlock block;
  block.section = SectionControlLong(d.st, d.checks, breaks);
  if (ShowsBuckling(d.st, d.forces.N)) {
    block.buckling = BucklingLong(d.st, d.checks, d.buckling, breaks);
  }
  block.modal = d.st.ModalAnalysis == 1;
  return block;
}

void DrawChecks(DrawingTarget& t, const CheckBlock& block, double line, const Design& d) {
  const double step = std::min(kLineStep, (kBottom - line) / block.Lines());
  line = DrawView(t, block.section, line, step);
  if (!block.buckling.empty()) line = DrawView(t, block.buckling, line + 0.3 * step, step);
  if (!block.modal) return;
  line += 0.3 * step;
  PutHeading(t, kC1, line, "Modal analysis:");
  PutText(t, kC1 + 16, line,
          " (SLS - selfweigth + q-loads)   Mass: m = " + Format(d.modal.ModalMass, "#0") + " kg/m");
  PutText(t, kC1 + 16, line + step, ModalModes(d));
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
    PutText(t, kC1 + 48, kSection - 0.4,
            "Mdy takes into account flange loading of " + Format(FlangeLoad(d.st) / 60, "0.0") +
                " kN/m flange (incl loadf)");
  }
  const double sectionEnd = DrawSectionValues(t, kSection + 0.8, d);
  const CheckBlock checks = ChecksOf(t, d);
  const Layout at = LayoutOf(d, sectionEnd, checks.Lines());
  FigureOptions figure;
  figure.report = true;
  DrawSectionFigure(t, Box{kFigureLeft, kSection + 0.6, kRightEdge, at.loads - 0.6},
                    Destination::Page, d.st, d.rec, figure);
  if (d.st.AnalysisMode == 1) DrawLoadInformation(t, at, d.st);
  DrawGeometry(t, at.loads, d);
  const double next = DrawBucklingTable(t, at.loads + GeometryLines(d.st), d);
  DrawLateralParameters(t, next, d);
  PutHeading(t, kC1, at.diagrams,
             d.st.AnalysisMode == 1 ? "Loading/Moment: (kN/kNm/m)" : "Endforces: (kN/kNm/m)");
  DrawReportDiagrams(t, at.diagrams + 1.3, at.checks - 0.4, d);
  DrawChecks(t, checks, at.checks, d);
}

}  // namespace korvane
