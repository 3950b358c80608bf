// SPDX-License-Identifier: GPL-3.0-or-later
// The forms of a field: int, real, num, text and quoted.
#include "core/field_io.h"

#include <array>
#include <charconv>
#include <cmath>

#include "core/text.h"

namespace korvane {
namespace {

std::string_view Trimmed(std::string_view text) {
  constexpr std::string_view blanks = " \t";
  const std::size_t first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// One line of UTF-8: a break inside would shift every field behind it.
std::string OneLine(std::string_view text) {
  std::string line = ToUtf8(text);
  for (std::size_t at = 0; (at = line.find_first_of("\r\n", at)) != std::string::npos; ++at) {
    if (line[at] == '\r' && at + 1 < line.size() && line[at + 1] == '\n') line.erase(at, 1);
    line[at] = ' ';
  }
  return line;
}

}  // namespace

FieldReader::FieldReader(std::string_view bytes, NoDigits noDigits)
    : rest_(bytes), noDigits_(noDigits) {
  // Some editors put a byte order mark before the first line.
  constexpr std::string_view mark = "\xEF\xBB\xBF";
  if (rest_.substr(0, mark.size()) == mark) rest_.remove_prefix(mark.size());
}

std::string_view FieldReader::Line() {
  if (rest_.empty()) throw PastEnd{};
  const std::size_t end = rest_.find('\n');
  std::string_view line = rest_.substr(0, end);
  rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
  if (!line.empty() && line.back() == '\r') line.remove_suffix(1);
  return line;
}

std::string_view FieldReader::NumberLine() {
  const std::string_view line = Line();
  if (noDigits_ == NoDigits::EndTheReading && !BeginsWithNumber(line)) throw UnreadableNumber{};
  return line;
}

void FieldReader::Read(int16& field) {
  const double value = std::nearbyint(LeadingNumber(NumberLine()));
  if (!(std::fabs(value) <= 40000.0)) throw ArithmeticFault("16-bit integer overflow");
  field = static_cast<int>(value);
}

void FieldReader::Read(float32& field) {
  field = static_cast<double>(LeadingSingle(NumberLine()));
}

void FieldReader::Read(number& field) {
  const std::string_view line = Line();
  if (Trimmed(line).empty()) {
    field = number::Empty();
    return;
  }
  if (noDigits_ == NoDigits::EndTheReading && !BeginsWithNumber(line)) throw UnreadableNumber{};
  field = LeadingNumber(line);
}

void FieldReader::Text(std::string& field) {
  field = ToUtf8(Line());
}

void FieldReader::Quoted(std::string& field) {
  std::string_view line = Trimmed(Line());
  if (!line.empty() && line.front() == '"') {
    line.remove_prefix(1);
    line = line.substr(0, line.find('"'));
  }
  field = ToUtf8(line);
}

void FieldReader::Spare() {
  Line();
}

void FieldWriter::Write(const int16& field) {
  std::array<char, 8> text;
  const auto end = std::to_chars(text.data(), text.data() + text.size(), int(field));
  bytes_.append(text.data(), end.ptr);
  EndLine();
}

void FieldWriter::Write(const float32& field) {
  bytes_ += FileText(field);
  EndLine();
}

void FieldWriter::Write(const number& field) {
  if (!field.IsEmpty()) bytes_ += FileText(static_cast<double>(field));
  EndLine();
}

void FieldWriter::Text(std::string_view field) {
  bytes_ += OneLine(field);
  EndLine();
}

void FieldWriter::Quoted(std::string_view field) {
  bytes_ += '"';
  bytes_ += OneLine(field);
  bytes_ += '"';
  EndLine();
}

void FieldWriter::Spare() {
  EndLine();
}

}  // namespace korvane
