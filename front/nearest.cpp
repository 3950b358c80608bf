// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/nearest.h"

#include <algorithm>

#include "front/forms/handles.h"

namespace korvane {

namespace {

/// Number of changes of single letters that turn one word into the other.
std::size_t Distance(const std::string& a, const std::string& b) {
  std::vector<std::size_t> row(b.size() + 1);
  for (std::size_t j = 0; j <= b.size(); ++j) row[j] = j;
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t above = row[j];
      row[j] = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (a[i - 1] != b[j - 1] ? 1 : 0)});
      diagonal = above;
    }
  }
  return row[b.size()];
}

/// The nearest of the words, unless the word itself is one of them.
std::string Meant(const std::string& word, const std::vector<std::string>& words) {
  if (std::find(words.begin(), words.end(), word) != words.end()) return {};
  return NearestWord(word, words);
}

std::vector<std::string> ControlsOf(const Form& form, bool commandsOnly) {
  std::vector<std::string> names;
  for (const Control& c : form.controls) {
    if (!commandsOnly || c.kind == Kind::Menu) names.push_back(c.name);
  }
  return names;
}

}  // namespace

std::string NearestWord(const std::string& word, const std::vector<std::string>& words) {
  const auto nearest =
      std::min_element(words.begin(), words.end(), [&](const std::string& a, const std::string& b) {
        return Distance(word, a) < Distance(word, b);
      });
  return nearest == words.end() ? std::string() : *nearest;
}

std::string NearestForm(const std::string& name) {
  std::vector<std::string> names;
  for (const Form& form : AllForms()) names.push_back(form.name);
  return Meant(name, names);
}

std::string NearestControl(const std::string& address, const std::string& formOnTop) {
  const auto dot = address.find('.');
  if (dot == std::string::npos) return Meant(address, ControlsOf(*FindForm(formOnTop), false));
  const std::string form = address.substr(0, dot);
  const std::string name = address.substr(dot + 1);
  const std::string meantForm = NearestForm(form);
  const Form& on = *FindForm(meantForm.empty() ? form : meantForm);
  const std::string meant = Meant(name, ControlsOf(on, false));
  if (meantForm.empty() && meant.empty()) return {};
  return on.name + "." + (meant.empty() ? name : meant);
}

std::string NearestCommand(const std::string& name) {
  return Meant(name, ControlsOf(*TheForms().main, true));
}

}  // namespace korvane
