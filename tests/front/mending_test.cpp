// SPDX-License-Identifier: GPL-3.0-or-later
// Projects that can't be calculated, failures that end the program, and what is kept for the next
// start.
#include <gtest/gtest.h>

#include "core/project_file.h"
#include "core/setupbas.h"
#include "front/failure_report.h"
#include "front/headline.h"
#include "front/kept_project.h"
#include "front/state_compare.h"
#include "sections/profile_table.h"
#include "tests/core/temp_folder.h"
#include "tests/design/random_states.h"
#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

template <class Change>
std::string Project(const TempFolder& folder, Change&& change) {
  ProjectState st = Running().st();
  change(st);
  const std::string path = folder / "other.kvn";
  EXPECT_TRUE(SaveProject(path, st));
  return path;
}

// --- A project that can't be calculated ---------------------------------------------------------

TEST(Mending, NoActionEndsTheProgramUntilTheProjectIsMended) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) { st.gammam1 = 0; });
  for (const Control& c : TheForms().main->controls) {
    if (c.kind == Kind::Menu && (&c == TheForms().onMain.mnunew || c.name == "mnuexit")) continue;
    Running r;
    r.session.files().OpenPath(path);
    ASSERT_TRUE(r.session.Mending());
    EXPECT_NO_THROW(r.session.Focus("korvane")) << c.name;
    if (c.kind == Kind::Menu) {
      EXPECT_NO_THROW(r.session.Menu(c.name)) << c.name;
    } else if (c.kind == Kind::List) {
      EXPECT_NO_THROW(r.session.Select(c.name, 0)) << c.name;
    } else if (c.kind != Kind::Input) {
      EXPECT_NO_THROW(r.session.Click(c.name)) << c.name;
    }
    EXPECT_NE(r.session.NotCalculated(), "") << c.name;
  }
}

TEST(Mending, OpensTheFormThatHoldsTheInput) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) {
    st.AnalysisMode = 1;
    st.q1 = float32(3e38);
    st.lfp_uls = 4;
  });
  Running r;
  r.session.files().OpenPath(path);
  ASSERT_TRUE(r.session.Mending());
  r.session.Menu("mnuload1");
  ASSERT_TRUE(r.session.IsOpen("loading"));
  EXPECT_TRUE(r.session.Enter("loading.iq1", "5"));
  EXPECT_FALSE(r.session.Mending());
  EXPECT_EQ(r.session.NotCalculated(), "");
}

TEST(Mending, OfTwoInputsLeavesTheFirstField) {
  const TempFolder folder;
  const std::string path = Project(folder, [](ProjectState& st) {
    st.gammam1 = 0;
    st.fyk = 0;
    st.MaterialIndex = 30;
  });
  Running r;
  r.session.files().OpenPath(path);
  ASSERT_TRUE(r.session.Mending());
  // The value is taken, the calculation fails by the other one, and says so once.
  EXPECT_FALSE(r.session.Enter("igammam1", "1.1"));
  EXPECT_EQ(r.platform.messages, std::vector<std::string>{"Input string mismatch "});
  EXPECT_EQ(r.session.FocusedField(), "korvane.igammam1");
  EXPECT_TRUE(r.session.Leave("igammam1"));
  EXPECT_EQ(r.session.Refused(), nullptr);
  EXPECT_EQ(r.st().gammam1, float32(1.1));
  EXPECT_TRUE(r.session.Enter("ifyk", "355"));
  EXPECT_EQ(r.session.NotCalculated(), "");
  EXPECT_FALSE(r.session.Mending());
}

TEST(Mending, EndsWithTheFirstCalculationThatSucceeds) {
  const TempFolder folder;
  Running r;
  r.session.files().OpenPath(Project(folder, [](ProjectState& st) { st.gammam1 = 0; }));
  EXPECT_TRUE(r.session.Enter("igammam1", "1.1"));
  r.st().gammam1 = 0;
  EXPECT_THROW(r.session.Click("obuckling1"), CalculationFault);
}

TEST(Mending, TellsTheInputInTheHeadline) {
  const TempFolder folder;
  Running r;
  r.session.files().OpenPath(Project(folder, [](ProjectState& st) { st.gammam1 = 0; }));
  EXPECT_EQ(HeadlineOf(r.session).word, "not calculated");
  EXPECT_EQ(r.session.NotCalculated(),
            "not calculated: it stopped in the material values: the material factor is 0");
  EXPECT_EQ(HeadlineOf(r.session).below,
            "it stopped in the material values: the material factor is 0");
}

