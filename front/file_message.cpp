// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/file_message.h"

#include "core/text.h"

namespace korvane {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A text at the version's place counts as 0, which is an old version.
bool HoldsVersion(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  return BeginsWithNumber(bytes.substr(0, bytes.find_first_of("\r\n")));
}

}  // namespace

std::vector<std::string> RemarksOn(std::string_view bytes) {
  if (HoldsVersion(bytes)) return {};
  return {kNoVersion};
}

std::string FileMessage(FileResult result, const std::string& path) {
  switch (result) {
    case FileResult::Ok:
      return {};
    case FileResult::NotFound:
      return "can't find file - " + path;
    case FileResult::TooShort:
      return "Input file not compatible with this version ";
    case FileResult::OtherError:
      break;
  }
  return "can't read file - " + path;
}

}  // namespace korvane
