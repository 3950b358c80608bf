// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/state_compare.h"

#include <algorithm>
#include <string_view>
#include <vector>

#include "core/input_fields.h"

namespace korvane {

namespace {

/// Fields that results don't follow, or that name things alone.
constexpr const char* kAside[] = {
    "CurrentFileName", "CurrentDir",       "iproj",        "iident",      "FamilyName",
    "DeflectionLimit", "pmx_relative",     "qtx_relative", "cp_relative", "OptimiseOpen",
    "ResultView",      "FigureNotToScale", "DatabaseMode"};

template <class T>
bool Same(const T& a, const T& b) {
  if constexpr (requires {
                  a.begin();
                  b.end();
                } &&
                !std::is_same_v<T, std::string>) {
    return std::equal(a.begin(), a.end(), b.begin());
  } else {
    return a == b;
  }
}

bool SameIn(const InputMember& of, const ProjectState& a, const ProjectState& b) {
  return std::visit([&](auto member) { return Same(a.*member, b.*member); }, of);
}

std::vector<InputMember> MembersOfResults() {
  std::vector<InputMember> members;
  for (const InputField& field : AllInputFields()) {
    if (std::find(std::begin(kAside), std::end(kAside), std::string_view(field.name)) ==
        std::end(kAside)) {
      members.push_back(field.member);
    }
  }
  return members;
}

}  // namespace

bool SameInputs(const ProjectState& a, const ProjectState& b) {
  return std::all_of(AllInputFields().begin(), AllInputFields().end(),
                     [&](const InputField& field) { return SameIn(field.member, a, b); });
}

bool SameResults(const ProjectState& a, const ProjectState& b) {
  static const std::vector<InputMember> members = MembersOfResults();
  return std::all_of(members.begin(), members.end(),
                     [&](const InputMember& of) { return SameIn(of, a, b); });
}

}  // namespace korvane
