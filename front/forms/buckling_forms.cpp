// SPDX-License-Identifier: GPL-3.0-or-later
// Buckling lengths and curves, and lateral torsional buckling.
#include <array>

#include "checks/buckling_curves.h"
#include "core/supports.h"
#include "core/text.h"
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

constexpr const char* kEndConditions[] = {"Fixed - free, k = 2.0", "Pinned - pinned, k = 1.0",
                                          "Pinned - fixed, k = 0.7", "Fixed - fixed, k = 0.5",
                                          "No buckling, k = 0"};

/// What an axis of buckling is made of.
struct Axis {
  const char* field;
  float32 ProjectState::*factor;
  int16 ProjectState::*bucklingCase;
  int16 ProjectState::*curve;
};
constexpr Axis kAxisY{"ibly", &ProjectState::bly, &ProjectState::BucklingCaseY,
                      &ProjectState::BucklingCurveY};
constexpr Axis kAxisZ{"iblz", &ProjectState::blz, &ProjectState::BucklingCaseZ,
                      &ProjectState::BucklingCurveZ};

/// The picture of an end condition: case and factor of its axis, then a calculation.
Control CasePicture(std::string name, const Axis& axis, int bucklingCase) {
  Control c =
      Picture(std::move(name), kEndConditions[bucklingCase - 1], [axis, bucklingCase](Session& s) {
        s.st().*axis.bucklingCase = bucklingCase;
        s.st().*axis.factor = LengthFactorOfCase(bucklingCase);
        s.Refill("korvane", axis.field);
        s.Calculate();
      });
  c.checked = [axis, bucklingCase](const Session& s) {
    return s.st().*axis.bucklingCase == bucklingCase;
  };
  return c;
}

Form CaseForm(const char* name, const char* title, const Axis& axis) {
  Form form;
  form.name = name;
  form.title = Fixed(title);
  for (int k = 1; k <= 5; ++k) {
    form.controls.push_back(CasePicture(name + std::to_string(k), axis, k));
  }
  form.controls.push_back(CloseButton("ok", "OK", name));
  return form;
}

Control CurveList(const char* name, const Axis& axis) {
  Control c;
  c.name = name;
  c.kind = Kind::List;
  c.items = [](const Session&) {
    std::vector<std::string> letters;
    for (int k = 0; k < 5; ++k) letters.emplace_back(CurveLetter(k));
    return letters;
  };
  c.selected = [axis](const Session& s) {
    const int curve = s.st().*axis.curve;
    return curve >= 0 && curve < 4 ? curve : 4;
  };
  c.select = [axis](Session& s, int index) {
    s.st().*axis.curve = index;
    s.Calculate();
  };
  return c;
}

Form CurveForm() {
  Form form;
  form.name = "bucklingcurve";
  form.title = Fixed(" Manual input of buckling curves (ref NS3472 Table 11) ");
  form.controls.push_back(CurveList("cbobcy", kAxisY));
  form.controls.push_back(CurveList("cbobcz", kAxisZ));
  for (int k = 0; k <= 4; ++k) {
    form.controls.push_back(CasePicture("method" + std::to_string(k), kAxisY, k + 1));
  }
  form.controls.push_back(CloseButton("ok", "OK", "bucklingcurve"));
  return form;
}

bool TypesFactors(const Session& s) {
  return s.st().AnalysisMode == 1 && s.st().LtbSegments == 0;
}

/// The third factor counts for singly symmetric sections.
bool HasC3(const ProjectState& st) {
  const Family* family = FindFamily(st.ProfileType);
  return family != nullptr && family->lateral.method == LateralMethod::SinglySymmetric;
}

Control CFactor(const char* name, const char* caption, number ProjectState::*typed,
                number LtbResults::*computed) {
  Control c = Input(name, caption, Calculated(typed));
  // Without manual input the field shows what the moment diagram gives.
  c.text = [typed, computed, caption](const Session& s) {
    const ProjectState& st = s.st();
    if (st.CFactorManual == 1) return s.Shown(st.*typed, "0.000");
    const bool c3 = caption[1] == '3';
    if (c3 && !HasC3(st)) return std::string("N/A");
    if (caption[1] == '2' && !TypesFactors(s)) return std::string("N/A");
    return s.Shown(s.design().ltb.*computed, "0.000");
  };
  c.enabled = [](const Session& s) { return s.st().CFactorManual == 1 && TypesFactors(s); };
  return c;
}

/// After a change of the form: calculate and show the fields anew.
void Refresh(Session& s) {
  s.Calculate();
  s.Fill("vipping");
}

