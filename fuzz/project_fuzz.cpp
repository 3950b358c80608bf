// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a project: reading never crashes; what reads is written and read again the same;
// the design has finite results or a named failure.
#include "core/project_file.h"
#include "fuzz/fuzz_support.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  Design design(library);
  StartDesign(design);
  if (ReadProject(fuzz::Bytes(data, size), design.st) != FileResult::Ok) return 0;
  const std::string text = ProjectText(design.st);
  // A profile's name with a quotation mark in it doesn't survive, as its form in the file says.
  const bool quoted = design.st.p41_name.find('"') != std::string::npos;
  ProjectState again = design.st;
  if (ReadProject(text, again) != FileResult::Ok) std::abort();
  if (!quoted && ProjectText(again) != text) std::abort();
  fuzz::CalculateOrFail(design);
  return 0;
}
