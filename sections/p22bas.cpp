// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p22bas.h"

#include <algorithm>
#include <cmath>

#include "sections/capacities.h"
#include "sections/elements.h"
#include "sections/p01bas.h"

namespace korvane {

void LoadWeldedI(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p21_h;
  rec.b = st.p21_b;
  rec.tw = st.p21_tw;
  rec.tf = st.p21_tf;
  rec.r = 0;  // welds count as no radius in every formula
  const double web = rec.h - 2 * rec.tf;
  rec.hw = web;
  RectList list;
  list.Add(Rect{rec.b, rec.tf, 0, 0});
  list.Add(Rect{rec.tw, web, (rec.b - rec.tw) / 2, rec.tf});
  list.Add(Rect{rec.b, rec.tf, 0, rec.h - rec.tf});
  const SumResult sum = SectionSum(list);
  rec.A = sum.A;
  rec.Iy = sum.Iy;
  rec.Iz = sum.Iz;
  rec.Ix = sum.Ix;
  rec.d = rec.hw;
  rec.c = (rec.b - rec.tw) / 2;
  rec.Af = 2 * rec.b * rec.tf;
  rec.Aw = rec.hw * rec.tw;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = (4 * rec.tf + 2 * rec.b + 2 * (rec.b - rec.tw) + 2 * rec.hw) / 1000;
  rec.Wely = rec.Iy / (rec.h - sum.ybar);
  rec.Welz = rec.Iz / (rec.b - sum.xbar);
  rec.Iw = std::pow(rec.b, 3) * rec.tf / 24 * std::pow(rec.h - rec.tf, 2);
  rec.Wply = (rec.h - rec.tf) * rec.tf * rec.b + rec.hw * rec.hw * rec.tw / 4;
  rec.Wplz = std::pow(rec.tw / 2, 2) * (2 * rec.hw) / 2 + 4 * std::pow(rec.b / 2, 2) * rec.tf / 2;
  rec.tmax = std::max<double>(rec.tf, rec.tw);
}

void WeldedClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  const double sN = f.Ncl * 1000 / rec.A;
  const double web = std::fabs(f.My * 1E6 / rec.Iy * (rec.h / 2 - rec.tf - rec.r));
  const double flange = std::fabs(f.My * 1E6 / rec.Iy * rec.h / 2);
  const double tip = std::fabs(f.Mz * 1E6 / rec.Iz * rec.b / 2);
  const double root = std::fabs(f.Mz * 1E6 / rec.Iz * (rec.b / 2 - rec.c));
  const int webClass =
      InternalClass(-web - sN, web - sN, rec.d / rec.tw, st.epsilon, ZeroStress::Compressed);
  const int flangeClass = OutstandClass(-flange - tip - sN, -root - flange - sN, rec.c / rec.tf,
                                        st.epsilon, kWeldedOutstand);
  rec.class_ = std::max(webClass, flangeClass);
}

void WeldedShear(const ProjectState& st, SectionRecord& rec) {
  WebShear(st, rec.tw * rec.hw, rec);
}

void TwoFlangeWarping(double H, SectionRecord& rec) {
  const double I1 = std::pow(rec.b1, 3) * rec.tf1 / 12;
  const double I2 = std::pow(rec.b2, 3) * rec.tf2 / 12;
  const double hs = H - rec.tf1 / 2 - rec.tf2 / 2;
  rec.Iw = I1 * I2 * hs * hs / (I1 + I2);
  const double betafTop = I1 / (I1 + I2);
  const double betafBottom = I2 / (I1 + I2);
  rec.betafTop = betafTop;
  rec.betafBottom = betafBottom;
  rec.zs = betafTop * hs + rec.tf2 / 2 - (H - rec.ezel);
  const auto zj = [hs](double betaf) { return (betaf > 0.5 ? 0.4 : 0.5) * (2 * betaf - 1) * hs; };
  rec.zjTop = zj(betafTop);
  rec.zjBottom = zj(betafBottom);
}

