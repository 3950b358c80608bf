// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/input_words.h"

#include <string_view>

#include "front/session.h"

namespace korvane {

namespace {

/// A caption as a person reads it: without mnemonics and blanks around it.
std::string Plain(std::string caption) {
  std::erase(caption, '&');
  const auto first = caption.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return caption.substr(first, caption.find_last_not_of(' ') - first + 1);
}

/// "Profiles, IPE"
std::string PathOf(const Control& command) {
  const std::string own = Plain(command.caption);
  if (command.parent.empty()) return own;
  const Control* above = FindControl(*TheForms().main, command.parent);
  return above == nullptr ? own : PathOf(*above) + ", " + own;
}

std::string FieldWords(const Session& s, const Control& field) {
  const std::string unit = field.unit.empty() ? "" : " " + field.unit;
  return Plain(field.caption) + " " + s.StateText(field) + unit;
}

}  // namespace

std::string InputWords(const Session& s, const Control& c) {
  switch (c.kind) {
    case Kind::Input:
      return FieldWords(s, c);
    case Kind::Menu:
      return PathOf(c);
    case Kind::List:
      return (c.caption.empty() ? s.Title(*c.form) : Plain(c.caption)) + ": " + Plain(s.Text(c));
    case Kind::Check:
      return Plain(c.caption) + (s.Checked(c) ? ": on" : ": off");
    default:
      return Plain(c.caption.empty() ? c.tip : c.caption);
  }
}

std::string FailureWords(const Design& design) {
  constexpr std::string_view kSubject = "The calculation";
  const Verdict verdict = VerdictOf(design);
  if (verdict.standing != Standing::Stopped || verdict.notes.empty()) return "it stopped";
  std::string text = NoteText(verdict.notes[0], design.lib->catalogues);
  if (text.starts_with(kSubject)) text.replace(0, kSubject.size(), "it");
  if (text.ends_with('.')) text.pop_back();
  return text;
}

}  // namespace korvane
