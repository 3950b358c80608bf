// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/save_words.h"

#include "front/session.h"

namespace korvane {

namespace {

std::string Two(int n) {
  return (n < 10 ? "0" : "") + std::to_string(n);
}

}  // namespace

SaveWords SaveWordsOf(const Session& s) {
  const FileRecord& record = s.files().Record();
  if (!record.projectFailed.empty()) return {"NOT SAVED: " + record.projectFailed, true};
  if (!record.databaseFailed.empty()) {
    return {"DATABASE NOT SAVED: " + record.databaseFailed, true};
  }
  if (!record.defaultsFailed.empty()) {
    return {"DEFAULT VALUES NOT SAVED: " + record.defaultsFailed, true};
  }
  if (s.files().Modified()) return {"unsaved changes"};
  if (!record.savedAt) return {};
  SaveWords words{"saved " + Two(record.savedAt->hour) + ":" + Two(record.savedAt->minute)};
  if (!record.keptAs.empty()) {
    words.text += ", the file that could not be read is kept as " + record.keptAs;
  }
  return words;
}

}  // namespace korvane
