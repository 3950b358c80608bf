// SPDX-License-Identifier: GPL-3.0-or-later
// Tables of members: the manners of spreadsheets, refused rows, the same text as projects through a
// batch, shares that make up the whole.
#include "front/console/table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "front/console/batch.h"
#include "front/console/csv.h"
#include "front/console/studies.h"
#include "projects.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using Strings = std::vector<std::string>;

struct Ran {
  int status = 0;
  std::string output, errors;
  TableCounts counts;
};

Ran Design(const std::string& table, TableOptions options = {}) {
  Ran ran;
  std::istringstream in(table);
  std::ostringstream out;
  std::ostringstream errors;
  ran.status =
      DesignTable(SourceLibrary(), options, in, table.size(), out, errors, false, ran.counts);
  ran.output = out.str();
  ran.errors = errors.str();
  return ran;
}

Strings Lines(const std::string& text) {
  Strings lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

Strings Cells(const std::string& line, char separator = ',') {
  std::vector<std::string_view> cells;
  std::string store;
  SplitRow(line, separator, cells, store);
  return {cells.begin(), cells.end()};
}

TableOptions Columns(const std::string& columns) {
  TableOptions options;
  options.columns = columns;
  return options;
}

/// So many members of all rolled families with lengths and loads of their own.
std::string Members(int count) {
  const char* sections[] = {"HEA200",        "IPE 300",       "RHS 100x100x5",
                            "UB 457x191x67", "Tube 300x10",   "I 600x300x12x20",
                            "L 100x100x10",  "PFC 200x90x30", "bad"};
  std::string table = "id,section,L,q1,NP,comment\n";
  for (int i = 0; i < count; ++i) {
    table += "m" + std::to_string(i) + "," + sections[i % 50 == 8 ? 8 : i % 8] + "," +
             std::to_string(2 + i % 9) + "." + std::to_string(i % 7) + "," +
             std::to_string(i % 31) + "," + std::to_string(10 * (i % 40)) +
             (i % 11 == 0 ? ",\"two\nlines, \"\"quoted\"\"\"" : ",plain") + "\n";
  }
  return table;
}

TEST(Table, ARowIsTheSameAsAProjectThroughABatch) {
  const TempFolder folder;
  constexpr int kCount = 1000;
  PutProjects(folder, kCount);
  std::string table = "id,ProfileType,L,q1,NP,SupportType\n";
  Strings files;
  const auto families = AllFamilies();
  for (int i = 0; i < kCount; ++i) {
    const std::string number = std::to_string(1000 + i).substr(1);
    files.push_back(folder / ("p" + number + ".kvn"));
    std::ostringstream row;
    row << number << ',' << families[static_cast<std::size_t>(i) % families.size()].code << ','
        << 2.0 + 0.13 * (i % 50) << ',' << 2.0 + i % 37 << ',' << 10.0 * (i % 23) << ',' << i % 6
        << '\n';
    table += row.str();
  }
  BatchOptions batch;
  std::ostringstream lines;
  std::ostringstream progress;
  DesignFiles(SourceLibrary(), files, batch, true, lines, progress, false);
  const Strings projects = Lines(lines.str());
  const Ran ran = Design(table, Columns("section,weight,MaxIR,standing,sls,notes"));
  const Strings rows = Lines(ran.output);
  ASSERT_EQ(rows.size(), projects.size());
  int passing = 0;
  for (std::size_t i = 1; i < rows.size(); ++i) {
    const Strings p = Cells(projects[i]);
    const Strings r = Cells(rows[i]);
    ASSERT_EQ(r.size(), 7U);
    // file, section, weight_kg_m, max_ir, ..., standing, sls, notes
    ASSERT_EQ(Strings(r.begin() + 1, r.end()), Strings({p[1], p[2], p[3], p[9], p[10], p[11]}))
        << rows[i];
    passing += p[9] == "passes";
  }
  EXPECT_GT(passing, 50);
  EXPECT_LT(passing, 950);
}

TEST(Table, RowsAreTheSameWithAnyNumberOfThreads) {
  const std::string members = Members(700);
  TableOptions options;
  options.jobs = 1;
  const Ran one = Design(members, options);
  EXPECT_EQ(one.counts.All(), 700U);
  EXPECT_GT(one.counts.refused, 5U);
  for (const int jobs : {2, 5}) {
    options.jobs = jobs;
    EXPECT_EQ(Design(members, options).output, one.output);
  }
}

TEST(Table, SharesPutTogetherAreTheWhole) {
  const std::string members = Members(300);
  const std::string whole = Design(members).output;
  for (const int shards : {2, 3, 7, 40}) {
    std::string together;
    TableOptions options;
    options.shards = shards;
    for (options.shard = 1; options.shard <= shards; ++options.shard) {
      together += Design(members, options).output;
    }
    EXPECT_EQ(together, whole) << shards;
  }
}

/// Counts what is read of a text.
class CountingBuffer : public std::stringbuf {
public:
  explicit CountingBuffer(const std::string& text) : std::stringbuf(text, std::ios::in) {}
  std::size_t bytes = 0;

protected:
  std::streamsize xsgetn(char* to, std::streamsize size) override {
    const std::streamsize n = std::stringbuf::xsgetn(to, size);
    bytes += static_cast<std::size_t>(n);
    return n;
  }
};

/// Rows with a long comment; every 1009th is refused, and every so many have a comment in quotes
/// with a line end in it, where that is asked for.
std::string ManyRows(int count, int quoted) {
  std::string table = "mark,L,q1,comment\n";
  for (int i = 0; i < count; ++i) {
    const bool quotes = quoted > 0 && i % quoted == 0;
    table += "m" + std::to_string(i) + "," + (i % 1009 == 500 ? "-1" : "4.5") + ",3," +
             (quotes ? "\"a \"\"word\"\"\nand " : "") + std::string(220, 'c') +
             (quotes ? "\"" : "") + "\n";
  }
  return table;
}

TEST(Table, AShareReadsNothingThatStandsFarAheadOfIt) {
  const TempFolder folder;
  const std::string text = ManyRows(30000, 0);
  ASSERT_GT(text.size(), std::size_t{6} << 20U);
  PutFile(folder / "t.csv", text);
  std::string whole, parts;
  for (int shard = 0; shard <= 4; ++shard) {
    TableOptions options;
    options.members = folder / "t.csv";
    options.columns = "standing,notes";
    options.shard = std::max(1, shard);
    options.shards = shard == 0 ? 1 : 4;
    CountingBuffer buffer(text);
    std::istream in(&buffer);
    std::ostringstream out, err;
    TableCounts counts;
    ASSERT_EQ(DesignTable(SourceLibrary(), options, in, text.size(), out, err, false, counts), 0)
        << err.str();
    (shard == 0 ? whole : parts) += out.str();
    // Its own quarter, the longest row before it, and what is read at once.
    if (shard > 0) {
      EXPECT_LT(buffer.bytes, text.size() / 4 + (std::size_t{3} << 19U)) << shard;
    }
  }
  // Refused rows tell the number that they have in the whole table: 28 * 1009 + 500 behind the
  // headings.
  EXPECT_NE(whole.find("row 28754: "), std::string::npos);
  EXPECT_EQ(parts, whole);
}

TEST(Table, SharesOfQuotedLinesPutTogetherAreTheWhole) {
  const TempFolder folder;
  for (const int quoted : {7, 9000}) {
    PutFile(folder / "t.csv", ManyRows(16000, quoted));
    const auto run = [&](int shard, int shards) {
      TableOptions options;
      options.members = folder / "t.csv";
      options.columns = "standing,notes";
      options.shard = shard;
      options.shards = shards;
      std::ostringstream out, err;
      RunTable(SourceLibrary(), options, out, err, false);
      return out.str();
    };
    std::string parts;
    for (int shard = 1; shard <= 5; ++shard) parts += run(shard, 5);
    EXPECT_EQ(parts, run(1, 1)) << quoted;
  }
}

TEST(Table, AFileIsWrittenInPiecesAndStandsWholeAtItsEnd) {
  const TempFolder folder;
  PutFile(folder / "t.csv", ManyRows(3000, 7));
  PutFile(folder / "out.csv", "old");
  TableOptions options;
  options.members = folder / "t.csv";
  std::ostringstream whole, out, err;
  RunTable(SourceLibrary(), options, whole, err, false);
  options.output = folder / "out.csv";
  RunTable(SourceLibrary(), options, out, err, false);
  EXPECT_EQ(out.str(), "");
  EXPECT_EQ(GetFile(folder / "out.csv"), whole.str());
  // An unknown heading leaves it as it was, and nothing beside it.
  PutFile(folder / "t.csv", "mark,nothing\n1,2\n");
  EXPECT_EQ(RunTable(SourceLibrary(), options, out, err, false), 2);
  EXPECT_EQ(GetFile(folder / "out.csv"), whole.str());
  const auto files = std::filesystem::directory_iterator(folder.Path());
  EXPECT_EQ(std::distance(begin(files), end(files)), 2);
}

TEST(Table, AnEmptyCellKeepsTheBasesValue) {
  const Ran ran = Design("section,L\nHEA200,\n,5\nHEA200,5\n", Columns("MaxIR"));
  const Strings lines = Lines(ran.output);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[1], lines[2]);
  EXPECT_EQ(lines[2], lines[3]);
}

