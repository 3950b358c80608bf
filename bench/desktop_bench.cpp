// SPDX-License-Identifier: GPL-3.0-or-later
// How long a person waits for the window: from the key that ends an entry to the repainted window,
// and from the start of the process to the first paint. Run:
// build/release/bench/korvane_desktop_bench
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QSettings>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <vector>

#include "front/desktop/desktop.h"
#include "front/desktop/desktop_platform.h"
#include "front/desktop/diagram_pane.h"
#include "front/desktop/main_window.h"
#include "front/desktop/panes.h"
#include "front/desktop/theme.h"

namespace {

using namespace korvane;

constexpr int kKeys = 200;
constexpr int kStarts = 20;
/// Argument with which this program starts itself, opens the window and ends.
const QString kStartOnly = QStringLiteral("--start-only");

/// Sees the paint events of the panes.
class PaintWatch : public QObject {
public:
  int figures = 0, results = 0, diagrams = 0;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() != QEvent::Paint) return false;
    figures += qobject_cast<FigurePane*>(watched) != nullptr ? 1 : 0;
    results += qobject_cast<ResultPane*>(watched) != nullptr ? 1 : 0;
    diagrams += qobject_cast<DiagramBox*>(watched) != nullptr ? 1 : 0;
    return false;
  }
};

/// The program with its window, as the desktop program makes them.
struct Program {
  DesktopPlatform platform;
  std::shared_ptr<const Library> library = ReadLibrary(KORVANE_DATA_FOLDER);
  QTemporaryDir own;
  Session session{library, platform, false, Folders{library->folder, own.path().toStdString()}};
  std::unique_ptr<Desktop> desktop;

  Program() {
    session.Start();
    desktop = std::make_unique<Desktop>(session);
    platform.SetWindow(&desktop->window());
    desktop->window().resize(1920, 1080);
    desktop->window().show();
  }
};

void PaintAll(const PaintWatch& watch) {
  while (watch.figures == 0 || watch.results == 0 || watch.diagrams == 0) {
    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 1000);
  }
}

void Furnish(Desktop& desktop) {
  desktop.Act([&] {
    Session& s = desktop.session();
    s.Menu("mnuload1");
    s.Enter("loading.inp", "120");
    s.Enter("loading.iq1", "6.5");
    s.Enter("loading.ipm(1)", "18");
    s.Enter("loading.ipmx(1)", "2.2");
    s.Enter("loading.iqt11", "1");
    s.Enter("loading.iqt12", "4");
    s.Enter("loading.iqt1x1", "1");
    s.Enter("loading.iqt1x2", "3");
    s.Click("loading.iqt1_yz");
    s.Close("loading");
    s.Focus("korvane");
  });
}

void PrintRow(const char* what, std::vector<double> ms) {
  std::sort(ms.begin(), ms.end());
  std::printf("%-52s median %6.1f ms   95 %% %6.1f ms   worst %6.1f ms\n", what,
              ms.at(ms.size() / 2), ms.at(ms.size() * 95 / 100), ms.back());
}

/// Return in the length field, until the window shows the new member.
void BenchKeys() {
  Program program;
  Desktop& desktop = *program.desktop;
  Furnish(desktop);
  PaintWatch watch;
  qApp->installEventFilter(&watch);
  QCoreApplication::processEvents();
  auto* length = desktop.window().findChild<QLineEdit*>(QStringLiteral("il"));
  std::vector<double> ms;
  for (int k = 0; k < kKeys; ++k) {
    length->setFocus();
    length->selectAll();
    for (const QChar c : QString::number(4 + 0.005 * k, 'f', 3)) {
      QKeyEvent key(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
      QApplication::sendEvent(length, &key);
    }
    for (int settle = 0; settle < 5; ++settle) QCoreApplication::processEvents();
    const int before = desktop.session().Calculations();
    watch.figures = watch.results = watch.diagrams = 0;
    QElapsedTimer timer;
    timer.start();
    QKeyEvent key(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(length, &key);
    PaintAll(watch);
    ms.push_back(double(timer.nsecsElapsed()) / 1e6);
    if (desktop.session().Calculations() == before) qFatal("the key ended no entry");
  }
  PrintRow("Return in a field to the repainted window, 1920x1080", ms);
}

/// Opens the window, says so once it is painted, and ends.
int StartOnly() {
  PaintWatch watch;
  qApp->installEventFilter(&watch);
  const Program program;
  PaintAll(watch);
  std::puts("painted");
  std::fflush(stdout);
  return 0;
}

void BenchStart() {
  std::vector<double> ms;
  for (int k = 0; k < kStarts; ++k) {
    QProcess process;
    QElapsedTimer timer;
    timer.start();
    process.start(QCoreApplication::applicationFilePath(), {kStartOnly});
    if (!process.waitForReadyRead()) qFatal("the window was not painted");
    ms.push_back(double(timer.nsecsElapsed()) / 1e6);
    process.waitForFinished();
  }
  PrintRow("start of the process to the first paint, 1920x1080", ms);
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  const QTemporaryDir settings;
  QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
  korvane::ApplyTheme(korvane::Theme::Light);
  if (QCoreApplication::arguments().contains(kStartOnly)) return StartOnly();
  BenchKeys();
  BenchStart();
  return 0;
}
