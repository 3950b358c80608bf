// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/desktop_platform.h"

#include <QApplication>
#include <QDateTime>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QSettings>
#include <algorithm>

#include "core/files.h"
#include "front/painter/paint_files.h"
#include "front/painter/painter_target.h"

namespace korvane {

namespace {

QSettings Store() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("Korvane_ns"),
                   QStringLiteral("Korvane_ns"));
}

QString RecentKey(const std::string& key) {
  return QStringLiteral("Recent Files/") + QString::fromStdString(key);
}

}  // namespace

DesktopPlatform::DesktopPlatform() = default;

std::string DesktopPlatform::Setting(const std::string& key) {
  return Store().value(RecentKey(key)).toString().toStdString();
}

void DesktopPlatform::SetSetting(const std::string& key, const std::string& value) {
  QSettings store = Store();
  store.setValue(RecentKey(key), QString::fromStdString(value));
}

QWidget* DesktopPlatform::Owner() const {
  // A window manager gives the focus back to the owner: to the form with the field in use.
  QWidget* active = QApplication::activeWindow();
  return active != nullptr ? active : window_.data();
}

std::optional<std::string> DesktopPlatform::AskFile(bool save, const std::string& filter,
                                                    const std::string& extension) {
  QFileDialog dialog(Owner());
  dialog.setNameFilter(QString::fromStdString(filter));
  dialog.setDefaultSuffix(QString::fromStdString(extension));
  dialog.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().first().toStdString();
}

std::optional<std::string> DesktopPlatform::AskOpen(const std::string& filter,
                                                    const std::string& extension) {
  return AskFile(false, filter, extension);
}

std::optional<std::string> DesktopPlatform::AskSave(const std::string& filter,
                                                    const std::string& extension) {
  return AskFile(true, filter, extension);
}

void DesktopPlatform::Message(const std::string& text) {
  waiting_ << QString::fromStdString(text);
  if (waiting_.size() == 1) {
    QMetaObject::invokeMethod(this, &DesktopPlatform::ShowMessages, Qt::QueuedConnection);
  }
}

void DesktopPlatform::ShowMessages() {
  const QPointer<QWidget> owner = Owner();
  while (!waiting_.isEmpty()) {
    QMessageBox box(QMessageBox::Warning, QStringLiteral("KORVANE-NS3472"), waiting_.first(),
                    QMessageBox::Ok, owner);
    box.exec();
    waiting_.removeFirst();
  }
  // Not every window manager gives the focus back by itself.
  if (owner != nullptr) owner->activateWindow();
}

void DesktopPlatform::Beep() {
  QApplication::beep();
}

std::optional<PrintJob> DesktopPlatform::AskPrint() {
  printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setPageSize(QPageSize(QPageSize::A4));
  QPrintDialog dialog(printer_.get(), Owner());
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return PrintJob{printer_->copyCount()};
}

void DesktopPlatform::PrintToFile(const Design& design, Report report, const PrintJob& print) {
  PaintJob job;
  job.width = kPageWidth;
  job.height = kPageHeight;
  job.title = std::string(ReportTitle(report)) + " - " + design.st.iproj + " - " + design.st.iident;
  const DateTime now = Now();
  const auto page = [&](DrawingTarget& target) {
    DrawReport(target, report, design, {now.year, now.month, now.day, now.hour, now.minute},
               print.notice);
  };
  job.pages.assign(static_cast<std::size_t>(std::max(1, print.copies)), page);
  const QString path = printer_->outputFileName();
  std::string bytes;
  std::string failed = PaintIntoMemory(job, bytes);
  if (failed.empty()) failed = WriteFile(QFile::encodeName(path).toStdString(), bytes).why;
  if (!failed.empty()) {
    Message(tr("The page could not be written to\n%1").arg(path).toStdString() + "\n" + failed);
  }
}

void DesktopPlatform::Print(const Design& design, int kind, const PrintJob& job) {
  if (printer_ == nullptr) return;
  const Report report = kind == 0 ? Report::SectionProperty : Report::SectionAndStability;
  if (printer_->outputFormat() == QPrinter::PdfFormat && !printer_->outputFileName().isEmpty()) {
    PrintToFile(design, report, job);
    return;
  }
  // The page brings its own frame and margins, counted from the edge of the paper.
  printer_->setFullPage(true);
  printer_->setPageMargins(QMarginsF(0, 0, 0, 0));
  printer_->setCopyCount(job.copies);
  printer_->setDocName(QString::fromUtf8(ReportTitle(report)));
  QPainter painter;
  if (!painter.begin(printer_.get())) {
    Message(tr("The printer does not take the page").toStdString());
    return;
  }
  const DateTime now = Now();
  // A file and many a printer make no copies themselves.
  const int pages = printer_->supportsMultipleCopies() ? 1 : std::max(1, job.copies);
  for (int n = 0; n < pages; ++n) {
    if (n > 0) printer_->newPage();
    PainterTarget page(painter, kPageWidth, kPageHeight,
                       QRectF(0, 0, printer_->width(), printer_->height()), Palette::Light());
    DrawReport(page, report, design, {now.year, now.month, now.day, now.hour, now.minute},
               job.notice);
  }
}

void DesktopPlatform::OpenHelp(const std::string& file) {
  emit HelpWanted(QString::fromStdString(file));
}

DateTime DesktopPlatform::Now() {
  const QDateTime now = QDateTime::currentDateTime();
  return {now.date().year(), now.date().month(), now.date().day(), now.time().hour(),
          now.time().minute()};
}

void DesktopPlatform::WaitCursor(bool on) {
  if (on == waitCursor_) return;
  waitCursor_ = on;
  if (on) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
    emit Progressed(0, 0);
  }
}

void DesktopPlatform::Progress(int done, int all) {
  emit Progressed(done, all);
}

}  // namespace korvane
