// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/paint.h"

#include <CLI/CLI.hpp>
#include <array>
#include <ctime>
#include <filesystem>
#include <iostream>

#include "core/file_path.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/pictures.h"
#include "front/console/run_design.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"
#include "front/painter/drawing_job.h"
#include "front/painter/report_job.h"
#include "front/system.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

struct Arguments {
  std::string file, kind = "control", what, output, format, data;
};

/// The design of the file, or the exit status that says why there is none. bytes gets the file as
/// it was read.
int Prepare(const Arguments& a, Design& design, std::string* bytes = nullptr) {
  DesignRun run = RunProject(design, a.file);
  if (bytes != nullptr) *bytes = std::move(run.bytes);
  if (run.file != FileResult::Ok) {
    std::cerr << FileMessage(run.file, NameOnErrors(a.file)) << "\n";
    return kBadInput;
  }
  for (const std::string& remark : run.remarks) std::cerr << remark << "\n";
  if (run.fault) {
    std::cerr << FaultText(run.what) << "\n";
    return kArithmeticFailure;
  }
  return kAllPass;
}

/// Paints and writes. Returns the exit status, after a word where something failed.
int Finish(const PaintJob& job, const Arguments& a, PictureFormat onStandardOutput) {
  return WritePictures(job, {a.output, a.format}, onStandardOutput, {{a.file}}, std::cout,
                       std::cerr);
}

int RunReport(const Arguments& a) {
  Design design = StartedDesign(ReadLibrary(FindDataFolder(a.data)));
  std::string bytes;
  if (const int status = Prepare(a, design, &bytes)) return status;
  const std::string name =
      a.file == kStandardStream ? "project.kvn" : FileName(FilePath(a.file).filename());
  const PaintJob job =
      ReportJob(design, FindSheets(a.kind)->reports, TimeOfPrint(), {name, std::move(bytes)});
  if (const int status = Finish(job, a, PictureFormat::Pdf)) return status;
  return StatusOf(VerdictOf(design));
}

int RunDraw(const Arguments& a) {
  const Drawing& drawing = *FindDrawing(a.what);
  Design design = StartedDesign(ReadLibrary(FindDataFolder(a.data)));
  if (const int status = Prepare(a, design)) return status;
  if (const auto why = WhyNotDrawn(drawing, design.st); !why.empty()) {
    std::cerr << why << " - " << NameOnErrors(a.file) << "\n";
    return kBadInput;
  }
  return Finish(DrawingJob(design, drawing), a, PictureFormat::Svg);
}

}  // namespace

void AddPaintCommands(CLI::App& app, int& status) {
  const auto a = std::make_shared<Arguments>();
  const auto common = [&a](CLI::App* command) {
    command->add_option("file", a->file, "project file (*.kvn); - is the standard input")
        ->required();
    command
        ->add_option("-o,--output", a->output,
                     "file to write: .pdf, .svg or .png; - is the standard output")
        ->required();
    command->add_option("--format", a->format, "pdf, svg or png, whatever the file's name")
        ->check(CLI::IsMember({"pdf", "svg", "png"}));
    command->add_option("--data", a->data, "folder of the data files");
  };
  CLI::App* report = app.add_subcommand("report", "write a report of the project");
  common(report);
  std::vector<std::string> kinds;
  for (const Sheets& s : AllSheets()) kinds.emplace_back(s.word);
  report
      ->add_option("--kind", a->kind,
                   "section, control, checker (every number unrounded), both reports, or all "
                   "sheets: the pages of a PDF, or OUT-1, OUT-2 and OUT-3")
      ->check(CLI::IsMember(kinds));
  report->callback([a, &status] { status = RunReport(*a); });

  CLI::App* draw = app.add_subcommand("draw", "write a diagram or the section's figure");
  common(draw);
  std::vector<std::string> words;
  for (const Drawing& d : AllDrawings()) words.emplace_back(d.word);
  draw->add_option("--what", a->what, "what to draw")->required()->check(CLI::IsMember(words));
  draw->callback([a, &status] { status = RunDraw(*a); });
}

}  // namespace korvane
