// SPDX-License-Identifier: GPL-3.0-or-later
// A beam solved by finite elements, to compare the closed formulas with: cubic elements with a
// node at each station, loads between them as their work-equivalent nodal loads (which leaves
// the nodes exact), one dense solution for all.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace korvane {

/// What holds the two ends of the reference beam.
enum class Ends { PinnedPinned, PinnedFixed, FixedFixed, FixedFree };

/// Loads in kN/m, kN and kNm, positions in m; downward positive, a moment lifts the bending
/// moment by its size as one passes it.
struct ReferenceLoads {
  struct At {
    double size, x;
  };
  struct Ramp {
    double q1, q2, x1, x2;
  };
  double q = 0;
  std::vector<At> points, moments;
  std::vector<Ramp> ramps;
};

/// Forces just left and just right of a node, and its deflection times EI.
struct ReferenceNode {
  double x = 0;
  double M_left = 0, M_right = 0, V_left = 0, V_right = 0;
  double EIw = 0;  ///< kN*m^3, downward positive
};

class ReferenceBeam {
public:
  /// Solves with EI = 1 kN*m^2.
  ReferenceBeam(Ends ends, double L, const ReferenceLoads& loads) : loads_(loads) {
    MakeNodes(L);
    const std::size_t n = 2 * x_.size();
    std::vector<std::vector<double>> K(n, std::vector<double>(n + 1, 0));
    for (std::size_t e = 0; e + 1 < x_.size(); ++e) AddElement(e, K);
    for (const auto& p : loads.points) AddAt(p, false, K);
    for (const auto& m : loads.moments) AddAt(m, true, K);
    for (const std::size_t d : Held(ends, n)) {
      std::fill(K[d].begin(), K[d].end(), 0);
      K[d][d] = 1;
    }
    Recover(Solve(std::move(K)));
  }

  const ReferenceNode& Station(int i) const { return nodes_[Node(StationX(i))]; }

private:
  using Four = std::array<double, 4>;

  double StationX(int i) const { return i == 50 ? x_.back() : (i / 50.0) * x_.back(); }

  void MakeNodes(double L) {
    x_ = {L};
    for (int i = 0; i < 50; ++i) x_.push_back((i / 50.0) * L);
    for (const auto& r : loads_.ramps) {
      x_.push_back(r.x1);
      x_.push_back(r.x2);
    }
    std::sort(x_.begin(), x_.end());
    const auto same = [](double a, double b) { return std::fabs(a - b) < kSame; };
    x_.erase(std::unique(x_.begin(), x_.end(), same), x_.end());
  }

  std::size_t Node(double x) const {
    std::size_t n = 0;
    while (n + 1 < x_.size() && x_[n] < x - kSame) ++n;
    return n;
  }

  /// Stiffness of an element of length h, for w and w' at its two ends.
  static std::array<Four, 4> Stiffness(double h) {
    const double a = 12 / (h * h * h);
    const double b = 6 / (h * h);
    const double c = 4 / h;
    const double d = 2 / h;
    return {{{a, b, -a, b}, {b, c, -b, d}, {-a, -b, a, -b}, {b, d, -b, c}}};
  }

  /// Work-equivalent nodal loads of the distributed loads on element e.
  Four Distributed(std::size_t e) const {
    const double h = x_[e + 1] - x_[e];
    double p1 = loads_.q;
    double p2 = loads_.q;
    for (const auto& r : loads_.ramps) {
      const double mid = (x_[e] + x_[e + 1]) / 2;
      if (mid < r.x1 || mid > r.x2) continue;
      const double slope = (r.q2 - r.q1) / (r.x2 - r.x1);
      p1 += r.q1 + slope * (x_[e] - r.x1);
      p2 += r.q1 + slope * (x_[e + 1] - r.x1);
    }
    return {h * (7 * p1 + 3 * p2) / 20, h * h * (3 * p1 + 2 * p2) / 60, h * (3 * p1 + 7 * p2) / 20,
            -h * h * (2 * p1 + 3 * p2) / 60};
  }

  bool OnNode(double x) const { return std::fabs(x_[Node(x)] - x) < kSame; }

  /// Shape functions of an element (or their slopes, for a moment) at the part t of its length.
  static Four Shape(double h, double t, bool slope) {
    if (slope) {
      return {6 * t * (t - 1) / h, (1 - t) * (1 - 3 * t), 6 * t * (1 - t) / h, t * (3 * t - 2)};
    }
    const double r = 1 - t;
    return {r * r * (1 + 2 * t), h * t * r * r, t * t * (3 - 2 * t), -h * t * t * r};
  }

