// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/copied_tables.h"

#include "checks/results.h"
#include "front/session.h"
#include "sections/profile_table.h"

namespace korvane {

namespace {

using Row = std::vector<std::string>;

std::string Trimmed(const std::string& text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Joined(const std::vector<Row>& rows) {
  std::string text;
  for (const Row& row : rows) {
    std::string line;
    for (const std::string& cell : row) line += (&cell == &row.front() ? "" : "\t") + cell;
    text += (text.empty() ? "" : "\n") + line;
  }
  return text;
}

}  // namespace

std::string WithNotice(const Session& s, const std::string& text) {
  const std::string why = s.NotCalculated();
  return why.empty() ? text : why + "\n" + text;
}

std::vector<Row> StationRows(const Session& s) {
  const Design& d = s.design();
  const bool loads = d.st.AnalysisMode == 1;
  Row head{"x (m)", "My (kNm)", "Vz (kN)", "Mz (kNm)", "Vy (kN)"};
  if (loads) head.insert(head.end(), {"z (mm)", "y (mm)"});
  std::vector<Row> rows{head};
  for (int i = 0; i <= StationValues::kLast; ++i) {
    Row row{s.Shown(d.st.L * i / StationValues::kLast, "0.000")};
    for (const StationValues* values : {&d.beam.z.M, &d.beam.z.V, &d.beam.y.M, &d.beam.y.V}) {
      row.push_back(s.Shown((*values)[i], "0.00"));
    }
    if (loads) {
      row.push_back(s.Shown(d.deflections.DeflZ[i], "0.00"));
      row.push_back(s.Shown(d.deflections.DeflY[i], "0.00"));
    }
    rows.push_back(std::move(row));
  }
  return rows;
}

std::string StationTable(const Session& s) {
  return WithNotice(s, Joined(StationRows(s)));
}

std::string CheckTable(const Session& s) {
  const Design& d = s.design();
  const CheckResults& c = d.checks;
  std::vector<const CheckLine*> lines{&c.lineSection, &c.lineVz, &c.lineVy, &c.lineLateral};
  if (ShowsBuckling(d.st, d.forces.N)) {
    lines.insert(lines.end(), {&c.lineBucklingY, &c.lineBucklingZ, &c.lineSlenderness});
  }
  std::vector<Row> rows{{"Check", "Formula", "Numbers", "IR", "Limit"}};
  for (const CheckLine* line : lines) {
    if (line->formula.empty()) continue;
    Row row{line->label, line->formula, line->numbers, line->value, line->limit};
    for (std::string& cell : row) cell = s.OnScreen(Trimmed(cell));
    rows.push_back(std::move(row));
  }
  return WithNotice(s, SectionTitle(d.st, d.lib->catalogues) + "\n" + Joined(rows));
}

std::string ValueTable(const Session& s, const Form& form) {
  std::vector<Row> rows;
  const std::vector<ShownText> values = form.values ? form.values(s) : std::vector<ShownText>();
  for (const Control& c : form.controls) {
    if (c.block == Block::None || c.kind != Kind::Label) continue;
    const auto at = static_cast<std::size_t>(c.value);
    const ShownText shown = c.value >= 0 ? values[at] : ShownText{s.Text(c), {}};
    if (shown.text.empty()) continue;
    std::string name = Trimmed(c.caption);
    if (name.ends_with("=") || name.ends_with(":")) name = Trimmed(name.substr(0, name.size() - 1));
    rows.push_back({name, Trimmed(shown.text), shown.unit});
  }
  return WithNotice(s, SectionTitle(s.st(), s.design().lib->catalogues) + "\n" + Joined(rows));
}

}  // namespace korvane