Control RestraintList() {
  Control c;
  c.name = "Cbo";
  c.kind = Kind::List;
  c.caption = "Lateral restraint points along compression flange";
  c.items = [](const Session&) {
    return std::vector<std::string>{"0", "1", "2", "3", "4", "5", "6"};
  };
  c.selected = [](const Session& s) { return int(s.st().LtbSegments); };
  c.select = [](Session& s, int index) {
    s.st().LtbSegments = index;
    Refresh(s);
  };
  return c;
}

void AddLateralCases(std::vector<Control>& c) {
  for (int k = 1; k <= 5; ++k) {
    const std::string tip = k == 5 ? "k typed in" : kEndConditions[k - 1];
    c.push_back(Picture("latbuckl" + std::to_string(k), tip, [k](Session& s) {
      s.st().LateralBucklingCase = k;
      if (k < 5) s.st().k_ltb = LengthFactorOfCase(k);
      Refresh(s);
    }));
    c.back().checked = [k](const Session& s) { return s.st().LateralBucklingCase == k; };
  }
  c.push_back(Input("ik", "k =", Calculated(&ProjectState::k_ltb)));
  c.back().enabled = [](const Session& s) { return s.st().LateralBucklingCase == 5; };
}

void AddLoadLevels(std::vector<Control>& c) {
  constexpr std::array<const char*, 4> tips{"Load above the centre (top flange)",
                                            "Load at the centre",
                                            "Load below the centre (bottom flange)", "Za typed in"};
  for (int k = 1; k <= 4; ++k) {
    c.push_back(Picture("loadl" + std::to_string(k), tips[static_cast<std::size_t>(k - 1)],
                        [k](Session& s) {
                          s.st().LoadLevel = k;
                          Refresh(s);
                        }));
    c.back().checked = [k](const Session& s) { return s.st().LoadLevel == k; };
  }
  c.push_back(Input("iza", "Za = distance from CoG", Calculated(&ProjectState::Za)));
  c.back().visible = [](const Session& s) { return s.st().LoadLevel == 4; };
}

/// The value of the segment method stands a blank further in.
std::string MomentText(const Session& s, double M, const char* ahead = "") {
  return ahead + s.Shown(M, "0.0") + " kNm";
}

Form LateralForm() {
  Form form;
  form.name = "vipping";
  form.title = Fixed("Lateral torsional buckling parameters");
  std::vector<Control>& c = form.controls;
  c.push_back(RestraintList());
  c.push_back(FrameOf("frlength", "Lateral torsional buckling length"));
  AddLateralCases(c);
  c.push_back(Check(
      "Cfactor", "Manual input of C-factors",
      [](const Session& s) { return s.st().CFactorManual == 1; },
      [](Session& s) {
        ProjectState& st = s.st();
        if (st.CFactorManual == 0) {
          st.C1i = s.design().ltb.C1;
          st.C2i = s.design().ltb.C2;
          st.C3i = s.design().ltb.C3;
          st.CFactorManual = 1;
        } else {
          st.CFactorManual = 0;
        }
        Refresh(s);
      }));
  c.back().visible = TypesFactors;
  c.push_back(CFactor("ic1", "C1 =", &ProjectState::C1i, &LtbResults::C1));
  c.push_back(CFactor("ic2", "C2 =", &ProjectState::C2i, &LtbResults::C2));
  c.push_back(CFactor("ic3", "C3 =", &ProjectState::C3i, &LtbResults::C3));
  c.push_back(FrameOf("frlevel", "Loadlevel"));
  AddLoadLevels(c);
  c.push_back(TextLabel("omdb", [](const Session& s) {
    return MomentText(s, s.design().ltb.Mdb, TypesFactors(s) ? "" : " ");
  }));
  c.push_back(
      TextLabel("omdbmin", [](const Session& s) { return MomentText(s, s.design().ltb.Mdb_min); }));
  c.push_back(TextLabel("osegment", [](const Session& s) {
    if (TypesFactors(s)) return std::string();
    const bool first = s.st().LtbCriticalSegment == 0;
    return (first ? " (" : "(") + s.design().ltb.LtbSegmentText + ")";
  }));
  c.push_back(Label("ohint1",
                    "This has only influence if you have loading on the beam and that"
                    " lateral restraint points = 0 (C2-factor)"));
  c.push_back(Label("ohint2",
                    "k-factor is related to member length or the "
                    " length between restraint points "));
  c.push_back(CloseButton("ok", "OK", "vipping"));
  form.onFocus = [](Session& s) { s.Fill("vipping"); };
  return form;
}

}  // namespace

void AddBucklingForms(std::vector<Form>& forms) {
  forms.push_back(LateralForm());
  forms.push_back(CaseForm("bucklingy", "Buckling length - Y-axis", kAxisY));
  forms.push_back(CaseForm("bucklingz", "Buckling length - Z-axis", kAxisZ));
  forms.push_back(CurveForm());
}

}  // namespace korvane
