// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/recovery.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QMessageBox>
#include <QPushButton>
#include <QUuid>

#include "core/files.h"
#include "front/desktop/desktop.h"
#include "front/desktop/main_window.h"

namespace korvane {

namespace {

/// A change reaches the disk after so many milliseconds.
constexpr int kDelay = 1000;

std::string Encoded(const QString& path) {
  return QFile::encodeName(path).toStdString();
}

/// Held by a running program for as long as it keeps this file.
std::unique_ptr<QLockFile> LockOf(const QString& path) {
  auto lock = std::make_unique<QLockFile>(path + QStringLiteral(".lock"));
  // Nobody holds it who isn't running.
  lock->setStaleLockTime(0);
  return lock;
}

std::optional<KeptProject> Read(const QString& path, const ProjectState& fresh) {
  const auto text = ReadWholeFile(Encoded(path));
  return text ? ReadKept(*text, fresh) : std::nullopt;
}

}  // namespace

Recovery::Recovery(Desktop& desktop, const QString& folder) : desktop_(desktop), folder_(folder) {
  QDir().mkpath(folder_);
  path_ = QDir(folder_).filePath(QUuid::createUuid().toString(QUuid::WithoutBraces) +
                                 QStringLiteral(".kvn"));
  disk_.setMaxThreadCount(1);
  timer_.setSingleShot(true);
  timer_.setInterval(kDelay);
  connect(&timer_, &QTimer::timeout, this, [this] {
    // A search lets the clock run on; its members are not the person's.
    if (desktop_.Busy()) {
      timer_.start();
    } else {
      Keep();
    }
  });
  connect(&desktop_, &Desktop::Refreshed, this, [this] {
    if (!timer_.isActive()) timer_.start();
  });
  connect(&desktop_, &Desktop::Failed, this, &Recovery::Report);
}

Recovery::~Recovery() {
  disk_.waitForDone();
  if (!leave_) Remove();
}

void Recovery::Remove() {
  disk_.waitForDone();
  if (!kept_.empty()) QFile::remove(path_);
  kept_.clear();
}

bool Recovery::Settled() {
  disk_.waitForDone();
  return !kept_.empty() && QFile::exists(path_);
}

void Recovery::Keep() {
  const auto project = ToKeep(desktop_.session());
  if (!project) {
    Remove();
    return;
  }
  std::string text = KeptText(*project);
  if (text == kept_) return;
  if (lock_ == nullptr) {
    lock_ = LockOf(path_);
    lock_->tryLock(0);
  }
  kept_ = std::move(text);
  disk_.start([path = Encoded(path_), bytes = kept_] { WriteFile(path, bytes); });
}

QStringList Recovery::LeftBehind() const {
  QStringList paths;
  const auto files =
      QDir(folder_).entryInfoList({QStringLiteral("*.kvn")}, QDir::Files, QDir::Time);
  for (const QFileInfo& file : files) {
    const QString path = file.absoluteFilePath();
    if (path == path_) continue;
    const auto lock = LockOf(path);
    if (lock->tryLock(0)) paths << path;
  }
  return paths;
}

bool Recovery::Offer() {
  for (const QString& path : LeftBehind()) {
    const auto kept = Read(path, desktop_.session().st());
    if (!kept) continue;
    QMessageBox box(
        QMessageBox::Question, QStringLiteral("KORVANE-NS3472"),
        tr("The program did not end properly. It has kept\n%1\nas it stood at %2.")
            .arg(QString::fromStdString(KeptWords(*kept)),
                 QLocale().toString(QFileInfo(path).lastModified(), QLocale::ShortFormat)));
    QPushButton* again = box.addButton(tr("Start again with it"), QMessageBox::AcceptRole);
    QPushButton* later = box.addButton(tr("Later"), QMessageBox::RejectRole);
    QPushButton* forget = box.addButton(tr("Forget it"), QMessageBox::DestructiveRole);
    box.setDefaultButton(again);
    box.setEscapeButton(later);
    box.exec();
    if (box.clickedButton() == again) return TakeUp(path);
    if (box.clickedButton() == forget) QFile::remove(path);
    return false;
  }
  return false;
}

bool Recovery::TakeUp(const QString& path) {
  Session& s = desktop_.session();
  const auto kept = Read(path, s.st());
  if (!kept) return false;
  desktop_.Act([&] { s.files().TakeUp(kept->st, kept->file, kept->modified); });
  Keep();
  if (Settled()) QFile::remove(path);
  return true;
}

/// The end, with the way to go on.
void Recovery::Report(const FailureReport& report) {
  Keep();
  leave_ = Settled();
  const auto kept = ToKeep(desktop_.session());
  QString text = QString::fromStdString(report.text);
  if (kept && leave_) {
    text += tr("\nThe last state that could be calculated is kept:\n%1\n"
               "The next start offers it, too.")
                .arg(QString::fromStdString(KeptWords(*kept)));
  }
  QMessageBox box(QMessageBox::Critical, QStringLiteral("KORVANE-NS3472"), text,
                  QMessageBox::NoButton, &desktop_.window());
  QPushButton* again = nullptr;
  if (report.ownDefaults) {
    again = box.addButton(tr("Start with the program's defaults"), QMessageBox::AcceptRole);
  } else if (leave_) {
    again = box.addButton(tr("Start again with it"), QMessageBox::AcceptRole);
  }
  QPushButton* end = box.addButton(tr("End"), QMessageBox::RejectRole);
  box.setEscapeButton(end);
  box.setDefaultButton(again != nullptr ? again : end);
  box.exec();
  lock_.reset();
  if (again == nullptr || box.clickedButton() != again) return;
  emit StartAgain(report.ownDefaults ? QStringList{QStringLiteral("--program-defaults")}
                                     : QStringList{QStringLiteral("--recover"), path_});
}

}  // namespace korvane
