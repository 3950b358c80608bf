// SPDX-License-Identifier: GPL-3.0-or-later
// Numbers to text and back: patterns, general form, file form, the lenient and the strict
// reading, and the two encodings of text.
#include "core/text.h"

#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <clocale>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <vector>

namespace korvane {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

struct FormatCase {
  double value;
  const char* pattern;
  const char* text;
};

// clang-format off
const FormatCase kFormatCases[] = {
    // three decimals
    {5.0, "#0.000", "5.000"}, {0.0, "#0.000", "0.000"}, {0.0005, "#0.000", "0.001"},
    {0.00049999, "#0.000", "0.000"}, {-0.0005, "#0.000", "-0.001"}, {-0.0004, "#0.000", "0.000"},
    {-0.0, "#0.000", "0.000"}, {12345.6785, "#0.000", "12345.679"}, {9.9995, "#0.000", "10.000"},
    {99.9995, "#0.000", "100.000"}, {1.0005, "#0.000", "1.001"},
    {13.0159997940063, "#0.000", "13.016"},
    {0.9999, "0.000", "1.000"}, {-1.2345, "0.000", "-1.235"}, {2.5, "##0.000", "2.500"},
    // two decimals; 1.005 and 2.675 lie below their decimal value in binary
    {1.005, "#0.00", "1.01"}, {2.675, "#0.00", "2.68"}, {1.115, "0.00", "1.12"},
    {-2.675, "#0.00", "-2.68"}, {0.0049, "#0.00", "0.00"}, {0.005, "#0.00", "0.01"},
    {1.1, "#0.00", "1.10"}, {250.0, "#0.00", "250.00"}, {-0.004999, "##0.00", "0.00"},
    // one decimal
    {0.05, "#0.0", "0.1"}, {0.25, "#0.0", "0.3"}, {-0.25, "#0.0", "-0.3"}, {0.35, "0.0", "0.4"},
    {0.04999, "#0.0", "0.0"}, {322.72727, "#00.0", "322.7"}, {7.06, "#00.0", "07.1"},
    {99.95, "##0.0", "100.0"}, {0.0, "##0.0", "0.0"}, {12.34, "##0.0", "12.3"},
    // no integer digit is forced
    {0.5, "##.0", ".5"}, {-0.5, "##.0", "-.5"}, {0.0, "##.0", ".0"}, {12.0, "##.0", "12.0"},
    {0.999, "#.00", "1.00"}, {0.5, "#.00", ".50"}, {-0.001, "#.00", ".00"},
    {3.14159, "#.00", "3.14"},
    {0.0, "###", ""}, {0.4, "###", ""}, {-0.4, "###", ""}, {0.5, "###", "1"},
    {1234.0, "###", "1234"},
    // integers
    {0.5, "#0", "1"}, {1.5, "#0", "2"}, {2.5, "#0", "3"}, {-2.5, "#0", "-3"}, {2.4999, "#0", "2"},
    {-0.4, "#0", "0"}, {300.0, "#0", "300"}, {50.0, "##0", "50"}, {0.0, "##0", "0"},
    {7.0, "0", "7"},
    {12.0, "0", "12"}, {5.0, "#00", "05"}, {355.0, "#00", "355"}, {5.0, "#000", "005"},
    {1234.0, "#000", "1234"}, {7.0, "000", "007"}, {-7.0, "000", "-007"}, {5.0, "00", "05"},
    {100.0, "00", "100"}, {99.5, "00", "100"}, {9.5, "00", "10"}, {0.0, "00", "00"},
    {2000.0, "#00", "2000"}, {1e15, "#0", "1000000000000000"},
    // exponents
    {210000.0, "0.00E+0", "2.10E+5"}, {210000.0, "0.000E+0", "2.100E+5"},
    {0.0012, "0.000E+0", "1.200E-3"}, {0.0, "0.000E+0", "0.000E+0"}, {-0.0, "0.00E+0", "0.00E+0"},
    {9.9996, "0.000E+0", "1.000E+1"}, {9.9995, "0.000E+0", "1.000E+1"},
    {9.9994, "0.000E+0", "9.999E+0"}, {-12345.0, "0.000E+0", "-1.235E+4"},
    {1.2e12, "0.000E+0", "1.200E+12"}, {1e-100, "0.00E+0", "1.00E-100"},
    {1.0, "0.00E+0", "1.00E+0"},
    {1.2e12, "0.0E+000", "1.2E+012"}, {12345.0, "00.0E+0", "12.3E+3"}, {5.0, "0.0E-0", "5.0E0"},
    // fifteen significant digits, zeros behind them
    {1e21, "#0", "1000000000000000000000"},
    {123456789012345678.0, "#0", "123456789012346000"},
    {123456789012345.5, "#0.0", "123456789012346.0"}, {0.1 + 0.2, "0.000", "0.300"},
    {1e-300, "#0.000", "0.000"},
};
// clang-format on

TEST(Format, PrintsByPattern) {
  for (const auto& c : kFormatCases) {
    EXPECT_EQ(Format(c.value, c.pattern), c.text) << c.value << " by " << c.pattern;
  }
}

TEST(Format, PrintsTheLargestValueWithAllItsDigits) {
  const std::string text = Format(std::numeric_limits<double>::max(), "#0.0");
  EXPECT_EQ(text.size(), 311U);
  EXPECT_EQ(text.substr(0, 18), "179769313486232000");
}

/// The rule worked out on the 15 digits that the C library prints: half away from zero.
std::string RoundedOnFifteenDigits(double value, int decimals) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.14e", std::fabs(value));
  std::string digits(text.data());
  const int exponent = std::atoi(digits.c_str() + digits.find('e') + 1);
  digits = digits.substr(0, 1) + digits.substr(2, 14);
  std::uint64_t whole = std::stoull(digits);
  int power = exponent - 14 + decimals;
  for (; power > 0; --power) whole *= 10;
  std::uint64_t unit = 1;
  for (; power < 0 && unit <= 1000000000000000000U / 10; ++power) unit *= 10;
  whole = power < 0 ? 0 : (whole + unit / 2) / unit;
  digits = std::to_string(whole);
  const auto places = static_cast<std::size_t>(decimals);
  if (digits.size() < places + 1) digits.insert(0, places + 1 - digits.size(), '0');
  if (decimals > 0) digits.insert(digits.size() - places, 1, '.');
  return (value < 0 && whole != 0 ? "-" : "") + digits;
}

