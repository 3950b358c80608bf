// SPDX-License-Identifier: GPL-3.0-or-later
// The help book's page "Before you trust a result": each note of the verdict has an example there
// that gives it, and the sentence shown is the program's.
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "places.h"
#include "studies/member.h"
#include "studies/member_inputs.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

std::string Bytes(const std::string& name) {
  std::ifstream file(KORVANE_SOURCE_DIR "/" + name, std::ios::binary);
  std::ostringstream bytes;
  bytes << file.rdbuf();
  EXPECT_FALSE(bytes.str().empty()) << name;
  return bytes.str();
}

const std::string& ThePage() {
  static const std::string page = Bytes("docs/help/trust.html");
  return page;
}

std::string Plain(std::string html) {
  const std::pair<const char*, const char*> marks[] = {
      {"\n", " "}, {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}};
  for (const auto& [mark, text] : marks) {
    for (std::size_t at = html.find(mark); at != std::string::npos; at = html.find(mark, at + 1)) {
      html.replace(at, std::string(mark).size(), text);
    }
  }
  return html;
}

/// The sentences of the page by code.
std::map<std::string, std::string> Said() {
  std::map<std::string, std::string> said;
  const std::regex says("<p class=\"says\" data-note=\"([a-z-]+)\">([^<]*)</p>");
  const std::string& page = ThePage();
  for (std::sregex_iterator it(page.begin(), page.end(), says), end; it != end; ++it) {
    EXPECT_TRUE(said.emplace((*it)[1], Plain((*it)[2])).second) << (*it)[1];
  }
  return said;
}

std::vector<std::string> Cells(const std::string& line) {
  std::vector<std::string> cells;
  std::string cell;
  std::istringstream in(line + ",");
  while (std::getline(in, cell, ',')) cells.push_back(cell);
  return cells;
}

/// The members of examples/notes.csv by their marks, which are codes of notes.
std::map<std::string, ProjectState> Examples() {
  std::map<std::string, ProjectState> members;
  const MemberInputs inputs(SourceLibrary());
  const ProjectState base = NewMember(SourceLibrary());
  std::istringstream table(Bytes("examples/notes.csv"));
  std::string line;
  std::getline(table, line);
  const std::vector<std::string> headings = Cells(line);
  std::vector<MemberInput> columns;
  for (std::size_t i = 1; i < headings.size(); ++i) {
    const auto input = FindMemberInput(headings[i], base);
    if (!input) throw std::invalid_argument(headings[i]);
    columns.push_back(*input);
  }
  while (std::getline(table, line)) {
    const std::vector<std::string> texts = Cells(line);
    std::vector<InputCell> cells;
    for (std::size_t i = 1; i < texts.size(); ++i) cells.push_back({&columns[i - 1], texts[i]});
    ProjectState st = base;
    EXPECT_EQ(inputs.Set(cells, false, st), std::nullopt) << line;
    members[texts[0]] = st;
  }
  return members;
}

/// What only a project file can hold: the forms refuse it.
std::map<std::string, ProjectState> Damaged() {
  const ProjectState base = NewMember(SourceLibrary());
  std::map<std::string, ProjectState> members{
      {"stopped", base},         {"unknown-family", base},      {"unknown-series", base},
      {"unknown-support", base}, {"length-not-positive", base}, {"usage-limit", base}};
  members["stopped"].gammam1 = 0;
  members["unknown-family"].ProfileType = 99;
  members["unknown-series"].ProfileType = 101;
  members["unknown-series"].p101_sub = 4;
  members["unknown-support"].SupportType = 7;
  members["unknown-support"].ProfileType = 6;
  members["length-not-positive"].L = -3;
  members["usage-limit"].iufa = 5;
  return members;
}

/// The sentences of the notes of one code that a member has.
std::set<std::string> SentencesOf(const ProjectState& st, const std::string& code) {
  static const Design started = StartedDesign(SourceLibrary());
  Design work = started;
  DesignMember(started, st, work);
  std::set<std::string> sentences;
  for (const Note& note : VerdictOf(work).notes) {
    if (KindOf(note.code).word == code) sentences.insert(NoteText(note, work.lib->catalogues));
  }
  return sentences;
}

TEST(BookOfNotes, SentencesOfThePageAreTheProgramsOwn) {
  std::map<std::string, ProjectState> members = Examples();
  members.merge(Damaged());
  std::map<std::string, std::string> said = Said();
  for (const auto& [code, st] : members) {
    const std::set<std::string> sentences = SentencesOf(st, code);
    ASSERT_FALSE(sentences.empty()) << code;
    EXPECT_TRUE(sentences.count(said[code]) == 1)
        << code << "\n  page:    " << said[code] << "\n  program: " << *sentences.begin();
  }
  EXPECT_EQ(said.size(), members.size());
}

/// A note has a sentence with its member, or stands in the printout of a script.
TEST(BookOfNotes, EveryNoteHasItsExample) {
  const auto said = Said();
  for (const NoteKind& kind : AllNotes()) {
    const std::string code = kind.word;
    EXPECT_TRUE(said.count(code) == 1 || ThePage().find("[" + code + "]\n") != std::string::npos)
        << code;
    EXPECT_NE(ThePage().find("href=\"notes.html#" + code + "\""), std::string::npos) << code;
  }
}

}  // namespace
}  // namespace korvane