/// Random projects with one input that no calculation bears.
TEST(Mending, NoProjectEndsTheProgramByBeingOpened) {
  const TempFolder folder;
  const std::string path = folder / "a.kvn";
  int mended = 0;
  const auto families = AllFamilies();
  for (unsigned seed = 0; seed < 300; ++seed) {
    ProjectState st = Running().st();
    RandomState(seed, families[seed % families.size()].code, st);
    if (seed % 3 == 0) st.gammam1 = 0;
    if (seed % 3 == 1) st.E = 0;
    if (seed % 3 == 2) st.L = 0;
    ASSERT_TRUE(SaveProject(path, st));
    Running r;
    ASSERT_NO_THROW(r.session.files().OpenPath(path)) << seed;
    ASSERT_NO_THROW(r.session.Focus("korvane")) << seed;
    if (!r.session.Mending()) continue;
    ASSERT_NO_THROW(r.session.Menu("mnuload1")) << seed;
    ++mended;
  }
  EXPECT_GT(mended, 150);
}

// --- The report ---------------------------------------------------------------------------------

TEST(FailureReport, NamesTheInputsInTheEngineersWords) {
  Running r;
  r.session.Enter("igammam1", "0");
  try {
    r.session.Menu("mnuload1");
    FAIL() << "calculated with a material factor of 0";
  } catch (const ArithmeticFault& fault) {
    const FailureReport report = ReportOf(r.session, fault.what());
    EXPECT_EQ(report.text,
              "The calculation can't be done: it stopped in the material values: the material "
              "factor is 0.\n"
              "The refused value gm1 = 0.00 was still in force.\n"
              "The last input was: Loading.\n"
              "The program ends.\n");
    EXPECT_FALSE(report.ownDefaults);
  }
}

TEST(FailureReport, NamesListsPicturesAndCommandsByTheirWords) {
  Running r;
  r.st().gammam1 = 0;
  const auto reported = [&](const std::function<void()>& action) {
    try {
      action();
    } catch (const ArithmeticFault& fault) {
      return ReportOf(r.session, fault.what()).text;
    }
    return std::string("no failure");
  };
  const auto names = [](const std::string& text, const std::string& words) {
    return text.find("The last input was: " + words + ".\n") != std::string::npos;
  };
  EXPECT_PRED2(names, reported([&] { r.session.Select("cbofyk", 0); }), "Material: S235");
  EXPECT_PRED2(names, reported([&] { r.session.Click("cbutt4"); }), "Fixed - free");
  EXPECT_PRED2(names, reported([&] { r.session.Click("ch_webbuck"); }),
               "Web buckling not taken into account: on");
  r.session.Menu("mnup04");
  EXPECT_PRED2(names, reported([&] { r.session.Focus("korvane"); }), "Profiles, IPE");
}

TEST(FailureReport, OfADatabaseThatIsFullSaysWhatWasPressed) {
  Running r;
  r.session.Menu("mnup01");
  std::string text;
  for (int k = 0; k < 82; ++k) {
    try {
      r.session.Click("addtodb");
    } catch (const ArithmeticFault& fault) {
      text = ReportOf(r.session, fault.what()).text;
    }
  }
  EXPECT_EQ(text.rfind("The program can't go on: ", 0), 0U) << text;
  EXPECT_NE(text.find("The last input was: Add to Database.\n"), std::string::npos) << text;
}

TEST(FailureReport, NamesDefaultsThatMakeEachStartFail) {
  const TempFolder folder;
  ProjectState st = Running().st();
  st.gammam1 = 0;
  ASSERT_TRUE(WriteDefaults(folder.Path(), st));
  Folders folders{{}, folder.Path()};
  testing::RememberingPlatform platform;
  NamedSession session(SourceLibrary(), platform, false, folders);
  session.Start();
  try {
    session.Focus("korvane");
    FAIL() << "calculated with a material factor of 0";
  } catch (const ArithmeticFault& fault) {
    const FailureReport report = ReportOf(session, fault.what());
    EXPECT_TRUE(report.ownDefaults);
    EXPECT_NE(report.text.find("Your own default values make each start fail:\n" +
                               (folder / "default_ns.dat") + "\n"),
              std::string::npos)
        << report.text;
  }
  // The way out.
  folders.ownDefaults = false;
  NamedSession again(SourceLibrary(), platform, false, folders);
  again.Start();
  EXPECT_NO_THROW(again.Focus("korvane"));
  EXPECT_EQ(again.st().gammam1, Running().st().gammam1);
}

