// SPDX-License-Identifier: GPL-3.0-or-later
// The three sheets of every family as one PDF, with loads and with end forces: every input stands
// there as it was typed, every result that the console tells as JSON within its printed digits.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>

#include "core/text.h"
#include "front/console/run_design.h"
#include "places.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"
#include "tests/support/full_member.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using Json = nlohmann::json;

/// Output of a shell command.
std::string OutputOf(const std::string& command) {
  std::string out;
  if (FILE* pipe = popen(command.c_str(), "r")) {
    char buffer[4096];
    while (const std::size_t n = fread(buffer, 1, sizeof buffer, pipe)) out.append(buffer, n);
    pclose(pipe);
  }
  return out;
}

/// A printed number with half a unit of its last digit.
struct Printed {
  double value, half;
};

/// The numbers of a text, as words and as values.
struct Numbers {
  std::set<std::string> words;
  std::vector<Printed> values;

  bool Shows(double value) const {
    for (const Printed& p : values) {
      if (std::fabs(p.value - value) <= p.half * 1.0001 + std::fabs(value) * 1E-6) return true;
    }
    return false;
  }
};

Numbers NumbersOf(const std::string& text) {
  Numbers numbers;
  constexpr const char* digits = ".0123456789";
  for (std::size_t at = text.find_first_of(digits); at != std::string::npos;
       at = text.find_first_of(digits, at)) {
    std::size_t end = std::min(text.find_first_not_of(digits, at), text.size());
    int exponent = 0;
    std::string mantissa = text.substr(at, end - at);
    if (end + 1 < text.size() && text[end] == 'E' &&
        std::string("+-").find(text[end + 1]) != std::string::npos) {
      const auto last = std::min(text.find_first_not_of("0123456789", end + 2), text.size());
      exponent = std::atoi(text.substr(end + 1, last - end - 1).c_str());
      end = last;
    }
    const double sign = at > 0 && text[at - 1] == '-' ? -1 : 1;
    const auto point = mantissa.find('.');
    const int decimals =
        point == std::string::npos ? 0 : static_cast<int>(mantissa.size() - point) - 1;
    const double scale = std::pow(10, exponent);
    numbers.words.insert((sign < 0 ? "-" : "") + text.substr(at, end - at));
    numbers.values.push_back(
        {sign * std::atof(mantissa.c_str()) * scale, 0.5 * std::pow(10, -decimals) * scale});
    at = end;
  }
  return numbers;
}

struct Case {
  int family;
  bool endForces;
};

class ThreeSheets : public ::testing::TestWithParam<Case> {
protected:
  ThreeSheets() {
    folder_ = std::filesystem::temp_directory_path() /
              ("korvane_sheets_" + std::to_string(GetParam().family) +
               (GetParam().endForces ? "e" : "l") + std::to_string(getpid()));
    std::filesystem::create_directories(folder_);
    Design d = StartedDesign(SourceLibrary());
    d.st.ProfileType = GetParam().family;
    LoadFully(d.st, GetParam().endForces);
    const std::string project = (folder_ / "project.kvn").string();
    EXPECT_EQ(SaveProject(project, d.st).why, "");
    const std::string of = std::string(" ") + project + " --data " + KORVANE_SOURCE_DIR + "/data ";
    results = Json::parse(OutputOf(KORVANE_CLI + (" design" + of) + "--json"));
    const std::string pdf = (folder_ / "all.pdf").string();
    OutputOf(KORVANE_CLI + (" report" + of) + "--kind all -o " + pdf);
    text = OutputOf("pdftotext -layout " + pdf + " -");
    printed = NumbersOf(text);
  }
  ~ThreeSheets() override { std::filesystem::remove_all(folder_); }

  const Family& Row() const { return *FindFamily(GetParam().family); }
  bool Compressed() const {
    return double(results["analysis"]["N"]) > 0 && Row().routines.buckling != BucklingKind::None;
  }
  /// The results of a group under these names; 0 is what a family doesn't have.
  void Expect(const char* group, std::initializer_list<const char*> names) {
    for (const char* name : names) {
      const double value = results[group][name];
      if (value == 0) continue;
      EXPECT_TRUE(printed.Shows(value)) << group << " " << name << " = " << value;
    }
  }

  Json results;
  std::string text;
  Numbers printed;

private:
  std::filesystem::path folder_;
};

