// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/paint.h"

#include <CLI/CLI.hpp>
#include <array>
#include <ctime>
#include <filesystem>
#include <iostream>
#include <optional>

#include "core/file_path.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/painter_module.h"
#include "front/console/run_design.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"
#include "front/painter/report_job.h"
#include "front/system.h"
#include "presentation/aprint.h"
#include "presentation/figures.h"
#include "presentation/grafik.h"
#include "presentation/svg_target.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Paints through the loadable module. Returns an empty text, or what went wrong.
std::string PaintByModule(const PaintJob& job, std::string& bytes) {
  std::string error;
  if (const PaintEntry paint = LoadPainter(error)) paint(&job, &bytes, &error);
  return error;
}

ReportTime Now() {
  const std::tm local = LocalTime(std::time(nullptr));
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min};
}

struct Arguments {
  std::string file, kind = "control", what, output, format, data;
};

enum class Format { Pdf, Svg, Png };

struct FormatWord {
  const char* word;
  Format format;
};

constexpr std::array kFormats{FormatWord{"pdf", Format::Pdf}, FormatWord{"svg", Format::Svg},
                              FormatWord{"png", Format::Png}};

/// The format asked for, else that of the output's ending; nothing for any other ending.
std::optional<Format> FormatOf(const Arguments& a, Format onStandardOutput) {
  std::string word = a.format;
  if (word.empty()) {
    if (a.output == kStandardStream) return onStandardOutput;
    word = FileName(FilePath(a.output).extension());
    word.erase(0, 1);
    for (char& c : word)
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  for (const FormatWord& format : kFormats)
    if (word == format.word) return format.format;
  return std::nullopt;
}

/// One file that a command has made.
struct Made {
  std::string path, bytes;
};

/// OUT-N.EXT for a page of several.
std::string PagePath(const std::string& path, std::size_t number) {
  const fs::path whole = FilePath(path);
  const std::string name =
      FileName(whole.stem()) + "-" + std::to_string(number) + FileName(whole.extension());
  return FileName(whole.parent_path() / FilePath(name));
}

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

/// One page in its format. Returns an empty text, or what went wrong.
std::string PaintPage(const PaintJob& job, Format format, std::size_t page, std::string& bytes) {
  if (format == Format::Svg) {
    SvgTarget target(job.width, job.height, job.title, Palette::Light());
    job.pages.at(page)(target);
    bytes = target.Document();
    return {};
  }
  PaintJob one = job;
  one.format = PaintFormat::Png;
  one.pages = {job.pages.at(page)};
  return PaintByModule(one, bytes);
}

/// Paints everything before anything is written: a PDF holds all pages, a picture one.
std::string PaintAll(const PaintJob& job, Format format, const std::string& output,
                     std::vector<Made>& made) {
  if (format == Format::Pdf) return PaintByModule(job, made.emplace_back(Made{output, {}}).bytes);
  const bool several = job.pages.size() > 1;
  for (std::size_t page = 0; page < job.pages.size(); ++page) {
    Made& file = made.emplace_back(Made{several ? PagePath(output, page + 1) : output, {}});
    const std::string error = PaintPage(job, format, page, file.bytes);
    if (!error.empty()) return error;
  }
  return {};
}

/// Paints and writes. Returns the exit status, after a word where something failed.
int Finish(const PaintJob& job, const Arguments& a, Format onStandardOutput) {
  const auto format = FormatOf(a, onStandardOutput);
  if (!format) {
    std::cerr << "the output must end in .pdf, .svg or .png - " << NameOnErrors(a.output) << "\n";
    return kBadInput;
  }
  if (*format != Format::Pdf && job.pages.size() > 1 && a.output == kStandardStream) {
    std::cerr << "several pictures need several files - name them with -o\n";
    return kBadInput;
  }
  std::vector<Made> made;
  const std::string error = PaintAll(job, *format, a.output, made);
  if (!error.empty()) {
    std::cerr << error << "\n";
    return kBadInput;
  }
  const WriteRules rules{{a.file}};
  for (const Made& file : made)
    if (const int status = SaveOutput(file.path, file.bytes, rules, std::cout, std::cerr))
      return status;
  if (made.size() > 1)
    for (const Made& file : made) std::cout << file.path << "\n";
  return kAllPass;
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
  std::string bytes;
  if (const int status = Prepare(a, design, &bytes)) return status;
  const std::string name =
      a.file == kStandardStream ? "project.kvn" : FileName(FilePath(a.file).filename());
  const PaintJob job = ReportJob(design, ReportsOf(a.kind), Now(), {name, std::move(bytes)});
  if (const int status = Finish(job, a, Format::Pdf)) return status;
  return StatusOf(VerdictOf(design));
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

/// Whether a word asks for what only loads have: end forces give no loads and no deflections.
bool NeedsLoads(const Drawing& drawing) {
  using K = DiagramKind;
  constexpr std::array kinds{K::LoadPermZ, K::LoadPermY, K::DeflectionZ, K::DeflectionY};
  return !drawing.diagrams.empty() &&
         std::find(kinds.begin(), kinds.end(), drawing.diagrams.front()) != kinds.end();
}

int RunDraw(const Arguments& a) {
  const auto& all = Drawings();
  const auto drawing =
      std::find_if(all.begin(), all.end(), [&](const Drawing& d) { return a.what == d.word; });
  Design design = StartedDesign(ReadLibrary(FindDataFolder(a.data)));
  if (const int status = Prepare(a, design)) return status;
  if (design.st.AnalysisMode != 1 && NeedsLoads(*drawing)) {
    std::cerr << "no " << (a.what.front() == 'd' ? "deflections" : "loads")
              << " to draw: the project gives end forces - " << NameOnErrors(a.file) << "\n";
    return kBadInput;
  }
  PaintJob job;
  job.title = "KORVANE - " + a.what + " - " + design.st.iproj;
  const DiagramStyle style;
  const DiagramData data{design.st, design.beam, design.deflections, design.forces.N};
  constexpr double margin = 12;  // points on all sides
  if (drawing->diagrams.empty()) {
    job.width = 320;
    job.height = 320;
    job.pages.emplace_back([&](DrawingTarget& t) {
      DrawSectionFigure(t, Box{margin, margin, job.width - margin, job.height - margin},
                        Destination::Page, design.st, design.rec, FigureOptions{});
    });
    return Finish(job, a, Format::Svg);
  }
  constexpr double scale = 6;  // points per grid unit
  const auto kinds = ForMode(drawing->diagrams, design.st.AnalysisMode == 1);
  job.width = kPictureWidth * scale + 2 * margin;
  job.height = 2 * margin;
  for (const DiagramKind kind : kinds) job.height += DiagramHeight(kind, data, style) * scale;
  job.pages.emplace_back([&](DrawingTarget& t) {
    double top = margin;
    for (const DiagramKind kind : kinds) {
      const double height = DiagramHeight(kind, data, style) * scale;
      DrawDiagramIn(t, kind, Box{margin, top, job.width - margin, top + height}, Destination::Page,
                    data, style);
      top += height;
    }
  });
  return Finish(job, a, Format::Svg);
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
  for (const Drawing& d : Drawings()) words.emplace_back(d.word);
  draw->add_option("--what", a->what, "what to draw")->required()->check(CLI::IsMember(words));
  draw->callback([a, &status] { status = RunDraw(*a); });
}

}  // namespace korvane
