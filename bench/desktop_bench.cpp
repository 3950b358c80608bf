// SPDX-License-Identifier: GPL-3.0-or-later
// Times at the windows, on no display: from a key to the new picture, from a start to the first.
#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <memory>
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

/// A desktop with a loaded beam column.
struct Bench {
  QTemporaryDir own;
  std::shared_ptr<const Library> library = ReadLibrary(KORVANE_DATA_FOLDER);
  Platform platform;
  NamedSession session{library, platform, false,
                       Folders{library->folder, own.path().toStdString()}};
  std::unique_ptr<Desktop> desktop;

  Bench() {
    session.Start();
    session.st().q1 = 10;
    session.st().q2 = 4;
    session.st().q2_yz = 0;
    session.st().NP = 100;
    desktop = std::make_unique<Desktop>(session);
    Window().resize(1920, 1080);
    Window().show();
    QCoreApplication::processEvents();
    desktop->Activated(*TheForms().main);
  }
  MainWindow& Window() { return desktop->window(); }
  /// Opens a window of a study by its button.
  QWidget* Open(const QString& name) {
    Window().findChild<QAbstractButton*>(QStringLiteral("open_") + name)->click();
    QCoreApplication::processEvents();
    return Window().findChild<QWidget*>(name);
  }
};

/// Types texts into a field, each as one key's work, and takes the times until all is painted.
/// False when nothing was painted.
template <class TextOf, class Key>
bool KeyToPicture(const char* what, QLineEdit& field, const TextOf& textOf, const Key& key) {
  PaintCount paints;
  qApp->installEventFilter(&paints);
  std::vector<double> times;
  bool painted = true;
  for (int k = 0; k < kRepeats; ++k) {
    field.setFocus();
    const int before = paints.count;
    times.push_back(key(field, textOf(k)));
    painted = painted && paints.count > before;
  }
  qApp->removeEventFilter(&paints);
  Print(what, times);
  return painted;
}

QString LengthOf(int k) {
  return QString::number(4 + 0.01 * k, 'f', 3);
}

/// Return behind a typed text.
double Return(QLineEdit& field, const QString& text) {
  field.setText(text);
  emit field.textEdited(text);
  QCoreApplication::processEvents();
  QElapsedTimer timer;
  timer.start();
  QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
  QCoreApplication::sendEvent(&field, &press);
  QCoreApplication::processEvents();
  return Milliseconds(timer);
}

/// From Return in the length field to the repainted windows: the main one alone, with the window
/// of all sections, with that of the curves.
bool ReturnToPicture() {
  Bench bench;
  auto* length = bench.Window().findChild<QLineEdit*>(QStringLiteral("il"));
  std::printf("window %d x %d\n", bench.Window().width(), bench.Window().height());
  bool good =
      KeyToPicture("Return in the length field to the new picture", *length, LengthOf, Return);
  good = good && std::abs(double(bench.session.st().L) - LengthOf(kRepeats - 1).toDouble()) < 1e-4;
  QWidget* sections = bench.Open(QStringLiteral("sections"));
  good = good &&
         KeyToPicture("the same with the window of all sections open", *length, LengthOf, Return);
  sections->close();
  bench.Open(QStringLiteral("whatif"));
  return good && KeyToPicture("the same with the window of curves open", *length, LengthOf, Return);
}

/// From a key in the range of the curves to the repainted ones: 200 values, all checks.
bool KeyToCurves() {
  Bench bench;
  QWidget* window = bench.Open(QStringLiteral("whatif"));
  auto* to = window->findChild<QLineEdit*>(QStringLiteral("to"));
  const auto key = [](QLineEdit& field, const QString& text) {
    QElapsedTimer timer;
    timer.start();
    field.setText(text);
    emit field.textEdited(text);
    QCoreApplication::processEvents();
    return Milliseconds(timer);
  };
  return KeyToPicture("a key in the range to the new curves", *to, LengthOf, key);
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
  return korvane::ReturnToPicture() && korvane::KeyToCurves() && korvane::Refreshes() &&
                 korvane::StartToPicture()
             ? 0
             : 1;
}
