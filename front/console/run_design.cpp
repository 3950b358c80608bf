// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/run_design.h"

#include <string_view>
#include <utility>

#include "core/text.h"
#include "front/console/exit_status.h"
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

/// The opening of a project: material step, then the calculations of opening and of the focus.
void CalculateOpened(Design& design) {
  ForgetFormerInput(design);
  try {
    SetMaterial(design.lib->materials, design.rec.tmax, design.st);
  } catch (const ArithmeticFault& fault) {
    design.history.stoppedIn = "SetMaterial";
    throw CalculationFault("SetMaterial", fault.what());
  }
  Calculate(design);
  Calculate(design);
}

/// The steps of a calculation whose results stand apart, in order.
enum Stage { kForces, kSection, kLateral, kChecks, kBuckling, kComplete };

/// The stage that a failing step belongs to; its results and those behind it are not reached.
Stage StageOf(const std::string& step) {
  if (step == "AnalyseBeam") return kForces;
  if (step == "LateralTorsionalBuckling") return kLateral;
  if (step == "ChooseBucklingCurves" || step == "SectionControl") return kChecks;
  if (step == "BucklingControl") return kBuckling;
  const bool behind = step == "MaxIR" || step == "Deflections" || step == "ModalAnalysis";
  return behind ? kComplete : kSection;
}

/// The ratios without the lines, which are composed last of all.
CheckResults WithoutLines(CheckResults c) {
  for (CheckLine* line : {&c.lineSection, &c.lineVz, &c.lineVy, &c.lineLateral, &c.lineBucklingY,
                          &c.lineBucklingZ, &c.lineSlenderness}) {
    *line = {};
  }
  return c;
}

/// The results as far as the calculation of this project got, every other one empty: those that
/// stand from the start are another member's.
void KeepOwnResults(const ProjectState& opened, const std::string& step, Design& design) {
  Design own(design.lib);
  own.st = opened;
  std::string stopped;
  try {
    CalculateOpened(own);
  } catch (const CalculationFault& fault) {
    stopped = fault.Step();
  }
  if (stopped != step) {  // the failure hangs on what another section left in the record
    const Stage stage = StageOf(step);
    own = Design(design.lib);
    if (stage > kForces) own.beam = design.beam;
    if (stage > kForces) own.forces = design.forces;
    if (stage > kSection) own.rec = design.rec;
    if (stage > kLateral) own.ltb = design.ltb;
    if (stage > kChecks) own.checks = WithoutLines(design.checks);
    if (stage > kBuckling) own.buckling = design.buckling;
  }
  own.st = std::move(design.st);
  own.messages = std::move(design.messages);
  own.history = std::move(design.history);
  design = std::move(own);
}

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
  const ProjectState opened = design.st;
  try {
    CalculateOpened(design);
  } catch (const CalculationFault& fault) {
    run.fault = fault.Step();
    run.what = fault.what();
    KeepOwnResults(opened, fault.Step(), design);
  }
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
