// SPDX-License-Identifier: GPL-3.0-or-later
// The commands on project files, the list of recent files, the main window's title, and what is
// known of the file on disk.
#pragma once

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <string_view>

#include "core/files.h"
#include "front/platform.h"

namespace korvane {

class Session;
struct ProjectState;

inline constexpr int kRecentFiles = 4;

/// Tells one content of a file from another.
struct FileMark {
  std::uint64_t size = 0;
  std::uint64_t hash = 0;
  bool operator==(const FileMark&) const = default;
};
FileMark MarkOf(std::string_view bytes);

/// Why a file was not written, in few words: "the folder is read-only".
std::string ReasonOf(const WriteResult& result);

/// What is known of the files that the program writes.
struct FileRecord {
  std::string path;              ///< of the project, as it was read or written last
  std::optional<FileMark> disk;  ///< its content then; none before and for a missing file
  std::string saved;             ///< the project as it stands in its file
  std::set<std::string> unread;  ///< files that could not be read whole
  std::string keptAs;            ///< where the last saving has kept the file before
  std::optional<DateTime> savedAt;
  /// Why the last writing failed; empty after one that succeeded.
  std::string projectFailed, databaseFailed, defaultsFailed;
};

class ProjectFiles {
public:
  explicit ProjectFiles(Session& session) : session_(session) {}

  void New();
  void Open();
  /// Opens a path as the dialog would have given it.
  void OpenPath(const std::string& path);
  /// Opens an entry of the recent files, 1 to 4.
  void OpenRecent(int entry);
  void Save();
  void SaveAs();
  void SavePathAs(const std::string& path);
  /// Path of an entry, empty when there is none.
  std::string Recent(int entry) const;

  const std::string& Title() const { return title_; }
  void SetTitle(std::string title) { title_ = std::move(title); }
  /// The title that names a file.
  static std::string TitleOf(const std::string& file);

  const FileRecord& Record() const { return record_; }
  /// The project is another than its file holds, or has no file and was changed.
  bool Modified() const;
  /// The state with the texts of the two free fields, as a saving would take it.
  ProjectState ToSave() const;
  /// The project in force counts as unchanged.
  void Settle();
  /// What came of writing the database or the defaults.
  void WroteDatabase(const WriteResult& result);
  void WroteDefaults(const WriteResult& result);
  /// A project that was kept comes in force with what was known of its file, as by opening it.
  void TakeUp(const ProjectState& state, FileRecord record, bool modified);

private:
  void Push(const std::string& name);
  void Promote(const std::string& name);
  void PromoteEntry(int entry);
  bool Read(const std::string& path);
  bool Write(const std::string& path);
  bool ChangedOnDisk(const std::string& path) const;
  std::string KeepUnread(const std::string& path);
  void Failed(std::string& record, const char* what, const std::string& reason);
  void TakeTexts();
  void AfterOpen();

  Session& session_;
  std::string title_;
  FileRecord record_;
};

}  // namespace korvane
