// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/project_files.h"

#include "core/program.h"
#include "core/project_file.h"
#include "front/session.h"

namespace korvane {

namespace {

std::string Key(int entry) {
  return "RecentFile" + std::to_string(entry);
}

/// The folder of a path, or nothing when it has none.
std::string FolderOf(const std::string& path) {
  const auto slash = path.find_last_of("/\\");
  return slash == std::string::npos ? std::string() : path.substr(0, slash);
}

}  // namespace

std::string ProjectFiles::TitleOf(const std::string& file) {
  return kTitleBegin + file;
}

// --- Recent files -------------------------------------------------------------------------------

std::string ProjectFiles::Recent(int entry) const {
  return session_.platform_.Setting(Key(entry));
}

void ProjectFiles::Push(const std::string& name) {
  for (int k = kRecentFiles - 1; k >= 1; --k) {
    const std::string value = Recent(k);
    if (!value.empty()) session_.platform_.SetSetting(Key(k + 1), value);
  }
  session_.platform_.SetSetting(Key(1), name);
}

void ProjectFiles::Promote(const std::string& name) {
  for (int k = 1; k <= kRecentFiles; ++k) {
    if (Recent(k) == name) {
      PromoteEntry(k);
      return;
    }
  }
  Push(name);
}

void ProjectFiles::PromoteEntry(int entry) {
  const std::string name = Recent(entry);
  for (int k = entry; k > 1; --k) session_.platform_.SetSetting(Key(k), Recent(k - 1));
  session_.platform_.SetSetting(Key(1), name);
}

// --- Commands -----------------------------------------------------------------------------------

void ProjectFiles::New() {
  session_.KeepTexts();
  NewProject(session_.st(), session_.folders().program);
  ResetDatabase(session_.database());
  ForgetFormerInput(session_.design());
  session_.Calculate();
}

bool ProjectFiles::Read(const std::string& path) {
  switch (OpenProject(path, session_.st())) {
    case FileResult::Ok:
      return true;
    case FileResult::NotFound:
      session_.platform_.Message("can't find file - " + path);
      return false;
    case FileResult::TooShort:
      session_.platform_.Message("Input file not compatible with this version ");
      return false;
    case FileResult::OtherError:
      return false;
  }
  return false;
}

/// No form may show or keep an input of the project before. The main window has the focus then and
/// calculates as at each focus, with the weight of the section that the first calculation found.
void ProjectFiles::AfterOpen() {
  for (const Form& form : AllForms()) {
    if (form.input) session_.Unload(form);
  }
  session_.fields_.ForgetRefused();
  ForgetFormerInput(session_.design());
  try {
    const Design& d = session_.design();
    SetMaterial(d.lib->materials, d.rec.tmax, session_.st());
    session_.FillMainWindow();
    session_.Calculate();
    session_.Focus(*TheForms().main);
  } catch (const ArithmeticFault&) {
    // The commands on files pass over any other error; the window says that nothing is calculated.
    session_.FillMainWindow();
  }
}

void ProjectFiles::OpenPath(const std::string& path) {
  ProjectState& st = session_.st();
  if (path == st.CurrentFileName) {
    if (!Read(path)) return;
  } else {
    st.CurrentFileName = path;
    title_ = TitleOf(path);
    if (!Read(path)) return;
    Promote(path);
  }
  st.CurrentDir = FolderOf(path);
  AfterOpen();
}

void ProjectFiles::Open() {
  if (const auto path = session_.platform_.AskOpen("*.kvn", "kvn")) OpenPath(*path);
}

void ProjectFiles::OpenRecent(int entry) {
  const std::string path = Recent(entry);
  if (path.empty()) return;
  session_.st().CurrentDir = FolderOf(path);
  session_.st().CurrentFileName = path;
  title_ = TitleOf(path);
  // The menu knows the position, also of a name that stands in the list twice.
  PromoteEntry(entry);
  if (Read(path)) AfterOpen();
}

/// The texts of the two free fields are read on saving only.
void ProjectFiles::TakeTexts() {
  const MainControls& on = TheForms().onMain;
  session_.st().iident = session_.Text(*on.iident);
  session_.st().iproj = session_.Text(*on.iproj);
}

bool ProjectFiles::Write(const std::string& path) {
  const WriteStatus written = SaveProject(path, session_.st()).status;
  if (written == WriteStatus::NoFolder) session_.platform_.Message("can't save file - " + path);
  return written == WriteStatus::Ok;
}

void ProjectFiles::SavePathAs(const std::string& path) {
  TakeTexts();
  session_.st().CurrentFileName = path;
  title_ = TitleOf(path);
  if (!Write(path)) return;
  session_.st().CurrentDir = FolderOf(path);
  Push(path);
}

void ProjectFiles::SaveAs() {
  TakeTexts();
  if (const auto path = session_.platform_.AskSave("*.kvn", "kvn")) SavePathAs(*path);
}

void ProjectFiles::Save() {
  if (session_.st().CurrentFileName == "New File") {
    SaveAs();
    return;
  }
  TakeTexts();
  Write(session_.st().CurrentFileName);
}

}  // namespace korvane
