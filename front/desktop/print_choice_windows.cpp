// SPDX-License-Identifier: GPL-3.0-or-later
// The system's dialog knows neither files nor sheets: a question before it does.
#include <QCheckBox>
#include <QCoreApplication>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

#include "front/desktop/print_choice.h"

namespace korvane {

bool AskForPrinter(QPrinter& printer, bool& withChecker, const std::function<void(bool)>& preview,
                   QWidget* owner) {
  const auto tr = [](const char* text) {
    return QCoreApplication::translate("korvane::Print", text);
  };
  QMessageBox box(QMessageBox::Question, tr("Print"),
                  tr("Print on a printer, or write a PDF file?"), QMessageBox::Cancel, owner);
  QPushButton* file = box.addButton(tr("PDF file..."), QMessageBox::AcceptRole);
  QPushButton* paper = box.addButton(tr("Printer..."), QMessageBox::AcceptRole);
  QPushButton* look = box.addButton(tr("Preview..."), QMessageBox::ActionRole);
  look->setObjectName(QStringLiteral("preview"));
  box.setDefaultButton(file);
  auto* checker = new QCheckBox(tr("with checker's sheet"));
  checker->setObjectName(QStringLiteral("withchecker"));
  checker->setChecked(withChecker);
  box.setCheckBox(checker);
  do {
    box.exec();
    if (box.clickedButton() == look) preview(checker->isChecked());
  } while (box.clickedButton() == look);
  if (box.clickedButton() == paper) {
    if (QPrintDialog(&printer, owner).exec() != QDialog::Accepted) return false;
  } else if (box.clickedButton() == file) {
    QFileDialog dialog(owner, tr("Write a PDF file"), printer.outputFileName(),
                       QStringLiteral("PDF (*.pdf)"));
    dialog.setDefaultSuffix(QStringLiteral("pdf"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return false;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(dialog.selectedFiles().first());
  } else {
    return false;
  }
  withChecker = checker->isChecked();
  return true;
}

}  // namespace korvane
