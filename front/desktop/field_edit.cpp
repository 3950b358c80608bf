// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/field_edit.h"

#include <QPainter>

#include "front/desktop/theme.h"

namespace korvane {

namespace {

constexpr QColor kAmber(0xff, 0xb0, 0x00);
constexpr double kMarkEms = 1.05;

}  // namespace

void FieldEdit::SetMarked(bool marked) {
  if (marked_ == marked) return;
  marked_ = marked;
  // A text that begins at the left makes room for it.
  const bool left = (alignment() & Qt::AlignRight) == 0;
  setTextMargins(marked && left ? Ems(this, kMarkEms + 0.3) : 0, 0, 0, 0);
  update();
}

void FieldEdit::paintEvent(QPaintEvent* event) {
  QLineEdit::paintEvent(event);
  if (!marked_) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = Ems(this, kMarkEms);
  const QRectF box(Ems(this, 0.25), (height() - side) / 2, side, side);
  const QPointF corners[] = {QPointF(box.center().x(), box.top()), box.bottomRight(),
                             box.bottomLeft()};
  painter.setPen(QPen(Qt::black, 1));
  painter.setBrush(kAmber);
  painter.drawPolygon(corners, 3);
  QFont letters = font();
  letters.setPixelSize(qRound(side * 0.7));
  letters.setBold(true);
  painter.setFont(letters);
  painter.drawText(box, Qt::AlignHCenter | Qt::AlignBottom, QStringLiteral("!"));
}

}  // namespace korvane
