// SPDX-License-Identifier: GPL-3.0-or-later
// The command that runs a script: where it reads from, and whose decimal separator it takes.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "run_program.h"

namespace korvane {
namespace {

struct Locale {
  const char* environment;
  const char* decimal;  ///< value of --decimal, or empty
  bool comma;
};

TEST(SessionCommand, TakesTheDecimalSeparatorFromTheOptionOrTheLocale) {
  const TempFolder folder;
  PutFile(folder / "s", "show il\n");
  for (const Locale& c : std::vector<Locale>{
           {"LC_ALL= LC_NUMERIC= LANG=", "", false},
           {"LC_ALL=C LC_NUMERIC= LANG=", "", false},
           {"LC_ALL= LC_NUMERIC= LANG=nb_NO.UTF-8", "", true},
           {"LC_ALL= LC_NUMERIC=de_DE.UTF-8 LANG=C", "", true},
           {"LC_ALL= LC_NUMERIC=C LANG=nb_NO.UTF-8", "", false},
           {"LC_ALL=en_GB.UTF-8 LC_NUMERIC=nb_NO.UTF-8 LANG=nb_NO.UTF-8", "", false},
           {"LC_ALL=nb_NO.UTF-8 LC_NUMERIC=C LANG=C", "", true},
           {"LC_ALL=nb_NO.UTF-8 LC_NUMERIC= LANG=", "point", false},
           {"LC_ALL=C LC_NUMERIC= LANG=", "comma", true},
       }) {
    std::vector<std::string> arguments{"session", folder / "s"};
    if (*c.decimal != '\0') arguments.insert(arguments.end(), {"--decimal", c.decimal});
    EXPECT_EQ(RunProgram(arguments, c.environment).output,
              c.comma ? "il = 5,000\n" : "il = 5.000\n")
        << c.environment << " " << c.decimal;
  }
  EXPECT_EQ(RunProgram({"session", folder / "s", "--decimal", "colon"}).status, 2);
}

TEST(SessionCommand, ReadsAFileOrTheStandardInput) {
  const TempFolder folder;
  PutFile(folder / "s", "show il\nshow nothing\n");
  const ProgramRun file = RunProgram({"session", folder / "s", "--decimal", "point"});
  EXPECT_EQ(file.status, 2);
  EXPECT_EQ(file.output, "il = 5.000\n");
  EXPECT_EQ(file.errors.rfind("line 2: no control nothing on korvane", 0), 0U);
  const ProgramRun input = RunProgram({"session", "--decimal", "point"}, {}, "/", folder / "s");
  EXPECT_EQ(input.status, file.status);
  EXPECT_EQ(input.output, file.output);
  EXPECT_EQ(input.errors, file.errors);
  // A flange without thickness: its slenderness divides by zero.
  PutFile(folder / "f", "menu mnup21\nenter isttf 0\nfocus korvane\n");
  EXPECT_EQ(RunProgram({"session", folder / "f"}).status, 3);
}

TEST(SessionCommand, NamesAScriptThatCannotBeRead) {
  const TempFolder folder;
  for (const std::string& path : {folder / "none", folder.Path()}) {
    const ProgramRun run = RunProgram({"session", path});
    EXPECT_EQ(run.status, 2);
    EXPECT_EQ(run.errors, "can't find file - " + path + "\n");
  }
  PutFile(folder / "empty", "");
  EXPECT_EQ(RunProgram({"session", folder / "empty"}).status, 0);
}

}  // namespace
}  // namespace korvane
