// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/screenshots.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QScreen>
#include <QTabWidget>

#include "front/desktop/desktop.h"
#include "front/desktop/form_window.h"
#include "front/desktop/main_window.h"
#include "front/desktop/theme.h"
#include "front/named_session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

/// Dots per inch at which letters have their usual size.
constexpr int kUsualDpi = 96;

/// Lets the window manager and the painting come to rest.
void Settle() {
  QElapsedTimer timer;
  timer.start();
  while (!timer.hasExpired(120)) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

/// What makes these pictures different from the usual ones: scale and size of the letters, and
/// the decimal comma.
QString Suffix(const QWidget& window, const Session& s) {
  QString suffix;
  const int scale = qRound(window.devicePixelRatioF() * 100);
  if (scale != 100) suffix += QStringLiteral("-%1").arg(scale);
  const int letters = qRound(window.logicalDpiY() * 100.0 / kUsualDpi);
  if (letters != 100) suffix += QStringLiteral("-letters%1").arg(letters);
  if (s.DecimalComma()) suffix += QStringLiteral("-comma");
  return suffix;
}

bool Shoot(QWidget& window, const Session& s, const QDir& folder, const QString& name) {
  Settle();
  return window.grab().save(folder.filePath(name + Suffix(window, s) + QStringLiteral(".png")));
}

/// Whether the window got the size; a window manager takes its time, or has no room.
bool Resize(QWidget& window, const QSize& size) {
  window.resize(size);
  for (int k = 0; k < 20 && window.size() != size; ++k) Settle();
  return window.size() == size;
}

/// A member with something in every pane.
void Furnish(Desktop& desktop, NamedSession& s) {
  desktop.Act([&] {
    s.Menu("mnunew");
    s.FillMainWindow();
    s.Focus("korvane");
    s.Enter("korvane.iproj", "Warehouse, axis B");
    s.Enter("korvane.iident", "Column 12");
    s.Menu("mnuload1");
    s.Enter("loading.inp", "120");
    s.Enter("loading.iq1", "6.5");
    s.Enter("loading.iq2", "3.2");
    s.Click("loading.iq2_pv");
    s.Enter("loading.ipm(1)", "18");
    s.Enter("loading.ipmx(1)", "3.2");
    s.Enter("loading.iqt11", "1");
    s.Enter("loading.iqt12", "4");
    s.Enter("loading.iqt1x1", "1");
    s.Enter("loading.iqt1x2", "3");
    s.Click("loading.iqt1_yz");
    s.Close("loading");
    s.Focus("korvane");
  });
}

/// Everything that takes room in the main window beside the usual: stiffeners, a typed load level,
/// a spring, the optimiser's row.
void Crowd(Desktop& desktop, NamedSession& s) {
  desktop.Act([&] {
    s.Show("endstiff");
    s.Click("endstiff.cwebstiff1");
    s.Close("endstiff");
    s.Show("vipping");
    s.Click("vipping.loadl4");
    s.Close("vipping");
    s.Click("korvane.cbutt5");
    s.Enter("korvane.ispring", "50");
    s.Click("korvane.optimize");
  });
}

/// The screens that the window is to be used on, in their own dots.
constexpr QSize kScreens[] = {{3840, 2160}, {1920, 1080}, {1366, 768}, {1280, 720}};
/// Nobody works on less, in dots of the usual size.
constexpr QSize kSmallest{1024, 600};

bool ShootMain(Desktop& desktop, NamedSession& s, const QDir& folder, const QString& theme) {
  MainWindow& window = desktop.window();
  bool ok = true;
  const QSize room = window.screen()->size();
  for (const QSize screen : kScreens) {
    const QSize size = screen / window.devicePixelRatioF();
    const bool fits = size.width() <= room.width() && size.height() <= room.height();
    if (!fits && QGuiApplication::platformName() != QLatin1String("offscreen")) continue;
    if (size.width() < kSmallest.width() || size.height() < kSmallest.height()) continue;
    const auto name = [&](const char* what) {
      return QStringLiteral("%1-%2x%3-%4")
          .arg(QString::fromUtf8(what))
          .arg(screen.width())
          .arg(screen.height())
          .arg(theme);
    };
    ok = Resize(window, size) && Shoot(window, s, folder, name("main")) && ok;
    Crowd(desktop, s);
    ok = Shoot(window, s, folder, name("full")) && ok;
    Furnish(desktop, s);
  }
  return ok;
}

bool ShootForms(Desktop& desktop, NamedSession& s, const QDir& folder, const QString& theme) {
  bool ok = true;
  for (const Form& form : AllForms()) {
    FormWindow* window = desktop.WindowOf(form);
    if (window == nullptr) continue;
    desktop.Act([&] {
      if (form.family != 0) {
        s.Menu(FindFamily(form.family)->menuControl);
        s.Focus("korvane");
      }
      s.Show(form.name);
      if (form.name == "database") {
        s.Click("p01.addtodb");
        s.Select("p01.Cbo", 8);
        s.Click("p01.addtodb");
      }
      if (form.name == "Modal_ns") {
        s.Click("korvane.ch_modal");
        s.Click("korvane.cmd_modresult");
      }
      if (form.name == "optroll") {
        for (const char* row : {"cbp01", "cbp02", "cbp04", "cbp06"}) {
          if (!s.Checked(std::string("optroll.") + row)) s.Click(std::string("optroll.") + row);
        }
      }
    });
    Settle();
    window->resize(window->sizeHint());
    ok = Shoot(*window, s, folder,
               QStringLiteral("form-%1-%2").arg(QString::fromStdString(form.name), theme)) &&
         ok;
    desktop.Act([&] { s.Unload(form.name); });
    Furnish(desktop, s);
  }
  return ok;
}

/// The windows of the studies, each opened by its button.
bool ShootStudies(Desktop& desktop, NamedSession& s, const QDir& folder, const QString& theme) {
  bool ok = true;
  for (const char* name : {"sections", "whatif"}) {
    const QString window = QString::fromUtf8(name);
    auto* button = desktop.window().findChild<QAbstractButton*>(QStringLiteral("open_") + window);
    if (button == nullptr) return false;
    button->click();
    auto* opened = desktop.window().findChild<QWidget*>(window);
    if (opened == nullptr) return false;
    ok = Shoot(*opened, s, folder, QStringLiteral("study-%1-%2").arg(window, theme)) && ok;
    if (auto* tabs = opened->findChild<QTabWidget*>()) {
      tabs->setCurrentIndex(1);
      ok = Shoot(*opened, s, folder, QStringLiteral("study-interaction-%1").arg(theme)) && ok;
      tabs->setCurrentIndex(0);
    }
    opened->close();
  }
  return ok;
}

}  // namespace

bool WriteScreenshots(Desktop& desktop, NamedSession& s, const QString& path) {
  QDir folder(path);
  if (!folder.mkpath(QStringLiteral("."))) return false;
  desktop.window().show();
  Settle();
  bool ok = true;
  for (const auto& [theme, name] : {std::pair{Theme::Light, QStringLiteral("light")},
                                    std::pair{Theme::Dark, QStringLiteral("dark")}}) {
    ApplyTheme(theme);
    Furnish(desktop, s);
    ok = ShootMain(desktop, s, folder, name) && ok;
    ok = ShootStudies(desktop, s, folder, name) && ok;
    ok = ShootForms(desktop, s, folder, name) && ok;
  }
  return ok;
}

}  // namespace korvane
