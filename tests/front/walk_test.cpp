// SPDX-License-Identifier: GPL-3.0-or-later
// A walk through the whole program on both decimal settings: every command, every form, every
// control once, each in a state in which a person can use it.
#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <string>

#include "places.h"
#include "sections/profile_table.h"
#include "tests/core/temp_folder.h"
#include "tests/front/front_support.h"
#include "tests/support/source_library.h"

namespace korvane {
namespace {

using testing::Running;

/// No field has met text that it can't read, and the program designs on.
void ExpectWell(Running& r, const std::string& where) {
  for (const std::string& message : r.platform.messages) {
    EXPECT_NE(message, "Input string mismatch ") << where;
  }
  if (r.session.Ended()) return;
  ASSERT_NO_THROW(r.session.Focus("korvane")) << where;
  EXPECT_TRUE(std::isfinite(double(MaxIR(r.session.design().checks)))) << where;
  EXPECT_FALSE(r.session.Text("korvane.obeam").empty()) << where;
}

bool IsSeparator(const Control& c) {
  return c.caption == "-";
}

/// Brings the recent files that the menu shows.
void RememberFiles(Running& r) {
  for (const char* key : {"RecentFile1", "RecentFile2", "RecentFile3", "RecentFile4"}) {
    r.platform.SetSetting(key, KORVANE_SOURCE_DIR "/examples/column-hea200.kvn");
  }
}

TEST(Walk, EveryCommandRunsAndItsFormCloses) {
  for (const bool comma : {false, true}) {
    int commands = 0;
    for (const Control& c : FindForm("korvane")->controls) {
      if (c.kind != Kind::Menu || IsSeparator(c)) continue;
      Running r(comma);
      RememberFiles(r);
      EXPECT_TRUE(r.session.Visible(c.name)) << c.name;
      EXPECT_TRUE(r.session.Enabled(c.name)) << c.name;
      ASSERT_NO_THROW(r.session.Menu(c.name)) << c.name;
      const std::string form = r.session.OpenForms().back();
      if (form != "korvane") {
        EXPECT_NE(r.session.Title(form), "") << c.name;
        EXPECT_TRUE(r.session.Close(form)) << c.name;
        EXPECT_FALSE(r.session.IsOpen(form)) << c.name;
      }
      EXPECT_EQ(r.session.Ended(), c.name == "mnuexit") << c.name;
      ExpectWell(r, c.name);
      ++commands;
    }
    // 8 of File and the 4 recent ones, the Profiles menu with 32 families, British profiles and
    // the database, 4 single ones, Print and Help with 2 and 3.
    EXPECT_EQ(commands, 12 + 35 + 4 + 3 + 4);
  }
}

/// The state in which a control of a form can be used.
void Prepare(Running& r, const std::string& form, const std::string& control) {
  ProjectState& st = r.st();
  st.MaterialIndex = SourceLibrary()->materials.Last();
  RememberFiles(r);
  if (form == "korvane") {
    if (control == "ispring") st.SupportType = 3;
    if (control == "cmd_modresult") st.ModalAnalysis = 1;
    if (control == "idef_limit" || control.find("LS") != std::string::npos) {
      r.session.Click("optimize");
    }
    if (control == "oweba") st.WebStiffener = 1;
    if (control == "oza") st.LoadLevel = 4;
    return;
  }
  testing::ShowEveryField(form, st);
  if (form == "loading") st.SelfWeight = 1;
  if (form == "bucklingcurve") st.ManualBucklingCurves = 1;
  if (form == "setup") st.check_slend = 1;
  if (form == "optroll" && control == "idef_limit") st.ResultView = 1;
  if (form == "database") {
    for (const char* family : {"mnup01", "mnup21", "mnu54"}) {
      r.session.Menu(family);
      r.session.Click("addtodb");
    }
  }
  if (form[0] == 'p') st.ProfileType = std::stoi(form.substr(1));
  r.session.Show(form);
  if (control == "undoremove") r.session.Click("Command1");
  if (form == "database") r.session.Select("cbo", 1);
  if (form == "optroll" && control.rfind("op", 0) == 0) {
    const std::string box = "cbp" + control.substr(2);
    if (!r.session.Checked(box)) r.session.Click(box);
  }
}

/// Uses a control in the way of its kind.
void Touch(Running& r, const std::string& form, const Control& c) {
  const std::string key = form + "." + c.name;
  if (c.kind == Kind::Input) {
    EXPECT_TRUE(r.session.Enter(key, r.session.Text(key))) << key;
    EXPECT_FALSE(r.session.Green(key)) << key;
    return;
  }
  if (c.kind == Kind::List) {
    const auto items = r.session.Items(key);
    ASSERT_FALSE(items.empty()) << key;
    r.session.Select(key, static_cast<int>(items.size()) - 1);
    EXPECT_EQ(r.session.Text(key), items.back()) << key;
    return;
  }
  const bool before = r.session.Checked(key);
  r.session.Click(key);
  if (c.kind == Kind::Option) {
    EXPECT_TRUE(r.session.Checked(key)) << key;
  } else if (c.kind == Kind::Check) {
    EXPECT_NE(r.session.Checked(key), before) << key;
  }
  if (c.name == "ok" || c.caption == "OK" || c.caption == "CLOSE" || c.caption == "Cancel") {
    EXPECT_FALSE(r.session.IsOpen(form)) << key;
  }
}

TEST(Walk, EveryControlOfEveryFormIsUsedOnce) {
  const TempFolder folder;  // one of the controls saves the defaults
  for (const bool comma : {false, true}) {
    for (const Form& form : AllForms()) {
      for (const Control& c : form.controls) {
        if (c.kind == Kind::Menu) continue;
        Running r(comma, Folders{{}, folder.Path()});
        Prepare(r, form.name, c.name);
        const std::string key = form.name + "." + c.name;
        ASSERT_NO_THROW(r.session.Text(key)) << key;
        if (c.kind == Kind::Frame || c.kind == Kind::Label) continue;
        if (c.kind == Kind::Surface && !c.click) continue;
        EXPECT_TRUE(r.session.Enabled(key)) << key;
        EXPECT_TRUE(r.session.Visible(key)) << key;
        ASSERT_NO_THROW(Touch(r, form.name, c)) << key;
        ExpectWell(r, key);
      }
    }
  }
}

TEST(Walk, EveryFormHasAWayToIt) {
  std::set<std::string> reached{"korvane"};
  for (const Control& c : FindForm("korvane")->controls) {
    Running r;
    Prepare(r, "korvane", c.name);
    if (c.kind == Kind::Menu) r.session.Menu(c.name);
    if (c.kind == Kind::Button || c.kind == Kind::Picture) r.session.Click(c.name);
    for (const std::string& form : r.session.OpenForms()) reached.insert(form);
  }
  for (const Form& form : AllForms()) EXPECT_EQ(reached.count(form.name), 1U) << form.name;
}

}  // namespace
}  // namespace korvane
