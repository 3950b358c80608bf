// SPDX-License-Identifier: GPL-3.0-or-later
// The commands on project files, the list of recent files and the main window's title.
#pragma once

#include <string>

namespace korvane {

class Session;

inline constexpr int kRecentFiles = 4;

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

private:
  void Push(const std::string& name);
  void Promote(const std::string& name);
  void PromoteEntry(int entry);
  bool Read(const std::string& path);
  bool Write(const std::string& path);
  void TakeTexts();
  void AfterOpen();

  Session& session_;
  std::string title_;
};

}  // namespace korvane
