// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: its inputs, options, pictures, result panes and commands.
#include <cctype>
#include <cmath>

#include "checks/buckling_curves.h"
#include "core/supports.h"
#include "core/text.h"
#include "front/forms/forms.h"
#include "front/pane_text.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

std::string ViewText(const View& view) {
  std::string out;
  for (const ViewLine& line : view) {
    if (!out.empty()) out += " | ";
    for (const TextRun& run : line.runs) out += (run.atTab ? " " : "") + run.text;
  }
  return out;
}

std::function<std::string(const Session&)> Fixed(std::string caption) {
  return [caption = std::move(caption)](const Session&) { return caption; };
}

FieldRule YieldRule() {
  FieldRule rule = Calculated(&ProjectState::fyk);
  rule.format = "#000";
  return rule;
}

Control MaterialList() {
  Control c;
  c.name = "cbofyk";
  c.kind = Kind::List;
  c.caption = "Material";
  c.tip = "Steel grade; the last entry leaves fyk free for typing";
  c.items = [](const Session& s) {
    std::vector<std::string> names;
    for (const Material& m : s.design().lib->materials.rows) names.push_back(m.name);
    return names;
  };
  c.selected = [](const Session& s) { return int(s.st().MaterialIndex); };
  c.select = [](Session& s, int index) {
    const MaterialTable& table = s.design().lib->materials;
    s.st().MaterialIndex = index;
    if (index < table.Last()) {
      SetMaterial(table, s.design().rec.tmax, s.st());
      s.Refill("korvane", "ifyk");
      if (s.IsOpen("setup")) s.Refill("setup", "ifyk");
    }
    s.Calculate();
  };
  return c;
}

namespace {

bool FreeMaterial(const Session& s) {
  return s.st().MaterialIndex >= s.design().lib->materials.Last();
}

const Family* FamilyOf(const Session& s) {
  return FindFamily(s.st().ProfileType);
}

void ClickSupport(Session& s, const Support& support) {
  ProjectState& st = s.st();
  TakeSupport(support, st);
  if (st.BucklingCaseY < 5) s.Refill("korvane", "ibly");
  if (st.BucklingCaseZ < 5) s.Refill("korvane", "iblz");
  if (IsSpring(support.code)) {
    s.Refill("korvane", "ispring");
    s.FocusField("korvane.ispring");
  }
  // The cantilever deliberately leaves the loads untidied.
  if (!IsCantilever(support.code)) {
    if (const auto message = NormaliseLoads(st)) s.platform().Message(message->text);
  }
  s.Calculate();
}

/// The Return key on the picture of the one spring takes what stands in the spring field, within
/// a range of its own.
void TakeSpring(Session& s) {
  if (!s.Enabled("korvane.ispring")) return;
  FieldRule rule = Calculated(&ProjectState::SpringRestraint);
  rule.limit = Between(1, 99, " 1 < springstiffness 99 ");
  s.LeaveBy("korvane.ispring", rule);
}

/// "Pinned - fixed".
std::string SupportTip(const Support& support) {
  std::string tip = support.name;
  tip[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(tip[0])));
  return tip;
}

/// k_ltb while the check is off.
constexpr double kLtbOffMark = 0.001;

void ToggleLateral(Session& s) {
  ProjectState& st = s.st();
  if (st.LateralTorsionalBuckling == 1) {
    st.LateralTorsionalBuckling = 0;
    st.LtbSegments = 0;
    if (st.k_ltb != float32(kLtbOffMark)) st.k_ltb_before = st.k_ltb;
    st.k_ltb = kLtbOffMark;
  } else {
    st.LateralTorsionalBuckling = 1;
    const double k = LengthFactorOfCase(st.LateralBucklingCase);
    if (k > 0) {
      st.k_ltb = k;
    } else if (st.k_ltb == float32(kLtbOffMark)) {
      st.k_ltb = st.k_ltb_before;  // a typed case takes the last in force
    }
  }
  s.Calculate();
}

void ToggleModal(Session& s) {
  ProjectState& st = s.st();
  if (st.ModalAnalysis == 1) {
    st.ModalAnalysis = 0;
  } else if (IsSpring(st.SupportType)) {
    s.platform().Message(" Modal analysis not possible for spring supports ");
    return;
  } else {
    st.ModalAnalysis = 1;
  }
  s.Calculate();
}

bool LateralOffered(const Session& s) {
  const Family* family = FamilyOf(s);
  if (family == nullptr || family->lateral.method == LateralMethod::None) return false;
  return !IsStiffenedPlate(s.st().ProfileType) || s.design().beam.My_gov < 0;
}

