// SPDX-License-Identifier: GPL-3.0-or-later
// Sessions driven by scripts: every action, every form of output, errors with their lines, the
// decimal separator.
#include "front/console/script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "front/forms/handles.h"
#include "places.h"
#include "projects.h"
#include "run_program.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

struct Played {
  int status;
  std::string output, errors;
};

Played Play(const std::string& script, bool comma = false) {
  std::istringstream in(script);
  std::ostringstream out, err;
  const int status = RunScript(SourceLibrary(), comma, in, out, err);
  return {status, out.str(), err.str()};
}

/// What a script prints that must end well.
std::string Output(const std::string& script, bool comma = false) {
  const Played run = Play(script, comma);
  EXPECT_EQ(run.status, 0) << script;
  EXPECT_EQ(run.errors, "") << script;
  return run.output;
}

/// What a script prints at whose end something is not saved.
std::string Unsaved(const std::string& script) {
  const Played run = Play(script);
  EXPECT_EQ(run.status, 2) << script;
  return run.output;
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

double MaxIRAfter(const std::string& script) {
  return nlohmann::json::parse(Output(script + "json\n")).at("checks").at("MaxIR");
}

// Start and layout of a script

TEST(Script, BeginsBehindTheStartAndCalculatesWithTheFirstFocus) {
  EXPECT_EQ(Output("show il\n"), "il = 5.000\n");
  EXPECT_EQ(MaxIRAfter(""), 0.0);
  EXPECT_GT(MaxIRAfter("focus korvane\n"), 0.1);
}

TEST(Script, SkipsEmptyLinesAndComments) {
  EXPECT_EQ(Output(""), "");
  EXPECT_EQ(Output("\n   \n# show il\n  # indented\n#\n"), "");
  EXPECT_EQ(Output("\r\nshow il\r\n"), "il = 5.000\n");
  EXPECT_EQ(Output("  show   il  "), "il = 5.000\n");
}

// Actions

TEST(ScriptAction, EnterTypesAndLeavesAField) {
  EXPECT_EQ(Output("enter il 7.25\nshow il\n"), "il = 7.250\n");
  // A text may hold blanks, also in front and behind.
  EXPECT_EQ(Output("enter iproj  Axis B, row 2 \nshow iproj\n"), "iproj =  Axis B, row 2 \n");
  EXPECT_EQ(Output("enter iproj\nshow iproj\n"), "iproj = \n");
}

TEST(ScriptAction, ReturnLeavesAFieldForTheNext) {
  // The yield stress is locked for a grade of the list.
  EXPECT_EQ(Output("focus korvane\nreturn il\nshow ie\n"), "focus: ie\nie = 2.10E+5 [green]\n");
  EXPECT_EQ(Output("enter ie 1\nreturn ie\n"),
            "message:  1000 <= E-modulus \nfocus: ie\nmessage:  1000 <= E-modulus \nfocus: ie\n");
}

TEST(ScriptAction, ReturnOnThePictureOfTheSpringHasARangeOfItsOwn) {
  const std::string told = "message:  1 < springstiffness 99 \nfocus: ispring\n";
  for (const char* refused : {"0", "100"}) {
    EXPECT_EQ(Output(std::string("click cbutt5\nenter ispring ") + refused + "\nreturn cbutt5\n"),
              "focus: ispring\n" + told)
        << refused;
  }
  for (const char* taken : {"1", "99"}) {
    EXPECT_EQ(Output(std::string("click cbutt5\nenter ispring ") + taken +
                     "\nreturn cbutt5\nshow ispring\n"),
              "focus: ispring\nispring = " + std::string(taken) + "\n");
  }
  // Without a spring there is no value to take.
  EXPECT_EQ(Output("click cbutt0\nreturn cbutt5\n"), "");
}

TEST(ScriptAction, ClickSelectAndMenuDoWhatTheirControlsDo) {
  EXPECT_EQ(Output("click obuckling1\nshow obuckling1\nshow obuckling0\n"),
            "obuckling1 = Elastic section modulus [checked]\n"
            "obuckling0 = Plastic section modulus\n");
  EXPECT_EQ(Output("select cbofyk 0\nshow cbofyk\nshow ifyk\n"),
            "cbofyk = S235\nifyk = 235 [disabled]\n");
  EXPECT_EQ(
      Output("menu mnup04\nselect Cbo 2\nselect Cbo 0\nshow Cbo\nfocus korvane\nshow obeam\n"),
      "Cbo = IPE 80\nobeam = IPE80\n");
}

/// What a person could not have done is remarked, with its line, and the script goes on.
void ExpectRemark(const std::string& script, const std::string& line, const std::string& words,
                  const std::string& rest = {}) {
  const Played run = Play(script);
  EXPECT_EQ(run.status, 0) << script;
  EXPECT_EQ(run.output, "remark: " + words + "\n" + rest) << script;
  EXPECT_EQ(run.errors, line + ": " + words + "\n") << script;
}

TEST(ScriptAction, ClickOnALockedControlDoesNothingAndIsRemarked) {
  ExpectRemark("focus korvane\nclick cmd_modresult\nshow cmd_modresult\n", "line 2",
               "cmd_modresult is disabled", "cmd_modresult = Modeshape 1-3 [disabled]\n");
  ExpectRemark("focus korvane\n\nclick korvane.ULS\n", "line 3", "korvane.ULS is hidden");
  ExpectRemark("menu mnurecentfile(2)\n", "line 1", "mnurecentfile(2) is hidden");
}

TEST(ScriptAction, EnterIntoWhatNobodyCouldUseIsRemarkedAndGoesOn) {
  ExpectRemark("focus korvane\nenter ispring 40\n", "line 2", "ispring is hidden");
  ExpectRemark("focus korvane\nenter ifyk 300\nshow ifyk\n", "line 2", "ifyk is disabled",
               "ifyk = 355 [disabled]\n");
  ExpectRemark("focus korvane\nenter loading.iq1 12\nmenu mnuload1\nshow iq1\n", "line 2",
               "loading.iq1 is on a form that isn't open", "iq1 = 12.0\n");
  ExpectRemark("focus korvane\nclick setup.check_slend\n", "line 2",
               "setup.check_slend is on a form that isn't open");
  ExpectRemark("focus korvane\nselect p01.Cbo 3\n", "line 2",
               "p01.Cbo is on a form that isn't open");
  ExpectRemark("focus korvane\nreturn loading.iq2\n", "line 2",
               "loading.iq2 is on a form that isn't open", "focus: loading.iq3\n");
}

TEST(ScriptAction, CloseLeavesAFormUnlessItRefuses) {
  const std::string loads =
      "menu mnuload1\nenter iqt11 5\nenter iqt12 -5\nenter iqt1x2 3\nclose loading\n";
  const std::string told =
      "message:  Trapezoidal load: One positive and one negative value \nfocus: iqt12\n";
  EXPECT_EQ(Output(loads), told);
  // It stands on top still, and says so every time.
  EXPECT_EQ(Output(loads + "click ok\nshow iqt12\n"), told + told + "iqt12 = -5.0 [green]\n");
  EXPECT_EQ(Output(loads + "enter iqt12 5\nclose loading\nshow il\n"), told + "il = 5.000\n");
}

TEST(ScriptAction, NothingFollowsTheEndOfTheProgram) {
  for (const char* end : {"menu mnuexit\n", "close korvane\n"}) {
    EXPECT_EQ(Output(std::string("show il\n") + end + "show ie\nno action\n"), "il = 5.000\n");
  }
}

TEST(ScriptAction, SaveAndOpenAnswerTheirDialogs) {
  const TempFolder folder;
  const std::string file = folder / "a member.kvn";
  EXPECT_EQ(Output("enter il 7\nsave " + file + "\nenter il 3\nopen " + file +
                   "\nshow il\nshow korvane.mnurecentfile(1)\n"),
            "il = 7.000\nkorvane.mnurecentfile(1) = &1 " + file + "\n");
  EXPECT_EQ(Output("open " + (folder / "none.kvn") + "\n"),
            "message: can't find file - " + (folder / "none.kvn") + "\n");
  EXPECT_EQ(Unsaved("save " + (folder / "no/such.kvn") + "\n"),
            "message: can't save file - " + (folder / "no/such.kvn") +
                "\nnot saved: the folder doesn't exist\n");
}

TEST(ScriptAction, ASavingThatFailsIsTold) {
  const TempFolder folder;
  const std::string file = folder / "a.kvn";
  PutFile(file, "mine");
  std::filesystem::permissions(file, std::filesystem::perms::owner_read);
  EXPECT_EQ(Unsaved("save " + file + "\n"), "not saved: the file is read-only\n");
  EXPECT_EQ(GetFile(file), "mine");
  EXPECT_EQ(Unsaved("answer " + file + "\nmenu mnudb\nclick save_db\n"),
            "database not saved: the file is read-only\n");
  // What is saved after all is no failure at the end.
  EXPECT_EQ(Output("save " + file + "\nsave " + (folder / "b.kvn") + "\n"),
            "not saved: the file is read-only\n");
}

TEST(ScriptAction, ASavingOverAFileThatHasChangedIsRemarked) {
  const TempFolder folder;
  const std::string file = folder / "a.kvn";
  // A database under the project's name changes what the project has written.
  EXPECT_EQ(Output("enter il 7\nsave " + file + "\nanswer " + file +
                   "\nmenu mnudb\nclick save_db\nmenu mnusave\n"),
            "remark: " + file + " has changed on disk since it was read, and is overwritten\n");
  EXPECT_EQ(Output("open " + file + "\nshow il\n"), "il = 7.000\n");
}

TEST(ScriptAction, RelativePathsMeanTheCurrentFolder) {
  const TempFolder folder;
  const std::filesystem::path before = std::filesystem::current_path();
  std::filesystem::current_path(folder.Path());
  EXPECT_EQ(Output("enter il 7\nsave a.kvn\nmenu mnup04\nclick addtodb\nmenu mnudb\n"
                   "answer a.db\nclick save_db\n"),
            "");
  EXPECT_TRUE(std::filesystem::exists(folder / "a.kvn"));
  EXPECT_TRUE(std::filesystem::exists(folder / "a.db"));
  EXPECT_EQ(Output("answer a.kvn\nmenu mnuopen\nshow il\nmenu mnudb\nanswer a.db\n"
                   "click open_db\nselect cbo 0\nshow cbo\n"),
            "il = 7.000\ncbo = IPE 80\n");
  std::filesystem::current_path(before);
}

TEST(ScriptAction, ResultsThatDontHoldSayWhy) {
  const auto lines = Lines(Output("focus korvane\nenter il 0.01\nresults\n"));
  EXPECT_NE(std::find(lines.begin(), lines.end(), "not calculated: L 0.010 m is refused"),
            lines.end());
  const std::string json = Output("focus korvane\nenter il 0.01\njson\n");
  EXPECT_EQ(nlohmann::json::parse(json.substr(json.find('{'))).at("fault"),
            "not calculated: L 0.010 m is refused");
}

TEST(ScriptAction, AnswerIsForTheNextDialog) {
  const TempFolder folder;
  const std::string a = folder / "a.kvn";
  const std::string b = folder / "b.kvn";
  EXPECT_EQ(Output("answer " + a + "\nmenu mnusaveas\nshow korvane\n")
                .rfind("korvane = KORVANE-NS3472: " + a + "\n", 0),
            0U);
  EXPECT_EQ(Output("enter il 7\nsave " + a +
                   "\nenter il 3\nanswer cancel\nmenu mnuopen\n"
                   "show il\nanswer " +
                   a + "\nmenu mnuopen\nshow il\n"),
            "il = 3.000\nil = 7.000\n");
  // In their order; a dialog without an answer is cancelled.
  EXPECT_EQ(Output("enter il 4\nsave " + b + "\nanswer " + a + "\nanswer " + b +
                   "\nmenu mnuopen\nshow il\nmenu mnuopen\nshow il\nmenu mnuopen\nshow il\n"),
            "il = 7.000\nil = 4.000\nil = 4.000\n");
  // The path of an open is its own answer, whatever waits.
  EXPECT_EQ(Output("answer cancel\nopen " + a + "\nshow il\n"), "il = 7.000\n");
}

TEST(ScriptAction, AnswerServesPrinterAndDatabase) {
  const TempFolder folder;
  EXPECT_EQ(Output("focus korvane\nmenu mnuprint0\nanswer yes\nmenu mnuprint0\nanswer yes\n"
                   "menu mnuprint1\n"),
            "print: Section Property and Capacity\nprint: Section and Stability Control\n");
  const std::string file = folder / "list.db";
  EXPECT_EQ(Output("menu mnup01\nclick addtodb\nmenu mnudb\nanswer " + file +
                   "\nclick save_db\nclick Command1\nshow cbo\nanswer " + file +
                   "\nclick open_db\nselect cbo 0\nshow cbo\n"),
            "cbo = \ncbo = HEA 200\n");
}

TEST(ScriptAction, ResultsAreTheShortView) {
  // HEA 200, S355: N = 120 kN, My = 1.2*10*5*5/8 = 37.5 kNm, capacities A*fd = 1737.3 kN and
  // Wely*fd = 125.4 kNm: 120/1737.3 + 37.5/125.4 = 0.37.
  const std::vector<std::string> lines = Lines(Output("focus korvane\nresults\n"));
  ASSERT_GE(lines.size(), 4U);
  EXPECT_EQ(lines[0], "SECTION CONTROL:");
  EXPECT_EQ(lines[1], "N+My:     IR = 0.37  <  1.00 (0.50L; Ch 12.2.6)");
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "BUCKLING CONTROL:"), 1);
  // The window shows the same lines in one text.
  const std::string shown = Output("focus korvane\nshow pic31\n");
  std::size_t bars = 0;
  for (std::size_t at = 0; (at = shown.find(" | ", at)) != std::string::npos; ++at) ++bars;
  EXPECT_EQ(bars + 1, lines.size());
  const std::string tension = Output("focus korvane\nmenu mnuload1\nenter inp -50\nresults\n");
  EXPECT_EQ(tension.find("BUCKLING CONTROL:"), std::string::npos) << tension;
}