// Most values need no decimal digits to be rounded; those at and beside ties do.
TEST(Format, RoundsEveryValueAsItsFifteenDigitsDo) {
  const std::array<const char*, 5> patterns{"0", "0.0", "0.00", "0.000", "0.0000"};
  std::mt19937_64 random(7);
  std::uniform_real_distribution<double> power(-6, 13);
  std::uniform_int_distribution<int> halves(0, 2000000);
  std::uniform_int_distribution<int> steps(-3, 3);
  for (int i = 0; i < 40000; ++i) {
    const int decimals = i % 5;
    double value = std::pow(10.0, power(random));
    if (i % 2 == 0) {
      value = halves(random) * 0.5 / std::pow(10.0, decimals);
      for (int n = steps(random); n != 0; n += n < 0 ? 1 : -1) {
        value = std::nextafter(value, n < 0 ? -1.0 : 1e9);
      }
    }
    if (i % 3 == 0) value = -value;
    const std::string expected = RoundedOnFifteenDigits(value, decimals);
    ASSERT_EQ(Format(value, patterns[static_cast<std::size_t>(decimals)]), expected)
        << std::hexfloat << value;
    std::string part = "x";
    Append(part, Decimals{value, decimals});
    ASSERT_EQ(part, "x" + expected);
  }
}

TEST(Compose, PutsTheTextAnewInItsOwnMemory) {
  std::string text(100, '-');
  const char* const memory = text.data();
  Compose(text, "N/Nd = ", Decimals{-12.25, 1}, '/', Decimals{800, 0}, std::string(" <"));
  EXPECT_EQ(text, "N/Nd = -12.3/800 <");
  EXPECT_EQ(text.data(), memory);
  EXPECT_THROW(Compose(text, Decimals{kNotANumber, 1}), ArithmeticFault);
}

TEST(Format, RoundsSingleValuesByWhatTheyHold) {
  // 0.15 and 0.45 as singles lie above and below their decimal value.
  EXPECT_EQ(Format(float32(0.15), "0.0"), "0.2");
  EXPECT_EQ(Format(float32(0.45), "0.0"), "0.4");
  EXPECT_EQ(Format(float32(0.25), "0.0"), "0.3");
}

