// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/svg_reader.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <utility>

namespace korvane {

namespace {

/// The numbers of an attribute, whatever stands between them.
QList<double> Numbers(QStringView text) {
  static const QRegularExpression number(
      QStringLiteral("[-+]?(\\d+\\.?\\d*|\\.\\d+)(e[-+]?\\d+)?"));
  QList<double> numbers;
  for (auto it = number.globalMatch(text); it.hasNext();)
    numbers << it.next().capturedView().toDouble();
  return numbers;
}

/// What a group hands on to what stands in it.
struct Properties {
  QTransform transform;
  QColor fill = Qt::black;
  QColor stroke = Qt::transparent;
  double fillOpacity = 1, strokeOpacity = 1, width = 1, miter = 4, fontSize = 12;
  QList<double> dashes;
  Qt::FillRule rule = Qt::WindingFill;
  Qt::PenCapStyle cap = Qt::FlatCap;
  Qt::PenJoinStyle join = Qt::SvgMiterJoin;
  QString family = QStringLiteral("sans-serif");
  QString anchor = QStringLiteral("start");
  bool bold = false, italic = false;
};

QColor ColourOf(QStringView text) {
  return text == u"none" ? QColor(Qt::transparent) : QColor(text.toString());
}

QTransform TransformOf(const QString& text) {
  const QList<double> n = Numbers(text);
  if (text.startsWith(QLatin1String("matrix")) && n.size() == 6)
    return {n[0], n[1], n[2], n[3], n[4], n[5]};
  if (text.startsWith(QLatin1String("translate")) && !n.isEmpty())
    return QTransform::fromTranslate(n[0], n.value(1));
  return {};
}

void Take(const QXmlStreamAttributes& attributes, Properties& p) {
  for (const QXmlStreamAttribute& attribute : attributes) {
    const QStringView name = attribute.name();
    const QString value = attribute.value().toString();
    if (name == u"transform") p.transform = TransformOf(value) * p.transform;
    if (name == u"fill") p.fill = ColourOf(value);
    if (name == u"stroke") p.stroke = ColourOf(value);
    if (name == u"fill-opacity") p.fillOpacity = value.toDouble();
    if (name == u"stroke-opacity") p.strokeOpacity = value.toDouble();
    if (name == u"stroke-width") p.width = value.toDouble();
    if (name == u"stroke-miterlimit") p.miter = value.toDouble();
    if (name == u"stroke-dasharray") p.dashes = Numbers(value);
    if (name == u"fill-rule") p.rule = value == u"evenodd" ? Qt::OddEvenFill : Qt::WindingFill;
    if (name == u"stroke-linecap")
      p.cap = value == u"square" ? Qt::SquareCap : value == u"round" ? Qt::RoundCap : Qt::FlatCap;
    if (name == u"stroke-linejoin")
      p.join = value == u"bevel"   ? Qt::BevelJoin
               : value == u"round" ? Qt::RoundJoin
                                   : Qt::SvgMiterJoin;
    if (name == u"font-size") p.fontSize = value.toDouble();
    if (name == u"font-family") p.family = value;
    if (name == u"font-weight") p.bold = value == u"bold" || value.toInt() > 500;
    if (name == u"font-style") p.italic = value == u"italic";
    if (name == u"text-anchor") p.anchor = value;
  }
}

QPen PenOf(const Properties& p) {
  if (p.stroke.alpha() == 0) return Qt::NoPen;
  QColor colour = p.stroke;
  colour.setAlphaF(static_cast<float>(colour.alphaF() * p.strokeOpacity));
  QPen pen(colour, p.width, Qt::SolidLine, p.cap, p.join);
  pen.setMiterLimit(p.miter);
  if (!p.dashes.isEmpty() && p.width > 0) {
    QList<qreal> pattern;  // in widths of the line
    for (const double dash : p.dashes) pattern << dash / p.width;
    pen.setDashPattern(pattern);
  }
  return pen;
}

QBrush BrushOf(const Properties& p) {
  if (p.fill.alpha() == 0) return Qt::NoBrush;
  QColor colour = p.fill;
  colour.setAlphaF(static_cast<float>(colour.alphaF() * p.fillOpacity));
  return colour;
}

/// Straight lines and curves from their absolute coordinates.
QPainterPath PathOf(const QString& text) {
  QPainterPath path;
  for (qsizetype at = 0; at < text.size();) {
    const QChar command = text[at];
    qsizetype end = at + 1;
    while (end < text.size() && (!text[end].isLetter() || text[end] == u'e')) ++end;
    const QList<double> n = Numbers(QStringView(text).mid(at + 1, end - at - 1));
    if (command == u'M' && n.size() >= 2) path.moveTo(n[0], n[1]);
    for (qsizetype i = command == u'M' ? 2 : 0;
         (command == u'M' || command == u'L') && i + 1 < n.size(); i += 2)
      path.lineTo(n[i], n[i + 1]);
    for (qsizetype i = 0; command == u'C' && i + 5 < n.size(); i += 6)
      path.cubicTo(n[i], n[i + 1], n[i + 2], n[i + 3], n[i + 4], n[i + 5]);
    if (command == u'Z') path.closeSubpath();
    at = end;
  }
  return path;
}

/// The outline of an element; nothing for one that has none.
QPainterPath OutlineOf(QStringView element, const QXmlStreamAttributes& attributes) {
  const auto number = [&](const char* name) {
    return attributes.value(QLatin1String(name)).toDouble();
  };
  QPainterPath path;
  if (element == u"path") return PathOf(attributes.value(QLatin1String("d")).toString());
  if (element == u"line") {
    path.moveTo(number("x1"), number("y1"));
    path.lineTo(number("x2"), number("y2"));
  } else if (element == u"rect") {
    path.addRect(number("x"), number("y"), number("width"), number("height"));
  } else if (element == u"circle") {
    path.addEllipse(QPointF(number("cx"), number("cy")), number("r"), number("r"));
  } else if (element == u"ellipse") {
    path.addEllipse(QPointF(number("cx"), number("cy")), number("rx"), number("ry"));
  } else if (element == u"polyline" || element == u"polygon") {
    const QList<double> n = Numbers(attributes.value(QLatin1String("points")));
    for (qsizetype i = 0; i + 1 < n.size(); i += 2)
      i == 0 ? path.moveTo(n[0], n[1]) : path.lineTo(n[i], n[i + 1]);
    if (element == u"polygon") path.closeSubpath();
  }
  return path;
}

void PaintText(QPainter& painter, const Properties& p, QPointF at, const QString& text) {
  // Letters are measured at a size at which no whole pixels matter.
  constexpr int large = 100;
  QFont font(p.family);
  font.setStyleHint(QFont::SansSerif);
  font.setPixelSize(large);
  font.setBold(p.bold);
  font.setItalic(p.italic);
  font.setHintingPreference(QFont::PreferNoHinting);
  const double width = QFontMetricsF(font).horizontalAdvance(text);
  painter.save();
  painter.setFont(font);
  painter.setPen(BrushOf(p).color());
  painter.translate(at);
  painter.scale(p.fontSize / large, p.fontSize / large);
  const double left = p.anchor == u"middle" ? -width / 2 : p.anchor == u"end" ? -width : 0;
  painter.drawText(QPointF(left, 0), text);
  painter.restore();
}

}  // namespace

SvgDrawing::SvgDrawing(QByteArray file) : file_(std::move(file)) {
  QXmlStreamReader xml(file_);
  if (!xml.readNextStartElement() || xml.name() != u"svg") return;
  const QXmlStreamAttributes attributes = xml.attributes();
  const QList<double> box = Numbers(attributes.value(QLatin1String("viewBox")));
  const QSizeF told(attributes.value(QLatin1String("width")).toDouble(),
                    attributes.value(QLatin1String("height")).toDouble());
  view_ = box.size() == 4 ? QRectF(box[0], box[1], box[2], box[3]) : QRectF(QPointF(0, 0), told);
  // Millimetres and the like are no pixels, and nobody asks for them.
  size_ = told.isEmpty() ? view_.size() : told;
}

void SvgDrawing::Paint(QPainter& painter, const QRectF& into) const {
  if (!IsValid()) return;
  painter.save();
  painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
  painter.translate(into.topLeft());
  painter.scale(into.width() / view_.width(), into.height() / view_.height());
  painter.translate(-view_.topLeft());
  const QTransform ground = painter.transform();
  QList<Properties> open{Properties()};
  QXmlStreamReader xml(file_);
  while (!xml.atEnd()) {
    const QXmlStreamReader::TokenType token = xml.readNext();
    if (token == QXmlStreamReader::EndElement) open.removeLast();
    if (token != QXmlStreamReader::StartElement) continue;
    const QXmlStreamAttributes attributes = xml.attributes();
    const QString element = xml.name().toString();
    open << open.last();
    Properties& p = open.last();
    Take(attributes, p);
    painter.setTransform(p.transform * ground);
    painter.setPen(PenOf(p));
    painter.setBrush(BrushOf(p));
    if (element == u"text") {
      const QPointF at(attributes.value(QLatin1String("x")).toDouble(),
                       attributes.value(QLatin1String("y")).toDouble());
      PaintText(painter, p, at, xml.readElementText(QXmlStreamReader::IncludeChildElements));
      open.removeLast();  // its end has been read
      continue;
    }
    QPainterPath outline = OutlineOf(element, attributes);
    if (outline.isEmpty()) continue;
    outline.setFillRule(p.rule);
    painter.drawPath(outline);
  }
  painter.restore();
}

}  // namespace korvane