/// The optimiser group: a search of the family in force, redrawn without a calculation.
void RunOptimiseCurrent(Session& s) {
  s.platform().WaitCursor(true);
  OptimiseCurrent(s.design(), s.optimiser(),
                  [&s](int done, int all) { s.platform().Progress(done, all); });
  ComposeResults(s.design());
  s.platform().WaitCursor(false);
}

Control CriterionOption(const char* name, int criterion) {
  Control c = Option(
      name, kCriterionCaptions[criterion],
      [criterion](const Session& s) { return s.st().ResultView == criterion; },
      [criterion](Session& s) {
        s.st().ResultView = criterion;
        RunOptimiseCurrent(s);
      });
  c.visible = [](const Session& s) { return s.st().OptimiseOpen == 1; };
  return c;
}

Control TextInput(const char* name, const char* caption, std::string ProjectState::*member) {
  Control c = Input(name, caption, {});
  c.text = [member](const Session& s) { return s.st().*member; };
  return c;
}

Control Surface(const char* name, std::function<std::string(const Session&)> text) {
  Control c;
  c.name = name;
  c.kind = Kind::Surface;
  c.text = std::move(text);
  return c;
}

/// The result lines of the main window.
std::string ShortResults(const Session& s) {
  const Design& d = s.design();
  std::string text = ViewText(SectionControlShort(d.st, d.checks));
  if (ShowsBuckling(d.st, d.forces.N)) {
    text += " | " + ViewText(BucklingShort(d.st, d.checks, d.buckling));
  }
  return s.OnScreen(std::move(text));
}

void AddInputs(std::vector<Control>& c) {
  c.push_back(TextInput("iproj", "Project name:", &ProjectState::iproj));
  c.push_back(TextInput("iident", "Identification:", &ProjectState::iident));

  FieldRule length = Bind(&ProjectState::L);
  length.then = [](Session& s) {
    if (const auto message = NormaliseLoads(s.st())) s.platform().Message(message->text);
    s.Calculate();
  };
  c.push_back(Input("il", "L", length, "Member length"));

  c.push_back(MaterialList());
  Control yield =
      Input("ifyk", "fyk =", YieldRule(), "Characteristic yield stress, open for the free grade");
  yield.enabled = FreeMaterial;
  c.push_back(yield);
  c.push_back(Input("ie", "E =", Calculated(&ProjectState::E), "Young's modulus"));
  c.push_back(
      TextLabel("ofyd", [](const Session& s) { return "fd = " + s.Shown(s.st().fd, "#00.0"); }));
  c.back().unit = "MPa";
  c.push_back(Input("igammam1", "gm1 =", Calculated(&ProjectState::gammam1), "Material factor"));

  const auto buckling = [&](const char* name, const char* caption, float32 ProjectState::*factor,
                            int16 ProjectState::*bucklingCase) {
    FieldRule rule = Bind(factor);
    rule.then = [bucklingCase](Session& s) {
      s.st().*bucklingCase = 6;
      s.Calculate();
    };
    c.push_back(Input(name, caption, rule, "Buckling length factor"));
  };
  buckling("ibly", "Buckling length factor: Y-axis", &ProjectState::bly,
           &ProjectState::BucklingCaseY);
  buckling("iblz", "Buckling length factor: Z-axis", &ProjectState::blz,
           &ProjectState::BucklingCaseZ);

  Control ispring =
      Input("ispring", "Spring restraint", Calculated(&ProjectState::SpringRestraint));
  ispring.enabled = [](const Session& s) { return IsSpring(s.st().SupportType); };
  ispring.visible = ispring.enabled;
  c.push_back(ispring);

  FieldRule deflection = Bind(&ProjectState::DeflectionLimit);
  deflection.then = [](Session& s) {
    const int view = s.st().ResultView;
    if (view >= 0 && view <= 2) RunOptimiseCurrent(s);
  };
  Control limit = Input("idef_limit", "L/", deflection, "Deflection limit L/x");
  limit.visible = [](const Session& s) { return s.st().OptimiseOpen == 1; };
  c.push_back(limit);
}

