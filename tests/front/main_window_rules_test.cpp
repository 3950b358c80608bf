// SPDX-License-Identifier: GPL-3.0-or-later
// What the main window offers: its menu tree, the state of its frames and boxes by family, the
// deflection limit of its search, and what the material step shows.
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "places.h"
#include "sections/profile_table.h"
#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;
using Codes = std::set<int>;

struct Entry {
  const char* name;
  const char* caption;
  const char* above;
};

TEST(MenuTree, HasItsCommandsInOrder) {
  const std::vector<Entry> tree{
      {"mnufile", "&File", ""},
      {"mnunew", "&New", "mnufile"},
      {"mnuopen", "&Open", "mnufile"},
      {"mnusave", "&Save", "mnufile"},
      {"mnusaveas", "Save &As", "mnufile"},
      {"mnuspc", "-", "mnufile"},
      {"mnuprint00", "Print - Section &Property and Capacity", "mnufile"},
      {"mnuprint11", "Print  - Section and Stability Control", "mnufile"},
      {"mnurecentfile(0)", "-", "mnufile"},
      {"mnurecentfile(1)", "oldfile1", "mnufile"},
      {"mnurecentfile(2)", "oldfile2", "mnufile"},
      {"mnurecentfile(3)", "oldfile3", "mnufile"},
      {"mnurecentfile(4)", "oldfile4", "mnufile"},
      {"mnuspace", "-", "mnufile"},
      {"mnuexit", "&Exit", "mnufile"},
      {"mnustiff", "&Profiles", ""},
      {"mnup01", "HEA", "mnustiff"},
      {"mnup02", "HEB", "mnustiff"},
      {"mnup03", "HEM", "mnustiff"},
      {"mnup04", "IPE", "mnustiff"},
      {"mnup15", "INP", "mnustiff"},
      {"mnup05", "UPE", "mnustiff"},
      {"mnup16", "UNP", "mnustiff"},
      {"mnup06", "RHS - Square (Hotformed)", "mnustiff"},
      {"mnup07", "RHS - Rect (Hotformed)", "mnustiff"},
      {"mnup08", "CFRHS - Square (Coldformed)", "mnustiff"},
      {"mnup09", "CFRHS - Rect (Coldformed)", "mnustiff"},
      {"mnup10", "L-equal", "mnustiff"},
      {"mnup11", "L-unequal", "mnustiff"},
      {"mnubrtish", "-", "mnustiff"},
      {"mnup100", "British profiles", "mnustiff"},
      {"mnuu", "U", "mnup100"},
      {"mnuj", "J", "mnup100"},
      {"mnuc", "C", "mnup100"},
      {"mnuwelded", "-", "mnustiff"},
      {"mnup21", "I - double symmetric", "mnustiff"},
      {"mnup22", "I - single symmetric", "mnustiff"},
      {"mnu26", "T", "mnustiff"},
      {"mnup23", "Box ", "mnustiff"},
      {"mnup27", "Box - Non symmetric flanges", "mnustiff"},
      {"mnup24", "HSQ - Symmetric flange ", "mnustiff"},
      {"mnup25", "HSQ - Non symmetric flange ", "mnustiff"},
      {"mnup28", "Flatbar", "mnustiff"},
      {"mnuplate", "-", "mnustiff"},
      {"mnu56", "Plate + T-girder", "mnustiff"},
      {"mnu52", "Plate + L", "mnustiff"},
      {"mnu53", "Plate + L bult-up", "mnustiff"},
      {"mnu54", "Plate + Bulb Flat", "mnustiff"},
      {"mnu51", "Plate + Fb", "mnustiff"},
      {"mnu55", "Plate + Trapez", "mnustiff"},
      {"mnutube", "-", "mnustiff"},
      {"mnup31", "&Tube", "mnustiff"},
      {"mnugeneral", "-", "mnustiff"},
      {"mnup41", "&General Profile ", "mnustiff"},
      {"", "-", "mnustiff"},
      {"mnudb", "Project &Database", "mnustiff"},
      {"mnuload1", "&Loading", ""},
      {"mnuendforces", "&Endforces", ""},
      {"mnuopt", "&Optimze Database Profiles", ""},
      {"mnuprint", "P&rint", ""},
      {"mnuprint0", "Section &Property and Capacity", "mnuprint"},
      {"mnuprint1", "&Section and Stability Control", "mnuprint"},
      {"mnusetup", "&Default Values", ""},
      {"mnuhelp", "&Help", ""},
      {"mnuhelpcont", "&Contents", "mnuhelp"},
      {"mnuhelpsearch", "&Search for Help On . . . ", "mnuhelp"},
      {"line", "-", "mnuhelp"},
      {"mnuabout", "&About KORVANE - NS3472", "mnuhelp"},
  };
  std::vector<const Control*> commands;
  for (const Control& c : FindForm("korvane")->controls) {
    if (c.kind == Kind::Menu) commands.push_back(&c);
  }
  ASSERT_EQ(commands.size(), tree.size());
  for (std::size_t i = 0; i < tree.size(); ++i) {
    // One separator has no name of its own.
    if (*tree[i].name != '\0') {
      EXPECT_EQ(commands[i]->name, tree[i].name);
    }
    EXPECT_EQ(commands[i]->caption, tree[i].caption) << tree[i].name;
    EXPECT_EQ(commands[i]->parent, tree[i].above) << tree[i].name;
  }
}

