// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p05bas.h"

#include <algorithm>
#include <cmath>

#include "sections/elements.h"
#include "sections/p01bas.h"

namespace korvane {

namespace {

/// h, b, tw, tf of the metric channel tables and what follows from them with the root radius.
void LoadMetricSizes(const CatalogueTable& t, int row, double root, SectionRecord& rec) {
  rec.h = t(row, 1);
  rec.b = t(row, 2);
  rec.tw = t(row, 3);
  rec.tf = t(row, 4);
  rec.d = rec.h - 2 * (rec.tf + root);
  rec.hw = rec.h - 2 * rec.tf;
  rec.tmax = std::max<double>(rec.tf, rec.tw);
  rec.Af = 2 * rec.b * rec.tf;
  rec.Aw = (rec.h - 2 * rec.tf) * rec.tw;
}

void DeriveMetric(const ProjectState& st, SectionRecord& rec) {
  rec.S = st.density * rec.A * 1E-6;
  rec.Wely = rec.Iy / (rec.h / 2);
  rec.Welz = rec.Iz / (rec.b - rec.e);
}

/// Surface in mm of a channel with root radius; slope is what slanted flange faces take off.
double SurfaceOfChannel(const SectionRecord& rec, double root, double slope) {
  return 2 * rec.b + rec.h + 2 * rec.tf + 2 * (rec.b - rec.tw - root) +
         (rec.h - 2 * rec.tf - 2 * root - slope) + kPi * root;
}

}  // namespace

void LoadUPE(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::UPE];
  const int row = st.idxUPE;
  rec.r = t(row, 5);
  LoadMetricSizes(t, row, rec.r, rec);
  rec.e = t(row, 6);
  rec.es = t(row, 7) - rec.e;
  rec.A = t(row, 8);
  rec.Iy = t(row, 9) * 1E4;
  rec.Iz = t(row, 10) * 1E4;
  rec.Wply = t(row, 11) * 1E3;
  rec.Wplz = t(row, 12) * 1E3;
  rec.Ix = t(row, 13) * 1E3;
  rec.Iw = t(row, 14) * 1E9;
  rec.c = rec.b;  // the full width, though the web takes part of it
  DeriveMetric(st, rec);
  rec.g = SurfaceOfChannel(rec, rec.r, 0) / 1000;
}

void LoadUNP(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const CatalogueTable& t = cat[Cat::UNP];
  const int row = st.idxUNP;
  rec.r1 = t(row, 5);
  rec.r2 = t(row, 6);
  // The class test and the shear area read r, which this catalogue doesn't have: 0, so that no
  // other family's radius counts.
  rec.r = 0;
  LoadMetricSizes(t, row, rec.r1, rec);
  rec.e = t(row, 7);
  rec.es = t(row, 8) - rec.e;
  rec.A = t(row, 9);
  rec.Iy = t(row, 10) * 1E4;
  rec.Iz = t(row, 11) * 1E4;
  rec.Ix = t(row, 12) * 1E6;
  rec.Iw = t(row, 13) * 1E9;
  rec.Wply = t(row, 14) * 1E3;
  rec.Wplz = t(row, 15) * 1E3;
  rec.c = rec.b - rec.r1;
  DeriveMetric(st, rec);
  const double outline = SurfaceOfChannel(rec, rec.r1, rec.b * std::sin(8 * kPi / 180));
  rec.g = (outline - 2 * (rec.r2 - rec.r2 * kPi / 4)) / 1000;
}

void LoadBritishC(const ProjectState& st, const Catalogues& cat, SectionRecord& rec) {
  const bool toe = st.p103_sub == 2;
  if (st.p103_sub != 1 && !toe) return;
  const CatalogueTable& t = cat[toe ? Cat::CH : Cat::PFC];
  const int row = toe ? st.p103_idx2 : st.p103_idx1;
  const int first = toe ? 11 : 10;  // CH has the toe radius in column 10
  LoadBritish(t, row, first, rec);
  if (toe) rec.r2 = t(row, 10);
  rec.e = t(row, first + 10) * 10;
  rec.es = t(row, first + 11) * 10 - rec.e;
  rec.c = rec.b - rec.tw - rec.r;
}

void ChannelEffectiveSection(const ProjectState& st, SectionRecord& rec) {
  const bool noWeb = st.IgnoreWebBuckling == 1;
  const double eps = st.epsilon;
  const double rhof = EffectiveWidth(rec.c / rec.tf, eps, 0.43, st.IgnoreFlangeBuckling == 1);
  const double rhow = EffectiveWidth(rec.d / rec.tw, eps, 4, noWeb);
  rec.Aeff = rec.A - 2 * rec.c * (1 - rhof) * rec.tf - (1 - rhow) * rec.d * rec.tw;

  const double removed = (1 - rhof) * rec.c * rec.tf;
  const BentSection y = ReduceInBending(
      {rec.A, rec.Iy, rec.h / 2, rec.tf, removed, removed, rec.tw, rec.hw, rec.d / rec.tw, noWeb},
      eps);
  rec.Weffy = y.I / y.e;
  rec.Weffz = rec.Welz;
}

void ChannelShear(const ProjectState& st, SectionRecord& rec) {
  WebShear(st, rec.A - 2 * rec.b * rec.tf + (rec.tw + rec.r) * rec.tf, rec);
}

void ChannelClass(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  const double sN = f.Ncl * 1000 / rec.A;
  const double web = std::fabs(f.My * 1E6 / rec.Iy * (rec.h / 2 - rec.tf - rec.r));
  const double flange = std::fabs(f.My * 1E6 / rec.Iy * (rec.h - rec.tf) / 2);
  const double tip = std::fabs(f.Mz * 1E6 / rec.Iz * (rec.b - rec.e));
  const double back = std::fabs(f.Mz * 1E6 / rec.Iz * rec.e);
  const int webClass =
      InternalClass(-web - sN, web - sN, rec.d / rec.tw, st.epsilon, ZeroStress::Compressed);
  const int flangeClass = OutstandClass(-flange - tip - sN, -flange + back - sN, rec.c / rec.tf,
                                        st.epsilon, kRolledOutstand);
  rec.class_ = GoverningClass(st, webClass, flangeClass);
}

}  // namespace korvane
