// SPDX-License-Identifier: GPL-3.0-or-later
#include <array>
#include <csignal>

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

struct StopSignal::Before {
  std::array<struct sigaction, kSignals.size()> actions{};
};

StopSignal::StopSignal() : before_(std::make_unique<Before>()) {
  received = 0;
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], nullptr, &before_->actions[i]);
    if (before_->actions[i].sa_handler == SIG_IGN) continue;
    struct sigaction note {};
    note.sa_handler = Note;
    note.sa_flags = static_cast<int>(SA_RESETHAND | SA_RESTART);
    sigaction(kSignals[i], &note, nullptr);
  }
}

StopSignal::~StopSignal() {
  for (std::size_t i = 0; i < kSignals.size(); ++i) {
    sigaction(kSignals[i], &before_->actions[i], nullptr);
  }
  received = 0;
}

int StopSignal::Received() {
  return received;
}

}  // namespace korvane
