// SPDX-License-Identifier: GPL-3.0-or-later
// Integrates the outline of a section, rounded corners included, independently of the engine.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

namespace korvane::testing {

/// A point of an outline in mm: x to the right, y upwards.
struct Point {
  double x = 0;
  double y = 0;
};

/// A vertex whose corner is rounded with the radius, tangent to both edges; 0 keeps it sharp.
struct Corner {
  double x = 0;
  double y = 0;
  double r = 0;
};

using Loop = std::vector<Point>;

/// Area, first and second moments about the axes of the coordinates.
struct Moments {
  double A = 0;
  double Sx = 0;   ///< integral of y
  double Sy = 0;   ///< integral of x
  double Ixx = 0;  ///< integral of y^2
  double Iyy = 0;  ///< integral of x^2
  double Ixy = 0;  ///< integral of x*y
  Moments& operator+=(const Moments& o) {
    A += o.A, Sx += o.Sx, Sy += o.Sy, Ixx += o.Ixx, Iyy += o.Iyy, Ixy += o.Ixy;
    return *this;
  }
};

/// Exact moments of a polygon by Green's theorem; counterclockwise is positive.
inline Moments PolygonMoments(const Loop& loop) {
  Moments m;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point& a = loop[i];
    const Point& b = loop[(i + 1) % loop.size()];
    const double cross = a.x * b.y - b.x * a.y;
    m.A += cross / 2;
    m.Sx += cross * (a.y + b.y) / 6;
    m.Sy += cross * (a.x + b.x) / 6;
    m.Ixx += cross * (a.y * a.y + a.y * b.y + b.y * b.y) / 12;
    m.Iyy += cross * (a.x * a.x + a.x * b.x + b.x * b.x) / 12;
    m.Ixy += cross * (a.x * b.y + 2 * a.x * a.y + 2 * b.x * b.y + b.x * a.y) / 24;
  }
  return m;
}

/// The part of a polygon with y <= limit.
inline Loop Below(const Loop& loop, double limit) {
  Loop part;
  for (std::size_t i = 0; i < loop.size(); ++i) {
    const Point& a = loop[i];
    const Point& b = loop[(i + 1) % loop.size()];
    if (a.y <= limit) part.push_back(a);
    if ((a.y <= limit) != (b.y <= limit)) {
      part.push_back({a.x + (b.x - a.x) * (limit - a.y) / (b.y - a.y), limit});
    }
  }
  return part;
}

/// Outline of straight edges with rounded corners; arcs are cut into chords fine enough for
/// six digits.
inline Loop Rounded(const std::vector<Corner>& corners) {
  constexpr int chords = 200;
  Loop loop;
  const std::size_t n = corners.size();
  for (std::size_t i = 0; i < n; ++i) {
    const Corner& v = corners[i];
    const Corner& p = corners[(i + n - 1) % n];
    const Corner& q = corners[(i + 1) % n];
    if (v.r <= 0) {
      loop.push_back({v.x, v.y});
      continue;
    }
    const double lp = std::hypot(p.x - v.x, p.y - v.y);
    const double lq = std::hypot(q.x - v.x, q.y - v.y);
    const Point a{(p.x - v.x) / lp, (p.y - v.y) / lp};
    const Point b{(q.x - v.x) / lq, (q.y - v.y) / lq};
    const double half = std::acos(a.x * b.x + a.y * b.y) / 2;
    const double run = v.r / std::tan(half);
    const Point bisector{a.x + b.x, a.y + b.y};
    const double reach = v.r / std::sin(half) / std::hypot(bisector.x, bisector.y);
    const Point c{v.x + bisector.x * reach, v.y + bisector.y * reach};
    const double from = std::atan2(v.y + a.y * run - c.y, v.x + a.x * run - c.x);
    const double to = std::atan2(v.y + b.y * run - c.y, v.x + b.x * run - c.x);
    const double turn = std::remainder(to - from, 2 * std::acos(-1.0));
    for (int k = 0; k <= chords; ++k) {
      const double angle = from + turn * k / chords;
      loop.push_back({c.x + v.r * std::cos(angle), c.y + v.r * std::sin(angle)});
    }
  }
  return loop;
}

/// A section: outer loops counterclockwise, holes clockwise.
class Shape {
public:
  explicit Shape(std::vector<Loop> loops) : loops_(std::move(loops)), whole_(Sum(loops_)) {}

  const std::vector<Loop>& Loops() const { return loops_; }
  double A() const { return whole_.A; }
  double Cx() const { return whole_.Sy / whole_.A; }
  double Cy() const { return whole_.Sx / whole_.A; }
  /// Second moment about the horizontal axis through the centroid.
  double Iy() const { return whole_.Ixx - whole_.A * Cy() * Cy(); }
  /// Second moment about the vertical axis through the centroid.
  double Iz() const { return whole_.Iyy - whole_.A * Cx() * Cx(); }
  double Iyz() const { return whole_.Ixy - whole_.A * Cx() * Cy(); }
  /// Plastic modulus about the horizontal axis that halves the area.
  double Wply() const { return PlasticModulus(loops_); }
  /// Plastic modulus about the vertical axis that halves the area.
  double Wplz() const {
    std::vector<Loop> turned = loops_;
    for (Loop& loop : turned) {
      for (Point& p : loop) p = {-p.y, p.x};
    }
    return PlasticModulus(turned);
  }
  /// Length of all outlines.
  double Perimeter() const {
    double length = 0;
    for (const Loop& loop : loops_) {
      for (std::size_t i = 0; i < loop.size(); ++i) {
        const Point& b = loop[(i + 1) % loop.size()];
        length += std::hypot(b.x - loop[i].x, b.y - loop[i].y);
      }
    }
    return length;
  }

private:
  static Moments Sum(const std::vector<Loop>& loops) {
    Moments m;
    for (const Loop& loop : loops) m += PolygonMoments(loop);
    return m;
  }

