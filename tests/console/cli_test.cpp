// SPDX-License-Identifier: GPL-3.0-or-later
// The console program as other tools meet it: exit statuses, messages, JSON, colour.
#include <gtest/gtest.h>

#include <functional>
#include <nlohmann/json.hpp>
#include <regex>
#include <set>

#include "core/calculation.h"
#include "core/input_fields.h"
#include "core/project_file.h"
#include "places.h"
#include "run_program.h"
#include "sections/profile_table.h"
#include "sections/section_fields.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using nlohmann::json;
using Names = std::set<std::string>;

const std::string kColumn = KORVANE_SOURCE_DIR "/examples/column-hea200.kvn";
const std::string kData = KORVANE_SOURCE_DIR "/data";

/// The example column with changes, as a file.
std::string PutColumn(const TempFolder& folder, const std::function<void(ProjectState&)>& change) {
  ProjectState st;
  EXPECT_EQ(OpenProject(kColumn, st), FileResult::Ok);
  change(st);
  std::string path = folder / "member.kvn";
  EXPECT_TRUE(SaveProject(path, st));
  return path;
}

/// A downward mass below zero has no frequency.
void NegativeMass(ProjectState& st) {
  st.ModalAnalysis = 1;
  st.q1 = -50;
}

/// Far beyond its capacity in compression the exponent of the interaction leaves all bounds.
void EndlessRatio(ProjectState& st) {
  st.ProfileType = 28;
  st.SectionControlMode = 1;
  st.L = 1.5;
  st.NP = 4000;
  st.q2 = 1E5;
  st.q2_yz = 0;
}

Names NamesOf(const json& object) {
  Names names;
  for (const auto& [name, value] : object.items()) names.insert(name);
  return names;
}

TEST(Program, TellsPassAndFailByItsExitStatus) {
  const TempFolder folder;
  const ProgramRun pass = RunProgram({"design", kColumn});
  EXPECT_EQ(pass.status, 0);
  EXPECT_EQ(pass.errors, "");
  EXPECT_NE(pass.output.find("Section:         HEA200"), std::string::npos);
  EXPECT_NE(pass.output.find("Verdict: passes   greatest IR = 0.59 (limit 1.00), "),
            std::string::npos);
  const std::string heavy = PutColumn(folder, [](ProjectState& st) { st.NP = 1800; });
  const ProgramRun fail = RunProgram({"design", heavy});
  EXPECT_EQ(fail.status, 1);
  EXPECT_NE(fail.output.find("Verdict: fails"), std::string::npos);
  EXPECT_NE(fail.output.find("  fails: The greatest ratio "), std::string::npos);
  EXPECT_EQ(RunProgram({"design", heavy, "--json"}).status, 1);
}

TEST(Program, NamesAMissingFile) {
  const ProgramRun run = RunProgram({"design", "/no/such/member.kvn"});
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.errors, "can't find file - /no/such/member.kvn\n");
  EXPECT_EQ(run.output, "");
  EXPECT_EQ(RunProgram({"design", "/no/such/member.kvn", "--json"}).output, "");
}

TEST(Program, RefusesAFileThatIsTooShort) {
  const TempFolder folder;
  const std::string whole = GetFile(kColumn);
  for (const std::size_t size : {std::size_t{0}, std::size_t{5}, whole.size() / 2}) {
    PutFile(folder / "short.kvn", whole.substr(0, size));
    const ProgramRun run = RunProgram({"design", folder / "short.kvn"});
    EXPECT_EQ(run.status, 2) << size;
    EXPECT_EQ(run.errors, "Input file not compatible with this version \n") << size;
    EXPECT_EQ(run.output, "") << size;
  }
}

TEST(Program, RefusesWrongArguments) {
  for (const std::vector<std::string>& arguments :
       {std::vector<std::string>{}, {"design"}, {"calculate"}, {"design", kColumn, "--fast"}}) {
    const ProgramRun run = RunProgram(arguments);
    EXPECT_EQ(run.status, 2);
    EXPECT_NE(run.errors, "");
    EXPECT_EQ(run.output, "");
  }
  EXPECT_EQ(RunProgram({"--help"}).status, 0);
  EXPECT_EQ(RunProgram({"--version"}).output.find("korvane-cli "), 0U);
}

