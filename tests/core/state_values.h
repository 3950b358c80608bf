// SPDX-License-Identifier: GPL-3.0-or-later
// Fills the input record with values that all differ, and names the fields in which two
// records differ.
#pragma once

#include <map>
#include <set>
#include <string>
#include <type_traits>

#include "core/input_fields.h"
#include "core/text.h"

namespace korvane {

namespace detail {

template <class T>
struct IsIndexed : std::false_type {};
template <class T, int First, int Last>
struct IsIndexed<Indexed<T, First, Last>> : std::true_type {};

inline std::string Print(const std::string& v) {
  return v;
}
inline std::string Print(const int16& v) {
  return std::to_string(int(v));
}
inline std::string Print(const float32& v) {
  return FileText(v);
}
inline std::string Print(const number& v) {
  return v.IsEmpty() ? "empty" : FileText(double(v));
}

// The n-th value of a type; no two n give the same.
inline void Put(std::string& v, int n) {
  v = std::string("text, \"").append(std::to_string(n)).append("\" \xC3\xB8 ");
}
inline void Put(int16& v, int n) {
  v = n;
}
inline void Put(float32& v, int n) {
  v = n + 0.3701;
}
inline void Put(number& v, int n) {
  v = n + 1.0 / 3.0;
}

}  // namespace detail

/// "pm", 3 to "pm[3]".
inline std::string ElementName(std::string name, int index) {
  return name.append("[").append(std::to_string(index)).append("]");
}

/// Every field of the record as text, arrays with their index: "L", "pm[3]".
inline std::map<std::string, std::string> FieldTexts(const ProjectState& st) {
  std::map<std::string, std::string> texts;
  ForEachField(st, [&texts](const char* name, const auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    if constexpr (detail::IsIndexed<Field>::value) {
      for (int i = Field::kFirst; i <= Field::kLast; ++i) {
        texts[ElementName(name, i)] = detail::Print(field[i]);
      }
    } else {
      texts[name] = detail::Print(field);
    }
  });
  return texts;
}

/// A record in which no two fields have the same value, the first numbered start.
inline ProjectState DistinctState(int start) {
  ProjectState st;
  int n = start;
  ForEachField(st, [&n](const char*, auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    if constexpr (detail::IsIndexed<Field>::value) {
      for (auto& element : field) detail::Put(element, n++);
    } else {
      detail::Put(field, n++);
    }
  });
  return st;
}

/// Names of the fields in which two records differ.
inline std::set<std::string> DifferingFields(const ProjectState& a, const ProjectState& b) {
  const auto textsA = FieldTexts(a);
  const auto textsB = FieldTexts(b);
  std::set<std::string> names;
  for (const auto& [name, text] : textsA) {
    if (textsB.at(name) != text) names.insert(name);
  }
  return names;
}

}  // namespace korvane