void LoadSingleI(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p22_h;
  rec.b1 = st.p22_b;
  rec.b2 = st.p22_b2;
  rec.tw = st.p22_tw;
  rec.tf1 = st.p22_tf1;
  rec.tf2 = st.p22_tf2;
  rec.b = rec.b1;
  rec.tf = rec.tf1;
  rec.r = 0;
  const double web = rec.h - rec.tf1 - rec.tf2;  // not rounded, so that no gap opens
  rec.hw = web;
  rec.d = rec.hw;
  RectList list;
  list.Add(Rect{rec.b1, rec.tf1, (rec.b2 - rec.b1) / 2, rec.h - rec.tf1});
  list.Add(Rect{rec.tw, web, (rec.b2 - rec.tw) / 2, rec.tf2});
  list.Add(Rect{rec.b2, rec.tf2, 0, 0});
  const SumResult sum = SectionSum(list);
  rec.A = sum.A;
  rec.Iy = sum.Iy;
  rec.Iz = sum.Iz;
  rec.Ix = sum.Ix;
  rec.ezel = rec.h - sum.ybar;
  rec.Wely1 = rec.Iy / rec.ezel;
  rec.Wely2 = rec.Iy / (rec.h - rec.ezel);
  rec.c1 = (rec.b1 - rec.tw) / 2;
  rec.c2 = (rec.b2 - rec.tw - 2 * rec.r) / 2;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = (2 * (rec.b2 + rec.b1 + rec.h) - 2 * rec.tw) / 1000;
  const double y = WalkPlasticAxis(list, sum.A, rec.h);
  rec.ezpl = rec.h - y;
  rec.Wply = PlasticModulus(list, y);
  rec.Welz = rec.Iz / (std::max<double>(rec.b1, rec.b2) / 2);
  rec.Wplz = (rec.tf1 * rec.b1 * rec.b1 + rec.tf2 * rec.b2 * rec.b2 + rec.hw * rec.tw * rec.tw) / 4;
  rec.Afw = rec.hw * rec.tw;
  rec.Afc = rec.tf2 * rec.b2;
  rec.tmax = std::max<double>({rec.tf1, rec.tf2, rec.tw});
  TwoFlangeWarping(rec.h, rec);
}

void EffectiveModuli(const ProjectState& st, const RemovedFlange& top, const RemovedFlange& bottom,
                     const EffectiveWeb& web, SectionRecord& rec) {
  const auto bend = [&](const RemovedFlange& flange, double z) {
    return ReduceInBending(
        {rec.A, rec.Iy, z, flange.t, flange.area, flange.momentArea, web.thickness, web.depth,
         rec.d / rec.tw, st.IgnoreWebBuckling == 1, web.fullStripInertia},
        st.epsilon);
  };
  const BentSection topCompressed = bend(top, rec.ezel);
  rec.Weffy1c = topCompressed.I / topCompressed.e;
  rec.Weffy2t = topCompressed.I / (web.H - topCompressed.e);
  const BentSection bottomCompressed = bend(bottom, web.H - rec.ezel);
  rec.Weffy2c = bottomCompressed.I / bottomCompressed.e;
  rec.Weffy1t = bottomCompressed.I / (web.H - bottomCompressed.e);
}

void SingleEffectiveSection(const ProjectState& st, SectionRecord& rec) {
  const bool noFlange = st.IgnoreFlangeBuckling == 1;
  const auto outstands = [&](double c, double t) {
    return 2 * (1 - EffectiveWidth(c / t, st.epsilon, 0.43, noFlange)) * c * t;
  };
  const double top = outstands(rec.c1, rec.tf1);
  const double bottom = outstands(rec.c2, rec.tf2);
  EffectiveModuli(st, {rec.tf1, top, top}, {rec.tf2, bottom, bottom}, {rec.tw, rec.h, rec.hw}, rec);
  const double rhow = EffectiveWidth(rec.d / rec.tw, st.epsilon, 4, st.IgnoreWebBuckling == 1);
  rec.Aeff = rec.A - top - (1 - rhow) * rec.d * rec.tw - bottom;
}

namespace {

/// Stresses at the ends of the web, the upper one first, compression negative, N/mm2.
struct WebStresses {
  double upper, lower;
};

WebStresses StressesOfWeb(const SectionForces& f, const SectionRecord& rec) {
  const double My = ClassMoment(f);
  const double sN = f.Ncl * 1000 / rec.A;
  return {-My * 1E6 / rec.Iy * (rec.ezel - rec.tf1 - rec.r) - sN,
          My * 1E6 / rec.Iy * (rec.h - rec.ezel - rec.tf2 - rec.r) - sN};
}

int FlangeClass(double ratio, double eps, bool strict) {
  return ClassByLimits(ratio, 9 * eps, 10 * eps, 14 * eps, strict);
}

}  // namespace

void SingleClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  const double eps = st.epsilon;
  const WebStresses s = StressesOfWeb(f, rec);
  const int webClass = InternalClass(s.upper, s.lower, rec.d / rec.tw, eps, ZeroStress::Compressed);
  rec.classTop = GoverningClass(st, webClass, FlangeClass(rec.c1 / rec.tf1, eps, true));
  rec.classBottom = GoverningClass(st, webClass, FlangeClass(rec.c2 / rec.tf2, eps, false));
}

int BottomClassByCompression(const ProjectState& st, const SectionForces& f,
                             const SectionRecord& rec) {
  const double eps = st.epsilon;
  const WebStresses s = StressesOfWeb(f, rec);
  const int webClass = InternalClass(s.lower, s.upper, rec.d / rec.tw, eps, ZeroStress::Compressed);
  return GoverningClass(st, webClass, FlangeClass(rec.c2 / rec.tf2, eps, false));
}

void SideCapacities(const ProjectState& st, double factor, SectionRecord& rec) {
  const double Wel = std::min<double>(rec.Wely1, rec.Wely2);
  rec.betaTop =
      ModulusFactor(st, rec.classTop, std::min<double>(rec.Weffy1c, rec.Weffy2t), Wel, rec.Wply);
  rec.betaBottom =
      ModulusFactor(st, rec.classBottom, std::min<double>(rec.Weffy1t, rec.Weffy2c), Wel, rec.Wply);
  rec.MdyTop = MomentOf(st, rec.betaTop * rec.Wply) * factor;
  rec.MdyBottom = MomentOf(st, rec.betaBottom * rec.Wply) * factor;
}

void SideShear(const ProjectState& st, const SectionForces& f, const ShearedWeb& web,
               SectionRecord& rec) {
  rec.MvdyTop = rec.MdyTop;
  rec.MvdyBottom = rec.MdyBottom;
  if (!(f.Vz > 0.5 * rec.Vdz)) return;
  const double ep = rec.ezpl;  // as stored, from the top edge
  double W = 0;
  if (ep > web.above) {
    W = rec.tw * web.height * (ep - web.height / 2 - rec.tf2);
  } else if (ep < rec.tf2) {
    W = rec.tw * web.height * (web.height / 2 + rec.tf2 - ep);
  } else {
    W = rec.tw * web.a * web.a / 2 + rec.tw * web.e * web.e / 2;
  }
  rec.Mvred = MomentOf(st, W * ShearShare(f.Vz, rec.Vdz));
  rec.MvdyTop = std::min<double>(rec.MdyTop - rec.Mvred, rec.MdyTop);
  rec.MvdyBottom = std::min<double>(rec.MdyBottom - rec.Mvred, rec.MdyBottom);
}

ShearedWeb WebBetweenFlanges(double H, const SectionRecord& rec) {
  const double a = H - rec.ezpl - rec.tf1;
  return {H - rec.tf1, H - rec.tf1 - rec.tf2, a, H - rec.tf1 - a - rec.tf2};
}

void SingleCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  rec.Ntd = ForceOf(st, rec.A);
  rec.betaA = rec.Aeff / rec.A;
  rec.Ncrd = ForceOf(st, rec.betaA * rec.A);
  SideCapacities(st, 1, rec);
  SideShear(st, f, WebBetweenFlanges(rec.h, rec), rec);
  rec.Mdy = std::min<double>(rec.MdyTop, rec.MdyBottom);
}

void BendingNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                              SectionRecord& rec) {
  f.My = 10;
  f.Mz = 0;
  f.Ncl = 0;
  family.routines.sectionClass(st, f, rec);
  family.routines.capacities(st, f, rec);
  rec.classTopshown = rec.classTop;
  rec.classBottomshown = rec.classBottom;
  rec.MdyTopshown = rec.MdyTop;
  rec.MdyBottomshown = rec.MdyBottom;
}

void SingleNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                             SectionRecord& rec) {
  BendingNominalCapacities(st, family, f, rec);
  f.My = 0;
  f.Ncl = 10;
  family.routines.sectionClass(st, f, rec);
  family.routines.capacities(st, f, rec);
  rec.Ncrdshown = rec.Ncrd;
}

}  // namespace korvane
