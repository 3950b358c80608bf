// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/painter/painter_target.h"

#include <QFontMetricsF>
#include <QPaintDevice>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "presentation/text_metrics.h"

namespace korvane {
namespace {

Qt::PenStyle PenStyleOf(Dash dash) {
  constexpr Qt::PenStyle styles[] = {Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine};
  return styles[static_cast<std::size_t>(dash)];
}

}  // namespace

PainterTarget::PainterTarget(QPainter& painter, double pageWidth, double pageHeight,
                             const QRectF& device, const Palette& palette)
    : painter_(painter),
      device_(device),
      palette_(palette),
      sx_(device.width() / pageWidth),
      sy_(device.height() / pageHeight) {
  painter_.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
}

void PainterTarget::Clear() {
  painter_.fillRect(device_, ColourOf(Role::Paper));
}

void PainterTarget::OnText(Point topLeft, const std::string& text, double width,
                           const TextStyle& style) {
  const QFont font = FontOf(style);
  const QString words = QString::fromStdString(text);
  painter_.setFont(font);
  painter_.setPen(ColourOf(style.colour));
  QPointF base = Device(topLeft);
  base.ry() += kArialAscent * style.size * sy_;
  // A font in the place of Arial with wider letters is drawn narrower, so that columns hold.
  const double natural = QFontMetricsF(font, painter_.device()).horizontalAdvance(words);
  const double wanted = width * sx_;
  if (natural > wanted * 1.02 && wanted > 0) {
    painter_.save();
    painter_.translate(base);
    painter_.scale(wanted / natural, 1);
    painter_.drawText(QPointF(0, 0), words);
    painter_.restore();
    return;
  }
  painter_.drawText(base, words);
}

void PainterTarget::OnPath(const std::vector<std::vector<Point>>& outlines, bool closed,
                           const Stroke& stroke, const Fill& fill) {
  QPainterPath path;
  path.setFillRule(Qt::OddEvenFill);
  for (const std::vector<Point>& outline : outlines) {
    if (outline.empty()) continue;
    path.moveTo(Device(outline.front()));
    for (std::size_t i = 1; i < outline.size(); ++i) path.lineTo(Device(outline[i]));
    if (closed) path.closeSubpath();
  }
  Apply(stroke, fill);
  painter_.drawPath(path);
}

void PainterTarget::OnEllipse(Point centre, double rx, double ry, const Stroke& stroke,
                              const Fill& fill) {
  Apply(stroke, fill);
  painter_.drawEllipse(Device(centre), rx * sx_, ry * sy_);
}

void PainterTarget::OnArc(Point centre, double radius, double start, double sweep,
                          const Stroke& stroke) {
  Apply(stroke, {});
  const QPointF c = Device(centre);
  const double rx = radius * sx_;
  const double ry = radius * sy_;
  const QRectF box(c.x() - rx, c.y() - ry, 2 * rx, 2 * ry);
  QPainterPath path;
  path.arcMoveTo(box, start);
  path.arcTo(box, start, sweep);
  painter_.drawPath(path);
}

QColor PainterTarget::ColourOf(Role role, double opacity) const {
  const Colour c = palette_[role];
  return QColor(c.r, c.g, c.b, static_cast<int>(std::lround(std::clamp(opacity, 0., 1.) * 255)));
}

void PainterTarget::Apply(const Stroke& stroke, const Fill& fill) {
  if (stroke.width > 0) {
    QPen pen(ColourOf(stroke.colour), stroke.width * sy_, PenStyleOf(stroke.dash), Qt::FlatCap,
             Qt::MiterJoin);
    painter_.setPen(pen);
  } else {
    painter_.setPen(Qt::NoPen);
  }
  painter_.setBrush(fill.opacity > 0 ? QBrush(ColourOf(fill.colour, fill.opacity))
                                     : QBrush(Qt::NoBrush));
}

QFont PainterTarget::FontOf(const TextStyle& style) const {
  QFont font;
  // The free font with the metrics of Arial stands first: the same letters everywhere.
  QStringList families;
  if (style.family == "Arial" || style.family == "arial") families << "Liberation Sans";
  families << QString::fromStdString(style.family);
  font.setFamilies(families);
  font.setPointSizeF(style.size * sy_ * 72 / painter_.device()->logicalDpiY());
  font.setBold(style.bold);
  font.setUnderline(style.underline);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace korvane
