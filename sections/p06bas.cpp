// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p06bas.h"

#include <algorithm>
#include <cmath>

#include "sections/capacities.h"
#include "sections/elements.h"

namespace korvane {

double ColdCornerRadius(double t) {
  return t <= 6 ? 2 * t : t <= 10 ? 2.5 * t : 3 * t;
}

namespace {

/// Dimensions and properties in catalogue order, before a rotation.
struct HollowRow {
  double h, b, t, A, Iy, Iz, Wply, Wplz, Ix;
};

HollowRow SquareRow(const CatalogueTable& t, int row, int first) {
  const double side = t(row, 1);
  const double I = t(row, first + 2) * 1E4;
  const double W = t(row, first + 3) * 1E3;
  return {side, side, t(row, first), t(row, first + 1) * 100, I, I, W, W, t(row, first + 4) * 1E4};
}

HollowRow RectangularRow(const CatalogueTable& t, int row, bool rotated) {
  HollowRow s{t(row, 1),       t(row, 2),       t(row, 3),       t(row, 4) * 100, t(row, 5) * 1E4,
              t(row, 6) * 1E4, t(row, 7) * 1E3, t(row, 8) * 1E3, t(row, 9) * 1E4};
  if (rotated) {
    std::swap(s.h, s.b);
    std::swap(s.Iy, s.Iz);
    std::swap(s.Wply, s.Wplz);
  }
  return s;
}

void Load(const HollowRow& s, double radius, const ProjectState& st, SectionRecord& rec) {
  rec.h = s.h;
  rec.b = s.b;
  rec.tw = s.t;
  rec.tf = s.t;
  rec.tmax = s.t;
  rec.A = s.A;
  rec.Iy = s.Iy;
  rec.Iz = s.Iz;
  rec.Wply = s.Wply;
  rec.Wplz = s.Wplz;
  rec.Ix = s.Ix;
  const double t = rec.tw;
  rec.r = radius;
  rec.rin = rec.r - t;
  rec.d = rec.h - 3 * t;
  rec.c = rec.b - 3 * t;
  rec.hw = rec.h - 2 * t;
  rec.bw = rec.b - 2 * t;
  rec.Af = 2 * rec.b * rec.tf;
  rec.Aw = (rec.h - 2 * rec.tf) * rec.tw;
  rec.S = st.density * rec.A * 1E-6;
  // One rule of the surface for all four families, whatever the corner radius is.
  rec.g = (2 * (rec.b - 5 * t) + 2 * (rec.h - 5 * t) + 2 * kPi * 2.5 * t) / 1000;
  rec.Wely = rec.Iy / (rec.h / 2);
  rec.Welz = rec.Iz / (rec.b / 2);
}

}  // namespace

void LoadHotSquare(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const HollowRow s = SquareRow(cat[Cat::SHS], st.idxRHSs, 2);
  Load(s, 1.5 * s.t, st, rec);
}

void LoadHotRectangular(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const HollowRow s = RectangularRow(cat[Cat::RHS], st.idxRHSr, st.RhsOrientation == 0);
  Load(s, 1.5 * s.t, st, rec);
}

void LoadColdSquare(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const HollowRow s = SquareRow(cat[Cat::CFSHS], st.idxCFRHSs, 3);
  Load(s, ColdCornerRadius(s.t), st, rec);
}

void LoadColdRectangular(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const HollowRow s = RectangularRow(cat[Cat::CFRHS], st.idxCFRHSr, st.RhsOrientation == 0);
  Load(s, ColdCornerRadius(s.t), st, rec);
}

void BoxEffectiveSection(const ProjectState& st, SectionRecord& rec) {
  const bool noFlange = st.IgnoreFlangeBuckling == 1;
  const bool noWeb = st.IgnoreWebBuckling == 1;
  const double eps = st.epsilon;
  const double flangeRatio = rec.c / rec.tf;
  const double webRatio = rec.d / rec.tw;
  const double rhof = EffectiveWidth(flangeRatio, eps, 4, noFlange);
  const double rhow = EffectiveWidth(webRatio, eps, 4, noWeb);
  rec.Aeff = rec.A - 2 * rec.c * (1 - rhof) * rec.tf - (1 - rhow) * 2 * rec.d * rec.tw;

  const double removed = (1 - rhof) * rec.c * rec.tf;
  const BentSection y = ReduceInBending(
      {rec.A, rec.Iy, rec.h / 2, rec.tf, removed, removed, 2 * rec.tw, rec.hw, webRatio, noWeb},
      eps);
  rec.Weffy = y.I / y.e;

  // About z a web is the compressed element, under the flange option; the flanges are the webs
  // then, under the web option.
  const double rhoz = EffectiveWidth(webRatio, eps, 4, noFlange);
  const double removedWeb = (1 - rhoz) * rec.d * rec.tw;
  const BentSection z = ReduceInBending({rec.A, rec.Iz, rec.b / 2, rec.tw, removedWeb, removedWeb,
                                         2 * rec.tf, rec.bw, flangeRatio, noWeb},
                                        eps);
  rec.Weffz = z.I / z.e;
}

namespace {

struct StockyAreas {
  double z, yShown, yWorking;
};

void ShearOfWalls(const ProjectState& st, const StockyAreas& stocky, SectionRecord& rec) {
  const ShearWall z{stocky.z, 2 * rec.hw * rec.tw, rec.hw, rec.hw / rec.tw};
  // A slender wall along y counts with tw, not tf.
  ShearWall y{stocky.yShown, 2 * rec.bw * rec.tw, rec.bw, rec.bw / rec.tf};
  rec.Vdzshown = UnstiffenedShear(st, z, rec.Avz);
  rec.Vdyshown = UnstiffenedShear(st, y, rec.Avy);
  y.stocky = stocky.yWorking;
  rec.Vdz = WorkingShear(st, z, rec.Avz);
  rec.Vdy = WorkingShear(st, y, rec.Avy);
}

double WidthShare(const SectionRecord& rec) {
  return rec.A * rec.b / (rec.b + rec.h);
}

}  // namespace

void HollowShear(const ProjectState& st, SectionRecord& rec) {
  ShearOfWalls(st, {rec.A * rec.h / (rec.b + rec.h), WidthShare(rec), WidthShare(rec)}, rec);
}

void BoxShear(const ProjectState& st, SectionRecord& rec) {
  ShearOfWalls(st, {2 * rec.hw * rec.tw, 2 * rec.bw * rec.tw, 2 * rec.bw * rec.tf}, rec);
}

void TwoWebShear(const ProjectState& st, SectionRecord& rec) {
  ShearOfWalls(st, {2 * rec.hw * rec.tw, WidthShare(rec), 2 * rec.bw * rec.tf}, rec);
}

void BoxClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  const double sN = f.Ncl * 1000 / rec.A;
  const double web = std::fabs(f.My * 1E6 / rec.Iy * rec.d / 2);
  const double webZ = std::fabs(f.Mz * 1E6 / rec.Iz * (rec.b - rec.tw) / 2);
  const double flange = std::fabs(f.My * 1E6 / rec.Iy * (rec.h - rec.tf) / 2);
  const double flangeZ = std::fabs(f.Mz * 1E6 / rec.Iz * rec.c / 2);
  const int webClass = InternalClass(-web - webZ - sN, web - webZ - sN, rec.d / rec.tw, st.epsilon,
                                     ZeroStress::Mixed);
  const int flangeClass = InternalClass(-flange - flangeZ - sN, -flange + flangeZ - sN,
                                        rec.c / rec.tf, st.epsilon, ZeroStress::Mixed);
  rec.class_ = GoverningClass(st, webClass, flangeClass);
}

void BoxCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  AxialAndBending(st, rec);
  rec.Mfdy = MomentOf(st, (rec.h - rec.tf) * rec.b * rec.tf);
  rec.Mfdz = MomentOf(st, (rec.b - rec.tw) * rec.h * rec.tw);

  rec.Mvdy = rec.Mdy;
  if (f.Vz > 0.5 * rec.Vdz) {
    const double W = ShearShare(f.Vz, rec.Vdz) * rec.Avz * rec.Avz / 4 / (2 * rec.tw);
    rec.Mvdy = std::min<double>(rec.Mdy, rec.Mdy - MomentOf(st, W));
  }
  rec.Mvdz = rec.Mdz;
  if (f.Vy > 0.5 * rec.Vdy) {
    const double W = ShearShare(f.Vy, rec.Vdy) * rec.Avy * rec.Avy / 4 / (2 * rec.tf);
    rec.Mvdz = std::min<double>(rec.Mdz, rec.Mdz - MomentOf(st, W));
  }

  const double n = AxialRatio(rec, f);
  rec.alfa = std::max(std::min(1.66 / (1 - 1.13 * n * n), 6.0), 1.0);
  rec.beta = rec.alfa;
  const double aw = std::min(1 - 2 * rec.b * rec.tf / rec.A, 0.5);
  const double af = std::min(1 - 2 * rec.h * rec.tw / rec.A, 0.5);
  const auto reduced = [n](double M, double a) { return M * (1 - n) / (1 - 0.5 * a); };
  const double plasticY = MomentOf(st, rec.Wply);
  rec.Mndy = std::min<double>(reduced(rec.Mdy, aw), rec.Mdy);
  rec.Mndypl = std::min(reduced(plasticY, aw), plasticY);
  rec.Mndz = std::min<double>(reduced(rec.Mdz, af), rec.Mdz);
  rec.Mndzpl = reduced(MomentOf(st, rec.Wplz), af);  // no upper limit here
  ShearAndAxial(f, rec);
}

}  // namespace korvane