TEST(Format, RefusesWhatIsNotFinite) {
  for (const double v : {kInfinity, -kInfinity, kNotANumber}) {
    EXPECT_THROW(Format(v, "#0.0"), ArithmeticFault);
    EXPECT_THROW(Format(v, "0.000E+0"), ArithmeticFault);
    EXPECT_THROW(Str(v), ArithmeticFault);
    EXPECT_THROW(FileText(v), ArithmeticFault);
  }
}

struct TextCase {
  double value;
  const char* text;
};

TEST(Str, PutsABlankInThePlaceOfTheSign) {
  const TextCase cases[] = {{100.0, " 100"}, {6.3, " 6.3"},     {-0.5, "-.5"},
                            {0.5, " .5"},    {0.0, " 0"},       {-0.0, " 0"},
                            {-12.0, "-12"},  {1e7, " 1E+07"},   {-2.5e-5, "-2.5E-05"},
                            {120.0, " 120"}, {14.25, " 14.25"}, {9999999.0, " 9999999"}};
  for (const auto& c : cases) EXPECT_EQ(Str(float32(c.value)), c.text) << c.value;
}

TEST(Str, PrintsDoublesPlainForLonger) {
  EXPECT_EQ(Str(1e7), " 10000000");
  EXPECT_EQ(Str(1.0 / 3.0), " .3333333333333333");
  EXPECT_EQ(Str(-1e15), "-1E+15");
  EXPECT_EQ(Str(-0.0), " 0");
}

TEST(FileText, SinglePrecision) {
  const TextCase cases[] = {{0.0, "0"},
                            {-0.0, "0"},
                            {1.0, "1"},
                            {-1.0, "-1"},
                            {0.5, ".5"},
                            {-0.5, "-.5"},
                            {1.1, "1.1"},
                            {13.016, "13.016"},
                            {210000.0, "210000"},
                            {1.2e12, "1.2E+12"},
                            {1e-4, ".0001"},
                            {1.5e-4, ".00015"},
                            {9.9e-5, "9.9E-05"},
                            {-1e-5, "-1E-05"},
                            {9999999.0, "9999999"},
                            {1e7, "1E+07"},
                            {1.2345678e7, "1.2345678E+07"},
                            {182600000.0, "1.826E+08"},
                            {1300000.0, "1300000"},
                            {3.4028235e38, "3.4028235E+38"},
                            {1e-45, "1E-45"},
                            {16777216.0, "1.6777216E+07"},
                            {123456.7, "123456.7"}};
  for (const auto& c : cases) EXPECT_EQ(FileText(float32(c.value)), c.text) << c.value;
}

TEST(FileText, DoublePrecision) {
  const TextCase cases[] = {{0.0, "0"},
                            {1e7, "10000000"},
                            {999999999999999.0, "999999999999999"},
                            {999999999999999.9, "999999999999999.9"},
                            {1e15, "1E+15"},
                            {1234567890123456.0, "1.234567890123456E+15"},
                            {1e-4, ".0001"},
                            {1e-5, "1E-05"},
                            {0.1 + 0.2, ".30000000000000004"},
                            {1.0 / 3.0, ".3333333333333333"},
                            {-11.5, "-11.5"},
                            {1e100, "1E+100"},
                            {-2.5e-300, "-2.5E-300"},
                            {5e-324, "5E-324"},
                            {1.7976931348623157e308, "1.7976931348623157E+308"}};
  for (const auto& c : cases) EXPECT_EQ(FileText(c.value), c.text) << c.value;
}

TEST(FileText, EverySingleReadsBackToItself) {
  std::mt19937 random(1);
  int tried = 0;
  for (int i = 0; i < 200000; ++i) {
    const auto x = std::bit_cast<float>(static_cast<std::uint32_t>(random()));
    if (!std::isfinite(x)) continue;
    const std::string text = FileText(float32(x));
    ASSERT_EQ(LeadingSingle(text), x) << text;
    ASSERT_EQ(float32(LeadingNumber(text)).Single(), x) << text;
    ++tried;
  }
  EXPECT_GT(tried, 190000);
}

