// SPDX-License-Identifier: GPL-3.0-or-later
// Default values, detailed results, mode shapes, pictures, about.
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

Form DefaultsForm() {
  using S = ProjectState;
  Form form;
  form.name = "setup";
  form.title = Fixed("Default Values");
  std::vector<Control>& c = form.controls;
  c.push_back(FrameOf("frufa", "Allowable Usage Factor"));
  c.push_back(Input("iufa", "UF =", Calculated(&S::iufa)));
  c.push_back(FlagCheck("check_slend", "Slenderness limit (Buckling Control)", &S::check_slend));
  const auto checked = [](const Session& s) { return s.st().check_slend == 1; };
  c.push_back(Input("islend_limit", "Maximum slenderness:", Bind(&S::islend_limit)));
  c.back().enabled = checked;
  c.push_back(Label("slend_text", " (<= 250, ref NS ch 11.7)"));
  c.back().visible = checked;
  c.push_back(FrameOf("frdef", "Deflection Limit"));
  c.push_back(Input("idef_limit", "Deflection limit: L/", Bind(&S::DeflectionLimit)));
  c.push_back(FrameOf("frmat", "Material "));
  c.push_back(MaterialList());
  c.push_back(Input("ifyk", "fyk =", YieldRule()));
  c.back().enabled = [](const Session& s) {
    return s.st().MaterialIndex >= s.design().lib->materials.Last();
  };
  c.push_back(Input("igammam1", "Material factor:  gm1 =", Calculated(&S::gammam1)));
  c.push_back(FrameOf("frload", "Loadfactors"));
  c.push_back(Input("ilfp_uls", "ULS Permanent (P) =", Calculated(&S::lfp_uls)));
  c.push_back(Input("ilfv1_uls", "ULS Variable (V1) =", Calculated(&S::lfv1_uls)));
  c.push_back(Input("ilfv2_uls", "ULS Variable (V2) =", Calculated(&S::lfv2_uls)));
  c.push_back(Input("ilfp_sls", "SLS Permanent (P) =", Calculated(&S::lfp_sls)));
  c.push_back(Input("ilfv1_Sls", "SLS Variable (V1) =", Calculated(&S::lfv1_sls)));
  c.push_back(Input("ilfv2_Sls", "SLS Variable (V2) =", Calculated(&S::lfv2_sls)));
  c.push_back(Input("ilfsw_ULS", "Selfweight =", Calculated(&S::lfsw_uls)));
  c.push_back(Label("slsfactor", "SLS loadfactor = 1.0"));
  c.push_back(Button("Command2", "Save to file",
                     [](Session& s) { WriteDefaults(s.folders().own, s.st()); }));
  c.push_back(Button("Command1", "OK", [](Session& s) {
    s.Calculate();
    s.FillMainWindow();
    s.Unload("setup");
  }));
  return form;
}

/// Long view of both blocks, as wide as the form.
std::string LongResults(const Session& s) {
  const Design& d = s.design();
  const auto breaks = [](const std::string& text) { return text.size() > 100; };
  std::string text = ViewText(SectionControlLong(d.st, d.checks, breaks));
  if (ShowsBuckling(d.st, d.forces.N)) {
    text += " | " + ViewText(BucklingLong(d.st, d.checks, d.buckling, breaks));
  }
  return s.OnScreen(std::move(text));
}

Form DetailForm() {
  Form form;
  form.name = "detailedresult";
  form.title = Fixed("Results (ULS)");
  Control pane;
  pane.name = "picresult";
  pane.kind = Kind::Surface;
  pane.text = LongResults;
  form.controls.push_back(pane);
  form.controls.push_back(Button("cmdpic", "Section", [](Session& s) {
    if (const Family* family = FindFamily(s.st().ProfileType)) s.Show(family->form);
  }));
  form.controls.push_back(CloseButton("ok", "OK", "detailedresult"));
  return form;
}

Form ModalForm() {
  Form form;
  form.name = "Modal_ns";
  form.title = Fixed("Modal analysis for q-loads (SLS)");
  form.controls.push_back(TextLabel("massa", [](const Session& s) {
    return "Mass: m = " + s.Shown(s.design().modal.ModalMass, "#0") + " kg/m";
  }));
  for (int n = 1; n <= 3; ++n) {
    form.controls.push_back(TextLabel("mod" + std::to_string(n), [n](const Session& s) {
      const double f = s.design().modal.ModalFreq[n];
      const double period = f == 0 ? 0 : 1 / f;
      return "Mode " + std::to_string(n) + ": " + s.Shown(f, "#0.00") + " Hz/" +
             s.Shown(period, "#0.00") + "s";
    }));
  }
  Control pane;
  pane.name = "picmode";
  pane.kind = Kind::Surface;
  pane.text = [](const Session&) { return std::string("Mode shapes"); };
  form.controls.push_back(pane);
  form.controls.push_back(CloseButton("ok", "OK", "Modal_ns"));
  return form;
}

Form SimpleForm(const char* name, const char* title, const char* text) {
  Form form;
  form.name = name;
  form.title = Fixed(title);
  form.controls.push_back(Label("otext", text));
  form.controls.push_back(CloseButton("Command1", "OK", name));
  return form;
}

}  // namespace

void AddSetupForms(std::vector<Form>& forms) {
  forms.push_back(DefaultsForm());
  forms.push_back(DetailForm());
  forms.push_back(ModalForm());
  forms.push_back(SimpleForm("about", "About KORVANE - NS3472",
                             "KORVANE NS3472, Version 3.9. Column/Beam program based on NS3472, "
                             "3 rd ed"));
  forms.push_back(SimpleForm("Pictures", "Pictures", "Supports, end conditions and load levels"));
}

}  // namespace korvane
