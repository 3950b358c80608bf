// SPDX-License-Identifier: GPL-3.0-or-later
#include "naive_formulas.h"

namespace korvane::naive {

namespace {

double Square(double v) {
  return v * v;
}
double Cube(double v) {
  return v * v * v;
}

Effect PinnedPoint(At at, bool left, double L, double P, double a, double x) {
  const double RA = P * (L - a) / L;
  const double RB = RA - P;
  if (at == At::Start) return {0, RA};
  if (at == At::End) return {0, RB};
  return left ? Effect{RA * x, RA} : Effect{-RB * (1 - x / L) * L, RB};
}

Effect ProppedPoint(At at, bool left, double L, double P, double a, double x) {
  const double b = L - a;
  const double RA = (P * Square(b) / (2 * Square(L))) * (3 - b / L);
  const double RB = -(P * a / (2 * L)) * (3 - Square(a) / Square(L));
  const double MB = -(P * a / 2) * (1 - Square(a) / Square(L));
  if (at == At::Start) return {0, RA};
  if (at == At::End) return {MB, RB};
  return left ? Effect{RA * x, RA} : Effect{MB - RB * (L - x), RB};
}

Effect FixedPoint(At at, bool left, double L, double P, double a, double x) {
  const double b = L - a;
  const double RA = (P * Square(b) / Square(L)) * (2 * a / L + 1);
  const double RB = RA - P;
  const double MA = -P * a * Square(b) / Square(L);
  const double MB = -P * Square(a) * b / Square(L);
  if (at == At::Start) return {MA, RA};
  if (at == At::End) return {MB, RB};
  return left ? Effect{MA + RA * x, RA} : Effect{MB - RB * (L - x), RB};
}

Effect CantileverPoint(At at, bool left, double L, double P, double a, double x) {
  if (at == At::Start) return {-P * a, -P};
  if (at == At::End) return {0, a == L ? -P : 0};
  return left ? Effect{-P * (a - x), -P} : Effect{};
}

Effect PinnedMoment(At at, bool left, double L, double Mo, double a, double x) {
  const double V = -Mo / L;
  if (at == At::Start) return {a == 0 ? Mo : 0, V};
  if (at == At::End) return {a == L ? -Mo : 0, V};
  return {left ? -Mo * x / L : Mo * (L - x) / L, V};
}

Effect ProppedMoment(At at, bool left, double L, double Mo, double a, double x) {
  const double bracket = 3 * Square(a) / Square(L) - 3;
  const double V = bracket * Mo / (2 * L);
  if (at == At::Start) return {a == 0 ? Mo : 0, V};
  if (at == At::End) return {(3 * Square(a) / Square(L) - 1) * Mo / 2, V};
  return {Mo * (x / L) / 2 * bracket + (left ? 0 : Mo), V};
}

Effect FixedMoment(At at, bool left, double L, double Mo, double a, double x) {
  const double al2 = Square(a) / Square(L);
  const double be2 = Square(L - a) / Square(L);
  const double V = (al2 + be2 - 1) * 3 * Mo / L;
  const double M0 = -(al2 + 2 * be2 - 1) * Mo;
  if (at == At::Start) return {M0, V};
  if (at == At::End) return {(2 * al2 + be2 - 1) * Mo, V};
  return {M0 + V * x + (left ? 0 : Mo), V};
}

}  // namespace

Effect LineForce(Case c, At at, double L, double q, double x) {
  if (at == At::Start) x = 0;
  if (at == At::End) x = L;
  switch (c) {
    case kPinned:
      return {at == At::End ? 0 : (q * L / 2) * x - q * x * x / 2, q * L / 2 - q * x};
    case kPropped:
      return {at == At::End ? -q * L * L / 8 : (3 * q * L / 8) * x - q * x * x / 2,
              3 * q * L / 8 - q * x};
    case kFixed:
      return {(q / 2) * (L * x - x * x - L * L / 6), q * L / 2 - q * x};
    case kCantilever:
      return {-q * Square(L - x) / 2, -q * (L - x)};
  }
  return {};
}

Effect PointForce(Case c, At at, bool left, double L, double P, double a, double x) {
  switch (c) {
    case kPinned:
      return PinnedPoint(at, left, L, P, a, x);
    case kPropped:
      return ProppedPoint(at, left, L, P, a, x);
    case kFixed:
      return FixedPoint(at, left, L, P, a, x);
    case kCantilever:
      return CantileverPoint(at, left, L, P, a, x);
  }
  return {};
}

Effect MomentForce(Case c, At at, bool left, double L, double Mo, double a, double x) {
  switch (c) {
    case kPinned:
      return PinnedMoment(at, left, L, Mo, a, x);
    case kPropped:
      return ProppedMoment(at, left, L, Mo, a, x);
    case kFixed:
      return FixedMoment(at, left, L, Mo, a, x);
    case kCantilever:
      if (at == At::Start) return {-Mo, 0};
      return {at == At::Inside && left ? -Mo : 0, 0};
  }
  return {};
}

double LineDeflection(Case c, double K, double L, double q, double x) {
  const double xi = x / L;
  switch (c) {
    case kPinned:
      return K * q * Cube(L) * x / 24 * (1 - 2 * Square(xi) + Cube(xi));
    case kPropped:
      return K * q * Cube(L) * x / 48 * (1 - 3 * Square(xi) + 2 * Cube(xi));
    case kFixed:
      return K * q * Square(L) * Square(x) / 24 * Square(1 - xi);
    case kCantilever:
      return 3 * K * q * Square(L) * Square(L) / 24 - K * q * Cube(L) * (L - x) / 6 +
             K * q * Square(L - x) * Square(L - x) / 24;
  }
  return 0;
}

double PointDeflection(Case c, double K, double L, double P, double a, double x) {
  const double b = L - a;
  const double xi = x / L;
  const double al = a / L;
  const double be = b / L;
  const bool left = x < a;
  switch (c) {
    case kPinned:
      return left ? K * P * L * b * x / 6 * (1 - Square(be) - Square(xi))
                  : K * P * L * a * (L - x) / 6 * (2 * xi - Square(al) - Square(xi));
    case kPropped:
      return left ? K * P * Square(b) * x / 12 * (3 * al - (2 + al) * Square(xi))
                  : K * P * a * Square(L - x) / 12 *
                        (3 * (1 - Square(al)) - (3 - Square(al)) * (1 - xi));
    case kFixed:
      return left
                 ? K * P * a * Square(x) / 6 *
                       (3 * Square(al) + 3 - 6 * al - (2 * Cube(al) + 1 - 3 * Square(al)) * (x / a))
                 : K * P * b * Square(L - x) / 6 *
                       (3 * Square(be) + 3 - 6 * be -
                        (2 * Cube(be) + 1 - 3 * Square(be)) * ((L - x) / b));
    case kCantilever: {
      const double tip = K * P / 6 * (2 * Cube(L) - 3 * Square(L) * b + Cube(b));
      const double straight = tip - K * P * Square(a) / 2 * (L - x);
      return left ? straight + K * P * Cube(a - x) / 6 : straight;
    }
  }
  return 0;
}

double MomentDeflection(Case c, double K, double L, double Mo, double a, double x) {
  const bool left = x < a;
  double D = 0;
  switch (c) {
    case kPinned:
      D = K * Mo * (2 * Square(L) - 6 * a * L + 3 * Square(a)) * x / (6 * L) +
          K * Mo * Cube(x) / (6 * L);
      break;
    case kPropped:
      D = -K * Mo * (L - a) * (3 * a - L) * x / (4 * L) +
          K * Mo * 3 * (Square(L) - Square(a)) * Cube(x) / (12 * Cube(L));
      break;
    case kFixed:
      D = K * Mo * (Square(L) - 4 * a * L + 3 * Square(a)) * Square(x) / (2 * Square(L)) +
          K * Mo * a * (L - a) * Cube(x) / Cube(L);
      break;
    case kCantilever:
      return left ? K * Mo * Square(x) / 2 : K * Mo * (Square(a) / 2 + a * (x - a));
  }
  return left ? D : D - K * Mo * Square(x - a) / 2;
}

}  // namespace korvane::naive
