// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/run_design.h"

#include <utility>

#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"

namespace korvane {

namespace {

FileResult ReadProjectInput(const std::string& path, ProjectState& st, DesignRun& run) {
  bool notFound = false;
  auto bytes = ReadInput(path, &notFound);
  if (!bytes) return notFound ? FileResult::NotFound : FileResult::OtherError;
  const FileResult result = ReadProject(*bytes, st);
  if (result == FileResult::Ok) run.remarks = RemarksOn(*bytes);
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

}  // namespace korvane
