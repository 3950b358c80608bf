// SPDX-License-Identifier: GPL-3.0-or-later
// One diagram or the section's figure as a job, by the word that the command line knows it by.
#pragma once

#include <algorithm>
#include <array>
#include <span>
#include <string_view>
#include <vector>

#include "core/calculation.h"
#include "front/painter/paint_files.h"
#include "presentation/figures.h"
#include "presentation/grafik.h"

namespace korvane {

/// What can be drawn, and the diagrams behind a word; none stand for the section's figure.
struct Drawing {
  const char* word;
  std::vector<DiagramKind> diagrams;
};

inline std::span<const Drawing> AllDrawings() {
  using K = DiagramKind;
  static const std::vector<Drawing> all{
      {"beam", {K::BeamSketch}},
      {"loads-z", {K::LoadPermZ, K::LoadVarZ}},
      {"loads-y", {K::LoadPermY, K::LoadVarY}},
      {"my", {K::MomentShearZ}},
      {"mz", {K::MomentShearY}},
      {"dz", {K::DeflectionZ}},
      {"dy", {K::DeflectionY}},
      {"axial", {K::AxialPermanent, K::AxialVariable}},
      {"section", {}},
  };
  return all;
}

/// The drawing of a word, or nullptr.
inline const Drawing* FindDrawing(std::string_view word) {
  const auto all = AllDrawings();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Drawing& d) { return word == d.word; });
  return found == all.end() ? nullptr : &*found;
}

/// Why a member has no such drawing, empty where it has: end forces give no loads and no
/// deflections.
inline std::string_view WhyNotDrawn(const Drawing& drawing, const ProjectState& st) {
  using K = DiagramKind;
  if (st.AnalysisMode == 1 || drawing.diagrams.empty()) return {};
  const K first = drawing.diagrams.front();
  const bool deflections = first == K::DeflectionZ || first == K::DeflectionY;
  if (deflections) return "no deflections to draw: the project gives end forces";
  const bool loads = first == K::LoadPermZ || first == K::LoadPermY;
  return loads ? "no loads to draw: the project gives end forces" : "";
}

/// In end-force mode moments and the axial force have diagrams of their own.
inline std::vector<DiagramKind> DiagramsFor(const Drawing& drawing, const ProjectState& st) {
  using K = DiagramKind;
  if (st.AnalysisMode == 1) return drawing.diagrams;
  if (drawing.diagrams.front() == K::MomentShearZ) return {K::EndMomentZ};
  if (drawing.diagrams.front() == K::MomentShearY) return {K::EndMomentY};
  if (drawing.diagrams.front() == K::AxialPermanent) return {K::AxialForce};
  return drawing.diagrams;
}

/// The drawing of a calculated member that has it, one page. The design must outlive the job.
inline PaintJob DrawingJob(const Design& design, const Drawing& drawing) {
  constexpr double margin = 12;  // points on all sides
  PaintJob job;
  job.title = std::string("KORVANE - ") + drawing.word + " - " + design.st.iproj;
  if (drawing.diagrams.empty()) {
    job.width = 320;
    job.height = 320;
    job.pages.emplace_back([&design, width = job.width, height = job.height](DrawingTarget& t) {
      DrawSectionFigure(t, Box{margin, margin, width - margin, height - margin}, Destination::Page,
                        design.st, design.rec, FigureOptions{});
    });
    return job;
  }
  constexpr double scale = 6;  // points per grid unit
  const auto dataOf = [](const Design& d) {
    return DiagramData{d.st, d.beam, d.deflections, d.forces.N};
  };
  const auto kinds = DiagramsFor(drawing, design.st);
  job.width = kPictureWidth * scale + 2 * margin;
  job.height = 2 * margin;
  for (const DiagramKind kind : kinds) {
    job.height += DiagramHeight(kind, dataOf(design), DiagramStyle{}) * scale;
  }
  job.pages.emplace_back([&design, kinds, dataOf, width = job.width](DrawingTarget& t) {
    const DiagramData data = dataOf(design);
    double top = margin;
    for (const DiagramKind kind : kinds) {
      const double height = DiagramHeight(kind, data, DiagramStyle{}) * scale;
      DrawDiagramIn(t, kind, Box{margin, top, width - margin, top + height}, Destination::Page,
                    data, DiagramStyle{});
      top += height;
    }
  });
  return job;
}

}  // namespace korvane
