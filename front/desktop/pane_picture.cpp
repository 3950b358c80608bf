// SPDX-License-Identifier: GPL-3.0-or-later
// A pane as a picture on paper: saved, copied, with its notice where its results don't hold.
#include <QApplication>
#include <QBuffer>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QPainter>

#include "core/files.h"
#include "front/desktop/panes.h"
#include "front/desktop/project_place.h"
#include "front/desktop/svg_paper.h"
#include "front/desktop/theme.h"

namespace korvane {

namespace {

/// Dots of a picture for one of the screen.
constexpr int kSharpness = 2;
/// Height of the notice, ems.
constexpr double kNotice = 2;

}  // namespace

QString Pane::Notice() const {
  return QString::fromStdString(session_.NotCalculated());
}

QSize Pane::PictureSize() const {
  return Notice().isEmpty() ? size() : size() + QSize(0, Ems(this, kNotice));
}

void Pane::PaintPicture(QPainter& painter) {
  // Other programs have a white page, whatever the windows look like.
  setPalette(PaperPalette());
  const QRect all(QPoint(), PictureSize());
  painter.fillRect(all, palette().color(ground_));
  if (const QString notice = Notice(); !notice.isEmpty()) {
    const int head = Ems(this, kNotice);
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(ColourFor(Role::Fail, palette()));
    painter.drawText(QRect(0, 0, all.width(), head), Qt::AlignCenter | Qt::TextWordWrap, notice);
    painter.translate(0, head);
  }
  PaintContent(painter);
  setPalette(QPalette());
}

QImage Pane::Picture() {
  QImage image(PictureSize() * kSharpness, QImage::Format_RGB32);
  image.setDevicePixelRatio(kSharpness);
  QPainter painter(&image);
  PaintPicture(painter);
  return image;
}

std::string Pane::AsSvg() {
  SvgPaper paper(PictureSize());
  QPainter painter(&paper);
  PaintPicture(painter);
  painter.end();
  return paper.Document();
}

std::string Pane::AsPng() {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  Picture().save(&bytes, "PNG");
  return bytes.data().toStdString();
}

void Pane::CopyPicture() {
  QApplication::clipboard()->setImage(Picture());
}

void Pane::Copy() {
  auto* both = new QMimeData;
  both->setImageData(Picture());
  if (const QString table = Table(); !table.isEmpty()) both->setText(table);
  QApplication::clipboard()->setMimeData(both);
}

void Pane::AddActions(QMenu& menu) {
  menu.addAction(tr("Copy picture"), this, [this] { CopyPicture(); });
  if (!Table().isEmpty()) {
    menu.addAction(tr("Copy table"), this, [this] { QApplication::clipboard()->setText(Table()); });
  }
  menu.addSeparator();
  menu.addAction(tr("Save as SVG..."), this, [this] { Export(true); });
  menu.addAction(tr("Save as PNG..."), this, [this] { Export(false); });
}

void Pane::contextMenuEvent(QContextMenuEvent* event) {
  QMenu menu;
  AddActions(menu);
  menu.exec(event->globalPos());
}

void Pane::Export(bool vector) {
  const QString ending = vector ? QStringLiteral("svg") : QStringLiteral("png");
  const QString path = QFileDialog::getSaveFileName(
      this, QString(),
      BesideProject(session_, QLatin1Char('-') + ExportName() + QLatin1Char('.') + ending),
      QStringLiteral("*.") + ending);
  if (path.isEmpty()) return;
  const WriteResult written = WriteFile(path.toStdString(), vector ? AsSvg() : AsPng());
  if (written) return;
  QMessageBox::warning(this, QString(),
                       tr("The picture could not be written to\n%1").arg(path) + QLatin1Char('\n') +
                           QString::fromStdString(written.why));
}

}  // namespace korvane
