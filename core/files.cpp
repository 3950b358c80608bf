// SPDX-License-Identifier: GPL-3.0-or-later
// What is the same on every system: sentences and names. The file calls stand in files_posix
// and files_windows.
#include "core/files.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace korvane {
namespace {

constexpr std::string_view kPrefix = ".korvane-";
constexpr std::size_t kDigits = 16;

struct Sentence {
  WriteStatus status;
  const char* text;
};

constexpr std::array kSentences{
    Sentence{WriteStatus::Ok, ""},
    Sentence{WriteStatus::BadName, "The name can't be that of a file."},
    Sentence{WriteStatus::NoFolder, "The folder doesn't exist."},
    Sentence{WriteStatus::IsFolder, "A folder has this name."},
    Sentence{WriteStatus::NotAFile, "A device or a pipe has this name; - is the standard output."},
    Sentence{WriteStatus::IsInput, "The same command reads this file."},
    Sentence{WriteStatus::ReadOnly, "The file is read-only."},
    Sentence{WriteStatus::InUse, "Another program has the file open."},
    Sentence{WriteStatus::NotAllowed, "The folder may not be written to."},
    Sentence{WriteStatus::DiskFull, "The disk is full; nothing has changed on it."},
    Sentence{WriteStatus::GivenUp, "The work was given up; nothing has changed on the disk."},
    Sentence{WriteStatus::Failed, "The disk did not take it; nothing has changed on it."},
};

}  // namespace

WriteResult ResultOf(WriteStatus status) {
  const auto sentence = std::find_if(kSentences.begin(), kSentences.end(),
                                     [&](const Sentence& s) { return s.status == status; });
  return {status, sentence == kSentences.end() ? std::string() : sentence->text};
}

std::string TemporaryName(unsigned long long random) {
  std::array<char, kDigits + 1> digits{};
  std::snprintf(digits.data(), digits.size(), "%016llx", random);
  return std::string(kPrefix) + digits.data();
}

bool IsTemporaryName(std::string_view name) {
  if (name.size() != kPrefix.size() + kDigits || !name.starts_with(kPrefix)) return false;
  return name.find_first_not_of("0123456789abcdef", kPrefix.size()) == std::string_view::npos;
}

WriteResult WriteFile(const std::string& path, std::string_view bytes, const WriteRules& rules) {
  return WriteFileInPieces(
      path, [bytes](const PieceTaker& take) { return take(bytes); }, rules);
}

}  // namespace korvane
