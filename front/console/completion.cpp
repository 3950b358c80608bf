// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/completion.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <stdexcept>
#include <vector>

#include "front/console/optimise.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

constexpr char kHead[] =
    R"bash(# bash completion for korvane-cli                             -*- shell-script -*-
# SPDX-License-Identifier: GPL-3.0-or-later
# Made by korvane-cli completion.

_korvane_cli_files() {
    # Files of the extensions, and folders on the way to them.
    local IFS=$'\n' extension
    compopt -o filenames 2>/dev/null
    for extension in "$@"; do
        COMPREPLY+=($(compgen -f -X "!*.$extension" -- "$cur"))
    done
    COMPREPLY+=($(compgen -d -- "$cur"))
}

_korvane_cli_any_file() {
    compopt -o default 2>/dev/null
}

_korvane_cli_words() {
    COMPREPLY=($(compgen -W "$*" -- "$cur"))
}

# One word out of a list with commas: what stands before the last comma is kept.
_korvane_cli_list() {
    local before= last=$cur
    if [[ $cur == *,* ]]; then
        before=${cur%,*},
        last=${cur##*,}
    fi
    COMPREPLY=($(compgen -P "$before" -W "$*" -- "$last"))
    compopt -o nospace 2>/dev/null
}

_korvane_cli_numbers() {
    _korvane_cli_words $(seq 1 "$(nproc 2>/dev/null || echo 4)")
}

_korvane_cli_nothing() {
    :
}

)bash";

/// What bash does for the value of an option or for an argument.
struct Value {
  const char* command;  ///< of this command alone, or nullptr
  const char* name;     ///< as the option or the argument is called in the table of commands
  const char* action;
};

// The first row that fits holds. Options with a list of words need none.
constexpr Value kValues[] = {
    {"report", "--output", "_korvane_cli_files pdf svg png"},
    {"draw", "--output", "_korvane_cli_files pdf svg png"},
    {"table", "--output", "_korvane_cli_files csv"},
    {nullptr, "--output", "_korvane_cli_files kvn"},
    {nullptr, "--base", "_korvane_cli_files kvn"},
    {nullptr, "MEMBERS", "_korvane_cli_files csv"},
    {nullptr, "--data", "_korvane_cli_files"},
    {nullptr, "--csv", "_korvane_cli_files csv"},
    {nullptr, "--list", "_korvane_cli_any_file"},
    {nullptr, "--jobs", "_korvane_cli_numbers"},
    {nullptr, "--limit", "_korvane_cli_nothing"},
    {nullptr, "--max-height", "_korvane_cli_nothing"},
    {nullptr, "--max-width", "_korvane_cli_nothing"},
    {nullptr, "--top", "_korvane_cli_nothing"},
    {nullptr, "--plot", "_korvane_cli_files svg png pdf"},
    {nullptr, "--directions", "_korvane_cli_nothing"},
    {nullptr, "--set", "_korvane_cli_nothing"},
    {nullptr, "--for", "_korvane_cli_nothing"},
    {nullptr, "--between", "_korvane_cli_nothing"},
    {nullptr, "--keep", "_korvane_cli_nothing"},
    {nullptr, "--columns", "_korvane_cli_nothing"},
    {nullptr, "--shard", "_korvane_cli_nothing"},
    {nullptr, "--families", "_korvane_cli_list SERIES"},
    {nullptr, "family", "_korvane_cli_words FAMILIES"},
    {nullptr, "script", "_korvane_cli_any_file"},
    {nullptr, "file", "_korvane_cli_files kvn"},
    {nullptr, "FILE", "_korvane_cli_files kvn"},
    {nullptr, "INPUTS", "_korvane_cli_files kvn"},
};

/// The families that have a catalogue, by caption where that is one word, else by their form.
std::string FamilyNames() {
  std::string words;
  for (const Family& family : AllFamilies()) {
    if (family.catalogues.empty()) continue;
    std::string caption = family.menuCaption;
    std::erase(caption, '&');
    words += " ";
    words += caption.find(' ') == std::string::npos ? caption : family.form;
  }
  return words.substr(1);
}