TEST(ScriptAction, JsonIsThatOfADesign) {
  const std::string file = KORVANE_SOURCE_DIR "/examples/column-hea200.kvn";
  using nlohmann::json;
  json session = json::parse(Output("focus korvane\nopen " + file + "\nfocus korvane\njson\n"));
  json design = json::parse(RunProgram({"design", file, "--json"}).output);
  // The session alone has gone to the folder of the file.
  session.at("state").erase("CurrentDir");
  design.at("state").erase("CurrentDir");
  EXPECT_EQ(json::diff(session, design), json::array());
}

// Names

TEST(ScriptName, OfAControlBelowTheFormOnTopHasItsForm) {
  EXPECT_EQ(Output("menu mnusetup\nenter iufa 0.9\nshow setup.iufa\nenter korvane.il 6\n"
                   "show korvane.il\nenter korvane.il 0\n"),
            "setup.iufa = 0.90\nkorvane.il = 6.000\nmessage:  L >= 0.050 \nfocus: korvane.il\n");
  EXPECT_EQ(Output("menu mnup21\nenter isth 300\nfocus korvane\nshow p21.isth\n"),
            "p21.isth = 300\n");
}

TEST(ScriptName, OfAnArrayHasItsIndex) {
  EXPECT_EQ(Output("menu mnuload1\nenter ipm(3) 12.5\nenter ipmx(3) 2\nshow ipm(3)\n"
                   "show ipm(2)\n"),
            "ipm(3) = 12.5\nipm(2) = 0.0\n");
  const TempFolder folder;
  EXPECT_EQ(Output("enter il 3\nsave " + (folder / "a.kvn") + "\nenter il 4\nsave " +
                   (folder / "b.kvn") + "\nmenu mnurecentfile(2)\nshow il\n"),
            "il = 3.000\n");
}

