// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/optimiser_row.h"

#include <QPainter>
#include <algorithm>

#include "front/desktop/theme.h"

namespace korvane {

OptimiserRowMark::OptimiserRowMark(const Session& session, int row, QWidget* parent)
    : Pane(session, parent), row_(row) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  setMinimumWidth(Ems(this, 12));
}

QSize OptimiserRowMark::sizeHint() const {
  return {Ems(this, 12), Ems(this, 1.6)};
}

void OptimiserRowMark::Draw(QPainter& painter) {
  painter.fillRect(rect(), palette().color(QPalette::Window));
  const OptimiserRows::Row& state = session_.rows().row[row_];
  if (!state.searched || state.view.name.empty()) return;
  painter.setRenderHint(QPainter::Antialiasing);
  const double limit = session_.st().iufa;
  const double share = std::clamp(limit > 0 ? state.view.IR / limit : 0.0, 0.0, 1.0);
  const double thick = Ems(this, 0.45);
  const double length = Ems(this, 5);
  const QRectF track(Ems(this, 0.5), (height() - thick) / 2.0, length, thick);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Mid));
  painter.drawRoundedRect(track, thick / 2, thick / 2);
  const Role role = RoleOfIndex(CheckColour(state.view.IR, limit));
  painter.setBrush(ColourFor(role, palette()));
  painter.drawRoundedRect(QRectF(track.topLeft(), QSizeF(std::max(thick, length * share), thick)),
                          thick / 2, thick / 2);
}

}  // namespace korvane