/// A control that some families lock.
struct Locked {
  const char* control;
  Codes families;
};

TEST(EnabledState, FollowsTheFamily) {
  const Codes plates{51, 52, 53, 54, 55, 56};
  const auto with = [&](Codes codes) {
    codes.insert(plates.begin(), plates.end());
    return codes;
  };
  const std::vector<Locked> table{
      {"columnframe", with({24, 25, 27})},
      {"frsectionc", with({10, 11, 22, 24, 25, 26, 27})},
      {"frbuckling", {10, 11, 26}},
      {"fr15", {10, 11, 28, 31, 41}},
      // The loads of a new member bend a plate downwards.
      {"ch_vipp", with({6, 7, 8, 9, 10, 11, 23, 24, 25, 26, 27, 31})},
  };
  for (const Family& family : AllFamilies()) {
    Running r;
    r.session.Menu(family.menuControl);
    r.session.Focus("korvane");
    for (const Locked& c : table) {
      // The lists say nothing of the section control of the flat bar.
      if (std::string(c.control) == "frsectionc" && family.code == 28) continue;
      const bool enabled = c.families.count(family.code) == 0;
      EXPECT_EQ(r.session.Enabled(std::string("korvane.") + c.control), enabled)
          << c.control << " " << family.code;
    }
    EXPECT_EQ(r.session.Checked("korvane.ch_vipp"), r.session.Enabled("korvane.ch_vipp"))
        << family.code;
  }
}

TEST(EnabledState, FollowsTheForces) {
  Running r;
  EXPECT_TRUE(r.session.Enabled("columnframe"));
  r.session.Menu("mnuload1");
  r.session.Enter("inp", "0");
  EXPECT_FALSE(r.session.Enabled("korvane.columnframe"));
  r.session.Enter("inp", "-10");
  EXPECT_FALSE(r.session.Enabled("korvane.columnframe"));
  // A plate member that hogs can buckle laterally.
  r.session.Menu("mnu56");
  r.session.Enter("loading.iq1", "-10");
  r.session.Focus("korvane");
  EXPECT_LT(double(r.session.design().beam.My_gov), 0.0);
  EXPECT_TRUE(r.session.Enabled("ch_vipp"));
}

TEST(EnabledState, TheSpringAndTheLoadLevelAreShownWhereTheyCount) {
  Running r;
  for (int support = 0; support <= 5; ++support) {
    r.session.Click("cbutt" + std::to_string(support));
    EXPECT_EQ(r.session.Enabled("ispring"), support == 3 || support == 5) << support;
    EXPECT_EQ(r.session.Visible("ispring"), support == 3 || support == 5) << support;
    EXPECT_EQ(r.session.Text("ispring"), "50");
  }
  EXPECT_FALSE(r.session.Visible("oza"));
  r.session.Click("cbuttlateral");
  r.session.Click("loadl4");
  r.session.Enter("iza", "120");
  EXPECT_TRUE(r.session.Visible("korvane.oza"));
  EXPECT_EQ(r.session.Text("korvane.oza"), "Za = 120 mm");
}

