// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/pane_text.h"

namespace korvane {

namespace {

/// Keeps the texts of a drawing, blank ones left out, joined by " | ".
class TextTarget : public DrawingTarget {
public:
  void Clear() override { text.clear(); }
  std::string text;

protected:
  void OnText(Point, const std::string& part, double, const TextStyle&) override {
    if (part.find_first_not_of(' ') == std::string::npos) return;
    if (!text.empty()) text += " | ";
    text += part;
  }
  void OnPath(const std::vector<std::vector<Point>>&, bool, const Stroke&, const Fill&) override {}
  void OnEllipse(Point, double, double, const Stroke&, const Fill&) override {}
  void OnArc(Point, double, double, double, const Stroke&) override {}
};

}  // namespace

std::optional<DiagramKind> DiagramOfPane(const ProjectState& st, const std::string& pane) {
  for (const DiagramKind kind : DiagramsOfMode(st)) {
    if (InfoOf(kind).control == pane) return kind;
  }
  return std::nullopt;
}

DiagramData DiagramDataOf(const Design& d) {
  return {d.st, d.beam, d.deflections, d.forces.N};
}

bool PlaneFolds(const Design& d, Plane plane) {
  const bool z = PlaneIsEmpty(d.st, d.beam, Plane::Z);
  const bool y = PlaneIsEmpty(d.st, d.beam, Plane::Y);
  return plane == Plane::Y ? y : z && !y;
}

std::string PaneText(const Design& design, const std::string& pane) {
  const auto kind = DiagramOfPane(design.st, pane);
  if (!kind) return {};
  TextTarget target;
  DrawDiagram(target, *kind, {}, DiagramDataOf(design), {});
  return std::move(target.text);
}

std::string ValueUnderPointer(const Design& design, const std::string& pane, double relative) {
  const auto kind = DiagramOfPane(design.st, pane);
  return kind ? ValueUnderPointer(*kind, relative, DiagramDataOf(design)) : std::string();
}

}  // namespace korvane