TEST(FileText, EveryDoubleReadsBackToItself) {
  std::mt19937_64 random(2);
  int tried = 0;
  for (int i = 0; i < 200000; ++i) {
    const auto x = std::bit_cast<double>(static_cast<std::uint64_t>(random()));
    if (!std::isfinite(x)) continue;
    const std::string text = FileText(x);
    ASSERT_EQ(LeadingNumber(text), x) << text;
    ++tried;
  }
  EXPECT_GT(tried, 190000);
}

TEST(FileText, EveryValueOfAnInputFieldReadsBackToItself) {
  std::mt19937_64 random(3);
  std::uniform_int_distribution<int> whole(-999999, 999999);
  for (int i = 0; i < 100000; ++i) {
    const double x = whole(random) / 1000.0;
    ASSERT_EQ(LeadingNumber(FileText(x)), x);
    ASSERT_EQ(LeadingSingle(FileText(float32(x))), float32(x).Single());
  }
}

struct NumberCase {
  const char* text;
  double value;
};

// clang-format off
const NumberCase kLeadingCases[] = {
    {"5", 5.0}, {"  5", 5.0}, {"\t5 ", 5.0}, {"5.", 5.0}, {".5", 0.5}, {"-.5", -0.5}, {"+.5", 0.5},
    {"-5", -5.0}, {"+5", 5.0}, {"12abc", 12.0}, {"abc", 0.0}, {"", 0.0}, {"   ", 0.0}, {".", 0.0},
    {"-", 0.0}, {"-.", 0.0}, {"+-5", 0.0}, {"- 5", 0.0}, {"1.2.3", 1.2}, {"1 2", 1.0},
    {"1E3", 1000.0}, {"1e3", 1000.0}, {"1E+03", 1000.0}, {"1.5E-2x", 0.015}, {"1E", 1.0},
    {"1E+", 1.0},
    {"1Ex", 1.0}, {"E5", 0.0}, {".E5", 0.0}, {"1E2.5", 100.0}, {"2,5", 2.0}, {"inf", 0.0},
    {"nan", 0.0}, {"0x10", 0.0}, {"1.2E+12", 1.2e12}, {".0001", 1e-4}, {"-0", 0.0}, {"007", 7.0},
    {"1E-400", 0.0}, {"-1E-400", 0.0}, {"0E999", 0.0}, {"0.000E99999999999999999999", 0.0},
    {"1E-99999999999999999999", 0.0}, {"1E400", kInfinity}, {"-1E400", -kInfinity},
    {"1E99999999999999999999", kInfinity}, {"1000e9223372036854775804", kInfinity},
    {"0.0001e-9223372036854775804", 0.0}, {"0.001E311", 1e308}, {"0.001E312", kInfinity},
    {"1000000E-325", 1e-319}, {"1.7976931348623157E+308", 1.7976931348623157e308},
};
// clang-format on

TEST(LeadingNumber, TakesTheNumberThatATextBeginsWith) {
  for (const auto& c : kLeadingCases) EXPECT_EQ(LeadingNumber(c.text), c.value) << c.text;
}

TEST(LeadingNumber, GivesNoNegativeZero) {
  EXPECT_FALSE(std::signbit(LeadingNumber("-0")));
  EXPECT_FALSE(std::signbit(LeadingNumber("-1E-400")));
}

// Short decimals take a way of their own.
TEST(LeadingNumber, ReadsDecimalsOfAnyShapeAsTheCLibraryDoes) {
  std::mt19937_64 random(11);
  const auto below = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); };
  for (int i = 0; i < 30000; ++i) {
    std::string text = below(3) == 0 ? "-" : "";
    for (int n = below(12); n > 0; --n) text += static_cast<char>('0' + below(10));
    text += static_cast<char>('0' + below(10));
    if (below(4) != 0) {
      text += '.';
      for (int n = below(14); n > 0; --n) text += static_cast<char>('0' + below(10));
    }
    if (below(10) == 0) text += "E" + std::to_string(below(40) - 20);
    ASSERT_EQ(LeadingNumber(text), std::strtod(text.c_str(), nullptr)) << text;
    ASSERT_EQ(LeadingSingle(text), std::strtof(text.c_str(), nullptr)) << text;
  }
  // The last whole number that single precision holds with all below it, and the next two.
  EXPECT_EQ(LeadingSingle("16777216"), 16777216.0F);
  EXPECT_EQ(LeadingSingle("16777217"), 16777216.0F);
  EXPECT_EQ(LeadingSingle("1677721.9"), 1677721.875F);
}

