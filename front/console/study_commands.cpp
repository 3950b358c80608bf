// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/console/study_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

#include "front/console/batch.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/studies.h"
#include "front/console/table.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"

namespace korvane {

namespace {

constexpr const char* kProject = "project file (*.kvn); - is the standard input";
constexpr const char* kOutput = "write the table to this file; - is the standard output";

template <class Options>
struct Arguments {
  Options options;
  std::string shard;
  bool list = false;
  std::string data;
};

template <class Options>
CLI::App* Add(CLI::App& app, const char* name, const char* what,
              const std::shared_ptr<Arguments<Options>>& arguments, const char* examples) {
  CLI::App* command = app.add_subcommand(name, what);
  command->add_option("--data", arguments->data, "folder of the data files");
  command->footer(std::string("Examples:\n") + examples);
  return command;
}

/// A bar among the lines of a table helps nobody.
bool ShowsProgress(const std::string& file) {
  const bool standard = file.empty() || file == kStandardStream;
  return ProgressWanted() && !(standard && OutputIsTerminal());
}

void AddSections(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<Arguments<SectionsOptions>>();
  SectionsOptions& o = arguments->options;
  CLI::App* command = Add(
      app, "sections", "design the member with every size of all catalogues", arguments,
      "  korvane-cli sections column.kvn --passing --top 10\n"
      "  korvane-cli sections column.kvn --families HEA,HEB,IPE --max-height 300 --csv all.csv");
  command->add_option("FILE", o.file, kProject)->required();
  command->add_option("--families", o.families, "series, separated by commas, or all");
  command->add_option("--sort", o.sort, "weight, height, width, surface, IR or deflection")
      ->check(CLI::IsMember({"weight", "height", "width", "surface", "IR", "deflection"}));
  command->add_option("--max-height", o.maxHeight, "greatest height, mm");
  command->add_option("--max-width", o.maxWidth, "greatest width, mm");
  command->add_flag("--passing", o.passing, "those alone that pass");
  command->add_flag("--sls", o.sls, "what passes holds the deflection limit too");
  command->add_option("--top", o.top, "so many rows")->check(CLI::Range(1, 10000));
  CLI::Option* csv = command->add_option("--csv", o.csv, kOutput);
  command->add_flag("--json", o.json, "print one JSON object")->excludes(csv);
  command->callback([arguments, &status] {
    const auto library = ReadLibrary(FindDataFolder(arguments->data));
    status = RunSections(library, arguments->options, std::cout, std::cerr);
  });
}

int Table(Arguments<TableOptions>& arguments) {
  TableOptions& o = arguments.options;
  BatchOptions shard;
  if (!arguments.shard.empty() && !ParseShard(arguments.shard, shard)) {
    std::cerr << "--shard I/N: the I-th of N shares of the rows, 1 <= I <= N\n";
    return kBadInput;
  }
  o.shard = shard.shard;
  o.shards = shard.shards;
  const auto library = ReadLibrary(FindDataFolder(arguments.data));
  if (arguments.list) {
    ListColumns(*library, std::cout);
    return kAllPass;
  }
  if (o.members.empty()) {
    std::cerr << "MEMBERS is required\n";
    return kBadInput;
  }
  return RunTable(library, o, std::cout, std::cerr, ShowsProgress(o.output));
}

void AddTable(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<Arguments<TableOptions>>();
  TableOptions& o = arguments->options;
  CLI::App* command =
      Add(app, "table", "design the members of a table, a row each", arguments,
          "  korvane-cli table members.csv --base frame.kvn -o results.csv\n"
          "  korvane-cli table - --columns section,MaxIR,standing <members.csv >results.csv");
  command->add_option("MEMBERS", o.members, "table (*.csv); - is the standard input");
  command->add_option("--base", o.base, "project whose values the cells replace, else a new one");
  command->add_option("-o,--output", o.output, kOutput);
  command->add_option("--columns", o.columns, "results to write, separated by commas");
  command->add_option("--keep", o.keep, "more columns to hand through, separated by commas");
  command->add_flag("--optimise", o.optimise, "add the lightest passing size of each row's series");
  command->add_flag("--json-lines", o.jsonLines, "write a JSON object a line");
  command->add_option("--jobs", o.jobs, "threads; as many as cores if not given")
      ->check(CLI::Range(1, 1024));
  command->add_option("--shard", arguments->shard,
                      "I/N: the I-th of N shares of the rows, for a job array");
  command->add_flag("--list-columns", arguments->list, "print all inputs and results with units");
  command->callback([arguments, &status] { status = Table(*arguments); });
}

void AddVary(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<Arguments<VaryOptions>>();
  VaryOptions& o = arguments->options;
  CLI::App* command =
      Add(app, "vary", "design the member with a grid of values", arguments,
          "  korvane-cli vary beam.kvn --set L=2:12:0.25 --set q1=5,10,20 --csv grid.csv\n"
          "  korvane-cli vary beam.kvn --set L=2:12:0.05 --set section=HEA200,HEA240 --plot L.svg");
  command->add_option("FILE", o.file, kProject)->required();
  command->add_option("--set", o.sets, "NAME=FROM:TO:STEP, NAME=A,B,..., section=family:SERIES")
      ->required();
  command->add_option("--columns", o.columns, "results to write, separated by commas");
  command->add_option("--csv", o.csv, kOutput);
  command->add_option("--plot", o.plot,
                      "draw one or two inputs: OUT.svg, .png or .pdf; the table with --csv alone");
  command->add_option("--y", o.y, "what is drawn: the greatest IR, the deflection, each check")
      ->check(CLI::IsMember({"IR", "deflection", "each"}));
  command->add_option("--jobs", o.jobs, "threads; as many as cores if not given")
      ->check(CLI::Range(1, 1024));
  command->callback([arguments, &status] {
    const auto library = ReadLibrary(FindDataFolder(arguments->data));
    status = RunVary(library, arguments->options, std::cout, std::cerr,
                     ShowsProgress(arguments->options.csv));
  });
}

void AddSolve(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<Arguments<SolveOptions>>();
  SolveOptions& o = arguments->options;
  CLI::App* command =
      Add(app, "solve", "find how far a value can go while the member passes", arguments,
          "  korvane-cli solve beam.kvn --for L\n"
          "  korvane-cli solve column.kvn --for loads --between 0.5:4 --sls");
  command->add_option("FILE", o.file, kProject)->required();
  command->add_option("--for", o.input, "name of the input, or loads, a factor on all of them")
      ->required();
  command->add_option("--between", o.between, "A:B, where is looked");
  command->add_flag("--sls", o.sls, "the deflection limit has to hold too");
  command->add_flag("--json", o.json, "print one JSON object");
  command->callback([arguments, &status] {
    const auto library = ReadLibrary(FindDataFolder(arguments->data));
    status = RunSolve(library, arguments->options, std::cout, std::cerr);
  });
}

void AddInteraction(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<Arguments<InteractionOptions>>();
  InteractionOptions& o = arguments->options;
  CLI::App* command =
      Add(app, "interaction", "interaction diagrams of the member's section", arguments,
          "  korvane-cli interaction column.kvn --plot diagrams.svg\n"
          "  korvane-cli interaction column.kvn --directions 24 --csv points.csv");
  command->add_option("FILE", o.file, kProject)->required();
  command->add_option("--directions", o.directions, "points of an envelope; 72 without it")
      ->check(CLI::Range(4, 3600));
  command->add_option("--plot", o.plot,
                      "draw the diagrams: OUT.svg, .png or .pdf; the table with --csv alone");
  CLI::Option* csv = command->add_option("--csv", o.csv, kOutput);
  command->add_flag("--json", o.json, "print one JSON object")->excludes(csv);
  command->callback([arguments, &status] {
    const auto library = ReadLibrary(FindDataFolder(arguments->data));
    status = RunInteraction(library, arguments->options, std::cout, std::cerr);
  });
}

}  // namespace

void AddStudyCommands(CLI::App& app, int& status) {
  AddSections(app, status);
  AddTable(app, status);
  AddVary(app, status);
  AddSolve(app, status);
  AddInteraction(app, status);
}

}  // namespace korvane
