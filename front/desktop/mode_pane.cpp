// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/mode_pane.h"

#include <QPainter>

#include "front/desktop/theme.h"
#include "front/painter/painter_target.h"
#include "presentation/mode_shapes.h"

namespace korvane {

ModePane::ModePane(const Session& session, QWidget* parent) : Pane(session, parent) {
  setMinimumSize(sizeHint());
}

QSize ModePane::sizeHint() const {
  return {Ems(this, 34), Ems(this, 20)};
}

void ModePane::Draw(QPainter& painter) {
  PainterTarget target(painter, width(), height(), rect(), DrawingColours(palette()));
  DrawModeShapes(target, {0, 0, double(width()), double(height())}, session_.st().SupportType,
                 Ems(this, 0.9));
}

}  // namespace korvane
