// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/failure_report.h"

#include "core/files.h"
#include "core/setupbas.h"
#include "front/input_words.h"
#include "front/session.h"

namespace korvane {

namespace {

/// Nothing has been calculated since the start, and no project was opened.
bool StartFailed(const Session& s) {
  return !s.LastCalculated() && !s.Mending();
}

}  // namespace

FailureReport ReportOf(const Session& s, const std::string& what) {
  FailureReport report;
  const bool calculation = !s.design().history.stoppedIn.empty();
  report.text = calculation ? "The calculation can't be done: " + FailureWords(s.design()) + ".\n"
                            : "The program can't go on: " + what + ".\n";
  if (const Control* refused = s.Refused()) {
    report.text += "The refused value " + InputWords(s, *refused) + " was still in force.\n";
  }
  if (const Control* last = s.LastInput()) {
    report.text += "The last input was: " + InputWords(s, *last) + ".\n";
  }
  if (StartFailed(s)) {
    const std::string path = DefaultsPath(s.folders().own);
    const bool own = s.folders().own != s.folders().program && s.folders().ownDefaults;
    report.ownDefaults = own && ReadWholeFile(path).has_value();
    report.text += report.ownDefaults
                       ? "Your own default values make each start fail:\n" + path + "\n"
                       : "The default values make each start fail:\n" +
                             DefaultsPath(s.folders().program) + "\n";
  }
  report.text += "The program ends.\n";
  return report;
}

}  // namespace korvane
