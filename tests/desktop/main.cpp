// SPDX-License-Identifier: GPL-3.0-or-later
// The tests of the windows run on no display, unless QT_QPA_PLATFORM names one.
#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "front/desktop/theme.h"

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  QStandardPaths::setTestModeEnabled(true);
  // Sizes and settings of the person who runs the tests stay as they are.
  QCoreApplication::setApplicationName(QStringLiteral("korvane-test"));
  korvane::ApplyTheme(korvane::Theme::Light);
  return RUN_ALL_TESTS();
}