TEST(Materials, AThickerSectionShowsItsStressWithoutATouchOfTheMaterial) {
  Running r;
  r.session.Menu("mnup21");
  r.session.Enter("isttf", "40");
  EXPECT_EQ(r.session.Text("korvane.ifyk"), "355");
  r.session.Enter("isttf", "40.1");
  EXPECT_EQ(r.session.Text("korvane.ifyk"), "335");
  // 335/1.1
  EXPECT_EQ(r.session.Text("korvane.ofyd"), "fd = 304.5");
  // New leaves the fields, but the calculation writes this one.
  r.session.Enter("korvane.il", "9");
  r.session.Menu("mnunew");
  EXPECT_EQ(r.session.Text("korvane.il"), "9.000");
  EXPECT_EQ(r.session.Text("korvane.ifyk"), "355");
}

TEST(Materials, AStressTypedForAGradeIsOverwritten) {
  Running r;
  EXPECT_TRUE(r.session.Enter("ifyk", "300"));
  EXPECT_EQ(r.st().fyk, 355.0);
  EXPECT_EQ(r.session.Text("ifyk"), "355");
}

TEST(Defaults, AnAllowableFactorBelowOneFailsWhatPassedBefore) {
  const TempFolder folder;
  std::string text = GetFile(KORVANE_SOURCE_DIR "/data/default_ns.dat");
  const bool dosLines = text.find("\r\n") != std::string::npos;
  const std::string before = dosLines ? "250\r\n0\r\n1\r\n" : "250\n0\n1\n";
  ASSERT_NE(text.find(before), std::string::npos);
  text.replace(text.find(before), before.size(), dosLines ? "250\r\n0\r\n.9\r\n" : "250\n0\n.9\n");
  PutFile(folder / "default_ns.dat", text);
  Running strict(false, Folders{{}, folder.Path()});
  Running usual;
  for (Running* r : {&strict, &usual}) {
    // Pinned, no axial force: My = 1.2*q*25/8 = 3.75*q against Mdy = 125.4 kNm; q = 31.8 kN/m
    // gives 0.95.
    r->st().LateralTorsionalBuckling = 0;
    r->session.Menu("mnuload1");
    r->session.Enter("inp", "0");
    r->session.Enter("iq1", "31.8");
  }
  // The sign is the same; the colour tells: 4 red, 2 green.
  EXPECT_NE(strict.session.Text("korvane.pic31").find("IR = 0.95  <  0.90"), std::string::npos);
  EXPECT_EQ(strict.session.design().checks.lineSection.colour, 4);
  EXPECT_NE(usual.session.Text("korvane.pic31").find("IR = 0.95  <  1.00"), std::string::npos);
  EXPECT_EQ(usual.session.design().checks.lineSection.colour, 2);
}

TEST(Defaults, OfOnesOwnAreReadAtTheStartAndLeftAloneByNew) {
  const TempFolder folder;
  Running first(false, Folders{{}, folder.Path()});
  first.session.Menu("mnusetup");
  first.session.Enter("igammam1", "1.25");
  first.session.Enter("iufa", "0.9");
  first.session.Select("cbofyk", 2);
  first.session.Click("Command2");

  Running r(false, Folders{{}, folder.Path()});
  EXPECT_EQ(r.st().gammam1, float32(1.25));
  EXPECT_EQ(r.st().iufa, float32(0.9));
  EXPECT_EQ(r.st().MaterialIndex, 2);
  r.session.Enter("igammam1", "1.05");
  r.session.Menu("mnunew");
  EXPECT_EQ(r.st().gammam1, float32(1.05));
  EXPECT_EQ(r.st().iufa, 1.0);
  EXPECT_EQ(r.st().MaterialIndex, 5);
}

TEST(Labels, OfTheColumnDataTellTheAxes) {
  const Running r;
  EXPECT_EQ(r.session.Text("obuckltext"), "Buckling curve:");
  EXPECT_EQ(r.session.Text("oblfactor"), "Buckling length factor:");
  EXPECT_EQ(r.session.Text("ouaxis"), "U-axis for L-profiles");
  EXPECT_EQ(r.session.Text("ovaxis"), "V-axis for L-profiles");
}

