// SPDX-License-Identifier: GPL-3.0-or-later
// Writing projects: what must not be lost on disk, and what is known afterwards.
#include "core/project_file.h"
#include "front/project_files.h"
#include "front/session.h"

namespace korvane {

FileMark MarkOf(std::string_view bytes) {
  // FNV-1a
  std::uint64_t hash = 14695981039346656037ULL;
  for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
  return {bytes.size(), hash};
}

std::string ReasonOf(const WriteResult& result) {
  // A sentence of its own tells where the old content is.
  if (result.why != ResultOf(result.status).why) return result.why;
  if (result.status == WriteStatus::NotAllowed) return "the folder is read-only";
  if (result.status == WriteStatus::DiskFull) return "the disk is full";
  std::string reason = result.why;
  if (!reason.empty() && reason.front() == 'T') reason.front() = 't';
  if (!reason.empty() && reason.front() == 'A') reason.front() = 'a';
  if (reason.ends_with('.')) reason.pop_back();
  return reason;
}

ProjectState ProjectFiles::ToSave() const {
  ProjectState st = session_.st();
  const MainControls& on = TheForms().onMain;
  st.iident = session_.Text(*on.iident);
  st.iproj = session_.Text(*on.iproj);
  return st;
}

bool ProjectFiles::Modified() const {
  return ProjectText(ToSave()) != record_.saved;
}

void ProjectFiles::Settle() {
  record_.saved = ProjectText(ToSave());
}

bool ProjectFiles::ChangedOnDisk(const std::string& path) const {
  if (!record_.disk || record_.path != path) return false;
  const auto now = ReadWholeFile(path);
  return now && !(MarkOf(*now) == *record_.disk);
}

/// A file that could not be read whole may be all that is left of a work: it goes to a name of its
/// own. Returns why it could not, empty where it is kept or gone.
std::string ProjectFiles::KeepUnread(const std::string& path) {
  bool notFound = false;
  const auto bytes = ReadWholeFile(path, &notFound);
  if (notFound) return {};
  if (!bytes) return "the file there can't be read, and would be lost";
  std::string name = path + ".bak";
  for (int k = 2;; ++k) {
    const auto there = ReadWholeFile(name, &notFound);
    if (notFound || (there && *there == *bytes)) break;
    name = path + ".bak" + std::to_string(k);
  }
  const WriteResult kept = WriteFile(name, *bytes);
  if (!kept) return "the file there can't be kept as " + name + ": " + ReasonOf(kept);
  record_.keptAs = name;
  return {};
}

void ProjectFiles::Failed(std::string& record, const char* what, const std::string& reason) {
  record = reason;
  session_.platform_.Remark(std::string(what) + reason);
}

bool ProjectFiles::Write(const std::string& path) {
  constexpr const char* kWhat = "not saved: ";
  record_.keptAs.clear();
  if (ChangedOnDisk(path) && !session_.platform_.AskOverwrite(path)) {
    Failed(record_.projectFailed, kWhat, "the file has changed on disk since it was read");
    return false;
  }
  if (record_.unread.contains(path)) {
    if (const std::string why = KeepUnread(path); !why.empty()) {
      Failed(record_.projectFailed, kWhat, why);
      return false;
    }
  }
  const std::string text = ProjectText(session_.st());
  const WriteResult written = WriteFile(path, text);
  if (!written) {
    if (written.status == WriteStatus::NoFolder) {
      session_.platform_.Message("can't save file - " + path);
    }
    Failed(record_.projectFailed, kWhat, ReasonOf(written));
    return false;
  }
  record_.unread.erase(path);
  record_.path = path;
  record_.disk = MarkOf(text);
  record_.saved = text;
  record_.savedAt = session_.platform_.Now();
  record_.projectFailed.clear();
  if (!record_.keptAs.empty()) {
    session_.platform_.Remark("the file that could not be read is kept as " + record_.keptAs);
  }
  return true;
}

void ProjectFiles::WroteDatabase(const WriteResult& result) {
  if (result) {
    record_.databaseFailed.clear();
  } else {
    Failed(record_.databaseFailed, "database not saved: ", ReasonOf(result));
  }
}

void ProjectFiles::WroteDefaults(const WriteResult& result) {
  if (result) {
    record_.defaultsFailed.clear();
  } else {
    Failed(record_.defaultsFailed, "default values not saved: ", ReasonOf(result));
  }
}

}  // namespace korvane
