// SPDX-License-Identifier: GPL-3.0-or-later
// The end of an optimiser row: a bar of the ratio, and the mark of the lightest passing row.
#pragma once

#include "front/desktop/panes.h"

namespace korvane {

class OptimiserRowMark : public Pane {
  Q_OBJECT

public:
  OptimiserRowMark(const Session& session, int row, QWidget* parent);
  QSize sizeHint() const override;
  /// The searched row of the least weight whose size passes.
  static int Lightest(const Session& session);

protected:
  void Draw(QPainter& painter) override;

private:
  int row_;
};

}  // namespace korvane
