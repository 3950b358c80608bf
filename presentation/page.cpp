// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/page.h"

#include <algorithm>
#include <optional>

#include "core/program.h"
#include "core/text.h"
#include "presentation/figures.h"
#include "sections/names.h"
#include "sections/p23bas.h"
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
  constexpr double left = 11.2;
  constexpr double right = 20.8;
  PutText(t, column, line, name);
  PutText(t, column + 9.8, line, "=");
  const std::string number = ShortNumbers(value);
  const double room = std::min(1.0, (right - left) / t.TextWidth(number));
  const double size = t.FontSize;
  t.FontSize = size * room;
  PutRight(t, column + right, line, number);
  t.FontSize = size;
  PutText(t, column + 21.6, line, unit);
}

std::string ShortNumbers(std::string_view text) {
  constexpr std::size_t most = 12;
  constexpr std::string_view digits = "0123456789";
  std::string out;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t first = std::min(text.find_first_of(digits, at), text.size());
    out += text.substr(at, first - at);
    std::size_t end = std::min(text.find_first_not_of(digits, first), text.size());
    const bool decimals = first > 0 && text[first - 1] == '.';
    const bool isLong = end - first > most && !decimals;
    if (isLong && end < text.size() && text[end] == '.') {
      end = std::min(text.find_first_not_of(digits, end + 1), text.size());
    }
    const std::string_view number = text.substr(first, end - first);
    out += isLong ? Format(LeadingNumber(number), "0.000E+0") : std::string(number);
    at = end;
  }
  return out;
}

namespace {

/// Shortens a text with dots until it fits the width.
std::string Shortened(const DrawingTarget& t, std::string text, double width) {
  while (!text.empty() && t.TextWidth(text + "...") > width) {
    do {
      text.pop_back();
    } while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0U) == 0x80U);
    // A cut inside a character of several bytes takes the whole character.
    while (!text.empty() && static_cast<unsigned char>(text.back()) >= 0xC0U) text.pop_back();
  }
  return text + "...";
}

}  // namespace

void PutFitted(DrawingTarget& t, double column, double line, const std::string& text,
               double width) {
  if (t.TextWidth(text) <= width) return PutText(t, column, line, text);
  const double size = t.FontSize;
  const double least = std::min(1.0, kLeastSize / size);
  const double share = std::max(width / t.TextWidth(text), least);
  const double foot = line + t.TextHeight();
  t.FontSize = size * share;
  const bool fits = t.TextWidth(text) <= width * 1.0001;
  const double top = foot - t.TextHeight() - (1 - share) * 0.2 * t.TextHeight();
  PutText(t, column, top, fits ? text : Shortened(t, text, width));
  t.FontSize = size;
}

