// SPDX-License-Identifier: GPL-3.0-or-later
// Bytes of a text file to UTF-8.
#include <array>

#include "core/text.h"

namespace korvane {
namespace {

// Length of the UTF-8 sequence at the start of the text; 0 when it is not a valid one.
std::size_t SequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                             : lead >= 0xE0 && lead <= 0xEF ? 3
                             : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                            : 0;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Overlong forms, surrogates and what lies beyond the last code point.
  const unsigned second = byte(1);
  const bool valid = !((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                       (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F));
  return valid ? length : 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

// Windows-1252 from 0x80 to 0x9F; the five codes without a character stay controls.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char16_t code) {
  const auto byte = [&out](unsigned v) { out += static_cast<char>(v); };
  if (code < 0x80) return byte(code);
  if (code < 0x800) {
    byte(0xC0U | (code >> 6U));
  } else {
    byte(0xE0U | (code >> 12U));
    byte(0x80U | ((code >> 6U) & 0x3FU));
  }
  byte(0x80U | (code & 0x3FU));
}

}  // namespace

std::string ToUtf8(std::string_view bytes) {
  if (IsUtf8(bytes)) return std::string(bytes);
  std::string out;
  out.reserve(bytes.size() * 2);
  for (const char c : bytes) {
    const auto b = static_cast<unsigned char>(c);
    AppendUtf8(out, b >= 0x80 && b < 0xA0 ? kWindows1252[b - 0x80U] : char16_t(b));
  }
  return out;
}

}  // namespace korvane
