// SPDX-License-Identifier: GPL-3.0-or-later
// Counts what a program takes from the heap. To be included in one source of the program alone:
// it replaces the program's operator new.
#pragma once

#include <atomic>
#include <cstdlib>
#include <new>

namespace {
std::atomic<long> allocations = 0;
}

// Not inlined: the compiler would take the pair of malloc and free behind them for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
  ++allocations;
  if (void* p = std::malloc(size ? size : 1)) return p;
  throw std::bad_alloc();
}
[[gnu::noinline]] void operator delete(void* p) noexcept {
  std::free(p);
}
[[gnu::noinline]] void operator delete(void* p, std::size_t) noexcept {
  std::free(p);
}
