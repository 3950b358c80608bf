// SPDX-License-Identifier: GPL-3.0-or-later
// Times of tables and studies; of a row the shares of reading its cells, designing and printing.
#include <benchmark/benchmark.h>

#include <random>
#include <sstream>
#include <string>

#include "bench/workloads.h"
#include "front/console/table.h"
#include "front/console/table_rows.h"
#include "studies/all_sections.h"
#include "studies/interaction.h"
#include "studies/member.h"
#include "studies/solve.h"

namespace korvane {
namespace {

constexpr int kRows = 20000;

/// Members with twelve input columns.
std::string Members() {
  constexpr const char* kSections[] = {"HEA 200", "HEB 240",       "IPE 300",       "SHS 100x100x5",
                                       "HEA 160", "UB 457x191x67", "RHS 200x120x6", "IPE 400"};
  std::mt19937 dice(3472);
  const auto below = [&](unsigned n) { return std::to_string(dice() % n); };
  std::string table =
      "id,section,material,L,SupportType,bly,blz,NP,q1,q2,pm[1],pmx[1],SelfWeight\n";
  for (int i = 0; i < kRows; ++i) {
    table += "m" + std::to_string(i) + "," + kSections[dice() % 8] + ",S355," +
             std::to_string(2 + dice() % 7) + "." + below(10) + "," + below(3) + ",1.0,1.0," +
             below(500) + "." + below(10) + "," + below(20) + "." + below(10) + "," + below(9) +
             "." + below(10) + "," + below(30) + ".5,1.2" + below(10) + ",1\n";
  }
  return table;
}

/// Twelve results a row; the argument is the number of threads.
void table(benchmark::State& state) {
  const std::string members = Members();
  TableOptions options;
  options.jobs = static_cast<int>(state.range(0));
  options.columns =
      "section,weight,standing,MaxIR,governing,IR_section,IR_Vz,IR_lateral,IR_buckling,L_over_z,"
      "sls,notes";
  for (auto _ : state) {
    std::istringstream in(members);
    std::ostringstream out;
    std::ostringstream errors;
    TableCounts counts;
    DesignTable(TheLibrary(), options, in, members.size(), out, errors, false, counts);
    benchmark::DoNotOptimize(out.str().size());
  }
  state.SetItemsProcessed(state.iterations() * kRows);
}
BENCHMARK(table)->Arg(1)->Arg(2)->Unit(benchmark::kMillisecond)->UseRealTime();

/// Reading the cells of a row into the state.
void table_cells(benchmark::State& state) {
  const MemberInputs inputs(TheLibrary());
  const ProjectState base = NewMember(TheLibrary());
  const MemberInput section = *FindMemberInput("section", base);
  const MemberInput material = *FindMemberInput("material", base);
  const MemberInput L = *FindMemberInput("L", base);
  const MemberInput q1 = *FindMemberInput("q1", base);
  const MemberInput NP = *FindMemberInput("NP", base);
  const InputCell cells[] = {
      {&section, "IPE 300"}, {&material, "S355"}, {&L, "5.25"}, {&q1, "12.5"}, {&NP, "310.5"}};
  ProjectState st;
  for (auto _ : state) {
    st = base;
    benchmark::DoNotOptimize(inputs.Set(cells, false, st));
  }
}
BENCHMARK(table_cells)->Unit(benchmark::kMicrosecond);

/// The design of a row alone, with its verdict.
void table_design(benchmark::State& state) {
  const Design started = StartedDesign(TheLibrary());
  const ProjectState member = NewMember(TheLibrary());
  Design work = started;
  for (auto _ : state) {
    DesignMember(started, member, work, Lines::None);
    benchmark::DoNotOptimize(VerdictOf(work).IR);
  }
}
BENCHMARK(table_design)->Unit(benchmark::kMicrosecond);

/// The cells of all results of a row.
void table_print(benchmark::State& state) {
  const Design started = StartedDesign(TheLibrary());
  const Verdict verdict = VerdictOf(started);
  for (auto _ : state) {
    for (const ResultColumn& column : AllResultColumns()) {
      benchmark::DoNotOptimize(CellOf(column, {started, verdict}).size());
    }
  }
}
BENCHMARK(table_print)->Unit(benchmark::kMicrosecond);

void all_sections(benchmark::State& state) {
  const Design started = StartedDesign(TheLibrary());
  const ProjectState member = NewMember(TheLibrary());
  for (auto _ : state) benchmark::DoNotOptimize(DesignSizes(started, member, {}).size());
}
BENCHMARK(all_sections)->Unit(benchmark::kMillisecond);

void solve_length(benchmark::State& state) {
  const Design started = StartedDesign(TheLibrary());
  const MemberInputs inputs(TheLibrary());
  const ProjectState member = NewMember(TheLibrary());
  Question question;
  question.input = *FindMemberInput("L", member);
  question.present = member.L;
  DefaultRange(member, question);
  for (auto _ : state) {
    benchmark::DoNotOptimize(Solve(started, member, inputs, question).intervals.size());
  }
}
BENCHMARK(solve_length)->Unit(benchmark::kMillisecond);

void interaction_diagram(benchmark::State& state) {
  const Design started = StartedDesign(TheLibrary());
  const ProjectState member = NewMember(TheLibrary());
  for (auto _ : state) {
    benchmark::DoNotOptimize(InteractionEnvelope(started, member, InteractionAxes::NMy, {}).size());
  }
}
BENCHMARK(interaction_diagram)->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace korvane