// --- What is kept -------------------------------------------------------------------------------

KeptProject Through(const KeptProject& kept) {
  const auto read = ReadKept(KeptText(kept), ProjectState());
  EXPECT_TRUE(read.has_value());
  return read.value_or(KeptProject());
}

TEST(KeptProject, HoldsTheWholeRecordOfAnyState) {
  const auto families = AllFamilies();
  for (unsigned seed = 0; seed < 200; ++seed) {
    KeptProject kept;
    RandomState(seed, families[seed % families.size()].code, kept.st);
    kept.st.iproj = "Axis = B\nrow \\ 2";
    kept.st.CurrentFileName = "/a b/c=d.kvn";
    kept.st.Za = seed % 2 == 0 ? number::Empty() : number(double(seed));
    kept.st.DeflectionLimit = 250;
    const KeptProject read = Through(kept);
    ASSERT_TRUE(SameInputs(kept.st, read.st)) << seed;
    EXPECT_EQ(read.st.Za.IsEmpty(), kept.st.Za.IsEmpty());
  }
}

TEST(KeptProject, HoldsWhatIsKnownOfTheFile) {
  KeptProject kept;
  kept.modified = true;
  kept.file.path = "/a/b.kvn";
  kept.file.disk = MarkOf("some bytes");
  kept.file.unread = {"/a/b.kvn", "/a/c\nd.kvn"};
  const KeptProject read = Through(kept);
  EXPECT_TRUE(read.modified);
  EXPECT_EQ(read.file.path, kept.file.path);
  EXPECT_EQ(read.file.disk, kept.file.disk);
  EXPECT_EQ(read.file.unread, kept.file.unread);
}

TEST(KeptProject, OpensAsAProject) {
  KeptProject kept;
  kept.st.iproj = "Bridge";
  kept.st.L = 7;
  const TempFolder folder;
  std::ofstream(folder / "a.kvn", std::ios::binary) << KeptText(kept);
  ProjectState st;
  EXPECT_EQ(OpenProject(folder / "a.kvn", st), FileResult::Ok);
  EXPECT_EQ(st.iproj, "Bridge");
  EXPECT_EQ(double(st.L), 7);
}

TEST(KeptProject, OfRubbishIsNone) {
  EXPECT_FALSE(ReadKept("", ProjectState()).has_value());
  EXPECT_FALSE(ReadKept("390\r\nx\r\n", ProjectState()).has_value());
  EXPECT_FALSE(ReadKept("KORVANE kept project 1\nL=7\n", ProjectState()).has_value());
}

TEST(ToKeep, IsNothingOfAProjectThatNobodyTouched) {
  Running r;
  EXPECT_FALSE(ToKeep(r.session).has_value());
  r.session.Enter("il", "7");
  ASSERT_TRUE(ToKeep(r.session).has_value());
  EXPECT_TRUE(ToKeep(r.session)->modified);
}

TEST(ToKeep, IsTheLastStateThatCouldBeCalculatedWithItsNames) {
  const TempFolder folder;
  Running r;
  r.session.Enter("il", "7");
  r.session.files().SavePathAs(folder / "a.kvn");
  r.session.Enter("iproj", "Bridge");
  r.session.Enter("igammam1", "0");
  EXPECT_THROW(r.session.Menu("mnuload1"), CalculationFault);
  const auto kept = ToKeep(r.session);
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(double(kept->st.L), 7);
  EXPECT_EQ(kept->st.gammam1, Running().st().gammam1);
  EXPECT_EQ(kept->st.iproj, "Bridge");
  EXPECT_EQ(kept->st.CurrentFileName, folder / "a.kvn");
  EXPECT_TRUE(kept->modified);

  // The next program goes on with it.
  const KeptProject read = Through(*kept);
  Running next;
  next.session.files().TakeUp(read.st, read.file, read.modified);
  EXPECT_EQ(next.session.NotCalculated(), "");
  EXPECT_EQ(double(next.st().L), 7);
  EXPECT_EQ(next.session.Text("iproj"), "Bridge");
  EXPECT_EQ(next.session.Title("korvane"), "KORVANE-NS3472: " + (folder / "a.kvn"));
  EXPECT_TRUE(next.session.files().Modified());
  next.session.Menu("mnusave");
  EXPECT_TRUE(next.platform.overwriteAsked.empty());
  EXPECT_FALSE(next.session.files().Modified());
  // A file that somebody has written since is still known as such.
  Running third;
  third.session.files().TakeUp(read.st, read.file, read.modified);
  third.session.Menu("mnusave");
  EXPECT_EQ(third.platform.overwriteAsked.size(), 1U);
}

