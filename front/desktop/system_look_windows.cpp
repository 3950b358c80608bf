// SPDX-License-Identifier: GPL-3.0-or-later
#include <QApplication>
#include <QFont>
#include <QSettings>

#include "front/desktop/system_look.h"

namespace korvane {

void PrepareLook() {
  // The frames of dark windows are dark too.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
    qputenv("QT_QPA_PLATFORM", "windows:darkmode=1");
  }
}

bool SystemIsDark() {
  const QSettings person(QStringLiteral("HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\"
                                        "CurrentVersion\\Themes\\Personalize"),
                         QSettings::NativeFormat);
  return person.value(QStringLiteral("AppsUseLightTheme"), 1).toInt() == 0;
}

void ChooseLetters() {
  QFont letters = QApplication::font();
  letters.setFamilies({QStringLiteral("Segoe UI"), QStringLiteral("Arial"),
                       QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")});
  letters.setStyleHint(QFont::SansSerif);
  QApplication::setFont(letters);
  // The system names letters of their own for these.
  for (const char* kind : {"QMenu", "QMenuBar", "QMessageBox", "QTipLabel", "QStatusBar",
                           "QTitleBar", "QMdiSubWindowTitleBar", "QDockWidgetTitle"}) {
    QApplication::setFont(letters, kind);
  }
}

}  // namespace korvane
