// SPDX-License-Identifier: GPL-3.0-or-later
// How key figures of whole designs are written down, and how they are read from a design.
#pragma once

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "checks/results.h"
#include "core/calculation.h"

namespace korvane {

/// One key figure: its name in KeyFigures() and the value.
struct Figure {
  std::string name;
  double value = 0;
};

/// The key figures of one project file.
struct ProjectFigures {
  std::string file;
  std::vector<Figure> figures;
};

/// Reads a table: file names, each followed by lines of names and values; # begins a remark.
inline std::vector<ProjectFigures> ParseFigures(const char* table) {
  std::vector<ProjectFigures> projects;
  std::istringstream lines(table);
  for (std::string line; std::getline(lines, line);) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] != ' ') {
      projects.push_back({line, {}});
      continue;
    }
    std::istringstream words(line);
    for (Figure figure; words >> figure.name >> figure.value;) {
      projects.back().figures.push_back(figure);
    }
  }
  return projects;
}

using ReadFigure = std::function<double(const Design&)>;

namespace figures {

inline void AddSection(std::map<std::string, ReadFigure>& m) {
  m["A"] = [](const Design& d) { return d.rec.A; };
  m["Iy"] = [](const Design& d) { return d.rec.Iy; };
  m["Wply"] = [](const Design& d) { return d.rec.Wply; };
  m["S"] = [](const Design& d) { return d.rec.S; };
  m["zs"] = [](const Design& d) { return d.rec.zs; };
  m["Mdy"] = [](const Design& d) { return d.rec.Mdyshown; };
  m["MdyWork"] = [](const Design& d) { return d.rec.Mdy; };
  m["Ncrd"] = [](const Design& d) { return d.rec.Ncrd; };
  m["classTop"] = [](const Design& d) { return int(d.rec.classTop); };
  m["classBottom"] = [](const Design& d) { return int(d.rec.classBottom); };
  m["MdyTop"] = [](const Design& d) { return d.rec.MdyTop; };
  m["MdyBottom"] = [](const Design& d) { return d.rec.MdyBottom; };
}

inline void AddAnalysis(std::map<std::string, ReadFigure>& m) {
  m["N"] = [](const Design& d) { return d.forces.N; };
  m["My_max"] = [](const Design& d) { return d.beam.z.M_max; };
  m["My_min"] = [](const Design& d) { return d.beam.z.M_min; };
  m["Vz_abs"] = [](const Design& d) {
    return std::max(std::fabs(d.beam.z.V_max), std::fabs(d.beam.z.V_min));
  };
  m["MzAbsMax"] = [](const Design& d) { return d.beam.MzAbsMax; };
  m["DeflZ_max"] = [](const Design& d) { return d.deflections.DeflZ_max; };
  m["DeflY_max"] = [](const Design& d) { return d.deflections.DeflY_max; };
  m["ModalMass"] = [](const Design& d) { return d.modal.ModalMass; };
  for (int n = 1; n <= 3; ++n) {
    m["ModalFreq" + std::to_string(n)] = [n](const Design& d) { return d.modal.ModalFreq[n]; };
  }
}

inline void AddChecks(std::map<std::string, ReadFigure>& m) {
  m["C1"] = [](const Design& d) { return d.ltb.C1; };
  m["C2"] = [](const Design& d) { return d.ltb.C2; };
  m["Mcr"] = [](const Design& d) { return d.ltb.Mcr / 1E6; };
  m["chiLT_min"] = [](const Design& d) { return d.ltb.chiLT_min; };
  m["Mdb"] = [](const Design& d) { return d.ltb.Mdb; };
  m["Xy"] = [](const Design& d) { return d.buckling.Xy; };
  m["Xz"] = [](const Design& d) { return d.buckling.Xz; };
  m["ky"] = [](const Design& d) { return d.buckling.ky; };
  m["klt"] = [](const Design& d) { return d.buckling.klt; };
  m["IRsection"] = [](const Design& d) { return d.checks.IRsection; };
  m["IRvz"] = [](const Design& d) { return d.checks.IRvz; };
  m["IRlateral"] = [](const Design& d) { return d.checks.IRlateral; };
  m["IRny"] = [](const Design& d) { return d.checks.IRny; };
  m["IRnz"] = [](const Design& d) { return d.checks.IRnz; };
  m["IRcombinedY"] = [](const Design& d) { return d.checks.IRcombinedY; };
  m["IRcombinedZ"] = [](const Design& d) { return d.checks.IRcombinedZ; };
  m["MaxIR"] = [](const Design& d) { return MaxIR(d.checks); };
}

}  // namespace figures

/// The figures that tables may name. Units as in the records, Mcr in kNm, Vz_abs the larger of
/// both shears in kN.
inline const std::map<std::string, ReadFigure>& KeyFigures() {
  static const std::map<std::string, ReadFigure> all = [] {
    std::map<std::string, ReadFigure> m;
    figures::AddSection(m);
    figures::AddAnalysis(m);
    figures::AddChecks(m);
    return m;
  }();
  return all;
}

}  // namespace korvane
