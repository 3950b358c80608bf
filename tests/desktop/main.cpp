// SPDX-License-Identifier: GPL-3.0-or-later
// The tests of the windows run on no display, unless QT_QPA_PLATFORM names one, and with a font of
// their own, so that no case depends on the fonts of the machine. KORVANE_TEST_FONT names another.
#include <gtest/gtest.h>

#include <QApplication>
#include <QFontInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>

#include "front/desktop/theme.h"

namespace {

/// Sets the font of the tests; whether the machine has it.
bool UseOwnFont() {
  const QString family =
      qEnvironmentVariable("KORVANE_TEST_FONT", QStringLiteral("Liberation Sans"));
  const QFont font(family, 10);
  QApplication::setFont(font);
  if (QFontInfo(font).family() == family) return true;
  std::fprintf(stderr, "the tests need the font %s\n", qPrintable(family));
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication app(argc, argv);
  if (!UseOwnFont()) return 2;
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  QStandardPaths::setTestModeEnabled(true);
  // Sizes and settings of the person who runs the tests stay as they are.
  QCoreApplication::setApplicationName(QStringLiteral("korvane-test"));
  korvane::ApplyTheme(korvane::Theme::Light);
  return RUN_ALL_TESTS();
}
