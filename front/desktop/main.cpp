// SPDX-License-Identifier: GPL-3.0-or-later
// The desktop program.
#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QIcon>
#include <QLocale>
#include <QMessageBox>
#include <QProcess>
#include <QStandardPaths>
#include <QTimer>
#include <algorithm>
#include <array>
#include <cstdio>

#include "core/program.h"
#include "front/data_folder.h"
#include "front/desktop/desktop.h"
#include "front/desktop/desktop_platform.h"
#include "front/desktop/help_desk.h"
#include "front/desktop/main_window.h"
#include "front/desktop/own_folder.h"
#include "front/desktop/recovery.h"
#include "front/desktop/screenshots.h"
#include "front/desktop/theme.h"
#include "front/named_session.h"
#include "front/system.h"

namespace {

using namespace korvane;

constexpr int kWrongArguments = 2;

/// Words that the window system takes for itself, most with a value behind them.
constexpr std::array kOwnWords{"platform",
                               "platformpluginpath",
                               "platformtheme",
                               "plugin",
                               "qwindowgeometry",
                               "geometry",
                               "qwindowicon",
                               "icon",
                               "qwindowtitle",
                               "title",
                               "session",
                               "display",
                               "style",
                               "stylesheet",
                               "name",
                               "fontengine"};
constexpr std::array kOwnFlags{"reverse", "widgetcount", "sync", "nograb", "dograb"};

QStringList WithoutWordsOfTheWindowSystem(const QStringList& arguments) {
  QStringList rest;
  for (qsizetype i = 0; i < arguments.size(); ++i) {
    const QString& word = arguments[i];
    const QString name = word.startsWith(QLatin1String("--")) ? word.mid(2) : word.mid(1);
    const bool option = word.startsWith(QLatin1Char('-'));
    const auto is = [&](const char* own) { return option && name == QLatin1String(own); };
    if (std::any_of(kOwnFlags.begin(), kOwnFlags.end(), is)) continue;
    if (std::any_of(kOwnWords.begin(), kOwnWords.end(), is)) {
      ++i;
    } else {
      rest << word;
    }
  }
  return rest;
}

/// What is wrong with the arguments, found before a display is asked for.
QString WrongArguments(QCommandLineParser& parser, const QStringList& arguments) {
  if (!parser.parse(WithoutWordsOfTheWindowSystem(arguments))) return parser.errorText();
  const QString theme = parser.value(QStringLiteral("theme"));
  const QStringList themes{QString(), QStringLiteral("light"), QStringLiteral("dark"),
                           QStringLiteral("system")};
  if (themes.contains(theme)) return {};
  return QStringLiteral("--theme is light, dark or system, not ") + theme;
}

Theme ThemeOf(const QString& name) {
  if (name == QLatin1String("light")) return Theme::Light;
  return name == QLatin1String("dark") ? Theme::Dark : Theme::System;
}

/// Ends the program after the window's first picture: how long a start takes.
class FirstPaint : public QObject {
public:
  using QObject::QObject;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    // The children are painted before the queue goes on.
    if (event->type() == QEvent::Paint) QTimer::singleShot(0, qApp, &QCoreApplication::quit);
    return QObject::eventFilter(watched, event);
  }
};

/// The program ends, and another one begins with the same data and colours.
void StartAgain(const QCommandLineParser& parser, QStringList arguments) {
  for (const char* name : {"data", "theme"}) {
    const QString option = QString::fromLatin1(name);
    if (parser.isSet(option)) arguments << QStringLiteral("--") + option << parser.value(option);
  }
  const QString defaults = QStringLiteral("--program-defaults");
  if (parser.isSet(defaults.mid(2)) && !arguments.contains(defaults)) arguments << defaults;
  if (!QProcess::startDetached(QCoreApplication::applicationFilePath(), arguments)) {
    std::fprintf(stderr, "korvane: the program can't be started again\n");
  }
}

