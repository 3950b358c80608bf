// SPDX-License-Identifier: GPL-3.0-or-later
// The sheets of a project as one job, so that the console program and the windows make the same
// PDF.
#pragma once

#include <algorithm>
#include <ctime>
#include <span>
#include <string_view>

#include "front/painter/paint_files.h"
#include "front/system.h"
#include "presentation/aprint.h"

namespace korvane {

/// The sheets behind a word of the command line.
struct Sheets {
  const char* word;
  std::vector<Report> reports;
};

inline std::span<const Sheets> AllSheets() {
  using enum Report;
  static const std::vector<Sheets> all{
      {"section", {SectionProperty}},
      {"control", {SectionAndStability}},
      {"checker", {Checker}},
      {"both", {SectionProperty, SectionAndStability}},
      {"all", {SectionProperty, SectionAndStability, Checker}},
  };
  return all;
}

/// The sheets of a word, or nullptr.
inline const Sheets* FindSheets(std::string_view word) {
  const auto all = AllSheets();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](const Sheets& s) { return word == s.word; });
  return found == all.end() ? nullptr : &*found;
}

/// The moment of a print.
inline ReportTime TimeOfPrint() {
  const std::tm local = LocalTime(std::time(nullptr));
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min};
}

/// A project as it goes with its sheets.
struct AttachedProject {
  std::string name, bytes;
};

/// The design must outlive the job. The title is that of the last report, with project and
/// identification; the notice stands at the head of each page.
inline PaintJob ReportJob(const Design& design, const std::vector<Report>& reports,
                          const ReportTime& time, AttachedProject project,
                          const std::string& notice = {}) {
  PaintJob job;
  job.width = kPageWidth;
  job.height = kPageHeight;
  for (const Report report : reports) {
    if (job.title.empty() || report != Report::Checker) job.title = ReportTitle(report);
    job.pages.emplace_back([&design, report, time, notice](DrawingTarget& page) {
      DrawReport(page, report, design, time, notice);
    });
  }
  job.title += " - " + design.st.iproj + " - " + design.st.iident;
  job.subject = "Design of a steel member to NS 3472";
  job.attachmentName = std::move(project.name);
  job.attachment = std::move(project.bytes);
  return job;
}

}  // namespace korvane
