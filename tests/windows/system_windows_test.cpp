// SPDX-License-Identifier: GPL-3.0-or-later
// What the programs ask of Windows beside files.
#include "core/windows_text.h"
// Behind the line above: it needs the types of windows.h.
#include <gtest/gtest.h>

#include "core/file_path.h"
#include "front/data_folder.h"
#include "front/system.h"

namespace korvane {
namespace {

TEST(WindowsText, GoesBothWays) {
  const std::string text = "søyle å 𝛼";
  ASSERT_TRUE(Wide(text).has_value());
  EXPECT_EQ(Wide(text)->size(), 10U);  // the last letter is a pair
  EXPECT_EQ(Utf8(*Wide(text)), text);
  EXPECT_EQ(Wide(""), L"");
  EXPECT_FALSE(Wide("\xFF").has_value());
  EXPECT_EQ(Utf8(std::wstring(1, L'\xD800')), "\xEF\xBF\xBD");
}

TEST(WindowsSystem, ReadsTheEnvironmentInUtf8) {
  ::_wputenv(L"KORVANE_TEST=C:\\s\u00F8yle");
  EXPECT_EQ(Environment("KORVANE_TEST"), "C:\\søyle");
  ::_wputenv(L"KORVANE_TEST=");
  EXPECT_FALSE(Environment("KORVANE_TEST").has_value());
}

TEST(WindowsSystem, KnowsTheProgramsPlaceAndWords) {
  EXPECT_TRUE(std::filesystem::exists(ProgramFolder() / "test_windows.exe"));
  ASSERT_FALSE(CommandWords(0, nullptr).empty());
  EXPECT_NE(CommandWords(0, nullptr).front().find("test_windows"), std::string::npos);
}

TEST(WindowsSystem, FindsTheDataFolderWithSlashes) {
  const std::string folder = FindDataFolder("");
  EXPECT_EQ(folder.find('\\'), std::string::npos) << folder;
  EXPECT_TRUE(std::filesystem::exists(FilePath(folder + "/hea.dat"))) << folder;
}

TEST(WindowsSystem, TellsTheTimeOfThePlace) {
  SYSTEMTIME now{};
  ::GetLocalTime(&now);
  const std::tm local = LocalTime(std::time(nullptr));
  EXPECT_EQ(local.tm_year + 1900, now.wYear);
  EXPECT_NEAR(local.tm_hour * 60 + local.tm_min, now.wHour * 60 + now.wMinute, 1);
}

}  // namespace
}  // namespace korvane