TEST(DeflectionLimit, SearchesAnewAndNeverCalculates) {
  Running r;
  r.session.Click("optimize");
  const int before = r.session.Calculations();
  // Without a criterion there is nothing to search for.
  const int size = r.st().idxHEA;
  EXPECT_TRUE(r.session.Enter("idef_limit", "1500"));
  EXPECT_EQ(r.st().idxHEA, size);
  r.session.Enter("idef_limit", "100");
  r.session.Click("SLS");
  const int light = r.st().idxHEA;
  const std::string lines = r.session.Text("pic31");
  EXPECT_TRUE(r.session.Enter("idef_limit", "1500"));
  EXPECT_GT(r.st().idxHEA, light);
  EXPECT_NE(r.session.Text("pic31"), lines);
  EXPECT_EQ(r.session.Calculations(), before);
  EXPECT_TRUE(r.session.Visible("idef_limit"));
  // A refused value searches nothing.
  const int heavy = r.st().idxHEA;
  EXPECT_FALSE(r.session.Enter("idef_limit", "99"));
  EXPECT_EQ(r.st().idxHEA, heavy);
}

TEST(Files, HoldADecimalPointWhateverTheLocale) {
  const TempFolder folder;
  std::vector<std::string> texts;
  for (const bool comma : {false, true}) {
    Running r(comma);
    r.session.Enter("il", comma ? "6,25" : "6.25");
    r.platform.answers.emplace_back(folder / "a.kvn");
    r.session.Menu("mnusaveas");
    texts.push_back(GetFile(folder / "a.kvn"));
  }
  EXPECT_EQ(texts[0], texts[1]);
  EXPECT_NE(texts[0].find("\r\n6.25\r\n"), std::string::npos);
}

// Rows of the input tables that hold in a state of their own

struct Variant {
  const char* form;
  const char* control;
  const char* typed;
  const char* message;  ///< nullptr: accepted
  double stored;
};

TEST(InputVariants, RelativePositionsAndTheCantileverHaveTheirOwnLimits) {
  std::vector<Variant> table{
      {"vipping", "ik", "1", nullptr, 1.0},
      {"vipping", "ik", "2", nullptr, 2.0},
      {"vipping", "ik", "0.99999994", " 1.0 <= k <= 2.0 ", 0.99999994},
      {"vipping", "ik", "2.0000002", " 1.0 <= k <= 2.0 ", 2.0000002},
      {"chpoints", "icp(1)", "0", nullptr, 0.0},
      {"chpoints", "icp(3)", "1", nullptr, 5.0},
      {"chpoints", "icp(2)", "0.5", nullptr, 2.5},
      {"chpoints", "icp(2)", "1.0000001", " 0 <= x <= 1 ", 5.0000005},
      {"chpoints", "icp(2)", "-1e-44", " 0 <= x <= 1 ", -5e-44},
  };
  for (const auto& [control, message] :
       std::vector<std::pair<const char*, const char*>>{{"ipmx(1)", " 0 < x <= 1 "},
                                                        {"ipmx(8)", " 0 < x <= 1 "},
                                                        {"iqt1x1", " 0 < x1 <= 1 "},
                                                        {"iqt2x1", " 0 < x1 <= 1 "},
                                                        {"iqt3x1", " 0 < x1 <= 1 "},
                                                        {"iqt1x2", " 0 < x2 <= 1 "},
                                                        {"iqt2x2", " 0 < x2 <= 1 "},
                                                        {"iqt3x2", " 0 < x1 <= 1 "}}) {
    table.push_back({"loading", control, "0", nullptr, 0.0});
    table.push_back({"loading", control, "1", nullptr, 5.0});
    table.push_back({"loading", control, "1.0000001", message, 0.0});
    table.push_back({"loading", control, "-1e-44", message, 0.0});
  }
  for (const Variant& c : table) {
    Running r;
    ProjectState& st = r.st();
    st.SupportType = 4;
    st.LateralBucklingCase = 5;
    st.cp_mode = 1;
    st.cp_count = 3;
    st.pmx_relative = st.qtx_relative = st.cp_relative = 1;
    r.session.Show(c.form);
    const bool accepted = r.session.Enter(c.control, c.typed);
    const std::string where = std::string(c.control) + " " + c.typed;
    EXPECT_EQ(accepted, c.message == nullptr) << where;
    const FieldRule& rule = FindControl(*FindForm(c.form), c.control)->field;
    // A position is read as the share of the 5 m.
    const bool position = std::string(c.form) != "vipping";
    EXPECT_NEAR(ReadInput(st, rule.input) * (position ? 5.0 : 1.0), c.stored, 1e-6) << where;
    EXPECT_EQ(r.session.Green(c.control), !accepted) << where;
    EXPECT_EQ(r.platform.messages,
              accepted ? std::vector<std::string>{} : std::vector<std::string>{c.message})
        << where;
  }
}

}  // namespace
}  // namespace korvane
