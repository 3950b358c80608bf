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

const char* EndConditionWords(int bucklingCase) {
  static constexpr std::array words{"Fixed - free, k = 2.0", "Pinned - pinned, k = 1.0",
                                    "Pinned - fixed, k = 0.7", "Fixed - fixed, k = 0.5",
                                    "No buckling, k = 0"};
  return words.at(static_cast<std::size_t>(bucklingCase - 1));
}

namespace {

using S = ProjectState;

/// What an axis of buckling is made of.
struct Axis {
  Handle MainControls::*field;
  float32 S::*factor;
  int16 S::*bucklingCase;
  int16 S::*curve;
};
constexpr Axis kAxisY{&MainControls::ibly, &S::bly, &S::BucklingCaseY, &S::BucklingCurveY};
constexpr Axis kAxisZ{&MainControls::iblz, &S::blz, &S::BucklingCaseZ, &S::BucklingCurveZ};

/// The picture of an end condition: case and factor of its axis, then a calculation.
Control CasePicture(std::string name, const Axis& axis, int bucklingCase) {
  Control c = Picture(std::move(name), {Sign::EndCondition, bucklingCase},
                      EndConditionWords(bucklingCase), [&axis, bucklingCase](Session& s) {
                        s.st().*axis.bucklingCase = bucklingCase;
                        s.st().*axis.factor = LengthFactorOfCase(bucklingCase);
                        s.Fill(*(TheForms().onMain.*axis.field));
                        s.Calculate();
                      });
  c.checked = [&axis, bucklingCase](const Session& s) {
    return s.st().*axis.bucklingCase == bucklingCase;
  };
  return c;
}

Form& AddCases(Forms& forms, const std::string& name, const char* title, const Axis& axis,
               CaseControls& on) {
  Form& form = forms.Add(name, Fixed(title));
  form.input = form.modal = true;
  for (int k = 1; k <= 5; ++k) {
    on.cases[k] = Put(form, CasePicture(name + std::to_string(k), axis, k));
  }
  Put(form, CloseButton("ok", "OK", form));
  return form;
}

Control CurveList(const char* name, const Axis& axis) {
  Control c;
  c.spoken = &axis == &kAxisY ? "Buckling curve, Y-axis" : "Buckling curve, Z-axis";
  c.name = name;
  c.kind = Kind::List;
  c.items = [](const Session&) {
    std::vector<std::string> letters;
    for (int k = 0; k < 5; ++k) letters.emplace_back(CurveLetter(k));
    return letters;
  };
  c.selected = [&axis](const Session& s) {
    const int curve = s.st().*axis.curve;
    return curve >= 0 && curve < 4 ? curve : 4;
  };
  c.select = [&axis](Session& s, int index) {
    s.st().*axis.curve = index;
    s.Calculate();
  };
  return c;
}

void AddCurves(Forms& forms) {
  Form& form = forms.Add("bucklingcurve", Fixed(kManualCurves));
  forms.curves = &form;
  form.input = true;
  CurveControls& on = forms.onCurves;
  on.cbobcy = Put(form, CurveList("cbobcy", kAxisY));
  on.cbobcz = Put(form, CurveList("cbobcz", kAxisZ));
  for (int k = 1; k <= 5; ++k) {
    on.method[k] = Put(form, CasePicture("method" + std::to_string(k - 1), kAxisY, k));
  }
  Put(form, CloseButton("ok", "OK", form));
}

// --- Lateral torsional buckling -----------------------------------------------------------------

bool TypesFactors(const Session& s) {
  return s.st().AnalysisMode == 1 && s.st().LtbSegments == 0;
}

bool FactorsAreTyped(const Session& s) {
  return s.st().CFactorManual == 1 && TypesFactors(s);
}

bool HasUnequalI(const Session& s) {
  const Family* family = FindFamily(s.st().ProfileType);
  return family != nullptr && family->lateral.method == LateralMethod::SinglySymmetric;
}

/// A C factor: the typed one while factors are typed in, else the one in use where there is one.
Control CFactor(const char* name, const char* caption, number S::*typed,
                number LtbResults::*computed, bool (*inUse)(const Session&)) {
  Control c = Input(name, caption, Calculated(typed));
  c.text = [typed, computed, inUse](const Session& s) {
    if (FactorsAreTyped(s)) return s.Shown(s.st().*typed, "0.000");
    return inUse(s) ? s.Shown(s.design().ltb.*computed, "0.000") : std::string("N/A");
  };
  c.enabled = FactorsAreTyped;
  return c;
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
    s.Calculate();
  };
  return c;
}

/// The case of lateral buckling whose factor is typed in.
constexpr int kTypedCase = 5;
/// The load level whose height is typed in.
constexpr int kTypedLevel = 4;