TEST(LeadingNumber, StopsAtAZeroByte) {
  EXPECT_EQ(LeadingNumber(std::string_view("12\0003", 4)), 12.0);
}

TEST(LeadingNumber, ReadsAnyLength) {
  const std::string zeros(1000000, '0');
  EXPECT_EQ(LeadingNumber("1" + zeros), kInfinity);
  EXPECT_EQ(LeadingNumber("1" + zeros + "E-1000000"), 1.0);
  EXPECT_EQ(LeadingNumber("." + zeros + "1"), 0.0);
  EXPECT_EQ(LeadingNumber("." + zeros + "25E1000001"), 2.5);
  EXPECT_EQ(LeadingNumber(zeros + "7"), 7.0);
}

TEST(LeadingSingle, RoundsOnceFromTheDigits) {
  // Just above the middle of two singles: through double it would fall on the middle and then
  // to the even neighbour below.
  EXPECT_EQ(LeadingSingle("1.00000005960464477540"), 1.0000001F);
  EXPECT_EQ(static_cast<float>(LeadingNumber("1.00000005960464477540")), 1.0F);
  EXPECT_EQ(LeadingSingle("1.1"), 1.1F);
  EXPECT_TRUE(std::isinf(LeadingSingle("1E39")));
  EXPECT_EQ(LeadingSingle("1E-60"), 0.0F);
}

TEST(BeginsWithNumber, AsksForADigit) {
  for (const char* text : {"1", " -.5", "12abc", "+0"}) EXPECT_TRUE(BeginsWithNumber(text)) << text;
  for (const char* text : {"", " ", "-", ".", "abc", "E5"}) {
    EXPECT_FALSE(BeginsWithNumber(text)) << text;
  }
}

struct ParseCase {
  const char* text;
  std::optional<double> point;
  std::optional<double> comma;
};

// clang-format off
const ParseCase kParseCases[] = {
    {"5", 5.0, 5.0}, {"2,5", 2.5, 2.5}, {"2.5", 2.5, 2.5}, {"  2.5", 2.5, 2.5}, {"2,5  ", 2.5, 2.5},
    {"-,5", -0.5, -0.5}, {"+3.", 3.0, 3.0}, {"1E3", 1000.0, 1000.0}, {"1e-2", 0.01, 0.01},
    {"1,5E+2", 150.0, 150.0}, {"12abc", 12.0, {}}, {"abc", 0.0, {}}, {"", 0.0, {}},
    {"   ", 0.0, {}},
    {".", 0.0, {}}, {",", 0.0, {}}, {"-", 0.0, {}}, {"1,2,3", 1.2, {}}, {"1.2,3", 1.2, {}},
    {"1 000", 1.0, {}}, {"1E", 1.0, {}}, {"1E+", 1.0, {}}, {"- 5", 0.0, {}}, {"5 m", 5.0, {}},
    {"inf", 0.0, {}}, {"nan", 0.0, {}}, {"0x10", 0.0, {}}, {"1E-400", 0.0, 0.0},
    {"1E400", kInfinity, kInfinity},
};
// clang-format on

TEST(ParseNumber, ReadsLenientlyWithADecimalPoint) {
  for (const auto& c : kParseCases) EXPECT_EQ(ParseNumber(c.text, false), c.point) << c.text;
}

TEST(ParseNumber, ReadsStrictlyWithADecimalComma) {
  for (const auto& c : kParseCases) EXPECT_EQ(ParseNumber(c.text, true), c.comma) << c.text;
}

TEST(ParseNumber, GivesNoFieldAHugeNumber) {
  float32 x = 3.0;
  EXPECT_THROW(x = *ParseNumber("1E400", false), ArithmeticFault);
  EXPECT_THROW(x = *ParseNumber("1E39", true), ArithmeticFault);
  EXPECT_EQ(x.Single(), 3.0F);
}

