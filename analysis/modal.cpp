// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/modal.h"

#include <array>
#include <cmath>

#include "analysis/loads.h"

namespace korvane {

namespace {

/// Constants of the first three modes of a support case.
const std::array<double, 3>* ModeConstants(int support) {
  static constexpr std::array<double, 3> pinned{1.57, 6.28, 14.1};
  static constexpr std::array<double, 3> propped{2.45, 7.95, 16.6};
  static constexpr std::array<double, 3> fixed{3.56, 9.82, 19.2};
  static constexpr std::array<double, 3> cantilever{0.56, 3.51, 9.82};
  switch (support) {
    case 0:
      return &pinned;
    case 1:
      return &propped;
    case 2:
      return &fixed;
    case 4:
      return &cantilever;
    default:
      return nullptr;
  }
}

}  // namespace

void ModalAnalysisRun(const ProjectState& st, double S, double Iy, ModalResults& out) {
  // The load record counts in load mode only.
  out.ModalMass = (st.AnalysisMode == 1 ? 102 * ModalLineLoad(st) : 0) + S;
  const std::array<double, 3>* constants = ModeConstants(st.SupportType);
  if (constants == nullptr) return;
  const double EI = Iy * st.E * 1E-6;
  const double base = std::sqrt(EI / (std::pow(st.L, 4) * out.ModalMass));
  for (int n = 1; n <= 3; ++n) {
    out.ModalFreq[n] = base * (*constants)[static_cast<std::size_t>(n - 1)];
  }
}

}  // namespace korvane