std::string SeriesNames() {
  std::string words = SeriesWords();
  std::replace(words.begin(), words.end(), ',', ' ');
  return words;
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
  const std::size_t at = text.find(what);
  if (at != std::string::npos) text.replace(at, what.size(), by);
}

/// The words that an option takes, blanks between them; empty where it takes others too.
std::string Choices(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  const std::size_t open = type.find('{');
  if (open == std::string::npos) return "";
  std::string words = type.substr(open + 1, type.find('}') - open - 1);
  std::replace(words.begin(), words.end(), ',', ' ');
  return words;
}

std::string ActionFor(const CLI::App& command, const CLI::Option& option) {
  const std::string words = Choices(option);
  if (!words.empty()) return "_korvane_cli_words " + words;
  const std::string name = option.get_name();
  for (const Value& value : kValues) {
    if (value.command != nullptr && command.get_name() != value.command) continue;
    if (name != value.name) continue;
    std::string action = value.action;
    Replace(action, "SERIES", SeriesNames());
    Replace(action, "FAMILIES", FamilyNames());
    return action;
  }
  throw std::logic_error("no completion for " + command.get_name() + " " + name);
}

std::vector<std::string> NamesOf(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

/// The options of a command or of the program, blanks between them.
std::string OptionWords(const CLI::App& command) {
  std::string words;
  for (const CLI::Option* option : command.get_options()) {
    for (const std::string& name : NamesOf(*option)) words += " " + name;
  }
  return words;
}

std::vector<const CLI::App*> Commands(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* command) { return !command->get_group().empty(); });
}

std::string CommandWords(const CLI::App& app) {
  std::string words;
  for (const CLI::App* command : Commands(app)) words += " " + command->get_name();
  return words;
}

/// The rows "command option) action" of the options that a value follows.
std::string ValueCases(const CLI::App& app) {
  std::string text;
  for (const CLI::App* command : Commands(app)) {
    for (const CLI::Option* option : command->get_options()) {
      if (option->get_positional() || option->get_items_expected_max() == 0) continue;
      std::string pattern;
      for (const std::string& name : NamesOf(*option)) {
        pattern += (pattern.empty() ? "'" : " | '") + command->get_name() + " " + name + "'";
      }
      text += "        " + pattern + ") " + ActionFor(*command, *option) + "; return ;;\n";
    }
  }
  return text;
}

std::string OptionCases(const CLI::App& app) {
  std::string text;
  for (const CLI::App* command : Commands(app)) {
    text += "            " + command->get_name() + ") _korvane_cli_words" + OptionWords(*command) +
            " ;;\n";
  }
  return text + "            *) _korvane_cli_words" + OptionWords(app) + " ;;\n";
}

std::string ArgumentCases(const CLI::App& app) {
  std::string text = "        '') _korvane_cli_words" + CommandWords(app) + " ;;\n";
  for (const CLI::App* command : Commands(app)) {
    for (const CLI::Option* option : command->get_options()) {
      if (!option->get_positional()) continue;
      text += "        " + command->get_name() + ") " + ActionFor(*command, *option) + " ;;\n";
    }
  }
  return text;
}

}  // namespace

std::string BashCompletion(const CLI::App& app) {
  return kHead + std::string(R"(_korvane_cli() {
    local cur=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    local command= word
    COMPREPLY=()

    for word in "${COMP_WORDS[@]:1:COMP_CWORD-1}"; do
        if [[ ")") +
         CommandWords(app) + R"( " == *" $word "* ]]; then
            command=$word
            break
        fi
    done

    case "$command $previous" in
)" + ValueCases(app) +
         R"(    esac

    if [[ $cur == -* ]]; then
        case $command in
)" + OptionCases(app) +
         R"(        esac
        return
    fi

    case $command in
)" + ArgumentCases(app) +
         R"(    esac
}

complete -F _korvane_cli korvane-cli
)";
}

void AddCompletionCommand(CLI::App& app) {
  CLI::App* command = app.add_subcommand("completion", "print the completion for bash");
  command->group("");
  command->callback([&app] { std::cout << BashCompletion(app); });
}

}  // namespace korvane
