// SPDX-License-Identifier: GPL-3.0-or-later
// Loads, end forces, supports and stiffeners, calculation points.
#include "analysis/loads.h"
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

using S = ProjectState;

constexpr const char* kCategories[] = {"P", "V1", "V2"};
constexpr const char* kCategoryWords[] = {"Permanent", "Variable 1", "Variable 2"};

int KnownCategory(int pv) {
  return pv == 0 || pv == 1 ? pv : 2;
}
std::string CategoryCaption(int pv) {
  return kCategories[KnownCategory(pv)];
}

using Reads = std::function<std::string(const Session&)>;

/// A picture button that steps a code, which is its text; a window writes words. of: the load
/// that it belongs to.
Control Toggle(std::string name, const std::string& what, const std::string& of, Reads code,
               Reads words, std::function<void(S&)> step) {
  Control c =
      Picture(std::move(name), {}, what + " of " + of, [step = std::move(step)](Session& s) {
        step(s.st());
        s.Calculate();
      });
  c.text = std::move(code);
  c.words = std::move(words);
  return c;
}

constexpr const char* kGroup = "Load group";
constexpr const char* kDirection = "Direction";

/// A field whose caption alone doesn't say of which load it is.
Control Of(const std::string& load, Control field) {
  field.spoken = load + ", " + field.caption;
  return field;
}

int NextCategory(int pv) {
  return pv == 0 ? 1 : pv == 1 ? 2 : 0;
}
int Flipped(int flag) {
  return flag == 0 ? 1 : 0;
}

/// The codes of a load: group and direction. get gives the code of a state.
Control CategoryToggle(std::string name, const std::string& of, std::function<int(const S&)> get,
                       std::function<void(S&)> step) {
  return Toggle(
      std::move(name), kGroup, of, [get](const Session& s) { return CategoryCaption(get(s.st())); },
      [get](const Session& s) { return std::string(kCategoryWords[KnownCategory(get(s.st()))]); },
      std::move(step));
}

Control CategoryToggle(std::string name, const std::string& of, int16 S::*pv) {
  return CategoryToggle(
      std::move(name), of, [pv](const S& st) { return int(st.*pv); },
      [pv](S& st) { st.*pv = NextCategory(st.*pv); });
}

Control DirectionToggle(std::string name, const std::string& of, int16 S::*yz) {
  const Reads code = [yz](const Session& s) { return std::string(s.st().*yz == 0 ? "Y" : "Z"); };
  return Toggle(std::move(name), kDirection, of, code, code,
                [yz](S& st) { st.*yz = Flipped(st.*yz); });
}

// --- Loading ------------------------------------------------------------------------------------

void AddFactors(Form& form, LoadingControls& on) {
  const auto factor = [&](const char* name, const char* caption, float32 S::*member) {
    return Put(form, Input(name, caption, Calculated(member)));
  };
  on.ilfp_uls = factor("ilfp_uls", "ULS P", &S::lfp_uls);
  on.ilfv1_uls = factor("ilfv1_uls", "ULS V1", &S::lfv1_uls);
  on.ilfv2_uls = factor("ilfv2_uls", "ULS V2", &S::lfv2_uls);
  on.ilfp_sls = factor("ilfp_sls", "SLS P", &S::lfp_sls);
  on.ilfv1_Sls = factor("ilfv1_Sls", "SLS V1", &S::lfv1_sls);
  on.ilfv2_Sls = factor("ilfv2_Sls", "SLS V2", &S::lfv2_sls);
  const auto ofSelfWeight = [&](Control control) {
    control.visible = [](const Session& s) { return s.st().SelfWeight == 1; };
    return Put(form, std::move(control));
  };
  on.ilfsw_ULS = ofSelfWeight(Input("ilfsw_ULS", "Selfweight ULS", Calculated(&S::lfsw_uls)));
  on.ilfsw_SLS =
      ofSelfWeight(TextLabel("ilfsw_SLS", [](const Session& s) { return s.OnScreen("1.00"); }));
  on.slsfactor = ofSelfWeight(SlsFactorLabel());
}

void AddLines(Form& form, LoadingControls& on) {
  struct Line {
    float32 S::*q;
    int16 S::*pv;
    int16 S::*yz;
  };
  constexpr Line lines[] = {{&S::q1, &S::q1_pv, &S::q1_yz},
                            {&S::q2, &S::q2_pv, &S::q2_yz},
                            {&S::q3, &S::q3_pv, &S::q3_yz},
                            {&S::q4, &S::q4_pv, &S::q4_yz}};
  int k = 1;
  for (const Line& line : lines) {
    const std::string number = std::to_string(k);
    const std::string name = "iq" + number;
    on.lines[k++] = {Put(form, Input(name, "q" + number, Calculated(line.q))),
                     Put(form, CategoryToggle(name + "_pv", "q" + number, line.pv)),
                     Put(form, DirectionToggle(name + "_yz", "q" + number, line.yz))};
  }
}

