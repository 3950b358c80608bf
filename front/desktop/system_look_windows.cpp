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
  const QStringList plain{QStringLiteral("Segoe UI"), QStringLiteral("Arial"),
                          QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")};
  QFont letters = QApplication::font();
  letters.setFamilies(plain);
  letters.setStyleHint(QFont::SansSerif);
  QApplication::setFont(letters);
  // The names that pages and drawings use.
  QFont::insertSubstitutions(QStringLiteral("sans-serif"), plain);
  QFont::insertSubstitutions(QStringLiteral("Sans Serif"), plain);
  QFont::insertSubstitutions(
      QStringLiteral("monospace"),
      {QStringLiteral("Consolas"), QStringLiteral("Courier New"), QStringLiteral("Liberation Mono"),
       QStringLiteral("DejaVu Sans Mono")});
}

}  // namespace korvane
