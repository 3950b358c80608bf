// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/desktop/svg_paper.h"

#include <QBuffer>
#include <QFontMetricsF>
#include <QPaintEngine>
#include <QPainterPath>
#include <QPen>
#include <QPixmap>
#include <QtMath>

#include "presentation/svg_target.h"

namespace korvane {

namespace {

constexpr int kDotsPerInch = 96;
constexpr double kMillimetresPerInch = 25.4;

std::string Attribute(const char* name, double value) {
  return std::string(" ") + name + "=\"" + SvgNumber(value) + '"';
}

/// A colour as the attribute of that name, with its opacity.
std::string Painted(const std::string& name, const QColor& colour) {
  std::string text = " " + name + "=\"" + colour.name().toStdString() + '"';
  if (colour.alpha() != 255) text += Attribute((name + "-opacity").c_str(), colour.alphaF());
  return text;
}

std::string PathData(const QPainterPath& path) {
  std::string data;
  const auto point = [&](int i) {
    const QPainterPath::Element e = path.elementAt(i);
    data += SvgNumber(e.x) + ' ' + SvgNumber(e.y) + ' ';
  };
  for (int i = 0; i < path.elementCount(); ++i) {
    const QPainterPath::ElementType type = path.elementAt(i).type;
    if (type == QPainterPath::MoveToElement) data += 'M';
    if (type == QPainterPath::LineToElement) data += 'L';
    if (type == QPainterPath::CurveToElement) data += 'C';
    point(i);
  }
  if (!data.empty()) data.pop_back();
  return data;
}

}  // namespace

/// Writes each drawing as an element, with all that the painter's state says of it.
class SvgEngine : public QPaintEngine {
public:
  SvgEngine()
      : QPaintEngine(QPaintEngine::AllFeatures &
                     ~(PatternBrush | PerspectiveTransform | ConicalGradientFill | PorterDuff |
                       LinearGradientFill | RadialGradientFill | ObjectBoundingModeGradients)) {}

  const std::string& Body() const { return body_; }

  bool begin(QPaintDevice*) override { return true; }
  bool end() override { return true; }
  Type type() const override { return QPaintEngine::User; }

  void updateState(const QPaintEngineState& now) override {
    const DirtyFlags changed = now.state();
    if ((changed & DirtyPen) != 0) pen_ = now.pen();
    if ((changed & DirtyBrush) != 0) brush_ = now.brush();
    if ((changed & DirtyTransform) != 0) transform_ = now.transform();
    if ((changed & DirtyOpacity) != 0) opacity_ = now.opacity();
  }

  void drawPath(const QPainterPath& path) override {
    const bool filled = brush_.style() != Qt::NoBrush;
    body_ += "<path d=\"" + PathData(path) + '"';
    body_ += filled ? Painted("fill", brush_.color()) : std::string(" fill=\"none\"");
    if (path.fillRule() == Qt::OddEvenFill) body_ += " fill-rule=\"evenodd\"";
    body_ += Stroke() + Place() + "/>\n";
  }