// What is shown

struct Shown {
  const char* script;
  const char* line;  ///< the last of the output
};

TEST(ScriptShow, TellsTheTextByTheKindAndTheStateInOrder) {
  for (const Shown& c : std::vector<Shown>{
           {"show il", "il = 5.000"},
           {"show ofyd", "ofyd = fd = 322.7"},
           {"show cp", "cp = Calculation points"},
           {"show ch_modal", "ch_modal = Modal analysis for selfweight + q-loads"},
           {"show columnframe", "columnframe = Column data"},
           {"show mnuload1", "mnuload1 = &Loading"},
           {"show mnurecentfile(1)", "mnurecentfile(1) = oldfile1 [hidden]"},
           {"show cbofyk", "cbofyk = S355"},
           {"show ifyk", "ifyk = 355 [disabled]"},
           {"show idef_limit", "idef_limit = 300 [hidden]"},
           {"show cbutt0", "cbutt0 =  [checked]"},
           {"enter il 0.049\nshow il", "il = 0.049 [green]"},
           {"menu mnup10\nfocus korvane\nshow obuckling0",
            "obuckling0 = Plastic section modulus [disabled] [checked]"},
           {"menu mnuopt\nshow idef_limit", "idef_limit = 300 [disabled] [hidden]"},
           {"click optimize\nclick ULS\nfocus korvane\nshow ULS",
            "ULS = ULS (Buckling/Section Control) [hidden]"},
           {"click optimize\nclick ULS\nshow ULS",
            "ULS = ULS (Buckling/Section Control) [checked]"},
       }) {
    const auto lines = Lines(Output(std::string("focus korvane\n") + c.script + "\n"));
    ASSERT_FALSE(lines.empty()) << c.script;
    EXPECT_EQ(lines.back(), c.line) << c.script;
  }
}

