// SPDX-License-Identifier: GPL-3.0-or-later
// What is the same on every terminal. The calls of the system stand in terminal_posix and
// terminal_windows.
#include "front/console/terminal.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "front/console/terminal_system.h"

namespace korvane {
namespace {

constexpr std::size_t kBarWidth = 24;
constexpr std::size_t kNarrowTerminal = 20;
constexpr auto kRedrawInterval = std::chrono::milliseconds(100);

std::string Duration(double seconds) {
  const auto s = static_cast<long long>(std::ceil(seconds));
  if (s < 60) return std::to_string(s) + " s";
  if (s < 3600) return std::to_string(s / 60) + " min " + std::to_string(s % 60) + " s";
  return std::to_string(s / 3600) + " h " + std::to_string(s % 3600 / 60) + " min";
}

bool IsControl(unsigned char c) {
  return c < 0x20 || c == 0x7F;
}

}  // namespace

bool ColourWanted() {
  const char* off = std::getenv("NO_COLOR");
  return OutputIsTerminal() && (!off || !*off);
}

bool ProgressWanted() {
  const char* term = std::getenv("TERM");
  const bool dumb = term != nullptr && std::string_view(term) == "dumb";
  return ErrorsAreTerminal() && !dumb && ColumnsOfErrors() > kNarrowTerminal;
}

std::string Visible(std::string_view text) {
  std::string shown;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto c = static_cast<unsigned char>(text[i]);
    // U+0080 to U+009F, which terminals obey as well, are C2 80 to C2 9F.
    const bool second = i > 0 && static_cast<unsigned char>(text[i - 1]) == 0xC2;
    if (!IsControl(c) && !(second && c >= 0x80 && c < 0xA0)) {
      shown += text[i];
      continue;
    }
    std::array<char, 5> escape{};
    std::snprintf(escape.data(), escape.size(), "\\x%02X", c);
    shown += escape.data();
  }
  return shown;
}

std::string NameOnErrors(const std::string& name) {
  return ErrorsAreTerminal() ? Visible(name) : name;
}

namespace {

/// Hands whole lines on, their control characters escaped.
class EscapingBuffer : public std::streambuf {
public:
  explicit EscapingBuffer(std::streambuf* out) : out_(out) {}
  ~EscapingBuffer() override { sync(); }
  EscapingBuffer(const EscapingBuffer&) = delete;
  EscapingBuffer& operator=(const EscapingBuffer&) = delete;

protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
    if (c != '\n') {
      line_ += traits_type::to_char_type(c);
      return c;
    }
    const bool handed = HandOn();
    return handed && out_->sputc('\n') == '\n' ? c : traits_type::eof();
  }
  int sync() override { return HandOn() ? out_->pubsync() : -1; }

private:
  bool HandOn() {
    const std::string shown = Visible(line_);
    line_.clear();
    const auto size = static_cast<std::streamsize>(shown.size());
    return out_->sputn(shown.data(), size) == size;
  }
  std::streambuf* out_;
  std::string line_;
};

}  // namespace

VisibleStream::VisibleStream(std::ostream& stream, bool terminal) : stream_(stream) {
  if (!terminal) return;
  escaping_ = std::make_unique<EscapingBuffer>(stream.rdbuf());
  before_ = stream.rdbuf(escaping_.get());
}

VisibleStream::~VisibleStream() {
  if (before_ == nullptr) return;
  stream_.flush();
  stream_.rdbuf(before_);
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
  // A line that reaches the edge would wrap and could not be rewritten.
  const std::string line = ProgressLine(done, all, seconds, unit_).substr(0, ColumnsOfErrors() - 1);
  out_ << '\r' << line << "\x1b[K" << std::flush;
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
