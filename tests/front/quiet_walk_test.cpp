// SPDX-License-Identifier: GPL-3.0-or-later
// Who only looks changes nothing: clicks into fields, the Tab and the Return key, other forms and
// back, without a character typed.
#include <gtest/gtest.h>

#include <charconv>
#include <set>

#include "sections/profile_table.h"
#include "tests/design/random_states.h"
#include "tests/front/front_support.h"

namespace korvane {
namespace {

using testing::Running;

constexpr unsigned kSeeds = 2000;
constexpr int kSteps = 30;

/// What forms set by being looked at, as their mode, and what each calculation finds anew.
bool IsInput(std::string_view name) {
  static const std::set<std::string_view> others{"AnalysisMode",
                                                 "DatabaseMode",
                                                 "fyk",
                                                 "fd",
                                                 "epsilon",
                                                 "BucklingCurveY",
                                                 "BucklingCurveZ",
                                                 "LtbCriticalSegment",
                                                 "ResultView",
                                                 "OptimiseOpen"};
  return others.count(name) == 0;
}

template <class T>
std::string Bytes(const T& field) {
  if constexpr (requires { field.begin(); } && !std::is_same_v<T, std::string>) {
    std::string all;
    for (const auto& one : field) all += Bytes(one) + " ";
    return all;
  } else if constexpr (std::is_same_v<T, std::string>) {
    return field;
  } else {
    char exact[32];
    return {exact, std::to_chars(exact, std::end(exact), double(field)).ptr};
  }
}

std::vector<std::pair<std::string_view, std::string>> Inputs(const ProjectState& st) {
  std::vector<std::pair<std::string_view, std::string>> all;
  ForEachField(st, [&](const char* name, const auto& field) {
    if (IsInput(name)) all.emplace_back(name, Bytes(field));
  });
  return all;
}

/// Two of the forms that stay open beside the main window.
void OpenForms(Dice& dice, Session& s) {
  const Forms& forms = TheForms();
  const Form* modes[] = {forms.loading, forms.endForces};
  const Form* others[] = {
      forms.stiffeners, forms.points, forms.lateral, forms.setup,
      forms.database,   forms.curves, forms.details, &FamilyForm(s.st().ProfileType)};
  s.Show(*modes[dice.Below(2)]);
  s.Show(*others[dice.Below(int(std::size(others)))]);
}

void CloseForms(Session& s) {
  const std::vector<const Form*> open = s.OpenForms();
  for (const Form* form : open) {
    if (form != TheForms().main) s.Unload(*form);
  }
}

void Step(Dice& dice, Session& s) {
  const auto& open = s.OpenForms();
  const Form& form = *open[static_cast<std::size_t>(dice.Below(int(open.size())))];
  if (dice.Chance(15)) return s.Focus(form);
  std::vector<const Control*> fields;
  for (const Control& c : form.controls) {
    if (c.kind == Kind::Input && s.Visible(c) && s.Enabled(c)) fields.push_back(&c);
  }
  if (fields.empty()) return;
  const Control& field = *fields[static_cast<std::size_t>(dice.Below(int(fields.size())))];
  const Control* left = s.FocusedField();
  EXPECT_TRUE(left == nullptr || s.Leave(*left));
  s.FocusField(field);
  if (dice.Chance(50)) s.Return(field);
}

TEST(QuietWalk, ChangesNoInputAndSaysNothing) {
  const auto families = AllFamilies();
  int walked = 0;
  Running r;
  // Sections of a database that nobody has selected.
  for (const char* family : {"mnup04", "mnup21", "mnu54"}) {
    r.session.Menu(family);
    r.session.Click("addtodb");
  }
  r.session.databaseSelection = -1;
  CloseForms(r.session);
  const ProjectState fresh = Running().st();
  for (unsigned seed = 0; seed < kSeeds; ++seed) {
    Dice dice(seed);
    r.platform.messages.clear();
    r.st() = fresh;
    RandomState(seed, families[seed % families.size()].code, r.st());
    try {
      OpenForms(dice, r.session);
      r.session.Focus(*TheForms().main);
      // What loads the section can't carry is removed by now.
      r.session.Calculate();
    } catch (const ArithmeticFault&) {
      CloseForms(r.session);
      continue;
    }
    const auto before = Inputs(r.st());
    r.platform.messages.clear();
    for (int step = 0; step < kSteps; ++step) Step(dice, r.session);
    ++walked;
    const auto after = Inputs(r.st());
    for (std::size_t i = 0; i < before.size(); ++i) {
      ASSERT_EQ(before[i].second, after[i].second) << before[i].first << " of seed " << seed;
    }
    ASSERT_TRUE(r.platform.messages.empty()) << r.platform.messages[0] << " of seed " << seed;
    CloseForms(r.session);
  }
  EXPECT_GT(walked, 1800);
}

}  // namespace
}  // namespace korvane
