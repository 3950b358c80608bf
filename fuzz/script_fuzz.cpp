// SPDX-License-Identifier: GPL-3.0-or-later
// Any text as a session script: every end is one of the exit statuses.
#include <sstream>

#include "front/console/script.h"
#include "fuzz/fuzz_support.h"

using namespace korvane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto library = ReadLibrary(fuzz::OwnDataFolder());
  const std::string script(fuzz::Bytes(data, size));
  // Paths of a script could write anywhere; commands on files have tests of their own.
  for (const char* word : {"save", "answer", "open"}) {
    if (script.find(word) != std::string::npos) return 0;
  }
  std::istringstream in(script);
  std::ostringstream out;
  std::ostringstream err;
  const int status = RunScript(library, size % 2 == 1, in, out, err);
  if (status != 0 && status != 2 && status != 3) std::abort();
  const bool named = script.find("nan") != std::string::npos;  // a typed text may be shown again
  if (!named && out.str().find(" nan") != std::string::npos) std::abort();
  return 0;
}