TEST(ScriptShow, OfAFormIsItsTitleAndThenItsControls) {
  for (const Form& form : AllForms()) {
    const auto lines = Lines(Output("focus korvane\nshow " + form.name + "\n"));
    ASSERT_EQ(lines.size(), form.controls.size() + 1) << form.name;
    EXPECT_EQ(lines[0].rfind(form.name + " = ", 0), 0U) << lines[0];
    for (std::size_t i = 0; i < form.controls.size(); ++i) {
      EXPECT_EQ(lines[i + 1].rfind(form.controls[i].name + " = ", 0), 0U) << lines[i + 1];
    }
  }
  EXPECT_EQ(Lines(Output("menu mnusetup\nshow setup\n"))[0], "setup = Default Values");
  EXPECT_EQ(Lines(Output("menu mnudb\nshow database\n"))[0],
            "database = Database file: korvane.db");
}

// Errors

struct Wrong {
  const char* line;
  const char* report;
};

TEST(ScriptError, NamesTheLineAndTheNearestName) {
  for (const Wrong& c : std::vector<Wrong>{
           {"shw il", "no action shw (nearest: show)"},
           {"Focus korvane", "no action Focus (nearest: focus)"},
           {"show ilx", "no control ilx on korvane (nearest: il)"},
           {"enter ifky 300", "no control ifky on korvane (nearest: ifyk)"},
           {"click obuckling2", "no control obuckling2 on korvane (nearest: obuckling0)"},
           {"return ispirng", "no control ispirng on korvane (nearest: ispring)"},
           {"select cbofky 1", "no control cbofky on korvane (nearest: cbofyk)"},
           {"show setup.iufb", "no control iufb on setup (nearest: setup.iufa)"},
           {"show stup.iufa", "no form stup (nearest: setup.iufa)"},
           {"enter loading.ipm(9) 1", "no control ipm(9) on loading (nearest: loading.ipm(1))"},
           {"menu mnunwe", "no command mnunwe (nearest: mnunew)"},
           {"menu il", "no command il (nearest: line)"},
           {"focus stup", "no form stup (nearest: setup)"},
           {"close lading", "no form lading (nearest: loading)"},
           {"focus setup", "form setup is not open"},
           {"enter cbutt1 3", "cbutt1 is no input field"},
           {"select il 1", "il is no list"},
           {"select cbofyk 99", "cbofyk has no entry 99"},
           {"select cbofyk -1", "cbofyk has no entry -1"},
           {"select cbofyk", "select needs an index, not "},
           {"select cbofyk 1x", "select needs an index, not 1x"},
       }) {
    const Played run = Play("# a comment\nshow il\n" + std::string(c.line) + "\nshow ie\n");
    EXPECT_EQ(run.status, 2) << c.line;
    EXPECT_EQ(run.output, "il = 5.000\n") << c.line;
    EXPECT_EQ(run.errors, "line 3: " + std::string(c.report) + "\n");
  }
}