TEST(ToUtf8, KeepsValidUtf8) {
  for (const char* text : {"", "Hall 17", "Sk\xC3\xB8yen", "\xE2\x82\xAC", "\xF0\x9F\x98\x80",
                           "\xED\x9F\xBF", "\xEE\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(ToUtf8(text), text);
  }
  const std::string_view zero("a\0b", 3);
  EXPECT_EQ(ToUtf8(zero), zero);
}

TEST(ToUtf8, ReadsOtherBytesAsWindows1252) {
  const std::pair<const char*, const char*> cases[] = {
      {"Sk\xF8yen", "Sk\xC3\xB8yen"},
      {"\x80 50", "\xE2\x82\xAC 50"},
      {"\x93quoted\x94", "\xE2\x80\x9Cquoted\xE2\x80\x9D"},
      {"\xFF", "\xC3\xBF"},
      {"\xA0", "\xC2\xA0"},
      {"\x81", "\xC2\x81"},
      {"\x8A\x9F", "\xC5\xA0\xC5\xB8"},
      // cut, overlong, surrogate, beyond the last code point, lone continuation
      {"\xC3", "\xC3\x83"},
      {"\xC0\xAF", "\xC3\x80\xC2\xAF"},
      {"\xE0\xA0", "\xC3\xA0\xC2\xA0"},
      {"\xE0\x9F\xBF", "\xC3\xA0\xC5\xB8\xC2\xBF"},
      {"\xED\xA0\x80", "\xC3\xAD\xC2\xA0\xE2\x82\xAC"},
      {"\xF0\x8F\xBF\xBF", "\xC3\xB0\xC2\x8F\xC2\xBF\xC2\xBF"},
      {"\xF4\x90\x80\x80", "\xC3\xB4\xC2\x90\xE2\x82\xAC\xE2\x82\xAC"},
      {"\xF5", "\xC3\xB5"},
      {"\xBF", "\xC2\xBF"},
      // one wrong byte makes the whole text Windows-1252
      {"\xC3\xB8\xF8", "\xC3\x83\xC2\xB8\xC3\xB8"}};
  for (const auto& [bytes, text] : cases) EXPECT_EQ(ToUtf8(bytes), text);
}

TEST(WithDecimalComma, TakesTheNumbersAndLeavesTheClauses) {
  const std::pair<const char*, const char*> cases[] = {
      {"", ""},
      {"0.37", "0,37"},
      {"IR = 120.0/1737.3 + 1.10*37.5/125.4 = ", "IR = 120,0/1737,3 + 1,10*37,5/125,4 = "},
      {"  <  1.00 (0.50L; Ch 12.2.6)", "  <  1,00 (0,50L; Ch 12.2.6)"},
      {"  <  1.00 (0.25L; Ch 12.2.6/12.2.8)", "  <  1,00 (0,25L; Ch 12.2.6/12.2.8)"},
      {"  < 250  (Ch 11.7)", "  < 250  (Ch 11.7)"},
      {" At: x= 1.00/2.50 (m)", " At: x= 1,00/2,50 (m)"},
      {"-2.6", "-2,6"},
      {"3.692E+7 mm4", "3,692E+7 mm4"},
      {"L/476", "L/476"},
      {"Search . . . 5.", "Search . . . 5."},
      {".5 kN", ".5 kN"},
  };
  for (const auto& [point, comma] : cases) EXPECT_EQ(WithDecimalComma(point), comma);
}

// A numeric locale with a decimal comma must not reach the engine; machines without that locale
// still check the conversions under the one they have.
TEST(Text, KnowsNoLocale) {
  const char* chosen = nullptr;
  for (const char* name : {"nb_NO.UTF-8", "nb_NO.utf8", "de_DE.UTF-8", "fr_FR.UTF-8", ""}) {
    if ((chosen = std::setlocale(LC_ALL, name)) != nullptr) break;
  }
  EXPECT_EQ(Format(2.5, "#0.00"), "2.50");
  EXPECT_EQ(Str(2.5), " 2.5");
  EXPECT_EQ(FileText(float32(2.5)), "2.5");
  EXPECT_EQ(LeadingNumber("2.5"), 2.5);
  EXPECT_EQ(ParseNumber("2.5", true), 2.5);
  std::setlocale(LC_ALL, "C");
}

}  // namespace
}  // namespace korvane
