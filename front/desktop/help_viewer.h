// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the help book.
#pragma once

#include <QTextBrowser>
#include <QWidget>

#include "front/desktop/help_book.h"

class QLineEdit;
class QListWidget;
class QSplitter;
class QStackedWidget;
class QTreeWidget;

namespace korvane {

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

}  // namespace korvane
