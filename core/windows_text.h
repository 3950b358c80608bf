// SPDX-License-Identifier: GPL-3.0-or-later
// UTF-8 and the sixteen bits of the calls of Windows. Read by the units of that system alone.
#pragma once

#ifndef WIN32_LEAN_AND_MEAN
#define WIN32_LEAN_AND_MEAN
#endif
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <optional>
#include <string>
#include <string_view>

namespace korvane {

/// Nothing for bytes that are no UTF-8.
inline std::optional<std::wstring> Wide(std::string_view text) {
  if (text.empty()) return std::wstring();
  const int size = static_cast<int>(text.size());
  const int n = ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, nullptr, 0);
  if (n <= 0) return std::nullopt;
  std::wstring wide(static_cast<std::size_t>(n), L'\0');
  ::MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, text.data(), size, wide.data(), n);
  return wide;
}

/// Half a surrogate pair, which the system's names may hold, becomes U+FFFD.
inline std::string Utf8(std::wstring_view wide) {
  if (wide.empty()) return {};
  const int size = static_cast<int>(wide.size());
  const int n = ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, nullptr, 0, nullptr, nullptr);
  std::string text(static_cast<std::size_t>(n), '\0');
  ::WideCharToMultiByte(CP_UTF8, 0, wide.data(), size, text.data(), n, nullptr, nullptr);
  return text;
}

}  // namespace korvane
