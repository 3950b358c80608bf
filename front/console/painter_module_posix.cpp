// SPDX-License-Identifier: GPL-3.0-or-later
#include <dlfcn.h>

#include <filesystem>

#include "front/console/painter_module.h"
#include "front/system.h"

namespace korvane {

PaintEntry LoadPainter(std::string& error) {
  constexpr const char* name = "korvane_paint.so";
  const std::filesystem::path here = ProgramFolder();
  for (const auto& folder : {here, here / KORVANE_MODULE_FROM_BIN}) {
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
