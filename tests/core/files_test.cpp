// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files: reading of anything a path may name, and writing that leaves either the new file
// or the old one.
#include "core/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <thread>
#include <vector>

#include "tests/core/own_process.h"
#include "tests/core/temp_folder.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

TEST(ReadWholeFile, GivesTheBytesAsTheyStand) {
  const TempFolder folder;
  const std::string bytes("one\r\ntwo\n\0three\xFF", 15);
  PutFile(folder / "file", bytes);
  bool notFound = true;
  EXPECT_EQ(ReadWholeFile(folder / "file", &notFound), bytes);
  EXPECT_FALSE(notFound);
}

TEST(ReadWholeFile, ReadsEmptyAndLargeFiles) {
  const TempFolder folder;
  PutFile(folder / "empty", "");
  EXPECT_EQ(ReadWholeFile(folder / "empty"), "");
  const std::string large(3000000, 'x');
  PutFile(folder / "large", large);
  EXPECT_EQ(ReadWholeFile(folder / "large"), large);
}

TEST(ReadWholeFile, ReadsFilesWithoutAKnownSize) {
  const auto bytes = ReadWholeFile("/proc/self/status");
  ASSERT_TRUE(bytes.has_value());
  EXPECT_NE(bytes->find("Pid:"), std::string::npos);
}

TEST(ReadWholeFile, TellsAMissingFileFromAnUnreadableOne) {
  const TempFolder folder;
  PutFile(folder / "file", "x");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  ASSERT_EQ(::symlink("nowhere", (folder / "dangling").c_str()), 0);
  ASSERT_EQ(::symlink("loop", (folder / "loop").c_str()), 0);
  const std::pair<std::string, bool> cases[] = {
      {folder / "missing", true},
      {folder / "missing/file", true},
      {folder / "file/inside", true},
      {folder / "dangling", true},
      {"", true},
      {(folder / "file") + std::string("\0x", 2), true},
      {folder.Path(), false},
      {folder / "pipe", false},
      {folder / "loop", false},
      {folder / std::string(300, 'n'), false},
      {"/dev/zero", false},
  };
  for (const auto& [path, missing] : cases) {
    bool notFound = !missing;
    EXPECT_FALSE(ReadWholeFile(path, &notFound).has_value()) << path;
    EXPECT_EQ(notFound, missing) << path;
  }
}

TEST(ReadWholeFile, RefusesAFileThatWouldFillTheMemory) {
  const TempFolder folder;
  PutFile(folder / "huge", "x");
  fs::resize_file(folder / "huge", std::uintmax_t{1} << 40U);
  bool notFound = true;
  EXPECT_FALSE(ReadWholeFile(folder / "huge", &notFound).has_value());
  EXPECT_FALSE(notFound);
}

TEST(WriteFile, WritesANewFileAndNothingBeside) {
  const TempFolder folder;
  const std::string bytes("a\0b\r\n", 5);
  EXPECT_TRUE(WriteFile(folder / "file", bytes));
  EXPECT_EQ(GetFile(folder / "file"), bytes);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFile, ReplacesAFileByALongerShorterOrEmptyOne) {
  const TempFolder folder;
  for (const auto& bytes : {std::string("old"), std::string(1000000, 'x'), std::string()}) {
    EXPECT_TRUE(WriteFile(folder / "file", bytes));
    EXPECT_EQ(GetFile(folder / "file"), bytes);
  }
  EXPECT_EQ(folder.Count(), 1);
}

unsigned ModeOf(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 07777U : 0U;
}

TEST(WriteFile, KeepsTheModeOfTheOldFile) {
  const TempFolder folder;
  for (const unsigned mode : {0600U, 0640U, 0664U, 0755U}) {
    PutFile(folder / "file", "old");
    ASSERT_EQ(::chmod((folder / "file").c_str(), mode), 0);
    EXPECT_TRUE(WriteFile(folder / "file", "new"));
    EXPECT_EQ(ModeOf(folder / "file"), mode);
  }
}