void AddOptions(std::vector<Control>& c) {
  for (const Support& support : kSupports) {
    const int k = support.code;
    c.push_back(Picture("cbutt" + std::to_string(k), SupportTip(support),
                        [&support](Session& s) { ClickSupport(s, support); }));
    c.back().checked = [k](const Session& s) { return s.st().SupportType == k; };
  }
  c.back().returnKey = TakeSpring;
  const auto inFrame = [&c](Control control, bool FamilyOptions::*flag) {
    control.enabled = [flag](const Session& s) {
      const Family* family = FamilyOf(s);
      return family != nullptr && family->options.*flag;
    };
    c.push_back(std::move(control));
  };
  inFrame(
      ValueOption("obuckling0", "Plastic section modulus", &ProjectState::BendingCapacityMode, 0),
      &FamilyOptions::bending);
  inFrame(
      ValueOption("obuckling1", "Elastic section modulus", &ProjectState::BendingCapacityMode, 1),
      &FamilyOptions::bending);
  inFrame(ValueOption("osectionc0", "Conservative control for N+My, N+Mz, My+Mz and N+My+Mz",
                      &ProjectState::SectionControlMode, 0),
          &FamilyOptions::sectionControl);
  inFrame(ValueOption("osectionc1", " Valid for Double Symmetric Profiles ",
                      &ProjectState::SectionControlMode, 1),
          &FamilyOptions::sectionControl);
  const auto bucklingOptions = [](const Session& s) {
    const Family* family = FamilyOf(s);
    return family == nullptr || family->options.classFour;
  };
  c.push_back(FlagCheck("ch_webbuck", "Web buckling not taken into account",
                        &ProjectState::IgnoreWebBuckling));
  c.back().enabled = bucklingOptions;
  c.push_back(FlagCheck("ch_flangebuck", "Flange buckling not taken into account",
                        &ProjectState::IgnoreFlangeBuckling));
  c.back().enabled = bucklingOptions;
  c.push_back(Check(
      "ch_modal", "Modal analysis for selfweight + q-loads",
      [](const Session& s) { return s.st().ModalAnalysis == 1; }, ToggleModal));
  c.push_back(Check(
      "ch_vipp", "Lat tors buckl",
      [](const Session& s) { return LateralOffered(s) && s.st().LateralTorsionalBuckling == 1; },
      ToggleLateral));
  c.back().enabled = LateralOffered;
  c.push_back(Check(
      "optimize", "Optimize Profile (based on weight)",
      [](const Session& s) { return s.st().OptimiseOpen == 1; },
      [](Session& s) {
        s.st().OptimiseOpen = s.st().OptimiseOpen == 1 ? 0 : 1;
        s.Refill("korvane", "idef_limit");
      }));
  c.push_back(CriterionOption("ULS", kCriterionUls));
  c.push_back(CriterionOption("SLS", kCriterionSls));
  c.push_back(CriterionOption("ULSSLS", kCriterionUlsSls));
}

void AddButtons(std::vector<Control>& c) {
  const auto opens = [](const char* form) { return [form](Session& s) { s.Show(form); }; };
  const auto column = [](const Session& s) {
    return s.design().forces.N > 0 && !IsPlateType(s.st().ProfileType);
  };
  c.push_back(Picture("cbuttbucklingy", "End conditions about the y axis", opens("bucklingy")));
  c.back().enabled = column;
  c.push_back(Picture("cbuttbucklingz", "End conditions about the z axis", opens("bucklingz")));
  c.back().enabled = column;
  c.push_back(Button("Command1", "Curves", [](Session& s) {
    s.st().ManualBucklingCurves = 1;
    s.Show("bucklingcurve");
  }));
  c.back().tip = " Manual input of buckling curves (ref NS3472 Table 11) ";
  c.back().enabled = column;
  c.push_back(Picture("cbuttsupport", "Support and web stiffeners", opens("endstiff")));
  c.back().enabled = [](const Session& s) {
    const Family* family = FamilyOf(s);
    return family != nullptr && family->options.web;
  };
  c.push_back(Picture("cbuttlateral", "Lateral torsional buckling parameters", opens("vipping")));
  c.back().enabled = LateralOffered;
  c.push_back(Button("cp", "Calculation points", opens("chpoints")));
  c.push_back(Button("de", "Detailed results", opens("detailedresult")));
  c.push_back(Button("cmd_modresult", "Modeshape 1-3", [](Session& s) {
    s.Calculate();
    s.Show("Modal_ns");
  }));
  c.back().enabled = [](const Session& s) { return s.st().ModalAnalysis == 1; };
  // The pictures show the last calculation; drawing them is the window's affair.
  c.push_back(Button("cmdpic", "Draw results", [](Session&) {}));
  c.push_back(Button("Picture", "Pictures", opens("Pictures")));
}

