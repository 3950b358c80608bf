// SPDX-License-Identifier: GPL-3.0-or-later
// The member under its diagrams: length, supports, lateral restraint points and the chosen
// calculation points, on the length axis of the diagrams.
#pragma once

#include "front/desktop/panes.h"

namespace korvane {

class MemberStrip : public Pane {
  Q_OBJECT

public:
  explicit MemberStrip(const Session& session, QWidget* parent = nullptr);
  void Refresh() override;
  /// Height for letters of so many pixels.
  static int HeightFor(double letters);
  void SetLetters(double letters);

protected:
  void Draw(QPainter& painter) override;

private:
  double letters_ = 10;
};

}  // namespace korvane