/// A flange without thickness: its slenderness divides by zero.
constexpr const char* kNoFlange = "focus korvane\nmenu mnup21\nenter isttf 0\n";
constexpr const char* kRefused = "message:  tf >= 0.1 \nfocus: isttf\n";

// The section of a new project, HEA200, 5 m and 100 kN: L/iz = 5000/49.8 = 100.
TEST(ScriptAction, VerdictIsThatOfTheProgramWithItsNotes) {
  const std::string said = Output(
      "focus korvane\nmenu mnusetup\nclick check_slend\nenter islend_limit 90\nclose setup\n"
      "focus korvane\nverdict\n");
  EXPECT_TRUE(said.starts_with("Verdict: fails   greatest IR = ")) << said;
  EXPECT_NE(said.find("\n  fails: The slenderness L/i = 100 about z is above the limit 90. "
                      "[slenderness-exceeded]\n"),
            std::string::npos)
      << said;
}

TEST(ScriptFailure, OutsideATextFieldEndsTheScript) {
  const Played run = Play(std::string(kNoFlange) + "focus korvane\nshow il\n");
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.output, kRefused);
  EXPECT_EQ(run.errors.rfind("line 4: arithmetic failure in ", 0), 0U) << run.errors;
  EXPECT_EQ(std::count(run.errors.begin(), run.errors.end(), '\n'), 1);
  for (const char* action : {"click korvane.obuckling1", "click korvane.cbutt1", "menu mnuload1",
                             "click korvane.ch_webbuck", "menu mnunew\nmenu mnup21"}) {
    const bool mended = std::string(action).find("mnunew") != std::string::npos;
    EXPECT_EQ(Play(std::string(kNoFlange) + action + "\n").status, mended ? 0 : 3) << action;
  }
}

