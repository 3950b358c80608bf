// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface on a Qt painter: one class for window, printer, PDF, SVG and picture files.
#pragma once

#include <QFont>
#include <QPainter>

#include "presentation/drawing_target.h"

namespace korvane {

/// Draws on an active painter. Page units are mapped onto a rectangle of the painter's device;
/// text stays text where the device can hold it.
class PainterTarget : public DrawingTarget {
public:
  /// pageWidth by pageHeight page units fill the device rectangle; text keeps its proportions
  /// by the vertical scale. The painter must outlive the target.
  PainterTarget(QPainter& painter, double pageWidth, double pageHeight, const QRectF& device,
                const Palette& palette);

  /// Fills the rectangle with the paper colour of the palette.
  void Clear() override;

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
  QPointF Device(Point page) const {
    return {device_.left() + page.x * sx_, device_.top() + page.y * sy_};
  }
  QColor ColourOf(Role role, double opacity = 1) const;
  void Apply(const Stroke& stroke, const Fill& fill);
  QFont FontOf(const TextStyle& style) const;

  QPainter& painter_;
  QRectF device_;
  Palette palette_;
  double sx_, sy_;
};

}  // namespace korvane
