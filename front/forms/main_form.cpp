// SPDX-License-Identifier: GPL-3.0-or-later
// The main window: its inputs, options, pictures and result panes.
#include <cctype>

#include "checks/buckling_curves.h"
#include "core/supports.h"
#include "core/text.h"
#include "front/forms/forms.h"
#include "front/pane_text.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

const MainControls& OnMain() {
  return TheForms().onMain;
}

const Family* FamilyOf(const Session& s) {
  return FindFamily(s.st().ProfileType);
}

std::function<bool(const Session&)> Offers(bool FamilyOptions::*option) {
  return [option](const Session& s) {
    const Family* family = FamilyOf(s);
    return family != nullptr && family->options.*option;
  };
}

/// A family that does not exist offers them: kept.
bool OffersClassFour(const Session& s) {
  const Family* family = FamilyOf(s);
  return family == nullptr || family->options.classFour;
}

bool BucklesAsColumn(const Session& s) {
  return s.design().forces.N > 0 && !IsPlateType(s.st().ProfileType);
}

bool LateralOffered(const Session& s) {
  const Family* family = FamilyOf(s);
  if (family == nullptr || family->lateral.method == LateralMethod::None) return false;
  return !IsStiffenedPlate(s.st().ProfileType) || s.design().beam.My_gov < 0;
}

bool HasSpring(const Session& s) {
  return IsSpring(s.st().SupportType);
}

bool OptimiserIsOpen(const Session& s) {
  return s.st().OptimiseOpen == 1;
}

/// Tidies the loads; what can't stand is told.
void CheckLoads(Session& s) {
  const ProjectState before = s.st();
  const auto message = NormaliseLoads(s.st());
  s.TellRemoved(before, false);
  if (!message) return;
  s.platform().Message(message->text);
  // End forces have no form of the loads open: showing it would change the mode.
  if (s.st().AnalysisMode != 1) return;
  s.Show(*TheForms().loading);
  s.FocusField(*FieldOf(*TheForms().loading, InputOf(message->field)));
}

void ClickSupport(Session& s, const Support& support) {
  ProjectState& st = s.st();
  TakeSupport(support, st);
  if (IsSpring(support.code)) s.FocusField(*OnMain().ispring);
  if (st.BucklingCaseY < 5) s.Fill(*OnMain().ibly);
  if (st.BucklingCaseZ < 5) s.Fill(*OnMain().iblz);
  // The cantilever deliberately leaves the loads untidied.
  if (!IsCantilever(support.code)) CheckLoads(s);
  s.Calculate();
}

/// The Return key on the picture of the one spring takes what stands in the spring field, within
/// a range of its own.
void TakeSpring(Session& s) {
  if (!HasSpring(s)) return;
  FieldRule rule = Calculated(&ProjectState::SpringRestraint);
  rule.limit = Between(1, 99, " 1 < springstiffness 99 ");
  s.LeaveBy(*OnMain().ispring, rule);
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
  } else if (HasSpring(s)) {
    s.platform().Message(" Modal analysis not possible for spring supports ");
    return;
  } else {
    st.ModalAnalysis = 1;
  }
  s.Calculate();
}

/// The optimiser group: a search of the family in force, redrawn without a calculation.
void RunOptimiseCurrent(Session& s) {
  const Waiting waiting(s.platform());
  OptimiseCurrent(s.design(), s.rows().results,
                  [&s](int done, int all) { s.platform().Progress(done, all); });
  s.ComposeResults();
}

Control CriterionOption(const char* name, int criterion) {
  Control c = Option(
      name, kCriterionCaptions[criterion],
      [criterion](const Session& s) { return s.st().ResultView == criterion; },
      [criterion](Session& s) {
        s.st().ResultView = criterion;
        RunOptimiseCurrent(s);
      });
  c.visible = OptimiserIsOpen;
  return c;
}

Control TextInput(const char* name, const char* caption, std::string ProjectState::*member) {
  Control c = Input(name, caption, {});
  c.text = [member](const Session& s) { return s.st().*member; };
  return c;
}

