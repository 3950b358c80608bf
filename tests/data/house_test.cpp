// SPDX-License-Identifier: GPL-3.0-or-later
// The house itself: codes of families and supports stand in the tables that docs/ARCHITECTURE.md
// names and nowhere else, includes point down its list of folders, and each family's routines stand
// in the unit that it names.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "places.h"
#include "sections/profile_table.h"

namespace korvane {
namespace {

namespace fs = std::filesystem;
using Found = std::map<std::string, std::vector<std::string>>;  // file: lines

/// Folders of the program from the bottom to the top.
const std::vector<std::string> kFolders{"core",      "analysis", "sections",     "checks",
                                        "optimiser", "studies",  "presentation", "front"};

std::string TextOf(const std::string& file) {
  std::ifstream in(fs::path(KORVANE_SOURCE_DIR) / file);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

std::vector<std::string> LinesOf(const std::string& file) {
  std::vector<std::string> lines;
  std::istringstream in(TextOf(file));
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

/// The sources of a folder and below it, by their path from the root of the project.
std::vector<std::string> SourcesOf(const std::string& folder) {
  const fs::path root = KORVANE_SOURCE_DIR;
  std::vector<std::string> files;
  if (!fs::exists(root / folder)) return files;
  for (const auto& entry : fs::recursive_directory_iterator(root / folder)) {
    const std::string kind = entry.path().extension();
    if (kind == ".cpp" || kind == ".h") {
      files.push_back(entry.path().lexically_relative(root).generic_string());
    }
  }
  std::sort(files.begin(), files.end());
  return files;
}

std::vector<std::string> AllSources() {
  std::vector<std::string> files;
  for (const std::string& folder : kFolders) {
    for (const std::string& file : SourcesOf(folder)) files.push_back(file);
  }
  return files;
}

bool IsFamily(const std::string& number) {
  return FindFamily(std::stoi(number)) != nullptr;
}

std::string WithoutComment(const std::string& line) {
  return line.substr(0, line.find("//"));
}

/// Names that stand for a code in a file: the fields themselves and locals made from them.
std::string CodeNames(const std::vector<std::string>& lines) {
  std::set<std::string> names{"ProfileType", "SupportType", "profileType", "supportType"};
  static const std::regex made(
      R"((?:int|auto)\s+(\w+)\s*=\s*(?:[\w.()]|->)*\b(?:ProfileType|SupportType)\s*;)");
  for (const std::string& line : lines) {
    std::smatch m;
    if (std::regex_search(line, m, made)) names.insert(m[1]);
  }
  std::string any;
  for (const std::string& name : names) any += (any.empty() ? "" : "|") + name;
  return any;
}

/// Lines in which a code is compared with a number, a switch goes by it, a table's row begins with
/// one, a macro that makes a row is given one, or a list that is about families holds nothing else.
std::vector<std::string> CodesIn(const std::string& file) {
  const std::vector<std::string> lines = LinesOf(file);
  // The forms of the families hand their code on under this name.
  const std::string names = CodeNames(lines) + (file.starts_with("front/forms/") ? "|code" : "") +
                            "|family(?:\\.|->)code";
  const std::regex compared("\\b(?:" + names + ")\\s*(?:==|!=|<=|>=|<|>)\\s*\\d");
  const std::regex turned("\\b\\d+\\s*(?:==|!=|<=|>=|<|>)\\s*(?:[\\w.()]|->)*\\b(?:" + names +
                          ")\\b");
  const std::regex switched("\\bswitch\\s*\\((?:[\\w.()]|->)*\\b(?:" + names + ")\\s*\\)");
  static const std::regex row(
      R"(^\s*\{\s*(\d+),\s*(?:\d+,\s*)?(?:\{|"|&|nullptr|k[A-Z]|[A-Z]\w*::))");
  static const std::regex macro(R"(\b[A-Z]+_[A-Z_]+\((\d+),)");
  static const std::regex list(R"(\{\s*(\d+(?:\s*,\s*\d+)+)\s*\})");
  static const std::regex number(R"(\d+)");
  static const std::regex about("famil|profile|support|code|type", std::regex::icase);
  std::vector<std::string> found;
  for (const std::string& text : lines) {
    const std::string line = WithoutComment(text);
    std::smatch m;
    bool here = std::regex_search(line, compared) || std::regex_search(line, turned) ||
                std::regex_search(line, switched) ||
                (std::regex_search(line, m, row) && IsFamily(m[1])) ||
                (std::regex_search(line, m, macro) && IsFamily(m[1]));
    if (!here && std::regex_search(line, about) && std::regex_search(line, m, list)) {
      const std::string codes = m[1];
      const std::sregex_iterator first(codes.begin(), codes.end(), number);
      here = std::distance(first, {}) > 2 &&
             std::all_of(first, {}, [](const std::smatch& code) { return IsFamily(code.str()); });
    }
    if (here) found.push_back(text);
  }
  return found;
}

/// The items "- `name`: rest" behind a line of docs/ARCHITECTURE.md, up to the first other line.
std::map<std::string, std::string> ItemsBehind(const std::string& words) {
  static const std::regex item("^- `([^`]+)`:\\s*(.*)$");
  std::map<std::string, std::string> items;
  bool behind = false;
  for (const std::string& line : LinesOf("docs/ARCHITECTURE.md")) {
    std::smatch m;
    if (line.find(words) != std::string::npos) {
      behind = true;
    } else if (behind && std::regex_match(line, m, item)) {
      items[m[1]] = m[2];
    } else if (behind && !items.empty()) {
      break;
    }
  }
  return items;
}

TEST(House, CodesOfFamiliesAndSupportsStandInTheTablesAlone) {
  const auto tables = ItemsBehind("Codes of families and supports stand as numbers");
  ASSERT_GE(tables.size(), 3U);
  for (const std::string& file : AllSources()) {
    if (tables.contains(file)) continue;
    for (const std::string& line : CodesIn(file)) ADD_FAILURE() << file << ": " << line;
  }
}

// The search itself finds what it is made for: without it the test above would pass over anything.
TEST(House, ASearchFindsTheCodesOfEachTable) {
  for (const auto& [file, words] : ItemsBehind("Codes of families and supports stand as numbers")) {
    SCOPED_TRACE(file);
    EXPECT_FALSE(words.empty());
    const bool rowsOfNames = file == "sections/profile_table.cpp";  // ".code = 53"
    EXPECT_TRUE(rowsOfNames || !CodesIn(file).empty());
  }
}

TEST(House, IncludesPointDownTheFolders) {
  static const std::regex include("^#include \"([a-z]+)/([a-z]+/)?");
  int seen = 0;
  for (const std::string& file : AllSources()) {
    // The driver stands on the roof: it alone composes analysis, sections and checks.
    const bool roof = file.starts_with("core/calculation");
    const auto floor = [](const std::string& folder) {
      return std::find(kFolders.begin(), kFolders.end(), folder) - kFolders.begin();
    };
    const auto own = floor(file.substr(0, file.find('/')));
    for (const std::string& line : LinesOf(file)) {
      std::smatch m;
      if (!std::regex_search(line, m, include)) continue;
      const auto other = floor(m[1]);
      ASSERT_LT(other, std::ssize(kFolders)) << file << ": " << line;
      EXPECT_TRUE(roof || other <= own) << file << ": " << line;
      ++seen;
    }
  }
  EXPECT_GT(seen, 500);
}

TEST(House, WindowsAndConsoleDoNotKnowEachOther) {
  for (const std::string& file : SourcesOf("front")) {
    const bool desktop = file.starts_with("front/desktop/");
    const bool console = file.starts_with("front/console/");
    for (const std::string& line : LinesOf(file)) {
      EXPECT_TRUE(desktop || !line.starts_with("#include \"front/desktop/")) << file << line;
      EXPECT_TRUE(console || !line.starts_with("#include \"front/console/")) << file << line;
    }
  }
}

/// The names of the functions that a header declares or that a routine set names.
std::set<std::string> WordsOf(const std::string& text) {
  static const std::regex word(R"(\b[A-Za-z]\w+\b)");
  std::set<std::string> words;
  for (std::sregex_iterator i(text.begin(), text.end(), word), end; i != end; ++i) {
    words.insert(i->str());
  }
  return words;
}

// "Which code lives in which unit": the dimension step of the row is declared by that unit's
// header.
TEST(House, EachFamilyLivesInTheUnitThatIsNamed) {
  std::map<int, std::string> unitOf;
  for (const auto& [unit, codes] : ItemsBehind("Which code lives in which unit")) {
    std::istringstream in(codes);
    for (int code = 0; in >> code;) unitOf[code] = unit;
  }
  EXPECT_EQ(unitOf.size(), AllFamilies().size());
  const std::string table = TextOf("sections/profile_table.cpp");
  for (const Family& family : AllFamilies()) {
    SCOPED_TRACE(family.code);
    const auto row = table.find(".code = " + std::to_string(family.code) + ",");
    ASSERT_NE(row, std::string::npos);
    const auto load = table.find(".load = ", row) + 8;
    const std::string step = table.substr(load, table.find(',', load) - load);
    ASSERT_TRUE(unitOf.contains(family.code));
    EXPECT_TRUE(WordsOf(TextOf(unitOf[family.code] + ".h")).contains(step)) << step;
  }
}

// A family whose dimensions are typed has its rows in the table of what they must be.
TEST(House, EachTypedFamilyHasItsImpossibleSections) {
  const std::string table = TextOf("checks/section_exists.cpp");
  for (const Family& family : AllFamilies()) {
    const bool there =
        table.find("KORVANE_TYPED(" + std::to_string(family.code) + ",") != std::string::npos;
    EXPECT_EQ(there, family.dimensions.size() > 0) << family.code;
  }
}

bool IsComment(const std::string& line) {
  const auto at = line.find_first_not_of(' ');
  return at != std::string::npos && line.compare(at, 2, "//") == 0;
}

/// Declarations of routines without a comment of their own, above them or behind them. What is
/// defined in the line of its declaration says itself what it does.
std::vector<std::string> DeclaredWithoutWords(const std::vector<std::string>& lines) {
  // A type, a name and a bracket at the level of a namespace or of a class.
  static const std::regex declared(
      R"(^(?:  )?(?:(?:inline|constexpr|static|virtual)\s+)*(?!explicit|return|using|friend|else|throw|case)[A-Za-z_][\w:<>,&* ]*[ &*][A-Za-z]\w*\((?!\)\(|std::))");
  static const std::regex part(R"(^\s*(private|protected|public|signals):)");
  static const std::regex opens(R"(^(class|struct)\s+\w+.*\{)");
  std::vector<std::string> found;
  bool open = true;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    std::smatch m;
    if (std::regex_search(lines[i], m, part)) open = m[1] == "public";
    if (std::regex_search(lines[i], m, opens)) open = m[1] == "struct";
    if (lines[i].starts_with("}")) open = true;
    if (!open || IsComment(lines[i]) || !std::regex_search(lines[i], declared)) continue;
    std::size_t last = i;
    const auto ends = [&] { return lines[last].find_first_of(";{") != std::string::npos; };
    while (last + 1 < lines.size() && !ends()) ++last;
    const std::string& end = lines[last];
    // Neither what is defined or made by default, nor a variable inside a routine.
    static const std::regex passed(R"(\{|\) override;|= (default|delete);|static_cast<|L'\\0')");
    if (std::regex_search(end, passed)) continue;
    const bool isTemplate = i > 0 && lines[i - 1].find("template <") != std::string::npos;
    const std::size_t above = isTemplate ? i - 1 : i;
    const bool told =
        (above > 0 && IsComment(lines[above - 1])) || end.find("//") != std::string::npos;
    if (!told) found.push_back(lines[i]);
  }
  return found;
}

// A reader of a header learns of each routine what it gives, in which unit and from which clause.
TEST(House, EachPublicRoutineOfTheEngineHasItsOwnLine) {
  int seen = 0;
  for (const std::string& file : AllSources()) {
    if (file.starts_with("front/") || !file.ends_with(".h")) continue;
    for (const std::string& line : DeclaredWithoutWords(LinesOf(file))) {
      ADD_FAILURE() << file << ": " << line;
    }
    ++seen;
  }
  EXPECT_GT(seen, 60);
}

TEST(House, ARoutineWithoutItsOwnLineIsFound) {
  const std::vector<std::string> lines{"/// kN.",
                                       "double Force(int row);",
                                       "double Moment(int row);",
                                       "std::string Words(const std::string& a,",
                                       "                  int b);",
                                       "double Half(double v) { return v / 2; }",
                                       "class Box {",
                                       "  void Hidden(int a);",
                                       "public:",
                                       "  void Seen(int a) const;",
                                       "  void Told(int a);  ///< mm",
                                       "};"};
  EXPECT_EQ(DeclaredWithoutWords(lines), (std::vector<std::string>{lines[2], lines[3], lines[9]}));
}

TEST(House, TheFilesOfTheListsExist) {
  static const std::regex path("`([a-z]+/[a-z_/]+(?:\\.[a-z]+)?)`");
  const std::string text = TextOf("docs/ARCHITECTURE.md");
  const auto from = text.find("### Add a family");
  ASSERT_NE(from, std::string::npos);
  const std::string lists = text.substr(from, text.find("## Beam cases") - from);
  int seen = 0;
  for (std::sregex_iterator i(lists.begin(), lists.end(), path), end; i != end; ++i) {
    const fs::path place = fs::path(KORVANE_SOURCE_DIR) / (*i)[1].str();
    const std::string name = place.string();
    EXPECT_TRUE(fs::exists(place) || fs::exists(name + ".cpp")) << name;
    ++seen;
  }
  EXPECT_GE(seen, 12);
}

}  // namespace
}  // namespace korvane
