// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/chart_pane.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QKeyEvent>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include "front/desktop/screen_target.h"
#include "front/painter/paint_files.h"
#include "presentation/svg_target.h"

namespace korvane {

namespace {

// A page of a saved drawing, points: its letters and the margin around it.
constexpr double kWidth = 780, kHeight = 440, kPageLetters = 9, kMargin = 12;
constexpr Box kPagePlace{kMargin, kMargin, kWidth - kMargin, kHeight - kMargin};
/// Letters in ems of the window's font.
constexpr double kLetters = 0.92;

}  // namespace

ChartPane::ChartPane(const Session& session, ChartDrawing drawing, const QString& title,
                     QWidget* parent)
    : Pane(session, parent), drawing_(std::move(drawing)), title_(title) {
  setMouseTracking(true);
  setFocusPolicy(Qt::TabFocus);
  setMinimumSize(Ems(this, 30), Ems(this, 16));
}

Box ChartPane::Place() const {
  const double gap = Ems(this, 0.6);
  return {gap, gap, width() - gap, height() - gap};
}

double ChartPane::Letters() const {
  return Ems(this, kLetters);
}

void ChartPane::Draw(QPainter& painter) {
  ScreenTarget target(painter, *this, session_);
  painter.setRenderHint(QPainter::Antialiasing);
  drawing_(target, Place(), Letters());
}

std::string ChartPane::Svg() const {
  SvgTarget target(kWidth, kHeight, title_.toStdString(), Palette::Light());
  drawing_(target, kPagePlace, kPageLetters);
  return target.Document();
}

std::string ChartPane::Painted(bool pdf, std::string& bytes) const {
  PaintJob job;
  job.format = pdf ? PaintFormat::Pdf : PaintFormat::Png;
  job.width = kWidth;
  job.height = kHeight;
  job.title = title_.toStdString();
  job.pages.emplace_back([this](DrawingTarget& t) { drawing_(t, kPagePlace, kPageLetters); });
  return PaintIntoMemory(job, bytes);
}

WriteResult ChartPane::Save(const QString& path) const {
  const bool svg = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
  std::string bytes;
  std::string failed;
  if (svg) {
    bytes = Svg();
  } else {
    failed = Painted(path.endsWith(QLatin1String(".pdf"), Qt::CaseInsensitive), bytes);
  }
  if (!failed.empty()) return {WriteStatus::Failed, failed};
  return WriteFile(QFile::encodeName(path).toStdString(), bytes);
}

void ChartPane::Print(QPrinter& printer) const {
  QPainter painter;
  if (!painter.begin(&printer)) return;
  // As large as the page takes it.
  const QRectF page(0, 0, printer.width(), printer.height());
  const double scale = std::min(page.width() / kWidth, page.height() / kHeight);
  PainterTarget target(painter, kWidth, kHeight, QRectF(0, 0, kWidth * scale, kHeight * scale),
                       Palette::Light());
  drawing_(target, kPagePlace, kPageLetters);
}

void ChartPane::Copy() const {
  auto* mime = new QMimeData;
  const std::string svg = Svg();
  mime->setData(QStringLiteral("image/svg+xml"), QByteArray::fromStdString(svg));
  std::string png;
  if (Painted(false, png).empty())
    mime->setImageData(QImage::fromData(QByteArray::fromStdString(png)));
  mime->setText(accessibleName());
  QApplication::clipboard()->setMimeData(mime);
}

void ChartPane::AskSave() {
  const QString path =
      QFileDialog::getSaveFileName(this, QString(), objectName() + QStringLiteral(".svg"),
                                   QStringLiteral("SVG (*.svg);;PDF (*.pdf);;PNG (*.png)"));
  if (path.isEmpty()) return;
  if (const WriteResult written = Save(path); !written) {
    QMessageBox::warning(this, QString(),
                         tr("The picture could not be written to\n%1").arg(path) +
                             QLatin1Char('\n') + QString::fromStdString(written.why));
  }
}

void ChartPane::AskPrint() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageSize(QPageSize(QPageSize::A4));
  printer.setPageOrientation(QPageLayout::Landscape);
  printer.setDocName(title_);
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() == QDialog::Accepted) Print(printer);
}

void ChartPane::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu;
  menu.addAction(tr("Save as SVG, PDF or PNG..."), this, &ChartPane::AskSave);
  menu.addAction(tr("Print..."), this, &ChartPane::AskPrint);
  menu.addAction(tr("Copy"), QKeySequence::Copy, this, [this] { Copy(); });
  menu.exec(event->globalPos());
}

void ChartPane::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) {
    Copy();
  } else {
    Pane::keyPressEvent(event);
  }
}

void ChartPane::mouseMoveEvent(QMouseEvent* event) {
  emit Pointed(event->position().x());
}

void ChartPane::leaveEvent(QEvent*) {
  emit Pointed(-1);
}

}  // namespace korvane
