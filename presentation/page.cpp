// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/page.h"

#include <algorithm>

#include "core/text.h"
#include "presentation/figures.h"
#include "sections/names.h"
#include "sections/profile_table.h"

namespace korvane {

void PutText(DrawingTarget& t, double column, double line, std::string_view text) {
  t.CurrentX = column;
  t.CurrentY = line;
  t.Print(text);
}

void PutHeading(DrawingTarget& t, double column, double line, std::string_view text) {
  t.FontBold = true;
  PutText(t, column, line, text);
  t.FontBold = false;
}

void PutRight(DrawingTarget& t, double column, double line, std::string_view text) {
  PutText(t, column - t.TextWidth(text), line, text);
}

void PutValue(DrawingTarget& t, double column, double line, std::string_view name,
              std::string_view value, std::string_view unit) {
  PutText(t, column, line, name);
  PutText(t, column + 9.8, line, "=");
  PutRight(t, column + 20, line, value);
  PutText(t, column + 21, line, unit);
}

namespace {

std::string Two(int v) {
  return (v < 10 ? "0" : "") + std::to_string(v);
}

/// Shortens a text with dots until it fits the width.
std::string Fitted(const DrawingTarget& t, std::string text, double width) {
  if (t.TextWidth(text) <= width) return text;
  while (!text.empty() && t.TextWidth(text + "...") > width) {
    do {
      text.pop_back();
    } while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U);
    // A cut inside a character of several bytes takes the whole character.
    while (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0U) text.pop_back();
  }
  return text + "...";
}

/// The end of a path matters more than its beginning.
std::string FittedPath(const DrawingTarget& t, std::string path, double width) {
  if (t.TextWidth(path) <= width) return path;
  const auto slash = path.find_last_of("/\\");
  if (slash != std::string::npos) path = path.substr(slash + 1);
  return Fitted(t, path, width);
}

}  // namespace

double DrawPageFrame(DrawingTarget& t, const Design& d, const ReportTime& time) {
  constexpr double top = 4;
  constexpr double bottom = 10.6;
  constexpr double first = kMargin + 45;
  constexpr double second = kMargin + 84;
  t.ForeColor = Role::Ink;
  t.LineWidth = 0.7;
  for (const double line : {top, bottom}) t.Line({kMargin, line}, {kRightEdge, line});
  for (const double column : {kMargin, first, second, kRightEdge}) {
    t.Line({column, top}, {column, bottom});
  }
  t.FontSize = kFrameSize;
  PutHeading(t, kMargin + 1, top + 0.4, "KORVANE NS3472");
  t.FontSize = kBodySize;
  PutText(t, kMargin + 1, top + 2.0, "Version 3.9");
  PutText(t, kMargin + 1, top + 3.3, "Column/Beam program based on NS3472, 3 rd ed");
  PutText(t, kMargin + 1, top + 4.9, "KORVANE");

  const auto field = [&](double column, double line, const char* label, const std::string& value,
                         double right, bool path) {
    PutText(t, column, line, label);
    const double start = column + 14;
    const double width = right - start - 1;
    PutText(t, start, line, path ? FittedPath(t, value, width) : Fitted(t, value, width));
  };
  field(first + 1, top + 0.8, "Project: ", d.st.iproj, second, false);
  field(first + 1, top + 2.6, "Identification: ", d.st.iident, second, false);
  field(first + 1, top + 4.4, "Page:", "1/1", second, false);
  const auto right = [&](double line, const char* label, const std::string& value, bool path) {
    PutText(t, second + 1, line, label);
    const double width = kRightEdge - second - 9;
    PutText(t, second + 8, line, path ? FittedPath(t, value, width) : value);
  };
  right(top + 0.8,
        "Date: ", Two(time.day) + "." + Two(time.month) + "." + std::to_string(time.year), false);
  right(top + 2.6, "Time: ", std::to_string(time.hour) + ":" + Two(time.minute), false);
  right(top + 4.4, "File: ", d.st.CurrentFileName, true);
  return bottom;
}

void DrawMaterial(DrawingTarget& t, double line, std::string_view heading, const Design& d) {
  const ProjectState& st = d.st;
  const auto& rows = d.lib->materials.rows;
  const int row = st.MaterialIndex;
  PutHeading(t, kC1, line, heading);
  if (row >= 0 && row < static_cast<int>(rows.size())) {
    PutText(t, kC1 + 12, line, rows[static_cast<std::size_t>(row)].name);
  }
  double column = kC1 + 28;
  const auto value = [&](const char* name, const std::string& text, const char* unit) {
    PutText(t, column, line, name);
    PutText(t, column + 5, line, "=");
    PutText(t, column + 7, line, text + (unit[0] != '\0' ? " " : "") + unit);
    column += 23;
  };
  value("fy", Format(st.fyk, "###"), "MPa");
  value("fd", Format(st.fd, "##.0"), "MPa");
  value("E", Format(st.E, "0.000E+0"), "MPa");
  value("gm1", Format(st.gammam1, "#.00"), "");
}

