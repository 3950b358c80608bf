// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/kept_project.h"

#include <charconv>
#include <cmath>
#include <map>

#include "core/input_fields.h"
#include "core/project_file.h"
#include "front/session.h"

namespace korvane {

namespace {

/// Stands between the project and what follows it, one "name=value" a line.
constexpr std::string_view kMark = "KORVANE kept project 1\n";

using Values = std::map<std::string, std::string, std::less<>>;

/// A text on one line.
std::string OneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\\')
      line += "\\\\";
    else if (c == '\n')
      line += "\\n";
    else if (c == '\r')
      line += "\\r";
    else
      line += c;
  }
  return line;
}

std::string FromOneLine(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (line[i] != '\\' || i + 1 == line.size()) {
      text += line[i];
      continue;
    }
    ++i;
    text += line[i] == 'n' ? '\n' : line[i] == 'r' ? '\r' : line[i];
  }
  return text;
}

template <class T>
std::string Exact(const T& value) {
  char digits[40];
  return {digits, std::to_chars(digits, std::end(digits), value).ptr};
}

std::string ValueOf(const std::string& text) {
  return OneLine(text);
}
std::string ValueOf(const int16& v) {
  return Exact(int(v));
}
std::string ValueOf(const float32& v) {
  return Exact(double(v));
}
std::string ValueOf(const number& v) {
  return v.IsEmpty() ? std::string() : Exact(double(v));
}

void Put(const std::string& value, std::string& text) {
  text = FromOneLine(value);
}
template <class T>
void Put(const std::string& value, T& field) {
  if constexpr (std::is_same_v<T, number>) {
    if (value.empty()) {
      field = number::Empty();
      return;
    }
  }
  double v = 0;
  if (std::from_chars(value.data(), value.data() + value.size(), v).ec != std::errc()) return;
  try {
    if constexpr (std::is_same_v<T, int16>) {
      if (std::fabs(v) <= 32767) field = static_cast<int>(v);
    } else {
      field = v;
    }
  } catch (const ArithmeticFault&) {
    // Beyond the field: it stays as it is.
  }
}

/// Calls visit("pm(3)", element) for every number and text of the state.
template <class State, class Visit>
void EachValue(State& st, Visit&& visit) {
  ForEachField(st, [&](const std::string& name, auto& field) {
    using Field = std::remove_cvref_t<decltype(field)>;
    if constexpr (requires { Field::kFirst; }) {
      for (int i = Field::kFirst; i <= Field::kLast; ++i) {
        visit(name + "(" + std::to_string(i) + ")", field[i]);
      }
    } else {
      visit(name, field);
    }
  });
}

Values ValuesIn(std::string_view text) {
  Values values;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    values[std::string(line.substr(0, equals))] = line.substr(equals + 1);
  }
  return values;
}

std::uint64_t Count(const Values& values, std::string_view name) {
  std::uint64_t count = 0;
  if (const auto it = values.find(name); it != values.end()) {
    std::from_chars(it->second.data(), it->second.data() + it->second.size(), count);
  }
  return count;
}

}  // namespace

std::optional<KeptProject> ToKeep(const Session& s) {
  const auto& last = s.LastCalculated();
  if (!last && !s.Mending()) return std::nullopt;
  KeptProject kept;
  kept.file = s.files().Record();
  kept.st = s.files().ToSave();
  // A project that can't be calculated opens all the same: it is kept as it stands.
  if (last && !s.NotCalculated().empty()) {
    const ProjectState now = kept.st;
    kept.st = *last;
    if (now.CurrentFileName == last->CurrentFileName) {
      kept.st.CurrentDir = now.CurrentDir;
      kept.st.iproj = now.iproj;
      kept.st.iident = now.iident;
    }
  }
  kept.modified = ProjectText(kept.st) != kept.file.saved;
  const bool hasFile = kept.st.CurrentFileName != ProjectState().CurrentFileName;
  if (!hasFile && !kept.modified) return std::nullopt;
  return kept;
}

std::string KeptText(const KeptProject& kept) {
  std::string text = ProjectText(kept.st);
  text += kMark;
  const auto line = [&](const std::string& name, const std::string& value) {
    text += name + "=" + value + "\n";
  };
  EachValue(kept.st,
            [&](const std::string& name, const auto& field) { line(name, ValueOf(field)); });
  line("modified", kept.modified ? "1" : "0");
  line("file.path", OneLine(kept.file.path));
  if (kept.file.disk) {
    line("file.size", Exact(kept.file.disk->size));
    line("file.hash", Exact(kept.file.disk->hash));
  }
  int number = 0;
  for (const std::string& path : kept.file.unread) {
    line("file.unread(" + std::to_string(++number) + ")", OneLine(path));
  }
  return text;
}

std::optional<KeptProject> ReadKept(std::string_view text, const ProjectState& fresh) {
  const auto mark = text.rfind(kMark);
  if (mark == std::string_view::npos) return std::nullopt;
  const Values values = ValuesIn(text.substr(mark + kMark.size()));
  KeptProject kept;
  kept.st = fresh;
  bool whole = true;
  EachValue(kept.st, [&](const std::string& name, auto& field) {
    if (const auto it = values.find(name); it != values.end()) {
      Put(it->second, field);
    } else {
      whole = false;
    }
  });
  // A text of another version is read as the project that it is.
  if (!whole && ReadProject(text, kept.st) != FileResult::Ok) return std::nullopt;
  kept.modified = Count(values, "modified") != 0;
  if (const auto it = values.find("file.path"); it != values.end()) {
    kept.file.path = FromOneLine(it->second);
  }
  if (values.contains("file.hash")) {
    kept.file.disk = FileMark{Count(values, "file.size"), Count(values, "file.hash")};
  }
  for (int number = 1;; ++number) {
    const auto it = values.find("file.unread(" + std::to_string(number) + ")");
    if (it == values.end()) break;
    kept.file.unread.insert(FromOneLine(it->second));
  }
  return kept;
}

std::string KeptWords(const KeptProject& kept) {
  const std::string& path = kept.st.CurrentFileName;
  const bool hasFile = path != ProjectState().CurrentFileName;
  std::string words = hasFile ? path : "A project without a file";
  if (!kept.st.iproj.empty()) words += " (" + kept.st.iproj + ")";
  if (kept.modified) words += hasFile ? ", with unsaved changes" : ", not saved yet";
  return words;
}

}  // namespace korvane
