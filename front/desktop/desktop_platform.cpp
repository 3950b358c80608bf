// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/desktop_platform.h"

#include <QApplication>
#include <QCheckBox>
#include <QDateTime>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QSettings>
#include <QVBoxLayout>
#include <algorithm>

#include "core/files.h"
#include "core/project_file.h"
#include "front/desktop/own_folder.h"
#include "front/painter/paint_files.h"
#include "front/painter/painter_target.h"
#include "front/painter/report_job.h"

namespace korvane {

namespace {

QString RecentKey(const std::string& key) {
  return QStringLiteral("Recent Files/") + QString::fromStdString(key);
}

}  // namespace

bool WritesComma(const QLocale& locale) {
  return locale.decimalPoint() == QLatin1String(",");
}

DesktopPlatform::DesktopPlatform() = default;

std::string DesktopPlatform::Setting(const std::string& key) {
  return UserSettings().value(RecentKey(key)).toString().toStdString();
}

void DesktopPlatform::SetSetting(const std::string& key, const std::string& value) {
  QSettings store = UserSettings();
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

bool DesktopPlatform::AskOverwrite(const std::string& path) {
  QMessageBox box(QMessageBox::Warning, QStringLiteral("KORVANE-NS3472"),
                  tr("%1\nhas changed on disk since it was read. Overwrite it?")
                      .arg(QString::fromStdString(path)),
                  QMessageBox::Cancel, Owner());
  QPushButton* overwrite = box.addButton(tr("Overwrite"), QMessageBox::AcceptRole);
  box.setDefaultButton(QMessageBox::Cancel);
  box.exec();
  return box.clickedButton() == overwrite;
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

namespace {

/// A tab of the print dialog for what this program prints.
class SheetsTab : public QWidget {
public:
  explicit SheetsTab(bool withChecker) : box_(new QCheckBox(tr("with checker's sheet"), this)) {
    setWindowTitle(tr("Sheets"));
    box_->setObjectName(QStringLiteral("withchecker"));
    box_->setChecked(withChecker);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(box_);
    layout->addStretch();
  }
  bool WithChecker() const { return box_->isChecked(); }

private:
  QCheckBox* box_;
};

/// The project that the design is of: the file itself where the design comes from it as it stands
/// on disk, else the text of the state.
AttachedProject ProjectOf(const Design& design) {
  const std::string& path = design.st.CurrentFileName;
  const std::string own = ProjectText(design.st);
  const std::string name = QFileInfo(QString::fromStdString(path)).fileName().toStdString();
  Design read(design.lib);
  StartDesign(read);
  auto bytes = ReadWholeFile(path);
  if (!bytes) return {"project.kvn", own};
  try {
    if (ReadProject(*bytes, read.st) != FileResult::Ok) return {name, own};
    Calculate(read);
    Calculate(read);
  } catch (const ArithmeticFault&) {
  }
  return {name, ProjectText(read.st) == own ? std::move(*bytes) : own};
}

}  // namespace

std::optional<PrintJob> DesktopPlatform::AskPrint() {
  printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
  printer_->setPageSize(QPageSize(QPageSize::A4));
  QPrintDialog dialog(printer_.get(), Owner());
  // The dialog takes the tab for its own.
  auto* sheets = new SheetsTab(withChecker_);
  dialog.setOptionTabs({sheets});
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  withChecker_ = sheets->WithChecker();
  return PrintJob{printer_->copyCount()};
}

void DesktopPlatform::PrintToFile(const Design& design, const std::vector<Report>& sheets,
                                  const PrintJob& print) {
  const DateTime now = Now();
  PaintJob job = ReportJob(design, sheets, {now.year, now.month, now.day, now.hour, now.minute},
                           ProjectOf(design), print.notice);
  const auto pages = job.pages;
  for (int n = 1; n < print.copies; ++n)
    job.pages.insert(job.pages.end(), pages.begin(), pages.end());
  const QString path = printer_->outputFileName();
  std::string bytes;
  std::string failed = PaintIntoMemory(job, bytes);
  if (failed.empty()) failed = WriteFile(path.toStdString(), bytes).why;
  if (!failed.empty()) {
    Message(tr("The page could not be written to\n%1").arg(path).toStdString() + "\n" + failed);
  }
}

void DesktopPlatform::Print(const Design& design, int kind, const PrintJob& job) {
  if (printer_ == nullptr) return;
  std::vector<Report> sheets{kind == 0 ? Report::SectionProperty : Report::SectionAndStability};
  if (withChecker_) sheets.push_back(Report::Checker);
  if (printer_->outputFormat() == QPrinter::PdfFormat && !printer_->outputFileName().isEmpty()) {
    PrintToFile(design, sheets, job);
    return;
  }
  // The page brings its own frame and margins, counted from the edge of the paper.
  printer_->setFullPage(true);
  printer_->setPageMargins(QMarginsF(0, 0, 0, 0));
  printer_->setCopyCount(job.copies);
  printer_->setDocName(QString::fromUtf8(ReportTitle(sheets.front())));
  QPainter painter;
  if (!painter.begin(printer_.get())) {
    Message(tr("The printer does not take the page").toStdString());
    return;
  }
  const DateTime now = Now();
  // A file and many a printer make no copies themselves.
  const int runs = printer_->supportsMultipleCopies() ? 1 : std::max(1, job.copies);
  for (int n = 0; n < runs; ++n) {
    for (const Report report : sheets) {
      if (n > 0 || report != sheets.front()) printer_->newPage();
      PainterTarget page(painter, kPageWidth, kPageHeight,
                         QRectF(0, 0, printer_->width(), printer_->height()), Palette::Light());
      DrawReport(page, report, design, {now.year, now.month, now.day, now.hour, now.minute},
                 job.notice);
    }
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
