// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p01bas.h"

#include <algorithm>
#include <cmath>

#include "sections/elements.h"

namespace korvane {

namespace {

/// What follows from the dimensions in every I family.
void DeriveDimensions(SectionRecord& rec) {
  rec.hw = rec.h - 2 * rec.tf;
  rec.d = rec.h - 2 * (rec.tf + rec.r);
  rec.c = rec.b / 2;
  rec.tmax = std::max<double>(rec.tf, rec.tw);
  rec.Af = 2 * rec.b * rec.tf;
  rec.Aw = (rec.h - 2 * rec.tf) * rec.tw;
}

void DeriveElasticModuli(SectionRecord& rec) {
  rec.Wely = rec.Iy / (rec.h / 2);
  rec.Welz = rec.Iz / (rec.b / 2);
}

/// Surface of an I section; slope is what the slanted flange faces take off the web, mm.
double SurfaceOfI(const SectionRecord& rec, double slope) {
  return (2 * (rec.b - rec.tw - 2 * rec.r) + 4 * rec.tf + 2 * rec.b +
          2 * (rec.h - 2 * rec.tf - 2 * rec.r - slope) + 2 * kPi * rec.r) /
         1000;
}

/// HE and IPE tables: h, b, tf, tw, r, A, Iy, Iz, Ix, Iw from column `first` on.
void LoadParallelFlanges(const CatalogueTable& t, int row, int first, const ProjectState& st,
                         SectionRecord& rec) {
  const auto col = [&](int k) { return t(row, first + k); };
  rec.h = col(0);
  rec.b = col(1);
  rec.tf = col(2);
  rec.tw = col(3);
  rec.r = col(4);
  rec.A = col(5);
  rec.Iy = col(6) * 1E6;
  rec.Iz = col(7) * 1E6;
  rec.Ix = col(8) * 1E6;
  rec.Iw = col(9) * 1E9;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = SurfaceOfI(rec, 0);
  DeriveDimensions(rec);
  DeriveElasticModuli(rec);
  const double fillets = 4 * rec.r * rec.r * (1 - kPi / 4);
  rec.Wply = rec.tf * rec.b * (rec.h - rec.tf) + rec.hw * rec.hw * rec.tw / 4 +
             fillets * (rec.hw / 2 - 0.2234 * rec.r);
  rec.Wplz = std::pow(rec.tw / 2, 2) * (2 * rec.hw) / 2 + 4 * std::pow(rec.b / 2, 2) * rec.tf / 2 +
             fillets * (rec.tw / 2 + 0.2234 * rec.r);
}

}  // namespace

void LoadHEA(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  LoadParallelFlanges(cat[Cat::HEA], st.idxHEA, 2, st, rec);
}

void LoadHEB(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  LoadParallelFlanges(cat[Cat::HEB], st.idxHEB, 2, st, rec);
}

void LoadHEM(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  LoadParallelFlanges(cat[Cat::HEM], st.idxHEM, 2, st, rec);
}

void LoadIPE(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  LoadParallelFlanges(cat[Cat::IPE], st.idxIPE, 1, st, rec);
}

void LoadINP(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::INP];
  const int row = st.idxINP;
  rec.h = t(row, 1);
  rec.b = t(row, 2);
  rec.tf = t(row, 3);
  rec.tw = t(row, 4);
  rec.r = rec.tw;  // the catalogue has no radius
  rec.A = t(row, 5) * 1E3;
  rec.Iy = t(row, 6) * 1E6;
  rec.Wply = t(row, 7) * 1E3;
  rec.Iz = t(row, 8) * 1E6;
  rec.Wplz = t(row, 9) * 1E3;
  rec.Ix = t(row, 10) * 1E3;
  rec.Iw = t(row, 11) * 1E9;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = SurfaceOfI(rec, rec.b / 2 * std::sin(14 * kPi / 180));
  DeriveDimensions(rec);
  DeriveElasticModuli(rec);
}

