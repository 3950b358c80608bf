// SPDX-License-Identifier: GPL-3.0-or-later
// The result lines: runs of text in their styles, a bar beside each ratio.
#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "front/copied_tables.h"
#include "front/desktop/panes.h"
#include "front/desktop/theme.h"

namespace korvane {

namespace {

/// The value of a check in its line; nullptr where the line tells no ratio.
const TextRun* ValueOf(const ViewLine& line) {
  const auto it = std::find_if(line.runs.begin(), line.runs.end(),
                               [](const TextRun& run) { return run.ratio.has_value(); });
  return it == line.runs.end() ? nullptr : &*it;
}

QString TextOf(const ViewLine& line) {
  QString text;
  for (const TextRun& run : line.runs) {
    if (run.atTab) text += QLatin1Char('\t');
    text += QString::fromStdString(run.text);
  }
  return text;
}

constexpr double kTabEms = 7.9;
constexpr double kBarEms = 3;
constexpr double kMostBarEms = 16;
/// From this width on, in ems, the letters grow, up to so many times their size.
constexpr double kWidePane = 56;
constexpr double kMostLetters = 2.2;
/// Below this width they shrink, down to so much of their size.
constexpr double kNarrowPane = 38;
constexpr double kLeastLetters = 0.75;
/// Height of a row in heights of its letters, and how far rows move together in a low pane.
constexpr double kRow = 1.35;
constexpr double kTightRow = 1.1;

}  // namespace

ResultPane::ResultPane(const Session& session, Length length, QWidget* parent)
    : Pane(session, parent), length_(length) {
  setFocusPolicy(Qt::TabFocus);
  Refresh();
}

QSize ResultPane::sizeHint() const {
  return {Ems(this, length_ == Length::Short ? 36 : 60),
          Ems(this, length_ == Length::Short ? 15 : 22)};
}

double ResultPane::RowHeight() const {
  const double letters = QFontMetricsF(font()).height();
  if (length_ == Length::Long) return letters * kRow;
  return std::clamp(height() / rows_, letters * kTightRow, letters * kRow);
}

View ResultPane::Composed() const {
  const Design& d = session_.design();
  const bool buckling = ShowsBuckling(d.st, d.forces.N);
  View view;
  const auto append = [&view](const View& more) {
    view.insert(view.end(), more.begin(), more.end());
  };
  if (length_ == Length::Short) {
    append(SectionControlShort(d.st, d.checks));
    if (buckling) append(BucklingShort(d.st, d.checks, d.buckling));
    return view;
  }
  const QFontMetricsF metrics(FontOf({}, true));
  const double room = width() - 2 * Ems(this, 1);
  const auto breaks = [&](const std::string& text) {
    return metrics.horizontalAdvance(QString::fromStdString(text)) > room;
  };
  append(SectionControlLong(d.st, d.checks, breaks));
  if (buckling) append(BucklingLong(d.st, d.checks, d.buckling, breaks));
  return view;
}

void ResultPane::Measure() {
  view_ = Composed();
  for (ViewLine& line : view_) {
    for (TextRun& run : line.runs) run.text = session_.OnScreen(std::move(run.text));
  }
  rows_ = 1;
  for (const ViewLine& line : view_) rows_ += line.advance;
  FitLetters();
  bars_ = 0;
  for (const ViewLine& line : view_) {
    if (ValueOf(line) != nullptr) bars_ = std::max(bars_, WidthOf(line));
  }
  bars_ += Ems(this, 1.2);
  double widest = 0;
  for (const ViewLine& line : view_) widest = std::max(widest, WidthOf(line));
  setMinimumWidth(qRound(widest) + Ems(this, 1));
  const double row = length_ == Length::Long ? kRow : kTightRow;
  setMinimumHeight(qRound(rows_ * row * QFontMetricsF(font()).height()));
}

void ResultPane::FitLetters() {
  if (length_ == Length::Long || parentWidget() == nullptr) return;
  // The room is the parent's: the pane itself is never narrower than its lines.
  QFont fitted = parentWidget()->font();
  const double height = QFontMetricsF(fitted).height();
  const double room = parentWidget()->width() / (height * 0.75);
  const double rows = parentWidget()->height() / (height * kRow * rows_);
  const double letters = room < kNarrowPane
                             ? std::max(room / kNarrowPane, kLeastLetters)
                             : std::clamp(std::min(room / kWidePane, rows), 1.0, kMostLetters);
  fitted.setPointSizeF(fitted.pointSizeF() * letters);
  setFont(fitted);
}

void ResultPane::Refresh() {
  const QStringList before = Lines();
  Measure();
  if (Lines() != before) marked_.reset();
  QStringList tips;
  for (const ViewLine& line : view_) {
    if (Fails(line, session_.st().iufa)) tips << tr("FAILS: %1").arg(TextOf(line).simplified());
  }
  setToolTip(tips.join(QLatin1Char('\n')));
  update();
}

void ResultPane::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Measure();
}

QStringList ResultPane::Lines() const {
  QStringList lines;
  for (const ViewLine& line : view_) lines << TextOf(line);
  return lines;
}

