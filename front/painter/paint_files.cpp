// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/painter/paint_files.h"

#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <memory>

#include "front/painter/painter_target.h"

namespace korvane {

namespace {

/// Fonts need an application; a program without one gets its own, on no display.
std::unique_ptr<QGuiApplication> ApplicationWhereNone() {
  if (QCoreApplication::instance() != nullptr) return nullptr;
  // Remarks about the session's folders are none of a console program's business.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  static int argc = 3;
  static char name[] = "korvane";
  static char option[] = "-platform";
  static char platform[] = "offscreen";
  static char* argv[] = {name, option, platform, nullptr};
  return std::make_unique<QGuiApplication>(argc, argv);
}

void DrawPage(QPainter& painter, const PaintJob& job, std::size_t page, const QRectF& device) {
  PainterTarget target(painter, job.width, job.height, device, Palette::Light());
  job.pages.at(page)(target);
}

std::string PaintPdf(const PaintJob& job) {
  QPdfWriter writer(QString::fromStdString(job.path));
  writer.setPageSize(QPageSize(QSizeF(job.width, job.height), QPageSize::Point));
  writer.setPageMargins(QMarginsF(0, 0, 0, 0));
  writer.setTitle(QString::fromStdString(job.title));
  writer.setCreator(QStringLiteral("KORVANE NS3472 3.9"));
  if (!job.attachment.empty()) {
    writer.addFileAttachment(QString::fromStdString(job.attachmentName),
                             QByteArray::fromStdString(job.attachment),
                             QStringLiteral("text/plain"));
  }
  QPainter painter;
  if (!painter.begin(&writer)) return "can't save file - " + job.path;
  for (std::size_t page = 0; page < job.pages.size(); ++page) {
    if (page > 0) writer.newPage();
    DrawPage(painter, job, page, QRectF(0, 0, writer.width(), writer.height()));
  }
  return painter.end() ? std::string() : "can't save file - " + job.path;
}

std::string PaintSvg(const PaintJob& job) {
  QSvgGenerator generator;
  generator.setFileName(QString::fromStdString(job.path));
  generator.setSize(QSize(static_cast<int>(job.width), static_cast<int>(job.height)));
  generator.setViewBox(QRectF(0, 0, job.width, job.height));
  generator.setTitle(QString::fromStdString(job.title));
  QPainter painter;
  if (!painter.begin(&generator)) return "can't save file - " + job.path;
  DrawPage(painter, job, 0, QRectF(0, 0, job.width, job.height));
  painter.end();
  return {};
}

std::string PaintPng(const PaintJob& job) {
  const double scale = job.pixelsPerPoint;
  QImage image(static_cast<int>(job.width * scale), static_cast<int>(job.height * scale),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  DrawPage(painter, job, 0, QRectF(0, 0, image.width(), image.height()));
  painter.end();
  return image.save(QString::fromStdString(job.path)) ? std::string()
                                                      : "can't save file - " + job.path;
}

bool EndsWith(const std::string& path, const char* ending) {
  return QString::fromStdString(path).endsWith(QLatin1String(ending), Qt::CaseInsensitive);
}

}  // namespace

std::string PaintToFile(const PaintJob& job) {
  const auto application = ApplicationWhereNone();
  if (EndsWith(job.path, ".pdf")) return PaintPdf(job);
  if (EndsWith(job.path, ".svg")) return PaintSvg(job);
  if (EndsWith(job.path, ".png")) return PaintPng(job);
  return "the output must end in .pdf, .svg or .png - " + job.path;
}

}  // namespace korvane
