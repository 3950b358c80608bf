// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/python/painter.h"

#include <dlfcn.h>

#include <filesystem>

namespace korvane::python {

std::string PaintByModule(const PaintJob& job, const std::vector<std::string>& folders,
                          std::string& bytes) {
  for (const std::filesystem::path folder : folders) {
    std::error_code ignored;
    const std::filesystem::path module = folder / kPaintModule;
    if (!std::filesystem::exists(module, ignored)) continue;
    void* handle = dlopen(module.c_str(), RTLD_NOW | RTLD_LOCAL);
    void* entry = handle == nullptr ? nullptr : dlsym(handle, kPaintEntry);
    if (entry == nullptr) return std::string("can't load the painter: ") + dlerror();
    std::string error;
    reinterpret_cast<PaintEntry>(entry)(&job, &bytes, &error);
    return error;
  }
  return std::string("the painter ") + kPaintModule + " is not installed";
}

}  // namespace korvane::python
