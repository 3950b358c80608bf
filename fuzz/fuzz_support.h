// SPDX-License-Identifier: GPL-3.0-or-later
// What the fuzz targets share: a folder of their own, and the end for a result that no input may
// give.
#pragma once

#include <stdlib.h>

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

#include "core/calculation.h"
#include "sections/section_fields.h"

namespace korvane::fuzz {

/// A new folder under the system's temporary one, with a copy of the data files: what a target
/// writes never reaches the real ones.
inline std::string OwnDataFolder() {
  std::string name = (std::filesystem::temp_directory_path() / "korvane_fuzz_XXXXXX").string();
  if (!mkdtemp(name.data())) std::abort();
  for (const auto& entry : std::filesystem::directory_iterator(KORVANE_DATA_FOLDER)) {
    if (entry.is_regular_file()) std::filesystem::copy(entry.path(), name + "/");
  }
  return name;
}

inline void Write(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary)
      .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

inline std::string_view Bytes(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

/// Calculates twice, as a window does; a failure by its name is an answer, inf and nan are none.
inline void CalculateOrFail(Design& design) {
  try {
    Calculate(design);
    Calculate(design);
  } catch (const ArithmeticFault&) {
    return;
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
}

}  // namespace korvane::fuzz
