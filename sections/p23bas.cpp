// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p23bas.h"

#include <algorithm>
#include <cmath>

#include "analysis/loads.h"
#include "sections/capacities.h"
#include "sections/elements.h"
#include "sections/p22bas.h"
#include "sections/section_sum.h"

namespace korvane {

void LoadBox(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p23_h;
  rec.b = st.p23_b;
  rec.tw = st.p23_tw;
  rec.tf = st.p23_tf;
  rec.r = 0;
  const double a = st.p23_a;
  const double web = rec.h - 2 * rec.tf;  // not rounded, so that no gap opens
  rec.hw = web;
  rec.d = rec.hw;
  RectList list;
  list.Add(Rect{rec.b, rec.tf, 0, rec.h - rec.tf});
  list.Add(Rect{rec.tw, web, a, rec.tf});
  list.Add(Rect{rec.tw, web, rec.b - a - rec.tw, rec.tf});
  list.Add(Rect{rec.b, rec.tf, 0, 0});
  const SumResult sum = SectionSum(list);
  rec.A = sum.A;
  rec.Iy = sum.Iy;
  rec.Iz = sum.Iz;
  rec.bw = rec.b - 2 * (a + rec.tw);
  rec.c = rec.bw;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = (4 * rec.tf + 2 * rec.b + 4 * a + 2 * rec.hw) / 1000;
  rec.Wely = rec.Iy / (rec.h - sum.ybar);
  rec.Welz = rec.Iz / (rec.b - sum.xbar);
  const double p = rec.b - 2 * a - rec.tw;  // between web centres
  const double q = rec.h - rec.tf;          // between flange centres
  rec.Ix = 2 * p * p * q * q / (p / rec.tf + q / rec.tw) + 4 * std::pow(rec.tf, 3) * a / 3;
  const double webs = p * p * rec.tw;
  const double flanges = rec.b * q * rec.tf;
  rec.Iw = q * q / 24 * (p * p * q * rec.tw + std::pow(rec.b, 3) * rec.tf) *
           std::pow((webs - flanges) / (webs + flanges), 2);
  rec.Wply = rec.hw * rec.hw * rec.tw / 2 + (rec.h - rec.tf) * rec.tf * rec.b;
  rec.Wplz = rec.b * rec.b * rec.tf / 2 + p * rec.hw * rec.tw;
  rec.tmax = std::max<double>(rec.tf, rec.tw);
}

namespace {

/// What the sections with two webs and unequal flanges share: tf1, tf2, tw, cm are set; H is the
/// overall height and g the surface in mm.
void DeriveTwoWebs(const ProjectState& st, const RectList& list, double H, double surface,
                   SectionRecord& rec) {
  const SumResult sum = SectionSum(list);
  rec.A = sum.A;
  rec.Iy = sum.Iy;
  rec.Iz = sum.Iz;
  rec.Ix = sum.Ix;
  rec.Iw = 0;
  rec.tf = rec.tf1;
  rec.bw = rec.cm;
  rec.r = 0;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = surface / 1000;
  rec.ezel = H - sum.ybar;
  rec.ez = sum.ybar;
  rec.Wely1 = rec.Iy / (H - sum.ybar);
  rec.Wely2 = rec.Iy / sum.ybar;
  const double y = WalkPlasticAxis(list, sum.A, H);
  rec.ezpl = H - y;
  rec.Wply = PlasticModulus(list, y);
  rec.tmax = std::max<double>({rec.tf1, rec.tf2, rec.tw});
}

}  // namespace

void LoadHsqSymmetric(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p24_h;
  rec.b = st.p24_b;
  rec.tw = st.p24_tw;
  rec.tf1 = st.p24_tf1;
  rec.tf2 = st.p24_tf2;
  const double a = st.p24_a;
  const double top = rec.b - 2 * (st.p24_c + a);
  const double web = rec.h - rec.tf1;
  rec.hw = web;
  rec.d = rec.hw;
  rec.cm = rec.b - 2 * (a + rec.tw);
  rec.co = a;
  RectList list;
  list.Add(Rect{top, rec.tf1, 0, rec.h - rec.tf1 + rec.tf2});
  list.Add(Rect{2 * rec.tw, web, a, rec.tf2});
  list.Add(Rect{rec.b, rec.tf2, 0, 0});
  DeriveTwoWebs(st, list, rec.h + rec.tf2, 2 * (rec.tf2 + rec.h) + 2 * rec.b, rec);
}

void LoadHsqOneSided(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p25_h;
  rec.b1 = st.p25_b1;
  rec.b2 = st.p25_b2;
  rec.b = rec.b2;
  rec.tw = st.p25_tw;
  rec.tf1 = st.p25_tf1;
  rec.tf2 = st.p25_tf2;
  const double a = st.p25_a;
  const double c = st.p25_c;
  const double web = rec.h - rec.tf1;
  rec.hw = web;
  rec.d = rec.hw;
  rec.cm = rec.b1 - 2 * rec.tw;
  rec.co = rec.b2 - rec.b1 - a;
  RectList list;
  list.Add(Rect{rec.b1 - 2 * c, rec.tf1, a + c, rec.h - rec.tf1 + rec.tf2});
  list.Add(Rect{2 * rec.tw, web, a, rec.tf2});
  list.Add(Rect{rec.b2, rec.tf2, 0, 0});
  DeriveTwoWebs(st, list, rec.h + rec.tf2, 2 * (rec.tf2 + rec.h) + 2 * rec.b2, rec);
}

void LoadBoxUnequal(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p27_h;
  rec.b1 = st.p27_b1;
  rec.b2 = st.p27_b2;
  rec.b = rec.b2;
  rec.tw = st.p27_tw;
  rec.tf1 = st.p27_tf1;
  rec.tf2 = st.p27_tf2;
  const double a = st.p27_a;
  const double web = rec.h - rec.tf1 - rec.tf2;
  rec.hw = web;
  rec.d = rec.hw;
  rec.cm = a - rec.tw;
  rec.co = (rec.b2 - a - rec.tw) / 2;
  RectList list;
  list.Add(Rect{rec.b1, rec.tf1, (rec.b2 - rec.b1) / 2, rec.h - rec.tf1});
  list.Add(Rect{2 * rec.tw, web, (rec.b2 - 2 * rec.tw) / 2, rec.tf2});
  list.Add(Rect{rec.b2, rec.tf2, 0, 0});
  DeriveTwoWebs(st, list, rec.h, 2 * rec.b2 + 2 * rec.b1 + 2 * rec.h - 2 * (rec.tw + a), rec);
}

void TwoWebEffective(const ProjectState& st, const TwoWebFlange& top, const TwoWebFlange& bottom,
                     const EffectiveWeb& webs, SectionRecord& rec) {
  const bool noFlange = st.IgnoreFlangeBuckling == 1;
  const auto removed = [&](const TwoWebFlange& f) {
    double area = (1 - EffectiveWidth(f.cm / f.t, st.epsilon, 4, noFlange)) * f.cm * f.t;
    if (f.outstands > 0) {
      area +=
          f.outstands * (1 - EffectiveWidth(f.co / f.t, st.epsilon, 0.43, noFlange)) * f.co * f.t;
    }
    return area;
  };
  const double top1 = removed(top);
  const double bottom1 = removed(bottom);
  EffectiveModuli(st, {top.t, top1, top1}, {bottom.t, bottom1, bottom1}, webs, rec);
  const double rhow = EffectiveWidth(rec.d / rec.tw, st.epsilon, 4, st.IgnoreWebBuckling == 1);
  rec.Aeff = rec.A - top1 - bottom1 - 2 * (1 - rhow) * rec.d * rec.tw;
}

void HsqSymmetricEffective(const ProjectState& st, SectionRecord& rec) {
  TwoWebEffective(st, {rec.tf1, rec.cm, 0, 0}, {rec.tf2, rec.cm, rec.co, 2},
                  {2 * rec.tw, rec.h + rec.tf2, rec.hw}, rec);
}

void HsqOneSidedEffective(const ProjectState& st, SectionRecord& rec) {
  // This family alone takes the clear depth in psi and the whole strip's own inertia: kept.
  TwoWebEffective(st, {rec.tf1, rec.cm, 0, 0}, {rec.tf2, rec.cm, rec.co, 1},
                  {2 * rec.tw, rec.h + rec.tf2, rec.d, true}, rec);
}

void BoxUnequalEffective(const ProjectState& st, SectionRecord& rec) {
  const double topOutstand = (rec.b1 - st.p27_a - rec.tw) / 2;
  TwoWebEffective(st, {rec.tf1, rec.cm, topOutstand, 2}, {rec.tf2, rec.cm, rec.co, 2},
                  {2 * rec.tw, rec.h, rec.hw}, rec);
}

namespace {

/// Classes by side; H the overall height in mm.
void TwoWebClass(const ProjectState& st, const SectionForces& f, double H, SectionRecord& rec) {
  const double eps = st.epsilon;
  const double My = ClassMoment(f);
  const double s1 = My * 1E6 / rec.Iy * (H - rec.ez - rec.tf1);
  const double s2 = -My * 1E6 / rec.Iy * (rec.ez - rec.tf2 - rec.r);
  const double ratio = rec.d / rec.tw;
  const auto web = [&](double first, double second) {
    return MixedInternalClass(first / (first - second), second / first, ratio, eps);
  };
  const auto plate = [&](double t) {
    return ClassByLimits(rec.cm / t, 33 * eps, 38 * eps, 42 * eps, true);
  };
  rec.classTop = GoverningClass(st, web(s1, s2), plate(rec.tf1));
  const int outstand = ClassByLimits(rec.co / rec.tf2, 9 * eps, 10 * eps, 14 * eps, false);
  rec.classBottom = GoverningClass(st, web(s2, s1), std::max(plate(rec.tf2), outstand));
}

/// Capacities by side under the loading qf of one flange, which counts as FlangeLoad tells.
void TwoWebCapacities(const ProjectState& st, const SectionForces& f, double qf,
                      SectionRecord& rec) {
  rec.Ntd = ForceOf(st, rec.A);
  rec.betaA = rec.Aeff / rec.A;
  rec.Ncrd = ForceOf(st, rec.betaA * rec.A);

  double factor = 1;
  const double Mf = FlangeStrength(st, rec);
  if (qf > 0.2 * Mf) {
    if (1 - qf / Mf < 0) {
      rec.flangeOverloaded = true;
    } else {
      factor = std::min((std::sqrt(1 - qf / Mf) + 1.1) * 0.5, 1.0);
    }
  }
  SideCapacities(st, factor, rec);
  const double a = rec.h - rec.ezpl - rec.tf1;
  SideShear(st, f, {rec.h + rec.tf2 - rec.tf1, rec.h - rec.tf1, a, rec.h - rec.tf1 - a}, rec);
  rec.Mdy = std::min<double>(rec.MdyTop, rec.MdyBottom);
}

}  // namespace

void HsqClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  // The HSQ height is measured from the top of the bottom plate.
  TwoWebClass(st, f, rec.h + rec.tf2, rec);
}

void BoxUnequalClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  TwoWebClass(st, f, rec.h, rec);
}

double FlangeLoad(const ProjectState& st) {
  if (!IsHsq(st.ProfileType) || st.HsqKind != 0 || st.AnalysisMode != 1) return 0;
  const double q = FlangeLineLoad(st) * 60;
  return IsOneSidedHsq(st.ProfileType) ? q : q * st.p24_load / 100;
}

double FlangeStrength(const ProjectState& st, const SectionRecord& rec) {
  return 1.75 * st.fyk / st.gammam1 * rec.tf2 * rec.tf2 / 6;
}

void HsqCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  TwoWebCapacities(st, f, FlangeLoad(st), rec);
}

void BoxUnequalCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  TwoWebCapacities(st, f, 0, rec);
}

}  // namespace korvane
