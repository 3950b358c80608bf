// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/files_of_commands.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <iostream>

#include "front/console/exit_status.h"
#include "front/console/terminal.h"

namespace korvane {

std::optional<std::string> ReadInput(const std::string& path, bool* notFound) {
  if (path != kStandardStream) return ReadWholeFile(path, notFound);
  if (notFound != nullptr) *notFound = false;
  std::string bytes;
  std::array<char, 65536> some;
  do {
    std::cin.read(some.data(), some.size());
    bytes.append(some.data(), static_cast<std::size_t>(std::cin.gcount()));
  } while (std::cin);
  if (ReadingFailed(std::cin)) return std::nullopt;
  return bytes;
}

bool ReadingFailed(const std::istream& in) {
  // The standard input reads through the C library, whose failures look like its end.
  return in.bad() || (&in == &std::cin && std::ferror(stdin) != 0);
}

void TellNotSaved(const std::string& path, const WriteResult& result, std::ostream& errors) {
  errors << "can't save file - " << NameOnErrors(path) << '\n' << result.why << '\n';
}

int SaveOutput(const std::string& path, std::string_view bytes, const WriteRules& rules,
               std::ostream& output, std::ostream& errors) {
  if (path == kStandardStream) {
    // The end of the program tells whether the standard output took it.
    output.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return kAllPass;
  }
  const WriteResult result = WriteFile(path, bytes, rules);
  if (result) return kAllPass;
  TellNotSaved(path, result, errors);
  return kBadInput;
}

std::vector<std::string> NamesOfList(std::string_view bytes) {
  std::vector<std::string> names;
  while (!bytes.empty()) {
    const std::size_t end = std::min(bytes.find('\n'), bytes.size());
    std::string_view name = bytes.substr(0, end);
    bytes.remove_prefix(std::min(end + 1, bytes.size()));
    if (name.ends_with('\r')) name.remove_suffix(1);
    if (!name.empty()) names.emplace_back(name);
  }
  return names;
}

}  // namespace korvane
