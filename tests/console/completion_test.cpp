// SPDX-License-Identifier: GPL-3.0-or-later
// The completion made of a table of commands; completion_test.sh tries that of the program in bash.
#include "front/console/completion.h"

#include <gtest/gtest.h>

#include <CLI/CLI.hpp>
#include <stdexcept>

namespace korvane {
namespace {

bool Holds(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

TEST(BashCompletion, OffersWhatTheTableTells) {
  CLI::App app;
  std::string word;
  std::string file;
  bool flag = false;
  CLI::App* cut = app.add_subcommand("cut");
  cut->add_option("file", file);
  cut->add_option("-k,--kind", word)->check(CLI::IsMember({"long", "short"}));
  cut->add_flag("--twice", flag);
  app.add_subcommand("secret")->group("");
  const std::string script = BashCompletion(app);
  EXPECT_TRUE(Holds(script, "'') _korvane_cli_words cut ;;"));
  EXPECT_TRUE(Holds(script, "'cut -k' | 'cut --kind') _korvane_cli_words long short; return ;;"));
  EXPECT_TRUE(Holds(script, "cut) _korvane_cli_words -h --help -k --kind --twice ;;"));
  EXPECT_TRUE(Holds(script, "cut) _korvane_cli_files kvn ;;"));
  EXPECT_FALSE(Holds(script, "'cut --twice'"));
  EXPECT_FALSE(Holds(script, "secret"));
}

TEST(BashCompletion, RefusesAnOptionOfUnknownKind) {
  CLI::App app;
  std::string word;
  app.add_subcommand("cut")->add_option("--depth", word);
  EXPECT_THROW(BashCompletion(app), std::logic_error);
}

}  // namespace
}  // namespace korvane
