// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/run_design.h"

#include <utility>

#include "checks/results.h"

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

DesignRun RunProject(Design& design, const std::string& path) {
  DesignRun run;
  run.file = OpenProject(path, design.st);
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
