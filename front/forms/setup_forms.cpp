// SPDX-License-Identifier: GPL-3.0-or-later
// Default values, detailed results, mode shapes, pictures, about.
#include "core/program.h"
#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

namespace {

using S = ProjectState;

bool ChecksSlenderness(const Session& s) {
  return s.st().check_slend == 1;
}

void AddDefaults(Forms& forms) {
  Form& form = forms.Add("setup", Fixed("Default Values"));
  forms.setup = &form;
  form.input = true;
  Put(form, FrameOf("frufa", "Allowable Usage Factor"));
  Put(form, Input("iufa", "UF =", Calculated(&S::iufa)));
  Put(form, FlagCheck("check_slend", "Slenderness limit (Buckling Control)", &S::check_slend));
  Control slenderness = Input("islend_limit", "Maximum slenderness:", Bind(&S::islend_limit));
  slenderness.enabled = ChecksSlenderness;
  Put(form, std::move(slenderness));
  Control advice = Label("slend_text", " (<= 250, ref NS ch 11.7)");
  advice.visible = ChecksSlenderness;
  Put(form, std::move(advice));
  Put(form, FrameOf("frdef", "Deflection Limit"));
  Put(form, Input("idef_limit", "Deflection limit: L/", Bind(&S::DeflectionLimit)));
  Put(form, FrameOf("frmat", "Material "));
  Put(form, MaterialList());
  Put(form, YieldField({}));
  Put(form, Input("igammam1", "Material factor:  gm1 =", Calculated(&S::gammam1)));
  forms.onSetup.frload = Put(form, FrameOf("frload", "Loadfactors"));
  Put(form, Input("ilfp_uls", "ULS Permanent (P) =", Calculated(&S::lfp_uls)));
  Put(form, Input("ilfv1_uls", "ULS Variable (V1) =", Calculated(&S::lfv1_uls)));
  Put(form, Input("ilfv2_uls", "ULS Variable (V2) =", Calculated(&S::lfv2_uls)));
  Put(form, Input("ilfp_sls", "SLS Permanent (P) =", Calculated(&S::lfp_sls)));
  Put(form, Input("ilfv1_Sls", "SLS Variable (V1) =", Calculated(&S::lfv1_sls)));
  Put(form, Input("ilfv2_Sls", "SLS Variable (V2) =", Calculated(&S::lfv2_sls)));
  Put(form, Input("ilfsw_ULS", "Selfweight =", Calculated(&S::lfsw_uls)));
  Put(form, SlsFactorLabel());
  Put(form, Button("Command2", "Save to file", [](Session& s) {
        s.files().WroteDefaults(WriteDefaults(s.folders().own, s.st()));
      }));
  Put(form, Button("Command1", "OK", [](Session& s) {
        s.Calculate();
        s.FillMainWindow();
        s.Unload(*TheForms().setup);
      }));
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

void AddDetails(Forms& forms) {
  Form& form = forms.Add("detailedresult", Fixed("Results (ULS)"));
  forms.details = &form;
  Put(form, Surface("picresult", Painting::LongResults, LongResults));
  Put(form, Button("cmdpic", "Section", [](Session& s) {
        for (const Form& family : AllForms()) {
          if (family.family != 0 && family.family == s.st().ProfileType) s.Show(family);
        }
      }));
  Put(form, CloseButton("ok", "OK", form));
}

void AddModes(Forms& forms) {
  Form& form = forms.Add("Modal_ns", Fixed("Modal analysis for q-loads (SLS)"));
  forms.modes = &form;
  Put(form, TextLabel("massa", [](const Session& s) {
        return "Mass: m = " + s.Shown(s.design().modal.ModalMass, "#0") + " kg/m";
      }));
  for (int n = 1; n <= 3; ++n) {
    Put(form, TextLabel("mod" + std::to_string(n), [n](const Session& s) {
          const double f = s.design().modal.ModalFreq[n];
          const double period = f == 0 ? 0 : 1 / f;
          return "Mode " + std::to_string(n) + ": " + s.Shown(f, "#0.00") + " Hz/" +
                 s.Shown(period, "#0.00") + "s";
        }));
  }
  Put(form, Surface("picmode", Painting::Modes,
                    [](const Session&) { return std::string("Mode shapes"); }));
  Put(form, CloseButton("ok", "OK", form));
}

Form& AddSimple(Forms& forms, const char* name, const char* title, const std::string& text) {
  Form& form = forms.Add(name, Fixed(title));
  Put(form, Label("otext", text));
  Put(form, CloseButton("Command1", "OK", form));
  return form;
}

}  // namespace

void AddSetupForms(Forms& forms) {
  AddDefaults(forms);
  AddDetails(forms);
  AddModes(forms);
  forms.about = &AddSimple(forms, "about", "About KORVANE - NS3472",
                           kProgramName + std::string(", Version ") + kVersion +
                               ". Column/Beam program based on NS3472, 3 rd ed");
  Form& pictures =
      AddSimple(forms, "Pictures", "Pictures", "Supports, end conditions and load levels");
  forms.pictures = &pictures;
  forms.onPictures.otext = &pictures.controls.front();
}

}  // namespace korvane
