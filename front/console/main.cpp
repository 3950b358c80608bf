// SPDX-License-Identifier: GPL-3.0-or-later
// The console program: designs of members for scripts and batches.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>

#include "core/file_path.h"
#include "front/console/completion.h"
#include "front/console/design_text.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/locale.h"
#include "front/console/more_commands.h"
#include "front/console/paint.h"
#include "front/console/run_design.h"
#include "front/console/script.h"
#include "front/console/study_commands.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"
#include "front/design_json.h"
#include "front/nearest.h"
#include "front/system.h"
#include "sections/names.h"
#include "sections/profile_table.h"

namespace {

using namespace korvane;

/// A terminal would obey the control characters in the texts of a file.
void MakeNamesVisible(ProjectState& st) {
  for (std::string* name : {&st.iproj, &st.iident, &st.p41_name}) *name = Visible(*name);
}

int RunDesign(const std::string& file, const std::string& data, bool json) {
  Design design = StartedDesign(ReadLibrary(FindDataFolder(data)));
  const DesignRun run = RunProject(design, file);
  if (run.file != FileResult::Ok) {
    std::cerr << FileMessage(run.file, NameOnErrors(file)) << "\n";
    return kBadInput;
  }
  for (const std::string& remark : run.remarks) std::cerr << remark << "\n";
  for (const std::string& message : design.messages) std::cerr << message << "\n";
  if (run.fault) std::cerr << FaultText(run.what) << "\n";
  if (json) {
    std::cout << DesignJson(design, run.fault) << "\n";
  } else {
    if (OutputIsTerminal()) MakeNamesVisible(design.st);
    std::cout << (run.fault ? VerdictText(design, ColourWanted())
                            : DesignText(design, ColourWanted()));
  }
  return StatusOf(VerdictOf(design));
}

int RunNew(const std::string& output, const std::string& data) {
  Design design(ReadLibrary(FindDataFolder(data)));
  StartDesign(design);
  const std::string& path = output.empty() ? std::string(kStandardStream) : output;
  return SaveOutput(path, ProjectText(design.st), {}, std::cout, std::cerr);
}

const Family* FamilyByName(const std::string& name) {
  for (const Family& family : AllFamilies()) {
    std::string caption = family.menuCaption;
    std::erase(caption, '&');
    if (name == std::to_string(family.code) || name == caption || name == family.form) {
      return &family;
    }
  }
  return nullptr;
}

void ListSizes(const Family& family, const Catalogues& cat) {
  if (family.catalogues.empty()) std::cout << "typed dimensions, no catalogue\n";
  for (const FamilyCatalogue& catalogue : family.catalogues) {
    for (int row = 0; row < ListLength(catalogue.cat); ++row) {
      std::printf("%4d  %s\n", row, ListEntry(catalogue.cat, cat, row).c_str());
    }
  }
}

int RunCatalogue(const std::string& name, const std::string& data) {
  const Catalogues cat = ReadCatalogues(FindDataFolder(data));
  if (name.empty()) {
    for (const Family& family : AllFamilies()) {
      std::string caption = family.menuCaption;
      std::erase(caption, '&');
      std::printf("%4d  %s\n", family.code, caption.c_str());
    }
    return kAllPass;
  }
  const Family* family = FamilyByName(name);
  if (family == nullptr) {
    std::cerr << "no such family - " << name << " (korvane-cli catalogue lists them)\n";
    return kBadInput;
  }
  ListSizes(*family, cat);
  std::fflush(stdout);
  return kAllPass;
}

int RunSession(const std::string& script, const std::string& decimal, const std::string& data) {
  const auto library = ReadLibrary(FindDataFolder(data));
  const VisibleStream output(std::cout, OutputIsTerminal());
  const VisibleStream errors(std::cerr, ErrorsAreTerminal());
  const bool comma = decimal.empty() ? LocaleWritesComma() : decimal == "comma";
  if (script.empty() || script == kStandardStream)
    return RunScript(library, comma, std::cin, std::cout, std::cerr);
  std::ifstream file(FilePath(script));
  file.peek();  // a folder opens, but can't be read
  if (!file.is_open() || file.bad()) {
    std::cerr << "can't find file - " << NameOnErrors(script) << "\n";
    return kBadInput;
  }
  return RunScript(library, comma, file, std::cout, std::cerr);
}

/// False, after a word, for a command that doesn't exist.
bool TellUnknownCommand(const CLI::App& app, const std::string& word) {
  if (word.empty() || word.front() == '-') return true;
  std::vector<std::string> commands;
  for (const CLI::App* command : app.get_subcommands(nullptr)) {
    commands.push_back(command->get_name());
  }
  if (std::find(commands.begin(), commands.end(), word) != commands.end()) return true;
  std::cerr << "unknown command " << NameOnErrors(word)
            << " (nearest: " << NearestWord(word, commands) << ")\n";
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  const StandardStreams streams;
  LeaveFailuresToUs();
  const std::vector<std::string> words = CommandWords(argc, argv);
  CLI::App app{"Design of one steel member, a column or a beam, to NS 3472, 3rd edition"};
  // A word that begins with a slash is a path on every system. The commands inherit it.
  app.allow_windows_style_options(false);
  app.set_version_flag("--version", "korvane-cli " KORVANE_VERSION);
  app.require_subcommand(1);
  std::string data;
  std::string file;
  std::string output;
  std::string family;
  bool json = false;
  int status = kAllPass;

  const auto addData = [&](CLI::App* command) {
    command->add_option("--data", data, "folder of the data files");
  };
  CLI::App* design = app.add_subcommand("design", "design the member of a project file");
  design->add_option("file", file, "project file (*.kvn); - is the standard input")->required();
  design->add_flag("--json", json, "print everything as one JSON object");
  addData(design);
  design->callback([&] { status = RunDesign(file, data, json); });

  CLI::App* fresh = app.add_subcommand("new", "write the project that a new one starts with");
  fresh->add_option("-o,--output", output,
                    "project file to write (else, or for -, the standard output)");
  addData(fresh);
  fresh->callback([&] { status = RunNew(output, data); });

  CLI::App* catalogue = app.add_subcommand("catalogue", "list the families, or the sizes of one");
  catalogue->add_option("family", family, "code or name of a family");
  addData(catalogue);
  catalogue->callback([&] { status = RunCatalogue(family, data); });

  CLI::App* session = app.add_subcommand("session", "drive the program from a script");
  session->add_option("script", file, "script, one action a line (else standard input)");
  std::string decimal;
  session->add_option("--decimal", decimal, "decimal separator: point or comma")
      ->check(CLI::IsMember({"point", "comma"}));
  addData(session);
  session->callback([&] { status = RunSession(file, decimal, data); });
  AddBatchCommands(app, status);
  AddStudyCommands(app, status);
  AddPaintCommands(app, status);
  AddCompletionCommand(app);

  if (words.size() > 1 && !TellUnknownCommand(app, words[1])) return kBadInput;
  try {
    std::vector<const char*> pointers;
    for (const std::string& word : words) pointers.push_back(word.c_str());
    app.parse(static_cast<int>(pointers.size()), pointers.data());
  } catch (const CLI::ParseError& error) {
    const int code = app.exit(error);
    return code == 0 ? kAllPass : kBadInput;
  } catch (const DataFolderError& error) {
    std::cerr << error.what() << "\n";
    return kBadInput;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return kBadInput;
  }
  // A full disk under the output shows here at the latest.
  if (!std::cout.flush() || std::fflush(stdout) != 0 || std::ferror(stdout) != 0) {
    std::cerr << "can't write to the standard output\n";
    return kBadInput;
  }
  return status;
}
