// SPDX-License-Identifier: GPL-3.0-or-later
#include "front/pane_text.h"

#include <algorithm>
#include <cmath>

#include "core/text.h"

namespace korvane {

namespace {

std::string Extremes(const char* title, double max, double min) {
  return std::string(title) + " " + Format(max, "#0.0") + "/" + Format(min, "#0.0");
}

std::string DeflectionText(const Design& d, const char* axis, double max, double min) {
  const double extreme = std::max(std::fabs(max), std::fabs(min));
  const double ratio = extreme == 0 ? 0 : d.st.L * 1000 / extreme;
  return std::string("Deflection (SLS): ") + axis + " (mm): L/" + Format(ratio, "#0");
}

int NearestStation(double relative) {
  return static_cast<int>(std::lround(std::clamp(relative, 0.0, 1.0) * 50));
}

}  // namespace

std::string PaneText(const Design& d, const std::string& pane) {
  const PlaneForces& z = d.beam.z;
  const PlaneForces& y = d.beam.y;
  if (pane == "picmy") {
    return Extremes("Bending moment (My, kNm)", z.M_max, z.M_min) + " | " +
           Extremes("Shear (Vz, kN)", z.V_max, z.V_min);
  }
  if (pane == "picmz") {
    return Extremes("Bending moment (Mz, kNm)", y.M_max, y.M_min) + " | " +
           Extremes("Shear (Vy, kN)", y.V_max, y.V_min);
  }
  if (d.st.AnalysisMode != 1) return {};
  if (pane == "picdz") {
    return DeflectionText(d, "z", d.deflections.DeflZ_max, d.deflections.DeflZ_min);
  }
  if (pane == "picdy") {
    return DeflectionText(d, "y", d.deflections.DeflY_max, d.deflections.DeflY_min);
  }
  if (pane == "picloadzp") return "Permanent load - z-axis: (kN/kNm)";
  if (pane == "picloadzv") return "Variable load - z-axis: (kN/kNm)";
  if (pane == "picloadyp") return "Permanent load - y-axis: (kN/kNm)";
  if (pane == "picloadyv") return "Variable load - y-axis: (kN/kNm)";
  return {};
}

std::string ValueUnderPointer(const Design& d, const std::string& pane, double relative) {
  const int i = NearestStation(relative);
  const std::string x = " x = " + Format(i / 50.0 * d.st.L, "0.000") + " m";
  const auto forces = [&](const PlaneForces& p, const char* M, const char* V) {
    return x + "  " + M + " = " + Format(p.M[i], "0.0") + " kNm  " + V + " = " +
           Format(p.V[i], "0.0") + " kN";
  };
  if (pane == "picmy") return forces(d.beam.z, "My", "Vz");
  if (pane == "picmz") return forces(d.beam.y, "Mz", "Vy");
  const auto deflection = [&](const StationValues& v) {
    return x + "  y = " + Format(v[i], "0.0") + " mm";
  };
  if (pane == "picdz") return deflection(d.deflections.DeflZ);
  if (pane == "picdy") return deflection(d.deflections.DeflY);
  return {};
}

}  // namespace korvane
