// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/recording_target.h"

#include <cmath>

#include "core/numeric.h"
#include "presentation/text_metrics.h"

namespace korvane {
namespace {

Box BoundsOf(const std::vector<std::vector<Point>>& outlines) {
  std::optional<Box> box;
  for (const std::vector<Point>& outline : outlines) {
    for (const Point& p : outline) {
      if (!box) box = Box{p.x, p.y, p.x, p.y};
      box->Include(p);
    }
  }
  return box.value_or(Box{});
}

// Bounds of an arc: its two ends and each quarter point that it passes.
Box ArcBounds(Point c, double r, double start, double sweep) {
  const auto at = [&](double degrees) {
    const double a = degrees * kPi / 180;
    return Point{c.x + r * std::cos(a), c.y - r * std::sin(a)};
  };
  const Point first = at(start);
  Box box{first.x, first.y, first.x, first.y};
  box.Include(at(start + sweep));
  const double low = std::min(start, start + sweep);
  const double high = std::max(start, start + sweep);
  for (double q = std::ceil(low / 90) * 90; q <= high; q += 90) box.Include(at(q));
  return box;
}

}  // namespace

std::vector<const RecordedShape*> RecordingTarget::OfKind(ShapeKind kind) const {
  std::vector<const RecordedShape*> found;
  for (const RecordedShape& s : shapes_) {
    if (s.kind == kind) found.push_back(&s);
  }
  return found;
}

std::vector<std::string> RecordingTarget::Texts() const {
  std::vector<std::string> texts;
  for (const RecordedShape* s : OfKind(ShapeKind::Text)) texts.push_back(s->text);
  return texts;
}

int RecordingTarget::Count(std::string_view text) const {
  int count = 0;
  for (const RecordedShape* s : OfKind(ShapeKind::Text)) count += s->text == text ? 1 : 0;
  return count;
}

const RecordedShape* RecordingTarget::FindText(std::string_view text) const {
  for (const RecordedShape* s : OfKind(ShapeKind::Text)) {
    if (s->text == text) return s;
  }
  return nullptr;
}

std::vector<const RecordedShape*> RecordingTarget::WithPoints(ShapeKind kind,
                                                              std::size_t points) const {
  std::vector<const RecordedShape*> found;
  for (const RecordedShape* s : OfKind(kind)) {
    if (!s->outlines.empty() && s->Points().size() == points) found.push_back(s);
  }
  return found;
}

std::optional<Box> RecordingTarget::Bounds() const {
  std::optional<Box> box;
  for (const RecordedShape& s : shapes_) {
    if (!box) box = s.box;
    box->Include(s.box);
  }
  return box;
}

std::vector<std::pair<std::string, std::string>> RecordingTarget::OverlappingTexts(
    double tolerance) const {
  std::vector<const RecordedShape*> texts;
  for (const RecordedShape* s : OfKind(ShapeKind::Text)) {
    if (s->text.find_first_not_of(' ') != std::string::npos) texts.push_back(s);
  }
  std::vector<std::pair<std::string, std::string>> pairs;
  for (std::size_t i = 0; i < texts.size(); ++i) {
    for (std::size_t j = i + 1; j < texts.size(); ++j) {
      if (texts[i]->box.Overlaps(texts[j]->box, tolerance)) {
        pairs.emplace_back(texts[i]->text, texts[j]->text);
      }
    }
  }
  return pairs;
}

void RecordingTarget::OnText(Point topLeft, const std::string& text, double width,
                             const TextStyle& style) {
  RecordedShape s;
  s.kind = ShapeKind::Text;
  s.text = text;
  s.style = style;
  s.box = Box::At(topLeft.x, topLeft.y, width, (kArialAscent + kArialDescent) * style.size);
  shapes_.push_back(std::move(s));
}

void RecordingTarget::OnPath(const std::vector<std::vector<Point>>& outlines, bool closed,
                             const Stroke& stroke, const Fill& fill) {
  RecordedShape s;
  s.kind = closed ? ShapeKind::Polygon : ShapeKind::Line;
  s.outlines = outlines;
  s.stroke = stroke;
  s.fill = fill;
  s.box = BoundsOf(outlines);
  shapes_.push_back(std::move(s));
}

void RecordingTarget::OnEllipse(Point centre, double rx, double ry, const Stroke& stroke,
                                const Fill& fill) {
  RecordedShape s;
  s.kind = ShapeKind::Ellipse;
  s.centre = centre;
  s.rx = rx;
  s.ry = ry;
  s.stroke = stroke;
  s.fill = fill;
  s.box = {centre.x - rx, centre.y - ry, centre.x + rx, centre.y + ry};
  shapes_.push_back(std::move(s));
}

void RecordingTarget::OnArc(Point centre, double radius, double start, double sweep,
                            const Stroke& stroke) {
  RecordedShape s;
  s.kind = ShapeKind::Arc;
  s.centre = centre;
  s.rx = s.ry = radius;
  s.start = start;
  s.sweep = sweep;
  s.stroke = stroke;
  s.box = ArcBounds(centre, radius, start, sweep);
  shapes_.push_back(std::move(s));
}

}  // namespace korvane
