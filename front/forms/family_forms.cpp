// SPDX-License-Identifier: GPL-3.0-or-later
// One form for each section family: the list of sizes or the typed dimensions, the figure, and
// the values of the section.
#include <algorithm>
#include <cctype>

#include "core/text.h"
#include "front/forms/family_fields.h"
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/names.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"

namespace korvane {

namespace {

/// The state with this family in force, for the list of its own form.
ProjectState WithFamily(const Session& s, int code) {
  ProjectState st = s.st();
  st.ProfileType = code;
  return st;
}

Control SizeControl(int code) {
  Control c;
  c.name = IsAngle(code) ? "cbo" : "Cbo";
  c.kind = Kind::List;
  c.items = [code](const Session& s) {
    const SizeList sizes = SizesOf(WithFamily(s, code));
    std::vector<std::string> entries;
    for (int row = 0; row < ListLength(sizes.catalogue); ++row) {
      entries.push_back(ListEntry(sizes.catalogue, s.design().lib->catalogues, row));
    }
    return entries;
  };
  c.selected = [code](const Session& s) { return SizesOf(WithFamily(s, code)).row; };
  c.select = [code](Session& s, int index) {
    s.st().*CatalogueOf(*FindFamily(code), s.st())->index = index;
    s.Calculate();
  };
  return c;
}

/// The choice among several catalogues.
void AddSubFamilies(const Family& family, std::vector<Control>& c) {
  if (family.sub == nullptr) return;
  for (const FamilyCatalogue& catalogue : family.catalogues) {
    c.push_back(ValueOption("prof" + std::to_string(catalogue.sub), catalogue.word, family.sub,
                            catalogue.sub));
  }
}

void AddHollowExtras(int code, std::vector<Control>& c) {
  if (code == 7 || code == 9) {
    c.push_back(Picture("cbuttbucklingy", "Turn the section by 90 degrees", [](Session& s) {
      s.st().RhsOrientation = s.st().RhsOrientation == 1 ? 0 : 1;
      s.Calculate();
    }));
  }
  const bool cold = code == 8 || code == 9;
  c.push_back(TextLabel("str", [cold](const Session& s) {
    if (!cold) return std::string(" r = 1.5*t ");
    return "r = " + s.Shown(s.design().rec.r, "##0.0") + " mm";
  }));
  if (cold) c.back().tip = " r = 2*t ; t<=6 \n r = 2.5*t ; 6<t<=10 \n r = 3*t ; t>10 ";
}

/// Capacities carry the older symbols of the standard in their controls' names.
constexpr std::pair<std::string_view, std::string_view> kCapacityNames[] = {
    {"Ntd", "ontrd"},   {"Ncd", "oncrd"},      {"Ncrd", "oncrd"},        {"Mdy", "omcyrd"},
    {"Mdz", "omczrd"},  {"MdyTop", "omcyrd1"}, {"MdyBottom", "omcyrd2"}, {"Vdz", "ovrzd"},
    {"Vdy", "ovryd"},   {"Mud1", "omrud1"},    {"Mud2", "omrud2"},       {"Mud3", "omrud3"},
    {"Mvd1", "omrvd1"}, {"Mvd2", "omrvd2"},    {"Mvd3", "omrvd3"}};

}  // namespace

std::string ValueControlName(std::string_view symbol) {
  for (const auto& [capacity, control] : kCapacityNames) {
    if (capacity == symbol) return std::string(control);
  }
  std::string name = "ost";
  for (const char ch : symbol) {
    if (std::isalnum(static_cast<unsigned char>(ch))) {
      name += static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    }
  }
  return name;
}

namespace {

/// How a form labels a value otherwise than the printed page does; an empty member leaves that of
/// the page.
struct FormLabel {
  int first, last;  ///< of the families
  std::string_view symbol;
  std::string_view caption, format, unit;
};
constexpr FormLabel kFormLabels[] = {
    {6, 9, "h", {}, "##0", {}},
    {6, 9, "b", {}, "##0", {}},
    {10, 11, "Ncrd", "Ncd =", {}, {}},
    {11, 11, "Vdz", "Vzd =", {}, {}},
    {11, 11, "Vdy", "Vyd =", {}, {}},
    {26, 26, "Ntd", "Ntrd =", {}, {}},
    {22, 56, "ez-el", {}, {}, "mm (elastic)"},
    {22, 56, "ez-pl", {}, {}, "mm (plastic)"},
    {22, 56, "Weffy1c", "Weffy1 =", {}, "mm3 (c)"},
    {22, 56, "Weffy1t", "Weffy1 =", {}, "mm3 (t)"},
    {22, 56, "Weffy2c", "Weffy2=", {}, "mm3 (c)"},
    {22, 56, "Weffy2t", "Weffy2=", {}, "mm3 (t)"},
    {22, 56, "MdyTop", "Mdy =", {}, {}},
    {22, 56, "MdyBottom", "Mdy =", {}, {}},
};

FormLabel FormLabelOf(int code, std::string_view symbol) {
  for (const FormLabel& label : kFormLabels) {
    if (label.symbol == symbol && code >= label.first && code <= label.last) return label;
  }
  return {};
}

std::string WithUnit(const ShownValue& v, const FormLabel& label) {
  const std::string value = label.format.empty() ? v.text : Format(v.value, label.format);
  return value + " " + std::string(label.unit.empty() ? v.unit : label.unit);
}

/// The class with one flange compressed stands ahead of the moment that the section carries then.
void AddSideClass(std::string_view symbol, std::vector<Control>& c) {
  const bool top = symbol == "MdyTop";
  if (!top && symbol != "MdyBottom") return;
  c.push_back(TextLabel(top ? "osclass1" : "osclass2", [top](const Session& s) {
    const SectionRecord& rec = s.design().rec;
    return "class " + std::to_string(int(top ? rec.classTop : rec.classBottom));
  }));
  c.back().caption = top ? "Top flange in compression" : "Bottom flange in compression";
}

using Values = ShownValues (*)(const ProjectState&, const SectionRecord&);

/// One label for each value of a block: its text is value and unit, its caption the symbol.
void AddValueLabels(int code, Values values, std::vector<Control>& c) {
  ProjectState st;
  st.ProfileType = code;
  st.p103_sub = 2;  // the longer list; a value that the sub-family lacks is hidden
  const SectionRecord none;
  for (const ShownValue& v : values(st, none)) {
    const std::string symbol(v.name);
    if (code == 22 && symbol == "Ix") continue;  // on the page alone
    AddSideClass(symbol, c);
    const FormLabel own = FormLabelOf(code, symbol);
    const auto find = [values, symbol, own](const Session& s) {
      const ShownValues all = values(s.st(), s.design().rec);
      const auto it = std::find_if(all.begin(), all.end(),
                                   [&](const ShownValue& x) { return x.name == symbol; });
      return it == all.end() ? std::string() : WithUnit(*it, own);
    };
    Control label = TextLabel(ValueControlName(symbol),
                              [find](const Session& s) { return s.OnScreen(find(s)); });
    label.caption = own.caption.empty() ? symbol + " =" : std::string(own.caption);
    label.visible = [find](const Session& s) { return !find(s).empty(); };
    c.push_back(std::move(label));
  }
}

/// The class, unless the sides have one each; the T section's says itself what it is.
void AddClassLabel(int code, std::vector<Control>& c) {
  const auto sides = [](const Control& control) { return control.name == "osclass1"; };
  if (std::any_of(c.begin(), c.end(), sides)) return;
  const std::string words = code == 26 ? "Sectionclass : " : "";
  c.push_back(TextLabel(
      "osclass", [words](const Session& s) { return words + ClassText(s.st(), s.design().rec); }));
  c.back().caption = words.empty() ? "Sectionclass:" : " ";
}

void AddCommon(int code, const char* form, std::vector<Control>& c) {
  AddValueLabels(code, Dimensions, c);
  AddValueLabels(code, Properties, c);
  if (code != 41) {  // the general profile shows no capacities, and its class is chosen
    AddValueLabels(code, Capacities, c);
    AddClassLabel(code, c);
  }
  Control figure;
  figure.name = "pic1";
  figure.kind = Kind::Surface;
  figure.text = [](const Session& s) {
    return std::string(s.st().FigureNotToScale == 1 ? "Figure not to scale" : "Figure to scale");
  };
  const auto flip = [](Session& s) {
    s.st().FigureNotToScale = s.st().FigureNotToScale == 1 ? 0 : 1;
  };
  figure.click = flip;
  c.push_back(figure);
  c.push_back(Button("figscale", "Figure scale", flip));
  c.back().text = figure.text;
  c.push_back(Button("addtodb", "Add to Database",
                     [](Session& s) { AddToDatabase(s.st(), s.database()); }));
  c.push_back(CloseButton("Command1", "OK", form));
}

void AddTypedOptions(int code, std::vector<Control>& c) {
  using S = ProjectState;
  if (code == 23) {
    c.push_back(FrameOf("frweld", "Based on Cold rolling"));
    c.push_back(ValueOption("oweld0", "Yes", &S::BoxWeld, 0));
    c.push_back(ValueOption("oweld1", "No", &S::BoxWeld, 1));
  }
  if (IsHsq(code)) {
    c.push_back(FrameOf("frhsq", "Consider flange loading (valid for q-load)"));
    c.push_back(ValueOption("opthsq0", "Yes", &S::HsqKind, 0));
    c.push_back(ValueOption("opthsq1", "No", &S::HsqKind, 1));
  }
  if (code == 26) c.push_back(Label("onote", "Note: Profile takes only N-loads (axial)"));
  if (code == 31) {
    c.push_back(ValueOption("opthot", "Hotformed", &S::TubeKind, 1));
    c.push_back(ValueOption("optcold", "Coldformed", &S::TubeKind, 0));
  }
  if (code == 41) {
    c.push_back(FrameOf("frclass", "Sectionclass"));
    for (int k = 1; k <= 3; ++k) {
      c.push_back(ValueOption("op" + std::to_string(k), std::to_string(k), &S::p41_option, k));
    }
    c.push_back(Label("onote", "Only section class 1-3 is available for this profile"));
  }
}

Form FamilyForm(const Family& family) {
  Form form;
  form.name = family.form;
  form.title = Fixed(family.formCaption);
  std::vector<Control>& c = form.controls;
  AddSubFamilies(family, c);
  if (!family.catalogues.empty()) c.push_back(SizeControl(family.code));
  AddTypedFields(family.code, c);
  AddTypedOptions(family.code, c);
  if (family.outline == OutlineKind::Hollow) AddHollowExtras(family.code, c);
  AddCommon(family.code, family.form, c);
  form.onFocus = [name = std::string(family.form)](Session& s) { s.Fill(name); };
  return form;
}

}  // namespace

void AddFamilyForms(std::vector<Form>& forms) {
  for (const Family& family : AllFamilies()) forms.push_back(FamilyForm(family));
}

}  // namespace korvane
