// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/pictures.h"

#include <array>
#include <exception>
#include <filesystem>
#include <ostream>
#include <utility>
#include <vector>

#include "core/file_path.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/terminal.h"
#include "front/painter/svg_page.h"
#include "front/painter_module.h"
#include "front/system.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Paints through the module beside the program or in the library folder.
std::string Paint(const PaintJob& job, std::string& bytes) {
  const fs::path here = ProgramFolder();
  // No exception of ours goes through the module, which has the language's library to itself.
  std::exception_ptr failed;
  PaintJob guarded = job;
  for (auto& page : guarded.pages) {
    page = [&failed, draw = std::move(page)](DrawingTarget& target) {
      try {
        if (!failed) draw(target);
      } catch (...) {
        failed = std::current_exception();
      }
    };
  }
  const std::string error = PaintByModule(guarded, {here, here / KORVANE_MODULE_FROM_BIN}, bytes);
  if (failed) std::rethrow_exception(failed);
  return error;
}

struct FormatWord {
  const char* word;
  PictureFormat format;
};

constexpr std::array kFormats{FormatWord{"pdf", PictureFormat::Pdf},
                              FormatWord{"svg", PictureFormat::Svg},
                              FormatWord{"png", PictureFormat::Png}};

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

/// One page in its format. Returns an empty text, or what went wrong.
std::string PaintPage(const PaintJob& job, PictureFormat format, std::size_t page,
                      std::string& bytes) {
  if (format == PictureFormat::Svg) {
    bytes = SvgPage(job, page);
    return {};
  }
  PaintJob one = job;
  one.format = PaintFormat::Png;
  one.pages = {job.pages.at(page)};
  return Paint(one, bytes);
}

/// Paints everything before anything is written: a PDF holds all pages, a picture one.
std::string PaintAll(const PaintJob& job, PictureFormat format, const std::string& output,
                     std::vector<Made>& made) {
  if (format == PictureFormat::Pdf) return Paint(job, made.emplace_back(Made{output, {}}).bytes);
  const bool several = job.pages.size() > 1;
  for (std::size_t page = 0; page < job.pages.size(); ++page) {
    Made& file = made.emplace_back(Made{several ? PagePath(output, page + 1) : output, {}});
    const std::string error = PaintPage(job, format, page, file.bytes);
    if (!error.empty()) return error;
  }
  return {};
}

}  // namespace

std::optional<PictureFormat> FormatOf(const PictureOutput& to, PictureFormat onStandardOutput) {
  std::string word = to.format;
  if (word.empty()) {
    if (to.path == kStandardStream) return onStandardOutput;
    word = FileName(FilePath(to.path).extension());
    word.erase(0, 1);
    for (char& c : word)
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  for (const FormatWord& format : kFormats)
    if (word == format.word) return format.format;
  return std::nullopt;
}

int WritePictures(const PaintJob& job, const PictureOutput& to, PictureFormat onStandardOutput,
                  const WriteRules& rules, std::ostream& output, std::ostream& errors) {
  const auto format = FormatOf(to, onStandardOutput);
  if (!format) {
    errors << "the output must end in .pdf, .svg or .png - " << NameOnErrors(to.path) << "\n";
    return kBadInput;
  }
  if (*format != PictureFormat::Pdf && job.pages.size() > 1 && to.path == kStandardStream) {
    errors << "several pictures need several files - name them with -o\n";
    return kBadInput;
  }
  std::vector<Made> made;
  const std::string error = PaintAll(job, *format, to.path, made);
  if (!error.empty()) {
    errors << error << "\n";
    return kBadInput;
  }
  for (const Made& file : made)
    if (const int status = SaveOutput(file.path, file.bytes, rules, output, errors)) return status;
  if (made.size() > 1)
    for (const Made& file : made) output << file.path << "\n";
  return kAllPass;
}

}  // namespace korvane