Control With(std::function<bool(const Session&)> enabled, Control control) {
  control.enabled = std::move(enabled);
  return control;
}

void AddInputs(Form& form, MainControls& on) {
  on.iproj = Put(form, TextInput("iproj", "Project name:", &ProjectState::iproj));
  on.iident = Put(form, TextInput("iident", "Identification:", &ProjectState::iident));
  FieldRule length = Bind(&ProjectState::L);
  length.then = [](Session& s) {
    CheckLoads(s);
    s.Calculate();
  };
  on.il = Put(form, Input("il", "L", length, "Member length"));

  on.cbofyk = Put(form, MaterialList());
  Control yield = YieldField("Characteristic yield stress, open for the free grade");
  yield.field.refusedFormat = yield.field.input.field->format;
  on.ifyk = Put(form, std::move(yield));
  on.ie = Put(form, Input("ie", "E =", Calculated(&ProjectState::E), "Young's modulus"));
  Control strength =
      TextLabel("ofyd", [](const Session& s) { return "fd = " + s.Shown(s.st().fd, "#00.0"); });
  strength.unit = "MPa";
  on.ofyd = Put(form, std::move(strength));
  on.igammam1 =
      Put(form, Input("igammam1", "gm1 =", Calculated(&ProjectState::gammam1), "Material factor"));

  const auto buckling = [&](const char* name, const char* caption, float32 ProjectState::*factor,
                            int16 ProjectState::*bucklingCase) {
    FieldRule rule = Bind(factor);
    rule.then = [bucklingCase](Session& s) {
      s.st().*bucklingCase = 6;
      s.Calculate();
    };
    return Put(form, With(BucklesAsColumn, Input(name, caption, rule, "Buckling length factor")));
  };
  on.ibly = buckling("ibly", "Buckling length factor: Y-axis", &ProjectState::bly,
                     &ProjectState::BucklingCaseY);
  on.iblz = buckling("iblz", "Buckling length factor: Z-axis", &ProjectState::blz,
                     &ProjectState::BucklingCaseZ);

  Control spring = Input("ispring", "Spring restraint", Calculated(&ProjectState::SpringRestraint));
  spring.enabled = spring.visible = HasSpring;
  on.ispring = Put(form, std::move(spring));

  FieldRule deflection = Bind(&ProjectState::DeflectionLimit);
  deflection.then = [](Session& s) {
    const int view = s.st().ResultView;
    if (view >= kCriterionUls && view <= kCriterionUlsSls) RunOptimiseCurrent(s);
  };
  Control limit = Input("idef_limit", "L/", deflection, "Deflection limit L/x");
  limit.visible = OptimiserIsOpen;
  on.idef_limit = Put(form, std::move(limit));
}

void AddSupports(Form& form, MainControls& on) {
  for (const Support& support : kSupports) {
    std::string words = support.name;
    words[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(words[0])));
    Control c = Picture("cbutt" + std::to_string(support.code), {Sign::Support, support.code},
                        words, [&support](Session& s) { ClickSupport(s, support); });
    c.checked = [code = support.code](const Session& s) { return s.st().SupportType == code; };
    if (IsSpring(support.code) && !IsSpringAtBothEnds(support.code)) c.returnKey = TakeSpring;
    on.cbutt.at(static_cast<std::size_t>(support.code)) = Put(form, std::move(c));
  }
}

