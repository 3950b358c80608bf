// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/forms/family_fields.h"

#include <cctype>
#include <sstream>
#include <string_view>
#include <variant>

#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

namespace {

using S = ProjectState;

/// Names of controls that aren't made of the letter of the dimension.
constexpr std::pair<std::string_view, const char*> kOwnNames[] = {{"b", "istb1"}, {"t", "isttw"}};

std::string ControlName(const Dimension& dimension) {
  if (dimension.control != nullptr) return dimension.control;
  for (const auto& [letter, name] : kOwnNames) {
    if (letter == dimension.letter) return name;
  }
  std::string name = "ist";
  for (const char* ch = dimension.letter; *ch != '\0'; ++ch) {
    name += static_cast<char>(std::tolower(static_cast<unsigned char>(*ch)));
  }
  return name;
}

void AddDimension(const Dimension& dimension, Form& form) {
  const std::string letter = dimension.letter;
  const auto member = std::visit([](auto m) { return InputMember(m); }, dimension.field);
  Control c = Input(ControlName(dimension), letter + " =", Calculated(member));
  c.letter = letter;
  Put(form, std::move(c));
}

Control NameOfGeneralProfile() {
  Control name = Input("iident", "Ident:", Bind(&S::p41_name));
  name.text = [](const Session& s) { return s.st().p41_name; };
  return name;
}

}  // namespace

void AddTypedFields(const Family& family, Form& form) {
  if (family.givenConstants) Put(form, NameOfGeneralProfile());
  if (family.formOrder == nullptr) {
    for (const Dimension& dimension : family.dimensions) AddDimension(dimension, form);
  } else {
    std::istringstream letters(family.formOrder);
    for (std::string letter; letters >> letter;) AddDimension(*DimensionOf(family, letter), form);
  }
  if (IsHsq(family.code)) {
    Put(form, Input("iload", "Max loading on one flange (%):", Calculated(&S::p24_load)));
  }
}

}  // namespace korvane
