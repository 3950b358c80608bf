// SPDX-License-Identifier: GPL-3.0-or-later
#include <system_error>

#include "core/windows_text.h"
#include "front/painter_module.h"

namespace korvane {

PaintEntry LoadPainter(const std::vector<std::filesystem::path>& folders, std::string& error) {
  constexpr const char* name = "korvane_paint.dll";
  for (const std::filesystem::path& folder : folders) {
    const std::filesystem::path path = folder / name;
    if (std::error_code ignored; !std::filesystem::exists(path, ignored)) continue;
    HMODULE module = ::LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
    FARPROC entry = module == nullptr ? nullptr : ::GetProcAddress(module, kPaintEntry);
    if (entry == nullptr) {
      const auto code = static_cast<int>(::GetLastError());
      error = "can't load the painter: " + std::system_category().message(code);
    }
    // By way of a plain pointer: the two types of routines have nothing in common.
    return reinterpret_cast<PaintEntry>(reinterpret_cast<void*>(entry));
  }
  error = std::string("the painter ") + name + " is not installed";
  return nullptr;
}

}  // namespace korvane
