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
#include "front/console/run_design.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"
#include "front/painter/drawing_job.h"
#include "front/painter/report_job.h"
#include "front/painter/svg_page.h"
#include "front/painter_module.h"
#include "front/system.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Paints through the module beside the program or in the library folder.
std::string Paint(const PaintJob& job, std::string& bytes) {
  const fs::path here = ProgramFolder();
  return PaintByModule(job, {here, here / KORVANE_MODULE_FROM_BIN}, bytes);
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
    bytes = SvgPage(job, page);
    return {};
  }
  PaintJob one = job;
  one.format = PaintFormat::Png;
  one.pages = {job.pages.at(page)};
  return Paint(one, bytes);
}

/// Paints everything before anything is written: a PDF holds all pages, a picture one.
std::string PaintAll(const PaintJob& job, Format format, const std::string& output,
                     std::vector<Made>& made) {
  if (format == Format::Pdf) return Paint(job, made.emplace_back(Made{output, {}}).bytes);
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

int RunReport(const Arguments& a) {
  Design design = StartedDesign(ReadLibrary(FindDataFolder(a.data)));
  std::string bytes;
  if (const int status = Prepare(a, design, &bytes)) return status;
  const std::string name =
      a.file == kStandardStream ? "project.kvn" : FileName(FilePath(a.file).filename());
  const PaintJob job =
      ReportJob(design, FindSheets(a.kind)->reports, TimeOfPrint(), {name, std::move(bytes)});
  if (const int status = Finish(job, a, Format::Pdf)) return status;
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
  return Finish(DrawingJob(design, drawing), a, Format::Svg);
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
