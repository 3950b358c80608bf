// SPDX-License-Identifier: GPL-3.0-or-later
// Many members out of arrays: inputs in columns, results in columns, no text between them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <mutex>
#include <span>
#include <string>
#include <unordered_map>
#include <vector>

#include "core/calculation.h"
#include "studies/member_inputs.h"
#include "studies/result_columns.h"

namespace korvane {

/// A column of inputs. Either numbers, where nan keeps the base's value, or words by their place in
/// a list, where a negative place keeps it.
struct InputColumn {
  MemberInput input;
  std::span<const double> numbers;
  std::span<const std::int32_t> places;
  std::vector<std::string> words;
  /// So many rows one after another have the same value; behind the last value the first comes
  /// again. 1 for a table, more in a grid.
  std::size_t every = 1;
};

/// Where a column of results goes: an element a row, of a result that is a number to numbers (nan
/// where there is none), of one that is a text to places in the list of texts.
struct OutputColumn {
  const ResultColumn* result = nullptr;
  std::span<float> numbers;
  std::span<std::int32_t> places;
};

/// The lightest size of each member's series, where it is asked for.
struct LightestColumns {
  std::span<std::int32_t> sections;
  std::span<float> weights;  ///< kg/m
  std::span<float> ratios;
};

/// Texts that many rows share, each kept once. Threads may add at the same time.
class SharedTexts {
public:
  /// The place of a text, which it gets when it comes first.
  std::int32_t PlaceOf(const std::string& text);
  /// All texts by their places, once nobody adds any more.
  std::vector<std::string> Take() const;

private:
  std::mutex adding_;
  std::unordered_map<std::string, std::int32_t> places_;
};

/// A table of members in columns.
struct MemberColumns {
  std::size_t rows = 0;
  std::vector<InputColumn> inputs;
  std::vector<OutputColumn> outputs;
  LightestColumns lightest;
  std::size_t firstRow = 0;  ///< number of the first row in messages
};

/// Designs each row as DesignMember does, in so many threads (0: as many as there are cores), and
/// writes its results; a refused row has the standing "refused" and the reason in its notes, every
/// other result empty. goesOn is asked now and then in this thread; false ends the work, and the
/// rows not reached stay as they were. Returns whether all rows were designed. Does not throw for a
/// row.
bool DesignColumns(const Design& started, const ProjectState& base, const MemberInputs& inputs,
                   const MemberColumns& table, SharedTexts& texts, int jobs,
                   const std::function<bool()>& goesOn);

}  // namespace korvane
