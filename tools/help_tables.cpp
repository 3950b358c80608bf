// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/help_tables.h"

#include <algorithm>
#include <regex>
#include <vector>

#include "checks/notes.h"
#include "front/named_session.h"
#include "front/platform.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

/// The new project with other inputs changed, to meet all messages of a limit that follows them.
std::vector<ProjectState> Variants(const ProjectState& st) {
  std::vector<ProjectState> variants(3, st);
  variants[0].SupportType = 4;
  ProjectState& relative = variants[1];
  relative.pmx_relative = relative.qtx_relative = relative.cp_relative = 1;
  ProjectState& negative = variants[2];
  negative.p23_a = negative.p24_a = -1;
  return variants;
}

// --- HTML ---------------------------------------------------------------------------------------

std::string Escaped(const std::string& text) {
  std::string out;
  for (const char c : text) {
    switch (c) {
      case '&':
        out += "&amp;";
        break;
      case '<':
        out += "&lt;";
        break;
      case '>':
        out += "&gt;";
        break;
      case '\n':
        out += "; ";
        break;
      default:
        out += c;
    }
  }
  return out;
}

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// A caption without its mnemonic mark; a doubled mark is a literal one.
std::string Caption(const std::string& text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '&' && i + 1 < text.size()) ++i;
    out += text[i];
  }
  return Trimmed(out);
}

std::string Code(const std::string& text) {
  return "<code>" + Escaped(text) + "</code>";
}

std::string Row(const std::vector<std::string>& cells, const char* tag = "td") {
  std::string row = "<tr>";
  for (const std::string& cell : cells) {
    row += std::string("<") + tag + ">" + cell + "</" + tag + ">";
  }
  return row + "</tr>\n";
}

const char* KindWord(Kind kind) {
  switch (kind) {
    case Kind::Option:
      return "option";
    case Kind::Check:
      return "check box";
    case Kind::List:
      return "list";
    case Kind::Picture:
      return "picture button";
    case Kind::Button:
      return "button";
    default:
      return nullptr;
  }
}

/// All messages that the field may say, in the words of the program.
std::string Messages(const Limit& limit, const ProjectState& st) {
  std::vector<std::string> said{InForce(limit, st).message};
  for (const ProjectState& variant : Variants(st)) said.push_back(InForce(limit, variant).message);
  std::string out;
  for (std::size_t i = 0; i < said.size(); ++i) {
    if (std::find(said.begin(), said.begin() + static_cast<std::ptrdiff_t>(i), said[i]) !=
        said.begin() + static_cast<std::ptrdiff_t>(i)) {
      continue;
    }
    if (!out.empty()) out += " or ";
    out += Code(Trimmed(said[i]));
  }
  return out;
}

std::string FieldTable(const Form& form, const Session& s, const ProjectState& newProject) {
  std::string rows;
  for (const Control& c : form.controls) {
    if (c.kind != Kind::Input) continue;
    std::string accepted = c.field.IsNumber() ? "any number" : "any text";
    std::string message;
    if (c.field.Limited()) {
      const Limit& limit = c.field.input.field->limit;
      accepted = RangeWords(InForce(limit, newProject)) + (limit.follows != nullptr ? " *" : "");
      message = Messages(limit, newProject);
    }
    rows += Row({Code(c.name), Escaped(Caption(c.caption)), Escaped(c.unit), Escaped(s.Text(c)),
                 accepted, message});
  }
  if (rows.empty()) return {};
  return "<table>\n" +
         Row({"Field", "Label", "Unit", "New project", "Accepted", "Message when refused"}, "th") +
         rows + "</table>\n";
}

/// What stands on the control, or what it holds.
std::string Words(const Control& c, const Session& s) {
  std::string words = Escaped(Caption(c.caption));
  const auto add = [&words](const std::string& more) {
    words += (words.empty() ? "" : "; ") + more;
  };
  if (!c.tip.empty()) add(Escaped(Trimmed(c.tip)));
  if (c.kind == Kind::Picture && c.text) add("a code, at first " + Code(s.Text(c)));
  if (c.kind != Kind::List) return words;
  const std::vector<std::string> items = s.Items(c);
  if (items.empty()) {
    add("empty at first");
  } else {
    add(std::to_string(items.size()) + " entries, " + Escaped(Trimmed(items.front())) + " to " +
        Escaped(Trimmed(items.back())));
  }
  return words;
}

std::string OtherControls(const Form& form, const Session& s) {
  std::string rows;
  std::string frame;  // stands above the options that follow it
  for (const Control& c : form.controls) {
    if (c.kind == Kind::Frame) frame = Escaped(Caption(c.caption)) + ": ";
    const char* kind = KindWord(c.kind);
    if (kind == nullptr) continue;
    if (c.kind != Kind::Option) frame.clear();
    rows += Row({Code(c.name), kind, frame + Words(c, s)});
  }
  if (rows.empty()) return {};
  return "<table>\n" + Row({"Control", "Kind", "What stands on it or what it holds"}, "th") + rows +
         "</table>\n";
}

std::string Commands(const Form& form) {
  std::string rows;
  for (const Control& c : form.controls) {
    if (c.kind != Kind::Menu || !c.click) continue;
    rows += Row({Code(c.name), Escaped(Caption(c.caption))});
  }
  return "<h3>Commands of the menus</h3>\n<table>\n" + Row({"Command", "Caption"}, "th") + rows +
         "</table>\n";
}

