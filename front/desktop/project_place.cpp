// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/project_place.h"

#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStandardPaths>

#include "front/session.h"

namespace korvane {

namespace {

QString PathOf(const Session& s) {
  return QString::fromStdString(s.st().CurrentFileName);
}

/// What a file system may not take in a name.
QString Cleaned(QString name) {
  static const QRegularExpression odd(QStringLiteral("[/\\\\:*?\"<>|\\x00-\\x1f]+"));
  return name.replace(odd, QStringLiteral("-")).trimmed();
}

}  // namespace

QString ProjectFolder(const Session& s) {
  const QString path = PathOf(s);
  if (!path.isEmpty()) return QFileInfo(path).absolutePath();
  const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
  return QFileInfo(documents).isDir() ? documents : QDir::homePath();
}

QString BesideProject(const Session& s, const QString& suffix) {
  QString name = QFileInfo(PathOf(s)).completeBaseName();
  const MainControls& on = TheForms().onMain;
  for (const Control* text : {on.iident, on.iproj}) {
    if (name.isEmpty()) name = Cleaned(QString::fromStdString(s.Text(*text)));
  }
  if (name.isEmpty()) name = QStringLiteral("member");
  return QDir(ProjectFolder(s)).filePath(name + suffix);
}

}  // namespace korvane
