// SPDX-License-Identifier: GPL-3.0-or-later
// Saving: what is told when it fails, what must not be lost on disk, when a project is modified.
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <csignal>
#include <filesystem>

#include "core/project_file.h"
#include "front/save_words.h"
#include "places.h"
#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

void Write(const std::string& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

std::string Read(const std::string& path) {
  return ReadWholeFile(path).value_or("(no file)");
}

void MakeReadOnly(const std::string& path) {
  std::filesystem::permissions(path, std::filesystem::perms::owner_read);
}

void MakeWritable(const std::string& path) {
  std::filesystem::permissions(
      path, std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
}

std::string Words(const Running& r) {
  return SaveWordsOf(r.session).text;
}

// --- A saving that fails ------------------------------------------------------------------------

TEST(FailedSave, IsToldWithoutABoxUntilASavingSucceeds) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  Running r;
  r.session.Enter("il", "7");
  r.session.files().SavePathAs(path);
  EXPECT_EQ(Words(r), "saved 14:05");
  MakeReadOnly(path);
  r.session.Enter("il", "8");
  EXPECT_EQ(Words(r), "unsaved changes");
  r.session.Menu("mnusave");
  EXPECT_TRUE(r.platform.messages.empty());
  EXPECT_EQ(r.platform.remarks, std::vector<std::string>{"not saved: the file is read-only"});
  EXPECT_EQ(Words(r), "NOT SAVED: the file is read-only");
  EXPECT_TRUE(SaveWordsOf(r.session).failed);
  EXPECT_TRUE(r.session.files().Modified());
  // Whatever is done in between, it stands until a saving succeeds.
  r.session.Enter("il", "9");
  EXPECT_EQ(Words(r), "NOT SAVED: the file is read-only");
  MakeWritable(path);
  r.session.Menu("mnusave");
  EXPECT_EQ(Words(r), "saved 14:05");
  EXPECT_FALSE(SaveWordsOf(r.session).failed);
  EXPECT_FALSE(r.session.files().Modified());
  ProjectState read = r.st();
  EXPECT_EQ(OpenProject(path, read), FileResult::Ok);
  EXPECT_EQ(double(read.L), 9);
}

TEST(FailedSave, UnderANewNameKeepsTheMarkAndNamesTheFolder) {
  const TempFolder folder;
  Running r;
  r.session.Enter("il", "7");
  r.session.files().SavePathAs(folder / "no/a.kvn");
  EXPECT_EQ(r.platform.messages,
            std::vector<std::string>{"can't save file - " + (folder / "no/a.kvn")});
  EXPECT_EQ(Words(r), "NOT SAVED: the folder doesn't exist");
  EXPECT_TRUE(r.session.files().Modified());
}

TEST(FailedSave, OnAFullDiskLeavesTheOldFile) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  Running r;
  r.session.files().SavePathAs(path);
  const std::string before = Read(path);
  r.session.Enter("il", "7");
  // A limit on the size of files is told as a full disk.
  rlimit old{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit none = old;
  none.rlim_cur = 0;
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &none), 0);
  r.session.Menu("mnusave");
  ::setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(Words(r), "NOT SAVED: the disk is full");
  EXPECT_EQ(Read(path), before);
}

TEST(FailedSave, OfDatabaseAndDefaultsIsToldToo) {
  const TempFolder folder;
  const std::string path = folder / "a.db";
  Write(path, "mine");
  MakeReadOnly(path);
  Running r(false, Folders{{}, folder / "gone"});
  r.platform.answers = {path};
  r.session.Menu("mnudb");
  r.session.Click("save_db");
  EXPECT_EQ(r.platform.remarks.back(), "database not saved: the file is read-only");
  EXPECT_EQ(Words(r), "DATABASE NOT SAVED: the file is read-only");
  MakeWritable(path);
  r.platform.answers = {path};
  r.session.Click("save_db");
  EXPECT_EQ(Words(r), "");
  r.session.Menu("mnusetup");
  r.session.Click("Command2");
  EXPECT_EQ(Words(r), "DEFAULT VALUES NOT SAVED: the folder doesn't exist");
  EXPECT_TRUE(SaveWordsOf(r.session).failed);
  EXPECT_TRUE(r.platform.messages.empty());
}