TEST(Table, KeepsTheMannerOfTheSpreadsheet) {
  const std::string plain = Design("id,L\na,5.5\n", Columns("weight,MaxIR")).output;
  const std::string weight = Cells(Lines(plain)[1])[1];
  EXPECT_NE(weight.find('.'), std::string::npos);
  std::string comma = plain;
  std::replace(comma.begin(), comma.end(), ',', ';');
  std::replace(comma.begin(), comma.end(), '.', ',');
  std::string crlf;
  for (const char c : comma) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  EXPECT_EQ(Design("id;L\na;5,5\n", Columns("weight,MaxIR")).output, comma);
  EXPECT_EQ(Design("\xEF\xBB\xBFid;L\r\na;5,5\r\n", Columns("weight,MaxIR")).output,
            "\xEF\xBB\xBF" + crlf);
  std::string tabs = plain;
  std::replace(tabs.begin(), tabs.end(), ',', '\t');
  EXPECT_EQ(Design("id\tL\na\t5.5\n", Columns("weight,MaxIR")).output, tabs);
}

TEST(Table, ALineOfUnitsIsSkippedAndUnitsInHeadingsToo) {
  const std::string plain = Design("id,L,q1\na,5.5,3\n", Columns("MaxIR")).output;
  EXPECT_EQ(Design("id,L,q1\n,[m],[kN/m]\na,5.5,3\n", Columns("MaxIR")).output, plain);
  EXPECT_EQ(Design("id,L [m],q1 (kN/m)\na,5.5,3\n", Columns("MaxIR")).output, plain);
}

