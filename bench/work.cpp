// SPDX-License-Identifier: GPL-3.0-or-later
// Does one piece of work once, by its name, for a counter of operations that watches CountedWork.
#include <array>
#include <cstdio>
#include <string>

#include "bench/naive_analysis.h"
#include "bench/workloads.h"

namespace {

using namespace korvane;

void Naive(Design& d, naive::Visits visits) {
  naive::Analyse(d.st, d.rec.S, visits, d.loads, d.beam);
  CombineSls(d.st, d.rec.S, d.loads);
  naive::Deflect(d.st, d.rec.Iy, d.rec.Iz, visits, d.loads, d.deflections);
}

struct Work {
  const char* name;
  Design (*make)();
  void (*run)(Design&);
};

constexpr std::array<Work, 7> kWork{{
    {"calculate_default", NewDesign, [](Design& d) { Calculate(d); }},
    {"calculate_full", FullDesign, [](Design& d) { Calculate(d); }},
    {"calculate_silent", NewDesign, [](Design& d) { SilentRecalculation(d); }},
    {"search_all", NewDesign,
     [](Design& d) {
       OptimiserResults results;
       SearchAll(d, results);
     }},
    {"analysis_full", FullDesign, Analysis},
    {"naive_full", FullDesign, [](Design& d) { Naive(d, naive::Visits::AllSlots); }},
    {"naive_full_loads_only", FullDesign, [](Design& d) { Naive(d, naive::Visits::LoadsOnly); }},
}};

}  // namespace

/// What is counted; a name of its own in the symbol table.
extern "C" [[gnu::noinline]] void CountedWork(void (*run)(korvane::Design&),
                                              korvane::Design& design) {
  run(design);
}

int main(int argc, char** argv) {
  if (argc < 2) {
    for (const Work& work : kWork) std::puts(work.name);
    return 0;
  }
  for (const Work& work : kWork) {
    if (std::string(argv[1]) != work.name) continue;
    Design d = work.make();
    work.run(d);  // what is made once only is made here
    CountedWork(work.run, d);
    return 0;
  }
  std::fprintf(stderr, "no work of that name: %s\n", argv[1]);
  return 2;
}
