// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/windows_text.h"
// Behind the line above: they need the types of windows.h.
#include <fcntl.h>
#include <io.h>

#include <cstdio>

#include "front/console/terminal.h"
#include "front/console/terminal_system.h"

namespace korvane {
namespace {

/// Whether a console is behind the handle, and obeys colours and rewritten lines: those before
/// Windows 10 print the codes.
bool ObeysCodes(DWORD which) {
  HANDLE handle = ::GetStdHandle(which);
  DWORD mode = 0;
  if (::GetConsoleMode(handle, &mode) == 0) return false;
  if ((mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0) return true;
  return ::SetConsoleMode(handle, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

}  // namespace

StandardStreams::StandardStreams()
    : outputBefore_(::GetConsoleOutputCP()), inputBefore_(::GetConsoleCP()) {
  // The same bytes as on every system: no carriage returns of the library's own.
  for (std::FILE* stream : {stdin, stdout, stderr}) ::_setmode(::_fileno(stream), _O_BINARY);
  ::SetConsoleOutputCP(CP_UTF8);
  ::SetConsoleCP(CP_UTF8);
}

StandardStreams::~StandardStreams() {
  // The code page belongs to the console, which the person goes on with.
  if (outputBefore_ != 0) ::SetConsoleOutputCP(outputBefore_);
  if (inputBefore_ != 0) ::SetConsoleCP(inputBefore_);
}

bool OutputIsTerminal() {
  static const bool obeys = ObeysCodes(STD_OUTPUT_HANDLE);
  return obeys;
}

bool ErrorsAreTerminal() {
  static const bool obeys = ObeysCodes(STD_ERROR_HANDLE);
  return obeys;
}

std::size_t ColumnsOfErrors() {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  if (::GetConsoleScreenBufferInfo(::GetStdHandle(STD_ERROR_HANDLE), &info) == 0) {
    return kUsualTerminal;
  }
  const int columns = info.srWindow.Right - info.srWindow.Left + 1;
  return columns > 0 ? static_cast<std::size_t>(columns) : kUsualTerminal;
}

}  // namespace korvane
