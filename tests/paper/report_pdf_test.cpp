// SPDX-License-Identifier: GPL-3.0-or-later
// The reports of every family as PDF files of the console program: text is text, and every value
// of the section and every check line can be read from the page.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <sstream>

#include "core/files.h"
#include "front/console/run_design.h"
#include "places.h"
#include "presentation/checker_rows.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

/// Output of a shell command.
std::string OutputOf(const std::string& command) {
  std::string out;
  if (FILE* pipe = popen(command.c_str(), "r")) {
    char buffer[4096];
    while (const std::size_t n = fread(buffer, 1, sizeof buffer, pipe)) out.append(buffer, n);
    pclose(pipe);
  }
  return out;
}

/// Blanks count for nothing: a PDF places words by their positions.
std::string Squeezed(const std::string& text) {
  std::string out;
  for (const char c : text) {
    if (c != ' ' && c != '\n' && c != '\f') out += c;
  }
  return out;
}

class ReportPdf : public ::testing::TestWithParam<int> {
protected:
  ReportPdf() {
    char number[8];
    std::snprintf(number, sizeof number, "f%03d", GetParam());
    project_ = std::string(KORVANE_SOURCE_DIR) + "/tests/design/projects/" + number + ".kvn";
    folder_ = std::filesystem::temp_directory_path() /
              ("korvane_pdf_" + std::string(number) + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
  }
  ~ReportPdf() override { std::filesystem::remove_all(folder_); }

  std::string TextOf(const char* kind) {
    const std::string pdf = (folder_ / kind).string() + ".pdf";
    OutputOf(std::string(KORVANE_CLI) + " report " + project_ + " --data " + KORVANE_SOURCE_DIR +
             "/data --kind " + kind + " -o " + pdf);
    return Squeezed(OutputOf("pdftotext -layout " + pdf + " -"));
  }
  std::string project_;
  std::filesystem::path folder_;
};

TEST_P(ReportPdf, HoldsTheSectionAndTheChecks) {
  Design d = StartedDesign(SourceLibrary());
  const DesignRun run = RunProject(d, project_);
  ASSERT_EQ(run.file, FileResult::Ok);
  ASSERT_FALSE(run.fault.has_value()) << run.what;
  const std::string section = TextOf("section");
  const std::string control = TextOf("control");
  for (const ShownValues& block :
       {Dimensions(d.st, d.rec), Properties(d.st, d.rec), Capacities(d.st, d.rec)}) {
    for (const ShownValue& v : block) {
      const std::string row = "=" + v.text + std::string(v.unit);
      EXPECT_NE(section.find(row), std::string::npos) << v.name << row;
      EXPECT_NE(control.find(row), std::string::npos) << v.name << row;
    }
  }
  EXPECT_NE(control.find("SECTIONCONTROL:"), std::string::npos);
  for (const CheckLine* line :
       {&d.checks.lineSection, &d.checks.lineVz, &d.checks.lineVy, &d.checks.lineLateral}) {
    if (line->formula.empty()) continue;
    EXPECT_NE(control.find(Squeezed(line->numbers + line->value + line->limit)), std::string::npos)
        << line->numbers;
  }
}

TEST_P(ReportPdf, HoldsTheCheckersRowsOnAThirdPage) {
  Design d = StartedDesign(ReadLibrary(std::string(KORVANE_SOURCE_DIR) + "/data"));
  ASSERT_EQ(RunProject(d, project_).file, FileResult::Ok);
  const std::string all = TextOf("all");
  const std::string info = OutputOf("pdfinfo " + (folder_ / "all").string() + ".pdf");
  EXPECT_NE(info.find("Pages:           3"), std::string::npos) << info;
  int rows = 0;
  for (const CheckerBlocks& blocks : {CheckerInputs(d), CheckerResults(d)}) {
    for (const CheckerBlock& block : blocks) {
      for (const CheckerRow& row : block.rows) {
        EXPECT_NE(all.find(Squeezed(row.symbol + row.value + row.unit)), std::string::npos)
            << block.heading << ": " << row.symbol << row.value;
        ++rows;
      }
    }
  }
  EXPECT_GT(rows, 60);
}

TEST_P(ReportPdf, CarriesItsTitleAndTheProject) {
  const std::string pdf = (folder_ / "both.pdf").string();
  OutputOf(std::string(KORVANE_CLI) + " report " + project_ + " --data " + KORVANE_SOURCE_DIR +
           "/data --kind both -o " + pdf);
  const std::string info = OutputOf("pdfinfo " + pdf);
  EXPECT_NE(info.find("Title:"), std::string::npos);
  EXPECT_NE(info.find("Section and Stability Control"), std::string::npos);
  EXPECT_NE(info.find("Pages:           2"), std::string::npos) << info;
  const std::string attached = (folder_ / "attached.kvn").string();
  OutputOf("pdfdetach -save 1 -o " + attached + " " + pdf);
  const auto first = ReadWholeFile(attached).value_or("");
  const auto second = ReadWholeFile(project_).value_or("");
  EXPECT_FALSE(first.empty());
  EXPECT_EQ(first, second);
  EXPECT_NE(info.find("Subject:         Design of a steel member to NS 3472"), std::string::npos);
  EXPECT_NE(info.find("Author:          KORVANE NS3472 3.9"), std::string::npos);
  const auto bytes = ReadWholeFile(pdf).value_or("");
  EXPECT_NE(bytes.find("/Lang (en)"), std::string::npos);
}

TEST_P(ReportPdf, HasItsFontsInside) {
  TextOf("all");
  std::istringstream fonts(OutputOf("pdffonts " + (folder_ / "all").string() + ".pdf"));
  std::string line;
  int rows = 0;
  while (std::getline(fonts, line)) {
    // Two lines of heading, then: name, type, encoding, embedded, subset, unicode.
    if (++rows > 2) {
      EXPECT_NE(line.find(" yes "), std::string::npos) << line;
    }
  }
  EXPECT_GT(rows, 2);
}

std::vector<int> AllCodes() {
  std::vector<int> codes;
  for (const Family& family : AllFamilies()) codes.push_back(family.code);
  return codes;
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, ReportPdf, ::testing::ValuesIn(AllCodes()),
                         [](const auto& i) { return "f" + std::to_string(i.param); });

}  // namespace
}  // namespace korvane
