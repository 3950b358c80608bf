// SPDX-License-Identifier: GPL-3.0-or-later
// The command sections: every size for one member.
#include <algorithm>
#include <array>
#include <ostream>
#include <set>

#include "core/project_file.h"
#include "core/text.h"
#include "front/console/csv.h"
#include "front/console/exit_status.h"
#include "front/console/files_of_commands.h"
#include "front/console/run_design.h"
#include "front/console/studies.h"
#include "front/console/table_rows.h"
#include "front/console/terminal.h"
#include "front/json_writer.h"
#include "front/nearest.h"
#include "studies/all_sections.h"
#include "studies/member.h"
#include "studies/result_columns.h"

namespace korvane {

namespace {

/// Series words in capitals.
std::string Key(const std::string& word) {
  return SectionKey(word);
}

std::vector<std::string> AllSeries() {
  std::vector<std::string> words;
  for (const CatalogueSize& size : AllSizes()) {
    const std::string word = Key(SeriesWord(size));
    if (std::find(words.begin(), words.end(), word) == words.end()) words.push_back(word);
  }
  return words;
}

/// The series of a list, empty for all; nothing, after a word, where one is unknown.
std::optional<std::set<std::string>> SeriesOf(const std::string& list, std::ostream& errors) {
  std::set<std::string> chosen;
  const std::vector<std::string> all = AllSeries();
  for (const std::string& part : Words(list)) {
    const std::string word = Key(part);
    if (word.empty() || word == "ALL") continue;
    if (std::find(all.begin(), all.end(), word) == all.end()) {
      errors << "unknown series " << NameOnErrors(word) << " (nearest: " << NearestWord(word, all)
             << ")\n";
      return std::nullopt;
    }
    chosen.insert(word);
  }
  return chosen;
}

/// What a table of sizes is sorted by, the best first.
struct SortKey {
  const char* word;
  double (*key)(const SizeResult&);
};
constexpr std::array<SortKey, 6> kSortKeys{{
    {"weight", [](const SizeResult& r) { return double(r.weight); }},
    {"height", [](const SizeResult& r) { return double(r.h); }},
    {"width", [](const SizeResult& r) { return double(r.b); }},
    {"surface", [](const SizeResult& r) { return double(r.surface); }},
    {"IR",
     [](const SizeResult& r) { return r.standing == Standing::Stopped ? 1E30 : double(r.MaxIR); }},
    {"deflection",
     [](const SizeResult& r) {
       const float least = r.LoverZ == 0   ? r.LoverY
                           : r.LoverY == 0 ? r.LoverZ
                                           : std::min(r.LoverZ, r.LoverY);
       return least == 0 ? 0.0 : -double(least);
     }},
}};

struct SizeColumn {
  const char* name;
  float SizeResult::*value;
};
constexpr std::array<SizeColumn, 9> kNumbers{{
    {"h", &SizeResult::h},
    {"b", &SizeResult::b},
    {"kg_m", &SizeResult::weight},
    {"m2_m", &SizeResult::surface},
    {"kg", &SizeResult::totalWeight},
    {"m2", &SizeResult::totalSurface},
    {"MaxIR", &SizeResult::MaxIR},
    {"L_over_z", &SizeResult::LoverZ},
    {"L_over_y", &SizeResult::LoverY},
}};

std::string CsvOf(const std::vector<SizeResult>& rows) {
  std::string text = "section";
  for (const SizeColumn& column : kNumbers) text += std::string(",") + column.name;
  text += ",governing,standing,sls\n";
  const CsvManner manner;
  for (const SizeResult& row : rows) {
    AppendCell(row.name, manner, text);
    for (const SizeColumn& column : kNumbers) text += ',' + Digits(row.*column.value);
    for (const std::string& cell : {row.governing, std::string(StandingWord(row.standing)),
                                    std::string(ServiceabilityWord(row.sls))}) {
      text += ',';
      AppendCell(cell, manner, text);
    }
    text += '\n';
  }
  return text;
}

std::string JsonOf(const std::vector<SizeResult>& rows) {
  JsonWriter json;
  return json.Take([&] {
    json.Objects("sections", rows, [&](const SizeResult& row) {
      json.Member("section", row.name);
      for (const SizeColumn& column : kNumbers) {
        json.Member(column.name, double(row.*column.value));
      }
      json.Member("governing", row.governing);
      json.Member("standing", StandingWord(row.standing));
      json.Member("sls", ServiceabilityWord(row.sls));
    });
  }) + "\n";
}

std::string Right(std::string text, std::size_t width) {
  return text.size() < width ? std::string(width - text.size(), ' ') + text : text;
}
std::string Left(std::string text, std::size_t width) {
  return text.size() < width ? text + std::string(width - text.size(), ' ') : text;
}

void PrintText(const std::vector<SizeResult>& rows, std::ostream& output) {
  std::size_t widest = 8;
  for (const SizeResult& row : rows) widest = std::max(widest, row.name.size());
  std::string text = Left("section", widest) +
                     "      h      b    kg/m   m2/m        kg      m2      IR   L/z   L/y  "
                     "standing     governing\n";
  const auto over = [](float x) { return x == 0 ? std::string("-") : Format(x, "0"); };
  for (const SizeResult& row : rows) {
    const bool stopped = row.standing == Standing::Stopped;
    text += Left(row.name, widest) + Right(Format(row.h, "0"), 7) + Right(Format(row.b, "0"), 7) +
            Right(Format(row.weight, "0.0"), 8) + Right(Format(row.surface, "0.00"), 7) +
            Right(Format(row.totalWeight, "0"), 10) + Right(Format(row.totalSurface, "0.0"), 8) +
            Right(stopped ? "-" : Format(row.MaxIR, "0.00"), 8) + Right(over(row.LoverZ), 6) +
            Right(over(row.LoverY), 6) + "  " + Left(StandingWord(row.standing), 13) +
            row.governing;
    while (text.back() == ' ') text.pop_back();
    text += '\n';
  }
  output << text;
}

}  // namespace

bool ReadMember(const std::string& file, ProjectState& st, std::ostream& errors) {
  bool notFound = false;
  const auto bytes = ReadInput(file, &notFound);
  const FileResult result = bytes      ? ReadProject(*bytes, st)
                            : notFound ? FileResult::NotFound
                                       : FileResult::OtherError;
  if (result == FileResult::Ok) {
    st.CurrentFileName = file;
    return true;
  }
  errors << FileMessage(result, NameOnErrors(file)) << '\n';
  return false;
}

int RunSections(std::shared_ptr<const Library> library, const SectionsOptions& options,
                std::ostream& output, std::ostream& errors) {
  const auto series = SeriesOf(options.families, errors);
  if (!series) return kBadInput;
  const Design started = StartedDesign(std::move(library));
  ProjectState member = started.st;
  if (!ReadMember(options.file, member, errors)) return kBadInput;
  std::vector<SizeResult> rows = DesignSizes(started, member, [&](const CatalogueSize& size) {
    return series->empty() || series->contains(Key(SeriesWord(size)));
  });
  const bool any = std::any_of(rows.begin(), rows.end(),
                               [&](const SizeResult& r) { return Passes(r, options.sls); });
  std::erase_if(rows, [&](const SizeResult& r) {
    return (options.maxHeight && r.h > *options.maxHeight) ||
           (options.maxWidth && r.b > *options.maxWidth) ||
           (options.passing && !Passes(r, options.sls));
  });
  const auto key = std::find_if(kSortKeys.begin(), kSortKeys.end(),
                                [&](const SortKey& k) { return options.sort == k.word; });
  std::stable_sort(rows.begin(), rows.end(), [&](const SizeResult& a, const SizeResult& b) {
    return key->key(a) < key->key(b);
  });
  if (options.top > 0 && rows.size() > static_cast<std::size_t>(options.top)) {
    rows.resize(static_cast<std::size_t>(options.top));
  }
  if (!options.csv.empty()) {
    const int failed = SaveOutput(options.csv, CsvOf(rows), {{options.file}}, output, errors);
    if (failed != kAllPass) return failed;
  } else if (options.json) {
    output << JsonOf(rows);
  } else {
    PrintText(rows, output);
  }
  return any ? kAllPass : kCheckFails;
}

}  // namespace korvane
