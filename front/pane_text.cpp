// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/pane_text.h"

#include "presentation/recording_target.h"

namespace korvane {

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
  RecordingTarget target;
  DrawDiagram(target, *kind, {}, DiagramDataOf(design), {});
  std::string text;
  for (const std::string& part : target.Texts()) {
    if (part.find_first_not_of(' ') == std::string::npos) continue;
    text += (text.empty() ? "" : " | ") + part;
  }
  return text;
}

std::string ValueUnderPointer(const Design& design, const std::string& pane, double relative) {
  const auto kind = DiagramOfPane(design.st, pane);
  return kind ? ValueUnderPointer(*kind, relative, DiagramDataOf(design)) : std::string();
}

}  // namespace korvane