TEST(Program, NamesTheStepOfAnArithmeticFailure) {
  const TempFolder folder;
  const std::string file = PutColumn(folder, NegativeMass);
  const ProgramRun text = RunProgram({"design", file});
  EXPECT_EQ(text.status, 3);
  EXPECT_EQ(text.errors.find("arithmetic failure in ModalAnalysis"), 0U) << text.errors;
  EXPECT_EQ(text.output,
            "Verdict: stopped   greatest IR = 0.00 (limit 1.00)\n"
            "  not checked: The calculation stopped in the modal analysis. [stopped]\n");
  const ProgramRun run = RunProgram({"design", file, "--json"});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(json::parse(run.output).at("fault"), "ModalAnalysis");
}

TEST(Program, ARatioBeyondSinglePrecisionIsAnArithmeticFailure) {
  const TempFolder folder;
  const ProgramRun run = RunProgram({"design", PutColumn(folder, EndlessRatio), "--json"});
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.errors.find("arithmetic failure in MaxIR"), 0U) << run.errors;
  const json design = json::parse(run.output);
  EXPECT_EQ(design.at("fault"), "MaxIR");
  EXPECT_EQ(design.at("checks").at("MaxIR"), 0);
  EXPECT_GT(design.at("checks").at("IRsection").get<double>(), 3.4E38);
}

TEST(Program, NamesADataFolderWithoutCatalogues) {
  const TempFolder empty;
  for (const std::vector<std::string>& command :
       {std::vector<std::string>{"design", kColumn}, {"new"}, {"catalogue"}}) {
    std::vector<std::string> arguments = command;
    arguments.insert(arguments.end(), {"--data", empty.Path()});
    const ProgramRun run = RunProgram(arguments);
    EXPECT_EQ(run.status, 2) << command[0];
    EXPECT_NE(run.errors.find(empty.Path()), std::string::npos) << run.errors;
    EXPECT_NE(run.errors.find("hea.dat"), std::string::npos) << run.errors;
    EXPECT_EQ(run.output, "") << command[0];
  }
  const ProgramRun run = RunProgram({"new"}, "KORVANE_DATA=" + Quoted(empty.Path()));
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.errors.find(empty.Path()), std::string::npos);
}

TEST(Program, FindsItsDataFromItsOwnPlaceAndNotFromTheCurrentFolder) {
  const TempFolder here;
  PutFile(here / "hea.dat", "not a catalogue");
  const ProgramRun run = RunProgram({"design", kColumn}, {}, here.Path());
  EXPECT_EQ(run.status, 0) << run.errors;
  EXPECT_EQ(RunProgram({"design", kColumn, "--data", kData}).output, run.output);
  EXPECT_EQ(RunProgram({"design", kColumn}, "KORVANE_DATA=" + Quoted(kData)).output, run.output);
}

TEST(Program, WritesANewProjectThatDesignsCleanly) {
  const TempFolder folder;
  const ProgramRun printed = RunProgram({"new"});
  EXPECT_EQ(printed.status, 0);
  const ProgramRun saved = RunProgram({"new", "-o", folder / "fresh.kvn"});
  EXPECT_EQ(saved.status, 0);
  EXPECT_EQ(saved.output, "");
  EXPECT_EQ(GetFile(folder / "fresh.kvn"), printed.output);
  EXPECT_EQ(folder.Count(), 1);
  const ProgramRun run = RunProgram({"design", folder / "fresh.kvn", "--json"});
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.errors, "");
  EXPECT_TRUE(json::parse(run.output).at("fault").is_null());
  const ProgramRun refused = RunProgram({"new", "-o", "/no/such/folder/fresh.kvn"});
  EXPECT_EQ(refused.status, 2);
  EXPECT_EQ(refused.errors,
            "can't save file - /no/such/folder/fresh.kvn\nThe folder doesn't exist.\n");
}

