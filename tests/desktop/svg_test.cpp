// SPDX-License-Identifier: GPL-3.0-or-later
// The drawings of the help book as our reader paints them against another reader of SVG, and the
// pictures that panes are saved as, read by both.
#include <gtest/gtest.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include "front/desktop/svg_paper.h"
#include "front/desktop/svg_reader.h"
#include "places.h"

namespace korvane {
namespace {

constexpr int kWidth = 400;

QImage Blank(QSizeF size) {
  QImage image(kWidth, static_cast<int>(kWidth * size.height() / size.width()),
               QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

QImage ByOurs(const QByteArray& file) {
  const SvgDrawing drawing(file);
  QImage image = Blank(drawing.ViewBox().size());
  QPainter painter(&image);
  drawing.Paint(painter, image.rect());
  return image;
}

QImage ByOther(const QByteArray& file) {
  QSvgRenderer drawing(file);
  QImage image = Blank(drawing.viewBoxF().size());
  QPainter painter(&image);
  drawing.render(&painter, image.rect());
  return image;
}

/// The mean difference of two pictures in shares of the ink, each smoothed so that an edge that
/// is half a pixel off counts little.
double Difference(const QImage& a, const QImage& b) {
  const auto smooth = [](const QImage& image) {
    return image.scaled(image.size() / 4, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_Grayscale8);
  };
  const QImage x = smooth(a);
  const QImage y = smooth(b);
  double differs = 0;
  double ink = 0;
  for (int row = 0; row < x.height(); ++row) {
    for (int column = 0; column < x.width(); ++column) {
      const int ours = qGray(x.pixel(column, row));
      const int other = qGray(y.pixel(column, row));
      differs += std::abs(ours - other);
      ink += 255 - other;
    }
  }
  return ink == 0 ? 1 : differs / ink;
}

QByteArray ContentOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

TEST(SvgDrawing, PaintsTheBooksDrawingsAsAnotherReaderDoes) {
  const QString book = QStringLiteral(KORVANE_SOURCE_DIR "/docs/help/");
  int files = 0;
  for (const QString& folder : {book + QStringLiteral("img"), book + QStringLiteral("formulas")}) {
    for (const QString& name : QDir(folder).entryList({QStringLiteral("*.svg")})) {
      const QByteArray file = ContentOf(folder + QLatin1Char('/') + name);
      EXPECT_LT(Difference(ByOurs(file), ByOther(file)), 0.12) << name.toStdString();
      EXPECT_EQ(SvgDrawing(file).ViewBox(), QSvgRenderer(file).viewBoxF()) << name.toStdString();
      ++files;
    }
  }
  EXPECT_GT(files, 90);
}

TEST(SvgDrawing, OfWhatIsNoneIsInvalid) {
  for (const char* text : {"", "<html/>", "no markup"}) {
    EXPECT_FALSE(SvgDrawing(text).IsValid()) << text;
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    SvgDrawing(text).Paint(painter, image.rect());
    EXPECT_EQ(image.pixelColor(1, 1), QColor(Qt::white));
  }
}

/// A half of each colour, so that a wrong place shows.
TEST(SvgDrawing, HandsAGroupsPropertiesOn) {
  const QImage image = ByOurs(
      "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 20 10'>"
      "<g fill='#ff0000'><g transform='translate(10 0)'><rect width='10' height='10'/></g>"
      "<path fill='#0000ff' d='M0 0L10 0L10 10L0 10Z'/></g></svg>");
  EXPECT_EQ(image.pixelColor(100, 50), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(300, 50), QColor(Qt::red));
}

TEST(SvgPaper, WritesWhatIsPaintedOnIt) {
  const auto paint = [](QPaintDevice& device) {
    QPainter painter(&device);
    painter.fillRect(QRect(0, 0, 300, 150), Qt::white);
    painter.translate(20, 10);
    painter.setPen(QPen(Qt::black, 4, Qt::DashLine, Qt::FlatCap));
    painter.drawLine(0, 100, 250, 100);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(200, 0, 0, 128));
    painter.drawEllipse(QRectF(10, 10, 80, 60));
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(Qt::blue, 2));
    painter.drawPolyline(QPolygonF({{120, 10}, {160, 60}, {240, 20}}));
    painter.rotate(10);
    painter.drawRect(QRectF(150, 20, 40, 20));
  };
  SvgPaper paper(QSize(300, 150));
  paint(paper);
  QImage direct(300, 150, QImage::Format_RGB32);
  paint(direct);
  const QByteArray file = QByteArray::fromStdString(paper.Document());
  const QImage expected = direct.scaled(kWidth, kWidth / 2);
  EXPECT_LT(Difference(ByOther(file), expected), 0.08);
  EXPECT_LT(Difference(ByOurs(file), expected), 0.08);
}

TEST(SvgPaper, KeepsTextAsTextWhateverItHolds) {
  SvgPaper paper(QSize(200, 100));
  QPainter painter(&paper);
  QFont font(QStringLiteral("A \"font\""));
  font.setPixelSize(12);
  font.setBold(true);
  painter.setFont(font);
  painter.drawText(QPointF(10, 50), QStringLiteral("a < b & ø"));
  painter.end();
  QXmlStreamReader xml(QByteArray::fromStdString(paper.Document()));
  QString text;
  double size = 0;
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"text") continue;
    size = xml.attributes().value(QLatin1String("font-size")).toDouble();
    EXPECT_EQ(xml.attributes().value(QLatin1String("font-weight")), u"bold");
    text += xml.readElementText();
  }
  EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
  EXPECT_EQ(text, QStringLiteral("a < b & ø"));
  EXPECT_EQ(size, 12);
}

/// The icons of the programs for Windows are painted from the drawings by tools/make_icon.
TEST(WindowsIcons, ShowTheDrawingsInAllSizes) {
  const QString packaging = QStringLiteral(KORVANE_SOURCE_DIR "/packaging/");
  for (const auto& [drawing, icon] :
       {std::pair("korvane", "korvane"), std::pair("application-x-korvane-project", "project")}) {
    const QByteArray file = ContentOf(packaging + QStringLiteral("windows/") + QLatin1String(icon) +
                                      QStringLiteral(".ico"));
    QSvgRenderer svg(packaging + QStringLiteral("icons/") + QLatin1String(drawing) +
                     QStringLiteral(".svg"));
    ASSERT_GT(file.size(), 6) << icon;
    const auto number = [&](qsizetype at, int bytes) {
      quint32 value = 0;
      for (int i = bytes - 1; i >= 0; --i) value = value << 8U | quint8(file[at + i]);
      return value;
    };
    const auto count = static_cast<int>(number(4, 2));
    EXPECT_EQ(count, 8) << icon;
    for (int entry = 0; entry < count; ++entry) {
      const qsizetype at = 6 + 16 * entry;
      const QImage shown = QImage::fromData(file.mid(number(at + 12, 4), number(at + 8, 4)), "PNG");
      const int size = number(at, 1) == 0 ? 256 : static_cast<int>(number(at, 1));
      ASSERT_EQ(shown.size(), QSize(size, size)) << icon;
      QImage drawn(shown.size(), QImage::Format_ARGB32);
      drawn.fill(Qt::transparent);
      QPainter painter(&drawn);
      svg.render(&painter);
      painter.end();
      EXPECT_LT(Difference(shown, drawn), 0.01) << icon << size;
    }
  }
}

}  // namespace
}  // namespace korvane
