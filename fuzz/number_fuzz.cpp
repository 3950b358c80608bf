// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as a number, and any number as text: the file form reads back to the same value.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string_view>

#include "core/text.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  for (const bool comma : {false, true}) {
    if (const auto value = ParseNumber(text, comma); value && std::isfinite(*value)) {
      if (LeadingNumber(FileText(*value)) != *value) std::abort();
      for (const char* pattern : {"#0.000", "0.000E+0", "#0", "00"}) Format(*value, pattern);
    }
  }
  if (size >= sizeof(double)) {
    double v;
    std::memcpy(&v, data, sizeof v);
    if (std::isfinite(v) && LeadingNumber(FileText(v)) != v) std::abort();
  }
  ToUtf8(text);
  return 0;
}
