// SPDX-License-Identifier: GPL-3.0-or-later
// The drawings of the help book: the part of SVG that they are written in, painted by Qt alone.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QSizeF>

class QPainter;

namespace korvane {

/// A drawing as its file tells it: lines, rectangles, circles, paths of straight lines and curves,
/// and texts, in groups that hand their properties on. Anything else is left out.
class SvgDrawing {
public:
  explicit SvgDrawing(QByteArray file);

  /// Whether the file is a drawing at all.
  bool IsValid() const { return view_.isValid(); }
  /// The drawing's own units.
  QRectF ViewBox() const { return view_; }
  /// Size in pixels where the file tells one, else that of the view box.
  QSizeF Size() const { return size_; }
  /// Paints the view box into the rectangle.
  void Paint(QPainter& painter, const QRectF& into) const;

private:
  QByteArray file_;
  QRectF view_;
  QSizeF size_;
};

}  // namespace korvane
