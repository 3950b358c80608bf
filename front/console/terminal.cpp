// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/terminal.h"

#include <unistd.h>

#include <cmath>
#include <cstdlib>
#include <utility>

namespace korvane {
namespace {

constexpr std::size_t kBarWidth = 24;
constexpr auto kRedrawInterval = std::chrono::milliseconds(100);

std::string Duration(double seconds) {
  const auto s = static_cast<long long>(std::ceil(seconds));
  if (s < 60) return std::to_string(s) + " s";
  if (s < 3600) return std::to_string(s / 60) + " min " + std::to_string(s % 60) + " s";
  return std::to_string(s / 3600) + " h " + std::to_string(s % 3600 / 60) + " min";
}

}  // namespace

bool OutputIsTerminal() {
  return isatty(STDOUT_FILENO) == 1;
}

bool ErrorsAreTerminal() {
  return isatty(STDERR_FILENO) == 1;
}

bool ColourWanted() {
  const char* off = std::getenv("NO_COLOR");
  return OutputIsTerminal() && (!off || !*off);
}

std::string Red(const std::string& text, bool colour) {
  return colour ? "\x1b[31m" + text + "\x1b[0m" : text;
}

ProgressBar::ProgressBar(std::ostream& out, bool shown, std::string unit)
    : out_(out), shown_(shown), unit_(std::move(unit)) {}

void ProgressBar::Update(std::size_t done, std::size_t all) {
  if (!shown_) return;
  const auto now = Clock::now();
  if (now < next_) return;
  next_ = now + kRedrawInterval;
  const double seconds = std::chrono::duration<double>(now - start_).count();
  out_ << '\r' << ProgressLine(done, all, seconds, unit_) << "\x1b[K" << std::flush;
  drawn_ = true;
}

void ProgressBar::Finish() {
  if (drawn_) out_ << "\r\x1b[K" << std::flush;
  drawn_ = false;
}

std::string ProgressLine(std::size_t done, std::size_t all, double seconds,
                         const std::string& unit) {
  const std::size_t filled = all ? kBarWidth * done / all : kBarWidth;
  std::string line = "[" + std::string(filled, '#') + std::string(kBarWidth - filled, '.') + "] ";
  line += std::to_string(done) + "/" + std::to_string(all) + " " + unit;
  if (done == 0 || seconds <= 0.0) return line;
  const double rate = static_cast<double>(done) / seconds;
  line += "  " + std::to_string(static_cast<long long>(std::llround(rate))) + "/s";
  line += "  " + Duration(static_cast<double>(all - done) / rate) + " left";
  return line;
}

}  // namespace korvane