void AddPanes(std::vector<Control>& c) {
  c.push_back(FrameOf("columnframe", "Column data", [](const Session& s) {
    return s.design().forces.N > 0 && !IsPlateType(s.st().ProfileType);
  }));
  const auto flag = [](bool FamilyOptions::*member) {
    return [member](const Session& s) {
      const Family* family = FamilyOf(s);
      return family != nullptr && family->options.*member;
    };
  };
  c.push_back(FrameOf("frsectionc", "Section Control (ref ch12.2.6 in NS)",
                      flag(&FamilyOptions::sectionControl)));
  c.push_back(FrameOf("frbuckling", "Section class 1-2: Bending moment capacity based on",
                      flag(&FamilyOptions::bending)));
  c.push_back(FrameOf("fr15", "Section class 4", [](const Session& s) {
    const Family* family = FamilyOf(s);
    return family == nullptr || family->options.classFour;
  }));
  c.push_back(FrameOf("fr31", "Results (ULS)"));
  c.push_back(FrameOf("fr21", "Loading/Moment/Shear/Deflection - Z-axis  "));
  c.push_back(FrameOf("fr22", "Loading/Moment/Shear/Deflection - Y-axis  "));
  const auto letter = [](int16 ProjectState::*curve) {
    return [curve](const Session& s) { return std::string(CurveLetter(s.st().*curve)); };
  };
  c.push_back(TextLabel("obcy", letter(&ProjectState::BucklingCurveY)));
  c.push_back(TextLabel("obcz", letter(&ProjectState::BucklingCurveZ)));
  c.push_back(Label("obuckltext", "Buckling curve:"));
  c.push_back(Label("obcauto", "Automatic choosen according to BSK Table 6:233"));
  c.push_back(Label("oblfactor", "Buckling length factor:"));
  c.push_back(Label("ouaxis", "U-axis for L-profiles"));
  c.push_back(Label("ovaxis", "V-axis for L-profiles"));
  c.push_back(TextLabel(
      "obeam", [](const Session& s) { return SectionTitle(s.st(), s.design().lib->catalogues); }));
  c.push_back(TextLabel("oweba", [](const Session& s) {
    return "c/c=" + s.Shown(s.st().a_webstiff, "#00") + " mm";
  }));
  c.back().visible = [](const Session& s) { return s.st().WebStiffener == 1; };
  c.push_back(TextLabel(
      "oza", [](const Session& s) { return "Za = " + s.Shown(s.st().Za, "#0") + " mm"; }));
  c.back().visible = [](const Session& s) { return s.st().LoadLevel == 4; };

  c.push_back(Surface("pic31", ShortResults));
  c.push_back(Surface("pic1", [](const Session& s) {
    return std::string(s.st().FigureNotToScale == 1 ? "Figure not to scale" : "Figure to scale");
  }));
  c.back().click = [](Session& s) {
    s.st().FigureNotToScale = s.st().FigureNotToScale == 1 ? 0 : 1;
  };
  for (const char* name :
       {"pic21", "pic22", "picloadpn", "picloadzv", "picloadzp", "picmy", "picdz", "picloadyp",
        "picloadyv", "picloadvn", "picmz", "picdy", "pic_vipp", "pic_loadlevel"}) {
    c.push_back(Surface(name, [pane = std::string(name)](const Session& s) {
      return s.OnScreen(PaneText(s.design(), pane));
    }));
  }
}

// --- Menus --------------------------------------------------------------------------------------

/// Appends entries of one menu.
class MenuBuilder {
public:
  MenuBuilder(std::vector<Control>& controls, std::string parent, std::string caption,
              std::function<void(Session&)> click = {}, std::string above = {})
      : controls_(controls), parent_(std::move(parent)) {
    Put(parent_, std::move(caption), std::move(click), std::move(above));
  }
  Control& Entry(const char* name, std::string caption, std::function<void(Session&)> click = {}) {
    return Put(name, std::move(caption), std::move(click), parent_);
  }

private:
  Control& Put(std::string name, std::string caption, std::function<void(Session&)> click,
               std::string above) {
    Control c;
    c.name = std::move(name);
    c.kind = Kind::Menu;
    c.caption = std::move(caption);
    c.click = std::move(click);
    c.parent = std::move(above);
    controls_.push_back(std::move(c));
    return controls_.back();
  }
  std::vector<Control>& controls_;
  std::string parent_;
};

/// A family's command: its code comes in force and its form is shown; the calculation follows the
/// first change or the return to the main window.
void ChooseFamily(Session& s, const Family& family) {
  s.st().ProfileType = family.code;
  if (family.familyWord != nullptr) s.st().FamilyName = family.familyWord;
  if (family.givenConstants) s.st().FigureNotToScale = 0;
  s.Show(family.form);
}

