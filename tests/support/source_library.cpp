// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/support/source_library.h"

#include "places.h"

namespace korvane {

const std::shared_ptr<const Library>& SourceLibrary() {
  static const std::shared_ptr<const Library> library = ReadLibrary(KORVANE_SOURCE_DIR "/data");
  return library;
}

}  // namespace korvane
