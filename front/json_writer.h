// SPDX-License-Identifier: GPL-3.0-or-later
// Writes a JSON text as it goes, two blanks a level, a member or an element a line.
#pragma once

#include <concepts>
#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "core/numeric.h"

namespace korvane {

/// A text as JSON at the end of a line; what is not UTF-8 comes out as the replacement character.
void AppendJsonText(std::string_view text, std::string& line);

/// Members in the order of the calls. Texts are UTF-8; what is not comes out as the replacement
/// character. Numbers are the shortest that read back to the same value, with a decimal point or
/// an exponent; one that is not finite is null.
class JsonWriter {
public:
  /// "name": value
  template <class T>
  void Member(std::string_view name, const T& value) {
    Key(name);
    Value(value);
  }
  /// "name": { ... }, with what body writes.
  template <class Body>
  void Object(std::string_view name, Body&& body) {
    Key(name);
    Nest('{', '}', body);
  }
  /// "name": [ { ... }, ... ] with what body writes of each item.
  template <class Items, class Body>
  void Objects(std::string_view name, const Items& items, Body&& body) {
    Key(name);
    Nest('[', ']', [&] {
      for (const auto& item : items) {
        BeginItem();
        Nest('{', '}', [&] { body(item); });
      }
    });
  }
  /// "name": [ ... ] of the elements first to last, in the array's own counting.
  template <class T, int First, int Last>
  void List(std::string_view name, const Indexed<T, First, Last>& values, int last) {
    Key(name);
    Nest('[', ']', [&] {
      for (int i = First; i <= last; ++i) {
        BeginItem();
        Value(values[i]);
      }
    });
  }
  template <class T, int First, int Last>
  void Member(std::string_view name, const Indexed<T, First, Last>& values) {
    List(name, values, Last);
  }
  /// The outermost object, whose text is taken.
  template <class Body>
  std::string Take(Body&& body) {
    Nest('{', '}', body);
    return std::move(text_);
  }

private:
  template <class Body>
  void Nest(char open, char close, Body&& body) {
    text_ += open;
    const bool outerEmpty = empty_;
    empty_ = true;
    ++level_;
    body();
    --level_;
    if (!empty_) NewLine();
    empty_ = outerEmpty;
    text_ += close;
  }
  void BeginItem() {
    if (!empty_) text_ += ',';
    empty_ = false;
    NewLine();
  }
  void NewLine() {
    text_ += '\n';
    text_.append(2 * level_, ' ');
  }
  void Key(std::string_view name);
  void Value(double v);
  void Value(int v);
  void Value(const float32& v) { Value(double(v)); }
  void Value(const number& v) { Value(double(v)); }
  void Value(const int16& v) { Value(int(v)); }
  void Value(std::string_view v);
  void Value(const char* v) { Value(std::string_view(v)); }
  void Value(const std::string& v) { Value(std::string_view(v)); }
  template <std::same_as<bool> Bool>
  void Value(Bool v) {
    text_ += v ? "true" : "false";
  }
  void Value(std::nullptr_t) { text_ += "null"; }

  std::string text_;
  std::size_t level_ = 0;
  bool empty_ = true;  ///< nothing stands in the innermost object or list yet
};

}  // namespace korvane
