// SPDX-License-Identifier: GPL-3.0-or-later
// Loads, end forces, supports and stiffeners, calculation points.
#include <array>

#include "analysis/loads.h"
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

Control CloseButton(const char* name, const char* caption, const char* form) {
  return Button(name, caption, [form](Session& s) { s.Close(form); });
}

namespace {

constexpr const char* kCategories[] = {"P", "V1", "V2"};

std::string CategoryCaption(int pv) {
  return kCategories[pv == 0 || pv == 1 ? pv : 2];
}

/// A picture button that steps a code and shows it in its caption.
Control Toggle(std::string name, std::function<std::string(const Session&)> text,
               std::function<void(ProjectState&)> step) {
  Control c = Picture(std::move(name), {}, [step = std::move(step)](Session& s) {
    step(s.st());
    s.Calculate();
  });
  c.text = std::move(text);
  return c;
}

int NextCategory(int pv) {
  return pv == 0 ? 1 : pv == 1 ? 2 : 0;
}
int Flipped(int flag) {
  return flag == 0 ? 1 : 0;
}

Control CategoryToggle(std::string name, int16 ProjectState::*pv) {
  return Toggle(
      std::move(name), [pv](const Session& s) { return CategoryCaption(s.st().*pv); },
      [pv](ProjectState& st) { st.*pv = NextCategory(st.*pv); });
}

Control DirectionToggle(std::string name, int16 ProjectState::*yz) {
  return Toggle(
      std::move(name), [yz](const Session& s) { return std::string(s.st().*yz == 0 ? "Y" : "Z"); },
      [yz](ProjectState& st) { st.*yz = Flipped(st.*yz); });
}

/// An option pair that changes only how positions are shown and typed.
Control RelativeOption(const char* name, const char* caption, int16 ProjectState::*flag, int value,
                       const char* form) {
  return Option(
      name, caption, [flag, value](const Session& s) { return s.st().*flag == value; },
      [flag, value, form](Session& s) {
        s.st().*flag = value;
        s.Fill(form);
        s.Calculate();
      });
}

void AddFactors(std::vector<Control>& c) {
  using S = ProjectState;
  c.push_back(Input("ilfp_uls", "ULS P", Calculated(&S::lfp_uls)));
  c.push_back(Input("ilfv1_uls", "ULS V1", Calculated(&S::lfv1_uls)));
  c.push_back(Input("ilfv2_uls", "ULS V2", Calculated(&S::lfv2_uls)));
  c.push_back(Input("ilfp_sls", "SLS P", Calculated(&S::lfp_sls)));
  c.push_back(Input("ilfv1_Sls", "SLS V1", Calculated(&S::lfv1_sls)));
  c.push_back(Input("ilfv2_Sls", "SLS V2", Calculated(&S::lfv2_sls)));
  const auto withSelfWeight = [](const Session& s) { return s.st().SelfWeight == 1; };
  c.push_back(Input("ilfsw_ULS", "Selfweight ULS", Calculated(&S::lfsw_uls)));
  c.back().visible = withSelfWeight;
  c.push_back(Label("ilfsw_SLS", "1.00"));
  c.back().visible = withSelfWeight;
  c.push_back(Label("slsfactor", "SLS loadfactor = 1.0"));
  c.back().visible = withSelfWeight;
}

void AddLines(std::vector<Control>& c) {
  using S = ProjectState;
  struct Line {
    float32 S::*q;
    int16 S::*pv;
    int16 S::*yz;
  };
  const std::array<Line, 4> lines{{{&S::q1, &S::q1_pv, &S::q1_yz},
                                   {&S::q2, &S::q2_pv, &S::q2_yz},
                                   {&S::q3, &S::q3_pv, &S::q3_yz},
                                   {&S::q4, &S::q4_pv, &S::q4_yz}}};
  for (int k = 1; k <= 4; ++k) {
    const Line& l = lines[static_cast<std::size_t>(k - 1)];
    const std::string name = "iq" + std::to_string(k);
    c.push_back(Input(name, "q" + std::to_string(k), Calculated(l.q)));
    c.push_back(CategoryToggle(name + "_pv", l.pv));
    c.push_back(DirectionToggle(name + "_yz", l.yz));
  }
}

void AddTrapezoids(std::vector<Control>& c) {
  for (int t = 1; t <= 3; ++t) {
    const Trapezoid& s = TrapezoidOf(t);
    const std::string name = "iqt" + std::to_string(t);
    c.push_back(Input(name + "1", "q1", Calculated(s.q1)));
    c.push_back(Input(name + "2", "q2", Calculated(s.q2)));
    c.push_back(Input(name + "x1", "x1", Calculated(s.x1)));
    c.push_back(Input(name + "x2", "x2", Calculated(s.x2)));
    c.push_back(CategoryToggle(name + "_pv", s.pv));
    c.push_back(DirectionToggle(name + "_yz", s.yz));
  }
}

void AddItems(std::vector<Control>& c) {
  using S = ProjectState;
  for (int i = 1; i <= 8; ++i) {
    const std::string index = "(" + std::to_string(i) + ")";
    c.push_back(Toggle(
        "ipm_pm" + index,
        [i](const Session& s) { return std::string(s.st().pm_pm[i] == 0 ? "P" : "M"); },
        [i](S& st) { st.pm_pm[i] = Flipped(st.pm_pm[i]); }));
    c.push_back(Input("ipm" + index, "P/M", Calculated(&S::pm, i)));
    c.push_back(Input("ipmx" + index, "x", Calculated(&S::pmx, i)));
    c.push_back(Toggle(
        "ipm_pv" + index, [i](const Session& s) { return CategoryCaption(s.st().pm_pv[i]); },
        [i](S& st) { st.pm_pv[i] = NextCategory(st.pm_pv[i]); }));
    c.push_back(Toggle(
        "ipm_yz" + index,
        [i](const Session& s) {
          const bool z = s.st().pm_yz[i] != 0;
          if (s.st().pm_pm[i] == 0) return std::string(z ? "Z" : "Y");
          return std::string(z ? "My" : "Mz");
        },
        [i](S& st) { st.pm_yz[i] = Flipped(st.pm_yz[i]); }));
  }
}

/// Tidies the loads; a load that can't stand keeps the form open with the focus on its field.
bool CheckOnClosing(Session& s) {
  const auto message = NormaliseLoads(s.st());
  s.Fill("loading");
  if (!message) return true;
  s.platform().Message(message->text);
  s.FocusField("loading." + message->focus);
  return false;
}

Form LoadingForm() {
  using S = ProjectState;
  Form form;
  form.name = "loading";
  form.title = [](const Session& s) {
    return "Loading - " + SectionTitle(s.st(), s.design().lib->catalogues);
  };
  std::vector<Control>& c = form.controls;
  AddFactors(c);
  c.push_back(Input("inp", "N (P)", Calculated(&S::NP), "Compression positive"));
  c.push_back(Input("inv1", "N (V1)", Calculated(&S::NV1)));
  c.push_back(Input("inv2", "N (V2)", Calculated(&S::NV2)));
  AddLines(c);
  AddTrapezoids(c);
  AddItems(c);
  c.push_back(Check(
      "check_selfweight", "Include Selfweight - z-dir",
      [](const Session& s) { return s.st().SelfWeight == 1; },
      [](Session& s) {
        s.st().SelfWeight = Flipped(s.st().SelfWeight);
        s.Calculate();
        s.Fill("loading");
      }));
  c.push_back(RelativeOption("pmxabsolute", "Absolute (m)", &S::pmx_relative, 0, "loading"));
  c.push_back(RelativeOption("pmxrelative", "Relative (x/L)", &S::pmx_relative, 1, "loading"));
  c.push_back(RelativeOption("qtxabsolute", "Absolute (m)", &S::qtx_relative, 0, "loading"));
  c.push_back(RelativeOption("qtxrelative", "Relative (x/L)", &S::qtx_relative, 1, "loading"));
  c.push_back(Button("Command1", "Remove all loads", [](Session& s) {
    ClearLoads(s.st());
    s.Calculate();
    s.Fill("loading");
  }));
  c.push_back(CloseButton("ok", "OK", "loading"));
  form.onFocus = [](Session& s) {
    s.st().AnalysisMode = 1;
    s.Calculate();
  };
  form.onClose = CheckOnClosing;
  return form;
}

Form EndForceForm() {
  using S = ProjectState;
  Form form;
  form.name = "endforce";
  form.title = Fixed("Endforces (kN, kNm)");
  std::vector<Control>& c = form.controls;
  c.push_back(Input("ine", "N", Calculated(&S::Ne), " (+=compression)"));
  struct Row {
    const char* name;
    const char* caption;
    Indexed<float32, 1, 2> S::*member;
  };
  for (const Row& row : {Row{"imy", "My", &S::My_end}, Row{"imz", "Mz", &S::Mz_end},
                         Row{"ivy", "Vy", &S::Vy_end}, Row{"ivz", "Vz", &S::Vz_end}}) {
    for (int end = 1; end <= 2; ++end) {
      const std::string number = std::to_string(end);
      c.push_back(Input(row.name + number, row.caption + number, Calculated(row.member, end)));
    }
  }
  c.push_back(Label("onote", "Shall be used for members with only joint forces"));
  c.push_back(Label("osign", " (+=compression)"));
  c.push_back(CloseButton("ok", "OK", "endforce"));
  form.onFocus = [](Session& s) {
    s.st().AnalysisMode = 0;
    s.Calculate();
  };
  return form;
}

Form StiffenerForm() {
  using S = ProjectState;
  Form form;
  form.name = "endstiff";
  form.title = Fixed("Support/Webstiffener");
  std::vector<Control>& c = form.controls;
  c.push_back(ValueOption("oendstiff0", "Weak Support stiffener", &S::EndStiffener, 0));
  c.push_back(ValueOption("oendstiff1", "Stiff Support stiffener", &S::EndStiffener, 1));
  c.push_back(ValueOption("cwebstiff0", "No web stiffeners", &S::WebStiffener, 0));
  c.push_back(ValueOption("cwebstiff1", "Web stiffeners", &S::WebStiffener, 1));
  const auto withWeb = [](const Session& s) { return s.st().WebStiffener == 1; };
  c.push_back(Input("iweba", "a =", Calculated(&S::a_webstiff)));
  c.back().visible = withWeb;
  c.push_back(Label("webamm", "mm"));
  c.back().visible = withWeb;
  c.push_back(Label("onote", "Minimum two webstiffeners at the support"));
  c.push_back(CloseButton("ok", "OK", "endstiff"));
  return form;
}

Form PointsForm() {
  using S = ProjectState;
  Form form;
  form.name = "chpoints";
  form.title = Fixed("Section Control - calculation points");
  std::vector<Control>& c = form.controls;
  c.push_back(ValueOption("cp_0", "11 even distributed points && Max/Min My/Mz ", &S::cp_mode, 0));
  c.push_back(ValueOption("cp_1", "Characteristic points (CP)", &S::cp_mode, 1));
  c.push_back(Label("onumber", "Number of Points:"));
  for (int n = 1; n <= 3; ++n) {
    c.push_back(ValueOption("no_cp" + std::to_string(n), std::to_string(n), &S::cp_count, n));
  }
  for (int i = 1; i <= 3; ++i) {
    FieldRule rule = Calculated(&S::cp_x, i);
    // A refused absolute position recalculates all the same.
    rule.afterRefusal = [](Session& s) {
      if (s.st().cp_relative == 0) s.Calculate();
    };
    c.push_back(Input("icp(" + std::to_string(i) + ")", "x" + std::to_string(i), rule));
    c.back().visible = [i](const Session& s) {
      return s.st().cp_mode == 1 && s.st().cp_count >= i;
    };
  }
  c.push_back(RelativeOption("cpabsolute", "Absolute (m)", &S::cp_relative, 0, "chpoints"));
  c.push_back(RelativeOption("cprelative", "Relative (x/L)", &S::cp_relative, 1, "chpoints"));
  c.push_back(CloseButton("ok", "OK", "chpoints"));
  return form;
}

}  // namespace

void AddLoadForms(std::vector<Form>& forms) {
  forms.push_back(LoadingForm());
  forms.push_back(EndForceForm());
  forms.push_back(StiffenerForm());
  forms.push_back(PointsForm());
}

}  // namespace korvane
