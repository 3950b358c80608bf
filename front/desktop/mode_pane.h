// SPDX-License-Identifier: GPL-3.0-or-later
// The three mode shapes of the member, under each other.
#pragma once

#include "front/desktop/panes.h"

namespace korvane {

class ModePane : public Pane {
  Q_OBJECT

public:
  explicit ModePane(const Session& session, QWidget* parent = nullptr);
  QSize sizeHint() const override;

protected:
  void Draw(QPainter& painter) override;
};

}  // namespace korvane