TEST(FailedSave, ReasonsAreShort) {
  EXPECT_EQ(ReasonOf(ResultOf(WriteStatus::NotAllowed)), "the folder is read-only");
  EXPECT_EQ(ReasonOf(ResultOf(WriteStatus::ReadOnly)), "the file is read-only");
  EXPECT_EQ(ReasonOf(ResultOf(WriteStatus::DiskFull)), "the disk is full");
  EXPECT_EQ(ReasonOf(ResultOf(WriteStatus::IsFolder)), "a folder has this name");
  // Where the old content had to go elsewhere, the whole sentence stands.
  EXPECT_EQ(ReasonOf({WriteStatus::Failed, "The old content is in /x."}),
            "The old content is in /x.");
}

// --- A file that could not be read whole --------------------------------------------------------

TEST(UnreadFile, IsKeptWhereAnotherProjectIsSavedOverIt) {
  const TempFolder folder;
  const std::string path = folder / "torn.kvn";
  Write(path, "390\r\nBridge\r\n");
  Running r;
  r.session.Enter("il", "7");
  r.session.files().OpenPath(path);
  ASSERT_EQ(r.platform.messages.size(), 1U);
  EXPECT_TRUE(r.session.files().Modified());
  r.session.Menu("mnusave");
  EXPECT_EQ(Read(path + ".bak"), "390\r\nBridge\r\n");
  EXPECT_EQ(Words(r), "saved 14:05, the file that could not be read is kept as " + path + ".bak");
  ProjectState read = r.st();
  EXPECT_EQ(OpenProject(path, read), FileResult::Ok);
  // From now on it is the project's own.
  r.session.Enter("il", "8");
  r.session.Menu("mnusave");
  EXPECT_EQ(Words(r), "saved 14:05");
  EXPECT_EQ(Read(path + ".bak"), "390\r\nBridge\r\n");
}

TEST(UnreadFile, IsKnownUnderSaveAsToo) {
  const TempFolder folder;
  const std::string path = folder / "torn.kvn";
  Write(path, "390\r\nfirst\r\n");
  Write(path + ".bak", "an older one");
  Running r;
  r.session.files().OpenPath(path);
  r.session.files().OpenPath(KORVANE_SOURCE_DIR "/examples/column-hea200.kvn");
  r.session.files().SavePathAs(path);
  // What stands under the first name already is kept as well.
  EXPECT_EQ(Read(path + ".bak"), "an older one");
  EXPECT_EQ(Read(path + ".bak2"), "390\r\nfirst\r\n");
  ProjectState read = r.st();
  EXPECT_EQ(OpenProject(path, read), FileResult::Ok);
}

TEST(UnreadFile, ThatCannotBeKeptIsNotOverwritten) {
  const TempFolder folder;
  const std::string path = folder / "torn.kvn";
  Write(path, "390\r\nfirst\r\n");
  Running r;
  r.session.files().OpenPath(path);
  // Nothing can be written under any of its names.
  std::filesystem::create_directory(path + ".bak");
  Write(path + ".bak2", "taken");
  rlimit old{};
  ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &old), 0);
  const auto handler = std::signal(SIGXFSZ, SIG_IGN);
  rlimit none = old;
  none.rlim_cur = 0;
  ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &none), 0);
  r.session.Menu("mnusave");
  ::setrlimit(RLIMIT_FSIZE, &old);
  std::signal(SIGXFSZ, handler);
  EXPECT_EQ(Read(path), "390\r\nfirst\r\n");
  EXPECT_NE(Words(r).find("NOT SAVED: the file there can't be kept as "), std::string::npos)
      << Words(r);
}

