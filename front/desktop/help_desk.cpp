// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/help_desk.h"

#include <QAction>
#include <QApplication>
#include <QMessageBox>

#include "front/desktop/help_viewer.h"
#include "front/desktop/main_window.h"
#include "front/forms/handles.h"

namespace korvane {

HelpDesk::HelpDesk(MainWindow& window, const QString& folder) : window_(window), book_(folder) {
  auto* key = new QAction(this);
  key->setShortcut(QKeySequence(Qt::Key_F1));
  key->setShortcutContext(Qt::ApplicationShortcut);
  connect(key, &QAction::triggered, this, &HelpDesk::OpenAtForm);
  window_.addAction(key);
  QAction* contents = window_.ActionOf(*TheForms().onMain.mnuhelpcont);
  contents->setText(contents->text() + QStringLiteral("\tF1"));
  connect(window_.ActionOf(*TheForms().onMain.mnuhelpsearch), &QAction::triggered, this,
          [this] { wantsSearch_ = true; });
}

HelpDesk::~HelpDesk() = default;

void HelpDesk::OpenFile(const QString&) {
  Open(HelpBook::Start());
  if (viewer_ != nullptr && wantsSearch_) viewer_->FocusSearch();
  wantsSearch_ = false;
}

void HelpDesk::OpenAtForm() {
  const QString place = book_.PlaceOfForm(FormInFront());
  Open(place.isEmpty() ? HelpBook::Start() : place);
}

QString HelpDesk::FormInFront() const {
  const QWidget* front = QApplication::activeWindow();
  const QString name = front == nullptr ? QString() : front->objectName();
  return book_.PlaceOfForm(name).isEmpty() ? window_.objectName() : name;
}

void HelpDesk::Open(const QString& place) {
  if (!book_.Exists()) {
    auto* box = new QMessageBox(
        QMessageBox::Warning, QStringLiteral("KORVANE-NS3472"),
        tr("The help book was not found. It belongs into the folder share/korvane/help beside "
           "the program's own folder; installing the program again puts it there."),
        QMessageBox::Ok, &window_);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
    return;
  }
  if (viewer_ == nullptr) viewer_ = std::make_unique<HelpViewer>(book_);
  viewer_->Open(place);
}

}  // namespace korvane
