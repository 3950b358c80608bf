// SPDX-License-Identifier: GPL-3.0-or-later
// A short list inside a table's row, of at most Most items, built by the compiler.
#pragma once

#include <array>
#include <cstddef>
#include <initializer_list>

namespace korvane {

/// Items in their order. More items than there is room for do not compile in a constant.
template <class Item, std::size_t Most>
class FixedList {
public:
  constexpr FixedList() = default;
  constexpr FixedList(std::initializer_list<Item> items) {
    for (const Item& item : items) items_.at(size_++) = item;
  }
  constexpr std::size_t size() const { return size_; }
  constexpr bool empty() const { return size_ == 0; }
  constexpr const Item* begin() const { return items_.data(); }
  constexpr const Item* end() const { return items_.data() + size_; }
  constexpr const Item& operator[](std::size_t i) const { return items_.at(i); }

private:
  std::array<Item, Most> items_{};
  std::size_t size_ = 0;
};

}  // namespace korvane