// --- A file that somebody else has written ------------------------------------------------------

TEST(ChangedFile, IsOverwrittenOnlyWhereItWasAsked) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  Running first;
  first.session.Enter("il", "7");
  first.session.files().SavePathAs(path);
  Running second;
  second.session.files().OpenPath(path);
  second.session.Enter("il", "8");
  second.session.Menu("mnusave");
  EXPECT_TRUE(second.platform.overwriteAsked.empty());
  const std::string theirs = Read(path);

  first.session.Enter("il", "9");
  first.session.Menu("mnusave");
  EXPECT_EQ(first.platform.overwriteAsked, std::vector<std::string>{path});
  EXPECT_EQ(Read(path), theirs);
  EXPECT_EQ(Words(first), "NOT SAVED: the file has changed on disk since it was read");
  first.platform.overwrite = true;
  first.session.Menu("mnusave");
  EXPECT_NE(Read(path), theirs);
  EXPECT_EQ(Words(first), "saved 14:05");
  // Its own writing is no change.
  first.session.Menu("mnusave");
  EXPECT_EQ(first.platform.overwriteAsked.size(), 2U);
}

TEST(ChangedFile, ThatIsGoneOrOfAnotherNameAsksNothing) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  Running r;
  r.session.files().SavePathAs(path);
  std::filesystem::remove(path);
  r.session.Menu("mnusave");
  EXPECT_TRUE(std::filesystem::exists(path));
  Write(folder / "b.kvn", "another");
  r.session.files().SavePathAs(folder / "b.kvn");
  EXPECT_TRUE(r.platform.overwriteAsked.empty());
}

// --- Modified -----------------------------------------------------------------------------------

TEST(Modified, FollowsWhatTheFileHolds) {
  const TempFolder folder;
  Running r;
  EXPECT_FALSE(r.session.files().Modified());
  EXPECT_EQ(Words(r), "");
  r.session.Focus("korvane");
  EXPECT_FALSE(r.session.files().Modified());
  r.session.Enter("il", "7");
  EXPECT_TRUE(r.session.files().Modified());
  r.session.files().SavePathAs(folder / "a.kvn");
  EXPECT_FALSE(r.session.files().Modified());
  r.session.Enter("iproj", "Bridge");
  EXPECT_TRUE(r.session.files().Modified());
  r.session.Menu("mnusave");
  EXPECT_FALSE(r.session.files().Modified());
  // Back to what the file holds is no change.
  r.session.Enter("il", "8");
  r.session.Enter("il", "7");
  EXPECT_FALSE(r.session.files().Modified());
  r.session.Menu("mnunew");
  EXPECT_FALSE(r.session.files().Modified());
  EXPECT_EQ(Words(r), "");
}

TEST(Modified, IsNoProjectThatWasOnlyOpened) {
  int opened = 0;
  for (const auto& entry : std::filesystem::directory_iterator(KORVANE_SOURCE_DIR "/examples")) {
    if (entry.path().extension() != ".kvn") continue;
    Running r;
    r.session.files().OpenPath(entry.path().string());
    EXPECT_FALSE(r.session.files().Modified()) << entry.path();
    r.session.Focus("korvane");
    EXPECT_FALSE(r.session.files().Modified()) << entry.path();
    ++opened;
  }
  EXPECT_GT(opened, 3);
}

TEST(Modified, IsAProjectThatLostLoadsByBeingOpened) {
  const TempFolder folder;
  ProjectState st = Running().st();
  st.AnalysisMode = 1;
  st.ProfileType = 51;
  st.NP = 450;
  ASSERT_TRUE(SaveProject(folder / "a.kvn", st));
  Running r;
  r.session.files().OpenPath(folder / "a.kvn");
  EXPECT_EQ(double(r.st().NP), 0);
  EXPECT_TRUE(r.session.files().Modified());
}

}  // namespace
}  // namespace korvane