// The family typed beside a section's name wins over it, and may not exist.
TEST(Table, AFamilyThatDoesNotExistBesideASectionIsRefused) {
  const Ran ran = Design("section,ProfileType\nIPE300,99\nIPE300,4\n", Columns("standing,notes"));
  const Strings lines = Lines(ran.output);
  ASSERT_EQ(lines.size(), 3U);
  EXPECT_EQ(lines[1], "refused,\"column ProfileType, row 2: no such family\"");
  EXPECT_EQ(lines[2].substr(0, 6), "passes");
}

TEST(Table, ARefusedRowTouchesNoOther) {
  const Ran ran =
      Design("id,L,q1,section\n1,5,3,\n2,5,x,\n3,5,3,HEA 1\n4,0.01,3,\n5,5,3,,,7\n6,5,3,\n",
             Columns("MaxIR,standing,notes"));
  const Strings lines = Lines(ran.output);
  ASSERT_EQ(lines.size(), 7U);
  EXPECT_EQ(lines[2], "2,,refused,\"column q1, row 3: Input string mismatch\"");
  EXPECT_EQ(lines[3], "3,,refused,\"column section, row 4: no such section - HEA 1\"");
  EXPECT_EQ(lines[4], "4,,refused,\"column L, row 5: L >= 0.050\"");
  EXPECT_EQ(lines[5], "5,,refused,row 6: more cells than headings");
  EXPECT_EQ(lines[1].substr(1), lines[6].substr(1));
  EXPECT_EQ(ran.counts.refused, 4U);
  EXPECT_EQ(ran.counts.ExitStatus(), 2);
}

TEST(Table, AnUnknownHeadingStopsAtOnce) {
  const Ran ran = Design("id,qq1\na,1\n");
  EXPECT_EQ(ran.status, 2);
  EXPECT_EQ(ran.output, "");
  EXPECT_EQ(ran.errors, "unknown column qq1 (nearest: q1)\n");
  EXPECT_EQ(Design("L,L\n1,2\n").errors, "column L stands twice\n");
  EXPECT_EQ(Design("").errors, "the table is empty\n");
  EXPECT_EQ(Design("L\n5\n", Columns("maxir")).errors, "unknown result maxir (nearest: MaxIR)\n");
}

