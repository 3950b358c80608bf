// SPDX-License-Identifier: GPL-3.0-or-later
// Conversion between numbers and text on std::to_chars and std::from_chars, which know no
// locale.
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <utility>

namespace korvane {
namespace {

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}
constexpr bool IsBlank(char c) {
  return c == ' ' || c == '\t';
}

// Decimal digits d0.d1d2d3... * 10^exponent; digits past count are zeros.
struct Decimal {
  std::array<char, 24> digits{};
  int count = 0;
  int exponent = 0;

  bool IsZero() const { return count == 0 || digits[0] == '0'; }

  // The digit of weight 10^place.
  char At(int place) const {
    const int i = exponent - place;
    return i >= 0 && i < count ? digits[static_cast<std::size_t>(i)] : '0';
  }

  // Rounds half away from zero so that the last digit left has the weight 10^place.
  void RoundAt(int place) {
    const int keep = exponent - place + 1;
    if (keep >= count) return;
    const bool up = keep >= 0 && digits[static_cast<std::size_t>(keep)] >= '5';
    count = std::max(keep, 0);
    if (!up) return;
    int i = count - 1;
    while (i >= 0 && digits[static_cast<std::size_t>(i)] == '9') {
      digits[static_cast<std::size_t>(i--)] = '0';
    }
    if (i >= 0) {
      ++digits[static_cast<std::size_t>(i)];
    } else {
      digits[0] = '1';
      count = std::max(count, 1);
      ++exponent;
    }
  }
};

// Takes apart what std::to_chars wrote in its scientific form, d.ddde+XX.
Decimal FromScientific(const char* first, const char* last) {
  Decimal d;
  const char* p = first;
  for (; p != last && *p != 'e'; ++p) {
    if (*p != '.') d.digits[static_cast<std::size_t>(d.count++)] = *p;
  }
  if (p == last) return d;
  ++p;
  if (*p == '+') ++p;
  std::from_chars(p, last, d.exponent);
  return d;
}

template <class T>
T FiniteMagnitude(T value) {
  if (!std::isfinite(value)) throw ArithmeticFault("a number that is not finite as text");
  return std::fabs(value);
}

Decimal FifteenDigits(double value) {
  std::array<char, 32> text;
  char* const first = text.data();
  const auto end = std::to_chars(first, first + text.size(), FiniteMagnitude(value),
                                 std::chars_format::scientific, 14);
  return FromScientific(first, end.ptr);
}

template <class T>
Decimal ShortestDigits(T value) {
  std::array<char, 32> text;
  char* const first = text.data();
  const auto end = std::to_chars(first, first + text.size(), FiniteMagnitude(value),
                                 std::chars_format::scientific);
  return FromScientific(first, end.ptr);
}

struct Pattern {
  int integerPlaces = 0;  // all places before the point
  int minInteger = 0;     // those that are always printed
  int maxDecimals = 0;
  int minDecimals = 0;
  bool point = false;
  bool exponent = false;
  bool plus = false;  // the sign of a positive exponent is printed
  int minExponent = 0;
};

Pattern ParsePattern(std::string_view text) {
  Pattern p;
  for (const char c : text) {
    const bool place = c == '0' || c == '#';
    if (p.exponent) {
      p.plus = p.plus || c == '+';
      p.minExponent += c == '0' ? 1 : 0;
    } else if (c == 'E') {
      p.exponent = true;
    } else if (c == '.') {
      p.point = true;
    } else if (place && p.point) {
      ++p.maxDecimals;
      if (c == '0') p.minDecimals = p.maxDecimals;
    } else if (place) {
      ++p.integerPlaces;
      if (c == '0' || p.minInteger > 0) ++p.minInteger;
    }
  }
  return p;
}

void AppendFixed(std::string& out, const Decimal& d, const Pattern& p) {
  const int highest = d.IsZero() ? -1 : d.exponent;
  for (int place = std::max(highest, p.minInteger - 1); place >= 0; --place) out += d.At(place);
  if (!p.point) return;
  int decimals = p.maxDecimals;
  while (decimals > p.minDecimals && d.At(-decimals) == '0') --decimals;
  out += '.';
  for (int i = 1; i <= decimals; ++i) out += d.At(-i);
}

void AppendExponent(std::string& out, int exponent, int minDigits, bool plus) {
  std::array<char, 12> text;
  char* const first = text.data();
  const auto end = std::to_chars(first, first + text.size(), std::abs(exponent));
  out += 'E';
  if (exponent < 0) {
    out += '-';
  } else if (plus) {
    out += '+';
  }
  const int missing = minDigits - static_cast<int>(end.ptr - first);
  if (missing > 0) out.append(static_cast<std::size_t>(missing), '0');
  out.append(first, end.ptr);
}

// The file form; plainBelow is the power of ten from which the exponent form begins.
std::string FileForm(const Decimal& d, bool negative, int plainBelow, std::string out) {
  if (d.IsZero()) return out += '0';
  if (negative) out += '-';
  const auto digits = std::string_view(d.digits.data(), static_cast<std::size_t>(d.count));
  const auto zeros = [&out](int n) { out.append(static_cast<std::size_t>(n), '0'); };
  if (d.exponent < -4 || d.exponent >= plainBelow) {
    out += digits[0];
    if (d.count > 1) out.append(".").append(digits.substr(1));
    AppendExponent(out, d.exponent, 2, true);
  } else if (d.exponent < 0) {
    out += '.';
    zeros(-d.exponent - 1);
    out.append(digits);
  } else if (d.count <= d.exponent + 1) {
    out.append(digits);
    zeros(d.exponent + 1 - d.count);
  } else {
    const auto whole = static_cast<std::size_t>(d.exponent) + 1;
    out.append(digits.substr(0, whole)).append(".").append(digits.substr(whole));
  }
  return out;
}

constexpr int kPlainSingle = 7;
constexpr int kPlainDouble = 15;

std::string FileForm(float value, std::string front = {}) {
  return FileForm(ShortestDigits(value), std::signbit(value), kPlainSingle, std::move(front));
}
std::string FileForm(double value, std::string front = {}) {
  return FileForm(ShortestDigits(value), std::signbit(value), kPlainDouble, std::move(front));
}

// The number at the start of a text.
struct Scan {
  std::string_view number;      // digits, point and exponent without the sign
  std::string_view exponent{};  // the digits of the exponent with a minus sign
  bool negative = false;
  bool found = false;    // there is a digit at all
  std::size_t past = 0;  // where the text goes on
};

Scan ScanNumber(std::string_view text) {
  Scan s;
  const std::size_t size = text.size();
  const auto skipDigits = [&](std::size_t from) {
    while (from < size && IsDigit(text[from])) ++from;
    return from;
  };
  std::size_t i = 0;
  while (i < size && IsBlank(text[i])) ++i;
  if (i < size && (text[i] == '-' || text[i] == '+')) s.negative = text[i++] == '-';
  const std::size_t start = i;
  i = skipDigits(i);
  std::size_t digits = i - start;
  if (i < size && text[i] == '.') {
    const std::size_t decimals = i + 1;
    i = skipDigits(decimals);
    digits += i - decimals;
  }
  s.found = digits > 0;
  if (!s.found) return s;
  if (i < size && (text[i] == 'E' || text[i] == 'e')) {
    const bool sign = i + 1 < size && (text[i + 1] == '-' || text[i + 1] == '+');
    const std::size_t from = i + (sign ? 2 : 1);
    if (const std::size_t to = skipDigits(from); to > from) {
      const std::size_t minus = sign && text[i + 1] == '-' ? 1 : 0;
      s.exponent = text.substr(from - minus, to - from + minus);
      i = to;
    }
  }
  s.number = text.substr(start, i - start);
  s.past = i;
  return s;
}

// True when a number that the type can't hold is too large rather than too small.
bool IsHuge(const Scan& s) {
  const std::size_t first = s.number.find_first_of("123456789");
  if (first == std::string_view::npos) return false;
  const std::size_t point = std::min(s.number.find_first_of(".eE"), s.number.size());
  long long exponent = 0;
  const char* const end = s.exponent.data() + s.exponent.size();
  if (std::from_chars(s.exponent.data(), end, exponent).ec == std::errc::result_out_of_range) {
    return s.exponent.front() != '-';
  }
  return exponent > static_cast<long long>(first) - static_cast<long long>(point);
}

template <class T>
T Value(const Scan& s) {
  if (!s.found) return 0;
  T value = 0;
  const char* const first = s.number.data();
  if (std::from_chars(first, first + s.number.size(), value).ec == std::errc::result_out_of_range) {
    value = IsHuge(s) ? std::numeric_limits<T>::infinity() : T(0);
  }
  return s.negative && value != 0 ? -value : value;
}

// Length of the UTF-8 sequence at the start of the text; 0 when it is not a valid one.
std::size_t SequenceLength(std::string_view text) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  const std::size_t length = lead >= 0xC2 && lead <= 0xDF   ? 2
                             : lead >= 0xE0 && lead <= 0xEF ? 3
                             : lead >= 0xF0 && lead <= 0xF4 ? 4
                                                            : 0;
  if (length == 0 || text.size() < length) return 0;
  for (std::size_t i = 1; i < length; ++i) {
    if ((byte(i) & 0xC0) != 0x80) return 0;
  }
  // Overlong forms, surrogates and what lies beyond the last code point.
  const unsigned second = byte(1);
  const bool valid = !((lead == 0xE0 && second < 0xA0) || (lead == 0xED && second > 0x9F) ||
                       (lead == 0xF0 && second < 0x90) || (lead == 0xF4 && second > 0x8F));
  return valid ? length : 0;
}

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = SequenceLength(text);
    if (length == 0) return false;
    text.remove_prefix(length);
  }
  return true;
}

