// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files: reading of anything a path may name, and writing that leaves either the new file
// or the old one.
#include "core/files.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

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

TEST(WriteFileAtomically, WritesANewFileAndNothingBeside) {
  const TempFolder folder;
  const std::string bytes("a\0b\r\n", 5);
  bool notFound = true;
  EXPECT_TRUE(WriteFileAtomically(folder / "file", bytes, &notFound));
  EXPECT_FALSE(notFound);
  EXPECT_EQ(GetFile(folder / "file"), bytes);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFileAtomically, ReplacesAFileByALongerShorterOrEmptyOne) {
  const TempFolder folder;
  for (const auto& bytes : {std::string("old"), std::string(1000000, 'x'), std::string()}) {
    EXPECT_TRUE(WriteFileAtomically(folder / "file", bytes));
    EXPECT_EQ(GetFile(folder / "file"), bytes);
  }
  EXPECT_EQ(folder.Count(), 1);
}

unsigned ModeOf(const std::string& path) {
  struct stat info {};
  return ::stat(path.c_str(), &info) == 0 ? info.st_mode & 07777U : 0U;
}

TEST(WriteFileAtomically, KeepsTheModeOfTheOldFile) {
  const TempFolder folder;
  for (const unsigned mode : {0600U, 0640U, 0664U, 0755U}) {
    PutFile(folder / "file", "old");
    ASSERT_EQ(::chmod((folder / "file").c_str(), mode), 0);
    EXPECT_TRUE(WriteFileAtomically(folder / "file", "new"));
    EXPECT_EQ(ModeOf(folder / "file"), mode);
  }
}

TEST(WriteFileAtomically, GivesANewFileTheModeThatTheUserAllows) {
  const TempFolder folder;
  const mode_t before = ::umask(027);
  EXPECT_TRUE(WriteFileAtomically(folder / "file", "new"));
  ::umask(before);
  EXPECT_EQ(ModeOf(folder / "file"), 0640U);
}

TEST(WriteFileAtomically, WritesBareNamesIntoTheCurrentFolder) {
  const TempFolder folder;
  const fs::path before = fs::current_path();
  fs::current_path(folder.Path());
  EXPECT_TRUE(WriteFileAtomically("file", "here"));
  fs::current_path(before);
  EXPECT_EQ(GetFile(folder / "file"), "here");
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFileAtomically, WritesThroughSymbolicLinks) {
  const TempFolder folder;
  fs::create_directory(folder / "real");
  PutFile(folder / "real/file", "old");
  ASSERT_EQ(::symlink("real/file", (folder / "relative").c_str()), 0);
  ASSERT_EQ(::symlink((folder / "relative").c_str(), (folder / "absolute").c_str()), 0);
  ASSERT_EQ(::symlink("real/new", (folder / "dangling").c_str()), 0);
  EXPECT_TRUE(WriteFileAtomically(folder / "relative", "one"));
  EXPECT_EQ(GetFile(folder / "real/file"), "one");
  EXPECT_TRUE(WriteFileAtomically(folder / "absolute", "two"));
  EXPECT_EQ(GetFile(folder / "real/file"), "two");
  EXPECT_TRUE(WriteFileAtomically(folder / "dangling", "three"));
  EXPECT_EQ(GetFile(folder / "real/new"), "three");
  for (const char* link : {"relative", "absolute", "dangling"}) {
    EXPECT_TRUE(fs::is_symlink(folder / link)) << link;
  }
  EXPECT_EQ(folder.Count(), 4);
}

TEST(WriteFileAtomically, TellsAMissingFolderFromOtherFailures) {
  const TempFolder folder;
  PutFile(folder / "file", "old");
  fs::create_directory(folder / "folder");
  ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0600), 0);
  ASSERT_EQ(::symlink("loop", (folder / "loop").c_str()), 0);
  const std::pair<std::string, bool> cases[] = {
      {folder / "missing/file", true},
      {folder / "file/inside", true},
      {folder / "folder", false},
      {folder / "folder/", false},
      {folder / "pipe", false},
      {folder / "loop", false},
      {folder / std::string(300, 'n'), false},
      {(folder / "file") + std::string("\0x", 2), false},
      {"", false},
  };
  for (const auto& [path, missing] : cases) {
    bool notFound = !missing;
    EXPECT_FALSE(WriteFileAtomically(path, "new", &notFound)) << path;
    EXPECT_EQ(notFound, missing) << path;
  }
  EXPECT_EQ(GetFile(folder / "file"), "old");
  EXPECT_EQ(folder.Count(), 4);
  EXPECT_TRUE(fs::is_fifo(folder / "pipe"));
}

TEST(WriteFileAtomically, LeavesTheOldFileWhenTheDiskIsFull) {
  const TempFolder folder;
  const std::string old(500, 'o');
  PutFile(folder / "file", old);
  const std::string path = folder / "file";
  const int status = InAProcessOfItsOwn([&path] {
    if (!FillTheDiskBeyond(1000)) return 2;
    bool notFound = true;
    const bool written = WriteFileAtomically(path, std::string(5000, 'n'), &notFound);
    return written || notFound ? 1 : 0;
  });
  EXPECT_EQ(status, 0);
  EXPECT_EQ(GetFile(path), old);
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WriteFileAtomically, LeavesTheOldFileWhereTheUserMayNotWrite) {
  const TempFolder folder;
  fs::create_directory(folder / "locked");
  PutFile(folder / "locked/file", "old");
  PutFile(folder / "protected", "old");
  ASSERT_EQ(::chmod((folder / "locked").c_str(), 0555), 0);
  ASSERT_EQ(::chmod((folder / "protected").c_str(), 0444), 0);
  ASSERT_EQ(::chmod(folder.Path().c_str(), 0777), 0);
  const int status = InAProcessOfItsOwn([&folder] {
    if (!BecomeAPlainUser()) return 2;
    bool notFound = true;
    if (WriteFileAtomically(folder / "locked/file", "new", &notFound) || notFound) return 3;
    if (WriteFileAtomically(folder / "locked/other", "new", &notFound) || notFound) return 4;
    if (WriteFileAtomically(folder / "protected", "new", &notFound) || notFound) return 5;
    return WriteFileAtomically(folder / "open", "new") ? 0 : 6;
  });
  EXPECT_EQ(status, 0);
  ASSERT_EQ(::chmod((folder / "locked").c_str(), 0755), 0);
  EXPECT_EQ(GetFile(folder / "locked/file"), "old");
  EXPECT_EQ(GetFile(folder / "protected"), "old");
  EXPECT_EQ(GetFile(folder / "open"), "new");
  EXPECT_EQ(folder.Count(), 3);
}

TEST(WriteFileAtomically, NeverShowsAHalfWrittenFile) {
  const TempFolder folder;
  const std::string path = folder / "file";
  const std::string even(200000, 'e');
  const std::string odd(100000, 'o');
  ASSERT_TRUE(WriteFileAtomically(path, even));
  std::vector<std::thread> writers;
  for (int writer = 0; writer < 2; ++writer) {
    writers.emplace_back([&] {
      for (int i = 0; i < 20; ++i) WriteFileAtomically(path, i % 2 == 0 ? odd : even);
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

}  // namespace
}  // namespace korvane
