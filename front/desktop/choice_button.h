// SPDX-License-Identifier: GPL-3.0-or-later
// A picture that is one of several to choose from: a radio button to a screen reader.
#pragma once

#include <QToolButton>

namespace korvane {

class ChoiceButton : public QToolButton {
  Q_OBJECT

public:
  explicit ChoiceButton(QWidget* parent = nullptr);
};

}  // namespace korvane
