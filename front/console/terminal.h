// SPDX-License-Identifier: GPL-3.0-or-later
// What a terminal gets and a file or pipe does not: colour and a progress bar.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>
#include <ostream>
#include <string>
#include <string_view>

namespace korvane {

/// While one stands, the standard streams carry UTF-8, byte for byte as they are written.
class StandardStreams {
public:
  StandardStreams();
  ~StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;

private:
  [[maybe_unused]] unsigned outputBefore_ = 0, inputBefore_ = 0;  ///< code pages of the console
};

/// Whether the standard output, or the standard error output, is a terminal.
bool OutputIsTerminal();
bool ErrorsAreTerminal();

/// Whether results on the standard output are coloured: on a terminal, unless NO_COLOR is set.
bool ColourWanted();

/// Whether a progress bar is wanted on the standard error output: on a terminal that can rewrite
/// a line (TERM isn't "dumb") and is wider than 20 columns.
bool ProgressWanted();

/// The text with its control characters escaped (\x1B), as a terminal would obey them.
std::string Visible(std::string_view text);

/// A name as the standard error output gets it: byte for byte, but visible on a terminal.
std::string NameOnErrors(const std::string& name);

/// While one stands, what goes to a stream that ends at a terminal has its control characters
/// escaped; lines stay lines.
class VisibleStream {
public:
  VisibleStream(std::ostream& stream, bool terminal);
  ~VisibleStream();
  VisibleStream(const VisibleStream&) = delete;
  VisibleStream& operator=(const VisibleStream&) = delete;

private:
  std::ostream& stream_;
  std::unique_ptr<std::streambuf> escaping_;
  std::streambuf* before_ = nullptr;
};

/// The text in red when colour is wanted.
std::string Red(const std::string& text, bool colour);

/// One line that is rewritten in place: bar, count, rate and time left. Writes nothing when it
/// is not shown; rewrites itself ten times a second at most.
class ProgressBar {
public:
  ProgressBar(std::ostream& out, bool shown, std::string unit);
  void Update(std::size_t done, std::size_t all);
  /// Takes the line off the terminal.
  void Finish();

private:
  using Clock = std::chrono::steady_clock;
  std::ostream& out_;
  bool shown_;
  bool drawn_ = false;
  std::string unit_;
  Clock::time_point start_ = Clock::now();
  Clock::time_point next_ = start_;
};

/// The line of a progress bar, without the carriage return.
std::string ProgressLine(std::size_t done, std::size_t all, double seconds,
                         const std::string& unit);

}  // namespace korvane