void AddFamilyEntries(MenuBuilder& menu, std::initializer_list<int> codes) {
  for (const int code : codes) {
    const Family& family = *FindFamily(code);
    menu.Entry(family.menuControl, family.menuCaption,
               [&family](Session& s) { ChooseFamily(s, family); });
  }
}

void Print(Session& s, int kind) {
  if (const auto job = s.platform().AskPrint()) s.platform().Print(s.design(), kind, job->copies);
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
  s.FocusField("korvane.iproj");
  s.Show("optroll");
}

void AddFileMenu(std::vector<Control>& c) {
  MenuBuilder file(c, "mnufile", "&File");
  file.Entry("mnunew", "&New", [](Session& s) { s.NewCommand(); });
  file.Entry("mnuopen", "&Open", [](Session& s) { s.OpenCommand(); });
  file.Entry("mnusave", "&Save", [](Session& s) { s.SaveCommand(); });
  file.Entry("mnusaveas", "Save &As", [](Session& s) { s.SaveAsCommand(); });
  file.Entry("mnuspc", "-");
  file.Entry("mnuprint00", "Print - Section &Property and Capacity",
             [](Session& s) { Print(s, 0); });
  file.Entry("mnuprint11", "Print  - Section and Stability Control",
             [](Session& s) { Print(s, 1); });
  file.Entry("mnurecentfile(0)", "-").visible = [](const Session& s) {
    return !s.RecentFile(1).empty();
  };
  for (int i = 1; i <= 4; ++i) {
    Control& entry = file.Entry("mnurecentfile", "oldfile" + std::to_string(i),
                                [i](Session& s) { s.OpenRecent(i); });
    entry.name = "mnurecentfile(" + std::to_string(i) + ")";
    entry.visible = [i](const Session& s) { return !s.RecentFile(i).empty(); };
    entry.text = [i](const Session& s) {
      const std::string path = s.RecentFile(i);
      return path.empty() ? "oldfile" + std::to_string(i) : "&" + std::to_string(i) + " " + path;
    };
  }
  file.Entry("mnuspace", "-");
  file.Entry("mnuexit", "&Exit", [](Session& s) { s.End(); });
}

void AddProfilesMenu(std::vector<Control>& c) {
  MenuBuilder profiles(c, "mnustiff", "&Profiles");
  AddFamilyEntries(profiles, {1, 2, 3, 4, 15, 5, 16, 6, 7, 8, 9, 10, 11});
  profiles.Entry("mnubrtish", "-");
  MenuBuilder british(c, "mnup100", "British profiles", {}, "mnustiff");
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
    s.Show("database");
  });
}

void AddMenus(std::vector<Control>& c) {
  AddFileMenu(c);
  AddProfilesMenu(c);
  MenuBuilder(c, "mnuload1", "&Loading", [](Session& s) {
    s.st().AnalysisMode = 1;
    s.Calculate();
    s.Show("loading");
  });
  MenuBuilder(c, "mnuendforces", "&Endforces", [](Session& s) {
    s.st().AnalysisMode = 0;
    s.st().SupportType = 0;
    s.Calculate();
    s.Show("endforce");
  });
  MenuBuilder(c, "mnuopt", "&Optimze Database Profiles", OpenOptimiser);
  MenuBuilder print(c, "mnuprint", "P&rint");
  print.Entry("mnuprint0", "Section &Property and Capacity", [](Session& s) { Print(s, 0); });
  print.Entry("mnuprint1", "&Section and Stability Control", [](Session& s) { Print(s, 1); });
  MenuBuilder(c, "mnusetup", "&Default Values", [](Session& s) { s.Show("setup"); });
  MenuBuilder help(c, "mnuhelp", "&Help");
  help.Entry("mnuhelpcont", "&Contents", OpenHelp);
  help.Entry("mnuhelpsearch", "&Search for Help On . . . ", OpenHelp);
  help.Entry("line", "-");
  help.Entry("mnuabout", "&About KORVANE - NS3472", [](Session& s) { s.Show("about"); });
}

}  // namespace

void AddMainForm(std::vector<Form>& forms) {
  Form form;
  form.name = "korvane";
  form.title = [](const Session& s) { return s.MainTitle(); };
  AddInputs(form.controls);
  AddOptions(form.controls);
  AddButtons(form.controls);
  AddPanes(form.controls);
  AddMenus(form.controls);
  form.onFocus = [](Session& s) { s.Calculate(); };
  forms.push_back(std::move(form));
}

}  // namespace korvane