namespace {

/// The reports print the weight under "g" and the surface under "S".
std::string_view ReportName(std::string_view name) {
  if (name == "S") return "g";
  if (name == "g") return "S";
  if (name == "e") return "et";
  return name;
}

double DrawBlock(DrawingTarget& t, double column, double line, const char* heading,
                 const ShownValues& values) {
  PutHeading(t, column, line, heading);
  line += 1.2 * kLineStep;
  for (const ShownValue& v : values) {
    PutValue(t, column, line, ReportName(v.name), v.text, v.unit);
    line += kLineStep;
  }
  return line;
}

const char* DimensionHeading(int type) {
  if (type == 24 || type == 25 || type == 27) return "Dimensions:";
  return type == 10 || type == 11 ? "Dimension and Weight:" : "Dimensions and weight:";
}

}  // namespace

double DrawSectionValues(DrawingTarget& t, double line, const Design& d) {
  const int type = d.st.ProfileType;
  const bool hsq = type == 24 || type == 25 || type == 27;
  double end = DrawBlock(t, kC1, line, DimensionHeading(type), Dimensions(d.st, d.rec));
  end = std::max(end,
                 DrawBlock(t, kC5, line, hsq ? "Weight and Section property:" : "Section property:",
                           Properties(d.st, d.rec)));
  double capacity = DrawBlock(t, kC8, line, "Capacity:", Capacities(d.st, d.rec));
  const std::string sectionClass = ClassText(d.st, d.rec);
  if (!sectionClass.empty()) {
    PutText(t, kC8, capacity, "Sectionclass:");
    PutText(t, kC8 + 12, capacity, sectionClass);
    capacity += kLineStep;
  }
  return std::max(end, capacity);
}

std::string ProfileLine(const Design& d) {
  const ProjectState& st = d.st;
  const std::string size = NameDimensions(st, d.lib->catalogues);
  const bool ch = st.p103_sub == 2;
  switch (st.ProfileType) {
    case 6:
    case 7:
      return "  RHS " + size + " (Hotf.)";
    case 8:
      return "  CHRHS-Sq " + size + " (Coldf.)";
    case 9:
      return "  CFRHS-Rec " + size + " (Coldf.)";
    case 10:
    case 11:
      return "  L " + size;
    case 21:
      return "  I  " + size;
    case 22:
      return "  I " + size;
    case 23:
    case 27:
      return "  Box " + size;
    case 24:
    case 25:
      return " HSQ " + size;
    case 26:
      return "  T " + size;
    case 28:
      return "  Fb " + size;
    case 31:
      return "  Tube " + size + (st.TubeKind == 1 ? " (Hot formed)" : " (Cold formed)");
    case 41:
      return "Identification: " + st.p41_name;
    case 51:
      return " Plate + Fb " + size;
    case 52:
    case 53:
      return " Plate + L " + size;
    case 54:
      return " Plate + BF " + size;
    case 55:
      return " Plate + Trapez " + size;
    case 56:
      return " Plate + T " + size;
    case 101: {
      constexpr const char* words[] = {"  UB  ", "  UC  ", "  UBP  "};
      const int sub = st.p101_sub;
      return (sub >= 1 && sub <= 3 ? words[sub - 1] : "  U  ") + size;
    }
    case 102:
      return "  J  " + size;
    case 103:
      return (ch ? "  CH " : "  PFC ") + size;
    default:
      return "  " + SectionTitle(st, d.lib->catalogues);
  }
}

std::string ModulusLine(const Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr || !family->bendingFrame) return {};
  return std::string("Section class 1-2: ") +
         (d.st.BendingCapacityMode == 1 ? "Elastic section modulus " : "Plastic section modulus ");
}

std::string ClassFourLine(const Design& d) {
  const int type = d.st.ProfileType;
  if (type == 10 || type == 11 || type == 28 || type == 31 || type == 41) return {};
  const bool web = d.st.IgnoreWebBuckling == 1;
  const bool flange = d.st.IgnoreFlangeBuckling == 1;
  if (web && flange) return "Section class 4: Flange/Web buckling not taken into account";
  if (web) return "Section class 4: Web buckling not taken into account";
  if (flange) return "Section class 4: Flange buckling not taken into account";
  return {};
}

}  // namespace korvane