void AddOptions(Form& form, MainControls& on) {
  using S = ProjectState;
  const auto option = [&](bool FamilyOptions::*frame, Control control) {
    return Put(form, With(Offers(frame), std::move(control)));
  };
  on.obuckling0 =
      option(&FamilyOptions::bending,
             ValueOption("obuckling0", "Plastic section modulus", &S::BendingCapacityMode, 0));
  on.obuckling1 =
      option(&FamilyOptions::bending,
             ValueOption("obuckling1", "Elastic section modulus", &S::BendingCapacityMode, 1));
  on.osectionc0 =
      option(&FamilyOptions::sectionControl,
             ValueOption("osectionc0", "Conservative control for N+My, N+Mz, My+Mz and N+My+Mz",
                         &S::SectionControlMode, 0));
  on.osectionc1 = option(&FamilyOptions::sectionControl,
                         ValueOption("osectionc1", " Valid for Double Symmetric Profiles ",
                                     &S::SectionControlMode, 1));
  on.ch_webbuck =
      Put(form, With(OffersClassFour, FlagCheck("ch_webbuck", "Web buckling not taken into account",
                                                &S::IgnoreWebBuckling)));
  on.ch_flangebuck =
      Put(form,
          With(OffersClassFour, FlagCheck("ch_flangebuck", "Flange buckling not taken into account",
                                          &S::IgnoreFlangeBuckling)));
  on.ch_modal =
      Put(form, Check(
                    "ch_modal", "Modal analysis for selfweight + q-loads",
                    [](const Session& s) { return s.st().ModalAnalysis == 1; }, ToggleModal));
  on.ch_vipp = Put(form, With(LateralOffered, Check(
                                                  "ch_vipp", "Lat tors buckl",
                                                  [](const Session& s) {
                                                    return LateralOffered(s) &&
                                                           s.st().LateralTorsionalBuckling == 1;
                                                  },
                                                  ToggleLateral)));
  on.optimize = Put(form, Check("optimize", "Optimize Profile (based on weight)", OptimiserIsOpen,
                                [](Session& s) {
                                  s.st().OptimiseOpen = s.st().OptimiseOpen == 1 ? 0 : 1;
                                  s.Fill(*OnMain().idef_limit);
                                }));
  on.ULS = Put(form, CriterionOption("ULS", kCriterionUls));
  on.SLS = Put(form, CriterionOption("SLS", kCriterionSls));
  on.ULSSLS = Put(form, CriterionOption("ULSSLS", kCriterionUlsSls));
}

void AddButtons(Form& form, MainControls& on) {
  using S = ProjectState;
  const auto shows = [](const Form* Forms::*which) {
    return [which](Session& s) { s.Show(*(TheForms().*which)); };
  };
  on.cbuttbucklingy = Put(
      form,
      With(BucklesAsColumn, Picture("cbuttbucklingy", {Sign::EndCondition, 0, &S::BucklingCaseY},
                                    "End conditions about the y axis", shows(&Forms::bucklingY))));
  on.cbuttbucklingz = Put(
      form,
      With(BucklesAsColumn, Picture("cbuttbucklingz", {Sign::EndCondition, 0, &S::BucklingCaseZ},
                                    "End conditions about the z axis", shows(&Forms::bucklingZ))));
  Control curves = Button("Command1", "Curves", [](Session& s) {
    s.st().ManualBucklingCurves = 1;
    s.Show(*TheForms().curves);
  });
  curves.tip = kManualCurves;
  on.Command1 = Put(form, With(BucklesAsColumn, std::move(curves)));
  on.cbuttsupport =
      Put(form, With(Offers(&FamilyOptions::web),
                     Picture("cbuttsupport", {Sign::Stiffener}, "Support and web stiffeners",
                             shows(&Forms::stiffeners))));
  on.cbuttlateral = Put(form, With(LateralOffered, Picture("cbuttlateral", {Sign::Twist},
                                                           "Lateral torsional buckling parameters",
                                                           shows(&Forms::lateral))));
  on.cp = Put(form, Button("cp", "Calculation points", shows(&Forms::points)));
  on.de = Put(form, Button("de", "Detailed results", shows(&Forms::details)));
  on.cmd_modresult = Put(form, With([](const Session& s) { return s.st().ModalAnalysis == 1; },
                                    Button("cmd_modresult", "Modeshape 1-3", [](Session& s) {
                                      s.Calculate();
                                      s.Show(*TheForms().modes);
                                    })));
  // The pictures show the last calculation; drawing them is the window's affair.
  on.cmdpic = Put(form, Button("cmdpic", "Draw results", [](Session&) {}));
  on.Picture = Put(form, Button("Picture", "Pictures", shows(&Forms::pictures)));
}

