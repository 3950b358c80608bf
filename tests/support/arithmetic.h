// SPDX-License-Identifier: GPL-3.0-or-later
// Arithmetic as an engineer writes it by hand, "(1.2 + 0.8²) / √(2 · 3)": its value, and how far
// the value may move by the rounding of the numbers in it.
#pragma once

#include <cctype>
#include <cmath>
#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace korvane {

struct Worked {
  double value = 0;
  double slack = 0;  ///< by half a unit in the last place of each rounded number
};

/// UTF-8 text with + - − · / ( ) [ ] | √ π ², ³ and other raised figures. Whole numbers below 100
/// are exact, others are rounded in their last place. Throws std::invalid_argument.
class Arithmetic {
public:
  static Worked Evaluate(const std::string& text) {
    Arithmetic a(text);
    Worked worked;
    worked.value = a.Run(-1, 0);
    const std::vector<double> units = a.units_;
    for (std::size_t i = 0; i < units.size(); ++i)
      worked.slack += std::abs(a.Run(static_cast<int>(i), units[i] / 2) - worked.value);
    return worked;
  }

private:
  explicit Arithmetic(std::string text) : text_(std::move(text)) {}

  double Run(int moved, double by) {
    at_ = 0;
    moved_ = moved;
    by_ = by;
    units_.clear();
    const double value = Sum();
    Skip();
    if (at_ != text_.size()) Stop();
    return value;
  }
  [[noreturn]] void Stop() const {
    throw std::invalid_argument("'" + text_ + "' at '" + text_.substr(at_) + "'");
  }
  void Skip() {
    while (at_ < text_.size() && text_[at_] == ' ') ++at_;
  }
  bool Take(const std::string& sign) {
    Skip();
    if (text_.compare(at_, sign.size(), sign) != 0) return false;
    at_ += sign.size();
    return true;
  }
  double Sum() {
    double value = Product();
    for (;;) {
      if (Take("+")) {
        value += Product();
      } else if (Take("-") || Take("\u2212")) {
        value -= Product();
      } else {
        return value;
      }
    }
  }
  double Product() {
    double value = Power();
    for (;;) {
      if (Take("\u00b7")) {
        value *= Power();
      } else if (Take("/")) {
        value /= Power();
      } else {
        return value;
      }
    }
  }
  double Power() {
    const double base = Atom();
    static const char* const figures[] = {"\u2070", "\u00b9", "\u00b2", "\u00b3", "\u2074",
                                          "\u2075", "\u2076", "\u2077", "\u2078", "\u2079"};
    int exponent = -1;
    for (bool more = true; more;) {
      more = false;
      for (int f = 0; f < 10; ++f) {
        if (text_.compare(at_, std::string(figures[f]).size(), figures[f]) != 0) continue;
        at_ += std::string(figures[f]).size();
        exponent = (exponent < 0 ? 0 : exponent * 10) + f;
        more = true;
      }
    }
    return exponent < 0 ? base : std::pow(base, exponent);
  }
  double Closed(const char* close) {
    const double value = Sum();
    if (!Take(close)) Stop();
    return value;
  }
  double Atom() {
    if (Take("(")) return Closed(")");
    if (Take("[")) return Closed("]");
    if (Take("|")) return std::abs(Closed("|"));
    if (Take("\u221a")) return std::sqrt(Atom());
    if (Take("\u03c0")) return std::acos(-1.0);
    if (Take("\u2212") || Take("-")) return -Atom();
    return Number();
  }
  double Number() {
    Skip();
    const std::size_t from = at_;
    std::size_t point = std::string::npos;
    while (at_ < text_.size() &&
           (std::isdigit(static_cast<unsigned char>(text_[at_])) != 0 || text_[at_] == '.')) {
      if (text_[at_] == '.') point = at_;
      ++at_;
    }
    if (at_ == from) Stop();
    const double value = std::stod(text_.substr(from, at_ - from));
    double unit = value < 100 ? 0 : 1;
    if (point != std::string::npos) unit = std::pow(10.0, -static_cast<double>(at_ - point - 1));
    units_.push_back(unit);
    return static_cast<int>(units_.size()) - 1 == moved_ ? value + by_ : value;
  }

  std::string text_;
  std::size_t at_ = 0;
  int moved_ = -1;
  double by_ = 0;
  std::vector<double> units_;
};

}  // namespace korvane