TEST_P(ThreeSheets, HoldEveryInputAsTyped) {
  std::vector<std::string> names{"L", "E", "density", "fyk", "gammam1", "iufa"};
  const auto add = [&names](std::initializer_list<const char*> more) {
    names.insert(names.end(), more.begin(), more.end());
  };
  if (GetParam().endForces) {
    add({"Ne"});
  } else {
    add({"DeflectionLimit",
         "NP",
         "NV1",
         "NV2",
         "q1",
         "q2",
         "q3",
         "q4",
         "qt1_1",
         "qt1_2",
         "qt1_x1",
         "qt1_x2",
         "qt2_1",
         "qt2_2",
         "qt2_x1",
         "qt2_x2",
         "qt3_1",
         "qt3_2",
         "qt3_x1",
         "qt3_x2",
         "lfp_uls",
         "lfv1_uls",
         "lfv2_uls",
         "lfsw_uls",
         "lfp_sls",
         "lfv1_sls",
         "lfv2_sls"});
  }
  if (Row().routines.buckling != BucklingKind::None) add({"bly", "blz"});
  if (Row().options.web) add({"a_webstiff"});
  const Json& state = results["state"];
  int found = 0;
  const auto look = [&](const std::string& name, double value) {
    if (value == 0) return;  // not there, or taken away by a family that can't carry it
    const std::string word = FileText(float32(value));
    ++found;
    EXPECT_TRUE(printed.words.count(word) != 0 || printed.words.count("0" + word) != 0)
        << name << " = " << word;
  };
  for (const std::string& name : names) look(name, state[name]);
  for (const char* name : GetParam().endForces
                              ? std::vector<const char*>{"My_end", "Mz_end", "Vy_end", "Vz_end"}
                              : std::vector<const char*>{"pm", "pmx"}) {
    for (const double value : state[name]) look(name, value);
  }
  Design d = StartedDesign(SourceLibrary());
  for (const Dimension& dimension : Row().dimensions) {
    if (!std::holds_alternative<std::string ProjectState::*>(dimension.field)) {
      look(dimension.letter, ReadNumber(d.st, dimension.field));
    }
  }
  EXPECT_GT(found, 6);
}

TEST_P(ThreeSheets, HoldEveryResult) {
  Expect("analysis", {"N", "My_max", "My_min", "Vz_max", "Vz_min", "Mz_max", "Mz_min", "Vy_max",
                      "Vy_min", "betaMy", "betaMz", "My_gov"});
  // What the family doesn't write stands in the record from another one.
  int named = 0;
  Design d = StartedDesign(SourceLibrary());
  d.st.ProfileType = GetParam().family;
  Calculate(d);
  for (const ShownValues& block :
       {Dimensions(d.st, d.rec), Properties(d.st, d.rec), Capacities(d.st, d.rec)}) {
    for (const ShownValue& v : block) {
      const std::string name(v.name);
      const Json& section = results["section"];
      if (!section.contains(name)) continue;
      ++named;
      // Families with a nominal pass print what that leaves.
      const double value = section[name];
      const double nominal = section.value(name + "shown", value);
      EXPECT_TRUE(value == 0 || printed.Shows(value) || printed.Shows(nominal))
          << "section " << name << " = " << value;
    }
  }
  EXPECT_GT(named, 8);
  if (!GetParam().endForces) {
    Expect("deflection", {"DeflZ_max", "DeflZ_min", "DeflY_max", "DeflY_min"});
  }
  if (results["state"]["LateralTorsionalBuckling"] == 1) {
    Expect("ltb", {"C1", "C3", "Mdb", "Mdb_min", "chiLT", "lamLT"});
  }
  if (Compressed()) Expect("buckling", {"Lybar", "Lzbar", "LyOverI", "LzOverI"});
  EXPECT_TRUE(printed.Shows(results["verdict"]["IR"]));
}

TEST_P(ThreeSheets, LeaveDeflectionsOutWithEndForces) {
  EXPECT_EQ(text.find("Deflection (SLS): z") == std::string::npos, GetParam().endForces);
  EXPECT_EQ(text.find("Loading information") == std::string::npos, GetParam().endForces);
}

std::vector<Case> AllCases() {
  std::vector<Case> cases;
  for (const Family& f : AllFamilies()) {
    cases.push_back({f.code, false});
    cases.push_back({f.code, true});
  }
  return cases;
}

INSTANTIATE_TEST_SUITE_P(AllFamilies, ThreeSheets, ::testing::ValuesIn(AllCases()),
                         [](const auto& i) {
                           return "f" + std::to_string(i.param.family) +
                                  (i.param.endForces ? "ends" : "loads");
                         });

}  // namespace
}  // namespace korvane
