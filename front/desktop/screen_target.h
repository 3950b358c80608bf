// SPDX-License-Identifier: GPL-3.0-or-later
// The drawing surface of a pane: its colours, and the decimal mark of the platform.
#pragma once

#include <QWidget>

#include "front/desktop/theme.h"
#include "front/painter/painter_target.h"
#include "front/session.h"

namespace korvane {

/// One page unit is a logical pixel of the pane.
class ScreenTarget : public PainterTarget {
public:
  ScreenTarget(QPainter& painter, const QWidget& pane, const Session& session)
      : PainterTarget(painter, pane.width(), pane.height(), pane.rect(),
                      DrawingColours(pane.palette())),
        session_(session) {}

protected:
  void OnText(Point topLeft, const std::string& text, double width,
              const TextStyle& style) override {
    PainterTarget::OnText(topLeft, session_.OnScreen(text), width, style);
  }

private:
  const Session& session_;
};

}  // namespace korvane
