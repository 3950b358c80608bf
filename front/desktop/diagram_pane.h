// SPDX-License-Identifier: GPL-3.0-or-later
// The diagrams of one plane under each other on one length axis, with the value under the pointer.
#pragma once

#include <vector>

#include "front/desktop/panes.h"
#include "presentation/grafik.h"

namespace korvane {

/// One diagram; its objectName is the control of the picture box.
class DiagramBox : public Pane {
  Q_OBJECT

public:
  DiagramBox(const Session& session, DiagramKind kind, QWidget* parent);
  DiagramKind kind() const { return kind_; }
  /// The texts in the diagram as a screen reader is told them.
  QString Texts() const;
  /// Grid units per pixel of height decide; the letters keep their size on the screen.
  void SetScale(double unit, double letters);
  /// Relative position of the hairline; below 0: none.
  void SetHairline(double relative);
  double hairline() const { return hairline_; }

protected:
  void Draw(QPainter& painter) override;

private:
  DiagramKind kind_;
  double unit_ = 1;
  double letters_ = 10;
  double hairline_ = -1;
};

/// The diagrams of a plane that the session shows.
class DiagramPane : public QWidget {
  Q_OBJECT

public:
  /// controls: the picture boxes of the plane, from the top.
  DiagramPane(const Session& session, std::vector<std::string> controls, QWidget* parent);
  void Refresh();
  QSize sizeHint() const override;
  /// The box of a control that is shown now; null when there is none.
  DiagramBox* Box(const std::string& control) const;

signals:
  /// Text of the value under the pointer; empty when it has left.
  void Pointed(const QString& text);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  std::vector<DiagramKind> Wanted() const;
  void Rebuild(const std::vector<DiagramKind>& kinds);
  void Arrange();
  double Letters() const;
  void Point(const DiagramBox* box, double x);
  /// Moves the hairline by a key; false for keys that don't.
  bool Step(const DiagramBox* box, int key);
  void PointAt(const DiagramBox* box, double relative);
  const Session& session_;
  std::vector<std::string> controls_;
  std::vector<DiagramBox*> boxes_;
};

}  // namespace korvane
