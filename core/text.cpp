// SPDX-License-Identifier: GPL-3.0-or-later
// Conversion between numbers and text on std::to_chars and std::from_chars, which know no
// locale.
#include "core/text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <optional>
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

// Magnitudes that are worked out without their decimal digits.
constexpr std::array<double, 10> kPowersOfTen = {1E0, 1E1, 1E2, 1E3, 1E4, 1E5, 1E6, 1E7, 1E8, 1E9};
constexpr double kLargestScaled = 1E14;

// value * 10^decimals as Format rounds it, by one multiplication. Nothing near a tie and for
// large values, where only the decimal digits tell the way: rounding to 15 digits moves a value
// by 5E-15 of itself at most and the multiplication by 1.2E-16.
std::optional<std::uint64_t> RoundedByProduct(double value, int decimals) {
  if (decimals >= static_cast<int>(kPowersOfTen.size())) return std::nullopt;
  const double scaled = std::fabs(value) * kPowersOfTen[static_cast<std::size_t>(decimals)];
  if (!(scaled < kLargestScaled)) return std::nullopt;
  const auto whole = static_cast<std::uint64_t>(scaled);
  const double beyondTie = scaled - static_cast<double>(whole) - 0.5;
  if (std::fabs(beyondTie) <= scaled * 6E-15) return std::nullopt;
  return whole + (beyondTie > 0 ? 1 : 0);
}

// The digits of a rounded value with the point before the last maxDecimals of them.
void AppendRounded(std::string& out, std::uint64_t rounded, bool negative, const Pattern& p) {
  std::array<char, 48> text;
  char* const end = text.data() + text.size();
  char* at = end;
  const auto digit = [&] {
    *--at = static_cast<char>('0' + rounded % 10);
    rounded /= 10;
  };
  if (rounded == 0) negative = false;
  for (int i = 0; i < p.maxDecimals; ++i) digit();
  char* last = end;
  while (last - at > p.minDecimals && last[-1] == '0') --last;
  if (p.point) *--at = '.';
  for (int i = 0; i < p.minInteger || rounded != 0; ++i) digit();
  if (negative) *--at = '-';
  out.append(at, last);
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
  bool found = false;          // there is a digit at all
  std::size_t past = 0;        // where the text goes on
  std::uint64_t mantissa = 0;  // the digits as a whole number where they are at most 18
  std::size_t digits = 0;      // with leading zeros
  std::size_t decimals = 0;    // those behind the point
};

Scan ScanNumber(std::string_view text) {
  Scan s;
  const std::size_t size = text.size();
  const auto skipDigits = [&](std::size_t from) {
    while (from < size && IsDigit(text[from])) ++from;
    return from;
  };
  const auto takeDigits = [&](std::size_t from) {
    std::size_t i = from;
    for (; i < size && IsDigit(text[i]); ++i) {
      s.mantissa = s.mantissa * 10 + static_cast<std::uint64_t>(text[i] - '0');
    }
    s.digits += i - from;
    return i;
  };
  std::size_t i = 0;
  while (i < size && IsBlank(text[i])) ++i;
  if (i < size && (text[i] == '-' || text[i] == '+')) s.negative = text[i++] == '-';
  const std::size_t start = i;
  i = takeDigits(i);
  if (i < size && text[i] == '.') {
    const std::size_t whole = s.digits;
    i = takeDigits(i + 1);
    s.decimals = s.digits - whole;
  }
  s.found = s.digits > 0;
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

// Whole numbers and short decimals are one division of two values that the type holds exactly,
// which rounds as reading the digits would.
template <class T>
std::optional<T> ShortNumber(const Scan& s) {
  constexpr std::uint64_t exact = std::uint64_t{1} << std::numeric_limits<T>::digits;
  if (s.digits > 18 || !s.exponent.empty() || s.mantissa > exact) return std::nullopt;
  if (s.decimals >= kPowersOfTen.size()) return std::nullopt;
  return static_cast<T>(s.mantissa) / static_cast<T>(kPowersOfTen[s.decimals]);
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
  if (const auto value = ShortNumber<T>(s)) return s.negative && *value != 0 ? -*value : *value;
  T value = 0;
  const char* const first = s.number.data();
  if (std::from_chars(first, first + s.number.size(), value).ec == std::errc::result_out_of_range) {
    value = IsHuge(s) ? std::numeric_limits<T>::infinity() : T(0);
  }
  return s.negative && value != 0 ? -value : value;
}

void AppendByPattern(std::string& out, double value, const Pattern& p) {
  if (!p.exponent && p.minInteger < 9) {
    if (const auto rounded = RoundedByProduct(value, p.maxDecimals)) {
      return AppendRounded(out, *rounded, value < 0, p);
    }
  }
  Decimal d = FifteenDigits(value);
  const int shift = p.integerPlaces - 1;
  d.RoundAt((p.exponent ? d.exponent - shift : 0) - p.maxDecimals);
  const int exponent = p.exponent && !d.IsZero() ? d.exponent - shift : 0;
  d.exponent -= exponent;
  if (value < 0 && !d.IsZero()) out += '-';
  AppendFixed(out, d, p);
  if (p.exponent) AppendExponent(out, exponent, p.minExponent, p.plus);
}

}  // namespace

std::string Format(double value, std::string_view pattern) {
  std::string out;
  AppendByPattern(out, value, ParsePattern(pattern));
  return out;
}

void Append(std::string& out, Decimals number) {
  Pattern p;
  p.integerPlaces = p.minInteger = 1;
  p.maxDecimals = p.minDecimals = number.decimals;
  p.point = number.decimals > 0;
  AppendByPattern(out, number.value, p);
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

}  // namespace korvane
