// SPDX-License-Identifier: GPL-3.0-or-later
// The forces and deflections at the 51 stations as a table in a window of its own.
#pragma once

#include <QDialog>

class QTableWidget;

namespace korvane {

class Session;

class StationTableWindow : public QDialog {
  Q_OBJECT

public:
  StationTableWindow(const Session& session, QWidget* parent);
  /// Takes over the values of the session; the row of a station is marked where one is given.
  void Refresh();
  void Mark(int station);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  void Copy() const;
  const Session& session_;
  QTableWidget* table_;
};

}  // namespace korvane