TEST(ScriptFailure, InsideATextFieldIsAMismatch) {
  EXPECT_EQ(Output(std::string(kNoFlange) + "enter korvane.il 6\nshow korvane.il\n"),
            std::string(kRefused) +
                "message: Input string mismatch \nfocus: korvane.il\nkorvane.il = 6.000 [green]\n");
}

TEST(ScriptFailure, OfAFullDatabaseEndsTheScript) {
  std::string script = "focus korvane\nmenu mnup01\n";
  for (int i = 0; i < 81; ++i) script += "click addtodb\n";
  EXPECT_EQ(Play(script).status, 0);
  const Played run = Play(script + "click addtodb\n");
  EXPECT_EQ(run.status, 3);
  EXPECT_EQ(run.errors.rfind("line 84: arithmetic failure: ", 0), 0U) << run.errors;
}

// The decimal separator

TEST(ScriptDecimal, IsReadAndWrittenAsThePersonDoes) {
  EXPECT_EQ(Output("enter il 2,5\nshow il\nenter il abc\n"),
            "il = 2.500\nmessage:  L >= 0.050 \nfocus: il\n");
  EXPECT_EQ(Output("enter il 2.5\nshow il\nenter il abc\nenter il 3,5m\n", true),
            "il = 2,500\nmessage: Input string mismatch \nfocus: il\n"
            "message: Input string mismatch \nfocus: il\n");
}

// A pinned beam with 10 kN/m over 5 m: My = 1.2*10*25/8, Vz = 1.2*10*5/2; HEA200, 42.3 kg/m.
TEST(ScriptDecimal, IsThatOfEverythingShown) {
  const std::string all =
      "focus korvane\nshow picmy\nshow pic31\nresults\nclick de\nshow picresult\n"
      "close detailedresult\nmenu mnuopt\nshow oweight1\nshow oname1\n";
  const std::string point = Output(all), comma = Output(all, true);
  for (const char* number : {" | 37.5 | ", "IR = 0.37  <  1.00 (0.50L; Ch 12.2.6)",
                             " + 37.5/125.4 = ", "oweight1 = 42.3\n"}) {
    EXPECT_NE(point.find(number), std::string::npos) << number;
    EXPECT_EQ(comma.find(number), std::string::npos) << number;
  }
  for (const char* number : {" | 37,5 | ", "IR = 0,37  <  1,00 (0,50L; Ch 12.2.6)",
                             " + 37,5/125,4 = ", "oweight1 = 42,3\n", "oname1 = HEA200\n"}) {
    EXPECT_NE(comma.find(number), std::string::npos) << number;
  }
  // The result lines stand in the pane and, each on its own line, in the results.
  EXPECT_NE(comma.find("N+My:     IR = 0,37  <  1,00"), std::string::npos);
}

}  // namespace
}  // namespace korvane