  static Moments SumBelow(const std::vector<Loop>& loops, double limit) {
    Moments m;
    for (const Loop& loop : loops) m += PolygonMoments(Below(loop, limit));
    return m;
  }

  static double PlasticModulus(const std::vector<Loop>& loops) {
    double low = loops[0][0].y;
    double high = low;
    for (const Loop& loop : loops) {
      for (const Point& p : loop) {
        low = std::min(low, p.y);
        high = std::max(high, p.y);
      }
    }
    const Moments all = Sum(loops);
    for (int i = 0; i < 60; ++i) {
      const double middle = (low + high) / 2;
      (SumBelow(loops, middle).A < all.A / 2 ? low : high) = middle;
    }
    const Moments below = SumBelow(loops, low);
    return (all.Sx - below.Sx) - below.Sx - low * (all.A - 2 * below.A);
  }

  std::vector<Loop> loops_;
  Moments whole_;
};

/// Dimensions of a rolled I section. The flanges are tf thick at `tfAt` from the tips; their
/// inner faces rise towards the web by `slope` (0: parallel).
struct IShape {
  double h, b, tw, tf, r;
  double slope = 0;
  double tfAt = 0;
  double toe = 0;  ///< radius of the inner edges of the flange tips
};

inline Shape MakeI(const IShape& s) {
  const double out = s.b / 2;
  const double web = s.tw / 2;
  const double mid = s.h / 2;
  const double tip = mid - (s.tf - s.slope * s.tfAt);
  const double root = mid - (s.tf + s.slope * (out - web - s.tfAt));
  return Shape({Rounded({{-out, -mid, 0},
                         {out, -mid, 0},
                         {out, -tip, s.toe},
                         {web, -root, s.r},
                         {web, root, s.r},
                         {out, tip, s.toe},
                         {out, mid, 0},
                         {-out, mid, 0},
                         {-out, tip, s.toe},
                         {-web, root, s.r},
                         {-web, -root, s.r},
                         {-out, -tip, s.toe}})});
}

/// A rolled channel with the back of its web at x = 0; flanges as in IShape.
inline Shape MakeChannel(const IShape& s) {
  const double mid = s.h / 2;
  const double tip = mid - (s.tf - s.slope * s.tfAt);
  const double root = mid - (s.tf + s.slope * (s.b - s.tw - s.tfAt));
  return Shape({Rounded({{0, -mid, 0},
                         {s.b, -mid, 0},
                         {s.b, -tip, s.toe},
                         {s.tw, -root, s.r},
                         {s.tw, root, s.r},
                         {s.b, tip, s.toe},
                         {s.b, mid, 0},
                         {0, mid, 0}})});
}

/// A rectangular hollow section with outer and inner corner radii.
inline Shape MakeHollow(double h, double b, double t, double ro, double ri) {
  const double x = b / 2;
  const double y = h / 2;
  const double xi = x - t;
  const double yi = y - t;
  return Shape({Rounded({{-x, -y, ro}, {x, -y, ro}, {x, y, ro}, {-x, y, ro}}),
                Rounded({{-xi, -yi, ri}, {-xi, yi, ri}, {xi, yi, ri}, {xi, -yi, ri}})});
}

/// An angle with its heel at the origin, the leg h upwards and the leg b to the right.
inline Shape MakeAngle(double h, double b, double t, double r, double toe) {
  return Shape({Rounded({{0, 0, 0}, {b, 0, 0}, {b, t, toe}, {t, t, r}, {t, h, toe}, {0, h, 0}})});
}

/// A bulb flat standing on its bulb at the origin: the flat, a nose rounded with r below and above,
/// and an upper face that falls 30 degrees towards the nose, filleted with r at the flat.
inline Shape MakeBulbFlat(double h, double t, double bulb, double r) {
  const double pi = std::acos(-1.0);
  const double under = r / std::cos(pi / 6);
  const double nose = r + under - r * std::tan(pi / 6);
  const double root = r + under + (bulb - r) * std::tan(pi / 6);
  return Shape({Rounded(
      {{0, 0, 0}, {t + bulb, 0, r}, {t + bulb, nose, r}, {t, root, r}, {t, h, 0}, {0, h, 0}})});
}

/// A rectangle with its lower left corner at (x, y).
inline Loop Rectangle(double width, double height, double x, double y) {
  return {{x, y}, {x + width, y}, {x + width, y + height}, {x, y + height}};
}

}  // namespace korvane::testing
