// SPDX-License-Identifier: GPL-3.0-or-later
// One form for each section family: the list of sizes or the typed dimensions, the figure, and
// the values of the section.
#include <algorithm>
#include <cctype>

#include "front/forms/family_fields.h"
#include "front/forms/forms.h"
#include "front/session.h"
#include "sections/names.h"
#include "sections/profile_table.h"
#include "sections/shown_values.h"

namespace korvane {

namespace {

using S = ProjectState;

// --- Choice of the size -------------------------------------------------------------------------

Control SizeControl(const Family& family) {
  Control c;
  c.name = IsAngle(family.code) ? "cbo" : "Cbo";
  c.kind = Kind::List;
  const auto catalogue = [&family](const Session& s) { return CatalogueOf(family, s.st()); };
  c.items = [catalogue](const Session& s) {
    const Cat cat = catalogue(s)->cat;
    std::vector<std::string> entries;
    for (int row = 0; row < ListLength(cat); ++row) {
      entries.push_back(ListEntry(cat, s.design().lib->catalogues, row));
    }
    return entries;
  };
  c.itemsVersion = [catalogue](const Session& s) { return catalogue(s)->sub; };
  c.selected = [catalogue](const Session& s) { return int(s.st().*catalogue(s)->index); };
  c.select = [catalogue](Session& s, int index) {
    s.st().*catalogue(s)->index = index;
    s.Calculate();
  };
  return c;
}

/// The catalogues of the British families.
void AddSubFamilies(const Family& family, Form& form) {
  if (family.sub == nullptr) return;
  for (const FamilyCatalogue& catalogue : family.catalogues) {
    Put(form, ValueOption("prof" + std::to_string(catalogue.sub), catalogue.word, family.sub,
                          catalogue.sub));
  }
}

bool Has(const Family& family, std::initializer_list<Cat> catalogues) {
  return !family.catalogues.empty() && std::find(catalogues.begin(), catalogues.end(),
                                                 family.catalogues[0].cat) != catalogues.end();
}

void AddHollowExtras(const Family& family, Form& form) {
  if (family.outline != OutlineKind::Hollow) return;
  if (Has(family, {Cat::RHS, Cat::CFRHS})) {
    Put(form,
        Picture("cbuttbucklingy", {Sign::Turn}, "Turn the section by 90 degrees", [](Session& s) {
          s.st().RhsOrientation = s.st().RhsOrientation == 1 ? 0 : 1;
          s.Calculate();
        }));
  }
  const bool cold = Has(family, {Cat::CFSHS, Cat::CFRHS});
  Control radius = TextLabel("str", [cold](const Session& s) {
    if (!cold) return s.OnScreen(" r = 1.5*t ");
    return "r = " + s.Shown(s.design().rec.r, "##0.0") + " mm";
  });
  if (cold) radius.tip = " r = 2*t ; t<=6 \n r = 2.5*t ; 6<t<=10 \n r = 3*t ; t>10 ";
  Put(form, std::move(radius));
}

// --- Values -------------------------------------------------------------------------------------

/// Capacities carry the older symbols of the standard in their controls' names.
constexpr std::pair<std::string_view, std::string_view> kCapacityNames[] = {
    {"Ntd", "ontrd"},   {"Ncd", "oncrd"},      {"Ncrd", "oncrd"},        {"Mdy", "omcyrd"},
    {"Mdz", "omczrd"},  {"MdyTop", "omcyrd1"}, {"MdyBottom", "omcyrd2"}, {"Vdz", "ovrzd"},
    {"Vdy", "ovryd"},   {"Mud1", "omrud1"},    {"Mud2", "omrud2"},       {"Mud3", "omrud3"},
    {"Mvd1", "omrvd1"}, {"Mvd2", "omrvd2"},    {"Mvd3", "omrvd3"}};

/// Name of the control that shows a value of the section: "ostwely" of Wely.
std::string ValueControlName(std::string_view symbol) {
  for (const auto& [capacity, control] : kCapacityNames) {
    if (capacity == symbol) return std::string(control);
  }
  std::string name = "ost";
  for (const char ch : symbol) {
    if (std::isalnum(static_cast<unsigned char>(ch)) != 0) {
      name += static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    }
  }
  return name;
}

/// How a form labels a value otherwise than the printed page does; an empty member leaves that of
/// the page.
struct FormLabel {
  std::string_view symbol;
  std::string_view caption, unit;
  SectionControlKind of = SectionControlKind::None;  ///< of the families; None: whoever shows it
};
constexpr FormLabel kFormLabels[] = {
    {"Ncrd", "Ncd =", {}, SectionControlKind::EqualAngle},
    {"Ncrd", "Ncd =", {}, SectionControlKind::UnequalAngle},
    {"Vdz", "Vzd =", {}, SectionControlKind::UnequalAngle},
    {"Vdy", "Vyd =", {}, SectionControlKind::UnequalAngle},
    {"Ntd", "Ntrd =", {}, SectionControlKind::T},
    {"ez-el", {}, "mm (elastic)"},
    {"ez-pl", {}, "mm (plastic)"},
    {"Weffy1c", "Weffy1 =", "mm3 (c)"},
    {"Weffy1t", "Weffy1 =", "mm3 (t)"},
    {"Weffy2c", "Weffy2=", "mm3 (c)"},
    {"Weffy2t", "Weffy2=", "mm3 (t)"},
    {"MdyTop", "Mdy =", {}},
    {"MdyBottom", "Mdy =", {}},
};

FormLabel FormLabelOf(const Family& family, std::string_view symbol) {
  for (const FormLabel& label : kFormLabels) {
    const bool theirs =
        label.of == SectionControlKind::None || label.of == family.routines.sectionControl;
    if (label.symbol == symbol && theirs) return label;
  }
  return {};
}

/// A value that a form shows: which one, and its unit there.
struct Wanted {
  Block block;
  std::string_view symbol;
  std::string_view unit;  ///< empty: that of the page
};

ShownValues ValuesOf(Block block, const S& st, const SectionRecord& rec) {
  switch (block) {
    case Block::Dimensions:
      return Dimensions(st, rec);
    case Block::Properties:
      return Properties(st, rec);
    case Block::Capacities:
      return Capacities(st, rec);
    case Block::None:
      break;
  }
  return {};
}

/// The values in the order of their labels; those that the section in force lacks are empty. The
/// wanted ones stand block by block.
std::vector<ShownText> AllValues(const std::vector<Wanted>& wanted, const Session& s) {
  std::vector<ShownText> texts;
  texts.reserve(wanted.size());
  Block block = Block::None;
  ShownValues values;
  for (const Wanted& one : wanted) {
    if (one.block != block) values = ValuesOf(block = one.block, s.st(), s.design().rec);
    const auto it = std::find_if(values.begin(), values.end(),
                                 [&](const ShownValue& v) { return v.name == one.symbol; });
    ShownText text;
    if (it != values.end()) {
      text.text = s.OnScreen(it->text);
      text.unit = one.unit.empty() ? it->unit : one.unit;
    }
    texts.push_back(std::move(text));
  }
  return texts;
}

/// The class with one flange compressed stands ahead of the moment that the section carries then.
void AddSideClass(std::string_view symbol, Form& form) {
  const bool top = symbol == "MdyTop";
  if (!top && symbol != "MdyBottom") return;
  Control c = TextLabel(top ? "osclass1" : "osclass2", [top](const Session& s) {
    const SectionRecord& rec = s.design().rec;
    return "class " + std::to_string(int(top ? rec.classTop : rec.classBottom));
  });
  c.caption = top ? "Top flange in compression" : "Bottom flange in compression";
  c.block = Block::Capacities;
  Put(form, std::move(c));
}

/// The class, unless the sides have one each; the T section's says itself what it is.
void AddClassLabel(const Family& family, Form& form) {
  if (FindControl(form, "osclass1") != nullptr) return;
  const std::string words =
      family.routines.sectionControl == SectionControlKind::T ? "Sectionclass : " : "";
  Control c = TextLabel(
      "osclass", [words](const Session& s) { return words + ClassText(s.st(), s.design().rec); });
  c.caption = words.empty() ? "Sectionclass:" : " ";
  c.block = Block::Capacities;
  Put(form, std::move(c));
}

/// Hollow sections set no Iw: their forms, and not their pages, show what the record holds of the
/// section before. Kept.
void AddWarpingConstant(const Family& family, std::string_view symbol, Form& form) {
  if (family.outline != OutlineKind::Hollow || symbol != "Iz") return;
  Control c = TextLabel(
      "ostiw", [](const Session& s) { return s.Shown(s.design().rec.Iw, "0.000E+0") + " mm6"; });
  c.caption = "Iw =";
  c.block = Block::Properties;
  Put(form, std::move(c));
}

/// One label for each value of a block: its caption is the symbol.
void AddBlock(const Family& family, Block block, std::vector<Wanted>& wanted, Form& form) {
  S st;
  st.ProfileType = family.code;
  // The longest list; a value that a sub-family lacks is hidden.
  if (family.sub != nullptr) {
    st.*family.sub = family.catalogues[family.catalogues.size() - 1].sub;
  }
  const SectionRecord none;
  const bool single = family.lateral.method == LateralMethod::SinglySymmetric;
  for (const ShownValue& v : ValuesOf(block, st, none)) {
    if (single && v.name == "Ix") continue;  // on the page alone
    AddSideClass(v.name, form);
    const FormLabel own = FormLabelOf(family, v.name);
    Control label = TextLabel(ValueControlName(v.name), {});
    label.caption = own.caption.empty() ? std::string(v.name) + " =" : std::string(own.caption);
    label.block = block;
    label.value = static_cast<int>(wanted.size());
    wanted.push_back({block, v.name, own.unit});
    Put(form, std::move(label));
    AddWarpingConstant(family, v.name, form);
  }
}

void AddValues(const Family& family, Form& form) {
  std::vector<Wanted> wanted;
  AddBlock(family, Block::Dimensions, wanted, form);
  AddBlock(family, Block::Properties, wanted, form);
  // The general profile shows no capacities, and its class is chosen.
  if (!family.givenConstants) {
    AddBlock(family, Block::Capacities, wanted, form);
    AddClassLabel(family, form);
  }
  form.values = [wanted](const Session& s) { return AllValues(wanted, s); };
}

// --- The forms ----------------------------------------------------------------------------------

void AddToList(Session& s) {
  AddToDatabase(s.st(), s.database());
  s.databaseSelection = s.database().DbRow;
  ++s.databaseVersion;
}

void AddTypedOptions(const Family& family, Form& form) {
  if (family.outline == OutlineKind::Box) {
    Put(form, FrameOf("frweld", "Based on Cold rolling"));
    Put(form, ValueOption("oweld0", "Yes", &S::BoxWeld, 0));
    Put(form, ValueOption("oweld1", "No", &S::BoxWeld, 1));
  }
  if (IsHsq(family.code)) {
    Put(form, FrameOf("frhsq", "Consider flange loading (valid for q-load)"));
    Put(form, ValueOption("opthsq0", "Yes", &S::HsqKind, 0));
    Put(form, ValueOption("opthsq1", "No", &S::HsqKind, 1));
  }
  if (family.outline == OutlineKind::T) {
    Put(form, Label("onote", "Note: Profile takes only N-loads (axial)"));
  }
  if (family.outline == OutlineKind::Tube) {
    Put(form, ValueOption("opthot", "Hotformed", &S::TubeKind, 1));
    Put(form, ValueOption("optcold", "Coldformed", &S::TubeKind, 0));
  }
  if (family.givenConstants) {
    Put(form, FrameOf("frclass", "Sectionclass"));
    for (int k = 1; k <= 3; ++k) {
      Put(form, ValueOption("op" + std::to_string(k), std::to_string(k), &S::p41_option, k));
    }
    Put(form, Label("onote", "Only section class 1-3 is available for this profile"));
  }
}

void AddFamilyForm(const Family& family, Forms& forms) {
  Form& form = forms.Add(family.form, Fixed(family.formCaption));
  form.family = family.code;
  form.input = true;
  AddSubFamilies(family, form);
  if (!family.catalogues.empty()) Put(form, SizeControl(family));
  AddTypedFields(family, form);
  AddTypedOptions(family, form);
  AddHollowExtras(family, form);
  AddValues(family, form);
  const Control* figure = Put(form, FigureSurface());
  Control scale = Button("figscale", "Figure scale", figure->click);
  scale.text = figure->text;
  Put(form, std::move(scale));
  Put(form, Button("addtodb", "Add to Database", AddToList));
  Put(form, CloseButton("Command1", "OK", form));
}

}  // namespace

void AddFamilyForms(Forms& forms) {
  for (const Family& family : AllFamilies()) AddFamilyForm(family, forms);
}

}  // namespace korvane