  /// Nodal loads of a point or moment load, which belongs to the element left of its next node.
  void AddAt(const ReferenceLoads::At& load, bool moment,
             std::vector<std::vector<double>>& K) const {
    const std::size_t node = Node(load.x);
    if (OnNode(load.x)) {
      K[2 * node + (moment ? 1 : 0)].back() += load.size;
      return;
    }
    const Four f = Inside(node - 1, load, moment);
    for (std::size_t r = 0; r < 4; ++r) K[2 * (node - 1) + r].back() += f[r];
  }

  Four Inside(std::size_t e, const ReferenceLoads::At& load, bool moment) const {
    const double h = x_[e + 1] - x_[e];
    Four f = Shape(h, (load.x - x_[e]) / h, moment);
    for (double& v : f) v *= load.size;
    return f;
  }

  /// Nodal loads of all that acts between the two nodes of element e.
  Four Between(std::size_t e) const {
    Four sum = Distributed(e);
    const auto add = [&](const std::vector<ReferenceLoads::At>& loads, bool moment) {
      for (const auto& load : loads) {
        if (OnNode(load.x) || Node(load.x) != e + 1) continue;
        const Four f = Inside(e, load, moment);
        for (std::size_t r = 0; r < 4; ++r) sum[r] += f[r];
      }
    };
    add(loads_.points, false);
    add(loads_.moments, true);
    return sum;
  }

  void AddElement(std::size_t e, std::vector<std::vector<double>>& K) const {
    const auto k = Stiffness(x_[e + 1] - x_[e]);
    const Four f = Distributed(e);
    for (std::size_t r = 0; r < 4; ++r) {
      for (std::size_t c = 0; c < 4; ++c) K[2 * e + r][2 * e + c] += k[r][c];
      K[2 * e + r].back() += f[r];
    }
  }

  static std::vector<std::size_t> Held(Ends ends, std::size_t n) {
    switch (ends) {
      case Ends::PinnedPinned:
        return {0, n - 2};
      case Ends::PinnedFixed:
        return {0, n - 2, n - 1};
      case Ends::FixedFixed:
        return {0, 1, n - 2, n - 1};
      case Ends::FixedFree:
        return {0, 1};
    }
    return {};
  }

  /// Gauss elimination with pivoting; the last column is the right side.
  static std::vector<double> Solve(std::vector<std::vector<double>> A) {
    const std::size_t n = A.size();
    for (std::size_t c = 0; c < n; ++c) {
      std::size_t pivot = c;
      for (std::size_t r = c + 1; r < n; ++r) {
        if (std::fabs(A[r][c]) > std::fabs(A[pivot][c])) pivot = r;
      }
      std::swap(A[c], A[pivot]);
      for (std::size_t r = c + 1; r < n; ++r) {
        const double f = A[r][c] / A[c][c];
        if (f == 0) continue;
        for (std::size_t k = c; k <= n; ++k) A[r][k] -= f * A[c][k];
      }
    }
    std::vector<double> u(n);
    for (std::size_t r = n; r-- > 0;) {
      double s = A[r][n];
      for (std::size_t k = r + 1; k < n; ++k) s -= A[r][k] * u[k];
      u[r] = s / A[r][r];
    }
    return u;
  }

  /// Forces from the elements' end forces; EI*w'' = -M, V = dM/dx.
  void Recover(const std::vector<double>& u) {
    nodes_.resize(x_.size());
    for (std::size_t e = 0; e + 1 < x_.size(); ++e) {
      const auto k = Stiffness(x_[e + 1] - x_[e]);
      const Four load = Between(e);
      Four f{};
      for (std::size_t r = 0; r < 4; ++r) {
        for (std::size_t c = 0; c < 4; ++c) f[r] += k[r][c] * u[2 * e + c];
        f[r] -= load[r];
      }
      nodes_[e].V_right = -f[0];
      nodes_[e].M_right = f[1];
      nodes_[e + 1].V_left = f[2];
      nodes_[e + 1].M_left = -f[3];
    }
    for (std::size_t i = 0; i < x_.size(); ++i) {
      nodes_[i].x = x_[i];
      nodes_[i].EIw = u[2 * i];
    }
  }

  static constexpr double kSame = 1e-6;  ///< m, positions as near as this share a node
  ReferenceLoads loads_;
  std::vector<double> x_;
  std::vector<ReferenceNode> nodes_;
};

}  // namespace korvane