TEST(Table, HandsThroughWhatIsKept) {
  TableOptions options = Columns("standing");
  options.keep = "storey,Grid line";
  const Ran ran =
      Design("Name,storey,L,Grid line,Comment\nB1,2,5,C,\"a, \"\"b\"\"\nc\"\n", options);
  EXPECT_EQ(ran.output,
            "Name,storey,Grid line,Comment,standing\nB1,2,C,\"a, \"\"b\"\"\nc\",passes\n");
}

TEST(Table, AQuoteThatNobodyClosedSwallowsNoTable) {
  std::string table = "id,L\n\"open,5\n";
  for (int i = 0; i < 200000; ++i) table += "plain,5\n";
  const Ran ran = Design(table, Columns("standing"));
  EXPECT_GT(ran.counts.All(), 190000U);
}

TEST(Table, WritesAnObjectALine) {
  TableOptions options = Columns("section,MaxIR,standing,notes");
  options.jsonLines = true;
  const Ran ran = Design("id,L\n\"a \"\"b\"\"\",x\n", options);
  EXPECT_EQ(ran.output,
            "{\"id\":\"a \\\"b\\\"\",\"section\":\"\",\"MaxIR\":null,\"standing\":\"refused\","
            "\"notes\":\"column L, row 2: Input string mismatch\"}\n");
}

/// No damage to a table makes a number that is none, or a row that lacks a cell.
/// A row damaged in one to six places: a byte written over, put in, taken out, a cell replaced by a
/// value of which nobody can say whether it is one, the row cut off or joined with the next.
std::string Damaged(std::string row, std::mt19937& dice) {
  constexpr std::string_view signs = "0123456789.,-+eE;\t \"x*HEAnaif\r\xC3\x00#%";
  constexpr std::array<std::string_view, 12> values{"1e38", "-1e39", "9e999",      "nan",
                                                    "inf",  "-0",    "0x1p3",      "1e-46",
                                                    "3,5",  "\"",    "\"a\"\"b\"", " "};
  for (unsigned n = 1 + dice() % 6; n > 0 && row.size() > 2; --n) {
    const std::size_t at = dice() % (row.size() - 1);
    switch (dice() % 8) {
      case 0:
        row.insert(at, 1, signs[dice() % signs.size()]);
        break;
      case 1:
        row.erase(at, 1);
        break;
      case 2: {
        const std::size_t end = std::min(row.find(',', at), row.size() - 1);
        row.replace(at, end - at, values[dice() % values.size()]);
        break;
      }
      case 3:
        if (dice() % 8 == 0) row.erase(at, row.size() - at - 1);
        break;
      default:
        row[at] = signs[dice() % signs.size()];
    }
  }
  if (dice() % 200 == 0) row.pop_back();
  return row;
}

/// What every row of results has to be: complete, its numbers finite, its words of one kind.
void CheckResults(const Strings& cells) {
  // id, section, weight, standing, MaxIR, governing, five ratios, two deflections, sls, notes.
  ASSERT_EQ(cells.size(), 15U);
  for (const std::size_t number : {2, 4, 6, 7, 8, 9, 10, 11, 12}) {
    const std::string& cell = cells[number];
    EXPECT_EQ(cell.find_first_not_of("0123456789.e+-"), std::string::npos) << cell;
    EXPECT_TRUE(cell.empty() || std::isfinite(std::strtod(cell.c_str(), nullptr))) << cell;
  }
  const std::string& standing = cells[3];
  const std::string& ratio = cells[4];
  EXPECT_TRUE(standing == "passes" || standing == "fails" || standing == "not checked" ||
              standing == "stopped" || standing == "refused")
      << standing;
  if (standing == "refused") {
    EXPECT_NE(cells[14].find("row "), std::string::npos) << cells[14];
    EXPECT_EQ(ratio, "");
  }
  EXPECT_TRUE(standing != "passes" || std::stof(ratio) <= 1.0F) << ratio;
  EXPECT_TRUE((standing != "passes" && standing != "fails") || !cells[1].empty());
}

