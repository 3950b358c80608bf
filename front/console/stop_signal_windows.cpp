// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/windows_text.h"
// Behind the line above: it needs the types of windows.h.
#include <csignal>

#include "front/console/stop_signal.h"

namespace korvane {
namespace {

// The system calls the handler in a thread of its own.
volatile LONG received = 0;

// Each key is noted once; the second time the system's own handler ends the program.
BOOL WINAPI Note(DWORD key) {
  if (key != CTRL_C_EVENT && key != CTRL_BREAK_EVENT) return FALSE;
  const LONG signal = key == CTRL_C_EVENT ? SIGINT : SIGTERM;
  return ::InterlockedExchange(&received, signal) == signal ? FALSE : TRUE;
}

}  // namespace

struct StopSignal::Before {};

StopSignal::StopSignal() {
  ::InterlockedExchange(&received, 0);
  ::SetConsoleCtrlHandler(Note, TRUE);
}

StopSignal::~StopSignal() {
  ::SetConsoleCtrlHandler(Note, FALSE);
  ::InterlockedExchange(&received, 0);
}

int StopSignal::Received() {
  return static_cast<int>(received);
}

}  // namespace korvane
