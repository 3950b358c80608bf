// SPDX-License-Identifier: GPL-3.0-or-later
#include <dlfcn.h>

#include "front/painter_module.h"

namespace korvane {

PaintEntry LoadPainter(const std::vector<std::filesystem::path>& folders, std::string& error) {
  constexpr const char* name = "korvane_paint.so";
  for (const std::filesystem::path& folder : folders) {
    std::error_code ignored;
    if (!std::filesystem::exists(folder / name, ignored)) continue;
    void* handle = dlopen((folder / name).c_str(), RTLD_NOW | RTLD_LOCAL);
    void* entry = handle == nullptr ? nullptr : dlsym(handle, kPaintEntry);
    if (entry == nullptr) error = std::string("can't load the painter: ") + dlerror();
    return reinterpret_cast<PaintEntry>(entry);
  }
  error = std::string("the painter ") + name + " is not installed";
  return nullptr;
}

}  // namespace korvane
