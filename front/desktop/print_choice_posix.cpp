// SPDX-License-Identifier: GPL-3.0-or-later
#include <QCheckBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QVBoxLayout>

#include "front/desktop/print_choice.h"

namespace korvane {

namespace {

/// A tab of the print dialog for what this program prints.
class SheetsTab : public QWidget {
public:
  explicit SheetsTab(bool withChecker) : box_(new QCheckBox(tr("with checker's sheet"), this)) {
    setWindowTitle(tr("Sheets"));
    box_->setObjectName(QStringLiteral("withchecker"));
    box_->setChecked(withChecker);
    preview_ = new QPushButton(tr("Preview..."), this);
    preview_->setObjectName(QStringLiteral("preview"));
    preview_->setAutoDefault(false);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(box_);
    layout->addWidget(preview_, 0, Qt::AlignLeft);
    layout->addStretch();
  }
  bool WithChecker() const { return box_->isChecked(); }
  QPushButton* Preview() { return preview_; }

private:
  QPushButton* preview_;
  QCheckBox* box_;
};

}  // namespace

bool AskForPrinter(QPrinter& printer, bool& withChecker, const std::function<void(bool)>& preview,
                   QWidget* owner) {
  QPrintDialog dialog(&printer, owner);
  // The dialog takes the tab for its own.
  auto* sheets = new SheetsTab(withChecker);
  dialog.setOptionTabs({sheets});
  QObject::connect(sheets->Preview(), &QPushButton::clicked, &dialog,
                   [&preview, sheets] { preview(sheets->WithChecker()); });
  if (dialog.exec() != QDialog::Accepted) return false;
  withChecker = sheets->WithChecker();
  return true;
}

}  // namespace korvane