TEST(Program, SaysWhenItsOutputFindsAFullDisk) {
  const TempFolder folder;
  PutFile(folder / "script", "show il\n");
  for (const std::string& command :
       {"design " + Quoted(kColumn), "design --json " + Quoted(kColumn), std::string("new"),
        std::string("catalogue"), std::string("catalogue HEA"), "batch " + Quoted(kColumn),
        "optimise " + Quoted(kColumn), "session " + Quoted(folder / "script")}) {
    const std::string errors = folder / "errors";
    const int waited = std::system(
        (Quoted(KORVANE_CLI) + " " + command + " >/dev/full 2>" + Quoted(errors)).c_str());
    EXPECT_EQ(ExitStatusOf(waited), 2) << command;
    EXPECT_NE(GetFile(errors).find("can't write to the standard output\n"), std::string::npos)
        << command;
  }
}

TEST(Program, ListsFamiliesAndSizes) {
  const ProgramRun families = RunProgram({"catalogue"});
  EXPECT_EQ(families.status, 0);
  EXPECT_EQ(std::count(families.output.begin(), families.output.end(), '\n'), 32);
  for (const Family& family : AllFamilies()) {
    const std::string code = std::to_string(family.code);
    const std::string line = std::string(4 - code.size(), ' ') + code + "  ";
    EXPECT_NE(("\n" + families.output).find("\n" + line), std::string::npos) << code;
  }
  const ProgramRun sizes = RunProgram({"catalogue", "HEA"});
  EXPECT_EQ(std::count(sizes.output.begin(), sizes.output.end(), '\n'), 24);
  EXPECT_NE(sizes.output.find("   5  HEA 200\n"), std::string::npos);
  const ProgramRun unknown = RunProgram({"catalogue", "HEX"});
  EXPECT_EQ(unknown.status, 2);
  EXPECT_NE(unknown.errors.find("HEX"), std::string::npos);
}

TEST(Program, ColoursOnATerminalOnlyAndHonoursNoColor) {
  EXPECT_NE(RunOnTerminal({"design", kColumn}, false).output.find("Verdict: \033[1;32mpasses"),
            std::string::npos);
  const ProgramRun plain = RunOnTerminal({"design", kColumn}, true);
  EXPECT_EQ(plain.status, 0);
  EXPECT_NE(plain.output.find("greatest IR = 0.59"), std::string::npos);
  EXPECT_EQ(plain.output.find('\033'), std::string::npos);
  EXPECT_EQ(RunProgram({"design", kColumn}).output.find('\033'), std::string::npos);
}

/// The JSON of the example column.
const json& ColumnJson() {
  static const json design = json::parse(RunProgram({"design", kColumn, "--json"}).output);
  return design;
}

TEST(Json, HasItsGroups) {
  EXPECT_EQ(NamesOf(ColumnJson()), (Names{"fault", "verdict", "state", "section", "analysis",
                                          "deflection", "modal", "ltb", "buckling", "checks"}));
  EXPECT_TRUE(ColumnJson().at("fault").is_null());
}

TEST(Json, HasItsVerdict) {
  const json& verdict = ColumnJson().at("verdict");
  EXPECT_EQ(NamesOf(verdict), (Names{"standing", "sls", "IR", "governing", "notes"}));
  EXPECT_EQ(verdict.at("standing"), "passes");
  EXPECT_EQ(verdict.at("sls"), "passes");
  EXPECT_EQ(verdict.at("IR"), ColumnJson().at("checks").at("MaxIR"));
  ASSERT_FALSE(verdict.at("notes").empty());
  for (const json& note : verdict.at("notes")) {
    EXPECT_EQ(NamesOf(note), (Names{"code", "severity", "text"}));
  }
  EXPECT_EQ(verdict.at("notes").back().at("code"), "deflection");
  EXPECT_EQ(verdict.at("notes").back().at("severity"), "information");
}

