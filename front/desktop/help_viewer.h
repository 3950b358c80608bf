// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the help book, and the desk that opens it for commands and for F1.
#pragma once

#include <QTextBrowser>
#include <QWidget>
#include <memory>

#include "front/desktop/help_book.h"

class QLineEdit;
class QListWidget;
class QSplitter;
class QStackedWidget;
class QTreeWidget;

namespace korvane {

class MainWindow;

/// One page of the book. Drawings come as sharp as the screen is.
class HelpPageView : public QTextBrowser {
  Q_OBJECT

public:
  using QTextBrowser::QTextBrowser;
  QVariant loadResource(int type, const QUrl& name) override;
};

/// Contents or hits at the left, the page at the right. It stands beside the other windows.
class HelpViewer : public QWidget {
  Q_OBJECT

public:
  explicit HelpViewer(const HelpBook& book);
  /// Shows a page, "loads.html" or "loads.html#form-loading", and comes to the front.
  void Open(const QString& place);
  /// The search field takes the focus.
  void FocusSearch();

protected:
  void closeEvent(QCloseEvent* event) override;

private:
  QWidget* Side();
  QWidget* Reader();
  void FillContents();
  void Search();
  void OpenHit(int row);
  void ShowPage(const QString& place);
  void MarkWords();
  void FollowPage(const QUrl& url);

  const HelpBook& book_;
  QList<HelpHit> hits_;
  QSplitter* split_ = nullptr;
  QLineEdit* search_ = nullptr;
  QStackedWidget* lists_ = nullptr;
  QTreeWidget* contents_ = nullptr;
  QListWidget* results_ = nullptr;
  HelpPageView* page_ = nullptr;
};

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