void LoadBritish(const CatalogueTable& t, int row, int first, SectionRecord& rec) {
  rec.S = t(row, 4);
  rec.h = t(row, 5);
  rec.b = t(row, 6);
  rec.tw = t(row, 7);
  rec.tf = t(row, 8);
  rec.r = t(row, 9);
  rec.A = t(row, first) * 100;
  rec.g = t(row, first + 1);
  rec.Iy = t(row, first + 2) * 1E4;
  rec.Wely = t(row, first + 3) * 1E3;
  rec.Wply = t(row, first + 4) * 1E3;
  rec.Iz = t(row, first + 5) * 1E4;
  rec.Welz = t(row, first + 6) * 1E3;
  rec.Wplz = t(row, first + 7) * 1E3;
  rec.Ix = t(row, first + 8) * 1E4;
  rec.Iw = t(row, first + 9) * 1E9;
  DeriveDimensions(rec);
}

void LoadBritishU(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  switch (st.p101_sub) {
    case 1:
      return LoadBritish(cat[Cat::UB], st.p101_idx1, 10, rec);
    case 2:
      return LoadBritish(cat[Cat::UC], st.p101_idx2, 10, rec);
    case 3:
      return LoadBritish(cat[Cat::UBP], st.p101_idx3, 10, rec);
    default:
      return;
  }
}

void LoadJ(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  LoadBritish(cat[Cat::J], st.p102_idx, 10, rec);
}

void EffectiveSection(const ProjectState& st, SectionRecord& rec) {
  const bool noFlange = st.IgnoreFlangeBuckling == 1;
  const bool noWeb = st.IgnoreWebBuckling == 1;
  const double eps = st.epsilon;
  const double rhof = EffectiveWidth(rec.c / rec.tf, eps, 0.43, noFlange);
  const double rhow = EffectiveWidth(rec.d / rec.tw, eps, 4, noWeb);
  rec.Aeff = rec.A - 4 * rec.c * (1 - rhof) * rec.tf - (1 - rhow) * rec.d * rec.tw;

  const double removed = 2 * (1 - rhof) * rec.c * rec.tf;
  const BentSection y = ReduceInBending(
      {rec.A, rec.Iy, rec.h / 2, rec.tf, removed, removed, rec.tw, rec.hw, rec.d / rec.tw, noWeb},
      eps);
  rec.Weffy = y.I / y.e;

  // About z the two outstands of the compressed side are reduced, the web is not.
  const double rhoz = EffectiveWidth(rec.c / rec.tf, eps, 1.7, noFlange);
  const double w = (1 - rhoz) * rec.c;
  const double A3 = rec.A - 2 * rec.tf * w;
  const double e3 = (rec.b * rec.A / 2 - 2 * rec.tf * w * w / 2) / A3;
  const double I =
      rec.b * rec.b * rec.A / 4 + rec.Iz - 2 * rec.tf * w * w * w / 12 - 2 * rec.tf * w * w * w / 4;
  rec.Weffz = (I - A3 * e3 * e3) / e3;
}

void WebShear(const ProjectState& st, double stockyArea, SectionRecord& rec) {
  const ShearWall web{stockyArea, rec.tw * rec.hw, rec.hw, rec.hw / rec.tw};
  rec.Vdzshown = UnstiffenedShear(st, web, rec.Avz);
  rec.Avy = 2 * rec.b * rec.tf;
  rec.Vdyshown = ShearCapacityOf(st, (1 / 1.5) * rec.Avy, 1);
  rec.Vdy = rec.Vdyshown;
  rec.Vdz = WorkingShear(st, web, rec.Avz);
}

void RolledShear(const ProjectState& st, SectionRecord& rec) {
  WebShear(st, rec.A - 2 * rec.b * rec.tf + (rec.tw + 2 * rec.r) * rec.tf, rec);
}

void SectionClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  const double sN = f.Ncl * 1000 / rec.A;
  const double web = std::fabs(f.My * 1E6 / rec.Iy * (rec.h / 2 - rec.tf - rec.r));
  const double flange = std::fabs(f.My * 1E6 / rec.Iy * (rec.h - rec.tf) / 2);
  const double tip = std::fabs(f.Mz * 1E6 / rec.Iz * rec.b / 2);
  const int webClass =
      InternalClass(-web - sN, web - sN, rec.d / rec.tw, st.epsilon, ZeroStress::Compressed);
  const int flangeClass =
      OutstandClass(-flange - tip - sN, -flange - sN, rec.c / rec.tf, st.epsilon, kRolledOutstand);
  rec.class_ = GoverningClass(st, webClass, flangeClass);
}

}  // namespace korvane
