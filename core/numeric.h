// SPDX-License-Identifier: GPL-3.0-or-later
// The number types of the engine: values that round and check when they are assigned.
#pragma once

#include <array>
#include <cfenv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <numbers>
#include <stdexcept>
#include <string>

namespace korvane {

/// An arithmetic failure: division by zero, invalid operation, overflow of the type in use or
/// an index out of range. It stops the calculation where it stands.
class ArithmeticFault : public std::runtime_error {
public:
  explicit ArithmeticFault(const std::string& what) : std::runtime_error(what) {}
};

/// Refuses a value that a field can't hold, by the name of its cause: a division by zero where
/// the floating-point flags show one, an invalid operation for what is no number, else overflow.
[[noreturn, gnu::cold, gnu::noinline]] inline void RefuseValue(double v, const char* overflow) {
  const bool divided = !std::isfinite(v) && std::fetestexcept(FE_DIVBYZERO) != 0;
  std::feclearexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW);
  throw ArithmeticFault(divided         ? "division by zero"
                        : std::isnan(v) ? "invalid operation"
                                        : overflow);
}

/// An arithmetic failure as it is told; what names the step and its cause.
inline std::string FaultText(const std::string& what) {
  return "arithmetic failure in " + what;
}

/// IEEE single precision value. Reads as double, so formulas run in double precision;
/// assigning rounds, and throws ArithmeticFault (leaving the value as it was) when the result
/// is not finite or too large for single precision.
class float32 {
public:
  constexpr float32() = default;
  constexpr float32(double v) : value_(Checked(v)) {}
  constexpr float32& operator=(double v) {
    value_ = Checked(v);
    return *this;
  }
  constexpr operator double() const { return static_cast<double>(value_); }
  constexpr float Single() const { return value_; }
  constexpr float32& operator+=(double v) { return *this = static_cast<double>(value_) + v; }
  constexpr float32& operator-=(double v) { return *this = static_cast<double>(value_) - v; }

private:
  static constexpr float Checked(double v) {
    // The largest double that still rounds to a finite single.
    constexpr double largest = 3.4028235677973366e38;
    if (!(v > -largest && v < largest)) RefuseValue(v, "single precision overflow");
    return static_cast<float>(v);
  }
  float value_ = 0.0F;
};

/// Double precision value that may be empty; an empty one reads as 0. Assigning a value that
/// is not finite throws ArithmeticFault and leaves it as it was.
class number {
public:
  constexpr number() = default;
  constexpr number(double v) : value_(Checked(v)) {}
  constexpr number& operator=(double v) {
    value_ = Checked(v);
    empty_ = false;
    return *this;
  }
  constexpr operator double() const { return value_; }
  static constexpr number Empty() {
    number n;
    n.empty_ = true;
    return n;
  }
  constexpr bool IsEmpty() const { return empty_; }

private:
  static constexpr double Checked(double v) {
    constexpr double largest = std::numeric_limits<double>::max();
    if (!(v >= -largest && v <= largest)) RefuseValue(v, "double precision overflow");
    return v;
  }
  double value_ = 0.0;
  bool empty_ = false;
};

/// Signed 16-bit integer; assigning a value out of range throws ArithmeticFault.
class int16 {
public:
  constexpr int16() = default;
  constexpr int16(int v) : value_(Checked(v)) {}
  constexpr int16& operator=(int v) {
    value_ = Checked(v);
    return *this;
  }
  constexpr operator int() const { return value_; }

private:
  static constexpr std::int16_t Checked(long v) {
    if (v < -32768 || v > 32767) throw ArithmeticFault("16-bit integer overflow");
    return static_cast<std::int16_t>(v);
  }
  std::int16_t value_ = 0;
};

/// Fixed array with the field's own index range First..Last; an index outside it throws
/// ArithmeticFault.
template <class T, int First, int Last>
class Indexed {
public:
  static constexpr int kFirst = First;
  static constexpr int kLast = Last;
  constexpr T& operator[](int i) { return values_[Slot(i)]; }
  constexpr const T& operator[](int i) const { return values_[Slot(i)]; }
  constexpr void Fill(const T& v) { values_.fill(v); }
  constexpr auto begin() { return values_.begin(); }
  constexpr auto end() { return values_.end(); }
  constexpr auto begin() const { return values_.begin(); }
  constexpr auto end() const { return values_.end(); }
  constexpr int size() const { return Last - First + 1; }
  friend constexpr bool operator==(const Indexed&, const Indexed&) = default;

private:
  static constexpr std::size_t Slot(int i) {
    if (i < First || i > Last) throw ArithmeticFault("index out of range");
    return static_cast<std::size_t>(i - First);
  }
  std::array<T, static_cast<std::size_t>(Last - First + 1)> values_{};
};

/// The circle constant as the single precision value that some formulas are fixed with.
inline constexpr double kPiSingle = 3.1415927410125732;
/// The circle constant in double precision, used elsewhere.
inline constexpr double kPi = std::numbers::pi;

/// Watches the floating-point flags of one step: Check() throws ArithmeticFault when a
/// division by zero, an invalid operation or an overflow came up since the construction, also
/// when the infinity never reached a field.
class FloatWatch {
public:
  // Asking is cheap where clearing is not, and flags are rarely up.
  FloatWatch() {
    if (std::fetestexcept(kWatched) != 0) std::feclearexcept(kWatched);
  }
  void Check() const {
    if (const int raised = std::fetestexcept(kWatched)) {
      std::feclearexcept(kWatched);
      throw ArithmeticFault(raised & FE_DIVBYZERO ? "division by zero"
                            : raised & FE_INVALID ? "invalid operation"
                                                  : "overflow");
    }
  }

private:
  static constexpr int kWatched = FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW;
};

}  // namespace korvane
