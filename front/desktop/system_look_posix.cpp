// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>

#include "front/desktop/system_look.h"
#include "front/desktop/theme.h"

namespace korvane {

void PrepareLook() {}

bool SystemIsDark() {
  return IsDark(QApplication::palette());
}

void ChooseLetters() {}

}  // namespace korvane
