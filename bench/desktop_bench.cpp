// SPDX-License-Identifier: GPL-3.0-or-later
// Times at the windows, on no display: from a key to the new picture, from a start to the first.
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "front/desktop/desktop.h"
#include "front/desktop/form_binder.h"
#include "front/desktop/form_window.h"
#include "front/desktop/main_window.h"
#include "front/desktop/panes.h"
#include "front/desktop/theme.h"
#include "front/named_session.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

constexpr int kRepeats = 100;
constexpr int kStarts = 20;

/// Counts the pictures of the panes.
class PaintCount : public QObject {
public:
  int count = 0;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint && qobject_cast<Pane*>(watched) != nullptr) ++count;
    return QObject::eventFilter(watched, event);
  }
};

void Print(const char* what, std::vector<double> times) {
  std::sort(times.begin(), times.end());
  std::printf("%-50s median %6.1f ms, greatest %6.1f ms\n", what, times[times.size() / 2],
              times.back());
}

double Milliseconds(const QElapsedTimer& timer) {
  return double(timer.nsecsElapsed()) / 1e6;
}

/// From Return in the length field to the repainted window. False when nothing was painted.
bool ReturnToPicture() {
  const QTemporaryDir own;
  const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  Platform platform;
  NamedSession session(library, platform, false,
                       Folders{library->folder, own.path().toStdString()});
  session.Start();
  session.st().q1 = 10;
  session.st().q2 = 4;
  session.st().q2_yz = 0;
  session.st().NP = 100;
  Desktop desktop(session);
  MainWindow& window = desktop.window();
  window.resize(1920, 1080);
  window.show();
  QCoreApplication::processEvents();
  desktop.Activated(*TheForms().main);
  auto* length = window.findChild<QLineEdit*>(QStringLiteral("il"));
  PaintCount paints;
  qApp->installEventFilter(&paints);
  std::vector<double> times;
  for (int k = 0; k < kRepeats; ++k) {
    length->setFocus();
    const QString text = QString::number(4 + 0.01 * k, 'f', 3);
    length->setText(text);
    emit length->textEdited(text);
    QCoreApplication::processEvents();
    const int before = paints.count;
    QElapsedTimer timer;
    timer.start();
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(length, &press);
    QCoreApplication::processEvents();
    times.push_back(Milliseconds(timer));
    const bool taken = std::abs(double(session.st().L) - text.toDouble()) < 1e-4;
    if (paints.count == before || !taken) return false;
  }
  qApp->removeEventFilter(&paints);
  std::printf("window %d x %d\n", window.width(), window.height());
  Print("Return in the length field to the new picture", times);
  return true;
}

/// Microseconds of one call, the least of some rounds.
double Microseconds(const std::function<void()>& work) {
  constexpr int calls = 200;
  double least = 1e9;
  for (int round = 0; round < kStarts; ++round) {
    QElapsedTimer timer;
    timer.start();
    for (int k = 0; k < calls; ++k) work();
    least = std::min(least, double(timer.nsecsElapsed()) / 1e3 / calls);
  }
  return least;
}

/// Showing the session anew where nothing has changed: all of the desktop, the fields of the main
/// window, the fields of a family's form. Nothing is painted.
bool Refreshes() {
  const QTemporaryDir own;
  const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  Platform platform;
  NamedSession session(library, platform, false,
                       Folders{library->folder, own.path().toStdString()});
  session.Start();
  Desktop desktop(session);
  desktop.window().resize(1920, 1080);
  desktop.window().show();
  desktop.Activated(*TheForms().main);
  QCoreApplication::processEvents();
  const auto print = [](const char* what, double time) {
    std::printf("%-50s least  %6.1f us\n", what, time);
  };
  print("refresh of the desktop", Microseconds([&] { desktop.Refresh(); }));
  FormBinder& fields = desktop.window().binder();
  print("refresh of the main window's fields", Microseconds([&] { fields.Refresh(); }));
  const Form* form = FindForm(FindFamily(53)->form);
  if (form == nullptr) return false;
  desktop.Act([&] { session.Menu(FindFamily(53)->menuControl); });
  FormWindow* window = desktop.WindowOf(*form);
  if (window == nullptr || !window->isVisible()) return false;
  QCoreApplication::processEvents();
  FormBinder& family = window->binder();
  print("refresh of the fields of a family's form", Microseconds([&] { family.Refresh(); }));
  return true;
}

/// From the start of the program until it ends after its first picture.
bool StartToPicture() {
  std::vector<double> times;
  for (int k = 0; k < kStarts; ++k) {
    QElapsedTimer timer;
    timer.start();
    QProcess program;
    program.setStandardErrorFile(QProcess::nullDevice());
    program.start(QStringLiteral(KORVANE_PROGRAM),
                  {QStringLiteral("--until-painted"), QStringLiteral("--data"),
                   QStringLiteral(KORVANE_DATA_FOLDER)});
    if (!program.waitForFinished() || program.exitCode() != 0) return false;
    times.push_back(Milliseconds(timer));
  }
  Print("start of the program to the first picture", times);
  return true;
}

}  // namespace
}  // namespace korvane

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  korvane::ApplyTheme(korvane::Theme::Light);
  return korvane::ReturnToPicture() && korvane::Refreshes() && korvane::StartToPicture() ? 0 : 1;
}
