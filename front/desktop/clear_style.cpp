// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/clear_style.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyleFactory>
#include <QStyleOption>

namespace korvane {

namespace {

/// Lines of a box or circle: the quieter text, the accent colour once it is marked or in use.
QColor OutlineOf(const QStyleOption& option) {
  const QPalette& p = option.palette;
  if (!option.state.testFlag(QStyle::State_Enabled)) return p.color(QPalette::WindowText);
  const bool used = option.state.testFlag(QStyle::State_HasFocus) &&
                    option.state.testFlag(QStyle::State_KeyboardFocusChange);
  const bool marked = option.state.testFlag(QStyle::State_On);
  return p.color(used || marked ? QPalette::Highlight : QPalette::PlaceholderText);
}

QColor FillOf(const QStyleOption& option) {
  const QPalette& p = option.palette;
  if (option.state.testFlag(QStyle::State_Sunken)) return p.color(QPalette::Mid);
  const bool marked = option.state.testFlag(QStyle::State_On);
  if (marked && option.state.testFlag(QStyle::State_Enabled)) return p.color(QPalette::Highlight);
  return p.color(QPalette::Base);
}

QColor MarkOf(const QStyleOption& option) {
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  return option.palette.color(enabled ? QPalette::HighlightedText : QPalette::WindowText);
}

/// The square in the middle of the room of a mark, on whole pixels.
QRectF SquareIn(const QRect& room) {
  const int side = std::min(room.width(), room.height()) - 1;
  return QRectF(room.x() + (room.width() - side) / 2, room.y() + (room.height() - side) / 2, side,
                side)
      .adjusted(0.5, 0.5, -0.5, -0.5);
}

void DrawCheck(const QStyleOption& option, QPainter& painter) {
  const QRectF box = SquareIn(option.rect);
  painter.setPen(QPen(OutlineOf(option), 1));
  painter.setBrush(FillOf(option));
  painter.drawRoundedRect(box, 2, 2);
  if (!option.state.testFlag(QStyle::State_On)) return;
  const double s = box.width();
  QPainterPath tick(box.topLeft() + QPointF(0.22 * s, 0.52 * s));
  tick.lineTo(box.topLeft() + QPointF(0.42 * s, 0.72 * s));
  tick.lineTo(box.topLeft() + QPointF(0.78 * s, 0.28 * s));
  painter.setPen(QPen(MarkOf(option), s / 7, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPath(tick);
}

void DrawRadio(const QStyleOption& option, QPainter& painter) {
  const QRectF circle = SquareIn(option.rect);
  painter.setPen(QPen(OutlineOf(option), 1));
  painter.setBrush(FillOf(option));
  painter.drawEllipse(circle);
  if (!option.state.testFlag(QStyle::State_On)) return;
  painter.setPen(Qt::NoPen);
  painter.setBrush(MarkOf(option));
  painter.drawEllipse(circle.center(), circle.width() / 5, circle.width() / 5);
}

}  // namespace

ClearStyle::ClearStyle() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void ClearStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const bool check = element == PE_IndicatorCheckBox;
  const bool radio = element == PE_IndicatorRadioButton;
  if (!check && !radio) QProxyStyle::drawPrimitive(element, option, painter, widget);
  // Fusion's own edge of menus is darker than a dark window.
  const bool edge = element == PE_FrameMenu;
  const bool chosen = element == PE_PanelButtonTool && option->state.testFlag(QStyle::State_On);
  if (!check && !radio && !chosen && !edge) return;
  painter->save();
  painter->setRenderHint(QPainter::Antialiasing);
  if (check) DrawCheck(*option, *painter);
  if (radio) DrawRadio(*option, *painter);
  if (chosen) {
    painter->setPen(QPen(OutlineOf(*option), 2));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(QRectF(option->rect).adjusted(1, 1, -1, -1), 2, 2);
  }
  if (edge) {
    painter->setPen(option->palette.color(QPalette::Mid));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
  }
  painter->restore();
}

}  // namespace korvane