// Windows-1252 from 0x80 to 0x9F; the five codes without a character stay controls.
constexpr std::array<char16_t, 32> kWindows1252 = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void AppendUtf8(std::string& out, char16_t code) {
  const auto byte = [&out](unsigned v) { out += static_cast<char>(v); };
  if (code < 0x80) return byte(code);
  if (code < 0x800) {
    byte(0xC0U | (code >> 6U));
  } else {
    byte(0xE0U | (code >> 12U));
    byte(0x80U | ((code >> 6U) & 0x3FU));
  }
  byte(0x80U | (code & 0x3FU));
}

}  // namespace

std::string Format(double value, std::string_view pattern) {
  const Pattern p = ParsePattern(pattern);
  Decimal d = FifteenDigits(value);
  const int shift = p.integerPlaces - 1;
  d.RoundAt((p.exponent ? d.exponent - shift : 0) - p.maxDecimals);
  const int exponent = p.exponent && !d.IsZero() ? d.exponent - shift : 0;
  d.exponent -= exponent;
  std::string out;
  if (value < 0 && !d.IsZero()) out += '-';
  AppendFixed(out, d, p);
  if (p.exponent) AppendExponent(out, exponent, p.minExponent, p.plus);
  return out;
}

std::string Str(float32 value) {
  return FileForm(value.Single(), value < 0.0 ? "" : " ");
}
std::string Str(double value) {
  return FileForm(value, value < 0.0 ? "" : " ");
}

