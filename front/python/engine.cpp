// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/python/engine.h"

#include "core/text.h"
#include "front/data_folder.h"
#include "studies/all_sections.h"
#include "studies/member.h"
#include "studies/result_columns.h"

namespace korvane::python {

namespace {

/// Of the process: a module has no owner that could hand it to the calls.
std::unique_ptr<const Engine>& Place() {
  static std::unique_ptr<const Engine> engine;
  return engine;
}

}  // namespace

Engine::Engine(const std::string& dataFolder)
    : library(ReadLibrary(FindDataFolder(dataFolder))),
      started(StartedDesign(library)),
      fresh(NewMember(library)),
      inputs(library) {}

void StartEngine(const std::string& dataFolder) {
  Place() = std::make_unique<const Engine>(dataFolder);
}

const Engine& TheEngine() {
  if (!Place()) throw std::logic_error("the engine is not started");
  return *Place();
}

Outcome::Outcome(const ProjectState& member) : input(member), design(TheEngine().library) {
  MemberRun run = DesignMember(TheEngine().started, input, design, Lines::None);
  if (run.fault) stopped = StoppedCalculation{*run.fault, std::move(run.what)};
  verdict = VerdictOf(design);
}

const Design& Outcome::WithLines() {
  if (!composed_) DesignMember(TheEngine().started, input, design, Lines::Composed);
  composed_ = true;
  return design;
}

ProjectState WorkedOut(const ProjectState& member) {
  const Outcome outcome(member);
  return outcome.stopped ? member : outcome.design.st;
}

std::string MemberWords(const ProjectState& st) {
  return SectionName(st, TheEngine().library->catalogues) + " L=" + Digits(st.L.Single()) + " m";
}

std::string OutcomeWords(const Outcome& outcome) {
  if (outcome.stopped) return "stopped in " + outcome.stopped->step;
  std::string words = StandingWord(outcome.verdict.standing);
  words += " " + Format(outcome.verdict.IR, "0.00");
  const std::string governing = GoverningLabel(outcome.verdict);
  if (!governing.empty()) words += " (" + governing + ")";
  return words;
}

}  // namespace korvane::python
