// SPDX-License-Identifier: GPL-3.0-or-later
// Fields as lines of a text file: a reader and a writer with the same calls, so that one walk
// over the fields states the order of a file for both directions.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

#include "core/numeric.h"

namespace korvane {

/// Thrown by FieldReader when a field is asked for past the last line.
struct PastEnd {};
/// Thrown by FieldReader for a text without a number where it doesn't pass for 0.
struct UnreadableNumber {};

/// What a text without digits at a number's place means.
enum class NoDigits { ReadAsZero, EndTheReading };

/// Takes one field from each line. The type of a field is its form; lines end in LF or CR LF.
/// A field that can't be read keeps its value: PastEnd, UnreadableNumber, or ArithmeticFault for
/// a value that its type can't hold.
class FieldReader {
public:
  /// The bytes must outlive the reader.
  explicit FieldReader(std::string_view bytes, NoDigits noDigits = NoDigits::ReadAsZero);

  template <class... Fields>
  void operator()(Fields&... fields) {
    (Read(fields), ...);
  }
  /// The whole line.
  void Text(std::string& field);
  /// The text between the double quotes, up to the closing one or the end of the line; without
  /// an opening quote the line without the blanks around it.
  void Quoted(std::string& field);
  /// A num line that belongs to no field.
  void Spare();

private:
  void Read(int16& field);
  void Read(float32& field);
  void Read(number& field);
  std::string_view Line();
  std::string_view NumberLine();

  std::string_view rest_;
  NoDigits noDigits_;
};

/// Adds one field a line to a text, lines ended by CR LF, texts in UTF-8. A line break inside a
/// text becomes a blank.
class FieldWriter {
public:
  template <class... Fields>
  void operator()(const Fields&... fields) {
    (Write(fields), ...);
  }
  /// A text as it is.
  void Text(std::string_view field);
  /// A text between double quotes.
  void Quoted(std::string_view field);
  /// An empty line, which belongs to no field.
  void Spare();

  const std::string& Bytes() const { return bytes_; }
  std::string Take() { return std::move(bytes_); }
  void Reserve(std::size_t size) { bytes_.reserve(size); }

private:
  void Write(const int16& field);
  void Write(const float32& field);
  void Write(const number& field);
  void EndLine() { bytes_ += "\r\n"; }

  std::string bytes_;
};

}  // namespace korvane
