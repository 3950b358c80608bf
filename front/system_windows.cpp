// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/windows_text.h"
// Behind the line above: it needs the types of windows.h.
#include <shellapi.h>

#include <memory>

#include "front/system.h"

namespace korvane {

std::vector<std::string> CommandWords(int, const char* const*) {
  int count = 0;
  const std::unique_ptr<LPWSTR, decltype(&::LocalFree)> words(
      ::CommandLineToArgvW(::GetCommandLineW(), &count), ::LocalFree);
  std::vector<std::string> arguments;
  for (int i = 0; words && i < count; ++i) arguments.push_back(Utf8(words.get()[i]));
  return arguments;
}

std::optional<std::string> Environment(const char* name) {
  const auto wide = Wide(name);
  const wchar_t* value = wide ? ::_wgetenv(wide->c_str()) : nullptr;
  if (value == nullptr || *value == L'\0') return std::nullopt;
  return Utf8(value);
}

std::filesystem::path ProgramFolder() {
  std::wstring self(MAX_PATH, L'\0');
  for (;;) {
    const DWORD size = ::GetModuleFileNameW(nullptr, self.data(), static_cast<DWORD>(self.size()));
    if (size == 0) return {};
    if (size < self.size()) {
      self.resize(size);
      return std::filesystem::path(self).parent_path();
    }
    self.resize(self.size() * 2);
  }
}

std::tm LocalTime(std::time_t moment) {
  std::tm local{};
  ::localtime_s(&local, &moment);
  return local;
}

void LeaveFailuresToUs() {
  ::SetErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX);
}

}  // namespace korvane
