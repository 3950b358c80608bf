// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/panes.h"

#include <QBuffer>
#include <QContextMenuEvent>
#include <QFileDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>

#include "core/files.h"
#include "front/desktop/svg_paper.h"
#include "front/desktop/theme.h"
#include "front/painter/painter_target.h"
#include "presentation/figures.h"

namespace korvane {

namespace {

/// How far a paled pane is covered.
constexpr double kVeil = 0.7;

}  // namespace

Pane::Pane(const Session& session, QWidget* parent) : QWidget(parent), session_(session) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Pane::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(ground_));
  try {
    Draw(painter);
  } catch (const ArithmeticFault&) {
    // What can't be drawn stays away; the calculation tells what is wrong.
  }
  if (paled_) {
    QColor veil = palette().color(ground_);
    veil.setAlphaF(kVeil);
    painter.fillRect(rect(), veil);
  }
  if (!hasFocus() || !framed_) return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void Pane::SetPaled(bool paled) {
  if (paled_ == paled) return;
  paled_ = paled;
  update();
}

void Pane::focusInEvent(QFocusEvent* event) {
  framed_ = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
  QWidget::focusInEvent(event);
}

void Pane::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    emit Clicked();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void Pane::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint())) {
    emit Clicked();
  }
}

void Pane::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu;
  menu.addAction(tr("Save as SVG..."), this, [this] { Export(true); });
  menu.addAction(tr("Save as PNG..."), this, [this] { Export(false); });
  menu.exec(event->globalPos());
}

std::string Pane::AsSvg() {
  SvgPaper paper(size());
  render(&paper);
  return paper.Document();
}

std::string Pane::AsPng() {
  QPixmap picture(size() * 2);
  picture.setDevicePixelRatio(2);
  render(&picture);
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  picture.save(&bytes, "PNG");
  return bytes.data().toStdString();
}

void Pane::Export(bool vector) {
  const QString ending = vector ? QStringLiteral("svg") : QStringLiteral("png");
  const QString path = QFileDialog::getSaveFileName(
      this, QString(), ExportName() + QStringLiteral(".") + ending, QStringLiteral("*.") + ending);
  if (path.isEmpty()) return;
  const WriteResult written = WriteFile(path.toStdString(), vector ? AsSvg() : AsPng());
  if (written) return;
  QMessageBox::warning(this, QString(),
                       tr("The picture could not be written to\n%1").arg(path) + QLatin1Char('\n') +
                           QString::fromStdString(written.why));
}

// --- Values -------------------------------------------------------------------------------------

ValueLabel::ValueLabel(QWidget* parent) : QLabel(parent), unit_(new QLabel(parent)) {
  setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  unit_->setForegroundRole(QPalette::PlaceholderText);
}

void ValueLabel::ShowValue(const QString& text, const QString& unit) {
  if (this->text() != text) setText(text);
  if (unit_->text() != unit) unit_->setText(unit);
}

// --- Figure -------------------------------------------------------------------------------------

FigurePane::FigurePane(const Session& session, const Form& form, QWidget* parent)
    : Pane(session, parent), form_(form) {
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  setMinimumSize(Ems(this, 14), Ems(this, 13));
}

QSize FigurePane::sizeHint() const {
  return {Ems(this, 20), Ems(this, 18)};
}

void FigurePane::Draw(QPainter& painter) {
  PainterTarget target(painter, width(), height(), rect(), DrawingColours(palette()));
  target.FontSize = Ems(this, 0.85);
  FigureOptions options;
  const Control* field = session_.FocusedField();
  if (field != nullptr && field->form == &form_) options.highlight = field->letter;
  DrawSectionFigure(target, {0, 0, double(width()), double(height())}, Destination::Page,
                    session_.st(), session_.design().rec, options);
}

// --- Verdict ------------------------------------------------------------------------------------

VerdictPane::VerdictPane(const Session& session, QWidget* parent) : Pane(session, parent) {
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  setObjectName(QStringLiteral("verdict"));
  setCursor(Qt::PointingHandCursor);
  setFocusPolicy(Qt::TabFocus);
  ground_ = QPalette::Window;
  Refresh();
}

QSize VerdictPane::sizeHint() const {
  return {Ems(this, 22), Ems(this, 4.4)};
}

void VerdictPane::Refresh() {
  headline_ = HeadlineOf(session_);
  const Headline& h = headline_;
  setAccessibleName(tr("ULS %1 %2. %3").arg(Figure(), Word(), QString::fromStdString(h.below)));
  QStringList tips{tr("Greatest utilisation ratio of all checks; the limit is %1")
                       .arg(QString::fromStdString(session_.Shown(session_.st().iufa, "#0.00")))};
  for (const std::string& note : h.notes) tips << QString::fromStdString(note);
  // Nobody's numbers stand under another's title.
  if (const std::string why = session_.NotCalculated(); !why.empty()) {
    tips = QStringList(QString::fromStdString(why));
  }
  setToolTip(tips.join(QLatin1Char('\n')));
  update();
}

void VerdictPane::Draw(QPainter& painter) {
  const auto colour = [this](Headline::Tone tone) {
    return ColourFor(tone == Headline::Tone::Pass   ? Role::Pass
                     : tone == Headline::Tone::Fail ? Role::Fail
                                                    : Role::Quiet,
                     palette());
  };
  QFont big = font();
  big.setPixelSize(Ems(this, 2.5));
  big.setBold(true);
  QFont word = font();
  word.setPixelSize(Ems(this, 1.35));
  word.setBold(true);
  const int right = width() - Ems(this, 0.6);
  const int foot = height() - Ems(this, 1.5);
  QRect row(0, 0, right, foot);
  const auto put = [&](const QFont& font, const QColor& ink, const QString& text, double gap) {
    const int wide = QFontMetrics(font).horizontalAdvance(text);
    // Where there is no room the figure speaks for itself.
    if (wide > row.width()) return;
    painter.setFont(font);
    painter.setPen(ink);
    painter.drawText(row, Qt::AlignVCenter | Qt::AlignRight, text);
    row.setRight(row.right() - wide - Ems(this, gap));
  };
  put(word, colour(headline_.tone), Word(), 0.6);
  put(big, colour(headline_.tone), Figure(), 0.8);
  put(font(), palette().color(QPalette::PlaceholderText), tr("ULS, max IR"), 0);
  const QRect below(0, foot, right, height() - foot);
  painter.setFont(font());
  painter.setPen(headline_.belowTone == Headline::Tone::Quiet ? palette().color(QPalette::Text)
                                                              : colour(headline_.belowTone));
  const QString text = fontMetrics().elidedText(QString::fromStdString(headline_.below),
                                                Qt::ElideRight, below.width());
  painter.drawText(below, Qt::AlignTop | Qt::AlignRight, text);
}

}  // namespace korvane