int Run(QApplication& app, const QCommandLineParser& parser, const QString& screenshots) {
  const auto library =
      ReadLibrary(FindDataFolder(parser.value(QStringLiteral("data")).toStdString()));
  DesktopPlatform platform;
  const QString own = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
  Folders folders = FoldersOf(library->folder, own);
  folders.ownDefaults = !parser.isSet(QStringLiteral("program-defaults"));
  NamedSession session(library, platform, WritesComma(QLocale::system()), folders);
  session.Start();
  Desktop desktop(session);
  platform.SetWindow(&desktop.window());
  platform.SetSession(session);
  QObject::connect(&platform, &DesktopPlatform::Progressed, &desktop.window(),
                   &MainWindow::ShowProgress);
  HelpDesk help(desktop.window(), FindHelpFolder());
  // The book opens when the command that asked for it is over.
  QObject::connect(&platform, &DesktopPlatform::HelpWanted, &help, &HelpDesk::OpenFile,
                   Qt::QueuedConnection);
  QObject::connect(&desktop, &Desktop::Ended, &app, [&app] {
    app.closeAllWindows();
    app.quit();
  });
  if (!screenshots.isEmpty()) return WriteScreenshots(desktop, session, screenshots) ? 0 : 1;
  Recovery recovery(desktop, QDir(own).filePath(QStringLiteral("kept")));
  QObject::connect(&recovery, &Recovery::StartAgain, &app,
                   [&parser](QStringList arguments) { StartAgain(parser, std::move(arguments)); });
  const bool painted = parser.isSet(QStringLiteral("until-painted"));
  if (painted) desktop.window().installEventFilter(new FirstPaint(&desktop));
  const QString kept = parser.value(QStringLiteral("recover"));
  const bool tookUp = !kept.isEmpty() ? recovery.TakeUp(kept) : !painted && recovery.Offer();
  desktop.window().show();
  if (const QStringList files = parser.positionalArguments(); !files.isEmpty() && !tookUp) {
    desktop.OpenFile(QFileInfo(files.first()).absoluteFilePath());
  }
  // A window system that activates nothing must not leave the first calculation out.
  QTimer::singleShot(0, &desktop, [&desktop] {
    if (desktop.session().Calculations() == 0) desktop.Activated(*TheForms().main);
  });
  return QApplication::exec();
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setApplicationName(QString::fromLatin1(kSettingsName));
  // No display name: it would be appended to the title of each window.
  QCoreApplication::setApplicationVersion(QStringLiteral(KORVANE_VERSION));
  QGuiApplication::setDesktopFileName(QStringLiteral("korvane"));
  QCommandLineParser parser;
  const QCommandLineOption help = parser.addHelpOption();
  const QCommandLineOption version = parser.addVersionOption();
  parser.addPositionalArgument(QStringLiteral("FILE.kvn"), QApplication::tr("Project to open"),
                               QStringLiteral("[FILE.kvn]"));
  QCommandLineOption shots(QStringLiteral("screenshots"), QString(), QStringLiteral("OUT"));
  shots.setFlags(QCommandLineOption::HiddenFromHelp);
  QCommandLineOption painted(QStringLiteral("until-painted"));
  painted.setFlags(QCommandLineOption::HiddenFromHelp);
  QCommandLineOption recover(QStringLiteral("recover"), QString(), QStringLiteral("KEPT"));
  recover.setFlags(QCommandLineOption::HiddenFromHelp);
  parser.addOptions(
      {{QStringLiteral("data"), QApplication::tr("Data folder"), QStringLiteral("FOLDER")},
       {QStringLiteral("theme"), QApplication::tr("light, dark or system"),
        QStringLiteral("THEME")},
       {QStringLiteral("program-defaults"),
        QApplication::tr("Start with the program's default values, not with your own")},
       shots,
       painted,
       recover});
  QStringList arguments;
  for (const std::string& word : CommandWords(argc, argv))
    arguments << QString::fromStdString(word);
  if (parser.parse(arguments) && (parser.isSet(help) || parser.isSet(version))) {
    // What is only printed needs no display.
    QCoreApplication printer(argc, argv);
    parser.process(printer);
  }
  if (const QString error = WrongArguments(parser, arguments); !error.isEmpty()) {
    std::fprintf(stderr, "korvane: %s\n", qPrintable(error));
    return kWrongArguments;
  }
  QApplication app(argc, argv);
  parser.process(app);
  QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/korvane.svg")));
  korvane::ApplyTheme(ThemeOf(parser.value(QStringLiteral("theme"))));
  LeaveFailuresToUs();
  try {
    return Run(app, parser, parser.value(shots));
  } catch (const std::exception& error) {
    std::fprintf(stderr, "korvane: %s\n", error.what());
    QMessageBox::critical(nullptr, QString(), QString::fromUtf8(error.what()));
    return 1;
  }
}
