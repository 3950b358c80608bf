// SPDX-License-Identifier: GPL-3.0-or-later
// Files that are damaged, missing, read-only or cut short, and full disks: the program goes on,
// says what it has to say, and what was saved before stays.
#include <sys/stat.h>

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/project_file.h"
#include "places.h"
#include "tests/core/own_process.h"
#include "tests/front/damage_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using testing::CollectOne;
using testing::ExpectAlive;
using testing::OwnFolder;
using testing::Running;
using Strings = std::vector<std::string>;

// Projects

/// Saves the session's member of 4 m under the path and leaves 8 m in force.
void SaveFourMetres(Running& r, const std::string& path) {
  r.session.Enter("il", "4");
  r.platform.answers.emplace_back(path);
  r.session.Menu("mnusaveas");
  r.session.Enter("il", "8");
}

double LengthIn(const std::string& path) {
  ProjectState st;
  EXPECT_EQ(OpenProject(path, st), FileResult::Ok);
  return st.L;
}

TEST(FullDisk, LosesNothingThatWasSavedBefore) {
  const TempFolder folder;
  const std::string project = folder / "a.kvn";
  const std::string list = folder / "list.db";
  const std::string recovered = folder / "b.kvn";
  Running r(false, OwnFolder(folder));
  SaveFourMetres(r, project);
  CollectOne(r);
  r.platform.answers.emplace_back(list);
  r.session.Click("save_db");
  r.session.Close("database");
  r.session.Menu("mnusetup");
  r.session.Click("Command2");
  r.session.Click("Command1");
  const std::string listBefore = GetFile(list);
  const std::string defaultsBefore = GetFile(folder / "default_ns.dat");
  ASSERT_NE(listBefore, "");
  ASSERT_NE(defaultsBefore, "");
  const int status = InAProcessOfItsOwn([&] {
    if (!FillTheDiskBeyond(20)) return 2;
    r.session.Menu("mnusave");
    r.platform.answers.emplace_back(recovered);
    r.session.Menu("mnusaveas");
    r.session.Menu("mnudb");
    r.platform.answers.emplace_back(list);
    r.session.Click("save_db");
    r.session.Close("database");
    r.session.Menu("mnusetup");
    r.session.Enter("iufa", "0.5");
    r.session.Click("Command2");
    r.session.Click("Command1");
    // Nothing but a missing folder has a message.
    if (!r.platform.messages.empty()) return 3;
    return r.st().L == 8.0 && r.session.Enter("korvane.il", "9") ? 0 : 4;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(LengthIn(project), 4.0);
  EXPECT_EQ(GetFile(list), listBefore);
  EXPECT_EQ(GetFile(folder / "default_ns.dat"), defaultsBefore);
  EXPECT_FALSE(fs::exists(recovered));
  EXPECT_EQ(folder.Count(), 3);
}

TEST(ReadOnly, FilesAndFoldersKeepWhatTheyHold) {
  const TempFolder folder;
  const std::string project = folder / "a.kvn";
  Running r(false, OwnFolder(folder));
  SaveFourMetres(r, project);
  r.session.Menu("mnusetup");
  r.session.Click("Command2");
  r.session.Click("Command1");
  const std::string defaultsBefore = GetFile(folder / "default_ns.dat");
  ASSERT_EQ(::chmod(project.c_str(), 0444), 0);
  ASSERT_EQ(::chmod(folder.Path().c_str(), 0555), 0);
  const int status = InAProcessOfItsOwn([&] {
    if (!BecomeAPlainUser()) return 2;
    r.session.Menu("mnusave");
    r.platform.answers.emplace_back(folder / "new.kvn");
    r.session.Menu("mnusaveas");
    r.session.Menu("mnusetup");
    r.session.Enter("iufa", "0.5");
    r.session.Click("Command2");
    r.session.Click("Command1");
    if (!r.platform.messages.empty()) return 3;
    return r.session.Enter("korvane.il", "9") ? 0 : 4;
  });
  ASSERT_EQ(::chmod(folder.Path().c_str(), 0755), 0);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(LengthIn(project), 4.0);
  EXPECT_EQ(GetFile(folder / "default_ns.dat"), defaultsBefore);
  EXPECT_EQ(folder.Count(), 2);
}

TEST(ReadOnly, AFolderThatIsGoneIsTold) {
  const TempFolder folder;
  fs::create_directory(folder / "here");
  const std::string project = folder / "here/a.kvn";
  Running r;
  SaveFourMetres(r, project);
  fs::remove_all(folder / "here");
  r.session.Menu("mnusave");
  EXPECT_EQ(r.platform.messages, Strings{"can't save file - " + project});
  PutFile(folder / "file", "old");
  r.platform.answers.emplace_back(folder / "file/a.kvn");
  r.session.Menu("mnusaveas");
  EXPECT_EQ(r.platform.messages.back(), "can't save file - " + (folder / "file/a.kvn"));
  // A folder in the file's place is another error, which has no message.
  r.platform.answers.emplace_back(folder.Path());
  r.session.Menu("mnusaveas");
  EXPECT_EQ(r.platform.messages.size(), 2U);
  EXPECT_EQ(GetFile(folder / "file"), "old");
  ExpectAlive(r, "nowhere to save");
}

/// The file goes away, or shrinks, after the dialog has given its name.
class FleetingPlatform : public testing::RememberingPlatform {
public:
  std::function<void()> afterDialog;
  std::optional<std::string> AskOpen(const std::string& filter,
                                     const std::string& extension) override {
    auto answer = RememberingPlatform::AskOpen(filter, extension);
    afterDialog();
    return answer;
  }
};

TEST(Vanishing, AProjectBetweenDialogAndReadIsToldAndChangesNothing) {
  const TempFolder folder;
  const std::string project = folder / "a.kvn";
  const std::string other = folder / "other.kvn";
  {
    Running r;
    SaveFourMetres(r, project);
    SaveFourMetres(r, other);
  }
  const std::string whole = GetFile(project);
  FleetingPlatform platform;
  NamedSession s(SourceLibrary(), platform, false);
  s.Start();
  s.Focus("korvane");
  platform.afterDialog = [&] { fs::remove(project); };
  platform.answers.emplace_back(project);
  s.Menu("mnuopen");
  EXPECT_EQ(platform.messages, Strings{"can't find file - " + project});
  EXPECT_EQ(s.st().L, 5.0);
  EXPECT_EQ(s.files().Recent(1), "");
  PutFile(project, whole);
  platform.afterDialog = [&] { fs::resize_file(project, whole.size() / 3); };
  platform.answers.emplace_back(project);
  s.Menu("mnuopen");
  EXPECT_EQ(platform.messages.back(), "Input file not compatible with this version ");
  platform.afterDialog = [&] {
    fs::remove(project);
    fs::create_directory(project);
  };
  platform.answers.emplace_back(project);
  s.Menu("mnuopen");
  EXPECT_EQ(platform.messages.size(), 2U);
  platform.afterDialog = [] {};
  platform.answers.emplace_back(other);
  s.Menu("mnuopen");
  EXPECT_EQ(platform.messages.size(), 2U);
  EXPECT_EQ(s.st().L, 4.0);
}

// Recent files and the store that keeps their list

TEST(RecentFile, ThatIsGoneIsToldAndTheOthersStay) {
  const TempFolder folder;
  Running r;
  for (const char* name : {"a.kvn", "b.kvn", "c.kvn"}) SaveFourMetres(r, folder / name);
  const std::string before = GetFile(folder / "b.kvn");
  fs::remove(folder / "a.kvn");
  r.session.Menu("mnurecentfile(3)");
  EXPECT_EQ(r.platform.messages, Strings{"can't find file - " + (folder / "a.kvn")});
  EXPECT_EQ(r.st().L, 8.0);
  EXPECT_EQ(r.session.files().Recent(1), folder / "a.kvn");
  EXPECT_EQ(r.session.files().Recent(2), folder / "c.kvn");
  EXPECT_EQ(r.session.files().Recent(3), folder / "b.kvn");
  EXPECT_EQ(GetFile(folder / "b.kvn"), before);
  r.session.Menu("mnurecentfile(3)");
  EXPECT_EQ(r.st().L, 4.0);
  ExpectAlive(r, "recent file gone");
}

TEST(RecentFile, OfADamagedListNeverEndsTheProgram) {
  const TempFolder folder;
  PutFile(folder / "short.kvn", "390\r\n");
  for (const std::string& entry :
       {folder.Path(), folder / "short.kvn", std::string("x"), std::string("\n"), std::string("/"),
        std::string("\xFF\xFE\x01"), std::string(5000, 'a'), folder / std::string("a\0b", 3),
        std::string("/dev/null"), std::string("/dev/zero")}) {
    Running r;
    r.platform.SetSetting("RecentFile1", entry);
    r.platform.SetSetting("RecentFile4", entry);
    for (const char* command : {"mnurecentfile(1)", "mnurecentfile(4)", "mnurecentfile(2)"}) {
      EXPECT_NO_THROW(r.session.Menu(command)) << entry;
      EXPECT_NE(r.session.Text(std::string("korvane.") + command), "") << entry;
    }
    ExpectAlive(r, entry);
  }
  EXPECT_EQ(folder.Count(), 1);
}

/// A settings store that can't be written and reads as empty.
class ForgettingPlatform : public testing::RememberingPlatform {
public:
  std::string Setting(const std::string&) override { return {}; }
  void SetSetting(const std::string&, const std::string&) override {}
};

TEST(SettingsStore, ThatKeepsNothingStopsNoCommand) {
  const TempFolder folder;
  ForgettingPlatform platform;
  NamedSession s(SourceLibrary(), platform, false);
  s.Start();
  s.Focus("korvane");
  s.Enter("il", "6");
  platform.answers = {folder / "a.kvn", folder / "a.kvn"};
  s.Menu("mnusaveas");
  s.Enter("il", "7");
  s.Menu("mnuopen");
  EXPECT_EQ(s.st().L, 6.0);
  EXPECT_NO_THROW(s.Menu("mnurecentfile(1)"));
  EXPECT_FALSE(s.Visible("mnurecentfile(0)"));
  EXPECT_TRUE(platform.messages.empty());
}

// Defaults and materials

TEST(DamagedDefaults, CutAnywhereStillGiveAMember) {
  const std::string whole = GetFile(KORVANE_SOURCE_DIR "/data/default_ns.dat");
  for (std::size_t size = 0; size <= whole.size(); ++size) {
    const TempFolder folder;
    PutFile(folder / "default_ns.dat", whole.substr(0, size));
    std::unique_ptr<Running> r;
    ASSERT_NO_THROW(r = std::make_unique<Running>(false, OwnFolder(folder))) << size;
    EXPECT_TRUE(r->platform.messages.empty()) << size;
    EXPECT_EQ(r->st().fyk, 355.0) << size;
  }
  const TempFolder folder;
  fs::create_directory(folder / "default_ns.dat");
  Running r(false, OwnFolder(folder));
  r.session.Menu("mnusetup");
  EXPECT_NO_THROW(r.session.Click("Command2"));
  EXPECT_TRUE(r.platform.messages.empty());
  EXPECT_TRUE(fs::is_directory(folder / "default_ns.dat"));
  ExpectAlive(r, "a folder in place of the defaults");
}

/// A data folder of the test's own, with files taken out or written over.
std::shared_ptr<const Library> LibraryWith(const TempFolder& folder, const std::string& name,
                                           const std::optional<std::string>& text) {
  fs::copy(KORVANE_SOURCE_DIR "/data", folder.Path(), fs::copy_options::recursive);
  fs::remove(folder / name);
  if (text) PutFile(folder / name, *text);
  return ReadLibrary(folder.Path());
}

TEST(MissingDefaults, FailTheFirstCalculationAndNotTheStart) {
  const TempFolder folder;
  const auto library = LibraryWith(folder, "default_ns.dat", std::nullopt);
  testing::RememberingPlatform platform;
  NamedSession s(library, platform, false);
  ASSERT_NO_THROW(s.Start());
  EXPECT_TRUE(platform.messages.empty());
  // There is no material factor in the program.
  try {
    s.Focus("korvane");
    ADD_FAILURE() << "no failure";
  } catch (const CalculationFault& fault) {
    EXPECT_EQ(fault.Step(), "SetMaterial");
  }
}

TEST(DamagedMaterials, LeaveTheTypedStress) {
  const std::string whole = GetFile(KORVANE_SOURCE_DIR "/data/NSmat.dat");
  std::vector<std::optional<std::string>> texts{std::nullopt, "", "\"S355", "\x01\x02\x03\n"};
  for (std::size_t size = 1; size < whole.size(); size += 97)
    texts.emplace_back(whole.substr(0, size));
  for (const auto& text : texts) {
    const TempFolder folder;
    const std::string name = text ? "the first " + std::to_string(text->size()) : "missing";
    const auto library = LibraryWith(folder, "NSmat.dat", text);
    testing::RememberingPlatform platform;
    NamedSession s(library, platform, false);
    ASSERT_NO_THROW(s.Start()) << name;
    ASSERT_NO_THROW(s.Focus("korvane")) << name;
    // The sixth grade is that of the defaults; its stress stands in them, too.
    EXPECT_EQ(s.st().fyk, 355.0) << name;
    EXPECT_EQ(s.Items("cbofyk").size(), library->materials.rows.size()) << name;
    EXPECT_NO_THROW(s.Menu("mnusetup")) << name;
    EXPECT_TRUE(platform.messages.empty()) << name;
  }
}

}  // namespace
}  // namespace korvane
