// SPDX-License-Identifier: GPL-3.0-or-later
// Keeps the project on disk while the program runs, and offers it again after an unclean end.
#pragma once

#include <QLockFile>
#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <memory>
#include <string>

#include "front/failure_report.h"
#include "front/kept_project.h"

class QWidget;

namespace korvane {

class Desktop;

class Recovery : public QObject {
  Q_OBJECT

public:
  /// folder: of the kept projects of all running programs; made when it is missing.
  Recovery(Desktop& desktop, const QString& folder);
  /// The program ends cleanly: nothing is kept, unless a failure was reported.
  ~Recovery() override;

  /// Offers the project that a program left behind which is no longer running, the latest one.
  /// Returns whether it was taken up.
  bool Offer();
  /// Takes up a kept project; the file is removed then. False where it can't be read.
  bool TakeUp(const QString& path);
  /// Writes the project as it stands, where that is another than what is kept; the disk is not
  /// waited for.
  void Keep();
  /// Waits for the disk. Returns whether the project is kept.
  bool Settled();
  const QString& Path() const { return path_; }

signals:
  /// The program is to be started again with these arguments.
  void StartAgain(const QStringList& arguments);

private:
  void Report(const FailureReport& report);
  QStringList LeftBehind() const;
  void Remove();

  Desktop& desktop_;
  QString folder_, path_;
  std::unique_ptr<QLockFile> lock_;
  QTimer timer_;
  QThreadPool disk_;    ///< one file at a time, so that no key waits for it
  std::string kept_;    ///< what stands in the file
  bool leave_ = false;  ///< the file outlives the program
};

}  // namespace korvane
