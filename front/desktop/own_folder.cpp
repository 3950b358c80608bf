// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/own_folder.h"

#include "core/program.h"

namespace korvane {

QSettings UserSettings() {
  const QString name = QString::fromLatin1(kSettingsName);
  return QSettings(QSettings::IniFormat, QSettings::UserScope, name, name);
}

}  // namespace korvane
