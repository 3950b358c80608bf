// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p26bas.h"

#include <algorithm>
#include <cmath>

#include "core/powers.h"
#include "sections/capacities.h"
#include "sections/elements.h"
#include "sections/section_sum.h"

namespace korvane {

double WarpingOfT(double b, double tf, double tw, double h) {
  return (Cube(b) * Cube(tf) + 4 * Cube(tw) * Cube(h)) / 144;
}

void LoadT(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p26_h;
  rec.b = st.p26_b;
  rec.tw = st.p26_tw;
  rec.tf = st.p26_tf;
  const double web = rec.h - rec.tf;
  rec.hw = web;
  rec.c = (rec.b - rec.tw) / 2;
  RectList list;
  list.Add(Rect{rec.b, rec.tf, 0, web});
  list.Add(Rect{rec.tw, web, rec.c, 0});
  const SumResult sum = SectionSum(list);
  rec.A = sum.A;
  rec.Iy = sum.Iy;
  rec.Iz = sum.Iz;
  rec.Ix = sum.Ix;
  rec.Aw = rec.hw * rec.tw;
  rec.Af = rec.tf * rec.b;
  rec.S = st.density * rec.A * 1E-6;
  rec.g = 2 * (rec.b + rec.h) / 1000;
  rec.ezel = rec.h - sum.ybar;
  rec.Wely1 = rec.Iy / rec.ezel;
  rec.Wely2 = rec.Iy / (rec.h - rec.ezel);
  rec.Welz = rec.Iz / (rec.b / 2);
  const PlasticT plastic = PlasticAxisOfT(sum.A, rec.b, rec.tf, rec.hw, rec.tw);
  rec.ezpl = plastic.y;
  rec.Wply = plastic.Wply;
  rec.Wplz = (rec.tf * rec.b * rec.b + rec.hw * rec.tw * rec.tw) / 4;
  rec.Iw = WarpingOfT(rec.b, rec.tf, rec.tw, rec.h);
  // tf2 belongs to other families and may hold an earlier section's value: kept.
  rec.tmax = std::max<double>({rec.tf, rec.tf2, rec.tw});
}

void TClass(const ProjectState& st, SectionRecord& rec) {
  const double eps = st.epsilon;
  const double w = rec.hw / rec.tw;
  const int webClass = ClassByLimits(w, 10 * eps, 11 * eps, 15 * eps, false);
  const double rhow = webClass == 4 ? EffectiveWidth(w, eps, 0.43, st.IgnoreWebBuckling == 1) : 1;
  const double f = rec.c / rec.tf;
  const double rhof =
      f <= 15 * eps ? 1 : EffectiveWidth(f, eps, 0.43, st.IgnoreFlangeBuckling == 1);
  rec.Aeff = rec.A - (1 - rhow) * rec.hw * rec.tw - 2 * rec.c * (1 - rhof) * rec.tf;
  rec.betaA = rec.Aeff / rec.A;
  rec.Ncrd = ForceOf(st, rec.Aeff);
  rec.Ntd = st.fd * rec.A / 1000;
  rec.class_ = std::max(webClass, ClassByLimits(f, 10 * eps, 11 * eps, 15 * eps, false));
}

void LoadFlatBar(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.h = st.p28_h;
  rec.tw = st.p28_tw;
  rec.A = rec.tw * rec.h;
  rec.Aeff = rec.A;
  rec.betaA = 1;
  rec.S = st.density * rec.A * 1E-6;
  rec.Ix = Cube(rec.tw) * rec.h / 3;
  rec.Iw = 0;
  rec.Iy = Cube(rec.h) * rec.tw / 12;
  rec.Iz = Cube(rec.tw) * rec.h / 12;
  rec.ez = rec.h / 2;
  rec.ey = rec.tw / 2;
  rec.Wely = rec.Iy / (rec.h - rec.h / 2);
  rec.Welz = rec.Iz / (rec.tw - rec.tw / 2);
  rec.Weffy = rec.Wely;
  rec.Weffz = rec.Welz;
  rec.Wply = rec.h * rec.h * rec.tw / 4;
  rec.Wplz = rec.tw * rec.tw * rec.h / 4;
  rec.tmax = rec.tw;
  // The I formula on b and tf, which this family leaves as the last section wrote them: kept.
  rec.g = (4 * rec.tf + 2 * rec.b + 2 * (rec.b - rec.tw) + 2 * (rec.h - 2 * rec.tf)) / 1000;
}

void FlatShear(const ProjectState& st, SectionRecord& rec) {
  rec.Avz = rec.tw * rec.h;
  rec.Avy = rec.Avz;
  rec.Vdzshown = ShearCapacityOf(st, (1 / 1.5) * rec.Avz, 1);
  rec.Vdyshown = ShearCapacityOf(st, (1 / 1.5) * rec.Avy, 1);
  rec.Vdz = rec.Vdzshown;
  rec.Vdy = rec.Vdyshown;
}

void FlatClass(const ProjectState&, const SectionForces&, SectionRecord& rec) {
  rec.class_ = 1;
  rec.classN = 1;
  rec.classMy = 1;
}

void FlatCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  rec.Ntd = ForceOf(st, rec.A);
  rec.Ncrd = rec.Ntd;
  rec.betay = st.BendingCapacityMode == 0 ? 1.0 : rec.Wely / rec.Wply;
  rec.betaz = st.BendingCapacityMode == 0 ? 1.0 : rec.Welz / rec.Wplz;
  rec.Mdy = MomentOf(st, rec.betay * rec.Wply);
  rec.Mdz = MomentOf(st, rec.betaz * rec.Wplz);
  rec.Mfdy = 0;
  rec.Mfdz = 0;
  TwoFlangeInteraction(st, f, rec);
}

void FlatNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                           SectionRecord& rec) {
  family.routines.sectionClass(st, f, rec);
  family.routines.capacities(st, f, rec);
  rec.Mdyshown = rec.Mdy;
  rec.Ncrdshown = rec.Ncrd;
  rec.Mdzshown = rec.Mdz;
}

}  // namespace korvane
