// SPDX-License-Identifier: GPL-3.0-or-later
// The print commands through the dialog of the platform, into PDF files that are read back.
#include <QApplication>
#include <QCheckBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinterInfo>
#include <QProcess>
#include <QPushButton>
#include <QRegularExpression>
#include <QSpinBox>

#include "core/files.h"
#include "front/desktop/desktop_platform.h"
#include "places.h"
#include "tests/desktop/desktop_fixture.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

const QString kData = QStringLiteral(KORVANE_SOURCE_DIR "/data");

QString OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  if (!process.waitForFinished()) return {};
  return QString::fromUtf8(process.readAllStandardOutput());
}

/// The lines of a PDF without the blanks that only place words, the clock of the print left out.
QStringList LinesOf(const QString& pdf) {
  static const QRegularExpression kClock(QStringLiteral("\\d{1,2}:\\d{2}"));
  QStringList lines;
  const QString text = OutputOf("pdftotext", {"-layout", pdf, "-"});
  for (QString line : text.split(QRegularExpression(QStringLiteral("[\\n\\f]")))) {
    line = line.simplified().remove(kClock);
    if (!line.isEmpty()) lines << line;
  }
  return lines;
}

int PagesOf(const QString& pdf) {
  static const QRegularExpression kPages(QStringLiteral("Pages:\\s*(\\d+)"));
  return kPages.match(OutputOf("pdfinfo", {pdf})).captured(1).toInt();
}

/// The program as it runs for a person, with a printer that writes files.
class PrintTest : public testing::Test {
protected:
  PrintTest()
      : library_(SourceLibrary()),
        session_(library_, platform_, false,
                 Folders{library_->folder, folder_.path().toStdString()}) {
    session_.Start();
    desktop_ = std::make_unique<Desktop>(session_);
    platform_.SetWindow(&desktop_->window());
    platform_.SetSession(session_);
    desktop_->window().show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&desktop_->window()));
    desktop_->OpenFile(project_);
  }

  void SetUp() override {
    // The dialog would begin with a real printer, and paper would come out of it.
    if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP();
  }

  /// Runs a command and answers its dialog; whether one came up.
  bool Print(const char* command, const QString& file, int copies, bool accept) {
    bool asked = false;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      asked = true;
      answer.stop();
      auto* name = dialog->findChild<QLineEdit*>("filename");
      auto* count = dialog->findChild<QSpinBox*>("copies");
      if (name != nullptr) proposed_ = name->text();
      inDialog_(*dialog);
      if (name != nullptr) name->setText(file);
      if (count != nullptr) count->setValue(copies);
      EXPECT_TRUE(name != nullptr && count != nullptr);
      auto* checker = dialog->findChild<QCheckBox*>("withchecker");
      ASSERT_NE(checker, nullptr);
      checker->setChecked(withChecker_);
      QObject::connect(dialog, &QDialog::accepted, [&] { lastMoment_(); });
      if (accept) {
        dialog->accept();
      } else {
        dialog->reject();
      }
    });
    answer.start(20);
    desktop_->window().ActionOf(*FindControl(*TheForms().main, command))->trigger();
    QCoreApplication::processEvents();
    return asked;
  }
  QString Path(const char* name) const { return folder_.filePath(QString::fromUtf8(name)); }

  QString project_ = QStringLiteral(KORVANE_SOURCE_DIR "/tests/design/projects/f001.kvn");
  bool withChecker_ = false;
  QString proposed_;  ///< the name of the file that the dialog begins with
  std::function<void(QPrintDialog&)> inDialog_ = [](QPrintDialog&) {};
  std::function<void()> lastMoment_ = [] {};  ///< runs when the dialog is accepted
  QTemporaryDir folder_;
  DesktopPlatform platform_;
  std::shared_ptr<const Library> library_;
  NamedSession session_;
  std::unique_ptr<Desktop> desktop_;
};

TEST_F(PrintTest, PaperSaysWhatTheConsoleReports) {
  struct Kind {
    const char* command;
    const char* report;
  };
  for (const Kind& kind : {Kind{"mnuprint0", "section"}, Kind{"mnuprint1", "control"},
                           Kind{"mnuprint00", "section"}, Kind{"mnuprint11", "control"}}) {
    const QString paper = Path("paper.pdf");
    QFile::remove(paper);
    ASSERT_TRUE(Print(kind.command, paper, 1, true)) << kind.command;
    const QString report = Path("report.pdf");
    OutputOf(KORVANE_CLI,
             {"report", project_, "--data", kData, "--kind", kind.report, "-o", report});
    const QStringList lines = LinesOf(paper);
    EXPECT_GT(lines.size(), 20) << kind.command;
    EXPECT_EQ(lines.join('\n').toStdString(), LinesOf(report).join('\n').toStdString());
    EXPECT_EQ(PagesOf(paper), 1);
  }
}

TEST_F(PrintTest, PaperIsNamedAfterTheProjectBesideIt) {
  const QString folder = QFileInfo(project_).absolutePath();
  ASSERT_TRUE(Print("mnuprint0", Path("a.pdf"), 1, false));
  EXPECT_EQ(proposed_, folder + "/f001-section.pdf");
  ASSERT_TRUE(Print("mnuprint1", Path("a.pdf"), 1, false));
  EXPECT_EQ(proposed_, folder + "/f001-control.pdf");
}