void AddLateralCases(Form& form, LateralControls& on) {
  for (int k = 1; k <= 5; ++k) {
    const bool typed = k == kTypedCase;
    // The picture of a typed factor is the sixth end condition.
    Control c = Picture("latbuckl" + std::to_string(k), {Sign::EndCondition, typed ? 6 : k},
                        typed ? "k typed in" : EndConditionWords(k), [k, typed](Session& s) {
                          s.st().LateralBucklingCase = k;
                          if (!typed) s.st().k_ltb = LengthFactorOfCase(k);
                          s.Calculate();
                        });
    c.checked = [k](const Session& s) { return s.st().LateralBucklingCase == k; };
    on.latbuckl[k] = Put(form, std::move(c));
  }
  Control factor = Input("ik", "k =", Calculated(&S::k_ltb));
  factor.enabled = [](const Session& s) { return s.st().LateralBucklingCase == kTypedCase; };
  on.ik = Put(form, std::move(factor));
}

void AddLoadLevels(Form& form, LateralControls& on) {
  constexpr std::array<const char*, 4> tips{"Load above the centre (top flange)",
                                            "Load at the centre",
                                            "Load below the centre (bottom flange)", "Za typed in"};
  for (int k = 1; k <= 4; ++k) {
    Control c = Picture("loadl" + std::to_string(k), {Sign::LoadLevel, k},
                        tips[static_cast<std::size_t>(k - 1)], [k](Session& s) {
                          s.st().LoadLevel = k;
                          s.Calculate();
                        });
    c.checked = [k](const Session& s) { return s.st().LoadLevel == k; };
    on.loadl[k] = Put(form, std::move(c));
  }
  Control height = Input("iza", "Za = distance from CoG", Calculated(&S::Za));
  height.visible = [](const Session& s) { return s.st().LoadLevel == kTypedLevel; };
  on.iza = Put(form, std::move(height));
}

void ToggleTypedFactors(Session& s) {
  S& st = s.st();
  if (st.CFactorManual == 0) {
    const LtbResults& ltb = s.design().ltb;
    st.C1i = ltb.C1;
    st.C2i = ltb.C2;
    st.C3i = ltb.C3;
    st.CFactorManual = 1;
  } else {
    st.CFactorManual = 0;
  }
  s.Calculate();
}

/// The value of the segment method stands a blank further in.
std::string MomentText(const Session& s, double M, const char* ahead = "") {
  return ahead + s.Shown(M, "0.0") + " kNm";
}

void AddLateral(Forms& forms) {
  Form& form = forms.Add("vipping", Fixed("Lateral torsional buckling parameters"));
  forms.lateral = &form;
  form.input = true;
  LateralControls& on = forms.onLateral;
  on.Cbo = Put(form, RestraintList());
  on.frlength = Put(form, FrameOf("frlength", "Lateral torsional buckling length"));
  AddLateralCases(form, on);
  Control typed = Check(
      "Cfactor", "Manual input of C-factors",
      [](const Session& s) { return s.st().CFactorManual == 1; }, ToggleTypedFactors);
  typed.visible = TypesFactors;
  on.Cfactor = Put(form, std::move(typed));
  const auto always = [](const Session&) { return true; };
  on.ic1 = Put(form, CFactor("ic1", "C1 =", &S::C1i, &LtbResults::C1, always));
  on.ic2 = Put(form, CFactor("ic2", "C2 =", &S::C2i, &LtbResults::C2, TypesFactors));
  on.ic3 = Put(form, CFactor("ic3", "C3 =", &S::C3i, &LtbResults::C3, HasUnequalI));
  on.frlevel = Put(form, FrameOf("frlevel", "Loadlevel"));
  AddLoadLevels(form, on);
  Control governing = TextLabel("omdb", [](const Session& s) {
    return MomentText(s, s.design().ltb.Mdb, TypesFactors(s) ? "" : " ");
  });
  governing.spoken = "Design moment Md,b";
  on.omdb = Put(form, std::move(governing));
  Control least =
      TextLabel("omdbmin", [](const Session& s) { return MomentText(s, s.design().ltb.Mdb_min); });
  least.spoken = "Least design moment Md,b,min";
  on.omdbmin = Put(form, std::move(least));
  on.osegment = Put(form, TextLabel("osegment", [](const Session& s) {
                      if (TypesFactors(s)) return std::string();
                      const bool first = s.st().LtbCriticalSegment == 0;
                      return (first ? " (" : "(") + s.design().ltb.LtbSegmentText + ")";
                    }));
  on.ohint1 = Put(form, Label("ohint1",
                              "This has only influence if you have loading on the beam and that"
                              " lateral restraint points = 0 (C2-factor)"));
  on.ohint2 = Put(form, Label("ohint2",
                              "k-factor is related to member length or the "
                              " length between restraint points "));
  Put(form, CloseButton("ok", "OK", form));
}

}  // namespace

void AddBucklingForms(Forms& forms) {
  AddLateral(forms);
  forms.bucklingY =
      &AddCases(forms, "bucklingy", "Buckling length - Y-axis", kAxisY, forms.onBucklingY);
  forms.bucklingZ =
      &AddCases(forms, "bucklingz", "Buckling length - Z-axis", kAxisZ, forms.onBucklingZ);
  AddCurves(forms);
}

}  // namespace korvane
