// SPDX-License-Identifier: GPL-3.0-or-later
// The bar of the ratio in an optimiser row.
#pragma once

#include "front/desktop/panes.h"

namespace korvane {

class OptimiserRowMark : public Pane {
  Q_OBJECT

public:
  OptimiserRowMark(const Session& session, int row, QWidget* parent);
  QSize sizeHint() const override;

protected:
  void Draw(QPainter& painter) override;

private:
  int row_;
};

}  // namespace korvane
