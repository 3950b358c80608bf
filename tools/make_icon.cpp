// SPDX-License-Identifier: GPL-3.0-or-later
// make_icon DRAWING.svg SIZE OUT.png: paints a drawing as a square picture of SIZE pixels.
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

int main(int argc, char** argv) {
  const int size = argc == 4 ? QString::fromLocal8Bit(argv[2]).toInt() : 0;
  if (size < 1) {
    std::fputs("usage: make_icon DRAWING.svg SIZE OUT.png\n", stderr);
    return 2;
  }
  QSvgRenderer drawing(QString::fromLocal8Bit(argv[1]));
  if (!drawing.isValid()) {
    std::fprintf(stderr, "can't read %s\n", argv[1]);
    return 2;
  }
  QImage picture(size, size, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  {
    QPainter painter(&picture);
    drawing.render(&painter);
  }
  const QString out = QString::fromLocal8Bit(argv[3]);
  if (QDir().mkpath(QFileInfo(out).path()) && picture.save(out, "PNG")) return 0;
  std::fprintf(stderr, "can't write %s\n", argv[3]);
  return 1;
}
