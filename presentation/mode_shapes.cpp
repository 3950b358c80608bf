// SPDX-License-Identifier: GPL-3.0-or-later
#include "presentation/mode_shapes.h"

#include <array>
#include <cmath>
#include <numbers>
#include <string>

#include "core/supports.h"
#include "presentation/symbols.h"

namespace korvane {

namespace {

constexpr int kSteps = 100;

/// cosh - cos - s (sinh - sin) of the eigenvalue: clamped at x = 0; s suits the other end.
double Clamped(double lambda, double s, double x) {
  const double u = lambda * x;
  return std::cosh(u) - std::cos(u) - s * (std::sinh(u) - std::sin(u));
}

double Raw(int supportType, int mode, double x) {
  const auto m = static_cast<std::size_t>(mode - 1);
  constexpr std::array pinnedFixed{3.926602, 7.068583, 10.210176};
  constexpr std::array fixedFixed{4.730041, 7.853205, 10.995608};
  constexpr std::array fixedFree{1.875104, 4.694091, 7.854757};
  const Support* support = FindSupport(supportType);
  if (support == nullptr || IsSpring(supportType)) return 0;
  switch (support->stiff) {
    case RigidCase::Pinned:
      return std::sin(mode * std::numbers::pi * x);
    case RigidCase::Propped: {
      const double l = pinnedFixed[m];  // pinned at 0, clamped at 1
      const double s = (std::cosh(l) - std::cos(l)) / (std::sinh(l) - std::sin(l));
      return Clamped(l, s, 1 - x);
    }
    case RigidCase::Fixed: {
      const double l = fixedFixed[m];
      const double s = (std::cosh(l) - std::cos(l)) / (std::sinh(l) - std::sin(l));
      return Clamped(l, s, x);
    }
    case RigidCase::Cantilever: {
      const double l = fixedFree[m];
      const double s = (std::cosh(l) + std::cos(l)) / (std::sinh(l) + std::sin(l));
      return Clamped(l, s, x);
    }
  }
  return 0;
}

double Greatest(int supportType, int mode) {
  double most = 0;
  for (int i = 0; i <= kSteps; ++i) {
    most = std::max(most, std::fabs(Raw(supportType, mode, double(i) / kSteps)));
  }
  return most;
}

}  // namespace

double ModeShape(int supportType, int mode, double x) {
  const double most = Greatest(supportType, mode);
  return most == 0 ? 0 : Raw(supportType, mode, x) / most;
}

void DrawModeShapes(DrawingTarget& target, const Box& place, int supportType, double letters) {
  const double height = place.Height() / 3;
  const double margin = place.Width() * 0.08;
  target.SetTextUnits(letters);
  for (int mode = 1; mode <= 3; ++mode) {
    const double top = place.top + (mode - 1) * height;
    target.ForeColor = Role::Quiet;
    target.CurrentX = place.left + margin / 2;
    target.CurrentY = top + letters * 0.4;
    target.Print("Mode " + std::to_string(mode));
    const double axis = top + letters * 1.6 + (height - letters * 1.6) / 2;
    const double swing = (height - letters * 2.2) * 0.42;
    const double width = place.Width() - 2 * margin;
    target.LineWidth = 1;
    target.LineDash = Dash::Dashed;
    target.Line({place.left + margin, axis}, {place.left + margin + width, axis});
    target.LineDash = Dash::Solid;
    target.ForeColor = Role::Quiet;
    DrawSupports(target, supportType, {place.left + margin, axis},
                 {place.left + margin + width, axis}, 0, 0.7 * letters);
    target.ForeColor = Role::Accent;
    target.LineWidth = 2;
    std::array<Point, kSteps + 1> curve;
    const double most = Greatest(supportType, mode);
    for (int i = 0; i <= kSteps; ++i) {
      const double x = double(i) / kSteps;
      const double y = most == 0 ? 0 : Raw(supportType, mode, x) / most;
      curve[static_cast<std::size_t>(i)] = {place.left + margin + x * width, axis - swing * y};
    }
    target.Polyline(curve);
  }
}

}  // namespace korvane