const Family* FamilyOfForm(const std::string& form) {
  for (const Family& family : AllFamilies()) {
    if (form == family.form) return &family;
  }
  return nullptr;
}

/// The title without the section or file that it names in use.
std::string TitleOf(const Form& form, const Session& s) {
  const std::string title = Trimmed(form.title(s));
  if (FamilyOfForm(form.name) != nullptr) return title;
  return title.substr(0, std::min(title.find(" - HEA"), title.find(": ")));
}

/// One form with the values of a new project in its fields.
std::string FormSection(const Form& form, const std::shared_ptr<const Library>& library) {
  Platform platform;
  NamedSession s(library, platform, false);
  s.Start();
  const ProjectState newProject = s.st();
  s.Focus("korvane");
  if (const Family* family = FamilyOfForm(form.name)) s.st().ProfileType = family->code;
  if (form.name != "korvane") s.Show(form.name);
  const std::string body = FieldTable(form, s, newProject) + OtherControls(form, s) +
                           (form.name == "korvane" ? Commands(form) : "");
  if (body.empty()) return {};
  const std::string title = form.name == "korvane" ? "Main window" : Escaped(TitleOf(form, s));
  return "<h2><a name=\"" + form.name + "\"></a>" + title + " (" + Code(form.name) + ")</h2>\n" +
         body;
}

constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en">
<!-- Made by tools/make_help from the tables of the forms: change those, not this page. -->
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>All inputs</title>
<link rel="stylesheet" type="text/css" href="help.css">
<link rel="stylesheet" href="browser.css">
<script src="book.js" defer></script>
</head>
<body>
<p class="top"><a href="index.html">Contents</a></p>
<h1>All inputs</h1>
<p>Every field of every form: its name, its label, its unit, what stands in it in a new project,
which values are accepted, and the message that a refused value gives. The names are those that a
<a href="console.html#session">script</a> uses. How fields take what is typed is told in
<a href="main-window.html#fields">The main window</a>.</p>
<p>A star marks a limit that follows other inputs, such as the member length or another dimension
of the section; what is shown holds for a new project.</p>
)";

constexpr const char* kNotesHead = R"(<!DOCTYPE html>
<html lang="en">
<!-- Made by tools/make_help from the table of the notes: change that, not this page. -->
<head>
<meta charset="utf-8">
<meta name="viewport" content="width=device-width, initial-scale=1">
<title>Verdict and notes</title>
<link rel="stylesheet" type="text/css" href="help.css">
<link rel="stylesheet" href="browser.css">
<script src="book.js" defer></script>
</head>
<body>
<p class="top"><a href="index.html">Contents</a></p>
<h1>Verdict and notes</h1>
<p>The check lines tell what each check gives. The verdict tells what may be said of the member as
a whole: it <b>passes</b> only where every force that acts was held against a capacity and no check
fails. It <b>fails</b> where a ratio, a slenderness or a force alone is beyond its limit. It is
<b>not checked</b> where a force acts that no check of the family reads, where the section can't
exist, or where a check that would fail was switched off by the program. It is <b>stopped</b> where
the calculation met an arithmetic failure.</p>
<p>Under the verdict stand its notes, the gravest first. A <b>caution</b> doesn't change the
standing: it names a rule or an input that you should look at. Each note ends with its code, by
which it is found below.</p>
)";

/// The notes of one severity, or nothing.
std::string NotesOf(Severity severity) {
  std::string rows;
  for (const NoteKind& kind : AllNotes()) {
    if (kind.severity != severity) continue;
    rows += std::string("<tr><td><a name=\"") + kind.word + "\"></a>" + Code(kind.word) +
            "</td><td>" + Escaped(kind.meaning) + "</td><td>" + Escaped(kind.remedy) +
            "</td></tr>\n";
  }
  return "<table>\n<tr><th>Code</th><th>What it means</th><th>What to do</th></tr>\n" + rows +
         "</table>\n";
}

}  // namespace

std::string InputsPage(std::shared_ptr<const Library> library) {
  std::string page = kHead;
  for (const Form& form : AllForms()) page += FormSection(form, library);
  return page + "</body>\n</html>\n";
}

std::string NotesPage() {
  struct Part {
    Severity severity;
    const char* heading;
  };
  constexpr std::array parts{Part{Severity::Fails, "The member fails"},
                             Part{Severity::NotChecked, "The member is not checked, or stopped"},
                             Part{Severity::Caution, "Cautions"},
                             Part{Severity::Information, "Information"}};
  std::string page = kNotesHead;
  for (const Part& part : parts) {
    page += std::string("<h2>") + part.heading + "</h2>\n" + NotesOf(part.severity);
  }
  return page + "</body>\n</html>\n";
}

std::string PagesScript(const std::string& index) {
  static const std::regex entry("<h2>([^<]*)</h2>|<li><a href=\"([^\"#]+)\">([^<]*)</a>");
  std::string script = "// Made by tools/make_help from the contents.\nconst pages = [\n";
  std::string group;
  for (std::sregex_iterator it(index.begin(), index.end(), entry), end; it != end; ++it) {
    const std::smatch& match = *it;
    if (match[1].matched) {
      group = match[1];
    } else {
      script += "  [\"" + match[2].str() + "\", \"" + match[3].str() + "\", \"" + group + "\"],\n";
    }
  }
  return script + "];\n";
}

}  // namespace korvane
