// SPDX-License-Identifier: GPL-3.0-or-later
// Controls and texts that several forms share.
#include "core/text.h"
#include "front/forms/forms.h"
#include "front/session.h"

namespace korvane {

std::string ViewText(const View& view) {
  std::string out;
  for (const ViewLine& line : view) {
    if (!out.empty()) out += " | ";
    for (const TextRun& run : line.runs) out += (run.atTab ? " " : "") + run.text;
  }
  return out;
}

std::string ShortResults(const Session& s) {
  const Design& d = s.design();
  std::string text = ViewText(SectionControlShort(d.st, d.checks));
  if (ShowsBuckling(d.st, d.forces.N)) {
    text += " | " + ViewText(BucklingShort(d.st, d.checks, d.buckling));
  }
  return s.OnScreen(std::move(text));
}

std::function<std::string(const Session&)> Fixed(std::string caption) {
  return [caption = std::move(caption)](const Session&) { return caption; };
}

namespace {

bool FreeMaterial(const Session& s) {
  return s.st().MaterialIndex >= s.design().lib->materials.Last();
}

}  // namespace

Control YieldField(std::string tip) {
  FieldRule rule = Calculated(&ProjectState::fyk);
  rule.format = "#000";
  Control c = Input("ifyk", "fyk =", rule, std::move(tip));
  c.enabled = FreeMaterial;
  return c;
}

Control MaterialList() {
  Control c;
  c.name = "cbofyk";
  c.kind = Kind::List;
  c.caption = "Material";
  c.tip = "Steel grade; the last entry leaves fyk free for typing";
  c.items = [](const Session& s) {
    std::vector<std::string> names;
    for (const Material& m : s.design().lib->materials.rows) names.push_back(m.name);
    return names;
  };
  c.selected = [](const Session& s) { return int(s.st().MaterialIndex); };
  c.select = [](Session& s, int index) {
    const MaterialTable& table = s.design().lib->materials;
    s.st().MaterialIndex = index;
    if (index < table.Last()) SetMaterial(table, s.design().rec.tmax, s.st());
    s.Calculate();
  };
  return c;
}

Control FigureSurface() {
  Control c = Surface("pic1", Painting::Figure, [](const Session& s) {
    return std::string(s.st().FigureNotToScale == 1 ? "Figure not to scale" : "Figure to scale");
  });
  c.click = [](Session& s) { s.st().FigureNotToScale = s.st().FigureNotToScale == 1 ? 0 : 1; };
  return c;
}

}  // namespace korvane
