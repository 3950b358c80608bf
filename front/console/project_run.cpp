// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/project_run.h"

#include <utility>

#include "core/setupbas.h"
#include "core/text.h"

namespace korvane {

Design StartedDesign(std::shared_ptr<const Library> library) {
  Design design(std::move(library));
  StartDesign(design);
  try {
    Calculate(design);
  } catch (const ArithmeticFault&) {
    // The new project is nobody's design: the calculation of the opened one tells.
  }
  design.messages.clear();
  return design;
}

FileResult OpenInDesign(const std::string& path, Design& design) {
  const FileResult result = OpenProject(path, design.st);
  if (result != FileResult::Ok) return result;
  design.st.CurrentFileName = path;
  SetMaterial(design.lib->materials, design.rec.tmax, design.st);
  return result;
}

void CalculateOpened(Design& design) {
  Calculate(design);
  Calculate(design);
}

std::string FileMessage(FileResult result, const std::string& path) {
  switch (result) {
    case FileResult::Ok:
      return {};
    case FileResult::NotFound:
      return "can't find file - " + ToUtf8(path);
    case FileResult::TooShort:
      return "Input file not compatible with this version ";
    default:
      return "can't read file - " + ToUtf8(path);
  }
}

std::string FaultMessage(const ArithmeticFault& fault) {
  return std::string("arithmetic failure: ") + fault.what();
}

}  // namespace korvane
