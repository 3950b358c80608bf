// SPDX-License-Identifier: GPL-3.0-or-later
// The diagrams of one plane under each other on one length axis, with the value under the pointer.
#pragma once

#include <QPointer>
#include <optional>
#include <vector>

#include "front/desktop/panes.h"
#include "presentation/grafik.h"

namespace korvane {

class MemberStrip;
class StationTableWindow;

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
  QString Table() const override;

signals:
  /// The table of the stations is wanted.
  void TableWanted();

protected:
  void Draw(QPainter& painter) override;
  void DrawMarks(QPainter& painter) override;
  void AddActions(QMenu& menu) override;

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
  /// A small pane of the loads of one plane: it comes and goes with them, without the member.
  void ShowLoadsOf(Plane plane, double usualHeight);
  /// Shows other picture boxes from the next refresh on.
  void SetBoxes(std::vector<std::string> controls) { controls_ = std::move(controls); }
  QSize sizeHint() const override;
  /// The box of a control that is shown now; null when there is none.
  DiagramBox* Box(const std::string& control) const;

signals:
  /// Text of the value under the pointer, which a tag beside it shows; empty when it has left.
  void Pointed(const QString& text);

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  std::vector<DiagramKind> Wanted() const;
  void Rebuild(const std::vector<DiagramKind>& kinds);
  void Arrange();
  double Letters() const;
  void Point(DiagramBox* box, QPointF place);
  /// Moves the hairline by a key; false for keys that don't.
  bool Step(DiagramBox* box, int key);
  /// Puts the hairline on the nearest station and the values beside the place in the pane.
  void PointAt(DiagramBox* box, double relative, int y);
  void PlaceTag(const QString& text, int x, int y);
  void LoseStation();
  void ShowTable();
  const Session& session_;
  std::vector<std::string> controls_;
  std::vector<DiagramBox*> boxes_;
  std::optional<Plane> loadsOf_;
  double usualHeight_;  ///< ems
  MemberStrip* strip_;
  QLabel* tag_;                   ///< the values beside the pointer
  QPointer<DiagramBox> pointed_;  ///< on which the hairline was put, and how high in the pane
  int pointedY_ = 0;
  QPointer<StationTableWindow> table_;
};

}  // namespace korvane
