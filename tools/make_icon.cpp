// SPDX-License-Identifier: GPL-3.0-or-later
// make_icon DRAWING.svg SIZE OUT.png: paints a drawing as a square picture of SIZE pixels.
// make_icon DRAWING.svg SIZE,SIZE,... OUT.ico: in several sizes in one file, as Windows wants it.
#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QtEndian>
#include <cstdio>

namespace {

QByteArray Painted(QSvgRenderer& drawing, int size) {
  QImage picture(size, size, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  {
    QPainter painter(&picture);
    drawing.render(&painter);
  }
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return bytes;
}

template <class T>
void Put(QByteArray& bytes, T value) {
  value = qToLittleEndian(value);
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

/// A list of the pictures with their sizes and places, and the pictures behind it.
QByteArray IconFile(const QList<int>& sizes, const QList<QByteArray>& pictures) {
  constexpr int headSize = 6;
  constexpr int entrySize = 16;
  QByteArray head;
  Put<quint16>(head, 0);
  Put<quint16>(head, 1);  // icons
  Put<quint16>(head, static_cast<quint16>(pictures.size()));
  auto place = static_cast<quint32>(headSize + entrySize * pictures.size());
  QByteArray bodies;
  for (qsizetype i = 0; i < pictures.size(); ++i) {
    // 256 is written as 0.
    for (int side = 0; side < 2; ++side) Put<quint8>(head, static_cast<quint8>(sizes[i]));
    Put<quint16>(head, 0);   // no table of colours
    Put<quint16>(head, 1);   // plane
    Put<quint16>(head, 32);  // bits of a pixel
    Put<quint32>(head, static_cast<quint32>(pictures[i].size()));
    Put<quint32>(head, place);
    place += static_cast<quint32>(pictures[i].size());
    bodies += pictures[i];
  }
  return head + bodies;
}

}  // namespace

int main(int argc, char** argv) {
  QList<int> sizes;
  if (argc == 4) {
    for (const QString& size : QString::fromLocal8Bit(argv[2]).split(QLatin1Char(','))) {
      if (size.toInt() > 0 && size.toInt() <= 256) sizes << size.toInt();
    }
  }
  const QString out = QString::fromLocal8Bit(argc == 4 ? argv[3] : "");
  const bool several = out.endsWith(QLatin1String(".ico"));
  if (sizes.isEmpty() || (!several && sizes.size() > 1)) {
    std::fputs(
        "usage: make_icon DRAWING.svg SIZE OUT.png\n"
        "       make_icon DRAWING.svg SIZE,SIZE,... OUT.ico\n",
        stderr);
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) {
    std::fprintf(stderr, "can't read %s\n", argv[1]);
    return 2;
  }
  QList<QByteArray> pictures;
  for (const int size : sizes) pictures << Painted(drawing, size);
  const QByteArray bytes = several ? IconFile(sizes, pictures) : pictures.first();
  QFile file(out);
  if (QDir().mkpath(QFileInfo(out).path()) && file.open(QIODevice::WriteOnly) &&
      file.write(bytes) == bytes.size() && file.flush())
    return 0;
  std::fprintf(stderr, "can't write %s\n", argv[3]);
  return 1;
}
