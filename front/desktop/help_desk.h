// SPDX-License-Identifier: GPL-3.0-or-later
// The desk that opens the help book, for the commands of the Help menu and for F1.
#pragma once

#include <QObject>
#include <memory>

#include "front/desktop/help_book.h"

namespace korvane {

class HelpViewer;
class MainWindow;

/// Opens the book: at its start for the commands of the Help menu, and with F1 at the page of
/// the form that is in front.
class HelpDesk : public QObject {
  Q_OBJECT

public:
  HelpDesk(MainWindow& window, const QString& folder);
  ~HelpDesk() override;
  /// Null until the book was opened.
  HelpViewer* viewer() { return viewer_.get(); }

public slots:
  /// The platform was asked for a help file; the book takes its place whatever its name is.
  void OpenFile(const QString& file);
  void OpenAtForm();

private:
  void Open(const QString& place);
  QString FormInFront() const;

  MainWindow& window_;
  HelpBook book_;
  std::unique_ptr<HelpViewer> viewer_;
  bool wantsSearch_ = false;
};

}  // namespace korvane