void AddFrames(Form& form, MainControls& on) {
  on.columnframe = Put(form, FrameOf("columnframe", "Column data", BucklesAsColumn));
  on.frsectionc = Put(form, FrameOf("frsectionc", "Section Control (ref ch12.2.6 in NS)",
                                    Offers(&FamilyOptions::sectionControl)));
  on.frbuckling =
      Put(form, FrameOf("frbuckling", "Section class 1-2: Bending moment capacity based on",
                        Offers(&FamilyOptions::bending)));
  on.fr15 = Put(form, FrameOf("fr15", "Section class 4", OffersClassFour));
  on.fr31 = Put(form, FrameOf("fr31", "Results (ULS)"));
  const auto plane = [&](const char* name, const char* caption, Plane which) {
    Control frame = FrameOf(name, caption);
    frame.visible = [which](const Session& s) { return !PlaneFolds(s.design(), which); };
    return Put(form, std::move(frame));
  };
  on.fr21 = plane("fr21", "Loading/Moment/Shear/Deflection - Z-axis  ", Plane::Z);
  on.fr22 = plane("fr22", "Loading/Moment/Shear/Deflection - Y-axis  ", Plane::Y);
}

void AddLabels(Form& form, MainControls& on) {
  const auto letter = [&](const char* name, const char* spoken, int16 ProjectState::*curve) {
    Control c = TextLabel(
        name, [curve](const Session& s) { return std::string(CurveLetter(s.st().*curve)); });
    c.spoken = spoken;
    return Put(form, std::move(c));
  };
  on.obcy = letter("obcy", "Buckling curve, Y-axis", &ProjectState::BucklingCurveY);
  on.obcz = letter("obcz", "Buckling curve, Z-axis", &ProjectState::BucklingCurveZ);
  on.obuckltext = Put(form, Label("obuckltext", "Buckling curve:"));
  on.obcauto = Put(form, Label("obcauto", "Automatic choosen according to BSK Table 6:233"));
  on.oblfactor = Put(form, Label("oblfactor", "Buckling length factor:"));
  on.ouaxis = Put(form, Label("ouaxis", "U-axis for L-profiles"));
  on.ovaxis = Put(form, Label("ovaxis", "V-axis for L-profiles"));
  Control section = TextLabel(
      "obeam", [](const Session& s) { return SectionTitle(s.st(), s.design().lib->catalogues); });
  section.spoken = "Section";
  on.obeam = Put(form, std::move(section));
  Control distance = TextLabel(
      "oweba", [](const Session& s) { return "c/c=" + s.Shown(s.st().a_webstiff, "#00") + " mm"; });
  distance.visible = [](const Session& s) { return s.st().WebStiffener == 1; };
  on.oweba = Put(form, std::move(distance));
  Control level =
      TextLabel("oza", [](const Session& s) { return "Za = " + s.Shown(s.st().Za, "#0") + " mm"; });
  level.visible = [](const Session& s) { return s.st().LoadLevel == 4; };
  on.oza = Put(form, std::move(level));
}

void AddPanes(Form& form, MainControls& on) {
  on.pic31 = Put(form, Surface("pic31", Painting::ShortResults, ShortResults));
  on.pic1 = Put(form, FigureSurface());
  for (const char* name :
       {"pic21", "pic22", "picloadpn", "picloadzv", "picloadzp", "picmy", "picdz", "picloadyp",
        "picloadyv", "picloadvn", "picmz", "picdy", "pic_vipp", "pic_loadlevel"}) {
    Put(form, Surface(name, Painting::None, [pane = std::string(name)](const Session& s) {
          return s.OnScreen(PaneText(s.design(), pane));
        }));
  }
}

}  // namespace

void AddMainForm(Forms& forms) {
  Form& form = forms.Add("korvane", [](const Session& s) { return s.files().Title(); });
  forms.main = &form;
  MainControls& on = forms.onMain;
  AddInputs(form, on);
  AddSupports(form, on);
  AddOptions(form, on);
  AddButtons(form, on);
  AddFrames(form, on);
  AddLabels(form, on);
  AddPanes(form, on);
  AddMenus(forms, form);
  form.onFocus = [](Session& s) { s.Calculate(); };
}

}  // namespace korvane