TEST(WriteFile, GivesANewFileTheModeThatTheUserAllows) {
  const TempFolder folder;
  const mode_t before = ::umask(027);
  EXPECT_TRUE(WriteFile(folder / "file", "new"));
  ::umask(before);
  EXPECT_EQ(ModeOf(folder / "file"), 0640U);
}

TEST(WriteFile, WritesBareNamesIntoTheCurrentFolder) {
  const TempFolder folder;
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  EXPECT_TRUE(WriteFile("file", "here"));
  fs::current_path(before);
  EXPECT_EQ(GetFile(folder / "file"), "here");
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFile, WritesThroughSymbolicLinks) {
  const TempFolder folder;
  fs::create_directory(folder / "real");
  PutFile(folder / "real/file", "old");
  ASSERT_EQ(::symlink("real/file", (folder / "relative").c_str()), 0);
  ASSERT_EQ(::symlink((folder / "relative").c_str(), (folder / "absolute").c_str()), 0);
  ASSERT_EQ(::symlink("real/new", (folder / "dangling").c_str()), 0);
  EXPECT_TRUE(WriteFile(folder / "relative", "one"));
  EXPECT_EQ(GetFile(folder / "real/file"), "one");
  EXPECT_TRUE(WriteFile(folder / "absolute", "two"));
  EXPECT_EQ(GetFile(folder / "real/file"), "two");
  EXPECT_TRUE(WriteFile(folder / "dangling", "three"));
  EXPECT_EQ(GetFile(folder / "real/new"), "three");
  for (const char* link : {"relative", "absolute", "dangling"}) {
    EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
  }
  EXPECT_EQ(folder.Count(), 4);
}

