// SPDX-License-Identifier: GPL-3.0-or-later
#include <QDir>

#include "front/desktop/own_folder.h"

namespace korvane {

// The program stands in a folder of the person's, but what is in it goes with the program.
Folders FoldersOf(const std::string& data, const QString& own) {
  QDir().mkpath(own);
  return {data, own.toStdString()};
}

}  // namespace korvane
