// SPDX-License-Identifier: GPL-3.0-or-later
#include "sections/p31bas.h"

#include <algorithm>
#include <cmath>

#include "core/powers.h"
#include "sections/capacities.h"
#include "sections/elements.h"

namespace korvane {

void LoadTube(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.d = st.p31_d;
  rec.tw = st.p31_tw;
  const double d = rec.d;
  const double di = d - 2 * rec.tw;
  const double dm = d - rec.tw;
  rec.A = (kPi / 4) * (d * d - di * di);
  rec.S = st.density * rec.A * 1E-6;
  rec.g = (d * 2 * kPi / 2) / 1000;
  rec.Iy = (kPi / 64) * (Fourth(d) - Fourth(di));
  rec.Iz = rec.Iy;
  rec.Wely = rec.Iy / (d / 2);
  rec.Welz = rec.Wely;
  rec.Wply = (1.0 / 6) * (Cube(d) - Cube(di));
  rec.Wplz = rec.Wply;
  rec.Ix = ((dm / 2) * (dm / 2) + rec.tw * rec.tw / 4) * (dm * kPi * rec.tw);
  rec.tmax = rec.tw;
  // Not part of a tube's capacities; 0 so that no other family's value is read.
  rec.Mfdy = 0;
  rec.Mfdz = 0;
  rec.Mndypl = 0;
  rec.Mndzpl = 0;
  TubeClass(st, {}, rec);
}

void TubeShear(const ProjectState& st, SectionRecord& rec) {
  rec.Avz = 2 * rec.A / kPi;
  rec.Avy = rec.Avz;
  rec.Vdz = ShearCapacityOf(st, rec.Avz, 1);
  rec.Vdy = rec.Vdz;
}

void TubeClass(const ProjectState& st, const SectionForces&, SectionRecord& rec) {
  const double eps2 = st.epsilon * st.epsilon;
  rec.class_ = ClassByLimits(rec.d / rec.tw, 50 * eps2, 70 * eps2, 90 * eps2, false);
}

void TubeCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  rec.Ntd = ForceOf(st, rec.A);
  rec.betaA = 1;
  rec.Ncrd = rec.Ntd;
  const bool plastic = rec.class_ <= 2 && st.BendingCapacityMode == 0;
  rec.Mdy = MomentOf(st, plastic ? rec.Wply : rec.Wely);
  rec.Mdz = rec.Mdy;
  const auto sheared = [](double M, double V, double Vd) {
    if (!(V > 0.5 * Vd)) return M;
    const double reduced = M * (1 - ShearShare(V, Vd));
    return reduced == 0 ? 1 : reduced;  // keeps later ratios finite
  };
  rec.Mvdy = sheared(rec.Mdy, f.Vz, rec.Vdz);
  rec.Mvdz = sheared(rec.Mdz, f.Vy, rec.Vdy);
  const double n = std::fabs(f.N / rec.Ntd);
  rec.alfa = 2;
  rec.beta = 2;
  rec.Mndy = std::min<double>(1.04 * rec.Mdy * (1 - std::pow(n, 1.7)), rec.Mdy);
  rec.Mndz = rec.Mndy;
  ShearAndAxial(f, rec);
}

void LoadGeneral(const ProjectState& st, const Catalogues&, SectionRecord& rec) {
  rec.A = st.p41_A;
  rec.Aw = st.p41_Az;
  rec.Af = st.p41_Ay;
  rec.Ix = st.p41_Ix;
  rec.Iy = st.p41_Iy;
  rec.Iz = st.p41_Iz;
  rec.Iw = st.p41_Iw;
  rec.Wely = st.p41_Wely;
  rec.Welz = st.p41_Welz;
  rec.Wply = st.p41_Wply;
  rec.Wplz = st.p41_Wplz;
  rec.class_ = st.p41_option;
  rec.S = st.density * rec.A * 1E-6;
  rec.tmax = st.p41_tmax;
}

void GeneralEffective(const ProjectState&, SectionRecord& rec) {
  rec.Aeff = rec.A;
  rec.betaA = 1;
}

void GeneralClass(const ProjectState&, const SectionForces&, SectionRecord&) {}

void GeneralCapacities(const ProjectState& st, const SectionForces& f, SectionRecord& rec) {
  rec.tmax = 40;  // the yield stress is that of the first column
  rec.Ntd = ForceOf(st, rec.A);
  rec.Ncrd = rec.Ntd;
  rec.betay = ModulusFactor(st, rec.class_, rec.Wely, rec.Wely, rec.Wply);
  rec.betaz = ModulusFactor(st, rec.class_, rec.Welz, rec.Welz, rec.Wplz);
  rec.Mdy = MomentOf(st, rec.betay * rec.Wply);
  rec.Mdz = MomentOf(st, rec.betaz * rec.Wplz);
  rec.Mvdy = rec.Mdy;
  rec.Mvdz = rec.Mdz;
  const double n = std::fabs(f.N / rec.Ncrd);
  const double a = rec.Aw / rec.A;
  rec.alfa = 2;
  rec.beta = std::max(5 * n, 1.0);
  const auto aboutY = [n](double M) { return std::min(1.1 * M * (1 - n), M); };
  const auto aboutZ = [n, a](double M) {
    return n <= a ? M : M * (1 - std::pow((n - a) / (1 - a), 2));
  };
  rec.Mndy = aboutY(rec.Mdy);
  rec.Mndypl = aboutY(MomentOf(st, rec.Wply));
  rec.Mndz = aboutZ(rec.Mdz);
  rec.Mndzpl = aboutZ(MomentOf(st, rec.Wplz));
  rec.Mvndy = rec.Mndy;
  rec.Mvndz = rec.Mndz;
}

void GeneralShear(const ProjectState& st, SectionRecord& rec) {
  rec.Avz = st.p41_Az;
  rec.Vdz = ShearCapacityOf(st, rec.Avz, 1);
  rec.Avy = st.p41_Ay;
  rec.Vdy = ShearCapacityOf(st, rec.Avy, 1);
}

void GeneralNominalCapacities(const ProjectState& st, const Family& family, SectionForces& f,
                              SectionRecord& rec) {
  family.routines.capacities(st, f, rec);
  GeneralShear(st, rec);
}

}  // namespace korvane