namespace {

bool InsideCharacter(const std::string& text, std::size_t at) {
  return at < text.size() && (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
}

}  // namespace

std::size_t LineBreak(const DrawingTarget& t, const std::string& text, double width) {
  std::size_t fits = 0, blank = 0;
  for (std::size_t end = 1; end <= text.size(); ++end) {
    if (InsideCharacter(text, end)) continue;
    const char last = text[end - 1];
    const std::string head = text.substr(0, last == ' ' ? end - 1 : end);
    if (t.TextWidth(head) > width) break;
    fits = end;
    if (last == ' ' || last == '/' || last == '\\') blank = end;
  }
  return blank > text.size() / 4 || blank > fits / 2 ? blank : std::max<std::size_t>(fits, 1);
}

void PutWrapped(DrawingTarget& t, double column, double line, const std::string& text,
                double width) {
  if (t.TextWidth(text) <= width) return PutText(t, column, line, text);
  const double size = t.FontSize;
  std::size_t end = 0;
  for (const double letters : {7.0, 6.5, kLeastSize}) {
    t.FontSize = letters;
    end = LineBreak(t, text, width);
    if (t.TextWidth(text.substr(end)) <= width) break;
  }
  const double step = 1.02 * t.TextHeight();
  PutText(t, column, line - 0.35 * step, text.substr(0, end));
  const std::string rest = text.substr(end);
  PutText(t, column, line + 0.65 * step,
          t.TextWidth(rest) <= width ? rest : Shortened(t, rest, width));
  t.FontSize = size;
}

namespace {

std::string Two(int v) {
  return (v < 10 ? "0" : "") + std::to_string(v);
}

/// The end of a path matters more than its beginning.
std::string FileOf(const DrawingTarget& t, const std::string& path, double width) {
  if (t.TextWidth(path) <= 2 * width) return path;
  const auto slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : "..." + path.substr(slash);
}

}  // namespace

void DrawNotice(DrawingTarget& t, const std::string& notice) {
  t.ForeColor = Role::Fail;
  t.FontSize = kFrameSize;
  t.FontBold = true;
  PutFitted(t, kMargin, 1.8, notice, kRightEdge - kMargin);
  t.FontBold = false;
}

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
  PutHeading(t, kMargin + 1, top + 0.4, kProgramName);
  t.FontSize = kBodySize;
  PutText(t, kMargin + 1, top + 2.0, std::string("Version ") + kVersion);
  PutText(t, kMargin + 1, top + 3.3, "Column/Beam program based on NS3472, 3 rd ed");
  PutText(t, kMargin + 1, top + 4.9, "KORVANE");

  const auto field = [&](double column, double line, const char* label, const std::string& value) {
    PutText(t, first + 1, line, label);
    PutWrapped(t, column, line, value, second - column - 1);
  };
  field(first + 15, top + 0.8, "Project: ", d.st.iproj);
  field(first + 15, top + 2.6, "Identification: ", d.st.iident);
  field(first + 15, top + 4.4, "Page:", "1/1");
  const auto right = [&](double line, const char* label, const std::string& value) {
    PutText(t, second + 1, line, label);
    PutWrapped(t, second + 8, line, value, kRightEdge - second - 9);
  };
  right(top + 0.8,
        "Date: ", Two(time.day) + "." + Two(time.month) + "." + std::to_string(time.year));
  right(top + 2.6, "Time: ", std::to_string(time.hour) + ":" + Two(time.minute));
  right(top + 4.4, "File: ", FileOf(t, d.st.CurrentFileName, kRightEdge - second - 9));
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

/// The reports have names of their own: the weight under "g", the surface under "S".
std::string_view ReportName(std::string_view name, bool areas) {
  if (name == "S") return "g";
  if (name == "g") return "S";
  if (name == "e") return "et";
  if (name == "Ncd") return "Ncrd";
  if (areas && name == "A") return "Ax";
  if (name == "Avy") return "Ay";
  if (name == "Avz") return "Az";
  return name;
}

double DrawValues(DrawingTarget& t, double column, double line, const ShownValues& values) {
  // Where the shear areas are listed, the area has its direction too.
  const bool areas = std::any_of(values.begin(), values.end(),
                                 [](const ShownValue& v) { return v.name == "Avy"; });
  for (const ShownValue& v : values) {
    PutValue(t, column, line, ReportName(v.name, areas), v.text, v.unit);
    line += kLineStep;
  }
  return line;
}

double DrawBlock(DrawingTarget& t, double column, double line, const char* heading,
                 const ShownValues& values) {
  PutHeading(t, column, line, heading);
  return DrawValues(t, column, line + 1.2 * kLineStep, values);
}

/// The typed distance of the webs, on a trapezoid the run of its slope: the section record has no
/// field for it, but the figure has its letter.
std::optional<double> WebDistance(const ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  const Dimension* a = family == nullptr ? nullptr : DimensionOf(*family, "a");
  if (a == nullptr) return std::nullopt;
  return ReadNumber(st, a->field);
}

ShownValues::iterator Named(ShownValues& values, std::string_view name) {
  return std::find_if(values.begin(), values.end(),
                      [name](const ShownValue& v) { return v.name == name; });
}

const char* DimensionHeading(int type) {
  if (IsTwoWebUnequal(type)) return "Dimensions:";
  return IsAngle(type) ? "Dimension and Weight:" : "Dimensions and weight:";
}

}  // namespace

