// SPDX-License-Identifier: GPL-3.0-or-later
// The surface that everything visible is drawn on: state of the pen, text, lines and areas.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "presentation/geometry.h"

namespace korvane {

/// What a colour is for; the palette says which colour that is.
enum class Role { Ink, Quiet, Accent, Second, Pass, Fail, Fill, Paper, Count };

struct Colour {
  std::uint8_t r = 0, g = 0, b = 0;
  friend bool operator==(const Colour&, const Colour&) = default;
};

/// One colour for each role.
struct Palette {
  std::array<Colour, static_cast<std::size_t>(Role::Count)> colours;
  Colour operator[](Role role) const { return colours[static_cast<std::size_t>(role)]; }
  /// For paper and light windows; pass and fail are 2 and 4 of the 16-colour basic palette.
  static Palette Light();
  /// For dark windows.
  static Palette Dark();
};

/// The role of an index of the 16-colour basic palette as check lines hold it: 2 pass, 4 fail,
/// anything else ink.
Role RoleOfIndex(int paletteIndex);

enum class Dash { Solid, Dashed, Dotted, DashDot };

/// How closed shapes are painted.
enum class Paint { Outline, Filled, Both };

/// The state of a target. CurrentX and CurrentY are in user units, FontSize and LineWidth in
/// page units (points on paper, logical pixels on a screen).
struct DrawingState {
  double CurrentX = 0, CurrentY = 0;  ///< top left corner of the next text
  Role ForeColor = Role::Ink;         ///< text and lines
  Role FillColor = Role::Fill;        ///< closed shapes
  double FillOpacity = 1;             ///< 0 nothing to 1 opaque
  bool FontBold = false, FontUnderline = false;
  std::string FontName = "Arial";
  double FontSize = 8;  ///< em height
  double LineWidth = 0.5;
  Dash LineDash = Dash::Solid;
};

/// Text as the backends get it.
struct TextStyle {
  std::string family;
  double size = 0;  ///< page units
  bool bold = false, underline = false;
  Role colour = Role::Ink;
};

struct Stroke {
  double width = 0;  ///< page units; 0: no line
  Dash dash = Dash::Solid;
  Role colour = Role::Ink;
};

struct Fill {
  Role colour = Role::Fill;
  double opacity = 0;  ///< 0: not filled
};

/// A drawing surface. User coordinates run to the right and down. A frame maps a window of user
/// units onto a rectangle of the frame around it, so one routine serves a picture box, a page
/// and a file; the outermost user units are the page units. Nothing is clipped. Text, circles
/// and arcs keep their shape where the two directions are scaled differently.
class DrawingTarget : public DrawingState {
public:
  virtual ~DrawingTarget() = default;

  /// Empties the surface.
  virtual void Clear() = 0;

  /// Draws text (UTF-8) with its top left corner at the current position, which then stands at
  /// the right end of the text.
  void Print(std::string_view text);
  /// Width in user units, from the advance widths of Arial.
  double TextWidth(std::string_view text) const;
  /// Height of one line in user units.
  double TextHeight() const;

  /// A straight line in the present colour, width and dash.
  void Line(Point a, Point b);
  /// One open line through the points, its corners joined.
  void Polyline(std::span<const Point> points);
  /// A closed outline; the last point is joined with the first.
  void Polygon(std::span<const Point> points, Paint paint);
  /// Several closed outlines as one area: what an even number of them encloses is a hole.
  void Area(std::span<const std::vector<Point>> outlines, Paint paint);
  /// radius in vertical user units, round on the page.
  void Circle(Point centre, double radius, Paint paint);
  /// Part of a circle (radius in vertical user units): angles in degrees, counter-clockwise
  /// from the right; a negative sweep runs clockwise.
  void Arc(Point centre, double radius, double start, double sweep);

  /// From now on user units are those of the window, which fills the place (in the present user
  /// units). Saves the state; sizes of the window must not be 0.
  void PushFrame(const Box& place, const Box& window);
  /// Returns to the frame and the state before.
  void PopFrame();
  /// The largest rectangle inside the place that shows width by height without distortion,
  /// centred.
  Box FitInside(const Box& place, double width, double height) const;

  /// Page units per user unit.
  double UnitX() const { return frame_.sx; }
  /// The same downwards.
  double UnitY() const { return frame_.sy; }
  /// Horizontal user units that are as long on the page as this length in vertical units.
  double Across(double vertical) const { return vertical * frame_.sy / frame_.sx; }
  /// Sets the font size in vertical user units.
  void SetTextUnits(double size) { FontSize = size * frame_.sy; }
  /// Sets the line width in vertical user units.
  void SetLineUnits(double width) { LineWidth = width * frame_.sy; }
  /// A point in page units.
  Point ToPage(Point user) const {
    return {frame_.x0 + user.x * frame_.sx, frame_.y0 + user.y * frame_.sy};
  }

protected:
  // Backends draw in page units.
  virtual void OnText(Point topLeft, const std::string& text, double width,
                      const TextStyle& style) = 0;
  virtual void OnPath(const std::vector<std::vector<Point>>& outlines, bool closed,
                      const Stroke& stroke, const Fill& fill) = 0;
  virtual void OnEllipse(Point centre, double rx, double ry, const Stroke& stroke,
                         const Fill& fill) = 0;
  virtual void OnArc(Point centre, double radius, double start, double sweep,
                     const Stroke& stroke) = 0;

private:
  struct Frame {
    double x0 = 0, y0 = 0, sx = 1, sy = 1;
  };
  Stroke CurrentStroke(Paint paint) const;
  Fill CurrentFill(Paint paint) const;
  std::vector<Point> Mapped(std::span<const Point> points) const;

  Frame frame_;
  std::vector<std::pair<Frame, DrawingState>> saved_;
};

/// Holds a frame for the length of a block.
class ScopedFrame {
public:
  ScopedFrame(DrawingTarget& target, const Box& place, const Box& window) : target_(target) {
    target_.PushFrame(place, window);
  }
  ~ScopedFrame() { target_.PopFrame(); }
  ScopedFrame(const ScopedFrame&) = delete;
  ScopedFrame& operator=(const ScopedFrame&) = delete;

private:
  DrawingTarget& target_;
};

}  // namespace korvane
