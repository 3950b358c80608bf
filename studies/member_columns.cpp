// SPDX-License-Identifier: GPL-3.0-or-later
#include "studies/member_columns.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <exception>
#include <limits>
#include <optional>
#include <string_view>

#include "studies/in_order.h"
#include "studies/member.h"

namespace korvane {

namespace {

/// Rows that a thread takes at once: many enough that taking is nothing, few enough that the last
/// thread doesn't keep the others waiting.
constexpr std::size_t kRowsAtOnce = 256;
constexpr float kNone = std::numeric_limits<float>::quiet_NaN();
constexpr auto kAskedEvery = std::chrono::milliseconds(50);

/// What one thread works with.
class ColumnDesigner {
public:
  ColumnDesigner(const Design& started, const ProjectState& base, const MemberInputs& inputs,
                 const MemberColumns& table, SharedTexts& texts)
      : started_(started),
        base_(base),
        inputs_(inputs),
        table_(table),
        texts_(texts),
        work_(started) {
    for (const InputColumn& column : table.inputs) cells_.push_back({&column.input, {}, {}});
  }

  void DesignRow(std::size_t row) {
    std::optional<std::string> refused;
    try {
      refused = SetInputs(row);
      if (!refused) {
        DesignMember(started_, input_, work_, Lines::None);
        verdict_ = VerdictOf(work_);
        Write(row);
      }
    } catch (const std::exception& other) {
      // Whatever a row comes upon is its own.
      refused = "row " + std::to_string(table_.firstRow + row) + ": " + other.what();
    }
    if (refused) WriteRefused(row, *refused);
    if (!table_.lightest.sections.empty()) WriteLightest(row, refused.has_value());
  }

private:
  std::optional<std::string> SetInputs(std::size_t row) {
    for (std::size_t i = 0; i < cells_.size(); ++i) {
      const InputColumn& column = table_.inputs[i];
      const std::size_t at = row / column.every;
      cells_[i].text = {};
      cells_[i].number = {};
      if (!column.numbers.empty()) {
        const double number = column.numbers[at % column.numbers.size()];
        if (!std::isnan(number)) cells_[i].number = number;
      } else {
        const std::int32_t place = column.places[at % column.places.size()];
        if (place >= 0) cells_[i].text = column.words.at(static_cast<std::size_t>(place));
      }
    }
    input_ = base_;
    const auto refused = inputs_.Put(cells_, false, input_);
    return refused ? std::optional(refused->InColumn(table_.firstRow + row)) : std::nullopt;
  }

  std::int32_t PlaceOf(const std::string& text) {
    const auto [at, isNew] = known_.try_emplace(text, 0);
    if (isNew) at->second = texts_.PlaceOf(text);
    return at->second;
  }

  void Write(std::size_t row) {
    const Designed member{work_, verdict_};
    const bool stopped = verdict_.standing == Standing::Stopped;
    for (const OutputColumn& column : table_.outputs) {
      const bool there = !stopped || column.result->always;
      if (column.result->text != nullptr) {
        column.places[row] = PlaceOf(there ? column.result->text(member) : std::string());
      } else {
        column.numbers[row] = there ? column.result->value(member).value_or(kNone) : kNone;
      }
    }
  }

  void WriteRefused(std::size_t row, const std::string& why) {
    for (const OutputColumn& column : table_.outputs) {
      const std::string_view name = column.result->name;
      if (column.result->text == nullptr) {
        column.numbers[row] = kNone;
      } else if (name == "notes") {
        // Its row's own words are not kept for others.
        column.places[row] = texts_.PlaceOf(why);
      } else {
        column.places[row] = PlaceOf(name == "standing" ? "refused" : "");
      }
    }
  }

  void WriteLightest(std::size_t row, bool refused) {
    std::optional<LightestSize> lightest;
    try {
      if (!refused && verdict_.standing != Standing::Stopped) lightest = FindLightestSize(work_);
    } catch (const ArithmeticFault&) {
      // The member itself went through; no size is told.
    }
    table_.lightest.sections[row] = PlaceOf(lightest ? lightest->section : std::string());
    table_.lightest.weights[row] = lightest ? lightest->weight : kNone;
    table_.lightest.ratios[row] = lightest ? lightest->IR : kNone;
  }

  const Design& started_;
  const ProjectState& base_;
  const MemberInputs& inputs_;
  const MemberColumns& table_;
  SharedTexts& texts_;
  Design work_;
  Verdict verdict_;
  ProjectState input_;
  std::vector<InputCell> cells_;
  std::unordered_map<std::string, std::int32_t> known_;
};

}  // namespace

std::int32_t SharedTexts::PlaceOf(const std::string& text) {
  const std::lock_guard lock(adding_);
  return places_.try_emplace(text, static_cast<std::int32_t>(places_.size())).first->second;
}

std::vector<std::string> SharedTexts::Take() const {
  std::vector<std::string> texts(places_.size());
  for (const auto& [text, place] : places_) texts[static_cast<std::size_t>(place)] = text;
  return texts;
}

bool DesignColumns(const Design& started, const ProjectState& base, const MemberInputs& inputs,
                   const MemberColumns& table, SharedTexts& texts, int jobs,
                   const std::function<bool()>& goesOn) {
  const std::size_t pieces = (table.rows + kRowsAtOnce - 1) / kRowsAtOnce;
  std::atomic<std::size_t> next = 0;
  std::atomic<bool> ended = false;
  std::mutex finishing;
  std::condition_variable finished;
  std::size_t running = 0;

  // Designs pieces until there are none or, in this thread, it is time to ask.
  const auto work = [&](ColumnDesigner& designer, auto&& pause) {
    while (!ended && !pause()) {
      const std::size_t piece = next++;
      if (piece >= pieces) return;
      const std::size_t last = std::min(table.rows, (piece + 1) * kRowsAtOnce);
      for (std::size_t row = piece * kRowsAtOnce; row < last; ++row) designer.DesignRow(row);
    }
  };
  const int threads = ThreadsFor(jobs, pieces);
  if (threads > 1) {
    running = static_cast<std::size_t>(threads);
    const std::vector<std::jthread> pool = StartThreads(threads, [&] {
      ColumnDesigner designer(started, base, inputs, table, texts);
      work(designer, [] { return false; });
      const std::lock_guard lock(finishing);
      --running;
      finished.notify_all();
    });
    std::unique_lock lock(finishing);
    // Those that the system didn't start end nothing.
    running -= static_cast<std::size_t>(threads) - pool.size();
    while (!finished.wait_for(lock, kAskedEvery, [&] { return running == 0; })) {
      lock.unlock();
      if (!goesOn()) ended = true;
      lock.lock();
    }
  }
  if (!ended && next < pieces) {
    ColumnDesigner designer(started, base, inputs, table, texts);
    while (!ended && next < pieces) {
      const auto asked = std::chrono::steady_clock::now() + kAskedEvery;
      work(designer, [&] { return std::chrono::steady_clock::now() >= asked; });
      if (!goesOn()) ended = true;
    }
  }
  return !ended;
}

}  // namespace korvane
