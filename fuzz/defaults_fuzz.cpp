// SPDX-License-Identifier: GPL-3.0-or-later
// Any bytes as the engineer's defaults and the material list, parted at the first zero byte: the
// start and a design on them have finite results or a named failure.
#include "fuzz/fuzz_support.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const std::string folder = fuzz::OwnDataFolder();
  static const auto catalogues = ReadLibrary(folder)->catalogues;
  const std::string_view bytes = fuzz::Bytes(data, size);
  const std::size_t end = bytes.find('\0');
  fuzz::Write(folder + "/default_ns.dat", bytes.substr(0, end));
  fuzz::Write(folder + "/NSmat.dat",
              end == std::string_view::npos ? std::string_view{} : bytes.substr(end + 1));
  auto library = std::make_shared<Library>();
  library->folder = folder;
  library->catalogues = catalogues;
  library->materials = ReadMaterials(folder);
  Design design(library);
  StartDesign(design);
  fuzz::CalculateOrFail(design);
  if (!WriteDefaults(folder, design.st)) std::abort();
  ReadDefaults(folder, design.st);
  fuzz::CalculateOrFail(design);
  return 0;
}