  void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override {
    QPainterPath path;
    for (int i = 0; i < count; ++i) i == 0 ? path.moveTo(points[i]) : path.lineTo(points[i]);
    path.setFillRule(mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
    const QBrush brush = brush_;
    if (mode == PolylineMode) {
      brush_ = Qt::NoBrush;
    } else {
      path.closeSubpath();
    }
    drawPath(path);
    brush_ = brush;
  }

  void drawTextItem(const QPointF& at, const QTextItem& item) override {
    const QFont font = item.font();
    const double size =
        font.pixelSize() > 0 ? font.pixelSize() : font.pointSizeF() * kDotsPerInch / 72;
    body_ += "<text" + Attribute("x", at.x()) + Attribute("y", at.y()) + " font-family=\"" +
             XmlText(font.family().toStdString()) + "\"" + Attribute("font-size", size);
    if (font.bold()) body_ += " font-weight=\"bold\"";
    if (font.italic()) body_ += " font-style=\"italic\"";
    if (font.underline()) body_ += " text-decoration=\"underline\"";
    // Wherever other letters stand in for these, the text keeps its room.
    body_ += Attribute("textLength", item.width()) + " xml:space=\"preserve\"" +
             Painted("fill", pen_.color()) + Place() + '>' + XmlText(item.text().toStdString()) +
             "</text>\n";
  }

  void drawPixmap(const QRectF& into, const QPixmap& picture, const QRectF& part) override {
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    picture.copy(part.toRect()).save(&bytes, "PNG");
    body_ += "<image" + Attribute("x", into.x()) + Attribute("y", into.y()) +
             Attribute("width", into.width()) + Attribute("height", into.height()) + Place() +
             " href=\"data:image/png;base64," + bytes.data().toBase64().toStdString() + "\"/>\n";
  }

private:
  std::string Stroke() const {
    if (pen_.style() == Qt::NoPen) return {};
    // A pen without a width is one pixel wide.
    const double width = pen_.widthF() > 0 ? pen_.widthF() : 1;
    std::string text = Painted("stroke", pen_.color()) + Attribute("stroke-width", width);
    if (pen_.capStyle() == Qt::RoundCap) text += " stroke-linecap=\"round\"";
    if (pen_.capStyle() == Qt::SquareCap) text += " stroke-linecap=\"square\"";
    if (pen_.joinStyle() == Qt::RoundJoin) text += " stroke-linejoin=\"round\"";
    if (pen_.joinStyle() == Qt::BevelJoin) text += " stroke-linejoin=\"bevel\"";
    if (pen_.style() == Qt::SolidLine) return text;
    std::string dashes;
    for (const double dash : pen_.dashPattern()) dashes += SvgNumber(dash * width) + ' ';
    if (!dashes.empty()) dashes.pop_back();
    return text + " stroke-dasharray=\"" + dashes + '"';
  }

  std::string Place() const {
    std::string text;
    if (opacity_ < 1) text += Attribute("opacity", opacity_);
    const QTransform& t = transform_;
    if (t.isIdentity()) return text;
    std::string numbers;
    for (const double n : {t.m11(), t.m12(), t.m21(), t.m22(), t.dx(), t.dy()})
      numbers += SvgNumber(n) + ' ';
    numbers.pop_back();
    return text + " transform=\"matrix(" + numbers + ")\"";
  }

  std::string body_;
  QPen pen_;
  QBrush brush_;
  QTransform transform_;
  double opacity_ = 1;
};

SvgPaper::SvgPaper(QSize size) : size_(size), engine_(std::make_unique<SvgEngine>()) {}

SvgPaper::~SvgPaper() = default;

QPaintEngine* SvgPaper::paintEngine() const {
  return engine_.get();
}

std::string SvgPaper::Document() const {
  const std::string w = std::to_string(size_.width());
  const std::string h = std::to_string(size_.height());
  return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
         "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" +
         w + "\" height=\"" + h + "\" viewBox=\"0 0 " + w + " " + h + "\">\n" + engine_->Body() +
         "</svg>\n";
}

int SvgPaper::metric(PaintDeviceMetric metric) const {
  switch (metric) {
    case PdmWidth:
      return size_.width();
    case PdmHeight:
      return size_.height();
    case PdmWidthMM:
      return qRound(size_.width() * kMillimetresPerInch / kDotsPerInch);
    case PdmHeightMM:
      return qRound(size_.height() * kMillimetresPerInch / kDotsPerInch);
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
      return kDotsPerInch;
    case PdmDepth:
      return 32;
    case PdmNumColors:
      return 1 << 24;
    case PdmDevicePixelRatio:
      return 1;
    case PdmDevicePixelRatioScaled:
      return static_cast<int>(devicePixelRatioFScale());
    default:
      return QPaintDevice::metric(metric);
  }
}

}  // namespace korvane
