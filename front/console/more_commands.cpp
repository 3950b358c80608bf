// SPDX-License-Identifier: GPL-3.0-or-later
// Binds the arguments of the commands optimise and batch to their routines.
#include "front/console/more_commands.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "core/input_fields.h"
#include "front/console/batch.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/optimise.h"
#include "front/console/terminal.h"
#include "front/data_folder.h"

namespace korvane {
namespace {

struct OptimiseArguments {
  OptimiseOptions options;
  std::string families;
  double limit = 0.0;
  std::string data;
};

struct BatchArguments {
  BatchOptions options;
  std::string shard;
  std::string data;
};

int Optimise(const OptimiseArguments& arguments) {
  OptimiseOptions options = arguments.options;
  std::string unknown;
  const auto rows = RowsOf(arguments.families, unknown);
  if (!rows) {
    std::cerr << "unknown series " << unknown << ": " << SeriesWords() << '\n';
    return kBadInput;
  }
  options.rows = *rows;
  const auto library = ReadLibrary(FindDataFolder(arguments.data));
  return RunOptimise(library, options, std::cout, std::cerr, ColourWanted(), ProgressWanted());
}

int Batch(const BatchArguments& arguments) {
  BatchOptions options = arguments.options;
  if (!arguments.shard.empty() && !ParseShard(arguments.shard, options)) {
    std::cerr << "--shard I/N: N files apart from the I-th on, 1 <= I <= N\n";
    return kBadInput;
  }
  if (options.inputs.empty() && options.list.empty()) {
    std::cerr << "INPUTS is required, or --list\n";
    return kBadInput;
  }
  const auto library = ReadLibrary(FindDataFolder(arguments.data));
  // A bar among the lines of a table helps nobody.
  const bool toTerminal =
      (options.csv.empty() || options.csv == kStandardStream) && OutputIsTerminal();
  return RunBatch(library, options, std::cout, std::cerr, ProgressWanted() && !toTerminal);
}

void AddOptimise(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<OptimiseArguments>();
  CLI::App* command =
      app.add_subcommand("optimise", "find the lightest passing size of each rolled series");
  command
      ->add_option("FILE", arguments->options.file, "project file (*.kvn); - is the standard input")
      ->required();
  command->add_option("--criterion", arguments->options.criterion, "uls, sls or uls-sls")
      ->check(CLI::IsMember({"uls", "sls", "uls-sls"}));
  command->add_option("--families", arguments->families, "series to search, of " + SeriesWords());
  CLI::Option* limit = command->add_option(
      "--limit", arguments->limit,
      "deflection limit L/X, " + RangeWords(InputOf(&ProjectState::DeflectionLimit).field->limit));
  command->add_flag("--json", arguments->options.json, "print one JSON object");
  command->add_option(
      "-o,--output", arguments->options.save,
      "save the project with the lightest passing section; - is the standard output");
  command->add_option("--data", arguments->data, "folder of the data files");
  command->callback([arguments, limit, &status] {
    if (limit->count() > 0) arguments->options.limit = arguments->limit;
    status = Optimise(*arguments);
  });
}

void AddBatch(CLI::App& app, int& status) {
  const auto arguments = std::make_shared<BatchArguments>();
  CLI::App* command = app.add_subcommand("batch", "design many projects, a line of CSV each");
  command->add_option("INPUTS", arguments->options.inputs,
                      "project files and folders; - is the standard input");
  command->add_option("--list", arguments->options.list,
                      "file with more of them, one a line; - is the standard input");
  command->add_option("--csv", arguments->options.csv,
                      "write the table to this file; - is the standard output");
  command->add_option("--jobs", arguments->options.jobs, "threads; as many as cores if not given")
      ->check(CLI::Range(1, 1024));
  command->add_flag("--optimise", arguments->options.optimise,
                    "add the lightest passing size of each project's series");
  command->add_option("--shard", arguments->shard,
                      "I/N: every N-th file from the I-th on, one share of a job array");
  command->add_option("--data", arguments->data, "folder of the data files");
  command->callback([arguments, &status] { status = Batch(*arguments); });
}

}  // namespace

void AddBatchCommands(CLI::App& app, int& status) {
  AddOptimise(app, status);
  AddBatch(app, status);
}

}  // namespace korvane
