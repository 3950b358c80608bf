// SPDX-License-Identifier: GPL-3.0-or-later
// The command solve: how far a value can go.
#include <array>
#include <charconv>
#include <ostream>

#include "core/text.h"
#include "front/console/exit_status.h"
#include "front/console/studies.h"
#include "front/console/terminal.h"
#include "front/json_writer.h"
#include "front/nearest.h"
#include "studies/member.h"
#include "studies/solve.h"

namespace korvane {

namespace {

/// Six digits, no more than there are.
std::string Six(double value) {
  std::array<char, 32> text;
  const auto end =
      std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::general, 6)
          .ptr;
  return {text.data(), end};
}

bool ParseRange(const std::string& text, double& low, double& high) {
  const char* const end = text.data() + text.size();
  const auto first = std::from_chars(text.data(), end, low);
  if (first.ec != std::errc() || first.ptr == end || *first.ptr != ':') return false;
  const auto second = std::from_chars(first.ptr + 1, end, high);
  return second.ec == std::errc() && second.ptr == end && low < high;
}

std::string Described(const Trial& trial) {
  std::string text = "IR " + Format(trial.IR, "0.000000");
  if (!trial.check.empty()) text += ", " + trial.check;
  return text;
}

class Printer {
public:
  Printer(const Question& question, std::ostream& output)
      : unit_(UnitOf(question.input)), name_(question.input.name), output_(output) {
    if (!unit_.empty()) unit_.insert(0, " ");
  }
  void End(const char* word, const Border& border) {
    output_ << "  " << name_ << ' ' << word << ' ' << Six(border.passing.value) << unit_ << ": "
            << Described(border.passing) << "\n      next value " << Six(border.failing.value)
            << unit_ << " fails: " << Described(border.failing) << '\n';
  }
  void Interval(const PassingInterval& interval) {
    output_ << "passes from " << Six(interval.low) << " to " << Six(interval.high) << unit_ << '\n';
    if (interval.below) End("down to", *interval.below);
    if (interval.above) End("up to", *interval.above);
  }
  void Print(const Question& q, const Answer& answer) {
    output_ << name_ << " = " << Six(q.present) << unit_ << ": "
            << (answer.present.passes ? "passes, " : "does not pass, ") << Described(answer.present)
            << '\n';
    const std::string range = Six(q.low) + " to " + Six(q.high) + unit_;
    if (answer.intervals.empty()) {
      output_ << "nothing passes from " << range << '\n';
      return;
    }
    if (answer.intervals.size() == 1 && !answer.intervals[0].below && !answer.intervals[0].above) {
      output_ << "everything passes from " << range << '\n';
      return;
    }
    if (answer.intervals.size() > 1) {
      output_ << "the standing is not monotonous from " << range << ": " << answer.intervals.size()
              << " intervals pass\n";
    }
    for (const PassingInterval& interval : answer.intervals) Interval(interval);
  }

private:
  std::string unit_;
  std::string name_;
  std::ostream& output_;
};

std::string JsonOf(const Question& q, const Answer& answer) {
  JsonWriter json;
  const auto trial = [&](const char* name, const Trial& t) {
    json.Object(name, [&] {
      json.Member("value", t.value);
      json.Member("passes", t.passes);
      json.Member("IR", t.IR);
      json.Member("check", t.check);
    });
  };
  const auto border = [&](const char* name, const Border& b) {
    json.Object(name, [&] {
      trial("passing", b.passing);
      trial("failing", b.failing);
    });
  };
  return json.Take([&] {
    json.Member("input", q.input.name);
    json.Member("unit", UnitOf(q.input));
    json.Member("low", q.low);
    json.Member("high", q.high);
    trial("present", answer.present);
    json.Objects("intervals", answer.intervals, [&](const PassingInterval& interval) {
      json.Member("low", interval.low);
      json.Member("high", interval.high);
      if (interval.below) border("below", *interval.below);
      if (interval.above) border("above", *interval.above);
    });
  }) + "\n";
}

}  // namespace

int RunSolve(std::shared_ptr<const Library> library, const SolveOptions& options,
             std::ostream& output, std::ostream& errors) {
  const Design started = StartedDesign(library);
  ProjectState member = started.st;
  if (!ReadMember(options.file, member, errors)) return kBadInput;
  const auto input = FindMemberInput(options.input, member);
  if (!input || (input->kind != InputKind::Field && input->kind != InputKind::Loads)) {
    errors << "unknown input " << NameOnErrors(options.input)
           << " (nearest: " << NearestWord(options.input, MemberInputNames()) << ")\n";
    return kBadInput;
  }
  Question question;
  question.input = *input;
  question.present = PresentValue(member, *input);
  question.sls = options.sls;
  DefaultRange(member, question);
  if (!options.between.empty() && !ParseRange(options.between, question.low, question.high)) {
    errors << "--between A:B, A less than B\n";
    return kBadInput;
  }
  const MemberInputs inputs(library);
  const Answer answer = Solve(started, member, inputs, question);
  if (options.json) {
    output << JsonOf(question, answer);
  } else {
    Printer(question, output).Print(question, answer);
  }
  return answer.present.passes ? kAllPass : kCheckFails;
}

}  // namespace korvane