TEST(Table, DamagedRowsStayWhole) {
  const char* rows = std::getenv("KORVANE_MUTATED_ROWS");
  const int count = rows == nullptr ? 3000 : std::atoi(rows);
  std::mt19937 dice(3472);
  for (const bool loads : {true, false}) {
    std::string table = loads ? "id,section,L,q1,NP,support,material\n"
                              : "id,section,L,AnalysisMode,Ne,My_end[1],Vz_end[2]\n";
    const std::string good =
        loads ? "m1,HEA200,5.5,10,100,,S355\n" : "m1,I 600x300x12x20,6,0,200,50,9\n";
    for (int i = 0; i < count / 2; ++i) table += Damaged(good, dice);
    const Ran ran = Design(table);
    EXPECT_GT(ran.counts.refused, 0U);
    EXPECT_GT(ran.counts.pass + ran.counts.fail, 0U);
    std::string_view rest = ran.output;
    std::vector<std::string_view> cells;
    std::string store;
    std::size_t all = 0;
    for (; !rest.empty(); ++all) {
      const std::size_t length = RowLength(rest, ',', true);
      SplitRow(rest.substr(0, length), ',', cells, store);
      rest.remove_prefix(length);
      if (all > 0) CheckResults(Strings(cells.begin(), cells.end()));
      if (testing::Test::HasFatalFailure()) return;
    }
    EXPECT_EQ(all, ran.counts.All() + 1);
  }
}

TEST(Csv, RowsAndCells) {
  EXPECT_EQ(RowLength("a,b\nc", ',', false), 4U);
  EXPECT_EQ(RowLength("a,b", ',', false), std::string_view::npos);
  EXPECT_EQ(RowLength("a,b", ',', true), 3U);
  EXPECT_EQ(RowLength("\"a\nb\",c\nd", ',', false), 8U);
  EXPECT_EQ(RowLength("6\" pipe\nnext", ',', false), 8U);  // a quote inside a cell opens nothing
  EXPECT_EQ(Cells(" a , \"b \"\" , c\" ,,\r\n"), (Strings{"a", "b \" , c", "", ""}));
  EXPECT_EQ(Cells("\t5\t", '\t'), (Strings{"", "5", ""}));
  EXPECT_EQ(SeparatorOf("a;b;c,d"), ';');
  EXPECT_EQ(SeparatorOf("\"a;b;c\",d"), ',');
  EXPECT_EQ(SeparatorOf("a"), ',');
}

// --- The other studies --------------------------------------------------------------------------

TEST(Vary, WritesTheGridInOrder) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  VaryOptions options;
  options.file = folder / "a.kvn";
  options.sets = {"L=2:3:0.5", "section=HEA200,ipe 300"};
  options.columns = "section,standing";
  std::ostringstream out;
  std::ostringstream errors;
  RunVary(SourceLibrary(), options, out, errors, false);
  EXPECT_EQ(Lines(out.str()).at(0), "L,section,section,standing");
  ASSERT_EQ(Lines(out.str()).size(), 7U);
  EXPECT_EQ(Cells(Lines(out.str()).at(4))[0], "2.5");
  EXPECT_EQ(Cells(Lines(out.str()).at(4))[2], "IPE300");
  options.sets = {"L=2:3"};
  EXPECT_EQ(RunVary(SourceLibrary(), options, out, errors, false), 2);
}

TEST(Sections, FilterAndSort) {
  const TempFolder folder;
  PutProject(folder / "a.kvn");
  SectionsOptions options;
  options.file = folder / "a.kvn";
  options.families = "HEA,IPE";
  options.passing = true;
  options.maxHeight = 250;
  options.csv = "-";
  std::ostringstream out;
  std::ostringstream errors;
  EXPECT_EQ(RunSections(SourceLibrary(), options, out, errors), 0) << errors.str();
  double before = 0;
  const Strings lines = Lines(out.str());
  ASSERT_GT(lines.size(), 3U);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    const Strings cells = Cells(lines[i]);
    EXPECT_EQ(cells[11], "passes");
    EXPECT_LE(std::stod(cells[1]), 250);
    EXPECT_GE(std::stod(cells[3]), before);
    before = std::stod(cells[3]);
  }
  options.families = "HEX";
  EXPECT_EQ(RunSections(SourceLibrary(), options, out, errors), 2);
}

}  // namespace
}  // namespace korvane
