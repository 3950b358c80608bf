// SPDX-License-Identifier: GPL-3.0-or-later
#include "analysis/modal.h"

#include <array>
#include <cmath>

#include "analysis/loads.h"
#include "core/powers.h"
#include "core/supports.h"

namespace korvane {

namespace {

/// Constants of the first three modes of a rigid case, in the order of RigidCase.
constexpr std::array<std::array<double, 3>, 4> kModes{{
    {1.57, 6.28, 14.1},
    {2.45, 7.95, 16.6},
    {3.56, 9.82, 19.2},
    {0.56, 3.51, 9.82},
}};

}  // namespace

void ModalAnalysisRun(const ProjectState& st, double S, double Iy, ModalResults& out) {
  // The load record counts in load mode only.
  out.ModalMass = (st.AnalysisMode == 1 ? 102 * ModalLineLoad(st) : 0) + S;
  const Support* support = FindSupport(st.SupportType);
  if (support == nullptr || IsSpring(st.SupportType)) return;
  const std::array<double, 3>& constants = kModes.at(static_cast<std::size_t>(support->stiff));
  const double EI = Iy * st.E * 1E-6;
  const double base = std::sqrt(EI / (Fourth(st.L) * out.ModalMass));
  for (int n = 1; n <= 3; ++n) {
    out.ModalFreq[n] = base * constants[static_cast<std::size_t>(n - 1)];
  }
}

}  // namespace korvane
