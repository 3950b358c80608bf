// SPDX-License-Identifier: GPL-3.0-or-later
// Three random designs of each family against results that were worked out twice, by two
// programs that share nothing with this one: forces, section, capacities, checks and their lines.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <nlohmann/json.hpp>
#include <regex>
#include <string>

#include "front/console/run_design.h"
#include "front/design_json.h"
#include "places.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using nlohmann::json;

const std::string kFolder = std::string(KORVANE_SOURCE_DIR) + "/tests/reference/";

const json& Expected() {
  static const json all = json::parse(std::ifstream(kFolder + "results.json"));
  return all;
}

/// The stations kept of a list of 51.
constexpr int kStations[] = {0, 7, 12, 25, 38, 50};

bool IsRatio(const std::string& name) {
  return name.rfind("IR", 0) == 0 || name == "MaxIR";
}

/// Both programs work in single precision, in an order of their own: 2E-5 relative, the plastic
/// axis one step of its walk, forces near zero 1E-4; ratios beyond 50 say nothing but "far over".
bool Near(const std::string& name, double a, double b) {
  const double big = std::max(std::fabs(a), std::fabs(b));
  const bool force = name.find("Station") != std::string::npos;
  const double least = name == "ezpl" ? 0.11 : force ? 1e-4 : 1e-6;
  const double share = IsRatio(name) && big > 50 ? 1e-2 : 2e-5;
  return std::fabs(a - b) <= std::max(share * big, least);
}

/// Words equal, numbers equal up to the last digit printed, positions of equal ratios either way.
bool SameText(const std::string& a, const std::string& b) {
  static const std::regex number(R"(-?\d+\.?\d*)");
  static const std::regex position(R"(\(\d\.\d\dL;)");
  const auto split = [](const std::string& text, std::vector<std::string>& words,
                        std::vector<double>& numbers) {
    const std::string plain = std::regex_replace(text, position, "(xL;");
    const std::sregex_iterator end;
    std::string::const_iterator from = plain.begin();
    for (std::sregex_iterator it(plain.begin(), plain.end(), number); it != end; ++it) {
      words.emplace_back(from, it->prefix().second);
      numbers.push_back(std::stod(it->str()));
      from = it->suffix().first;
    }
    words.emplace_back(from, plain.cend());
  };
  std::vector<std::string> wordsA, wordsB;
  std::vector<double> numbersA, numbersB;
  split(a, wordsA, numbersA);
  split(b, wordsB, numbersB);
  if (wordsA != wordsB) return false;
  for (std::size_t i = 0; i < numbersA.size(); ++i) {
    if (std::fabs(numbersA[i] - numbersB[i]) > 0.11 + 2e-4 * std::fabs(numbersA[i])) return false;
  }
  return true;
}

void Compare(const std::string& name, const json& expected, const json& got) {
  if (expected.is_object()) {  // a check line
    for (const auto& [part, value] : expected.items()) {
      Compare(name + "." + part, value, got.at(part));
    }
  } else if (expected.is_array()) {
    for (std::size_t i = 0; i < expected.size(); ++i) {
      const auto station = static_cast<std::size_t>(kStations[i]);
      Compare(name, expected[i], got.at(station));
    }
  } else if (expected.is_string()) {
    const std::string text = got.is_string() ? got.get<std::string>() : got.dump();
    EXPECT_TRUE(SameText(expected.get<std::string>(), text))
        << name << ": " << text << ", expected " << expected;
  } else {
    const double value =
        got.is_string() ? std::stod("0" + got.get<std::string>()) : got.get<double>();
    EXPECT_TRUE(Near(name, expected.get<double>(), value))
        << name << ": " << value << ", expected " << expected;
  }
}

class Reference : public ::testing::TestWithParam<std::string> {};

TEST_P(Reference, AgreesWithTheIndependentResults) {
  Design design = StartedDesign(SourceLibrary());
  const DesignRun run = RunProject(design, kFolder + "designs/" + GetParam() + ".kvn");
  ASSERT_EQ(run.file, FileResult::Ok);
  const json& expected = Expected().at(GetParam());
  ASSERT_EQ(run.fault.has_value(), expected.is_null()) << run.what;
  if (expected.is_null()) return;
  const json got = json::parse(DesignJson(design, run.fault));
  for (const auto& [group, values] : expected.items()) {
    for (const auto& [name, value] : values.items()) Compare(name, value, got.at(group).at(name));
  }
}

std::vector<std::string> Names() {
  std::vector<std::string> names;
  for (const auto& [name, results] : Expected().items()) names.push_back(name);
  return names;
}

INSTANTIATE_TEST_SUITE_P(Designs, Reference, ::testing::ValuesIn(Names()),
                         [](const auto& test) { return test.param; });

TEST(ReferenceDesigns, AreThreeOfEachFamily) {
  EXPECT_EQ(Expected().size(), 96U);
}

}  // namespace
}  // namespace korvane
