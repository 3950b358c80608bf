// SPDX-License-Identifier: GPL-3.0-or-later
#include "multiply_add.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <chrono>

namespace korvane {

namespace {

constexpr int kChains = 16;
constexpr int kRounds = 200'000;

/// kRounds times a = a*m + b on each chain; packed or not is the compiler's choice.
[[gnu::noinline]] void Chains(std::array<double, kChains>& a, double m, double b) {
  std::array<double, kChains> v = a;
  for (int r = 0; r < kRounds; ++r) {
    for (double& x : v) x = x * m + b;
  }
  a = v;
}

/// The same on eight chains that the compiler is kept from packing: each hides its value from
/// it once a round, which costs no instruction.
[[gnu::noinline]] void ScalarChains(std::array<double, kChains>& a, double m, double b) {
  double c0 = a[0], c1 = a[1], c2 = a[2], c3 = a[3], c4 = a[4], c5 = a[5], c6 = a[6], c7 = a[7];
  const auto step = [m, b](double& x) {
    x = x * m + b;
    asm volatile("" : "+x"(x));
  };
  for (int r = 0; r < 2 * kRounds; ++r) {
    step(c0);
    step(c1);
    step(c2);
    step(c3);
    step(c4);
    step(c5);
    step(c6);
    step(c7);
  }
  a = {c0, c1, c2, c3, c4, c5, c6, c7};
}

/// Operations a second of the fastest of many runs: others work on the machine too.
double Best(void (*chains)(std::array<double, kChains>&, double, double)) {
  std::array<double, kChains> a{};
  double best = 0;
  for (int run = 0; run < 40; ++run) {
    const auto start = std::chrono::steady_clock::now();
    chains(a, 0.5, 1.0);
    benchmark::DoNotOptimize(a);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    best = std::max(best, 2.0 * kChains * kRounds / time.count());
  }
  return best;
}

}  // namespace

Pace MultiplyAddRate() {
  return {Best(ScalarChains), Best(Chains)};
}

}  // namespace korvane