void AddTrapezoids(Form& form, LoadingControls& on) {
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    const std::string name = "iqt" + std::to_string(t);
    const std::string of = "trapezoid " + std::to_string(t);
    const auto field = [&](const char* end, const char* caption, float32 S::*member) {
      return Put(form, Of("Trapezoid " + std::to_string(t),
                          Input(name + end, caption, Calculated(member))));
    };
    on.trapezoids[t] = {field("1", "q1", s.q1),
                        field("2", "q2", s.q2),
                        field("x1", "x1", s.x1),
                        field("x2", "x2", s.x2),
                        Put(form, CategoryToggle(name + "_pv", of, s.pv)),
                        Put(form, DirectionToggle(name + "_yz", of, s.yz))};
  }
}

Control KindToggle(int i, const std::string& name, const std::string& of) {
  return Toggle(
      name, "Kind", of,
      [i](const Session& s) { return std::string(s.st().pm_pm[i] == 0 ? "P" : "M"); },
      [i](const Session& s) { return std::string(s.st().pm_pm[i] == 0 ? "Point load" : "Moment"); },
      [i](S& st) { st.pm_pm[i] = Flipped(st.pm_pm[i]); });
}

Control ItemDirection(int i, const std::string& name, const std::string& of) {
  const Reads code = [i](const Session& s) {
    const bool z = s.st().pm_yz[i] != 0;
    if (s.st().pm_pm[i] == 0) return std::string(z ? "Z" : "Y");
    return std::string(z ? "My" : "Mz");
  };
  return Toggle(name, kDirection, of, code, code,
                [i](S& st) { st.pm_yz[i] = Flipped(st.pm_yz[i]); });
}

void AddItems(Form& form, LoadingControls& on) {
  for (int i = 1; i <= 8; ++i) {
    const std::string index = "(" + std::to_string(i) + ")";
    const std::string of = "load " + std::to_string(i);
    const std::string load = "Load " + std::to_string(i);
    on.items[i] = {
        Put(form, KindToggle(i, "ipm_pm" + index, of)),
        Put(form, Of(load, Input("ipm" + index, "P/M", Calculated(&S::pm, i)))),
        Put(form, Of(load, Input("ipmx" + index, "x", Calculated(&S::pmx, i)))),
        Put(form, CategoryToggle(
                      "ipm_pv" + index, of, [i](const S& st) { return int(st.pm_pv[i]); },
                      [i](S& st) { st.pm_pv[i] = NextCategory(st.pm_pv[i]); })),
        Put(form, ItemDirection(i, "ipm_yz" + index, of))};
  }
}

/// Tidies the loads; a load that can't stand keeps the form open with the focus on its field.
bool CheckOnClosing(Session& s) {
  const ProjectState before = s.st();
  const auto message = NormaliseLoads(s.st());
  s.TellRemoved(before, false);
  if (!message) return true;
  s.platform().Message(message->text);
  s.FocusField(*FieldOf(*TheForms().loading, InputOf(message->field)));
  return false;
}

void RemoveLoads(Session& s) {
  s.removedLoads = s.st();
  ClearLoads(s.st());
  s.Calculate();
  s.Tell("All loads removed; the form Loading brings them back");
}

void BringLoadsBack(Session& s) {
  TakeLoads(*s.removedLoads, s.st());
  s.st().LoadLevel = s.removedLoads->LoadLevel;
  s.removedLoads.reset();
  s.Calculate();
  s.Tell("The loads are back");
}

void AddLoading(Forms& forms) {
  Form& form = forms.Add("loading", [](const Session& s) {
    return "Loading - " + SectionTitle(s.st(), s.design().lib->catalogues);
  });
  forms.loading = &form;
  form.input = true;
  LoadingControls& on = forms.onLoading;
  AddFactors(form, on);
  on.inp = Put(form, Input("inp", "N (P)", Calculated(&S::NP), "Compression positive"));
  on.inv1 = Put(form, Input("inv1", "N (V1)", Calculated(&S::NV1)));
  on.inv2 = Put(form, Input("inv2", "N (V2)", Calculated(&S::NV2)));
  AddLines(form, on);
  AddTrapezoids(form, on);
  AddItems(form, on);
  on.check_selfweight =
      Put(form, FlagCheck("check_selfweight", "Include Selfweight - z-dir", &S::SelfWeight));
  on.pmxabsolute = Put(form, ValueOption("pmxabsolute", "Absolute (m)", &S::pmx_relative, 0));
  on.pmxrelative = Put(form, ValueOption("pmxrelative", "Relative (x/L)", &S::pmx_relative, 1));
  on.qtxabsolute = Put(form, ValueOption("qtxabsolute", "Absolute (m)", &S::qtx_relative, 0));
  on.qtxrelative = Put(form, ValueOption("qtxrelative", "Relative (x/L)", &S::qtx_relative, 1));
  on.remove = Put(form, Button("Command1", "Remove all loads", RemoveLoads));
  Control undo = Button("undoremove", "Undo: bring the loads back", BringLoadsBack);
  undo.visible = [](const Session& s) { return s.removedLoads.has_value(); };
  on.undo = Put(form, std::move(undo));
  Put(form, CloseButton("ok", "OK", form));
  form.onFocus = [](Session& s) {
    s.st().AnalysisMode = 1;
    s.Calculate();
  };
  form.onClose = CheckOnClosing;
}

