// SPDX-License-Identifier: GPL-3.0-or-later
// Names of files are UTF-8 everywhere in the program; only here they become the system's own.
#pragma once

#include <algorithm>
#include <filesystem>
#include <string>
#include <string_view>

namespace korvane {

/// The system's path of a name. Bytes that are no UTF-8 stay as they are where the system allows
/// them; elsewhere they throw std::system_error or std::filesystem::filesystem_error.
inline std::filesystem::path FilePath(std::string_view name) {
  return std::filesystem::path(std::u8string(name.begin(), name.end()));
}

/// The name of a path, with slashes on every system.
inline std::string FileName(const std::filesystem::path& path) {
  std::u8string name = path.u8string();
  if constexpr (std::filesystem::path::preferred_separator == '\\') {
    std::replace(name.begin(), name.end(), u8'\\', u8'/');
  }
  return {name.begin(), name.end()};
}

}  // namespace korvane