TEST(ToKeep, OfANewProjectThatFailsIsTheOneBefore) {
  const TempFolder folder;
  Running r;
  r.session.Enter("il", "7");
  r.session.files().SavePathAs(folder / "a.kvn");
  r.session.Enter("igammam1", "0");
  EXPECT_THROW(r.session.Menu("mnunew"), CalculationFault);
  const auto kept = ToKeep(r.session);
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(kept->st.CurrentFileName, folder / "a.kvn");
  EXPECT_EQ(double(kept->st.L), 7);
  EXPECT_FALSE(kept->modified);
}

TEST(ToKeep, AfterAFileThatCannotBeReadIsTheOneBeforeUnderItsOwnName) {
  const TempFolder folder;
  std::ofstream(folder / "torn.kvn") << "390\r\nOther\r\nB\r\n2\r\n";
  Running r;
  r.session.Enter("iproj", "Bridge");
  r.session.Enter("il", "7");
  r.session.files().SavePathAs(folder / "a.kvn");
  r.session.files().OpenPath(folder / "torn.kvn");
  ASSERT_NE(r.session.NotCalculated(), "");
  const auto kept = ToKeep(r.session);
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(kept->st.CurrentFileName, folder / "a.kvn");
  EXPECT_EQ(kept->st.iproj, "Bridge");
  EXPECT_EQ(double(kept->st.L), 7);
}

TEST(Mending, LeavesNoWaitCursorBehindASearchThatFails) {
  class Cursor : public testing::RememberingPlatform {
  public:
    void WaitCursor(bool on) override { waits += on ? 1 : -1; }
    int waits = 0;
  };
  const TempFolder folder;
  Cursor platform;
  NamedSession session(SourceLibrary(), platform, false);
  session.Start();
  session.files().OpenPath(Project(folder, [](ProjectState& st) { st.gammam1 = 0; }));
  session.Menu("mnuopt");
  session.Click("cbp04");
  session.Click("Command1");
  session.Click("korvane.optimize");
  session.Click("korvane.ULS");
  EXPECT_TRUE(session.Mending());
  EXPECT_EQ(platform.waits, 0);
}

TEST(ToKeep, IsAnUnfinishedMendingAsItStands) {
  const TempFolder folder;
  Running r;
  r.session.files().OpenPath(Project(folder, [](ProjectState& st) {
    st.gammam1 = 0;
    st.q1 = 7;
  }));
  r.session.Enter("il", "9");
  const auto kept = ToKeep(r.session);
  ASSERT_TRUE(kept.has_value());
  EXPECT_EQ(double(kept->st.L), 9);
  Running next;
  EXPECT_NO_THROW(next.session.files().TakeUp(kept->st, kept->file, kept->modified));
  EXPECT_TRUE(next.session.Mending());
  EXPECT_NO_THROW(next.session.Focus("korvane"));
}

TEST(KeptWords, TellTheProject) {
  KeptProject kept;
  kept.modified = true;
  kept.st.iproj.clear();
  EXPECT_EQ(KeptWords(kept), "A project without a file, not saved yet");
  kept.st.CurrentFileName = "/a/b.kvn";
  kept.st.iproj = "Bridge";
  EXPECT_EQ(KeptWords(kept), "/a/b.kvn (Bridge), with unsaved changes");
  kept.modified = false;
  EXPECT_EQ(KeptWords(kept), "/a/b.kvn (Bridge)");
}

}  // namespace
}  // namespace korvane