std::string FileText(float32 value) {
  return FileForm(value.Single());
}
std::string FileText(double value) {
  return FileForm(value);
}

bool BeginsWithNumber(std::string_view text) {
  return ScanNumber(text).found;
}

double LeadingNumber(std::string_view text) {
  return Value<double>(ScanNumber(text));
}

float LeadingSingle(std::string_view text) {
  return Value<float>(ScanNumber(text));
}

std::optional<double> ParseNumber(std::string_view text, bool decimalComma) {
  // Comma and point are one sign in both settings; what differs is how much has to be a number.
  std::string typed(text);
  std::replace(typed.begin(), typed.end(), ',', '.');
  const Scan s = ScanNumber(typed);
  if (decimalComma) {
    const auto rest = std::string_view(typed).substr(s.found ? s.past : 0);
    if (!s.found || !std::all_of(rest.begin(), rest.end(), IsBlank)) return std::nullopt;
  }
  return Value<double>(s);
}

std::string WithDecimalComma(std::string text) {
  constexpr std::string_view kDigits = "0123456789.";
  constexpr std::string_view kClause = "Ch ";
  for (std::size_t at = text.find_first_of(kDigits); at != std::string::npos;) {
    const std::size_t end = std::min(text.find_first_not_of(kDigits, at), text.size());
    const std::string_view token(text.data() + at, end - at);
    const auto point = token.find('.');
    const bool inside = point != std::string_view::npos && point > 0 && point + 1 < token.size();
    const bool clause = std::string_view(text).substr(0, at).ends_with(kClause);
    if (inside && point == token.rfind('.') && !clause) text[at + point] = ',';
    at = text.find_first_of(kDigits, end);
  }
  return text;
}

std::string ToUtf8(std::string_view bytes) {
  if (IsUtf8(bytes)) return std::string(bytes);
  std::string out;
  out.reserve(bytes.size() * 2);
  for (const char c : bytes) {
    const auto b = static_cast<unsigned char>(c);
    AppendUtf8(out, b >= 0x80 && b < 0xA0 ? kWindows1252[b - 0x80U] : char16_t(b));
  }
  return out;
}

}  // namespace korvane
