// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/run_design.h"

#include <string_view>
#include <utility>

#include "checks/results.h"
#include "core/text.h"
#include "front/console/files_of_commands.h"

namespace korvane {

Design StartedDesign(std::shared_ptr<const Library> library) {
  Design design(std::move(library));
  StartDesign(design);
  try {
    Calculate(design);
  } catch (const CalculationFault&) {
    // The new project's own failure is not the file's.
  }
  design.messages.clear();
  return design;
}

namespace {

/// The single figure of the usage is held in single precision: ratios beyond it are a failure
/// as any other.
void CheckMaxIR(const Design& design, DesignRun& run) {
  try {
    MaxIR(design.checks);
  } catch (const ArithmeticFault& fault) {
    run.fault = "MaxIR";
    run.what = std::string("MaxIR: ") + fault.what();
  }
}

}  // namespace

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A text at the version's place counts as 0, which is an old version.
bool HoldsVersion(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return BeginsWithNumber(bytes.substr(0, bytes.find_first_of("\r\n")));
}

FileResult ReadProjectInput(const std::string& path, ProjectState& st, DesignRun& run) {
  bool notFound = false;
  const auto bytes = ReadInput(path, &notFound);
  if (!bytes) return notFound ? FileResult::NotFound : FileResult::OtherError;
  const FileResult result = ReadProject(*bytes, st);
  if (result == FileResult::Ok && !HoldsVersion(*bytes)) run.remarks.emplace_back(kNoVersion);
  return result;
}

}  // namespace

DesignRun RunProject(Design& design, const std::string& path) {
  DesignRun run;
  run.file = ReadProjectInput(path, design.st, run);
  if (run.file != FileResult::Ok) return run;
  design.st.CurrentFileName = path;
  try {
    SetMaterial(design.lib->materials, design.rec.tmax, design.st);
    Calculate(design);
    Calculate(design);
  } catch (const CalculationFault& fault) {
    run.fault = fault.Step();
    run.what = fault.what();
  } catch (const ArithmeticFault& fault) {
    run.fault = "SetMaterial";
    run.what = std::string("SetMaterial: ") + fault.what();
  }
  if (!run.fault) CheckMaxIR(design, run);
  return run;
}

std::string FileMessage(FileResult result, const std::string& path) {
  switch (result) {
    case FileResult::Ok:
      return {};
    case FileResult::NotFound:
      return "can't find file - " + path;
    case FileResult::TooShort:
      return "Input file not compatible with this version ";
    case FileResult::OtherError:
      break;
  }
  return "can't read file - " + path;
}

}  // namespace korvane