// --- The other forms ----------------------------------------------------------------------------

void AddEndForces(Forms& forms) {
  Form& form = forms.Add("endforce", Fixed("Endforces (kN, kNm)"));
  forms.endForces = &form;
  form.input = true;
  EndForceControls& on = forms.onEndForces;
  on.ine = Put(form, Input("ine", "N", Calculated(&S::Ne), " (+=compression)"));
  struct Row {
    const char* name;
    const char* caption;
    Indexed<float32, 1, 2> S::*member;
  };
  constexpr Row rows[] = {{"imy", "My", &S::My_end},
                          {"imz", "Mz", &S::Mz_end},
                          {"ivy", "Vy", &S::Vy_end},
                          {"ivz", "Vz", &S::Vz_end}};
  for (std::size_t k = 0; k < std::size(rows); ++k) {
    const auto end = [&](int number) {
      const std::string digit = std::to_string(number);
      return Put(form, Input(rows[k].name + digit, rows[k].caption + digit,
                             Calculated(rows[k].member, number)));
    };
    on.rows.at(k).left = end(1);
    on.rows.at(k).right = end(2);
  }
  on.onote = Put(form, Label("onote", "Shall be used for members with only joint forces"));
  on.osign = Put(form, Label("osign", " (+=compression)"));
  Put(form, CloseButton("ok", "OK", form));
  form.onFocus = [](Session& s) {
    s.st().AnalysisMode = 0;
    s.Calculate();
  };
}

void AddStiffeners(Forms& forms) {
  Form& form = forms.Add("endstiff", Fixed("Support/Webstiffener"));
  forms.stiffeners = &form;
  form.input = true;
  Put(form, FrameOf("frend", "At the supports"));
  Put(form, ValueOption("oendstiff0", "Weak Support stiffener", &S::EndStiffener, 0));
  Put(form, ValueOption("oendstiff1", "Stiff Support stiffener", &S::EndStiffener, 1));
  Put(form, FrameOf("frweb", "Along the member"));
  Put(form, ValueOption("cwebstiff0", "No web stiffeners", &S::WebStiffener, 0));
  Put(form, ValueOption("cwebstiff1", "Web stiffeners", &S::WebStiffener, 1));
  const auto ofWeb = [&](Control control) {
    control.visible = [](const Session& s) { return s.st().WebStiffener == 1; };
    Put(form, std::move(control));
  };
  ofWeb(Input("iweba", "a =", Calculated(&S::a_webstiff)));
  ofWeb(Label("webamm", "mm"));
  Put(form, Label("onote", "Minimum two webstiffeners at the support"));
  Put(form, CloseButton("ok", "OK", form));
}

void AddPoints(Forms& forms) {
  Form& form = forms.Add("chpoints", Fixed("Section Control - calculation points"));
  forms.points = &form;
  form.input = true;
  Put(form, FrameOf("frpoints", "Points of the control"));
  Put(form, ValueOption("cp_0", "11 even distributed points && Max/Min My/Mz ", &S::cp_mode, 0));
  Put(form, ValueOption("cp_1", "Characteristic points (CP)", &S::cp_mode, 1));
  Put(form, FrameOf("frchosen", "Characteristic points"));
  Put(form, Label("onumber", "Number of Points:"));
  for (int n = 1; n <= 3; ++n) {
    Control count = ValueOption("no_cp" + std::to_string(n), std::to_string(n), &S::cp_count, n);
    count.spoken = "Number of points: " + std::to_string(n);
    Put(form, std::move(count));
  }
  for (int i = 1; i <= 3; ++i) {
    FieldRule rule = Calculated(&S::cp_x, i);
    // A refused absolute position recalculates all the same.
    rule.afterRefusal = [](Session& s) {
      if (s.st().cp_relative == 0) s.Calculate();
    };
    const std::string number = std::to_string(i);
    Control c = Input("icp(" + number + ")", "x" + number, rule);
    c.visible = [i](const Session& s) { return s.st().cp_mode == 1 && s.st().cp_count >= i; };
    Put(form, std::move(c));
  }
  Put(form, ValueOption("cpabsolute", "Absolute (m)", &S::cp_relative, 0));
  Put(form, ValueOption("cprelative", "Relative (x/L)", &S::cp_relative, 1));
  Put(form, CloseButton("ok", "OK", form));
}

}  // namespace

Control SlsFactorLabel() {
  return TextLabel("slsfactor",
                   [](const Session& s) { return s.OnScreen("SLS loadfactor = 1.0"); });
}

void AddLoadForms(Forms& forms) {
  AddLoading(forms);
  AddEndForces(forms);
  AddStiffeners(forms);
  AddPoints(forms);
}

}  // namespace korvane
