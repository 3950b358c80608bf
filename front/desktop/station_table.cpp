// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/station_table.h"

#include <QApplication>
#include <QClipboard>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include "front/copied_tables.h"
#include "front/desktop/theme.h"
#include "front/session.h"

namespace korvane {

StationTableWindow::StationTableWindow(const Session& session, QWidget* parent)
    : QDialog(parent), session_(session), table_(new QTableWidget(this)) {
  setObjectName(QStringLiteral("stations"));
  setWindowTitle(tr("Stations"));
  setAttribute(Qt::WA_DeleteOnClose);
  table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setAccessibleName(tr("Forces and deflections at the 51 stations"));
  table_->verticalHeader()->hide();
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
  auto* copy = buttons->addButton(tr("Copy table"), QDialogButtonBox::ActionRole);
  connect(copy, &QPushButton::clicked, this, &StationTableWindow::Copy);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  table_->installEventFilter(this);
  auto* all = new QVBoxLayout(this);
  all->addWidget(table_);
  all->addWidget(buttons);
  Refresh();
  int wide = Ems(this, 4);
  for (int k = 0; k < table_->columnCount(); ++k) wide += table_->columnWidth(k);
  resize(wide, Ems(this, 34));
}

bool StationTableWindow::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
    // The list would copy the marked cell alone.
    Copy();
    return true;
  }
  return QDialog::eventFilter(watched, event);
}

void StationTableWindow::Copy() const {
  QApplication::clipboard()->setText(QString::fromStdString(StationTable(session_)));
}

void StationTableWindow::Refresh() {
  const auto rows = StationRows(session_);
  table_->setColumnCount(static_cast<int>(rows.front().size()));
  table_->setRowCount(static_cast<int>(rows.size()) - 1);
  QStringList heads;
  for (const std::string& head : rows.front()) heads << QString::fromStdString(head);
  table_->setHorizontalHeaderLabels(heads);
  for (int row = 0; row < table_->rowCount(); ++row) {
    const auto& cells = rows[static_cast<std::size_t>(row) + 1];
    for (int k = 0; k < table_->columnCount(); ++k) {
      QTableWidgetItem* item = table_->item(row, k);
      if (item == nullptr) {
        item = new QTableWidgetItem;
        item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
        table_->setItem(row, k, item);
      }
      item->setText(QString::fromStdString(cells[static_cast<std::size_t>(k)]));
    }
  }
  // What doesn't hold is pale, and the title says why.
  const QString why = QString::fromStdString(session_.NotCalculated());
  table_->setEnabled(why.isEmpty());
  setWindowTitle(why.isEmpty() ? tr("Stations") : tr("Stations: %1").arg(why));
}

void StationTableWindow::Mark(int station) {
  table_->selectRow(station);
}

}  // namespace korvane
