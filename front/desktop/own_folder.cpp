// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/own_folder.h"

#include <QDir>
#include <QFileInfo>

#include "core/program.h"

namespace korvane {

Folders FoldersOf(const std::string& data, const QString& own) {
  Folders folders{data, {}};
  if (QFileInfo(QString::fromStdString(data)).isWritable()) return folders;
  QDir().mkpath(own);
  folders.own = own.toStdString();
  return folders;
}

QSettings UserSettings() {
  const QString name = QString::fromLatin1(kSettingsName);
  return QSettings(QSettings::IniFormat, QSettings::UserScope, name, name);
}

}  // namespace korvane
