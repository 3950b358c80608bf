// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/svg_target.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <numbers>

#include "core/text.h"
#include "presentation/text_metrics.h"

namespace korvane {
namespace {

constexpr std::string_view kReplacement = "\xEF\xBF\xBD";  // U+FFFD
// Fonts with the same advance widths first.
constexpr std::string_view kSansSerif = "'Liberation Sans',Arial,Arimo,Helvetica,sans-serif";
constexpr int kDecimals = 3;

std::string Pair(Point p) {
  return SvgNumber(p.x) + ' ' + SvgNumber(p.y);
}

std::string Hex(Colour c) {
  std::array<char, 8> text{};
  std::snprintf(text.data(), text.size(), "#%02x%02x%02x", c.r, c.g, c.b);
  return text.data();
}

/// Lengths of dashes and gaps in widths of the line.
std::vector<double> DashesOf(Dash dash) {
  switch (dash) {
    case Dash::Solid:
      return {};
    case Dash::Dashed:
      return {4, 2};
    case Dash::Dotted:
      return {1, 2};
    case Dash::DashDot:
      return {4, 2, 1, 2};
  }
  return {};
}

std::string FamilyOf(const std::string& name) {
  if (name == "Arial" || name == "arial") return std::string(kSansSerif);
  return "'" + XmlText(name) + "',sans-serif";
}

}  // namespace

std::string SvgNumber(double value) {
  constexpr double largest = 1E7;
  if (!(std::abs(value) < largest)) return "0";
  std::array<char, 32> text{};
  char* end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed,
                            kDecimals)
                  .ptr;
  while (end[-1] == '0') --end;
  if (end[-1] == '.') --end;
  std::string number(text.data(), end);
  return number == "-0" ? "0" : number;
}

std::string XmlText(std::string_view bytes) {
  const std::string text = ToUtf8(bytes);
  std::string xml;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    const std::string_view rest = std::string_view(text).substr(i);
    if (c == '&') {
      xml += "&amp;";
    } else if (c == '<') {
      xml += "&lt;";
    } else if (c == '>') {
      xml += "&gt;";
    } else if (c == '"') {
      xml += "&quot;";
    } else if (c == '\'') {
      xml += "&#39;";
    } else if (c < 0x20 && c != '\t') {
      xml += kReplacement;
    } else if (rest.starts_with("\xEF\xBF\xBE") || rest.starts_with("\xEF\xBF\xBF")) {
      xml += kReplacement;  // U+FFFE and U+FFFF
      i += 2;
    } else {
      xml += text[i];
    }
  }
  return xml;
}

SvgTarget::SvgTarget(double width, double height, std::string_view title, const Palette& palette)
    : palette_(palette) {
  const std::string w = SvgNumber(width);
  const std::string h = SvgNumber(height);
  head_ =
      "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
      "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
      w + "pt\" height=\"" + h + "pt\" viewBox=\"0 0 " + w + ' ' + h +
      "\" xml:space=\"preserve\" fill=\"none\" "
      "fill-rule=\"evenodd\" stroke-linecap=\"butt\" stroke-linejoin=\"miter\">"
      "<title>" +
      XmlText(title) +
      "</title>\n"
      "<rect width=\"" +
      w + "\" height=\"" + h + "\" fill=\"" + Hex(palette[Role::Paper]) + "\"/>\n";
}

void SvgTarget::Clear() {
  body_.clear();
}

std::string SvgTarget::Document() const {
  return head_ + body_ + "</svg>\n";
}

void SvgTarget::Attribute(std::string_view name, double value) {
  ((body_ += ' ') += name) += "=\"" + SvgNumber(value) + '"';
}

void SvgTarget::Painted(const Stroke& stroke, const Fill& fill) {
  if (fill.opacity > 0) {
    body_ += " fill=\"" + Hex(palette_[fill.colour]) + '"';
    if (fill.opacity < 1) Attribute("fill-opacity", fill.opacity);
  }
  if (stroke.width > 0) {
    body_ += " stroke=\"" + Hex(palette_[stroke.colour]) + '"';
    Attribute("stroke-width", stroke.width);
    std::string dashes;
    for (const double dash : DashesOf(stroke.dash)) dashes += SvgNumber(dash * stroke.width) + ' ';
    if (!dashes.empty()) body_ += " stroke-dasharray=\"" + dashes + '"';
  }
  body_ += "/>\n";
}

void SvgTarget::OnText(Point topLeft, const std::string& text, double width,
                       const TextStyle& style) {
  if (text.find_first_not_of(' ') == std::string::npos) return;
  body_ += "<text";
  Attribute("x", topLeft.x);
  Attribute("y", topLeft.y + kArialAscent * style.size);
  if (width > 0) {
    Attribute("textLength", width);
    body_ += " lengthAdjust=\"spacingAndGlyphs\"";
  }
  body_ += " font-family=\"" + FamilyOf(style.family) + '"';
  Attribute("font-size", style.size);
  if (style.bold) body_ += " font-weight=\"bold\"";
  if (style.underline) body_ += " text-decoration=\"underline\"";
  body_ += " fill=\"" + Hex(palette_[style.colour]) + "\">" + XmlText(text) + "</text>\n";
}

void SvgTarget::OnPath(const std::vector<std::vector<Point>>& outlines, bool closed,
                       const Stroke& stroke, const Fill& fill) {
  std::string d;
  for (const std::vector<Point>& outline : outlines) {
    for (std::size_t i = 0; i < outline.size(); ++i) d += (i == 0 ? 'M' : 'L') + Pair(outline[i]);
    if (closed && !outline.empty()) d += 'Z';
  }
  if (d.empty()) return;
  body_ += "<path d=\"" + d + '"';
  Painted(stroke, fill);
}

void SvgTarget::OnEllipse(Point centre, double rx, double ry, const Stroke& stroke,
                          const Fill& fill) {
  body_ += "<ellipse";
  Attribute("cx", centre.x);
  Attribute("cy", centre.y);
  Attribute("rx", std::abs(rx));
  Attribute("ry", std::abs(ry));
  Painted(stroke, fill);
}

void SvgTarget::OnArc(Point centre, double radius, double start, double sweep,
                      const Stroke& stroke) {
  constexpr double whole = 360;
  if (std::abs(sweep) >= whole) {
    OnEllipse(centre, radius, radius, stroke, {});
    return;
  }
  const auto at = [&](double degrees) {
    const double angle = degrees * std::numbers::pi / 180;
    return Point{centre.x + radius * std::cos(angle), centre.y - radius * std::sin(angle)};
  };
  const char* large = std::abs(sweep) > whole / 2 ? " 1 " : " 0 ";
  const char* clockwise = sweep < 0 ? "1 " : "0 ";
  body_ += "<path d=\"M" + Pair(at(start)) + 'A' + Pair({radius, radius}) + " 0" + large +
           clockwise + Pair(at(start + sweep)) + '"';
  Painted(stroke, {});
}

}  // namespace korvane
