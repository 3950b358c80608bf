// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers as text and text as numbers, independent of the locale.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/numeric.h"

namespace korvane {

/// Formats a value by a pattern of digits: '0' a digit that is always printed, '#' one printed
/// when it is there, '.' the decimal point, "E+0" an exponent with its sign ("0.000E+0").
/// Rounds half away from zero on the decimal value at 15 significant digits; prints no negative
/// zero; integer digits beyond the pattern are all printed. The decimal mark is always a point.
/// Throws ArithmeticFault for a value that is not finite, and so do Str and FileText.
std::string Format(double value, std::string_view pattern);

/// A number with so many decimals (0 to 9) among the parts of a text, as Format prints it by
/// "0", "0.0", "0.00".
struct Decimals {
  double value;
  int decimals;
};

/// One part of a text at its end.
void Append(std::string& out, Decimals number);
inline void Append(std::string& out, std::string_view text) {
  out += text;
}
inline void Append(std::string& out, char c) {
  out += c;
}

/// The text anew from its parts, in the memory that it has.
template <class... Parts>
void Compose(std::string& out, const Parts&... parts) {
  out.clear();
  (Append(out, parts), ...);
}

/// General form: the shortest digits that read back to the same value, with a leading blank in
/// the place of the sign for a value that is not negative (" 100", " 6.3", "-.5").
std::string Str(float32 value);
/// The same in double precision.
std::string Str(double value);

/// A number as the data files hold it: shortest digits that read back to the same value, plain
/// from 1E-4 up to below 1E7 (single) or 1E15 (double), else mantissa, E, sign and at least two
/// exponent digits; no zero before the point; 0 as "0".
std::string FileText(float32 value);
/// The same in double precision.
std::string FileText(double value);

/// The leading number of a text, as a lenient conversion takes it: blanks in front, sign,
/// digits, one decimal point, an exponent; what follows is dropped; no digits give 0.
/// Values beyond double precision give an infinity, which no field accepts.
double LeadingNumber(std::string_view text);

/// LeadingNumber rounded once, from the decimal digits to single precision.
float LeadingSingle(std::string_view text);

/// True when LeadingNumber has digits to read.
bool BeginsWithNumber(std::string_view text);

/// Typed input to a number (single precision by the caller's field).
/// decimalComma false: leading blanks removed, "," counts as ".", then LeadingNumber.
/// decimalComma true: leading blanks removed, "." counts as ",", the whole text (blanks at both
/// ends allowed) must be a number; otherwise no value, which the caller reports as
/// "Input string mismatch ".
std::optional<double> ParseNumber(std::string_view text, bool decimalComma);

/// A composed text with the decimal points of its numbers as commas. The numbers of clauses, which
/// have several points or stand behind "Ch ", are none.
std::string WithDecimalComma(std::string text);

/// Bytes of a text file to UTF-8: valid UTF-8 stays, anything else is read as Windows-1252.
std::string ToUtf8(std::string_view bytes);

}  // namespace korvane
