// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/files_of_commands.h"

#include <algorithm>
#include <array>
#include <iostream>
#include <streambuf>

#include "front/console/exit_status.h"
#include "front/console/terminal.h"

namespace korvane {

namespace {

/// Hands on what a stream writes, a piece at a time.
class PieceBuffer : public std::streambuf {
public:
  explicit PieceBuffer(const PieceTaker& take) : take_(take) {
    setp(bytes_.data(), bytes_.data() + bytes_.size());
  }

protected:
  int_type overflow(int_type c) override {
    if (!HandOn()) return traits_type::eof();
    if (!traits_type::eq_int_type(c, traits_type::eof())) sputc(traits_type::to_char_type(c));
    return traits_type::not_eof(c);
  }
  int sync() override { return HandOn() ? 0 : -1; }
  std::streamsize xsputn(const char* text, std::streamsize size) override {
    if (size <= epptr() - pptr()) return std::streambuf::xsputn(text, size);
    // What is larger than the buffer goes past it.
    const bool taken = HandOn() && take_({text, static_cast<std::size_t>(size)});
    return taken ? size : 0;
  }

private:
  bool HandOn() {
    const bool taken = take_({pbase(), static_cast<std::size_t>(pptr() - pbase())});
    setp(bytes_.data(), bytes_.data() + bytes_.size());
    return taken;
  }
  const PieceTaker& take_;
  std::array<char, 65536> bytes_;
};

}  // namespace

std::optional<std::string> ReadInput(const std::string& path, bool* notFound) {
  if (path != kStandardStream) return ReadWholeFile(path, notFound);
  if (notFound != nullptr) *notFound = false;
  std::string bytes;
  std::array<char, 65536> some;
  do {
    std::cin.read(some.data(), some.size());
    bytes.append(some.data(), static_cast<std::size_t>(std::cin.gcount()));
  } while (std::cin);
  if (std::cin.bad()) return std::nullopt;
  return bytes;
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

WriteResult WriteAsMade(const std::string& path, const WriteRules& rules, std::ostream& output,
                        const std::function<bool(std::ostream&)>& work) {
  if (path.empty() || path == kStandardStream) {
    const bool whole = work(output);
    output.flush();
    return ResultOf(whole ? WriteStatus::Ok : WriteStatus::GivenUp);
  }
  return WriteFileInPieces(
      path,
      [&](const PieceTaker& take) {
        PieceBuffer buffer(take);
        std::ostream made(&buffer);
        return work(made) && bool(made.flush());
      },
      rules);
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
