// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/paint.h"

#include <dlfcn.h>

#include <CLI/CLI.hpp>
#include <array>
#include <ctime>
#include <filesystem>
#include <iostream>

#include "front/console/data_folder.h"
#include "front/console/exit_status.h"
#include "front/console/run_design.h"
#include "front/painter/paint_files.h"
#include "presentation/aprint.h"
#include "presentation/figures.h"
#include "presentation/grafik.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Paints through the loadable module beside the program or in the library folder.
std::string Paint(const PaintJob& job) {
  std::error_code ignored;
  const fs::path here = fs::read_symlink("/proc/self/exe", ignored).parent_path();
  for (const fs::path& folder : {here, here / KORVANE_MODULE_FROM_BIN}) {
    const fs::path module = folder / kPaintModule;
    if (!fs::exists(module, ignored)) continue;
    void* handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) return std::string("can't load the painter: ") + dlerror();
    const auto entry = reinterpret_cast<PaintEntry>(dlsym(handle, kPaintEntry));
    if (entry == nullptr) return std::string("can't load the painter: ") + dlerror();
    std::string error;
    entry(&job, &error);
    return error;
  }
  return std::string("the painter ") + kPaintModule + " is not installed";
}

ReportTime Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
  localtime_r(&now, &local);
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min};
}

struct Arguments {
  std::string file, kind = "control", what, output, data;
};

/// The design of the file, or the exit status that says why there is none.
int Prepare(const Arguments& a, Design& design) {
  const DesignRun run = RunProject(design, a.file);
  if (run.file != FileResult::Ok) {
    std::cerr << FileMessage(run.file, a.file) << "\n";
    return kBadInput;
  }
  if (run.fault) {
    std::cerr << "arithmetic failure in " << run.what << "\n";
    return kArithmeticFailure;
  }
  return kAllPass;
}

int Finish(const PaintJob& job) {
  const std::string error = Paint(job);
  if (error.empty()) return kAllPass;
  std::cerr << error << "\n";
  return kBadInput;
}

/// The sheets behind a word.
struct Sheets {
  const char* word;
  std::vector<Report> reports;
};

const std::vector<Sheets>& AllSheets() {
  using enum Report;
  static const std::vector<Sheets> all{
      {"section", {SectionProperty}},
      {"control", {SectionAndStability}},
      {"checker", {Checker}},
      {"both", {SectionProperty, SectionAndStability}},
      {"all", {SectionProperty, SectionAndStability, Checker}},
  };
  return all;
}

const std::vector<Report>& ReportsOf(const std::string& kind) {
  const auto& all = AllSheets();
  return std::find_if(all.begin(), all.end(), [&](const Sheets& s) { return kind == s.word; })
      ->reports;
}

int RunReport(const Arguments& a) {
  Design design = StartedDesign(ReadLibrary(FindDataFolder(a.data)));
  if (const int status = Prepare(a, design)) return status;
  PaintJob job;
  job.path = a.output;
  job.width = kPageWidth;
  job.height = kPageHeight;
  const ReportTime time = Now();
  for (const Report report : ReportsOf(a.kind)) {
    job.title = ReportTitle(report);
    job.pages.emplace_back(
        [&design, report, time](DrawingTarget& page) { DrawReport(page, report, design, time); });
  }
  job.title += " - " + design.st.iproj + " - " + design.st.iident;
  job.attachmentName = fs::path(a.file).filename().string();
  job.attachment = ProjectText(design.st);
  return Finish(job);
}

/// What can be drawn, and the diagrams behind a word.
struct Drawing {
  const char* word;
  std::vector<DiagramKind> diagrams;
};

const std::vector<Drawing>& Drawings() {
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

/// In end-force mode moments and the axial force have diagrams of their own.
std::vector<DiagramKind> ForMode(std::vector<DiagramKind> kinds, bool loads) {
  if (loads) return kinds;
  using K = DiagramKind;
  if (kinds.front() == K::MomentShearZ) return {K::EndMomentZ};
  if (kinds.front() == K::MomentShearY) return {K::EndMomentY};
  if (kinds.front() == K::AxialPermanent) return {K::AxialForce};
  return kinds;
}

int RunDraw(const Arguments& a) {
  const auto& all = Drawings();
  const auto drawing =
      std::find_if(all.begin(), all.end(), [&](const Drawing& d) { return a.what == d.word; });
  Design design = StartedDesign(ReadLibrary(FindDataFolder(a.data)));
  if (const int status = Prepare(a, design)) return status;
  PaintJob job;
  job.path = a.output;
  job.title = "KORVANE - " + a.what + " - " + design.st.iproj;
  const DiagramStyle style;
  const DiagramData data{design.st, design.beam, design.deflections, design.forces.N};
  if (drawing->diagrams.empty()) {
    job.width = 320;
    job.height = 320;
    job.pages.emplace_back([&](DrawingTarget& t) {
      DrawSectionFigure(t, Box{0, 0, job.width, job.height}, Destination::Page, design.st,
                        design.rec, FigureOptions{});
    });
    return Finish(job);
  }
  constexpr double scale = 6;  // points per grid unit
  const auto kinds = ForMode(drawing->diagrams, design.st.AnalysisMode == 1);
  job.width = kPictureWidth * scale;
  for (const DiagramKind kind : kinds) job.height += DiagramHeight(kind, data, style) * scale;
  job.height = std::max(job.height, 10.0);
  job.pages.emplace_back([&](DrawingTarget& t) {
    double top = 0;
    for (const DiagramKind kind : kinds) {
      const double height = DiagramHeight(kind, data, style) * scale;
      DrawDiagramIn(t, kind, Box{0, top, job.width, top + height}, Destination::Page, data, style);
      top += height;
    }
  });
  return Finish(job);
}

}  // namespace

void AddPaintCommands(CLI::App& app, int& status) {
  const auto a = std::make_shared<Arguments>();
  const auto common = [&a](CLI::App* command) {
    command->add_option("file", a->file, "project file (*.kvn)")->required();
    command->add_option("-o,--output", a->output, "file to write: .pdf, .svg or .png")->required();
    command->add_option("--data", a->data, "folder of the data files");
  };
  CLI::App* report = app.add_subcommand("report", "write a report of the project");
  common(report);
  std::vector<std::string> kinds;
  for (const Sheets& s : AllSheets()) kinds.emplace_back(s.word);
  report
      ->add_option("--kind", a->kind,
                   "section, control, checker (all numbers unrounded), both reports or all sheets "
                   "in one PDF")
      ->check(CLI::IsMember(kinds));
  report->callback([a, &status] { status = RunReport(*a); });

  CLI::App* draw = app.add_subcommand("draw", "write a diagram or the section's figure");
  common(draw);
  std::vector<std::string> words;
  for (const Drawing& d : Drawings()) words.emplace_back(d.word);
  draw->add_option("--what", a->what, "what to draw")->required()->check(CLI::IsMember(words));
  draw->callback([a, &status] { status = RunDraw(*a); });
}

}  // namespace korvane