TEST(WriteFile, RefusesWithAReason) {
  const TempFolder folder;
  PutFile(folder / "file", "old");
  PutFile(folder / "protected", "old");
  ASSERT_EQ(::chmod((folder / "protected").c_str(), 0444), 0);
  fs::create_directory(folder / "folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  ASSERT_EQ(::symlink("loop", (folder / "loop").c_str()), 0);
  const std::pair<std::string, WriteStatus> cases[] = {
      {folder / "missing/file", WriteStatus::NoFolder},
      {folder / "file/inside", WriteStatus::NoFolder},
      {folder / "folder", WriteStatus::IsFolder},
      {folder / "folder/", WriteStatus::BadName},
      {folder / "pipe", WriteStatus::NotAFile},
      {"/dev/null", WriteStatus::NotAFile},
      {"/dev/full", WriteStatus::NotAFile},
      {folder / "protected", WriteStatus::ReadOnly},
      {folder / "loop", WriteStatus::BadName},
      {folder / std::string(300, 'n'), WriteStatus::BadName},
      {(folder / "file") + std::string("\0x", 2), WriteStatus::BadName},
      {"", WriteStatus::BadName},
  };
  for (const auto& [path, status] : cases) {
    const WriteResult result = WriteFile(path, "new");
    EXPECT_EQ(result.status, status) << path;
    EXPECT_EQ(result.why, ResultOf(status).why) << path;
    EXPECT_TRUE(result.why.ends_with(".")) << path;
  }
  EXPECT_EQ(GetFile(folder / "file"), "old");
  EXPECT_EQ(GetFile(folder / "protected"), "old");
  EXPECT_EQ(folder.Count(), 5);
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST(WriteFile, RefusesTheInputsOfTheSameCommandByWhateverName) {
  const TempFolder folder;
  PutFile(folder / "input", "old");
  ASSERT_EQ(::link((folder / "input").c_str(), (folder / "hard").c_str()), 0);
  ASSERT_EQ(::symlink("input", (folder / "soft").c_str()), 0);
  const WriteRules rules{{"missing", folder / "input"}};
  for (const char* name : {"input", "hard", "soft"}) {
    EXPECT_EQ(WriteFile(folder / name, "new", rules).status, WriteStatus::IsInput) << name;
    EXPECT_EQ(CheckWritable(folder / name, rules).status, WriteStatus::IsInput) << name;
  }
  EXPECT_EQ(GetFile(folder / "input"), "old");
  EXPECT_TRUE(WriteFile(folder / "other", "new", rules));
}

TEST(WriteFile, KeepsHardLinksAndLeavesNoCopyBeside) {
  const TempFolder folder;
  for (const auto& bytes : {std::string("shorter"), std::string(200000, 'l')}) {
    PutFile(folder / "one", std::string(1000, 'o'));
    fs::remove(folder / "two");
    ASSERT_EQ(::link((folder / "one").c_str(), (folder / "two").c_str()), 0);
    EXPECT_TRUE(WriteFile(folder / "two", bytes));
    EXPECT_EQ(GetFile(folder / "one"), bytes);
    EXPECT_EQ(GetFile(folder / "two"), bytes);
    EXPECT_EQ(folder.Count(), 2);
  }
}

TEST(WriteFile, RestoresAHardLinkFromItsCopyWhenTheDiskIsFull) {
  const TempFolder folder;
  const std::string old(500, 'o');
  PutFile(folder / "one", old);
  ASSERT_EQ(::link((folder / "one").c_str(), (folder / "two").c_str()), 0);
  const std::string path = folder / "two";
  const int status = InAProcessOfItsOwn([&path] {
    if (!FillTheDiskBeyond(1000)) return 2;
    return WriteFile(path, std::string(5000, 'n')).status == WriteStatus::DiskFull ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(GetFile(folder / "one"), old);
  EXPECT_EQ(folder.Count(), 2);
}

TEST(WriteFile, KeepsExtendedAttributes) {
  const TempFolder folder;
  PutFile(folder / "file", "old");
  const std::string path = folder / "file";
  if (::setxattr(path.c_str(), "user.project", "axis B", 6, 0) != 0) {
    GTEST_SKIP() << "the file system holds no attributes";
  }
  EXPECT_TRUE(WriteFile(path, "new"));
  char value[16] = {};
  EXPECT_EQ(::getxattr(path.c_str(), "user.project", value, sizeof value), 6);
  EXPECT_STREQ(value, "axis B");
}

/// An access list in the system's own form: version 2, then tag, rights and id of each entry.
std::string AccessListWith(std::uint32_t user) {
  struct Entry {
    std::uint16_t tag, rights;
    std::uint32_t id;
  };
  const std::uint32_t none = 0xFFFFFFFFU;
  const Entry entries[] = {
      {0x01, 6, none}, {0x02, 4, user}, {0x04, 0, none}, {0x10, 4, none}, {0x20, 0, none}};
  std::string bytes("\2\0\0\0", 4);
  bytes.append(reinterpret_cast<const char*>(entries), sizeof entries);
  return bytes;
}

constexpr const char* kAccessList = "system.posix_acl_access";

std::string AccessListOf(const std::string& path) {
  std::string value(256, '\0');
  const ssize_t n = ::getxattr(path.c_str(), kAccessList, value.data(), value.size());
  value.resize(n < 0 ? 0 : static_cast<std::size_t>(n));
  return value;
}

TEST(WriteFile, KeepsTheAccessListAndTakesNoneFromTheFolder) {
  const TempFolder folder;
  const std::string list = AccessListWith(1234);
  PutFile(folder / "listed", "old");
  PutFile(folder / "plain", "old");
  ASSERT_EQ(::chmod((folder / "plain").c_str(), 0600), 0);
  if (::setxattr((folder / "listed").c_str(), kAccessList, list.data(), list.size(), 0) != 0 ||
      ::setxattr(folder.Path().c_str(), "system.posix_acl_default", list.data(), list.size(), 0)) {
    GTEST_SKIP() << "the file system holds no access lists";
  }
  EXPECT_TRUE(WriteFile(folder / "listed", "new"));
  EXPECT_EQ(AccessListOf(folder / "listed"), list);
  EXPECT_TRUE(WriteFile(folder / "plain", "new"));
  EXPECT_EQ(AccessListOf(folder / "plain"), "");
  EXPECT_EQ(ModeOf(folder / "plain"), 0600U);
}

TEST(WriteFile, KeepsTheOwnerOfAFileThatAnotherUserMayWrite) {
  if (::geteuid() != 0) GTEST_SKIP() << "only the administrator can give files away";
  const TempFolder folder;
  const std::string path = folder / "file";
  PutFile(path, "old");
  ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
  ASSERT_EQ(::chmod(path.c_str(), 0666), 0);
  const int status = InAProcessOfItsOwn([&path] {
    if (!BecomeAPlainUser()) return 2;
    return WriteFile(path, "new") ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
  struct stat info {};
  ASSERT_EQ(::stat(path.c_str(), &info), 0);
  EXPECT_EQ(info.st_uid, 0U);
  EXPECT_EQ(info.st_mode & 07777U, 0666U);
  EXPECT_EQ(GetFile(path), "new");
  EXPECT_EQ(folder.Count(), 1);
}

void MakeOlder(const std::string& path, std::chrono::hours by) {
  fs::last_write_time(path, fs::last_write_time(path) - by);
}

TEST(WriteFile, RemovesTemporaryFilesOfKilledProcessesAfterADay) {
  const TempFolder folder;
  const std::string stale = TemporaryName(0x12);
  const std::string fresh = TemporaryName(0xABCDEF0123456789U);
  EXPECT_EQ(stale, ".korvane-0000000000000012");
  for (const std::string& name : {stale, fresh, std::string(".korvane-1"), "my" + stale}) {
    PutFile(folder / name, "x");
    MakeOlder(folder / name, std::chrono::hours(name == fresh ? 23 : 25));
  }
  EXPECT_TRUE(WriteFile(folder / "file", "new"));
  EXPECT_FALSE(fs::exists(folder / stale));
  EXPECT_TRUE(fs::exists(folder / fresh));
  EXPECT_EQ(folder.Count(), 4);
}

TEST(CheckWritable, RefusesWhatWriteFileWouldAndWritesNothing) {
  const TempFolder folder;
  PutFile(folder / "file", "old");
  EXPECT_TRUE(CheckWritable(folder / "file"));
  EXPECT_TRUE(CheckWritable(folder / "new"));
  EXPECT_EQ(CheckWritable(folder / "missing/new").status, WriteStatus::NoFolder);
  EXPECT_EQ(CheckWritable(folder.Path()).status, WriteStatus::IsFolder);
  EXPECT_EQ(CheckWritable("/dev/full").status, WriteStatus::NotAFile);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFile, LeavesTheOldFileWhenTheDiskIsFull) {
  const TempFolder folder;
  const std::string old(500, 'o');
  PutFile(folder / "file", old);
  const std::string path = folder / "file";
  const int status = InAProcessOfItsOwn([&path] {
    if (!FillTheDiskBeyond(1000)) return 2;
    return WriteFile(path, std::string(5000, 'n')).status == WriteStatus::DiskFull ? 0 : 1;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(GetFile(path), old);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFile, LeavesTheOldFileWhereTheUserMayNotWrite) {
  const TempFolder folder;
  fs::create_directory(folder / "locked");
  PutFile(folder / "locked/file", "old");
  ASSERT_EQ(::chmod((folder / "locked/file").c_str(), 0666), 0);
  PutFile(folder / "protected", "old");
  ASSERT_EQ(::chmod((folder / "locked").c_str(), 0555), 0);
  ASSERT_EQ(::chmod((folder / "protected").c_str(), 0444), 0);
  ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
  const int status = InAProcessOfItsOwn([&folder] {
    if (!BecomeAPlainUser()) return 2;
    if (WriteFile(folder / "locked/file", "new").status != WriteStatus::NotAllowed) return 3;
    if (WriteFile(folder / "locked/other", "new").status != WriteStatus::NotAllowed) return 4;
    if (WriteFile(folder / "protected", "new").status != WriteStatus::ReadOnly) return 5;
    if (CheckWritable(folder / "locked/other").status != WriteStatus::NotAllowed) return 7;
    return WriteFile(folder / "open", "new") ? 0 : 6;
  });
  EXPECT_EQ(status, 0);
  ASSERT_EQ(::chmod((folder / "locked").c_str(), 0755), 0);
  EXPECT_EQ(GetFile(folder / "locked/file"), "old");
  EXPECT_EQ(GetFile(folder / "protected"), "old");
  EXPECT_EQ(GetFile(folder / "open"), "new");
  EXPECT_EQ(folder.Count(), 3);
}

TEST(WriteFile, NeverShowsAHalfWrittenFile) {
  const TempFolder folder;
  const std::string path = folder / "file";
  const std::string even(200000, 'e');
  const std::string odd(100000, 'o');
  ASSERT_TRUE(WriteFile(path, even));
  std::vector<std::thread> writers;
  for (int writer = 0; writer < 2; ++writer) {
    writers.emplace_back([&] {
      for (int i = 0; i < 20; ++i) WriteFile(path, i % 2 == 0 ? odd : even);
    });
  }
  int whole = 0;
  for (int i = 0; i < 200; ++i) {
    const auto bytes = ReadWholeFile(path);
    ASSERT_TRUE(bytes == even || bytes == odd);
    ++whole;
  }
  for (auto& writer : writers) writer.join();
  EXPECT_EQ(whole, 200);
  EXPECT_EQ(GetFile(path), even);
  EXPECT_EQ(folder.Count(), 1);
}

// --- In pieces
// ------------------------------------------------------------------------------------

std::size_t FilesIn(const TempFolder& folder) {
  const auto files = fs::directory_iterator(folder.Path());
  return static_cast<std::size_t>(std::distance(begin(files), end(files)));
}

TEST(WriteFileInPieces, TheOldFileStandsUntilTheLastPiece) {
  const TempFolder folder;
  const std::string path = folder / "a.csv";
  PutFile(path, "old");
  const WriteResult written = WriteFileInPieces(path, [&](const PieceTaker& take) {
    for (int i = 0; i < 100; ++i) {
      EXPECT_TRUE(take("piece " + std::to_string(i) + "\n"));
      EXPECT_EQ(GetFile(path), "old");
      EXPECT_EQ(FilesIn(folder), 2u);
    }
    return true;
  });
  EXPECT_TRUE(written);
  EXPECT_TRUE(GetFile(path).starts_with("piece 0\npiece 1\n"));
  EXPECT_TRUE(GetFile(path).ends_with("piece 99\n"));
  EXPECT_EQ(FilesIn(folder), 1u);
}

TEST(WriteFileInPieces, WhatIsGivenUpLeavesTheOldFileAndNothingBeside) {
  const TempFolder folder;
  for (const bool old : {true, false}) {
    const std::string path = folder / (old ? "old.csv" : "new.csv");
    if (old) PutFile(path, "old");
    const WriteResult written = WriteFileInPieces(path, [](const PieceTaker& take) {
      take("a part");
      return false;
    });
    EXPECT_EQ(written.status, WriteStatus::GivenUp);
    EXPECT_EQ(fs::exists(path), old);
  }
  EXPECT_EQ(GetFile(folder / "old.csv"), "old");
  EXPECT_EQ(FilesIn(folder), 1u);
}

TEST(WriteFileInPieces, KeepsAHardLinkWhoseFileIsWrittenAtTheEnd) {
  const TempFolder folder;
  PutFile(folder / "a", "a long old content");
  fs::create_hard_link(folder / "a", folder / "b");
  EXPECT_TRUE(WriteFileInPieces(folder / "a", [&](const PieceTaker& take) {
    EXPECT_TRUE(take("new "));
    EXPECT_EQ(GetFile(folder / "b"), "a long old content");
    return take("content");
  }));
  EXPECT_EQ(GetFile(folder / "b"), "new content");
  EXPECT_EQ(FilesIn(folder), 2u);
}

TEST(WriteFileInPieces, RefusesBeforeAnythingIsMade) {
  const TempFolder folder;
  PutFile(folder / "in", "input");
  const auto never = [](const PieceTaker&) {
    ADD_FAILURE() << "made";
    return true;
  };
  EXPECT_EQ(WriteFileInPieces(folder / "in", never, {{folder / "in"}}).status,
            WriteStatus::IsInput);
  EXPECT_EQ(WriteFileInPieces(folder / "none/a", never).status, WriteStatus::NoFolder);
}

}  // namespace
}  // namespace korvane
