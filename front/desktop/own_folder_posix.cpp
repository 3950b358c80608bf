// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>
#include <QFileInfo>

#include "front/desktop/own_folder.h"

namespace korvane {

Folders FoldersOf(const std::string& data, const QString& own) {
  Folders folders{data, {}};
  if (QFileInfo(QString::fromStdString(data)).isWritable()) return folders;
  QDir().mkpath(own);
  folders.own = own.toStdString();
  return folders;
}

}  // namespace korvane