template <class Visit>
void ResultPane::EachLine(Visit&& visit) const {
  double y = RowHeight() * 0.35;
  bool first = true;
  for (const ViewLine& line : view_) {
    const bool heading = !line.runs.empty() && line.runs.front().underline;
    if (heading && !first) y += RowHeight() * 0.3;
    visit(line, y);
    y += RowHeight() * line.advance;
    first = false;
  }
}

const ViewLine* ResultPane::LineWith(double ratio) const {
  // A record rounds what its check gave.
  const auto has = [ratio](const ViewLine& line) {
    const TextRun* value = ValueOf(line);
    return value != nullptr && std::abs(*value->ratio - ratio) <= 1e-6 * std::max(1.0, ratio);
  };
  const auto it = std::find_if(view_.begin(), view_.end(), has);
  return it == view_.end() ? nullptr : &*it;
}

QString ResultPane::MarkedLine() const {
  const ViewLine* line = marked_ ? LineWith(*marked_) : nullptr;
  return line == nullptr ? QString() : TextOf(*line);
}

QRect ResultPane::MarkRatio(double ratio) {
  marked_ = ratio;
  const ViewLine* marked = LineWith(ratio);
  if (marked == nullptr) marked_.reset();
  QRect place;
  EachLine([&](const ViewLine& line, double y) {
    if (&line == marked) place = QRectF(0, y, width(), RowHeight()).toAlignedRect();
  });
  update();
  return place;
}

void ResultPane::Draw(QPainter& painter) {
  painter.setRenderHint(QPainter::Antialiasing);
  const ViewLine* marked = marked_ ? LineWith(*marked_) : nullptr;
  EachLine([&](const ViewLine& line, double y) {
    if (&line == marked) {
      const QRectF place(0, y, width(), RowHeight());
      painter.fillRect(place, palette().color(QPalette::Midlight));
      // Not by colour alone.
      painter.fillRect(QRectF(0, y, Ems(this, 0.35), RowHeight()),
                       palette().color(QPalette::Highlight));
    }
    DrawLine(painter, line, y);
  });
}

QFont ResultPane::FontOf(const TextRun& run, bool fails) const {
  QFont style = font();
  style.setBold(run.bold || fails);
  style.setUnderline(run.underline);
  return style;
}

double ResultPane::TabAfter(double x) const {
  return std::max(x + Ems(this, 0.6), double(Ems(this, 0.9 + kTabEms)));
}

double ResultPane::WidthOf(const ViewLine& line) const {
  double x = Ems(this, 0.9);
  for (const TextRun& run : line.runs) {
    if (run.atTab) x = TabAfter(x);
    x += QFontMetricsF(FontOf(run, true)).horizontalAdvance(QString::fromStdString(run.text));
  }
  return x;
}

void ResultPane::DrawLine(QPainter& painter, const ViewLine& line, double y) {
  const double left = Ems(this, 0.9);
  const bool fails = Fails(line, session_.st().iufa);
  double x = left;
  for (const TextRun& run : line.runs) {
    const QFont style = FontOf(run, fails);
    const QFontMetricsF metrics(style);
    if (run.atTab) x = TabAfter(x);
    painter.setFont(style);
    painter.setPen(run.colour == kBlack ? palette().color(QPalette::Text)
                                        : ColourFor(RoleOfIndex(run.colour), palette()));
    const QString text = QString::fromStdString(run.text);
    painter.drawText(QPointF(x, y + metrics.ascent()), text);
    x += metrics.horizontalAdvance(text);
  }
  const TextRun* value = ValueOf(line);
  if (value == nullptr) return;
  const double start = bars_;
  const double bar = std::min(width() - start - Ems(this, 0.9), Ems(this, kMostBarEms) * 1.0);
  if (length_ == Length::Long || bar < Ems(this, kBarEms) || start < x) return;
  const double share = std::clamp(*value->ratio / session_.st().iufa, 0.0, 1.0);
  const QFontMetricsF metrics(font());
  const double thick = std::max(4.0, metrics.height() * 0.32);
  const QRectF track(start, y + metrics.height() * 0.5 - thick / 2, bar, thick);
  painter.setPen(Qt::NoPen);
  painter.setBrush(palette().color(QPalette::Mid));
  painter.setOpacity(0.55);
  painter.drawRoundedRect(track, thick / 2, thick / 2);
  painter.setOpacity(1);
  painter.setBrush(ColourFor(RoleOfIndex(value->colour), palette()));
  painter.drawRoundedRect(QRectF(track.topLeft(), QSizeF(std::max(thick, bar * share), thick)),
                          thick / 2, thick / 2);
}

void ResultPane::AddActions(QMenu& menu) {
  menu.addAction(tr("Copy result lines"), QKeySequence::Copy, this, [this] { Copy(); });
  Pane::AddActions(menu);
}

QString ResultPane::Table() const {
  return QString::fromStdString(CheckTable(session_));
}

void ResultPane::Copy() {
  const std::string lines = Lines().join(QLatin1Char('\n')).toStdString();
  QApplication::clipboard()->setText(QString::fromStdString(WithNotice(session_, lines)));
}

}  // namespace korvane
