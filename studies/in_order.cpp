// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/in_order.h"

#include <algorithm>
#include <system_error>

namespace korvane {

int ThreadsFor(int wanted, std::size_t pieces) {
  const unsigned cores = std::max(1U, std::thread::hardware_concurrency());
  const auto threads = static_cast<std::size_t>(wanted > 0 ? wanted : int(cores));
  return static_cast<int>(std::clamp<std::size_t>(threads, 1, std::max<std::size_t>(pieces, 1)));
}

std::vector<std::jthread> StartThreads(int wanted, const std::function<void()>& work) {
  std::vector<std::jthread> pool;
  pool.reserve(static_cast<std::size_t>(wanted));
  try {
    for (int i = 0; i < wanted; ++i) pool.emplace_back(work);
  } catch (const std::system_error&) {
    // Those that there are do all of it.
  }
  return pool;
}

}  // namespace korvane
