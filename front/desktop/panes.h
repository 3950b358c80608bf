// SPDX-License-Identifier: GPL-3.0-or-later
// The painted panes of the windows: section figure, result lines, verdict, mode shapes.
#pragma once

#include <QImage>
#include <QLabel>
#include <QWidget>
#include <optional>

#include "checks/results.h"
#include "front/headline.h"
#include "front/session.h"
#include "presentation/drawing_target.h"

class QMenu;

namespace korvane {

/// A painted pane that shows the session; a click on it is passed on.
class Pane : public QWidget {
  Q_OBJECT

public:
  explicit Pane(const Session& session, QWidget* parent = nullptr);
  /// Takes over what the session shows now.
  virtual void Refresh() { update(); }
  /// A paled pane shows that what it draws doesn't hold at present.
  void SetPaled(bool paled);
  /// The pane as it is copied and saved, without the marks of pointer and focus; a notice at the
  /// head where the results aren't those of the state in force.
  QImage Picture();
  /// The same as documents: text as text, or twice its size in pixels.
  std::string AsSvg();
  std::string AsPng();
  /// What the pane shows as a table for the clipboard; empty where it is none.
  virtual QString Table() const { return {}; }
  /// The copy key: picture and table, whichever the other program takes.
  virtual void Copy();

signals:
  void Clicked();

protected:
  void paintEvent(QPaintEvent*) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  /// A frame tells that the Tab key has come here.
  void focusInEvent(QFocusEvent* event) override;
  /// The space bar is a click, and the copy key copies.
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  /// Draws the pane; an arithmetic failure leaves it empty from there on.
  virtual void Draw(QPainter& painter) = 0;
  /// What only the screen shows on top.
  virtual void DrawMarks(QPainter&) {}
  /// The entries of the context menu.
  virtual void AddActions(QMenu& menu);
  /// Name of the file that an export proposes.
  virtual QString ExportName() const { return objectName(); }

  const Session& session_;
  QPalette::ColorRole ground_ = QPalette::Base;

private:
  QString Notice() const;
  QSize PictureSize() const;
  void PaintPicture(QPainter& painter);
  void PaintContent(QPainter& painter);
  void CopyPicture();
  void Export(bool vector);
  bool paled_ = false;
  bool framed_ = false;
};

/// The value of a label with its unit in a quieter label of its own.
class ValueLabel : public QLabel {
  Q_OBJECT

public:
  explicit ValueLabel(QWidget* parent = nullptr);
  void ShowValue(const QString& text, const QString& unit);
  QLabel* unit() { return unit_; }

protected:
  /// Without a marked text the form's menu comes up.
  void contextMenuEvent(QContextMenuEvent* event) override;

private:
  QLabel* unit_;
};

/// The section with its axes and dimensions; the dimension of the field in use lights up.
class FigurePane : public Pane {
  Q_OBJECT

public:
  /// form: the form whose fields light up their letters.
  FigurePane(const Session& session, const Form& form, QWidget* parent = nullptr);
  QSize sizeHint() const override;

protected:
  void Draw(QPainter& painter) override;

private:
  const Form& form_;
};

/// The result lines as the views compose them, each ratio with a bar to its limit.
class ResultPane : public Pane {
  Q_OBJECT

public:
  enum class Length { Short, Long };
  ResultPane(const Session& session, Length length, QWidget* parent = nullptr);
  void Refresh() override;
  /// The lines as text, as the context menu copies them.
  QStringList Lines() const;
  void Copy() override;
  QString Table() const override;
  /// Marks the first line with this ratio until the lines change. Its place in the pane, empty
  /// where no line has it.
  QRect MarkRatio(double ratio);
  /// The line that is marked; empty where none is.
  QString MarkedLine() const;
  QSize sizeHint() const override;

protected:
  void Draw(QPainter& painter) override;
  void AddActions(QMenu& menu) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  View Composed() const;
  /// Composes the lines anew, fits their letters to the room and takes their sizes.
  void Measure();
  /// The short lines take the letters that the pane around them has room for.
  void FitLetters();
  /// Calls visit(line, y) for each line with its upper end in the pane.
  template <class Visit>
  void EachLine(Visit&& visit) const;
  const ViewLine* LineWith(double ratio) const;
  void DrawLine(QPainter& painter, const ViewLine& line, double y);
  double RowHeight() const;
  QFont FontOf(const TextRun& run, bool fails) const;
  double TabAfter(double x) const;
  double WidthOf(const ViewLine& line) const;
  Length length_;
  View view_;
  double rows_ = 1;               ///< height of the lines, in rows
  double bars_ = 0;               ///< left end of the bars
  std::optional<double> marked_;  ///< ratio of the line that is marked
};

/// The headline: the greatest ratio in big figures with the word beside it, and the serviceability
/// limit state below.
class VerdictPane : public Pane {
  Q_OBJECT

public:
  explicit VerdictPane(const Session& session, QWidget* parent = nullptr);
  void Refresh() override;
  const Headline& headline() const { return headline_; }
  QString Figure() const { return QString::fromStdString(headline_.figure); }
  QString Word() const { return QString::fromStdString(headline_.word); }
  QSize sizeHint() const override;

protected:
  void Draw(QPainter& painter) override;

private:
  Headline headline_;
};

}  // namespace korvane
