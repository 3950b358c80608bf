// SPDX-License-Identifier: GPL-3.0-or-later
// Pieces of work done in several threads and handed on in the order in which they were made, with
// no more than a few of them in memory.
#pragma once

#include <condition_variable>
#include <cstddef>
#include <functional>
#include <mutex>
#include <thread>
#include <vector>

namespace korvane {

/// As many threads as asked for (0: as many as the machine has cores), at most as many as there
/// are pieces.
int ThreadsFor(int wanted, std::size_t pieces);

/// As many threads as wanted, or as the system gives; empty where it gives none.
std::vector<std::jthread> StartThreads(int wanted, const std::function<void()>& work);

/// make(piece) writes the next piece over an old one and returns false behind the last; it runs in
/// one thread at a time, in order. newWorker() is called once a thread and gives what does the
/// work on a piece. take(piece) gets the pieces in this thread, in the order of their making, and
/// returns false to end the work behind this one. None of them may throw.
template <class Piece, class Make, class NewWorker, class Take>
void WorkInOrder(int threads, Make&& make, NewWorker&& newWorker, Take&& take) {
  struct Slot {
    Piece piece;
    bool done = false;
  };
  std::vector<Slot> ring(static_cast<std::size_t>(threads) * 4);
  std::mutex counting;
  std::mutex making;
  std::condition_variable changed;
  std::size_t made = 0;
  std::size_t taken = 0;
  bool ended = false;

  /// The place of the next piece, nullptr behind the last.
  const auto next = [&]() -> Slot* {
    const std::lock_guard one(making);
    std::unique_lock lock(counting);
    changed.wait(lock, [&] { return ended || made - taken < ring.size(); });
    if (ended) return nullptr;
    Slot& slot = ring[made % ring.size()];
    lock.unlock();
    const bool there = make(slot.piece);
    lock.lock();
    there ? void(++made) : void(ended = true);
    changed.notify_all();
    return there ? &slot : nullptr;
  };
  const std::vector<std::jthread> pool = StartThreads(threads, [&] {
    auto work = newWorker();
    while (Slot* slot = next()) {
      work(slot->piece);
      const std::lock_guard lock(counting);
      slot->done = true;
      changed.notify_all();
    }
  });
  if (pool.empty()) {
    auto work = newWorker();
    for (Piece piece; make(piece);) {
      work(piece);
      if (!take(piece)) return;
    }
    return;
  }
  for (bool goes = true; goes;) {
    std::unique_lock lock(counting);
    Slot& slot = ring[taken % ring.size()];
    changed.wait(lock, [&] { return slot.done || (ended && taken == made); });
    if (!slot.done) return;
    lock.unlock();
    goes = take(slot.piece);
    lock.lock();
    slot.done = false;
    ++taken;
    if (!goes) ended = true;
    changed.notify_all();
  }
}

}  // namespace korvane
