// SPDX-License-Identifier: GPL-3.0-or-later
// korvane_soak ACTIONS SEED [PERSONS]: so many random actions on the program without a window, on
// files of a folder of its own; of so many persons, each by the next seed. Fails when anything is
// thrown that a person must not meet, when a field shows another value than the state's, or when
// the heap has grown between the half and the end.
#include <malloc.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <new>

#include "places.h"
#include "random_person.h"

namespace {

/// Bytes that are allocated and not freed.
long liveHeap = 0;

void* Take(std::size_t size) {
  void* place = std::malloc(size);
  if (place == nullptr) throw std::bad_alloc();
  liveHeap += static_cast<long>(malloc_usable_size(place));
  return place;
}

void Give(void* place) {
  liveHeap -= static_cast<long>(malloc_usable_size(place));
  std::free(place);
}

}  // namespace

// Counted here and not by the library, whose own figure holds freed places that it keeps ready.
void* operator new(std::size_t size) {
  return Take(size);
}
void operator delete(void* place) noexcept {
  Give(place);
}
void operator delete(void* place, std::size_t) noexcept {
  Give(place);
}

namespace {

using namespace korvane;
namespace fs = std::filesystem;

/// The heap may differ by what a session keeps of its last files and forms, bytes.
constexpr long kSessionSpread = 64 * 1024;
/// Nothing of a session is left when it has ended, but tables that are made when first asked for.
constexpr long kSpread = 1024;

struct Sample {
  long running, ended;
};

Sample Measure(RandomPerson& person) {
  const long running = liveHeap;
  person.Rest();
  return {running, liveHeap};
}

/// A folder with projects to open, removed at the end.
class Folder {
public:
  Folder() : path_(fs::temp_directory_path() / ("korvane-soak-" + std::to_string(::getpid()))) {
    fs::create_directories(path_);
    for (const auto& entry : fs::directory_iterator(KORVANE_SOURCE_DIR "/examples")) {
      if (entry.path().extension() == ".kvn") fs::copy(entry.path(), path_);
    }
  }
  ~Folder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  Folder(const Folder&) = delete;
  Folder& operator=(const Folder&) = delete;

  SoakFiles Files() const {
    SoakFiles files;
    files.folder = path_.string();
    for (const auto& entry : fs::directory_iterator(path_)) {
      files.open.push_back(entry.path().string());
    }
    std::sort(files.open.begin(), files.open.end());
    for (const char* name : {"a.kvn", "b.kvn", "c.kvn", "d.kvn"}) {
      files.save.push_back(files.folder + "/" + name);
      files.open.push_back(files.save.back());
    }
    files.open.push_back(files.folder + "/no-such-file.kvn");
    files.open.push_back(files.folder);
    files.save.push_back(files.folder + "/no-such-folder/e.kvn");
    files.save.push_back(files.folder);
    return files;
  }

private:
  fs::path path_;
};

void Report(const SoakCounts& c, const Sample& half, const Sample& end, double seconds) {
  std::printf(
      "%ld actions in %.1f s: %ld sessions, %ld calculations, %ld messages, %ld dialogs,\n"
      "%ld actions on other forms than the main window, %ld sessions ended by arithmetic,\n"
      "%ld of them at their start by the defaults that an earlier one had saved\n",
      c.actions, seconds, c.sessions, c.calculations, c.messages, c.dialogs, c.forms, c.faults,
      c.badDefaults);
  std::printf("live heap, bytes: %ld and %ld with a session, %ld and %ld without (half, end)\n",
              half.running, end.running, half.ended, end.ended);
}

int Soak(const std::shared_ptr<const Library>& library, long actions, unsigned seed, bool alone) {
  const Folder folder;
  const SoakFiles files = folder.Files();
  RandomPerson person(library, files, seed);
  const auto start = std::chrono::steady_clock::now();
  Sample half{};
  for (long k = 0; k < actions; ++k) {
    if (k == actions / 2) half = Measure(person);
    try {
      person.Act();
    } catch (const std::exception& e) {
      std::printf("action %ld of seed %u: %s\n", k, seed, e.what());
      return 1;
    }
  }
  const Sample end = Measure(person);
  const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
  if (!alone) return 0;
  Report(person.Counts(), half, end, time.count());
  if (std::labs(end.running - half.running) > kSessionSpread ||
      std::labs(end.ended - half.ended) > kSpread) {
    std::puts("the heap is not flat");
    return 1;
  }
  return 0;
}

}  // namespace

int main(int argc, char** argv) {
  const long actions = argc > 1 ? std::atol(argv[1]) : 5000;
  const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atol(argv[2])) : 1;
  const long persons = argc > 3 ? std::atol(argv[3]) : 1;
  const auto library = ReadLibrary(KORVANE_SOURCE_DIR "/data");
  for (long k = 0; k < persons; ++k) {
    const int status = Soak(library, actions, seed + static_cast<unsigned>(k), persons == 1);
    if (status != 0) return status;
  }
  if (persons > 1) std::printf("%ld persons with %ld actions each\n", persons, actions);
  return 0;
}