double DrawSectionValues(DrawingTarget& t, double line, const Design& d) {
  const int type = d.st.ProfileType;
  const bool weightApart = IsTwoWebUnequal(type);
  ShownValues dimensions = Dimensions(d.st, d.rec);
  ShownValues properties = Properties(d.st, d.rec);
  if (const std::optional<double> a = WebDistance(d.st)) {
    dimensions.insert(Named(dimensions, "tw"), {"a", *a, Format(*a, "#0.0"), "mm"});
  }
  if (weightApart) {
    const auto weight = Named(dimensions, "S");
    properties.insert(properties.begin(), weight, dimensions.end());
    dimensions.erase(weight, dimensions.end());
  }
  for (ShownValue& v : dimensions) v.name = ReportLetter(type, v.name);
  double end = DrawBlock(t, kC1, line, DimensionHeading(type), dimensions);
  end = std::max(end, DrawBlock(t, kC5, line,
                                weightApart ? "Weight and Section property:" : "Section property:",
                                properties));
  PutHeading(t, kC8, line, "Capacity:");
  line += 1.2 * kLineStep;
  if (const std::string sectionClass = ClassText(d.st, d.rec); !sectionClass.empty()) {
    PutText(t, kC8, line, "Sectionclass:");
    PutText(t, kC8 + 12, line, sectionClass);
    line += kLineStep;
  }
  return std::max(end, DrawValues(t, kC8, line, Capacities(d.st, d.rec)));
}

std::string ProfileLine(const Design& d) {
  const ProjectState& st = d.st;
  const Family* family = FindFamily(st.ProfileType);
  const char* word = nullptr;
  if (family != nullptr) {
    word = family->words.page;
    const FamilyCatalogue* catalogue =
        family->sub == nullptr ? nullptr : CatalogueOfSub(*family, st.*family->sub);
    if (catalogue != nullptr) word = catalogue->page;
  }
  if (word == nullptr) return "  " + SectionTitle(st, d.lib->catalogues);
  const FamilyWords& words = family->words;
  return word + NameDimensions(st, d.lib->catalogues) + words.pageEnd +
         (words.pageOption == nullptr ? std::string() : words.pageOption(st));
}

std::string FlangeLoadLine(const Design& d) {
  std::string line = "Mdy takes into account flange loading of " +
                     Format(FlangeLoad(d.st) / 60, "0.0") + " kN/m flange (incl loadf)";
  ProjectState considered = d.st;
  considered.HsqKind = 0;
  // What the calculation switches off when it finds the flange overloaded.
  if (d.st.HsqKind != 0 && FlangeLoad(considered) > FlangeStrength(d.st, d.rec)) {
    line += " - removed: overloaded";
  }
  return line;
}

std::string ModulusLine(const Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  if (family == nullptr || !family->options.bending) return {};
  return std::string("Section class 1-2: ") +
         (d.st.BendingCapacityMode == 1 ? "Elastic section modulus " : "Plastic section modulus ");
}

std::string ClassFourLine(const Design& d) {
  const Family* family = FindFamily(d.st.ProfileType);
  if (family != nullptr && !family->options.classFour) return {};
  const bool web = d.st.IgnoreWebBuckling == 1;
  const bool flange = d.st.IgnoreFlangeBuckling == 1;
  if (web && flange) return "Section class 4: Flange/Web buckling not taken into account";
  if (web) return "Section class 4: Web buckling not taken into account";
  if (flange) return "Section class 4: Flange buckling not taken into account";
  return {};
}

}  // namespace korvane
