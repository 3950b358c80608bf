// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/painter/paint_files.h"

#include <QBuffer>
#include <QGuiApplication>
#include <QImage>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <array>
#include <memory>

#include "core/program.h"
#include "front/painter/painter_target.h"
#include "front/painter/pdf_description.h"

namespace korvane {

namespace {

/// Fonts need an application; a program without one gets its own, on no display. Qt takes its
/// words out of the arguments, so that each application needs its own.
class ApplicationWhereNone {
public:
  ApplicationWhereNone() {
    if (QCoreApplication::instance() != nullptr) return;
    // Remarks about the session's folders are none of a console program's business.
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    application_ = std::make_unique<QGuiApplication>(count_, words_.data());
  }

private:
  std::string name_ = "korvane", option_ = "-platform", platform_ = KORVANE_PAINT_PLATFORM;
  std::array<char*, 4> words_{name_.data(), option_.data(), platform_.data(), nullptr};
  int count_ = 3;
  std::unique_ptr<QGuiApplication> application_;
};

void DrawPage(QPainter& painter, const PaintJob& job, std::size_t page, const QRectF& device) {
  PainterTarget target(painter, job.width, job.height, device, Palette::Light());
  job.pages.at(page)(target);
}

constexpr const char* kFailed = "the painter failed";

std::string Creator() {
  return kProgramName + std::string(" ") + kVersion;
}

std::string PaintPdf(const PaintJob& job, QIODevice& bytes) {
  QPdfWriter writer(&bytes);
  writer.setPageSize(QPageSize(QSizeF(job.width, job.height), QPageSize::Point));
  writer.setPageMargins(QMarginsF(0, 0, 0, 0));
  writer.setTitle(QString::fromStdString(job.title));
  writer.setCreator(QString::fromStdString(Creator()));
  if (!job.attachment.empty()) {
    writer.addFileAttachment(QString::fromStdString(job.attachmentName),
                             QByteArray::fromStdString(job.attachment),
                             QStringLiteral("text/plain"));
  }
  QPainter painter;
  if (!painter.begin(&writer)) return kFailed;
  for (std::size_t page = 0; page < job.pages.size(); ++page) {
    if (page > 0) writer.newPage();
    DrawPage(painter, job, page, QRectF(0, 0, writer.width(), writer.height()));
  }
  return painter.end() ? std::string() : kFailed;
}

std::string PaintPng(const PaintJob& job, QIODevice& bytes) {
  const double scale = job.pixelsPerPoint;
  QImage image(static_cast<int>(job.width * scale), static_cast<int>(job.height * scale),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setRenderHint(QPainter::TextAntialiasing);
  DrawPage(painter, job, 0, QRectF(0, 0, image.width(), image.height()));
  painter.end();
  return image.save(&bytes, "PNG") ? std::string() : kFailed;
}

}  // namespace

std::string PaintIntoMemory(const PaintJob& job, std::string& bytes) {
  const ApplicationWhereNone application;
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  const std::string error =
      job.format == PaintFormat::Pdf ? PaintPdf(job, buffer) : PaintPng(job, buffer);
  bytes = buffer.data().toStdString();
  if (job.format == PaintFormat::Pdf && error.empty()) {
    bytes = Described(std::move(bytes), {Creator(), job.subject, "en"});
  }
  return error;
}

}  // namespace korvane
