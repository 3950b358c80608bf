// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/project_files.h"

#include "core/program.h"
#include "core/project_file.h"
#include "front/session.h"

namespace korvane {

namespace {

/// The name of a project without a file.
const std::string kNewFile = ProjectState().CurrentFileName;

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

// --- New and Open -------------------------------------------------------------------------------

void ProjectFiles::New() {
  session_.KeepTexts();
  NewProject(session_.st(), session_.folders().program);
  ResetDatabase(session_.database());
  ForgetFormerInput(session_.design());
  session_.Calculate();
  // Where that fails the file before is still the one to go on with.
  record_.path.clear();
  record_.disk.reset();
  record_.savedAt.reset();
  record_.projectFailed.clear();
  Settle();
}

bool ProjectFiles::Read(const std::string& path) {
  bool notFound = false;
  const auto bytes = ReadWholeFile(path, &notFound);
  record_.path = path;
  record_.disk.reset();
  record_.saved.clear();
  record_.savedAt.reset();
  record_.projectFailed.clear();
  if (bytes) record_.disk = MarkOf(*bytes);
  if (notFound) {
    session_.platform_.Message("can't find file - " + path);
    return false;
  }
  record_.unread.insert(path);
  if (!bytes) return false;
  switch (ReadProject(*bytes, session_.st())) {
    case FileResult::Ok:
      record_.unread.erase(path);
      return true;
    case FileResult::TooShort:
      session_.platform_.Message("Input file not compatible with this version ");
      return false;
    default:
      return false;
  }
}

namespace {

/// What each calculation finds anew is no change of the project.
void CopyCalculated(const ProjectState& from, ProjectState& to) {
  to.fyk = from.fyk;
  to.BucklingCurveY = from.BucklingCurveY;
  to.BucklingCurveZ = from.BucklingCurveZ;
  to.LtbCriticalSegment = from.LtbCriticalSegment;
}

}  // namespace

/// No form may show or keep an input of the project before. The main window has the focus then and
/// calculates as at each focus, with the weight of the section that the first calculation found.
void ProjectFiles::AfterOpen() {
  for (const Form& form : AllForms()) {
    if (form.input) session_.Unload(form);
  }
  session_.fields_.ForgetRefused();
  session_.FillMainWindow();
  ForgetFormerInput(session_.design());
  ProjectState read = session_.st();
  session_.BeginProject();
  try {
    const Design& d = session_.design();
    SetMaterial(d.lib->materials, d.rec.tmax, session_.st());
  } catch (const ArithmeticFault&) {
    // The calculation meets it again, and the window says so.
  }
  session_.Calculate();
  // The second calculation may be the one that fails.
  session_.mending_ = true;
  session_.Focus(*TheForms().main);
  if (session_.Mending()) session_.calculated_.reset();
  CopyCalculated(session_.st(), read);
  record_.saved = ProjectText(read);
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

void ProjectFiles::TakeUp(const ProjectState& state, FileRecord record, bool modified) {
  session_.st() = state;
  title_ = TitleOf(state.CurrentFileName == kNewFile ? std::string() : state.CurrentFileName);
  AfterOpen();
  const std::string saved = record_.saved;
  record_ = std::move(record);
  record_.saved = modified ? std::string() : saved;
}

// --- Save ---------------------------------------------------------------------------------------

/// The texts of the two free fields are read on saving only.
void ProjectFiles::TakeTexts() {
  session_.st() = ToSave();
}

namespace {

/// The results are those of a project by whatever name.
void TakeNames(const ProjectState& from, ProjectState& to) {
  to.CurrentFileName = from.CurrentFileName;
  to.iproj = from.iproj;
  to.iident = from.iident;
}

}  // namespace

void ProjectFiles::SavePathAs(const std::string& path) {
  TakeTexts();
  session_.st().CurrentFileName = path;
  if (session_.calculated_) TakeNames(session_.st(), *session_.calculated_);
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
  if (session_.st().CurrentFileName == kNewFile) {
    SaveAs();
    return;
  }
  TakeTexts();
  Write(session_.st().CurrentFileName);
}

}  // namespace korvane