TEST_F(PrintTest, ThePreviewShowsThePages) {
  bool seen = false;
  int pages = 0;
  inDialog_ = [&](QPrintDialog& dialog) {
    auto* button = dialog.findChild<QPushButton*>("preview");
    ASSERT_NE(button, nullptr);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
      auto* preview = qobject_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
      if (preview == nullptr) return;
      seen = true;
      pages = preview->findChild<QPrintPreviewWidget*>()->pageCount();
      preview->reject();
    });
    look.start(20);
    dialog.findChild<QCheckBox*>("withchecker")->setChecked(true);
    button->click();
  };
  ASSERT_TRUE(Print("mnuprint1", Path("a.pdf"), 1, false));
  EXPECT_TRUE(seen);
  EXPECT_EQ(pages, 2);
}

TEST_F(PrintTest, DialogsBeginBesideTheProjectWithItsName) {
  const auto lookAt = [&](const char* command) {
    std::pair<QString, QString> found;
    QTimer answer;
    QObject::connect(&answer, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr) return;
      const QStringList files = dialog->selectedFiles();
      found = {dialog->directory().absolutePath(), files.value(0)};
      dialog->reject();
    });
    answer.start(20);
    desktop_->window().ActionOf(*FindControl(*TheForms().main, command))->trigger();
    return found;
  };
  const QString folder = QFileInfo(project_).absolutePath();
  EXPECT_EQ(lookAt("mnuopen").first, folder);
  const auto [where, name] = lookAt("mnusaveas");
  EXPECT_EQ(where, folder);
  EXPECT_EQ(QFileInfo(name).fileName(), "f001.kvn");
}

TEST_F(PrintTest, TheBoxAddsTheCheckersSheet) {
  withChecker_ = true;
  ASSERT_TRUE(Print("mnuprint1", Path("checked.pdf"), 2, true));
  EXPECT_EQ(PagesOf(Path("checked.pdf")), 4);
  const QString text = LinesOf(Path("checked.pdf")).join('\n');
  EXPECT_EQ(text.count("Member and supports"), 2);
  withChecker_ = false;
  ASSERT_TRUE(Print("mnuprint1", Path("plain.pdf"), 1, true));
  EXPECT_EQ(PagesOf(Path("plain.pdf")), 1);
}

/// A PDF without the second that it was made in.
std::string Timeless(const QString& path) {
  std::string bytes = ReadWholeFile(path.toStdString()).value_or("");
  const auto at = bytes.find("/CreationDate");
  return at == std::string::npos ? "" : bytes.erase(at, bytes.find(')', at) - at);
}

TEST_F(PrintTest, DesktopAndConsoleMakeTheSamePdf) {
  for (int attempt = 0; attempt < 3; ++attempt) {
    ASSERT_TRUE(Print("mnuprint1", Path("desktop.pdf"), 1, true));
    OutputOf(KORVANE_CLI,
             {"report", project_, "--data", kData, "--kind", "control", "-o", Path("console.pdf")});
    // Between two clocks of one minute nothing differs.
    if (Timeless(Path("desktop.pdf")) == Timeless(Path("console.pdf"))) break;
  }
  EXPECT_FALSE(Timeless(Path("desktop.pdf")).empty());
  EXPECT_EQ(Timeless(Path("desktop.pdf")) == Timeless(Path("console.pdf")), true);
}

TEST_F(PrintTest, EveryCopyIsAPage) {
  ASSERT_TRUE(Print("mnuprint1", Path("copies.pdf"), 3, true));
  EXPECT_EQ(PagesOf(Path("copies.pdf")), 3);
  const QStringList lines = LinesOf(Path("copies.pdf"));
  ASSERT_EQ(lines.size() % 3, 0);
  const auto each = lines.size() / 3;
  EXPECT_GT(each, 20);
  EXPECT_EQ(lines.mid(0, each), lines.mid(each, each));
  EXPECT_EQ(lines.mid(0, each), lines.mid(2 * each));
}

TEST_F(PrintTest, FailingPrinterIsTold) {
  ASSERT_TRUE(QDir(folder_.path()).mkdir("gone"));
  // The folder goes between the dialog and the page.
  lastMoment_ = [this] { QDir(folder_.path()).rmdir("gone"); };
  QString told;
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [&] {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box == nullptr) return;
    told = box->text();
    box->accept();
  });
  answer.start(20);
  ASSERT_TRUE(Print("mnuprint1", Path("gone/page.pdf"), 1, true));
  EXPECT_TRUE(QTest::qWaitFor([&] { return !platform_.HasMessages(); }, 3000));
  EXPECT_EQ(told, "The page could not be written to\n" + Path("gone/page.pdf") +
                      "\nThe folder doesn't exist.");
}

TEST_F(PrintTest, CancelSaysNothingAndWritesNothing) {
  const QStringList before = QDir(folder_.path()).entryList(QDir::Files);
  const int calculations = session_.Calculations();
  ASSERT_TRUE(Print("mnuprint1", Path("cancelled.pdf"), 1, false));
  EXPECT_FALSE(platform_.HasMessages());
  EXPECT_EQ(QDir(folder_.path()).entryList(QDir::Files), before);
  EXPECT_EQ(session_.Calculations(), calculations);
  EXPECT_TRUE(desktop_->window().isVisible());
}

}  // namespace
}  // namespace korvane
