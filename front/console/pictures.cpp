// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/pictures.h"

#include <dlfcn.h>

#include <array>
#include <filesystem>
#include <ostream>
#include <vector>

#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/terminal.h"
#include "presentation/svg_target.h"

namespace korvane {

namespace {

namespace fs = std::filesystem;

/// Paints through the loadable module beside the program or in the library folder. Returns an
/// empty text, or what went wrong.
std::string PaintByModule(const PaintJob& job, std::string& bytes) {
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
    entry(&job, &bytes, &error);
    return error;
  }
  return std::string("the painter ") + kPaintModule + " is not installed";
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
  const fs::path whole(path);
  const std::string name =
      whole.stem().string() + "-" + std::to_string(number) + whole.extension().string();
  return (whole.parent_path() / name).string();
}

/// One page in its format. Returns an empty text, or what went wrong.
std::string PaintPage(const PaintJob& job, PictureFormat format, std::size_t page,
                      std::string& bytes) {
  if (format == PictureFormat::Svg) {
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
std::string PaintAll(const PaintJob& job, PictureFormat format, const std::string& output,
                     std::vector<Made>& made) {
  if (format == PictureFormat::Pdf) {
    return PaintByModule(job, made.emplace_back(Made{output, {}}).bytes);
  }
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
    word = fs::path(to.path).extension().string();
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
