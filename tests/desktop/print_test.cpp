// SPDX-License-Identifier: GPL-3.0-or-later
// Printing through the real print dialog into a PDF file: the pages are those of the console
// program's report, as many as copies were asked for, and a cancelled dialog leaves nothing.
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLineEdit>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

#include "front/desktop/desktop.h"
#include "front/desktop/desktop_platform.h"
#include "front/desktop/main_window.h"
#include "tests/desktop/real_desktop.h"

namespace korvane {
namespace {

QString OutputOf(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(60000)) << program.toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

class PrintTest : public RealDesktopTest {
protected:
  /// Prints by a command; the dialog is answered by `answer`.
  void Print(const char* command, const std::function<void(QPrintDialog&)>& answer) {
    bool asked = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
      if (dialog == nullptr || asked) return;
      asked = true;
      answer(*dialog);
    });
    watch.start(20);
    Main().ActionOf(command)->trigger();
    EXPECT_TRUE(asked) << "no print dialog";
  }
  void PrintToFile(const char* command, const QString& path, int copies) {
    Print(command, [&](QPrintDialog& dialog) {
      auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
      auto* count = dialog.findChild<QSpinBox*>(QStringLiteral("copies"));
      ASSERT_NE(name, nullptr);
      ASSERT_NE(count, nullptr);
      name->setText(path);
      count->setValue(copies);
      dialog.accept();
    });
  }
  static QString TextOf(const QString& pdf, int page = 1) {
    const QString number = QString::number(page);
    return OutputOf("pdftotext", {"-layout", "-f", number, "-l", number, pdf, "-"});
  }
  static QImage PictureOf(const QString& pdf) {
    const QString stem = pdf.chopped(4);
    OutputOf("pdftoppm", {"-r", "100", "-gray", "-png", "-singlefile", pdf, stem});
    return QImage(stem + ".png").convertToFormat(QImage::Format_Grayscale8);
  }
  static int PagesOf(const QString& pdf) {
    for (const QString& line : OutputOf("pdfinfo", {pdf}).split('\n')) {
      if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
    }
    return 0;
  }
  void Console(const char* kind, const QString& pdf) const {
    OutputOf(KORVANE_CLI, {"report", Example(), "--data", QString(KORVANE_SOURCE_DIR) + "/data",
                           "--kind", kind, "-o", pdf});
  }
  static QString Example() { return QString(KORVANE_SOURCE_DIR) + "/examples/column-hea200.kvn"; }
  QString In(const char* name) const { return folder_.filePath(name); }
};

/// Share of the pixels that clearly differ.
double Difference(const QImage& a, const QImage& b) {
  if (a.size() != b.size() || a.isNull()) return 1;
  int different = 0;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      different += std::abs(int(a.constScanLine(y)[x]) - int(b.constScanLine(y)[x])) > 96 ? 1 : 0;
    }
  }
  return double(different) / (double(a.width()) * a.height());
}

TEST_F(PrintTest, PrintedPageIsTheConsolesReport) {
  desktop_->OpenFile(Example());
  for (const auto& [command, kind] :
       {std::pair{"mnuprint0", "section"}, std::pair{"mnuprint11", "control"}}) {
    // The frame tells the minute: one of the two console pages has that of the print.
    Console(kind, In("before.pdf"));
    PrintToFile(command, In("printed.pdf"), 1);
    Console(kind, In("after.pdf"));
    ASSERT_TRUE(QFile::exists(In("printed.pdf"))) << kind;
    const QString printed = TextOf(In("printed.pdf"));
    EXPECT_TRUE(printed.contains("HEA")) << kind;
    EXPECT_TRUE(printed == TextOf(In("before.pdf")) || printed == TextOf(In("after.pdf")))
        << kind << "\n"
        << printed.toStdString() << TextOf(In("after.pdf")).toStdString();
    EXPECT_LT(Difference(PictureOf(In("printed.pdf")), PictureOf(In("after.pdf"))), 0.001) << kind;
    EXPECT_TRUE(QFile::remove(In("printed.pdf")));
  }
}

TEST_F(PrintTest, EveryCopyIsAPage) {
  PrintToFile("mnuprint00", In("copies.pdf"), 3);
  EXPECT_EQ(PagesOf(In("copies.pdf")), 3);
  const QString first = TextOf(In("copies.pdf"), 1);
  EXPECT_TRUE(first.contains("Dimensions and weight:"));
  EXPECT_EQ(TextOf(In("copies.pdf"), 3), first);
}

TEST_F(PrintTest, CancelledDialogPrintsNothing) {
  const int calculations = session_.Calculations();
  Print("mnuprint1", [](QPrintDialog& dialog) {
    dialog.findChild<QLineEdit*>(QStringLiteral("filename"))->setText("never.pdf");
    dialog.reject();
  });
  EXPECT_FALSE(platform_.HasMessages());
  EXPECT_FALSE(QFile::exists("never.pdf"));
  EXPECT_EQ(session_.Calculations(), calculations);
  EXPECT_TRUE(Main().isVisible());
}

}  // namespace
}  // namespace korvane
