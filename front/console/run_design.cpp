// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/run_design.h"

#include <string_view>
#include <utility>

#include "core/text.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"

namespace korvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A text at the version's place counts as 0, which is an old version.
bool HoldsVersion(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return BeginsWithNumber(bytes.substr(0, bytes.find_first_of("\r\n")));
}

FileResult ReadProjectInput(const std::string& path, ProjectState& st, DesignRun& run) {
  bool notFound = false;
  auto bytes = ReadInput(path, &notFound);
  if (!bytes) return notFound ? FileResult::NotFound : FileResult::OtherError;
  const FileResult result = ReadProject(*bytes, st);
  if (result == FileResult::Ok && !HoldsVersion(*bytes)) run.remarks.emplace_back(kNoVersion);
  run.bytes = std::move(*bytes);
  return result;
}

}  // namespace

DesignRun RunProject(Design& design, const std::string& path) {
  DesignRun run;
  run.file = ReadProjectInput(path, design.st, run);
  if (run.file != FileResult::Ok) return run;
  design.st.CurrentFileName = path;
  static_cast<MemberRun&>(run) = OpenMember(design);
  return run;
}

int StatusOf(const Verdict& verdict) {
  switch (verdict.standing) {
    case Standing::Passes:
      return kAllPass;
    case Standing::Stopped:
      return kArithmeticFailure;
    default:
      return kCheckFails;
  }
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
