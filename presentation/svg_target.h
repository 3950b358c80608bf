// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface that writes itself down as an SVG picture: text stays text, and any text
// makes a well-formed document.
#pragma once

#include <string>
#include <string_view>

#include "presentation/drawing_target.h"

namespace korvane {

/// A text as content of XML: markup escaped, bytes that are no UTF-8 read as Windows-1252,
/// characters that XML can't hold replaced by U+FFFD.
std::string XmlText(std::string_view text);

/// A length as an SVG picture has it: 3 decimals, no zeros at the end. What no picture can hold
/// counts as 0.
std::string SvgNumber(double value);

/// Collects the picture of one page in page units (points). The page is filled with the paper's
/// colour. Widths of text are those of TextWidth; the file asks for them, whatever font shows it.
class SvgTarget : public DrawingTarget {
public:
  SvgTarget(double width, double height, std::string_view title, const Palette& palette);

  /// Begins anew with an empty page.
  void Clear() override;
  /// The whole document, UTF-8.
  std::string Document() const;

protected:
  void OnText(Point topLeft, const std::string& text, double width,
              const TextStyle& style) override;
  void OnPath(const std::vector<std::vector<Point>>& outlines, bool closed, const Stroke& stroke,
              const Fill& fill) override;
  void OnEllipse(Point centre, double rx, double ry, const Stroke& stroke,
                 const Fill& fill) override;
  void OnArc(Point centre, double radius, double start, double sweep,
             const Stroke& stroke) override;

private:
  void Attribute(std::string_view name, double value);
  void Painted(const Stroke& stroke, const Fill& fill);

  std::string head_;
  std::string body_;
  Palette palette_;
};

}  // namespace korvane
