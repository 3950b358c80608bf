// SPDX-License-Identifier: GPL-3.0-or-later
// A folder of its own for a test that writes files; removed with all it holds.
#pragma once

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace korvane {

class TempFolder {
public:
  TempFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "korvane_test_XXXXXX").string();
    if (::mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = name;
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  ~TempFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::string& Path() const { return path_; }
  std::string operator/(std::string_view name) const { return path_ + "/" + std::string(name); }

  /// Number of entries in the folder.
  int Count() const {
    return static_cast<int>(std::distance(std::filesystem::directory_iterator(path_), {}));
  }

private:
  std::string path_;
};

inline void PutFile(const std::string& path, std::string_view bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

inline std::string GetFile(const std::string& path) {
  std::ostringstream bytes;
  bytes << std::ifstream(path, std::ios::binary).rdbuf();
  return bytes.str();
}

}  // namespace korvane
