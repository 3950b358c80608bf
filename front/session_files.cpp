// SPDX-License-Identifier: GPL-3.0-or-later
// The commands on project files and the list of recent files.
#include <algorithm>

#include "core/project_file.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

constexpr int kRecentFiles = 4;

std::string Key(int entry) {
  return "RecentFile" + std::to_string(entry);
}

/// The folder of a path, or the path itself when it has none.
std::string FolderOf(const std::string& path) {
  const auto slash = path.find_last_of("/\\");
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

std::string Session::RecentFile(int entry) const {
  return platform_.Setting(Key(entry));
}

void Session::Push(const std::string& name) {
  for (int k = kRecentFiles - 1; k >= 1; --k) {
    const std::string value = RecentFile(k);
    if (!value.empty()) platform_.SetSetting(Key(k + 1), value);
  }
  platform_.SetSetting(Key(1), name);
}

void Session::Promote(const std::string& name) {
  for (int k = 1; k <= kRecentFiles; ++k) {
    if (RecentFile(k) == name) {
      PromoteEntry(k);
      return;
    }
  }
  Push(name);
}

void Session::PromoteEntry(int entry) {
  const std::string name = RecentFile(entry);
  for (int k = entry; k > 1; --k) platform_.SetSetting(Key(k), RecentFile(k - 1));
  platform_.SetSetting(Key(1), name);
}

void Session::NewCommand() {
  NewProject(st(), folders_.program);
  ResetDatabase(database_);
  ForgetFormerInput(design_);
  Calculate();
}

bool Session::ReadInto(const std::string& path) {
  switch (OpenProject(path, st())) {
    case FileResult::Ok:
      return true;
    case FileResult::NotFound:
      platform_.Message("can't find file - " + path);
      return false;
    case FileResult::TooShort:
      platform_.Message("Input file not compatible with this version ");
      return false;
    case FileResult::OtherError:
      return false;
  }
  return false;
}

void Session::AfterOpen() {
  for (const Family& family : AllFamilies()) Unload(family.form);
  ForgetFormerInput(design_);
  try {
    SetMaterial(design_.lib->materials, design_.rec.tmax, st());
    FillMainWindow();
    Calculate();
  } catch (const ArithmeticFault&) {
    // The commands on files pass over any other error; the focus of the window meets it again.
  }
}

void Session::OpenPath(const std::string& path) {
  if (path == st().CurrentFileName) {
    if (!ReadInto(path)) return;
  } else {
    st().CurrentFileName = path;
    title_ = "KORVANE-NS3472: " + path;
    if (!ReadInto(path)) return;
    Promote(path);
  }
  st().CurrentDir = FolderOf(path);
  AfterOpen();
}

void Session::OpenCommand() {
  if (const auto path = platform_.AskOpen("*.kvn", "kvn")) OpenPath(*path);
}

void Session::OpenRecent(int entry) {
  const std::string path = RecentFile(entry);
  if (path.empty()) return;
  st().CurrentDir = FolderOf(path);
  st().CurrentFileName = path;
  title_ = "KORVANE-NS3472: " + path;
  // The menu knows the position, also of a name that stands in the list twice.
  PromoteEntry(entry);
  if (ReadInto(path)) AfterOpen();
}

void Session::SavePathAs(const std::string& path) {
  st().iident = FieldText("korvane", "iident");
  st().iproj = FieldText("korvane", "iproj");
  st().CurrentFileName = path;
  title_ = "KORVANE-NS3472: " + path;
  const WriteStatus written = SaveProject(path, st()).status;
  if (written == WriteStatus::NoFolder) platform_.Message("can't save file - " + path);
  if (written != WriteStatus::Ok) return;
  st().CurrentDir = FolderOf(path);
  Push(path);
}

void Session::SaveAsCommand() {
  st().iident = FieldText("korvane", "iident");
  st().iproj = FieldText("korvane", "iproj");
  if (const auto path = platform_.AskSave("*.kvn", "kvn")) SavePathAs(*path);
}

void Session::SaveCommand() {
  if (st().CurrentFileName == "New File") {
    SaveAsCommand();
    return;
  }
  st().iident = FieldText("korvane", "iident");
  st().iproj = FieldText("korvane", "iproj");
  if (SaveProject(st().CurrentFileName, st()).status == WriteStatus::NoFolder) {
    platform_.Message("can't save file - " + st().CurrentFileName);
  }
}

}  // namespace korvane
