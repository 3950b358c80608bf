// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/stop_signal.h"

namespace korvane {
namespace {

constexpr std::array kSignals{SIGINT, SIGTERM};

// A handler can reach nothing but a variable of the whole program.
volatile std::sig_atomic_t received = 0;

void Note(int signal) {
  received = signal;
}

}  // namespace

StopSignal::StopSignal() {
  received = 0;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &before_[i]);
    if (before_[i].sa_handler == SIG_IGN) continue;
    struct sigaction note {};
    note.sa_handler = Note;
    note.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigaction(kSignals[i], &note, nullptr);
  }
}

StopSignal::~StopSignal() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &before_[i], nullptr);
  }
  received = 0;
}

int StopSignal::Received() {
  return received;
}

}  // namespace korvane
