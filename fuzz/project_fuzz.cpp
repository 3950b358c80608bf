// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as a project: reading never crashes; what reads is written and read again the same;
// the design has finite results or a named failure.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "core/calculation.h"
#include "core/project_file.h"
#include "sections/section_fields.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto library = ReadLibrary(KORVANE_DATA_FOLDER);
  Design design(library);
  StartDesign(design);
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (ReadProject(bytes, design.st) != FileResult::Ok) return 0;
  const std::string text = ProjectText(design.st);
  ProjectState again = design.st;
  if (ReadProject(text, again) != FileResult::Ok || ProjectText(again) != text) std::abort();
  try {
    Calculate(design);
    Calculate(design);
  } catch (const ArithmeticFault&) {
    return 0;
  }
  ForEachSectionField(design.rec, [](const char*, const auto& v) {
    if (!std::isfinite(static_cast<double>(v))) std::abort();
  });
  for (const CheckLine* line : {&design.checks.lineSection, &design.checks.lineLateral,
                                &design.checks.lineBucklingY, &design.checks.lineBucklingZ}) {
    for (const std::string* part : {&line->numbers, &line->value, &line->limit}) {
      if (part->find("nan") != std::string::npos || part->find("inf") != std::string::npos) {
        std::abort();
      }
    }
  }
  return 0;
}
