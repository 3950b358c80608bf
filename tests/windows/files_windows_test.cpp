// SPDX-License-Identifier: GPL-3.0-or-later
// Whole files on Windows: the same promises as elsewhere, and what only this system knows.
#include "core/windows_text.h"
// Behind the line above: it needs the types of windows.h.
#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <thread>
#include <vector>

#include "core/file_path.h"
#include "core/files.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;

/// A folder of its own with a name that engineers give, removed at the end.
class TempFolder {
public:
  TempFolder() {
    static int count = 0;
    const auto now = std::chrono::steady_clock::now().time_since_epoch().count();
    path_ = fs::temp_directory_path() /
            FilePath("korvane søyle å " + std::to_string(now) + std::to_string(++count));
    fs::create_directory(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  std::string operator/(const std::string& name) const { return FileName(path_) + "/" + name; }
  int Count() const { return static_cast<int>(std::distance(fs::directory_iterator(path_), {})); }

private:
  fs::path path_;
};

void Put(const std::string& name, const std::string& bytes) {
  std::ofstream(FilePath(name), std::ios::binary) << bytes;
}

std::string Get(const std::string& name) {
  std::ostringstream bytes;
  bytes << std::ifstream(FilePath(name), std::ios::binary).rdbuf();
  return bytes.str();
}

void SetReadOnly(const std::string& name, bool on) {
  ::SetFileAttributesW(FilePath(name).c_str(),
                       on ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
}

TEST(WindowsFiles, ReadTheBytesAsTheyStand) {
  const TempFolder folder;
  const std::string bytes("one\r\ntwo\n\x1Athree\0four\xFF", 21);
  Put(folder / "bjelke Ø.kvn", bytes);
  bool notFound = true;
  EXPECT_EQ(ReadWholeFile(folder / "bjelke Ø.kvn", &notFound), bytes);
  EXPECT_FALSE(notFound);
  Put(folder / "empty", "");
  EXPECT_EQ(ReadWholeFile(folder / "empty"), "");
  const std::string large(3000000, 'x');
  Put(folder / "large", large);
  EXPECT_EQ(ReadWholeFile(folder / "large"), large);
}

TEST(WindowsFiles, TellAMissingFileFromAnUnreadableOne) {
  const TempFolder folder;
  Put(folder / "file", "x");
  fs::create_directory(FilePath(folder / "inner"));
  const std::pair<std::string, bool> cases[] = {
      {folder / "missing", true},
      {folder / "missing/file", true},
      {"", true},
      {std::string("a\0b", 3), true},
      {folder / "no\xFFname", true},
      {folder / "inner", false},
      {"NUL", false},
      {"\\\\.\\NUL", false},
  };
  for (const auto& [name, missing] : cases) {
    bool notFound = !missing;
    EXPECT_FALSE(ReadWholeFile(name, &notFound).has_value()) << name;
    EXPECT_EQ(notFound, missing) << name;
  }
}

TEST(WindowsFiles, WriteANewFileAndNothingBeside) {
  const TempFolder folder;
  const std::string name = folder / "søyle 1, øst.kvn";
  ASSERT_TRUE(WriteFile(name, "one\ntwo"));
  EXPECT_EQ(Get(name), "one\ntwo");
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WindowsFiles, ReplaceAFileAndKeepItsAttributes) {
  const TempFolder folder;
  const std::string name = folder / "file";
  Put(name, "a longer one");
  ::SetFileAttributesW(FilePath(name).c_str(), FILE_ATTRIBUTE_HIDDEN);
  for (const std::string bytes : {"short", "", "much longer than all before"}) {
    ASSERT_TRUE(WriteFile(name, bytes));
    EXPECT_EQ(Get(name), bytes);
    EXPECT_NE(::GetFileAttributesW(FilePath(name).c_str()) & FILE_ATTRIBUTE_HIDDEN, 0U);
  }
  EXPECT_EQ(folder.Count(), 1);
}

TEST(WindowsFiles, WriteWhereNamesAreLongerThanTheOldLimit) {
  const TempFolder folder;
  std::string deep = folder / "deep";
  for (int i = 0; i < 12; ++i) {
    ASSERT_NE(::CreateDirectoryW((L"\\\\?\\" + FilePath(deep).make_preferred().wstring()).c_str(),
                                 nullptr),
              0);
    deep += "/" + std::string(30, static_cast<char>('a' + i));
  }
  ASSERT_GT(deep.size(), 380U);
  ASSERT_TRUE(WriteFile(deep, "one"));
  ASSERT_TRUE(WriteFile(deep, "two"));
  EXPECT_EQ(ReadWholeFile(deep), "two");
}

TEST(WindowsFiles, RefuseWithAReason) {
  const TempFolder folder;
  Put(folder / "protected", "old");
  SetReadOnly(folder / "protected", true);
  fs::create_directory(FilePath(folder / "inner"));
  Put(folder / "file", "old");
  const std::pair<std::string, WriteStatus> cases[] = {
      {"", WriteStatus::BadName},
      {std::string("a\0b", 3), WriteStatus::BadName},
      {folder / "no\xFFname", WriteStatus::BadName},
      {folder / "what?", WriteStatus::BadName},
      {folder / "file:stream", WriteStatus::BadName},
      {folder / "name/", WriteStatus::BadName},
      {folder / "missing/file", WriteStatus::NoFolder},
      {folder / "file/inside", WriteStatus::NoFolder},
      {folder / "inner", WriteStatus::IsFolder},
      {folder / "protected", WriteStatus::ReadOnly},
      {"NUL", WriteStatus::NotAFile},
      {folder / "nul", WriteStatus::NotAFile},
      {folder / "Con.kvn", WriteStatus::NotAFile},
      {folder / "aux .txt", WriteStatus::NotAFile},
      {folder / "COM1", WriteStatus::NotAFile},
      {folder / "lpt\xC2\xB2.pdf", WriteStatus::NotAFile},
      {"\\\\.\\pipe\\korvane", WriteStatus::NotAFile},
  };
  for (const auto& [name, status] : cases) {
    EXPECT_EQ(WriteFile(name, "new").status, status) << name;
    EXPECT_FALSE(WriteFile(name, "new").why.empty()) << name;
    EXPECT_EQ(CheckWritable(name).status, status) << name;
  }
  EXPECT_EQ(Get(folder / "protected"), "old");
  EXPECT_EQ(Get(folder / "file"), "old");
  EXPECT_EQ(folder.Count(), 3);
  SetReadOnly(folder / "protected", false);
  // What only looks like a device.
  for (const char* name : {"console.kvn", "COM10.kvn", "auxiliary", "com"}) {
    EXPECT_TRUE(WriteFile(folder / name, "new")) << name;
  }
}

TEST(WindowsFiles, RefuseTheInputsOfTheSameCommandByWhateverName) {
  const TempFolder folder;
  Put(folder / "input", "old");
  const WriteRules rules{{folder / "input"}};
  EXPECT_EQ(WriteFile(folder / "INPUT", "new", rules).status, WriteStatus::IsInput);
  EXPECT_EQ(WriteFile(folder / "../input", "new", rules).status, WriteStatus::Ok);
  EXPECT_EQ(Get(folder / "input"), "old");
  fs::remove(FilePath(folder / "../input"));
  ASSERT_NE(::CreateHardLinkW(FilePath(folder / "other").c_str(),
                              FilePath(folder / "input").c_str(), nullptr),
            0);
  EXPECT_EQ(WriteFile(folder / "other", "new", rules).status, WriteStatus::IsInput);
}

TEST(WindowsFiles, KeepHardLinksAndLeaveNoCopyBeside) {
  const TempFolder folder;
  Put(folder / "file", "a longer old one");
  ASSERT_NE(::CreateHardLinkW(FilePath(folder / "other").c_str(), FilePath(folder / "file").c_str(),
                              nullptr),
            0);
  ASSERT_TRUE(WriteFile(folder / "file", "new"));
  EXPECT_EQ(Get(folder / "other"), "new");
  EXPECT_EQ(folder.Count(), 2);
}

TEST(WindowsFiles, TellThatAnotherProgramHoldsTheFile) {
  const TempFolder folder;
  Put(folder / "table.csv", "old");
  // As a spreadsheet holds it: others may read.
  HANDLE held = ::CreateFileW(FilePath(folder / "table.csv").c_str(), GENERIC_READ, FILE_SHARE_READ,
                              nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(held, INVALID_HANDLE_VALUE);
  EXPECT_EQ(CheckWritable(folder / "table.csv").status, WriteStatus::InUse);
  EXPECT_EQ(WriteFile(folder / "table.csv", "new").status, WriteStatus::InUse);
  EXPECT_EQ(folder.Count(), 1);
  ::CloseHandle(held);
  EXPECT_EQ(Get(folder / "table.csv"), "old");
  EXPECT_TRUE(WriteFile(folder / "table.csv", "new"));
}

TEST(WindowsFiles, RemoveTemporaryFilesOfKilledProcessesAfterADay) {
  const TempFolder folder;
  const std::string stale = folder / TemporaryName(1);
  const std::string fresh = folder / TemporaryName(2);
  const std::string other = folder / ".korvane-mine";
  for (const std::string& name : {stale, fresh, other}) Put(name, "x");
  for (const std::string& name : {stale, other}) {
    fs::last_write_time(FilePath(name), fs::file_time_type::clock::now() - std::chrono::hours(25));
  }
  ASSERT_TRUE(WriteFile(folder / "file", "new"));
  EXPECT_FALSE(fs::exists(FilePath(stale)));
  EXPECT_TRUE(fs::exists(FilePath(fresh)));
  EXPECT_TRUE(fs::exists(FilePath(other)));
}

TEST(WindowsFiles, NeverShowAHalfWrittenFile) {
  const TempFolder folder;
  const std::string name = folder / "file";
  const std::string a(200000, 'a');
  const std::string b(100000, 'b');
  ASSERT_TRUE(WriteFile(name, a));
  std::atomic<bool> ended = false;
  std::atomic<int> wrong = 0;
  std::atomic<int> read = 0;
  std::jthread reader([&] {
    while (!ended) {
      const auto bytes = ReadWholeFile(name);
      if (!bytes) continue;  // between the two names
      ++read;
      if (*bytes != a && *bytes != b) ++wrong;
    }
  });
  for (int i = 0; i < 50; ++i) ASSERT_TRUE(WriteFile(name, i % 2 == 0 ? b : a)) << i;
  ended = true;
  reader.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace korvane
