// SPDX-License-Identifier: GPL-3.0-or-later
// A pane with a drawing of a study, which can be saved, printed and copied as well.
#pragma once

#include <functional>

#include "core/files.h"
#include "front/desktop/panes.h"

class QPrinter;

namespace korvane {

/// What is drawn: into a place in page units, with letters of a size.
using ChartDrawing = std::function<void(DrawingTarget& target, const Box& place, double letters)>;

class ChartPane : public Pane {
  Q_OBJECT

public:
  ChartPane(const Session& session, ChartDrawing drawing, const QString& title,
            QWidget* parent = nullptr);

  /// Writes the drawing as SVG, PDF or PNG, by the ending of the path.
  WriteResult Save(const QString& path) const;
  void Print(QPrinter& printer) const;
  /// Into the clipboard: as a picture, and as SVG.
  void Copy() const;
  /// Asks for a file or a printer first.
  void AskSave();
  void AskPrint();
  /// Where the drawing stands in the pane, and its letters.
  Box Place() const;
  double Letters() const;

signals:
  /// The pointer stands at x, pixels; below 0 when it has left.
  void Pointed(double x);

protected:
  void Draw(QPainter& painter) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void leaveEvent(QEvent* event) override;

private:
  std::string Svg() const;
  std::string Painted(bool pdf, std::string& bytes) const;
  ChartDrawing drawing_;
  QString title_;
};

}  // namespace korvane
