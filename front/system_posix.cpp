// SPDX-License-Identifier: GPL-3.0-or-later
#include <csignal>
#include <cstdlib>
#include <system_error>

#include "front/system.h"

namespace korvane {

std::vector<std::string> CommandWords(int argc, const char* const* argv) {
  return {argv, argv + argc};
}

std::optional<std::string> Environment(const char* name) {
  const char* value = std::getenv(name);
  if (value == nullptr || *value == '\0') return std::nullopt;
  return value;
}

std::filesystem::path ProgramFolder() {
  std::error_code error;
  const auto self = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::filesystem::path{} : self.parent_path();
}

std::tm LocalTime(std::time_t moment) {
  std::tm local{};
  localtime_r(&moment, &local);
  return local;
}

void LeaveFailuresToUs() {
  std::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace korvane
