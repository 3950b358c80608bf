// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of the main window.
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

/// Appends entries of one menu.
class MenuBuilder {
public:
  MenuBuilder(Form& form, std::string parent, std::string caption,
              std::function<void(Session&)> click = {}, std::string above = {})
      : form_(form), parent_(std::move(parent)) {
    own_ = Add(parent_, std::move(caption), std::move(click), std::move(above));
  }
  const Control* Own() const { return own_; }
  Control* Entry(std::string name, std::string caption, std::function<void(Session&)> click = {}) {
    return Add(std::move(name), std::move(caption), std::move(click), parent_);
  }

private:
  Control* Add(std::string name, std::string caption, std::function<void(Session&)> click,
               std::string above) {
    Control c;
    c.name = std::move(name);
    c.kind = Kind::Menu;
    c.caption = std::move(caption);
    c.click = std::move(click);
    c.parent = std::move(above);
    form_.controls.push_back(std::move(c));
    return &form_.controls.back();
  }
  Form& form_;
  std::string parent_;
  const Control* own_;
};

/// A family's command: its code comes in force and its form is shown; the calculation follows the
/// first change or the return to the main window.
void ChooseFamily(Session& s, const Family& family) {
  s.st().ProfileType = family.code;
  if (family.familyWord != nullptr) s.st().FamilyName = family.familyWord;
  if (family.givenConstants) s.st().FigureNotToScale = 0;
  s.Show(FamilyForm(family.code));
}

void AddFamilyEntries(MenuBuilder& menu, std::initializer_list<int> codes) {
  for (const int code : codes) {
    const Family& family = *FindFamily(code);
    Control* entry = menu.Entry(family.menuControl, family.menuCaption,
                                [&family](Session& s) { ChooseFamily(s, family); });
    entry->checked = [code](const Session& s) { return s.st().ProfileType == code; };
  }
}

void Print(Session& s, int kind) {
  s.platform().PreparePrint(s.design(), kind, s.NotCalculated());
  auto job = s.platform().AskPrint();
  if (!job) return;
  job->notice = s.NotCalculated();
  s.platform().Print(s.design(), kind, *job);
}

void OpenHelp(Session& s) {
  s.platform().OpenHelp(s.folders().program + "\\Korvane NS3472.chm");
}

void OpenOptimiser(Session& s) {
  s.st().ManualBucklingCurves = 0;
  if (!CanOptimise(s.st())) {
    s.platform().Message(kOnlyDatabaseProfiles);
    return;
  }
  s.FocusField(*TheForms().onMain.iproj);
  s.Show(*TheForms().optimiser);
}

void AddRecentFiles(MenuBuilder& file, MainControls& on) {
  file.Entry("mnurecentfile(0)", "-")->visible = [](const Session& s) {
    return !s.files().Recent(1).empty();
  };
  for (int i = 1; i <= kRecentFiles; ++i) {
    const std::string number = std::to_string(i);
    Control* entry = file.Entry("mnurecentfile(" + number + ")", "oldfile" + number,
                                [i](Session& s) { s.files().OpenRecent(i); });
    entry->visible = [i](const Session& s) { return !s.files().Recent(i).empty(); };
    entry->text = [i, number](const Session& s) {
      const std::string path = s.files().Recent(i);
      return path.empty() ? "oldfile" + number : "&" + number + " " + path;
    };
    on.mnurecentfile[i] = entry;
  }
}

void AddFileMenu(Form& form, MainControls& on) {
  MenuBuilder file(form, "mnufile", "&File");
  on.mnunew = file.Entry("mnunew", "&New", [](Session& s) { s.files().New(); });
  on.mnuopen = file.Entry("mnuopen", "&Open", [](Session& s) { s.files().Open(); });
  on.mnusave = file.Entry("mnusave", "&Save", [](Session& s) { s.files().Save(); });
  on.mnusaveas = file.Entry("mnusaveas", "Save &As", [](Session& s) { s.files().SaveAs(); });
  file.Entry("mnuspc", "-");
  file.Entry("mnuprint00", "Print - Section &Property and Capacity",
             [](Session& s) { Print(s, 0); });
  on.mnuprint11 = file.Entry("mnuprint11", "Print  - Section and Stability Control",
                             [](Session& s) { Print(s, 1); });
  AddRecentFiles(file, on);
  file.Entry("mnuspace", "-");
  on.mnuexit = file.Entry("mnuexit", "&Exit", [](Session& s) { s.End(); });
}

void AddProfilesMenu(Form& form, MainControls& on) {
  MenuBuilder profiles(form, "mnustiff", "&Profiles");
  on.mnustiff = profiles.Own();
  AddFamilyEntries(profiles, {1, 2, 3, 4, 15, 5, 16, 6, 7, 8, 9, 10, 11});
  profiles.Entry("mnubrtish", "-");
  MenuBuilder british(form, "mnup100", "British profiles", {}, "mnustiff");
  AddFamilyEntries(british, {101, 102, 103});
  profiles.Entry("mnuwelded", "-");
  AddFamilyEntries(profiles, {21, 22, 26, 23, 27, 24, 25, 28});
  profiles.Entry("mnuplate", "-");
  AddFamilyEntries(profiles, {56, 52, 53, 54, 51, 55});
  profiles.Entry("mnutube", "-");
  AddFamilyEntries(profiles, {31});
  profiles.Entry("mnugeneral", "-");
  AddFamilyEntries(profiles, {41});
  profiles.Entry("mnuspacedb", "-");
  profiles.Entry("mnudb", "Project &Database", [](Session& s) {
    s.st().DatabaseMode = 1;
    s.Show(*TheForms().database);
  });
}

}  // namespace

void AddMenus(Forms& forms, Form& form) {
  MainControls& on = forms.onMain;
  AddFileMenu(form, on);
  AddProfilesMenu(form, on);
  MenuBuilder(form, "mnuload1", "&Loading", [](Session& s) {
    s.st().AnalysisMode = 1;
    s.Calculate();
    s.Show(*TheForms().loading);
  });
  MenuBuilder(form, "mnuendforces", "&Endforces", [](Session& s) {
    s.st().AnalysisMode = 0;
    s.st().SupportType = 0;
    s.Calculate();
    s.Show(*TheForms().endForces);
  });
  MenuBuilder(form, "mnuopt", "&Optimze Database Profiles", OpenOptimiser);
  MenuBuilder print(form, "mnuprint", "P&rint");
  print.Entry("mnuprint0", "Section &Property and Capacity", [](Session& s) { Print(s, 0); });
  print.Entry("mnuprint1", "&Section and Stability Control", [](Session& s) { Print(s, 1); });
  MenuBuilder(form, "mnusetup", "&Default Values", [](Session& s) { s.Show(*TheForms().setup); });
  MenuBuilder help(form, "mnuhelp", "&Help");
  on.mnuhelp = help.Own();
  on.mnuhelpcont = help.Entry("mnuhelpcont", "&Contents", OpenHelp);
  on.mnuhelpsearch = help.Entry("mnuhelpsearch", "&Search for Help On . . . ", OpenHelp);
  help.Entry("line", "-");
  help.Entry("mnuabout", "&About KORVANE - NS3472", [](Session& s) { s.Show(*TheForms().about); });
}

}  // namespace korvane
