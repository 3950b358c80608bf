// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/own_folder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace korvane {

namespace {

/// Rights alone don't tell: the file system may be mounted for reading.
bool CanWriteIn(const QString& folder) {
  if (!QFileInfo(folder).isWritable()) return false;
  QTemporaryFile trial(QDir(folder).filePath(QStringLiteral(".korvane-XXXXXX")));
  return trial.open();
}

}  // namespace

Folders FoldersOf(const std::string& data) {
  Folders folders{data, {}};
  if (CanWriteIn(QString::fromStdString(data))) return folders;
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  QDir().mkpath(own);
  folders.own = own.toStdString();
  return folders;
}

}  // namespace korvane
