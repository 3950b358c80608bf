// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/json_writer.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <nlohmann/json.hpp>

namespace korvane {

namespace {

/// Stands for itself between quotes.
bool IsPlain(char c) {
  return c >= ' ' && c <= '~' && c != '"' && c != '\\';
}

}  // namespace

void JsonWriter::Key(std::string_view name) {
  BeginItem();
  text_ += '"';
  text_ += name;
  text_ += "\": ";
}

void JsonWriter::Value(int v) {
  std::array<char, 16> digits;
  text_.append(digits.data(), std::to_chars(digits.data(), digits.end(), v).ptr);
}

void JsonWriter::Value(double v) {
  if (!std::isfinite(v)) return Value(nullptr);
  // The library's own digits: other shortest ones read back alike, but the texts would differ.
  std::array<char, 64> digits;
  text_.append(digits.data(), nlohmann::detail::to_chars(digits.data(), digits.end(), v));
}

void JsonWriter::Value(std::string_view v) {
  AppendJsonText(v, text_);
}

void AppendJsonText(std::string_view v, std::string& line) {
  if (std::all_of(v.begin(), v.end(), IsPlain)) {
    line += '"';
    line += v;
    line += '"';
    return;
  }
  using nlohmann::json;
  line += json(std::string(v)).dump(-1, ' ', false, json::error_handler_t::replace);
}

}  // namespace korvane