// A design of another member is in force when a project is opened; what its calculation didn't
// reach must not show that one's figures.
TEST(Json, AFaultComesWithoutAnotherMembersResults) {
  const TempFolder folder;
  const ProgramRun run =
      RunProgram({"design", PutColumn(folder, [](ProjectState& st) { st.gammam1 = 0; }), "--json"});
  EXPECT_EQ(run.status, 3);
  const json design = json::parse(run.output);
  EXPECT_EQ(design.at("verdict").at("standing"), "stopped");
  EXPECT_EQ(design.at("verdict").at("IR"), 0);
  EXPECT_EQ(design.at("section").at("A"), 0);
  EXPECT_EQ(design.at("analysis").at("My_max"), 0);
  EXPECT_EQ(design.at("checks").at("lineSection").at("formula"), "");
}

TEST(Json, AnUnknownFamilyHasNoSection) {
  const TempFolder folder;
  const std::string file = PutColumn(folder, [](ProjectState& st) { st.ProfileType = 99; });
  const ProgramRun run = RunProgram({"design", file, "--json"});
  EXPECT_EQ(run.status, 1);
  const json design = json::parse(run.output);
  EXPECT_EQ(design.at("verdict").at("standing"), "not checked");
  EXPECT_EQ(design.at("verdict").at("notes").at(0).at("code"), "unknown-family");
  EXPECT_EQ(design.at("section").at("h"), 0);
  EXPECT_EQ(design.at("deflection").at("DeflZ_max"), 0);
  const ProgramRun text = RunProgram({"design", file});
  EXPECT_EQ(text.status, 1);
  EXPECT_EQ(text.output.find("HEA"), std::string::npos);
  EXPECT_EQ(text.output.find("190.0"), std::string::npos);
}

TEST(Json, HasEveryFieldOfStateAndSection) {
  Names state, section;
  const ProjectState st;
  const SectionRecord rec{};
  ForEachField(st, [&](const char* name, const auto&) { state.insert(name); });
  ForEachSectionField(rec, [&](const char* name, const auto&) { section.insert(name); });
  EXPECT_EQ(NamesOf(ColumnJson().at("state")), state);
  EXPECT_EQ(NamesOf(ColumnJson().at("section")), section);
  for (const char* name : {"alfadeg", "alfa", "class", "Wply", "Ncrdshown"}) {
    EXPECT_EQ(section.count(name), 1U) << name;
  }
  EXPECT_EQ(ColumnJson().at("state").at("pm").size(), 8U);
  EXPECT_EQ(ColumnJson().at("state").at("cp_x"), json({1, 2, 3}));
  EXPECT_EQ(ColumnJson().at("state").at("iproj"), "Office building, axis B");
}

struct Group {
  const char* name;
  Names members;
};

TEST(Json, HasTheNamesOfTheResults) {
  const std::vector<Group> groups{
      {"analysis",
       {"N",         "MyAbsMax",  "MzAbsMax",  "My_gov",   "betaMy",  "betaMz", "MyStation",
        "VzStation", "MzStation", "VyStation", "My_max",   "My_min",  "Vz_max", "Vz_min",
        "Mz_max",    "Mz_min",    "Vy_max",    "Vy_min",   "My_q",    "Mz_q",   "My_zero1",
        "My_zero2",  "Mz_zero1",  "Mz_zero2",  "pt_first", "pt_last", "pt_x",   "My_pt",
        "Vz_pt",     "Mz_pt",     "Vy_pt"}},
      {"deflection",
       {"DeflZ", "DeflY", "DeflZ_max", "DeflZ_min", "DeflY_max", "DeflY_min", "DeflStiff"}},
      {"modal", {"ModalMass", "ModalFreq"}},
      {"ltb",
       {"C1", "C2", "C3", "zg", "Lk", "Mcr", "lamLT", "chiLT", "chiLT_min", "Mdb", "Mdb_min",
        "LtbSegment", "LtbSegmentText"}},
      {"buckling",
       {"Lybar", "Lzbar", "LyOverI", "LzOverI", "Xy", "Xz", "Xmin", "Nyd", "Nzd", "NXmin", "ky",
        "kz", "klt"}},
      {"checks",
       {"IRsection", "IRvz", "IRvy", "IRlateral", "IRny", "IRnz", "IRcombinedY", "IRcombinedZ",
        "ClassGoverning", "MaxIR", "lineSection", "lineVz", "lineVy", "lineLateral",
        "lineBucklingY", "lineBucklingZ", "lineSlenderness"}}};
  for (const Group& group : groups) {
    EXPECT_EQ(NamesOf(ColumnJson().at(group.name)), group.members) << group.name;
  }
  for (const auto& [name, line] : ColumnJson().at("checks").items()) {
    if (!name.starts_with("line")) continue;
    EXPECT_EQ(NamesOf(line), (Names{"label", "formula", "numbers", "value", "limit", "colour"}));
  }
}

TEST(Json, HasListsOfTheirLengths) {
  const json& analysis = ColumnJson().at("analysis");
  for (const char* name : {"MyStation", "VzStation", "MzStation", "VyStation"}) {
    EXPECT_EQ(analysis.at(name).size(), 51U) << name;
  }
  EXPECT_EQ(analysis.at("My_q").size(), 5U);
  EXPECT_EQ(analysis.at("Mz_q").size(), 5U);
  for (const char* name : {"pt_x", "My_pt", "Vz_pt", "Mz_pt", "Vy_pt"}) {
    EXPECT_EQ(analysis.at(name).size(), analysis.at("pt_last").get<std::size_t>() + 1) << name;
  }
  EXPECT_EQ(ColumnJson().at("deflection").at("DeflZ").size(), 51U);
  EXPECT_EQ(ColumnJson().at("deflection").at("DeflY").size(), 51U);
  EXPECT_EQ(ColumnJson().at("modal").at("ModalFreq").size(), 3U);
}

TEST(Json, NumbersReadBackAsTheyWere) {
  Design d(SourceLibrary());
  StartDesign(d);
  Calculate(d);
  ASSERT_EQ(OpenProject(kColumn, d.st), FileResult::Ok);
  Calculate(d);
  Calculate(d);
  EXPECT_EQ(ColumnJson().at("checks").at("IRcombinedY").get<double>(),
            double(d.checks.IRcombinedY));
  EXPECT_EQ(ColumnJson().at("ltb").at("Mcr").get<double>(), double(d.ltb.Mcr));
  EXPECT_EQ(ColumnJson().at("section").at("Iy").get<double>(), double(d.rec.Iy));
  EXPECT_EQ(ColumnJson().at("checks").at("lineVz").at("numbers"), d.checks.lineVz.numbers);
}

TEST(Json, HandlesEveryFamily) {
  for (const Family& family : AllFamilies()) {
    const std::string code = std::to_string(1000 + family.code).substr(1);
    const std::string file = KORVANE_SOURCE_DIR "/tests/design/projects/f" + code + ".kvn";
    const ProgramRun run = RunProgram({"design", file, "--json"});
    const json design = json::parse(run.output);
    const bool passes = design.at("verdict").at("standing") == "passes";
    EXPECT_EQ(passes, family.code != 27) << code;  // which has no control
    EXPECT_EQ(run.status, passes ? 0 : 1) << code << run.errors;
    EXPECT_EQ(design.at("state").at("ProfileType"), family.code);
    const ProgramRun text = RunProgram({"design", file});
    EXPECT_EQ(text.status, run.status) << code;
    EXPECT_NE(text.output.find("Section:"), std::string::npos) << code;
    EXPECT_EQ(text.output.find("nan"), std::string::npos) << code;
    EXPECT_FALSE(std::regex_search(text.output, std::regex(R"(\binf\b)"))) << code;
  }
}

}  // namespace
}  // namespace korvane
